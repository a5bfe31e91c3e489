// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserStyleElement: one icon or text in a cell.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

class zbIBrowserDataProperty;
class zbIBrowserDataSource;
class zbIBrowserStyle;
class zbIBrowserViewProperty;

//! A part of a cell: points at the view property that gives its value.
//!
//! Ownership: the view's, also after it has left its style: the object lives as long as its view. A
//! host may delete an element earlier, whether it is in a style or not; the style then forgets it
//! without a signal.
class ZBBROWSERVIEW_API zbIBrowserStyleElement {
public:
    //! The style that it belongs to or last belonged to. Null: when the host has deleted that one.
    virtual zbIBrowserStyle* GetStyle() const = 0;

    //! Texts given at creation; the name is looked up regardless of case. Never null.
    virtual char const* GetName() const = 0;
    virtual char const* GetTitle() const = 0;

    //! Name of the gui map that turns values into icons. Kept for the host; the library only clears
    //! it when the map is deleted. "" at first, never null.
    virtual char const* GetGuiMapName() const = 0;
    virtual bool SetGuiMapName(zbString const& name) = 0;

    //! Null: the element was never bound, or its property was deleted; it then shows nothing.
    virtual zbIBrowserViewProperty* GetViewProperty() const = 0;

    //! Binds the element; true. Null: takes the binding away.
    //! Requires: a property of the same view. One of another view is bound as well, but nobody
    //! takes it away when it is deleted or its view goes.
    virtual bool SetViewProperty(zbIBrowserViewProperty* property) = 0;

    //! What the view property reads for items of that source. Null: for null, without a view
    //! property, and without a connection.
    virtual zbIBrowserDataProperty* GetDataProperty(zbIBrowserDataSource* source) = 0;

    virtual ~zbIBrowserStyleElement() = default;
};
