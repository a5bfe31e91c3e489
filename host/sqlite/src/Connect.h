// SPDX-License-Identifier: MIT
//! \file
//! What the two generations of view call differently.
#pragma once

class zbIBrowserDataProperty;
class zbIBrowserView;
class zbIBrowserViewProperty;

namespace zbsqlite {
class Source;
}

namespace zbsqlite::detail {

//! Lets a view property read `dataProperty` for the items of a source.
bool Connect(zbIBrowserView& view, zbIBrowserViewProperty* property, Source& source,
             zbIBrowserDataProperty* dataProperty);

//! Makes a source known to a view.
bool Connect(zbIBrowserView& view, Source& source);

//! Makes a source known to a view, and the names of its rows to the view's name property.
void ConnectWithNames(zbIBrowserView& view, Source& source);

//! Takes a source, and all that the view shows of it, out of a view.
bool Disconnect(zbIBrowserView& view, Source& source);

} // namespace zbsqlite::detail
