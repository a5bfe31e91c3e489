// SPDX-License-Identifier: MIT
#include "filtersort/ChildGroupOrder.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using zbbrowser::detail::ChildGroup;
using zbbrowser::detail::ChildGroupOrder;
using zbbrowser::detail::ChildParent;
using zbbrowser::detail::SortedBy;

//! The groups of a parent as text: "F plain, L fwd".
std::string Groups(ChildParent parent, SortedBy by, bool ascending) {
    static std::map<ChildGroup, std::string> const names{
        {ChildGroup::Folders, "F"},          {ChildGroup::Leaves, "L"},
        {ChildGroup::DependentFolders, "D"}, {ChildGroup::TopItems, "T"},
        {ChildGroup::Containers, "C"},       {ChildGroup::Nodes, "N"},
        {ChildGroup::GroupingFolders, "G"},  {ChildGroup::StoredChildren, "S"}};
    std::string text;
    for (auto const& read : ChildGroupOrder(parent, by, ascending)) {
        text += text.empty() ? "" : ", ";
        text += names.at(read.group);
        text += !read.sorted ? (read.ascending ? " plain" : " plain back")
                             : (read.ascending ? " fwd" : " back");
    }
    return text;
}

struct Expected {
    ChildParent parent;
    char const* unsorted;
    char const* columnAscending;
    char const* columnDescending;
    char const* defaultAscending;
    char const* defaultDescending;
};

class ChildGroupOrderTest : public testing::TestWithParam<Expected> {};

TEST_P(ChildGroupOrderTest, ListsTheGroupsOfEachParentInItsOrder) {
    auto const& expected = GetParam();

    EXPECT_EQ(Groups(expected.parent, SortedBy::Nothing, true), expected.unsorted);
    EXPECT_EQ(Groups(expected.parent, SortedBy::Nothing, false), expected.unsorted);
    EXPECT_EQ(Groups(expected.parent, SortedBy::Column, true), expected.columnAscending);
    EXPECT_EQ(Groups(expected.parent, SortedBy::Column, false), expected.columnDescending);
    EXPECT_EQ(Groups(expected.parent, SortedBy::DefaultColumn, true), expected.defaultAscending);
    EXPECT_EQ(Groups(expected.parent, SortedBy::DefaultColumn, false), expected.defaultDescending);
}

INSTANTIATE_TEST_SUITE_P(
    AllParents, ChildGroupOrderTest,
    testing::Values(
        Expected{ChildParent::OldFolder, "F plain, L plain", "F fwd, L fwd", "F fwd, L back",
                 "F fwd, L fwd", "L back, F back"},
        Expected{ChildParent::OldFolderWithGroups, "F plain, D plain", "F fwd, D fwd",
                 "F fwd, D fwd", "F fwd, D fwd", "D back, F back"},
        Expected{ChildParent::OldFolderWithTree, "F plain, T plain, D plain", "F fwd, T fwd, D fwd",
                 "F fwd, T back, D fwd", "F fwd, T fwd, D fwd", "D back, T back, F back"},
        Expected{ChildParent::OldContainer, "C plain, D plain", "C fwd, D fwd", "C back, D fwd",
                 "C fwd, D fwd", "D back, C back"},
        Expected{ChildParent::OldDependentFolder, "L plain, C plain", "L fwd, C fwd",
                 "L back, C back", "L fwd, C fwd", "L back, C back"},
        Expected{ChildParent::NewFolder, "F plain, N plain, G plain", "F fwd, N fwd, G fwd",
                 "F back, N back, G back", "F fwd, G fwd, N fwd", "N back, G back, F back"},
        Expected{ChildParent::NewNode, "S plain", "S plain", "S plain", "S plain", "S plain"},
        Expected{ChildParent::NewGroupingFolder, "S plain", "S fwd", "S back", "S fwd", "S back"}));

} // namespace
