// SPDX-License-Identifier: MIT
//! \file
//! Dump: an old view as text.
#pragma once

#include <string>

class zbBrowserView;

namespace zbtest {

class RecordingHostCalls;

//! The folders of a view with their lists, trees and rows, hidden ones included:
//!
//!     / [part screw*] {assembly:part*,tool}
//!       bolt_1
//!       nut_2 hidden
//!       a/ [part] open groups
//!         bolt_1
//!         b/ unused
//!
//! In a folder come its lists (a star: grouped), its trees with their types (a star: grouped), its
//! flags, its rows, and then the folders below it. The flags are `open`, `hidden`, `groups` (its
//! leaves), `style`, `empty-containers`, `sorts` (its child folders), `when-filled` (not shown
//! when empty), `bold`, `italic` and `unused` (it never showed anything and was never passed an
//! event). The root is always open, which is not said.
//!
//! With `calls`, rows are named by the addresses of their data items, which may be gone.
[[nodiscard]] std::string Dump(zbBrowserView& view, RecordingHostCalls const* calls = nullptr);

} // namespace zbtest
