// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserViewCtrl: what concerns the active view and its panel: selection and collectors.
#include "control/ViewsInfo.h"

#include <zbBrowserView/host/zbBrowserManager.h>
#include <zbBrowserView/host/zbIBrowserPanel.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserView.h>

namespace {

// The panel's collector button, as the manager and as old views know it.
constexpr int panelButtonOfNewViews = 4;
constexpr auto panelButtonOfOldViews = static_cast<ZBBROWSER_TCLAPI_KEYWORD>(121);

} // namespace

zbIBrowserPanel* zbBrowserViewCtrl::GetPanel() const {
    return manager_ == nullptr ? nullptr : manager_->GetBrowserPanel();
}

zbIBrowserView* zbBrowserViewCtrl::GetActiveView() const {
    zbIBrowserPanel* const panel = GetPanel();
    return panel == nullptr ? nullptr : panel->GetActiveView();
}

// In all of these the panel is asked for anew after the view has been told, since what that called
// may have closed it. The lists are copies: a slot may change the caller's list, and the panel its
// own.

void zbBrowserViewCtrl::OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items,
                                            bool clear, bool noPanelUpdate) {
    zbIBrowserView const* const view = GetActiveView();
    if (view == nullptr)
        return;
    std::vector<zbIBrowserDataItem*> const snapshot(items.begin(), items.end());
    GetViewsInfo()->OnDataItemsSelectedNew(view, snapshot, clear, noPanelUpdate);
    if (noPanelUpdate)
        return;
    if (zbIBrowserPanel* const panel = GetPanel())
        panel->OnDataItemsSelected(snapshot, clear);
}

void zbBrowserViewCtrl::OnDataItemsSelected(
    std::vector<zbIBrowserDataItemHierarchical*> const& items, bool clear, bool) {
    OnDataItemsSelected({}, items, clear);
}

void zbBrowserViewCtrl::OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*> const& items,
                                            bool clear) {
    OnDataItemsSelected(items, {}, clear);
}

void zbBrowserViewCtrl::OnDataItemsSelected(
    std::vector<zbIBrowserDataItemSimple*> const& simple,
    std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical, bool clear) {
    zbIBrowserView const* const view = GetActiveView();
    if (view == nullptr)
        return;
    auto flatItems = simple;
    auto treeItems = hierarchical;
    GetViewsInfo()->OnDataItemsSelectedOld(view, flatItems, treeItems, clear);
    if (zbIBrowserPanel* const panel = GetPanel())
        panel->OnDataItemsSelected(flatItems, treeItems, clear);
}

void zbBrowserViewCtrl::OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items) {
    zbIBrowserView const* const view = GetActiveView();
    if (view == nullptr)
        return;
    std::vector<zbIBrowserDataItem*> const snapshot(items.begin(), items.end());
    GetViewsInfo()->OnDataItemsDeselectedNew(view, snapshot);
    if (zbIBrowserPanel* const panel = GetPanel())
        panel->OnDataItemsDeselected(snapshot);
}

void zbBrowserViewCtrl::OnDataItemsDeselected(
    std::vector<zbIBrowserDataItemHierarchical*> const& items) {
    OnDataItemsDeselected({}, items);
}

void zbBrowserViewCtrl::OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*> const& items) {
    OnDataItemsDeselected(items, {});
}

void zbBrowserViewCtrl::OnDataItemsDeselected(
    std::vector<zbIBrowserDataItemSimple*> const& simple,
    std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical) {
    zbIBrowserView const* const view = GetActiveView();
    if (view == nullptr)
        return;
    auto flatItems = simple;
    auto treeItems = hierarchical;
    GetViewsInfo()->OnDataItemsDeselectedOld(view, flatItems, treeItems);
    if (zbIBrowserPanel* const panel = GetPanel())
        panel->OnDataItemsDeselected(flatItems, treeItems);
}

void zbBrowserViewCtrl::OnUpdateViewSelection(zbIBrowserView* view,
                                              std::vector<zbIBrowserViewItem*> const& items,
                                              bool select, bool clear) {
    GetViewsInfo()->OnUpdateViewSelection(view, items, select, clear);
}

void zbBrowserViewCtrl::OnViewSelectionChangeFinished(zbIBrowserView* const view) {
    GetViewsInfo()->OnViewSelectionChangeFinished(view);
}

bool zbBrowserViewCtrl::IsViewItemSelected(zbIBrowserViewItem* item) {
    return GetViewsInfo()->IsViewItemSelected(item);
}

void zbBrowserViewCtrl::OnPopupSelection(zbIBrowserView* view, bool flag) {
    GetViewsInfo()->OnPopupSelection(view, flag);
}

void zbBrowserViewCtrl::ResetAllCollectors() {
    GetViewsInfo()->ResetAllCollectors(GetActiveView());
}

char const* zbBrowserViewCtrl::GetCollectorGuiMapName() const {
    zbIBrowserView const* const view = GetActiveView();
    return view == nullptr ? "" : view->GetCollectorGuiMapName();
}

void zbBrowserViewCtrl::OnBrowserColPerform() {
    if (zbIBrowserView* const view = GetActiveView())
        view->OnBrowserColPerform();
}

bool zbBrowserViewCtrl::PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE operation) {
    zbIBrowserView const* const view = GetActiveView();
    return view != nullptr && view->PerformCollectorOperation(operation);
}

void zbBrowserViewCtrl::OnShowPanelCollectorButton(bool show) {
    zbIBrowserView* const view = GetActiveView();
    if (view == nullptr)
        return;
    if (view->IsNewView())
        manager_->ShowCollectorButton(view, panelButtonOfNewViews, show);
    else
        view->ShowCollectorButton(panelButtonOfOldViews, show);
}

bool zbBrowserViewCtrl::TEMP_GetStringFromScript(char const* expression, zbString& result,
                                                 zbString defaultText) const {
    zbIBrowserPanel* const panel = GetPanel();
    return panel != nullptr &&
           panel->GetStringFromScript(expression, result, std::move(defaultText));
}
