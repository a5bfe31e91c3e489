// SPDX-License-Identifier: MIT
//! \file
//! How signals use a locking policy.
#include "SignalTestTypes.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace platformtest {
namespace {

//! Counts. One count for all objects, so that it can still be read when they have gone.
class CountingPolicy {
public:
    CountingPolicy() = default;
    CountingPolicy(CountingPolicy const&) = delete;
    CountingPolicy& operator=(CountingPolicy const&) = delete;
    virtual ~CountingPolicy() { EXPECT_EQ(held_, 0) << "destroyed while locked"; }

    virtual void lock() {
        ++held_;
        ++locks;
    }
    virtual void unlock() { --held_; }
    [[nodiscard]] int Held() const { return held_; }

    static inline int locks = 0;

private:
    int held_ = 0;
};

using CountedSignal = zbSignal<CountingPolicy>;

TEST(zbSignalPolicyTest, AnEmissionHoldsTheLockOnce) {
    CountedSignal signal;
    int held = 0;
    zbScopedConnection<CountingPolicy> const connection(
        signal.Connect([&] { held = signal.Held(); }));

    signal();

    EXPECT_EQ(held, 1);
    EXPECT_EQ(signal.Held(), 0);
}

TEST(zbSignalPolicyTest, AnEmissionWithoutConnectionsLocksAndUnlocks) {
    CountedSignal signal;
    CountingPolicy::locks = 0;

    signal();

    EXPECT_EQ(CountingPolicy::locks, 1);
    EXPECT_EQ(signal.Held(), 0);
}

TEST(zbSignalPolicyTest, ABlockedEmissionUnlocks) {
    CountedSignal signal;
    zbScopedConnection<CountingPolicy> const connection(signal.Connect([] {}));
    signal.Block(true);

    signal();

    EXPECT_EQ(signal.Held(), 0);
}

TEST(zbSignalPolicyTest, ADroppedEmissionUnlocksItsOwnLockOnly) {
    CountedSignal signal;
    int held = 0;
    zbScopedConnection<CountingPolicy> const connection(signal.Connect([&] {
        signal();
        held = signal.Held();
    }));

    signal();

    EXPECT_EQ(held, 1);
    EXPECT_EQ(signal.Held(), 0);
}

TEST(zbSignalPolicyTest, ACleanUpIsDoneOnceOnly) {
    CountedSignal signal;
    zbScopedConnection<CountingPolicy> const kept(signal.Connect([] {}));
    zbConnectionHandle<CountingPolicy> own;
    own = signal.Connect([&own] { own.Disconnect(); });
    signal();
    CountingPolicy::locks = 0;

    signal();

    // The emission's own; a clean-up would take the lock once more.
    EXPECT_EQ(CountingPolicy::locks, 1);
}

TEST(zbSignalPolicyTest, ASlotThatThrowsLeavesTheSignalUnlocked) {
    CountedSignal signal;
    zbScopedConnection<CountingPolicy> const connection(signal.Connect([] { throw 1; }));

    EXPECT_THROW(signal(), int);

    EXPECT_EQ(signal.Held(), 0);
}

TEST(zbSignalPolicyTest, ASignalThatGoesDuringItsEmissionIsUnlockedFirst) {
    auto signal = std::make_unique<CountedSignal>();
    auto const connection = signal->Connect([&] { signal.reset(); });

    (*signal)();

    // The policy's destructor looks whether it is still locked.
    EXPECT_FALSE(connection.IsConnected());
}

TEST(zbSignalPolicyTest, ConnectingAndCuttingLockTheSignalAndBothEnds) {
    CountedSignal signal;
    zbListener<CountingPolicy> listener;
    zbSignalTracker<CountingPolicy> tracker;

    CountingPolicy::locks = 0;
    auto connection = signal.Connect([] {}, &listener, &tracker);
    EXPECT_EQ(CountingPolicy::locks, 3);
    CountingPolicy::locks = 0;
    connection.Disconnect();

    // The signal twice: once for the cut and once to clear the mark of the clean-up.
    EXPECT_EQ(CountingPolicy::locks, 4);
    EXPECT_EQ(signal.Held(), 0);
    EXPECT_EQ(listener.Held(), 0);
    EXPECT_EQ(tracker.Held(), 0);
}

TEST(zbSignalPolicyTest, AListenerWithTwoConnectionsIsToldOnlyOnce) {
    CountedSignal signal;
    zbListener<CountingPolicy> listener;
    auto const first = signal.Connect([] {}, &listener);
    auto const second = signal.Connect([] {}, &listener);
    CountingPolicy::locks = 0;

    signal.Disconnect(&listener);

    // The signal for the cut, the listener, the signal for the end of the clean-up.
    EXPECT_EQ(CountingPolicy::locks, 3);
    EXPECT_EQ(listener.SignalCount(), 0U);
}

TEST(zbSignalPolicyTest, ASignalThatGoesTellsAListenerWithTwoConnectionsOnce) {
    zbListener<CountingPolicy> listener;
    {
        CountedSignal signal;
        (void)signal.Connect([] {}, &listener);
        (void)signal.Connect([] {}, &listener);
        CountingPolicy::locks = 0;
    }

    EXPECT_EQ(CountingPolicy::locks, 1);
    EXPECT_EQ(listener.SignalCount(), 0U);
}

TEST(zbSignalPolicyTest, AnEndThatCannotRememberTheSignalIsNotConnected) {
    struct Failing : CountingPolicy {
        void lock() override {
            if (fail) {
                throw std::runtime_error("lock");
            }
            CountingPolicy::lock();
        }
        bool fail = false;
    };
    zbSignal<Failing> signal;
    zbListener<Failing> listener;
    zbSignalTracker<Failing> tracker;
    tracker.fail = true;

    EXPECT_THROW((void)signal.Connect([] {}, &listener, &tracker), std::runtime_error);

    tracker.fail = false;
    EXPECT_EQ(signal.Count(), 0U);
    EXPECT_EQ(listener.SignalCount(), 0U);
    EXPECT_EQ(signal.Held(), 0);
}

class ThrowingPolicy {
public:
    ThrowingPolicy() = default;
    ThrowingPolicy(ThrowingPolicy const&) = delete;
    ThrowingPolicy& operator=(ThrowingPolicy const&) = delete;
    virtual ~ThrowingPolicy() = default;

    virtual void lock() {}
    virtual void unlock() {
        if (armed) {
            throw std::runtime_error("unlock");
        }
    }
    bool armed = false;
};

TEST(zbSignalPolicyDeathTest, AnUnlockThatThrowsEndsTheProcess) {
    zbSignal<ThrowingPolicy> signal;
    auto const connection = signal.Connect([&signal] { signal.armed = true; });
    auto const raiseAndCatch = [&signal] {
        try {
            signal();
        } catch (std::runtime_error const&) {
        }
    };

    EXPECT_DEATH(raiseAndCatch(), "");
}

} // namespace
} // namespace platformtest
