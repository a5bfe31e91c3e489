// SPDX-License-Identifier: MIT
#include <zbBrowserView/ViewItemChanges.h>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstring>

namespace zbtest {
namespace {

using zbbrowser::ViewItemChanges;

std::array<std::uint8_t, 7> BytesOf(ViewItemChanges const& changes) {
    std::array<std::uint8_t, 7> bytes{};
    static_assert(sizeof changes == sizeof bytes);
    std::memcpy(bytes.data(), &changes, sizeof changes);
    return bytes;
}

ViewItemChanges FromBytes(std::array<std::uint8_t, 7> const& bytes) {
    ViewItemChanges changes;
    std::memcpy(&changes, bytes.data(), sizeof changes);
    return changes;
}

TEST(ViewChanges, AreSevenBytesInTheirOrder) {
    EXPECT_EQ(offsetof(ViewItemChanges, Created), 0U);
    EXPECT_EQ(offsetof(ViewItemChanges, Deleted), 1U);
    EXPECT_EQ(offsetof(ViewItemChanges, Updated), 2U);
    EXPECT_EQ(offsetof(ViewItemChanges, Expanded), 3U);
    EXPECT_EQ(offsetof(ViewItemChanges, Reserved), 4U);
    EXPECT_EQ(offsetof(ViewItemChanges, ChildrenAdded), 5U);
    EXPECT_EQ(offsetof(ViewItemChanges, ChildrenRemoved), 6U);
    EXPECT_EQ(sizeof(ViewItemChanges), 7U);
}

TEST(ViewChanges, StartWithNothingSet) {
    EXPECT_EQ(BytesOf(ViewItemChanges()), (std::array<std::uint8_t, 7>{}));
    EXPECT_FALSE(ViewItemChanges().Any());
}

TEST(ViewChanges, MergeFieldByFieldAndNeverClearAFlag) {
    for (std::size_t field = 0; field < 7; ++field) {
        std::array<std::uint8_t, 7> one{};
        one[field] = 1;

        ViewItemChanges taken;
        taken.Merge(FromBytes(one));
        EXPECT_EQ(BytesOf(taken), one) << "taken over, field " << field;

        ViewItemChanges kept = FromBytes(one);
        kept.Merge(ViewItemChanges());
        EXPECT_EQ(BytesOf(kept), one) << "kept, field " << field;
        kept.Merge(FromBytes(one));
        EXPECT_EQ(BytesOf(kept), one) << "set twice, field " << field;
    }
}

TEST(ViewChanges, AreAnyIfOneIsSet) {
    for (std::size_t field = 0; field < 7; ++field) {
        std::array<std::uint8_t, 7> one{};
        one[field] = 1;
        EXPECT_TRUE(FromBytes(one).Any()) << "field " << field;
    }
}

} // namespace
} // namespace zbtest
