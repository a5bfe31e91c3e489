// SPDX-License-Identifier: MIT
//! \file
//! A set of items.
#pragma once

#include "../LightHost.h"

namespace zbbench {

//! Open addressing, at most half full.
class PointerSet {
public:
    bool IsEmpty() const { return count_ == 0; }
    bool Contains(Item const* item) const {
        return !slots_.empty() && slots_[Find(item)] != nullptr;
    }
    void Add(Item const* item) {
        if (2 * count_ >= slots_.size())
            Grow();
        auto& slot = slots_[Find(item)];
        count_ += slot == nullptr ? 1U : 0U;
        slot = item;
    }
    void Clear() {
        slots_.clear();
        count_ = 0;
    }

private:
    std::size_t Find(Item const* item) const {
        auto const mask = slots_.size() - 1;
        auto const address = reinterpret_cast<std::uintptr_t>(item);
        auto place = (address * 0x9e3779b97f4a7c15U >> 32U) & mask;
        while (slots_[place] != nullptr && slots_[place] != item)
            place = (place + 1) & mask;
        return place;
    }
    void Grow() {
        auto const old = std::move(slots_);
        slots_.assign(std::max<std::size_t>(64, 2 * old.size()), nullptr);
        count_ = 0;
        for (auto const* const item : old) {
            if (item != nullptr)
                Add(item);
        }
    }

    std::vector<Item const*> slots_; // As many as a power of two; null: free
    std::size_t count_ = 0;
};

} // namespace zbbench
