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

void ViewLifetime::Retire(std::unique_ptr<Retirable> object) noexcept {
    if (depth_ == 0)
        return;
    auto* const retired = object.release();
    (firstRetired_ == nullptr ? firstRetired_ : lastRetired_->retiredNext_) = retired;
    lastRetired_ = retired;
    ++retiredCount_;
}

// In the order in which the objects went. Destroying one may retire what it holds.
void ViewLifetime::FreeRetired() {
    while (firstRetired_ != nullptr) {
        std::unique_ptr<Retirable> const gone(firstRetired_);
        firstRetired_ = gone->retiredNext_;
    }
    retiredCount_ = 0;
}

} // namespace zbbrowser::detail
