// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataSourceSimple: a flat set of data items.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSource.h>

class zbIBrowserDataItemSimple;

//! A flat set of data items. A view shows it as a list of rows in a free folder. It is also the
//! type of the items in a tree: see zbIBrowserDataSourceHierarchical.
class ZBBROWSERVIEW_API zbIBrowserDataSourceSimple : public zbIBrowserDataSource {
public:
    //! Caption of the group that a view makes for the rows of this source, unless the group was
    //! given one of its own. Not null.
    virtual char const* GetListCaption() const = 0;

    //! Name of the type of the items, for people. Stands beside the source's name in the filter map
    //! of an old view. Not null.
    virtual char const* GetTypeName() const = 0;

    //! A view has connected the source: called once for each view, after the source has entered the
    //! view's list. Trees have no such call; both kinds get OnDisconnected.
    virtual void OnConnected() = 0;

    //! A view has let go of the source, by DataSourceDisconnect or DataSourceDisconnectAll. Its
    //! rows are gone by then, unless DataSourceDisconnectAll was told to leave them. Not called
    //! when the view itself is deleted.
    virtual void OnDisconnected() = 0;

    //! Appends the group sources to which this source belongs, for the filter with grouping on.
    //! Requires: `out` arrives empty. Left empty: the source stands for itself.
    virtual void GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>& out) = 0;

    //! Whether this source is `source` or is included in it, for instance as a derived type. Asked
    //! when a view item is asked for HasDataSource. Null: answer false.
    virtual bool IsOfType(zbIBrowserDataSourceSimple* source) = 0;

    //! Takes back (`false`) or sets (`true`) the mark that IsDirty reads. Called with false after
    //! lists of dirty sources were redrawn, and with true when a style of an old view changed and
    //! its lists are to be drawn again. The mark belongs to the source, not to a view: the first
    //! view, and in it the first folder, that redraws takes it back for all.
    virtual void ClearDirty(bool dirty) = 0;

    //! Appends all items of the source, in the order in which an unsorted view shows them. Called
    //! when a list is made, twice when a dirty one is rebuilt, for what has gone and for what is
    //! new, and when a folder is asked whether its data is empty. Keep the items rather than make
    //! them anew: an item keeps its address while it lives.
    //! Requires: `out` arrives empty. Each item stands in it once and is not null.
    //! Failure: false, and `out` is not looked at. A list that is made then stays recorded without
    //! rows, and CreateList answers false; a list that is rebuilt keeps the rows that it has.
    virtual bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) = 0;

    //! Whether `item` is one of the items that GetDataItems would give now.
    //!
    //! Asked of each row when a list is rebuilt: false makes the row go. Asked as well after a slot
    //! has run, which may have deleted the item, where false passes it over: of each new row of a
    //! list while ViewItemCreated is heard, of each row of a refresh, and of a new item for each
    //! further folder and view.
    //! `item` may have been deleted already: compare the pointer with what you hold, in constant
    //! time if you can, and never follow it.
    virtual bool ContainsDataItem(zbIBrowserDataItemSimple* item) = 0;

    //! Whether a popup item of an old view that is bound to this source may also be used with
    //! nothing selected.
    virtual bool AcceptsEmptySelection() = 0;

    //! The source under whose popup items the items of this one appear, if it is a subdivision of
    //! another. Null, as by default: this source stands for itself.
    virtual zbIBrowserDataSource* GetParentSource() const { return nullptr; }

protected:
    ~zbIBrowserDataSourceSimple() = default;
};
