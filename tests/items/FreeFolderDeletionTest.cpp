// SPDX-License-Identifier: MIT
// Deleting old free folders.
#include "ItemsTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FreeFolderDeletionTest : public zbtest::ItemsTest {};

TEST_F(FreeFolderDeletionTest, DeletingASubtreeSignalsItsTopOnly) {
    auto& a = NewFolder(folder, "a");
    Show(NewFolder(a, "b"), part);
    View().DeleteFreeFolder(&folder, true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted box", "ViewItemChanged /"));
}

TEST_F(FreeFolderDeletionTest, AllFoldersOfADeletedSubtreeAreForgottenByTheView) {
    auto& a = NewFolder(folder, "a");
    auto& b = NewFolder(a, "b");
    EXPECT_EQ(View().FindFreeFolder(&b), &b);
    View().DeleteFreeFolder(&folder, true);
    recorder.Discard();

    for (auto const* const gone : {&folder, &a, &b})
        EXPECT_EQ(View().FindFreeFolder(gone), nullptr);
}

TEST_F(FreeFolderDeletionTest, TheContentHasGoneWhenTheDeletionIsSignalled) {
    auto& a = NewFolder(folder, "a");
    Show(folder, part);
    recorder.Once(&zbBrowserSignalManager::ViewItemDeleted, [&](zbIBrowserViewItem* item) {
        EXPECT_EQ(item, &folder);
        EXPECT_EQ(item->GetView(), &View());
        EXPECT_TRUE(folder.IsContentEmpty());
        EXPECT_EQ(View().FindFreeFolder(&folder), &folder) << "still there";
        EXPECT_EQ(View().FindFreeFolder(&a), nullptr);
    });
    View().DeleteFreeFolder(&folder, true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted box", "ViewItemChanged /"));
}

TEST_F(FreeFolderDeletionTest, AFolderThatTheParentDoesNotHoldIsNotDeletedThere) {
    auto& other = NewFolder(root, "other");
    try {
        other.DeleteChildFolder(folder, true);
        FAIL() << "nothing was thrown";
    } catch (char const* text) {
        EXPECT_STREQ(text, "Unable to find children folder in a folder");
    }
    EXPECT_THAT(ChildNames(root), ElementsAre("box", "other"));
}

TEST_F(FreeFolderDeletionTest, AFolderWithVisibleRowsIsNotDeletedWithoutItsContent) {
    Show(folder, part);
    try {
        root.DeleteChildFolder(folder, false);
        FAIL() << "nothing was thrown";
    } catch (char const* text) {
        EXPECT_STREQ(text, "Cannot delete non-empty folder. Use deletecontent flag or delete all "
                           "content first.");
    }
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
}

TEST_F(FreeFolderDeletionTest, AFolderWhoseRowsAreAllHiddenIsNotDeletedWithoutItsContent) {
    Show(folder, tool);
    Row(folder, "saw").SetHidden(true);
    Row(folder, "file").SetHidden(true);
    try {
        root.DeleteChildFolder(folder, false);
        FAIL() << "nothing was thrown";
    } catch (char const* text) {
        EXPECT_STREQ(text, "Attempt to delete non-empty free folder object");
    }
    EXPECT_THAT(ChildNames(root), ElementsAre("box"));
}

TEST_F(FreeFolderDeletionTest, AFolderWithAListWithoutItemsIsNotDeletedWithoutItsContent) {
    Show(folder, host.Source("empty"));

    EXPECT_THROW(root.DeleteChildFolder(folder, false), char const*);
}

TEST_F(FreeFolderDeletionTest, AFolderThatNeverShowedAnythingIsNotDeletedWhileItHasChildFolders) {
    NewFolder(folder, "inner");
    ASSERT_EQ(folder.Holder(), nullptr);
    try {
        root.DeleteChildFolder(folder, false);
        FAIL() << "nothing was thrown";
    } catch (char const* text) {
        EXPECT_STREQ(text, "Attempt to delete non-empty free folder object");
    }
    EXPECT_THAT(ChildNames(folder), ElementsAre("inner"));
}

TEST_F(FreeFolderDeletionTest, AnEmptyFolderIsDeletedWithoutItsContent) {
    Show(folder, part);
    folder.DeleteList(&part);
    recorder.Discard();
    root.DeleteChildFolder(folder, false);

    EXPECT_THAT(ChildNames(root), IsEmpty());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemDeleted box", "ViewItemChanged /"));
}

} // namespace
