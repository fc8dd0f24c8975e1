// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once
// The texts the player sees are German, and the core, its logs and its files keep them so. A window shows
// them in the player's language: FUH_TR_NOOP marks each one where it is defined, so that the translation
// tools collect it (always in the context "Kern", where the window looks it up), and a text built from
// parts is one marked template whose %1, %2, ... `einsetzen` fills in.
#include <initializer_list>
#include <string>
#include <string_view>

#define FUH_TR_NOOP(kontext, text) text

namespace fuh {

// `vorlage` with each %1 to %9 replaced by the matching entry of `werte` (a missing one by nothing);
// inserted values are never searched again.
std::string einsetzen(std::string_view vorlage, std::initializer_list<std::string_view> werte);

} // namespace fuh
