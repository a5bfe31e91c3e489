// SPDX-License-Identifier: MIT
// Free folders, lists and trees.
#include "control/Messages.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/FolderPath.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/zbBrowserView.h>

using zbbrowser::detail::CallScope;

zbBrowserViewItemFreeFolder* zbBrowserView::FindFreeFolder(zbIBrowserViewItem const* item) const {
    return context_->FindFolder(item);
}

bool zbBrowserView::IsVirtualRoot(zbBrowserViewItemFreeFolder* const folder) const {
    return folder != nullptr && folder->IsVirtualRoot();
}

// Carries the text of a folder over into the view. Always false.
bool zbBrowserView::FailWith(zbBrowserViewItemFreeFolder const& folder) {
    SetError(folder.GetError());
    return false;
}

// Lists and trees

bool zbBrowserView::CreateList(zbIBrowserViewItemFreeFolder* const folder,
                               zbIBrowserDataSourceSimple* const source, bool) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->CreateList(source) || FailWith(*found));
}

bool zbBrowserView::DeleteList(zbIBrowserViewItemFreeFolder* const folder,
                               zbIBrowserDataSourceSimple* const source) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->DeleteList(source) || FailWith(*found));
}

zbIBrowserDataSourceSimple* zbBrowserView::FindList(zbIBrowserViewItemFreeFolder* const folder,
                                                    zbIBrowserDataSourceSimple* const source) {
    return folder == nullptr ? nullptr : folder->FindList(source);
}

bool zbBrowserView::CreateTree(zbIBrowserViewItemFreeFolder* const folder,
                               zbIBrowserDataSourceHierarchical* const tree) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->CreateTree(tree) || FailWith(*found));
}

bool zbBrowserView::DeleteTree(zbIBrowserViewItemFreeFolder* const folder,
                               zbIBrowserDataSourceHierarchical* const tree) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->DeleteTree(tree) || FailWith(*found));
}

zbIBrowserDataSourceHierarchical*
zbBrowserView::FindTree(zbIBrowserViewItemFreeFolder* const folder,
                        zbIBrowserDataSourceHierarchical* const tree) {
    if (folder == nullptr || tree == nullptr)
        return nullptr;
    CallScope const scope(context_->Lifetime()); // The tree may delete the folder when it is asked
    return folder->FindTree(tree->GetName());
}

bool zbBrowserView::SetShowChildType(zbIBrowserViewItemFreeFolder* folder,
                                     zbIBrowserDataSourceHierarchical* tree,
                                     zbIBrowserDataSourceSimple* type, bool show) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->SetShowChildType(tree, type, show) || FailWith(*found));
}

// Making and removing folders

bool zbBrowserView::CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent,
                                     zbString const& name) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(parent);
    if (found == nullptr)
        return false;
    found->CreateChildFolder(name);
    return true;
}

bool zbBrowserView::DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool deleteContent) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    auto* const parent = found == nullptr ? nullptr : FindFreeFolder(found->GetParentFreeFolder());
    if (parent == nullptr)
        zbbrowser::detail::Fail(zbbrowser::detail::NullPointerHit);
    parent->DeleteChildFolder(*found, deleteContent);
    return true;
}

// Settings of folders

bool zbBrowserView::SetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder, bool group) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    if (found == nullptr)
        return false;
    if (!found->SetGroupLeafs(group))
        return FailWith(*found);
    if (found->IsAlive())
        context_->Raise(&zbBrowserSignalManager::FreeFolderStyleChanged, found, true);
    return true;
}

bool zbBrowserView::SetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder, bool style) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && (found->SetStyle(style) || FailWith(*found));
}

bool zbBrowserView::SetFreeFolderShowEmptyContainers(zbIBrowserViewItemFreeFolder* folder,
                                                     bool show) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    if (found == nullptr)
        return false;
    if (!found->SetShowEmptyContainers(show))
        return FailWith(*found);
    if (found->IsAlive())
        context_->Raise(&zbBrowserSignalManager::FreeFolderStyleChanged, found, true);
    return true;
}

bool zbBrowserView::GetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder) const {
    auto const* const found = FindFreeFolder(folder);
    return found != nullptr && found->GetGroupLeafs();
}

bool zbBrowserView::GetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder) const {
    auto const* const found = FindFreeFolder(folder);
    return found != nullptr && found->GetFreeFolderStyle();
}

bool zbBrowserView::SetKeepChildrenFreeFoldersInOrderAsCreated(zbIBrowserViewItemFreeFolder* folder,
                                                               bool keep) {
    auto* const found = FindFreeFolder(folder);
    if (found == nullptr)
        return false;
    found->SetKeepChildrenInOrder(keep);
    return true;
}

bool zbBrowserView::SetListCaption(zbIBrowserViewItem* const folder,
                                   zbIBrowserDataSourceSimple* const source, char const* caption) {
    CallScope const scope(context_->Lifetime());
    auto* const found = FindFreeFolder(folder);
    return found != nullptr && found->SetListCaption(source, caption);
}

bool zbBrowserView::MakeCaptionBold(zbIBrowserViewItemFreeFolder* const,
                                    zbIBrowserDataSourceSimple* const, char const*) {
    return false;
}

namespace {

zbBrowserFreeFolderContentHolder& HolderOf(zbBrowserViewItemFreeFolder const* folder) {
    if (folder == nullptr || folder->Holder() == nullptr)
        throw "NULL pointer hit";
    return *folder->Holder();
}

} // namespace

void zbBrowserView::SetSortingException(zbIBrowserViewItemFreeFolder* const folder,
                                        zbIBrowserDataSourceSimple* const source, int value) {
    HolderOf(FindFreeFolder(folder)).WithTree().SetSortingException(source, value);
}

void zbBrowserView::SetCreateExpandedItem(zbIBrowserViewItemFreeFolder* const folder,
                                          zbIBrowserDataSourceSimple* const source, int value) {
    HolderOf(FindFreeFolder(folder)).WithTree().SetCreateExpandedItem(source, value);
}

// Empty folders

void zbBrowserView::ShowEmptyFolders(bool show) {
    CallScope const scope(context_->Lifetime());
    showEmptyFolders_ = show;
    context_->Raise(&zbBrowserSignalManager::EmptyFoldersShown, this, show);
}

bool zbBrowserView::GetShowEmptyFoldersFlag() const {
    return showEmptyFolders_;
}

bool zbBrowserView::IsEmptyFolderCanBeShown(zbIBrowserViewItem* const item) {
    CallScope const scope(context_->Lifetime());
    auto* const folder = FindFreeFolder(item);
    if (folder == nullptr || folder->GetShowWhenEmpty() || !folder->IsDataEmpty(true))
        return true;
    folder->SetExpandedFlag(false);
    DeselectViewItem(folder, false);
    return false;
}

// Paths and kinds

// The host can write a parent that leads in a circle; such a path ends where it meets itself.
bool zbBrowserView::GetFreeFolderAbsolutePathName(zbIBrowserViewItemFreeFolder const* folder,
                                                  zbString& out) const {
    return zbbrowser::detail::FolderPath(folder, out);
}

bool zbBrowserView::GetFreeFoldersFromViewItems(
    std::vector<zbIBrowserViewItem*> const& items,
    std::vector<zbIBrowserViewItemFreeFolder*>& out) const {
    out.clear();
    for (auto* const item : items) {
        if (!context_->Owns(item))
            return false;
        if (auto* const folder = FindFreeFolder(item); folder != nullptr)
            out.push_back(folder);
    }
    return true;
}
