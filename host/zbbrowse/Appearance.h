// SPDX-License-Identifier: MIT
//! \file
//! Columns, names, sorting and bold rows, as the options ask for them.
#pragma once

#include "zbbrowse/Options.h"

#include <vector>

class zbIBrowserView;

namespace zbsqlite {
class Source;
}

namespace zbbrowse {

//! Whether the options ask for anything that the view's columns show. Without it each list is shown
//! with its own columns.
bool IsPainted(Options const& options);

//! Gives the view its columns and sorts it. `shown` are the sources that it will show.
//! Throws `Complaint` for a column that none of them has.
void SetAppearance(zbIBrowserView& view, std::vector<zbsqlite::Source*> const& shown,
                   Options const& options);

} // namespace zbbrowse
