// SPDX-License-Identifier: MIT
// Trees through a folder, and hosts that call back while they are asked about them.
#include "TreeSettingsFixture.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FreeFolderTreesTest : public zbtest::TreeSettingsFixture {};

TEST_F(FreeFolderTreesTest, AFolderKeepsTheTextOfARefusedCall) {
    EXPECT_FALSE(folder.SetChildTypeGrouped(&tree, &child, true));
    EXPECT_STREQ(folder.GetError(), "Tree type: machine not configured in the folder: box");
    folder.CreateTree(&tree);
    recorder.Discard();
    EXPECT_FALSE(folder.SetShowChildType(&tree, &own, false));

    EXPECT_STREQ(folder.GetError(), "Tree type: machine can not hide parent type: machine");
}

TEST_F(FreeFolderTreesTest, AFolderForwardsTheQuestionsAboutTypes) {
    folder.CreateTree(&tree);
    folder.SetChildTypeGrouped(&tree, &child, true);
    folder.SetShowChildType(&tree, &extra, false);
    recorder.Discard();
    bool out = false;
    Sources types;

    EXPECT_TRUE(folder.IsChildTypeGrouped(&tree, &child, out));
    EXPECT_TRUE(out);
    EXPECT_TRUE(folder.IsChildTypeShown(&tree, &extra, out));
    EXPECT_FALSE(out);
    EXPECT_TRUE(folder.GetChildTypes(&tree, types));
    EXPECT_THAT(types, ElementsAre(&own, &child));
    EXPECT_EQ(folder.FindTree("Machine"), &tree);
}

TEST_F(FreeFolderTreesTest, ShowingATypeOfNullThroughTheFolderIsFalseWithoutAText) {
    EXPECT_FALSE(folder.SetShowChildType(nullptr, &child, true));
    EXPECT_FALSE(folder.SetShowChildType(&tree, nullptr, true));
    EXPECT_STREQ(folder.GetError(), "");
}

TEST_F(FreeFolderTreesTest, AFolderGroupsAWholeTree) {
    folder.CreateTree(&tree);
    recorder.Discard();

    EXPECT_TRUE(folder.SetTreeGrouped(&tree, true));
    EXPECT_TRUE(IsGrouped(child));
    EXPECT_FALSE(folder.SetTreeGrouped(&host.Tree("other", own), true));
    EXPECT_STREQ(folder.GetError(), "Tree type: other not configured in the folder: box");
}

TEST_F(FreeFolderTreesTest, DeleteTreeRecursiveReachesAllFoldersBelow) {
    auto& inner = NewFolder(NewFolder(folder, "between"), "inner");
    inner.CreateTree(&tree);
    recorder.Discard();

    EXPECT_TRUE(folder.DeleteTreeRecursive(&tree));
    EXPECT_EQ(host.calls.Count("OnViewLost"), 1U);
    EXPECT_FALSE(folder.DeleteTreeRecursive(&tree));
    EXPECT_FALSE(folder.DeleteTreeRecursive(nullptr));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(FreeFolderTreesTest, GroupLeafsOfAFolderGroupsTheTypesOfItsTrees) {
    folder.CreateTree(&tree);
    SetGroupLeafs(folder, true);
    recorder.Discard();

    EXPECT_TRUE(IsGrouped(own));
    EXPECT_TRUE(IsGrouped(child));
}

// A host that calls back while it is asked

TEST_F(FreeFolderTreesTest, AHostMayTakeTheTreeOutWhileItIsAskedForItsTypes) {
    host.calls.On("GetChildTypes", "machine", [&] {
        host.calls.Off("GetChildTypes", "machine");
        trees.RemoveTree(&tree);
    });

    EXPECT_FALSE(trees.AddTree(&tree));
    EXPECT_FALSE(trees.HasTree(&tree));
    EXPECT_EQ(host.calls.Count("OnViewLost"), 1U);
    EXPECT_EQ(host.calls.Count("BeginChange"), 0U);
    recorder.Discard();
}

TEST_F(FreeFolderTreesTest, AHostMayTakeTheTreeOutWhenTheChangeBegins) {
    host.calls.On("BeginChange", "machine", [&] { trees.RemoveTree(&tree); });

    EXPECT_FALSE(trees.AddTree(&tree));
    EXPECT_FALSE(trees.HasTree(&tree));
    EXPECT_EQ(tree.changeDepth, 0);
    recorder.Discard();
}

TEST_F(FreeFolderTreesTest, AHostMayTakeTheTreeOutWhileTheTypesAreListed) {
    Add();
    host.calls.On("GetChildTypes", "machine", [&] {
        host.calls.Off("GetChildTypes", "machine");
        trees.RemoveTree(&tree);
    });
    Sources types;
    trees.GetChildTypes(&tree, types);

    EXPECT_FALSE(trees.HasTree(&tree));
    recorder.Discard();
}

TEST_F(FreeFolderTreesTest, AHostMayDeleteTheFolderWhileTheTypesAreListed) {
    Add();
    host.calls.On("GetChildTypes", "machine", [&] {
        host.calls.Off("GetChildTypes", "machine");
        View().DeleteFreeFolder(&folder, true);
    });
    Sources lists;
    folder.GetAllLists(lists, true);

    EXPECT_THAT(ChildNames(root), IsEmpty());
    recorder.Discard();
}

} // namespace
