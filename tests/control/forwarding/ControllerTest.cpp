// SPDX-License-Identifier: MIT
//! \file
//! The controller as an object: creation, error state, copies, destruction.
#include "ControlTest.h"

#include <zbBrowserView/zbIBrowserInfo.h>

#include <new>

namespace zbtest {
namespace {

using Controller = ControlTest;

// The ways of a host that is no zbBrowserManager to the protected operations.
struct Access : zbBrowserViewCtrl {
    using zbBrowserViewCtrl::CreateView;
};

TEST_F(Controller, StartsWithoutAnError) {
    EXPECT_EQ(ctrl->GetError(), nullptr);
    EXPECT_TRUE(ctrl->GetState());
}

TEST_F(Controller, StartsWithoutViews) {
    std::vector<zbIBrowserView*> views(3, nullptr);

    EXPECT_EQ(ctrl->GetViewList(views, nullptr), 0U);

    EXPECT_THAT(views, IsEmpty());
}

TEST_F(Controller, GivesTheManagerThatItWasMadeWith) {
    EXPECT_EQ(ctrl->GetManager(), &manager);
    EXPECT_EQ(ctrl->GetManagerImpl(), &manager);
}

TEST_F(Controller, AsksTheManagerForTheSignalsEachTime) {
    EXPECT_EQ(ctrl->GetSignalManager(), &signals);
    zbBrowserSignalManager others;
    manager.signals = &others;
    EXPECT_EQ(ctrl->GetSignalManager(), &others);
    manager.signals = nullptr;
    EXPECT_EQ(ctrl->GetSignalManager(), nullptr);
}

TEST_F(Controller, TellsItsVersion) {
    ASSERT_NE(ctrl->GetBrowserInfo(), nullptr);
    EXPECT_STREQ(ctrl->GetBrowserInfo()->version, "1.0");
    EXPECT_EQ(ctrl->GetBrowserInfo(), ctrl->GetBrowserInfo());
}

TEST_F(Controller, HasATableOfSharedTreesFromTheBeginning) {
    EXPECT_NE(ctrl->GetSharedDSHHandler(), nullptr);
}

TEST_F(Controller, WithoutAManagerHasNoSignalsAndNoActiveView) {
    std::unique_ptr<zbBrowserViewCtrl> const alone(CreateBrowserViewCtrl(nullptr));
    ASSERT_NE(alone, nullptr);
    ItemDouble item(nullptr);
    zbString result;

    EXPECT_EQ(alone->GetManager(), nullptr);
    EXPECT_EQ(alone->GetSignalManager(), nullptr);
    alone->OnViewItemChanged(&item);
    alone->OnShowPanelCollectorButton(true);
    EXPECT_STREQ(alone->GetCollectorGuiMapName(), "");
    EXPECT_FALSE(alone->TEMP_GetStringFromScript("x", result, "y"));
}

TEST_F(Controller, LetsItsManagerCreateViewsOfEitherGeneration) {
    EXPECT_TRUE(RecordingManager::CreateView(*ctrl, "old", false));
    EXPECT_TRUE(RecordingManager::CreateView(*ctrl, "new", true));

    EXPECT_NE(ctrl->OLD_FindView("old"), nullptr);
    EXPECT_NE(ctrl->FindNewView("new"), nullptr);
    EXPECT_EQ(ctrl->GetError(), nullptr);
}

TEST_F(Controller, LetsADerivedClassNameTheProtectedOperations) {
    EXPECT_TRUE((ctrl.get()->*&Access::CreateView)("parts", false));

    EXPECT_NE(ctrl->OLD_FindView("parts"), nullptr);
}

TEST_F(Controller, TakesANullNameOfAViewForAnEmptyOne) {
    EXPECT_TRUE(RecordingManager::CreateView(*ctrl, nullptr, true));

    EXPECT_NE(ctrl->FindNewView(""), nullptr);
}

TEST_F(Controller, ThrowsAPlainTextForANameThatIsTakenAndKeepsItsState) {
    New("a");

    EXPECT_EQ(Thrown([&] { RecordingManager::CreateView(*ctrl, "A", false); }),
              "text: View with specified name already exists");

    EXPECT_TRUE(ctrl->GetState());
    EXPECT_EQ(ctrl->GetError(), nullptr);
}

TEST_F(Controller, ReportsAFailureInsideByItsErrorText) {
    calls.On("Constructed", [] { throw zbString("no such thing"); });

    EXPECT_FALSE(RecordingManager::CreateView(*ctrl, "a", true));

    EXPECT_FALSE(ctrl->GetState());
    EXPECT_STREQ(ctrl->GetError(), "no such thing");
    EXPECT_EQ(ctrl->FindView("a"), nullptr);
}

TEST_F(Controller, ReportsLackOfMemoryForAViewByItsErrorText) {
    calls.On("Constructed", [] { throw std::bad_alloc(); });

    EXPECT_FALSE(RecordingManager::CreateView(*ctrl, "a", true));
    EXPECT_STREQ(ctrl->GetError(),
                 "Could not create new object in the heap, possibly unsufficient memory");
    EXPECT_FALSE(RecordingManager::CreateView(*ctrl, "b", false));
    EXPECT_STREQ(ctrl->GetError(),
                 "Could not create new object in the heap, possibly unsufficient memory");
    EXPECT_FALSE(ctrl->GetState());
}

TEST_F(Controller, KeepsItsErrorAfterASuccess) {
    calls.On("Constructed", [] { throw zbString("no such thing"); });
    RecordingManager::CreateView(*ctrl, "a", true);
    calls.Off("Constructed");

    EXPECT_TRUE(RecordingManager::CreateView(*ctrl, "a", true));

    EXPECT_STREQ(ctrl->GetError(), "no such thing");
    EXPECT_FALSE(ctrl->GetState());
}

TEST_F(Controller, LetsWhatElseIsThrownPass) {
    calls.On("Constructed", [] { throw 42; });

    EXPECT_THROW(RecordingManager::CreateView(*ctrl, "a", true), int);

    EXPECT_TRUE(ctrl->GetState());
}

TEST_F(Controller, ThrowsForDeletingNoView) {
    EXPECT_EQ(Thrown([&] { RecordingManager::DeleteView(*ctrl, nullptr); }),
              "string: Null pointer hit");
    EXPECT_TRUE(ctrl->GetState());
}

TEST_F(Controller, DeletesNewViewsBeforeOldOnesEachInOrderOfCreation) {
    Old("old1");
    New("new1");
    Old("old2");
    New("new2");

    ctrl.reset();

    EXPECT_THAT(Take(), ElementsAre("new1.Destroyed", "new2.Destroyed", "old1.Destroyed",
                                    "old2.Destroyed"));
}

TEST_F(Controller, ReleasesNoDataControlWhenItGoes) {
    Old("old").SetDataCtrl(&data);

    ctrl.reset();

    EXPECT_EQ(calls.Count("Release"), 0U);
}

TEST_F(Controller, CanBeAskedWhileItsViewsGo) {
    New("a");
    Old("b");
    Old("c");
    calls.On("Destroyed", "b", [&] {
        std::vector<zbIBrowserView*> views;
        EXPECT_EQ(ctrl->GetViewList(views, nullptr), 1U);
        EXPECT_EQ(ctrl->FindView("b"), nullptr);
        EXPECT_NE(ctrl->FindView("c"), nullptr);
        EXPECT_STREQ(ctrl->GetBrowserInfo()->version, "1.0");
        EXPECT_NE(ctrl->GetSharedDSHHandler(), nullptr);
    });

    // Not reset(), after which the hook could not reach it any more
    delete ctrl.get();
    static_cast<void>(ctrl.release());

    EXPECT_THAT(Take(), ElementsAre("a.Destroyed", "b.Destroyed", "c.Destroyed"));
}

TEST_F(Controller, MayLoseAViewToAnotherOneThatGoes) {
    New("a");
    zbBrowserView& c = Old("c");
    calls.On("Destroyed", "a", [&] { Delete(c); });

    delete ctrl.get();
    static_cast<void>(ctrl.release());

    EXPECT_THAT(Take(), ElementsAre("a.Destroyed", "c.Destroyed"));
}

TEST_F(Controller, CopiedIsAnAliasThatOwnsNothing) {
    New("a");
    {
        zbBrowserViewCtrl const copy(*ctrl);

        EXPECT_EQ(copy.GetManager(), &manager);
        EXPECT_EQ(copy.GetBrowserInfo(), ctrl->GetBrowserInfo());
        EXPECT_EQ(copy.GetSharedDSHHandler(), ctrl->GetSharedDSHHandler());
        EXPECT_EQ(copy.FindView("a"), ctrl->FindView("a"));
        Old("b");
        EXPECT_EQ(copy.FindView("b"), ctrl->FindView("b"));
    }
    EXPECT_THAT(Take(), IsEmpty());
    EXPECT_NE(ctrl->FindView("a"), nullptr);
}

TEST_F(Controller, CopiedHasAnErrorStateOfItsOwn) {
    zbBrowserViewCtrl copy(*ctrl);
    calls.On("Constructed", [] { throw zbString("no such thing"); });

    (copy.*&Access::CreateView)("a", true);

    EXPECT_STREQ(copy.GetError(), "no such thing");
    EXPECT_EQ(ctrl->GetError(), nullptr);
    EXPECT_STREQ(zbBrowserViewCtrl(copy).GetError(), "no such thing");
    EXPECT_FALSE(zbBrowserViewCtrl(copy).GetState());
}

TEST_F(Controller, AssignedShowsTheOthersPartsAndStillFreesItsOwn) {
    std::unique_ptr<zbBrowserViewCtrl> other(CreateBrowserViewCtrl(&manager));
    ASSERT_NE(other, nullptr);
    RecordingManager::CreateView(*other, "mine", true);
    New("theirs");

    *other = *ctrl;
    EXPECT_EQ(other->FindView("mine"), nullptr);
    EXPECT_EQ(other->FindView("theirs"), ctrl->FindView("theirs"));
    EXPECT_EQ(other->GetBrowserInfo(), ctrl->GetBrowserInfo());
    static_cast<void>(Take());
    other.reset();

    EXPECT_THAT(Take(), ElementsAre("mine.Destroyed"));
    EXPECT_NE(ctrl->FindView("theirs"), nullptr);
}

} // namespace
} // namespace zbtest
