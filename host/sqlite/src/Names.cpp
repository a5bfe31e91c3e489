// SPDX-License-Identifier: MIT
#include "Names.h"

#include <zbBrowserView/sqlite/Schema.h>

#include <algorithm>
#include <cstring>
#include <unordered_map>
#include <unordered_set>

namespace zbsqlite::detail {

namespace {

//! A length up to which the texts are the same byte for byte, found in large steps: what is sorted
//! often begins alike.
std::size_t EqualPrefix(std::string_view a, std::string_view b) {
    constexpr std::size_t step = 8;
    std::size_t const common = std::min(a.size(), b.size());
    std::size_t length = 0;
    while (length + step <= common && std::memcmp(&a[length], &b[length], step) == 0)
        length += step;
    return length;
}

} // namespace

std::string FoldName(std::string_view name) {
    std::string folded(name);
    for (char& c : folded)
        c = Fold(c);
    return folded;
}

int CompareFolded(std::string_view a, std::string_view b) {
    std::size_t const common = std::min(a.size(), b.size());
    for (std::size_t i = EqualPrefix(a, b); i < common; ++i) {
        // Bytes count as unsigned.
        auto const left = static_cast<unsigned char>(Fold(a[i]));
        auto const right = static_cast<unsigned char>(Fold(b[i]));
        if (left == right)
            continue;
        if (a.substr(0, i).find('\0') != std::string_view::npos)
            break;
        return left < right ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

std::vector<std::string> UniqueNames(std::vector<Table> const& tables) {
    std::unordered_map<std::string, int> uses;
    for (Table const& table : tables)
        ++uses[FoldName(table.name)];

    // Plain names come first, so that a table which is really called "main.part" keeps its name.
    std::unordered_set<std::string> taken;
    std::vector<std::string> names(tables.size());
    for (std::size_t i = 0; i < tables.size(); ++i) {
        std::string const folded = FoldName(tables[i].name);
        if (uses[folded] == 1) {
            names[i] = tables[i].name;
            taken.insert(folded);
        }
    }
    for (std::size_t i = 0; i < tables.size(); ++i) {
        if (uses[FoldName(tables[i].name)] == 1)
            continue;
        std::string const qualified = tables[i].schema + "." + tables[i].name;
        names[i] = qualified;
        for (int number = 2; !taken.insert(FoldName(names[i])).second; ++number)
            names[i] = qualified + " (" + std::to_string(number) + ")";
    }
    return names;
}

} // namespace zbsqlite::detail
