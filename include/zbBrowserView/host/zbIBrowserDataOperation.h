// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataOperation: something that the host can do with selected data.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSource.h>

class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserSelectionManager;

//! Something that the host can do with selected data, such as "delete" or "rename". Operations of a
//! view and popup menu items refer to it by name and ask zbIBrowserDataCtrl::FindDataOperation.
//!
//! The queries are asked each time that a popup menu is about to show. What they are handed is what
//! is selected: `bySource` the flat items by their source, `simple` flat items, `hierarchical` tree
//! items, `inFolders` the tree items in selected folders. The lists are made for the call; changing
//! them has no effect that lasts.
//!
//! Ownership: the host's. Stays valid as long as the control finds it.
class ZBBROWSERVIEW_API zbIBrowserDataOperation {
public:
    //! Name, compared exactly. A popup item of an old view with an operation called "rename" is
    //! disabled while exactly one flat item and exactly one tree item in a folder are selected.
    //! Requires: not null; stays valid as long as the operation.
    virtual char const* GetName() const = 0;

    //! Whether the operation can be performed with what is selected. Asked by cascading popup items
    //! of new views; all others ask IsAvailable. False disables the popup item.
    virtual bool IsAvailableForItems(zbBrowserDataItemMap& bySource,
                                     std::vector<zbIBrowserDataItemSimple*>& simple,
                                     std::vector<zbIBrowserDataItemHierarchical*>& hierarchical,
                                     std::vector<zbIBrowserDataItemHierarchical*>& inFolders) = 0;

    //! As IsAvailableForItems, asked by popup items of old views with the flat items alone.
    virtual bool IsAvailable(zbBrowserDataItemMap& bySource,
                             std::vector<zbIBrowserDataItemSimple*>& simple) = 0;

    //! Check state of a checkable popup item of an old view: it shows a mark if all of its
    //! operations answer true.
    virtual bool IsChecked(zbBrowserDataItemMap& bySource,
                           std::vector<zbIBrowserDataItemSimple*>& simple) = 0;

    //! Does it, with what is selected in the view of `selection`. The answer becomes that of the
    //! view operation, if this is its last data operation. False by default.
    virtual bool Perform(zbIBrowserSelectionManager* selection) {
        static_cast<void>(selection);
        return false;
    }

protected:
    ~zbIBrowserDataOperation() = default;
};
