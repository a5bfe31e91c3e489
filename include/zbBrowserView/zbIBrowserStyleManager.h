// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserStyleManager: the styles of one column.
#pragma once

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>
#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

#include <vector>

class zbIBrowserDataSource;
class zbIBrowserDataSourceSimple;
class zbIBrowserStyle;
class zbIBrowserStyleElement;
class zbIBrowserViewColumn;
class zbIBrowserViewItem;
class zbIBrowserViewProperty;

//! Holds the styles of a column and picks one for each item.
//!
//! The default column has the default style, "default_style", with the elements
//! "default_style_elem_icon" and "default_style_elem_name" in that order. Other columns start
//! without a style and show nothing. The current style is the one created or set last.
//!
//! In the default column a free folder can have styles of its own, each with data sources that it
//! is for: first `AddFolderStyle` for the folder, with the wanted style current, then
//! `SetFolderDataListStyle` (old) or `SetFolderDataSourceStyle` (new) for each source.
//!
//! Style names are compared exactly, case included.
class ZBBROWSERVIEW_API zbIBrowserStyleManager : public zbBrowserErrorReporter {
public:
    //! The column that owns this manager.
    virtual zbIBrowserViewColumn* GetColumn() const = 0;

    //! Adds an empty style and makes it current. No signal.
    //! Failure: false, with an error text, if the name is taken; false for an empty name.
    virtual bool CreateStyle(zbString const& name) = 0;

    //! Old: as DeleteStyle, with two differences: `StyleDeleted` comes after the style has left the
    //! list, and the folders keep the style. Null and unknown: false. New: false.
    virtual bool DeleteStyleByName(char const* name) = 0;

    //! Takes a style out. If it was current, the default style is current again: none, in other
    //! columns than the default one.
    //! Signals: `StyleDeleted(style)` before it leaves the list, unless it is pending.
    //! Failure: false, with an error text, for the default style; false for null and unknown. True,
    //! and the style stays, if it is not pending and there is no controller.
    virtual bool DeleteStyle(zbIBrowserStyle* style) = 0;

    //! Null: when there is none of that name.
    virtual zbIBrowserStyle* FindStyle(zbString const& name) const = 0;

    //! Replaces `out` by the styles in order of creation; true.
    virtual bool GetStyles(std::vector<zbIBrowserStyle*>& out) const = 0;

    //! New: makes the current style the one for rows of `source` in `folder`, or takes that back.
    //! \return false always, also when it has worked.
    //! Works only in the default column, for a free folder that has the current style by
    //! AddFolderStyle. A first entry for a source is made only if the folder shows that source.
    //! Nothing is signalled and nothing is drawn again.
    //!
    //! Old: does nothing.
    virtual bool SetFolderDataSourceStyle(zbIBrowserViewItem* folder, zbIBrowserDataSource* source,
                                          bool flag) = 0;

    //! Old: the same, with two differences. The source is looked for among the folder's lists by
    //! its name, regardless of case; and it is marked dirty (`ClearDirty(true)`) and all dirty
    //! lists of the view are drawn again, also when the flag was the same before.
    //!
    //! New: does nothing. \return false always.
    virtual bool SetFolderDataListStyle(zbIBrowserViewItem* folder,
                                        zbIBrowserDataSourceSimple* source, bool flag) = 0;

    //! Gives the free folder the current style, for no source at first.
    //! Failure: false outside the default column, for anything but a free folder, and while the
    //! default style is current.
    virtual bool AddFolderStyle(zbIBrowserViewItem* folder) = 0;

    //! Takes all styles of its own from the free folder. False: it had none.
    virtual bool RemoveFolderStyles(zbIBrowserViewItem* folder) = 0;

    //! The style for an item.
    //! In the default column: the default style, but for a row of a source for which its free
    //! folder has styles of its own the last of these in the order of their addresses. In any other
    //! column: the current style for rows and for free folders with `GetFreeFolderStyle`, null for
    //! other folders and groups. Null: for null, and if a slot has deleted the style or the view.
    //! Signals: `StyleCreated(style)` if it is pending, at each call.
    virtual zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewItem* item) = 0;

    //! Takes an element out of each style that has it, see zbIBrowserStyle::DeleteElement; true
    //! always.
    virtual bool DeleteStyleElement(zbIBrowserStyleElement* element) = 0;

    //! Makes a style of this column current. False: for null and any other.
    virtual bool SetCurrentStyle(zbIBrowserStyle* style) = 0;

    //! Takes the property from all elements that are bound to it. Null: nothing.
    virtual void OnViewPropertyDeleted(zbIBrowserViewProperty* property) = 0;

    //! Clears the gui map of all elements that name it exactly.
    virtual void OnGuiMapDeleted(zbString const& name) = 0;
};
