// SPDX-License-Identifier: MIT
#include "containers/SlotVector.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

namespace {

using testing::ElementsAre;
using zbbrowser::detail::SlotVector;

class SlotVectorTest : public testing::Test {
protected:
    int a = 1;
    int b = 2;
    int c = 3;
    SlotVector<int*> slots;
};

TEST_F(SlotVectorTest, AppendAnswersTheSlotOfTheElement) {
    EXPECT_EQ(slots.Append(&a), 0U);
    EXPECT_EQ(slots.Append(&b), 1U);

    EXPECT_EQ(slots[0], &a);
    EXPECT_EQ(slots[1], &b);
    EXPECT_EQ(slots.Count(), 2U);
    EXPECT_FALSE(slots.HasHoles());
}

TEST_F(SlotVectorTest, TakeLeavesAHoleAndMovesNobody) {
    slots.Append(&a);
    slots.Append(&b);
    slots.Append(&c);

    EXPECT_EQ(slots.Take(1), &b);

    EXPECT_THAT(slots.Slots(), ElementsAre(&a, nullptr, &c));
    EXPECT_EQ(slots.Count(), 2U);
    EXPECT_TRUE(slots.HasHoles());
}

TEST_F(SlotVectorTest, TakingTheLastElementDropsAllHoles) {
    slots.Append(&a);
    slots.Append(&b);
    slots.Take(1);
    slots.Take(0);

    EXPECT_TRUE(slots.IsEmpty());
    EXPECT_FALSE(slots.HasHoles());
    EXPECT_EQ(slots.Append(&c), 0U);
}

TEST_F(SlotVectorTest, LastLooksPastTheHolesAtTheEnd) {
    EXPECT_EQ(slots.Last(), nullptr);
    slots.Append(&a);
    slots.Append(&b);
    slots.Append(&c);
    slots.Take(1);
    slots.Take(2);

    EXPECT_EQ(slots.Last(), &a);
    EXPECT_EQ(slots.Count(), 1U);
    EXPECT_EQ(slots.Append(&b), 1U);
}

TEST_F(SlotVectorTest, CompactClosesTheHolesInOrderAndTellsOfEachElement) {
    slots.Append(&a);
    slots.Append(&b);
    slots.Append(&c);
    slots.Take(1);

    std::vector<std::vector<unsigned>> moves;
    slots.Compact([&](int& element, auto from, auto to) {
        moves.push_back({static_cast<unsigned>(element), from, to});
    });

    EXPECT_THAT(slots.Slots(), ElementsAre(&a, &c));
    EXPECT_THAT(moves, ElementsAre(ElementsAre(1U, 0U, 0U), ElementsAre(3U, 2U, 1U)));
    EXPECT_FALSE(slots.HasHoles());
}

TEST_F(SlotVectorTest, WantsCompactionOnlyWhenHolesOutnumberTheElements) {
    std::vector<int> elements(100);
    for (auto& element : elements)
        slots.Append(&element);
    SlotVector<int*>::Slot taken = 0;
    while (!slots.WantsCompaction())
        slots.Take(taken++);

    EXPECT_GT(taken, slots.Count());
    EXPECT_LT(taken, 100U);
}

TEST_F(SlotVectorTest, ReserveKeepsTheElementsAtTheirPlaceInMemory) {
    slots.Append(&a);
    slots.Reserve(1000);
    auto const* const before = slots.Slots().data();
    for (int i = 0; i < 1000; ++i)
        slots.Append(&b);

    EXPECT_EQ(slots.Slots().data(), before);
}

TEST(OwningSlotVectorTest, TakeHandsTheOwnershipOver) {
    SlotVector<std::shared_ptr<int>> slots;
    auto const element = std::make_shared<int>(1);
    auto const slot = slots.Append(element);
    EXPECT_EQ(element.use_count(), 2);

    auto taken = slots.Take(slot);
    EXPECT_EQ(element.use_count(), 2);
    taken.reset();
    EXPECT_EQ(element.use_count(), 1);
}

TEST(OwningSlotVectorTest, CompactMovesOwningPointers) {
    SlotVector<std::unique_ptr<int>> slots;
    slots.Append(std::make_unique<int>(1));
    slots.Append(std::make_unique<int>(2));
    slots.Take(0);
    slots.Append(std::make_unique<int>(3));
    slots.Compact([](int&, auto, auto) {});

    ASSERT_EQ(slots.Slots().size(), 2U);
    EXPECT_EQ(*slots[0], 2);
    EXPECT_EQ(*slots[1], 3);
}

TEST(OwningSlotVectorTest, AgreesWithAVectorOverRandomOperations) {
    struct Element {
        int number;
        SlotVector<std::unique_ptr<Element>>::Slot slot;
    };
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        SlotVector<std::unique_ptr<Element>> slots;
        std::vector<Element*> model;
        for (int step = 0; step < 3000; ++step) {
            bool const grows = random() % 8 < (step / 700 % 2 == 0 ? 6U : 2U);
            if (grows || model.empty()) {
                auto owned = std::make_unique<Element>(Element{step, 0});
                auto* const element = owned.get();
                element->slot = slots.Append(std::move(owned));
                model.push_back(element);
            } else {
                auto const at =
                    model.begin() + static_cast<std::ptrdiff_t>(random() % model.size());
                ASSERT_EQ(slots.Take((*at)->slot).get(), *at);
                model.erase(at);
            }
            if (slots.WantsCompaction())
                slots.Compact([](Element& e, auto, auto to) { e.slot = to; });
            if (random() % 50 == 0) {
                ASSERT_EQ(slots.Last(), model.empty() ? nullptr : model.back());
            }
        }
        std::vector<int> expected;
        std::vector<int> found;
        expected.reserve(model.size());
        for (auto const* const element : model)
            expected.push_back(element->number);
        for (auto const& element : slots.Slots()) {
            if (element != nullptr)
                found.push_back(element->number);
        }
        ASSERT_EQ(found, expected);
        ASSERT_EQ(slots.Count(), model.size());
    }
}

} // namespace
