// SPDX-License-Identifier: MIT
//! \file
//! Commands of the host to a folder, which go to the folder's view.
#include "ControlTest.h"

namespace zbtest {
namespace {

using FolderCommands = ControlTest;

char const* const nullHit = "string: Null pointer hit";

TEST_F(FolderCommands, FoldersAreCreatedByTheOldViewOfTheParent) {
    zbBrowserView& view = Old("a");
    FolderDouble parent(&view, "tools");

    EXPECT_TRUE(RecordingManager::CreateFreeFolder(*ctrl, &parent, "drills"));
    view.answer = false;
    EXPECT_FALSE(RecordingManager::CreateFreeFolder(*ctrl, &parent, "saws"));

    EXPECT_THAT(Take(),
                ElementsAre("a.CreateFreeFolder tools drills", "a.CreateFreeFolder tools saws"));
}

TEST_F(FolderCommands, FoldersAreCreatedByTheNewViewOfTheParent) {
    FolderDouble parent(&New("a"), "tools");

    EXPECT_TRUE(RecordingManager::CreateFreeFolder(*ctrl, &parent, "drills"));

    EXPECT_THAT(Take(), ElementsAre("a.CreateFreeFolder tools drills"));
}

TEST_F(FolderCommands, CreatingAFolderInAViewThatIsNotListedAnswersFalse) {
    RecordedView stranger(ctrl.get(), "stranger");
    FolderDouble parent(&stranger, "tools");

    EXPECT_FALSE(RecordingManager::CreateFreeFolder(*ctrl, &parent, "drills"));

    EXPECT_THAT(Take(), ElementsAre("stranger.Constructed"));
    EXPECT_TRUE(ctrl->GetState());
}

TEST_F(FolderCommands, DeletingAFolderOfAViewThatIsNotListedThrows) {
    RecordedView stranger(ctrl.get(), "stranger");
    FolderDouble folder(&stranger, "tools");

    EXPECT_EQ(Thrown([&] { RecordingManager::DeleteFreeFolder(*ctrl, &folder, true); }), nullHit);
}

TEST_F(FolderCommands, FoldersAreDeletedByTheirView) {
    zbBrowserView& oldView = Old("old");
    FolderDouble oldFolder(&oldView, "tools");
    FolderDouble newFolder(&New("new"), "parts");

    EXPECT_TRUE(RecordingManager::DeleteFreeFolder(*ctrl, &oldFolder, true));
    EXPECT_TRUE(RecordingManager::DeleteFreeFolder(*ctrl, &newFolder, false));
    oldView.answer = false;
    EXPECT_FALSE(RecordingManager::DeleteFreeFolder(*ctrl, &oldFolder, false));

    EXPECT_THAT(Take(),
                ElementsAre("old.DeleteFreeFolder tools true", "new.DeleteFreeFolder parts false",
                            "old.DeleteFreeFolder tools false"));
}

TEST_F(FolderCommands, FoldersMustNotBeNull) {
    EXPECT_EQ(Thrown([&] { RecordingManager::CreateFreeFolder(*ctrl, nullptr, "drills"); }),
              nullHit);
    EXPECT_EQ(Thrown([&] { RecordingManager::DeleteFreeFolder(*ctrl, nullptr, true); }), nullHit);
}

// The view of a folder is looked up by its name, so one that is no part of the registry may stand
// for another that is.
TEST_F(FolderCommands, TheViewOfAFolderIsFoundByItsNameRegardlessOfCase) {
    Old("tools");
    RecordedView stranger(ctrl.get(), "TOOLS");
    static_cast<void>(Take());
    FolderDouble folder(&stranger, "drills");

    RecordingManager::CreateFreeFolder(*ctrl, &folder, "x");
    RecordingManager::DeleteFreeFolder(*ctrl, &folder, false);

    EXPECT_THAT(Take(), ElementsAre("tools.CreateFreeFolder drills x",
                                    "tools.DeleteFreeFolder drills false"));
}

//! A controller that notes when it is asked for a new view, and may deny that there is one.
class AskedForNewViews : public zbBrowserViewCtrl {
public:
    using zbBrowserViewCtrl::zbBrowserViewCtrl;

    zbbrowser::View* FindNewView(zbString const& name) const override {
        ++timesAsked;
        return denies ? nullptr : zbBrowserViewCtrl::FindNewView(name);
    }

    mutable int timesAsked = 0;
    bool denies = false;
};

TEST_F(FolderCommands, ForCreatingAFolderTheOldViewsAreSearchedFirst) {
    AskedForNewViews asked(&manager);
    RecordingManager::CreateView(asked, "old", false);
    FolderDouble parent(asked.OLD_FindView("old"), "tools");

    EXPECT_TRUE(RecordingManager::CreateFreeFolder(asked, &parent, "drills"));

    EXPECT_EQ(asked.timesAsked, 0);
}

TEST_F(FolderCommands, ForDeletingAFolderTheNewViewsAreSearchedFirst) {
    AskedForNewViews asked(&manager);
    RecordingManager::CreateView(asked, "old", false);
    FolderDouble folder(asked.OLD_FindView("old"), "tools");

    EXPECT_TRUE(RecordingManager::DeleteFreeFolder(asked, &folder, true));

    EXPECT_EQ(asked.timesAsked, 1);
}

TEST_F(FolderCommands, ForPendingChangesTheNewViewIsFoundByTheVirtualOperation) {
    AskedForNewViews asked(&manager);
    RecordingManager::CreateView(asked, "new", true);
    FolderDouble folder(asked.FindNewView("new"), "tools");
    asked.denies = true;

    EXPECT_EQ(Thrown([&] { asked.ApplyPendingChanges(&folder, true); }),
              "text: ApplyPendingChanges() supported for NEW view objects only.");
}

TEST_F(FolderCommands, PendingChangesAreAppliedByTheNewViewOfTheFolder) {
    zbbrowser::View& view = New("new");
    FolderDouble folder(&view, "tools");

    EXPECT_TRUE(ctrl->ApplyPendingChanges(&folder, true));
    view.answer = false;
    EXPECT_FALSE(ctrl->ApplyPendingChanges(&folder, false));

    EXPECT_THAT(Take(), ElementsAre("new.ApplyPendingChanges tools true",
                                    "new.ApplyPendingChanges tools false"));
}

TEST_F(FolderCommands, PendingChangesOfAnOldViewAreACallersMistake) {
    FolderDouble folder(&Old("old"), "tools");

    EXPECT_EQ(Thrown([&] { ctrl->ApplyPendingChanges(&folder, true); }),
              "text: ApplyPendingChanges() supported for NEW view objects only.");
}

TEST_F(FolderCommands, PendingChangesOfAFolderOfAnotherControllerAreRefused) {
    std::unique_ptr<zbBrowserViewCtrl> const other(CreateBrowserViewCtrl(&manager));
    ASSERT_NE(other, nullptr);
    zbbrowser::View& view = New("new");
    view.controller = other.get();
    FolderDouble folder(&view, "tools");

    EXPECT_EQ(Thrown([&] { ctrl->ApplyPendingChanges(&folder, true); }),
              "string: Attempt to operate on object belonging to different manager");
    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(FolderCommands, PendingChangesOfNoFolderThrow) {
    EXPECT_EQ(Thrown([&] { ctrl->ApplyPendingChanges(nullptr, true); }), nullHit);
}

} // namespace
} // namespace zbtest
