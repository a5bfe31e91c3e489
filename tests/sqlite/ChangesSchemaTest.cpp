// SPDX-License-Identifier: MIT
//! \file
//! Tables that come, go and are altered while they are followed.
#include "ChangesTestSupport.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>

namespace zbtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbsqlite::PollResult;

class ChangesOfSchema : public FollowedHost {
protected:
    ChangesOfSchema() {
        Open("CREATE TABLE part(id INTEGER PRIMARY KEY, name TEXT, mass);"
             "INSERT INTO part VALUES (1, 'bolt', 5), (2, 'nut', 2);"
             "CREATE TABLE box(name); INSERT INTO box VALUES ('crate')");
        Show("part");
        Show("box");
    }
};

} // namespace

// Tables that go

TEST_F(ChangesOfSchema, ATableThatGoesTakesItsListWithIt) {
    auto& part = SourceOf("part");
    Run("DROP TABLE part");

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "gone part"));
    EXPECT_THAT(Shown("part"), IsEmpty());
    EXPECT_EQ(host_->RootFolder()->FindChildFreeFolder(zbString("part"))->FindList(&part), nullptr);
    EXPECT_EQ(host_->View().GetDataSourceSimple("part"), nullptr);
    EXPECT_EQ(host_->Data().FindDataSourceSimple("part"), nullptr);
    EXPECT_THAT(SourceNames(host_->Data()), ElementsAre("box"));
    EXPECT_THAT(Shown("box"), ElementsAre("crate"));
}

TEST_F(ChangesOfSchema, WhatRemainsIsFollowedOn) {
    Run("DROP TABLE part; INSERT INTO box VALUES ('chest')");
    Poll();
    Run("INSERT INTO box VALUES ('case')");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "gone part", "+ chest", "+ case"));
}

TEST_F(ChangesOfSchema, ASourceThatHasGoneHasNoRows) {
    auto& part = SourceOf("part");
    Run("DROP TABLE part");
    Poll();
    Run("CREATE TABLE part(name); INSERT INTO part VALUES ('other')");
    Poll();

    EXPECT_EQ(LoadError(part).What(), "the table has gone");
    EXPECT_THAT(NamesOf(SourceOf("part")), ElementsAre("other"));
}

TEST_F(ChangesOfSchema, ATableThatIsRenamedGoesAndComes) {
    Run("ALTER TABLE part RENAME TO piece");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "gone part", "new piece"));
}

TEST_F(ChangesOfSchema, AViewWhoseTableHasGoneHasNoRowsAndSaysWhy) {
    Run("CREATE VIEW light AS SELECT name FROM part WHERE mass < 3");
    Poll();
    Show("light");
    Forget();
    Run("DROP TABLE part");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "gone part", "altered light", "- nut"));
    ASSERT_NE(SourceOf("light").LastError(), nullptr);
    EXPECT_EQ(SourceOf("light").LastError()->What(), "no such table: main.part");
}

TEST_F(ChangesOfSchema, AViewWhoseTableIsBackHasItsRowsBack) {
    Run("CREATE VIEW light AS SELECT name FROM part WHERE mass < 3");
    Poll();
    Show("light");
    Run("ALTER TABLE part RENAME TO hidden; PRAGMA writable_schema = ON;"
        "UPDATE sqlite_schema SET sql = 'CREATE VIEW light AS SELECT name FROM part' "
        "WHERE name = 'light'; PRAGMA writable_schema = RESET");
    Poll();
    Forget();
    Run("CREATE TABLE part(name); INSERT INTO part VALUES ('rod')");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("altered light", "new part", "+ rod"));
    EXPECT_EQ(SourceOf("light").LastError(), nullptr);
}

// Tables that come

TEST_F(ChangesOfSchema, ATableThatComesCanBeShown) {
    Run("CREATE TABLE tool(name); INSERT INTO tool VALUES ('saw')");
    slot_ = [this](zbsqlite::Change const& change) {
        if (change.kind == zbsqlite::ChangeKind::SourceCreated)
            Show(change.source->GetName());
    };
    Poll();
    EXPECT_THAT(TakeLog(), ElementsAre("new tool"));
    EXPECT_THAT(Shown("tool"), ElementsAre("saw"));
    Run("INSERT INTO tool VALUES ('axe'); UPDATE tool SET name = 'big saw' WHERE name = 'saw'");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("~ big saw", "+ axe"));
    EXPECT_THAT(Shown("tool"), ElementsAre("big saw", "axe"));
}

TEST_F(ChangesOfSchema, AnIndexIsNoNews) {
    Run("CREATE INDEX by_name ON part(name)");

    EXPECT_EQ(Poll(), PollResult::Nothing);
}

TEST_F(ChangesOfSchema, AReferenceToATableThatComesIsThere) {
    EXPECT_THAT(host_->Data().References(), IsEmpty());
    Run("CREATE TABLE stock(part_id REFERENCES part)");

    Poll();

    ASSERT_EQ(host_->Data().References().size(), 1U);
    EXPECT_EQ(&host_->Data().References()[0].Parent(), &SourceOf("part"));
}

// Tables that are altered

TEST_F(ChangesOfSchema, AColumnThatIsAddedLeavesTheRowsAlone) {
    auto* const nut = RowNamed("part", "nut");
    Run("ALTER TABLE part ADD COLUMN note");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("altered part"));
    EXPECT_THAT(TakeSignals(), IsEmpty());
    EXPECT_EQ(RowNamed("part", "nut"), nut);
    EXPECT_EQ(Cell(nut, "note"), "null");
    EXPECT_EQ(Cell(nut, "mass"), "int 2");
}

TEST_F(ChangesOfSchema, AValueInAColumnThatIsAddedIsAnUpdate) {
    Run("ALTER TABLE part ADD COLUMN note; UPDATE part SET note = 'M6' WHERE id = 2");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("altered part", "~ nut"));
    EXPECT_EQ(Cell(RowNamed("part", "nut"), "note"), "text M6");
}

TEST_F(ChangesOfSchema, APropertyOfBeforeReadsTheColumnOfItsName) {
    auto* const name = SourceOf("part").FindDataProperty("name");
    auto* const mass = SourceOf("part").FindDataProperty("mass");
    Run("ALTER TABLE part DROP COLUMN name");

    Poll();

    EXPECT_TRUE(name->IsGone());
    EXPECT_EQ(Describe(mass->GetValue(ItemsOf(SourceOf("part"))[0])), "int 5");
    EXPECT_EQ(Describe(name->GetValue(ItemsOf(SourceOf("part"))[0])), "null");
    EXPECT_EQ(SourceOf("part").AsColumn(mass), mass);
}

TEST_F(ChangesOfSchema, AListStaysSortedByTheColumnThatItWasSortedBy) {
    SortBy("part", "mass");
    Run("BEGIN; CREATE TABLE new_part(mass, id INTEGER PRIMARY KEY, name TEXT, note);"
        "INSERT INTO new_part(id, name, mass) SELECT id, name, mass FROM part;"
        "DROP TABLE part; ALTER TABLE new_part RENAME TO part;"
        "INSERT INTO part(name, mass) VALUES ('pin', 3); COMMIT");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("altered part", "+ pin"));
    EXPECT_THAT(Shown("part"), ElementsAre("nut", "pin", "bolt"));
}

TEST_F(ChangesOfSchema, ATableThatBecomesAViewKeepsItsList) {
    Run("BEGIN; ALTER TABLE part RENAME TO all_parts; CREATE VIEW part AS "
        "SELECT name, mass FROM all_parts; COMMIT");

    Poll();

    EXPECT_THAT(Shown("part"), ElementsAre("bolt", "nut"));
    Run("DELETE FROM all_parts WHERE id = 1");
    Poll();
    EXPECT_THAT(Shown("part"), ElementsAre("nut"));
}

} // namespace zbtest
