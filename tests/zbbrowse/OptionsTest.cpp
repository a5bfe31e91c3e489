// SPDX-License-Identifier: MIT
#include "zbbrowse/Options.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;
using zbbrowse::Format;

class OptionsTest : public testing::Test {
protected:
    std::optional<zbbrowse::Options> Read(std::vector<char const*> arguments) {
        arguments.insert(arguments.begin(), "zbbrowse");
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        auto options =
            zbbrowse::ReadOptions(static_cast<int>(arguments.size()), arguments.data(), status_);
        output_ = testing::internal::GetCapturedStdout();
        errors_ = testing::internal::GetCapturedStderr();
        return options;
    }

    void ExpectRefused(std::vector<char const*> const& arguments, std::string const& word) {
        EXPECT_FALSE(Read(arguments)) << word;
        EXPECT_EQ(status_, 2);
        EXPECT_EQ(output_, "");
        EXPECT_NE(errors_.find(word), std::string::npos) << errors_;
        EXPECT_EQ(errors_.find("zbbrowse: "), 0U) << errors_;
        EXPECT_EQ(errors_.find('\n'), errors_.size() - 1) << errors_;
    }

    int status_ = -1;
    std::string output_;
    std::string errors_;
};

TEST_F(OptionsTest, AFileAloneTakesTheDefaults) {
    auto const options = Read({"a.db"});

    ASSERT_TRUE(options);
    EXPECT_EQ(options->file, "a.db");
    EXPECT_EQ(options->view, "");
    EXPECT_TRUE(options->lists.empty());
    EXPECT_TRUE(options->folders.empty());
    EXPECT_FALSE(options->limit);
    EXPECT_EQ(options->format, Format::Text);
    EXPECT_EQ(options->output, "");
    EXPECT_FALSE(options->columns);
    EXPECT_FALSE(options->sort);
    EXPECT_FALSE(options->name);
    EXPECT_FALSE(options->bold);
    EXPECT_FALSE(options->icon);
    EXPECT_FALSE(options->watch);
    EXPECT_FALSE(options->newGeneration);
}

TEST_F(OptionsTest, TheFileMayStandAnywhere) {
    EXPECT_EQ(Read({"--list", "part", "a.db"})->file, "a.db");
    EXPECT_EQ(Read({"a.db", "--list", "part"})->file, "a.db");
    EXPECT_EQ(Read({"--", "--odd.db"})->file, "--odd.db");
}

TEST_F(OptionsTest, ListsGatherInTheirOrder) {
    EXPECT_EQ(Read({"--list", "b", "a.db", "--list", "a,c", "--list=-x"})->lists,
              (Names{"b", "a,c", "-x"}));
}

TEST_F(OptionsTest, FoldersGatherInTheirOrder) {
    auto const options = Read({"a.db", "--folder", "x/y=a", "--folder", "z=b,c"});

    ASSERT_EQ(options->folders.size(), 2U);
    EXPECT_EQ(options->folders[0].path, (Names{"x", "y"}));
    EXPECT_EQ(options->folders[1].lists, (Names{"b", "c"}));
}

TEST_F(OptionsTest, EachFormatHasItsName) {
    EXPECT_EQ(Read({"a.db", "--format", "text"})->format, Format::Text);
    EXPECT_EQ(Read({"a.db", "--format", "json"})->format, Format::Json);
    EXPECT_EQ(Read({"a.db", "--format", "jsonl"})->format, Format::JsonLines);
    EXPECT_EQ(Read({"a.db", "--format", "csv"})->format, Format::Csv);
}

TEST_F(OptionsTest, TheLimitMayBeZero) {
    EXPECT_EQ(Read({"a.db", "--limit", "0"})->limit, 0U);
    EXPECT_EQ(Read({"a.db", "--limit", "12"})->limit, 12U);
}

TEST_F(OptionsTest, ViewAndOutputAreTaken) {
    auto const options = Read({"a.db", "--view", "my view", "--output", "x.csv"});

    EXPECT_EQ(options->view, "my view");
    EXPECT_EQ(options->output, "x.csv");
}

TEST_F(OptionsTest, WhatRowsShowIsTaken) {
    auto const options = Read({"a.db", "--columns", "x,y", "--sort", "y:desc", "--name", "x",
                               "--bold", "b", "--icon", "--generation", "old"});

    EXPECT_FALSE(options->columns->all);
    EXPECT_EQ(options->columns->names, (Names{"x", "y"}));
    EXPECT_EQ(options->sort->column, "y");
    EXPECT_FALSE(options->sort->ascending);
    EXPECT_EQ(options->name, "x");
    EXPECT_EQ(options->bold, "b");
    EXPECT_TRUE(options->icon);
    EXPECT_FALSE(options->newGeneration);
}

TEST_F(OptionsTest, AllColumnsAreAWordUnlessItIsEscaped) {
    EXPECT_TRUE(Read({"a.db", "--columns", "all"})->columns->all);
    EXPECT_EQ(Read({"a.db", "--columns", "\\all"})->columns->names, (Names{"all"}));
    EXPECT_EQ(Read({"a.db", "--columns", "all,x"})->columns->names, (Names{"all", "x"}));
    EXPECT_EQ(Read({"a.db", "--columns", "a\\,b,c"})->columns->names, (Names{"a,b", "c"}));
}

TEST_F(OptionsTest, OnlyTheLastDirectionOfASortIsOne) {
    auto const read = [this](char const* text) {
        auto const sort = Read({"a.db", "--sort", text})->sort;
        return sort->column + (sort->ascending ? " up" : " down");
    };
    EXPECT_EQ(read("x"), "x up");
    EXPECT_EQ(read("x:asc"), "x up");
    EXPECT_EQ(read("x:desc"), "x down");
    EXPECT_EQ(read("x:desc:asc"), "x:desc up");
    EXPECT_EQ(read("x:asc:desc"), "x:asc down");
    EXPECT_EQ(read("x:down"), "x:down up");
    EXPECT_EQ(read("desc"), "desc up");
}

TEST_F(OptionsTest, ColumnsWithoutANameAreRefused) {
    for (char const* const text : {"", ",", "a,", ",a", "a,,b", "a\\"})
        ExpectRefused({"a.db", (std::string("--columns=") + text).c_str()}, "--columns");
    for (char const* const text : {":desc", ":asc"})
        ExpectRefused({"a.db", "--sort", text}, "--sort");
}

TEST_F(OptionsTest, ANewViewMayShowIcons) {
    auto const options = Read({"a.db", "--generation", "new", "--icon"});

    EXPECT_TRUE(options->newGeneration);
    EXPECT_TRUE(options->icon);
}

TEST_F(OptionsTest, WatchingGoesWithListsFoldersAndNames) {
    auto const options =
        Read({"a.db", "--watch", "--list", "x", "--folder", "f=y", "--name", "n", "--view", "v"});

    EXPECT_TRUE(options->watch);
    EXPECT_TRUE(Read({"a.db", "--watch", "--format", "jsonl"})->watch);
}

TEST_F(OptionsTest, WatchingRefusesWhatNeedsAnEnd) {
    ExpectRefused({"a.db", "--watch", "--format", "json"}, "--format json");
    ExpectRefused({"a.db", "--watch", "--format", "csv"}, "--format csv");
    ExpectRefused({"a.db", "--watch", "--output", "x"}, "--output");
}

TEST_F(OptionsTest, WatchingRefusesWhatSaysHowRowsAreShown) {
    ExpectRefused({"a.db", "--watch", "--limit", "1"}, "--limit");
    ExpectRefused({"a.db", "--watch", "--columns", "x"}, "--columns");
    ExpectRefused({"a.db", "--watch", "--sort", "x"}, "--sort");
    ExpectRefused({"a.db", "--watch", "--bold", "x"}, "--bold");
    ExpectRefused({"a.db", "--watch", "--icon"}, "--icon");
    ExpectRefused({"a.db", "--watch", "--select", "x"}, "--select");
}

TEST_F(OptionsTest, ANewViewHasNothingToWatch) {
    ExpectRefused({"a.db", "--watch", "--generation", "new"}, "--watch needs rows");
}

TEST_F(OptionsTest, PatternsGatherInTheirOrder) {
    EXPECT_EQ(Read({"--select", "a*", "a.db", "--select", "b,c"})->select, (Names{"a*", "b,c"}));
}

TEST_F(OptionsTest, ANewViewHasNothingToSelect) {
    ExpectRefused({"a.db", "--select", "x", "--generation", "new"}, "--select needs rows");
}

TEST_F(OptionsTest, WritesGatherInTheirOrder) {
    auto const writes =
        Read({"a.db", "--select", "x", "--write", "t.a=1=2.3", "--write", "odd\\.t\\=.a="})->writes;

    ASSERT_EQ(writes.size(), 2U);
    EXPECT_EQ(writes[0].list, "t");
    EXPECT_EQ(writes[0].column, "a");
    EXPECT_EQ(writes[0].value, "1=2.3");
    EXPECT_EQ(writes[1].list, "odd.t=");
    EXPECT_EQ(writes[1].column, "a");
    EXPECT_EQ(writes[1].value, "");
}

TEST_F(OptionsTest, AWriteWithoutListColumnOrValueIsRefused) {
    for (char const* const text : {"t.a", "a=1", ".a=1", "t.=1", "t.a.b=1", "=1", "t\\.a=1"})
        ExpectRefused({"a.db", "--select", "x", "--write", text}, "TABLE.COLUMN=VALUE");
}

TEST_F(OptionsTest, AWriteNeedsASelection) {
    ExpectRefused({"a.db", "--write", "t.a=1"}, "--write needs --select");
    ExpectRefused({"a.db", "--watch", "--write", "t.a=1"}, "--write needs --select");
}

TEST_F(OptionsTest, AGenerationIsOldOrNew) {
    ExpectRefused({"a.db", "--generation", "newer"}, "--generation newer: not old or new");
}

TEST_F(OptionsTest, MistakesAreToldInOneLine) {
    ExpectRefused({}, "FILE");
    ExpectRefused({"a.db", "b.db"}, "b.db");
    ExpectRefused({"a.db", "--bogus"}, "--bogus");
    ExpectRefused({"a.db", "--list"}, "--list");
    ExpectRefused({"a.db", "--format", "xml"}, "xml");
    ExpectRefused({"a.db", "--format", "3"}, "3");
    ExpectRefused({"a.db", "--folder", "x"}, "PATH=NAME");
    ExpectRefused({"a.db", "--view", "a", "--view", "b"}, "--view");
}

TEST_F(OptionsTest, ALimitThatIsNoCountIsRefused) {
    for (char const* const text : {"-1", "+1", "1.5", "ten", "99999999999999999999", "0x10", " 1"})
        ExpectRefused({"a.db", (std::string("--limit=") + text).c_str()}, "--limit");
}

TEST_F(OptionsTest, HelpNamesEachOptionAndStops) {
    EXPECT_FALSE(Read({"--help"}));
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(errors_, "");
    for (char const* const name :
         {"FILE",     "--list",       "--folder", "--columns", "--sort",   "--name",   "--icon",
          "--bold",   "--generation", "--view",   "--limit",   "--format", "--output", "--watch",
          "--select", "--write",      "--help",   "--version", "json",     "130",      "143"})
        EXPECT_NE(output_.find(name), std::string::npos) << name;
}

TEST_F(OptionsTest, VersionIsOneLine) {
    EXPECT_FALSE(Read({"--version"}));
    EXPECT_EQ(status_, 0);
    EXPECT_EQ(output_.find("zbbrowse "), 0U);
    EXPECT_EQ(output_.find('\n'), output_.size() - 1);
}

} // namespace
