// SPDX-License-Identifier: MIT
#include "items/old/zbBrowserFreeFolderContentNoGrouping.h"

#include "containers/Prefetch.h"
#include "filtersort/zbBrowserSortHandler.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/LongOperation.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

#include <algorithm>

using zbbrowser::detail::BeginLongOperation;
using zbbrowser::detail::DetachedLeaves;
using zbbrowser::detail::LeafStore;
using zbbrowser::detail::Prefetch;
using zbbrowser::detail::prefetchDistance;

namespace {
//! Sets a mark as long as it lives.
class RaisedFlag {
public:
    explicit RaisedFlag(bool& flag)
        : flag_(flag) {
        flag_ = true;
    }
    RaisedFlag(RaisedFlag const&) = delete;
    RaisedFlag& operator=(RaisedFlag const&) = delete;
    ~RaisedFlag() { flag_ = false; }

private:
    bool& flag_;
};
} // namespace

zbBrowserFreeFolderContentNoGrouping::~zbBrowserFreeFolderContentNoGrouping() {
    if (Context().FreesLeaves())
        leaves_.ForEach([this](Leaf& leaf) { DetachedLeaves::Destroy(leaf, Context()); });
}

void zbBrowserFreeFolderContentNoGrouping::MarkDead() {
    zbBrowserFreeFolderContent::MarkDead();
    leaves_.ForEach([this](Leaf const& leaf) { Context().Forget(leaf); });
    leaves_.MarkAllGone();
}

bool zbBrowserFreeFolderContentNoGrouping::OnDataItemCreated(zbIBrowserDataItemSimple* item,
                                                             Items& created, Items&) {
    if (item == nullptr)
        return false;
    created.push_back(FindOrCreateLeaf(*item, item->GetDataSource(), false));
    if (IsAlive())
        RaiseChanged(Folder());
    return true;
}

bool zbBrowserFreeFolderContentNoGrouping::ConnectList(Simple* source, bool silent) {
    std::vector<zbIBrowserDataItemSimple*> items;
    if (!ListItems(*source, items))
        return false;
    if (items.empty())
        return true;
    auto const fresh = items.size() - std::min(items.size(), leaves_.CountOf(source));
    leaves_.Reserve(fresh);
    Context().LeafMemory().Reserve(fresh);
    auto const isRebuild = leaves_.CountOf(source) > 0;
    auto const slotsRun = !silent && Context().IsHeard(&zbBrowserSignalManager::ViewItemCreated);
    LeafStore::Search search(leaves_, items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!isRebuild && i + prefetchDistance < items.size())
            leaves_.PrefetchFind(items[i + prefetchDistance]);
        auto const* const known = isRebuild ? search.Find(i) : leaves_.Find(items[i]);
        if (items[i] == nullptr || known != nullptr)
            continue;
        auto const isDone = slotsRun ? CreateLeafIfContained(*source, items[i])
                                     : CreateLeaf(*items[i], source, silent) != nullptr;
        if (!isDone)
            return false;
    }
    if (!silent)
        RaiseChanged(Folder());
    return true;
}

// A slot may have deleted the data item since the source listed it, and slot and source may take
// the list out or build the row themselves.
bool zbBrowserFreeFolderContentNoGrouping::CreateLeafIfContained(Simple& source,
                                                                 zbIBrowserDataItemSimple* item) {
    auto const isContained = source.ContainsDataItem(item);
    if (isContained && IsStillConnected(&source))
        FindOrCreateLeaf(*item, &source, false);
    return IsStillConnected(&source);
}

bool zbBrowserFreeFolderContentNoGrouping::DisconnectList(Simple* source, bool silent) {
    if (source == nullptr)
        return false;
    if (leaves_.IsIndexInStep())
        DeleteLeaves(leaves_.SnapshotOf(source), silent);
    if (!silent && IsAlive())
        RaiseChanged(Folder());
    return true;
}

// Leaves and data items lie all over the memory once the list is sorted.
void zbBrowserFreeFolderContentNoGrouping::PrefetchData(std::vector<Leaf*> const& leaves,
                                                        std::size_t i) {
    if (i + 2 * prefetchDistance < leaves.size()) {
        Prefetch(leaves[i + 2 * prefetchDistance]);
        Prefetch(leaves[i + prefetchDistance]->GetDataItemSimple());
    }
}

// Only the dirty rows lose their place among the sorted ones, as new rows have none.
bool zbBrowserFreeFolderContentNoGrouping::RefreshListItems(Simple* source, bool silent) {
    auto const bracket = BeginLongOperation(Context());
    auto const leaves = leaves_.SnapshotOf(source);
    std::vector<Leaf const*> dirty;
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        PrefetchData(leaves, i);
        auto& leaf = *leaves[i];
        if (!IsStillListed(leaf) || !IsDirty(*source, leaf))
            continue;
        dirty.push_back(&leaf);
        if (!silent && IsStillListed(leaf))
            RaiseChanged(leaf);
    }
    for (auto const* const leaf : dirty) {
        if (IsStillListed(*leaf))
            leaves_.ForgetOrder(*leaf);
    }
    return true;
}

// A slot may have deleted the data item without telling.
bool zbBrowserFreeFolderContentNoGrouping::IsDirty(Simple& source, Leaf const& leaf) const {
    auto* const item = leaf.GetDataItemSimple();
    if (Context().Lifetime().HasHostRun() && !source.ContainsDataItem(item))
        return false;
    return item->IsDirty();
}

bool zbBrowserFreeFolderContentNoGrouping::RebuildList(Simple* source, bool silent) {
    std::vector<zbIBrowserDataItemSimple*> items;
    if (!ListItems(*source, items))
        return false;
    if (items.empty()) {
        DisconnectList(source, false);
    } else {
        DeleteLeaves(FindStale(*source), silent);
        if (IsStillConnected(source))
            ConnectList(source, false);
    }
    if (IsAlive())
        SignalFolderChain();
    return true;
}

bool zbBrowserFreeFolderContentNoGrouping::RedrawList(Simple*) {
    sortBasis_ = {}; // All values may have changed: not now, but when next sorted all are
    auto const bracket = BeginLongOperation(Context());
    for (auto* const leaf : leaves_.Snapshot()) {
        if (IsStillListed(*leaf))
            RaiseChanged(*leaf);
    }
    return true;
}

void zbBrowserFreeFolderContentNoGrouping::OnDataItemDeleted(zbIBrowserDataItemSimple* item,
                                                             Simple const* source, bool silent) {
    if (!Lists().Contains(source))
        return;
    if (auto* const leaf = leaves_.Find(item); leaf != nullptr)
        DeleteLeaf(*leaf, silent);
}

void zbBrowserFreeFolderContentNoGrouping::GetViewItems(SimpleItems const& items, Items& found,
                                                        Items& parents) {
    if (!leaves_.IsIndexInStep() || leaves_.IsEmpty())
        return;
    for (auto* const leaf : leaves_.FindAll(items)) {
        found.push_back(leaf);
        parents.push_back(&Folder());
    }
}

void zbBrowserFreeFolderContentNoGrouping::GetViewItems(zbIBrowserDataItemSimple* item,
                                                        Items& found, Items& parents) {
    auto* const leaf = leaves_.Find(item);
    if (leaf == nullptr)
        return;
    found.push_back(leaf);
    parents.push_back(&Folder());
}

void zbBrowserFreeFolderContentNoGrouping::GetAllViewItems(Items& out, bool) const {
    leaves_.AppendAllTo(out);
}

bool zbBrowserFreeFolderContentNoGrouping::HasRowsOf(Simple const* source) const {
    return leaves_.CountOf(source) > 0;
}

bool zbBrowserFreeFolderContentNoGrouping::GetSortedItems(Items& out, bool sorted, bool ascending) {
    if (sorted && !SortRows())
        return false;
    leaves_.AppendVisibleTo(out, ascending);
    return true;
}

// The host compares while a copy is sorted. A comparison that reads this list finds it as it was.
bool zbBrowserFreeFolderContentNoGrouping::SortRows() {
    auto* const handler = Context().OldView().GetSortHandlerPtr();
    if (leaves_.IsOrdered() || isSorting_ || handler == nullptr)
        return IsAlive();
    if (leaves_.AreInPlace() && handler->IsCurrent(sortBasis_, leaves_.Count())) {
        leaves_.NoteOrdered();
        return true;
    }
    RaisedFlag const sorting(isSorting_);
    auto const changesBefore = leaves_.ChangeNumber();
    auto basis = sortBasis_;
    Items rows;
    auto const ordered = leaves_.AppendOrderedFirst(rows);
    if (!handler->SortDataItems(rows, ordered, basis) || leaves_.ChangeNumber() != changesBefore)
        return IsAlive();
    leaves_.Reorder(rows);
    sortBasis_ = std::move(basis);
    return true;
}

zbIBrowserViewItem*
zbBrowserFreeFolderContentNoGrouping::FindViewItem(zbIBrowserViewItem const* item) const {
    return item == nullptr ? nullptr : leaves_.Find(item->GetDataItemSimple());
}

void zbBrowserFreeFolderContentNoGrouping::DeleteAll() {
    DetachedLeaves gone(Context(), leaves_.Count());
    for (auto* const leaf : leaves_.TakeAll())
        gone.Add(*leaf);
}

void zbBrowserFreeFolderContentNoGrouping::OnViewItemRemoved(zbIBrowserViewItem* item) {
    auto* const leaf = Context().FindLeaf(item);
    if (leaf == nullptr || leaf->GetParentFreeFolder() != &Folder())
        return;
    if (leaves_.IsIndexInStep())
        DeleteLeaf(*leaf, false);
    if (IsAlive() && !Folder().HasChildren())
        RaiseChanged(Folder());
}

bool zbBrowserFreeFolderContentNoGrouping::ApplyFilter() {
    for (auto* const leaf : leaves_.Snapshot()) {
        if (!IsStillListed(*leaf))
            continue;
        if (Context().Handlers().IsViewItemFiltered(*leaf))
            leaf->SetHidden(true);
        else
            leaf->Show();
    }
    return true;
}

void zbBrowserFreeFolderContentNoGrouping::SelectAll(bool select) {
    for (auto* const leaf : leaves_.Snapshot()) {
        if (IsStillListed(*leaf))
            Context().SelectViewItem(*leaf, select, false);
    }
}

zbBrowserFreeFolderContentNoGrouping::Leaf*
zbBrowserFreeFolderContentNoGrouping::FindOrCreateLeaf(zbIBrowserDataItemSimple& item,
                                                       Simple const* list, bool silent) {
    auto* const known = leaves_.Find(&item);
    return known != nullptr ? known : CreateLeaf(item, list, silent);
}

zbBrowserFreeFolderContentNoGrouping::Leaf*
zbBrowserFreeFolderContentNoGrouping::CreateLeaf(zbIBrowserDataItemSimple& item, Simple const* list,
                                                 bool silent) {
    auto const changesBefore = leaves_.ChangeNumber();
    auto const* const source = item.GetDataSource();
    auto const hidden = Context().Handlers().IsDataSourceFiltered(source);
    // The host may have taken out the list from within these calls, or reported the item.
    if (!IsStillConnected(list))
        return nullptr;
    if (leaves_.ChangeNumber() != changesBefore) {
        if (auto* const known = leaves_.Find(&item); known != nullptr)
            return known;
    }
    auto& leaf = MakeLeaf(&item, source, hidden);
    if (!silent)
        Context().Raise(&zbBrowserSignalManager::ViewItemCreated, &leaf);
    return &leaf;
}

zbBrowserFreeFolderContentNoGrouping::Leaf&
zbBrowserFreeFolderContentNoGrouping::MakeLeaf(zbIBrowserDataItemSimple* item,
                                               zbIBrowserDataSource const* source, bool hidden) {
    if (leaves_.CountOf(source) == 0)
        NoteSource(source);
    void* const memory = Context().LeafMemory().Allocate();
    auto* const leaf = new (memory) zbBrowserViewItemDataLeafInFreeFolder(Folder(), item, hidden);
    try {
        leaves_.Append(*leaf, source);
    } catch (...) {
        DetachedLeaves::Destroy(*leaf, Context());
        throw;
    }
    return *leaf;
}

void zbBrowserFreeFolderContentNoGrouping::DeleteLeaf(Leaf& leaf, bool silent) {
    if (!silent)
        Context().Raise(&zbBrowserSignalManager::ViewItemDeleted, &leaf);
    if (!IsStillListed(leaf))
        return;
    DetachedLeaves gone(Context(), 1);
    leaves_.Take(leaf);
    gone.Add(leaf);
}

void zbBrowserFreeFolderContentNoGrouping::DeleteLeaves(std::vector<Leaf*> leaves, bool silent) {
    std::erase_if(leaves, [this](Leaf const* leaf) { return !IsStillListed(*leaf); });
    DetachedLeaves gone(Context(), leaves.size());
    leaves_.Take(leaves);
    for (auto* const leaf : leaves)
        gone.Add(*leaf);
    DeleteItems(gone, silent);
}

bool zbBrowserFreeFolderContentNoGrouping::ListItems(
    Simple& source, std::vector<zbIBrowserDataItemSimple*>& items) const {
    Context().Lifetime().NoteHostRun();
    return source.GetDataItems(items) && IsStillConnected(&source);
}

std::vector<zbBrowserFreeFolderContentNoGrouping::Leaf*>
zbBrowserFreeFolderContentNoGrouping::FindStale(Simple& source) const {
    auto const leaves = leaves_.SnapshotOf(&source);
    std::vector<Leaf*> stale;
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        PrefetchData(leaves, i);
        if (IsStillListed(*leaves[i]) && !source.ContainsDataItem(leaves[i]->GetDataItemSimple()))
            stale.push_back(leaves[i]);
    }
    return stale;
}
