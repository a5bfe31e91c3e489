// SPDX-License-Identifier: MIT
//! \file
//! What goes to the active view and to its panel: selection of data, collectors, scripts.
#include "ControlTest.h"

namespace zbtest {
namespace {

class ActiveView : public ControlTest {
protected:
    RecordingItem& Bolt() { return bolt_; }
    RecordingTreeItem& Axle() { return axle_; }

    std::vector<zbIBrowserDataItem*> AnyItems() { return {&bolt_, &axle_}; }
    std::vector<zbIBrowserDataItemSimple*> FlatItems() { return {&bolt_}; }
    std::vector<zbIBrowserDataItemHierarchical*> TreeItems() { return {&axle_}; }

    void Activate(zbIBrowserView& view) { panel.activeView = &view; }

private:
    RecordingSource& parts_ = data.Source("part");
    RecordingItem& bolt_ = parts_.Add("bolt");
    RecordingTreeItem& axle_ = data.Tree("tree", parts_).Add(parts_, "axle");
};

TEST_F(ActiveView, OfNewGenerationIsToldOfSelectedItemsBeforeThePanel) {
    Activate(New("new"));

    ctrl->OnDataItemsSelected(AnyItems(), true, false);

    EXPECT_THAT(Take(), ElementsAre("new.OnDataItemsSelected [bolt axle] true false",
                                    "new.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [bolt axle] true"));
}

TEST_F(ActiveView, OfNewGenerationIsToldAloneIfThePanelIsNotWanted) {
    Activate(New("new"));

    ctrl->OnDataItemsSelected(AnyItems(), false, true);

    EXPECT_THAT(Take(), ElementsAre("new.OnDataItemsSelected [bolt axle] false true",
                                    "new.OnSelectionChangeFinished"));
}

TEST_F(ActiveView, OfOldGenerationIsToldOfSelectedTreeItemsAndThePanelInAnyCase) {
    Activate(Old("old"));

    ctrl->OnDataItemsSelected(TreeItems(), true, true);
    ctrl->OnDataItemsSelected(TreeItems(), false, false);

    EXPECT_THAT(Take(), ElementsAre("old.OnDataItemsSelected [] [axle] true",
                                    "old.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [] [axle] true",
                                    "old.OnDataItemsSelected [] [axle] false",
                                    "old.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [] [axle] false"));
}

TEST_F(ActiveView, OfOldGenerationIsToldOfSelectedFlatItems) {
    Activate(Old("old"));

    ctrl->OnDataItemsSelected(FlatItems(), true);

    EXPECT_THAT(Take(), ElementsAre("old.OnDataItemsSelected [bolt] [] true",
                                    "old.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [bolt] [] true"));
}

TEST_F(ActiveView, OfOldGenerationIsToldOfBothKindsOfSelectedItems) {
    Activate(Old("old"));

    ctrl->OnDataItemsSelected(FlatItems(), TreeItems(), false);

    EXPECT_THAT(Take(), ElementsAre("old.OnDataItemsSelected [bolt] [axle] false",
                                    "old.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [bolt] [axle] false"));
}

TEST_F(ActiveView, OfNewGenerationIsToldOfDeselectedItemsBeforeThePanel) {
    Activate(New("new"));

    ctrl->OnDataItemsDeselected(AnyItems());

    EXPECT_THAT(Take(), ElementsAre("new.OnDataItemsDeselected [bolt axle]",
                                    "new.OnSelectionChangeFinished",
                                    "panel.OnDataItemsDeselected [bolt axle]"));
}

TEST_F(ActiveView, OfOldGenerationIsToldOfDeselectedItemsOfAnyKind) {
    Activate(Old("old"));

    ctrl->OnDataItemsDeselected(TreeItems());
    ctrl->OnDataItemsDeselected(FlatItems());
    ctrl->OnDataItemsDeselected(FlatItems(), TreeItems());

    EXPECT_THAT(
        Take(),
        ElementsAre("old.OnDataItemsDeselected [] [axle]", "old.OnSelectionChangeFinished",
                    "panel.OnDataItemsDeselected [] [axle]", "old.OnDataItemsDeselected [bolt] []",
                    "old.OnSelectionChangeFinished", "panel.OnDataItemsDeselected [bolt] []",
                    "old.OnDataItemsDeselected [bolt] [axle]", "old.OnSelectionChangeFinished",
                    "panel.OnDataItemsDeselected [bolt] [axle]"));
}

TEST_F(ActiveView, OfTheOtherGenerationIsPassedOverAndThePanelToldAllTheSame) {
    Activate(Old("old"));
    New("new");
    ctrl->OnDataItemsSelected(AnyItems(), true, false);
    ctrl->OnDataItemsDeselected(AnyItems());
    EXPECT_THAT(Take(), ElementsAre("panel.OnDataItemsSelected [bolt axle] true",
                                    "panel.OnDataItemsDeselected [bolt axle]"));

    Activate(New("active"));
    ctrl->OnDataItemsSelected(FlatItems(), true);
    ctrl->OnDataItemsDeselected(TreeItems());
    EXPECT_THAT(Take(), ElementsAre("panel.OnDataItemsSelected [bolt] [] true",
                                    "panel.OnDataItemsDeselected [] [axle]"));
}

TEST_F(ActiveView, IsTheOnlyOneToldOfASelection) {
    Old("first");
    Activate(Old("second"));
    Old("third");

    ctrl->OnDataItemsSelected(FlatItems(), true);

    EXPECT_THAT(Take(), ElementsAre("second.OnDataItemsSelected [bolt] [] true",
                                    "second.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [bolt] [] true"));
}

TEST_F(ActiveView, IfThereIsNoneASelectionHasNoEffect) {
    Old("old");
    New("new");
    auto const selectEverything = [this] {
        ctrl->OnDataItemsSelected(AnyItems(), true, false);
        ctrl->OnDataItemsSelected(TreeItems(), true, false);
        ctrl->OnDataItemsSelected(FlatItems(), true);
        ctrl->OnDataItemsSelected(FlatItems(), TreeItems(), true);
        ctrl->OnDataItemsDeselected(AnyItems());
        ctrl->OnDataItemsDeselected(TreeItems());
        ctrl->OnDataItemsDeselected(FlatItems());
        ctrl->OnDataItemsDeselected(FlatItems(), TreeItems());
    };

    selectEverything();
    manager.panel = nullptr;
    selectEverything();

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(ActiveView, ThatIsDeletedWhileBeingToldHearsNoMoreAndThePanelIsTold) {
    zbBrowserView& view = Old("old");
    Activate(view);
    calls.On("OnDataItemsSelected", "old", [&] {
        panel.activeView = nullptr;
        Delete(view);
    });

    ctrl->OnDataItemsSelected(FlatItems(), true);

    EXPECT_THAT(Take(), ElementsAre("old.OnDataItemsSelected [bolt] [] true", "old.Destroyed",
                                    "panel.OnDataItemsSelected [bolt] [] true"));
}

TEST_F(ActiveView, AndPanelAreToldTheSameWhateverBecomesOfTheCallersLists) {
    Activate(Old("old"));
    auto flat = FlatItems();
    auto tree = TreeItems();
    auto const forget = [&] {
        flat.clear();
        tree.clear();
    };
    calls.On("OnDataItemsSelected", "old", forget);
    calls.On("OnDataItemsDeselected", "old", forget);

    ctrl->OnDataItemsSelected(flat, tree, true);
    EXPECT_THAT(Take(), ElementsAre("old.OnDataItemsSelected [bolt] [axle] true",
                                    "old.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [bolt] [axle] true"));

    flat = FlatItems();
    tree = TreeItems();
    ctrl->OnDataItemsDeselected(flat, tree);
    EXPECT_THAT(Take(), ElementsAre("old.OnDataItemsDeselected [bolt] [axle]",
                                    "old.OnSelectionChangeFinished",
                                    "panel.OnDataItemsDeselected [bolt] [axle]"));
}

TEST_F(ActiveView, OfNewGenerationAndPanelAreToldTheSameWhateverBecomesOfTheCallersList) {
    Activate(New("new"));
    auto items = AnyItems();
    calls.On("OnDataItemsSelected", "new", [&] { items.clear(); });
    calls.On("OnDataItemsDeselected", "new", [&] { items.clear(); });

    ctrl->OnDataItemsSelected(items, true, false);
    EXPECT_THAT(Take(), ElementsAre("new.OnDataItemsSelected [bolt axle] true false",
                                    "new.OnSelectionChangeFinished",
                                    "panel.OnDataItemsSelected [bolt axle] true"));

    items = AnyItems();
    ctrl->OnDataItemsDeselected(items);
    EXPECT_THAT(Take(), ElementsAre("new.OnDataItemsDeselected [bolt axle]",
                                    "new.OnSelectionChangeFinished",
                                    "panel.OnDataItemsDeselected [bolt axle]"));
}

TEST_F(ActiveView, MayTakeThePanelAwayWhileBeingTold) {
    Activate(Old("old"));
    calls.On("OnSelectionChangeFinished", [&] { manager.panel = nullptr; });

    ctrl->OnDataItemsDeselected(FlatItems());

    EXPECT_THAT(Take(), ElementsAre("old.OnDataItemsDeselected [bolt] []",
                                    "old.OnSelectionChangeFinished"));
}

TEST_F(ActiveView, GivesTheNameOfTheCollectorsGuiMap) {
    EXPECT_STREQ(ctrl->GetCollectorGuiMapName(), "");
    Activate(Old("old"));
    EXPECT_STREQ(ctrl->GetCollectorGuiMapName(), "collector map");
    manager.panel = nullptr;
    EXPECT_STREQ(ctrl->GetCollectorGuiMapName(), "");
}

TEST_F(ActiveView, PerformsCollecting) {
    ctrl->OnBrowserColPerform();
    EXPECT_THAT(Take(), IsEmpty());

    Old("other");
    Activate(Old("old"));
    ctrl->OnBrowserColPerform();
    EXPECT_THAT(Take(), ElementsAre("old.OnBrowserColPerform"));
}

TEST_F(ActiveView, PerformsACollectorOperationAndItsAnswerIsGiven) {
    auto const operation = static_cast<ZBBROWSER_COLSEL_TYPE>(7);
    EXPECT_FALSE(ctrl->PerformCollectorOperation(operation));

    zbbrowser::View& view = New("new");
    Activate(view);
    EXPECT_TRUE(ctrl->PerformCollectorOperation(operation));
    view.answer = false;
    EXPECT_FALSE(ctrl->PerformCollectorOperation(operation));
    EXPECT_THAT(Take(),
                ElementsAre("new.PerformCollectorOperation 7", "new.PerformCollectorOperation 7"));
}

TEST_F(ActiveView, OfNewGenerationHasItsCollectorButtonShownByTheManager) {
    Activate(New("new"));

    ctrl->OnShowPanelCollectorButton(true);
    ctrl->OnShowPanelCollectorButton(false);

    EXPECT_THAT(Take(), ElementsAre("manager.ShowCollectorButton new 4 true",
                                    "manager.ShowCollectorButton new 4 false"));
}

TEST_F(ActiveView, OfOldGenerationShowsItsCollectorButtonItself) {
    Activate(Old("old"));

    ctrl->OnShowPanelCollectorButton(true);
    ctrl->OnShowPanelCollectorButton(false);

    EXPECT_THAT(Take(), ElementsAre("old.ShowCollectorButton 121 true",
                                    "old.ShowCollectorButton 121 false"));
}

TEST_F(ActiveView, IfThereIsNoneNoCollectorButtonIsShown) {
    Old("old");
    New("new");

    ctrl->OnShowPanelCollectorButton(true);
    manager.panel = nullptr;
    ctrl->OnShowPanelCollectorButton(true);

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(ActiveView, KeepsItsCollectorWhenAllOthersAreReset) {
    Old("first");
    Activate(Old("second"));
    Old("third");
    New("new");

    ctrl->ResetAllCollectors();

    EXPECT_THAT(Take(),
                ElementsAre("first.OnBrowserColDeselected", "third.OnBrowserColDeselected"));
}

TEST_F(ActiveView, OfNewGenerationLeavesNoOldCollectorUntouched) {
    Old("first");
    Activate(New("new"));

    ctrl->ResetAllCollectors();

    EXPECT_THAT(Take(), ElementsAre("first.OnBrowserColDeselected"));
}

TEST_F(ActiveView, IfThereIsNoneNoCollectorIsReset) {
    Old("old");

    ctrl->ResetAllCollectors();
    manager.panel = nullptr;
    ctrl->ResetAllCollectors();

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(ActiveView, IsNotNeededToEvaluateAScriptInThePanel) {
    panel.scriptResult = "M8";
    zbString result;
    zbString const fallback("M6");

    EXPECT_TRUE(ctrl->TEMP_GetStringFromScript("thread", result, fallback));

    EXPECT_EQ(result, "M8");
    EXPECT_EQ(fallback, "M6");
    EXPECT_THAT(Take(), ElementsAre("panel.GetStringFromScript thread ( M6 )"));
}

TEST_F(ActiveView, IsNotNeededForThePanelToRefuseAScript) {
    zbString result("untouched");

    EXPECT_FALSE(ctrl->TEMP_GetStringFromScript("thread", result, "M6"));

    EXPECT_EQ(result, "untouched");
    EXPECT_THAT(Take(), ElementsAre("panel.GetStringFromScript thread ( M6 )"));
}

TEST_F(ActiveView, AndPanelMissingAScriptIsAnsweredWithFalse) {
    manager.panel = nullptr;
    zbString result("untouched");

    EXPECT_FALSE(ctrl->TEMP_GetStringFromScript("thread", result, "M6"));

    EXPECT_EQ(result, "untouched");
}

} // namespace
} // namespace zbtest
