// SPDX-License-Identifier: MIT
#include "text/TextStyle.h"

#include <gtest/gtest.h>

namespace {

using zbtext::MayColour;

TEST(Colours, GoToATerminal) {
    EXPECT_TRUE(MayColour(true, nullptr, "xterm"));
}

TEST(Colours, DoNotGoToAPipe) {
    EXPECT_FALSE(MayColour(false, nullptr, "xterm"));
}

TEST(Colours, AreOffWithNoColor) {
    EXPECT_FALSE(MayColour(true, "1", "xterm"));
    EXPECT_FALSE(MayColour(true, "0", "xterm"));
}

TEST(Colours, AnEmptyNoColorDoesNotCount) {
    EXPECT_TRUE(MayColour(true, "", "xterm"));
}

TEST(Colours, AreOffOnADumbTerminal) {
    EXPECT_FALSE(MayColour(true, nullptr, "dumb"));
}

TEST(Colours, AreOffOnAnUnknownTerminal) {
    EXPECT_FALSE(MayColour(true, nullptr, nullptr));
}

TEST(Colours, ThePlainPaletteWritesNothing) {
    auto const& plain = zbtext::GetPalette(false);
    EXPECT_EQ(std::string(plain.title) + std::string(plain.folder) + std::string(plain.header) +
                  std::string(plain.faint) + std::string(plain.fault) + std::string(plain.reset),
              "");
}

} // namespace
