// SPDX-License-Identifier: MIT
//! \file
//! zbConnectionHandle and zbScopedConnection.
#include "SignalTestTypes.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace platformtest {
namespace {

static_assert(!std::is_copy_constructible_v<Scoped> && !std::is_copy_assignable_v<Scoped>);
static_assert(std::is_nothrow_move_constructible_v<Scoped>);

class HandleTest : public testing::Test {
protected:
    Handle Connect(char letter) {
        return signal->Connect([this, letter](int) { text += letter; });
    }
    std::string Raise() { return platformtest::Raise(*signal, text); }

    std::string text;
    std::unique_ptr<Signal> signal = std::make_unique<Signal>();
};

TEST_F(HandleTest, ANewHandleNamesNothing) {
    Handle handle;

    EXPECT_FALSE(handle.IsConnected());
    EXPECT_EQ(handle.Connection(), nullptr);
    EXPECT_FALSE(handle.Disconnect());
}

TEST_F(HandleTest, AHandleCutsItsConnectionOnce) {
    Handle handle = Connect('a');
    Handle const other = Connect('b');
    ASSERT_TRUE(handle.IsConnected());

    EXPECT_TRUE(handle.Disconnect());

    EXPECT_FALSE(handle.Disconnect());
    EXPECT_FALSE(handle.IsConnected());
    EXPECT_EQ(handle.Connection(), nullptr);
    EXPECT_TRUE(other.IsConnected());
    EXPECT_EQ(Raise(), "b");
}

TEST_F(HandleTest, LettingAHandleGoKeepsTheConnection) {
    { Handle const handle = Connect('a'); }

    EXPECT_EQ(Raise(), "a");
}

TEST_F(HandleTest, CopiesNameTheSameConnection) {
    Handle first = Connect('a');
    Handle const second = first;

    first.Disconnect();

    EXPECT_FALSE(second.IsConnected());
}

TEST_F(HandleTest, AHandleSeesThatTheSignalCutItsConnection) {
    Handle const handle = Connect('a');

    signal->DisconnectAll();

    EXPECT_FALSE(handle.IsConnected());
    EXPECT_EQ(signal->Count(), 0U);
}

TEST_F(HandleTest, AHandleSeesACutDuringAnEmissionAtOnce) {
    Handle handle;
    bool during = true;
    Scoped const cutter(signal->Connect([&](int) {
        signal->Disconnect(handle.Connection());
        during = handle.IsConnected();
    }));
    handle = Connect('a');

    Raise();

    EXPECT_FALSE(during);
}

TEST_F(HandleTest, AHandleMayOutliveItsSignal) {
    Handle handle = Connect('a');

    signal.reset();

    EXPECT_FALSE(handle.IsConnected());
    EXPECT_EQ(handle.Connection(), nullptr);
    EXPECT_FALSE(handle.Disconnect());
}

TEST_F(HandleTest, AScopedConnectionCutsWhenItGoes) {
    {
        Scoped const scoped = Connect('a');
        EXPECT_EQ(Raise(), "a");
    }

    EXPECT_EQ(signal->Count(), 0U);
}

TEST_F(HandleTest, AScopedConnectionMayOutliveItsSignal) {
    Scoped scoped = Connect('a');

    signal.reset();

    EXPECT_FALSE(scoped.IsConnected());
    EXPECT_FALSE(scoped.Disconnect());
}

TEST_F(HandleTest, AScopedConnectionCutsEarlierWhenAsked) {
    Scoped scoped = Connect('a');

    EXPECT_TRUE(scoped.Disconnect());

    EXPECT_FALSE(scoped.Disconnect());
    EXPECT_EQ(signal->Count(), 0U);
}

TEST_F(HandleTest, AScopedConnectionThatIsGivenAnotherCutsTheOld) {
    Scoped scoped = Connect('a');

    scoped = Connect('b');

    EXPECT_EQ(Raise(), "b");
}

TEST_F(HandleTest, AMovedScopedConnectionStandsUntilTheNewHolderGoes) {
    Scoped first = Connect('a');
    {
        Scoped const second(std::move(first));
        // NOLINTNEXTLINE(bugprone-use-after-move): this is what is tested
        EXPECT_FALSE(first.IsConnected());
        EXPECT_EQ(Raise(), "a");
    }

    EXPECT_EQ(signal->Count(), 0U);
}

TEST_F(HandleTest, AssigningAScopedConnectionToItselfKeepsIt) {
    Scoped scoped = Connect('a');
    Scoped& same = scoped;

    scoped = std::move(same);

    EXPECT_TRUE(scoped.IsConnected());
    EXPECT_EQ(Raise(), "a");
}

TEST_F(HandleTest, AReleasedConnectionIsNotCut) {
    Handle handle;
    {
        Scoped scoped = Connect('a');
        handle = scoped.Release();
        EXPECT_FALSE(scoped.IsConnected());
    }

    EXPECT_TRUE(handle.IsConnected());
    EXPECT_EQ(Raise(), "a");
}

} // namespace
} // namespace platformtest
