// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserViewColumn: a column of a view.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

#include <vector>

class zbIBrowserDataSource;
class zbIBrowserDataSourceSimple;
class zbIBrowserPopupMenu;
class zbIBrowserStyle;
class zbIBrowserStyleElement;
class zbIBrowserStyleManager;
class zbIBrowserView;
class zbIBrowserViewItem;

//! A column: a name, a title, some flags and a style manager. It has no cells: what a row shows is
//! told by the style that the manager picks for it.
//!
//! A view has one default column, "default_column" with the title "Entities", and any number of
//! scripted columns. Names of columns are compared regardless of case.
//!
//! Ownership: the view's; valid until `ColumnDeleted` has been raised for the column, and then
//! until the running operation of the view returns.
//!
//! The operations on styles are those of zbIBrowserStyleManager with the same arguments and
//! results.
class ZBBROWSERVIEW_API zbIBrowserViewColumn {
public:
    virtual zbIBrowserStyleManager* GetStyleManager() const = 0;
    virtual zbIBrowserView* GetView() const = 0;

    //! Never null, and never changes.
    virtual char const* GetName() const = 0;

    //! The header text; the name if the title is empty.
    virtual char const* GetTitle() const = 0;

    //! True for what `CreateIconColumn` made.
    virtual bool IsIconColumn() const = 0;

    virtual bool GetStyles(std::vector<zbIBrowserStyle*>& out) const = 0;
    virtual bool CreateStyle(zbString const& name) = 0;
    virtual zbIBrowserStyle* FindStyle(zbString const& name) const = 0;
    virtual bool DeleteStyle(zbIBrowserStyle* style) = 0;
    virtual bool DeleteStyleElement(zbIBrowserStyleElement* element) = 0;

    virtual bool IsDefault() const = 0;

    //! A number that the host gives; 0 at first.
    virtual void SetIndex(unsigned index) = 0;
    virtual unsigned GetIndex() const = 0;

    //! A number that can be given once: after the first number other than 0 it stays. No one in the
    //! library reads it.
    virtual void SetPosition(unsigned position) = 0;
    virtual unsigned GetPosition() const = 0;

    //! Sets the menu of the column header by name. False, and the menu stays, if the view has no
    //! menu of that name.
    virtual bool SetPopupMenu(char const* name) = 0;
    //! Null: no menu was set, or it has been deleted.
    virtual zbIBrowserPopupMenu* GetPopupMenu() const = 0;

    //! True at first.
    virtual bool IsVisible() const = 0;
    //! Stores the mark alone. To show and hide columns use `ShowScriptedColumn` of the view, which
    //! also tells the listeners and ends the sorting.
    virtual void SetVisible(bool visible) = 0;

    //! Whether the user may sort by the column. True at first, whatever the view's flag is then.
    virtual bool GetSorting() const = 0;
    //! Signals: on a change `ColumnStateChanged(column, sorting)`.
    virtual void SetSorting(bool sorting) = 0;

    //! Whether texts of the column may be italic. True at first, whatever the view's flag is then.
    virtual bool GetItalic() const = 0;
    //! Signals: on a change `ColumnStateChanged(column, sorting)`, whose second argument is the
    //! flag of GetSorting and not this one, then `ColumnUpdated(column)`.
    virtual void SetItalic(bool italic) = 0;

    //! Null: false. Signals: `ColumnCaptionChanged(column)`, also without a change.
    virtual bool SetTitle(char const* title) = 0;

    //! New: as the manager's. Old: false.
    virtual bool SetFolderDataSourceStyle(zbIBrowserViewItem* folder, zbIBrowserDataSource* source,
                                          bool flag) = 0;
    //! Old: as the manager's. New: false.
    virtual bool SetFolderDataListStyle(zbIBrowserViewItem* folder,
                                        zbIBrowserDataSourceSimple* source, bool flag) = 0;
    virtual bool AddFolderStyle(zbIBrowserViewItem* folder) = 0;
    virtual zbIBrowserStyle* GetViewItemStyle(zbIBrowserViewItem* item) = 0;
    virtual bool SetCurrentStyle(zbIBrowserStyle* style) = 0;

    //! The lists must be sorted anew the next time that the view is told to sort by this column.
    //! True at first; `SetAscendingOrder` of the view clears it.
    virtual bool IsUnsorted() const = 0;
    virtual void SetUnsorted(bool unsorted) = 0;

protected:
    ~zbIBrowserViewColumn() = default;
};
