// SPDX-License-Identifier: MIT
// Free folders. The tests of the arguments come in a required order: lock, null, view, kind.
#include "control/Messages.h"
#include "items/new/ViewItemVirtualRoot.h"
#include "view/FolderPath.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/View.h>

namespace zbbrowser {

using detail::CallScope;
using detail::Fail;

void View::CreateVirtualRoot() {
    if (context_->Root() != nullptr)
        Fail(detail::InitializedMemory);
    context_->SetRoot(std::make_unique<ViewItemVirtualRoot>(*context_));
}

void View::DeleteVirtualRoot() {
    context_->DeleteRoot();
}

ViewItemVirtualRoot* View::GetVirtualRoot() const {
    return context_->Root();
}

zbIBrowserViewItemFreeFolder* View::GetRootFreeFolder() const {
    return GetVirtualRoot();
}

ViewItemFreeFolder* View::FindFreeFolderImpl(zbIBrowserViewItem const* item) const {
    if (item == nullptr)
        Fail(detail::NullPointerHit);
    if (item->GetView() != this)
        Fail(detail::DifferentManager);
    if (!item->IsFreeFolder())
        throw "Another type of view item where free folder is expected";
    return context_->FindFolder(item);
}

ViewItemFreeFolder& View::RequireFreeFolder(zbIBrowserViewItem const* item) const {
    ViewItemFreeFolder* const folder = FindFreeFolderImpl(item);
    if (folder == nullptr)
        Fail(detail::NullPointerHit);
    return *folder;
}

bool View::CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent, zbString const& name) {
    CallScope const scope(context_->Lifetime());
    if (locked_)
        return false;
    RequireFreeFolder(parent).CreateChild(name);
    return true;
}

bool View::DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool) {
    if (locked_)
        return false;
    ViewItemFreeFolder const* const found = FindFreeFolderImpl(folder);
    if (found != nullptr && found->IsVirtualRoot())
        throw "Cannot remove toplevel (canvas) free folder";
    return false;
}

bool View::ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::GetFreeFoldersFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                       std::vector<zbIBrowserViewItemFreeFolder*>& out) const {
    out.clear();
    for (zbIBrowserViewItem const* item : items) {
        if (item == nullptr || item->GetView() != this)
            return false;
        if (!item->IsFreeFolder())
            continue;
        ViewItemFreeFolder* const folder = FindFreeFolderImpl(item);
        if (folder == nullptr)
            return false;
        out.push_back(folder);
    }
    return true;
}

bool View::GetFreeFolderAbsolutePathName(zbIBrowserViewItemFreeFolder const* folder,
                                         zbString& out) const {
    return detail::FolderPath(folder, out);
}

// Settings

bool View::GetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder) const {
    return RequireFreeFolder(folder).GetGroupLeafs();
}

bool View::GetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder) const {
    return RequireFreeFolder(folder).GetFreeFolderStyle();
}

bool View::SetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::SetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder, bool style) {
    RequireFreeFolder(folder).SetStyle(style);
    return true;
}

bool View::SetFreeFolderShowEmptyContainers(zbIBrowserViewItemFreeFolder* folder, bool) {
    CallScope const scope(context_->Lifetime());
    RequireFreeFolder(folder);
    context_->Raise(&zbBrowserSignalManager::FreeFolderStyleChanged, folder, true);
    return true;
}

bool View::SetKeepChildrenFreeFoldersInOrderAsCreated(zbIBrowserViewItemFreeFolder* folder,
                                                      bool keep) {
    if (folder == nullptr)
        return false;
    RequireFreeFolder(folder).SetKeepChildrenInOrder(keep);
    return true;
}

bool View::ExpandFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder).Expand();
    return true;
}

// A folder of this generation that stands open stays open.
bool View::CollapseFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return true;
}

// What only old views have: the folder is tested, and that is all.

bool View::ChildrenAdd(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataReference*,
                       zbIBrowserDataSource*, bool) {
    FindFreeFolderImpl(folder);
    return false;
}

bool View::ChildrenGroup(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataReference*,
                         zbIBrowserDataSource*, bool) {
    FindFreeFolderImpl(folder);
    return false;
}

bool View::ChildrenShowEmptyGroupingFolder(zbIBrowserViewItemFreeFolder* folder,
                                           zbIBrowserDataReference*, zbIBrowserDataSource*, bool) {
    FindFreeFolderImpl(folder);
    return false;
}

bool View::ListAdd(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataSource*, bool) {
    FindFreeFolderImpl(folder);
    return false;
}

bool View::ListGroup(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataSource*, bool) {
    FindFreeFolderImpl(folder);
    return false;
}

bool View::ListShowEmptyGroupingFolder(zbIBrowserViewItemFreeFolder* folder, zbIBrowserDataSource*,
                                       bool) {
    FindFreeFolderImpl(folder);
    return false;
}

bool View::DeleteTreeParentChild(zbIBrowserViewItemFreeFolder*, zbIBrowserDataReference*,
                                 zbIBrowserDataSource*, zbIBrowserDataSource*) {
    return false;
}

bool View::DeleteTreeTopLevel(zbIBrowserViewItemFreeFolder*, zbIBrowserDataSource*) {
    return false;
}

bool View::GetCaption(zbIBrowserViewItemFreeFolder*, zbString&) const {
    return false;
}

} // namespace zbbrowser
