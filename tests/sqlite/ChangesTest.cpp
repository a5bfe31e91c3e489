// SPDX-License-Identifier: MIT
//! \file
//! What other programs write becomes events of a view.
#include "ChangesTestSupport.h"

#include <zbBrowserView/host/neutral/zbNeutralManager.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <gmock/gmock.h>

#include <memory>

namespace zbtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using zbsqlite::PollResult;

constexpr char const* kParts = "CREATE TABLE part(id INTEGER PRIMARY KEY, name TEXT, mass);"
                               "INSERT INTO part VALUES (1, 'bolt', 5), (2, 'nut', 2), "
                               "(3, 'pin', 1)";

class Changes : public FollowedHost {
protected:
    Changes() {
        Open(kParts);
        Show("part");
    }
};

struct BracketManager final : zbNeutralManager {
    void BeginLongOperation() override { brackets += '('; }
    void EndLongOperation() override { brackets += ')'; }
    std::string brackets;
};

//! Tables of other kinds than the above.
class ChangesOfKinds : public FollowedHost {};

} // namespace

// One change

TEST_F(Changes, ACreatedRowAppearsAtOnce) {
    Run("INSERT INTO part VALUES (4, 'axle', 9)");

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("+ axle"));
    EXPECT_THAT(TakeSignals(), ElementsAre("ViewItemCreated axle", "ViewItemChanged part"));
    EXPECT_THAT(Shown("part"), ElementsAre("bolt", "nut", "pin", "axle"));
}

TEST_F(Changes, AnUpdatedRowStaysTheRowItIs) {
    auto* const nut = RowNamed("part", "nut");
    auto* const place = PlaceOf("part", "nut");
    Run("UPDATE part SET mass = 3 WHERE name = 'nut'");

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("~ nut"));
    EXPECT_THAT(TakeSignals(), ElementsAre("ViewItemChanged nut", "ViewItemChanged part"));
    EXPECT_EQ(RowNamed("part", "nut"), nut);
    EXPECT_EQ(PlaceOf("part", "nut"), place);
    EXPECT_EQ(Cell(nut, "mass"), "int 3");
}

TEST_F(Changes, ADeletedRowGoesAndCanBeReadWhileItIsTold) {
    auto* const nut = RowNamed("part", "nut");
    Run("DELETE FROM part WHERE name = 'nut'");

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("- nut"));
    EXPECT_THAT(TakeSignals(), ElementsAre("ViewItemDeleted nut"));
    EXPECT_THAT(Shown("part"), ElementsAre("bolt", "pin"));
    EXPECT_FALSE(SourceOf("part").ContainsDataItem(nut));
}

TEST_F(Changes, TheLastRowThatGoesHasItsFolderPaintedAnew) {
    Run("DELETE FROM part");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "- pin"));
    EXPECT_THAT(TakeSignals(), ElementsAre("ViewItemDeleted bolt", "ViewItemDeleted nut",
                                           "ViewItemDeleted pin", "ViewItemChanged part"));
}

TEST_F(Changes, AChangeOfTheKeyIsAnotherRow) {
    Run("UPDATE part SET id = 7 WHERE name = 'nut'");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- nut", "+ nut"));
}

TEST_F(Changes, ARowThatIsReplacedUnderItsKeyIsUpdated) {
    auto* const nut = RowNamed("part", "nut");
    Run("REPLACE INTO part VALUES (2, 'wing nut', 4)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("~ wing nut"));
    EXPECT_EQ(RowNamed("part", "wing nut"), nut);
}

TEST_F(Changes, ARowThatIsReplacedUnderAnotherKeyIsAnother) {
    Run("CREATE UNIQUE INDEX by_name ON part(name)");
    Run("REPLACE INTO part VALUES (8, 'nut', 4)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- nut", "+ nut"));
}

TEST_F(Changes, AValueOfAnotherTypeIsAChange) {
    Run("UPDATE part SET mass = 5.0 WHERE name = 'bolt'");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("~ bolt"));
    EXPECT_EQ(Cell(RowNamed("part", "bolt"), "mass"), "real 5.0");
}

// No change

TEST_F(Changes, NothingIsToldWhenNothingIsWritten) {
    EXPECT_EQ(Poll(), PollResult::Nothing);
}

TEST_F(Changes, AnUpdateThatChangesNothingIsNotTold) {
    Run("UPDATE part SET mass = mass");

    EXPECT_EQ(Poll(), PollResult::Nothing);
}

TEST_F(Changes, WhatIsRolledBackIsNotTold) {
    Run("BEGIN; DELETE FROM part; INSERT INTO part VALUES (9, 'axle', 1); ROLLBACK");

    EXPECT_EQ(Poll(), PollResult::Nothing);
}

TEST_F(Changes, WhatIsNotCommittedYetIsToldLater) {
    Run("PRAGMA journal_mode = WAL");
    Poll();
    Run("BEGIN; INSERT INTO part VALUES (9, 'axle', 1)");
    EXPECT_EQ(Poll(), PollResult::Nothing);
    Run("COMMIT");
    EXPECT_EQ(Poll(), PollResult::Changed);
    EXPECT_THAT(TakeLog(), ElementsAre("+ axle"));
}

TEST_F(Changes, EachIsToldOnce) {
    Run("UPDATE part SET mass = 3 WHERE name = 'nut'");
    Poll();
    static_cast<void>(TakeLog());

    EXPECT_EQ(Poll(), PollResult::Nothing);
    Run("INSERT INTO part VALUES (9, 'axle', 1)");
    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("+ axle"));
}

// Many changes

TEST_F(Changes, SeveralCommitsAreToldAsOneChangeOfEachRow) {
    Run("UPDATE part SET mass = 3 WHERE name = 'nut'");
    Run("UPDATE part SET mass = 4 WHERE name = 'nut'");
    Run("INSERT INTO part VALUES (5, 'passing', 0)");
    Run("DELETE FROM part WHERE name = 'passing'");
    Run("DELETE FROM part WHERE name = 'pin'");
    Run("INSERT INTO part VALUES (3, 'pin', 1)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("~ nut"));
}

TEST_F(Changes, OfASourceDeletedRowsAreToldBeforeUpdatedAndCreatedOnes) {
    Run("DELETE FROM part WHERE id = 1; UPDATE part SET mass = 0 WHERE id > 1;"
        "INSERT INTO part VALUES (4, 'axle', 9), (0, 'shim', 0)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "~ nut", "~ pin", "+ shim", "+ axle"));
}

TEST_F(Changes, AllAreToldInOneLongOperation) {
    BracketManager manager;
    std::unique_ptr<zbBrowserViewCtrl> const controller(CreateBrowserViewCtrl(&manager));
    zbsqlite::Changes changes(host_->Data(), *controller);
    Run("DELETE FROM part WHERE id = 1; UPDATE part SET mass = 0 WHERE id > 1;"
        "INSERT INTO part VALUES (4, 'axle', 9)");
    changes.SetListener([&](zbsqlite::Change const&) { manager.brackets += 'x'; });

    changes.Poll();
    changes.Poll();

    EXPECT_EQ(manager.brackets, "(xxxx)");
}

TEST_F(Changes, RowsStandInTheOrderOfTheTable) {
    Run("INSERT INTO part VALUES (-1, 'first', 0); DELETE FROM part WHERE id = 2;"
        "INSERT INTO part VALUES (10, 'last', 0)");

    Poll();

    EXPECT_THAT(NamesOf(SourceOf("part")), ElementsAre("first", "bolt", "pin", "last"));
}

TEST_F(Changes, RowsThatComeAfterRowsThatWentAreTheirOwn) {
    Run("DELETE FROM part WHERE id < 3");
    Poll();
    Run("INSERT INTO part VALUES (1, 'axle', 9), (20, 'disc', 8), (30, 'ring', 7)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "+ axle", "+ disc", "+ ring"));
    EXPECT_THAT(Shown("part"), UnorderedElementsAre("pin", "axle", "disc", "ring"));
    EXPECT_THAT(NamesOf(SourceOf("part")), ElementsAre("axle", "pin", "disc", "ring"));
}

TEST_F(Changes, ASortedListIsSortedAnew) {
    SortBy("part", "mass");
    EXPECT_THAT(Shown("part"), ElementsAre("pin", "nut", "bolt"));
    Run("UPDATE part SET mass = 9 WHERE name = 'pin'; INSERT INTO part VALUES (4, 'axle', 3)");

    Poll();

    EXPECT_THAT(Shown("part"), ElementsAre("nut", "axle", "bolt", "pin"));
}

TEST_F(Changes, OfThousandsOfSortedRowsAreFoundTheirPlaces) {
    Run("WITH RECURSIVE n(i) AS (SELECT 10 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
        "INSERT INTO part SELECT i, 'part ' || i, i FROM n");
    Poll();
    SortBy("part", "mass");
    EXPECT_EQ(Shown("part").back(), "part 3000");
    Run("UPDATE part SET mass = 99999 WHERE id = 10; DELETE FROM part WHERE id = 3000;"
        "INSERT INTO part VALUES (3001, 'between', 2998.5)");

    Poll();

    auto const shown = Shown("part");
    std::vector<std::string> const end(shown.end() - 4, shown.end());
    EXPECT_THAT(end, ElementsAre("part 2998", "between", "part 2999", "part 10"));
}

TEST_F(Changes, ARowIsToldInEachFolderThatShowsIt) {
    ShowIn("again", "part");
    Run("DELETE FROM part WHERE id = 2; UPDATE part SET mass = 0 WHERE id = 1");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- nut", "~ bolt"));
    EXPECT_THAT(TakeSignals(), ElementsAre("ViewItemDeleted nut", "ViewItemDeleted nut",
                                           "ViewItemChanged bolt", "ViewItemChanged bolt",
                                           "ViewItemChanged part", "ViewItemChanged again"));
}

TEST_F(Changes, RowsThatNobodyLoadedAreNotRead) {
    Run("CREATE TABLE other(a); INSERT INTO other VALUES (1)");
    Poll();
    static_cast<void>(TakeLog());
    Run("INSERT INTO other VALUES (2)");

    EXPECT_EQ(Poll(), PollResult::Nothing);
    EXPECT_THAT(SourceOf("other").Rows(), IsEmpty());
}

TEST_F(Changes, WhatWasWrittenBetweenLoadAndFirstLookIsTold) {
    changes_.reset();
    Run("INSERT INTO part VALUES (4, 'axle', 9)");
    Follow();

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("+ axle"));
}

TEST_F(Changes, WhatIsWrittenOnTheSameConnectionIsTold) {
    zbsqlite::HostOptions options;
    options.open.canWrite = true;
    Open(kParts, options);
    Show("part");
    RunInside("DELETE FROM part"); // At once: the update hook would not hear of it.

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "- pin"));
}

// Kinds of table

TEST_F(ChangesOfKinds, RowsWithoutAKeyColumnAreKnownByTheirRowid) {
    Open("CREATE TABLE t(name, a); INSERT INTO t VALUES ('x', 1), ('y', 2), ('x', 1)");
    Show("t");
    auto const before = ItemsOf(SourceOf("t"));
    Run("UPDATE t SET name = 'z', a = 4 WHERE rowid = 3; DELETE FROM t WHERE rowid = 1");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- x", "~ z"));
    EXPECT_THAT(ItemsOf(SourceOf("t")), ElementsAre(before[1], before[2]));
}

TEST_F(ChangesOfKinds, RowsOfATableWhoseColumnsHideTheRowidAreKnownByContentAndName) {
    Open("CREATE TABLE t(name, rowid, _rowid_, oid);"
         "INSERT INTO t VALUES ('x', 1, 1, 1), ('y', 2, 2, 2)");
    Show("t");
    Run("UPDATE t SET oid = 3 WHERE name = 'y'; INSERT INTO t VALUES ('x', 1, 1, 1)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("~ y", "+ x"));
}

TEST_F(ChangesOfKinds, RowsWithoutRowidAreKnownByTheirPrimaryKey) {
    Open("CREATE TABLE t(a TEXT, b INT, v, PRIMARY KEY (b DESC, a)) WITHOUT ROWID;"
         "INSERT INTO t VALUES ('x', 1, 10), ('x', 2, 20), ('y', 1, 30)");
    Show("t");
    auto const before = ItemsOf(SourceOf("t"));
    Run("UPDATE t SET v = 0 WHERE a = 'x' AND b = 1; DELETE FROM t WHERE b = 2;"
        "INSERT INTO t VALUES ('z', 3, 1)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- x", "~ x", "+ z"));
    EXPECT_THAT(RowsOf(SourceOf("t")),
                ElementsAre("text z|int 3|int 1", "text x|int 1|int 0", "text y|int 1|int 30"));
    EXPECT_EQ(ItemsOf(SourceOf("t"))[1], before[1]);
}

TEST_F(ChangesOfKinds, ARowOfAViewIsUpdatedIfItKeepsItsName) {
    Open(std::string(kParts) + ";CREATE VIEW heavy AS SELECT name, mass FROM part WHERE mass > 1"
                               " ORDER BY mass");
    Show("heavy");
    auto* const nut = RowNamed("heavy", "nut");
    Run("UPDATE part SET mass = 8 WHERE name = 'nut'; UPDATE part SET mass = 0 WHERE id = 1;"
        "UPDATE part SET mass = 3 WHERE name = 'pin'");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "~ nut", "+ pin"));
    EXPECT_EQ(RowNamed("heavy", "nut"), nut);
    EXPECT_THAT(NamesOf(SourceOf("heavy")), ElementsAre("pin", "nut"));
}

TEST_F(ChangesOfKinds, RowsOfAViewThatAreAllAlikeAreCounted) {
    Open("CREATE TABLE t(a); INSERT INTO t VALUES (1), (2), (3); CREATE VIEW v AS SELECT 'x' AS"
         " name FROM t");
    Show("v");
    Run("DELETE FROM t WHERE a = 1");
    Poll();
    EXPECT_THAT(TakeLog(), ElementsAre("- x"));
    Run("INSERT INTO t VALUES (4), (5)");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("+ x", "+ x"));
}

TEST_F(ChangesOfKinds, TablesOfAnAttachedFileAreFollowed) {
    TempFolder const folder;
    auto const second = folder.Make("CREATE TABLE t(name); INSERT INTO t VALUES ('x')");
    Open("CREATE TABLE u(name)");
    zbsqlite::Database database(folder_ / "test.db");
    database.Attach(second, "second");
    zbsqlite::DataCtrl control(std::move(database));
    zbsqlite::Changes changes(control, host_->Controller());
    EXPECT_THAT(NamesOf(Find(control, "t")), ElementsAre("x"));
    OtherProgram(second).Run("INSERT INTO t VALUES ('y')");

    EXPECT_EQ(changes.Poll(), PollResult::Changed);

    EXPECT_THAT(NamesOf(Find(control, "t")), ElementsAre("x", "y"));
}

TEST_F(ChangesOfKinds, ValuesOfAllSizesAreCompared) {
    Open("CREATE TABLE t(id INTEGER PRIMARY KEY, v); INSERT INTO t VALUES (1, NULL),"
         "(2, x'00ff'), (3, printf('%.*c', 70000, 'x')), (4, CAST(x'ff' AS TEXT)), (5, 1e300)");
    Show("t");
    Run("UPDATE t SET v = printf('%.*c', 69999, 'x') || 'y' WHERE id = 3;"
        "UPDATE t SET v = x'00fe' WHERE id = 2; UPDATE t SET v = '' WHERE id = 1");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("~ 1", "~ 2", "~ 3"));
}

} // namespace zbtest
