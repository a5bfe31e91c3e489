// SPDX-License-Identifier: MIT
//! \file
//! The ready-made host, through the whole library.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/Host.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>

namespace zbtest {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using zbsqlite::Host;
using zbsqlite::HostOptions;

constexpr char const* kParts = "CREATE TABLE part(name TEXT, mass REAL);"
                               "INSERT INTO part VALUES ('bolt', 0.1), ('nut', 0.05);"
                               "CREATE TABLE empty(a); CREATE VIEW broken AS SELECT * FROM gone";

class HostTest : public testing::Test {
protected:
    TempFolder folder_;
    fs::path file_ = folder_.Make(kParts);
    Host host_{file_};
};

//! The names of the rows and folders below an item, as the view shows them.
std::vector<std::string> Children(Host& host, zbIBrowserViewItem const* parent) {
    std::vector<zbIBrowserViewItem*> items;
    host.View().GetChildren(items, parent);
    std::vector<std::string> names;
    for (zbIBrowserViewItem* const item : items) {
        zbString name("(no data)");
        if (zbIBrowserDataItemSimple* const row = item->GetDataItemSimple())
            row->GetProperty("name", name);
        names.emplace_back(std::string_view(name));
    }
    return names;
}

} // namespace

TEST_F(HostTest, MakesAViewOfTheGivenName) {
    HostOptions options;
    options.viewName = "workshop";
    Host const host(file_, options);
    EXPECT_TRUE(host.View().GetName() == "workshop");
    EXPECT_TRUE(host_.View().GetName() == "database");
}

TEST_F(HostTest, ConnectsEveryTableAndView) {
    std::vector<zbIBrowserDataSourceSimple*> sources;
    EXPECT_TRUE(host_.View().GetDataSourceSimpleList(sources));
    std::vector<std::string> names;
    names.reserve(sources.size());
    for (auto* const source : sources)
        names.emplace_back(source->GetName());
    EXPECT_THAT(names, ElementsAre("part", "empty", "broken"));
    EXPECT_EQ(host_.View().GetDataCtrl(), &host_.Data());
}

TEST_F(HostTest, ShowsTheRowsOfATableInAFolder) {
    auto* const folder = host_.CreateFolder(host_.RootFolder(), "Parts");
    ASSERT_NE(folder, nullptr);
    int created = 0;
    auto const connection = host_.GetManager().GetSignalManager()->ViewItemCreated.Connect(
        [&](zbIBrowserViewItem*) { ++created; });

    EXPECT_TRUE(host_.CreateList(folder, Find(host_.Data(), "part")));

    EXPECT_THAT(Children(host_, folder), ElementsAre("bolt", "nut"));
    EXPECT_EQ(created, 2);
}

TEST_F(HostTest, FindsAFolderThatIsThereAlready) {
    auto* const folder = host_.CreateFolder(host_.RootFolder(), "Parts");
    EXPECT_EQ(host_.CreateFolder(host_.RootFolder(), "Parts"), folder);
    auto* const inner = host_.CreateFolder(folder, "Small");
    EXPECT_NE(inner, nullptr);
    EXPECT_EQ(folder->FindChildFreeFolder("Small"), inner);
    EXPECT_EQ(host_.CreateFolder(nullptr, "Parts"), nullptr);
}

TEST_F(HostTest, ShowsOneListInSeveralFolders) {
    auto* const one = host_.CreateFolder(host_.RootFolder(), "One");
    auto* const two = host_.CreateFolder(host_.RootFolder(), "Two");
    EXPECT_TRUE(host_.CreateList(one, Find(host_.Data(), "part")));
    EXPECT_TRUE(host_.CreateList(two, Find(host_.Data(), "part")));
    EXPECT_THAT(Children(host_, one), ElementsAre("bolt", "nut"));
    EXPECT_THAT(Children(host_, two), ElementsAre("bolt", "nut"));
}

TEST_F(HostTest, SaysWhyAListCannotBeShown) {
    auto* const folder = host_.CreateFolder(host_.RootFolder(), "All");
    EXPECT_FALSE(host_.CreateList(folder, Find(host_.Data(), "broken")));
    EXPECT_EQ(Find(host_.Data(), "broken").LastError()->What(), "no such table: main.gone");
    EXPECT_THAT(Children(host_, folder), IsEmpty());
}

TEST_F(HostTest, ShowsAnEmptyTable) {
    auto* const folder = host_.CreateFolder(host_.RootFolder(), "All");
    EXPECT_TRUE(host_.CreateList(folder, Find(host_.Data(), "empty")));
    EXPECT_THAT(Children(host_, folder), IsEmpty());
}

TEST_F(HostTest, RefusesWhatIsNoDatabase) {
    EXPECT_THROW(Host(folder_ / "nowhere.db"), zbsqlite::Error);
}

TEST_F(HostTest, AnswersScriptsWithNothing) {
    zbString result("before");
    host_.GetManager().EvaluateScript("1 + 1", result);
    EXPECT_TRUE(result.empty());
}

} // namespace zbtest
