// SPDX-License-Identifier: MIT
//! \file
//! Events of flat data items and rebuilds, as the host reports them to the controller.

#include "ViewTestSupport.h"

#include <zbBrowserView/zbBrowserViewCtrl.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingItem;
using zbtest::RecordingSource;
using zbtest::ThrownText;

class DataEventsTest : public zbtest::ViewTest {
protected:
    RecordingSource& part = Connected("part", {"bolt_1", "nut_2"});
    FreeFolder& a = Folder("a");
    FreeFolder& b = Folder("b", &a);
    zbBrowserViewCtrl& controller = host.Controller();
};

// Created

TEST_F(DataEventsTest, ACreatedItemGetsARowAtTheEndOfEachFolderThatShowsItsSource) {
    Show(a, part);
    Show(b, part);

    controller.OnDataItemCreated(&part.Add("pin_3"), false);

    EXPECT_EQ(Rows(a), (Names{"b", "bolt_1", "nut_2", "pin_3"}));
    EXPECT_EQ(Rows(b), (Names{"bolt_1", "nut_2", "pin_3"}));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated pin_3", "ViewItemChanged a",
                                            "ViewItemCreated pin_3", "ViewItemChanged b"));
}

TEST_F(DataEventsTest, AnItemThatASlotFreesIsNotGivenToTheNextView) {
    // given
    auto& other = host.OldView("other");
    other.DataSourceConnect(&part);
    other.CreateList(other.GetRootFreeFolder(), &part, false);
    Show(a, part);
    auto& pin = part.Add("pin_3");
    signals.Once(&zbBrowserSignalManager::ViewItemChanged, [&](auto&&...) { part.Delete(pin); });

    // when
    controller.OnDataItemCreated(&pin, false);

    // then
    EXPECT_EQ(other.GetRootFreeFolder()->GetChildrenCount(), 2U);
    signals.Discard();
}

TEST_F(DataEventsTest, TheFlagOfACreationChangesNothing) {
    Show(a, part);
    controller.OnDataItemCreated(&part.Add("pin_3"), true);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemCreated pin_3", "ViewItemChanged a"));
}

TEST_F(DataEventsTest, AnItemReportedTwiceKeepsItsRow) {
    Show(a, part);
    auto& pin = part.Add("pin_3");
    controller.OnDataItemCreated(&pin, false);
    auto* const row = Row(a, "pin_3");
    signals.Discard();

    controller.OnDataItemCreated(&pin, false);

    EXPECT_EQ(Row(a, "pin_3"), row);
    EXPECT_EQ(a.GetChildrenCount(), 3U);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a"));
}

TEST_F(DataEventsTest, AnItemOfASourceThatNoFolderShowsChangesNothing) {
    auto& tool = Connected("tool", {});
    Show(a, part);
    controller.OnDataItemCreated(&tool.Add("saw_1"), false);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(DataEventsTest, AnItemOfASourceThatIsNotConnectedChangesNothing) {
    Show(a, part);
    view.DataSourceDisconnectAll(false);
    controller.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_EQ(Rows(a), (Names{"b", "bolt_1", "nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(DataEventsTest, AnItemWithoutASourceChangesNothing) {
    Show(a, part);
    auto& pin = part.Add("pin_3");
    pin.source = nullptr;
    controller.OnDataItemCreated(&pin, false);
    EXPECT_THAT(signals.take(), IsEmpty());
}

// Updated

TEST_F(DataEventsTest, AnUpdatedItemIsReportedAsAChangeOfTheFolder) {
    Show(a, part);
    controller.OnDataItemSimpleUpdated(&part["bolt_1"]);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a"));
}

TEST_F(DataEventsTest, AnUpdatedItemInTwoFoldersIsReportedForBoth) {
    Show(a, part);
    Show(b, part);
    controller.OnDataItemSimpleUpdated(&part["bolt_1"]);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a", "ViewItemChanged b"));
}

TEST_F(DataEventsTest, AnUpdatedItemWithoutARowIsNotReported) {
    Show(a, part);
    controller.OnDataItemSimpleUpdated(&part.Add("pin_3"));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(DataEventsTest, ADeletionThatTheControllerIsToldOfIsAnUpdate) {
    Show(a, part);
    controller.OnDataItemSimpleDeleted(&part["bolt_1"]);
    EXPECT_EQ(Rows(a), (Names{"b", "bolt_1", "nut_2"}));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a"));
}

TEST_F(DataEventsTest, TheRowsOfAnItemComeInPairsWithTheirFolders) {
    Show(a, part);
    Show(b, part);
    std::vector<zbIBrowserViewItem*> found;
    std::vector<zbIBrowserViewItem*> parents;
    view.GetDataDependentViewItems(&part["nut_2"], found, parents);
    EXPECT_THAT(found, ElementsAre(Row(a, "nut_2"), Row(b, "nut_2")));
    EXPECT_THAT(parents, ElementsAre(&a, &b));
}

// Deleted

TEST_F(DataEventsTest, ADeletedItemLosesItsRowsAtOnce) {
    Show(a, part);
    Show(b, part);

    view.OnDataItemDeleted(&part["bolt_1"]);

    EXPECT_EQ(Rows(a), (Names{"b", "nut_2"}));
    EXPECT_EQ(Rows(b), (Names{"nut_2"}));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemDeleted bolt_1", "ViewItemDeleted bolt_1"));
}

TEST_F(DataEventsTest, TheFolderIsReportedWhenItsLastRowGoes) {
    Show(b, part);
    view.OnDataItemDeleted(&part["bolt_1"]);
    signals.Discard();
    view.OnDataItemDeleted(&part["nut_2"]);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemDeleted nut_2", "ViewItemChanged b"));
}

TEST_F(DataEventsTest, ARowIsStillListedWhenItsDeletionIsAnnounced) {
    Show(b, part);
    Names then;
    signals.Once(&zbBrowserSignalManager::ViewItemDeleted, [&](auto*) { then = Rows(b); });
    view.OnDataItemDeleted(&part["bolt_1"]);
    EXPECT_EQ(then, (Names{"bolt_1", "nut_2"}));
    signals.Discard();
}

TEST_F(DataEventsTest, TheRowsOfAnItemCanBeDeletedSilently) {
    Show(a, part);
    view.DeleteDataDependentViewItems(&part["bolt_1"], true);
    EXPECT_EQ(Rows(a), (Names{"b", "nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(DataEventsTest, ARowOfAnotherSourceThanThoseOfItsFolderIsNotDeletedWithItsItem) {
    auto& tool = Connected("tool", {});
    part["nut_2"].source = &tool;
    Show(a, part);
    view.DeleteDataDependentViewItems(&part["nut_2"], false);
    EXPECT_EQ(Rows(a), (Names{"b", "bolt_1", "nut_2"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

// New rows, handed out

TEST_F(DataEventsTest, TheNewRowsAreHandedOutFolderByFolder) {
    Show(a, part);
    Show(b, part);
    std::vector<zbIBrowserViewItem*> created;
    std::vector<zbIBrowserViewItem*> parents;
    view.CreateDataDependentViewItems(&part.Add("pin_3"), created, parents, false);
    EXPECT_THAT(created, ElementsAre(Row(a, "pin_3"), Row(b, "pin_3")));
    EXPECT_THAT(parents, IsEmpty());
    signals.Discard();
}

TEST_F(DataEventsTest, ANewRowThatASlotDeletesIsNotHandedOut) {
    Show(a, part);
    Show(b, part);
    signals.Once(&zbBrowserSignalManager::ViewItemCreated,
                 [&](auto*) { view.DeleteList(&a, &part); });
    auto* const other = host.OldView("other").GetRootFreeFolder();
    std::vector<zbIBrowserViewItem*> created{other};
    std::vector<zbIBrowserViewItem*> parents;

    view.CreateDataDependentViewItems(&part.Add("pin_3"), created, parents, false);

    EXPECT_THAT(created, ElementsAre(other, Row(b, "pin_3")));
    signals.Discard();
}

TEST_F(DataEventsTest, WhereTheListGoesBeforeTheRowIsMadeNullIsHandedOut) {
    Show(a, part);
    auto& pin = part.Add("pin_3");
    int asked = 0;
    host.calls.On("GetDataSource", "pin_3", [&] {
        if (++asked == 4) {
            view.DeleteList(&a, &part);
        }
    });
    std::vector<zbIBrowserViewItem*> created;
    std::vector<zbIBrowserViewItem*> parents;

    view.CreateDataDependentViewItems(&pin, created, parents, false);

    EXPECT_THAT(created, ElementsAre(nullptr));
    signals.Discard();
}

// The guard

TEST_F(DataEventsTest, ACreationFromWithinAnUpdateIsDropped) {
    Show(a, part);
    auto& pin = part.Add("pin_3");
    signals.Once(&zbBrowserSignalManager::ViewItemChanged,
                 [&](auto*) { controller.OnDataItemCreated(&pin, false); });

    controller.OnDataItemSimpleUpdated(&part["bolt_1"]);

    EXPECT_EQ(Row(a, "pin_3"), nullptr);
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemChanged a"));
}

TEST_F(DataEventsTest, ADeletionFromWithinACreationIsDroppedAndNotMadeUpFor) {
    Show(a, part);
    signals.Once(&zbBrowserSignalManager::ViewItemCreated,
                 [&](auto*) { view.OnDataItemDeleted(&part["bolt_1"]); });
    controller.OnDataItemCreated(&part.Add("pin_3"), false);
    EXPECT_NE(Row(a, "bolt_1"), nullptr);
    signals.Discard();
}

TEST_F(DataEventsTest, ARebuildOfAllFromWithinAnEventIsDropped) {
    Show(a, part);
    auto* const row = Row(a, "bolt_1");
    signals.Once(&zbBrowserSignalManager::ViewItemChanged,
                 [&](auto*) { view.OnDataItemsRebuildAll(); });
    controller.OnDataItemSimpleUpdated(&part["bolt_1"]);
    EXPECT_EQ(Row(a, "bolt_1"), row);
    signals.Discard();
}

TEST_F(DataEventsTest, AnEventIsHeardAgainAfterTheLastOneIsOver) {
    Show(a, part);
    controller.OnDataItemSimpleUpdated(&part["bolt_1"]);
    controller.OnDataItemSimpleUpdated(&part["nut_2"]);
    EXPECT_EQ(signals.take().size(), 2U);
}

TEST_F(DataEventsTest, AnEventThatWasLeftByAnExceptionDropsAllLaterOnes) {
    Show(a, part);
    auto const connection =
        signals.On(&zbBrowserSignalManager::ViewItemCreated, [](auto*) { throw "slot failed"; });
    auto& pin = part.Add("pin_3");
    EXPECT_EQ(ThrownText([&] { controller.OnDataItemCreated(&pin, false); }), "slot failed");
    signals.Discard();

    controller.OnDataItemCreated(&part.Add("pin_4"), false);
    view.OnDataItemDeleted(&part["bolt_1"]);
    view.OnDataControlDeleted("data");

    EXPECT_EQ(Rows(a), (Names{"b", "bolt_1", "nut_2", "pin_3"}));
    EXPECT_EQ(view.GetDataCtrl(), &host.Control());
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(DataEventsTest, WhileAFolderIsBusyItAndTheFoldersBelowHearNoEvents) {
    Show(a, part);
    Show(b, part);
    auto& pin = part.Add("pin_3");
    signals.Once(&zbBrowserSignalManager::ViewItemListDeleted,
                 [&](auto&&) { controller.OnDataItemCreated(&pin, false); });

    view.SetFreeFolderGroupLeafs(&a, true);

    EXPECT_EQ(signals.Count("ViewItemCreated"), 0U);
    signals.Discard();
}

// Through the controller

TEST(OverriddenControllerTest, AChangeOfAFolderGoesThroughTheControllersOperation) {
    class Controller final : public zbBrowserViewCtrl {
    public:
        using zbBrowserViewCtrl::zbBrowserViewCtrl;
        void OnViewItemChanged(zbIBrowserViewItem* item) override { changed.push_back(item); }
        std::vector<zbIBrowserViewItem*> changed;
    };
    zbtest::RecordingHost host;
    Controller controller(&host.manager);
    ASSERT_TRUE(zbtest::RecordingManager::CreateView(controller, "view", false));
    zbBrowserView& view = *controller.OLD_FindView("view");
    view.SetDataCtrl(&host.Control());
    auto& part = host.Source("part").Items({"bolt_1"});
    view.DataSourceConnect(&part);
    view.CreateList(view.GetRootFreeFolder(), &part, false);

    view.OnDataItemUpdated(&part["bolt_1"]);

    EXPECT_THAT(controller.changed, ElementsAre(view.GetRootFreeFolder()));
}

} // namespace
