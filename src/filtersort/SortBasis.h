// SPDX-License-Identifier: MIT
//! \file
//! What a list of rows was sorted by.
#pragma once

#include <cstdint>
#include <map>

class zbIBrowserDataProperty;
class zbIBrowserDataSourceSimple;
class zbIBrowserViewProperty;

namespace zbbrowser::detail {

//! While it stays the same, rows that are put behind a sorted list can be sorted into it. The
//! pointers are compared and never followed.
struct SortBasis {
    std::uint64_t orderNumber = 0;              // 0: not sorted
    zbIBrowserViewProperty* property = nullptr; // Null: none, or the default column
    std::map<zbIBrowserDataSourceSimple*, zbIBrowserDataProperty*> connections;

    bool operator==(SortBasis const&) const = default;
};

} // namespace zbbrowser::detail
