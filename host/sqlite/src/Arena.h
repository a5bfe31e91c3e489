// SPDX-License-Identifier: MIT
//! \file
//! Memory that is handed out bit by bit and freed as a whole.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace zbsqlite::detail {

class Arena {
public:
    //! Unaligned and uninitialised. Stays where it is as long as the arena or the one that it is
    //! moved to lives.
    std::byte* Allocate(std::size_t size);

    //! What was taken from the system.
    std::size_t BytesTaken() const { return taken_; }

private:
    std::byte* NewBlock(std::size_t size);

    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    std::byte* next_ = nullptr; // Not owned: the free rest of the newest common block.
    std::size_t left_ = 0;
    std::size_t taken_ = 0;
};

} // namespace zbsqlite::detail
