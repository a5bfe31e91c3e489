// SPDX-License-Identifier: MIT
//! \file
//! What the data side selects in an old view.

#include "ViewTestSupport.h"

#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <algorithm>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingSource;
using zbtest::ThrownText;

using Items = std::vector<zbIBrowserViewItem*>;
using SimpleItems = std::vector<zbIBrowserDataItemSimple*>;
using TreeItems = std::vector<zbIBrowserDataItemHierarchical*>;

class SelectionEventsTest : public zbtest::ViewTest {
protected:
    SelectionEventsTest() {
        signals.Only({"ViewItemExpanded", "SelectionClearing", "ViewItemsSelected",
                      "ViewItemsDeselected", "ViewItemChanged", "ViewItemCreated"});
        host.calls.On("ShowViewItem", [this] { shownWhile.push_back(Selected()); });
        host.manager.ShowViewItem(nullptr); // A hook must be reached once
        shownWhile.clear();
        host.calls.ForgetCounts();
    }

    //! What is selected, by name.
    [[nodiscard]] Names Selected() const {
        Items items;
        view.GetSelectionManager()->GetSelectedViewItems(items);
        Names names;
        names.reserve(items.size());
        std::transform(items.begin(), items.end(), std::back_inserter(names),
                       [](auto const* item) { return zbtest::NameOf(item); });
        std::sort(names.begin(), names.end());
        return names;
    }
    void Select(Items const& items) {
        view.GetSelectionManager()->UpdateSelection(items, true, true);
        signals.Discard();
    }
    void SelectData(SimpleItems const& items) { view.OnDataItemsSelected(items, {}, false); }
    void SelectOnlyData(SimpleItems const& items) { view.OnDataItemsSelected(items, {}, true); }
    void DeselectData(SimpleItems const& items) { view.OnDataItemsDeselected(items, {}); }
    [[nodiscard]] std::size_t TimesShown() const { return host.calls.Count("ShowViewItem"); }

    RecordingSource& part = Connected("part", {"bolt_1", "nut_2", "pin_3"});
    RecordingSource& tool = Connected("tool", {"saw_1"});
    FreeFolder& a = Folder("a");
    FreeFolder& b = Folder("b", &a);
    std::vector<Names> shownWhile; //!< What was selected when the host was asked to show a row.
};

// Selected

TEST_F(SelectionEventsTest, TheRowsOfASelectedItemAreSelectedWhereverTheyStand) {
    Show(b, part);
    Show(a, part);
    SelectData({&part["nut_2"]});
    EXPECT_THAT(signals.take(), testing::Contains("ViewItemsSelected [nut_2 nut_2]"));
    EXPECT_EQ(Selected(), (Names{"nut_2", "nut_2"}));
}

TEST_F(SelectionEventsTest, AnItemUnderClosedFoldersGetsThemAllOpenedEachWithItsSignal) {
    Show(b, part);
    SelectData({&part["nut_2"]});
    EXPECT_TRUE(a.IsExpanded());
    EXPECT_TRUE(b.IsExpanded());
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemExpanded b", "ViewItemExpanded a",
                                            "ViewItemsSelected [nut_2]"));
}

TEST_F(SelectionEventsTest, FoldersThatAreOpenAreLeftAlone) {
    Show(b, part);
    ASSERT_TRUE(view.ExpandFreeFolder(&b, false));
    signals.Discard();
    SelectData({&part["nut_2"], &part["pin_3"]});
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemExpanded a", "ViewItemsSelected [nut_2 pin_3]"));
}

TEST_F(SelectionEventsTest, ARootThatWasCollapsedIsOpenedForARowOfItsOwnOnly) {
    Show(Root(), tool);
    Show(b, part);
    ASSERT_TRUE(view.CollapseFreeFolder(&Root(), false));
    SelectData({&part["nut_2"]});
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemExpanded b", "ViewItemExpanded a",
                                            "ViewItemsSelected [nut_2]"));
    SelectData({&tool["saw_1"]});
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemExpanded /", "ViewItemsSelected [saw_1]"));
}

TEST_F(SelectionEventsTest, RowsAreSelectedInTheOrderOfTheFoldersAndOfTheirRows) {
    Show(Root(), tool);
    Show(a, part);
    Show(a, tool);
    SelectData({&tool["saw_1"], &part["pin_3"], &part["bolt_1"]});
    EXPECT_THAT(signals.take(), testing::Contains("ViewItemsSelected [saw_1 bolt_1 pin_3 saw_1]"));
}

TEST_F(SelectionEventsTest, AnItemThatIsNamedTwiceAndNullCountOnceAndNotAtAll) {
    Show(Root(), part);
    view.OnDataItemsSelected(SimpleItems{&part["nut_2"], nullptr, &part["nut_2"]}, {nullptr},
                             false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected [nut_2]"));
}

TEST_F(SelectionEventsTest, SelectingAddsUnlessTheRestIsToBeCleared) {
    Show(Root(), part);
    SelectData({&part["nut_2"]});
    SelectData({&part["pin_3"]});
    EXPECT_EQ(Selected(), (Names{"nut_2", "pin_3"}));
    SelectOnlyData({&part["bolt_1"]});
    EXPECT_EQ(Selected(), (Names{"bolt_1"}));
    signals.Discard();
}

TEST_F(SelectionEventsTest, TheHostIsAskedOnceToShowTheFirstRowWhenItIsSelected) {
    Show(a, part);
    host.calls.Record(true);
    SelectData({&part["pin_3"], &part["nut_2"]});
    EXPECT_THAT(host.calls.take(), testing::Contains("manager.ShowViewItem nut_2"));
    EXPECT_EQ(TimesShown(), 1U);
    EXPECT_EQ(shownWhile, (std::vector<Names>{{"nut_2", "pin_3"}}));
    signals.Discard();
}

TEST_F(SelectionEventsTest, ItemsWithoutARowSelectAndShowNothing) {
    Show(a, part);
    SelectData({&tool["saw_1"], &part.Add("new_4")});
    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_FALSE(a.IsExpanded());
    EXPECT_EQ(TimesShown(), 0U);
}

TEST_F(SelectionEventsTest, ItemsOfASourceThatIsNotConnectedDoNothingToTheSelection) {
    Show(a, part);
    Select({Row(a, "nut_2")});
    view.DataSourceDisconnectAll(false);
    SelectData({&part["pin_3"]});
    DeselectData({&part["nut_2"]});
    EXPECT_EQ(Selected(), (Names{"nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(SelectionEventsTest, OfMixedItemsThoseOfConnectedSourcesAreSelected) {
    Show(Root(), part);
    Show(Root(), tool);
    ASSERT_TRUE(view.DataSourceDisconnect("tool"));
    SelectData({&tool["saw_1"], &part["pin_3"]});
    EXPECT_EQ(Selected(), (Names{"pin_3"}));
    signals.Discard();
}

TEST_F(SelectionEventsTest, ClearingGoesAheadAlsoIfNothingIsFound) {
    Show(Root(), part);
    Select({Row(Root(), "nut_2")});
    SelectOnlyData({&tool["saw_1"]});
    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view"));
}

TEST_F(SelectionEventsTest, NothingIsSelectedOrDeselectedWhileTheSyncFlagIsOff) {
    Show(Root(), part);
    Select({Row(Root(), "nut_2")});
    view.GetSelectionManager()->SetSyncFlag(false);
    SelectOnlyData({&part["pin_3"]});
    DeselectData({&part["nut_2"]});
    EXPECT_EQ(Selected(), (Names{"nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(SelectionEventsTest, TheGeneralFormsDoNothing) {
    Show(Root(), part);
    Select({Row(Root(), "nut_2")});
    std::vector<zbIBrowserDataItem*> const items{&part["nut_2"], &part["pin_3"]};
    view.OnDataItemsSelected(items, true, true);
    view.OnDataItemsDeselected(items);
    EXPECT_EQ(Selected(), (Names{"nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

// Of trees, by the first item

class FirstTreeItemTest : public SelectionEventsTest {
protected:
    zbtest::RecordingTree& tree = ConnectedTree("assembly");
    zbtest::RecordingTreeItem& engine = tree.Add(host.Source("assembly_type"), "engine");
    zbtest::RecordingTreeItem& wheel = tree.Add(host.Source("assembly_type"), "wheel");
};

TEST_F(FirstTreeItemTest, AlwaysCountsAndNoOtherIsLookedAt) {
    Show(Root(), part);
    Select({Row(Root(), "nut_2")});
    view.GetSelectionManager()->SetSyncFlag(false);
    host.calls.ForgetCounts();

    view.OnDataItemsSelected(TreeItems{nullptr, &engine, &wheel}, true, true);

    EXPECT_THAT(Selected(), IsEmpty());
    EXPECT_EQ(host.calls.Count("GetDataSource", "wheel"), 0U);
    signals.Discard();
}

TEST_F(FirstTreeItemTest, WithoutItTheSyncFlagDecides) {
    Show(Root(), part);
    Select({Row(Root(), "nut_2")});
    view.GetSelectionManager()->SetSyncFlag(false);
    view.OnDataItemsSelected(TreeItems{&engine}, true, false);
    EXPECT_EQ(Selected(), (Names{"nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FirstTreeItemTest, WithoutItAllAreLookedAt) {
    host.calls.ForgetCounts();
    view.OnDataItemsSelected(TreeItems{&engine, &wheel}, false, false);
    EXPECT_EQ(host.calls.Count("GetDataSource", "wheel"), 1U);
}

// Deselected

TEST_F(SelectionEventsTest, TheRowsOfADeselectedItemAreDeselectedAndNothingIsOpenedOrShown) {
    Show(b, part);
    Show(Root(), part);
    Select({Row(b, "nut_2"), Row(Root(), "nut_2"), Row(b, "pin_3")});
    DeselectData({&part["nut_2"]});
    EXPECT_EQ(Selected(), (Names{"pin_3"}));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsDeselected [nut_2 nut_2]"));
    EXPECT_FALSE(b.IsExpanded());
    EXPECT_EQ(TimesShown(), 0U);
}

// The guard

TEST_F(SelectionEventsTest, ASelectionFromWithinADataEventIsDropped) {
    Show(Root(), part);
    signals.Once(&zbBrowserSignalManager::ViewItemChanged, [&](auto*) {
        SelectData({&part["nut_2"]});
        DeselectData({&part["nut_2"]});
    });
    view.OnDataItemUpdated(&part["bolt_1"]);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged /"));
}

TEST_F(SelectionEventsTest, ADataEventFromWithinASelectionIsDropped) {
    Show(Root(), part);
    auto& fresh = part.Add("new_4");
    signals.Once(&zbBrowserSignalManager::ViewItemsSelected,
                 [&](auto&) { host.Controller().OnDataItemCreated(&fresh, false); });
    SelectData({&part["nut_2"]});
    EXPECT_EQ(Row(Root(), "new_4"), nullptr);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected [nut_2]"));
}

TEST_F(SelectionEventsTest, ASelectionThatWasLeftByAnExceptionDropsAllLaterEvents) {
    Show(Root(), part);
    signals.Once(&zbBrowserSignalManager::ViewItemsSelected, [](auto&) { throw "slot failed"; });
    EXPECT_EQ(ThrownText([&] { SelectData({&part["nut_2"]}); }), "slot failed");
    signals.Discard();
    SelectData({&part["pin_3"]});
    view.OnDataItemUpdated(&part["bolt_1"]);
    EXPECT_EQ(Selected(), (Names{"nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(SelectionEventsTest, NoFurtherItemIsAskedOnceTheViewHasGone) {
    Show(a, part);
    host.calls.On("GetDataSource", "nut_2", [this] { host.DeleteView(view); });
    auto& bolt = part["bolt_1"];
    host.calls.ForgetCounts();

    SelectData({&part["nut_2"], &bolt});

    EXPECT_EQ(host.calls.Count("GetDataSource", "bolt_1"), 0U);
    signals.Discard();
}

TEST_F(SelectionEventsTest, FlatItemsAreAskedForTheirSourceBeforeThoseOfTrees) {
    auto& engine = ConnectedTree("assembly").Add(host.Source("assembly_type"), "engine");
    host.calls.RecordReaders(true);
    host.calls.Record(true);

    view.OnDataItemsSelected(SimpleItems{&tool["saw_1"]}, {&engine}, false);
    view.OnDataItemsDeselected(SimpleItems{&tool["saw_1"]}, {&engine});

    auto lines = host.calls.take();
    std::erase_if(lines, [](auto const& line) { return line.find("GetDataSource") == line.npos; });
    EXPECT_THAT(lines, ElementsAre("saw_1.GetDataSource", "engine.GetDataSource",
                                   "saw_1.GetDataSource", "engine.GetDataSource"));
    signals.Discard();
}

TEST_F(SelectionEventsTest, ARowThatGoesWhenItsFolderOpensIsNeitherSelectedNorShown) {
    Show(a, part);
    signals.Once(&zbBrowserSignalManager::ViewItemExpanded,
                 [&](auto*) { view.DeleteDataDependentViewItems(&part["bolt_1"], true); });
    SelectData({&part["bolt_1"], &part["nut_2"]});
    EXPECT_EQ(Selected(), (Names{"nut_2"}));
    EXPECT_EQ(shownWhile.size(), 1U);
    signals.Discard();
}

// Handed on to the selection manager

TEST_F(SelectionEventsTest, TheDropItemIsThatOfTheSelectionManager) {
    view.SetDropItem(&a);
    EXPECT_TRUE(view.GetSelectionManager()->IsDropOnFreeFolder());
    view.ResetDropItem();
    EXPECT_FALSE(view.GetSelectionManager()->IsDropOnFreeFolder());
}

// Expanding around items

TEST_F(SelectionEventsTest, ExpandingAroundNullOrAForeignItemThrowsAfterWhatStandsBefore) {
    Show(a, part);
    auto* const row = Row(a, "nut_2");
    auto* const foreign = host.View("other").GetRootFreeFolder();
    EXPECT_EQ(zbtest::ThrownString([&] {
                  view.ExpandAscendants({row, nullptr});
              }),
              "Null pointer hit");
    EXPECT_TRUE(a.IsExpanded());
    EXPECT_EQ(zbtest::ThrownString([&] { view.ExpandAscendants(Items{foreign}); }),
              "Attempt to operate on object belonging to different manager");
    signals.Discard();
}

TEST_F(SelectionEventsTest, AForeignItemIsRefusedFromWithinASlotToo) {
    Show(Root(), part);
    auto* const foreign = host.View("other").GetRootFreeFolder();
    std::string thrown;
    signals.Once(&zbBrowserSignalManager::ViewItemChanged, [&](auto*) {
        thrown = zbtest::ThrownString([&] { view.ExpandAscendants(Items{foreign}); });
    });
    view.OnDataItemUpdated(&part["bolt_1"]);
    EXPECT_EQ(thrown, "Attempt to operate on object belonging to different manager");
    signals.Discard();
}

} // namespace
