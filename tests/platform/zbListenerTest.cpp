// SPDX-License-Identifier: MIT
//! \file
//! Listeners and trackers: when they are told, and what their end does.
#include "SignalTestTypes.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace platformtest {
namespace {

class zbListenerTest : public testing::Test {
protected:
    Handle Connect() { return signal.Connect(listener.get(), &Listener::Hear); }
    std::string Raise() { return platformtest::Raise(signal, text); }

    std::string text;
    Signal signal;
    std::unique_ptr<Listener> listener = std::make_unique<Listener>(text, 'l');
};

TEST_F(zbListenerTest, KnowsASignalOnceHoweverManyConnectionsLeadToIt) {
    Handle const first = Connect();
    Handle const second = Connect();

    EXPECT_EQ(listener->SignalCount(), 1U);
    EXPECT_EQ(Raise(), "ll");
}

TEST_F(zbListenerTest, IsToldWhenItsOnlyConnectionIsCut) {
    Handle connection = Connect();

    EXPECT_TRUE(connection.Disconnect());

    EXPECT_EQ(listener->SignalCount(), 0U);
}

TEST_F(zbListenerTest, IsNotToldWhenOneOfTwoConnectionsIsCut) {
    Handle first = Connect();
    Handle second = Connect();

    first.Disconnect();

    EXPECT_EQ(listener->SignalCount(), 1U);
    EXPECT_EQ(Raise(), "l");
    second.Disconnect();
    EXPECT_EQ(listener->SignalCount(), 0U);
}

TEST_F(zbListenerTest, IsNotToldOfACutDuringAnEmissionBeforeThatEnds) {
    Handle connection;
    std::size_t during = 0;
    Scoped const cutter(signal.Connect([&](int) {
        connection.Disconnect();
        during = listener->SignalCount();
    }));
    connection = Connect();

    Raise();

    EXPECT_EQ(during, 1U);
    EXPECT_EQ(listener->SignalCount(), 0U);
}

TEST_F(zbListenerTest, IsNotToldWhenOneOfTwoConnectionsIsCutDuringAnEmission) {
    Handle connection;
    Scoped const cutter(signal.Connect([&](int) { connection.Disconnect(); }));
    connection = Connect();
    Handle const kept = Connect();

    Raise();

    EXPECT_EQ(listener->SignalCount(), 1U);
}

TEST_F(zbListenerTest, IsToldWhenBothConnectionsAreCutDuringAnEmission) {
    Scoped const cutter(signal.Connect([&](int) { signal.Disconnect(listener.get()); }));
    Handle const first = Connect();
    Handle const second = Connect();

    EXPECT_EQ(Raise(), "");

    EXPECT_EQ(listener->SignalCount(), 0U);
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(zbListenerTest, AllItsConnectionsAreCutTogether) {
    std::string const before = (ConnectLetter(signal, text, 'a'), "a");
    Handle const first = Connect();
    Handle const second = Connect();

    EXPECT_TRUE(signal.Disconnect(listener.get()));

    EXPECT_EQ(Raise(), before);
    EXPECT_FALSE(signal.Disconnect(listener.get()));
    EXPECT_EQ(listener->SignalCount(), 0U);
}

TEST_F(zbListenerTest, NullOrUnknownIsNotCut) {
    ConnectLetter(signal, text, 'a');
    Signal other;
    Connection* const foreign = ConnectLetter(other, text, 'o');

    EXPECT_FALSE(signal.Disconnect(static_cast<Listener*>(nullptr)));
    EXPECT_FALSE(signal.Disconnect(listener.get()));
    EXPECT_FALSE(signal.Disconnect(static_cast<Connection*>(nullptr)));
    EXPECT_FALSE(signal.Disconnect(foreign));
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(zbListenerTest, CutsItsConnectionsOfEverySignalWhenItGoes) {
    Signal other;
    ConnectLetter(other, text, 'o');
    Handle const first = Connect();
    Handle const second = other.Connect([this](int) { text += 'f'; }, listener.get());

    listener.reset();

    EXPECT_FALSE(first.IsConnected());
    EXPECT_FALSE(second.IsConnected());
    EXPECT_EQ(Raise(), "");
    EXPECT_EQ(platformtest::Raise(other, text), "o");
}

TEST_F(zbListenerTest, MayGoFromWithinItsOwnSlot) {
    Handle const destroyer = signal.Connect(
        [this](int) {
            text += 'd';
            listener.reset();
        },
        listener.get());
    Handle const member = Connect();
    ConnectLetter(signal, text, 'z');

    EXPECT_EQ(Raise(), "dz");
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(zbListenerTest, MayGoFromWithinAnotherSlotAfterItsConnectionWasCut) {
    Handle connection;
    Scoped const destroyer(signal.Connect([&](int) {
        connection.Disconnect();
        listener.reset();
    }));
    connection = Connect();

    EXPECT_EQ(Raise(), "");
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(zbListenerTest, IsForgottenByASignalThatGoes) {
    auto other = std::make_unique<Signal>();
    Handle const first = other->Connect(listener.get(), &Listener::Hear);
    Handle const second = other->Connect(listener.get(), &Listener::Hear);

    other.reset();

    EXPECT_EQ(listener->SignalCount(), 0U);
    EXPECT_FALSE(first.IsConnected());
}

TEST_F(zbListenerTest, MayTakeOtherSignalsWithItWhenItGoes) {
    // Given: the slot of one signal owns another signal that the listener hears too.
    std::vector<std::shared_ptr<Signal>> signals{std::make_shared<Signal>(),
                                                 std::make_shared<Signal>()};
    std::vector<Handle> handles;
    for (auto const index : {0U, 1U}) {
        auto const owned = signals[1 - index];
        handles.push_back(signals[index]->Connect([owned](int) {}, listener.get()));
    }
    std::weak_ptr<Signal> const watch = signals[0];
    signals.clear();
    ASSERT_FALSE(watch.expired());

    // When
    listener.reset();

    // Then
    EXPECT_TRUE(watch.expired());
    EXPECT_FALSE(handles[0].IsConnected());
    EXPECT_FALSE(handles[1].IsConnected());
}

class zbSignalTrackerTest : public zbListenerTest {
protected:
    Handle ConnectTracked() {
        return signal.Connect([this](int) { text += 't'; }, listener.get(), tracker.get());
    }

    std::unique_ptr<Tracker> tracker = std::make_unique<Tracker>();
};

TEST_F(zbSignalTrackerTest, MakesAConnectionOfKindSix) {
    Handle const tracked = ConnectTracked();
    Handle const plain = signal.Connect([](int) {}, listener.get());

    EXPECT_EQ(tracked.Connection()->Kind(), 6);
    EXPECT_EQ(tracked.Connection()->Far(), tracker.get());
    EXPECT_EQ(plain.Connection()->Kind(), 1);
    EXPECT_EQ(plain.Connection()->Far(), nullptr);
    EXPECT_EQ(tracker->SignalCount(), 1U);
    EXPECT_EQ(Raise(), "t");
}

TEST_F(zbSignalTrackerTest, IsToldWithTheListenerWhenTheConnectionIsCut) {
    Handle tracked = ConnectTracked();

    tracked.Disconnect();

    EXPECT_EQ(tracker->SignalCount(), 0U);
    EXPECT_EQ(listener->SignalCount(), 0U);
}

TEST_F(zbSignalTrackerTest, IsNotToldWhenOneOfTwoConnectionsIsCut) {
    Handle first = ConnectTracked();
    Handle second = ConnectTracked();

    first.Disconnect();

    EXPECT_EQ(tracker->SignalCount(), 1U);
    second.Disconnect();
    EXPECT_EQ(tracker->SignalCount(), 0U);
}

TEST_F(zbSignalTrackerTest, IsToldOfACutDuringAnEmissionWhenThatEnds) {
    Handle tracked;
    std::size_t during = 0;
    Scoped const cutter(signal.Connect([&](int) {
        tracked.Disconnect();
        during = tracker->SignalCount();
    }));
    tracked = ConnectTracked();

    Raise();

    EXPECT_EQ(during, 1U);
    EXPECT_EQ(tracker->SignalCount(), 0U);
}

TEST_F(zbSignalTrackerTest, CutsTheConnectionWhenItGoes) {
    Handle const tracked = ConnectTracked();

    tracker.reset();

    EXPECT_FALSE(tracked.IsConnected());
    EXPECT_EQ(listener->SignalCount(), 0U);
    EXPECT_EQ(Raise(), "");
}

TEST_F(zbSignalTrackerTest, IsToldWhenTheListenerGoes) {
    Handle const tracked = ConnectTracked();

    listener.reset();

    EXPECT_FALSE(tracked.IsConnected());
    EXPECT_EQ(tracker->SignalCount(), 0U);
}

TEST_F(zbSignalTrackerTest, MayGoTogetherWithTheListenerDuringAnEmission) {
    Handle tracked;
    Scoped const destroyer(signal.Connect([&](int) {
        listener.reset();
        tracker.reset();
    }));
    tracked = ConnectTracked();

    EXPECT_EQ(Raise(), "");
    EXPECT_EQ(signal.Count(), 1U);
}

TEST_F(zbSignalTrackerTest, IsForgottenByASignalThatGoes) {
    auto other = std::make_unique<Signal>();
    Handle const tracked = other->Connect([](int) {}, nullptr, tracker.get());

    other.reset();

    EXPECT_EQ(tracker->SignalCount(), 0U);
}

} // namespace
} // namespace platformtest
