// SPDX-License-Identifier: MIT
//! \file
//! In which order the groups of children of a parent are listed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zbbrowser::detail {

//! The kinds of parents.
enum class ChildParent : std::uint8_t {
    OldFolder,
    OldFolderWithGroups,
    OldFolderWithTree,
    OldContainer,
    OldDependentFolder,
    NewFolder,
    NewNode,
    NewGroupingFolder //!< Directly in a free folder. Anywhere else it lists nothing.
};

//! What children of one kind are called in the table.
enum class ChildGroup : std::uint8_t {
    Folders,
    Leaves,
    DependentFolders,
    TopItems,
    Containers,
    Nodes,
    GroupingFolders,
    StoredChildren
};

//! By what a view is sorted.
enum class SortedBy : std::uint8_t { Nothing, Column, DefaultColumn };

//! One group and how it is asked for its children.
struct ChildGroupRead {
    ChildGroup group{};
    bool sorted = false;
    bool ascending = true;

    bool operator==(ChildGroupRead const&) const = default;
};

//! The groups of one parent, in their order.
class ChildGroupReads {
public:
    void Add(ChildGroupRead const& read) { reads_[count_++] = read; }
    ChildGroupRead const* begin() const { return reads_.data(); }
    ChildGroupRead const* end() const { return reads_.data() + count_; }

private:
    std::array<ChildGroupRead, 3> reads_{};
    std::size_t count_ = 0;
};

//! \param ascending the direction of the sorted column; without one it does not matter
ChildGroupReads ChildGroupOrder(ChildParent parent, SortedBy by, bool ascending);

} // namespace zbbrowser::detail
