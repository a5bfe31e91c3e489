// SPDX-License-Identifier: MIT
#include "filtersort/ChildGroupOrder.h"

namespace zbbrowser::detail {

namespace {

// How a group is asked: as it is stored, sorted first to last, sorted last to first, or sorted in
// the direction of the sorted column.
enum class How : std::uint8_t { Plain, Forward, Back, Directed };

struct Entry {
    ChildGroup group;
    How how;
};

// Up to three groups; the rest of the array stays empty.
struct Entries {
    std::array<Entry, 3> entries;
    std::size_t count;
};

template <class... E>
constexpr Entries List(E... entries) {
    return {{entries...}, sizeof...(entries)};
}

struct Row {
    ChildParent parent;
    Entries unsorted;
    Entries column;
    Entries defaultAscending;
    Entries defaultDescending;
};

constexpr Entry Plain(ChildGroup group) {
    return {group, How::Plain};
}
constexpr Entry Forward(ChildGroup group) {
    return {group, How::Forward};
}
constexpr Entry Back(ChildGroup group) {
    return {group, How::Back};
}
constexpr Entry Directed(ChildGroup group) {
    return {group, How::Directed};
}

constexpr auto F = ChildGroup::Folders;
constexpr auto L = ChildGroup::Leaves;
constexpr auto D = ChildGroup::DependentFolders;
constexpr auto T = ChildGroup::TopItems;
constexpr auto C = ChildGroup::Containers;
constexpr auto N = ChildGroup::Nodes;
constexpr auto G = ChildGroup::GroupingFolders;
constexpr auto S = ChildGroup::StoredChildren;

// The rows stand in the order of ChildParent; in each: no sorted column, a scripted column, the
// default column ascending and descending.
//
// Under the default column folders lead when ascending and trail when descending. Under any other
// column they lead in both directions; those of an old view stay ascending there, those of a new
// one follow the direction.
constexpr Row table[] = {
    {ChildParent::OldFolder, List(Plain(F), Plain(L)), List(Forward(F), Directed(L)),
     List(Forward(F), Forward(L)), List(Back(L), Back(F))},
    {ChildParent::OldFolderWithGroups, List(Plain(F), Plain(D)), List(Forward(F), Forward(D)),
     List(Forward(F), Forward(D)), List(Back(D), Back(F))},
    {ChildParent::OldFolderWithTree, List(Plain(F), Plain(T), Plain(D)),
     List(Forward(F), Directed(T), Forward(D)), List(Forward(F), Forward(T), Forward(D)),
     List(Back(D), Back(T), Back(F))},
    {ChildParent::OldContainer, List(Plain(C), Plain(D)), List(Directed(C), Forward(D)),
     List(Forward(C), Forward(D)), List(Back(D), Back(C))},
    {ChildParent::OldDependentFolder, List(Plain(L), Plain(C)), List(Directed(L), Directed(C)),
     List(Forward(L), Forward(C)), List(Back(L), Back(C))},
    {ChildParent::NewFolder, List(Plain(F), Plain(N), Plain(G)),
     List(Directed(F), Directed(N), Directed(G)), List(Forward(F), Forward(G), Forward(N)),
     List(Back(N), Back(G), Back(F))},
    {ChildParent::NewNode, List(Plain(S)), List(Plain(S)), List(Plain(S)), List(Plain(S))},
    {ChildParent::NewGroupingFolder, List(Plain(S)), List(Directed(S)), List(Forward(S)),
     List(Back(S))},
};

constexpr bool RowsAreInOrder() {
    for (std::size_t i = 0; i < std::size(table); ++i) {
        if (static_cast<std::size_t>(table[i].parent) != i)
            return false;
    }
    return true;
}
static_assert(RowsAreInOrder());

Entries const& Find(ChildParent parent, SortedBy by, bool ascending) {
    auto const& row = table[static_cast<std::size_t>(parent)];
    if (by == SortedBy::Nothing)
        return row.unsorted;
    if (by == SortedBy::Column)
        return row.column;
    return ascending ? row.defaultAscending : row.defaultDescending;
}

} // namespace

ChildGroupReads ChildGroupOrder(ChildParent parent, SortedBy by, bool ascending) {
    auto const& found = Find(parent, by, ascending);
    ChildGroupReads reads;
    for (std::size_t i = 0; i < found.count; ++i) {
        auto const [group, how] = found.entries[i];
        auto const back = how == How::Back || (how == How::Directed && !ascending);
        reads.Add({group, how != How::Plain, !back});
    }
    return reads;
}

} // namespace zbbrowser::detail
