// SPDX-License-Identifier: MIT
#include "containers/PointerList.h"

#include "support/AllocationFailures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::PointerList;

class PointerListTest : public testing::Test {
protected:
    int a = 1;
    int b = 2;
    int c = 3;
    PointerList<int> list;
};

TEST_F(PointerListTest, ANewListIsEmpty) {
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.Count(), 0U);
    EXPECT_THAT(list.Snapshot(), IsEmpty());
    EXPECT_EQ(list.Find(&a), nullptr);
}

TEST_F(PointerListTest, RemovingNeedsNoMemory) {
    std::vector<int> many(100);
    for (int& each : many)
        list.Add(&each);

    zbtest::AllocationFailures::Begin(zbtest::Failing::Always, 0);
    for (std::size_t i = 1; i < many.size(); ++i)
        list.Remove(&many[i]);
    zbtest::AllocationFailures::End();

    EXPECT_TRUE(zbtest::AllocationFailures::HasFailed()); // Holes could not be closed
    EXPECT_THAT(list.Snapshot(), ElementsAre(&many.front()));
    EXPECT_TRUE(list.Contains(&many.front()));
    EXPECT_FALSE(list.Contains(&many.back()));
}

TEST_F(PointerListTest, KeepsTheOrderOfInsertion) {
    list.Add(&b);
    list.Add(&a);
    list.Add(&c);

    EXPECT_THAT(list.Snapshot(), ElementsAre(&b, &a, &c));
}

TEST_F(PointerListTest, RefusesNullAndWhatIsThereAlready) {
    EXPECT_FALSE(list.Add(nullptr));
    EXPECT_TRUE(list.Add(&a));
    EXPECT_FALSE(list.Add(&a));

    EXPECT_THAT(list.Snapshot(), ElementsAre(&a));
}

TEST_F(PointerListTest, RemoveTellsWhetherItWasThere) {
    list.Add(&a);

    EXPECT_FALSE(list.Remove(&b));
    EXPECT_FALSE(list.Remove(nullptr));
    EXPECT_TRUE(list.Remove(&a));
    EXPECT_FALSE(list.Remove(&a));
    EXPECT_TRUE(list.IsEmpty());
}

TEST_F(PointerListTest, WhatIsAddedAgainComesLast) {
    list.Add(&a);
    list.Add(&b);
    list.Remove(&a);
    list.Add(&a);

    EXPECT_THAT(list.Snapshot(), ElementsAre(&b, &a));
}

TEST_F(PointerListTest, FindIfGivesTheFirstMatchInOrder) {
    list.Add(&c);
    list.Add(&b);

    EXPECT_EQ(list.FindIf([](int const* i) { return *i > 1; }), &c);
    EXPECT_EQ(list.FindIf([](int const* i) { return *i > 3; }), nullptr);
}

TEST_F(PointerListTest, FindIfSurvivesAListThatIsClearedMeanwhile) {
    list.Add(&a);
    list.Add(&b);

    EXPECT_EQ(list.FindIf([&](int const*) {
        list.Clear();
        return false;
    }),
              nullptr);
}

TEST_F(PointerListTest, AppendToKeepsWhatIsThere) {
    list.Add(&b);
    std::vector<int*> out{&a};
    list.AppendTo(out);

    EXPECT_THAT(out, ElementsAre(&a, &b));
}

TEST_F(PointerListTest, ClearEmptiesIt) {
    list.Add(&a);
    list.Clear();

    EXPECT_TRUE(list.IsEmpty());
    EXPECT_FALSE(list.Contains(&a));
    EXPECT_TRUE(list.Add(&a));
}

TEST_F(PointerListTest, AgreesWithAVectorOverRandomOperations) {
    std::vector<int> objects(500);
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::vector<int*> model;
        list.Clear();
        for (int step = 0; step < 4000; ++step) {
            // Phases of growth and of decline, so that the holes are closed now and then.
            int* const object = &objects[random() % objects.size()];
            auto const found = std::find(model.begin(), model.end(), object);
            bool const grows = random() % 8 < (step / 1000 % 2 == 0 ? 6U : 2U);
            if (grows) {
                ASSERT_EQ(list.Add(object), found == model.end());
                if (found == model.end())
                    model.push_back(object);
            } else {
                ASSERT_EQ(list.Remove(object), found != model.end());
                if (found != model.end())
                    model.erase(found);
            }
            ASSERT_EQ(list.Contains(object), grows);
            ASSERT_EQ(list.Count(), model.size());
        }
        ASSERT_EQ(list.Snapshot(), model);
        std::vector<int*> visited;
        list.ForEach([&](int* object) { visited.push_back(object); });
        ASSERT_EQ(visited, model);
    }
}

} // namespace
