// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::ViewsInfo: the registry of the views of one controller.
#pragma once

#include "control/ViewList.h"

#include <zbBrowserView/platform/zbString.h>

#include <cstdint>
#include <vector>

class zbBrowserView;
class zbBrowserViewCtrl;
class zbIBrowserDataCtrl;
class zbIBrowserDataItem;
class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserDataSourceSimple;
class zbIBrowserView;
class zbIBrowserViewItem;

namespace zbbrowser {

class View;

//! Keeps the views of both generations apart, makes and ends them, and spreads events over them.
//! No two views have the same name, regardless of case and generation. Used by the controller only,
//! whose header tells what each operation means to a host.
//!
//! A view may be created or deleted by whatever an event calls: the event goes on with the views
//! that were there at its beginning and still are.
class ViewsInfo {
public:
    explicit ViewsInfo(zbBrowserViewCtrl* viewCtrl);
    ViewsInfo(ViewsInfo const&) = delete;
    ViewsInfo& operator=(ViewsInfo const&) = delete;

    //! Deletes all views, new ones first. Data controls are not released.
    ~ViewsInfo();

    View* CreateNewView(zbString const& name);
    zbBrowserView* CreateOldView(zbString const& name);

    //! Takes the view out of its list, deletes it, and releases its data control if no other view
    //! in that list has it. Which list counts: a view of the other generation keeps no control.
    bool DeleteView(zbIBrowserView* view);

    zbIBrowserView* FindView(zbString const& name) const;
    View* FindNewView(zbString const& name) const;
    zbBrowserView* FindOldView(zbString const& name) const;
    zbBrowserView* FindOldViewByPtr(zbIBrowserView const* view) const;
    //! Whether it is a view of either list. The pointer is compared, never followed.
    bool IsListed(zbIBrowserView const* view) const;

    std::uint64_t GetViewList(std::vector<zbIBrowserView*>& out,
                              zbIBrowserDataCtrl const* filter) const;
    std::uint64_t GetNewViewList(std::vector<View*>& out, zbIBrowserDataCtrl const* filter) const;
    std::uint64_t GetOldViewList(std::vector<zbBrowserView*>& out,
                                 zbIBrowserDataCtrl const* filter) const;

    // Events to old views that have the item's source
    void OnDataItemCreated(zbIBrowserDataItemHierarchical* item, bool flag);
    void OnDataItemCreated(zbIBrowserDataItemSimple* item, bool flag);
    void OnDataItemReparented(zbIBrowserDataItemHierarchical* item,
                              zbIBrowserDataItemHierarchical* newParent);
    void OnDataItemUpdated(zbIBrowserDataItemHierarchical* item);
    void OnDataItemUpdated(zbIBrowserDataItemSimple* item);

    // Events to all old views
    void OnDataSourceRenumbered(zbIBrowserDataSourceSimple* source);
    void OnBrowserColDisabled(bool disabled);

    //! To all old views but `activeView`; nothing at all if that is null.
    void ResetAllCollectors(zbIBrowserView const* activeView);

    // Events to all views. Old views come first, except with OnDataControlDeleted.
    void OnDataControlDeleted(char const* name);
    void SetCollectorEnable(bool enable);
    void OnGuiMapDeleted(zbString const& name);

    // Events to exactly that view, nothing if it is not in the lists
    void OnPopupSelection(zbIBrowserView const* view, bool flag);
    void OnUpdateViewSelection(zbIBrowserView const* view,
                               std::vector<zbIBrowserViewItem*> const& items, bool select,
                               bool clear);
    void OnViewSelectionChangeFinished(zbIBrowserView const* view);
    bool IsViewItemSelected(zbIBrowserViewItem* item) const;

    // Selection of data, for `activeView` if it is of that generation. OnSelectionChangeFinished
    // follows if the view is still there.
    void OnDataItemsSelectedNew(zbIBrowserView const* activeView,
                                std::vector<zbIBrowserDataItem*> const& items, bool clear,
                                bool noPanelUpdate);
    void OnDataItemsDeselectedNew(zbIBrowserView const* activeView,
                                  std::vector<zbIBrowserDataItem*> const& items);
    void OnDataItemsSelectedOld(zbIBrowserView const* activeView,
                                std::vector<zbIBrowserDataItemSimple*> const& simple,
                                std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical,
                                bool clear);
    void OnDataItemsDeselectedOld(zbIBrowserView const* activeView,
                                  std::vector<zbIBrowserDataItemSimple*> const& simple,
                                  std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical);

private:
    //! A slot may run while a view takes in a new item.
    bool IsRowHeard() const;

    void RequireFreeName(zbString const& name) const;

    template <class AnyView, class Make>
    AnyView* Create(detail::ViewList<AnyView>& views, zbString const& name, Make make);
    template <class AnyView>
    static void Destroy(AnyView* view);
    template <class AnyView>
    bool DeleteFrom(detail::ViewList<AnyView>& views, zbIBrowserView const* view);
    template <class AnyView>
    static void DeleteAll(detail::ViewList<AnyView>& views);
    template <class AnyView, class Call>
    static void Select(detail::ViewList<AnyView>& views, zbIBrowserView const* activeView,
                       Call&& call);
    template <class AnyView>
    static void TakeDataCtrl(detail::ViewList<AnyView>& views, char const* name);
    template <class Call>
    void ForEach(Call&& call);
    template <class Call>
    void ForExactly(zbIBrowserView const* view, Call&& call);
    template <class Call>
    void ForOldViewsWith(zbIBrowserDataItemHierarchical* item, Call&& call);

    detail::ViewList<zbBrowserView> oldViews_; // Owned
    detail::ViewList<View> newViews_;          // Owned
    zbBrowserViewCtrl* viewCtrl_;              // Not owned, never null
};

} // namespace zbbrowser
