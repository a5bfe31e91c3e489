// SPDX-License-Identifier: MIT
//! \file
//! What items ask of the handlers of an old view.
#pragma once

#include <vector>

class zbBrowserViewItemDataLeaf;
class zbBrowserViewItemFreeFolder;
class zbIBrowserDataSource;
class zbIBrowserViewItem;

namespace zbbrowser::detail {

//! The questions that items and contents have for the filter, sort, selection and style handlers.
//! No view has these handlers yet, so each answer is that of a view without one: nothing is
//! filtered, nothing is sorted, nothing is selected. A handler that joins the view takes over its
//! group of functions here; nobody else has to change.
class HandlerSeams {
public:
    //! \name Filter
    //! \{
    bool IsDataSourceFiltered(zbIBrowserDataSource const* source) const;
    bool IsViewItemFiltered(zbBrowserViewItemDataLeaf const& leaf) const;
    //! \}

    //! \name Sorting
    //! The order in which a group of children is listed: sorted or as stored, and which way.
    //! \{
    struct ChildOrder {
        bool sorted;
        bool ascending;
    };
    ChildOrder OrderOfFolders() const;
    ChildOrder OrderOfLeaves() const;
    //! \}

    //! \name Selection
    //! \{
    void UpdateSelection(std::vector<zbIBrowserViewItem*> const& items, bool select, bool clear);
    void UpdatePreviousSelection();
    bool SelectsItems() const;
    void SelectViewItem(zbIBrowserViewItem& item, bool select, bool flag);
    void DeselectViewItem(zbIBrowserViewItem const& item, bool recursive);
    //! \}

    //! \name Styles
    //! \{
    void RemoveFolderStyle(zbBrowserViewItemFreeFolder const& folder);
    //! \}
};

} // namespace zbbrowser::detail
