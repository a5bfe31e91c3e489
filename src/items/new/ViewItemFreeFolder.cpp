// SPDX-License-Identifier: MIT
#include "items/new/ViewItemFreeFolder.h"

#include "containers/MakeRoom.h"
#include "filtersort/SortHandlerBase.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/View.h>

#include <algorithm>

namespace zbbrowser {

using detail::CallScope;

ViewItemFreeFolder::ViewItemFreeFolder(detail::NewViewContext& context, ViewItemFreeFolder* parent,
                                       zbString name, bool expanded)
    : context_(context)
    , name_(std::move(name))
    , parent_(parent)
    , expanded_(expanded)
    , showWhenEmpty_(parent == nullptr || parent->GetShowWhenEmpty()) {
    context_.RegisterFolder(*this);
}

// The folders below go one by one, the innermost first. That takes neither recursion nor memory: on
// the way down the place of the parent, which nobody reads any more, says where the way came from.
ViewItemFreeFolder::~ViewItemFreeFolder() {
    auto* folder = this;
    while (folder != this || !children_.empty()) {
        if (folder->children_.empty()) {
            folder = static_cast<ViewItemFreeFolder*>(folder->parent_);
            folder->children_.pop_back();
            continue;
        }
        auto* const below = folder->children_.back().get();
        below->parent_ = folder;
        folder = below;
    }
    context_.UnregisterFolder(*this);
}

zbIBrowserView* ViewItemFreeFolder::GetView() const {
    return &context_.View();
}

void ViewItemFreeFolder::Show() {
    CallScope const scope(context_.Lifetime());
    hidden_ = false;
    context_.Raise(&zbBrowserSignalManager::ViewItemShown, this);
}

bool ViewItemFreeFolder::GetTreeParentChildRecords(std::vector<TreeParentChildRecord>&) const {
    return false;
}

bool ViewItemFreeFolder::GetTreeTopLevelRecords(std::vector<TreeTopLevelRecord>&) const {
    return false;
}

bool ViewItemFreeFolder::GetChildFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out,
                                             bool sorted, bool ascending) {
    out.clear();
    out.reserve(children_.size());
    if (!sorted || keepChildrenInOrder_) {
        for (auto const& child : children_)
            out.push_back(child.get());
        return true;
    }
    SortChildren();
    out = sortedChildren_;
    if (!ascending)
        std::reverse(out.begin(), out.end());
    return true;
}

void ViewItemFreeFolder::SortChildren() {
    if (childrenSorted_)
        return;
    sortedChildren_.clear();
    for (auto const& child : children_)
        sortedChildren_.push_back(child.get());
    detail::SortHandlerBase::SortFreeFolders(sortedChildren_);
    childrenSorted_ = true;
}

zbIBrowserViewItemFreeFolder* ViewItemFreeFolder::FindChildFreeFolder(zbString const& name) const {
    auto const found = childByName_.find(name.c_str());
    return found == childByName_.end() ? nullptr : found->second;
}

void ViewItemFreeFolder::CreateChild(zbString const& name) {
    if (FindChildFreeFolder(name) != nullptr)
        throw "Child Free Folder with supplied name already exists in parent";
    detail::MakeRoom(children_);
    auto made = std::make_unique<ViewItemFreeFolder>(context_, this, name);
    auto& child = *made;
    childByName_.emplace(child.GetName(), &child);
    children_.push_back(std::move(made));
    childrenSorted_ = false;
    context_.Raise(&zbBrowserSignalManager::ViewItemCreated, &child);
    context_.Raise(&zbBrowserSignalManager::FreeFolderCreated, this);
    RaiseChanged();
}

void ViewItemFreeFolder::SetIconShowsData(bool show, bool recursive) {
    CallScope const scope(context_.Lifetime());
    iconShowsData_ = show;
    iconRecursive_ = recursive;
    RaiseChanged();
}

void ViewItemFreeFolder::SetCaptionShowsCount(bool show, bool recursive) {
    CallScope const scope(context_.Lifetime());
    captionShowsCount_ = show;
    captionRecursive_ = recursive;
    RaiseChanged();
}

// A folder signals after the folders below it, like a walk that writes each folder when it enters
// it and signals when it leaves. Slots may add folders, which are then not part of the walk.
void ViewItemFreeFolder::SetShowWhenEmpty(bool show, bool recursive) {
    CallScope const scope(context_.Lifetime());
    auto const folders = recursive ? Below() : std::vector<ViewItemFreeFolder*>{this};
    for (auto* const folder : folders)
        folder->showWhenEmpty_ = show;
    for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder)
        (*folder)->RaiseChanged();
}

void ViewItemFreeFolder::SetStyle(bool style) {
    for (auto* const folder : Below())
        folder->style_ = style;
}

// The last child comes first, so that read backwards each folder stands behind all below it and
// siblings stand in their order.
std::vector<ViewItemFreeFolder*> ViewItemFreeFolder::Below() {
    std::vector<ViewItemFreeFolder*> found;
    std::vector<ViewItemFreeFolder*> ahead{this};
    while (!ahead.empty()) {
        auto* const folder = ahead.back();
        ahead.pop_back();
        found.push_back(folder);
        for (auto const& child : folder->children_)
            ahead.push_back(child.get());
    }
    return found;
}

void ViewItemFreeFolder::RaiseChanged() {
    context_.Raise(&zbBrowserSignalManager::ViewItemChanged, this);
}

} // namespace zbbrowser
