// SPDX-License-Identifier: MIT
#include "containers/PointerIndex.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

namespace {

using zbbrowser::detail::PointerIndex;

//! An index with the table of keys that its owner keeps.
class PointerIndexTest : public testing::Test {
protected:
    static void const* Key(std::size_t number) {
        static std::vector<char> const memory(1 << 20);
        return &memory[number];
    }

    void Insert(void const* key, PointerIndex::Slot slot) {
        index.Reserve(1);
        index.InsertIfAbsent(key, slot, [&](PointerIndex::Slot s) { return keys[s] == key; });
        if (keys.size() <= slot)
            keys.resize(slot + 1);
        keys[slot] = key;
    }

    PointerIndex::Slot Find(void const* key) const {
        return index.Find(key, [&](PointerIndex::Slot slot) { return keys[slot] == key; });
    }

    PointerIndex index;
    std::vector<void const*> keys;
};

TEST_F(PointerIndexTest, AnEmptyIndexFindsNothingAndErasesNothing) {
    index.Prefetch(Key(0));
    index.Erase(Key(0), 0);

    EXPECT_EQ(Find(Key(0)), PointerIndex::none);
    EXPECT_EQ(index.Count(), 0U);
}

TEST_F(PointerIndexTest, FindsTheSlotOfEachKey) {
    Insert(Key(8), 0);
    Insert(Key(16), 1);
    Insert(nullptr, 2);

    EXPECT_EQ(Find(Key(8)), 0U);
    EXPECT_EQ(Find(Key(16)), 1U);
    EXPECT_EQ(Find(nullptr), 2U);
    EXPECT_EQ(Find(Key(24)), PointerIndex::none);
    EXPECT_EQ(index.Count(), 3U);
}

TEST_F(PointerIndexTest, KeepsTheFirstSlotOfAKey) {
    Insert(Key(8), 0);
    Insert(Key(8), 1);

    EXPECT_EQ(Find(Key(8)), 0U);
    EXPECT_EQ(index.Count(), 1U);
}

TEST_F(PointerIndexTest, EraseTakesTheEntryOfThatSlotOnly) {
    Insert(Key(8), 0);

    index.Erase(Key(8), 1);
    EXPECT_EQ(Find(Key(8)), 0U);

    index.Erase(Key(8), 0);
    EXPECT_EQ(Find(Key(8)), PointerIndex::none);
    EXPECT_EQ(index.Count(), 0U);
}

TEST_F(PointerIndexTest, ReserveKeepsWhatIsThere) {
    Insert(Key(8), 0);
    index.Reserve(100000);

    EXPECT_EQ(Find(Key(8)), 0U);
    EXPECT_EQ(index.Count(), 1U);
}

TEST_F(PointerIndexTest, RenumberGivesEachEntryItsNewSlot) {
    Insert(Key(8), 0);
    Insert(Key(16), 2);

    index.Renumber({5, 0, 4});

    EXPECT_EQ(index.Find(Key(8), [](auto) { return true; }), 5U);
    EXPECT_EQ(index.Find(Key(16), [](auto) { return true; }), 4U);
}

TEST_F(PointerIndexTest, ClearForgetsAllAndLeavesAUsableIndex) {
    Insert(Key(8), 0);
    index.Clear();
    EXPECT_EQ(Find(Key(8)), PointerIndex::none);
    EXPECT_EQ(index.Count(), 0U);

    Insert(Key(16), 0);
    EXPECT_EQ(Find(Key(16)), 0U);
}

//! Inserts, erases and finds against a std::map. Few keys make long chains of taken places; a gap
//! that is not closed rightly loses an entry.
TEST_F(PointerIndexTest, AgreesWithAMapOverRandomOperations) {
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        index.Clear();
        keys.clear();
        std::mt19937 random(seed);
        std::map<void const*, PointerIndex::Slot> model;
        auto const keyCount = 1U << (seed % 10 + 3);
        for (int step = 0; step < 5000; ++step) {
            void const* const key = Key(random() % keyCount * 8);
            auto const found = model.find(key);
            if (found == model.end()) {
                auto const slot = static_cast<PointerIndex::Slot>(keys.size());
                Insert(key, slot);
                model.emplace(key, slot);
            } else if (random() % 3 != 0) {
                index.Erase(key, found->second);
                model.erase(found);
            }
        }
        ASSERT_EQ(index.Count(), model.size());
        for (std::size_t i = 0; i < keyCount; ++i) {
            auto const found = model.find(Key(i * 8));
            auto const expected = found == model.end() ? PointerIndex::none : found->second;
            ASSERT_EQ(Find(Key(i * 8)), expected) << "key " << i;
        }
    }
}

} // namespace
