// SPDX-License-Identifier: MIT
// Folders nested so deep that recursion would end the stack.
#include "ItemsTest.h"

#include <algorithm>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t depth = 20000;
#else
constexpr std::size_t depth = 100000;
#endif

using zbbrowser::detail::CallScope;

//! A chain of folders below "box", with a list in the last one. Its signals are not listened to.
class DeepFoldersTest : public zbtest::ItemsTest {
protected:
    DeepFoldersTest() {
        host.manager.signals = nullptr;
        auto* last = &folder;
        for (std::size_t i = 1; i < depth; ++i) {
            View().CreateFreeFolder(last, "f");
            last = last->ChildFolders().front().get();
        }
        bottom = last;
        bottom->CreateList(&part);
    }

    Folder* bottom = nullptr;
};

TEST_F(DeepFoldersTest, AreDeletedFromTheTop) {
    View().DeleteFreeFolder(&folder, true);

    EXPECT_EQ(root.ChildFolderCount(), 0U);
    EXPECT_EQ(View().FindFreeFolder(bottom), nullptr);
}

TEST_F(DeepFoldersTest, AreDestroyedWithTheView) {
    EXPECT_TRUE(host.DeleteView(View()));

    EXPECT_EQ(host.Controller().OLD_FindView("view"), nullptr);
}

TEST_F(DeepFoldersTest, AreDestroyedWithTheController) {
    host.DeleteController();

    EXPECT_EQ(part.All().size(), 3U);
}

TEST_F(DeepFoldersTest, AreParkedAndFreedWhenAnOperationRuns) {
    {
        CallScope const scope(Lifetime());
        View().DeleteFreeFolder(&folder, true);
        EXPECT_FALSE(bottom->IsAlive()) << "marked, and not yet freed";
    }
    EXPECT_EQ(root.ChildFolderCount(), 0U);
}

TEST_F(DeepFoldersTest, AreWalkedToTheirRows) {
    Items rows;
    EXPECT_TRUE(root.GetAllViewItems(rows, true));
    EXPECT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows.front()->GetParentFreeFolder(), bottom);
}

TEST_F(DeepFoldersTest, AreExpandedAndCollapsed) {
    EXPECT_TRUE(folder.ExpandRecursive(true));
    EXPECT_TRUE(bottom->IsExpanded());
    EXPECT_TRUE(folder.CollapseRecursive(true));
    EXPECT_FALSE(bottom->IsExpanded());
}

TEST_F(DeepFoldersTest, TakeTheirMarks) {
    EXPECT_TRUE(View().SetFreeFolderGroupLeafs(&folder, true));
    EXPECT_TRUE(View().SetFreeFolderStyle(&folder, true));
    folder.SetShowWhenEmpty(false, true);

    EXPECT_TRUE(bottom->GetGroupLeafs());
    EXPECT_TRUE(bottom->GetFreeFolderStyle());
    EXPECT_FALSE(bottom->GetShowWhenEmpty());
}

TEST_F(DeepFoldersTest, LoseAListThatStandsAtTheirEnd) {
    EXPECT_TRUE(root.DeleteListRecursive(&part));

    EXPECT_EQ(bottom->GetChildrenCount(), 0U);
}

TEST_F(DeepFoldersTest, PassAnEventToTheirEnd) {
    View().OnDataItemCreated(&part.Add("cam"), false);

    EXPECT_EQ(bottom->GetChildrenCount(), 4U);
    EXPECT_FALSE(bottom->IsBusy());
}

TEST_F(DeepFoldersTest, AreRebuiltFromTheirEnd) {
    part.dirty = true;
    part.Delete("nut");
    CallScope const scope(Lifetime());
    Flat(*bottom).RebuildDirty();

    EXPECT_EQ(bottom->GetChildrenCount(), 2U);
    EXPECT_EQ(host.manager.longOperations, 0);
}

TEST_F(DeepFoldersTest, HaveAPath) {
    zbString path;
    EXPECT_TRUE(View().GetFreeFolderAbsolutePathName(bottom, path));
    std::string const text = path.c_str();
    EXPECT_EQ(text.substr(0, 8), "/box/f/f");
    EXPECT_EQ(std::count(text.begin(), text.end(), '/'), static_cast<std::ptrdiff_t>(depth));
}

} // namespace
