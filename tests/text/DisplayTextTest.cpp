// SPDX-License-Identifier: MIT
#include "text/DisplayText.h"

#include <gtest/gtest.h>

namespace {

using zbtext::DisplayWidth;

std::string Shown(std::string_view text) {
    std::string out;
    zbtext::AppendShown(out, text);
    return out;
}

//! The cut text, and `|` with the cells used.
std::string Cut(std::string_view text, std::size_t limit) {
    std::string out;
    auto const used = zbtext::AppendCut(out, text, limit);
    return out + '|' + std::to_string(used);
}

TEST(DisplayText, AsciiTakesOneCellEach) {
    EXPECT_EQ(DisplayWidth(""), 0U);
    EXPECT_EQ(DisplayWidth("hex bolt"), 8U);
}

TEST(DisplayText, AccentedLettersTakeOneCell) {
    EXPECT_EQ(DisplayWidth("Läufer"), 6U);
}

TEST(DisplayText, CjkAndEmojiTakeTwoCells) {
    EXPECT_EQ(DisplayWidth("歯車"), 4U);
    EXPECT_EQ(DisplayWidth("한글"), 4U);
    EXPECT_EQ(DisplayWidth("🔩"), 2U);
    EXPECT_EQ(DisplayWidth("ＡＢ"), 4U);
}

TEST(DisplayText, CombiningMarksTakeNoCell) {
    EXPECT_EQ(DisplayWidth("e\xCC\x81"), 1U);
    EXPECT_EQ(DisplayWidth("n\xCC\x83o"), 2U);
}

TEST(DisplayText, ZeroWidthCharactersTakeNoCell) {
    EXPECT_EQ(DisplayWidth("a\xE2\x80\x8B"
                           "b"),
              2U);
    EXPECT_EQ(DisplayWidth("a\xE2\x80\x8D"
                           "b"),
              2U);
}

TEST(DisplayText, ControlCharactersAreShownAsPictures) {
    EXPECT_EQ(Shown("a\nb\tc\x1b[31m"), "a␊b␉c␛[31m");
    EXPECT_EQ(Shown(std::string_view("\0", 1)), "␀");
    EXPECT_EQ(Shown("\x7F"), "␡");
    EXPECT_EQ(DisplayWidth("a\nb"), 3U);
}

TEST(DisplayText, TheSecondSetOfControlCharactersIsReplaced) {
    EXPECT_EQ(Shown("a\xC2\x9B"
                    "31mb"),
              "a\xEF\xBF\xBD"
              "31mb");
}

TEST(DisplayText, CharactersThatTurnTheWritingDirectionAreReplaced) {
    EXPECT_EQ(Shown("a\xE2\x80\xAE"
                    "b"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(Shown("a\xE2\x81\xA6"
                    "b"),
              "a\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(DisplayWidth("a\xE2\x80\xAE"
                           "b"),
              3U);
}

TEST(DisplayText, UnicodeLineEndsAreShown) {
    EXPECT_EQ(Shown("a\xE2\x80\xA8"
                    "b\xE2\x80\xA9"),
              "a␤b␤");
}

TEST(DisplayText, EachByteThatIsNoUtf8IsReplaced) {
    EXPECT_EQ(Shown("a\xFF\xFE"
                    "b"),
              "a\xEF\xBF\xBD\xEF\xBF\xBD"
              "b");
    EXPECT_EQ(DisplayWidth("a\xFF\xFE"
                           "b"),
              4U);
}

TEST(DisplayText, ATextThatEndsInTheMiddleOfACharacterIsReplaced) {
    EXPECT_EQ(Shown("a\xE6\xAD"), "a\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(DisplayText, PlainTextIsShownAsItIs) {
    EXPECT_EQ(Shown("Läufer 歯車 e\xCC\x81"), "Läufer 歯車 e\xCC\x81");
}

TEST(Utf8, TellsWhatIsUtf8) {
    EXPECT_TRUE(zbtext::IsUtf8(""));
    EXPECT_TRUE(zbtext::IsUtf8("plain\n"));
    EXPECT_TRUE(zbtext::IsUtf8("歯車 🔩"));
}

TEST(Utf8, RefusesStrayBytes) {
    EXPECT_FALSE(zbtext::IsUtf8("a\x80"));
    EXPECT_FALSE(zbtext::IsUtf8("\xFF"));
}

TEST(Utf8, RefusesWhatIsCutOff) {
    EXPECT_FALSE(zbtext::IsUtf8("\xE6\xAD"));
}

TEST(Utf8, RefusesOverlongFormsAndSurrogatesAndWhatIsTooLarge) {
    EXPECT_FALSE(zbtext::IsUtf8("\xC0\x80"));
    EXPECT_FALSE(zbtext::IsUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(zbtext::IsUtf8("\xF4\x90\x80\x80"));
}

TEST(Utf8, ReplacesOnlyWhatIsNoUtf8) {
    EXPECT_EQ(zbtext::ReplaceInvalidUtf8("歯\xFF\n\x80"), "歯\xEF\xBF\xBD\n\xEF\xBF\xBD");
}

TEST(Cutting, AFittingTextIsLeftAlone) {
    EXPECT_EQ(Cut("bolt", 4), "bolt|4");
    EXPECT_EQ(Cut("歯車", 4), "歯車|4");
    EXPECT_EQ(Cut("", 0), "|0");
}

TEST(Cutting, ALongTextEndsInAnEllipsisWithinTheLimit) {
    EXPECT_EQ(Cut("hex bolt", 5), "hex …|5");
    EXPECT_EQ(Cut("hex bolt", 1), "…|1");
    EXPECT_EQ(Cut("hex bolt", 0), "|0");
}

TEST(Cutting, AWideCharacterIsNeverCutInHalf) {
    EXPECT_EQ(Cut("歯車箱", 5), "歯車…|5");
    EXPECT_EQ(Cut("歯車箱", 4), "歯…|3");
}

TEST(Cutting, AMarkStaysWithItsLetter) {
    EXPECT_EQ(Cut("e\xCC\x81"
                  "bcd",
                  2),
              "e\xCC\x81…|2");
}

TEST(Cutting, APictureCountsAsOneCell) {
    EXPECT_EQ(Cut("a\nbc", 3), "a␊…|3");
}

TEST(Cutting, CountingStopsBeyondTheLimit) {
    std::string const text = std::string(1 << 20, 'x');
    EXPECT_GT(DisplayWidth(text, 10), 10U);
    EXPECT_LE(DisplayWidth(text, 10), 12U);
    EXPECT_EQ(DisplayWidth(text), text.size());
}

} // namespace
