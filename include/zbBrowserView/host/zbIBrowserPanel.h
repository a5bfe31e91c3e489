// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserPanel: the panel of the host's user interface in which the active view stands.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

#include <vector>

class zbIBrowserDataItem;
class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserView;

//! The panel of the host's user interface in which the active view stands. A data selection that
//! the host gives to the controller goes to the active view alone, and then to the panel.
//!
//! The four selection calls come after the view has followed the selection. The lists are made for
//! the call. The two-vector forms belong to old views and the one-vector forms to new views, but
//! the form is chosen by the controller's operation, whatever the generation of the active view.
//!
//! Ownership: the host's; reached through the manager each time.
class ZBBROWSERVIEW_API zbIBrowserPanel {
public:
    //! The view that the user sees. Null: there is none, and data selections and collector commands
    //! given to the controller have no effect. Asked anew at each of them.
    virtual zbIBrowserView* GetActiveView() = 0;

    //! `clear`: the selection was replaced rather than extended.
    virtual void OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*>& simple,
                                     std::vector<zbIBrowserDataItemHierarchical*>& hierarchical,
                                     bool clear) = 0;

    virtual void OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear) = 0;

    virtual void
    OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*>& simple,
                          std::vector<zbIBrowserDataItemHierarchical*>& hierarchical) = 0;

    virtual void OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items) = 0;

    //! Evaluates a script expression for zbBrowserViewCtrl::TEMP_GetStringFromScript, which is how
    //! scripted view properties get and set their values. `argument` is the text that the caller
    //! supplied, for a scripted property the absolute path name of a free folder, or empty.
    //! Failure: false, and `result` stays as it was; not reported any further.
    virtual bool GetStringFromScript(char const* expression, zbString& result,
                                     zbString argument) = 0;

protected:
    ~zbIBrowserPanel() = default;
};
