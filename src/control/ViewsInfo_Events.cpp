// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::ViewsInfo: spreading events over the views.
#include "control/ViewsInfo.h"

#include <zbBrowserView/host/zbBrowserSignalManager.h>
#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

#include <cstring>
#include <utility>

namespace zbbrowser {

// Old views first.
template <class Call>
void ViewsInfo::ForEach(Call&& call) {
    oldViews_.Walk(call);
    newViews_.Walk(call);
}

template <class Call>
void ViewsInfo::ForExactly(zbIBrowserView const* view, Call&& call) {
    if (zbBrowserView* const oldView = oldViews_.Find(view))
        call(*oldView);
    else if (View* const newView = newViews_.Find(view))
        call(*newView);
}

// The item is asked for its source once, while it surely lives: what the first view calls may be
// the end of it.
template <class Call>
void ViewsInfo::ForOldViewsWith(zbIBrowserDataItemHierarchical* item, Call&& call) {
    zbIBrowserDataSourceHierarchical const* const source = item->GetDataSource();
    oldViews_.Walk([&](zbBrowserView& view) {
        if (view.GetDataSourceHierarchical(source) != nullptr)
            call(view);
    });
}

void ViewsInfo::OnDataItemCreated(zbIBrowserDataItemHierarchical* item, bool flag) {
    ForOldViewsWith(item, [=](zbBrowserView& view) { view.OnDataItemCreated(item, flag); });
}

void ViewsInfo::OnDataItemCreated(zbIBrowserDataItemSimple* item, bool flag) {
    auto* const source = item->GetDataSource();
    bool isFirst = true;
    oldViews_.Walk([&](zbBrowserView& view) {
        if (view.GetDataSourceSimple(source) == nullptr)
            return;
        // What the view before called may have been the end of the item, and asking for that may
        // be the end of this view.
        if (!std::exchange(isFirst, false) && IsRowHeard() &&
            (!source->ContainsDataItem(item) || oldViews_.Find(&view) == nullptr))
            return;
        view.OnDataItemCreated(item, flag);
    });
}

bool ViewsInfo::IsRowHeard() const {
    auto const* const signals = viewCtrl_->GetSignalManager();
    return signals != nullptr &&
           signals->ViewItemCreated.Count() + signals->ViewItemChanged.Count() > 0;
}

void ViewsInfo::OnDataItemReparented(zbIBrowserDataItemHierarchical* item,
                                     zbIBrowserDataItemHierarchical* newParent) {
    ForOldViewsWith(item, [=](zbBrowserView& view) { view.OnDataItemReparented(item, newParent); });
}

void ViewsInfo::OnDataItemUpdated(zbIBrowserDataItemHierarchical* item) {
    ForOldViewsWith(item, [=](zbBrowserView& view) { view.OnDataItemUpdated(item); });
}

void ViewsInfo::OnDataItemUpdated(zbIBrowserDataItemSimple* item) {
    zbIBrowserDataSourceSimple const* const source = item->GetDataSource();
    oldViews_.Walk([=](zbBrowserView& view) {
        if (view.GetDataSourceSimple(source) != nullptr)
            view.OnDataItemUpdated(item, source);
    });
}

void ViewsInfo::OnDataSourceRenumbered(zbIBrowserDataSourceSimple* source) {
    oldViews_.Walk([=](zbBrowserView& view) { view.OnDataSourceRenumbered(source); });
}

void ViewsInfo::OnBrowserColDisabled(bool disabled) {
    oldViews_.Walk([=](zbBrowserView& view) { view.OnBrowserColDisabled(disabled); });
}

void ViewsInfo::ResetAllCollectors(zbIBrowserView const* activeView) {
    if (activeView == nullptr)
        return;
    oldViews_.Walk([=](zbBrowserView& view) {
        if (&view != activeView)
            view.OnBrowserColDeselected();
    });
}

// A control that is asked for its name may delete the view.
template <class AnyView>
void ViewsInfo::TakeDataCtrl(detail::ViewList<AnyView>& views, char const* name) {
    views.Walk([&views, name](AnyView& view) {
        zbIBrowserDataCtrl* const ctrl = view.GetDataCtrl();
        char const* const ctrlName = ctrl == nullptr ? nullptr : ctrl->GetName();
        if (ctrlName == nullptr || std::strcmp(ctrlName, name) != 0)
            return;
        if (views.Find(&view) != nullptr)
            view.SetDataCtrl(nullptr);
    });
}

void ViewsInfo::OnDataControlDeleted(char const* name) {
    if (name == nullptr)
        return;
    TakeDataCtrl(newViews_, name);
    TakeDataCtrl(oldViews_, name);
}

void ViewsInfo::SetCollectorEnable(bool enable) {
    ForEach([=](zbIBrowserView& view) { view.SetCollectorEnable(enable); });
}

void ViewsInfo::OnGuiMapDeleted(zbString const& name) {
    ForEach([&name](auto& view) { view.OnGuiMapDeleted(name); });
}

void ViewsInfo::OnPopupSelection(zbIBrowserView const* view, bool flag) {
    ForExactly(view, [=](auto& found) { found.OnPopupSelection(flag); });
}

void ViewsInfo::OnUpdateViewSelection(zbIBrowserView const* view,
                                      std::vector<zbIBrowserViewItem*> const& items, bool select,
                                      bool clear) {
    ForExactly(view, [&](auto& found) { found.OnUpdateViewSelection(items, select, clear); });
}

void ViewsInfo::OnViewSelectionChangeFinished(zbIBrowserView const* view) {
    ForExactly(view, [](zbIBrowserView& found) { found.OnSelectionChangeFinished(); });
}

// The item is asked for its view before each comparison.
bool ViewsInfo::IsViewItemSelected(zbIBrowserViewItem* item) const {
    if (item == nullptr)
        return false;
    auto const isOwner = [item](zbIBrowserView const& view) { return &view == item->GetView(); };
    if (zbBrowserView* const oldView = oldViews_.FindIf(isOwner))
        return oldView->IsViewItemSelected(item);
    if (View* const newView = newViews_.FindIf(isOwner))
        return newView->IsViewItemSelected(item);
    return false;
}

// What is called may delete the view. Then it is not listed any more.
template <class AnyView, class Call>
void ViewsInfo::Select(detail::ViewList<AnyView>& views, zbIBrowserView const* activeView,
                       Call&& call) {
    AnyView* const view = views.Find(activeView);
    if (view == nullptr)
        return;
    call(*view);
    if (views.Find(view) != nullptr)
        view->OnSelectionChangeFinished();
}

void ViewsInfo::OnDataItemsSelectedNew(zbIBrowserView const* activeView,
                                       std::vector<zbIBrowserDataItem*> const& items, bool clear,
                                       bool noPanelUpdate) {
    Select(newViews_, activeView,
           [&](View& view) { view.OnDataItemsSelected(items, clear, noPanelUpdate); });
}

void ViewsInfo::OnDataItemsDeselectedNew(zbIBrowserView const* activeView,
                                         std::vector<zbIBrowserDataItem*> const& items) {
    Select(newViews_, activeView, [&](View& view) { view.OnDataItemsDeselected(items); });
}

void ViewsInfo::OnDataItemsSelectedOld(
    zbIBrowserView const* activeView, std::vector<zbIBrowserDataItemSimple*> const& simple,
    std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical, bool clear) {
    Select(oldViews_, activeView,
           [&](zbBrowserView& view) { view.OnDataItemsSelected(simple, hierarchical, clear); });
}

void ViewsInfo::OnDataItemsDeselectedOld(
    zbIBrowserView const* activeView, std::vector<zbIBrowserDataItemSimple*> const& simple,
    std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical) {
    Select(oldViews_, activeView,
           [&](zbBrowserView& view) { view.OnDataItemsDeselected(simple, hierarchical); });
}

} // namespace zbbrowser
