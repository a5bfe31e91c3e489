// SPDX-License-Identifier: MIT
#include "text/Base64.h"

#include <gtest/gtest.h>

namespace {

std::string Base64(std::string_view bytes) {
    std::string out;
    zbtext::AppendBase64(out, bytes);
    return out;
}

TEST(Base64, NothingIsNothing) {
    EXPECT_EQ(Base64(""), "");
}

TEST(Base64, PadsToFourLetters) {
    EXPECT_EQ(Base64("M"), "TQ==");
    EXPECT_EQ(Base64("Ma"), "TWE=");
    EXPECT_EQ(Base64("Man"), "TWFu");
    EXPECT_EQ(Base64("Many"), "TWFueQ==");
}

TEST(Base64, UsesPlusAndSlashAndTakesBytesAsUnsigned) {
    EXPECT_EQ(Base64("\xFB\xEF\xBE\xFF\xFF\xFF"), "++++////");
}

TEST(Base64, KeepsZeroBytes) {
    EXPECT_EQ(Base64(std::string_view("\0\0\0", 3)), "AAAA");
}

TEST(Base64, AppendsToWhatIsThere) {
    std::string out = "x";
    zbtext::AppendBase64(out, "Man");
    EXPECT_EQ(out, "xTWFu");
}

TEST(Hex, GivesTwoDigitsForEachByte) {
    std::string out;
    zbtext::AppendHex(out, std::string_view("\0\x0F\xF0\xFF", 4));
    EXPECT_EQ(out, "000FF0FF");
}

} // namespace
