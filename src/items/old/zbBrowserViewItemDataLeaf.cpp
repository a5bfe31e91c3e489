// SPDX-License-Identifier: MIT
#include "items/old/zbBrowserViewItemDataLeaf.h"

#include "items/old/LeafStore.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

using zbbrowser::detail::CallScope;
using zbbrowser::detail::LeafStore;
using zbbrowser::detail::OldViewContext;

zbBrowserViewItemDataLeaf::zbBrowserViewItemDataLeaf(zbIBrowserDataItemSimple* dataItem,
                                                     bool hidden)
    : dataItem_(dataItem)
    , hidden_(hidden ? 1 : 0) {
}

zbIBrowserView* zbBrowserViewItemDataLeaf::GetView() const {
    return GetViewImpl();
}

void zbBrowserViewItemDataLeaf::Show() {
    auto& context = Context();
    CallScope const scope(context.Lifetime());
    SetHidden(false);
    context.Raise(&zbBrowserSignalManager::ViewItemShown, this);
}

void zbBrowserViewItemDataLeaf::SetHidden(bool hidden) {
    if (IsHidden() == hidden)
        return;
    hidden_ = hidden ? 1 : 0;
    if (IsListed())
        Store().NoteHidden(hidden);
}

bool zbBrowserViewItemDataLeaf::IsOf(zbIBrowserDataSource const* source) const {
    return Store().IsOf(*this, source);
}

void zbBrowserViewItemDataLeaf::TakeOutOfStore() {
    Store().Take(*this);
}

zbBrowserViewItemDataLeafInFreeFolder::zbBrowserViewItemDataLeafInFreeFolder(
    zbBrowserViewItemFreeFolder& parent, zbIBrowserDataItemSimple* dataItem, bool hidden)
    : zbBrowserViewItemDataLeaf(dataItem, hidden)
    , parent_(parent) {
}

zbIBrowserViewItem* zbBrowserViewItemDataLeafInFreeFolder::GetParent() const {
    return &parent_;
}

zbIBrowserViewItemFreeFolder* zbBrowserViewItemDataLeafInFreeFolder::GetParentFreeFolder() const {
    return &parent_;
}

zbBrowserView* zbBrowserViewItemDataLeafInFreeFolder::GetViewImpl() const {
    return parent_.GetViewImpl();
}

OldViewContext& zbBrowserViewItemDataLeafInFreeFolder::Context() const {
    return parent_.Context();
}

LeafStore& zbBrowserViewItemDataLeafInFreeFolder::Store() const {
    return parent_.Holder()->NoGrouping().Leaves();
}
