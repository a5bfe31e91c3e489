// SPDX-License-Identifier: MIT
#include "zbbrowse/Options.h"

#include <algorithm>
#include <string_view>

namespace zbbrowse {

namespace {

using Names = std::vector<std::string>;

//! Reads names up to `end` or the end of the text, and moves `text` behind what was read.
//! False if the text ends in the middle of an escape, or where `end` must come and does not.
bool ReadNames(std::string_view& text, char separator, char end, Names& names) {
    names.emplace_back();
    while (!text.empty()) {
        char c = text.front();
        text.remove_prefix(1);
        if (c == end && end != '\0')
            return true;
        if (c == separator) {
            names.emplace_back();
            continue;
        }
        if (c == '\\') {
            if (text.empty())
                return false;
            c = text.front();
            text.remove_prefix(1);
        }
        names.back() += c;
    }
    return end == '\0';
}

bool HasEmptyName(Names const& names) {
    return std::any_of(names.begin(), names.end(), [](auto const& name) { return name.empty(); });
}

} // namespace

std::optional<FolderOption> ReadFolderOption(std::string const& text) {
    FolderOption option;
    std::string_view rest = text;
    if (!ReadNames(rest, '/', '=', option.path) || !ReadNames(rest, ',', '\0', option.lists))
        return std::nullopt;
    if (HasEmptyName(option.path) || HasEmptyName(option.lists))
        return std::nullopt;
    return option;
}

std::optional<ColumnsOption> ReadColumnsOption(std::string const& text) {
    ColumnsOption option;
    if (text == "all") {
        option.all = true;
        return option;
    }
    std::string_view rest = text;
    if (!ReadNames(rest, ',', '\0', option.names) || HasEmptyName(option.names))
        return std::nullopt;
    return option;
}

std::optional<SortOption> ReadSortOption(std::string const& text) {
    constexpr std::string_view ascending = ":asc";
    constexpr std::string_view descending = ":desc";
    SortOption option{text, !text.ends_with(descending)};
    if (!option.ascending)
        option.column.resize(text.size() - descending.size());
    else if (text.ends_with(ascending))
        option.column.resize(text.size() - ascending.size());
    if (option.column.empty())
        return std::nullopt;
    return option;
}

std::optional<WriteOption> ReadWriteOption(std::string const& text) {
    Names names;
    std::string_view rest = text;
    if (!ReadNames(rest, '.', '=', names) || names.size() != 2 || HasEmptyName(names))
        return std::nullopt;
    return WriteOption{names[0], names[1], std::string(rest)};
}

} // namespace zbbrowse
