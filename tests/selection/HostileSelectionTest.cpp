// SPDX-License-Identifier: MIT
//! \file
//! Notifiers and slots that throw, that change the notifiers or the selection, and that delete what
//! the selection is about.
#include "OldSelectionFixture.h"

#include <array>
#include <memory>
#include <stdexcept>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class HostileSelection : public SelectionTest<Generation> {
protected:
    HostileSelection() {
        this->ListenToViewsOnly();
        for (auto& notifier : notifiers) {
            notifier.lines = &lines;
            this->manager.AddNotifier(&notifier);
        }
    }

    //! Both are told, in this order.
    std::array<RecordingNotifier, 2> notifiers{RecordingNotifier("first"),
                                               RecordingNotifier("second")};
    RecordingNotifier& first = notifiers[0];
    RecordingNotifier& second = notifiers[1];
    std::vector<std::string> lines;
};

TYPED_TEST_SUITE(HostileSelection, Generations, GenerationName);

[[noreturn]] void Throw() {
    throw std::runtime_error("no");
}

// Throwing

TYPED_TEST(HostileSelection, AChangeStandsWhenANotifierThrowsAndTheOthersHearNothing) {
    this->first.onChanged = Throw;

    EXPECT_THROW(this->manager.UpdateSelection({&this->a}, true, false), std::runtime_error);

    EXPECT_EQ(this->Selected(), "[a]");
    EXPECT_THAT(this->lines, ElementsAre("first selected [a]"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
    EXPECT_TRUE(this->manager.GetSyncFlag());
}

TYPED_TEST(HostileSelection, ANotifierThatThrowsFromItsFinishLeavesTheOthersOut) {
    this->first.onFinished = Throw;

    EXPECT_THROW(this->manager.UpdateSelection({&this->a}, true, false), std::runtime_error);

    EXPECT_THAT(this->lines, ElementsAre("first selected [a]", "first finished"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(HostileSelection, AClearingDoesNotTakePlaceWhenANotifierThrows) {
    this->Select({&this->a});
    this->first.onChanged = Throw;

    EXPECT_THROW(this->manager.UpdateSelection({&this->b}, true, true), std::runtime_error);

    EXPECT_EQ(this->Selected(), "[a]");
    EXPECT_THAT(this->signals.take(), ElementsAre("SelectionClearing view"));
}

TYPED_TEST(HostileSelection, AClearingDoesNotTakePlaceWhenItsSlotThrows) {
    this->Select({&this->a});
    this->lines.clear();
    this->signals.Once(&zbBrowserSignalManager::SelectionClearing, [](auto*) { Throw(); });

    EXPECT_THROW(this->manager.UpdateSelection({}, false, true), std::runtime_error);

    EXPECT_EQ(this->Selected(), "[a]");
    EXPECT_THAT(this->lines, IsEmpty());
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, AfterASlotHasThrownTheChangeStandsAndTheNextOneWorks) {
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected, [](Items&) { Throw(); });
    EXPECT_THROW(this->manager.UpdateSelection({&this->a}, true, false), std::runtime_error);
    EXPECT_EQ(this->Selected(), "[a]");

    this->manager.UpdateSelection({&this->a, &this->b}, false, false);
    this->manager.UpdateSelection({&this->b}, true, false);

    EXPECT_EQ(this->Selected(), "[b]");
    EXPECT_THAT(this->signals.take(),
                ElementsAre("ViewItemsSelected [a]", "ViewItemsDeselected [a b]"));
}

TYPED_TEST(HostileSelection, APopupFlagIsNotPassedOnBehindANotifierThatThrows) {
    this->first.onPopup = Throw;

    EXPECT_THROW(this->manager.OnPopupSelection(true), std::runtime_error);

    EXPECT_THAT(this->lines, ElementsAre("first popup true"));
}

// Other notifiers

TYPED_TEST(HostileSelection, ANotifierThatRemovesItselfIsNotFinishedAndTheOthersAreTold) {
    this->first.onChanged = [this] { this->manager.RemoveNotifier(&this->first); };

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->lines,
                ElementsAre("first selected [a]", "second selected [a]", "second finished"));
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, ANotifierThatRemovesTheNextOneKeepsItFromHearing) {
    this->first.onChanged = [this] { this->manager.RemoveNotifier(&this->second); };

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->lines, ElementsAre("first selected [a]", "first finished"));
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, ANotifierThatRemovesAllIsTheLastToHear) {
    this->first.onPopup = [this] { this->manager.ClearNotifiers(); };

    this->manager.OnPopupSelection(false);

    EXPECT_THAT(this->lines, ElementsAre("first popup false"));
}

TYPED_TEST(HostileSelection, ANotifierThatIsAddedBehindTheOneThatIsToldHearsOfTheSameChange) {
    this->manager.RemoveNotifier(&this->second);
    this->first.onChanged = [this] { this->manager.AddNotifier(&this->second); };

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->lines, ElementsAre("first selected [a]", "first finished",
                                         "second selected [a]", "second finished"));
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, ANotifierThatIsAddedBeforeTheOneThatIsToldHearsOfTheNextChange) {
    this->manager.RemoveNotifier(&this->first);
    this->second.onChanged = [this] { this->manager.AddNotifier(&this->first); };

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->lines, ElementsAre("second selected [a]", "second finished"));
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, ANotifierMayFreeItselfWhileItIsTold) {
    auto gone = std::make_unique<RecordingNotifier>("gone");
    gone->lines = &this->lines;
    gone->onChanged = [&] {
        this->manager.RemoveNotifier(gone.get());
        gone.reset();
    };
    this->manager.ClearNotifiers();
    this->manager.AddNotifier(gone.get());

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->lines, ElementsAre("gone selected [a]"));
    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a]"));
}

// Changing the selection

TYPED_TEST(HostileSelection, AChangeThatANotifierMakesIsToldWithinTheFirstOne) {
    this->manager.RemoveNotifier(&this->second);
    this->first.onChanged = [this] {
        this->first.onChanged = [] {};
        this->manager.UpdateSelection({&this->b}, true, false);
    };

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->lines, ElementsAre("first selected [a]", "first selected [b]",
                                         "first finished", "first finished"));
    EXPECT_THAT(this->signals.take(),
                ElementsAre("ViewItemsSelected [b]", "ViewItemsSelected [a]"));
    EXPECT_EQ(this->Selected(), InOrder({&this->a, &this->b}));
}

TYPED_TEST(HostileSelection, WhatANotifierSelectsWhileAClearingIsToldIsClearedToo) {
    this->Select({&this->a});
    this->first.onChanged = [this] {
        this->first.onChanged = [] {};
        this->manager.UpdateSelection({&this->b}, true, false);
    };

    this->manager.UpdateSelection({&this->c}, true, true);

    EXPECT_EQ(this->Selected(), "[c]");
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, ASelectionFromWithinTheSignalIsMadeAndNotSignalled) {
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected,
                       [this](Items&) { this->manager.UpdateSelection({&this->b}, true, false); });

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a]"));
    EXPECT_EQ(this->Selected(), InOrder({&this->a, &this->b}));
}

// Deleting the view

TYPED_TEST(HostileSelection, NobodyHearsMoreOnceANotifierHasDeletedTheView) {
    this->first.onChanged = [this] { this->host.DeleteView(this->view); };

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->lines, ElementsAre("first selected [a]"));
    EXPECT_EQ(this->signals.Count("ViewItemsSelected"), 0U);
    EXPECT_EQ(this->Selected(), "[]");
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, NobodyHearsMoreOnceTheViewIsDeletedWhileTheSelectionIsCleared) {
    this->signals.Once(&zbBrowserSignalManager::SelectionClearing,
                       [this](zbIBrowserView* gone) { this->host.DeleteView(*gone); });

    this->manager.UpdateSelection({&this->a}, true, true);

    EXPECT_THAT(this->lines, IsEmpty());
    EXPECT_EQ(this->signals.Count("ViewItemsSelected"), 0U);
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, ASlotMayDeleteTheView) {
    this->signals.Once(&zbBrowserSignalManager::ViewItemsSelected,
                       [this](Items&) { this->host.DeleteView(this->view); });

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_EQ(this->Selected(), "[]");
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, TheHostMayDeleteTheViewWhenAskedForItsSignals) {
    this->host.calls.On("GetSignalManager", "manager", [this] {
        this->host.calls.Off("GetSignalManager", "manager");
        this->host.DeleteView(this->view);
    });

    this->view.UpdatePreviousSelection();

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    this->signals.Discard();
}

TYPED_TEST(HostileSelection, TheEndOfAChangeMayBeTheEndOfTheView) {
    this->signals.Once(&zbBrowserDataSignalManager::SelectionManagerChanged,
                       [this](auto*, auto*) { this->host.DeleteView(this->view); });

    this->view.OnSelectionChangeFinished();

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    this->signals.Discard();
}

// Deleting items

class HostileOldSelection : public HostileSelection<OldGeneration> {};

TEST_F(HostileOldSelection, AnItemThatANotifierDeletesCanStillBeAskedAndIsNotSelected) {
    first.onChanged = [this] { view.DeleteFreeFolder(&a, true); };

    manager.UpdateSelection({&a, &b}, true, false);

    EXPECT_THAT(lines, ElementsAre("first selected [a b]", "first finished",
                                   "second selected [a b]", "second finished"));
    EXPECT_THAT(signals.take(), testing::Contains("ViewItemsSelected [a b]"));
    EXPECT_EQ(Selected(), "[b]");
}

TEST_F(HostileOldSelection, AnItemThatIsDeletedWhileTheSelectionIsClearedIsNotSelectedAfterIt) {
    signals.Once(&zbBrowserSignalManager::SelectionClearing,
                 [this](auto*) { view.DeleteFreeFolder(&a, true); });

    manager.UpdateSelection({&a, &c}, true, true);

    EXPECT_EQ(Selected(), "[c]");
    EXPECT_THAT(lines,
                ElementsAre("first deselected []", "second deselected []", "first selected [c]",
                            "first finished", "second selected [c]", "second finished"));
    signals.Discard();
}

TEST_F(HostileOldSelection, NothingIsSelectedIfAllOfItIsDeletedWhileTheSelectionIsCleared) {
    signals.Once(&zbBrowserSignalManager::SelectionClearing,
                 [this](auto*) { view.DeleteFreeFolder(&b, true); });

    manager.UpdateSelection({&b, &c}, true, true);

    EXPECT_EQ(Selected(), "[]");
    EXPECT_THAT(lines, ElementsAre("first deselected []", "second deselected []"));
    EXPECT_EQ(signals.Count("ViewItemsSelected"), 0U);
    signals.Discard();
}

TEST_F(HostileOldSelection, ADeletedItemIsForgottenWithAllThatIsBelowIt) {
    Select({&a, &b, &c});
    manager.SetDropItem(&c);

    view.DeleteFreeFolder(&b, true);

    EXPECT_EQ(Selected(), "[a]");
    EXPECT_FALSE(manager.IsDropOnFreeFolder());
    signals.Discard();
}

TEST_F(HostileOldSelection, AnItemThatHasGoneIsPassedOver) {
    auto* const gone = &c;
    view.DeleteFreeFolder(&b, true);
    signals.Discard();

    manager.UpdateSelection({gone, &a}, true, true);
    view.DeselectViewItem(gone, true);

    EXPECT_FALSE(manager.IsViewItemSelected(gone));
    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view", "ViewItemsSelected [a]"));
}

TEST_F(HostileOldSelection, AnItemThatIsBeingDeletedCannotBecomeTheDropItem) {
    signals.Once(&zbBrowserSignalManager::ViewItemDeleted,
                 [this](zbIBrowserViewItem* item) { manager.SetDropItem(item); });

    view.DeleteFreeFolder(&a, true);

    EXPECT_FALSE(manager.IsDropOnFreeFolder());
    signals.Discard();
}

class HostileNewSelection : public HostileSelection<NewGeneration> {
protected:
    void DeleteAllFolders() { host.NewView().DeleteVirtualRoot(); }
};

TEST_F(HostileNewSelection, ItemsThatANotifierDeletesCanStillBeAskedAndAreNotSelected) {
    first.onChanged = [this] { DeleteAllFolders(); };

    manager.UpdateSelection({&b, &a}, true, false);

    EXPECT_THAT(lines, ElementsAre("first selected [b a]", "first finished",
                                   "second selected [b a]", "second finished"));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsSelected [b a]"));
    EXPECT_EQ(Selected(), "[]");
    Items changed;
    EXPECT_FALSE(manager.GetChangedViewItems(changed));
}

TEST_F(HostileNewSelection, NothingIsSelectedIfAllOfItIsDeletedWhileTheSelectionIsCleared) {
    signals.Once(&zbBrowserSignalManager::SelectionClearing, [this](auto*) { DeleteAllFolders(); });

    manager.UpdateSelection({&a, &b}, true, true);

    EXPECT_EQ(Selected(), "[]");
    EXPECT_THAT(lines, ElementsAre("first deselected []", "second deselected []"));
    EXPECT_THAT(signals.take(), ElementsAre("SelectionClearing view"));
}

TEST_F(HostileNewSelection, AnItemThatHasGoneIsPassedOver) {
    auto* const gone = &a;
    DeleteAllFolders();

    manager.UpdateSelection({gone}, true, false);
    view.DeselectViewItem(gone, true);
    view.SetDropItem(gone);

    EXPECT_FALSE(manager.IsViewItemSelected(gone));
    EXPECT_EQ(manager.GetDropItem(), nullptr);
    EXPECT_THAT(signals.take(), IsEmpty());
}

} // namespace
} // namespace zbtest
