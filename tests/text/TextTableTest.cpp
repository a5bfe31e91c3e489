// SPDX-License-Identifier: MIT
#include "text/TextTable.h"

#include "FakeList.h"

namespace {

using namespace zbtest;
using zbtext::kNoLimit;
using zbtext::TextStyle;

std::string Table(FakeList const& list, TextStyle const& style = {},
                  std::size_t cellLimit = kNoLimit, std::string_view prefix = {}) {
    zbtext::StringSink sink;
    zbtext::Output output(sink);
    zbtext::TextTable table(output, list, style, prefix, prefix.size(), cellLimit);
    table.WriteHeader();
    table.WriteRows();
    output.Finish();
    return sink.GetText();
}

std::size_t WidestLine(std::string const& text) {
    std::size_t widest = 0;
    std::size_t begin = 0;
    for (auto end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
        widest = std::max(widest, zbtext::DisplayWidth(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    return widest;
}

TEST(TextTable, NumbersStandRightAndTextLeft) {
    FakeList const list(
        "part", {"name", "mass", "note"},
        {{Text("hex bolt"), Real(12.5), Text("a")}, {Text("nut"), Number(3), Text("b")}});

    EXPECT_EQ(Table(list), "name      mass  note\n"
                           "hex bolt  12.5  a\n"
                           "nut          3  b\n");
}

TEST(TextTable, TheHeaderOfAMixedColumnStandsLeft) {
    FakeList const list("part", {"x", "y"}, {{Number(12345), Number(1)}, {Text("a"), Number(2)}});

    EXPECT_EQ(Table(list), "x      y\n"
                           "12345  1\n"
                           "a      2\n");
}

TEST(TextTable, NullIsShownAndDoesNotMakeAColumnText) {
    FakeList const list("part", {"x", "long"}, {{{}, Number(1)}, {Number(12345), {}}});

    EXPECT_EQ(Table(list), "    x  long\n"
                           " NULL     1\n"
                           "12345  NULL\n");
}

TEST(TextTable, WideCharactersCountTwice) {
    FakeList const list("part", {"name", "n"},
                        {{Text("歯車"), Number(1)}, {Text("e\xCC\x81"), Number(2)}});

    EXPECT_EQ(Table(list), "name  n\n"
                           "歯車  1\n"
                           "e\xCC\x81     2\n");
}

TEST(TextTable, LinesDoNotEndInBlanks) {
    FakeList const list("part", {"a", "b"},
                        {{Number(1), Text("long text")}, {Number(2), Text("x")}});

    EXPECT_EQ(Table(list).find(" \n"), std::string::npos);
}

TEST(TextTable, ALineEndInATextDoesNotBreakTheLine) {
    FakeList const list("part", {"a"}, {{Text("x\ny")}});

    EXPECT_EQ(Table(list), "a\nx␊y\n");
}

TEST(TextTable, ABlobIsShownInHexadecimal) {
    FakeList const list("part", {"data"}, {{Blob(std::string_view("\0\xAB", 2))}});

    EXPECT_EQ(Table(list), "data\nX'00AB'\n");
}

TEST(TextTable, WithoutAWidthNothingIsCut) {
    std::string const longText(200, 'x');
    FakeList const list("part", {"a", "b"}, {{Text(longText), Number(1)}, {Text("y"), Number(2)}});

    auto const table = Table(list);

    EXPECT_NE(table.find(longText + "  1\n"), std::string::npos);
    EXPECT_EQ(table.find("…"), std::string::npos);
}

TEST(TextTable, ALongValueLengthensItsOwnLineOnly) {
    std::string const longText(200, 'x');
    FakeList const list("part", {"a", "b"}, {{Text(longText), Number(1)}, {Text("y"), Number(2)}});

    EXPECT_NE(Table(list).find("\ny" + std::string(59 + 2, ' ') + "2\n"), std::string::npos);
}

TEST(TextTable, WithAWidthTheWidestColumnGivesWay) {
    FakeList const list("part", {"id", "text", "n"},
                        {{Number(1), Text("a rather long text in here"), Number(7)}});

    EXPECT_EQ(Table(list, {.width = 20}), "id  text           n\n"
                                          " 1  a rather lon…  7\n");
}

TEST(TextTable, WithAWidthNoLineIsWider) {
    FakeList const list("part", {"first", "second", "third", "fourth"},
                        {{Text("歯車歯車歯車歯車"), Text("a rather long text in here"),
                          Number(1234567890123), Blob("some bytes")}});

    for (std::size_t width = 6; width < 90; ++width)
        EXPECT_LE(WidestLine(Table(list, {.width = width})), width) << width;
}

TEST(TextTable, ColumnsThatDoNotFitAreLeftOutWithAMark) {
    FakeList const list("part", {"aaaaaa", "bbbbbb", "cccccc"},
                        {{Text("111111"), Text("222222"), Text("333333")}});

    EXPECT_EQ(Table(list, {.width = 20}), "aaaaaa  bbbbbb  …\n"
                                          "111111  222222  …\n");
}

TEST(TextTable, ANumberIsNeverCutInTheMiddle) {
    FakeList const list("part", {"a"}, {{Number(123456789)}});

    EXPECT_EQ(Table(list, {.width = 5}), "    a\n    …\n");
}

TEST(TextTable, ACellLimitHoldsWithoutAWidthToo) {
    FakeList const list("part", {"a", "b"}, {{Text("a rather long text"), Number(1)}});

    EXPECT_EQ(Table(list, {}, 8), "a         b\n"
                                  "a rathe…  1\n");
}

TEST(TextTable, ThePrefixStandsBeforeEachLineAndCounts) {
    FakeList const list("part", {"a"}, {{Text("0123456789")}});

    EXPECT_EQ(Table(list, {.width = 8}, kNoLimit, "> "), "> a\n> 01234…\n");
}

TEST(TextTable, WithColoursTheHeaderAndNullsAreMarked) {
    FakeList const list("part", {"a"}, {{{}}});

    EXPECT_EQ(Table(list, {.width = 40, .colour = true}), "\x1b[4ma\x1b[0m\n\x1b[2mNULL\x1b[0m\n");
}

TEST(TextTable, TheHeaderOfTheSortedColumnTellsTheDirection) {
    FakeList list("part", {"name", "n"}, {{Text("nut"), Number(1)}});

    EXPECT_EQ(Table(list.SortedBy(1, true)), "name  n ▲\n"
                                             "nut     1\n");
    EXPECT_EQ(Table(list.SortedBy(0, false)), "name ▼  n\n"
                                              "nut     1\n");
}

TEST(TextTable, TheDirectionStaysWhereTheHeaderIsCut) {
    FakeList list("part", {"a rather long name"}, {{Number(1)}});

    EXPECT_EQ(Table(list.SortedBy(0, true), {.width = 8}), "a rat… ▲\n"
                                                           "       1\n");
}

TEST(TextTable, WithColoursBoldAndItalicShow) {
    FakeList list("part", {"a", "b", "c"}, {{Text("x"), Text("y"), Text("z")}});
    list.WithLook(0, {.bold = true}).WithLook(1, {.italic = true});
    list.WithLook(2, {.bold = true, .italic = true});

    auto const table = Table(list, {.width = 40, .colour = true});

    EXPECT_NE(table.find("\x1b[1mx\x1b[0m  \x1b[3my\x1b[0m  \x1b[1;3mz\x1b[0m"), std::string::npos);
    EXPECT_EQ(Table(list), "a  b  c\nx  y  z\n");
}

TEST(TextTable, MeasuringStopsWhenToldTo) {
    FakeList const list("part", {"a"}, {{Number(1)}});
    zbtext::StringSink sink;
    std::atomic<bool> stop{true};
    zbtext::Output output(sink, &stop);

    EXPECT_THROW(zbtext::TextTable(output, list, {}, {}, 0, kNoLimit), zbtext::Stopped);
}

} // namespace
