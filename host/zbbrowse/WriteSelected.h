// SPDX-License-Identifier: MIT
//! \file
//! Writing to selected rows.
#pragma once

#include "zbbrowse/Options.h"

#include <vector>

namespace zbsqlite {
class Host;
}

namespace zbbrowse {

//! Writes the values to the selected rows of their lists, in one transaction and in the order of
//! `writes`. The views are not told.
//! Failure: nothing is written. Throws `Complaint` for a list or a column that is not there, and
//! for a list of which nothing is selected; `zbsqlite::Error` for what the database refuses.
void WriteSelected(zbsqlite::Host& host, std::vector<WriteOption> const& writes);

} // namespace zbbrowse
