// SPDX-License-Identifier: MIT
//! \file
//! Spreading of events over the views.
#include "ControlTest.h"

namespace zbtest {
namespace {

class DataEvents : public ControlTest {
protected:
    RecordingSource& parts = data.Source("part");
    RecordingItem& bolt = parts.Add("bolt");
    RecordingTree& tree = data.Tree("tree", parts);
    RecordingTreeItem& engine = tree.Add(parts, "engine");
    RecordingTreeItem& axle = tree.Add(parts, "axle");
};

TEST_F(DataEvents, AboutFlatItemsReachOldViewsOnly) {
    Old("a");
    New("new");
    Old("b");

    ctrl->OnDataItemCreated(&bolt, true);
    ctrl->OnDataItemCreated(&bolt, false);
    ctrl->OnDataItemSimpleUpdated(&bolt);

    EXPECT_THAT(
        Take(),
        ElementsAre("a.OnDataItemCreated flat bolt true", "b.OnDataItemCreated flat bolt true",
                    "a.OnDataItemCreated flat bolt false", "b.OnDataItemCreated flat bolt false",
                    "a.OnDataItemUpdated flat bolt", "b.OnDataItemUpdated flat bolt"));
}

TEST_F(DataEvents, AboutTreeItemsReachOldViewsOnly) {
    Old("a");
    New("new");

    ctrl->OnDataItemCreated(&axle, true);
    ctrl->OnDataItemCreated(&axle, false);
    ctrl->OnDataItemReparented(&axle, &engine);
    ctrl->OnDataItemReparented(&axle, nullptr);
    ctrl->OnDataItemHierarchicalUpdated(&axle);

    EXPECT_THAT(Take(),
                ElementsAre("a.OnDataItemCreated tree axle true",
                            "a.OnDataItemCreated tree axle false",
                            "a.OnDataItemReparented axle engine",
                            "a.OnDataItemReparented axle null", "a.OnDataItemUpdated tree axle"));
}

TEST_F(DataEvents, AboutDeletedItemsArriveAsUpdates) {
    Old("a");

    ctrl->OnDataItemSimpleDeleted(&bolt);
    ctrl->OnDataItemHierarchicalDeleted(&axle);

    EXPECT_THAT(Take(),
                ElementsAre("a.OnDataItemUpdated flat bolt", "a.OnDataItemUpdated tree axle"));
}

TEST_F(DataEvents, PassOverViewsThatDoNotHaveTheSource) {
    Old("without").hasSource = false;
    Old("with");

    ctrl->OnDataItemCreated(&bolt, true);
    ctrl->OnDataItemCreated(&axle, true);
    ctrl->OnDataItemReparented(&axle, &engine);
    ctrl->OnDataItemSimpleUpdated(&bolt);
    ctrl->OnDataItemHierarchicalUpdated(&axle);

    EXPECT_THAT(Take(), ElementsAre("with.OnDataItemCreated flat bolt true",
                                    "with.OnDataItemCreated tree axle true",
                                    "with.OnDataItemReparented axle engine",
                                    "with.OnDataItemUpdated flat bolt",
                                    "with.OnDataItemUpdated tree axle"));
}

TEST_F(DataEvents, AboutASourceThatNoViewHasCallNothing) {
    Old("a").hasSource = false;
    New("new");

    ctrl->OnDataItemCreated(&bolt, true);
    ctrl->OnDataItemCreated(&axle, true);

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(DataEvents, AboutNothingAreIgnored) {
    Old("a");

    ctrl->OnDataItemCreated(static_cast<zbIBrowserDataItemSimple*>(nullptr), true);
    ctrl->OnDataItemCreated(static_cast<zbIBrowserDataItemHierarchical*>(nullptr), true);
    ctrl->OnDataItemReparented(nullptr, &engine);
    ctrl->OnDataItemSimpleDeleted(nullptr);
    ctrl->OnDataItemSimpleUpdated(nullptr);
    ctrl->OnDataItemHierarchicalDeleted(nullptr);
    ctrl->OnDataItemHierarchicalUpdated(nullptr);
    ctrl->OnDataSourceRenumbered(nullptr);
    ctrl->OnDataControlDeleted(nullptr);

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(DataEvents, AskForTheSourceOnceSinceAViewMayEndTheItem) {
    Old("a");
    Old("b").hasSource = false;
    calls.On("OnDataItemUpdated", "a", [&] { parts.Delete(bolt); });

    ctrl->OnDataItemSimpleUpdated(&bolt);

    EXPECT_THAT(Take(), ElementsAre("a.OnDataItemUpdated flat bolt"));
}

TEST_F(DataEvents, OfRenumberingReachEveryOldViewWhateverItShows) {
    Old("a").hasSource = false;
    New("new");
    Old("b");

    ctrl->OnDataSourceRenumbered(&parts);

    EXPECT_THAT(Take(),
                ElementsAre("a.OnDataSourceRenumbered part", "b.OnDataSourceRenumbered part"));
}

TEST_F(DataEvents, OfDisabledCollectorsReachEveryOldView) {
    Old("a");
    New("new");
    Old("b");

    ctrl->OnBrowserColDisabled(true);
    ctrl->OnBrowserColDisabled(false);

    EXPECT_THAT(Take(),
                ElementsAre("a.OnBrowserColDisabled true", "b.OnBrowserColDisabled true",
                            "a.OnBrowserColDisabled false", "b.OnBrowserColDisabled false"));
}

TEST_F(DataEvents, OfEnabledCollectorsReachOldViewsAndThenNewOnes) {
    New("new");
    Old("a");
    Old("b");

    ctrl->SetCollectorEnable(true);
    ctrl->SetCollectorEnable(false);

    EXPECT_THAT(Take(), ElementsAre("a.SetCollectorEnable true", "b.SetCollectorEnable true",
                                    "new.SetCollectorEnable true", "a.SetCollectorEnable false",
                                    "b.SetCollectorEnable false", "new.SetCollectorEnable false"));
}

TEST_F(DataEvents, OfDeletedGuiMapsReachOldViewsAndThenNewOnes) {
    New("new");
    Old("a");

    ctrl->OnGuiMapDeleted("icons");

    EXPECT_THAT(Take(), ElementsAre("a.OnGuiMapDeleted icons", "new.OnGuiMapDeleted icons"));
}

TEST_F(DataEvents, OfADeletedDataControlReachNewViewsAndThenOldOnes) {
    Old("a").SetDataCtrl(&data);
    New("new").SetDataCtrl(&data);
    static_cast<void>(Take());

    ctrl->OnDataControlDeleted("data");

    EXPECT_THAT(Take(), ElementsAre("new.SetDataCtrl null", "a.SetDataCtrl null"));
}

TEST_F(DataEvents, OfADeletedDataControlPassOverViewsWithAnotherOrNone) {
    RecordingDataCtrl other(calls, "other");
    Old("a").SetDataCtrl(&other);
    New("new");
    static_cast<void>(Take());

    ctrl->OnDataControlDeleted("data");

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(DataEvents, OfADeletedDataControlHeedCase) {
    Old("a").SetDataCtrl(&data);
    static_cast<void>(Take());

    ctrl->OnDataControlDeleted("DATA");

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(DataEvents, OfADeletedDataControlAreIgnoredFromWithinThatEvent) {
    RecordingDataCtrl other(calls, "other");
    Old("a").SetDataCtrl(&data);
    Old("b").SetDataCtrl(&other);
    static_cast<void>(Take());
    calls.On("SetDataCtrl", "a", [&] { ctrl->OnDataControlDeleted("other"); });

    ctrl->OnDataControlDeleted("data");
    EXPECT_THAT(Take(), ElementsAre("a.SetDataCtrl null"));

    ctrl->OnDataControlDeleted("other");
    EXPECT_THAT(Take(), ElementsAre("b.SetDataCtrl null"));
}

TEST_F(DataEvents, OfDeletedDataControlsStayIgnoredOnceOneWasLeftByAnException) {
    Old("a").SetDataCtrl(&data);
    Old("b").SetDataCtrl(&data);
    static_cast<void>(Take());
    calls.On("SetDataCtrl", "a", [] { throw 42; });
    EXPECT_THROW(ctrl->OnDataControlDeleted("data"), int);
    EXPECT_THAT(Take(), ElementsAre("a.SetDataCtrl null"));

    ctrl->OnDataControlDeleted("data");

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(DataEvents, OfOtherKindsAreNotIgnoredFromWithinThatOfADeletedDataControl) {
    Old("a").SetDataCtrl(&data);
    static_cast<void>(Take());
    calls.On("SetDataCtrl", "a", [&] { ctrl->OnDataItemCreated(&bolt, true); });

    ctrl->OnDataControlDeleted("data");

    EXPECT_THAT(Take(), ElementsAre("a.SetDataCtrl null", "a.OnDataItemCreated flat bolt true"));
}

TEST_F(DataEvents, AboutTheSelectionOfAViewReachExactlyThatView) {
    zbBrowserView& old1 = Old("old1");
    Old("old2");
    zbbrowser::View& new1 = New("new1");
    New("new2");
    ItemDouble item(&old1);
    calls.Remember(&item, "bolt");

    for (zbIBrowserView* view : std::initializer_list<zbIBrowserView*>{&old1, &new1}) {
        ctrl->OnUpdateViewSelection(view, {&item}, true, false);
        ctrl->OnUpdateViewSelection(view, {}, false, true);
        ctrl->OnViewSelectionChangeFinished(view);
        ctrl->OnPopupSelection(view, true);
        ctrl->OnPopupSelection(view, false);
    }

    EXPECT_THAT(Take(), ElementsAre("old1.OnUpdateViewSelection [bolt] true false",
                                    "old1.OnUpdateViewSelection [] false true",
                                    "old1.OnSelectionChangeFinished", "old1.OnPopupSelection true",
                                    "old1.OnPopupSelection false",
                                    "new1.OnUpdateViewSelection [bolt] true false",
                                    "new1.OnUpdateViewSelection [] false true",
                                    "new1.OnSelectionChangeFinished", "new1.OnPopupSelection true",
                                    "new1.OnPopupSelection false"));
}

TEST_F(DataEvents, AboutTheSelectionOfAnUnlistedViewReachNone) {
    Old("old");
    New("new");
    RecordedView stranger(ctrl.get(), "old");
    static_cast<void>(Take());

    for (zbIBrowserView* view : std::initializer_list<zbIBrowserView*>{&stranger, nullptr}) {
        ctrl->OnUpdateViewSelection(view, {}, true, false);
        ctrl->OnViewSelectionChangeFinished(view);
        ctrl->OnPopupSelection(view, true);
    }

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(DataEvents, AreGivenToASnapshotOfTheViewsWithoutThoseThatWent) {
    Old("a");
    zbBrowserView& b = Old("b");
    Old("c");
    calls.On("OnDataItemCreated", "a", [&] {
        Delete(b);
        RecordingManager::CreateView(*ctrl, "later", false);
    });

    ctrl->OnDataItemCreated(&bolt, true);

    EXPECT_THAT(Take(), ElementsAre("a.OnDataItemCreated flat bolt true", "b.Destroyed",
                                    "later.Constructed", "c.OnDataItemCreated flat bolt true"));
}

TEST_F(DataEvents, GoOnWhenAViewDeletesItselfAndThoseBeforeIt) {
    zbBrowserView& a = Old("a");
    zbBrowserView& b = Old("b");
    Old("c");
    calls.On("OnGuiMapDeleted", "b", [&] {
        Delete(a);
        Delete(b);
    });

    ctrl->OnGuiMapDeleted("icons");

    EXPECT_THAT(Take(), ElementsAre("a.OnGuiMapDeleted icons", "b.OnGuiMapDeleted icons",
                                    "a.Destroyed", "b.Destroyed", "c.OnGuiMapDeleted icons"));
    std::vector<zbIBrowserView*> views;
    ctrl->GetViewList(views, nullptr);
    EXPECT_THAT(views, ElementsAre(ctrl->FindView("c")));
}

TEST_F(DataEvents, LeaveTheListsWholeWhenTheyNest) {
    zbBrowserView& a = Old("a");
    Old("b");
    Old("c");
    calls.On("OnGuiMapDeleted", "a", [&] {
        Delete(a);
        ctrl->OnBrowserColDisabled(true);
        std::vector<zbBrowserView*> views;
        EXPECT_EQ(ctrl->GetViewList(views, nullptr), 2U);
        EXPECT_EQ(ctrl->FindView("a"), nullptr);
    });

    ctrl->OnGuiMapDeleted("icons");

    EXPECT_THAT(Take(), ElementsAre("a.OnGuiMapDeleted icons", "a.Destroyed",
                                    "b.OnBrowserColDisabled true", "c.OnBrowserColDisabled true",
                                    "b.OnGuiMapDeleted icons", "c.OnGuiMapDeleted icons"));
}

TEST_F(DataEvents, LeaveTheListsWholeWhenAViewThrows) {
    zbBrowserView& a = Old("a");
    Old("b");
    calls.On("OnGuiMapDeleted", "a", [&] {
        Delete(a);
        throw 42;
    });
    EXPECT_THROW(ctrl->OnGuiMapDeleted("icons"), int);
    static_cast<void>(Take());

    ctrl->OnGuiMapDeleted("icons");

    EXPECT_THAT(Take(), ElementsAre("b.OnGuiMapDeleted icons"));
}

TEST_F(DataEvents, AskAViewWhetherItsItemIsSelected) {
    zbBrowserView& oldView = Old("old");
    zbbrowser::View& newView = New("new");
    ItemDouble oldItem(&oldView);
    ItemDouble newItem(&newView);
    calls.Remember(&oldItem, "bolt");
    calls.Remember(&newItem, "nut");

    EXPECT_TRUE(ctrl->IsViewItemSelected(&oldItem));
    EXPECT_TRUE(ctrl->IsViewItemSelected(&newItem));
    oldView.answer = newView.answer = false;
    EXPECT_FALSE(ctrl->IsViewItemSelected(&oldItem));
    EXPECT_FALSE(ctrl->IsViewItemSelected(&newItem));

    EXPECT_THAT(Take(), ElementsAre("old.IsViewItemSelected bolt", "new.IsViewItemSelected nut",
                                    "old.IsViewItemSelected bolt", "new.IsViewItemSelected nut"));
}

TEST_F(DataEvents, CallNoItemOfAnUnlistedViewSelected) {
    Old("old1");
    Old("old2");
    New("new");
    RecordedView stranger(ctrl.get(), "stranger");
    static_cast<void>(Take());
    ItemDouble item(&stranger);

    EXPECT_FALSE(ctrl->IsViewItemSelected(&item));
    EXPECT_FALSE(ctrl->IsViewItemSelected(nullptr));

    EXPECT_THAT(Take(), IsEmpty());
    EXPECT_EQ(item.timesAskedForView, 3) << "the item is asked once for each view";
}

} // namespace
} // namespace zbtest
