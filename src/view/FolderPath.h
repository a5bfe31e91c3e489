// SPDX-License-Identifier: MIT
//! \file
//! Where a folder stands, as text.
#pragma once

class zbIBrowserViewItemFreeFolder;
class zbString;

namespace zbbrowser::detail {

//! "/" for the root, "/a/b" for folder b in a. Follows the written parents, which may make a
//! circle: then each folder of it comes once.
//! False for null, `out` untouched.
bool FolderPath(zbIBrowserViewItemFreeFolder const* folder, zbString& out);

} // namespace zbbrowser::detail
