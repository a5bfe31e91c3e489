// SPDX-License-Identifier: MIT
//! \file
//! Commands of the host to one view.
#include "ControlTest.h"

#include <zbBrowserView/host/PendingViewChangeInfo.h>

namespace zbtest {
namespace {

using Commands = ControlTest;

char const* const nullHit = "string: Null pointer hit";

TEST_F(Commands, ConnectingFlatSourcesReachesTheViewForEachInOrder) {
    zbBrowserView& view = Old("a");
    auto& bolt = data.Source("bolt");
    auto& nut = data.Source("nut");

    EXPECT_TRUE(
        ctrl->DataSourceConnect(&view, std::vector<zbIBrowserDataSourceSimple*>{&nut, &bolt}));

    EXPECT_THAT(Take(),
                ElementsAre("a.DataSourceConnect flat nut", "a.DataSourceConnect flat bolt"));
}

TEST_F(Commands, ConnectingTreesReachesTheViewForEachInOrder) {
    zbBrowserView& view = Old("a");
    auto& type = data.Source("part");
    auto& tree1 = data.Tree("tree1", type);
    auto& tree2 = data.Tree("tree2", type);

    EXPECT_TRUE(ctrl->DataSourceConnect(
        &view, std::vector<zbIBrowserDataSourceHierarchical*>{&tree2, &tree1}));

    EXPECT_THAT(Take(),
                ElementsAre("a.DataSourceConnect tree tree2", "a.DataSourceConnect tree tree1"));
}

TEST_F(Commands, ConnectingAnswersTrueAlthoughTheViewRefuses) {
    zbbrowser::View& view = New("a");
    view.answer = false;
    std::vector<zbIBrowserDataSourceSimple*> const sources{&data.Source("bolt")};

    EXPECT_TRUE(ctrl->DataSourceConnect(&view, sources));

    EXPECT_THAT(Take(), ElementsAre("a.DataSourceConnect flat bolt"));
}

TEST_F(Commands, ConnectingNothingAnswersTrueEvenWithoutAView) {
    EXPECT_TRUE(ctrl->DataSourceConnect(nullptr, std::vector<zbIBrowserDataSourceSimple*>{}));
    EXPECT_TRUE(ctrl->DataSourceConnect(nullptr, std::vector<zbIBrowserDataSourceHierarchical*>{}));
}

TEST_F(Commands, ConnectingASourceToNoViewThrows) {
    std::vector<zbIBrowserDataSourceSimple*> const sources{&data.Source("bolt")};

    EXPECT_EQ(Thrown([&] { ctrl->DataSourceConnect(nullptr, sources); }), nullHit);
}

TEST_F(Commands, ConnectingEndsWithAViewThatASourceDeletes) {
    zbBrowserView& view = Old("a");
    std::vector<zbIBrowserDataSourceSimple*> const sources{&data.Source("bolt"),
                                                           &data.Source("nut")};
    calls.On("DataSourceConnect", "a", [&] { Delete(view); });

    EXPECT_TRUE(ctrl->DataSourceConnect(&view, sources));

    EXPECT_THAT(Take(), ElementsAre("a.DataSourceConnect flat bolt", "a.Destroyed"));
}

TEST_F(Commands, ConnectingSurvivesASourceThatChangesTheList) {
    zbBrowserView& view = Old("a");
    std::vector<zbIBrowserDataSourceSimple*> sources{&data.Source("bolt"), &data.Source("nut")};
    calls.On("DataSourceConnect", "a",
             [&] { std::vector<zbIBrowserDataSourceSimple*>().swap(sources); });

    EXPECT_TRUE(ctrl->DataSourceConnect(&view, sources));

    EXPECT_THAT(Take(),
                ElementsAre("a.DataSourceConnect flat bolt", "a.DataSourceConnect flat nut"));
}

TEST_F(Commands, ConnectingReachesAViewThatIsNotListedToo) {
    RecordedView stranger(ctrl.get(), "stranger");
    static_cast<void>(Take());
    std::vector<zbIBrowserDataSourceSimple*> const sources{&data.Source("bolt"),
                                                           &data.Source("nut")};

    EXPECT_TRUE(ctrl->DataSourceConnect(&stranger, sources));

    EXPECT_THAT(Take(), ElementsAre("stranger.DataSourceConnect flat bolt",
                                    "stranger.DataSourceConnect flat nut"));
}

TEST_F(Commands, DisconnectingGivesTheViewsAnswer) {
    zbBrowserView& view = Old("a");

    EXPECT_TRUE(ctrl->DataSourceDisconnect(&view, "bolt"));
    view.answer = false;
    EXPECT_FALSE(ctrl->DataSourceDisconnect(&view, "nut"));

    EXPECT_THAT(Take(), ElementsAre("a.DataSourceDisconnect bolt", "a.DataSourceDisconnect nut"));
}

TEST_F(Commands, DisconnectingFromNoViewAnswersFalse) {
    EXPECT_FALSE(ctrl->DataSourceDisconnect(nullptr, "bolt"));
}

TEST_F(Commands, ItemsAreExpandedAndCollapsedByTheViewGiven) {
    zbBrowserView& oldView = Old("old");
    zbbrowser::View& newView = New("new");
    ItemDouble item(nullptr);
    calls.Remember(&item, "bolt");

    EXPECT_TRUE(ctrl->ExpandItem(&oldView, &item));
    EXPECT_TRUE(ctrl->CollapseItem(&oldView, &item));
    EXPECT_TRUE(ctrl->ExpandItem(&newView, &item));
    EXPECT_TRUE(ctrl->CollapseItem(&newView, &item));
    oldView.answer = newView.answer = false;
    EXPECT_FALSE(ctrl->ExpandItem(&oldView, nullptr));
    EXPECT_FALSE(ctrl->CollapseItem(&newView, nullptr));

    EXPECT_THAT(Take(), ElementsAre("old.Expand bolt", "old.Collapse bolt", "new.Expand bolt",
                                    "new.Collapse bolt", "old.Expand null", "new.Collapse null"));
}

TEST_F(Commands, AscendantsAreExpandedItemByItemInOldViewsOnly) {
    zbBrowserView& oldView1 = Old("old1");
    zbBrowserView& oldView2 = Old("old2");
    ItemDouble bolt(&oldView1);
    ItemDouble nut(&oldView2);
    ItemDouble newItem(&New("new"));
    calls.Remember(&bolt, "bolt");
    calls.Remember(&nut, "nut");

    ctrl->ExpandAscendants({&nut, &newItem, &bolt, &nut});

    EXPECT_THAT(Take(), ElementsAre("old2.ExpandAscendants nut", "old1.ExpandAscendants bolt",
                                    "old2.ExpandAscendants nut"));
}

TEST_F(Commands, AscendantsOfANullItemThrowAfterThoseBeforeIt) {
    ItemDouble bolt(&Old("old"));
    calls.Remember(&bolt, "bolt");

    EXPECT_EQ(Thrown([&] { ctrl->ExpandAscendants({&bolt, nullptr, &bolt}); }), nullHit);

    EXPECT_THAT(Take(), ElementsAre("old.ExpandAscendants bolt"));
}

TEST_F(Commands, ExpandingAscendantsSurvivesAViewThatChangesTheList) {
    zbBrowserView& view = Old("old");
    ItemDouble bolt(&view);
    ItemDouble nut(&view);
    calls.Remember(&bolt, "bolt");
    calls.Remember(&nut, "nut");
    std::vector<zbIBrowserViewItem*> items{&bolt, &nut};
    calls.On("ExpandAscendants", [&] { std::vector<zbIBrowserViewItem*>().swap(items); });

    ctrl->ExpandAscendants(items);

    EXPECT_THAT(Take(), ElementsAre("old.ExpandAscendants bolt", "old.ExpandAscendants nut"));
}

TEST_F(Commands, ExpandingAscendantsPassesOverItemsOfAViewThatIsDeletedMeanwhile) {
    zbBrowserView& view = Old("old");
    ItemDouble bolt(&view);
    auto nut = std::make_unique<ItemDouble>(&view);
    calls.Remember(&bolt, "bolt");
    calls.On("ExpandAscendants", [&] {
        EXPECT_EQ(nut->timesAskedForView, 1) << "later it would be too late";
        nut.reset();
        Delete(view);
    });

    ctrl->ExpandAscendants({&bolt, nut.get()});

    EXPECT_THAT(Take(), ElementsAre("old.ExpandAscendants bolt", "old.Destroyed"));
}

TEST_F(Commands, HidingReachesTheOldViewOfTheItem) {
    ItemDouble item(&Old("old"));
    calls.Remember(&item, "bolt");

    ctrl->HideItem(&item);

    EXPECT_THAT(Take(), ElementsAre("old.Hide bolt"));
}

TEST_F(Commands, HidingAnItemOfANewViewRunsTheViewsStepAndThenThrows) {
    ItemDouble item(&New("new"));
    calls.Remember(&item, "bolt");

    EXPECT_EQ(Thrown([&] { ctrl->HideItem(&item); }), nullHit);

    EXPECT_THAT(Take(), ElementsAre("new.Hide bolt"));
}

TEST_F(Commands, HidingNoItemThrows) {
    EXPECT_EQ(Thrown([&] { ctrl->HideItem(nullptr); }), nullHit);
}

TEST_F(Commands, DeselectingAllReachesTheView) {
    zbBrowserView& view = Old("old");

    ctrl->OnAllViewItemsDeselected(&view);

    EXPECT_THAT(Take(), ElementsAre("old.DeselectAllViewItems"));
}

TEST_F(Commands, TheBatchOperationsReachTheNewView) {
    zbbrowser::View& view = New("new");
    zbbrowser::PendingViewChangeInfo info;

    ctrl->Lock(&view, true);
    ctrl->Fill(&view, info);
    ctrl->UpdateDirtyForWindowItems(&view);
    ctrl->ClearDirtyForWindowItems(&view);
    ctrl->OnAllDataItemsDeleted(&view, true);
    ctrl->OnAllDataItemsDeleted(&view, false);
    ctrl->OnAllDirtyDataRebuild(&view, true);
    ctrl->OnAllDirtyDataRebuild(&view, false);
    ctrl->Lock(&view, false);

    EXPECT_THAT(Take(),
                ElementsAre("new.Lock true", "new.Fill", "new.UpdateDirtyForWindowItems",
                            "new.ClearDirtyForWindowItems", "new.AllDataDependentItemsDelete true",
                            "new.AllDataDependentItemsDelete false",
                            "new.AllDirtyDataDependentItemsRebuild true",
                            "new.AllDirtyDataDependentItemsRebuild false", "new.Lock false"));
}

TEST_F(Commands, TheRebuildsReachTheOldView) {
    zbBrowserView& view = Old("old");

    ctrl->OnAllDirtyDataListsRebuild(&view);
    ctrl->OnDataItemsRebuildAll(&view);

    EXPECT_THAT(Take(), ElementsAre("old.OnAllDirtyDataListsRebuild", "old.OnDataItemsRebuildAll"));
}

TEST_F(Commands, ANullViewThrows) {
    zbbrowser::View* const noNewView = nullptr;
    zbBrowserView* const noOldView = nullptr;
    zbbrowser::PendingViewChangeInfo info;
    zbBrowserViewCtrl& c = *ctrl;

    EXPECT_EQ(Thrown([&] { c.Fill(noNewView, info); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.ClearDirtyForWindowItems(noNewView); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.UpdateDirtyForWindowItems(noNewView); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.OnDataItemsRebuildAll(noOldView); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.OnAllDataItemsDeleted(noNewView, true); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.OnAllDirtyDataRebuild(noNewView, true); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.OnAllDirtyDataListsRebuild(noOldView); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.OnAllViewItemsDeselected(nullptr); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.Lock(noNewView, true); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.ExpandItem(noOldView, nullptr); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.ExpandItem(noNewView, nullptr); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.CollapseItem(noOldView, nullptr); }), nullHit);
    EXPECT_EQ(Thrown([&] { c.CollapseItem(noNewView, nullptr); }), nullHit);
}

} // namespace
} // namespace zbtest
