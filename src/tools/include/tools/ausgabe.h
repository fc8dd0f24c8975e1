// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// A tool's standard output is its result: when it cannot be written (closed, a full disk, /dev/full)
// the tool says so and ends with status 1 instead of 0.
#include <ostream>
#include <string>

namespace fuh {

// Call first thing: a standard descriptor (0, 1, 2) that is closed is taken by /dev/null opened for
// reading, so that no data file opened later gets its number (output meant for the terminal would land
// in it) and every write to it fails as it should.
void standardkanaeleSichern();

// Call last: flushes and closes standard output (`aus` is the stream written, normally std::cout). When
// anything written could not be written, one line naming `programm` goes to `fehler` and the result is
// at least 1; otherwise `status`.
int ausgabeAbschliessen(const std::string& programm, int status, std::ostream& aus, std::ostream& fehler);

} // namespace fuh
