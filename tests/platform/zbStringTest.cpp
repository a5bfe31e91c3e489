// SPDX-License-Identifier: MIT
//! \file
//! zbString and StrICmp.
#include <zbBrowserView/platform/zbString.h>

#include <gtest/gtest.h>

#include <map>
#include <type_traits>
#include <unordered_set>

namespace {

using namespace std::string_view_literals;

static_assert(sizeof(zbString) <= 32);
static_assert(std::is_nothrow_move_constructible_v<zbString>);
static_assert(std::is_nothrow_move_assignable_v<zbString>);

TEST(zbStringTest, ADefaultTextIsEmpty) {
    zbString const text;

    EXPECT_TRUE(text.empty());
    EXPECT_EQ(text.length(), 0U);
    EXPECT_STREQ(text.c_str(), "");
}

TEST(zbStringTest, ANullPointerIsTheEmptyText) {
    char const* const none = nullptr;
    zbString assigned("before");
    assigned = none;
    zbString appended("before");
    appended += none;

    EXPECT_STREQ(zbString(none).c_str(), "");
    EXPECT_STREQ(zbString(none, 7).c_str(), "");
    EXPECT_STREQ(assigned.c_str(), "");
    EXPECT_STREQ(appended.c_str(), "before");
    EXPECT_EQ(zbString(), none);
    EXPECT_GT(zbString("a"), none);
    EXPECT_EQ(none + zbString("a") + none, "a");
}

TEST(zbStringTest, ATextOfGivenLengthKeepsItsZeroBytes) {
    zbString const text("a\0b", 3);

    EXPECT_EQ(text.length(), 3U);
    EXPECT_EQ(std::string_view(text), "a\0b"sv);
    EXPECT_NE(text, zbString("a"));
    EXPECT_EQ(zbString(text).length(), 3U);
    EXPECT_EQ((text + text).length(), 6U);
}

TEST(zbStringTest, ACopyIsIndependentOfItsOriginal) {
    // Given
    zbString original("a text that is too long to lie inside");
    zbString const copy(original);
    zbString assigned;
    assigned = original;

    // When
    original += " changed";

    // Then
    EXPECT_EQ(copy, "a text that is too long to lie inside");
    EXPECT_EQ(assigned, copy);
}

TEST(zbStringTest, MovingLeavesTheSourceEmpty) {
    zbString shortText("short");
    zbString longText("a text that is too long to lie inside");

    zbString const moved(std::move(shortText));
    zbString assigned("old");
    assigned = std::move(longText);

    EXPECT_EQ(moved, "short");
    EXPECT_EQ(assigned, "a text that is too long to lie inside");
    EXPECT_TRUE(shortText.empty()); // NOLINT(bugprone-use-after-move): this is what is tested
    EXPECT_TRUE(longText.empty());  // NOLINT(bugprone-use-after-move): this is what is tested
}

TEST(zbStringTest, MovingATextToItselfKeepsIt) {
    zbString text("kept");
    zbString& same = text;

    text = std::move(same);

    EXPECT_EQ(text, "kept");
}

TEST(zbStringTest, APieceOfItselfMayBeAssigned) {
    zbString text("one two three, long enough to be outside");

    text = text.c_str() + 4;

    EXPECT_EQ(text, "two three, long enough to be outside");
}

TEST(zbStringTest, ATextMayBeAppendedToItself) {
    zbString text("0123456789abcdef");

    text += text;
    text += text.c_str() + 30;

    EXPECT_EQ(text, "0123456789abcdef0123456789abcdefef");
}

TEST(zbStringTest, TextsAndBytesAreAppended) {
    zbString text("a");

    text += "b";
    text += 'c';
    text += zbString("d");

    EXPECT_EQ(text, "abcd");
}

TEST(zbStringTest, AdditionLeavesItsOperandsAlone) {
    zbString const left("a");
    zbString const right("b");

    EXPECT_EQ(left + right, "ab");
    EXPECT_EQ(left + "b", "ab");
    EXPECT_EQ("a" + right, "ab");
    EXPECT_EQ(left, "a");
    EXPECT_EQ(right, "b");
}

TEST(zbStringTest, AClearedTextIsEmpty) {
    zbString text("something");

    text.clear();

    EXPECT_TRUE(text.empty());
    EXPECT_STREQ(text.c_str(), "");
}

TEST(zbStringTest, OrderIsByUnsignedBytesAndByCase) {
    EXPECT_LT(zbString("Z"), zbString("a"));
    EXPECT_LT(zbString("z"), zbString("\xC3\xA4"));
    EXPECT_LT(zbString("a"), zbString("ab"));
    EXPECT_LT(zbString("a"), zbString("a\0", 2));
    EXPECT_FALSE(zbString("a") < zbString("a"));
}

TEST(zbStringTest, ATextIsAKeyOfMapsAndHashes) {
    std::map<zbString, int> const ordered{{"b", 2}, {"a", 1}};
    std::unordered_set<zbString> const hashed{"a", "A", "a"};

    EXPECT_EQ(ordered.begin()->second, 1);
    EXPECT_EQ(hashed.size(), 2U);
    EXPECT_EQ(hashed.count("A"), 1U);
}

TEST(zbStringTest, AThrownTextIsCaughtByItsType) {
    zbString const constant("failure");

    try {
        throw zbString(constant);
    } catch (zbString const& caught) {
        EXPECT_EQ(caught, "failure");
        EXPECT_NE(&caught, &constant);
        return;
    }
    FAIL() << "not caught";
}

TEST(StrICmpTest, CaseOfAsciiLettersDoesNotMatter) {
    EXPECT_EQ(StrICmp("Default_View9", "dEFAULT_vIEW9"), 0);
    EXPECT_EQ(StrICmp("AZaz", "azAZ"), 0);
}

TEST(StrICmpTest, NeighboursOfTheLettersAreNotFolded) {
    EXPECT_NE(StrICmp("@", "`"), 0);
    EXPECT_NE(StrICmp("[", "{"), 0);
}

TEST(StrICmpTest, OtherLettersAreNotFolded) {
    EXPECT_NE(StrICmp("\xC3\x84", "\xC3\xA4"), 0);
    EXPECT_NE(StrICmp("\xC4", "\xE4"), 0);
}

TEST(StrICmpTest, LettersCountAsSmallOnes) {
    EXPECT_LT(StrICmp("_", "A"), 0);
    EXPECT_GT(StrICmp("A", "_"), 0);
    EXPECT_LT(StrICmp("a", "B"), 0);
    EXPECT_GT(StrICmp("B", "a"), 0);
}

TEST(StrICmpTest, BytesCountAsUnsigned) {
    EXPECT_LT(StrICmp("z", "\x80"), 0);
    EXPECT_GT(StrICmp("\xFF", "z"), 0);
}

TEST(StrICmpTest, ATextStandsBeforeItsContinuation) {
    EXPECT_LT(StrICmp("bolt", "Bolts"), 0);
    EXPECT_GT(StrICmp("Bolts", "bolt"), 0);
}

TEST(StrICmpTest, NullIsTheEmptyText) {
    EXPECT_EQ(StrICmp(nullptr, nullptr), 0);
    EXPECT_EQ(StrICmp(nullptr, ""), 0);
    EXPECT_LT(StrICmp(nullptr, "a"), 0);
    EXPECT_GT(StrICmp("a", nullptr), 0);
}

} // namespace
