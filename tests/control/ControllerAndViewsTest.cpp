// SPDX-License-Identifier: MIT
//! \file
//! The controller together with real views of both generations.
#include "support/ItemDoubles.h"
#include "support/RecordingHost.h"
#include "support/SignalRecorder.h"
#include "support/Thrown.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserInfo.h>

#include <gmock/gmock.h>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ControllerAndViews : public testing::Test {
protected:
    ControllerAndViews() { host.Source("part").Items({"bolt", "nut"}); }

    zbBrowserViewCtrl& Ctrl() { return host.Controller(); }

    //! An old view that shows the rows of "part" in its root.
    zbBrowserView& Showing(char const* name) {
        zbBrowserView& view = host.OldView(name);
        view.DataSourceConnect(&host.Source("part"));
        view.CreateList(view.GetRootFreeFolder(), &host.Source("part"), false);
        return view;
    }

    static std::size_t Rows(zbBrowserView const& view) {
        std::vector<zbIBrowserViewItem*> rows;
        view.GetChildren(rows, view.GetRootFreeFolder());
        return rows.size();
    }

    RecordingHost host;
};

TEST_F(ControllerAndViews, ShareNamesAcrossGenerationsRegardlessOfCase) {
    host.NewView("parts");

    EXPECT_EQ(Thrown([&] { RecordingManager::CreateView(Ctrl(), "PARTS", false); }),
              "text: View with specified name already exists");
    EXPECT_EQ(Ctrl().OLD_FindView("parts"), nullptr);
}

TEST_F(ControllerAndViews, ShareTheVersionRecord) {
    EXPECT_EQ(host.OldView("old").GetBrowserInfo(), Ctrl().GetBrowserInfo());
    EXPECT_EQ(host.NewView("new").GetBrowserInfo(), Ctrl().GetBrowserInfo());
}

TEST_F(ControllerAndViews, SayOfWhichGenerationTheyAre) {
    EXPECT_FALSE(host.OldView("old").IsNewView());
    EXPECT_TRUE(host.NewView("new").IsNewView());
    EXPECT_EQ(host.OldView("old").GetViewCtrl(), &Ctrl());
}

TEST_F(ControllerAndViews, CreateFoldersThroughTheManagerInOldViews) {
    zbBrowserView& view = host.OldView("old");

    EXPECT_TRUE(RecordingManager::CreateFreeFolder(Ctrl(), view.GetRootFreeFolder(), "tools"));

    EXPECT_NE(view.GetRootFreeFolder()->FindChildFreeFolder("tools"), nullptr);
}

TEST_F(ControllerAndViews, DeleteFoldersThroughTheManagerInOldViews) {
    zbBrowserView& view = host.OldView("old");
    RecordingManager::CreateFreeFolder(Ctrl(), view.GetRootFreeFolder(), "tools");

    EXPECT_TRUE(RecordingManager::DeleteFreeFolder(
        Ctrl(), view.GetRootFreeFolder()->FindChildFreeFolder("tools"), true));

    EXPECT_EQ(view.GetRootFreeFolder()->FindChildFreeFolder("tools"), nullptr);
}

TEST_F(ControllerAndViews, RefuseToHideAnItemOfANewView) {
    ItemDouble item(&host.NewView("new"));

    EXPECT_EQ(Thrown([&] { Ctrl().HideItem(&item); }), "string: Null pointer hit");
}

TEST_F(ControllerAndViews, ApplyPendingChangesInNewViewsOnly) {
    zbIBrowserViewItemFreeFolder* const oldRoot = host.OldView("old").GetRootFreeFolder();
    FolderDouble newFolder(&host.NewView("new"), "tools");

    EXPECT_EQ(Thrown([&] { Ctrl().ApplyPendingChanges(oldRoot, true); }),
              "text: ApplyPendingChanges() supported for NEW view objects only.");
    EXPECT_EQ(Thrown([&] { Ctrl().ApplyPendingChanges(&newFolder, true); }),
              "string: Null pointer hit")
        << "no folder of that view";
}

TEST_F(ControllerAndViews, RefuseFoldersOfAnotherController) {
    RecordingHost other;
    FolderDouble folder(&other.NewView("new"), "tools");
    host.NewView("new");

    EXPECT_EQ(Thrown([&] { Ctrl().ApplyPendingChanges(&folder, true); }),
              "string: Attempt to operate on object belonging to different manager");
}

TEST_F(ControllerAndViews, HearOfCreatedItemsThroughTheController) {
    zbBrowserView& view = Showing("old");
    RecordingItem& screw = host.Source("part").Add("screw");

    Ctrl().OnDataItemCreated(&screw, true);

    EXPECT_EQ(Rows(view), 3U);
}

TEST_F(ControllerAndViews, KeepTheRowOfADeletedItemUntilTheyAreRebuilt) {
    zbBrowserView& view = Showing("old");
    RecordingItem& bolt = host.Source("part").Unlist("bolt");

    Ctrl().OnDataItemSimpleDeleted(&bolt);

    EXPECT_EQ(Rows(view), 2U);
}

TEST_F(ControllerAndViews, LetGoOfADeletedDataControl) {
    zbBrowserView& oldView = Showing("old");
    zbbrowser::View& newView = host.NewView("new");

    Ctrl().OnDataControlDeleted("data");

    EXPECT_EQ(oldView.GetDataCtrl(), nullptr);
    EXPECT_EQ(newView.GetDataCtrl(), nullptr);
    EXPECT_EQ(Rows(oldView), 0U);
    EXPECT_EQ(host.Source("part").connections, 0);
}

TEST_F(ControllerAndViews, KeepADataControlWhoseNameDiffersInCase) {
    zbBrowserView& oldView = Showing("old");
    zbbrowser::View& newView = host.NewView("new");

    Ctrl().OnDataControlDeleted("Data");

    EXPECT_EQ(oldView.GetDataCtrl(), &host.Control());
    EXPECT_EQ(newView.GetDataCtrl(), &host.Control());
}

TEST_F(ControllerAndViews, LetALockedNewViewLoseItsDataControlThroughTheController) {
    zbbrowser::View& newView = host.NewView("new");
    newView.Lock(true);

    Ctrl().OnDataControlDeleted("data");

    EXPECT_EQ(newView.GetDataCtrl(), nullptr) << "only the view's own event heeds the lock";
}

TEST_F(ControllerAndViews, ReleaseADataControlWithTheLastViewOfAGeneration) {
    zbBrowserView& oldView = host.OldView("old");
    host.NewView("new");

    host.DeleteView(oldView);

    EXPECT_EQ(host.calls.Count("Release", "data"), 1U);
}

// A view that is deleted from within one of its own signals is no view of the controller any more,
// and is freed when its operation returns.

TEST_F(ControllerAndViews, LoseAViewThatIsDeletedWhileItTellsOfANewRow) {
    zbBrowserView& view = Showing("a");
    zbBrowserView& other = Showing("b");
    RecordingItem& screw = host.Source("part").Add("screw");
    SignalRecorder recorder(host);
    recorder.Once(&zbBrowserSignalManager::ViewItemCreated, [&](zbIBrowserViewItem* row) {
        EXPECT_EQ(row->GetView(), &view);
        EXPECT_TRUE(host.DeleteView(view));
        EXPECT_EQ(Ctrl().FindView("a"), nullptr);
        EXPECT_EQ(row->GetDataItemSimple(), &screw) << "the row lives until the operation returns";
    });

    Ctrl().OnDataItemCreated(&screw, true);

    recorder.Discard();
    EXPECT_EQ(Ctrl().FindView("a"), nullptr);
    EXPECT_EQ(Rows(other), 3U);
}

TEST_F(ControllerAndViews, LoseAllViewsThatAreDeletedInOneEvent) {
    zbBrowserView& a = Showing("a");
    zbBrowserView& b = Showing("b");
    RecordingItem& screw = host.Source("part").Add("screw");
    SignalRecorder recorder(host);
    recorder.Once(&zbBrowserSignalManager::ViewItemCreated, [&](zbIBrowserViewItem*) {
        EXPECT_TRUE(host.DeleteView(b));
        EXPECT_TRUE(host.DeleteView(a));
    });

    Ctrl().OnDataItemCreated(&screw, true);

    EXPECT_EQ(recorder.Count("ViewItemCreated"), 1U) << "neither view tells any more";
    recorder.Discard();
    std::vector<zbIBrowserView*> views;
    EXPECT_EQ(Ctrl().GetViewList(views, nullptr), 0U);
}

TEST_F(ControllerAndViews, CreateAViewFromWithinAnEventThatDoesNotReachIt) {
    Showing("a");
    RecordingItem& screw = host.Source("part").Add("screw");
    SignalRecorder recorder(host);
    recorder.Once(&zbBrowserSignalManager::ViewItemCreated,
                  [&](zbIBrowserViewItem*) { Showing("later"); });

    Ctrl().OnDataItemCreated(&screw, true);

    recorder.Discard();
    EXPECT_EQ(Rows(host.OldView("later")), 3U) << "screw is there once, as the source gave it";
}

TEST_F(ControllerAndViews, FreeTheNameOfAViewThatIsBeingDeleted) {
    zbBrowserView& view = Showing("a");
    RecordingItem& screw = host.Source("part").Add("screw");
    SignalRecorder recorder(host);
    recorder.Once(&zbBrowserSignalManager::ViewItemCreated, [&](zbIBrowserViewItem*) {
        host.DeleteView(view);
        EXPECT_TRUE(RecordingManager::CreateView(Ctrl(), "A", true));
    });

    Ctrl().OnDataItemCreated(&screw, true);

    recorder.Discard();
    EXPECT_NE(Ctrl().FindNewView("a"), nullptr);
}

TEST_F(ControllerAndViews, ReleaseTheDataControlOfAViewThatIsDeletedFromWithin) {
    zbBrowserView& view = Showing("a");
    RecordingItem& screw = host.Source("part").Add("screw");
    SignalRecorder recorder(host);
    recorder.Once(&zbBrowserSignalManager::ViewItemCreated, [&](zbIBrowserViewItem*) {
        host.DeleteView(view);
        EXPECT_EQ(host.calls.Count("Release", "data"), 1U);
    });

    Ctrl().OnDataItemCreated(&screw, true);

    recorder.Discard();
}

TEST_F(ControllerAndViews, MayBeDeletedByADataControlThatIsAskedForItsName) {
    zbBrowserView& oldView = host.OldView("old");
    zbbrowser::View& newView = host.NewView("new");
    host.NewView("kept");
    host.calls.On("GetName", "data", [&] {
        host.calls.Off("GetName", "data");
        host.DeleteView(newView);
        host.DeleteView(oldView);
    });

    Ctrl().OnDataControlDeleted("data");

    EXPECT_EQ(Ctrl().FindView("old"), nullptr);
    EXPECT_EQ(Ctrl().FindView("new"), nullptr);
    EXPECT_EQ(host.NewView("kept").GetDataCtrl(), nullptr);
}

TEST_F(ControllerAndViews, GoTogether) {
    Showing("a");
    host.NewView("b");
    host.calls.ForgetCounts();

    host.DeleteController();

    EXPECT_EQ(host.calls.Count("Release"), 0U);
}

} // namespace
} // namespace zbtest
