// SPDX-License-Identifier: MIT
//! \file
//! PendingViewChangeInfo: what a host notes about a batch of changes.
//!
//! The library passes the record through by reference and neither reads nor writes it. A host that
//! wants fields puts a header of this name before this one on its include path and defines the
//! record there.
#pragma once

namespace zbbrowser {

struct PendingViewChangeInfo {};

} // namespace zbbrowser
