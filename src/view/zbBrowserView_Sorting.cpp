// SPDX-License-Identifier: MIT
// The order of the rows.
#include "filtersort/zbBrowserSortHandler.h"
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::WalkFolders;

void zbBrowserView::CreateSortHandler() {
    if (context_->SortHandler() == nullptr)
        context_->SetSortHandler(std::make_unique<zbBrowserSortHandler>(*context_));
}

zbBrowserSortHandler* zbBrowserView::GetSortHandlerPtr() const {
    return static_cast<zbBrowserSortHandler*>(context_->SortHandler());
}

zbIBrowserViewColumn* zbBrowserView::GetSortedColumn() const {
    auto const* const handler = GetSortHandlerPtr();
    return handler == nullptr ? nullptr : handler->GetSortedColumn();
}

bool zbBrowserView::GetAscendingOrder(zbIBrowserViewColumn* const column, bool& out) const {
    auto const* const handler = GetSortHandlerPtr();
    return handler != nullptr && handler->GetAscendingOrder(column, out);
}

bool zbBrowserView::SetAscendingOrder(zbIBrowserViewColumn* const column, bool ascending) {
    auto* const handler = GetSortHandlerPtr();
    return handler != nullptr && handler->SortViewBy(column, ascending);
}

void zbBrowserView::SetAllDataItemListsUnsorted() {
    CallScope const scope(context_->Lifetime());
    WalkFolders(*root_, [](zbBrowserViewItemFreeFolder& folder) {
        folder.RequireHolder().ForEach(
            [](zbBrowserFreeFolderContent& content) { content.SetUnsorted(); });
        return true;
    });
}

bool zbBrowserView::SetSortDefaultColumnByCustomProperty(zbString const& name) {
    if (auto* const handler = GetSortHandlerPtr())
        handler->SetCustomProperty(name);
    return true;
}

bool zbBrowserView::SortDefaultColumnByCustomProperty(zbString& name) {
    if (auto const* const handler = GetSortHandlerPtr())
        name = handler->CustomProperty();
    return true;
}
