// SPDX-License-Identifier: MIT
//! \file
//! Included before every source of the test programs: EXPECT_THAT and ASSERT_THAT as they were,
//! save that a matcher always has the memory that it needs. It would lose some of it otherwise,
//! and so look like a leak of what is tested. The value that is looked at is made before.
#pragma once

#include "AllocationFailures.h"

#include <gmock/gmock.h>

#include <utility>

namespace zbtest {

template <class Matcher>
class MatchWithMemory {
public:
    explicit MatchWithMemory(Matcher matcher)
        : predicate_(testing::internal::MakePredicateFormatterFromMatcher(std::move(matcher))) {}

    template <class Value>
    testing::AssertionResult operator()(char const* text, Value const& value) const {
        MemoryIsBack const memory;
        return predicate_(text, value);
    }

private:
    testing::internal::PredicateFormatterFromMatcher<Matcher> predicate_;
};

} // namespace zbtest

#undef EXPECT_THAT
#undef ASSERT_THAT
#define EXPECT_THAT(value, matcher) EXPECT_PRED_FORMAT1(zbtest::MatchWithMemory(matcher), value)
#define ASSERT_THAT(value, matcher) ASSERT_PRED_FORMAT1(zbtest::MatchWithMemory(matcher), value)
