// SPDX-License-Identifier: MIT
//! \file
//! Files that are locked, replaced or damaged while they are followed; slots that interfere; and
//! writers that do not wait.
#include "ChangesTestSupport.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <random>
#include <set>
#include <stdexcept>
#include <thread>

namespace zbtest {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;
using zbsqlite::PollResult;

constexpr char const* kParts = "CREATE TABLE part(id INTEGER PRIMARY KEY, name TEXT, mass);"
                               "INSERT INTO part VALUES (1, 'bolt', 5), (2, 'nut', 2), "
                               "(3, 'pin', 1)";

class TroubledChanges : public FollowedHost {
protected:
    TroubledChanges() {
        Open(kParts);
        Show("part");
    }

    fs::path File() const { return folder_ / "test.db"; }

    //! Why a look fails.
    std::string PollError() {
        try {
            Poll();
        } catch (zbsqlite::Error const& error) {
            return error.what();
        }
        return "no error";
    }
};

} // namespace

// The file

TEST_F(TroubledChanges, ALockedFileIsLookedAtLater) {
    Run("UPDATE part SET mass = 0 WHERE id = 2");
    Run("BEGIN EXCLUSIVE");
    EXPECT_EQ(Poll(), PollResult::Busy);
    EXPECT_THAT(TakeLog(), IsEmpty());
    Run("COMMIT");

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("~ nut"));
}

TEST_F(TroubledChanges, ALookLeavesNoLockBehind) {
    Run("UPDATE part SET mass = 0 WHERE id = 2");
    Poll();

    Run("BEGIN EXCLUSIVE; COMMIT");
}

TEST_F(TroubledChanges, AFileThatIsReplacedIsToldAndItsRowsStay) {
    TempFolder const other;
    auto const replacement = other.Make("CREATE TABLE part(id INTEGER PRIMARY KEY, name TEXT)");
    fs::rename(File(), folder_ / "old.db");
    fs::copy_file(replacement, File());

    EXPECT_EQ(PollError(),
              File().string() + ": the file has been deleted or replaced since it was opened");

    EXPECT_THAT(Shown("part"), ElementsAre("bolt", "nut", "pin"));
    fs::rename(folder_ / "old.db", File());
    EXPECT_EQ(Poll(), PollResult::Nothing);
}

TEST_F(TroubledChanges, AFileThatIsDeletedIsTold) {
    fs::remove(File());

    EXPECT_THAT(PollError(), HasSubstr("has been deleted or replaced"));

    EXPECT_THAT(Shown("part"), ElementsAre("bolt", "nut", "pin"));
}

TEST_F(TroubledChanges, AFileThatIsEmptiedIsNotADatabaseWithoutTables) {
    fs::resize_file(File(), 0);

    EXPECT_EQ(PollError(), File().string() + ": the file has been emptied");

    EXPECT_THAT(TakeLog(), IsEmpty());
    EXPECT_THAT(Shown("part"), ElementsAre("bolt", "nut", "pin"));
}

TEST_F(TroubledChanges, AFileThatIsCutShortIsTold) {
    Run("CREATE TABLE big(name, a);"
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 5000)"
        "INSERT INTO big SELECT 'n' || i, i FROM n");
    Poll();
    Show("big");
    Forget();
    Run("UPDATE big SET a = 0; UPDATE part SET mass = 7 WHERE id = 1");
    fs::resize_file(File(), fs::file_size(File()) / 2);

    EXPECT_THAT(PollError(), HasSubstr("damaged"));

    EXPECT_EQ(SourceOf("big").Rows().size(), 5000U);
}

TEST_F(TroubledChanges, ATableThatIsDamagedKeepsItsRowsAndOthersAreFollowed) {
    Run("CREATE TABLE box(name); INSERT INTO box VALUES ('crate')"); // On page 3.
    Poll();
    Show("box");
    Forget();
    Run("UPDATE part SET mass = 0 WHERE id = 2; UPDATE box SET name = 'chest'");
    std::string const sound = ReadFile(File());
    std::string bytes = sound;
    bytes.replace(std::size_t{2} * 4096, 64, 64, '\xee');
    WriteFile(File(), bytes);

    EXPECT_THAT(PollError(), HasSubstr("table \"box\": the database is damaged"));

    EXPECT_THAT(TakeLog(), ElementsAre("~ nut"));
    EXPECT_THAT(Shown("box"), ElementsAre("crate"));
    EXPECT_NE(SourceOf("box").LastError(), nullptr);
    WriteFile(File(), sound);
    Run("UPDATE part SET mass = 1 WHERE id = 2"); // Makes everybody read anew.
    EXPECT_EQ(Poll(), PollResult::Changed);
    EXPECT_THAT(TakeLog(), ElementsAre("~ nut", "~ chest"));
    EXPECT_EQ(SourceOf("box").LastError(), nullptr);
}

TEST_F(TroubledChanges, AStopEndsTheLookAndLosesNothing) {
    std::atomic<bool> stop = false;
    zbsqlite::HostOptions options;
    options.open.stop = &stop;
    Open(std::string(kParts) +
             ";WITH RECURSIVE n(i) AS (SELECT 10 UNION ALL SELECT i + 1 FROM n WHERE i < 9000)"
             "INSERT INTO part SELECT i, 'part ' || i, i FROM n",
         options);
    Show("part");
    Run("DELETE FROM part WHERE id = 5000");
    stop = true;
    EXPECT_THAT(PollError(), HasSubstr("stopped"));
    EXPECT_THAT(TakeLog(), IsEmpty());
    stop = false;

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("- part 5000"));
}

TEST_F(TroubledChanges, AListThatCouldNotBeLoadedIsFilledLater) {
    Open("CREATE TABLE t(name); INSERT INTO t VALUES ('x'); CREATE VIEW v AS "
         "SELECT name, abs(CASE name WHEN 'x' THEN -9223372036854775808 ELSE 1 END) FROM t");
    auto* const folder = host_->CreateFolder(host_->RootFolder(), "v");
    host_->CreateList(folder, SourceOf("v"));
    EXPECT_THAT(LoadError(SourceOf("v")).What(), HasSubstr("integer overflow"));
    Run("UPDATE t SET name = 'y'");

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("+ y"));
    EXPECT_THAT(Shown("v"), ElementsAre("y"));
}

// Slots

TEST_F(TroubledChanges, WhatAListenerThrowsGoesThroughAndTheRestIsToldLater) {
    Run("DELETE FROM part");
    slot_ = [](zbsqlite::Change const&) { throw std::runtime_error("enough"); };
    EXPECT_THROW(Poll(), std::runtime_error);
    slot_ = {};

    EXPECT_EQ(Poll(), PollResult::Changed);

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "- pin"));
    EXPECT_THAT(Shown("part"), IsEmpty());
    EXPECT_FALSE(host_->GetManager().IsInLongOperation());
}

TEST_F(TroubledChanges, ALookFromWithinALookDoesNothing) {
    Run("DELETE FROM part WHERE id < 3");
    std::vector<PollResult> results;
    slot_ = [&](zbsqlite::Change const&) { results.push_back(Poll()); };

    Poll();

    EXPECT_THAT(results, ElementsAre(PollResult::Nothing, PollResult::Nothing));
    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut"));
}

TEST_F(TroubledChanges, ASlotMayTakeTheListAway) {
    Run("DELETE FROM part WHERE id < 3; UPDATE part SET mass = 8;"
        "INSERT INTO part VALUES (7, 'axle', 1)");
    slot_ = [this](zbsqlite::Change const&) { host_->View().DataSourceDisconnect("part"); };

    Poll();

    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut", "~ pin", "+ axle"));
    EXPECT_THAT(Shown("part"), IsEmpty());
    EXPECT_THAT(NamesOf(SourceOf("part")), ElementsAre("pin", "axle"));
}

TEST_F(TroubledChanges, ASlotMayDeleteAViewThatIsToBeTold) {
    zbsqlite::Manager::CreateView(host_->Controller(), "second", false);
    auto* const second = host_->Controller().FindView(zbString("second"));
    second->SetDataCtrl(&host_->Data());
    second->DataSourceConnect(&SourceOf("part"));
    Run("DELETE FROM part WHERE id < 3");
    recorder_->Once(&zbBrowserSignalManager::ViewItemDeleted, [&](zbIBrowserViewItem*) {
        zbsqlite::Manager::DeleteView(host_->Controller(), second);
    });

    Poll();

    EXPECT_EQ(host_->Controller().FindView(zbString("second")), nullptr);
    EXPECT_THAT(TakeLog(), ElementsAre("- bolt", "- nut"));
}

TEST_F(TroubledChanges, TheRowsAreWhatTheyWillBeWhenTheFirstChangeIsTold) {
    Run("DELETE FROM part WHERE id = 1; INSERT INTO part VALUES (7, 'axle', 1)");
    std::vector<std::string> names;
    slot_ = [&](zbsqlite::Change const&) { names = NamesOf(SourceOf("part")); };
    recorder_->Once(&zbBrowserSignalManager::ViewItemDeleted,
                    [&](zbIBrowserViewItem*) { names = NamesOf(SourceOf("part")); });

    Poll();

    EXPECT_THAT(names, ElementsAre("nut", "pin", "axle"));
}

TEST_F(TroubledChanges, ARowIsDirtyOnlyWhileViewsAreTold) {
    auto* const nut = RowNamed("part", "nut");
    Run("UPDATE part SET mass = 0 WHERE id = 2; DELETE FROM part WHERE id = 1");
    std::set<zbIBrowserDataSource*> sources = {&SourceOf("part")};
    std::set<zbIBrowserDataItem*> dirty;
    std::set<zbIBrowserDataItem*> deleted;
    slot_ = [&](zbsqlite::Change const&) {
        host_->Data().GetDirtyItems(sources, dirty);
        host_->Data().GetDeletedItems(sources, deleted);
    };

    Poll();

    EXPECT_THAT(dirty, ElementsAre(nut));
    EXPECT_EQ(deleted.size(), 1U);
    EXPECT_FALSE(nut->IsDirty());
    EXPECT_FALSE(SourceOf("part").IsDirty());
}

TEST_F(TroubledChanges, ManyUpdatesDoNotPileUpInMemory) {
    Run("WITH RECURSIVE n(i) AS (SELECT 10 UNION ALL SELECT i + 1 FROM n WHERE i < 5000)"
        "INSERT INTO part SELECT i, printf('part %.*c', 200, 'x'), i FROM n");
    Poll();
    std::size_t const before = SourceOf("part").MemoryUsed();
    std::size_t const texts = SourceOf("part").TextBytes();
    for (int i = 0; i < 20; ++i) {
        Run("UPDATE part SET mass = mass + 1; DELETE FROM part WHERE id = 11;"
            "INSERT INTO part VALUES (11, printf('part %.*c', 200, 'x'), 11)");
        Poll();
    }

    EXPECT_LT(SourceOf("part").MemoryUsed(), 3 * before);
    EXPECT_EQ(SourceOf("part").TextBytes(), texts);
    EXPECT_EQ(Cell(RowNamed("part", "bolt"), "mass"), "int 25");
    Forget();
}

// Whatever is written

TEST_F(TroubledChanges, AWriterThatDoesNotPauseLeavesItsLastStateInTheView) {
    std::atomic<bool> isDone = false;
    std::thread writing([&] {
        Run("PRAGMA busy_timeout = 10000");
        for (int i = 0; i < 1000; ++i)
            Run("REPLACE INTO part VALUES (" + std::to_string(i % 40) + ", 'p" + std::to_string(i) +
                "', 1); DELETE FROM part WHERE id = " + std::to_string(i * 7 % 40));
        isDone = true;
    });
    while (!isDone)
        Poll();
    writing.join();

    Poll();

    ExpectSameAsSql(host_->Data(), File());
    EXPECT_THAT(Shown("part"), UnorderedElementsAreArray(NamesOf(SourceOf("part"))));
    Forget();
}

namespace {

//! Commits of all kinds against two tables and a view of both.
std::string RandomCommit(std::mt19937& random) {
    auto const number = [&random](unsigned below) { return std::to_string(random() % below); };
    auto const id = number(12);
    switch (random() % 6) {
    case 0:
        return "INSERT OR REPLACE INTO part VALUES (" + id + ", 'p" + number(5) + "', 1);";
    case 1:
        return "DELETE FROM part WHERE id = " + id + ";";
    case 2:
        return "UPDATE part SET mass = " + number(9) + " WHERE id % 3 = " + number(3) + ";";
    case 3:
        return "UPDATE OR REPLACE part SET id = id + 1 WHERE id = " + id + ";";
    case 4:
        return "INSERT OR REPLACE INTO place VALUES ('k" + id + "', 'q" + number(4) + "');";
    default:
        return "DELETE FROM place WHERE k = 'k" + id + "';";
    }
}

} // namespace

class RandomChanges : public FollowedHost, public testing::WithParamInterface<unsigned> {};

TEST_P(RandomChanges, LeaveTheViewWithTheRowsOfTheTables) {
    Open("CREATE TABLE part(id INTEGER PRIMARY KEY, name TEXT, mass);"
         "CREATE TABLE place(k TEXT PRIMARY KEY, name) WITHOUT ROWID;"
         "CREATE VIEW joined AS SELECT part.name, mass, k FROM part JOIN place USING (name)");
    std::vector<std::string> const sources = {"part", "place", "joined"};
    for (auto const& source : sources)
        Show(source);
    std::mt19937 random(GetParam());
    for (int round = 0; round < 60; ++round) {
        for (auto commits = random() % 4; commits > 0; --commits)
            Run(RandomCommit(random));
        Poll();
        ExpectSameAsSql(host_->Data(), folder_ / "test.db");
        for (auto const& source : sources)
            ASSERT_THAT(Shown(source), UnorderedElementsAreArray(NamesOf(SourceOf(source.c_str()))))
                << "round " << round;
    }
    Forget();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomChanges, testing::Range(1U, 9U));

} // namespace zbtest
