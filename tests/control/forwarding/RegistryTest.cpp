// SPDX-License-Identifier: MIT
//! \file
//! Creating, finding, listing and deleting views.
#include "ControlTest.h"

namespace zbtest {
namespace {

char const* const nameTaken = "text: View with specified name already exists";

class Registry : public ControlTest {
protected:
    std::string Creating(char const* name, bool isNew) {
        return Thrown([&] { RecordingManager::CreateView(*ctrl, name, isNew); });
    }

    std::vector<zbIBrowserView*> Views(zbIBrowserDataCtrl const* filter = nullptr) {
        std::vector<zbIBrowserView*> views;
        auto const count = ctrl->GetViewList(views, filter);
        EXPECT_EQ(count, views.size());
        return views;
    }
};

TEST_F(Registry, RefusesANameTwiceInOneGeneration) {
    Old("old");
    New("new");

    EXPECT_EQ(Creating("old", false), nameTaken);
    EXPECT_EQ(Creating("new", true), nameTaken);

    EXPECT_THAT(Take(), IsEmpty());
}

TEST_F(Registry, RefusesANameThatDiffersInCaseOnlyFromOneOfTheOtherGeneration) {
    Old("old_view");
    New("new_view");

    EXPECT_EQ(Creating("OLD_View", true), nameTaken);
    EXPECT_EQ(Creating("New_VIEW", false), nameTaken);

    EXPECT_EQ(Views().size(), 2U);
}

TEST_F(Registry, RefusesANameThatTheHostGaveAwayWhileTheViewWasMade) {
    for (bool const isNew : {true, false}) {
        calls.On("Constructed", "a", [&] {
            calls.Off("Constructed", "a");
            RecordingManager::CreateView(*ctrl, "A", !isNew);
        });

        EXPECT_EQ(Creating("a", isNew), nameTaken);

        EXPECT_THAT(Take(), ElementsAre("a.Constructed", "A.Constructed", "a.Destroyed"));
        ASSERT_EQ(Views().size(), 1U);
        EXPECT_EQ(Views()[0]->GetName(), "A");
        Delete(*Views()[0]);
        static_cast<void>(Take());
    }
}

TEST_F(Registry, FoldsOnlyTheCaseOfAsciiLetters) {
    New("\xC3\x84pfel"); // a capital A with diaeresis

    EXPECT_EQ(Creating("\xC3\xA4pfel", true), "nothing");

    EXPECT_EQ(Views().size(), 2U);
}

TEST_F(Registry, TakesANameThatWasFreedByADeletion) {
    Delete(New("a"));

    EXPECT_EQ(Creating("A", false), "nothing");

    EXPECT_NE(ctrl->OLD_FindView("a"), nullptr);
}

TEST_F(Registry, TakesLongAndStrangeNames) {
    std::string const longName(100000, 'x');
    EXPECT_EQ(Creating(longName.c_str(), true), "nothing");
    EXPECT_EQ(Creating("", false), "nothing");
    EXPECT_EQ(Creating("\xFF\xFE", false), "nothing");

    EXPECT_NE(ctrl->FindNewView(zbString(longName.c_str())), nullptr);
    EXPECT_NE(ctrl->OLD_FindView(""), nullptr);
    EXPECT_NE(ctrl->OLD_FindView("\xFF\xFE"), nullptr);
}

TEST_F(Registry, FindsViewsByNameRegardlessOfCaseAndByGeneration) {
    zbBrowserView& oldView = Old("old");
    zbbrowser::View& newView = New("new");

    EXPECT_EQ(ctrl->FindView("OLD"), &oldView);
    EXPECT_EQ(ctrl->FindView("New"), &newView);
    EXPECT_EQ(ctrl->OLD_FindView("Old"), &oldView);
    EXPECT_EQ(ctrl->OLD_FindView("new"), nullptr);
    EXPECT_EQ(ctrl->FindNewView("NEW"), &newView);
    EXPECT_EQ(ctrl->FindNewView("old"), nullptr);
    EXPECT_EQ(ctrl->FindView("neither"), nullptr);
}

TEST_F(Registry, FindsOldViewsByPointer) {
    zbBrowserView& oldView = Old("old");
    zbbrowser::View& newView = New("new");
    RecordedView stranger(ctrl.get(), "old");

    EXPECT_EQ(ctrl->OLD_FindViewByPtr(&oldView), &oldView);
    EXPECT_EQ(ctrl->OLD_FindViewByPtr(&newView), nullptr);
    EXPECT_EQ(ctrl->OLD_FindViewByPtr(&stranger), nullptr);
    EXPECT_EQ(ctrl->OLD_FindViewByPtr(nullptr), nullptr);
}

TEST_F(Registry, ListsNewViewsAndThenOldOnesInOrderOfCreation) {
    zbBrowserView& old1 = Old("z");
    zbbrowser::View& new1 = New("y");
    zbBrowserView& old2 = Old("a");
    zbbrowser::View& new2 = New("b");

    EXPECT_THAT(Views(), ElementsAre(&new1, &new2, &old1, &old2));

    std::vector<zbbrowser::View*> newViews;
    EXPECT_EQ(ctrl->GetViewList(newViews, nullptr), 2U);
    EXPECT_THAT(newViews, ElementsAre(&new1, &new2));

    std::vector<zbBrowserView*> oldViews;
    EXPECT_EQ(ctrl->GetViewList(oldViews, nullptr), 2U);
    EXPECT_THAT(oldViews, ElementsAre(&old1, &old2));
}

TEST_F(Registry, ListsOnlyTheViewsOfTheDataControlAskedFor) {
    RecordingDataCtrl other(calls, "data"); // The name does not count
    zbBrowserView& old1 = Old("old1");
    old1.SetDataCtrl(&data);
    Old("old2").SetDataCtrl(&other);
    Old("old3");
    zbbrowser::View& new1 = New("new1");
    new1.SetDataCtrl(&data);
    New("new2").SetDataCtrl(&other);

    EXPECT_THAT(Views(&data), ElementsAre(&new1, &old1));
    std::vector<zbbrowser::View*> newViews;
    EXPECT_EQ(ctrl->GetViewList(newViews, &data), 1U);
    EXPECT_THAT(newViews, ElementsAre(&new1));
    std::vector<zbBrowserView*> oldViews;
    EXPECT_EQ(ctrl->GetViewList(oldViews, &data), 1U);
    EXPECT_THAT(oldViews, ElementsAre(&old1));
}

TEST_F(Registry, ClearsTheListThatItFills) {
    zbBrowserView& view = Old("old");
    zbbrowser::View& newView = New("new");
    std::vector<zbIBrowserView*> views(5, &newView);
    std::vector<zbbrowser::View*> newViews(5, nullptr);
    std::vector<zbBrowserView*> oldViews(5, nullptr);
    view.SetDataCtrl(&data);

    EXPECT_EQ(ctrl->GetViewList(views, &data), 1U);
    EXPECT_EQ(ctrl->GetViewList(newViews, &data), 0U);
    EXPECT_EQ(ctrl->GetViewList(oldViews, &data), 1U);

    EXPECT_THAT(views, ElementsAre(&view));
    EXPECT_THAT(newViews, IsEmpty());
    EXPECT_THAT(oldViews, ElementsAre(&view));
}

TEST_F(Registry, DeletesAViewOfEitherGeneration) {
    zbBrowserView& oldView = Old("old");
    zbbrowser::View& newView = New("new");

    EXPECT_TRUE(RecordingManager::DeleteView(*ctrl, &oldView));
    EXPECT_TRUE(RecordingManager::DeleteView(*ctrl, &newView));

    EXPECT_THAT(Take(), ElementsAre("old.Destroyed", "new.Destroyed"));
    EXPECT_THAT(Views(), IsEmpty());
}

TEST_F(Registry, KeepsTheOrderOfTheOthersWhenOneIsDeleted) {
    zbBrowserView& a = Old("a");
    zbBrowserView& b = Old("b");
    zbBrowserView& c = Old("c");

    Delete(b);

    EXPECT_THAT(Views(), ElementsAre(&a, &c));
}

TEST_F(Registry, DeletesNothingForAViewThatIsNotListed) {
    zbBrowserView& a = Old("a");
    RecordedView stranger(ctrl.get(), "a");
    zbIBrowserView* const gone = &New("gone");
    Delete(*gone);
    static_cast<void>(Take());

    EXPECT_FALSE(RecordingManager::DeleteView(*ctrl, &stranger));
    EXPECT_FALSE(RecordingManager::DeleteView(*ctrl, gone));

    EXPECT_THAT(Take(), IsEmpty());
    EXPECT_THAT(Views(), ElementsAre(&a));
}

TEST_F(Registry, ReleasesADataControlAfterTheLastViewThatHasIt) {
    zbBrowserView& a = Old("a");
    zbBrowserView& b = Old("b");
    a.SetDataCtrl(&data);
    b.SetDataCtrl(&data);
    static_cast<void>(Take());

    Delete(a);
    EXPECT_THAT(Take(), ElementsAre("a.Destroyed"));

    Delete(b);
    EXPECT_THAT(Take(), ElementsAre("b.Destroyed", "data.Release null"));
}

TEST_F(Registry, ReleasesADataControlOfNewViewsLikewise) {
    zbbrowser::View& a = New("a");
    zbbrowser::View& b = New("b");
    a.SetDataCtrl(&data);
    b.SetDataCtrl(&data);
    static_cast<void>(Take());

    Delete(b);
    EXPECT_THAT(Take(), ElementsAre("b.Destroyed"));

    Delete(a);
    EXPECT_THAT(Take(), ElementsAre("a.Destroyed", "data.Release null"));
}

TEST_F(Registry, ReleasesADataControlAlthoughAViewOfTheOtherGenerationHasIt) {
    zbBrowserView& oldView = Old("old");
    zbbrowser::View& newView = New("new");
    oldView.SetDataCtrl(&data);
    newView.SetDataCtrl(&data);
    static_cast<void>(Take());

    Delete(oldView);
    EXPECT_THAT(Take(), ElementsAre("old.Destroyed", "data.Release null"));

    zbBrowserView& other = Old("other");
    other.SetDataCtrl(&data);
    static_cast<void>(Take());
    Delete(newView);
    EXPECT_THAT(Take(), ElementsAre("new.Destroyed", "data.Release null"));
}

TEST_F(Registry, ReleasesNothingForAViewWithoutADataControl) {
    Old("other").SetDataCtrl(&data);
    zbBrowserView& view = Old("view");
    static_cast<void>(Take());

    Delete(view);

    EXPECT_THAT(Take(), ElementsAre("view.Destroyed"));
}

TEST_F(Registry, DoesNotListAViewAnyMoreWhileItGoes) {
    zbBrowserView& view = Old("a");
    calls.On("Destroyed", "a", [&] {
        EXPECT_EQ(ctrl->FindView("a"), nullptr);
        EXPECT_EQ(ctrl->OLD_FindViewByPtr(&view), nullptr);
        EXPECT_FALSE(RecordingManager::DeleteView(*ctrl, &view));
    });

    Delete(view);
}

TEST_F(Registry, MayBeCalledBackByTheReleaseOfADataControl) {
    zbBrowserView& view = Old("a");
    view.SetDataCtrl(&data);
    calls.On("Release", [&] { RecordingManager::CreateView(*ctrl, "a", true); });

    Delete(view);

    EXPECT_NE(ctrl->FindNewView("a"), nullptr);
}

TEST_F(Registry, HoldsManyViews) {
    for (int i = 0; i < 500; ++i)
        RecordingManager::CreateView(*ctrl, ("view" + std::to_string(i)).c_str(), i % 2 == 0);

    EXPECT_EQ(Views().size(), 500U);
    EXPECT_NE(ctrl->OLD_FindView("VIEW499"), nullptr);
}

} // namespace
} // namespace zbtest
