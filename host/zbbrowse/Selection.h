// SPDX-License-Identifier: MIT
//! \file
//! Selecting rows by name.
#pragma once

#include <string>
#include <vector>

class zbBrowserView;

namespace zbbrowse {

//! Selects the rows whose names one of the patterns matches, and no others. A pattern matches whole
//! names, case matters: `*` stands for any characters, `?` for one, `[abc]` and `[a-c]` for one of
//! them, `[^abc]` for one other. A row without a name is never selected.
void SelectRows(zbBrowserView& view, std::vector<std::string> const& patterns);

} // namespace zbbrowse
