// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserStyle: what a cell of a column shows.
#pragma once

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>
#include <zbBrowserView/platform/zbExport.h>

#include <vector>

class zbIBrowserStyleElement;
class zbIBrowserViewColumn;

//! An ordered list of elements, from left to right.
//!
//! A style is pending from its creation on, and again after each change, until the host clears that
//! with `SetPending(false)`. Each time that the view hands out a pending style for an item it
//! raises `StyleCreated(style)` before; a style that is not pending raises `StyleDeleted(style)`
//! when it changes or goes. A host can thus keep what it made of a style from the one to the other:
//!
//!     view->GetViewItemStyle(column, item);  // StyleCreated(style)
//!     style->SetPending(false);              // the host has it
//!     view->GetViewItemStyle(column, item);  // no signal
//!     style->CreateElement("a", "A");        // StyleDeleted(style); pending again
//!
//! Ownership: the view's, also after the style was deleted from its column: the object lives as
//! long as its view. A host may delete a style earlier; its column then forgets it without a
//! signal.
class ZBBROWSERVIEW_API zbIBrowserStyle : public zbBrowserErrorReporter {
public:
    virtual char const* GetName() const = 0;

    //! The column that has the style, or had it last. Null: when the column has gone.
    virtual zbIBrowserViewColumn* GetColumn() const = 0;

    //! Replaces `out` by the elements in order; true.
    virtual bool GetElements(std::vector<zbIBrowserStyleElement*>& out) const = 0;

    //! The first element of that name, regardless of case. Null: for null and when there is none.
    virtual zbIBrowserStyleElement* FindElement(char const* name) const = 0;

    //! Takes an element out of the style.
    //! Signals: `StyleDeleted(style)` after that, unless the style is pending.
    //! Failure: false for null and for an element that is not in the style. False, with an error
    //! text, for an element of the view that is named exactly "default_style_elem_icon" or
    //! "default_style_elem_name", in this style or in any other.
    virtual bool DeleteElement(zbIBrowserStyleElement* element) = 0;

    //! Adds an element behind the others. Names need not be unique.
    //! Signals: `StyleDeleted(style)` before that, unless the style is pending.
    //! Null names and titles count as empty. Null: if a slot has deleted the style or the view.
    virtual zbIBrowserStyleElement* CreateElement(char const* name, char const* title) = 0;

    virtual void SetPending(bool pending) = 0;
    virtual bool IsPending() const = 0;
};
