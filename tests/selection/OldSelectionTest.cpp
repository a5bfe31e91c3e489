// SPDX-License-Identifier: MIT
//! \file
//! What only the selection manager of an old view does.
#include "OldSelectionFixture.h"

#include <stdexcept>

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

TEST_F(OldSelection, ClearingWithItemsOfWhichNoneIsOfTheViewTellsThatTheManagerChanged) {
    manager.UpdateSelection({nullptr, Another().GetRootFreeFolder()}, true, true);

    EXPECT_THAT(signals.take(),
                ElementsAre("SelectionClearing view", "SelectionManagerChanged data selection"));
}

TEST_F(OldSelection, ClearingWithItemsThatGoMeanwhileTellsThatTheManagerChanged) {
    signals.Once(&zbBrowserSignalManager::SelectionClearing,
                 [this](auto*) { view.DeleteFreeFolder(&a, true); });
    signals.Only({"ViewItemsSelected", "SelectionManagerChanged"});

    manager.UpdateSelection({&a}, true, true);

    EXPECT_THAT(signals.take(), ElementsAre("SelectionManagerChanged data selection"));
}

TEST_F(OldSelection, ClearingAndDeselectingTheSameTellsOfADeselectionWithoutADifference) {
    Select({&a});
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);

    manager.UpdateSelection({&a}, false, true);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected [a]", "deselected [a]"));
    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view", "ViewItemsDeselected [a]"));
}

TEST_F(OldSelection, ClearAndSelectTellsOfBothAndNotThatTheManagerChanged) {
    Show(a, part);
    Select({Row(a, "bolt")});

    manager.UpdateSelection({Row(a, "nut")}, true, true);

    EXPECT_THAT(signals.take(),
                ElementsAre("SelectionClearing view",
                            "DataItemsSelectionChanging data [bolt] [] false",
                            "DataItemsSelectionChanging data [nut] [] true",
                            "ViewItemsSelected [nut]", "DataItemsGrouped data {} [nut] []",
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

    EXPECT_THAT(signals.take(), ElementsAre("DataItemsSelectionChanging null [bolt] [] true",
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

TEST_F(OldSelection, TheSyncFlagIsTrueAgainBehindANotifierThatClearsItAndThrows) {
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);
    notifier.onChanged = [&] {
        manager.SetSyncFlag(false);
        throw std::runtime_error("no");
    };

    EXPECT_THROW(manager.UpdateSelection({&a}, true, false), std::runtime_error);

    EXPECT_TRUE(manager.GetSyncFlag());
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(OldSelection, TheSyncFlagIsTrueAgainBehindASlotThatClearsItAndThrows) {
    signals.Once(&zbBrowserSignalManager::ViewItemsSelected, [this](Items&) {
        manager.SetSyncFlag(false);
        throw std::runtime_error("no");
    });

    EXPECT_THROW(manager.UpdateSelection({&a}, true, false), std::runtime_error);

    EXPECT_TRUE(manager.GetSyncFlag());
    signals.Discard();
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

// Slots of the data side

TEST_F(OldSelection, NothingIsSelectedIfTheDataSideThrows) {
    Show(a, part);
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);
    signals.Once(&zbBrowserDataSignalManager::DataItemsSelectionChanging,
                 [](auto&&...) { throw std::runtime_error("no"); });

    EXPECT_THROW(manager.UpdateSelection({Row(a, "bolt")}, true, false), std::runtime_error);

    EXPECT_EQ(Selected(), "[]");
    EXPECT_THAT(notifier.take(), IsEmpty());
    signals.Discard();
}

TEST_F(OldSelection, ARowThatGoesWhileTheDataSideIsToldIsNotSelected) {
    Show(a, part);
    signals.Once(&zbBrowserDataSignalManager::DataItemsSelectionChanging,
                 [this](auto&&...) { View().OnDataItemDeleted(&part["bolt"]); });
    signals.Only({"DataItemsSelectionSummary"});

    manager.UpdateSelection({Row(a, "bolt"), Row(a, "nut")}, true, false);

    EXPECT_EQ(Selected(), "[nut]");
    EXPECT_THAT(signals.take(), ElementsAre("DataItemsSelectionSummary data [nut] [] selection"));
}

TEST_F(OldSelection, WhatGoesWhileAClearingIsToldIsLeftOutOfTheDataThatIsDeselected) {
    Show(a, part);
    Show(b, tool);
    Select({&b, Row(a, "bolt"), Row(a, "nut")});
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);
    notifier.onChanged = [this] {
        view.DeleteFreeFolder(&b, true);
        View().OnDataItemDeleted(&part["bolt"]);
    };
    signals.Only({"DataItemsSelectionChanging"});

    manager.UpdateSelection({}, false, true);

    EXPECT_THAT(signals.take(), ElementsAre("DataItemsSelectionChanging data [nut] [] false"));
}

TEST_F(OldSelection, ARowThatGoesBetweenTheTwoSignalsOfTheWholeSelectionIsNotInTheSecond) {
    Show(a, part);
    Select({Row(a, "bolt")});
    signals.Once(&zbBrowserDataSignalManager::DataItemsGrouped,
                 [this](auto&&...) { View().OnDataItemDeleted(&part["bolt"]); });
    signals.Only({"DataItemsGrouped", "DataItemsSelectionSummary"});

    manager.UpdateSelection({Row(a, "nut")}, true, false);

    EXPECT_THAT(signals.take(), ElementsAre("DataItemsGrouped data {} [bolt nut] []",
                                            "DataItemsSelectionSummary data [nut] [] selection"));
}

TEST_F(OldSelection, AViewThatGoesWhileTheDataSideIsToldHearsNoMore) {
    Show(a, part);
    RecordingNotifier notifier;
    manager.AddNotifier(&notifier);
    signals.Once(&zbBrowserDataSignalManager::DataItemsSelectionChanging,
                 [this](auto&&...) { host.DeleteView(view); });
    signals.Only({"ViewItemsSelected", "DataItemsGrouped", "DataItemsSelectionSummary"});

    manager.UpdateSelection({Row(a, "bolt")}, true, false);

    EXPECT_THAT(notifier.take(), IsEmpty());
    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(Selected(), "[]");
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

TEST_F(OldSelection, AnOldViewHasNoLastChange) {
    manager.UpdateSelection({&a}, true, false);
    Items changed{nullptr};

    EXPECT_FALSE(manager.GetChangedViewItems(changed));
    EXPECT_THAT(changed, ElementsAre(nullptr));
    signals.Discard();
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

TEST_F(OldSelection, SelectedFoldersAreGivenInBothFormsWithoutTheRowsAmongThem) {
    Show(a, part);
    Select({&a, Row(a, "bolt"), &c});
    std::set<zbIBrowserViewItemFreeFolder*> set;
    std::vector<zbIBrowserViewItemFreeFolder*> list;

    EXPECT_TRUE(manager.GetSelectedFreeFolders(set));
    EXPECT_TRUE(manager.GetSelectedFreeFolders(list));

    EXPECT_THAT(set, testing::UnorderedElementsAre(&a, &c));
    EXPECT_THAT(list, testing::UnorderedElementsAre(&a, &c));
}

TEST_F(OldSelection, WithoutAViewThereAreNoGroupsAndTheAnswerIsTrueAllTheSame) {
    host.DeleteView(view);
    signals.Discard();
    Items groups{nullptr};

    EXPECT_TRUE(manager.GetSelectedDependentFolders(groups));
    EXPECT_THAT(groups, IsEmpty());
}

} // namespace
} // namespace zbtest
