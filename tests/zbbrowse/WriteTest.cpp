// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

#include <zbBrowserView/platform/zbVariant.h>
#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/sqlite/Transaction.h>

#include <gmock/gmock.h>
#include <signal.h>

#include <optional>

namespace {

using namespace zbtest;
using testing::HasSubstr;

class Writing : public EndToEnd {
protected:
    Writing() {
        Sql("a.db", "create table kind(id integer primary key, name text);"
                    "insert into kind values (1,'made');"
                    "create table part(id integer primary key, name text unique,"
                    " mass integer check (mass < 100), kind integer references kind(id));"
                    "insert into part values (1,'bolt',5,1),(2,'nut',2,1),(3,'bolt, long',7,1);");
    }

    Ending Write(std::vector<std::string> arguments) const {
        arguments.insert(arguments.begin(), {Path("a.db"), "--format", "csv", "--list", "part"});
        return Browse(std::move(arguments));
    }

    std::string Ask(std::string const& sql) const { return Sql("a.db", sql); }

    std::string Parts() const { return Ask("select name, mass, kind from part;"); }

    //! Nothing is written, nothing is shown, and the reason is told.
    void ExpectRefused(std::vector<std::string> arguments, std::string const& reason) const {
        auto const before = Read("a.db");
        auto const ending = Write(std::move(arguments));
        EXPECT_EQ(ending.status, 2);
        EXPECT_EQ(ending.output, "");
        EXPECT_THAT(ending.errors, HasSubstr(reason));
        EXPECT_EQ(Lines(ending.errors).size(), 1U);
        EXPECT_EQ(Ask("select count(*) from kind;"), "1\n");
        EXPECT_EQ(Parts(), "bolt|5|1\nnut|2|1\nbolt, long|7|1\n");
        EXPECT_EQ(Read("a.db"), before);
    }
};

TEST_F(Writing, TheSelectedRowsAreWrittenAndShownAsTheyAreThen) {
    auto const ending = Write({"--select", "bolt*", "--write", "part.mass=9"});

    EXPECT_EQ(ending.status, 0) << ending.errors;
    EXPECT_EQ(ending.output, "id,name,mass,kind\r\n1,bolt,9,1\r\n3,\"bolt, long\",9,1\r\n");
    EXPECT_EQ(Parts(), "bolt|9|1\nnut|2|1\nbolt, long|9|1\n");
}

TEST_F(Writing, TheColumnMakesANumberOfTheText) {
    Write({"--select", "bolt", "--write", "part.mass=09"});

    EXPECT_EQ(Ask("select mass, typeof(mass) from part where id = 1;"), "9|integer\n");
}

TEST_F(Writing, AValueIsTakenAsItStands) {
    Write({"--select", "bolt", "--write", "part.name=a=b.c\\d 'e'"});

    EXPECT_EQ(Ask("select name from part where id = 1;"), "a=b.c\\d 'e'\n");
}

TEST_F(Writing, ARowThatIsRenamedStaysSelected) {
    auto const ending = Write({"--select", "bolt", "--write", "part.name=screw"});

    EXPECT_EQ(ending.output, "id,name,mass,kind\r\n1,screw,5,1\r\n");
}

TEST_F(Writing, NamesOfListsAndColumnsAreFoundInAnyCase) {
    EXPECT_EQ(Write({"--select", "nut", "--write", "PART.Mass=3"}).status, 0);

    EXPECT_EQ(Parts(), "bolt|5|1\nnut|3|1\nbolt, long|7|1\n");
}

TEST_F(Writing, SeveralValuesAreWrittenInTheirOrder) {
    Write({"--select", "nut", "--write", "part.mass=3", "--write", "part.name=Nut", "--write",
           "part.mass=4"});

    EXPECT_EQ(Parts(), "bolt|5|1\nNut|4|1\nbolt, long|7|1\n");
}

TEST_F(Writing, ARowInTwoFoldersIsWrittenOnce) {
    Ask("create table log(x); create trigger t after update on part begin "
        "insert into log values (1); end;");

    Browse({Path("a.db"), "--folder", "a=part", "--folder", "b=part", "--select", "nut", "--write",
            "part.mass=3"});

    EXPECT_EQ(Ask("select count(*) from log;"), "1\n");
}

TEST_F(Writing, ARowWithoutAKeyColumnIsFoundByItsRowid) {
    Ask("create table box(name, size); insert into box values ('a', 1), ('a', 2), ('b', 1);"
        "delete from box where rowid = 1;");

    Browse({Path("a.db"), "--list", "box", "--select", "a", "--write", "box.size=7"});

    EXPECT_EQ(Ask("select * from box;"), "a|7\nb|1\n");
}

TEST_F(Writing, ARowWithoutRowidIsFoundByItsPrimaryKey) {
    Ask("create table box(x, y, name, primary key (y, x)) without rowid;"
        "insert into box values (1, 'p', 'a'), (2, 'p', 'b'), (1, 'q', 'c');");

    Browse({Path("a.db"), "--list", "box", "--select", "b", "--write", "box.name=B"});

    EXPECT_EQ(Ask("select name from box order by name;"), "B\na\nc\n");
}

TEST_F(Writing, AnotherProgramIsTold) {
    Child watch(Zbbrowse({Path("a.db"), "--watch"}), Child::Place::Pipes);
    ASSERT_TRUE(watch.WaitForError("watching "));

    Write({"--select", "nut", "--write", "part.mass=3"});

    EXPECT_TRUE(watch.WaitFor("~ nut\n"));
    watch.Signal(SIGTERM);
    EXPECT_EQ(watch.Wait().status, 143);
}

// What cannot be written

TEST_F(Writing, AValueThatARowRefusesChangesNone) {
    ExpectRefused({"--select", "*", "--write", "part.mass=100"},
                  "table \"part\": CHECK constraint failed: mass < 100");
}

TEST_F(Writing, AValueThatOnlyTheSecondRowRefusesChangesNone) {
    ExpectRefused({"--select", "bolt*", "--write", "part.name=same"},
                  "UNIQUE constraint failed: part.name");
}

TEST_F(Writing, AWriteThatFailsTakesThoseBeforeItBack) {
    ExpectRefused({"--select", "*", "--write", "part.mass=1", "--write", "part.mass=100"},
                  "CHECK constraint failed");
}

TEST_F(Writing, AForeignKeyIsKept) {
    ExpectRefused({"--select", "nut", "--write", "part.kind=2"}, "FOREIGN KEY constraint failed");
}

TEST_F(Writing, AForeignKeyThatIsCheckedAtTheEndIsKept) {
    Ask("create table box(name, kind references kind(id) deferrable initially deferred);"
        "insert into box values ('a', 1);");

    auto const ending =
        Browse({Path("a.db"), "--list", "box", "--select", "a", "--write", "box.kind=2"});

    EXPECT_EQ(ending.status, 2);
    EXPECT_THAT(ending.errors, HasSubstr("FOREIGN KEY constraint failed"));
    EXPECT_EQ(Ask("select kind from box;"), "1\n");
}

TEST_F(Writing, ARowThatATriggerKeepsIsAFailure) {
    Ask("create trigger t before update on part begin select raise(ignore); end;");

    ExpectRefused({"--select", "nut", "--write", "part.mass=3"}, "a trigger keeps it");
}

TEST_F(Writing, AViewHasNoRowsToWrite) {
    Ask("create view light as select name, mass from part;");
    auto const ending =
        Browse({Path("a.db"), "--list", "light", "--select", "nut", "--write", "light.mass=1"});

    EXPECT_EQ(ending.status, 2);
    EXPECT_THAT(ending.errors, HasSubstr("view \"light\": its rows have no key"));
}

TEST_F(Writing, WhatIsNotThereIsRefusedByName) {
    ExpectRefused({"--select", "nut", "--write", "prat.mass=3"}, "no list \"prat\"; nearest: part");
    ExpectRefused({"--select", "nut", "--write", "part.mas=3"},
                  "list \"part\" has no column \"mas\"; nearest: mass");
}

TEST_F(Writing, NothingSelectedIsNothingToWrite) {
    ExpectRefused({"--select", "rod", "--write", "part.mass=3"}, "no row of \"part\" is selected");
    ExpectRefused({"--select", "made", "--write", "kind.name=x"}, "no row of \"kind\" is selected");
}

// The data properties

class WrittenProperty : public EndToEnd {
protected:
    //! A table of one row, open for writing or not.
    void Open(bool canWrite) {
        Sql("a.db", "create table t(id integer primary key, a); insert into t values (1, 'old');");
        data_.emplace(zbsqlite::Database(Path("a.db"), {.canWrite = canWrite}));
        std::vector<zbIBrowserDataItemSimple*> rows;
        Source().GetDataItems(rows);
        row_ = rows.at(0);
        data_->SetCurrentDataItem(row_);
    }

    zbsqlite::Source& Source() { return *data_->FindDataSourceSimple("t"); }
    zbsqlite::Property& Column() { return *Source().FindDataProperty("a"); }
    zbIBrowserDataItemSimple* Row() const { return row_; }
    zbsqlite::DataCtrl& Data() { return *data_; }

    std::string Stored() const { return Sql("a.db", "select quote(a) from t;"); }

private:
    std::optional<zbsqlite::DataCtrl> data_;
    zbIBrowserDataItemSimple* row_ = nullptr; // Not owned.
};

TEST_F(WrittenProperty, EachKindOfVariantIsWrittenAsItIs) {
    Open(true);
    auto const written = [this](zbVariant const& value) {
        EXPECT_TRUE(Column().SetVariant(value));
        return Stored();
    };

    EXPECT_EQ(written(5), "5\n");
    EXPECT_EQ(written(5000000000LL), "5000000000\n");
    EXPECT_EQ(written(2.5), "2.5\n");
    EXPECT_EQ(written(true), "1\n");
    EXPECT_EQ(written("text"), "'text'\n");
    EXPECT_EQ(written({}), "NULL\n");
}

TEST_F(WrittenProperty, AKindOfTheHostsOwnIsNotWritten) {
    Open(true);
    zbVariant value(5);
    value.SetKind(8);

    EXPECT_FALSE(Column().SetVariant(value));

    EXPECT_EQ(Stored(), "'old'\n");
}

TEST_F(WrittenProperty, WithoutACurrentItemNothingIsWritten) {
    Open(true);
    Data().SetCurrentDataItem(nullptr);

    EXPECT_FALSE(Column().SetVariant(5));

    EXPECT_EQ(Stored(), "'old'\n");
}

TEST_F(WrittenProperty, TheSourceWritesIntegersAndBooleans) {
    Open(true);

    Source().SetDataPropertyInteger(Row(), &Column(), 6);
    EXPECT_EQ(Stored(), "6\n");
    Source().SetDataPropertyBoolean(Row(), &Column(), true);
    EXPECT_EQ(Stored(), "1\n");
    Source().SetDataPropertyInteger(nullptr, &Column(), 7);
    Source().SetDataPropertyInteger(Row(), nullptr, 7);
    EXPECT_EQ(Stored(), "1\n");
}

TEST_F(WrittenProperty, AFileOpenForReadingStaysAsItIsAndSaysWhy) {
    Open(false);

    EXPECT_FALSE(Column().SetVariant(5));

    EXPECT_EQ(Stored(), "'old'\n");
    ASSERT_NE(Data().LastError(), nullptr);
    EXPECT_EQ(Data().LastError()->What(), "the file is open for reading only");
    EXPECT_THROW(zbsqlite::Transaction{Data().GetDatabase()}, zbsqlite::Error);
}

TEST_F(WrittenProperty, ARowThatHasGoneCannotBeWritten) {
    Open(true);
    Sql("a.db", "delete from t;");

    EXPECT_FALSE(Column().SetVariant(5));

    EXPECT_THAT(Data().LastError()->What(), HasSubstr("the row has gone"));
}

TEST_F(WrittenProperty, ATransactionThatIsNotCommittedIsTakenBack) {
    Open(true);
    {
        zbsqlite::Transaction const transaction(Data().GetDatabase());
        EXPECT_TRUE(Column().SetVariant(5));
    }
    EXPECT_EQ(Stored(), "'old'\n");

    zbsqlite::Transaction transaction(Data().GetDatabase());
    EXPECT_TRUE(Column().SetVariant(5));
    transaction.Commit();
    EXPECT_EQ(Stored(), "5\n");
}

} // namespace
