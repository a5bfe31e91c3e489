// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserSelectionNotifierBase: who wants to be told about the selection of one view.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

#include <vector>

class zbIBrowserViewItem;

//! A listener of one selection manager, see zbIBrowserSelectionManager::AddNotifier. Unlike the
//! slots of the selection signals it hears of one view only, of deselection by a clearing too, and
//! before `ViewItemsSelected` and `ViewItemsDeselected`.
//!
//! All operations run within the change that they tell about. They may call back: select, delete
//! items or the view, add and remove notifiers. A change that a notifier makes is told to all
//! notifiers, itself included. An exception passes to whoever made the change; the notifiers after
//! it and the signals are left out. The change stands, but for a clearing, which does not take
//! place.
class ZBBROWSERVIEW_API zbIBrowserSelectionNotifierBase {
public:
    //! These items were selected, or deselected. Among them may be some that were so already.
    //! `items` is valid during the call; an item of it may have left the view meanwhile and can
    //! still be asked.
    virtual void OnSelectionChanged(std::vector<zbIBrowserViewItem*> const& items,
                                    bool selected) = 0;

    //! zbIBrowserSelectionManager::OnPopupSelection was called with this flag.
    virtual void OnPopupSelection(bool flag) = 0;

    //! Follows OnSelectionChanged of a change that made a difference. It does not follow the
    //! deselection by a clearing.
    virtual void OnSelectionFinished() = 0;

protected:
    ~zbIBrowserSelectionNotifierBase() = default;
};
