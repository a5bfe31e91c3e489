// SPDX-License-Identifier: MIT
#include "zbbrowse/Suggestion.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;
using zbbrowse::FindNearest;

Names const kNames{"part", "assembly", "supplier", "document", "material"};

TEST(Suggestion, FindsSwappedLetters) {
    EXPECT_EQ(FindNearest("prat", kNames).front(), "part");
}

TEST(Suggestion, FindsALetterLeftOutOrAdded) {
    EXPECT_EQ(FindNearest("suplier", kNames).front(), "supplier");
    EXPECT_EQ(FindNearest("documents", kNames).front(), "document");
}

TEST(Suggestion, UpperAndLowerCaseAreTheSame) {
    EXPECT_EQ(FindNearest("MATERIEL", kNames).front(), "material");
}

TEST(Suggestion, FindsAPartOfALongName) {
    EXPECT_EQ(FindNearest("sup", kNames).front(), "supplier");
}

TEST(Suggestion, TheNearestComesFirst) {
    EXPECT_EQ(FindNearest("abcd", {"abxy", "abcx", "abcd"}), (Names{"abcd", "abcx", "abxy"}));
}

TEST(Suggestion, AmongEqualsTheOrderOfNamesHolds) {
    EXPECT_EQ(FindNearest("ab", {"ax", "bb", "ac"}), (Names{"ax", "bb", "ac"}));
}

TEST(Suggestion, GivesThreeAtMost) {
    EXPECT_EQ(FindNearest("a", {"a1", "a2", "a3", "a4"}).size(), 3U);
}

TEST(Suggestion, WhereNothingIsNearTheFirstNamesAreShown) {
    EXPECT_EQ(FindNearest("zzzzzzzzzz", kNames), (Names{"part", "assembly", "supplier"}));
}

TEST(Suggestion, ANameThatIsEmptyIsNone) {
    EXPECT_EQ(FindNearest("x", {"", "y"}), (Names{"y"}));
    EXPECT_EQ(FindNearest("zzzzzzzzzz", {"", "part"}), (Names{"part"}));
}

TEST(Suggestion, WithoutNamesThereIsNone) {
    EXPECT_TRUE(FindNearest("part", {}).empty());
}

TEST(Suggestion, AVeryLongNameIsNoTrouble) {
    EXPECT_EQ(FindNearest(std::string(1 << 20, 'x'), kNames).size(), 3U);
}

} // namespace
