// SPDX-License-Identifier: MIT
#include "filtersort/zbBrowserSortHandler.h"

#include "filtersort/CurrentSortProperty.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <algorithm>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::ChildGroup;
using zbbrowser::detail::ChildParent;
using zbbrowser::detail::CurrentSortProperty;
using zbbrowser::detail::OldViewContext;
using zbbrowser::detail::RowSort;
using zbbrowser::detail::SetCurrentSortProperty;
using zbbrowser::detail::SortBasis;

namespace {

// The view property of the first element of the first style becomes the current sort property. A
// column without them leaves the one that is there.
void TakeSortProperty(zbIBrowserViewColumn const& column) {
    std::vector<zbIBrowserStyle*> styles;
    if (!column.GetStyles(styles) || styles.empty())
        return;
    std::vector<zbIBrowserStyleElement*> elements;
    if (!styles.front()->GetElements(elements) || elements.empty())
        return;
    SetCurrentSortProperty(elements.front()->GetViewProperty());
}

// The flat face of the first row of a tree.
zbIBrowserDataItemSimple* FlatFaceOf(zbIBrowserViewItem const& container) {
    auto* const item = container.GetDataItemHierarchical();
    return item == nullptr ? nullptr : item->GetDataItemSimple();
}

} // namespace

zbBrowserSortHandler::zbBrowserSortHandler(OldViewContext& context)
    : SortHandlerBase(context)
    , oldContext_(context) {
}

void zbBrowserSortHandler::SetListsUnsorted() {
    oldContext_.OldView().SetAllDataItemListsUnsorted();
}

void zbBrowserSortHandler::RaiseChanging(bool changing) {
    oldContext_.RaiseData(&zbBrowserDataSignalManager::SortChanging, changing);
}

void zbBrowserSortHandler::RaiseRepeated(zbIBrowserViewColumn* column, bool ascending) {
    oldContext_.Raise(&zbBrowserSignalManager::ColumnSortRepeated, column, true, ascending);
}

// Lists of rows

bool zbBrowserSortHandler::SortDataItems(Items& items) {
    SortBasis basis;
    return SortDataItems(items, 0, basis);
}

bool zbBrowserSortHandler::SortDataItems(Items& items, std::size_t sorted, SortBasis& basis) {
    auto* const column = GetSortedColumn();
    if (column == nullptr) {
        basis = {};
        return true;
    }
    CallScope const scope(oldContext_.Lifetime());
    auto now = TakeBasis(*column, items.size());
    RowSort sort(oldContext_, *this, now.property);
    auto const order = column->IsDefault() ? RowOrder::Default : RowOrder::Column;
    if (items.size() >= 2 && !sort.Run(items, basis == now ? sorted : 0, order))
        return false;
    basis = std::move(now);
    return true;
}

bool zbBrowserSortHandler::IsCurrent(SortBasis const& basis, std::size_t rows) const {
    auto const* const column = GetSortedColumn();
    return column != nullptr && basis == TakeBasis(*column, rows);
}

SortBasis zbBrowserSortHandler::TakeBasis(zbIBrowserViewColumn const& column,
                                          std::size_t rows) const {
    SortBasis basis;
    basis.orderNumber = OrderNumber();
    if (column.IsDefault())
        return basis;
    if (rows >= 2)
        TakeSortProperty(column);
    basis.property = CurrentSortProperty();
    if (basis.property != nullptr)
        basis.property->GetConnections(basis.connections);
    return basis;
}

bool zbBrowserSortHandler::SortDependentFolderContainers(Items& items) {
    return SortPrepared(items, FlatFaceOf, RowOrder::Custom, RowOrder::Default);
}

bool zbBrowserSortHandler::SortDependentFolderLeaves(Items& items) {
    return SortPrepared(
        items, [](zbIBrowserViewItem const& leaf) { return leaf.GetDataItemSimple(); },
        RowOrder::CustomTwoKeys, RowOrder::NameAndId);
}

bool zbBrowserSortHandler::SortPrepared(Items& items, FlatItem flatItem, RowOrder custom,
                                        RowOrder plain) {
    auto* const column = GetSortedColumn();
    if (column == nullptr || items.size() < 2)
        return true;
    CallScope const scope(oldContext_.Lifetime());
    RowSort sort(oldContext_, *this, nullptr);
    auto* const first = items.front() == nullptr ? nullptr : flatItem(*items.front());
    auto* const source = first == nullptr ? nullptr : first->GetDataSource();
    auto const isCustom = !customProperty_.empty();
    if (!column->IsDefault()) {
        TakeSortProperty(*column);
        PrepareColumnProperty(source);
        return sort.Run(items, 0, RowOrder::Prepared);
    }
    if (isCustom)
        PrepareCustomProperty(source);
    return sort.Run(items, 0, isCustom ? custom : plain);
}

void zbBrowserSortHandler::PrepareCustomProperty(zbIBrowserDataSourceSimple* source) const {
    if (source == nullptr)
        return;
    auto* const property = source->FindDataProperty(customProperty_.c_str());
    if (property != nullptr)
        source->SetSortProperty(property);
}

// A property without a connection for the source leaves the source without a sort property.
void zbBrowserSortHandler::PrepareColumnProperty(zbIBrowserDataSourceSimple* source) {
    auto* const property = CurrentSortProperty();
    if (source != nullptr && property != nullptr)
        source->SetSortProperty(property->GetDataProperty(source));
}

void zbBrowserSortHandler::SortDependentFolders(Items& folders, CaptionOf captionOf) {
    std::stable_sort(folders.begin(), folders.end(), [&](auto const* a, auto const* b) {
        return StrICmp(captionOf(*a), captionOf(*b)) < 0;
    });
}

// Children

// The rows are sorted first, since that calls the host. What is listed then stays there until it
// has been handed out. A sort that was given up is not tried again: the rows come as they stand.
bool zbBrowserSortHandler::GetChildren(zbBrowserViewItemFreeFolder& folder, Items& out) {
    out.clear();
    if (folder.GetView() != &oldContext_.View())
        return false;
    CallScope const scope(oldContext_.Lifetime());
    auto* const rows = folder.Holder() == nullptr ? nullptr : &folder.Holder()->NoGrouping();
    if (rows != nullptr && GetSortedColumn() != nullptr && !rows->SortRows())
        return false;
    for (auto const& group : GroupsOf(ChildParent::OldFolder)) {
        if (group.group == ChildGroup::Folders)
            folder.GetChildFolderItems(out, group.sorted, group.ascending);
        else if (rows != nullptr && !rows->GetSortedItems(out, false, group.ascending))
            return false;
    }
    return true;
}
