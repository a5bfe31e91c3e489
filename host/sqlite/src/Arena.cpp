// SPDX-License-Identifier: MIT
#include "Arena.h"

#include <algorithm>
#include <utility>

namespace zbsqlite::detail {

namespace {

// Small tables take little; large ones lose little at the end of a block and call the system
// seldom.
constexpr std::size_t kMinBlock = std::size_t{1} << 10U;
constexpr std::size_t kMaxBlock = std::size_t{1} << 20U;

} // namespace

std::byte* Arena::NewBlock(std::size_t size) {
    blocks_.push_back(std::make_unique_for_overwrite<std::byte[]>(size));
    taken_ += size;
    return blocks_.back().get();
}

std::byte* Arena::Allocate(std::size_t size) {
    if (size > left_) {
        std::size_t const blockSize = std::clamp(taken_, kMinBlock, kMaxBlock);
        if (size > blockSize / 8)
            return NewBlock(size); // The rest of the common block stays in use.
        next_ = NewBlock(blockSize);
        left_ = blockSize;
    }
    left_ -= size;
    return std::exchange(next_, next_ + size);
}

} // namespace zbsqlite::detail
