// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::ViewItemChanges: what a widget has not yet taken over of an item.
#pragma once

#include <cstdint>

namespace zbbrowser {

//! Changes of an item of a new view since they were last cleared, for the host's widget to follow.
//! Each byte is 0 or 1. An item of an old view never has any: there the signals tell.
struct ViewItemChanges {
    std::uint8_t Created = 0;         //!< Insert this item.
    std::uint8_t Deleted = 0;         //!< Remove this item; it lives until the changes are cleared.
    std::uint8_t Updated = 0;         //!< Redraw this item.
    std::uint8_t Expanded = 0;        //!< The item was just expanded: its children are there now.
    std::uint8_t Reserved = 0;        //!< Set by nothing, merged like the others.
    std::uint8_t ChildrenAdded = 0;   //!< At least one child was added in a visible place.
    std::uint8_t ChildrenRemoved = 0; //!< At least one child was marked Deleted.

    //! Adds what `other` says, field by field; a flag that is set stays set.
    void Merge(ViewItemChanges const& other) {
        Created |= other.Created;
        Deleted |= other.Deleted;
        Updated |= other.Updated;
        Expanded |= other.Expanded;
        Reserved |= other.Reserved;
        ChildrenAdded |= other.ChildrenAdded;
        ChildrenRemoved |= other.ChildrenRemoved;
    }

    //! True if any flag is set.
    bool Any() const {
        return (Created | Deleted | Updated | Expanded | Reserved | ChildrenAdded |
                ChildrenRemoved) != 0;
    }
};

} // namespace zbbrowser
