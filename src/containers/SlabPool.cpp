// SPDX-License-Identifier: MIT
#include "containers/SlabPool.h"

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <functional>
#include <new>

namespace zbbrowser::detail {

namespace {

constexpr std::size_t slabAlignment = 65536;
// A little less, for the allocator's own notes: otherwise it would leave a gap as large as a slab
// between two of them.
constexpr std::size_t slabSize = slabAlignment - 128;
constexpr std::size_t smallestBlock = 32;

} // namespace

// The head of a slab; the blocks follow it.
struct SlabPool::Slab {
    std::bitset<slabAlignment / smallestBlock> handedOut;

    //! The slab that holds a block.
    static Slab* Of(void* block) {
        auto const address = reinterpret_cast<std::uintptr_t>(block);
        return reinterpret_cast<Slab*>(address - address % slabAlignment);
    }
};

void SlabPool::SlabDeleter::operator()(Slab* slab) const {
    std::destroy_at(slab);
    ::operator delete(slab, std::align_val_t(slabAlignment));
}

SlabPool::SlabPool(std::size_t blockSize)
    : blockSize_(std::max(blockSize, smallestBlock))
    , blocksPerSlab_((slabSize - sizeof(Slab)) / blockSize_) {
}

SlabPool::~SlabPool() = default;

void* SlabPool::Allocate() {
    if (free_ != nullptr) {
        FreeBlock* const block = free_;
        free_ = block->next;
        Slab* const slab = Slab::Of(block);
        slab->handedOut.set(IndexOf(*slab, block));
        return block;
    }
    if (current_ == nullptr || usedOfCurrent_ == blocksPerSlab_)
        AddSlab();
    current_->handedOut.set(usedOfCurrent_);
    return BlockAt(*current_, usedOfCurrent_++);
}

void SlabPool::Free(void* block) {
    Slab* const slab = Slab::Of(block);
    slab->handedOut.reset(IndexOf(*slab, block));
    free_ = new (block) FreeBlock{free_};
}

// std::less orders unrelated pointers, which the built-in comparison need not.
bool SlabPool::Owns(void const* address) const {
    std::less<void const*> const before;
    auto const next =
        std::upper_bound(slabs_.begin(), slabs_.end(), address,
                         [&](void const* a, auto const& slab) { return before(a, slab.get()); });
    if (next == slabs_.begin())
        return false;
    Slab& slab = **std::prev(next);
    auto const index = IndexOf(slab, address);
    return index < blocksPerSlab_ && BlockAt(slab, index) == address && slab.handedOut.test(index);
}

void SlabPool::AddSlab() {
    void* const memory = ::operator new(slabSize, std::align_val_t(slabAlignment));
    std::unique_ptr<Slab, SlabDeleter> slab(new (memory) Slab);
    std::less<void const*> const before;
    auto const place =
        std::upper_bound(slabs_.begin(), slabs_.end(), slab.get(),
                         [&](Slab const* a, auto const& other) { return before(a, other.get()); });
    current_ = slabs_.insert(place, std::move(slab))->get();
    usedOfCurrent_ = 0;
}

std::byte* SlabPool::BlockAt(Slab& slab, std::size_t index) const {
    return reinterpret_cast<std::byte*>(&slab + 1) + index * blockSize_;
}

std::size_t SlabPool::IndexOf(Slab const& slab, void const* address) const {
    auto const first = reinterpret_cast<std::uintptr_t>(&slab + 1);
    return (reinterpret_cast<std::uintptr_t>(address) - first) / blockSize_;
}

} // namespace zbbrowser::detail
