// SPDX-License-Identifier: MIT
//! \file
//! When the notifiers of a selection are told what.
#include "SelectionTest.h"

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class SelectionNotifiers : public SelectionTest<Generation> {
protected:
    SelectionNotifiers() { this->ListenToViewsOnly(); }
};

TYPED_TEST_SUITE(SelectionNotifiers, Generations, GenerationName);

TYPED_TEST(SelectionNotifiers, ANotifierHearsAfterTheChangeAndBeforeTheSignal) {
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);
    bool wasSelected = false;
    std::size_t signalsBefore = 1;
    notifier.onChanged = [&] {
        wasSelected = this->manager.IsViewItemSelected(&this->a);
        signalsBefore = this->signals.Count("ViewItemsSelected");
    };

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_TRUE(wasSelected);
    EXPECT_EQ(signalsBefore, 0U);
    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a]"));
}

TYPED_TEST(SelectionNotifiers, AClearingIsToldBeforeTheItemsAreDeselected) {
    this->Select({&this->a});
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);
    bool wasSelected = false;
    notifier.onChanged = [&] { wasSelected = this->manager.IsViewItemSelected(&this->a); };

    this->manager.UpdateSelection({}, false, true);

    EXPECT_TRUE(wasSelected);
    this->signals.Discard();
}

TYPED_TEST(SelectionNotifiers, NotifiersAreToldByAddressEachToItsEnd) {
    RecordingNotifier pair[] = {RecordingNotifier("first"), RecordingNotifier("second")};
    std::vector<std::string> lines;
    pair[0].lines = &lines;
    pair[1].lines = &lines;
    this->manager.AddNotifier(&pair[1]);
    this->manager.AddNotifier(&pair[0]);

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(lines, ElementsAre("first selected [a]", "first finished", "second selected [a]",
                                   "second finished"));
    this->signals.Discard();
}

TYPED_TEST(SelectionNotifiers, ANotifierThatIsAddedTwiceIsToldOnce) {
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);
    this->manager.AddNotifier(&notifier);

    this->manager.UpdateSelection({}, false, true);

    EXPECT_THAT(notifier.take(), ElementsAre("deselected []"));
    this->signals.Discard();
}

TYPED_TEST(SelectionNotifiers, ARemovedNotifierHearsNothing) {
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);
    this->manager.RemoveNotifier(&notifier);

    this->manager.UpdateSelection({&this->a}, true, true);
    this->manager.OnPopupSelection(true);

    EXPECT_THAT(notifier.take(), IsEmpty());
    this->signals.Discard();
}

TYPED_TEST(SelectionNotifiers, NullAndUnknownNotifiersAreIgnored) {
    RecordingNotifier notifier;
    this->manager.AddNotifier(nullptr);
    this->manager.RemoveNotifier(nullptr);
    this->manager.RemoveNotifier(&notifier);

    this->manager.UpdateSelection({&this->a}, true, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ViewItemsSelected [a]"));
}

TYPED_TEST(SelectionNotifiers, AllNotifiersCanBeRemovedAtOnce) {
    RecordingNotifier first;
    RecordingNotifier second;
    this->manager.AddNotifier(&first);
    this->manager.AddNotifier(&second);
    this->manager.ClearNotifiers();

    this->manager.OnPopupSelection(true);

    EXPECT_THAT(first.take(), IsEmpty());
    EXPECT_THAT(second.take(), IsEmpty());
}

TYPED_TEST(SelectionNotifiers, ThePopupFlagIsPassedOn) {
    RecordingNotifier notifier;
    this->manager.AddNotifier(&notifier);

    this->manager.OnPopupSelection(true);
    this->host.Controller().OnPopupSelection(&this->view, false);

    EXPECT_THAT(notifier.take(), ElementsAre("popup true", "popup false"));
}

} // namespace
} // namespace zbtest
