// SPDX-License-Identifier: MIT
//! \file
//! Rebuilds of flat lists.

#include "ViewTestSupport.h"

#include <zbBrowserView/zbBrowserViewCtrl.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingSource;

class RebuildTest : public zbtest::ViewTest {
protected:
    RecordingSource& part = Connected("part", {"bolt_1", "nut_2"});
    FreeFolder& a = Folder("a");

    //! Signals and long operations in one list.
    void RecordBrackets() {
        host.calls.On("BeginLongOperation", [this] { lines.emplace_back("("); });
        host.calls.On("EndLongOperation", [this] { lines.emplace_back(")"); });
        static_cast<void>(
            signals.On(&zbBrowserSignalManager::ViewItemChanged, [this](zbIBrowserViewItem* item) {
                lines.push_back(zbtest::NameOf(item));
            }));
        static_cast<void>(signals.On(&zbBrowserSignalManager::ViewContentChanged,
                                     [this](zbIBrowserView*) { lines.emplace_back("view"); }));
    }
    Names lines;
};

// Everything

TEST_F(RebuildTest, ARebuildOfEverythingIsSilentAndMakesAllRowsAnew) {
    Show(a, part);
    part.Add("pin_3");
    part.Unlist("bolt_1");

    host.Controller().OnDataItemsRebuildAll(&view);

    EXPECT_EQ(Rows(a), (Names{"nut_2", "pin_3"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(RebuildTest, ARebuildOfEverythingKeepsFoldersAndTheirState) {
    auto& b = Folder("b", &a);
    Show(b, part);
    ASSERT_TRUE(view.ExpandFreeFolder(&a, false));
    signals.Discard();
    view.OnDataItemsRebuildAll();
    EXPECT_TRUE(a.IsExpanded());
    EXPECT_EQ(Rows(a), (Names{"b"}));
    EXPECT_EQ(Rows(b), (Names{"bolt_1", "nut_2"}));
}

TEST_F(RebuildTest, ARebuildOfEverythingStopsInAFolderAtTheFirstListThatFails) {
    auto& tool = Connected("tool", {"saw_1"});
    auto& gauge = Connected("gauge", {"rule_1"});
    auto& b = Folder("b");
    for (RecordingSource* const source : {&part, &tool, &gauge}) {
        Show(a, *source);
    }
    Show(b, gauge);
    tool.failing = true;

    view.OnDataItemsRebuildAll();

    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    EXPECT_EQ(Rows(b), (Names{"rule_1"}));
}

TEST_F(RebuildTest, ABuildingPassCanBeLoud) {
    Show(a, part);
    part.Add("pin_3");
    view.CreateDataDependentViewItems(false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated pin_3", "ViewItemChanged a"));
}

TEST_F(RebuildTest, ARebuildOfEverythingAppliesTheFilterThatIsSet) {
    class FilteredView final : public zbBrowserView {
    public:
        FilteredView(zbBrowserViewCtrl& controller, zbIBrowserDataSourceSimple& source)
            : zbBrowserView(&controller, "filtered")
            , source_(source) {}
        FilteredView(FilteredView const&) = delete;
        FilteredView& operator=(FilteredView const&) = delete;
        ~FilteredView() override = default;
        bool GetCurrentFilter(std::vector<zbIBrowserDataSourceSimple*>& out) const override {
            out.push_back(&source_);
            return true;
        }

    private:
        zbIBrowserDataSourceSimple& source_;
    };
    FilteredView filtered(host.Controller(), part);
    ASSERT_TRUE(filtered.CreateList(filtered.GetRootFreeFolder(), &part, false));
    signals.Discard();

    filtered.OnDataItemsRebuildAll();

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemShown bolt_1", "ViewItemShown nut_2",
                                            "ViewContentChanged filtered", "ViewChanged filtered"));
}

// Dirty lists

TEST_F(RebuildTest, ADirtyListLosesAndGainsRowsAndTheOthersStayTheSameObjects) {
    Show(a, part);
    auto* const survivor = Row(a, "nut_2");
    part.Unlist("bolt_1");
    part.Add("pin_3");
    part.dirty = true;

    host.Controller().OnAllDirtyDataListsRebuild(&view);

    EXPECT_EQ(Rows(a), (Names{"nut_2", "pin_3"}));
    EXPECT_EQ(Row(a, "nut_2"), survivor);
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemsDeselected [bolt_1]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt_1]", "ViewItemCreated pin_3",
                            "ViewItemChanged a", "ViewItemChanged a", "ViewItemChanged /",
                            "ViewContentChanged view", "ViewContentChanged view",
                            "ViewContentChanged view", "ViewContentChanged view",
                            "ViewContentChanged view", "ViewContentChanged view"));
}

TEST_F(RebuildTest, AFolderWhoseIconDoesNotShowDataIsLeftOutOfTheFolderChain) {
    Show(a, part);
    Root().SetIconShowsData(false, false);
    part.dirty = true;
    signals.Discard();
    view.OnAllDirtyDataListsRebuild();
    auto const raised = signals.take();
    EXPECT_THAT(raised, testing::Contains("ViewItemChanged a"));
    EXPECT_THAT(raised, testing::Not(testing::Contains("ViewItemChanged /")));
}

TEST_F(RebuildTest, ACleanListIsNotRebuilt) {
    Show(a, part);
    part.Unlist("bolt_1");
    host.calls.ForgetCounts();
    view.OnAllDirtyDataListsRebuild();
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    EXPECT_EQ(host.calls.Count("GetDataItems"), 0U);
    signals.Discard();
}

TEST_F(RebuildTest, EachStrategyOfEachFolderReportsTheContentChangedEvenIfNothingIsDirty) {
    view.OnAllDirtyDataListsRebuild();
    EXPECT_THAT(signals.take(),
                testing::AllOf(testing::SizeIs(6), testing::Each("ViewContentChanged view")));
}

TEST_F(RebuildTest, ADirtySourceWithoutItemsLosesItsRowsAndStaysConnected) {
    Show(a, part);
    part.DeleteAll();
    part.dirty = true;

    view.OnAllDirtyDataListsRebuild();

    EXPECT_THAT(Rows(a), IsEmpty());
    EXPECT_EQ(view.FindList(&a, &part), &part);
    EXPECT_EQ(view.GetDataSourceSimple(&part), &part);
    signals.Discard();
}

TEST_F(RebuildTest, ADirtyListThatFailsDoesNotKeepTheNextOneFromItsRows) {
    auto& tool = Connected("tool", {"saw_1"});
    Show(a, part);
    Show(a, tool);
    part.failing = true;
    part.dirty = true;
    tool.Add("file_2");
    tool.dirty = true;

    view.OnAllDirtyDataListsRebuild();

    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2", "saw_1", "file_2"}));
    signals.Discard();
}

TEST_F(RebuildTest, ARebuildDoesNotClearTheMark) {
    Show(a, part);
    part.dirty = true;
    view.OnAllDirtyDataListsRebuild();
    EXPECT_TRUE(part.dirty);
    EXPECT_EQ(host.calls.Count("ClearDirty"), 0U);
    signals.Discard();
}

TEST_F(RebuildTest, FoldersBelowComeBeforeTheirFolder) {
    auto& b = Folder("b", &a);
    Show(a, part);
    Show(b, part);
    part.Add("pin_3");
    part.dirty = true;
    Names folders;
    static_cast<void>(
        signals.On(&zbBrowserSignalManager::ViewItemCreated, [&](zbIBrowserViewItem* row) {
            folders.push_back(zbtest::NameOf(row->GetParent()));
        }));
    view.OnAllDirtyDataListsRebuild();
    EXPECT_EQ(folders, (Names{"b", "a"}));
    signals.Discard();
}

TEST_F(RebuildTest, RowsAreRefreshedAfterTheStructureOfTheirFolder) {
    Show(a, part);
    part.Unlist("bolt_1").dirty = true;
    part.Add("pin_3").dirty = true;
    part.dirty = true;
    signals.Only({"ViewItemListDeleted", "ViewItemCreated", "ViewItemChanged"});
    view.OnAllDirtyDataListsRebuild();
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemListDeleted [bolt_1]", "ViewItemCreated pin_3",
                            "ViewItemChanged a", "ViewItemChanged a", "ViewItemChanged /",
                            "ViewItemChanged pin_3", "ViewItemChanged pin_3"));
}

TEST_F(RebuildTest, ADirtyRowIsRefreshedOnceForItsFolderAndOnceForEachFolderAbove) {
    auto& c = Folder("c", &Folder("b", &a));
    Show(c, part);
    part["bolt_1"].dirty = true;
    view.OnAllDirtyDataListsRebuild();
    EXPECT_EQ(signals.Count("ViewItemChanged"), 4U);
    signals.Discard();
}

TEST_F(RebuildTest, TheLongOperationsOfARebuildNestAsTheFoldersDo) {
    Show(a, part);
    part.dirty = true;
    RecordBrackets();

    view.OnAllDirtyDataListsRebuild();

    EXPECT_EQ(testing::PrintToString(lines),
              testing::PrintToString(
                  Names{"(", "(",                                        // root, a
                        "(", "a", "(",    "a", "/", ")",    ")", "view", // a without grouping
                        "(", ")", "view", "(", ")", "view", // a with grouping, with tree
                        "(", ")", ")",                      // refresh of part in a; a
                        "(", ")", "view", "(", ")", "view", "(", ")",    "view", // root
                        "(", ")", ")"})); // refresh of part in a; root
    EXPECT_EQ(host.manager.longOperations, 0);
    signals.Discard();
}

// Dirty items

TEST_F(RebuildTest, EachDirtyRowIsReportedOnce) {
    Show(a, part);
    part["nut_2"].dirty = true;
    view.OnAllDirtyDataItemsRebuild();
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged nut_2"));
}

TEST_F(RebuildTest, TheMarkOfASourceMeansNothingToTheRefreshOfRows) {
    Show(a, part);
    part.dirty = true;
    view.OnAllDirtyDataItemsRebuild();
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(RebuildTest, RowsAreReportedWithinALongOperation) {
    Show(a, part);
    part["nut_2"].dirty = true;
    RecordBrackets();
    view.OnAllDirtyDataItemsRebuild();
    EXPECT_EQ(lines, (Names{"(", "nut_2", ")"}));
    signals.Discard();
}

TEST_F(RebuildTest, ARefreshFromWithinADataEventReachesNoFolderOnTheWay) {
    Show(a, part);
    part["nut_2"].dirty = true;
    signals.Once(&zbBrowserSignalManager::ViewItemCreated,
                 [&](auto*) { view.OnAllDirtyDataItemsRebuild(); });
    view.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated pin_3", "ViewItemChanged a"));
}

// Redrawing

TEST_F(RebuildTest, RedrawingReportsEveryRowOfAFolderWithADirtyListAndClearsTheMark) {
    auto& tool = Connected("tool", {"saw_1"});
    Show(a, part);
    Show(a, tool);
    part.dirty = true;

    view.RedrawAllDirtyDataLists(true);

    EXPECT_FALSE(part.dirty);
    EXPECT_EQ(host.calls.Count("ClearDirty", "part"), 1U);
    EXPECT_EQ(host.calls.Count("ClearDirty", "tool"), 0U);
    signals.Ignore({"ViewContentChanged"});
    EXPECT_EQ(signals.Count("ViewItemChanged"), 3U);
    signals.Discard();
}

TEST_F(RebuildTest, TheFirstFolderThatRedrawsAListTakesTheMarkBackForAll) {
    auto& b = Folder("b");
    Show(a, part);
    Show(b, part);
    part.dirty = true;
    view.RedrawAllDirtyDataLists(false);
    EXPECT_EQ(signals.Count("ViewItemChanged"), 2U);
    signals.Discard();
}

TEST_F(RebuildTest, RedrawingEndsItsLongOperationBeforeTheMarkIsCleared) {
    Show(Root(), part);
    part.dirty = true;
    RecordBrackets();
    host.calls.On("ClearDirty", [this] { lines.emplace_back("clear"); });
    view.RedrawAllDirtyDataLists(false);
    EXPECT_EQ(lines,
              (Names{"(", "(", "bolt_1", "nut_2", ")", ")",    "clear", "view",            // root
                     "(", ")", "view",   "(",     ")", "view",                             // root
                     "(", ")", "view",   "(",     ")", "view", "(",     ")",    "view"})); // a
    signals.Discard();
}

TEST_F(RebuildTest, ACleanViewIsNotRedrawn) {
    Show(a, part);
    view.RedrawAllDirtyDataLists(false);
    EXPECT_EQ(signals.Count("ViewItemChanged"), 0U);
    signals.Discard();
}

// Renumbering, deleting rows

TEST_F(RebuildTest, RenumberingSignalsNothingAndKeepsTheRows) {
    Show(a, part);
    host.Controller().OnDataSourceRenumbered(&part);
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(RebuildTest, ADataEventGivesEachFolderAHolder) {
    Folder("b", &a);
    view.OnDataSourceRenumbered(&part);
    EXPECT_EQ(zbtest::ThrownText([&] { view.DeleteFreeFolder(&a, false); }),
              "Cannot delete non-empty folder. Use deletecontent flag or delete all content "
              "first.");
}

TEST_F(RebuildTest, RowsAreDeletedInOneSignalAndTheListComesBackEmpty) {
    Show(a, part);
    std::vector<zbIBrowserViewItem*> items{Row(a, "nut_2"), Row(a, "bolt_1")};
    view.DeleteViewItemList(items, false);
    EXPECT_THAT(items, IsEmpty());
    EXPECT_THAT(Rows(a), IsEmpty());
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemsDeselected [nut_2 bolt_1]", "ViewItemsSelected []",
                            "ViewItemListDeleted [nut_2 bolt_1]"));
}

TEST_F(RebuildTest, RowsThatAreDeletedSilentlyAreDeselectedAllTheSame) {
    Show(a, part);
    std::vector<zbIBrowserViewItem*> items{Row(a, "bolt_1")};
    view.DeleteViewItemList(items, true);
    EXPECT_EQ(Rows(a), (Names{"nut_2"}));
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemsDeselected [bolt_1]", "ViewItemsSelected []"));
}

TEST_F(RebuildTest, AnEmptyListOfRowsIsNoSignal) {
    std::vector<zbIBrowserViewItem*> items;
    view.DeleteViewItemList(items, false);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(RebuildTest, WhatIsNoRowOfTheViewIsPassedOver) {
    Show(a, part);
    auto* const row = Row(a, "bolt_1");
    std::vector<zbIBrowserViewItem*> items{row, row, nullptr, &a,
                                           host.View("other").GetRootFreeFolder()};
    view.DeleteViewItemList(items, false);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsDeselected [bolt_1]", "ViewItemsSelected []",
                                            "ViewItemListDeleted [bolt_1]"));
    EXPECT_EQ(Rows(Root()), (Names{"a"}));
    std::vector<zbIBrowserViewItem*> stale{row};
    view.DeleteViewItemList(stale, false);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(RebuildTest, ASlotThatChangesTheListOfDeletedRowsChangesACopy) {
    Show(a, part);
    signals.Once(&zbBrowserSignalManager::ViewItemListDeleted, [](auto& items) { items.clear(); });
    std::vector<zbIBrowserViewItem*> items{Row(a, "bolt_1")};
    view.DeleteViewItemList(items, false);
    EXPECT_EQ(Rows(a), (Names{"nut_2"}));
    signals.Discard();
}

} // namespace
