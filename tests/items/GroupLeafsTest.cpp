// SPDX-License-Identifier: MIT
// The flags of a folder that move or rebuild its content.
#include "ItemsTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::CallScope;

class GroupLeafsTest : public zbtest::ItemsTest {
protected:
    CallScope scope{Lifetime()};
    zbBrowserFreeFolderContentHolder& holder = folder.RequireHolder();
    zbtest::RecordingTree& tree = host.Tree("machine", host.Source("own"));
};

TEST_F(GroupLeafsTest, GroupLeafsMovesAllListsOfTheFolderAndOfThoseBelowChildrenFirst) {
    auto& inner = NewFolder(folder, "inner");
    Show(inner, part);
    Show(folder, tool);
    EXPECT_TRUE(folder.SetGroupLeafs(true));

    EXPECT_TRUE(inner.GetGroupLeafs());
    EXPECT_TRUE(folder.GetGroupLeafs());
    EXPECT_EQ(Grouped(inner).FindList(&part), &part);
    EXPECT_EQ(Grouped(folder).FindList(&tool), &tool);
    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemsDeselected [bolt nut pin]", "ViewItemsSelected []",
                            "ViewItemListDeleted [bolt nut pin]", "ViewItemChanged inner",
                            "ViewContentChanged view", "ViewContentChanged view",
                            "ViewItemsDeselected [saw file]", "ViewItemsSelected []",
                            "ViewItemListDeleted [saw file]", "ViewItemChanged box",
                            "ViewContentChanged view", "ViewContentChanged view"));
    EXPECT_FALSE(folder.IsBusy());
    EXPECT_FALSE(inner.IsBusy());
}

TEST_F(GroupLeafsTest, GroupLeafsOfABusyFolderIsFalseAndABusyFolderBelowIsPassedOver) {
    auto& inner = NewFolder(folder, "inner");
    folder.SetBusy(true);
    EXPECT_FALSE(folder.SetGroupLeafs(true));
    EXPECT_FALSE(folder.GetGroupLeafs());
    folder.SetBusy(false);
    inner.SetBusy(true);
    EXPECT_TRUE(folder.SetGroupLeafs(true));

    EXPECT_TRUE(folder.GetGroupLeafs());
    EXPECT_FALSE(inner.GetGroupLeafs());
}

TEST_F(GroupLeafsTest, StyleIsWrittenToAllFoldersBelowSilently) {
    auto& inner = NewFolder(folder, "inner");
    EXPECT_TRUE(folder.SetStyle(true));

    EXPECT_TRUE(folder.GetFreeFolderStyle());
    EXPECT_TRUE(inner.GetFreeFolderStyle());
    EXPECT_FALSE(root.GetFreeFolderStyle());
    EXPECT_THAT(recorder.take(), IsEmpty());
    folder.SetBusy(true);
    EXPECT_FALSE(folder.SetStyle(false));
    EXPECT_TRUE(folder.GetFreeFolderStyle());
}

class ShowEmptyContainersTest : public GroupLeafsTest {
protected:
    ShowEmptyContainersTest() {
        SetGroupLeafs(folder, true);
        recorder.Discard();
    }
};

TEST_F(ShowEmptyContainersTest, BuildsANewHolderWithTheListsAndTreesOfTheOldOne) {
    auto& inner = NewFolder(folder, "inner");
    folder.CreateList(&part);
    folder.CreateTree(&tree);
    recorder.Discard();

    EXPECT_TRUE(folder.SetShowEmptyContainers(true));
    EXPECT_TRUE(folder.GetShowEmptyContainers());
    EXPECT_FALSE(inner.GetShowEmptyContainers());
    EXPECT_NE(folder.Holder(), &holder);
    EXPECT_FALSE(holder.IsAlive());
    EXPECT_TRUE(Trees(folder).GetShowEmptyGroups());
    EXPECT_EQ(folder.FindList(&part), &part);
    EXPECT_EQ(folder.FindTree("machine"), &tree);
    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view", "ViewContentChanged view"));
    EXPECT_FALSE(folder.IsBusy());
}

TEST_F(ShowEmptyContainersTest, AListGoesToTheContentThatTheFolderAsksForNow) {
    folder.CreateList(&part);
    folder.SetListGrouped(&part, false);
    recorder.Discard();
    folder.SetShowEmptyContainers(true);

    EXPECT_EQ(Grouped(folder).FindList(&part), &part);
    EXPECT_THAT(Rows(folder), IsEmpty());
    recorder.Discard();
}

TEST_F(ShowEmptyContainersTest, TheMarksOfTheTypesOfTreesAreLost) {
    auto& child = host.Source("child");
    tree.childTypes = {&child};
    folder.CreateTree(&tree);
    folder.SetShowChildType(&tree, &child, false);
    folder.SetShowEmptyContainers(true);
    recorder.Discard();
    bool shown = false;
    folder.IsChildTypeShown(&tree, &child, shown);

    EXPECT_TRUE(shown);
}

TEST_F(ShowEmptyContainersTest, WithoutAChangeNothingIsBuilt) {
    folder.CreateList(&part);
    recorder.Discard();

    EXPECT_TRUE(folder.SetShowEmptyContainers(false));
    EXPECT_EQ(folder.Holder(), &holder);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(ShowEmptyContainersTest, MakesAHolderWhereThereWasNone) {
    auto& second = NewFolder(root, "second");
    SetGroupLeafs(second, true);
    ASSERT_EQ(second.Holder(), nullptr);
    second.SetShowEmptyContainers(true);

    EXPECT_NE(second.Holder(), nullptr);
}

TEST_F(ShowEmptyContainersTest, IsRefusedWithATextWhileLeafsAreNotGroupedInBothDirections) {
    auto& second = NewFolder(root, "second");
    EXPECT_FALSE(second.SetShowEmptyContainers(true));
    EXPECT_STREQ(second.GetError(), "Cannot show empty folders when grouping is disabled");
    EXPECT_FALSE(second.GetShowEmptyContainers());
    EXPECT_FALSE(second.IsBusy());

    folder.SetShowEmptyContainers(true);
    SetGroupLeafs(folder, false);
    EXPECT_FALSE(folder.SetShowEmptyContainers(false));
    EXPECT_TRUE(folder.GetShowEmptyContainers());
    recorder.Discard();
}

TEST_F(ShowEmptyContainersTest, OfABusyFolderIsFalse) {
    folder.SetBusy(true);

    EXPECT_FALSE(folder.SetShowEmptyContainers(true));
    EXPECT_FALSE(folder.GetShowEmptyContainers());
}

TEST_F(ShowEmptyContainersTest, ASlotMayDeleteAndFreeAListAndATreeWhoseTurnHasNotCome) {
    folder.CreateList(&part);
    folder.CreateList(&tool);
    folder.CreateTree(&tree);
    recorder.Discard();
    recorder.Once(&zbBrowserSignalManager::ViewContentChanged, [&](auto*) {
        EXPECT_TRUE(folder.DeleteList(&tool));
        EXPECT_TRUE(folder.DeleteTree(&tree));
        host.Control().DeleteSource("tool");
        host.Control().DeleteTree("machine");
    });
    folder.SetShowEmptyContainers(true);

    EXPECT_THAT(folder.Holder()->Lists(), ElementsAre(&part));
    EXPECT_FALSE(folder.Holder()->HasTrees());
    recorder.Discard();
}

TEST_F(ShowEmptyContainersTest, ASlotMayDeleteTheFolder) {
    folder.CreateList(&part);
    folder.CreateList(&tool);
    folder.CreateTree(&tree);
    recorder.Discard();
    recorder.Once(&zbBrowserSignalManager::ViewContentChanged, [&](auto*) {
        View().DeleteFreeFolder(&folder, true);
        host.Control().DeleteSource("tool");
        host.Control().DeleteTree("machine");
    });
    folder.SetShowEmptyContainers(true);

    EXPECT_THAT(ChildNames(root), IsEmpty());
    recorder.Discard();
}

TEST_F(GroupLeafsTest, ListCaptionNeedsAHolderAndAFolderThatIsNotBusy) {
    auto& second = NewFolder(root, "second");
    EXPECT_FALSE(second.SetListCaption(&part, "caption"));
    EXPECT_TRUE(folder.SetListCaption(&part, "caption"));
    EXPECT_TRUE(folder.SetListCaption(&part, nullptr));
    folder.SetBusy(true);

    EXPECT_FALSE(folder.SetListCaption(&part, "caption"));
}

} // namespace
