// SPDX-License-Identifier: MIT
//! \file
//! Asking the processor for memory that is looked at soon.
#pragma once

#include <cstddef>

namespace zbbrowser::detail {

//! How many elements ahead a loop over scattered objects asks for them.
inline constexpr std::size_t prefetchDistance = 8;

//! Any address will do; it is not followed.
inline void Prefetch(void const* address) {
#if defined(__GNUC__)
    __builtin_prefetch(address);
#else
    static_cast<void>(address);
#endif
}

} // namespace zbbrowser::detail
