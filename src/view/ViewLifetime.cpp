// SPDX-License-Identifier: MIT
#include "view/ViewLifetime.h"

namespace zbbrowser::detail {

ViewLifetime::~ViewLifetime() {
    FreeRetired();
}

void ViewLifetime::GiveUp(void* view, void (*destroy)(void*)) {
    view_ = view;
    whenIdle_ = destroy;
}

void ViewLifetime::Retire(void* object, void (*destroy)(void*, void*), void* owner) {
    if (depth_ == 0) {
        destroy(object, owner);
        return;
    }
    retired_.push_back({object, destroy, owner});
}

// Destroying an object may retire what it holds. The list is walked by index, since it may grow,
// and in the order in which the objects went.
void ViewLifetime::FreeRetired() {
    for (std::size_t i = 0; i < retired_.size(); ++i) {
        auto const gone = retired_[i];
        gone.destroy(gone.object, gone.owner);
    }
    retired_.clear();
    constexpr std::size_t keptEntries = 1024;
    if (retired_.capacity() > keptEntries)
        std::vector<Retired>().swap(retired_);
}

} // namespace zbbrowser::detail
