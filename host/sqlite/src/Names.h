// SPDX-License-Identifier: MIT
//! \file
//! Names that differ in ASCII case only are one, to SQLite and to the views.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zbsqlite {
struct Table;
}

namespace zbsqlite::detail {

//! ASCII capitals made small, every other byte as it is.
constexpr char Fold(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

//! The name with its ASCII capitals made small: equal for names that are one.
std::string FoldName(std::string_view name);

//! The order of two texts as `FoldName` leaves them, without making copies. It is that of SQL's
//! NOCASE in all: behind a zero byte that both have in the same place only the lengths count.
int CompareFolded(std::string_view a, std::string_view b);

//! A name for each table by which a view can tell it from all others: its own, with the schema in
//! front ("main.part") where several schemas have one of that name.
std::vector<std::string> UniqueNames(std::vector<Table> const& tables);

} // namespace zbsqlite::detail
