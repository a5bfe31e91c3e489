// SPDX-License-Identifier: MIT
#include "view/NewViewContext.h"

#include "items/new/ViewItemVirtualRoot.h"

#include <zbBrowserView/View.h>

#include <utility>

namespace zbbrowser::detail {

NewViewContext::NewViewContext(zbbrowser::View& view, zbBrowserViewCtrl const* ctrl)
    : ViewContext(view, ctrl, Generation::New)
    , newView_(view) {
}

NewViewContext::~NewViewContext() = default;

void NewViewContext::SetRoot(std::unique_ptr<ViewItemVirtualRoot> root) {
    root_ = std::move(root);
}

void NewViewContext::DeleteRoot() {
    if (root_ == nullptr)
        return;
    for (auto const& [item, folder] : std::exchange(folders_, {}))
        OnFolderGone(*folder);
    Lifetime().Retire(std::move(root_));
}

ViewItemFreeFolder* NewViewContext::FindFolder(zbIBrowserViewItem const* item) const {
    auto const found = folders_.find(item);
    return found == folders_.end() ? nullptr : found->second;
}

void NewViewContext::RegisterFolder(ViewItemFreeFolder& folder) {
    folders_.emplace(&folder, &folder);
}

void NewViewContext::UnregisterFolder(ViewItemFreeFolder const& folder) {
    folders_.erase(&folder);
    OnFolderGone(folder);
}

} // namespace zbbrowser::detail
