// SPDX-License-Identifier: MIT
#include "containers/SlabPool.h"

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <functional>
#include <new>
#include <type_traits>
#include <utility>

namespace zbbrowser::detail {

namespace {

constexpr std::size_t slabAlignment = 65536;
// What the last slab of a chunk leaves to the allocator's own notes: otherwise it would leave a gap
// as large as a slab between two chunks.
constexpr std::size_t leftFree = 128;
constexpr std::size_t mostSlabsAtOnce = 16;
constexpr std::size_t smallestBlock = 32;

std::uintptr_t AsNumber(void const* address) {
    return reinterpret_cast<std::uintptr_t>(address);
}

} // namespace

// The head of a slab; the blocks follow it.
struct SlabPool::Slab {
    std::bitset<slabAlignment / smallestBlock> handedOut;

    //! The slab that holds a block.
    static Slab* Of(void* block) {
        return reinterpret_cast<Slab*>(AsNumber(block) - AsNumber(block) % slabAlignment);
    }
};

void SlabPool::ChunkDeleter::operator()(std::byte* memory) const {
    ::operator delete(memory, std::align_val_t(slabAlignment));
}

SlabPool::SlabPool(std::size_t blockSize)
    : blockSize_(std::max(blockSize, smallestBlock))
    , blocksPerSlab_((slabAlignment - leftFree - sizeof(Slab)) / blockSize_) {
}

SlabPool::~SlabPool() = default;

void SlabPool::Reserve(std::size_t count) {
    auto const inCurrent = current_ == nullptr ? 0 : blocksPerSlab_ - usedOfCurrent_;
    auto const present = freeCount_ + inCurrent + (slabCount_ - begunCount_) * blocksPerSlab_;
    if (count > present)
        AddChunk(std::max((count - present + blocksPerSlab_ - 1) / blocksPerSlab_, SlabsAtOnce()));
}

void* SlabPool::Allocate() {
    if (free_ != nullptr) {
        FreeBlock* const block = free_;
        free_ = block->next;
        --freeCount_;
        Slab* const slab = Slab::Of(block);
        slab->handedOut.set(IndexOf(*slab, block));
        return block;
    }
    if (current_ == nullptr || usedOfCurrent_ == blocksPerSlab_)
        BeginSlab();
    current_->handedOut.set(usedOfCurrent_);
    return BlockAt(*current_, usedOfCurrent_++);
}

void SlabPool::Free(void* block) {
    Slab* const slab = Slab::Of(block);
    slab->handedOut.reset(IndexOf(*slab, block));
    free_ = new (block) FreeBlock{free_};
    ++freeCount_;
}

bool SlabPool::Owns(void const* address) const {
    auto const chunks = ChunksUpTo(address);
    if (chunks == 0)
        return false;
    auto const& chunk = chunks_[chunks - 1];
    auto const slabs = (AsNumber(address) - AsNumber(chunk.memory.get())) / slabAlignment;
    if (slabs >= chunk.begun)
        return false;
    auto& slab = *reinterpret_cast<Slab*>(chunk.memory.get() + slabs * slabAlignment);
    auto const index = IndexOf(slab, address);
    return index < blocksPerSlab_ && BlockAt(slab, index) == address && slab.handedOut.test(index);
}

void SlabPool::BeginSlab() {
    static_assert(std::is_trivially_destructible_v<Slab>, "slabs go without being destroyed");
    if (slabCount_ == begunCount_)
        AddChunk(SlabsAtOnce());
    auto& chunk = *std::find_if(chunks_.begin(), chunks_.end(),
                                [](Chunk const& each) { return each.begun < each.slabs; });
    current_ = new (chunk.memory.get() + chunk.begun * slabAlignment) Slab;
    ++chunk.begun;
    ++begunCount_;
    usedOfCurrent_ = 0;
}

void SlabPool::AddChunk(std::size_t slabs) {
    auto const bytes = slabs * slabAlignment - leftFree;
    Chunk chunk{{}, slabs, 0};
    chunk.memory.reset(
        static_cast<std::byte*>(::operator new(bytes, std::align_val_t(slabAlignment))));
    auto const place = ChunksUpTo(chunk.memory.get());
    chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place), std::move(chunk));
    slabCount_ += slabs;
}

// A quarter more, so that little is left over.
std::size_t SlabPool::SlabsAtOnce() const {
    return std::clamp(slabCount_ / 4, std::size_t{1}, mostSlabsAtOnce);
}

// std::less orders unrelated pointers, which the built-in comparison need not.
std::size_t SlabPool::ChunksUpTo(void const* address) const {
    std::less<void const*> const before;
    auto const behind = std::upper_bound(
        chunks_.begin(), chunks_.end(), address,
        [&](void const* a, Chunk const& chunk) { return before(a, chunk.memory.get()); });
    return static_cast<std::size_t>(behind - chunks_.begin());
}

std::byte* SlabPool::BlockAt(Slab& slab, std::size_t index) const {
    return reinterpret_cast<std::byte*>(&slab + 1) + index * blockSize_;
}

std::size_t SlabPool::IndexOf(Slab const& slab, void const* address) const {
    return (AsNumber(address) - AsNumber(&slab + 1)) / blockSize_;
}

} // namespace zbbrowser::detail
