// SPDX-License-Identifier: MIT
#include "items/old/FolderPlace.h"

namespace zbbrowser::detail {

FolderPlace::FolderPlace(FolderPlace const* owner, std::uint64_t number)
    : owner_(owner == nullptr ? this : owner)
    , far_(owner == nullptr ? this
           : owner->depth_ - owner->far_->depth_ == owner->far_->depth_ - owner->far_->far_->depth_
               ? owner->far_->far_
               : owner)
    , depth_(owner == nullptr ? 0 : owner->depth_ + 1)
    , number_(number) {
}

bool FolderPlace::IsBefore(FolderPlace const& other) const {
    auto const* a = depth_ > other.depth_ ? RaisedTo(other.depth_) : this;
    auto const* b = other.depth_ > depth_ ? other.RaisedTo(depth_) : &other;
    if (a == b)
        return depth_ < other.depth_;
    while (a->owner_ != b->owner_) {
        auto const apart = a->far_ != b->far_;
        a = apart ? a->far_ : a->owner_;
        b = apart ? b->far_ : b->owner_;
    }
    return a->number_ < b->number_;
}

FolderPlace const* FolderPlace::RaisedTo(std::uint64_t depth) const {
    auto const* place = this;
    while (place->depth_ > depth)
        place = place->far_->depth_ >= depth ? place->far_ : place->owner_;
    return place;
}

} // namespace zbbrowser::detail
