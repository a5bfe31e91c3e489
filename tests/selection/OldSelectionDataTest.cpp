// SPDX-License-Identifier: MIT
//! \file
//! The data behind the selection of an old view.
#include "OldSelectionFixture.h"
#include "selection/zbBrowserSelectionManager.h"
#include "support/ItemDoubles.h"
#include "view/OldViewContext.h"

#include <string>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The data behind the selection

TEST_F(OldSelection, FlatItemsAreGivenInAllForms) {
    Show(a, part);
    Show(a, tool);
    Select({Row(a, "bolt"), Row(a, "saw")});
    std::vector<zbIBrowserDataItemSimple*> list;
    std::set<zbIBrowserDataItemSimple*> set;

    EXPECT_TRUE(manager.GetSelectedDataItems(list, false));
    EXPECT_TRUE(manager.GetSelectedDataItems(set, false));
    EXPECT_THAT(list, testing::UnorderedElementsAre(&part["bolt"], &tool["saw"]));
    EXPECT_THAT(set, testing::UnorderedElementsAre(&part["bolt"], &tool["saw"]));

    EXPECT_TRUE(manager.GetSelectedDataItemsOfSource(&part, list, false));
    EXPECT_TRUE(manager.GetSelectedDataItemsOfSource(&part, set, false));
    EXPECT_THAT(list, ElementsAre(&part["bolt"]));
    EXPECT_THAT(set, ElementsAre(&part["bolt"]));
}

TEST_F(OldSelection, TheItemsOfASourceAreToldApartWithoutAskingThem) {
    Show(b, part);
    Show(c, part);
    Show(c, tool);
    Select({&b, Row(b, "nut")});
    std::vector<zbIBrowserDataItemSimple*> items;
    host.calls.ForgetCounts();

    EXPECT_TRUE(manager.GetSelectedDataItemsOfSource(&tool, items, true));
    EXPECT_THAT(items, ElementsAre(&tool["saw"]));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(&tool, items, false));

    EXPECT_EQ(host.calls.Count("GetDataSource"), 0U);
}

TEST_F(OldSelection, NullStandsForTheItemsWithoutASource) {
    part["nut"].source = nullptr;
    Show(a, part);
    Select({&a});
    std::vector<zbIBrowserDataItemSimple*> items;

    EXPECT_TRUE(manager.GetSelectedDataItemsOfSource(
        static_cast<zbIBrowserDataSourceSimple*>(nullptr), items, true));

    EXPECT_THAT(items, ElementsAre(&part["nut"]));
}

TEST_F(OldSelection, FlatItemsAreFalseAndTreeItemsTrueWhenThereAreNone) {
    Select({&a});
    std::vector<zbIBrowserDataItemSimple*> simple{&part["bolt"]};
    std::set<zbIBrowserDataItemSimple*> simpleSet{&part["bolt"]};
    std::vector<zbIBrowserDataItemHierarchical*> trees{nullptr};
    std::set<zbIBrowserDataItemHierarchical*> treeSet{nullptr};

    EXPECT_FALSE(manager.GetSelectedDataItems(simple, true));
    EXPECT_FALSE(manager.GetSelectedDataItems(simpleSet, true));
    EXPECT_TRUE(manager.GetSelectedDataItems(trees, true));
    EXPECT_TRUE(manager.GetSelectedDataItems(treeSet, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(&part, simple, true));
    EXPECT_FALSE(manager.GetSelectedDataItemsOfSource(&part, simpleSet, true));
    auto& tree = host.Tree("assembly", part);
    EXPECT_TRUE(manager.GetSelectedDataItemsOfSource(&tree, trees, true));
    EXPECT_TRUE(manager.GetSelectedDataItemsOfSource(&tree, treeSet, true));

    EXPECT_THAT(simple, IsEmpty());
    EXPECT_THAT(simpleSet, IsEmpty());
    EXPECT_THAT(trees, IsEmpty());
    EXPECT_THAT(treeSet, IsEmpty());
}

TEST_F(OldSelection, AFolderStandsForItsRowsAndRecursivelyForThoseBelow) {
    Show(b, tool);
    Show(c, part);
    Select({&b});
    std::vector<zbIBrowserDataItemSimple*> items;

    manager.GetSelectedDataItems(items, false);
    EXPECT_THAT(items, ElementsAre(&tool["saw"]));
    manager.GetSelectedDataItems(items, true);
    EXPECT_THAT(items, ElementsAre(&tool["saw"], &part["bolt"], &part["nut"], &part["pin"]));
}

TEST_F(OldSelection, ARowThatIsSelectedWithItsFolderCountsTwiceInAListAndOnceInASet) {
    Show(a, tool);
    Select({&a, Row(a, "saw")});
    std::vector<zbIBrowserDataItemSimple*> list;
    std::set<zbIBrowserDataItemSimple*> set;

    manager.GetSelectedDataItems(list, true);
    manager.GetSelectedDataItems(set, true);

    EXPECT_THAT(list, ElementsAre(&tool["saw"], &tool["saw"]));
    EXPECT_THAT(set, ElementsAre(&tool["saw"]));
}

TEST_F(OldSelection, SortedIntoPlacesFlatRowsStandAloneAndFoldersAreLeftOut) {
    Show(a, part);
    Select({&a, Row(a, "nut")});
    zbBrowserDataItemMap bySource{{&part, {}}};
    std::vector<zbIBrowserDataItemSimple*> simple;
    std::vector<zbIBrowserDataItemHierarchical*> trees{nullptr};

    EXPECT_TRUE(manager.GetSelectedDataItems(bySource, simple, trees, true));

    EXPECT_THAT(bySource, IsEmpty());
    EXPECT_THAT(simple, ElementsAre(&part["nut"]));
    EXPECT_THAT(trees, IsEmpty());
}

TEST_F(OldSelection, ARowStandsForItsSourceAndAFolderForItsOwnLists) {
    Show(b, tool);
    Show(c, part);
    std::set<zbIBrowserDataSourceSimple*> sources{nullptr};
    EXPECT_FALSE(manager.GetSelectedDataSources(sources, true));
    EXPECT_THAT(sources, IsEmpty());

    Select({&b});
    EXPECT_TRUE(manager.GetSelectedDataSources(sources, true));
    EXPECT_THAT(sources, ElementsAre(&tool));

    Select({Row(c, "bolt")});
    EXPECT_TRUE(manager.GetSelectedDataSources(sources, true));
    EXPECT_THAT(sources, testing::UnorderedElementsAre(&tool, &part));
}

TEST_F(OldSelection, AFolderStandsForItsTrees) {
    RecordingTree& tree = host.Tree("assembly", part);
    view.DataSourceConnect(&tree);
    View().CreateTree(&a, &tree);
    Show(b, tool);
    signals.Discard();
    std::set<zbIBrowserDataSourceHierarchical*> trees;

    Select({Row(b, "saw")});
    EXPECT_FALSE(manager.GetSelectedDataSourcesHierarchical(trees, true));
    Select({&a});
    EXPECT_TRUE(manager.GetSelectedDataSourcesHierarchical(trees, true));

    EXPECT_THAT(trees, ElementsAre(&tree));
}

TEST_F(OldSelection, TheDataOfALargeSelectionIsNotGatheredForNobody) {
    constexpr int count = 50'000;
    RecordingHost quiet;
    auto& source = quiet.Source("part");
    for (int i = 0; i < count; ++i)
        source.Add(std::to_string(i));
    auto& itsView = quiet.OldView("quiet");
    itsView.DataSourceConnect(&source);
    itsView.CreateList(itsView.GetRootFreeFolder(), &source, false);
    Items rows;
    itsView.GetChildren(rows, itsView.GetRootFreeFolder());

    // With a look at all selected rows in each step it would take minutes.
    for (auto* const row : rows)
        itsView.GetSelectionManager()->UpdateSelection({row}, true, false);

    Items selected;
    itsView.GetSelectionManager()->GetSelectedViewItems(selected);
    EXPECT_EQ(selected.size(), rows.size());
    EXPECT_EQ(rows.size(), std::size_t{count});
}

// Rows that this view does not make stand in for those of trees and for groups.

class StandIn final : public ItemDouble {
public:
    using ItemDouble::ItemDouble;
    zbIBrowserDataItemSimple* flat = nullptr;
    zbIBrowserDataItemHierarchical* ofTree = nullptr;
    bool isContainer = true;
    bool isGroup = false;
    [[nodiscard]] zbIBrowserDataItemSimple* GetDataItemSimple() const override { return flat; }
    [[nodiscard]] zbIBrowserDataItemHierarchical* GetDataItemHierarchical() const override {
        return ofTree;
    }
    [[nodiscard]] bool IsDataContainer() const override { return isContainer; }
    [[nodiscard]] bool IsDataLeaf() const override { return true; }
    [[nodiscard]] bool IsDependentFolder() const override { return isGroup; }
};

//! Takes each item that says that it is one of the view.
class TrustingContext final : public zbbrowser::detail::OldViewContext {
public:
    using OldViewContext::OldViewContext;
    [[nodiscard]] bool Owns(zbIBrowserViewItem const* item) const override {
        return item != nullptr && item->GetView() == &OldView();
    }
};

class OldSelectionStandIns : public OldSelection {
private:
    TrustingContext context_{View(), &host.Controller()};

protected:
    zbBrowserSelectionManager trusting{context_};
    RecordingTree& tree = host.Tree("assembly", part);
    StandIn row{&view};
};

TEST_F(OldSelectionStandIns, ADropOnARowOfATreeNotesItsTreeItemAndTreeAndNoFlatItem) {
    row.ofTree = &tree.Add(part["bolt"], nullptr);
    row.flat = &part["bolt"];

    trusting.SetDropItem(&row);

    EXPECT_EQ(trusting.GetDropDataItemHierarchical(), row.ofTree);
    EXPECT_EQ(trusting.GetDropDataSource(), &tree);
    EXPECT_EQ(trusting.GetDropDataItemSimple(), nullptr);
    EXPECT_FALSE(trusting.IsDropOnFreeFolder());
}

TEST_F(OldSelectionStandIns, ADropOnALeafWithATreeItemNotesTheFlatItemAlone) {
    row.isContainer = false;
    row.ofTree = &tree.Add(part["bolt"], nullptr);
    row.flat = &part["bolt"];

    trusting.SetDropItem(&row);

    EXPECT_EQ(trusting.GetDropDataItemHierarchical(), nullptr);
    EXPECT_EQ(trusting.GetDropDataSource(), nullptr);
    EXPECT_EQ(trusting.GetDropDataItemSimple(), &part["bolt"]);
}

TEST_F(OldSelectionStandIns, ADropOnNothingForgetsTheTreeItemAndKeepsTheFlatOne) {
    StandIn leaf(&view);
    leaf.isContainer = false;
    leaf.flat = &part["nut"];
    trusting.SetDropItem(&leaf);
    row.ofTree = &tree.Add(part["bolt"], nullptr);
    trusting.SetDropItem(&row);

    trusting.SetDropItem(nullptr);

    EXPECT_EQ(trusting.GetDropDataItemHierarchical(), nullptr);
    EXPECT_EQ(trusting.GetDropDataSource(), nullptr);
    EXPECT_EQ(trusting.GetDropDataItemSimple(), &part["nut"]);
}

TEST_F(OldSelectionStandIns, ARowOfATreeThatGoesIsNoDropItemAnyMore) {
    row.ofTree = &tree.Add(part["bolt"], nullptr);
    trusting.SetDropItem(&row);

    trusting.Forget(row);

    EXPECT_EQ(trusting.GetDropDataItemHierarchical(), nullptr);
    EXPECT_EQ(trusting.GetDropDataSource(), nullptr);
}

TEST_F(OldSelectionStandIns, ARowOfATreeThatGoesWhileItsTreeIsAskedForLeavesNoDropBehind) {
    row.ofTree = &tree.Add(part["bolt"], nullptr);
    host.calls.On("GetDataSource", "bolt", [this] { trusting.Forget(row); });

    trusting.SetDropItem(&row);

    EXPECT_EQ(trusting.GetDropDataItemHierarchical(), nullptr);
    EXPECT_EQ(trusting.GetDropDataSource(), nullptr);
}

TEST_F(OldSelectionStandIns, ARowOfATreeStandsForItsTreeAndForItsFlatSource) {
    row.ofTree = &tree.Add(part["bolt"], nullptr);
    row.flat = &part["bolt"];
    trusting.UpdateSelection({&row}, true, false);
    std::set<zbIBrowserDataSourceHierarchical*> trees;
    std::set<zbIBrowserDataSourceSimple*> sources;

    EXPECT_TRUE(trusting.GetSelectedDataSourcesHierarchical(trees, false));
    EXPECT_TRUE(trusting.GetSelectedDataSources(sources, false));

    EXPECT_THAT(trees, ElementsAre(&tree));
    EXPECT_THAT(sources, ElementsAre(&part));
    signals.Discard();
}

TEST_F(OldSelectionStandIns, SelectedGroupsAreGivenAndOtherItemsAreNot) {
    StandIn group(&view);
    group.isGroup = true;
    trusting.UpdateSelection({&row, &group}, true, false);
    Items groups{nullptr};

    EXPECT_TRUE(trusting.GetSelectedDependentFolders(groups));

    EXPECT_THAT(groups, ElementsAre(&group));
    signals.Discard();
}

} // namespace
} // namespace zbtest
