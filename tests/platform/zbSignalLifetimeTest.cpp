// SPDX-License-Identifier: MIT
//! \file
//! Signals that go while they are in use, and slots whose own end does things.
#include "SignalTestTypes.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace platformtest {
namespace {

//! Runs an action when the last copy goes, as a slot's captured object may.
std::shared_ptr<void> AtEnd(std::function<void()> action) {
    return {nullptr, [action = std::move(action)](void*) { action(); }};
}

class zbSignalLifetimeTest : public testing::Test {
protected:
    std::string text;
    std::unique_ptr<Signal> signal = std::make_unique<Signal>();
};

TEST_F(zbSignalLifetimeTest, ASignalMayGoFromWithinItsOwnSlot) {
    ConnectLetter(*signal, text, 'a');
    Handle const destroyer = signal->Connect([this](int) {
        signal.reset();
        text += 'd';
    });
    ConnectLetter(*signal, text, 'z');

    (*signal)(0);

    EXPECT_EQ(text, "ad");
    EXPECT_FALSE(destroyer.IsConnected());
}

TEST_F(zbSignalLifetimeTest, ASlotLivesUntilItsCallEndsWhenItDestroysTheSignal) {
    auto const state = std::make_shared<std::string>("alive");
    std::string read;
    Handle const destroyer = signal->Connect([this, state, &read](int) {
        signal.reset();
        read = state.use_count() > 1 ? *state : "gone";
    });

    (*signal)(0);

    EXPECT_EQ(read, "alive");
    EXPECT_EQ(state.use_count(), 1);
}

TEST_F(zbSignalLifetimeTest, ASlotThatCutItselfMayDestroyTheSignal) {
    Handle own;
    own = signal->Connect([&](int) {
        own.Disconnect();
        signal.reset();
        text += 'd';
    });

    (*signal)(0);

    EXPECT_EQ(text, "d");
}

TEST_F(zbSignalLifetimeTest, ASlotMayDestroyTheSignalAndThrow) {
    auto const state = std::make_shared<int>(0);
    Handle const destroyer = signal->Connect([this, state](int) {
        signal.reset();
        throw 1;
    });

    EXPECT_THROW((*signal)(0), int);

    EXPECT_EQ(signal, nullptr);
    EXPECT_EQ(state.use_count(), 1);
}

TEST_F(zbSignalLifetimeTest, ASlotMayRaiseTheSignalAgainAndThenDestroyIt) {
    Handle const destroyer = signal->Connect([this](int) {
        text += 'd';
        (*signal)(0);
        signal.reset();
    });

    (*signal)(0);

    EXPECT_EQ(text, "d");
}

TEST_F(zbSignalLifetimeTest, ASlotOfAnotherSignalMayDestroyARunningOne) {
    Signal other;
    Scoped const destroyer(other.Connect([this](int) { signal.reset(); }));
    Handle const raiser = signal->Connect([&](int) {
        other(0);
        text += 'r';
    });
    ConnectLetter(*signal, text, 'z');

    (*signal)(0);

    EXPECT_EQ(text, "r");
}

TEST_F(zbSignalLifetimeTest, AListenerMayDestroyTheSignalAndItself) {
    struct Destroyer : zbListener<single_threaded> {
        explicit Destroyer(std::unique_ptr<Signal>& target)
            : signal(target) {}
        void Hear(int) {
            signal.reset();
            delete this;
        }
        std::unique_ptr<Signal>& signal;
    };
    auto listener = std::make_unique<Destroyer>(signal);
    Handle const handle = signal->Connect(listener.get(), &Destroyer::Hear);
    static_cast<void>(listener.release());

    (*signal)(0);

    EXPECT_EQ(signal, nullptr);
    EXPECT_FALSE(handle.IsConnected());
}

TEST_F(zbSignalLifetimeTest, ASignalThatIsMadeAnewInItsSlotIsNotRaised) {
    std::optional<Signal> slot(std::in_place);
    Handle const remaker = slot->Connect([&](int) {
        slot.emplace();
        ConnectLetter(*slot, text, 'n');
    });

    (*slot)(0);

    EXPECT_EQ(text, "");
    EXPECT_EQ(slot->Count(), 1U);
    EXPECT_EQ(Raise(*slot, text), "n");
}

TEST_F(zbSignalLifetimeTest, TheEndOfACutSlotMayDestroyTheSignal) {
    Handle handle = signal->Connect([end = AtEnd([this] { signal.reset(); })](int) {});

    EXPECT_TRUE(handle.Disconnect());

    EXPECT_EQ(signal, nullptr);
}

TEST_F(zbSignalLifetimeTest, TheEndOfASlotCutDuringAnEmissionMayDestroyTheSignal) {
    Handle own;
    own =
        signal->Connect([&own, end = AtEnd([this] { signal.reset(); })](int) { own.Disconnect(); });

    (*signal)(0);

    EXPECT_EQ(signal, nullptr);
}

TEST_F(zbSignalLifetimeTest, TheEndOfASlotCutDuringAnEmissionMayRaiseTheSignal) {
    Handle own;
    own = signal->Connect([this, &own, end = AtEnd([this] { (*signal)(0); })](int) {
        text += 's';
        own.Disconnect();
    });
    ConnectLetter(*signal, text, 'z');

    (*signal)(0);

    EXPECT_EQ(text, "szz");
    EXPECT_EQ(signal->Count(), 1U);
}

TEST_F(zbSignalLifetimeTest, TheEndOfACutSlotMayCutOthers) {
    auto const second = std::make_shared<Handle>();
    Handle first = signal->Connect([end = AtEnd([second] { second->Disconnect(); })](int) {});
    *second = signal->Connect([](int) {});
    ConnectLetter(*signal, text, 'z');

    first.Disconnect();

    EXPECT_FALSE(second->IsConnected());
    EXPECT_EQ(signal->Count(), 1U);
}

TEST_F(zbSignalLifetimeTest, TheEndOfASlotMayUseHandlesToASignalThatGoes) {
    Handle second;
    bool answer = true;
    Handle const first =
        signal->Connect([end = AtEnd([&] { answer = second.Disconnect(); })](int) {});
    second = signal->Connect([](int) {});

    signal.reset();

    EXPECT_FALSE(answer);
}

TEST_F(zbSignalLifetimeTest, ASlotMayOwnTheHandleToItself) {
    auto const own = std::make_shared<Scoped>();
    std::weak_ptr<Scoped> const watch = own;
    *own = signal->Connect([own](int) {});

    signal.reset();

    EXPECT_FALSE(own->IsConnected());
    EXPECT_EQ(own.use_count(), 1);
}

} // namespace
} // namespace platformtest
