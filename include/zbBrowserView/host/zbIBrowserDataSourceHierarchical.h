// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataSourceHierarchical: a tree of data items.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSource.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

class zbIBrowserDataItemHierarchical;

//! A tree of data items. Each item of a tree has a flat face (GetDataItemSimple), and the source of
//! that face, a zbIBrowserDataSourceSimple, is the item's type in the tree: "assembly", "part".
//! A view shows the tree in a free folder, the items of the tree's own type on top.
//!
//! A tree is not told that it was connected; it is told OnDisconnected.
class ZBBROWSERVIEW_API zbIBrowserDataSourceHierarchical : public zbIBrowserDataSource {
public:
    //! A view has let go of the tree, by DataSourceDisconnect or DataSourceDisconnectAll. Not
    //! called when the view itself is deleted. Not OnViewLost, which is about one folder.
    virtual void OnDisconnected() = 0;

    //! True: Expand of an item of this tree does not build further levels, even when asked to build
    //! recursively. For trees whose levels are dear to fetch.
    virtual bool SkipsBuildOnExpand() const = 0;

    //! Whether any item of the tree is dirty. A rebuild of dirty items passes over the tree
    //! otherwise. Not IsDirty, which is about the structure of the tree.
    virtual bool HasDirtyItems() const = 0;

    //! Type of the items at the top of the tree. Not null.
    virtual zbIBrowserDataSourceSimple* GetOwnType() const = 0;

    //! Appends the types that can appear below an item of the tree; the own type belongs to them if
    //! items of it can. Requires: `out` arrives empty.
    virtual void GetChildTypes(std::vector<zbIBrowserDataSourceSimple*>& out) = 0;

    //! Finds a type of this tree by name, the own type included. Null: there is none.
    virtual zbIBrowserDataSourceSimple* FindDataSourceSimple(char const* name) = 0;

    //! Appends the children of an item, in the order in which an unsorted view shows them.
    //! Null: `parent` null asks for the top level; `type` null asks for children of every type.
    //! `recursive`: false asks for one level, which is how rows are built; true for the whole
    //! subtree, parents before their children, which is how a selection finds what it stands for.
    //! Requires: `out` arrives empty. Each item keeps its address while it lives.
    virtual void GetChildren(zbIBrowserDataItemHierarchical* parent,
                             std::vector<zbIBrowserDataItemHierarchical*>& out,
                             zbIBrowserDataSourceSimple* type, bool recursive) = 0;

    //! A view is about to build the rows of this tree in one folder: when the tree is put into the
    //! folder, and when the grouping of a type of it changes. A source may hold what it has fetched
    //! until EndChange. Calls nest. Does nothing by default.
    virtual void BeginChange() {}

    //! End of the bracket of BeginChange. Does nothing by default.
    virtual void EndChange() {}

    //! A folder of a view has stopped showing this tree; the tree stays connected to the view.
    //! Does nothing by default.
    virtual void OnViewLost() {}

protected:
    ~zbIBrowserDataSourceHierarchical() = default;
};
