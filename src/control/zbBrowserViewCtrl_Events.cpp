// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserViewCtrl: data events, and signals about items.
#include "control/ViewsInfo.h"

#include <zbBrowserView/host/zbBrowserSignalManager.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

namespace {

template <class Signal, class... Args>
void Raise(zbBrowserViewCtrl const& ctrl, Signal zbBrowserSignalManager::*signal, Args&&... args) {
    if (zbBrowserSignalManager* const signals = ctrl.GetSignalManager())
        (signals->*signal)(args...);
}

} // namespace

void zbBrowserViewCtrl::OnDataItemCreated(zbIBrowserDataItemHierarchical* item, bool flag) {
    if (item != nullptr)
        GetViewsInfo()->OnDataItemCreated(item, flag);
}

void zbBrowserViewCtrl::OnDataItemCreated(zbIBrowserDataItemSimple* item, bool flag) {
    if (item != nullptr)
        GetViewsInfo()->OnDataItemCreated(item, flag);
}

void zbBrowserViewCtrl::OnDataItemReparented(zbIBrowserDataItemHierarchical* item,
                                             zbIBrowserDataItemHierarchical* newParent) {
    if (item != nullptr)
        GetViewsInfo()->OnDataItemReparented(item, newParent);
}

void zbBrowserViewCtrl::OnDataItemHierarchicalDeleted(zbIBrowserDataItemHierarchical* item) {
    OnDataItemHierarchicalUpdated(item);
}

void zbBrowserViewCtrl::OnDataItemHierarchicalUpdated(zbIBrowserDataItemHierarchical* item) {
    if (item != nullptr)
        GetViewsInfo()->OnDataItemUpdated(item);
}

void zbBrowserViewCtrl::OnDataItemSimpleDeleted(zbIBrowserDataItemSimple* item) {
    OnDataItemSimpleUpdated(item);
}

void zbBrowserViewCtrl::OnDataItemSimpleUpdated(zbIBrowserDataItemSimple* item) {
    if (item != nullptr)
        GetViewsInfo()->OnDataItemUpdated(item);
}

void zbBrowserViewCtrl::OnDataSourceRenumbered(zbIBrowserDataSourceSimple* source) {
    if (source != nullptr)
        GetViewsInfo()->OnDataSourceRenumbered(source);
}

// The guard stays set if the registry's step throws: callers rely on further events being ignored
// then.
void zbBrowserViewCtrl::OnDataControlDeleted(char const* name) {
    if (InCB())
        return;
    InCB(true);
    GetViewsInfo()->OnDataControlDeleted(name);
    InCB(false);
}

void zbBrowserViewCtrl::OnGuiMapDeleted(zbString const& name) {
    GetViewsInfo()->OnGuiMapDeleted(name);
}

void zbBrowserViewCtrl::OnBrowserColDisabled(bool disabled) {
    GetViewsInfo()->OnBrowserColDisabled(disabled);
}

void zbBrowserViewCtrl::SetCollectorEnable(bool enable) {
    GetViewsInfo()->SetCollectorEnable(enable);
}

void zbBrowserViewCtrl::OnStyleCreated(zbIBrowserStyle* style) {
    Raise(*this, &zbBrowserSignalManager::StyleCreated, style);
}

void zbBrowserViewCtrl::OnStyleDeleted(zbIBrowserStyle* style) {
    Raise(*this, &zbBrowserSignalManager::StyleDeleted, style);
}

void zbBrowserViewCtrl::OnViewItemChanged(zbIBrowserViewItem* item) {
    Raise(*this, &zbBrowserSignalManager::ViewItemChanged, item);
}

void zbBrowserViewCtrl::OnViewItemRedraw(zbIBrowserViewItem* item, bool flag) {
    Raise(*this, &zbBrowserSignalManager::ViewItemRedraw, item, flag);
}

void zbBrowserViewCtrl::OnViewItemCreated(zbIBrowserViewItem* item) {
    OnViewItemDeleted(item);
}

void zbBrowserViewCtrl::OnViewItemDeleted(zbIBrowserViewItem* item) {
    Raise(*this, &zbBrowserSignalManager::ViewItemDeleted, item);
}

void zbBrowserViewCtrl::OnViewItemsCreated(std::vector<zbIBrowserViewItem*> const& items) {
    OnViewItemsDeleted(items);
}

// Slots may change the caller's vector, so the loops run over copies.
void zbBrowserViewCtrl::OnViewItemsDeleted(std::vector<zbIBrowserViewItem*> const& items) {
    std::vector<zbIBrowserViewItem*> const snapshot(items.begin(), items.end());
    for (zbIBrowserViewItem* item : snapshot)
        OnViewItemDeleted(item);
}

void zbBrowserViewCtrl::OnViewItemsUpdated(std::vector<zbIBrowserViewItem*> const& items) {
    std::vector<zbIBrowserViewItem*> const snapshot(items.begin(), items.end());
    for (zbIBrowserViewItem* item : snapshot)
        OnViewItemChanged(item);
}

void zbBrowserViewCtrl::OnViewItemSelected(zbIBrowserViewItem* item) {
    Raise(*this, &zbBrowserSignalManager::ViewItemSelected, item);
}

void zbBrowserViewCtrl::OnViewItemDeselected(zbIBrowserViewItem* item) {
    Raise(*this, &zbBrowserSignalManager::ViewItemDeselected, item);
}

void zbBrowserViewCtrl::OnViewItemsSelected(std::vector<zbIBrowserViewItem*>& items) {
    Raise(*this, &zbBrowserSignalManager::ViewItemsSelected, items);
}

void zbBrowserViewCtrl::OnViewItemsDeselected(std::vector<zbIBrowserViewItem*>& items) {
    Raise(*this, &zbBrowserSignalManager::ViewItemsDeselected, items);
}

void zbBrowserViewCtrl::OnViewItemReparented(zbIBrowserViewItem* item,
                                             zbIBrowserViewItem* newParent) {
    Raise(*this, &zbBrowserSignalManager::ViewItemReparented, item, newParent);
}
