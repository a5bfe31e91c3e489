// SPDX-License-Identifier: MIT
#include "selection/SelectionBase.h"

#include "view/ViewContext.h"

#include <zbBrowserView/zbIBrowserSelectionNotifierBase.h>
#include <zbBrowserView/zbIBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

#include <algorithm>

namespace zbbrowser::detail {

SelectionBase::SelectionBase(ViewContext& context)
    : context_(&context) {
}

SelectionBase::~SelectionBase() = default;

void SelectionBase::ForgetItem(zbIBrowserViewItem const& item) {
    selected_.Erase(&item);
    if (dropItem_ == &item)
        SelectionBase::ResetDropItem();
}

void SelectionBase::ForgetAll() {
    ClearAll();
    ClearSelected();
}

void SelectionBase::LoseView() {
    ForgetAll();
    notifiers_.clear();
    context_ = nullptr;
}

bool SelectionBase::HasView() const {
    return context_ != nullptr && context_->IsAlive();
}

// A slot may change the list that it finds in the hands of the caller.
void SelectionBase::UpdateSelection(Items const& items, bool select, bool clear) {
    if (!HasView())
        return;
    Items own;
    own.reserve(items.size());
    std::copy_if(items.begin(), items.end(), std::back_inserter(own), [&](auto const* item) {
        return select ? context_->Owns(item) : context_->Knows(item);
    });
    Update(std::move(own), select, clear);
}

void SelectionBase::UpdatePreviousSelection() {
    if (!HasView())
        return;
    CallScope const scope(context_->Lifetime());
    if (!context_->IsHeard(&zbBrowserSignalManager::ViewItemsSelected))
        return;
    auto items = Selected();
    context_->Raise(&zbBrowserSignalManager::ViewItemsSelected, items);
}

void SelectionBase::ClearAll() {
    selected_.Clear();
}

void SelectionBase::ClearSelected() {
    selected_.Clear();
    SelectionBase::ResetDropItem();
}

bool SelectionBase::GetSelectedViewItems(Items& out) {
    out = Selected();
    return !out.empty();
}

SelectionBase::Items SelectionBase::Selected() const {
    Items items;
    selected_.AppendTo(items);
    return items;
}

bool SelectionBase::GetSelectedFreeFolders(std::set<zbIBrowserViewItemFreeFolder*>& out) {
    std::vector<zbIBrowserViewItemFreeFolder*> folders;
    GetSelectedFreeFolders(folders);
    out = {folders.begin(), folders.end()};
    return !out.empty();
}

bool SelectionBase::GetSelectedFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out) {
    out.clear();
    return HasView() && context_->View().GetFreeFoldersFromViewItems(Selected(), out);
}

// Drop item

void SelectionBase::SetDropItem(zbIBrowserViewItem* item) {
    ResetDropItem();
    if (!HasView() || !context_->Owns(item))
        return;
    CallScope const scope(context_->Lifetime());
    dropItem_ = item;
    isDropOnFolder_ = item->IsFreeFolder();
    OnDropItemSet(*item);
}

void SelectionBase::ResetDropItem() {
    dropItem_ = nullptr;
    isDropOnFolder_ = false;
}

// Notifiers

void SelectionBase::AddNotifier(Notifier* notifier) {
    if (notifier != nullptr && HasView())
        notifiers_.insert(notifier);
}

void SelectionBase::RemoveNotifier(Notifier* notifier) {
    notifiers_.erase(notifier);
}

void SelectionBase::ClearNotifiers() {
    notifiers_.clear();
}

// A notifier may add and remove notifiers, so the walk finds its place anew each time.
template <class Call>
void SelectionBase::ForEachNotifier(Call call) {
    for (auto place = notifiers_.begin(); place != notifiers_.end() && context_->IsAlive();) {
        auto* const notifier = *place;
        context_->Lifetime().NoteHostRun();
        call(*notifier);
        place = notifiers_.upper_bound(notifier);
    }
}

void SelectionBase::OnPopupSelection(bool flag) {
    if (!HasView())
        return;
    CallScope const scope(context_->Lifetime());
    ForEachNotifier([flag](Notifier& notifier) { notifier.OnPopupSelection(flag); });
}

// The steps of Update

SelectionBase::Items SelectionBase::AnnounceClearing(std::size_t retiredBefore) {
    context_->Raise(&zbBrowserSignalManager::SelectionClearing, &context_->View());
    auto cleared = Selected();
    ForEachNotifier([&](Notifier& n) { n.OnSelectionChanged(cleared, false); });
    EraseGone(cleared, retiredBefore);
    return cleared;
}

// The host may remove items while it is asked for its signals, which is not noted as a run of it.
bool SelectionBase::MayHaveLost(std::size_t retiredBefore) const {
    auto const& lifetime = context_->Lifetime();
    return lifetime.HasHostRun() || lifetime.RetiredCount() != retiredBefore;
}

void SelectionBase::EraseGone(Items& items, std::size_t retiredBefore) const {
    if (!HasView())
        items.clear();
    else if (MayHaveLost(retiredBefore))
        std::erase_if(items, [&](auto const* item) { return !context_->Owns(item); });
}

bool SelectionBase::MakesDifference(Items const& items, bool select) const {
    if (selected_.IsEmpty())
        return select && !items.empty();
    return std::any_of(items.begin(), items.end(), [&](zbIBrowserViewItem const* item) {
        return selected_.Contains(item) != select;
    });
}

void SelectionBase::Change(Items const& items, bool select, std::size_t retiredBefore) {
    if (!HasView())
        return;
    auto const mayHaveLeft = MayHaveLost(retiredBefore);
    for (auto* const item : items) {
        if (!select)
            selected_.Erase(item);
        else if (!mayHaveLeft || context_->Owns(item))
            selected_.Insert(item);
    }
}

void SelectionBase::Notify(Items const& items, bool select, bool finished) {
    ForEachNotifier([&](Notifier& notifier) {
        notifier.OnSelectionChanged(items, select);
        if (finished && context_->IsAlive() && notifiers_.contains(&notifier))
            notifier.OnSelectionFinished();
    });
}

void SelectionBase::RaiseChange(Items& items, bool select) {
    context_->Raise(select ? &zbBrowserSignalManager::ViewItemsSelected
                           : &zbBrowserSignalManager::ViewItemsDeselected,
                    items);
}

} // namespace zbbrowser::detail
