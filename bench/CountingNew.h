// SPDX-License-Identifier: MIT
//! \file
//! How much memory is in use.
#pragma once

#include <cstddef>

namespace zbbench {

//! Bytes that operator new has handed out and not got back, with what the allocator rounds up.
std::size_t BytesInUse();

//! Calls of operator new so far.
std::size_t Allocations();

} // namespace zbbench
