// SPDX-License-Identifier: MIT
//! \file
//! What only the selection manager of an old view does.
#include "OldSelectionFixture.h"

#include <zbBrowserView/zbIBrowserViewProperty.h>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A change

TEST_F(OldSelection, ASelectedRowIsToldToBothSidesInOrder) {
    Show(a, part);

    manager.UpdateSelection({Row(a, "bolt")}, true, false);

    EXPECT_THAT(signals.take(),
                ElementsAre("DataItemsSelectionChanging data [bolt] [] true",
                            "ViewItemsSelected [bolt]", "DataItemsGrouped data {} [bolt] []",
                            "DataItemsSelectionSummary data [bolt] [] selection"));
}

TEST_F(OldSelection, TheDataSideHearsBeforeTheSelectionChanges) {
    Show(a, part);
    bool wasSelected = true;
    signals.Once(&zbBrowserDataSignalManager::DataItemsSelectionChanging,
                 [&](auto&&...) { wasSelected = manager.IsViewItemSelected(Row(a, "bolt")); });

    manager.UpdateSelection({Row(a, "bolt")}, true, false);

    EXPECT_FALSE(wasSelected);
    signals.Discard();
}

TEST_F(OldSelection, ADeselectedRowIsToldWithWhatIsLeft) {
    Show(a, part);
    Select({Row(a, "bolt"), Row(a, "nut")});

    manager.UpdateSelection({Row(a, "bolt")}, false, false);

    EXPECT_THAT(signals.take(),
                ElementsAre("DataItemsSelectionChanging data [bolt] [] false",
                            "ViewItemsDeselected [bolt]", "DataItemsGrouped data {} [nut] []",
                            "DataItemsSelectionSummary data [nut] [] selection"));
}

TEST_F(OldSelection, SelectingTheSameAgainIsToldWithoutFinishAndWithoutTheDataSide) {
    Show(a, part);
    Select({Row(a, "bolt")});
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);

    manager.UpdateSelection({Row(a, "bolt")}, true, false);

    EXPECT_THAT(notifier.take(), ElementsAre("selected [bolt]"));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected [bolt]"));
}

TEST_F(OldSelection, ACallWithoutADifferenceSetsTheSyncFlag) {
    manager.SetSyncFlag(false);

    manager.UpdateSelection({&a}, false, false);

    EXPECT_TRUE(manager.GetSyncFlag());
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsDeselected [a]"));
}

TEST_F(OldSelection, ClearingAloneTellsTheDataSideThatTheSelectionChanged) {
    Show(a, part);
    Select({Row(a, "bolt")});

    manager.UpdateSelection({}, false, true);

    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view",
                                            "DataItemsSelectionChanging data [bolt] [] false",
                                            "SelectionManagerChanged data selection"));
}

TEST_F(OldSelection, ClearAndSelectTellsOfBothAndNotThatTheManagerChanged) {
    Show(a, part);
    Select({Row(a, "bolt")});

    manager.UpdateSelection({Row(a, "nut")}, true, true);

    EXPECT_THAT(
        signals.take(),
        ElementsAre("SelectionClearing view", "DataItemsSelectionChanging data [bolt] [] false",
                    "DataItemsSelectionChanging data [nut] [] true", "ViewItemsSelected [nut]",
                    "DataItemsGrouped data {} [nut] []",
                    "DataItemsSelectionSummary data [nut] [] selection"));
}

TEST_F(OldSelection, ASelectedFolderStandsForAllRowsBelowInTheChangeAndForNoneInTheSummary) {
    Show(b, tool);
    Show(c, part);

    manager.UpdateSelection({&b}, true, false);

    EXPECT_THAT(signals.take(),
                ElementsAre("DataItemsSelectionChanging data [saw bolt nut pin] [] true",
                            "ViewItemsSelected [b]", "DataItemsGrouped data {} [] []",
                            "DataItemsSelectionSummary data [] [] selection"));
}

TEST_F(OldSelection, AFolderWithoutDataDoesNotChangeDataItems) {
    manager.UpdateSelection({&a}, true, false);

    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemsSelected [a]", "DataItemsGrouped data {} [] []",
                            "DataItemsSelectionSummary data [] [] selection"));
}

TEST_F(OldSelection, WithoutADataControlNothingIsGroupedAndTheOthersAreToldWithNull) {
    view.SetDataCtrl(nullptr);
    Show(a, part);

    manager.UpdateSelection({Row(a, "bolt")}, true, false);

    EXPECT_THAT(signals.take(),
                ElementsAre("DataItemsSelectionChanging null [bolt] [] true",
                            "ViewItemsSelected [bolt]",
                            "DataItemsSelectionSummary null [bolt] [] selection"));
}

TEST_F(OldSelection, ASlotThatEmptiesTheListsOfTheGroupsDoesNotReachTheSummary) {
    Show(a, part);
    signals.Once(&zbBrowserDataSignalManager::DataItemsGrouped,
                 [](auto*, auto&, auto& simple, auto&) { simple.clear(); });

    manager.UpdateSelection({Row(a, "bolt")}, true, false);

    EXPECT_EQ(signals.take().back(), "DataItemsSelectionSummary data [bolt] [] selection");
}

TEST_F(OldSelection, ANotifierThatClearsTheSyncFlagHoldsOneSignalBack) {
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);
    notifier.onChanged = [&] { manager.SetSyncFlag(false); };
    signals.Only({"ViewItemsSelected"});

    manager.UpdateSelection({&a}, true, false);
    EXPECT_TRUE(manager.GetSyncFlag());
    EXPECT_THAT(signals.take(), IsEmpty());

    notifier.onChanged = [] {};
    manager.UpdateSelection({&b}, true, false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected [b]"));
}

TEST_F(OldSelection, TheEndOfAChangeIsToldTwice) {
    view.OnSelectionChangeFinished();

    EXPECT_THAT(signals.take(), ElementsAre("SelectionChangeFinished data",
                                            "SelectionManagerChanged data selection"));
}

TEST_F(OldSelection, TheFirstOfTwoSelectedItemsIsEdited) {
    Select({&a, &b});

    EXPECT_TRUE(view.EditSelectedDataItem("rename"));

    auto const* const first = std::less<>()(&a, &b) ? "a" : "b";
    EXPECT_THAT(signals.take(), ElementsAre(std::string("EditDataItem \"rename\" ") + first));
}

// Answers

TEST_F(OldSelection, WhatOnlyNewViewsOfferIsFalseOrNullAndLeavesTheOutputsAlone) {
    Select({&a});
    manager.SetDropItem(&a);
    Items items{nullptr};
    std::set<zbIBrowserDataSource*> sources{nullptr};
    zbString text = "untouched";
    auto* const property = view.FindViewProperty("default_name_prop");

    EXPECT_FALSE(manager.GetChangedViewItems(items));
    EXPECT_FALSE(manager.GetSelectedDataSources(sources, true));
    EXPECT_FALSE(manager.GetSelectedPropertyText(property, text));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(&part, property, text));
    EXPECT_EQ(manager.GetDropItem(), nullptr);
    EXPECT_FALSE(manager.GetLastSelect());

    EXPECT_EQ(items.size() + sources.size(), 2U);
    EXPECT_EQ(text, "untouched");
}

TEST_F(OldSelection, TheViewNameIsGiven) {
    zbString name;

    EXPECT_TRUE(manager.GetViewName(name));
    EXPECT_EQ(name, "view");
}

TEST_F(OldSelection, TheManagerIsTheSameByBothWays) {
    EXPECT_EQ(static_cast<void*>(View().GetSelectionManagerPtr()),
              static_cast<void*>(View().GetSelectionManager()));
}

TEST_F(OldSelection, AmongFoldersAndRowsThereAreNoGroups) {
    Show(a, part);
    Select({&a, Row(a, "bolt")});
    Items groups{nullptr};

    EXPECT_TRUE(manager.GetSelectedDependentFolders(groups));
    EXPECT_THAT(groups, IsEmpty());
}

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

// Values

class OldSelectionText : public OldSelection {
protected:
    OldSelectionText() {
        part["bolt"].Set("size", "M6");
        part["nut"].Set("size", "left handed");
        part["pin"].Set("size", "");
        Show(a, part);
        Show(a, tool);
        view.CreateViewProperty("size");
        Select({&a});
    }
    [[nodiscard]] zbIBrowserViewProperty* Property() { return view.FindViewProperty("size"); }
    [[nodiscard]] std::string Text(bool list) {
        zbString text = "before";
        auto const answer = manager.GetSelectedPropertyTextOfSource(
            static_cast<zbIBrowserDataSourceSimple*>(&part), Property(), Property(), text, list);
        return std::string(answer ? "true " : "false ") + text.c_str();
    }
};

TEST_F(OldSelectionText, TheValuesOfASourceStandWithABlankBetween) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));

    EXPECT_EQ(Text(false), "true M6 left handed");
}

TEST_F(OldSelectionText, InAListAValueWithABlankStandsInBraces) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));

    EXPECT_EQ(Text(true), "true M6 {left handed}");
}

TEST_F(OldSelectionText, WithoutADataPropertyForTheSourceTheAnswerIsFalseAtOnce) {
    View().CreateVPConnect(Property(), &tool, &tool.Property("size"));

    EXPECT_EQ(Text(false), "false before");
}

TEST_F(OldSelectionText, WithoutSelectedItemsThereIsNoText) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));
    manager.ClearAll();

    EXPECT_EQ(Text(false), "false ");
}

TEST_F(OldSelectionText, NullIsNoProperty) {
    zbString text = "before";

    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(
        static_cast<zbIBrowserDataSourceSimple*>(&part), nullptr, Property(), text, false));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(
        static_cast<zbIBrowserDataSourceHierarchical*>(nullptr), Property(), Property(), text,
        false));
    EXPECT_EQ(text, "before");
}

TEST_F(OldSelectionText, ATreeWithoutRowsHasNoText) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));
    auto* const tree = static_cast<zbIBrowserDataSourceHierarchical*>(&host.Tree("t", part));
    zbString text = "before";

    EXPECT_FALSE(
        manager.GetSelectedPropertyTextOfSource(tree, Property(), Property(), text, false));
    EXPECT_EQ(text, "");
}

// Drop item

TEST_F(OldSelection, ADropOnARowNotesItsDataItemAndNoSource) {
    Show(a, part);

    view.SetDropItem(Row(a, "bolt"));

    EXPECT_EQ(manager.GetDropDataItemSimple(), &part["bolt"]);
    EXPECT_EQ(manager.GetDropDataItemHierarchical(), nullptr);
    EXPECT_EQ(manager.GetDropDataSource(), nullptr);
    EXPECT_FALSE(manager.IsDropOnFreeFolder());
}

TEST_F(OldSelection, ADropOnNothingLeavesTheFlatDataItem) {
    Show(a, part);
    manager.SetDropItem(Row(a, "bolt"));

    manager.SetDropItem(nullptr);

    EXPECT_EQ(manager.GetDropDataItemSimple(), &part["bolt"]);
}

TEST_F(OldSelection, ResettingTheDropItemLeavesTheFlatDataItem) {
    Show(a, part);
    manager.SetDropItem(Row(a, "bolt"));

    manager.ResetDropItem();

    EXPECT_EQ(manager.GetDropDataItemSimple(), &part["bolt"]);
}

TEST_F(OldSelection, ClearSelectedForgetsTheFlatDataItemToo) {
    Show(a, part);
    manager.SetDropItem(Row(a, "bolt"));

    manager.ClearSelected();

    EXPECT_EQ(manager.GetDropDataItemSimple(), nullptr);
}

TEST_F(OldSelection, ADropOnAFolderNotesItsAttachedObjectOrElseItsFirstTree) {
    RecordingTree& tree = host.Tree("assembly", part);
    view.DataSourceConnect(&tree);
    View().CreateTree(&a, &tree);
    signals.Discard();
    manager.SetDropItem(&b);
    EXPECT_EQ(manager.GetDropDataSource(), nullptr);

    manager.SetDropItem(&a);
    EXPECT_EQ(manager.GetDropDataSource(), &tree);

    a.SetAttachedObject(static_cast<zbIBrowserDataSource*>(&tool));
    manager.SetDropItem(&a);
    EXPECT_EQ(manager.GetDropDataSource(), &tool);
    manager.ResetDropItem();
    EXPECT_EQ(manager.GetDropDataSource(), nullptr);
}

// Items that go

TEST_F(OldSelection, RowsThatGoInAListAreDeselectedAloudBefore) {
    Show(a, part);
    Show(a, tool);
    Select({Row(a, "bolt"), Row(a, "saw")});

    View().DeleteList(&a, &part);

    EXPECT_THAT(signals.take(),
                ElementsAre("DataItemsSelectionChanging data [bolt nut pin] [] false",
                            "ViewItemsDeselected [bolt nut pin]",
                            "DataItemsGrouped data {} [saw] []",
                            "DataItemsSelectionSummary data [saw] [] selection",
                            "ViewItemsSelected [saw]", "ViewItemListDeleted [bolt nut pin]",
                            "ViewItemChanged a", "ViewContentChanged view"));
    EXPECT_EQ(Selected(), "[saw]");
}

TEST_F(OldSelection, ARowWhoseDataItemGoesIsForgottenSilently) {
    Show(a, part);
    auto* const bolt = Row(a, "bolt");
    Select({bolt, Row(a, "nut")});
    manager.SetDropItem(bolt);
    View().SetLastFindStartPoint(bolt);

    View().OnDataItemDeleted(&part["bolt"]);

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemDeleted bolt"));
    EXPECT_EQ(Selected(), "[nut]");
    EXPECT_EQ(manager.GetDropDataItemSimple(), nullptr);
    EXPECT_EQ(View().GetLastFindStartPoint(), nullptr);
}

TEST_F(OldSelection, ADeletedFolderIsForgottenWithAllThatIsInIt) {
    Show(c, part);
    Select({&b, &c, Row(c, "bolt"), &a});
    manager.SetDropItem(&c);
    View().SetLastFindStartPoint(&c);

    view.DeleteFreeFolder(&b, true);

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemDeleted b", "ViewItemChanged /"));
    EXPECT_EQ(Selected(), "[a]");
    EXPECT_FALSE(manager.IsDropOnFreeFolder());
    EXPECT_EQ(View().GetLastFindStartPoint(), nullptr);
}

TEST_F(OldSelection, ARowThatHasGoneCannotBeSelected) {
    Show(a, part);
    auto* const bolt = Row(a, "bolt");
    signals.Only({"ViewItemsSelected"});
    signals.Once(&zbBrowserSignalManager::ViewItemListDeleted,
                 [&](Items&) { manager.UpdateSelection({bolt}, true, false); });

    View().DeleteList(&a, &part);

    EXPECT_EQ(Selected(), "[]");
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected []"));
}

TEST_F(OldSelection, ARowThatGoesCanStillBeAskedForItsData) {
    Show(a, tool);
    std::vector<zbIBrowserDataItemSimple*> items;
    bool answer = false;
    signals.Once(&zbBrowserSignalManager::ViewItemListDeleted, [&](Items& gone) {
        answer = View().GetDataItemsFromViewItems(gone, items, true);
    });

    View().DeleteList(&a, &tool);

    EXPECT_TRUE(answer);
    EXPECT_THAT(items, ElementsAre(&tool["saw"]));
    signals.Discard();
}

TEST_F(OldSelection, AFullRebuildLeavesNothingSelectedAndSaysNothingOfIt) {
    Show(a, part);
    Select({&b, Row(a, "bolt")});
    manager.SetDropItem(&b);

    View().OnDataItemsRebuildAll();

    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(Selected(), "[]");
    EXPECT_FALSE(manager.IsDropOnFreeFolder());
}

TEST_F(OldSelection, ARowThatSurvivesARebuildStaysSelected) {
    Show(a, part);
    Select({Row(a, "bolt"), Row(a, "nut")});
    part.Unlist("bolt");
    part.dirty = true;

    View().OnAllDirtyDataListsRebuild();

    EXPECT_EQ(Selected(), "[nut]");
    signals.Discard();
}

TEST_F(OldSelection, CollapsingAFolderWithItsChildrenDeselectsThem) {
    Show(b, part);
    Select({&b, &c, Row(b, "bolt")});
    view.ExpandFreeFolder(&b, false);

    view.CollapseFreeFolder(&Root(), true);

    EXPECT_FALSE(manager.IsViewItemSelected(&b));
    signals.Discard();
}

TEST_F(OldSelection, AFolderIsDeselectedWithItsFoldersBeforeItsRows) {
    Show(b, tool);
    Show(c, part);
    ListenToViewsOnly();

    view.DeselectViewItem(&b, true);

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsDeselected [b c bolt nut pin saw]"));
}

TEST_F(OldSelection, ARowIsDeselectedAlone) {
    Show(a, part);
    Select({Row(a, "bolt"), Row(a, "nut")});

    view.DeselectViewItem(Row(a, "bolt"), true);

    EXPECT_EQ(Selected(), "[nut]");
    signals.Discard();
}

} // namespace
} // namespace zbtest
