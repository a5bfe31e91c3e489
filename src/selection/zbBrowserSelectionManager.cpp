// SPDX-License-Identifier: MIT
#include "selection/zbBrowserSelectionManager.h"

#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/zbBrowserView.h>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::OldViewContext;

zbBrowserSelectionManager::zbBrowserSelectionManager(OldViewContext& context)
    : SelectionBase(context) {
}

zbBrowserView* zbBrowserSelectionManager::OldView() const {
    auto* const context = static_cast<OldViewContext*>(Context());
    return context == nullptr ? nullptr : &context->OldView();
}

zbIBrowserDataCtrl* zbBrowserSelectionManager::DataCtrl() const {
    return Context()->DataCtrl();
}

void zbBrowserSelectionManager::Update(Items items, bool select, bool clear) {
    if (Context() == nullptr)
        return;
    CallScope const scope(Context()->Lifetime());
    if (clear) {
        TellChanging(AnnounceClearing(), false);
        ClearAll();
        EraseGone(items);
        if (items.empty())
            Context()->RaiseData(&zbBrowserDataSignalManager::SelectionManagerChanged, DataCtrl(),
                                 this);
    }
    if (items.empty())
        return;
    auto const makesDifference = MakesDifference(items, select);
    if (makesDifference) {
        TellChanging(items, select);
        Change(items, select);
    }
    SetSyncFlag(true);
    Notify(items, select, makesDifference);
    if (GetSyncFlag())
        RaiseChange(items, select);
    SetSyncFlag(true);
    if (makesDifference)
        TellSummary();
}

void zbBrowserSelectionManager::TellChanging(Items const& items, bool select) {
    if (!Context()->IsHeard(&zbBrowserDataSignalManager::DataItemsSelectionChanging))
        return;
    std::vector<zbIBrowserDataItemSimple*> simple;
    std::vector<zbIBrowserDataItemHierarchical*> hierarchical;
    OldView()->GetDataItemsFromViewItems(items, simple, true);
    OldView()->GetDataItemsFromViewItems(items, hierarchical, true);
    if (!simple.empty() || !hierarchical.empty())
        Context()->RaiseData(&zbBrowserDataSignalManager::DataItemsSelectionChanging, DataCtrl(),
                             simple, hierarchical, select);
}

// What a slot of the first signal did meanwhile counts for the second.
void zbBrowserSelectionManager::TellSummary() {
    auto& context = *Context();
    auto const tellsGroups =
        DataCtrl() != nullptr && context.IsHeard(&zbBrowserDataSignalManager::DataItemsGrouped);
    if (tellsGroups) {
        auto data = CollectData(true);
        context.RaiseData(&zbBrowserDataSignalManager::DataItemsGrouped, DataCtrl(), data.bySource,
                          data.simple, data.hierarchical);
    }
    if (!context.IsHeard(&zbBrowserDataSignalManager::DataItemsSelectionSummary))
        return;
    auto data = CollectData(true);
    auto const isAny = !data.bySource.empty() || !data.simple.empty() || !data.hierarchical.empty();
    if (isAny && data.anyFolder) {
        data.hierarchical.insert(data.hierarchical.end(), data.inFolders.begin(),
                                 data.inFolders.end());
    } else if (isAny) {
        for (auto const& [source, items] : data.bySource) {
            for (auto* const item : items)
                data.simple.push_back(static_cast<zbIBrowserDataItemSimple*>(item));
        }
    }
    context.RaiseData(&zbBrowserDataSignalManager::DataItemsSelectionSummary, DataCtrl(),
                      data.simple, data.hierarchical, this);
}

void zbBrowserSelectionManager::OnSelectionChangeFinished() {
    if (Context() == nullptr)
        return;
    auto& context = *Context();
    CallScope const scope(context.Lifetime());
    context.RaiseData(&zbBrowserDataSignalManager::SelectionChangeFinished, DataCtrl());
    context.RaiseData(&zbBrowserDataSignalManager::SelectionManagerChanged, DataCtrl(), this);
}

bool zbBrowserSelectionManager::GetViewName(zbString& out) const {
    out = OldView() == nullptr ? zbString() : OldView()->GetName();
    return OldView() != nullptr;
}

// Drop item

// A row of a tree comes before a flat row, since it has a flat data item as well.
void zbBrowserSelectionManager::OnDropItemSet(zbIBrowserViewItem& item) {
    if (item.IsDataContainer() && item.GetDataItemHierarchical() != nullptr) {
        drop_.hierarchical = item.GetDataItemHierarchical();
        drop_.source = drop_.hierarchical->GetDataSource();
    } else if (item.IsDataLeaf() && item.GetDataItemSimple() != nullptr) {
        drop_.simple = item.GetDataItemSimple();
        drop_.simpleItem = &item;
    } else if (auto* const folder = OldView()->FindFreeFolder(&item); folder != nullptr) {
        std::vector<zbIBrowserDataSourceHierarchical*> trees;
        folder->GetTrees(trees);
        if (folder->GetAttachedObject() != nullptr)
            drop_.source = static_cast<zbIBrowserDataSource*>(folder->GetAttachedObject());
        else if (!trees.empty())
            drop_.source = trees.front();
    }
}

zbIBrowserDataSource* zbBrowserSelectionManager::GetDropDataSource() const {
    return drop_.hierarchical != nullptr ? drop_.hierarchical->GetDataSource() : drop_.source;
}

void zbBrowserSelectionManager::ResetDropItem() {
    SelectionBase::ResetDropItem();
    drop_.source = nullptr;
    drop_.hierarchical = nullptr;
}

void zbBrowserSelectionManager::ClearSelected() {
    SelectionBase::ClearSelected();
    drop_ = {};
}

bool zbBrowserSelectionManager::RemembersAny() const {
    return SelectionBase::RemembersAny() || drop_.simpleItem != nullptr;
}

void zbBrowserSelectionManager::ForgetItem(zbIBrowserViewItem const& item) {
    if (DropItem() == &item)
        ResetDropItem();
    if (drop_.simpleItem == &item)
        drop_ = {.source = drop_.source, .hierarchical = drop_.hierarchical};
    SelectionBase::ForgetItem(item);
}
