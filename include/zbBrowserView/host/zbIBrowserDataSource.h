// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataSource: a named kind of data items, with their properties and their order.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

#include <cstdint>
#include <map>
#include <vector>

class zbIBrowserDataCtrl;
class zbIBrowserDataItem;
class zbIBrowserDataProperty;
class zbIBrowserDataSource;
class zbIBrowserViewItemFreeFolder;

//! Identity of a type of data: equal numbers mean the same type. Sources of one type may come and
//! go, for instance one for each open document, and a new view moves from one to the next by it.
using zbBrowserTypeId = std::uintptr_t;

//! Data items by source, as signals and operations hand them to the host. Sources stand in the
//! order of their addresses.
using zbBrowserDataItemMap = std::map<zbIBrowserDataSource*, std::vector<zbIBrowserDataItem*>>;

//! A named kind of data items. Implement one of the two derived interfaces:
//! zbIBrowserDataSourceSimple for a flat set of items and zbIBrowserDataSourceHierarchical for a
//! tree; this base is what both have in common.
//!
//! Ownership: the host's. A view holds a plain pointer from DataSourceConnect until
//! DataSourceDisconnect or until the view is deleted. The host disconnects a source from every view
//! before it deletes the source; nothing reminds it.
//!
//! The four comparisons share one form: they set `cmp` below, equal to or above zero as `a` stands
//! before, equal to or after `b`, and answer true; or they answer false, which means that they
//! decide nothing and the next sort key is asked. They are called very often (n log n times in a
//! sort of n rows), must not change anything and must not call back into the view. An order that
//! contradicts itself gives an unspecified order of rows and does no other harm.
class ZBBROWSERVIEW_API zbIBrowserDataSource {
public:
    //! The data control to which the source belongs.
    //! Null: the source is treated as one of no control: sources are then not ordered among each
    //! other, and new views cannot read its items.
    virtual zbIBrowserDataCtrl* GetDataCtrl() = 0;

    //! The name under which views and scripts find the source. Views compare it without regard to
    //! ASCII case, so two sources of one control and one kind must differ in more than that.
    //! Requires: not null; the text stays valid and unchanged while the source is connected.
    virtual char const* GetName() const = 0;

    //! Type identity, compared with the ends of references (zbIBrowserDataReference) and with
    //! other sources. New generation only.
    virtual zbBrowserTypeId GetTypeId() = 0;

    //! True from the moment when the set of items of the source has changed until ClearDirty. A
    //! rebuild of dirty data passes over sources that answer false. See also the derived
    //! interfaces.
    virtual bool IsDirty() const = 0;

    //! Text that stands for a free folder in the scripts of view properties and default icons; true
    //! if `out` was set. This version of the library never asks: it uses the folder's absolute path
    //! name. Answer false.
    virtual bool GetFolderScriptText(zbIBrowserViewItemFreeFolder* folder, zbString& out) = 0;

    //! Finds a data property of the items of this source by name; exact comparison is expected.
    //! Called with the name of a custom sort property and with "id".
    //! Null: there is no property of that name; a custom sort then goes by what SetSortProperty was
    //! last given.
    //! Ownership: the host's; the property stays valid as long as the source.
    virtual zbIBrowserDataProperty* FindDataProperty(char const* name) = 0;

    //! Writes an integer to an item of this source. Called by SetIntegerValue of a view property of
    //! an old view. `property` may be null, when the view property has none for this source.
    //! The host reports the change of the item as any other.
    virtual void SetDataPropertyInteger(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                        int value) = 0;

    //! As SetDataPropertyInteger, for a truth value.
    virtual void SetDataPropertyBoolean(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                        bool value) = 0;

    //! Sets the property that the following calls of CompareBySortProperty compare by. It holds
    //! until it is set again. Null: no property; CompareBySortProperty then decides nothing.
    virtual void SetSortProperty(zbIBrowserDataProperty* property) = 0;

    //! Compares two items by the property of SetSortProperty. Called on the source of `a`; `b` may
    //! belong to another source.
    virtual bool CompareBySortProperty(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) = 0;

    //! Compares by one property for each item, which is how a sorted column orders its rows. Called
    //! on the source of `a`; `b` may belong to another source and then has a property of its own.
    //! Requires: none of the four is null when the library calls.
    virtual bool CompareByDataProperty(zbIBrowserDataItem* a, zbIBrowserDataProperty* propertyOfA,
                                       zbIBrowserDataItem* b, zbIBrowserDataProperty* propertyOfB,
                                       int& cmp) = 0;

    //! Compares by name; the key after the properties.
    virtual bool CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) = 0;

    //! Compares by identity; the last key. It should tell any two different items apart.
    virtual bool CompareById(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) = 0;

protected:
    ~zbIBrowserDataSource() = default;
};
