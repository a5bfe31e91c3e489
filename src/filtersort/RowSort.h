// SPDX-License-Identifier: MIT
//! \file
//! Sorting rows of data by the comparisons of their host.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

class zbIBrowserDataCtrl;
class zbIBrowserDataItemSimple;
class zbIBrowserDataProperty;
class zbIBrowserDataSourceSimple;
class zbIBrowserViewItem;
class zbIBrowserViewProperty;

namespace zbbrowser::detail {

class SortHandlerBase;
class ViewContext;

//! The orders in which lists are sorted. RowSort.cpp says of which keys each is made.
enum class RowOrder : std::uint8_t {
    Default,
    Custom,
    Column,
    CustomTwoKeys,
    NameAndId,
    Prepared //!< For both kinds of lists whose source was given its sort property before.
};

//! One sort of one list. Lives as long as the sort takes.
//!
//! What can be asked once is asked once: for each row its data item and source, for each source its
//! data control and the data property that it sorts by, for each pair of sources their order. The
//! host's comparisons are asked for pairs of rows.
//!
//! A comparison should not, but may call back into the library. As soon as anything of the view
//! goes meanwhile, the host is asked no more, since its data may have gone as well, and the sort is
//! given up; so it is when the view is sorted by another column. Requires: an open CallScope, by
//! which the former is noticed.
class RowSort {
public:
    using Items = std::vector<zbIBrowserViewItem*>;

    //! \param property the current sort property; null: none, and the key by data property is left
    //! out. If it does not stay the current one, the sort is given up, since it may have gone.
    RowSort(ViewContext& context, SortHandlerBase const& handler, zbIBrowserViewProperty* property);

    //! Sorts items; those for which all keys tie keep their order. The first `sorted` of them are
    //! in this order already and are not compared with each other.
    //! An item that is null or has no data ties with every other one.
    //! \return false if it was given up; `items` is then as before, as it is after an exception
    bool Run(Items& items, std::size_t sorted, RowOrder order);

    // What the keys need.

    struct Row {
        zbIBrowserDataItemSimple* data; // Null: none
        std::uint32_t source;           // Number of its source
        std::uint32_t place;            // In the list as it was
    };
    struct Source {
        zbIBrowserDataSourceSimple* source; // Null: none
        zbIBrowserDataCtrl* control;
        zbIBrowserDataProperty* property;
    };

    Source const& SourceOf(Row const& row) const { return sources_[row.source]; }
    //! Something of the view has gone, or it is sorted by another column.
    bool IsDisturbed() const;

    enum class Verdict : std::uint8_t { Undecided, Before, NotBefore };
    //! What the data control says of the sources of two rows.
    Verdict CompareSources(Row const& a, Row const& b);

private:
    static constexpr std::uint32_t rememberedSources = 64;

    class OldRows;
    //! The unsorted items, sorted, and for each how many of the sorted ones come before it; no
    //! places if none is sorted.
    struct Joining {
        Items items;
        std::vector<std::size_t> places;
    };

    Joining JoiningBy(RowOrder order, Items const& items, std::size_t sorted);
    template <class Order>
    Joining JoiningOf(Items const& items, std::size_t sorted, Order order);
    static void Join(Items& items, std::size_t sorted, Joining const& joining);
    Row RowOf(zbIBrowserViewItem const* item, std::size_t place);
    std::vector<Row> RowsFrom(Items const& items, std::size_t first);
    std::uint32_t NumberOf(zbIBrowserDataSourceSimple* source);
    Verdict AskControl(Source const& a, Source const& b) const;
    bool IsPropertyCurrent() const;

    ViewContext& context_;
    SortHandlerBase const& handler_;
    std::size_t const retiredBefore_;
    std::uint64_t const orderBefore_;
    zbIBrowserViewProperty* const property_; // Not owned; null: none. Valid if IsPropertyCurrent()
    std::vector<Source> sources_;
    std::unordered_map<zbIBrowserDataSourceSimple*, std::uint32_t> sourceNumbers_;
    zbIBrowserDataSourceSimple* lastSource_ = nullptr;
    std::uint32_t lastNumber_ = 0;
    struct Answer {
        bool known = false;
        Verdict verdict = Verdict::Undecided;
    };
    std::vector<Answer> sourceOrder_; // Of the first sources, each with each
};

} // namespace zbbrowser::detail
