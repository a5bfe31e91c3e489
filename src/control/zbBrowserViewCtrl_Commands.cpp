// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserViewCtrl: commands of the host to one view.
#include "control/Messages.h"
#include "control/ViewsInfo.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <algorithm>
#include <iterator>

namespace {

template <class T>
T& Required(T* object) {
    if (object == nullptr)
        zbbrowser::detail::Fail(zbbrowser::detail::NullPointerHit);
    return *object;
}

// The name under which the view of an item is to be looked up.
zbString const& ViewNameOf(zbIBrowserViewItem const& item) {
    return Required(item.GetView()).GetName();
}

// Any view will do, also one that is no part of the registry. That is asked for one thing only:
// whether a source that was told of its connection has deleted the view.
template <class Source>
bool ConnectEach(zbbrowser::ViewsInfo const& views, zbIBrowserView* view,
                 std::vector<Source*> const& sources) {
    bool const wasListed = views.IsListed(view);
    std::vector<Source*> const snapshot(sources.begin(), sources.end());
    for (Source* source : snapshot) {
        Required(view).DataSourceConnect(source);
        if (wasListed && !views.IsListed(view))
            break;
    }
    return true;
}

// An item and its view, which was asked for while the item surely lived.
struct ItemOfView {
    zbIBrowserViewItem* item;   // May be null
    zbIBrowserView const* view; // To be compared only
};

std::vector<ItemOfView> WithTheirViews(std::vector<zbIBrowserViewItem*> const& items) {
    std::vector<ItemOfView> result;
    result.reserve(items.size());
    std::transform(items.begin(), items.end(), std::back_inserter(result),
                   [](zbIBrowserViewItem* item) {
                       return ItemOfView{item, item == nullptr ? nullptr : item->GetView()};
                   });
    return result;
}

} // namespace

bool zbBrowserViewCtrl::DataSourceConnect(
    zbIBrowserView* view, std::vector<zbIBrowserDataSourceHierarchical*> const& sources) {
    return ConnectEach(*GetViewsInfo(), view, sources);
}

bool zbBrowserViewCtrl::DataSourceConnect(zbIBrowserView* view,
                                          std::vector<zbIBrowserDataSourceSimple*> const& sources) {
    return ConnectEach(*GetViewsInfo(), view, sources);
}

bool zbBrowserViewCtrl::DataSourceDisconnect(zbIBrowserView* view, char const* name) {
    return view != nullptr && view->DataSourceDisconnect(name);
}

// The order of the two lookups differs from DeleteFreeFolder, and so does the answer to finding
// none.
bool zbBrowserViewCtrl::CreateFreeFolder(zbIBrowserViewItemFreeFolder* parent,
                                         zbString const& name) {
    zbString const& viewName = ViewNameOf(Required(parent));
    if (zbBrowserView* const oldView = OLD_FindView(viewName))
        return oldView->CreateFreeFolder(parent, name);
    if (zbbrowser::View* const newView = FindNewView(viewName))
        return newView->CreateFreeFolder(parent, name);
    return false;
}

bool zbBrowserViewCtrl::DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool flag) {
    zbString const& viewName = ViewNameOf(Required(folder));
    if (zbbrowser::View* const newView = FindNewView(viewName))
        return newView->DeleteFreeFolder(folder, flag);
    return Required(OLD_FindView(viewName)).DeleteFreeFolder(folder, flag);
}

bool zbBrowserViewCtrl::ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder,
                                            bool immediately) {
    if (Required(Required(folder).GetView()).GetViewCtrl() != this)
        zbbrowser::detail::Fail(zbbrowser::detail::DifferentManager);
    zbbrowser::View* const view = FindNewView(ViewNameOf(*folder));
    if (view == nullptr)
        throw "ApplyPendingChanges() supported for NEW view objects only.";
    return view->ApplyPendingChanges(folder, immediately);
}

bool zbBrowserViewCtrl::ExpandItem(zbbrowser::View* view, zbIBrowserViewItem* item) {
    return Required(view).Expand(item);
}

bool zbBrowserViewCtrl::ExpandItem(zbBrowserView* view, zbIBrowserViewItem* item) {
    return Required(view).Expand(item);
}

bool zbBrowserViewCtrl::CollapseItem(zbbrowser::View* view, zbIBrowserViewItem* item) {
    return Required(view).Collapse(item);
}

bool zbBrowserViewCtrl::CollapseItem(zbBrowserView* view, zbIBrowserViewItem* item) {
    return Required(view).Collapse(item);
}

// Opening the first item may be the end of a view, and so of items that are still to come.
void zbBrowserViewCtrl::ExpandAscendants(std::vector<zbIBrowserViewItem*> const& items) {
    for (auto const& [item, itsView] : WithTheirViews(items)) {
        zbIBrowserViewItem const* const required = &Required(item);
        if (zbBrowserView const* const view = OLD_FindViewByPtr(itsView))
            view->ExpandAscendants(required);
    }
}

// An item of a new view never gets past the second lookup, since names are unique: it ends in the
// exception after its own view was asked.
void zbBrowserViewCtrl::HideItem(zbIBrowserViewItem* item) {
    zbString const viewName = ViewNameOf(Required(item));
    if (zbbrowser::View* const newView = FindNewView(viewName))
        newView->Hide(item);
    Required(OLD_FindView(viewName)).Hide(item);
}

void zbBrowserViewCtrl::OnAllViewItemsDeselected(zbIBrowserView* view) {
    Required(view).DeselectAllViewItems();
}

void zbBrowserViewCtrl::Lock(zbbrowser::View* view, bool lock) {
    Required(view).Lock(lock);
}

void zbBrowserViewCtrl::Fill(zbbrowser::View* view, zbbrowser::PendingViewChangeInfo& info) const {
    Required(view).Fill(info);
}

void zbBrowserViewCtrl::ClearDirtyForWindowItems(zbbrowser::View* view) {
    Required(view).ClearDirtyForWindowItems();
}

void zbBrowserViewCtrl::UpdateDirtyForWindowItems(zbbrowser::View* view) {
    Required(view).UpdateDirtyForWindowItems();
}

void zbBrowserViewCtrl::OnAllDataItemsDeleted(zbbrowser::View* view, bool flag) {
    Required(view).AllDataDependentItemsDelete(flag);
}

void zbBrowserViewCtrl::OnAllDirtyDataRebuild(zbbrowser::View* view, bool flag) {
    Required(view).AllDirtyDataDependentItemsRebuild(flag);
}

void zbBrowserViewCtrl::OnAllDirtyDataListsRebuild(zbBrowserView* view) {
    Required(view).OnAllDirtyDataListsRebuild();
}

void zbBrowserViewCtrl::OnDataItemsRebuildAll(zbBrowserView* view) {
    Required(view).OnDataItemsRebuildAll();
}
