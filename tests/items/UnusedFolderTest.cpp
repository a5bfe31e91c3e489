// SPDX-License-Identifier: MIT
// A folder that never showed anything has no holder. Reading does not make one.
#include "ItemsTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UnusedFolderTest : public zbtest::ItemsTest {};

TEST_F(UnusedFolderTest, ReadingAFolderThatNeverShowedAnythingAnswersNothing) {
    Items rows{&root};
    Sources sources{&part};
    std::vector<zbIBrowserDataSource*> all{&part};
    std::vector<zbIBrowserDataSourceHierarchical*> trees(1);

    EXPECT_FALSE(folder.GetAllViewItems(rows, true));
    EXPECT_THAT(rows, IsEmpty());
    EXPECT_FALSE(folder.GetLists(sources));
    EXPECT_THAT(sources, IsEmpty());
    EXPECT_FALSE(folder.GetTrees(trees));
    EXPECT_THAT(trees, IsEmpty());
    EXPECT_FALSE(folder.GetAllDataSources(all, true));
    EXPECT_THAT(all, IsEmpty());
    EXPECT_EQ(folder.FindList("part"), nullptr);
    EXPECT_EQ(folder.FindList(&part), nullptr);
    EXPECT_EQ(folder.FindDataSourceSimple("part"), nullptr);
    EXPECT_EQ(folder.FindTree("tree"), nullptr);
    EXPECT_EQ(folder.GetChildrenCount(), 0U);
    EXPECT_FALSE(folder.HasDataSource(&part));
    EXPECT_EQ(folder.Holder(), nullptr);
}

TEST_F(UnusedFolderTest, ReadingTreesOfAFolderThatNeverShowedAnythingAnswersFalse) {
    auto& tree = host.Tree("tree", part);
    Sources types{&part};
    bool out = true;

    EXPECT_FALSE(folder.GetChildTypes(&tree, types));
    EXPECT_THAT(types, IsEmpty());
    EXPECT_FALSE(folder.IsChildTypeShown(&tree, &part, out));
    EXPECT_FALSE(folder.IsChildTypeGrouped(&tree, &part, out));
    EXPECT_EQ(folder.Holder(), nullptr);
}

TEST_F(UnusedFolderTest, AllListsOfAFolderThatNeverShowedAnythingAreNoneAndThatIsTrue) {
    Sources lists{&part};

    EXPECT_TRUE(folder.GetAllLists(lists, true));
    EXPECT_THAT(lists, IsEmpty());
}

TEST_F(UnusedFolderTest, AFolderThatNeverShowedAnythingEndsTheWayDownToFurtherLists) {
    auto& inner = NewFolder(NewFolder(folder, "between"), "inner");
    Show(folder, part);
    Show(inner, tool);
    Sources lists;

    EXPECT_TRUE(folder.GetAllLists(lists, true));
    EXPECT_THAT(lists, ElementsAre(&part));
}

TEST_F(UnusedFolderTest, DeletingFromAFolderThatNeverShowedAnythingIsTrue) {
    EXPECT_TRUE(folder.DeleteList(&part));
    EXPECT_TRUE(folder.DeleteTree(&host.Tree("tree", part)));
    EXPECT_EQ(folder.Holder(), nullptr);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(UnusedFolderTest, AddingMakesTheHolder) {
    folder.CreateList(&part);
    recorder.Discard();

    EXPECT_NE(folder.Holder(), nullptr);
}

} // namespace
