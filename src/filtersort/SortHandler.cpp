// SPDX-License-Identifier: MIT
#include "filtersort/SortHandler.h"

#include "control/Messages.h"
#include "items/new/ViewItemFreeFolder.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/View.h>

namespace zbbrowser {

using detail::ChildGroup;
using detail::ChildGroupRead;
using detail::ChildParent;

SortHandler::SortHandler(detail::NewViewContext& context)
    : SortHandlerBase(context)
    , newContext_(context) {
}

void SortHandler::SetListsUnsorted() {
    newContext_.NewView().SetAllDataItemListsUnsorted();
}

bool SortHandler::GetChildren(ViewItemFreeFolder& folder, Items& out) {
    out.clear();
    if (folder.GetView() != &newContext_.View())
        detail::Fail(detail::DifferentManager);
    for (auto const& group : GroupsOf(ChildParent::NewFolder)) {
        if (!Append(folder, group, out))
            throw "Could not get sorted children of parent item";
    }
    return true;
}

// Only child folders: a folder has no content that could list nodes and grouping folders.
bool SortHandler::Append(ViewItemFreeFolder& folder, ChildGroupRead const& group, Items& out) {
    if (group.group != ChildGroup::Folders)
        return true;
    std::vector<zbIBrowserViewItemFreeFolder*> children;
    if (!folder.GetChildFreeFolders(children, group.sorted, group.ascending))
        return false;
    for (auto* const child : children) {
        if (!child->IsHidden())
            out.push_back(child);
    }
    return true;
}

} // namespace zbbrowser
