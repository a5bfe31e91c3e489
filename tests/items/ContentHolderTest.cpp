// SPDX-License-Identifier: MIT
// The holder: which of the three contents gets what, and in which order.
#include "ItemsTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::CallScope;

class ContentHolderTest : public zbtest::ItemsTest {
protected:
    CallScope scope{Lifetime()};
    zbBrowserFreeFolderContentHolder& holder = folder.RequireHolder();
    zbtest::RecordingTree& tree = host.Tree("machine", host.Source("own"));
};

TEST_F(ContentHolderTest, KnowsItsFolder) {
    EXPECT_EQ(&holder.Folder(), &folder);
    EXPECT_TRUE(holder.IsAlive());
}

TEST_F(ContentHolderTest, VisitsTheContentsInTheirFixedOrder) {
    std::vector<zbBrowserFreeFolderContent*> visited;
    holder.ForEach([&](zbBrowserFreeFolderContent& content) { visited.push_back(&content); });

    EXPECT_THAT(visited,
                ElementsAre(&holder.NoGrouping(), &holder.WithGrouping(), &holder.WithTree()));
}

TEST_F(ContentHolderTest, StopsVisitingWhenItHasGone) {
    int visits = 0;
    holder.ForEach([&](zbBrowserFreeFolderContent&) {
        ++visits;
        View().DeleteFreeFolder(&folder, true);
    });

    EXPECT_EQ(visits, 1);
    recorder.Discard();
}

TEST_F(ContentHolderTest, AListGoesWhereTheFolderSaysAtThatMoment) {
    holder.CreateList(&part);
    SetGroupLeafs(NewFolder(root, "x"), true);
    EXPECT_EQ(holder.NoGrouping().FindList(&part), &part);
    EXPECT_EQ(holder.WithGrouping().FindList(&part), nullptr);

    auto& second = NewFolder(root, "second");
    SetGroupLeafs(second, true);
    second.CreateList(&part);
    EXPECT_EQ(Flat(second).FindList(&part), nullptr);
    EXPECT_EQ(Grouped(second).FindList(&part), &part);
    recorder.Discard();
}

TEST_F(ContentHolderTest, AListStaysWhereItIsWhenTheFolderChangesItsMindUntilItIsMoved) {
    holder.CreateList(&part);
    holder.CreateList(&tool);
    recorder.Discard();
    // The first list moves while the second still waits, and the mark is set already.
    recorder.Once(&zbBrowserSignalManager::ViewContentChanged, [&](auto*) {
        EXPECT_TRUE(folder.GetGroupLeafs());
        EXPECT_EQ(holder.NoGrouping().FindList(&part), nullptr);
        EXPECT_EQ(holder.NoGrouping().FindList(&tool), &tool);
    });
    SetGroupLeafs(folder, true);

    EXPECT_GE(recorder.Count("ViewContentChanged"), 1U);
    EXPECT_EQ(holder.WithGrouping().FindList(&tool), &tool);
    recorder.Discard();
}

TEST_F(ContentHolderTest, AListIsInOneContentOnly) {
    holder.CreateList(&part);
    holder.SetListGrouped(&part, true);
    recorder.Discard();

    EXPECT_FALSE(holder.CreateList(&part));
    EXPECT_EQ(holder.NoGrouping().FindList(&part), nullptr);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ContentHolderTest, DeleteListFindsItInEitherContent) {
    holder.CreateList(&part);
    holder.CreateList(&tool);
    holder.SetListGrouped(&tool, true);
    recorder.Discard();

    EXPECT_TRUE(holder.DeleteList(&part));
    EXPECT_TRUE(holder.DeleteList(&tool));
    EXPECT_FALSE(holder.HasLists());
    EXPECT_FALSE(holder.DeleteList(&tool));
    recorder.Discard();
}

TEST_F(ContentHolderTest, ListsAreTheUngroupedAndThenTheGroupedOnes) {
    holder.CreateList(&part);
    holder.CreateList(&tool);
    holder.SetListGrouped(&part, true);
    recorder.Discard();

    EXPECT_THAT(holder.Lists(), ElementsAre(&tool, &part));
    EXPECT_EQ(holder.FindList(&part), &part);
    EXPECT_EQ(holder.FindList("PART"), &part);
    EXPECT_EQ(holder.FindList("TOOL"), &tool);
}

TEST_F(ContentHolderTest, AnUngroupedListIsFoundByNameBeforeAGroupedOne) {
    auto& twin = host.Control("other").Source("PART");
    holder.CreateList(&part);
    holder.SetListGrouped(&part, true);
    holder.CreateList(&twin);
    recorder.Discard();

    EXPECT_EQ(holder.FindList("part"), &twin);
}

TEST_F(ContentHolderTest, HasListsWithAListInEitherContent) {
    EXPECT_FALSE(holder.HasLists());
    holder.CreateList(&part);
    EXPECT_TRUE(holder.HasLists());
    holder.SetListGrouped(&part, true);
    EXPECT_TRUE(holder.HasLists());
    EXPECT_FALSE(holder.HasTrees());
    recorder.Discard();
}

// Moving lists

TEST_F(ContentHolderTest, GroupingAListTakesItsRowsOutAndSignalsTheContentTwice) {
    holder.CreateList(&part);
    recorder.Discard();

    EXPECT_TRUE(holder.SetListGrouped(&part, true));
    EXPECT_THAT(Rows(folder), IsEmpty());
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt nut pin]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt nut pin]", "ViewItemChanged box",
                            "ViewContentChanged view", "ViewContentChanged view"));
}

TEST_F(ContentHolderTest, UngroupingAListBuildsItsRows) {
    holder.CreateList(&tool);
    holder.SetListGrouped(&tool, true);
    recorder.Discard();

    EXPECT_TRUE(holder.SetListGrouped(&tool, false));
    EXPECT_THAT(Rows(folder), ElementsAre("saw", "file"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view", "ViewItemCreated saw",
                                             "ViewItemCreated file", "ViewItemChanged box",
                                             "ViewContentChanged view"));
}

TEST_F(ContentHolderTest, AListThatIsThereAlreadyIsNotMoved) {
    holder.CreateList(&part);
    recorder.Discard();

    EXPECT_TRUE(holder.SetListGrouped(&part, false));
    EXPECT_EQ(holder.NoGrouping().FindList(&part), &part);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ContentHolderTest, GroupingASourceThatIsNoListGroupsTheTypeInAllTrees) {
    auto& child = host.Source("child");
    auto& other = host.Tree("other", child);
    tree.childTypes = {&child};
    holder.WithTree().AddTree(&tree);
    holder.WithTree().AddTree(&other);
    recorder.Discard();
    holder.SetListGrouped(&child, true);

    for (auto* const each : {&tree, &other}) {
        bool grouped = false;
        holder.WithTree().IsTypeGrouped(each, &child, grouped);
        EXPECT_TRUE(grouped);
    }
    bool own = true;
    holder.WithTree().IsTypeGrouped(&tree, &host.Source("own"), own);
    EXPECT_FALSE(own);
    EXPECT_EQ(holder.FindList(&child), nullptr);
}

TEST_F(ContentHolderTest, AMovedListThatFailsToConnectStaysListed) {
    holder.CreateList(&part);
    holder.SetListGrouped(&part, true);
    recorder.Discard();
    part.failing = true;

    EXPECT_FALSE(holder.SetListGrouped(&part, false));
    EXPECT_EQ(holder.NoGrouping().FindList(&part), &part);
    recorder.Discard();
}

TEST_F(ContentHolderTest, ASlotMayDeleteAListThatIsOnTheMove) {
    holder.CreateList(&part);
    recorder.Discard();
    recorder.Once(&zbBrowserSignalManager::ViewItemListDeleted, [&](auto&) {
        folder.DeleteList(&part);
        host.Control().DeleteSource("part");
    });
    holder.SetListGrouped(&part, true);

    EXPECT_FALSE(holder.HasLists());
    recorder.Discard();
}

TEST_F(ContentHolderTest, ASlotMayCreateAgainAListThatIsOnTheMove) {
    holder.CreateList(&part);
    recorder.Discard();
    recorder.Once(&zbBrowserSignalManager::ViewItemListDeleted,
                  [&](auto&) { folder.CreateList(&part); });
    holder.SetListGrouped(&part, true);

    EXPECT_EQ(holder.Lists().size(), 1U) << "in one content only";
    recorder.Discard();
}

// Events

TEST_F(ContentHolderTest, ACreatedItemReachesOnlyAContentThatHasItsList) {
    holder.CreateList(&part);
    recorder.Discard();
    Items created;
    Items parents;
    holder.OnDataItemCreated(&part.Add("cam"), created, parents);
    holder.OnDataItemCreated(&tool.Add("awl"), created, parents);

    EXPECT_THAT(NamesOf(created, host.calls), ElementsAre("cam"));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated cam", "ViewItemChanged box"));
}

TEST_F(ContentHolderTest, AnItemWithoutASourceReachesNoContent) {
    holder.CreateList(&part);
    recorder.Discard();
    auto& item = part.Add("cam");
    item.source = nullptr;
    Items created;
    Items parents;
    holder.OnDataItemCreated(&item, created, parents);

    EXPECT_THAT(created, IsEmpty());
}

TEST_F(ContentHolderTest, TheRowForTheDataItemOfAnotherRowIsFound) {
    auto& second = NewFolder(root, "second");
    Show(second, part);
    holder.CreateList(&part);
    recorder.Discard();

    EXPECT_EQ(holder.FindViewItem(&Row(second, "nut")), &Row(folder, "nut"));
    EXPECT_EQ(holder.FindViewItem(&second), nullptr);
    EXPECT_EQ(holder.FindGroup(&Row(second, "nut"), true), nullptr);
}

TEST_F(ContentHolderTest, AllRowsOfAllContentsAreCountedAndListed) {
    holder.CreateList(&tool);
    recorder.Discard();
    Items out{&root};
    holder.AppendAllViewItems(out, true);

    EXPECT_EQ(holder.CountViewItems(false), 2U);
    EXPECT_THAT(NamesOf(out, host.calls), ElementsAre("/", "saw", "file"));
    EXPECT_TRUE(holder.HasVisibleItems());
}

} // namespace
