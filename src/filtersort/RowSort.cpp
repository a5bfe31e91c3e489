// SPDX-License-Identifier: MIT
#include "filtersort/RowSort.h"

#include "containers/Prefetch.h"
#include "filtersort/CurrentSortProperty.h"
#include "filtersort/MergeSort.h"
#include "filtersort/SortHandlerBase.h"
#include "view/ViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

namespace zbbrowser::detail {

namespace {

using Row = RowSort::Row;
using Verdict = RowSort::Verdict;

// Sort keys. Each is a function of the sort and two rows with data. One that decides says whether
// the first stands before the second; otherwise the next key is asked. A new key is a function
// here and a place in one of the orders below.

//! Asks the source of `a`, unless there is none or the sort has been disturbed.
template <class Ask>
Verdict AskSource(RowSort const& sort, Row const& a, Ask ask) {
    if (sort.IsDisturbed())
        return Verdict::NotBefore;
    auto const& asked = sort.SourceOf(a);
    int cmp = 0;
    if (asked.source == nullptr || !ask(asked, cmp) || cmp == 0)
        return Verdict::Undecided;
    return cmp < 0 ? Verdict::Before : Verdict::NotBefore;
}

Verdict BySourceOrder(RowSort& sort, Row const& a, Row const& b) {
    return sort.CompareSources(a, b);
}

Verdict ByName(RowSort& sort, Row const& a, Row const& b) {
    return AskSource(sort, a, [&](RowSort::Source const& asked, int& cmp) {
        return asked.source->CompareByName(a.data, b.data, cmp);
    });
}

Verdict ById(RowSort& sort, Row const& a, Row const& b) {
    return AskSource(sort, a, [&](RowSort::Source const& asked, int& cmp) {
        return asked.source->CompareById(a.data, b.data, cmp);
    });
}

//! By what SetSortProperty of the source was last given.
Verdict BySortProperty(RowSort& sort, Row const& a, Row const& b) {
    return AskSource(sort, a, [&](RowSort::Source const& asked, int& cmp) {
        return asked.source->CompareBySortProperty(a.data, b.data, cmp);
    });
}

//! By what the column shows.
Verdict ByDataProperty(RowSort& sort, Row const& a, Row const& b) {
    auto* const ofB = sort.SourceOf(b).property;
    if (ofB == nullptr)
        return Verdict::Undecided;
    return AskSource(sort, a, [&](RowSort::Source const& asked, int& cmp) {
        return asked.property != nullptr &&
               asked.source->CompareByDataProperty(a.data, asked.property, b.data, ofB, cmp);
    });
}

//! Asks and orders nothing: rows that name and identity tell apart count as tied all the same.
template <Verdict (*key)(RowSort&, Row const&, Row const&)>
Verdict WithoutOrder(RowSort& sort, Row const& a, Row const& b) {
    auto const verdict = key(sort, a, b);
    return verdict == Verdict::Undecided ? Verdict::Undecided : Verdict::NotBefore;
}

//! An order: the keys that are tried one after the other until one decides.
template <Verdict (*... keys)(RowSort&, Row const&, Row const&)>
struct OrderBy {
    RowSort& sort;

    bool operator()(Row const& a, Row const& b) const {
        if (a.data == nullptr || b.data == nullptr)
            return false;
        auto verdict = Verdict::Undecided;
        static_cast<void>((((verdict = keys(sort, a, b)) != Verdict::Undecided) || ...));
        return verdict == Verdict::Before;
    }

    //! The host's item is about to be compared: the beginning of it is asked for.
    void Prefetch(Row const& row) const { detail::Prefetch(row.data); }
};

using DefaultOrder = OrderBy<BySourceOrder, ByName, ById>;
using CustomOrder = OrderBy<BySourceOrder, BySortProperty, ById>;
using ColumnOrder = OrderBy<BySourceOrder, ByDataProperty, ByName, ById>;
using CustomTwoKeysOrder = OrderBy<BySortProperty, ById>;
using NameAndIdOrder = OrderBy<ByName, ById>;
using PreparedOrder = OrderBy<BySortProperty, WithoutOrder<ByName>, WithoutOrder<ById>>;

} // namespace

RowSort::RowSort(ViewContext& context, SortHandlerBase const& handler,
                 zbIBrowserViewProperty* property)
    : context_(context)
    , handler_(handler)
    , retiredBefore_(context.Lifetime().RetiredCount())
    , orderBefore_(handler.OrderNumber())
    , property_(property) {
}

bool RowSort::IsDisturbed() const {
    return context_.Lifetime().RetiredCount() != retiredBefore_ || !context_.IsAlive() ||
           handler_.OrderNumber() != orderBefore_;
}

// It may be that of another view, whose end this view does not notice.
bool RowSort::IsPropertyCurrent() const {
    return property_ == nullptr || property_ == CurrentSortProperty();
}

bool RowSort::Run(Items& items, std::size_t sorted, RowOrder order) {
    auto result = SortedBy(order, items, sorted);
    if (IsDisturbed() || !IsPropertyCurrent())
        return false;
    items = std::move(result);
    return true;
}

RowSort::Items RowSort::SortedBy(RowOrder order, Items const& items, std::size_t sorted) {
    switch (order) {
    case RowOrder::Default:
        return Sorted(items, sorted, DefaultOrder{*this});
    case RowOrder::Custom:
        return Sorted(items, sorted, CustomOrder{*this});
    case RowOrder::Column:
        return Sorted(items, sorted, ColumnOrder{*this});
    case RowOrder::CustomTwoKeys:
        return Sorted(items, sorted, CustomTwoKeysOrder{*this});
    case RowOrder::NameAndId:
        return Sorted(items, sorted, NameAndIdOrder{*this});
    case RowOrder::Prepared:
        return Sorted(items, sorted, PreparedOrder{*this});
    }
    return items;
}

// The unsorted rows are sorted by themselves and then find their places among the sorted ones, of
// which only those are looked at that are compared.
template <class Order>
RowSort::Items RowSort::Sorted(Items const& items, std::size_t sorted, Order order) {
    auto rows = RowsFrom(items, sorted);
    MergeSort<Row, Order>(rows, order).Run();
    auto const placeOf = [&](std::size_t i) { return RowOf(items[i], i); };
    auto const places = sorted == 0 ? std::vector<std::size_t>(rows.size())
                                    : PlacesAmong(sorted, placeOf, rows, order);
    Items result;
    result.reserve(items.size());
    auto old = items.begin();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        auto const next = items.begin() + static_cast<std::ptrdiff_t>(places[i]);
        result.insert(result.end(), old, next);
        result.push_back(items[rows[i].place]);
        old = next;
    }
    result.insert(result.end(), old, items.begin() + static_cast<std::ptrdiff_t>(sorted));
    return result;
}

std::vector<Row> RowSort::RowsFrom(Items const& items, std::size_t first) {
    std::vector<Row> rows;
    rows.reserve(items.size() - first);
    for (auto i = first; i < items.size(); ++i) {
        if (i + prefetchDistance < items.size())
            Prefetch(items[i + prefetchDistance]);
        rows.push_back(RowOf(items[i], i));
    }
    return rows;
}

Row RowSort::RowOf(zbIBrowserViewItem const* item, std::size_t place) {
    auto* const data = item == nullptr || IsDisturbed() ? nullptr : item->GetDataItemSimple();
    auto* const source = data == nullptr ? nullptr : data->GetDataSource();
    return {data, NumberOf(source), static_cast<std::uint32_t>(place)};
}

std::uint32_t RowSort::NumberOf(zbIBrowserDataSourceSimple* source) {
    if (source == lastSource_ && !sources_.empty())
        return lastNumber_;
    auto const next = static_cast<std::uint32_t>(sources_.size());
    auto const [found, isNew] = sourceNumbers_.try_emplace(source, next);
    if (isNew) {
        auto const isAsked = source != nullptr && !IsDisturbed();
        auto* const control = isAsked ? source->GetDataCtrl() : nullptr;
        auto* const property = isAsked && property_ != nullptr && IsPropertyCurrent()
                                   ? property_->GetDataProperty(source)
                                   : nullptr;
        sources_.push_back({source, control, property});
    }
    lastSource_ = source;
    lastNumber_ = found->second;
    return lastNumber_;
}

Verdict RowSort::CompareSources(Row const& a, Row const& b) {
    if (a.source >= rememberedSources || b.source >= rememberedSources)
        return AskControl(SourceOf(a), SourceOf(b));
    if (sourceOrder_.empty())
        sourceOrder_.resize(std::size_t{rememberedSources} * rememberedSources);
    auto& answer = sourceOrder_[a.source * rememberedSources + b.source];
    if (!answer.known)
        answer = {true, AskControl(SourceOf(a), SourceOf(b))};
    return answer.verdict;
}

Verdict RowSort::AskControl(Source const& a, Source const& b) const {
    if (IsDisturbed())
        return Verdict::NotBefore;
    bool less = false;
    if (a.control == nullptr || b.source == nullptr ||
        !a.control->CompareDataSources(a.source, b.source, less))
        return Verdict::Undecided;
    return less ? Verdict::Before : Verdict::NotBefore;
}

} // namespace zbbrowser::detail
