// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserViewCtrl: the controller of all views of one manager, as the host sees it.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

#include <cstdint>
#include <utility>
#include <vector>

class zbIBrowserDataCtrl;
class zbIBrowserDataSourceHierarchical;
class zbIBrowserInfo;
class zbIBrowserManager;
class zbIBrowserStyle;
class zbIBrowserView;
class zbIBrowserViewItem;

namespace zbbrowser {
class View;
}

//! The controller as views, handlers and a scripting layer see it. There is one implementation,
//! zbBrowserViewCtrl, which offers more; a host gets that from CreateBrowserViewCtrl.
//!
//! Ownership: the host's, through zbBrowserViewCtrl.
//! Failure: nothing here throws by itself. What slots and host operations throw passes through.
class ZBBROWSERVIEW_API zbIBrowserViewCtrl {
public:
    //! The manager that the controller was made with.
    virtual zbIBrowserManager* GetManager() const = 0;

    //! The version record. Never null; valid as long as the controller.
    virtual zbIBrowserInfo* GetBrowserInfo() const = 0;

    //! The text of the last failure that was stored.
    //! Null: there was none. Unlike zbBrowserErrorReporter::GetError, which gives an empty text
    //! then. A success does not clear the text, so read it right after the call that answered
    //! false. Valid until the next failure.
    virtual char const* GetError() const = 0;

    //! Lists the views, new ones first, each generation in order of creation. `out` is cleared.
    //! Null: without a filter every view is listed, with one those whose data control it is.
    //! Returns the size of `out`.
    virtual std::uint64_t GetViewList(std::vector<zbIBrowserView*>& out,
                                      zbIBrowserDataCtrl const* filter) const = 0;

    //! The view of that name, of either generation, regardless of case. Null: when there is none.
    //! Cost: O(views).
    virtual zbIBrowserView* FindView(zbString const& name) const = 0;

    //! The same for new views. Null: also when an old view has that name.
    virtual zbbrowser::View* FindNewView(zbString const& name) const = 0;

    //! Signals: `StyleCreated`.
    virtual void OnStyleCreated(zbIBrowserStyle* style) = 0;
    //! Signals: `StyleDeleted`.
    virtual void OnStyleDeleted(zbIBrowserStyle* style) = 0;
    //! Signals: `ViewItemChanged`.
    virtual void OnViewItemChanged(zbIBrowserViewItem* item) = 0;
    //! Signals: `ViewItemRedraw`, with the flag as given.
    virtual void OnViewItemRedraw(zbIBrowserViewItem* item, bool flag) = 0;

    //! Called by the host when a gui map is about to go. Reaches all views, old ones first.
    virtual void OnGuiMapDeleted(zbString const& name) = 0;

    //! Switches off the collectors of all old views but the active one. Nothing happens without an
    //! active view.
    virtual void ResetAllCollectors() = 0;

    //! `SetCollectorEnable` of all views, old ones first. Only new views heed it.
    virtual void SetCollectorEnable(bool enable) = 0;

    //! Gives the shares of an old view, each as the other view and the tree, in the order of the
    //! trees' pointers. The other view may be one that has been deleted: it is for comparison only.
    //! True, also when there are none.
    //! Null: false, and `out` untouched.
    //! Failure: false for what is not an old view of this controller; `out` is cleared.
    virtual bool GetDataSourceHierarchicalSharedInfo(
        zbIBrowserView const* view,
        std::vector<std::pair<zbIBrowserView const*, zbIBrowserDataSourceHierarchical const*>>& out)
        const = 0;

    //! Gives the trees that exactly these two share, in the order of their pointers, whatever the
    //! order of the two. Answers as GetDataSourceHierarchicalSharedInfo.
    virtual bool GetDataSourceHierarchicalSharedList(
        zbIBrowserView const* view1, zbIBrowserView const* view2,
        std::vector<zbIBrowserDataSourceHierarchical const*>& out) const = 0;

    // The next four are for views of this controller; the view is compared with them, never
    // followed, and nothing happens, or false is answered, if it is none.

    //! The user selected or deselected items in a view's widget. `clear`: instead of what was
    //! selected.
    virtual void OnUpdateViewSelection(zbIBrowserView* view,
                                       std::vector<zbIBrowserViewItem*> const& items, bool select,
                                       bool clear) = 0;

    //! `OnSelectionChangeFinished` of the view.
    virtual void OnViewSelectionChangeFinished(zbIBrowserView* const view) = 0;

    //! Whether an item is selected in its view; the item is asked for its view. Null: false.
    virtual bool IsViewItemSelected(zbIBrowserViewItem* item) = 0;

    //! A popup menu of the view is about to act on the selection.
    virtual void OnPopupSelection(zbIBrowserView* view, bool flag) = 0;

protected:
    ~zbIBrowserViewCtrl() = default;
};
