// SPDX-License-Identifier: MIT
// The order of the rows.
#include "filtersort/SortHandler.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/View.h>

namespace zbbrowser {

void View::CreateSortHandler() {
    if (context_->SortHandler() == nullptr)
        context_->SetSortHandler(std::make_unique<SortHandler>(*context_));
}

void View::DeleteSortHandler() {
    context_->SetSortHandler(nullptr);
}

SortHandler* View::GetSortHandler() const {
    return static_cast<SortHandler*>(context_->SortHandler());
}

zbIBrowserViewColumn* View::GetSortedColumn() const {
    auto const* const handler = GetSortHandler();
    return handler == nullptr ? nullptr : handler->GetSortedColumn();
}

bool View::GetAscendingOrder(zbIBrowserViewColumn* const column, bool& out) const {
    auto const* const handler = GetSortHandler();
    return handler != nullptr && handler->GetAscendingOrder(column, out);
}

bool View::SetAscendingOrder(zbIBrowserViewColumn* const column, bool ascending) {
    auto* const handler = GetSortHandler();
    return handler != nullptr && handler->SortViewBy(column, ascending);
}

// A walk over the folders would find nothing to mark: child folders are sorted once, and rows of
// this generation stand as the data side gave them.
void View::SetAllDataItemListsUnsorted() {
}

} // namespace zbbrowser
