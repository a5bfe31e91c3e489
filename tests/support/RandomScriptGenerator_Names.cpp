// SPDX-License-Identifier: MIT
// The names that steps are about: mostly of what there is.
#include "RandomScriptGenerator.h"

namespace zbtest {

std::vector<std::string> const& ScriptGenerator::SourceNames() {
    static std::vector<std::string> const names = {"s0", "s1", "s2", "s3"};
    return names;
}

std::string ScriptGenerator::AnyView() {
    return numbers_.OneIn(4) ? "v1" : "v0";
}

std::string ScriptGenerator::AnyPlace() {
    return AnyPlaceIn(AnyView());
}

std::string ScriptGenerator::AnyPlaceIn(std::string const& view) {
    auto const folders = player_.FolderNames(view);
    return view + ":" + (folders.empty() || numbers_.OneIn(6) ? "/" : numbers_.Pick(folders));
}

std::string ScriptGenerator::AnySource() {
    return numbers_.OneIn(3) ? "s1" : numbers_.Pick(SourceNames());
}

std::string ScriptGenerator::AnyItem(std::string const& source) {
    auto const items = player_.Data().Items(source);
    return items.empty() ? "none" : numbers_.Pick(items);
}

// Each source has a letter of its own, so that no two items have one name.
std::string ScriptGenerator::NewItem(std::string const& source) {
    char const letter = static_cast<char>('a' + (source.back() - '0'));
    return std::string(1, letter) + std::to_string(numbers_.Below(8));
}

std::string ScriptGenerator::AnyRow(std::string const& place) {
    auto const rows = player_.RowNames(place);
    return rows.empty() ? "none" : numbers_.Pick(rows);
}

std::string ScriptGenerator::AnyColumn() {
    static std::vector<std::string> const names = {"default_column", "c0", "c0", "c1", "c2"};
    return numbers_.Pick(names);
}

std::string ScriptGenerator::AnyProperty() {
    static std::vector<std::string> const names = {"p0", "p0", "p1", "default_name_prop",
                                                   "default_icon_name_prop"};
    return numbers_.Pick(names);
}

} // namespace zbtest
