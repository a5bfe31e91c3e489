// SPDX-License-Identifier: MIT
// Data events and rebuilds.
#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "selection/SelectionBase.h"
#include "view/EventWalk.h"
#include "view/LongOperation.h"
#include "view/zbBrowserView_Guarded.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/zbBrowserView.h>

#include <algorithm>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::DetachedLeaves;
using zbbrowser::detail::HostBracket;
using zbbrowser::detail::NestedLongOperations;
using zbbrowser::detail::VisitContents;
using zbbrowser::detail::WalkContents;
using zbbrowser::detail::WalkFolders;

using Items = std::vector<zbIBrowserViewItem*>;

// Events on single items

template <class DataItem>
void zbBrowserView::ReportCreated(DataItem* item, bool flag) {
    Guarded([&] {
        Items created;
        Items parents;
        CreateDataDependentViewItems(item, created, parents, flag);
        RaiseChanged(parents);
    });
}

void zbBrowserView::OnDataItemCreated(zbIBrowserDataItemSimple* const item, bool flag) {
    ReportCreated(item, flag);
}

void zbBrowserView::OnDataItemCreated(zbIBrowserDataItemHierarchical* const item, bool flag) {
    ReportCreated(item, flag);
}

template <class DataItem>
void zbBrowserView::ReportDeleted(DataItem* item) {
    Guarded([&] {
        Items found;
        Items parents;
        GetDataDependentViewItems(item, found, parents);
        for (auto* const viewItem : found) {
            auto const* const leaf = context_->FindLeaf(viewItem);
            if (leaf == nullptr)
                continue;
            auto& folder = *FindFreeFolder(leaf->GetParentFreeFolder());
            folder.RequireHolder().ForEach(
                [&](zbBrowserFreeFolderContent& content) { content.OnViewItemRemoved(viewItem); });
        }
    });
}

void zbBrowserView::OnDataItemDeleted(zbIBrowserDataItemSimple* const item) {
    ReportDeleted(item);
}

void zbBrowserView::OnDataItemDeleted(zbIBrowserDataItemHierarchical* const item) {
    ReportDeleted(item);
}

template <class Collect>
void zbBrowserView::ReportUpdated(Collect collect) {
    Guarded([&] {
        Items found;
        Items parents;
        collect(found, parents);
        for (auto const* const viewItem : found) {
            if (auto const* const leaf = context_->FindLeaf(viewItem); leaf != nullptr)
                FindFreeFolder(leaf->GetParentFreeFolder())
                    ->RequireHolder()
                    .NoGrouping()
                    .NoteChangedValues(*leaf);
        }
        RaiseChanged(parents);
    });
}

void zbBrowserView::OnDataItemUpdated(zbIBrowserDataItemSimple* const item) {
    ReportUpdated(
        [&](Items& found, Items& parents) { GetDataDependentViewItems(item, found, parents); });
}

void zbBrowserView::OnDataItemUpdated(zbIBrowserDataItemSimple* const item,
                                      zbIBrowserDataSourceSimple const* source) {
    ReportUpdated(
        [&](Items& found, Items& parents) { AppendRowsOf(item, source, found, parents); });
}

void zbBrowserView::OnDataItemUpdated(zbIBrowserDataItemHierarchical* const item) {
    ReportUpdated(
        [&](Items& found, Items& parents) { GetDataDependentViewItems(item, found, parents); });
}

void zbBrowserView::OnDataItemReparented(zbIBrowserDataItemHierarchical* const item,
                                         zbIBrowserDataItemHierarchical* const newParent) {
    Guarded([&] {
        WalkContents(*root_, [&](zbBrowserFreeFolderContentHolder& holder) {
            holder.WithTree().OnReferenceChanged(item, newParent);
        });
    });
}

// Rebuilds

void zbBrowserView::OnDataItemsRebuildAll() {
    Guarded([&] {
        context_->Selection().ClearSelected();
        WalkContents(*root_, [](zbBrowserFreeFolderContentHolder& holder) {
            holder.ForEach([](zbBrowserFreeFolderContent& c) { c.DeleteAllDependent(); });
        });
        CreateDataDependentViewItems(true);
        ApplyCurrentFilter();
    });
}

void zbBrowserView::ApplyCurrentFilter() {
    std::vector<zbIBrowserDataSourceSimple*> sources;
    GetCurrentFilter(sources);
    if (sources.empty())
        return;
    context_->Selection().ClearAll();
    root_->ApplyFilter();
    context_->Raise(&zbBrowserSignalManager::ViewContentChanged, this);
    context_->Raise(&zbBrowserSignalManager::ViewChanged, this);
}

void zbBrowserView::OnDataSourceRenumbered(zbIBrowserDataSourceSimple*) {
    SetAllDataItemListsUnsorted();
}

void zbBrowserView::OnDataSourceRenumbered(zbIBrowserDataSourceHierarchical*) {
    OnDataSourceRenumbered(static_cast<zbIBrowserDataSourceSimple*>(nullptr));
}

void zbBrowserView::OnAllDirtyDataItemsRebuild() {
    CallScope const scope(context_->Lifetime());
    RefreshFolders(*root_);
}

void zbBrowserView::RefreshFolders(zbBrowserViewItemFreeFolder& top) {
    WalkContents(top, [](zbBrowserFreeFolderContentHolder& holder) {
        holder.ForEach([](zbBrowserFreeFolderContent& c) { c.RefreshAll(); });
    });
}

// Child folders come before their parent, and the rows of a folder and of all folders below it are
// refreshed after its structure: a row is thus refreshed once for each folder above it as well.
void zbBrowserView::OnAllDirtyDataListsRebuild() {
    CallScope const scope(context_->Lifetime());
    NestedLongOperations operations(*context_);
    HostBracket const endAll([&] { operations.EndAll(); });
    auto const enter = [&](zbBrowserViewItemFreeFolder& folder) {
        if (folder.IsBusy())
            return false;
        folder.SetBusy(true);
        operations.Begin();
        return true;
    };
    auto const leave = [&](zbBrowserViewItemFreeFolder& folder) {
        folder.RequireHolder().ForEach([](zbBrowserFreeFolderContent& c) { c.RebuildDirty(); });
        folder.SetBusy(false);
        if (folder.IsAlive())
            RefreshFolders(folder);
        operations.End();
    };
    WalkFolders(*root_, enter, leave);
}

void zbBrowserView::RedrawAllDirtyDataLists(bool) {
    CallScope const scope(context_->Lifetime());
    WalkContents(*root_, [](zbBrowserFreeFolderContentHolder& holder) {
        holder.ForEach([](zbBrowserFreeFolderContent& c) { c.RedrawDirty(); });
    });
}

// The bare walks

void zbBrowserView::CreateDataDependentViewItems(bool silent) {
    CallScope const scope(context_->Lifetime());
    WalkContents(*root_, [silent](zbBrowserFreeFolderContentHolder& holder) {
        holder.ForEach([silent](zbBrowserFreeFolderContent& c) { c.ConnectAll(silent); });
    });
}

void zbBrowserView::CreateDataDependentViewItems(zbIBrowserDataItemSimple* item, Items& created,
                                                 Items& parents, bool) {
    if (item == nullptr)
        return;
    CallScope const scope(context_->Lifetime());
    auto const createdBefore = created.size();
    auto* const source = item->GetDataSource();
    auto const runsBefore = context_->Lifetime().HostRuns();
    auto const hasHostRun = [&] { return context_->Lifetime().HostRuns() != runsBefore; };
    // A slot may have deleted the data item meanwhile.
    auto const isStillThere = [&](zbBrowserFreeFolderContentHolder& holder) {
        return !hasHostRun() ||
               (holder.FindList(source) != nullptr && source->ContainsDataItem(item));
    };
    VisitContents(*root_, source, [&](zbBrowserFreeFolderContentHolder& holder) {
        if (isStillThere(holder))
            holder.OnDataItemCreated(item, created, parents);
    });
    if (hasHostRun())
        DropGone(created, createdBefore);
}

void zbBrowserView::DropGone(Items& items, std::size_t first) const {
    auto const begin = items.begin() + static_cast<std::ptrdiff_t>(std::min(first, items.size()));
    items.erase(std::remove_if(begin, items.end(),
                               [this](zbIBrowserViewItem const* item) {
                                   return item != nullptr && !context_->Owns(item);
                               }),
                items.end());
}

// Each folder asks anew whether the item is to be shown.
void zbBrowserView::CreateDataDependentViewItems(zbIBrowserDataItemHierarchical* item,
                                                 Items& created, Items& parents, bool) {
    if (item == nullptr)
        return;
    CallScope const scope(context_->Lifetime());
    WalkContents(*root_, [&](zbBrowserFreeFolderContentHolder& holder) {
        context_->Lifetime().NoteHostRun();
        if (!item->IsHiddenFromTree() && holder.IsAlive())
            holder.WithTree().OnReferenceCreated(item, created, parents);
    });
}

// The item is asked for its source once, while it surely lives: a slot may free it when its row in
// another folder goes.
void zbBrowserView::DeleteDataDependentViewItems(zbIBrowserDataItemSimple* item, bool silent) {
    if (item == nullptr)
        return;
    CallScope const scope(context_->Lifetime());
    auto const* const source = item->GetDataSource();
    VisitContents(*root_, source, [&](zbBrowserFreeFolderContentHolder& holder) {
        holder.ForEach(
            [&](zbBrowserFreeFolderContent& c) { c.OnDataItemDeleted(item, source, silent); });
    });
}

void zbBrowserView::DeleteDataDependentViewItems(zbIBrowserDataItemHierarchical* item, bool) {
    if (item == nullptr)
        return;
    CallScope const scope(context_->Lifetime());
    WalkContents(*root_, [&](zbBrowserFreeFolderContentHolder& holder) {
        holder.WithTree().OnDataItemDeletedInTree(item);
    });
}

// Deleting rows

void zbBrowserView::DeleteViewItemList(Items& items, bool silent) {
    CallScope const scope(context_->Lifetime());
    DetachedLeaves gone(*context_, items.size());
    for (auto* const item : items) {
        if (auto* const leaf = context_->FindLeaf(item); leaf != nullptr) {
            leaf->TakeOutOfStore();
            gone.Add(*leaf);
        }
    }
    items.clear();
    DeleteViewItems(gone, silent);
}

void zbBrowserView::DeleteViewItems(DetachedLeaves& leaves, bool silent) {
    if (leaves.IsEmpty())
        return;
    auto& selection = context_->Selection();
    selection.Update(leaves.Items(), false, false);
    selection.UpdatePreviousSelection();
    if (silent || !context_->IsHeard(&zbBrowserSignalManager::ViewItemListDeleted))
        return;
    auto items = leaves.Items();
    context_->Raise(&zbBrowserSignalManager::ViewItemListDeleted, items);
}

// Through the controller, whose operation a host may have overridden.
void zbBrowserView::RaiseChanged(Items const& items) {
    for (auto* const item : items) {
        if (viewCtrl_ == nullptr || !context_->Owns(item))
            continue;
        context_->Lifetime().NoteHostRun();
        GetViewCtrlPtr()->OnViewItemChanged(item);
    }
}
