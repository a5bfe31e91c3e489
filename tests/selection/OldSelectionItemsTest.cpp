// SPDX-License-Identifier: MIT
//! \file
//! The items of an old view: dragged over, deselected with what is in them, and gone.
#include "OldSelectionFixture.h"

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(OldSelection, ADropOnAFolderKeepsTheFlatDataItemOfTheRowBefore) {
    Show(a, part);
    manager.SetDropItem(Row(a, "bolt"));

    manager.SetDropItem(&b);

    EXPECT_EQ(manager.GetDropDataItemSimple(), &part["bolt"]);
    EXPECT_TRUE(manager.IsDropOnFreeFolder());
}

TEST_F(OldSelection, ADropDoesNotKeepASourceThatIsDisconnected) {
    RecordingTree& tree = host.Tree("assembly", part);
    view.DataSourceConnect(&tree);
    View().CreateTree(&a, &tree);
    manager.SetDropItem(&a);

    view.DataSourceDisconnect("assembly");
    EXPECT_EQ(manager.GetDropDataSource(), nullptr);
    EXPECT_TRUE(manager.IsDropOnFreeFolder());

    b.SetAttachedObject(static_cast<zbIBrowserDataSource*>(&tool));
    manager.SetDropItem(&b);
    view.DataSourceDisconnectAll(false);
    EXPECT_EQ(manager.GetDropDataSource(), nullptr);
    signals.Discard();
}

TEST_F(OldSelection, ADropKeepsItsSourceWhileAnotherOneIsDisconnected) {
    a.SetAttachedObject(static_cast<zbIBrowserDataSource*>(&tool));
    manager.SetDropItem(&a);

    view.DataSourceDisconnect("part");

    EXPECT_EQ(manager.GetDropDataSource(), &tool);
}

// Items that go

TEST_F(OldSelection, AFlatDataItemThatIsKeptBehindAResetIsForgottenWithItsRow) {
    Show(a, part);
    manager.SetDropItem(Row(a, "bolt"));
    manager.ResetDropItem();

    View().OnDataItemDeleted(&part["bolt"]);

    EXPECT_EQ(manager.GetDropDataItemSimple(), nullptr);
    signals.Discard();
}

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
