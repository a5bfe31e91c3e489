// SPDX-License-Identifier: MIT
#include "items/old/LeafStore.h"
#include "ItemsTest.h"

#include <memory>
#include <random>

namespace {

using zbbrowser::detail::LeafStore;

using Leaf = zbBrowserViewItemDataLeaf;
using Item = zbIBrowserDataItemSimple;

constexpr std::size_t itemCount = 300;

//! A store of its own, and items of which it has some. They are addresses only.
class LeafSearchTest : public zbtest::ItemsTest {
protected:
    LeafSearchTest() {
        for (std::size_t i = 0; i < itemCount; ++i)
            items[i] = reinterpret_cast<Item*>(&memory[i]);
        for (std::size_t i = 0; i < itemCount; i += 2)
            Append(i);
    }
    void Append(std::size_t i) {
        made.push_back(
            std::make_unique<zbBrowserViewItemDataLeafInFreeFolder>(folder, items[i], false));
        store.Append(*made.back(), nullptr);
    }

    std::vector<std::uint64_t> memory = std::vector<std::uint64_t>(itemCount);
    std::vector<Item*> items = std::vector<Item*>(itemCount);
    std::vector<std::unique_ptr<Leaf>> made;
    LeafStore store;
};

TEST_F(LeafSearchTest, FindsWhatTheStoreFinds) {
    items[4] = nullptr;
    items[6] = items[8];
    LeafStore::Search search(store, items);

    for (std::size_t i = 0; i < itemCount; ++i)
        ASSERT_EQ(search.Find(i), store.Find(items[i])) << i;
}

TEST_F(LeafSearchTest, FollowsAStoreThatChangesBeforeIt) {
    std::mt19937 random(1);
    LeafStore::Search search(store, items);

    for (std::size_t i = 0; i < itemCount; ++i) {
        ASSERT_EQ(search.Find(i), store.Find(items[i])) << i;
        auto const ahead = i + 1 + random() % 40;
        if (ahead >= itemCount || random() % 3 == 0)
            continue;
        if (auto* const leaf = store.Find(items[ahead]); leaf != nullptr)
            store.Take(*leaf);
        else
            Append(ahead);
    }
}

TEST_F(LeafSearchTest, FindsNothingOnceTheIndexIsOutOfStep) {
    LeafStore::Search search(store, items);
    ASSERT_NE(search.Find(0), nullptr);

    Append(0);

    EXPECT_EQ(search.Find(1), nullptr);
    EXPECT_EQ(search.Find(2), nullptr);
}

} // namespace
