# SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
#
# SPDX-License-Identifier: GPL-3.0-or-later

# Thin wrapper around CMake; see README.md.
BUILD ?= build
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: run test build deps sanitize bench soak fuzz clean format package match tafel

deps:
	@scripts/install-deps

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build $(BUILD) -j $(JOBS)

# The game finds and creates its per-user data folder itself.
run: build
	"$(BUILD)/src/ui/fuchs-und-hennen"

test: build
	cd $(BUILD) && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j $(JOBS)

# Every test again under AddressSanitizer and UndefinedBehaviorSanitizer.
sanitize: deps
	cmake -S . -B build-asan -DCMAKE_BUILD_TYPE=Debug -DFUH_SANITIZE=ON $(CMAKE_FLAGS)
	cmake --build build-asan -j $(JOBS)
	cd build-asan && QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

# The Debian package, built by dpkg-buildpackage from debian/ in a copy of the tree: the .deb lands in
# $(PAKET)/, lintian checks it, and its file list is compared with tests/paket/dateiliste.txt.
PAKET = $(BUILD)/paket
package:
	@scripts/install-deps lintian appstream
	DEB_BUILD_OPTIONS="parallel=$(JOBS) $(DEB_BUILD_OPTIONS)" scripts/paket-bauen $(PAKET)
	tests/paket/pruefen $(PAKET)/fuchs-und-hennen_*_$$(dpkg --print-architecture).deb

bench: build
	$(BUILD)/src/tools/benchmarks

# The Meister against strength 3 on each side: 200 games each with fixed seeds, and its time per move.
match: build
	$(BUILD)/src/tools/match --spiele 200

# The Meister's exact endgame tables, with and without the penalty rule, into the user's cache folder
# ($XDG_CACHE_HOME/fuchs-und-hennen, else ~/.cache/fuchs-und-hennen); the game reads them at its next start.
tafel: build
	$(BUILD)/src/tools/tafel
	$(BUILD)/src/tools/tafel --ohne-strafregel

# 10 000 learning games at strength 3 in one folder; checks the files and prints time and resident memory.
soak: build
	$(BUILD)/src/tools/dauerlauf 10000

# One libFuzzer target per data-file reader and one for the learned-move merge, built with clang under
# ASan/UBSan, each run for FUZZ_RUNS inputs from a copy of the seed corpus in src/tools/fuzz/korpus (the
# learned-file targets get large seeds made by scripts/fuzz-korpus, and inputs up to a full file). The
# inputs become files in a folder in memory (/dev/shm) where there is one: on a disk, truncating and
# writing them would take most of the time.
FUZZ_ZIELE = einstellungen statistik bestenliste lerndatei zusammenfuehren
FUZZ_RUNS ?= 1000000
# Longest input: 4096 bytes for the small files; 32767 records of 15 bytes for a learned file, and for
# the merge also the game in front of it (one byte and 151 positions of 15 bytes).
fuzz_laenge = $(if $(filter lerndatei,$(1)),491505,$(if $(filter zusammenfuehren,$(1)),493771,4096))
fuzz:
	@scripts/install-deps clang
	cmake -S . -B build-fuzz -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=RelWithDebInfo -DFUH_GUI=OFF \
	  -DFUH_SANITIZE=ON -DFUH_FUZZ=ON -DFUH_WERROR=OFF -DCMAKE_CXX_FLAGS=-fsanitize=fuzzer-no-link
	cmake --build build-fuzz -j $(JOBS) --target $(addprefix fuzz_,$(FUZZ_ZIELE))
	$(foreach z,$(FUZZ_ZIELE),scripts/fuzz-korpus $(z) build-fuzz/korpus/$(z) && \
	  TMPDIR=$$(test -d /dev/shm && echo /dev/shm || echo /tmp) \
	  UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 build-fuzz/src/tools/fuzz/fuzz_$(z) \
	    -runs=$(FUZZ_RUNS) -max_len=$(call fuzz_laenge,$(z)) -print_final_stats=1 build-fuzz/korpus/$(z) && ) true

format:
	find src tests -name '*.cpp' -o -name '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD) build-asan build-fuzz
