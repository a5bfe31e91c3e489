// SPDX-License-Identifier: MIT
// The folder itself: its place among the folders, its marks and what is listed of it.
#include "items/old/zbBrowserViewItemFreeFolder.h"

#include "filtersort/zbBrowserSortHandler.h"
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

#include <algorithm>
#include <utility>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::WalkFolders;

zbBrowserViewItemFreeFolder::zbBrowserViewItemFreeFolder(OldViewContext& context,
                                                         zbBrowserViewItemFreeFolder* owner,
                                                         zbString name, bool expanded)
    : context_(context)
    , name_(std::move(name))
    , parent_(owner)
    , owner_(owner)
    , place_(owner == nullptr ? nullptr : &owner->place_, context.NextFolderNumber())
    , expanded_(expanded)
    , showWhenEmpty_(owner == nullptr || owner->showWhenEmpty_) {
    context_.RegisterFolder(*this);
}

zbBrowserViewItemFreeFolder::~zbBrowserViewItemFreeFolder() {
    DeleteChildFolders();
    if (alive_)
        context_.UnregisterFolder(*this);
}

zbIBrowserView* zbBrowserViewItemFreeFolder::GetView() const {
    return GetViewImpl();
}

zbBrowserView* zbBrowserViewItemFreeFolder::GetViewImpl() const {
    return &context_.OldView();
}

std::uint64_t zbBrowserViewItemFreeFolder::GetChildrenCount() const {
    return holder_ == nullptr ? 0 : holder_->CountViewItems(false);
}

void zbBrowserViewItemFreeFolder::Show() {
    CallScope const scope(context_.Lifetime());
    hidden_ = false;
    context_.Raise(&zbBrowserSignalManager::ViewItemShown, this);
}

zbBrowserFreeFolderContentHolder& zbBrowserViewItemFreeFolder::RequireHolder() {
    if (holder_ == nullptr) {
        holder_ = std::make_unique<zbBrowserFreeFolderContentHolder>(*this);
        context_.NoteHolderMade();
    }
    return *holder_;
}

// Child folders

void zbBrowserViewItemFreeFolder::CreateChildFolder(zbString const& name) {
    children_.Reserve(1);
    auto owned = std::make_unique<zbBrowserViewItemFreeFolder>(context_, this, name);
    auto& child = *owned;
    child.slot_ = children_.Append(std::move(owned));
    childrenSorted_ = false;

    context_.Raise(&zbBrowserSignalManager::ViewItemCreated, &child);
    if (IsAlive())
        context_.Raise(&zbBrowserSignalManager::FreeFolderCreated, this);
    if (IsAlive())
        RaiseChanged();
}

void zbBrowserViewItemFreeFolder::DeleteChildFolder(zbBrowserViewItemFreeFolder& folder,
                                                    bool deleteContent) {
    if (!deleteContent && folder.HasChildren())
        throw "Cannot delete non-empty folder. Use deletecontent flag or delete all content first.";
    if (folder.owner_ != this)
        throw "Unable to find children folder in a folder";
    if (deleteContent) {
        folder.DeleteChildFolders();
        folder.RetireHolder();
    }
    if (!folder.IsContentEmpty())
        throw "Attempt to delete non-empty free folder object";

    context_.Raise(&zbBrowserSignalManager::ViewItemDeleted, &folder);
    if (folder.IsAlive()) {
        RetireSubtree(folder);
        if (children_.WantsCompaction())
            children_.Compact([](zbBrowserViewItemFreeFolder& f, auto, auto to) { f.slot_ = to; });
    }
    if (IsAlive())
        RaiseChanged();
}

void zbBrowserViewItemFreeFolder::DeleteChildFolders() {
    while (auto* const last = children_.Last())
        RetireSubtree(*last);
}

// Goes down to a folder without child folders, takes it out, and goes on from the folder that held
// it. That needs neither recursion nor memory.
void zbBrowserViewItemFreeFolder::RetireSubtree(zbBrowserViewItemFreeFolder& top) {
    auto* folder = &top;
    for (;;) {
        auto* const below = folder->children_.Last();
        if (below != nullptr) {
            folder = below;
            continue;
        }
        auto* const owner = folder->owner_;
        auto const isTop = folder == &top;
        auto owned = owner->children_.Take(folder->slot_);
        owner->childrenSorted_ = false;
        folder->Die();
        folder->context_.Lifetime().Retire(std::move(owned));
        if (isTop)
            break;
        folder = owner;
    }
}

void zbBrowserViewItemFreeFolder::LetGo() {
    DeleteChildFolders();
    Die();
}

void zbBrowserViewItemFreeFolder::Die() {
    alive_ = false;
    owner_ = nullptr;
    context_.UnregisterFolder(*this);
    RetireHolder();
}

void zbBrowserViewItemFreeFolder::RetireHolder() {
    if (holder_ == nullptr)
        return;
    holder_->MarkDead();
    context_.Folders().Remove(*this);
    context_.NoteHolderGone();
    context_.Lifetime().Retire(std::move(holder_));
}

// The folder stays in the index with the sources that it had: it may stand there without need.
void zbBrowserViewItemFreeFolder::ReplaceHolder(
    std::unique_ptr<zbBrowserFreeFolderContentHolder> holder) {
    holder_.swap(holder);
    if (holder == nullptr) {
        context_.NoteHolderMade();
        return;
    }
    holder->MarkDead();
    context_.Lifetime().Retire(std::move(holder));
}

zbIBrowserViewItemFreeFolder*
zbBrowserViewItemFreeFolder::FindChildFreeFolder(zbString const& name) const {
    auto const& slots = children_.Slots();
    auto const found = std::find_if(slots.begin(), slots.end(), [&](FolderPtr const& child) {
        return child != nullptr && StrICmp(child->GetName(), name.c_str()) == 0;
    });
    return found == slots.end() ? nullptr : found->get();
}

// Creation order always comes first to last, whatever the direction.
template <class Visit>
void zbBrowserViewItemFreeFolder::ForEachChild(bool sorted, bool ascending, Visit visit) {
    if (keepChildrenInOrder_ || !sorted) {
        for (auto const& child : children_.Slots()) {
            if (child != nullptr)
                visit(*child);
        }
        return;
    }
    SortChildren();
    auto const visitFolder = [&](zbIBrowserViewItemFreeFolder* child) { visit(*child); };
    if (ascending)
        std::for_each(sortedChildren_.begin(), sortedChildren_.end(), visitFolder);
    else
        std::for_each(sortedChildren_.rbegin(), sortedChildren_.rend(), visitFolder);
}

// A copy is sorted, since the order of creation is still asked for.
void zbBrowserViewItemFreeFolder::SortChildren() {
    if (childrenSorted_)
        return;
    sortedChildren_.clear();
    sortedChildren_.reserve(children_.Count());
    for (auto const& child : children_.Slots()) {
        if (child != nullptr)
            sortedChildren_.push_back(child.get());
    }
    zbBrowserSortHandler::SortFreeFolders(sortedChildren_);
    childrenSorted_ = true;
}

bool zbBrowserViewItemFreeFolder::GetChildFreeFolders(
    std::vector<zbIBrowserViewItemFreeFolder*>& out, bool sorted, bool ascending) {
    out.clear();
    out.reserve(children_.Count());
    ForEachChild(sorted, ascending,
                 [&](zbIBrowserViewItemFreeFolder& child) { out.push_back(&child); });
    return true;
}

void zbBrowserViewItemFreeFolder::GetChildFolderItems(std::vector<zbIBrowserViewItem*>& out,
                                                      bool sorted, bool ascending) {
    ForEachChild(sorted, ascending, [&](zbIBrowserViewItemFreeFolder& child) {
        if (!child.IsHidden())
            out.push_back(&child);
    });
}

void zbBrowserViewItemFreeFolder::GetChildren(std::vector<zbIBrowserViewItem*>& out) {
    out.clear();
    if (auto* const handler = context_.OldView().GetSortHandlerPtr())
        handler->GetChildren(*this, out);
}

// Marks

void zbBrowserViewItemFreeFolder::SetIconShowsData(bool show, bool recursive) {
    CallScope const scope(context_.Lifetime());
    iconShowsData_ = show;
    iconRecursive_ = recursive;
    RaiseChanged();
}

void zbBrowserViewItemFreeFolder::SetCaptionShowsCount(bool show, bool recursive) {
    CallScope const scope(context_.Lifetime());
    captionShowsCount_ = show;
    captionRecursive_ = recursive;
    RaiseChanged();
}

void zbBrowserViewItemFreeFolder::SetTextBold(bool bold) {
    if (textBold_ == bold)
        return;
    CallScope const scope(context_.Lifetime());
    textBold_ = bold;
    RaiseChanged();
}

void zbBrowserViewItemFreeFolder::SetTextItalic(bool italic) {
    if (textItalic_ == italic)
        return;
    CallScope const scope(context_.Lifetime());
    textItalic_ = italic;
    RaiseChanged();
}

// A folder is written before the folders below it and signals after them.
void zbBrowserViewItemFreeFolder::SetShowWhenEmpty(bool show, bool recursive) {
    CallScope const scope(context_.Lifetime());
    auto const write = [&](zbBrowserViewItemFreeFolder& folder) {
        folder.showWhenEmpty_ = show;
        return true;
    };
    if (recursive) {
        WalkFolders(*this, write, [](zbBrowserViewItemFreeFolder& f) { f.RaiseChanged(); });
        return;
    }
    write(*this);
    RaiseChanged();
}

void zbBrowserViewItemFreeFolder::SetAttachedObject(void* object) {
    if (object != nullptr)
        attachedObject_ = object;
}

void zbBrowserViewItemFreeFolder::RaiseChanged() {
    context_.Raise(&zbBrowserSignalManager::ViewItemChanged, this);
}

bool zbBrowserViewItemFreeFolder::Refuse(zbString const& message) {
    SetError(message);
    return false;
}
