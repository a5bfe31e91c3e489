// SPDX-License-Identifier: MIT
//! \file
//! Taking the memory for an element before anything is changed.
#pragma once

#include <vector>

namespace zbbrowser::detail {

//! The next push_back takes no memory, and so does not fail. Amortized O(1), unlike a reserve for
//! one more.
template <class T>
void MakeRoom(std::vector<T>& elements) {
    if (elements.size() == elements.capacity())
        elements.reserve(elements.size() * 2 + 1);
}

} // namespace zbbrowser::detail
