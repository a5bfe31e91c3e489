// SPDX-License-Identifier: MIT
#include "view/OldViewContext.h"

#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"

#include <zbBrowserView/zbBrowserView.h>

#include <memory>
#include <utility>

namespace zbbrowser::detail {

OldViewContext::OldViewContext(zbBrowserView& view, zbBrowserViewCtrl const* ctrl)
    : ViewContext(view, ctrl, Generation::Old)
    , oldView_(view)
    , leafMemory_(zbBrowserViewItemDataLeaf::memorySize) {
}

OldViewContext::~OldViewContext() = default;

void OldViewContext::ClearError() {
    oldView_.SetOk();
}

bool OldViewContext::Report(zbString const& text) {
    oldView_.SetError(text);
    return false;
}

bool OldViewContext::State() const {
    return oldView_.GetState();
}

zbBrowserViewItemFreeFolder* OldViewContext::FindFolder(zbIBrowserViewItem const* item) const {
    auto const found = folders_.find(item);
    return found == folders_.end() ? nullptr : found->second;
}

zbBrowserViewItemDataLeaf* OldViewContext::FindLeaf(zbIBrowserViewItem const* item) const {
    auto* const leaf = FindAnyLeaf(item);
    return leaf != nullptr && leaf->IsListed() ? leaf : nullptr;
}

zbBrowserViewItemDataLeaf* OldViewContext::FindAnyLeaf(zbIBrowserViewItem const* item) const {
    if (!leafMemory_.Owns(item))
        return nullptr;
    return static_cast<zbBrowserViewItemDataLeaf*>(const_cast<zbIBrowserViewItem*>(item));
}

void OldViewContext::SelectViewItem(zbIBrowserViewItem& item, bool select, bool recursive) {
    oldView_.SelectViewItem(&item, select, recursive);
}

void OldViewContext::RegisterFolder(zbBrowserViewItemFreeFolder& folder) {
    folders_.emplace(&folder, &folder);
}

void OldViewContext::UnregisterFolder(zbBrowserViewItemFreeFolder const& folder) {
    folders_.erase(&folder);
    OnFolderGone(folder);
}

DetachedLeaves::DetachedLeaves(OldViewContext& context, std::size_t count)
    : leaves_(std::make_unique<Leaves>(context)) {
    leaves_->items.reserve(count);
}

DetachedLeaves::~DetachedLeaves() {
    auto& context = leaves_->context;
    for (auto* const leaf : leaves_->items)
        context.Forget(*leaf);
    if (!IsEmpty())
        context.Lifetime().Retire(std::move(leaves_));
}

DetachedLeaves::Leaves::~Leaves() {
    for (auto* const leaf : items)
        Destroy(static_cast<zbBrowserViewItemDataLeaf&>(*leaf), context);
}

void DetachedLeaves::Add(zbBrowserViewItemDataLeaf& leaf) {
    leaves_->items.push_back(&leaf);
}

void DetachedLeaves::Destroy(zbBrowserViewItemDataLeaf& leaf, OldViewContext& context) {
    std::destroy_at(&leaf);
    context.LeafMemory().Free(&leaf);
}

} // namespace zbbrowser::detail
