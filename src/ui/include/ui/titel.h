// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace fuh {

// The application's title: the main window's caption and that of every message box.
inline constexpr const char* kTitel = "Fuchs und Hennen";

} // namespace fuh
