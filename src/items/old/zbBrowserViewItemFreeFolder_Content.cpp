// SPDX-License-Identifier: MIT
// The lists and trees of a folder.
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

#include <algorithm>
#include <functional>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::WalkFolders;

using Simple = zbIBrowserDataSourceSimple;
using Tree = zbIBrowserDataSourceHierarchical;

// Lists and trees

bool zbBrowserViewItemFreeFolder::CreateList(Simple* source) {
    CallScope const scope(context_.Lifetime());
    auto& holder = RequireHolder();
    return holder.CreateList(source) || Refuse(holder.LastListMessage());
}

bool zbBrowserViewItemFreeFolder::DeleteList(Simple* source) {
    CallScope const scope(context_.Lifetime());
    auto* const holder = holder_.get();
    return holder == nullptr || holder->DeleteList(source) || Refuse(holder->LastListMessage());
}

bool zbBrowserViewItemFreeFolder::DeleteListRecursive(Simple* source) {
    CallScope const scope(context_.Lifetime());
    bool any = false;
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder& folder) {
        any = (folder.holder_ != nullptr && folder.holder_->DeleteList(source)) || any;
        return true;
    });
    return any;
}

bool zbBrowserViewItemFreeFolder::CreateTree(Tree* tree) {
    CallScope const scope(context_.Lifetime());
    auto& holder = RequireHolder();
    return holder.WithTree().AddTree(tree) || Refuse(holder.LastTreeMessage());
}

bool zbBrowserViewItemFreeFolder::DeleteTree(Tree* tree) {
    CallScope const scope(context_.Lifetime());
    auto* const holder = holder_.get();
    return holder == nullptr || holder->WithTree().RemoveTree(tree) ||
           Refuse(holder->LastTreeMessage());
}

bool zbBrowserViewItemFreeFolder::DeleteTreeRecursive(Tree* tree) {
    CallScope const scope(context_.Lifetime());
    bool any = false;
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder& folder) {
        any = (folder.holder_ != nullptr && folder.holder_->WithTree().RemoveTree(tree)) || any;
        return true;
    });
    return any;
}

bool zbBrowserViewItemFreeFolder::GetLists(std::vector<Simple*>& out) const {
    out.clear();
    if (holder_ == nullptr)
        return false;
    out = holder_->Lists();
    return true;
}

// A folder that never showed anything also ends the way down.
bool zbBrowserViewItemFreeFolder::GetAllLists(std::vector<Simple*>& out, bool recursive) const {
    CallScope const scope(context_.Lifetime());
    out.clear();
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder const& folder) {
        if (folder.holder_ == nullptr)
            return false;
        folder.holder_->AppendAllLists(out);
        return recursive;
    });
    return true;
}

Simple* zbBrowserViewItemFreeFolder::FindList(char const* name) const {
    CallScope const scope(context_.Lifetime());
    return holder_ == nullptr ? nullptr : holder_->FindList(name);
}

Simple* zbBrowserViewItemFreeFolder::FindList(Simple const* source) const {
    return holder_ == nullptr ? nullptr : holder_->FindList(source);
}

Simple* zbBrowserViewItemFreeFolder::FindDataSourceSimple(char const* name) const {
    CallScope const scope(context_.Lifetime());
    return holder_ == nullptr ? nullptr : holder_->FindDataSource(name);
}

Tree* zbBrowserViewItemFreeFolder::FindTree(char const* name) const {
    CallScope const scope(context_.Lifetime());
    return holder_ == nullptr ? nullptr : holder_->WithTree().FindTree(name);
}

bool zbBrowserViewItemFreeFolder::GetTrees(std::vector<Tree*>& out) const {
    out.clear();
    if (holder_ == nullptr)
        return false;
    out = holder_->WithTree().Trees();
    return true;
}

bool zbBrowserViewItemFreeFolder::GetTreeParentChildRecords(
    std::vector<zbbrowser::TreeParentChildRecord>&) const {
    return false;
}

bool zbBrowserViewItemFreeFolder::GetTreeTopLevelRecords(
    std::vector<zbbrowser::TreeTopLevelRecord>&) const {
    return false;
}

zbIBrowserDataSource* zbBrowserViewItemFreeFolder::FindDataSource(zbString const&) const {
    return nullptr;
}

bool zbBrowserViewItemFreeFolder::GetAllDataSources(std::vector<zbIBrowserDataSource*>& out,
                                                    bool recursive) const {
    CallScope const scope(context_.Lifetime());
    out.clear();
    std::vector<Simple*> lists;
    GetAllLists(lists, recursive);
    out.assign(lists.begin(), lists.end());
    std::sort(out.begin(), out.end(), std::less<>());
    out.erase(std::unique(out.begin(), out.end()), out.end());
    std::stable_sort(out.begin(), out.end(), [](auto const* a, auto const* b) {
        return StrICmp(a->GetName(), b->GetName()) < 0;
    });
    return holder_ != nullptr;
}

bool zbBrowserViewItemFreeFolder::HasDataSource(zbIBrowserDataSource* source) const {
    std::vector<zbIBrowserDataSource*> sources;
    GetAllDataSources(sources, false);
    return std::find(sources.begin(), sources.end(), source) != sources.end();
}

// Types of trees

bool zbBrowserViewItemFreeFolder::GetChildTypes(Tree* tree, std::vector<Simple*>& out) const {
    CallScope const scope(context_.Lifetime());
    out.clear();
    return holder_ != nullptr && holder_->WithTree().GetChildTypes(tree, out);
}

bool zbBrowserViewItemFreeFolder::IsChildTypeShown(Tree* tree, Simple* type, bool& out) const {
    CallScope const scope(context_.Lifetime());
    return holder_ != nullptr && holder_->WithTree().IsTypeShown(tree, type, out);
}

bool zbBrowserViewItemFreeFolder::IsChildTypeGrouped(Tree* tree, Simple* type, bool& out) const {
    CallScope const scope(context_.Lifetime());
    return holder_ != nullptr && holder_->WithTree().IsTypeGrouped(tree, type, out);
}

bool zbBrowserViewItemFreeFolder::SetListGrouped(Simple* source, bool grouped) {
    CallScope const scope(context_.Lifetime());
    auto& holder = RequireHolder();
    return holder.SetListGrouped(source, grouped) || Refuse(holder.LastListMessage());
}

bool zbBrowserViewItemFreeFolder::SetChildTypeGrouped(Tree* tree, Simple* type, bool grouped) {
    CallScope const scope(context_.Lifetime());
    auto& holder = RequireHolder();
    return holder.WithTree().SetTypeGrouped(tree, type, grouped) ||
           Refuse(holder.LastTreeMessage());
}

bool zbBrowserViewItemFreeFolder::SetTreeGrouped(Tree* tree, bool grouped) {
    CallScope const scope(context_.Lifetime());
    auto& holder = RequireHolder();
    return holder.WithTree().SetTreeGrouped(tree, grouped) || Refuse(holder.LastTreeMessage());
}

bool zbBrowserViewItemFreeFolder::SetShowChildType(Tree* tree, Simple* type, bool show) {
    if (tree == nullptr || type == nullptr)
        return false;
    CallScope const scope(context_.Lifetime());
    auto& holder = RequireHolder();
    return holder.WithTree().SetTypeShown(tree, type, show) || Refuse(holder.LastTreeMessage());
}

// Settings

bool zbBrowserViewItemFreeFolder::SetGroupLeafs(bool group) {
    if (busy_)
        return false;
    auto const enter = [](zbBrowserViewItemFreeFolder& folder) {
        return !folder.busy_ && (folder.busy_ = true);
    };
    auto const leave = [group](zbBrowserViewItemFreeFolder& folder) {
        if (folder.groupLeafs_ != group) {
            folder.groupLeafs_ = group;
            folder.MoveContent(group);
        }
        folder.busy_ = false;
    };
    WalkFolders(*this, enter, leave);
    return true;
}

void zbBrowserViewItemFreeFolder::MoveContent(bool grouped) {
    auto* const holder = holder_.get();
    if (holder == nullptr)
        return;
    for (auto* const list : holder->Lists()) {
        if (holder->IsAlive() && holder->FindList(list) != nullptr)
            holder->SetListGrouped(list, grouped);
    }
    for (auto* const tree : holder->WithTree().Trees()) {
        if (holder->IsAlive() && holder->WithTree().HasTree(tree))
            holder->WithTree().SetTreeGrouped(tree, grouped);
    }
}

bool zbBrowserViewItemFreeFolder::SetStyle(bool style) {
    if (busy_)
        return false;
    WalkFolders(*this, [style](zbBrowserViewItemFreeFolder& folder) {
        if (folder.busy_)
            return false;
        folder.style_ = style;
        return true;
    });
    return true;
}

bool zbBrowserViewItemFreeFolder::SetShowEmptyContainers(bool show) {
    if (busy_)
        return false;
    if (showEmptyContainers_ == show)
        return true;
    if (!groupLeafs_)
        return Refuse("Cannot show empty folders when grouping is disabled");
    auto const lists = holder_ == nullptr ? std::vector<Simple*>() : holder_->Lists();
    auto const trees = holder_ == nullptr ? std::vector<Tree*>() : holder_->WithTree().Trees();
    auto fresh = std::make_unique<zbBrowserFreeFolderContentHolder>(*this);
    fresh->ForEach([show](zbBrowserFreeFolderContent& c) { c.SetShowEmptyGroups(show); });
    for (auto* const list : lists)
        fresh->ListContent().RecordList(list);
    for (auto* const tree : trees)
        fresh->WithTree().RecordTree(tree);

    busy_ = true;
    showEmptyContainers_ = show;
    ReplaceHolder(std::move(fresh));
    ConnectRecorded(lists, trees);
    busy_ = false;
    return true;
}

// All of them have been recorded before the first is connected: a slot may take away those whose
// turn has not come, and free them.
void zbBrowserViewItemFreeFolder::ConnectRecorded(std::vector<Simple*> const& lists,
                                                  std::vector<Tree*> const& trees) {
    auto& holder = *holder_;
    auto& content = holder.ListContent();
    for (auto* const list : lists)
        content.ConnectRecordedList(list);
    for (auto* const tree : trees) {
        if (holder.WithTree().HasTree(tree))
            holder.WithTree().AddTree(tree);
    }
}

bool zbBrowserViewItemFreeFolder::SetListCaption(Simple* source, char const* caption) {
    if (busy_ || holder_ == nullptr)
        return false;
    busy_ = true;
    holder_->ForEach(
        [&](zbBrowserFreeFolderContent& c) { c.SetGroupCaption(source, zbString(caption)); });
    busy_ = false;
    return true;
}

// Items

bool zbBrowserViewItemFreeFolder::GetAllViewItems(std::vector<zbIBrowserViewItem*>& out,
                                                  bool recursive) const {
    out.clear();
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder const& folder) {
        if (folder.holder_ != nullptr)
            folder.holder_->AppendAllViewItems(out, recursive);
        return recursive;
    });
    return !out.empty();
}

std::size_t zbBrowserViewItemFreeFolder::CountAllViewItems() const {
    std::size_t count = 0;
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder const& folder) {
        if (folder.holder_ != nullptr)
            count += folder.holder_->CountViewItems(true);
        return true;
    });
    return count;
}

void zbBrowserViewItemFreeFolder::ApplyFilter() {
    WalkFolders(*this, [](zbBrowserViewItemFreeFolder& folder) {
        folder.RequireHolder().ForEach([](zbBrowserFreeFolderContent& c) { c.ApplyFilter(); });
        return true;
    });
}

void zbBrowserViewItemFreeFolder::SelectChildren(bool select) {
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder& folder) {
        if (&folder != this)
            context_.SelectViewItem(folder, select, false);
        if (folder.holder_ != nullptr)
            folder.holder_->ForEach([&](zbBrowserFreeFolderContent& c) { c.SelectAll(select); });
        return true;
    });
}

bool zbBrowserViewItemFreeFolder::HasChildren() const {
    return holder_ != nullptr && (!children_.IsEmpty() || holder_->HasVisibleItems());
}

bool zbBrowserViewItemFreeFolder::IsContentEmpty() const {
    return children_.IsEmpty() &&
           (holder_ == nullptr || (!holder_->HasTrees() && !holder_->HasLists()));
}

// A folder that never showed anything is empty, whatever is below it.
bool zbBrowserViewItemFreeFolder::IsDataEmpty(bool recursive) const {
    CallScope const scope(context_.Lifetime());
    bool empty = true;
    auto const hasItems = [this](Simple* source) {
        std::vector<zbIBrowserDataItemSimple*> items;
        return !context_.Handlers().IsDataSourceFiltered(source) && source->GetDataItems(items) &&
               !items.empty();
    };
    WalkFolders(*this, [&](zbBrowserViewItemFreeFolder const& folder) {
        if (!empty || folder.holder_ == nullptr)
            return false;
        empty = !folder.holder_->AnySource(hasItems);
        return recursive;
    });
    return empty;
}
