// SPDX-License-Identifier: MIT
//! \file
//! A database as a data control.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gmock/gmock.h>

#include <optional>

namespace zbtest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using zbsqlite::Database;
using zbsqlite::DataCtrl;
using zbsqlite::Reference;
using zbsqlite::Source;

class DataCtrlTest : public testing::Test {
protected:
    void Make(std::string_view sql) { control_.emplace(Database(folder_.Make(sql))); }
    Source& Named(char const* name) { return Find(*control_, name); }

    TempFolder folder_;
    std::optional<DataCtrl> control_;
};

} // namespace

TEST_F(DataCtrlTest, IsNamedAfterTheFile) {
    Make("CREATE TABLE t(a)");
    EXPECT_STREQ(control_->GetName(), "test.db");
}

TEST_F(DataCtrlTest, FindsASourceWithoutRegardToAsciiCase) {
    Make("CREATE TABLE Part(a)");
    EXPECT_EQ(control_->FindDataSourceSimple("pART"), control_->Sources().at(0).get());
    EXPECT_EQ(control_->FindDataSourceSimple("parts"), nullptr);
    EXPECT_EQ(control_->FindDataSourceSimple(nullptr), nullptr);
}

TEST_F(DataCtrlTest, HasFlatSourcesOnlyAndNoOperations) {
    Make("CREATE TABLE t(a)");
    EXPECT_EQ(control_->FindDataSourceHierarchical("t"), nullptr);
    EXPECT_EQ(control_->FindDataOperation("rename"), nullptr);
    EXPECT_EQ(control_->FindCollectorType("t"), nullptr);
}

TEST_F(DataCtrlTest, HasAReferenceForEachForeignKeyWithAParent) {
    Make("CREATE TABLE node(id INTEGER PRIMARY KEY, up REFERENCES NODE, kind REFERENCES kind,"
         " lost REFERENCES nowhere); CREATE TABLE kind(id INTEGER PRIMARY KEY)");
    ASSERT_THAT(control_->References(), SizeIs(2));
    Reference& up = control_->References()[0];
    EXPECT_EQ(&up.Parent(), &Named("node"));
    EXPECT_EQ(&up.Child(), &Named("node"));
    EXPECT_THAT(up.Declaration().columns, ElementsAre("up"));
    EXPECT_THAT(up.Declaration().parentColumns, ElementsAre("id"));
    Reference& kind = control_->References()[1];
    EXPECT_EQ(kind.GetParentTypeId(), Named("kind").GetTypeId());
    EXPECT_EQ(kind.GetChildTypeId(), Named("node").GetTypeId());
    EXPECT_EQ(kind.GetDataCtrl(), &*control_);
    EXPECT_FALSE(kind.IsDirty());
}

TEST_F(DataCtrlTest, GivesAllRowsOfASourceThatIsAskedForWithoutALink) {
    Make("CREATE TABLE t(id INTEGER PRIMARY KEY, up REFERENCES t); INSERT INTO t VALUES (1, NULL),"
         " (2, 1)");
    std::vector<zbIBrowserDataItem*> items;
    control_->GetItems(items, nullptr, &Named("t"), nullptr, false);
    EXPECT_THAT(items, ElementsAre(ItemsOf(Named("t"))[0], ItemsOf(Named("t"))[1]));
    items.clear();
    control_->GetItems(items, &control_->References()[0], &Named("t"), nullptr, false);
    EXPECT_THAT(items, IsEmpty());
}

TEST_F(DataCtrlTest, GivesNoRowsOfASourceThatIsNotItsOwn) {
    Make("CREATE TABLE t(a)");
    TempFolder const folder;
    DataCtrl other{Database(folder.Make("CREATE TABLE t(a); INSERT INTO t VALUES (1)"))};
    std::vector<zbIBrowserDataItem*> items;
    control_->GetItems(items, nullptr, &Find(other, "t"), nullptr, false);
    EXPECT_THAT(items, IsEmpty());
}

TEST_F(DataCtrlTest, NeverReportsAChange) {
    Make("CREATE TABLE t(a); INSERT INTO t VALUES (1)");
    ItemsOf(Named("t"));
    std::set<zbIBrowserDataSource*> sources{&Named("t")};
    std::set<zbIBrowserDataItem*> items;
    control_->GetDirtyItems(sources, items);
    control_->GetDeletedItems(sources, items);
    EXPECT_THAT(items, IsEmpty());
}

TEST_F(DataCtrlTest, KeepsTheLastErrorOfWhicheverSource) {
    Make("CREATE VIEW v AS SELECT * FROM gone; CREATE TABLE t(a)");
    EXPECT_EQ(control_->LastError(), nullptr);
    LoadError(Named("v"));
    EXPECT_THAT(ItemsOf(Named("t")), IsEmpty());
    ASSERT_NE(control_->LastError(), nullptr);
    EXPECT_EQ(control_->LastError()->Where(), control_->GetDatabase().File() + ", view \"v\"");
}

} // namespace zbtest
