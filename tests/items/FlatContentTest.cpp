// SPDX-License-Identifier: MIT
// The content without grouping: rows directly in the folder.
#include "FlatContentFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FlatContentTest : public zbtest::FlatContentFixture {};

// Connecting

TEST_F(FlatContentTest, ConnectListMakesARowForEachItemInTheOrderOfTheSource) {
    Record(part);

    EXPECT_TRUE(content.ConnectList(&part, false));
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated bolt", "ViewItemCreated nut",
                                             "ViewItemCreated pin", "ViewItemChanged box"));
}

TEST_F(FlatContentTest, ARowIsThereWhenItsCreationIsSignalled) {
    Record(tool);
    recorder.Once(&zbBrowserSignalManager::ViewItemCreated, [&](zbIBrowserViewItem* item) {
        EXPECT_EQ(item->GetParent(), &folder);
        EXPECT_THAT(Rows(folder), ElementsAre("saw"));
    });
    content.ConnectList(&tool, false);

    EXPECT_EQ(recorder.Count("ViewItemCreated"), 2U);
    recorder.Discard();
}

TEST_F(FlatContentTest, ConnectListIsSilentWhenToldSo) {
    Record(part);

    EXPECT_TRUE(content.ConnectList(&part, true));
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, ConnectListOfASourceWithoutItemsSignalsNothing) {
    Record(host.Source("empty"));

    EXPECT_TRUE(content.ConnectList(&host.Source("empty"), false));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, ConnectListOfASourceThatFailsIsFalse) {
    Record(part);
    part.failing = true;

    EXPECT_FALSE(content.ConnectList(&part, false));
    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, ConnectListAgainAddsWhatIsNewAndSignalsTheFolderEvenIfNothingIs) {
    Show(folder, part);
    EXPECT_TRUE(content.ConnectList(&part, false));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
    part.Insert(0, "cam");

    content.ConnectList(&part, false);
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin", "cam"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated cam", "ViewItemChanged box"));
}

TEST_F(FlatContentTest, AnItemThatTheSourceListsTwiceHasOneRow) {
    part.ListTwice("bolt");
    Show(folder, part);

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_TRUE(content.Leaves().IsIndexInStep());
}

TEST_F(FlatContentTest, AnItemThatAppearsWhileItsSourceIsAskedHasOneRow) {
    Show(folder, part);
    auto& late = part.Add("late");
    Items created;
    Items parents;
    host.calls.On("GetDataSource", "late", [&] {
        host.calls.Off("GetDataSource", "late");
        content.OnDataItemCreated(&late, created, parents);
    });
    content.ConnectList(&part, true);

    EXPECT_TRUE(content.Leaves().IsIndexInStep());
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin", "late"));
    recorder.Discard();
}

TEST_F(FlatContentTest, ANewRowIsNotHiddenWhileNothingIsFiltered) {
    Show(folder, tool);

    EXPECT_FALSE(Row(folder, "saw").IsHidden());
}

// Disconnecting

TEST_F(FlatContentTest, DisconnectListDeletesItsRowsAndKeepsTheOthersInOrder) {
    Show(folder, part);
    Show(folder, tool);
    part.Add("rod");
    content.ConnectList(&part, true);

    EXPECT_TRUE(content.DisconnectList(&part, false));
    EXPECT_THAT(Rows(folder), ElementsAre("saw", "file"));
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt nut pin rod]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt nut pin rod]", "ViewItemChanged box"));
}

TEST_F(FlatContentTest, DisconnectListOnlyDeselectsWhenToldToBeSilent) {
    Show(folder, part);

    EXPECT_TRUE(content.DisconnectList(&part, true));
    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt nut pin]", "ViewItemsSelected []"));
}

TEST_F(FlatContentTest, DisconnectListWithoutRowsSignalsTheFolderOnly) {
    Record(part);

    EXPECT_TRUE(content.DisconnectList(&part, false));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
}

TEST_F(FlatContentTest, DisconnectListOfNullIsFalse) {
    EXPECT_FALSE(content.DisconnectList(nullptr, false));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, TheRowsAreOutOfTheFolderButAliveWhenTheirDeletionIsSignalled) {
    Show(folder, tool);
    recorder.Once(&zbBrowserSignalManager::ViewItemListDeleted, [&](Items& items) {
        EXPECT_THAT(NamesOf(items, host.calls), ElementsAre("saw", "file"));
        EXPECT_EQ(items.front()->GetParentFreeFolder(), &folder);
        EXPECT_THAT(Rows(folder), IsEmpty());
        items.clear(); // The library does not depend on what slots do with the list
    });
    content.DisconnectList(&tool, false);

    EXPECT_EQ(recorder.Count("ViewItemListDeleted"), 1U);
    recorder.Discard();
}

// Single items

TEST_F(FlatContentTest, ACreatedItemGetsARowBehindTheOthersAndTheFolderIsSignalled) {
    Show(folder, part);
    Show(folder, tool);
    Items created{&root};
    Items parents;

    EXPECT_TRUE(content.OnDataItemCreated(&part.Insert(0, "cam"), created, parents));
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin", "saw", "file", "cam"));
    EXPECT_THAT(created, ElementsAre(&root, &Row(folder, "cam")));
    EXPECT_THAT(parents, IsEmpty());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated cam", "ViewItemChanged box"));
}

TEST_F(FlatContentTest, AnItemThatHasARowKeepsItAndTheFolderIsSignalled) {
    Show(folder, part);
    Items created;
    Items parents;

    EXPECT_TRUE(content.OnDataItemCreated(&part["nut"], created, parents));
    EXPECT_THAT(created, ElementsAre(&Row(folder, "nut")));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
}

TEST_F(FlatContentTest, ACreatedNullIsFalse) {
    Items created;
    Items parents;

    EXPECT_FALSE(content.OnDataItemCreated(nullptr, created, parents));
    EXPECT_THAT(created, IsEmpty());
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, ADeletedItemLosesItsRow) {
    Show(folder, part);
    content.OnDataItemDeleted(&part["nut"], &part, false);

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "pin"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted nut"));
}

TEST_F(FlatContentTest, ADeletedItemLosesItsRowSilentlyWhenToldSo) {
    Show(folder, part);
    content.OnDataItemDeleted(&part["nut"], &part, true);

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "pin"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, TheRowOfADeletedItemIsStillInTheFolderWhenItIsSignalled) {
    Show(folder, part);
    recorder.Once(&zbBrowserSignalManager::ViewItemDeleted,
                  [&](auto*) { EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin")); });
    content.OnDataItemDeleted(&part["nut"], &part, false);

    EXPECT_EQ(recorder.Count("ViewItemDeleted"), 1U);
    recorder.Discard();
}

TEST_F(FlatContentTest, DeletingAnItemThatHasNoRowDoesNothing) {
    Show(folder, part);
    content.OnDataItemDeleted(&tool["saw"], &part, false);
    content.OnDataItemDeleted(nullptr, &part, false);

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, ARemovedRowIsDeletedLoudlyAndTheFolderNotSignalledWhileItShowsMore) {
    Show(folder, tool);
    content.OnViewItemRemoved(&Row(folder, "saw"));

    EXPECT_THAT(Rows(folder), ElementsAre("file"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted saw"));
}

TEST_F(FlatContentTest, RemovingTheLastRowSignalsTheFolderThoughItsListStays) {
    Show(folder, tool);
    content.OnViewItemRemoved(&Row(folder, "saw"));
    recorder.Discard();
    content.OnViewItemRemoved(&Row(folder, "file"));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted file", "ViewItemChanged box"));
}

TEST_F(FlatContentTest, RemovingTheLastVisibleRowSignalsTheFolder) {
    Show(folder, tool);
    Row(folder, "file").SetHidden(true);
    content.OnViewItemRemoved(&Row(folder, "saw"));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted saw", "ViewItemChanged box"));
}

TEST_F(FlatContentTest, RemovingTheLastRowDoesNotSignalAFolderWithChildFolders) {
    NewFolder(folder, "inner");
    auto& one = host.Source("one").Items({"only"});
    Show(folder, one);
    content.OnViewItemRemoved(&Row(folder, "only"));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted only"));
}

TEST_F(FlatContentTest, ARowOfAnotherFolderIsNotRemoved) {
    auto& second = NewFolder(root, "second");
    Show(second, part);
    Show(folder, part);
    content.OnViewItemRemoved(&Row(second, "nut"));
    content.OnViewItemRemoved(nullptr);
    content.OnViewItemRemoved(&folder);

    EXPECT_EQ(folder.GetChildrenCount(), 3U);
    EXPECT_EQ(second.GetChildrenCount(), 3U);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

// Finding

TEST_F(FlatContentTest, RowsOfASetOfItemsComeInTheOrderOfTheRows) {
    Show(folder, part);
    Items found{&root};
    Items parents;
    content.GetViewItems({&part["pin"], &tool["saw"], &part["bolt"]}, found, parents);

    EXPECT_THAT(found, ElementsAre(&root, &Row(folder, "bolt"), &Row(folder, "pin")));
    EXPECT_THAT(parents, ElementsAre(&folder, &folder));
}

TEST_F(FlatContentTest, TheRowOfAnItemIsFound) {
    Show(folder, part);
    Items found;
    Items parents;
    content.GetViewItems(&part["pin"], found, parents);
    content.GetViewItems(&tool["saw"], found, parents);
    content.GetViewItems(static_cast<zbIBrowserDataItemSimple*>(nullptr), found, parents);

    EXPECT_THAT(found, ElementsAre(&Row(folder, "pin")));
    EXPECT_THAT(parents, ElementsAre(&folder));
}

TEST_F(FlatContentTest, TheRowForTheDataItemOfAnotherRowIsFound) {
    auto& second = NewFolder(root, "second");
    Show(second, part);
    Show(second, tool);
    Show(folder, part);

    EXPECT_EQ(content.FindViewItem(&Row(second, "nut")), &Row(folder, "nut"));
    EXPECT_EQ(content.FindViewItem(&Row(second, "saw")), nullptr);
    EXPECT_EQ(content.FindViewItem(&second), nullptr);
    EXPECT_EQ(content.FindViewItem(nullptr), nullptr);
}

TEST_F(FlatContentTest, GetAllViewItemsAppendsAllRowsHiddenOnesIncluded) {
    Show(folder, tool);
    Row(folder, "saw").SetHidden(true);
    Items out{&root};
    content.GetAllViewItems(out, false);

    EXPECT_THAT(NamesOf(out, host.calls), ElementsAre("/", "saw", "file"));
    EXPECT_EQ(content.CountViewItems(false), 2U);
}

TEST_F(FlatContentTest, GetSortedItemsAppendsTheVisibleRows) {
    Show(folder, tool);
    Row(folder, "saw").SetHidden(true);
    Items out{&root};
    EXPECT_TRUE(content.GetSortedItems(out, false, true));

    EXPECT_THAT(NamesOf(out, host.calls), ElementsAre("/", "file"));
}

TEST_F(FlatContentTest, VisibleItemsAreThoseThatAreNotHidden) {
    EXPECT_FALSE(content.HasVisibleItems());
    Show(folder, tool);
    Row(folder, "saw").SetHidden(true);
    EXPECT_TRUE(content.HasVisibleItems());
    Row(folder, "file").SetHidden(true);

    EXPECT_FALSE(content.HasVisibleItems());
}

TEST_F(FlatContentTest, ApplyFilterShowsEveryRowWhileNothingIsFiltered) {
    Show(folder, tool);
    Row(folder, "file").SetHidden(true);

    EXPECT_TRUE(content.ApplyFilter());
    EXPECT_FALSE(Row(folder, "file").IsHidden());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemShown saw", "ViewItemShown file"));
}

TEST_F(FlatContentTest, DeleteAllDeletesTheRowsSilentlyAndKeepsTheLists) {
    Show(folder, part);
    content.DeleteAll();

    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_EQ(content.FindList(&part), &part);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(FlatContentTest, DeleteAllDependentIsTheSame) {
    Show(folder, part);
    content.DeleteAllDependent();

    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_EQ(content.FindList(&part), &part);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

//! A second row of an item can only come about inside the store; here it is put there.
class OutOfStepTest : public FlatContentTest {
protected:
    OutOfStepTest() {
        host.isCheckedAfterFailure = false;
        Show(folder, part);
        auto* const leaf = new (folder.Context().LeafMemory().Allocate())
            zbBrowserViewItemDataLeafInFreeFolder(folder, &part["bolt"], false);
        content.Leaves().Append(*leaf, &part);
    }
};

TEST_F(OutOfStepTest, EveryLookUpFindsNothing) {
    Items found;
    Items parents;
    content.GetViewItems(&part["nut"], found, parents);
    content.GetViewItems({&part["bolt"], &part["nut"]}, found, parents);

    EXPECT_THAT(found, IsEmpty());
    EXPECT_EQ(content.FindViewItem(&Row(folder, "nut")), nullptr);
}

TEST_F(OutOfStepTest, CreationGoesOnWithoutLooking) {
    content.ConnectList(&part, true);

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin", "bolt", "bolt", "nut", "pin"));
}

TEST_F(OutOfStepTest, ADeletedItemKeepsItsRow) {
    content.OnDataItemDeleted(&part["nut"], &part, false);

    EXPECT_EQ(folder.GetChildrenCount(), 4U);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(OutOfStepTest, DisconnectListLeavesTheRowsAndSignalsTheFolder) {
    EXPECT_TRUE(content.DisconnectList(&part, false));

    EXPECT_EQ(folder.GetChildrenCount(), 4U);
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged box"));
}

} // namespace
