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

} // namespace zbsqlite::detail
