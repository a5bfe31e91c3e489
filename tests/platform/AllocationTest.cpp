// SPDX-License-Identifier: MIT
//! \file
//! What must not allocate: short texts, and raising signals.
#include "SignalTestTypes.h"
#include "support/AllocationFailures.h"

#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/platform/zbVariant.h>

#include <gtest/gtest.h>

namespace platformtest {
namespace {

using zbtest::AllocationCount;

//! How many allocations \p action makes.
template <class Action>
long AllocationsOf(Action action) {
    long const before = AllocationCount();
    action();
    return AllocationCount() - before;
}

TEST(AllocationTest, TheCountSeesALongText) {
    EXPECT_EQ(AllocationsOf([] { zbString const text("sixteen bytes, 16 and more"); }), 1);
}

TEST(AllocationTest, FifteenBytesLieInsideTheText) {
    EXPECT_EQ(AllocationsOf([] {
                  zbString const text("fifteen bytes !");
                  zbString copy(text);
                  zbString const moved(std::move(copy));
                  copy = text;
                  EXPECT_EQ(copy.length(), 15U);
              }),
              0);
}

TEST(AllocationTest, MovingALongTextAllocatesNothing) {
    zbString text("a text that is too long to lie inside");

    EXPECT_EQ(AllocationsOf([&text] {
                  zbString moved(std::move(text));
                  text = std::move(moved);
              }),
              0);
}

TEST(AllocationTest, AVariantOfANumberAllocatesNothing) {
    EXPECT_EQ(AllocationsOf([] {
                  zbVariant value(7LL);
                  value = 0.5;
                  value.SetKind(zbVariant::String);
              }),
              0);
}

TEST(AllocationTest, RaisingASignalAllocatesNothing) {
    int calls = 0;
    zbSignal<single_threaded, char const*, int> signal;
    Scoped const first(signal.Connect([&calls](char const*, int) { ++calls; }));
    Scoped const second(signal.Connect([&calls](char const*, int) { ++calls; }));

    EXPECT_EQ(AllocationsOf([&signal] { signal("", 1); }), 0);
    EXPECT_EQ(calls, 2);
}

TEST(AllocationTest, RaisingASignalWithoutConnectionsAllocatesNothing) {
    Signal signal;

    EXPECT_EQ(AllocationsOf([&signal] { signal(1); }), 0);
}

TEST(AllocationTest, CuttingFromASlotAllocatesNothing) {
    Signal signal;
    Handle own;
    own = signal.Connect([&own](int) { own.Disconnect(); });

    EXPECT_EQ(AllocationsOf([&signal] { signal(1); }), 0);
    EXPECT_EQ(signal.Count(), 0U);
}

} // namespace
} // namespace platformtest
