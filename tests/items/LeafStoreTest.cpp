// SPDX-License-Identifier: MIT
#include "items/old/LeafStore.h"

#include "ItemsTest.h"
#include "support/AllocationFailures.h"

#include <algorithm>
#include <memory>
#include <random>
#include <set>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::LeafStore;

using Leaf = zbBrowserViewItemDataLeaf;
using Item = zbIBrowserDataItemSimple;
using Source = zbIBrowserDataSource;

//! A store of its own. Data items and sources are addresses only: the store follows neither.
class LeafStoreTest : public zbtest::ItemsTest {
protected:
    static Item* ItemAt(std::size_t i) {
        static std::vector<std::uint64_t> memory(1000);
        return reinterpret_cast<Item*>(&memory[i]);
    }
    static Source* SourceAt(std::size_t i) {
        static std::vector<std::uint64_t> memory(10);
        return reinterpret_cast<Source*>(&memory[i]);
    }
    Leaf& Append(std::size_t item, std::size_t source = 0, bool hidden = false) {
        made.push_back(
            std::make_unique<zbBrowserViewItemDataLeafInFreeFolder>(folder, ItemAt(item), hidden));
        store.Append(*made.back(), SourceAt(source));
        return *made.back();
    }
    static std::vector<Leaf const*> AsLeaves(Items const& items) {
        std::vector<Leaf const*> leaves;
        for (auto const* const item : items)
            leaves.push_back(static_cast<Leaf const*>(item));
        return leaves;
    }

    std::vector<std::unique_ptr<Leaf>> made;
    LeafStore store;
};

TEST_F(LeafStoreTest, ANewStoreIsEmptyAndFindsNothing) {
    EXPECT_TRUE(store.IsEmpty());
    EXPECT_FALSE(store.HasVisible());
    EXPECT_TRUE(store.IsIndexInStep());
    EXPECT_EQ(store.Find(ItemAt(0)), nullptr);
    EXPECT_THAT(store.SnapshotOf(SourceAt(0)), IsEmpty());
    EXPECT_TRUE(store.IsConsistent());
}

TEST_F(LeafStoreTest, TakingLeavesOutNeedsNoMemory) {
    for (std::size_t i = 0; i < 100; ++i)
        Append(i, i % 2);

    zbtest::AllocationFailures::Begin(zbtest::Failing::Always, 0);
    for (std::size_t i = 1; i < 100; ++i)
        store.Take(*made[i]);
    zbtest::AllocationFailures::End();

    EXPECT_TRUE(zbtest::AllocationFailures::HasFailed()); // Holes could not be closed
    EXPECT_TRUE(store.IsConsistent());
    EXPECT_THAT(store.SnapshotOf(SourceAt(0)), ElementsAre(made.front().get()));
    EXPECT_THAT(store.SnapshotOf(SourceAt(1)), IsEmpty());
}

TEST_F(LeafStoreTest, FindsALeafByItsDataItem) {
    auto& a = Append(1);
    auto& b = Append(2);

    EXPECT_EQ(store.Find(ItemAt(1)), &a);
    EXPECT_EQ(store.Find(ItemAt(2)), &b);
    EXPECT_EQ(store.Find(ItemAt(3)), nullptr);
    EXPECT_EQ(store.Find(nullptr), nullptr);
}

TEST_F(LeafStoreTest, ListsTheLeavesOfEachSourceInOrder) {
    auto& a = Append(1, 0);
    auto& b = Append(2, 1);
    auto& c = Append(3, 0);

    EXPECT_THAT(store.Snapshot(), ElementsAre(&a, &b, &c));
    EXPECT_THAT(store.SnapshotOf(SourceAt(0)), ElementsAre(&a, &c));
    EXPECT_THAT(store.SnapshotOf(SourceAt(1)), ElementsAre(&b));
    EXPECT_THAT(store.SnapshotOf(SourceAt(2)), IsEmpty());
    EXPECT_EQ(store.CountOf(SourceAt(0)), 2U);
    EXPECT_EQ(store.CountOf(SourceAt(2)), 0U);
}

TEST_F(LeafStoreTest, ALeafThatIsTakenOutIsNoLongerListedOrFound) {
    auto& a = Append(1);
    auto& b = Append(2);
    EXPECT_TRUE(a.IsListed());
    store.Take(a);

    EXPECT_FALSE(a.IsListed());
    EXPECT_EQ(store.Find(ItemAt(1)), nullptr);
    EXPECT_EQ(store.Find(ItemAt(2)), &b);
    EXPECT_THAT(store.Snapshot(), ElementsAre(&b));
    EXPECT_EQ(store.CountOf(SourceAt(0)), 1U);
    EXPECT_TRUE(store.IsConsistent());
}

TEST_F(LeafStoreTest, ALeafTakesItselfOutOfTheStoreOfItsFolder) {
    Show(folder, part);
    auto& leaf = Row(folder, "nut");
    leaf.TakeOutOfStore();

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "pin"));
    EXPECT_FALSE(leaf.IsListed());
    zbbrowser::detail::DetachedLeaves::Destroy(leaf, folder.Context());
}

TEST_F(LeafStoreTest, ASecondLeafOfADataItemPutsTheIndexOutOfStep) {
    Append(1);
    EXPECT_TRUE(store.IsIndexInStep());
    Append(1);

    EXPECT_FALSE(store.IsIndexInStep());
    EXPECT_EQ(store.Count(), 2U);
}

TEST_F(LeafStoreTest, AnIndexOutOfStepFindsNothingAtAll) {
    Append(1);
    Append(2);
    Append(1);

    EXPECT_EQ(store.Find(ItemAt(1)), nullptr);
    EXPECT_EQ(store.Find(ItemAt(2)), nullptr);
    EXPECT_THAT(store.FindAll({ItemAt(1), ItemAt(2)}), IsEmpty());
}

TEST_F(LeafStoreTest, TheIndexIsInStepAgainWhenTheSecondLeafHasGone) {
    auto& a = Append(1);
    auto& b = Append(1);
    store.Take(b);

    EXPECT_TRUE(store.IsIndexInStep());
    EXPECT_EQ(store.Find(ItemAt(1)), &a);
}

TEST_F(LeafStoreTest, FindAllAnswersInTheOrderOfTheLeavesAndNotOfTheItems) {
    auto& c = Append(3);
    auto& a = Append(1);
    auto& b = Append(2);

    EXPECT_THAT(store.FindAll({ItemAt(1), ItemAt(2), ItemAt(3), ItemAt(4)}),
                ElementsAre(&c, &a, &b));
}

TEST_F(LeafStoreTest, HiddenLeavesAreCountedAsTheyComeGoAndChange) {
    auto& a = Append(1, 0, true);
    auto& b = Append(2, 0, true);
    EXPECT_FALSE(store.HasVisible());
    store.Take(a);
    EXPECT_FALSE(store.HasVisible());
    Append(3);
    EXPECT_TRUE(store.HasVisible());
    EXPECT_TRUE(store.IsConsistent());
    store.Take(b);
    EXPECT_TRUE(store.IsConsistent());
}

TEST_F(LeafStoreTest, VisibleLeavesAreListedForwardsAndBackwards) {
    auto& a = Append(1);
    Append(2, 0, true);
    auto& c = Append(3);

    Items ascending{&folder};
    store.AppendVisibleTo(ascending, true);
    EXPECT_THAT(ascending, ElementsAre(&folder, &a, &c));
    Items descending;
    store.AppendVisibleTo(descending, false);
    EXPECT_THAT(descending, ElementsAre(&c, &a));
}

TEST_F(LeafStoreTest, LeavesAreListedBackwardsAlsoWhenNoneIsHidden) {
    auto& a = Append(1);
    auto& b = Append(2);

    Items descending;
    store.AppendVisibleTo(descending, false);
    EXPECT_THAT(descending, ElementsAre(&b, &a));
}

TEST_F(LeafStoreTest, AppendAllPassesOverTheHoles) {
    auto& a = Append(1);
    auto& b = Append(2);
    auto& c = Append(3, 0, true);
    store.Take(b);

    Items out{&folder};
    store.AppendAllTo(out);
    EXPECT_THAT(out, ElementsAre(&folder, &a, &c));
}

TEST_F(LeafStoreTest, TakeAllEmptiesItAndAnswersAllInOrder) {
    auto& a = Append(1, 0, true);
    auto& b = Append(2, 1);

    EXPECT_THAT(store.TakeAll(), ElementsAre(&a, &b));
    EXPECT_TRUE(store.IsEmpty());
    EXPECT_FALSE(a.IsListed());
    EXPECT_FALSE(b.IsListed());
    EXPECT_EQ(store.CountOf(SourceAt(0)), 0U);
    EXPECT_TRUE(store.IsConsistent());

    auto& c = Append(1, 1);
    EXPECT_EQ(store.Find(ItemAt(1)), &c);
    EXPECT_THAT(store.SnapshotOf(SourceAt(1)), ElementsAre(&c));
    EXPECT_TRUE(store.HasVisible());
}

TEST_F(LeafStoreTest, TakingAListOfLeavesTakesThoseAndNoOther) {
    auto& a = Append(1);
    auto& b = Append(2);
    auto& c = Append(3);
    store.Take(std::vector<Leaf*>{&a, &c});
    EXPECT_THAT(store.Snapshot(), ElementsAre(&b));
    EXPECT_TRUE(store.IsConsistent());

    store.Take(std::vector<Leaf*>{&b});
    EXPECT_TRUE(store.IsEmpty());
    EXPECT_FALSE(b.IsListed());
    EXPECT_TRUE(store.IsConsistent());
}

TEST_F(LeafStoreTest, MarkAllGoneKeepsTheLeavesButTheyCountAsTakenOut) {
    auto& a = Append(1);
    store.MarkAllGone();

    EXPECT_FALSE(a.IsListed());
    EXPECT_THAT(store.Snapshot(), ElementsAre(&a));
}

// Order

TEST_F(LeafStoreTest, ALeafThatLostItsPlaceStaysWhereItIsButComesBehindTheOrderedOnes) {
    auto& a = Append(1);
    auto& b = Append(2);
    auto& c = Append(3);
    store.Reorder({&c, &b, &a});
    auto& late = Append(4);

    store.ForgetOrder(c);

    Items stored;
    store.AppendAllTo(stored);
    EXPECT_THAT(AsLeaves(stored), ElementsAre(&c, &b, &a, &late));
    Items rows;
    EXPECT_EQ(store.AppendOrderedFirst(rows), 2U);
    EXPECT_THAT(AsLeaves(rows), ElementsAre(&b, &a, &c, &late));
    EXPECT_FALSE(store.IsOrdered());
}

TEST_F(LeafStoreTest, AnOrderGivesAllTheirPlacesBack) {
    auto& a = Append(1);
    auto& b = Append(2);
    auto& c = Append(3);
    store.Reorder({&a, &b, &c});
    store.ForgetOrder(b);
    store.Reorder({&b, &a, &c});
    Items rows;
    EXPECT_TRUE(store.IsOrdered());
    EXPECT_EQ(store.AppendOrderedFirst(rows), 3U);
    EXPECT_THAT(AsLeaves(rows), ElementsAre(&b, &a, &c));
}

TEST_F(LeafStoreTest, AChangedLeafCountsAsOrderedAndComesBehindTheOthersAllTheSame) {
    auto& a = Append(1);
    auto& b = Append(2);
    store.Reorder({&a, &b});

    store.NoteChanged(a);

    EXPECT_TRUE(store.IsOrdered());
    Items rows;
    EXPECT_EQ(store.AppendOrderedFirst(rows), 1U);
    EXPECT_THAT(AsLeaves(rows), ElementsAre(&b, &a));
    store.Reorder({&b, &a});
    Items sorted;
    EXPECT_EQ(store.AppendOrderedFirst(sorted), 2U);
}

TEST_F(LeafStoreTest, ALeafThatGoesEndsTheOrderAndTheOthersKeepTheirPlaces) {
    auto& a = Append(1);
    auto& b = Append(2);
    store.Reorder({&b, &a});

    store.Take(b);

    EXPECT_FALSE(store.IsOrdered());
    EXPECT_TRUE(store.AreInPlace());
    store.NoteOrdered();
    EXPECT_TRUE(store.IsOrdered());
}

TEST_F(LeafStoreTest, LeavesAreNotInPlaceWhileOneIsNewOrHasChanged) {
    auto& a = Append(1);
    EXPECT_FALSE(store.AreInPlace());
    store.Reorder({&a});
    EXPECT_TRUE(store.AreInPlace());
    store.NoteChanged(a);
    EXPECT_FALSE(store.AreInPlace());
}

TEST_F(LeafStoreTest, LeavesThatLostTheirPlaceAreKnownWhenHolesAreClosed) {
    Items order(200);
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = &Append(i);
    store.Reorder(order);
    store.ForgetOrder(*made[150]);
    store.ForgetOrder(*made[160]);
    store.Take(*made[160]);
    for (std::size_t i = 0; i < 140; ++i)
        store.Take(*made[i]);

    Items rows;
    EXPECT_EQ(store.AppendOrderedFirst(rows), 58U);
    EXPECT_EQ(rows.back(), made[150].get());
    EXPECT_EQ(std::set<zbIBrowserViewItem*>(rows.begin(), rows.end()).size(), 59U);
}

TEST_F(LeafStoreTest, WhenAllLeavesLostTheirPlaceTheyComeAsTheyAreStored) {
    auto& a = Append(1);
    auto& b = Append(2);
    auto& c = Append(3);
    store.Reorder({&c, &a, &b});
    for (auto* const leaf : {&b, &a, &b, &b, &b, &a, &b, &c})
        store.ForgetOrder(*leaf);

    Items rows;
    EXPECT_EQ(store.AppendOrderedFirst(rows), 0U);
    EXPECT_THAT(AsLeaves(rows), ElementsAre(&c, &a, &b));
}

//! Against plain vectors: leaves come and go in phases, so that the store is compacted and its
//! runs are built anew.
TEST_F(LeafStoreTest, AgreesWithAVectorOverRandomOperations) {
    struct Row {
        std::size_t item;
        std::size_t source;
        Leaf* leaf;
    };
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<Row> model;
        for (int step = 0; step < 3000; ++step) {
            bool const grows = random() % 8 < (step / 700 % 2 == 0 ? 6U : 2U);
            auto const item = random() % 1000;
            auto const at =
                std::find_if(model.begin(), model.end(), [&](Row r) { return r.item == item; });
            if (grows && at == model.end()) {
                auto const source = random() % 5;
                model.push_back({item, source, &Append(item, source, random() % 4 == 0)});
            } else if (!model.empty()) {
                auto const victim =
                    model.begin() + static_cast<std::ptrdiff_t>(random() % model.size());
                store.Take(*victim->leaf);
                model.erase(victim);
            }
        }
        ASSERT_TRUE(store.IsConsistent());
        std::vector<Leaf*> all;
        Items visible;
        std::vector<std::vector<Leaf*>> bySource(5);
        for (auto const& row : model) {
            ASSERT_EQ(store.Find(ItemAt(row.item)), row.leaf);
            all.push_back(row.leaf);
            bySource[row.source].push_back(row.leaf);
            if (!row.leaf->IsHidden())
                visible.push_back(row.leaf);
        }
        ASSERT_EQ(store.Snapshot(), all);
        for (std::size_t source = 0; source < 5; ++source) {
            ASSERT_EQ(store.SnapshotOf(SourceAt(source)), bySource[source]);
            ASSERT_EQ(store.CountOf(SourceAt(source)), bySource[source].size());
        }
        Items shown;
        store.AppendVisibleTo(shown, true);
        ASSERT_EQ(shown, visible);
        Items backwards;
        store.AppendVisibleTo(backwards, false);
        std::reverse(backwards.begin(), backwards.end());
        ASSERT_EQ(backwards, visible);
        store.TakeAll();
        made.clear();
    }
}

} // namespace
