// SPDX-License-Identifier: MIT
//! \file
//! From the items of a new view to the data that they show.
#pragma once

#include <set>
#include <vector>

class zbIBrowserDataItem;
class zbIBrowserDataSource;
class zbIBrowserViewItem;

namespace zbbrowser::detail {

class ViewContext;

//! Items that are not of the view are passed over; pointers to them are compared and not followed.
//! Folders show no data yet and so have none to add.
//! Requires: an open CallScope.
//! \{
std::set<zbIBrowserDataItem*> DataItemsOf(ViewContext const& context,
                                          std::vector<zbIBrowserViewItem*> const& items);
std::set<zbIBrowserDataSource*> DataSourcesOf(ViewContext const& context,
                                              std::vector<zbIBrowserViewItem*> const& items);
//! \}

} // namespace zbbrowser::detail
