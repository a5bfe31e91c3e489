// SPDX-License-Identifier: MIT
//! \file
//! The tests of a program, again and again, each time with another allocation failing.
#pragma once

#include "AllocationFailures.h"

#include <cstddef>
#include <optional>
#include <string>

namespace zbtest {

struct AllocationRunOptions {
    Failing failing = Failing::Once;
    std::size_t most = 0;          //!< Of the allocations of a test, evenly spread; 0: all.
    std::optional<std::size_t> at; //!< This one only, in this process, for a debugger.
};

//! The options of the command line, if it asks for such a run:
//!
//!     --fail-allocations=once     one allocation of the test fails
//!     --fail-allocations=always   that one and all that follow
//!     --most=N                    with no more than N of the allocations of a test
//!     --at=N                      with that one only, counted from 0
//!
//! Throws std::invalid_argument for an option that is none.
[[nodiscard]] std::optional<AllocationRunOptions>
ParseAllocationRunOptions(int argc, char const* const* argv);

//! Runs the tests that --gtest_filter leaves, first as they are. That expectations fail where
//! memory has ended is to be expected and no failure. A failure is a crash, an allocation that is
//! not given back, a host whose views are not whole afterwards (see CheckAfterFailure) and a test
//! that does not end.
//! \return the exit status of the program
[[nodiscard]] int RunWithFailures(AllocationRunOptions const& options, std::string const& program);

//! Something is not as it should be after a failed allocation. Empty texts are no problem.
void ReportProblem(std::string const& text);

} // namespace zbtest
