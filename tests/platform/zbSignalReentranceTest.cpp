// SPDX-License-Identifier: MIT
//! \file
//! Slots that change or raise signals while they are called.
#include "SignalTestTypes.h"

#include <gtest/gtest.h>

#include <vector>

namespace platformtest {
namespace {

//! A signal with slots that each append a letter; one of them does more.
class ReentranceTest : public testing::Test {
protected:
    //! Connects a slot that appends \p letter and then runs \p action.
    Handle ConnectAction(char letter, std::function<void()> action) {
        return signal.Connect([this, letter, action = std::move(action)](int) {
            text += letter;
            action();
        });
    }
    Handle ConnectLetter(char letter) {
        return ConnectAction(letter, [] {});
    }
    std::string Raise() { return platformtest::Raise(signal, text); }

    std::string text;
    Signal signal;
};

TEST_F(ReentranceTest, ASlotThatCutsItselfIsNotCalledAgain) {
    Handle own;
    Scoped const first(ConnectLetter('a'));
    own = ConnectAction('s', [&] { EXPECT_TRUE(own.Disconnect()); });
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "asz");
    EXPECT_EQ(Raise(), "az");
    EXPECT_EQ(signal.Count(), 2U);
}

TEST_F(ReentranceTest, ASlotThatCutsItselfLivesUntilItsCallEnds) {
    Handle own;
    auto const state = std::make_shared<std::string>("alive");
    std::weak_ptr<std::string> const watch = state;
    std::string read;
    own = signal.Connect([&own, &read, &watch, state](int) {
        own.Disconnect();
        read = watch.expired() ? "gone" : *state;
    });

    signal(0);

    EXPECT_EQ(read, "alive");
    EXPECT_EQ(state.use_count(), 1);
}

TEST_F(ReentranceTest, ALaterSlotThatIsCutIsNotCalledInTheRunningEmission) {
    Handle later;
    Scoped const cutter(ConnectAction('c', [&] { later.Disconnect(); }));
    later = ConnectLetter('x');
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "cz");
    EXPECT_EQ(Raise(), "cz");
}

TEST_F(ReentranceTest, CuttingAnEarlierSlotSkipsNoOther) {
    Handle earlier = ConnectLetter('x');
    Scoped const cutter(ConnectAction('c', [&] { earlier.Disconnect(); }));
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "xcz");
    EXPECT_EQ(Raise(), "cz");
}

TEST_F(ReentranceTest, AConnectionThatIsCutStaysInPlaceUntilTheEmissionEnds) {
    Handle cut = ConnectLetter('x');
    Connection* const connection = cut.Connection();
    std::size_t count = 0;
    bool dead = false;
    Scoped const cutter(ConnectAction('c', [&] {
        cut.Disconnect();
        count = signal.Count();
        dead = connection->IsDead();
    }));

    Raise();

    EXPECT_EQ(count, 2U);
    EXPECT_TRUE(dead);
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(ReentranceTest, AConnectionIsCutOnlyOnce) {
    Handle cut = ConnectLetter('x');
    Connection* const connection = cut.Connection();
    std::vector<bool> answers;
    Scoped const cutter(ConnectAction('c', [&] {
        answers = {signal.Disconnect(connection), signal.Disconnect(connection), cut.Disconnect()};
    }));

    Raise();

    EXPECT_EQ(answers, (std::vector<bool>{true, false, false}));
}

TEST_F(ReentranceTest, ASlotThatIsConnectedIsCalledInTheRunningEmission) {
    Scoped added;
    Scoped const adder(ConnectAction('a', [&] {
        if (!added.IsConnected()) {
            added = ConnectLetter('n');
        }
    }));
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "azn");
    EXPECT_EQ(Raise(), "azn");
}

TEST_F(ReentranceTest, ManySlotsMayBeConnectedFromOne) {
    std::vector<Scoped> added;
    Scoped const adder(ConnectAction('a', [&] {
        for (int i = 0; i < 100; ++i) {
            added.emplace_back(ConnectLetter('n'));
        }
    }));

    EXPECT_EQ(Raise(), "a" + std::string(100, 'n'));
}

TEST_F(ReentranceTest, ASlotThatIsConnectedAndCutAtOnceIsNotCalled) {
    Scoped const adder(ConnectAction('a', [&] { ConnectLetter('n').Disconnect(); }));

    EXPECT_EQ(Raise(), "a");
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(ReentranceTest, RaisingTheSameSignalDoesNothing) {
    Scoped const raiser(ConnectAction('r', [&] { signal(0); }));
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "rz");
    EXPECT_FALSE(signal.IsEmitting());
    EXPECT_EQ(Raise(), "rz");
}

TEST_F(ReentranceTest, RaisingTheSameSignalDoesNotEndTheRunningEmission) {
    Handle later;
    Scoped const raiser(ConnectAction('r', [&] {
        later.Disconnect();
        signal(0);
        EXPECT_TRUE(signal.IsEmitting());
        EXPECT_EQ(signal.Count(), 2U);
    }));
    later = ConnectLetter('x');

    EXPECT_EQ(Raise(), "r");
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(ReentranceTest, RaisingAnotherSignalCallsItsSlotsAtOnce) {
    Signal other;
    Scoped const inner(other.Connect([&](int) {
        text += 'o';
        signal(0);
    }));
    Scoped const raiser(ConnectAction('r', [&] { other(0); }));
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "roz");
}

TEST_F(ReentranceTest, BlockingFromASlotLeavesTheRunningEmissionAlone) {
    Scoped const blocker(ConnectAction('b', [&] { signal.Block(true); }));
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "bz");
    EXPECT_EQ(Raise(), "");
}

TEST_F(ReentranceTest, CuttingEverythingEndsTheRunningEmission) {
    Scoped const first(ConnectLetter('a'));
    Scoped const cutter(ConnectAction('c', [&] { signal.DisconnectAll(); }));
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "ac");
    EXPECT_EQ(signal.Count(), 0U);
}

TEST_F(ReentranceTest, ConnectingAfterCuttingEverythingCallsTheNewSlot) {
    Scoped added;
    Scoped const cutter(ConnectAction('c', [&] {
        signal.DisconnectAll();
        added = ConnectLetter('n');
    }));

    EXPECT_EQ(Raise(), "cn");
    EXPECT_EQ(Raise(), "n");
}

TEST_F(ReentranceTest, NeighbouringConnectionsThatAreCutAllGo) {
    std::vector<Handle> cut;
    Scoped const cutter(ConnectAction('c', [&] {
        for (Handle& each : cut) {
            each.Disconnect();
        }
    }));
    for (int i = 0; i < 5; ++i) {
        cut.push_back(ConnectLetter('x'));
    }
    Scoped const last(ConnectLetter('z'));

    EXPECT_EQ(Raise(), "cz");
    EXPECT_EQ(signal.Count(), 2U);
}

TEST_F(ReentranceTest, ACutAndAThrowTogetherLeaveTheCutPending) {
    Handle cut;
    Scoped const thrower(ConnectAction('t', [&] {
        cut.Disconnect();
        throw 1;
    }));
    cut = ConnectLetter('x');

    EXPECT_THROW(signal(0), int);

    EXPECT_EQ(signal.Count(), 2U);
    EXPECT_EQ(Raise(), "");
    EXPECT_EQ(signal.Count(), 2U);
}

} // namespace
} // namespace platformtest
