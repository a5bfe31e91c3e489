// SPDX-License-Identifier: MIT
#include "Quote.h"

namespace zbsqlite::detail {

std::string QuoteName(std::string_view name) {
    std::string quoted;
    quoted.reserve(name.size() + 2);
    quoted += '"';
    for (char const c : name) {
        if (c == '"')
            quoted += '"';
        quoted += c;
    }
    quoted += '"';
    return quoted;
}

} // namespace zbsqlite::detail
