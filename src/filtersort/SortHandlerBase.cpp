// SPDX-License-Identifier: MIT
#include "filtersort/SortHandlerBase.h"

#include "presentation/columns/ColumnSet.h"
#include "view/ViewContext.h"

#include <zbBrowserView/zbIBrowserView.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <algorithm>

namespace zbbrowser::detail {

SortHandlerBase::SortHandlerBase(ViewContext& context)
    : context_(context) {
}

SortHandlerBase::~SortHandlerBase() = default;

bool SortHandlerBase::GetAscendingOrder(zbIBrowserViewColumn const* column, bool& out) const {
    if (column == nullptr || column != column_)
        return false;
    out = ascending_;
    return true;
}

bool SortHandlerBase::SetAscendingOrder(zbIBrowserViewColumn* column, bool ascending) {
    CallScope const scope(context_.Lifetime());
    if (!IsOfView(column))
        return false;
    if (column == column_ && ascending == ascending_) {
        RaiseRepeated(column, ascending);
        return true;
    }
    if (column_ != nullptr && column_ != column)
        context_.Raise(&zbBrowserSignalManager::ColumnSortChanged, column_, false, ascending);
    if (!IsOfView(column))
        return false;
    SetColumn(column);
    ascending_ = ascending;
    context_.Raise(&zbBrowserSignalManager::ColumnSortChanged, column, true, ascending);
    return true;
}

bool SortHandlerBase::SortViewBy(zbIBrowserViewColumn* column, bool ascending) {
    CallScope const scope(context_.Lifetime());
    if (!IsOfView(column))
        return false;
    if (column == column_ && !column->IsUnsorted()) {
        if (ascending == ascending_)
            return true;
    } else {
        SetListsUnsorted();
        column->SetUnsorted(false);
    }
    RaiseChanging(true);
    if (!SetAscendingOrder(column, ascending))
        return false;
    context_.Raise(&zbBrowserSignalManager::ViewChanged, &context_.View());
    RaiseChanging(false);
    return true;
}

void SortHandlerBase::ResetSortedColumn() {
    if (column_ == nullptr)
        return;
    CallScope const scope(context_.Lifetime());
    context_.Raise(&zbBrowserSignalManager::ColumnSortChanged, column_, false, false);
    SetColumn(nullptr);
}

void SortHandlerBase::OnColumnGone(zbIBrowserViewColumn const* column) {
    if (column_ == column)
        SetColumn(nullptr);
}

void SortHandlerBase::SetColumn(zbIBrowserViewColumn* column) {
    if (column_ != column)
        ++orderNumber_;
    column_ = column;
}

// The pointer is looked for among the columns and not followed, so a column that has gone is no
// column of the view.
bool SortHandlerBase::IsOfView(zbIBrowserViewColumn const* column) const {
    auto const* const columns = context_.Columns();
    return column != nullptr && context_.IsAlive() && columns != nullptr &&
           columns->Find(column) != nullptr;
}

void SortHandlerBase::SortFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& folders) {
    std::stable_sort(folders.begin(), folders.end(), [](auto const* a, auto const* b) {
        return StrICmp(a->GetName(), b->GetName()) < 0;
    });
}

ChildGroupReads SortHandlerBase::GroupsOf(ChildParent parent) const {
    if (column_ == nullptr)
        return ChildGroupOrder(parent, SortedBy::Nothing, true);
    auto const by = column_->IsDefault() ? SortedBy::DefaultColumn : SortedBy::Column;
    return ChildGroupOrder(parent, by, ascending_);
}

} // namespace zbbrowser::detail
