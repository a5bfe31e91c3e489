// SPDX-License-Identifier: MIT
#include "text/ViewReader.h"

#include "EndToEnd.h"
#include "zbbrowse/RowValues.h"

#include <zbBrowserView/sqlite/Host.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <memory>

namespace {

using namespace zbtest;

class ViewReaderTest : public EndToEnd {
protected:
    ViewReaderTest() {
        Sql("a.db", "create table part(name text, n int);"
                    "insert into part values ('bolt',1),('nut',2),('pin',3);"
                    "create table unit(name text); insert into unit values ('mm');"
                    "create table gone(a); create view broken as select * from gone;"
                    "drop table gone;");
        zbsqlite::HostOptions options;
        options.viewName = "shop";
        host_ = std::make_unique<zbsqlite::Host>(Path("a.db"), options);
    }

    zbIBrowserViewItemFreeFolder* AddFolder(zbIBrowserViewItemFreeFolder* parent,
                                            char const* name) {
        return host_->CreateFolder(parent, name);
    }

    void AddList(zbIBrowserViewItemFreeFolder* folder, char const* name) {
        host_->CreateList(folder, *host_->Data().FindDataSourceSimple(name));
    }

    zbtext::Folder Read(std::size_t rowLimit = 100) const {
        static zbbrowse::RowValues const values;
        return zbtext::ViewReader(host_->View(), values, rowLimit).ReadView();
    }

    std::unique_ptr<zbsqlite::Host> host_;
};

TEST_F(ViewReaderTest, TheRootHasTheNameOfTheView) {
    EXPECT_EQ(Read().name, "shop");
    EXPECT_TRUE(Read().folders.empty());
}

TEST_F(ViewReaderTest, FoldersStandInTheOrderInWhichTheyWereMade) {
    auto* const outer = AddFolder(host_->RootFolder(), "z");
    AddFolder(host_->RootFolder(), "a");
    AddFolder(outer, "inner");

    auto const root = Read();

    ASSERT_EQ(root.folders.size(), 2U);
    EXPECT_EQ(root.folders[0].name, "z");
    EXPECT_EQ(root.folders[0].folders.at(0).name, "inner");
    EXPECT_EQ(root.folders[1].name, "a");
}

TEST_F(ViewReaderTest, EachListHasItsOwnRowsOnly) {
    auto* const folder = AddFolder(host_->RootFolder(), "f");
    AddList(folder, "part");
    AddList(folder, "unit");

    auto const root = Read();

    auto const& lists = root.folders.at(0).lists;
    ASSERT_EQ(lists.size(), 2U);
    EXPECT_EQ(lists[0]->GetName(), "part");
    EXPECT_EQ(lists[0]->GetTotal(), 3U);
    EXPECT_EQ(lists[0]->GetRowName(2).bytes, "pin");
    EXPECT_EQ(lists[0]->GetValue(2, 1).integer, 3);
    EXPECT_EQ(lists[1]->GetTotal(), 1U);
    EXPECT_EQ(lists[1]->GetValue(0, 0).bytes, "mm");
}

TEST_F(ViewReaderTest, TheLimitBoundsTheRowsButNotTheCount) {
    AddList(AddFolder(host_->RootFolder(), "f"), "part");

    auto const root = Read(2);

    auto const& list = *root.folders.at(0).lists.at(0);
    EXPECT_EQ(list.GetRowCount(), 2U);
    EXPECT_EQ(list.GetTotal(), 3U);
}

TEST_F(ViewReaderTest, FoldersBesideAListAreNotCountedAsRows) {
    auto* const folder = AddFolder(host_->RootFolder(), "f");
    AddFolder(folder, "inner");
    AddList(folder, "part");
    for (bool const ascending : {true, false}) {
        host_->View().SetAscendingOrder(host_->View().GetDefaultColumn(), ascending);

        auto const root = Read(2);

        auto const& list = *root.folders.at(0).lists.at(0);
        EXPECT_EQ(list.GetTotal(), 3U);
        ASSERT_EQ(list.GetRowCount(), 2U);
        EXPECT_EQ(list.GetRowName(0).bytes, ascending ? "bolt" : "pin");
    }
}

TEST_F(ViewReaderTest, AListMayStandInSeveralFolders) {
    AddList(AddFolder(host_->RootFolder(), "f"), "part");
    AddList(AddFolder(host_->RootFolder(), "g"), "part");

    auto const root = Read();

    EXPECT_EQ(root.folders.at(0).lists.at(0)->GetTotal(), 3U);
    EXPECT_EQ(root.folders.at(1).lists.at(0)->GetTotal(), 3U);
}

TEST_F(ViewReaderTest, ARowThatTheViewHasNoMoreIsNotRead) {
    auto* const folder = AddFolder(host_->RootFolder(), "f");
    AddList(folder, "part");
    std::vector<zbIBrowserViewItem*> items;
    host_->View().GetChildren(items, folder);
    ASSERT_EQ(items.size(), 3U);

    // The source has the row still: who read around the view would find it.
    host_->View().OnDataItemDeleted(items[1]->GetDataItemSimple());

    auto const root = Read();
    auto const& list = *root.folders.at(0).lists.at(0);
    EXPECT_EQ(list.GetTotal(), 2U);
    EXPECT_EQ(list.GetRowName(1).bytes, "pin");
}

TEST_F(ViewReaderTest, AListThatCannotBeReadSaysWhy) {
    AddList(AddFolder(host_->RootFolder(), "f"), "broken");

    auto const root = Read();

    auto const& list = *root.folders.at(0).lists.at(0);
    EXPECT_EQ(list.GetTotal(), 0U);
    EXPECT_NE(list.GetFault().find("gone"), std::string::npos) << list.GetFault();
}

} // namespace
