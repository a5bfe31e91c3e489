// SPDX-License-Identifier: MIT
#include "items/old/zbBrowserFreeFolderContent.h"

#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/LongOperation.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbBrowserView.h>

#include <algorithm>
#include <functional>
#include <new>

using zbbrowser::detail::BeginLongOperation;
using zbbrowser::detail::DetachedLeaves;
using zbbrowser::detail::OldViewContext;

zbBrowserFreeFolderContent::zbBrowserFreeFolderContent(zbBrowserFreeFolderContentHolder& holder)
    : holder_(holder) {
}

zbBrowserFreeFolderContent::~zbBrowserFreeFolderContent() = default;

OldViewContext& zbBrowserFreeFolderContent::Context() const {
    return Folder().Context();
}

zbBrowserViewItemFreeFolder& zbBrowserFreeFolderContent::Folder() const {
    return holder_.Folder();
}

// What a strategy has no use for.

bool zbBrowserFreeFolderContent::OnDataItemCreated(zbIBrowserDataItemSimple*, Items&, Items&) {
    return false;
}
bool zbBrowserFreeFolderContent::ConnectList(Simple*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::DisconnectList(Simple*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::RefreshTreeItems(Tree*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::RefreshListItems(Simple*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::RebuildList(Simple*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::RedrawList(Simple*) {
    return false;
}
bool zbBrowserFreeFolderContent::RedrawTree(Tree*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::RebuildTree(Tree*, bool) {
    return false;
}
void zbBrowserFreeFolderContent::OnDataItemDeletedInTree(zbIBrowserDataItemHierarchical*) {
}
void zbBrowserFreeFolderContent::OnDataItemDeleted(zbIBrowserDataItemSimple*, Simple const*, bool) {
}
bool zbBrowserFreeFolderContent::SetGroupCaption(Simple*, zbString const&) {
    return true;
}
bool zbBrowserFreeFolderContent::OnReferenceCreated(zbIBrowserDataItemHierarchical*, Items&,
                                                    Items&) {
    return false;
}
bool zbBrowserFreeFolderContent::ConnectTree(Tree*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::DisconnectTree(Tree*, bool) {
    return false;
}
bool zbBrowserFreeFolderContent::ConnectChildType(Tree*, Simple*) {
    return false;
}
void zbBrowserFreeFolderContent::DisconnectChildType(Tree*, Simple*) {
}
void zbBrowserFreeFolderContent::GetViewItemsFromDataSet(HierarchicalSet const&, Items&, Items&) {
}
void zbBrowserFreeFolderContent::GetViewItemsFromItem(zbIBrowserDataItemHierarchical*, Items&,
                                                      Items&) {
}
void zbBrowserFreeFolderContent::GetViewItems(SimpleItems const&, Items&, Items&) {
}
void zbBrowserFreeFolderContent::GetViewItems(zbIBrowserDataItemSimple*, Items&, Items&) {
}
void zbBrowserFreeFolderContent::OnReferenceChanged(zbIBrowserDataItemHierarchical*,
                                                    zbIBrowserDataItemHierarchical*) {
}
void zbBrowserFreeFolderContent::GetAllViewItems(Items&, bool) const {
}
bool zbBrowserFreeFolderContent::GetShowEmptyGroups() const {
    return false;
}
bool zbBrowserFreeFolderContent::HasRowsOf(Simple const*) const {
    return false;
}
bool zbBrowserFreeFolderContent::HasVisibleItems() const {
    return false;
}
bool zbBrowserFreeFolderContent::GetSortedItems(Items&, bool, bool) {
    return IsAlive();
}
zbIBrowserViewItem* zbBrowserFreeFolderContent::FindViewItem(zbIBrowserViewItem const*) const {
    return nullptr;
}
zbIBrowserViewItem* zbBrowserFreeFolderContent::FindTreeItem(zbIBrowserViewItem const*,
                                                             bool) const {
    return nullptr;
}
zbIBrowserViewItem* zbBrowserFreeFolderContent::FindGroup(zbIBrowserViewItem const*, bool) const {
    return nullptr;
}
void zbBrowserFreeFolderContent::SetSortingException(Simple*, int) {
}
void zbBrowserFreeFolderContent::SetCreateExpandedItem(Simple*, int) {
}
bool zbBrowserFreeFolderContent::SetShowEmptyGroups(bool) {
    return false;
}
void zbBrowserFreeFolderContent::DeleteAll() {
}
void zbBrowserFreeFolderContent::DeleteAllDependent() {
    DeleteAll();
}
void zbBrowserFreeFolderContent::OnViewItemRemoved(zbIBrowserViewItem*) {
}
bool zbBrowserFreeFolderContent::ApplyFilter() {
    return true;
}
void zbBrowserFreeFolderContent::SetUnsorted() {
}
void zbBrowserFreeFolderContent::SelectAll(bool) {
}
void zbBrowserFreeFolderContent::ResetExpansion() {
}
void zbBrowserFreeFolderContent::SetExpandedAll(bool, bool, bool) {
}
void zbBrowserFreeFolderContent::SetExpandedList(bool, Simple*, bool) {
}
void zbBrowserFreeFolderContent::SetTreeExpanded(Tree*, bool, bool) {
}
void zbBrowserFreeFolderContent::BuildNextLevel(bool, bool) {
}
void zbBrowserFreeFolderContent::MarkDead() {
    alive_ = false;
    lists_.Clear(); // A loop that is running must not ask them any more
    treeSettings_.clear();
}

std::size_t zbBrowserFreeFolderContent::CountViewItems(bool recursive) const {
    Items items;
    GetAllViewItems(items, recursive);
    return items.size();
}

// Lists

bool zbBrowserFreeFolderContent::AddList(Simple* source) {
    return RecordList(source) && ConnectRecordedList(source);
}

bool zbBrowserFreeFolderContent::RecordList(Simple* source) {
    if (source == nullptr || lists_.Contains(source))
        return false;
    NoteSource(source);
    return lists_.Add(source);
}

bool zbBrowserFreeFolderContent::ConnectRecordedList(Simple* source) {
    if (!lists_.Contains(source) || !ConnectList(source, false))
        return false;
    RaiseContentChanged();
    return true;
}

bool zbBrowserFreeFolderContent::AddLists(std::vector<Simple*> const& sources) {
    return std::all_of(sources.begin(), sources.end(),
                       [this](Simple* source) { return IsAlive() && AddList(source); });
}

// Where there is no memory to take the rows out, the list comes back behind the others, so that it
// can be removed later.
bool zbBrowserFreeFolderContent::RemoveList(Simple* source) {
    lists_.Reserve(1);
    if (!lists_.Remove(source))
        return false;
    bool disconnected = false;
    try {
        disconnected = DisconnectList(source, false);
    } catch (std::bad_alloc const&) {
        if (IsAlive() && HasRowsOf(source))
            lists_.Add(source);
        throw;
    }
    if (IsAlive() && !holder_.IsConcernedWith(source))
        Context().Folders().Remove(source, Folder());
    if (disconnected)
        RaiseContentChanged();
    return disconnected;
}

zbBrowserFreeFolderContent::Simple* zbBrowserFreeFolderContent::FindList(char const* name) const {
    return lists_.FindIf([&](Simple* list) { return StrICmp(list->GetName(), name) == 0; });
}

// Passes over all lists and trees. They run over copies, and what a slot has taken out meanwhile is
// passed over.

bool zbBrowserFreeFolderContent::ConnectAll(bool silent) {
    auto const lists = lists_.Snapshot();
    for (auto* const tree : Trees()) {
        if (HasTree(tree) && !ConnectTree(tree, silent))
            return false;
    }
    for (auto* const list : lists) {
        if (lists_.Contains(list) && !ConnectList(list, silent))
            return false;
    }
    return true;
}

bool zbBrowserFreeFolderContent::RefreshAll() {
    for (auto* const list : lists_.Snapshot()) {
        if (lists_.Contains(list) && !RefreshListItems(list, false))
            return false;
    }
    for (auto* const tree : Trees()) {
        if (HasTree(tree) && !RefreshTreeItems(tree, false))
            return false;
    }
    return true;
}

void zbBrowserFreeFolderContent::RebuildDirty() {
    {
        auto const bracket = BeginLongOperation(Context());
        for (auto* const list : lists_.Snapshot()) {
            if (lists_.Contains(list) && list->IsDirty())
                RebuildList(list, false);
        }
        for (auto* const tree : Trees()) {
            if (HasTree(tree) && tree->IsDirty())
                RebuildTree(tree, false);
        }
    }
    RaiseContentChanged();
}

void zbBrowserFreeFolderContent::RedrawDirty() {
    std::vector<Simple*> redrawn;
    {
        auto const bracket = BeginLongOperation(Context());
        for (auto* const list : lists_.Snapshot()) {
            if (!lists_.Contains(list) || !list->IsDirty())
                continue;
            RedrawList(list);
            redrawn.push_back(list);
        }
        for (auto* const tree : Trees()) {
            if (HasTree(tree) && tree->IsDirty())
                RedrawTree(tree, false);
        }
    }
    for (auto* const list : redrawn) {
        if (lists_.Contains(list))
            list->ClearDirty(false);
    }
    RaiseContentChanged();
}

void zbBrowserFreeFolderContent::GetAllDataSources(std::vector<Simple*>& out) {
    out = lists_.Snapshot();
    for (auto* const tree : Trees()) {
        std::vector<Simple*> types;
        if (HasTree(tree))
            GetChildTypes(tree, types);
        out.insert(out.end(), types.begin(), types.end());
    }
    std::sort(out.begin(), out.end(), std::greater<>());
    out.erase(std::unique(out.begin(), out.end()), out.end());
}

void zbBrowserFreeFolderContent::NoteSource(zbIBrowserDataSource const* source) const {
    Context().Folders().Add(source, Folder());
}

// Signals

void zbBrowserFreeFolderContent::RaiseChanged(zbIBrowserViewItem& item) const {
    Context().Raise(&zbBrowserSignalManager::ViewItemChanged, &item);
}

void zbBrowserFreeFolderContent::RaiseContentChanged() const {
    if (IsAlive())
        Context().Raise(&zbBrowserSignalManager::ViewContentChanged, &Context().View());
}

void zbBrowserFreeFolderContent::DeleteItems(DetachedLeaves& leaves, bool silent) const {
    Context().OldView().DeleteViewItems(leaves, silent);
}

void zbBrowserFreeFolderContent::SignalFolderChain() const {
    auto const bracket = BeginLongOperation(Context());
    std::vector<zbBrowserViewItemFreeFolder*> chain;
    for (auto* folder = &Folder(); folder != nullptr; folder = folder->Owner())
        chain.push_back(folder);
    for (auto* const folder : chain) {
        if (folder->IsAlive() && folder->IconShowsDataOrRecursive())
            RaiseChanged(*folder);
    }
}
