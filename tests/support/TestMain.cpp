// SPDX-License-Identifier: MIT
//! \file
//! main() of the test programs.
#include "AllocationRun.h"

#include <gmock/gmock.h>

#include <exception>
#include <iostream>

int main(int argc, char** argv) try {
    testing::InitGoogleMock(&argc, argv);
    auto const failures = zbtest::ParseAllocationRunOptions(argc, argv);
    return failures.has_value() ? zbtest::RunWithFailures(*failures, argv[0]) : RUN_ALL_TESTS();
} catch (std::exception const& error) {
    std::cerr << argv[0] << ": " << error.what() << '\n';
    return 2;
}
