// SPDX-License-Identifier: MIT
#include "filtersort/RowSort.h"

#include "containers/Prefetch.h"
#include "filtersort/CurrentSortProperty.h"
#include "filtersort/MergeSort.h"
#include "filtersort/PlacesAmong.h"
#include "filtersort/SortHandlerBase.h"
#include "view/ViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <algorithm>

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
    auto const joining = JoiningBy(order, items, sorted);
    if (IsDisturbed() || !IsPropertyCurrent())
        return false;
    Join(items, sorted, joining);
    return true;
}

RowSort::Joining RowSort::JoiningBy(RowOrder order, Items const& items, std::size_t sorted) {
    switch (order) {
    case RowOrder::Default:
        return JoiningOf(items, sorted, DefaultOrder{*this});
    case RowOrder::Custom:
        return JoiningOf(items, sorted, CustomOrder{*this});
    case RowOrder::Column:
        return JoiningOf(items, sorted, ColumnOrder{*this});
    case RowOrder::CustomTwoKeys:
        return JoiningOf(items, sorted, CustomTwoKeysOrder{*this});
    case RowOrder::NameAndId:
        return JoiningOf(items, sorted, NameAndIdOrder{*this});
    case RowOrder::Prepared:
        return JoiningOf(items, sorted, PreparedOrder{*this});
    }
    return {};
}

//! The rows that stand in order, looked at only when they are compared.
class RowSort::OldRows {
public:
    OldRows(RowSort& sort, Items const& items, std::size_t count)
        : sort_(sort)
        , items_(items)
        , count_(count) {}

    std::size_t Count() const { return count_; }
    Row At(std::size_t i) const { return sort_.RowOf(items_[i], i); }
    void PrefetchItem(std::size_t i) const { Prefetch(items_[i]); }
    void PrefetchData(std::size_t i) const {
        if (items_[i] != nullptr)
            Prefetch(items_[i]->GetDataItemSimple());
    }

private:
    RowSort& sort_;
    Items const& items_;
    std::size_t const count_;
};

// The unsorted rows are sorted by themselves and then find their places among the sorted ones.
template <class Order>
RowSort::Joining RowSort::JoiningOf(Items const& items, std::size_t sorted, Order order) {
    auto rows = RowsFrom(items, sorted);
    MergeSort<Row, Order>(rows, order).Run();
    Joining joining;
    joining.items.resize(rows.size());
    std::transform(rows.begin(), rows.end(), joining.items.begin(),
                   [&](Row const& row) { return items[row.place]; });
    if (sorted > 0)
        joining.places = PlacesAmong(OldRows(*this, items, sorted), rows, order).Find();
    return joining;
}

// From the end, so that no sorted row has to give way twice.
void RowSort::Join(Items& items, std::size_t sorted, Joining const& joining) {
    auto end = items.begin() + static_cast<std::ptrdiff_t>(sorted);
    auto to = items.end();
    for (auto i = joining.items.size(); i-- > 0;) {
        auto const place = sorted == 0 ? 0 : static_cast<std::ptrdiff_t>(joining.places[i]);
        to = std::move_backward(items.begin() + place, end, to);
        *--to = joining.items[i];
        end = items.begin() + place;
    }
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
