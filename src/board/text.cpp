// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include "board/text.h"

namespace fuh {

std::string einsetzen(std::string_view vorlage, std::initializer_list<std::string_view> werte) {
    std::string text;
    for (std::size_t i = 0; i < vorlage.size(); ++i) {
        const char c = vorlage[i];
        if (c == '%' && i + 1 < vorlage.size() && vorlage[i + 1] >= '1' && vorlage[i + 1] <= '9') {
            const auto nummer = static_cast<std::size_t>(vorlage[++i] - '1');
            if (nummer < werte.size()) text += *(werte.begin() + nummer);
            continue;
        }
        text += c;
    }
    return text;
}

} // namespace fuh
