// SPDX-License-Identifier: MIT
//! \file
//! The view property by which lists are sorted, one for the whole process.
#pragma once

class zbIBrowserViewProperty;

namespace zbbrowser::detail {

//! What the last sort of a list by a scripted column took from its column; null at first. A column
//! without a style or an element takes nothing, and its lists are then sorted by what an earlier
//! sort left here, of whichever view.
//!
//! Not owned. A property that goes is forgotten.
zbIBrowserViewProperty* CurrentSortProperty();
void SetCurrentSortProperty(zbIBrowserViewProperty* property);

//! Called by each view property when it goes. Does nothing unless it is the current one.
void ForgetSortProperty(zbIBrowserViewProperty const* property);

} // namespace zbbrowser::detail
