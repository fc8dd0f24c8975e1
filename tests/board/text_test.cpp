// SPDX-FileCopyrightText: 2026 The Fuchs und Hennen authors
//
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "board/text.h"

namespace fuh {
namespace {

TEST(Text, EinsetzenFuelltPlatzhalterGenauEinmal) {
    EXPECT_EQ(einsetzen("Punkte: %1", {"237"}), "Punkte: 237");
    EXPECT_EQ(einsetzen("Punkte: %1", {""}), "Punkte: ");
    EXPECT_EQ(einsetzen("%2 vor %1", {"a", "b"}), "b vor a");
    // An inserted value is not searched again, even when it looks like a placeholder.
    EXPECT_EQ(einsetzen("%1 und %2", {"„%2“", "x"}), "„%2“ und x");
    // A missing value leaves nothing; a percent sign without a digit stays.
    EXPECT_EQ(einsetzen("%1-%3", {"a"}), "a-");
    EXPECT_EQ(einsetzen("100 % und %", {}), "100 % und %");
}

} // namespace
} // namespace fuh
