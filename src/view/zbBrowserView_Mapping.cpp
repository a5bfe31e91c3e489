// SPDX-License-Identifier: MIT
// From data items to view items and back, and the selection traffic.
#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "selection/zbBrowserSelectionManager.h"
#include "view/EventWalk.h"
#include "view/zbBrowserView_Guarded.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/zbBrowserView.h>

#include <map>
#include <unordered_map>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::FolderIndex;
using zbbrowser::detail::RequireHolders;
using zbbrowser::detail::VisitContents;
using zbbrowser::detail::WalkFolders;

using Items = std::vector<zbIBrowserViewItem*>;
using SimpleItems = std::vector<zbIBrowserDataItemSimple*>;
using TreeItems = std::vector<zbIBrowserDataItemHierarchical*>;

// From view items to data items

bool zbBrowserView::GetDataItemsFromViewItems(Items const& items, TreeItems& out,
                                              bool withDescendants) const {
    return OLD_GetDataItemsFromViewItems(items, out, withDescendants);
}

bool zbBrowserView::GetDataItemsFromViewItems(Items const& items, SimpleItems& out,
                                              bool withDescendants) const {
    return OLD_GetDataItemsFromViewItems(items, out, withDescendants);
}

// The children of a group join here, in both directions.
bool zbBrowserView::OLD_GetDataItemsFromViewItems(Items const& items, SimpleItems& out,
                                                  bool withDescendants) const {
    out.clear();
    auto const append = [&out](zbIBrowserViewItem const& row) {
        if (row.IsDataLeaf() && row.GetDataItemSimple() != nullptr)
            out.push_back(row.GetDataItemSimple());
    };
    for (auto const* const item : items) {
        if (auto const* const leaf = context_->FindAnyLeaf(item); leaf != nullptr) {
            append(*leaf);
            continue;
        }
        auto const* const folder = FindFreeFolder(item);
        if (folder == nullptr)
            return false;
        Items rows;
        folder->GetAllViewItems(rows, withDescendants);
        for (auto const* const row : rows)
            append(*row);
    }
    return true;
}

bool zbBrowserView::OLD_GetDataItemsFromViewItems(Items const& items, TreeItems& out,
                                                  bool withDescendants) const {
    CallScope const scope(context_->Lifetime());
    out.clear();
    auto const append = [&out](zbIBrowserViewItem const& row) {
        if (row.GetDataItemHierarchical() != nullptr)
            out.push_back(row.GetDataItemHierarchical());
    };
    for (auto const* const item : items) {
        if (!context_->Knows(item))
            return false;
        auto const* const folder = FindFreeFolder(item);
        Items rows;
        if (folder == nullptr)
            append(*item); // A row of a tree brings what is below it along
        else
            folder->GetAllViewItems(rows, withDescendants);
        for (auto const* const row : rows)
            append(*row);
        if (folder != nullptr && withDescendants && !folder->IsExpanded())
            AppendDescendentDataItems(out, TreeItems(out));
    }
    return true;
}

void zbBrowserView::AppendDescendentDataItems(TreeItems& out, TreeItems const& items) const {
    CallScope const scope(context_->Lifetime());
    TreeItems found;
    for (auto* const item : items) {
        auto* const tree = item == nullptr ? nullptr : item->GetDataSource();
        TreeItems below;
        if (tree != nullptr && context_->IsAlive()) {
            context_->Lifetime().NoteHostRun();
            tree->GetChildren(item, below, nullptr, true);
        }
        if (!context_->IsAlive())
            return; // The other items may have gone with the view
        found.insert(found.end(), below.begin(), below.end());
    }
    out.insert(out.end(), found.begin(), found.end());
}

bool zbBrowserView::GetSelectionTypes(Items const&, std::vector<zbIBrowserDataSourceSimple*>& out) {
    out.clear();
    return true;
}

// From data items to view items

void zbBrowserView::GetDataDependentViewItems(zbIBrowserDataItemSimple* item, Items& found,
                                              Items& parents) {
    CallScope const scope(context_->Lifetime());
    if (item != nullptr)
        AppendRowsOf(item, item->GetDataSource(), found, parents);
}

void zbBrowserView::AppendRowsOf(zbIBrowserDataItemSimple* item, zbIBrowserDataSource const* source,
                                 Items& found, Items& parents) {
    CallScope const scope(context_->Lifetime());
    VisitContents(*root_, source, [&](zbBrowserFreeFolderContentHolder& holder) {
        holder.GetViewItems(item, found, parents);
    });
}

void zbBrowserView::GetDataDependentViewItems(zbIBrowserDataItemHierarchical* item, Items& found,
                                              Items& parents) {
    CallScope const scope(context_->Lifetime());
    WalkFolders(*root_, [&](zbBrowserViewItemFreeFolder& folder) {
        if (folder.IsBusy())
            return false;
        folder.RequireHolder().WithTree().GetViewItemsFromItem(item, found, parents);
        return true;
    });
}

// Nobody is called on the way, so a busy folder answers as any other.
Items zbBrowserView::ItemsOf(ItemsBySource const& simple, TreeItems const& hierarchical,
                             Items& parents) {
    RequireHolders(*root_, [](zbBrowserViewItemFreeFolder const&) { return true; });
    Items found;
    AppendRowsOf(simple, found, parents);
    if (hierarchical.empty())
        return found;
    Items ofTrees;
    std::set<zbIBrowserDataItemHierarchical*> const wanted(hierarchical.begin(),
                                                           hierarchical.end());
    WalkFolders(*root_, [&](zbBrowserViewItemFreeFolder& folder) {
        folder.RequireHolder().WithTree().GetViewItemsFromDataSet(wanted, ofTrees, parents);
        return true;
    });
    found.insert(found.end(), ofTrees.begin(), ofTrees.end());
    return found;
}

// The rows of a folder come in their own order, so a folder of several sources asks for the items
// of all of them at once.
void zbBrowserView::AppendRowsOf(ItemsBySource const& simple, Items& found, Items& parents) {
    std::map<zbBrowserViewItemFreeFolder*, std::vector<SimpleItems const*>, FolderIndex::Before>
        wanted;
    for (auto const& [source, items] : simple) {
        std::vector<zbBrowserViewItemFreeFolder*> folders;
        context_->Folders().AppendTo(source, folders);
        for (auto* const folder : folders)
            wanted[folder].push_back(&items);
    }
    for (auto const& [folder, lists] : wanted) {
        SimpleItems joined;
        for (std::size_t i = 0; lists.size() > 1 && i < lists.size(); ++i)
            joined.insert(joined.end(), lists[i]->begin(), lists[i]->end());
        auto const& items = lists.size() > 1 ? joined : *lists.front();
        folder->RequireHolder().ForEach([&](zbBrowserFreeFolderContent& content) {
            content.GetViewItems(items, found, parents);
        });
    }
}

// What the data side selects

zbBrowserView::ItemsBySource zbBrowserView::ConnectedItems(SimpleItems const& items) const {
    ItemsBySource connected;
    std::unordered_map<zbIBrowserDataSourceSimple const*, std::size_t> places;
    std::size_t place = 0; // Items of one source mostly come together
    for (auto* const item : items) {
        if (!context_->IsAlive())
            return {};
        auto const* const source = item == nullptr ? nullptr : item->GetDataSource();
        if (GetDataSourceSimple(source) == nullptr)
            continue;
        if (connected.empty() || connected[place].first != source) {
            place = places.try_emplace(source, connected.size()).first->second;
            if (place == connected.size())
                connected.emplace_back(source, SimpleItems());
        }
        connected[place].second.push_back(item);
    }
    return connected;
}

TreeItems zbBrowserView::ConnectedItems(TreeItems const& items, bool first) const {
    TreeItems connected;
    for (auto* const item : items) {
        if (!context_->IsAlive())
            return {};
        if (item == nullptr || GetDataSourceHierarchical(item->GetDataSource()) == nullptr)
            continue;
        connected.push_back(item);
        if (first)
            break;
    }
    return connected;
}

void zbBrowserView::OnDataItemsSelected(SimpleItems const& simple, TreeItems const& hierarchical,
                                        bool clear) {
    CallScope const scope(context_->Lifetime());
    if (!context_->Selection().GetSyncFlag())
        return;
    auto const connected = ConnectedItems(simple);
    DataItemsSelected(connected, ConnectedItems(hierarchical, false), clear);
}

void zbBrowserView::OnDataItemsSelected(TreeItems const& items, bool clear, bool first) {
    CallScope const scope(context_->Lifetime());
    if (first || context_->Selection().GetSyncFlag())
        DataItemsSelected({}, ConnectedItems(items, first), clear);
}

void zbBrowserView::OnDataItemsDeselected(SimpleItems const& simple,
                                          TreeItems const& hierarchical) {
    CallScope const scope(context_->Lifetime());
    if (!context_->Selection().GetSyncFlag())
        return;
    auto const connected = ConnectedItems(simple);
    DataItemsDeselected(connected, ConnectedItems(hierarchical, false));
}

void zbBrowserView::OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const&, bool, bool) {
}
void zbBrowserView::OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const&) {
}

// Rows of trees are made when they are needed, so they are all made before one is looked for.
void zbBrowserView::DataItemsSelected(ItemsBySource const& simple, TreeItems const& hierarchical,
                                      bool clear) {
    Guarded([&] {
        if (!hierarchical.empty()) {
            WalkFolders(*root_, [](zbBrowserViewItemFreeFolder& folder) {
                folder.RequireHolder().WithTree().BuildNextLevel(true, true);
                return true;
            });
        }
        Items parents;
        auto found = ItemsOf(simple, hierarchical, parents);
        ExpandAscendants(found, parents);
        // The host may also remove items while it is asked for its signals.
        auto const& lifetime = context_->Lifetime();
        if (lifetime.HasHostRun() || lifetime.RetiredCount() > 0)
            std::erase_if(found, [this](auto const* item) { return !context_->Owns(item); });
        context_->Selection().Update(found, true, clear);
        auto* const manager = context_->IsAlive() ? context_->Manager() : nullptr;
        if (manager == nullptr || found.empty() || !context_->ShowsSelectedItem() ||
            !context_->Owns(found.front()))
            return;
        context_->Lifetime().NoteHostRun();
        manager->ShowViewItem(found.front());
    });
}

void zbBrowserView::DataItemsDeselected(ItemsBySource const& simple,
                                        TreeItems const& hierarchical) {
    Guarded([&] {
        Items parents;
        context_->Selection().Update(ItemsOf(simple, hierarchical, parents), false, false);
    });
}

// Forwarded to the selection manager

zbIBrowserSelectionManager* zbBrowserView::GetSelectionManager() const {
    return GetSelectionManagerPtr();
}

zbBrowserSelectionManager* zbBrowserView::GetSelectionManagerPtr() const {
    return static_cast<zbBrowserSelectionManager*>(&context_->Selection());
}

void zbBrowserView::OnUpdateViewSelection(Items const& items, bool select, bool clear) {
    context_->Selection().UpdateSelection(items, select, clear);
}

void zbBrowserView::OnPopupSelection(bool flag) {
    context_->Selection().OnPopupSelection(flag);
}

bool zbBrowserView::IsViewItemSelected(zbIBrowserViewItem* item) {
    return context_->Selection().IsViewItemSelected(item);
}

void zbBrowserView::UpdatePreviousSelection() {
    context_->Selection().UpdatePreviousSelection();
}

void zbBrowserView::OnSelectionChangeFinished() {
    context_->Selection().OnSelectionChangeFinished();
}

void zbBrowserView::SetDropItem(zbIBrowserViewItem* item) {
    context_->Selection().SetDropItem(item);
}

void zbBrowserView::ResetDropItem() {
    context_->Selection().ResetDropItem();
}

void zbBrowserView::DeselectAllViewItems() {
    context_->Selection().Update({}, false, true);
}

void zbBrowserView::SelectViewItem(zbIBrowserViewItem* item, bool select, bool recursive) {
    if (select)
        context_->Selection().UpdateSelection({item}, true, false);
    else
        DeselectViewItem(item, recursive);
}

// A folder stands before what is in it, and its folders before its rows. Groups and rows of trees,
// which have something in them too, join here.
void zbBrowserView::DeselectViewItem(zbIBrowserViewItem const* const item, bool recursive) {
    auto* const folder = FindFreeFolder(item);
    auto* const leaf = context_->FindLeaf(item);
    if (leaf != nullptr)
        context_->Selection().Update({leaf}, false, false);
    if (folder == nullptr)
        return;
    CallScope const scope(context_->Lifetime());
    Items items{folder};
    if (recursive) {
        WalkFolders(
            *folder,
            [&](zbBrowserViewItemFreeFolder& below) {
                if (&below != folder)
                    items.push_back(&below);
                return true;
            },
            [&](zbBrowserViewItemFreeFolder& below) {
                if (below.Holder() != nullptr)
                    below.Holder()->AppendAllViewItems(items, true);
            });
    }
    context_->Selection().Update(std::move(items), false, false);
}

// One of several is as good as another: the first in the order of the selection.
bool zbBrowserView::EditSelectedDataItem(char const* operation) {
    Items selected;
    if (!context_->Selection().GetSelectedViewItems(selected))
        return false;
    CallScope const scope(context_->Lifetime());
    context_->Raise(&zbBrowserSignalManager::EditDataItem, operation, selected.front());
    return true;
}
