// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
#include <cstddef>
#include <string>

namespace fuh {

// Characters, not bytes, of UTF-8 text: what a terminal's columns count (the texts have umlauts).
inline std::size_t zeichen(const std::string& text) {
    std::size_t n = 0;
    for (unsigned char c : text)
        n += (c & 0xC0) != 0x80; // continuation bytes belong to the character before
    return n;
}

// The first `n` characters of UTF-8 text.
inline std::string vorne(const std::string& text, std::size_t n) {
    std::size_t i = 0;
    for (std::size_t gezaehlt = 0; i < text.size(); ++i) {
        const bool neu = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
        if (neu && gezaehlt++ == n) break;
    }
    return text.substr(0, i);
}

} // namespace fuh
