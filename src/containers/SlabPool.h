// SPDX-License-Identifier: MIT
//! \file
//! Memory for the many small items of a view.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace zbbrowser::detail {

//! Hands out blocks of one size without any overhead per block, and can tell whether an address
//! is one of its blocks. A view item costs its own bytes and nothing more, and a pointer that the
//! host hands in can be recognised as an item of this view without being followed.
//!
//! Blocks come from slabs that are aligned to their size, so that the slab of a block is found in
//! its address. Slabs come in chunks: as many as are reserved, or the more at once the more there
//! are. Memory goes back to the system with the pool.
class SlabPool {
public:
    //! \param blockSize bytes of a block, a multiple of the alignment of a pointer
    explicit SlabPool(std::size_t blockSize);
    SlabPool(SlabPool const&) = delete;
    SlabPool& operator=(SlabPool const&) = delete;
    ~SlabPool();

    //! Takes the memory for `count` further blocks, as far as it is not there, in one piece.
    //! Throws std::bad_alloc.
    void Reserve(std::size_t count);

    //! A block, not initialised. Throws std::bad_alloc.
    void* Allocate();

    //! Gives back a block of this pool.
    void Free(void* block);

    //! `address` is the start of a block that is handed out. O(log blocks). Follows nothing.
    bool Owns(void const* address) const;

private:
    struct Slab;
    struct ChunkDeleter {
        void operator()(std::byte* memory) const;
    };
    //! Slabs one after the other, of which the first `begun` are in use.
    struct Chunk {
        std::unique_ptr<std::byte, ChunkDeleter> memory;
        std::size_t slabs;
        std::size_t begun;
    };
    struct FreeBlock {
        FreeBlock* next;
    };

    std::byte* BlockAt(Slab& slab, std::size_t index) const;
    //! The index of the block that starts there; any number if none does.
    std::size_t IndexOf(Slab const& slab, void const* address) const;
    void BeginSlab();
    void AddChunk(std::size_t slabs);
    //! How many one chunk brings unless more are reserved.
    std::size_t SlabsAtOnce() const;
    //! The number of chunks that begin at the address or before it.
    std::size_t ChunksUpTo(void const* address) const;

    std::size_t const blockSize_;
    std::size_t const blocksPerSlab_;
    std::vector<Chunk> chunks_; // In the order of their addresses
    std::size_t slabCount_ = 0;
    std::size_t begunCount_ = 0; // Of the slabs
    std::size_t freeCount_ = 0;
    Slab* current_ = nullptr; // Filled from its start; the last one that was begun
    std::size_t usedOfCurrent_ = 0;
    FreeBlock* free_ = nullptr;
};

} // namespace zbbrowser::detail
