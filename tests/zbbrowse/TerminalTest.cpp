// SPDX-License-Identifier: MIT
#include "EndToEnd.h"
#include "text/DisplayText.h"

namespace {

using namespace zbtest;

//! The text without its escape sequences.
std::string WithoutColours(std::string const& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\x1b')
            i = text.find('m', i);
        else
            out += text[i];
    }
    return out;
}

std::size_t WidestLine(std::string const& text) {
    std::size_t widest = 0;
    for (auto const& line : Lines(WithoutColours(text)))
        widest = std::max(widest, zbtext::DisplayWidth(line));
    return widest;
}

class OnATerminal : public EndToEnd {
protected:
    OnATerminal() {
        Sql("a.db",
            "create table part(id integer, name text, note text);"
            "insert into part values (1,'歯車歯車歯車','a note of some length, as notes are'),"
            "(2,'e'||char(769)||'crou',null);");
    }

    std::string Shown(std::vector<std::string> environment, unsigned short columns,
                      std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), Path("a.db"));
        auto command = Zbbrowse(std::move(arguments));
        command.environment.insert(command.environment.end(), environment.begin(),
                                   environment.end());
        auto const ending = Child(command, Child::Place::Terminal, columns).Wait();
        EXPECT_EQ(ending.status, 0) << ending.output;
        return ending.output;
    }
};

TEST_F(OnATerminal, TextIsColoured) {
    EXPECT_NE(Shown({}, 80, {}).find("\x1b[1;34mtables\x1b[0m"), std::string::npos);
}

TEST_F(OnATerminal, NoColorIsObeyed) {
    EXPECT_EQ(Shown({"NO_COLOR=1"}, 80, {}).find('\x1b'), std::string::npos);
}

TEST_F(OnATerminal, AnEmptyNoColorMeansNothing) {
    EXPECT_NE(Shown({"NO_COLOR="}, 80, {}).find('\x1b'), std::string::npos);
}

TEST_F(OnATerminal, ADumbTerminalGetsNoColours) {
    EXPECT_EQ(Shown({"TERM=dumb"}, 80, {}).find('\x1b'), std::string::npos);
}

TEST_F(OnATerminal, JsonIsNeverColouredNorCut) {
    auto const output = Shown({}, 20, {"--list", "part", "--format", "json"});

    EXPECT_EQ(output.find('\x1b'), std::string::npos);
    EXPECT_NE(output.find("a note of some length, as notes are"), std::string::npos);
}

TEST_F(OnATerminal, LinesFitItsWidth) {
    for (unsigned short const width : std::initializer_list<unsigned short>{20, 33, 40, 60}) {
        EXPECT_LE(WidestLine(Shown({}, width, {})), width);
        EXPECT_LE(WidestLine(Shown({}, width, {"--list", "part"})), width);
    }
}

TEST_F(OnATerminal, ColumnsStayAlignedUnderWideAndCombiningCharacters) {
    EXPECT_EQ(WithoutColours(Shown({}, 40, {"--list", "part"})),
              "part (2)\n"
              "id  name          note\n"
              "──  ────────────  ──────────────────────\n"
              " 1  歯車歯車歯車  a note of some length…\n"
              " 2  e\xCC\x81"
              "crou         NULL\n");
}

TEST_F(OnATerminal, WhatFitsIsNotCut) {
    EXPECT_NE(Shown({}, 80, {"--list", "part"}).find("a note of some length, as notes are"),
              std::string::npos);
}

TEST_F(OnATerminal, ColumnsInTheEnvironmentComesFirst) {
    EXPECT_LE(WidestLine(Shown({"COLUMNS=30"}, 80, {"--list", "part"})), 30U);
    EXPECT_GT(WidestLine(Shown({"COLUMNS=70"}, 20, {"--list", "part"})), 20U);
}

TEST_F(OnATerminal, ColumnsThatIsNoNumberMeansNothing) {
    EXPECT_LE(WidestLine(Shown({"COLUMNS=wide"}, 30, {"--list", "part"})), 30U);
}

TEST_F(OnATerminal, WithoutAWidthItHas80Columns) {
    Sql("a.db", "insert into part values (3, printf('%.*c', 200, 'x'), '');");

    EXPECT_EQ(WidestLine(Shown({}, 0, {"--list", "part"})), 80U);
}

TEST_F(OnATerminal, APipeIsNeitherColouredNorCut) {
    auto command = Zbbrowse({Path("a.db"), "--list", "part"});
    command.environment.emplace_back("COLUMNS=20");

    auto const output = RunToEnd(command).output;

    EXPECT_EQ(output.find('\x1b'), std::string::npos);
    EXPECT_NE(output.find("a note of some length, as notes are"), std::string::npos);
}

TEST_F(OnATerminal, AFileIsNeitherColouredNorCut) {
    Shown({}, 20, {"--list", "part", "--output", Path("out.txt")});

    EXPECT_EQ(Read("out.txt").find('\x1b'), std::string::npos);
    EXPECT_NE(Read("out.txt").find("a note of some length, as notes are"), std::string::npos);
}

} // namespace
