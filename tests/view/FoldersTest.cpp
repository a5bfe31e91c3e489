// SPDX-License-Identifier: MIT
//! \file
//! Free folders of the old view: making, finding, deleting, paths.

#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "ViewTestSupport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::ThrownString;
using zbtest::ThrownText;

class FoldersTest : public zbtest::ViewTest {
protected:
    [[nodiscard]] std::string PathOf(FreeFolder const& folder) const {
        zbString out = "before";
        EXPECT_TRUE(view.GetFreeFolderAbsolutePathName(&folder, out));
        return out.c_str();
    }
    [[nodiscard]] std::vector<FreeFolder*> FoldersIn(FreeFolder& folder) const {
        std::vector<FreeFolder*> out;
        folder.GetChildFreeFolders(out, false, true);
        return out;
    }
    //! Puts a list into a folder that has no visible row.
    zbtest::RecordingSource& ShowEmptyList(FreeFolder& folder) {
        auto& part = Connected("empty", {});
        Show(folder, part);
        return part;
    }
};

// Making folders

TEST_F(FoldersTest, ANewFolderIsAnnouncedThenItsParent) {
    auto& a = Folder("a");
    EXPECT_TRUE(view.CreateFreeFolder(&a, "b"));
    EXPECT_THAT(signals.take(),
                ElementsAre("ViewItemCreated b", "FreeFolderCreated a", "ViewItemChanged a"));
}

TEST_F(FoldersTest, ANewFolderStandsBehindItsSiblings) {
    Folder("b");
    Folder("a");
    EXPECT_EQ(Rows(Root()), (Names{"b", "a"}));
}

TEST_F(FoldersTest, ANewFolderIsCollapsedUngroupedAndVisible) {
    auto& a = Folder("a");
    EXPECT_FALSE(a.IsExpanded());
    EXPECT_FALSE(a.GetGroupLeafs());
    EXPECT_FALSE(a.GetFreeFolderStyle());
    EXPECT_FALSE(a.GetShowEmptyContainers());
    EXPECT_TRUE(a.GetKeepChildrenInOrder());
    EXPECT_FALSE(a.IsHidden());
    EXPECT_TRUE(a.GetShowWhenEmpty());
    EXPECT_EQ(a.GetParentFreeFolder(), &Root());
}

TEST_F(FoldersTest, SiblingsMayHaveTheSameName) {
    auto& first = Folder("a");
    auto& second = Folder("a");
    EXPECT_NE(&first, &second);
    EXPECT_EQ(Rows(Root()), (Names{"a", "a"}));
    EXPECT_EQ(Root().FindChildFreeFolder("A"), &first);
}

TEST_F(FoldersTest, WithoutAParentNoFolderIsMade) {
    EXPECT_FALSE(view.CreateFreeFolder(nullptr, "a"));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FoldersTest, AParentOfAnotherViewGetsNoFolder) {
    auto& foreign = *host.View("other").GetRootFreeFolder();
    EXPECT_FALSE(view.CreateFreeFolder(&foreign, "a"));
    EXPECT_THAT(FoldersIn(foreign), IsEmpty());
}

// Finding folders

TEST_F(FoldersTest, AFolderIsFoundAtAnyDepth) {
    auto& b = Folder("b", &Folder("a"));
    EXPECT_EQ(view.FindFreeFolder(&b), &b);
    EXPECT_EQ(view.FindFreeFolder(&Root()), &Root());
}

TEST_F(FoldersTest, WhatIsNoFolderOfTheViewIsNotFound) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);
    EXPECT_EQ(view.FindFreeFolder(nullptr), nullptr);
    EXPECT_EQ(view.FindFreeFolder(Row(Root(), "bolt_1")), nullptr);
    EXPECT_EQ(view.FindFreeFolder(host.View("other").GetRootFreeFolder()), nullptr);
}

TEST_F(FoldersTest, OnlyTheRootIsTheVirtualRoot) {
    auto& a = Folder("a");
    EXPECT_TRUE(view.IsVirtualRoot(view.FindFreeFolder(&Root())));
    EXPECT_FALSE(view.IsVirtualRoot(view.FindFreeFolder(&a)));
    EXPECT_FALSE(view.IsVirtualRoot(nullptr));
}

// Deleting folders

TEST_F(FoldersTest, ADeletedFolderIsAnnouncedThenItsParent) {
    auto& a = Folder("a");
    EXPECT_TRUE(view.DeleteFreeFolder(&a, false));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemDeleted a", "ViewItemChanged /"));
    EXPECT_THAT(Rows(Root()), IsEmpty());
}

TEST_F(FoldersTest, AFolderIsStillInItsParentWhenItsDeletionIsAnnounced) {
    auto& a = Folder("a");
    Names then;
    signals.Once(&zbBrowserSignalManager::ViewItemDeleted, [&](auto*) { then = Rows(Root()); });
    view.DeleteFreeFolder(&a, false);
    EXPECT_EQ(then, (Names{"a"}));
    signals.Discard();
}

TEST_F(FoldersTest, AFolderHasLeftItsParentWhenTheParentIsReportedChanged) {
    auto& a = Folder("a");
    Names then{"not called"};
    signals.Once(&zbBrowserSignalManager::ViewItemChanged, [&](auto*) { then = Rows(Root()); });
    view.DeleteFreeFolder(&a, false);
    EXPECT_THAT(then, IsEmpty());
    signals.Discard();
}

TEST_F(FoldersTest, WithItsContentAFolderGoesWithoutASignalForWhatIsInIt) {
    auto& part = Connected("part", {"bolt_1"});
    auto& a = Folder("a");
    auto& b = Folder("b", &a);
    Show(a, part);
    Show(b, part);

    EXPECT_TRUE(view.DeleteFreeFolder(&a, true));

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemDeleted a", "ViewItemChanged /"));
    EXPECT_EQ(view.FindFreeFolder(&b), nullptr);
    EXPECT_EQ(host.calls.Count("OnDisconnected"), 0U);
}

TEST_F(FoldersTest, AFolderThatShowsRowsIsNotDeletedWithoutItsContent) {
    auto& part = Connected("part", {"bolt_1"});
    auto& a = Folder("a");
    Show(a, part);
    EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(&a, false); }),
              "Cannot delete non-empty folder. Use deletecontent flag or delete all content "
              "first.");
    EXPECT_EQ(Rows(a), (Names{"bolt_1"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FoldersTest, AFolderThatOnceShowedSomethingIsNotDeletedWithoutItsChildFolders) {
    auto& a = Folder("a");
    Folder("b", &a);
    auto& part = ShowEmptyList(a);
    view.DeleteList(&a, &part);
    signals.Discard();
    EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(&a, false); }),
              "Cannot delete non-empty folder. Use deletecontent flag or delete all content "
              "first.");
    EXPECT_EQ(Rows(a), (Names{"b"}));
}

TEST_F(FoldersTest, AFolderThatNeverShowedAnythingNamesItsChildFoldersInTheLaterTest) {
    auto& a = Folder("a");
    Folder("b", &a);
    EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(&a, false); }),
              "Attempt to delete non-empty free folder object");
    EXPECT_EQ(Rows(a), (Names{"b"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FoldersTest, AFolderWhoseListHasNoRowsIsNotDeletedWithoutItsContent) {
    auto& a = Folder("a");
    auto& list = ShowEmptyList(a);
    EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(&a, false); }),
              "Attempt to delete non-empty free folder object");
    EXPECT_EQ(view.FindList(&a, &list), &list);
}

TEST_F(FoldersTest, AFolderWhoseRowsAreAllHiddenIsNotDeletedWithoutItsContent) {
    auto& part = Connected("part", {"bolt_1"});
    auto& a = Folder("a");
    Show(a, part);
    dynamic_cast<zbBrowserViewItemDataLeaf*>(Row(a, "bolt_1"))->SetHidden(true);
    EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(&a, false); }),
              "Attempt to delete non-empty free folder object");
    EXPECT_EQ(a.GetChildrenCount(), 1U);
}

TEST_F(FoldersTest, AFolderWithATreeIsNotDeletedWithoutItsContent) {
    auto& tree = ConnectedTree("assembly");
    auto& a = Folder("a");
    ASSERT_TRUE(view.CreateTree(&a, &tree));
    signals.Discard();
    EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(&a, false); }),
              "Attempt to delete non-empty free folder object");
    EXPECT_EQ(view.FindTree(&a, &tree), &tree);
}

TEST_F(FoldersTest, AFolderWhoseContentWasTakenOutIsDeletedWithoutTheFlag) {
    auto& part = Connected("part", {"bolt_1"});
    auto& a = Folder("a");
    Show(a, part);
    view.DeleteList(&a, &part);
    signals.Discard();
    EXPECT_TRUE(view.DeleteFreeFolder(&a, false));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemDeleted a", "ViewItemChanged /"));
}

TEST_F(FoldersTest, NullUnknownFoldersAndTheRootCannotBeDeleted) {
    auto& foreign = *host.View("other").GetRootFreeFolder();
    for (FreeFolder* const folder : {static_cast<FreeFolder*>(nullptr), &foreign, &Root()}) {
        EXPECT_EQ(ThrownString([&] { view.DeleteFreeFolder(folder, true); }), "Null pointer hit");
    }
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FoldersTest, AFolderWhoseParentWasWrittenOverIsNotFoundInThatParent) {
    auto& a = Folder("a");
    auto& b = Folder("b");
    b.SetParentFolder(&a);
    EXPECT_EQ(ThrownText([&] { view.DeleteFreeFolder(&b, true); }),
              "Unable to find children folder in a folder");
    EXPECT_EQ(Rows(Root()), (Names{"a", "b"}));
}

TEST_F(FoldersTest, DeletingOneOfManySiblingsKeepsTheOrderOfTheOthers) {
    Names expected;
    std::vector<FreeFolder*> folders(200);
    for (std::size_t i = 0; i < folders.size(); ++i) {
        folders[i] = &Folder(std::to_string(i).c_str());
    }
    for (std::size_t i = 0; i < folders.size(); ++i) {
        if (i % 5 == 0) {
            expected.push_back(folders[i]->GetName());
        } else {
            view.DeleteFreeFolder(folders[i], true);
        }
    }
    EXPECT_EQ(Rows(Root()), expected);
    signals.Discard();
}

// Paths and kinds

TEST_F(FoldersTest, ThePathOfTheRootIsASlash) {
    EXPECT_EQ(PathOf(Root()), "/");
}

TEST_F(FoldersTest, APathNamesEachFolderBelowTheRoot) {
    auto& a = Folder("a");
    auto& b = Folder("b", &a);
    EXPECT_EQ(PathOf(a), "/a");
    EXPECT_EQ(PathOf(b), "/a/b");
}

TEST_F(FoldersTest, NullHasNoPathAndTheOutputStays) {
    zbString out = "before";
    EXPECT_FALSE(view.GetFreeFolderAbsolutePathName(nullptr, out));
    EXPECT_STREQ(out.c_str(), "before");
}

TEST_F(FoldersTest, APathIsToldOfAnyViewsFolderHoweverDeep) {
    auto& other = host.OldView("other");
    FreeFolder* folder = other.GetRootFreeFolder();
    std::string expected;
    for (int i = 0; i < 50; ++i) {
        other.CreateFreeFolder(folder, "f");
        folder = folder->FindChildFreeFolder("f");
        expected += "/f";
    }
    signals.Discard();
    EXPECT_EQ(PathOf(*folder), expected);
}

TEST_F(FoldersTest, APathThroughWrittenParentsThatLeadInACircleEnds) {
    auto& a = Folder("a");
    auto& b = Folder("b");
    a.SetParentFolder(&b);
    b.SetParentFolder(&a);
    EXPECT_EQ(PathOf(a), "/b/a");
}

TEST_F(FoldersTest, FoldersArePickedOutOfItemsInOrder) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);
    auto& a = Folder("a");
    std::vector<FreeFolder*> out{nullptr};
    EXPECT_TRUE(view.GetFreeFoldersFromViewItems({&a, Row(Root(), "bolt_1"), &Root()}, out));
    EXPECT_THAT(out, ElementsAre(&a, &Root()));
}

TEST_F(FoldersTest, NoItemsAreNoFolders) {
    std::vector<FreeFolder*> out{nullptr};
    EXPECT_TRUE(view.GetFreeFoldersFromViewItems({}, out));
    EXPECT_THAT(out, IsEmpty());
}

TEST_F(FoldersTest, AForeignItemEndsThePickingAndWhatWasFoundStays) {
    auto& a = Folder("a");
    auto& foreign = *host.View("other").GetRootFreeFolder();
    std::vector<FreeFolder*> out;
    EXPECT_FALSE(view.GetFreeFoldersFromViewItems({&a, &foreign, &Root()}, out));
    EXPECT_THAT(out, ElementsAre(&a));
    EXPECT_FALSE(view.GetFreeFoldersFromViewItems({&Root(), nullptr}, out));
    EXPECT_THAT(out, ElementsAre(&Root()));
}

} // namespace
