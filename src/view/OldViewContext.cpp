// SPDX-License-Identifier: MIT
#include "view/OldViewContext.h"

#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"

#include <zbBrowserView/zbBrowserView.h>

#include <memory>
#include <new>

namespace zbbrowser::detail {

OldViewContext::OldViewContext(zbBrowserView& view, zbBrowserViewCtrl const* ctrl)
    : ViewContext(view, ctrl)
    , oldView_(view)
    , leafMemory_(zbBrowserViewItemDataLeaf::memorySize) {
}

zbBrowserViewItemFreeFolder* OldViewContext::FindFolder(zbIBrowserViewItem const* item) const {
    auto const found = folders_.find(item);
    return found == folders_.end() ? nullptr : found->second;
}

zbBrowserViewItemDataLeaf* OldViewContext::FindLeaf(zbIBrowserViewItem const* item) const {
    if (!leafMemory_.Owns(item))
        return nullptr;
    auto* const leaf =
        static_cast<zbBrowserViewItemDataLeaf*>(const_cast<zbIBrowserViewItem*>(item));
    return leaf->IsListed() ? leaf : nullptr;
}

void OldViewContext::RegisterFolder(zbBrowserViewItemFreeFolder& folder) {
    folders_.emplace(&folder, &folder);
}

void OldViewContext::UnregisterFolder(zbBrowserViewItemFreeFolder const& folder) {
    folders_.erase(&folder);
}

DetachedLeaves::~DetachedLeaves() {
    auto const destroy = [](void* leaf, void* context) {
        Destroy(*static_cast<zbBrowserViewItemDataLeaf*>(leaf),
                *static_cast<OldViewContext*>(context));
    };
    try {
        for (auto* const leaf : leaves_)
            context_.Lifetime().Retire(leaf, destroy, &context_);
    } catch (std::bad_alloc const&) {
        return;
    }
}

std::vector<zbIBrowserViewItem*> DetachedLeaves::Items() const {
    return {leaves_.begin(), leaves_.end()};
}

void DetachedLeaves::Destroy(zbBrowserViewItemDataLeaf& leaf, OldViewContext& context) {
    std::destroy_at(&leaf);
    context.LeafMemory().Free(&leaf);
}

} // namespace zbbrowser::detail
