// SPDX-License-Identifier: MIT
//! \file
//! The only place where a name becomes part of a query.
#pragma once

#include <string>
#include <string_view>

namespace zbsqlite::detail {

//! The name as an SQL identifier: whatever bytes it is made of, it stays one name.
//!
//! SQLite reads a quoted name that it does not know as a text literal. A column is therefore
//! always written with its table in front (`s."name"`), where that rule does not hold.
std::string QuoteName(std::string_view name);

} // namespace zbsqlite::detail
