// SPDX-License-Identifier: MIT
//! \file
//! What raising a signal does as long as no slot interferes.
#include "SignalTestTypes.h"

#include <zbBrowserView/platform/zbString.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <type_traits>
#include <vector>

namespace platformtest {
namespace {

static_assert(!std::is_copy_constructible_v<Signal> && !std::is_copy_assignable_v<Signal>);
static_assert(!std::is_move_constructible_v<Signal> && !std::is_move_assignable_v<Signal>);
static_assert(!std::is_copy_constructible_v<Listener> && !std::is_move_constructible_v<Listener>);
static_assert(!std::is_copy_constructible_v<Tracker>);
static_assert(std::is_base_of_v<single_threaded, Signal>);
static_assert(std::is_base_of_v<single_threaded, zbListener<single_threaded>>);

TEST(zbSignalEmissionTest, SlotsAreCalledInTheOrderOfConnecting) {
    std::string text;
    Signal signal;
    ConnectLetter(signal, text, 'a');
    ConnectLetter(signal, text, 'b');
    ConnectLetter(signal, text, 'c');

    EXPECT_EQ(Raise(signal, text), "abc");
}

TEST(zbSignalEmissionTest, EverySlotGetsTheSameArguments) {
    // Given
    zbSignal<single_threaded, zbString, int> signal;
    std::vector<zbString> heard;
    auto const slot = [&heard](zbString text, int number) {
        EXPECT_EQ(number, 7);
        heard.push_back(std::move(text));
    };
    Scoped const first(signal.Connect(slot));
    Scoped const second(signal.Connect(slot));

    // When
    signal("a text that is too long to lie inside", 7);

    // Then
    EXPECT_EQ(heard, std::vector<zbString>(2, "a text that is too long to lie inside"));
}

TEST(zbSignalEmissionTest, ASlotMayWriteThroughAReference) {
    zbSignal<single_threaded, std::vector<int>&> signal;
    Scoped const connection(signal.Connect([](std::vector<int>& list) { list.push_back(1); }));
    std::vector<int> list;

    signal(list);

    EXPECT_EQ(list, std::vector<int>{1});
}

TEST(zbSignalEmissionTest, ASignalMayHaveSevenArgumentsOrNone) {
    int calls = 0;
    zbSignal<single_threaded> none;
    zbSignal<single_threaded, int*, char const*, char const*, char const*, char const*, char const*,
             char const*>
        seven;
    Scoped const first(none.Connect([&calls] { ++calls; }));
    Scoped const second(
        seven.Connect([&calls](int* pointer, char const*, char const*, char const*, char const*,
                               char const*, char const* last) { calls += *pointer + last[0]; }));

    none();
    int ten = 10;
    seven(&ten, "", "", "", "", "", "\x64");

    EXPECT_EQ(calls, 1 + 10 + 100);
}

TEST(zbSignalEmissionTest, AMemberOfAListenerIsASlot) {
    std::string text;
    Signal signal;
    Listener listener(text, 'l');

    Handle const handle = signal.Connect(&listener, &Listener::Hear);

    EXPECT_EQ(Raise(signal, text), "l");
    EXPECT_EQ(handle.Connection()->Kind(), 2);
    EXPECT_EQ(handle.Connection()->Listener(), &listener);
}

TEST(zbSignalEmissionTest, AMemberOfABaseOfTheListenerIsASlot) {
    struct Derived : Listener {
        using Listener::Listener;
    };
    std::string text;
    Signal signal;
    Derived listener(text, 'd');

    Handle const handle = signal.Connect(&listener, &Listener::Hear);

    EXPECT_EQ(Raise(signal, text), "d");
    EXPECT_EQ(handle.Connection()->Listener(), &listener);
}

TEST(zbSignalEmissionTest, NothingToCallIsNotConnected) {
    Signal signal;
    std::string text;
    Listener listener(text, 'l');

    EXPECT_FALSE(signal.Connect(std::function<void(int)>()).IsConnected());
    EXPECT_FALSE(signal.Connect(static_cast<Listener*>(nullptr), &Listener::Hear).IsConnected());
    void (Listener::*none)(int) = nullptr;
    EXPECT_FALSE(signal.Connect(&listener, none).IsConnected());
    EXPECT_EQ(signal.Count(), 0U);
    EXPECT_EQ(listener.SignalCount(), 0U);
}

TEST(zbSignalEmissionTest, AnEmissionWithoutConnectionsDoesNotTouchTheState) {
    Signal signal;

    signal(0);

    EXPECT_FALSE(signal.IsEmitting());
    EXPECT_EQ(signal.Count(), 0U);
}

TEST(zbSignalEmissionTest, AnEmissionIsInProgressWhileSlotsRunAndNotAfterwards) {
    Signal signal;
    bool during = false;
    Scoped const connection(signal.Connect([&](int) { during = signal.IsEmitting(); }));

    signal(0);

    EXPECT_TRUE(during);
    EXPECT_FALSE(signal.IsEmitting());
}

TEST(zbSignalEmissionTest, ABlockedSignalCallsNoSlot) {
    std::string text;
    Signal signal;
    ConnectLetter(signal, text, 'a');

    signal.Block(true);

    EXPECT_TRUE(signal.IsBlocked());
    EXPECT_EQ(Raise(signal, text), "");
    EXPECT_FALSE(signal.IsEmitting());
}

TEST(zbSignalEmissionTest, AnUnblockedSignalCallsItsSlotsAgain) {
    std::string text;
    Signal signal;
    ConnectLetter(signal, text, 'a');
    signal.Block(true);

    signal.Block(false);

    EXPECT_FALSE(signal.IsBlocked());
    EXPECT_EQ(Raise(signal, text), "a");
}

TEST(zbSignalEmissionTest, WhatASlotThrowsReachesTheCallerAndNoLaterSlotIsCalled) {
    std::string text;
    Signal signal;
    ConnectLetter(signal, text, 'a');
    Scoped const thrower(signal.Connect([](int) { throw zbString("out of the slot"); }));
    ConnectLetter(signal, text, 'c');

    try {
        signal(0);
        FAIL() << "nothing was thrown";
    } catch (zbString const& thrown) {
        EXPECT_EQ(thrown, "out of the slot");
    }
    EXPECT_EQ(text, "a");
}

//! A signal whose only slot so far has thrown.
class MuteSignalTest : public testing::Test {
protected:
    MuteSignalTest() {
        thrower = signal.Connect([this](int) {
            text += 't';
            throw std::runtime_error("slot");
        });
        EXPECT_THROW(signal(0), std::runtime_error);
        text.clear();
    }

    std::string text;
    Signal signal;
    Handle thrower;
};

TEST_F(MuteSignalTest, StaysSilent) {
    ConnectLetter(signal, text, 'x');

    EXPECT_EQ(Raise(signal, text), "");
    EXPECT_TRUE(signal.IsEmitting());
}

TEST_F(MuteSignalTest, OnlyMarksWhatIsCut) {
    Connection* const connection = thrower.Connection();

    EXPECT_TRUE(thrower.Disconnect());

    EXPECT_EQ(signal.Count(), 1U);
    EXPECT_TRUE(connection->IsDead());
    EXPECT_FALSE(signal.Disconnect(connection));
}

TEST_F(MuteSignalTest, DoesNotTellAListenerOfACut) {
    Listener listener(text, 'l');
    Handle handle = signal.Connect(&listener, &Listener::Hear);

    EXPECT_TRUE(handle.Disconnect());

    EXPECT_EQ(listener.SignalCount(), 1U);
}

TEST_F(MuteSignalTest, OutlivesItsListeners) {
    auto listener = std::make_unique<Listener>(text, 'l');
    Handle const handle = signal.Connect(listener.get(), &Listener::Hear);
    Connection* const connection = handle.Connection();

    listener.reset();

    EXPECT_TRUE(connection->IsDead());
    EXPECT_EQ(connection->Listener(), nullptr);
}

TEST_F(MuteSignalTest, IsForgottenByItsListenersWhenItGoes) {
    auto other = std::make_unique<Signal>();
    Scoped const throwing(other->Connect([](int) { throw 1; }));
    EXPECT_THROW((*other)(0), int);
    Listener listener(text, 'l');
    Handle cut = other->Connect(&listener, &Listener::Hear);
    cut.Disconnect();

    other.reset();

    EXPECT_EQ(listener.SignalCount(), 0U);
}

} // namespace
} // namespace platformtest
