// SPDX-License-Identifier: MIT
//! \file
//! Names of views and view items for the lines that tests compare.
#pragma once

#include <string>

class zbIBrowserDataItem;
class zbIBrowserView;
class zbIBrowserViewItem;

namespace zbtest {

class RecordingHostCalls;

//! A row has the name of its data item, a folder its own, the root is "/", and the group of a
//! source is "[source]"; null is "null". With `calls`, the data items that it knows are named by
//! their address alone, so that a row whose data item has been freed can be named as well.
[[nodiscard]] std::string NameOf(zbIBrowserViewItem const* item,
                                 RecordingHostCalls const* calls = nullptr);

//! The name of a data item, asked from itself; null is "null".
[[nodiscard]] std::string NameOf(zbIBrowserDataItem* item);

//! The name of a view; null is "null".
[[nodiscard]] std::string NameOf(zbIBrowserView const* view);

} // namespace zbtest
