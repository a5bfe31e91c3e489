// SPDX-License-Identifier: MIT
//! \file
//! From the items of a new view to the data that they show.
#pragma once

#include <functional>
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

//! Visits each data item once, in the order of their addresses. `visit` may call the host: the data
//! item of a row that leaves the view meanwhile is not visited any more.
void ForEachDataItemOf(ViewContext const& context, std::vector<zbIBrowserViewItem*> const& items,
                       std::function<void(zbIBrowserDataItem&)> const& visit);
std::set<zbIBrowserDataItem*> DataItemsOf(ViewContext const& context,
                                          std::vector<zbIBrowserViewItem*> const& items);
//! Only those of that source.
std::set<zbIBrowserDataItem*> DataItemsOf(ViewContext const& context,
                                          std::vector<zbIBrowserViewItem*> const& items,
                                          zbIBrowserDataSource const* source);
std::set<zbIBrowserDataSource*> DataSourcesOf(ViewContext const& context,
                                              std::vector<zbIBrowserViewItem*> const& items);
//! \}

} // namespace zbbrowser::detail
