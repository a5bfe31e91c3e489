// SPDX-License-Identifier: MIT
//! \file
//! Replaces the global operator new by one that counts.
#pragma once

namespace platformtest {

//! The number of allocations so far.
long AllocationCount();

} // namespace platformtest
