// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataProperty: one readable value of the items of a source.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/platform/zbVariant.h>

class zbIBrowserDataItem;

//! One readable value of the items of a source: a column of a table, a field of a record. A view
//! property binds one of these to each source, and rows, columns, icons and sorting read it.
//!
//! Old views use the seven typed readers; new views use GetVariant and SetVariant. A reader that
//! answers false leaves the output as it was, and the caller shows nothing. A property that can
//! give its value in several forms answers several of the readers; none is obliged to convert.
//!
//! In all readers `item` is not null and is the flat face of an item of a tree. `parent` is the
//! flat face of the item above it in the tree, for values that depend on where the item stands;
//! null for items of flat sources and for items on top. Readers are called while a view is painted
//! or sorted: they must be quick, change nothing and not call back into the view.
//!
//! Ownership: the host's. Stays valid as long as its source is connected to a view, and as long as
//! a view property is bound to it.
class ZBBROWSERVIEW_API zbIBrowserDataProperty {
public:
    //! The value as it is to be shown to people: with unit, rounding, translation. Not GetString,
    //! which gives the plain value.
    virtual bool GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* parent,
                                zbString& out) = 0;

    virtual bool GetInteger(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, int& out) = 0;

    virtual bool GetUnsigned(zbIBrowserDataItem* item, zbIBrowserDataItem* parent,
                             unsigned& out) = 0;

    virtual bool GetBoolean(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, bool& out) = 0;

    //! The text without a copy. Null: the property has no text that lasts; GetString may still
    //! answer. The pointer stays valid until the item changes or the property is read again.
    virtual char const* GetTextPointer(zbIBrowserDataItem* item, zbIBrowserDataItem* parent) = 0;

    //! The plain value as text.
    virtual bool GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, zbString& out) = 0;

    virtual bool GetDouble(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, double& out) = 0;

    //! The value of the item on which zbIBrowserDataCtrl::SetCurrentDataItem has positioned the
    //! control; it is called right before. Kinds that the library understands stand in zbVariant.h.
    virtual bool GetVariant(zbVariant& out) = 0;

    //! Writes the value of the item on which the control is positioned. False: nothing was written.
    //! The host reports the change of the item as any other.
    virtual bool SetVariant(zbVariant value) = 0;

protected:
    ~zbIBrowserDataProperty() = default;
};
