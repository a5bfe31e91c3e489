// SPDX-License-Identifier: MIT
//! \file
//! Loading rows: when they are asked for, once, whole or not at all.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <atomic>
#include <optional>
#include <stdexcept>

namespace zbtest {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using zbsqlite::Database;
using zbsqlite::DataCtrl;
using zbsqlite::OpenOptions;
using zbsqlite::Source;

using Items = std::vector<zbIBrowserDataItemSimple*>;

constexpr char const* kThousands =
    "CREATE TABLE t(id INTEGER PRIMARY KEY, a TEXT);"
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000)"
    "INSERT INTO t SELECT i, 'row number ' || i FROM n;"
    "CREATE TABLE small(a); INSERT INTO small VALUES (1)";

class SourceTest : public testing::Test {
protected:
    DataCtrl& Make(std::string_view sql, OpenOptions const& options = {}) {
        file_ = folder_.Make(sql);
        control_.emplace(Database(file_, options));
        return *control_;
    }

    Source& Named(char const* name) { return Find(*control_, name); }

    TempFolder folder_;
    fs::path file_;
    std::optional<DataCtrl> control_;
};

OpenOptions Impatient() {
    OpenOptions options;
    options.busyTimeout = std::chrono::milliseconds(1);
    return options;
}

} // namespace

TEST_F(SourceTest, EndsEachTextWithAZeroByte) {
    Make("CREATE TABLE t(a, b); INSERT INTO t VALUES ('abc', printf('%.*c', 1000, 'x'))");
    zbsqlite::Row const& row = *Named("t").FindRow(ItemsOf(Named("t")).at(0));
    EXPECT_STREQ(row.GetValue(0).bytes.data(), "abc");
    EXPECT_EQ(std::string_view(row.GetValue(1).bytes.data()).size(), 1000U);
}

TEST_F(SourceTest, LoadsNothingBeforeItIsAsked) {
    Make("CREATE TABLE t(a)");
    EXPECT_THAT(Named("t").Rows(), IsEmpty());
    EXPECT_EQ(Named("t").MemoryUsed(), 0U);
    OtherProgram(file_).Run("INSERT INTO t VALUES (8)");

    EXPECT_THAT(RowsOf(Named("t")), ElementsAre("int 8"));
}

TEST_F(SourceTest, LoadsOnceAndKeepsItsRowsWhereTheyAre) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (1), (2)");
    Items const before = ItemsOf(Named("t"));
    OtherProgram(file_).Run("DELETE FROM t; INSERT INTO t VALUES (3), (4), (5)");

    EXPECT_EQ(ItemsOf(Named("t")), before);
    EXPECT_THAT(RowsOf(Named("t")), ElementsAre("int 1", "int 2"));
}

TEST_F(SourceTest, RefusesATableThatIsLockedAndLoadsItLater) {
    Make(kThousands, Impatient());
    {
        OtherProgram writer(file_);
        writer.Run("BEGIN EXCLUSIVE");
        EXPECT_EQ(LoadError(Named("t")).what(),
                  file_.string() +
                      ", table \"t\": another program is writing the database (waited 1 ms)");
    }

    EXPECT_THAT(ItemsOf(Named("t")), SizeIs(20000));
    EXPECT_EQ(Named("t").LastError(), nullptr);
}

TEST_F(SourceTest, KeepsNothingOfATableThatIsDamagedInItsMiddle) {
    file_ = folder_.Make(kThousands);
    std::string bytes = ReadFile(file_);
    bytes.replace(bytes.size() / 2 / 4096 * 4096, 4096, 4096, '\xee');
    WriteFile(file_, bytes);
    control_.emplace(Database(file_));
    EXPECT_THAT(LoadError(Named("t")).What(), HasSubstr("the database is damaged"));
}

TEST_F(SourceTest, ReadsTheSoundTablesOfADamagedFile) {
    file_ =
        folder_.Make("CREATE TABLE sound(a); INSERT INTO sound VALUES (1); CREATE TABLE broken(a);"
                     "INSERT INTO broken VALUES (2)");
    std::string bytes = ReadFile(file_);
    bytes.replace(std::size_t{2} * 4096, 64, 64, '\xee'); // The root page of the second table.
    WriteFile(file_, bytes);
    control_.emplace(Database(file_));
    EXPECT_THAT(LoadError(Named("broken")).What(), HasSubstr("damaged"));
    EXPECT_THAT(RowsOf(Named("sound")), ElementsAre("int 1"));
}

TEST_F(SourceTest, SaysWhyAViewOfAMissingTableHasNoRows) {
    Make("CREATE TABLE gone(a); CREATE VIEW v AS SELECT a FROM gone; DROP TABLE gone");
    EXPECT_EQ(LoadError(Named("v")).What(), "no such table: main.gone");
}

TEST_F(SourceTest, FailsWhenAColumnHasGoneInsteadOfReadingItsNameAsText) {
    Make("CREATE TABLE t(a, b); INSERT INTO t VALUES (1, 2)");
    OtherProgram(file_).Run("ALTER TABLE t DROP COLUMN b");
    EXPECT_THAT(LoadError(Named("t")).What(), HasSubstr("no such column"));
}

TEST_F(SourceTest, ReportsProgressOfALongLoad) {
    Make(kThousands);
    std::vector<std::uint64_t> reports;
    control_->SetProgress([&](Source const& source, std::uint64_t rows) {
        EXPECT_STREQ(source.GetName(), "t");
        reports.push_back(rows);
    });

    EXPECT_THAT(ItemsOf(Named("t")), SizeIs(20000));

    EXPECT_THAT(reports, ElementsAre(4096, 8192, 12288, 16384));
}

TEST_F(SourceTest, StopsWhenItIsToldToWhileItLoads) {
    std::atomic<bool> stop = false;
    OpenOptions options;
    options.stop = &stop;
    Make(kThousands, options);
    control_->SetProgress([&](Source const&, std::uint64_t) { stop = true; });
    EXPECT_TRUE(LoadError(Named("t")).IsInterrupted());
    EXPECT_TRUE(LoadError(Named("small")).IsInterrupted());
    stop = false;
    EXPECT_THAT(RowsOf(Named("small")), ElementsAre("int 1"));
}

TEST_F(SourceTest, StopsAViewThatNeverGivesARow) {
    std::atomic<bool> stop = false;
    OpenOptions options;
    options.stop = &stop;
    Make("CREATE VIEW endless AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
         " SELECT max(i) FROM n",
         options);
    // The first look at the flag comes while the query runs, not before it.
    struct StopSoon {
        static int Set(void* flag, int, char const*, char const*, char const*, char const*) {
            *static_cast<std::atomic<bool>*>(flag) = true;
            return SQLITE_OK;
        }
    };
    sqlite3_set_authorizer(control_->GetDatabase().Handle(), &StopSoon::Set, &stop);
    EXPECT_TRUE(LoadError(Named("endless")).IsInterrupted());
}

TEST_F(SourceTest, PassesOnWhatAProgressReportThrowsAndLoadsLater) {
    Make(kThousands);
    control_->SetProgress([](Source const&, std::uint64_t) { throw std::runtime_error("enough"); });
    Items items;
    EXPECT_THROW(Named("t").GetDataItems(items), std::runtime_error);
    EXPECT_THAT(Named("t").Rows(), IsEmpty());
    control_->SetProgress({});

    EXPECT_THAT(ItemsOf(Named("t")), SizeIs(20000));
}

TEST_F(SourceTest, AnswersFalseWhenItIsAskedFromWithinItsOwnLoad) {
    Make(kThousands);
    int refusals = 0;
    control_->SetProgress([&](Source const&, std::uint64_t) {
        Items items;
        refusals += Named("t").GetDataItems(items) ? 0 : 1;
    });

    EXPECT_THAT(ItemsOf(Named("t")), SizeIs(20000));

    EXPECT_EQ(refusals, 4);
}

TEST_F(SourceTest, ContainsItsOwnRowsAndNothingElse) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (1), (2); CREATE TABLE u(a);"
         "INSERT INTO u VALUES (1)");
    Source& source = Named("t");
    Items const own = ItemsOf(source);
    Items const others = ItemsOf(Named("u"));

    EXPECT_TRUE(source.ContainsDataItem(own[0]));
    EXPECT_TRUE(source.ContainsDataItem(own[1]));
    EXPECT_FALSE(source.ContainsDataItem(others[0]));
    EXPECT_FALSE(source.ContainsDataItem(nullptr));
    EXPECT_EQ(source.IndexOf(*source.FindRow(own[1])), 1U);
}

TEST_F(SourceTest, DoesNotTakeAnAddressWithinARowForARow) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (1), (2)");
    auto const address = reinterpret_cast<std::uintptr_t>(ItemsOf(Named("t"))[0]);
    auto* const within = reinterpret_cast<zbIBrowserDataItemSimple*>(address + sizeof(void*));
    auto* const behind =
        reinterpret_cast<zbIBrowserDataItemSimple*>(address + 2 * sizeof(zbsqlite::Row));
    EXPECT_FALSE(Named("t").ContainsDataItem(within));
    EXPECT_FALSE(Named("t").ContainsDataItem(behind));
}

TEST_F(SourceTest, ContainsNothingBeforeItIsLoaded) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (1); CREATE TABLE u(a);"
         "INSERT INTO u VALUES (1)");
    EXPECT_FALSE(Named("t").ContainsDataItem(ItemsOf(Named("u"))[0]));
}

TEST_F(SourceTest, BelongsToItsControlAndItsRowsBelongToIt) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (1)");
    EXPECT_EQ(Named("t").GetDataCtrl(), &*control_);
    EXPECT_EQ(ItemsOf(Named("t"))[0]->GetDataSource(), &Named("t"));
    EXPECT_FALSE(ItemsOf(Named("t"))[0]->IsDirty());
}

TEST_F(SourceTest, IsOfItsOwnTypeOnly) {
    Make("CREATE TABLE t(a); CREATE TABLE u(a)");
    EXPECT_TRUE(Named("t").IsOfType(&Named("t")));
    EXPECT_FALSE(Named("t").IsOfType(&Named("u")));
    EXPECT_FALSE(Named("t").IsOfType(nullptr));
    EXPECT_NE(Named("t").GetTypeId(), Named("u").GetTypeId());
}

TEST_F(SourceTest, KeepsTheDirtyMarkThatAViewSets) {
    Make("CREATE TABLE t(a)");
    EXPECT_FALSE(Named("t").IsDirty());
    Named("t").ClearDirty(true);
    EXPECT_TRUE(Named("t").IsDirty());
    Named("t").ClearDirty(false);
    EXPECT_FALSE(Named("t").IsDirty());
}

TEST_F(SourceTest, NamesItsKindForPeople) {
    Make("CREATE TABLE t(id INTEGER PRIMARY KEY AUTOINCREMENT); CREATE VIEW v AS SELECT 1;"
         "CREATE VIRTUAL TABLE f USING fts5(a)");
    EXPECT_STREQ(Named("t").GetTypeName(), "table");
    EXPECT_STREQ(Named("v").GetTypeName(), "view");
    EXPECT_STREQ(Named("f").GetTypeName(), "virtual table");
    EXPECT_STREQ(Named("f_data").GetTypeName(), "shadow table");
    EXPECT_STREQ(Named("sqlite_sequence").GetTypeName(), "system table");
    EXPECT_STREQ(Named("t").GetListCaption(), "t");
}

TEST_F(SourceTest, StandsForItselfInTheFilter) {
    Make("CREATE TABLE t(a)");
    std::vector<zbIBrowserDataSourceSimple*> groups;
    Named("t").GetFilterGroups(groups);
    EXPECT_THAT(groups, IsEmpty());
    EXPECT_EQ(Named("t").GetParentSource(), nullptr);
    EXPECT_FALSE(Named("t").AcceptsEmptySelection());
}

TEST_F(SourceTest, FindsAPropertyWithoutRegardToAsciiCase) {
    Make("CREATE TABLE t(Mass, \"Höhe\")");
    ASSERT_NE(Named("t").FindDataProperty("mASS"), nullptr);
    EXPECT_EQ(Named("t").FindDataProperty("mASS")->Index(), 0U);
    EXPECT_EQ(Named("t").FindDataProperty("HÖHE"), nullptr);
    EXPECT_EQ(Named("t").FindDataProperty("id"), nullptr);
    EXPECT_EQ(Named("t").FindDataProperty(nullptr), nullptr);
}

TEST_F(SourceTest, TakesFewBytesARow) {
    Make("CREATE TABLE t(id INTEGER PRIMARY KEY, name TEXT, kind TEXT, mass REAL, stock INT,"
         " price REAL, note TEXT);"
         "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 50000)"
         "INSERT INTO t SELECT i, 'part ' || i, 'bought', i / 7.0, i % 500, i / 3.0, NULL FROM n");
    std::size_t const rows = ItemsOf(Named("t")).size();
    ASSERT_EQ(rows, 50000U);

    std::size_t const overhead = Named("t").MemoryUsed() - Named("t").TextBytes();

    // A row object of 24 bytes, a tag for each of 7 columns, 2 reals, up to 6 bytes of integers,
    // 2 zero bytes, and at most a block of a mebibyte that is not full.
    EXPECT_EQ(sizeof(zbsqlite::Row), 3 * sizeof(void*));
    EXPECT_LE(overhead, rows * (24 + 7 + 16 + 6 + 2) + (1U << 20U));
}

} // namespace zbtest
