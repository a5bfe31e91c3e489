// SPDX-License-Identifier: MIT
//! \file
//! All styles and style elements of one view.
#pragma once

#include "containers/PointerList.h"

class zbBrowserStyle;
class zbBrowserStyleElement;
class zbBrowserViewCtrl;
class zbIBrowserStyle;
class zbIBrowserStyleElement;
class zbIBrowserViewColumn;
class zbIBrowserViewProperty;

namespace zbbrowser::detail {

class ViewContext;

//! Knows every style and element of its view that is alive, whether it stands in a list or was
//! taken out, and frees what is left at the end. Each enters with its construction and leaves with
//! its destruction, which a host may bring about.
//!
//! Pointers that are looked up here are compared and never followed.
class StyleShelf {
public:
    explicit StyleShelf(ViewContext& context)
        : context_(context) {}
    StyleShelf(StyleShelf const&) = delete;
    StyleShelf& operator=(StyleShelf const&) = delete;
    ~StyleShelf();

    //! Null: it is not, or no longer, one of this view's.
    zbBrowserStyle* Find(zbIBrowserStyle const* style) const;
    zbBrowserStyleElement* Find(zbIBrowserStyleElement const* element) const;

    //! The column of the element's style. Null: the element is not one of this view's, or its style
    //! or column has gone.
    zbIBrowserViewColumn* ColumnOf(zbIBrowserStyleElement const* element) const;

    void Add(zbBrowserStyle& style);
    void Remove(zbBrowserStyle const& style);
    void Add(zbBrowserStyleElement& element);
    void Remove(zbBrowserStyleElement const& element);

    //! Takes the property from all elements that are bound to it.
    void OnViewPropertyDeleted(zbIBrowserViewProperty const* property) const;

    //! Raise `StyleCreated` and `StyleDeleted`, unless the view has been given up.
    //! Requires: an operation of the view is running.
    //! \return false if a slot has deleted the style or the view
    //! \{
    bool TellCreated(zbIBrowserStyle& style) const;
    bool TellDeleted(zbIBrowserStyle& style) const;
    //! \}

private:
    using Event = void (zbBrowserViewCtrl::*)(zbIBrowserStyle*);
    bool Tell(Event event, zbIBrowserStyle& style) const;

    ViewContext& context_;
    PointerList<zbIBrowserStyle> styles_;          // Owned; zbBrowserStyles
    PointerList<zbIBrowserStyleElement> elements_; // Owned; zbBrowserStyleElements
};

} // namespace zbbrowser::detail
