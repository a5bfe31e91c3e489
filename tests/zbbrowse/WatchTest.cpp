// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <signal.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <set>
#include <sstream>

namespace {

using namespace zbtest;
using testing::ElementsAre;
using testing::HasSubstr;

//! A program that watches, and another that writes.
class Watching : public EndToEnd {
protected:
    Watching() {
        Write("create table part(id integer primary key, name text, mass);"
              "insert into part values (1, 'bolt', 5), (2, 'nut', 2);"
              "create table box(name); insert into box values ('crate');");
    }

    //! Waits while the program reads.
    void Write(std::string const& sql) const { Sql("a.db", ".timeout 10000\n" + sql); }

    //! Comes back when all that is written from now on will be told.
    void Start(std::vector<std::string> arguments = {}) {
        arguments.insert(arguments.begin(), {Path("a.db"), "--watch"});
        watch_.emplace(Zbbrowse(std::move(arguments)), Child::Place::Pipes);
        ASSERT_TRUE(watch_->WaitForError("watching "));
    }

    bool WaitFor(std::string const& text) { return watch_->WaitFor(text); }
    bool WaitForError(std::string const& text) { return watch_->WaitForError(text); }
    void CloseOutput() { watch_->CloseOutput(); }
    Ending Wait() { return watch_->Wait(); }

    Ending End(int signal = SIGTERM) {
        watch_->Signal(signal);
        return Wait();
    }

    //! All lines up to `last`, and those that come in the time of some looks behind it.
    std::vector<std::string> LinesUpTo(std::string const& last) {
        EXPECT_TRUE(WaitFor(last + '\n'));
        Write("insert into box values ('the end');");
        EXPECT_TRUE(WaitFor("the end"));
        auto lines = Lines(End().output);
        lines.pop_back();
        return lines;
    }

private:
    std::optional<Child> watch_;
};

// Rows

TEST_F(Watching, EachRowThatIsWrittenIsALineOnce) {
    Start();
    Write("insert into part values (3, 'gear', 9); update part set mass = 6 where id = 1;"
          "delete from part where id = 2;");

    EXPECT_THAT(LinesUpTo("+ gear"), testing::UnorderedElementsAre("+ gear", "~ bolt", "- nut"));
}

TEST_F(Watching, ChangesOfOneCommitAreToldByKind) {
    Start();
    Write("begin; insert into part values (3, 'gear', 9); update part set mass = 6 where id = 1;"
          "delete from part where id = 2; commit;");

    EXPECT_THAT(LinesUpTo("+ gear"), ElementsAre("- nut", "~ bolt", "+ gear"));
}

TEST_F(Watching, AsJsonLinesEachNamesItsList) {
    Start({"--format", "jsonl"});
    Write("begin; insert into part values (3, 'a \"gear\"', 9);"
          "update part set name = 'Bolt' where id = 1; delete from part where id = 2; commit;");

    EXPECT_TRUE(WaitFor("gear"));

    EXPECT_THAT(Lines(End().output),
                ElementsAre(R"({"change":"deleted","list":"part","name":"nut"})",
                            R"({"change":"updated","list":"part","name":"Bolt"})",
                            R"({"change":"created","list":"part","name":"a \"gear\""})"));
}

TEST_F(Watching, WhatIsTakenBackIsNotTold) {
    Start();
    Write("begin; insert into part values (3, 'gear', 9); rollback;"
          "update part set mass = 7 where id = 1;");

    EXPECT_THAT(LinesUpTo("~ bolt"), ElementsAre("~ bolt"));
}

TEST_F(Watching, ANameThatIsNullOrHasLineEndsStaysOneLine) {
    Start();
    Write("begin; insert into part values (3, null, 9);"
          "insert into part values (4, 'a' || char(10) || 'b', 9); commit;");

    EXPECT_THAT(LinesUpTo("+ a␊b"), ElementsAre("+ NULL", "+ a␊b"));
}

TEST_F(Watching, RowsAreNamedAsAskedFor) {
    Start({"--name", "mass"});
    Write("update part set mass = 77 where id = 1;");

    EXPECT_THAT(LinesUpTo("~ 77"), ElementsAre("~ 77"));
}

TEST_F(Watching, ListsThatAreNotShownAreNotToldOf) {
    Start({"--list", "box"});
    Write("delete from part; insert into box values ('chest');");

    EXPECT_THAT(LinesUpTo("+ chest"), ElementsAre("+ chest"));
}

TEST_F(Watching, AChangeIsToldWithinASecond) {
    Start();
    Write("insert into part values (3, 'gear', 9);");
    auto const committed = std::chrono::steady_clock::now();

    EXPECT_TRUE(WaitFor("+ gear\n"));

    EXPECT_LT(std::chrono::steady_clock::now() - committed, std::chrono::seconds(1));
}

TEST_F(Watching, AThousandCommitsLoseNoFinalState) {
    Start({"--list", "part", "--format", "jsonl"});
    std::ostringstream sql;
    for (int id = 10; id < 510; ++id) {
        sql << "insert into part values (" << id << ", 'part " << id << "', 0);\n";
        if (id % 3 == 0)
            sql << "delete from part where id = " << id / 2 << ";\n";
        else
            sql << "update part set mass = mass + 1 where id = " << id << ";\n";
    }
    Write(sql.str() + "insert into part values (1000, 'last', 0);");
    ASSERT_TRUE(WaitFor("\"last\""));

    std::multiset<std::string> names{"bolt", "nut"};
    for (auto const& line : Lines(End().output)) {
        auto const change = nlohmann::json::parse(line);
        std::string const name = change["name"];
        if (change["change"] == "created")
            names.insert(name);
        else if (change["change"] == "deleted")
            EXPECT_EQ(names.erase(name), 1U) << line;
        else
            EXPECT_EQ(names.count(name), 1U) << line;
    }

    auto const rows = Lines(Sql("a.db", "select name from part;"));
    EXPECT_EQ(names, std::multiset<std::string>(rows.begin(), rows.end()));
    EXPECT_GT(rows.size(), 300U);
}

TEST_F(Watching, AWriterThatNeverPausesIsKeptUpWith) {
    auto const ending = RunToEnd({.arguments = {PYTHON, WATCH_WHILE_WRITING, "--program",
                                                ZBBROWSE_PROGRAM, "--seconds", "4"},
                                  .environment = {},
                                  .input = {}});

    EXPECT_EQ(ending.status, 0) << ending.errors;
}

// Tables and views

TEST_F(Watching, ATableThatGoesIsToldBehindItsRows) {
    Start();
    Write("drop table part;");

    EXPECT_THAT(LinesUpTo("! table part is gone"),
                ElementsAre("- bolt", "- nut", "! table part is gone"));
}

TEST_F(Watching, ATableThatComesIsWatchedFromItsFirstRow) {
    Start();
    Write("begin; create table tool(name); insert into tool values ('saw'); commit;");
    ASSERT_TRUE(WaitFor("+ saw\n"));
    Write("insert into tool values ('axe');");

    EXPECT_THAT(LinesUpTo("+ axe"), ElementsAre("! table tool is new", "+ saw", "+ axe"));
}

TEST_F(Watching, ATableThatIsAlteredIsToldByName) {
    Start();
    Write("alter table part add column note default 'x';");

    EXPECT_THAT(LinesUpTo("~ nut"), ElementsAre("! table part is altered", "~ bolt", "~ nut"));
}

TEST_F(Watching, AListThatWasAskedForIsWatchedAgainWhenItIsBack) {
    Start({"--list", "part", "--list", "box", "--name", "mass"});
    Write("drop table part;");
    ASSERT_TRUE(WaitFor("part is gone\n"));
    Write("begin; create table part(id integer, name text, mass);"
          "insert into part values (1, 'rod', 8); commit;");

    EXPECT_THAT(LinesUpTo("+ 8"),
                ElementsAre("- 5", "- 2", "! table part is gone", "! table part is new", "+ 8"));
}

TEST_F(Watching, ATableThatWasNotAskedForIsToldWithoutItsRows) {
    Start({"--list", "box"});
    Write("begin; create table tool(name); insert into tool values ('saw'); commit;");

    EXPECT_THAT(LinesUpTo("! table tool is new"), ElementsAre("! table tool is new"));
}

TEST_F(Watching, AsJsonLinesListsAreToldWithoutAName) {
    Start({"--format", "jsonl"});
    Write("create view light as select name from part where mass < 0;");
    ASSERT_TRUE(WaitFor("list_created"));
    Write("drop view light;");
    ASSERT_TRUE(WaitFor("list_deleted"));
    Write("alter table box add column size;");
    ASSERT_TRUE(WaitFor("list_altered"));

    EXPECT_THAT(Lines(End().output), ElementsAre(R"({"change":"list_created","list":"light"})",
                                                 R"({"change":"list_deleted","list":"light"})",
                                                 R"({"change":"list_altered","list":"box"})"));
}

// Trouble

TEST_F(Watching, AListThatCannotBeReadIsComplainedAboutOnceAndTheOthersGoOn) {
    Write("create view half as select name, json_extract(mass, '$') as value from part;");
    Start();
    Write("update part set mass = '{' where id = 1;");
    ASSERT_TRUE(WaitForError("malformed JSON"));
    Write("insert into box values ('chest');");
    ASSERT_TRUE(WaitFor("+ chest\n"));
    Write("update part set mass = 50 where id = 1;");

    auto const lines = LinesUpTo("+ chest\n~ bolt\n~ bolt");

    EXPECT_THAT(lines, ElementsAre("~ bolt", "+ chest", "~ bolt", "~ bolt"));
}

TEST_F(Watching, ComplaintsAreNotRepeatedAtEachLook) {
    Write("create view half as select name, json_extract(mass, '$') as value from part;");
    Start();
    Write("update part set mass = '{' where id = 1;");
    ASSERT_TRUE(WaitForError("malformed JSON"));
    Write("insert into box values ('chest');");
    ASSERT_TRUE(WaitFor("+ chest\n"));

    auto const errors = Lines(End().errors);

    ASSERT_EQ(errors.size(), 2U);
    EXPECT_THAT(errors[1], HasSubstr("view \"half\": malformed JSON"));
}

TEST_F(Watching, AFileThatIsDeletedEndsItWith2) {
    Start();

    std::filesystem::remove(Path("a.db"));
    auto const ending = Wait();

    EXPECT_EQ(ending.status, 2);
    EXPECT_THAT(ending.errors, HasSubstr("deleted or replaced"));
}

TEST_F(Watching, AListThatIsNotThereIsRefused) {
    auto const ending = Browse({Path("a.db"), "--watch", "--list", "tool"});

    EXPECT_EQ(ending.status, 2);
    EXPECT_EQ(ending.output, "");
    EXPECT_THAT(ending.errors, HasSubstr("no list \"tool\""));
}

// The end

TEST_F(Watching, EndsWithTheStatusOfTheSignal) {
    Start();
    EXPECT_EQ(End(SIGTERM).status, 143);
    Start();
    EXPECT_EQ(End(SIGINT).status, 130);
}

TEST_F(Watching, EndsQuietly) {
    Start();

    auto const ending = End();

    EXPECT_EQ(ending.output, "");
    EXPECT_EQ(ending.errors, "zbbrowse: watching " + Path("a.db") + '\n');
}

TEST_F(Watching, AReaderWhoGoesEndsItThoughThereIsNothingToTell) {
    Start();

    CloseOutput();
    auto const ending = Wait();

    EXPECT_EQ(ending.status, 0);
}

TEST_F(Watching, CtrlCLeavesTheTerminalClean) {
    Child child(Zbbrowse({Path("a.db"), "--watch"}), Child::Place::Terminal);
    ASSERT_TRUE(child.WaitFor("watching "));
    Write("insert into part values (3, 'gear', 9);");
    ASSERT_TRUE(child.WaitFor("+ gear\n"));

    child.Signal(SIGINT);
    auto const ending = child.Wait();

    EXPECT_EQ(ending.status, 130);
    EXPECT_THAT(ending.output, testing::EndsWith("+ gear\n\x1b[0m\n"));
}

} // namespace
