// SPDX-License-Identifier: MIT
#include "containers/SlabPool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <set>
#include <vector>

namespace {

using zbbrowser::detail::SlabPool;

constexpr std::size_t blockSize = 32;
//! More blocks than fit into a slab.
constexpr std::size_t manyBlocks = 5000;

class SlabPoolTest : public testing::Test {
protected:
    SlabPool pool{blockSize};
};

TEST_F(SlabPoolTest, OwnsWhatItHandsOutAndNothingElse) {
    int local = 0;
    EXPECT_FALSE(pool.Owns(&local));
    void* const block = pool.Allocate();

    EXPECT_TRUE(pool.Owns(block));
    EXPECT_FALSE(pool.Owns(nullptr));
    EXPECT_FALSE(pool.Owns(&local));
    EXPECT_FALSE(pool.Owns(static_cast<char*>(block) + 8)) << "inside a block";
    EXPECT_FALSE(pool.Owns(static_cast<char*>(block) + blockSize)) << "not handed out";
}

TEST_F(SlabPoolTest, DoesNotOwnABlockThatWasGivenBack) {
    void* const block = pool.Allocate();
    pool.Free(block);

    EXPECT_FALSE(pool.Owns(block));
}

TEST_F(SlabPoolTest, HandsAFreedBlockOutAgain) {
    void* const block = pool.Allocate();
    pool.Free(block);

    EXPECT_EQ(pool.Allocate(), block);
    EXPECT_TRUE(pool.Owns(block));
}

TEST_F(SlabPoolTest, BlocksAreDistinctAlignedAndDoNotOverlap) {
    std::vector<unsigned char*> blocks;
    for (std::size_t i = 0; i < manyBlocks; ++i) {
        blocks.push_back(static_cast<unsigned char*>(pool.Allocate()));
        ASSERT_EQ(reinterpret_cast<std::uintptr_t>(blocks.back()) % alignof(void*), 0U);
        std::memset(blocks.back(), static_cast<int>(i % 251), blockSize);
    }
    for (std::size_t i = 0; i < manyBlocks; ++i) {
        ASSERT_TRUE(pool.Owns(blocks[i]));
        ASSERT_TRUE(std::all_of(blocks[i], blocks[i] + blockSize,
                                [i](unsigned char byte) { return byte == i % 251; }));
    }
    EXPECT_EQ(std::set<unsigned char*>(blocks.begin(), blocks.end()).size(), manyBlocks);
}

TEST_F(SlabPoolTest, WhatABigPoolHasNotHandedOutYetIsNotOwned) {
    std::set<char const*> blocks;
    char const* last = nullptr;
    for (std::size_t i = 0; i < 100'000; ++i)
        blocks.insert(last = static_cast<char const*>(pool.Allocate()));

    for (std::size_t i = 0; i < 40'000; ++i) {
        auto const* const behind = last + i * blockSize;
        ASSERT_EQ(pool.Owns(behind), blocks.contains(behind)) << i;
    }
}

//! The slabs of `count` blocks that are handed out one after the other.
std::set<std::uintptr_t> SlabsOf(SlabPool& pool, std::size_t count) {
    constexpr std::uintptr_t slabSize = 65536;
    std::set<std::uintptr_t> slabs;
    for (std::size_t i = 0; i < count; ++i)
        slabs.insert(reinterpret_cast<std::uintptr_t>(pool.Allocate()) / slabSize);
    return slabs;
}

TEST_F(SlabPoolTest, ReservedBlocksLieInOnePiece) {
    pool.Reserve(manyBlocks);

    auto const slabs = SlabsOf(pool, manyBlocks);

    EXPECT_EQ(slabs.size(), 3U);
    EXPECT_EQ(*slabs.rbegin() - *slabs.begin(), 2U);
}

TEST_F(SlabPoolTest, AReserveTakesWhatIsMissingOnly) {
    pool.Reserve(manyBlocks);
    void* const block = pool.Allocate();
    pool.Allocate();
    pool.Free(block);

    pool.Reserve(2 * manyBlocks);
    auto const slabs = SlabsOf(pool, 2 * manyBlocks);

    EXPECT_EQ(slabs.size(), 5U);
}

TEST_F(SlabPoolTest, AnotherPoolsBlockIsNotOwned) {
    SlabPool other(blockSize);
    pool.Allocate();

    EXPECT_FALSE(pool.Owns(other.Allocate()));
}

TEST_F(SlabPoolTest, AgreesWithASetOverRandomOperations) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<void*> held;
        std::set<void*> everSeen;
        for (int step = 0; step < 20000; ++step) {
            bool const grows = random() % 8 < (step / 6000 % 2 == 0 ? 6U : 2U);
            if (grows || held.empty()) {
                void* const block = pool.Allocate();
                std::memset(block, 0xab, blockSize);
                held.push_back(block);
                everSeen.insert(block);
            } else {
                auto const at = random() % held.size();
                pool.Free(held[at]);
                held[at] = held.back();
                held.pop_back();
            }
        }
        std::set<void*> const expected(held.begin(), held.end());
        ASSERT_EQ(expected.size(), held.size()) << "a block was handed out twice";
        for (void* const block : everSeen)
            ASSERT_EQ(pool.Owns(block), expected.contains(block));
        for (void* const block : held)
            pool.Free(block);
    }
}

} // namespace
