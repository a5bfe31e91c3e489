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

zbBrowserView& zbBrowserSelectionManager::OldView() const {
    return static_cast<OldViewContext&>(Context()).OldView();
}

zbIBrowserDataCtrl* zbBrowserSelectionManager::DataCtrl() const {
    return Context().DataCtrl();
}

void zbBrowserSelectionManager::Update(Items items, bool select, bool clear) {
    if (!HasView())
        return;
    auto& lifetime = Context().Lifetime();
    CallScope const scope(lifetime);
    auto const retiredBefore = lifetime.RetiredCount();
    if (clear) {
        TellChanging(AnnounceClearing(retiredBefore), false);
        ClearAll();
        EraseGone(items, retiredBefore);
        if (items.empty())
            Context().RaiseData(&zbBrowserDataSignalManager::SelectionManagerChanged, DataCtrl(),
                                this);
    }
    if (items.empty())
        return;
    auto const makesDifference = MakesDifference(items, select);
    if (makesDifference) {
        TellChanging(items, select);
        Change(items, select, retiredBefore);
    }
    TellViews(items, select, makesDifference);
    if (makesDifference)
        TellSummary();
}

namespace {

//! The sync flag is true when the telling begins, and again however it ends.
class SyncFlagOn {
public:
    explicit SyncFlagOn(zbBrowserSelectionManager& manager)
        : manager_(manager) {
        manager_.SetSyncFlag(true);
    }
    SyncFlagOn(SyncFlagOn const&) = delete;
    SyncFlagOn& operator=(SyncFlagOn const&) = delete;
    ~SyncFlagOn() { manager_.SetSyncFlag(true); }

private:
    zbBrowserSelectionManager& manager_;
};

} // namespace

void zbBrowserSelectionManager::TellViews(Items& items, bool select, bool finished) {
    SyncFlagOn const syncFlagOn(*this);
    Notify(items, select, finished);
    if (GetSyncFlag())
        RaiseChange(items, select);
}

void zbBrowserSelectionManager::TellChanging(Items const& items, bool select) {
    if (!Context().IsHeard(&zbBrowserDataSignalManager::DataItemsSelectionChanging))
        return;
    std::vector<zbIBrowserDataItemSimple*> simple;
    std::vector<zbIBrowserDataItemHierarchical*> hierarchical;
    OldView().GetDataItemsFromViewItems(items, simple, true);
    OldView().GetDataItemsFromViewItems(items, hierarchical, true);
    if (!simple.empty() || !hierarchical.empty())
        Context().RaiseData(&zbBrowserDataSignalManager::DataItemsSelectionChanging, DataCtrl(),
                            simple, hierarchical, select);
}

// What a slot of the first signal did meanwhile counts for the second.
void zbBrowserSelectionManager::TellSummary() {
    auto& context = Context();
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
    if (!HasView())
        return;
    auto& context = Context();
    CallScope const scope(context.Lifetime());
    context.RaiseData(&zbBrowserDataSignalManager::SelectionChangeFinished, DataCtrl());
    context.RaiseData(&zbBrowserDataSignalManager::SelectionManagerChanged, DataCtrl(), this);
}

bool zbBrowserSelectionManager::GetViewName(zbString& out) const {
    out = HasView() ? OldView().GetName() : zbString();
    return HasView();
}

// Drop item

// A row of a tree comes before a flat row, since it has a flat data item as well.
void zbBrowserSelectionManager::OnDropItemSet(zbIBrowserViewItem& item) {
    if (item.IsDataContainer() && item.GetDataItemHierarchical() != nullptr) {
        auto* const dataItem = item.GetDataItemHierarchical();
        drop_.hierarchical = dataItem;
        auto* const source = dataItem->GetDataSource();
        if (DropItem() == &item) // Else it has gone meanwhile
            drop_.source = source;
    } else if (item.IsDataLeaf() && item.GetDataItemSimple() != nullptr) {
        drop_.simple = item.GetDataItemSimple();
        drop_.simpleItem = &item;
    } else if (auto* const folder = OldView().FindFreeFolder(&item); folder != nullptr) {
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

void zbBrowserSelectionManager::ForgetSource(zbIBrowserDataSource const& source) {
    if (drop_.source == &source)
        drop_.source = nullptr;
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
