# Thin wrapper around CMake; see README.md.
BUILD ?= build
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

.PHONY: run test build deps sanitize bench clean format package match

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

# A Debian package in $(BUILD)/ (CPack), then checked against the expected file list.
package: build
	@scripts/install-deps dpkg-dev file
	cd $(BUILD) && rm -f fuchs-und-hennen_*.deb && cpack
	tests/paket/pruefen $(BUILD)/fuchs-und-hennen_*.deb

bench: build
	$(BUILD)/src/tools/benchmarks

# The Meister against strength 3 on each side: 200 games each with fixed seeds, and its time per move.
match: build
	$(BUILD)/src/tools/match --spiele 200

format:
	find src tests -name '*.cpp' -o -name '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD) build-asan
