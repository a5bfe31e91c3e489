// SPDX-License-Identifier: MIT
#include "zbbrowse/Suggestion.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace zbbrowse {

namespace {

constexpr std::size_t kMost = 3;
constexpr std::size_t kLongest = 200; // The work grows with the square of a name's length.

std::string Folded(std::string_view text) {
    std::string result(text.substr(0, kLongest));
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

//! Letters changed, left out, added or swapped with the next.
std::size_t EditDistance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> older;
    std::vector<std::size_t> last(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        last[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::vector<std::size_t> row(b.size() + 1, i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            auto const changed = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            row[j] = std::min({changed, last[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], older[j - 2] + 1);
        }
        older = std::exchange(last, std::move(row));
    }
    return last.back();
}

//! How far `name` is from what was typed; beyond `FarFrom` it is no suggestion.
std::size_t Distance(std::string const& typed, std::string const& name) {
    auto const distance = EditDistance(typed, name);
    if (typed.size() >= 2 && name.find(typed) != std::string::npos)
        return std::min<std::size_t>(distance, 2);
    if (name.size() >= 2 && typed.find(name) != std::string::npos)
        return std::min<std::size_t>(distance, 2);
    return distance;
}

std::size_t FarFrom(std::string const& typed) {
    return std::max<std::size_t>(2, typed.size() / 2);
}

} // namespace

std::vector<std::string> FindNearest(std::string_view typed,
                                     std::vector<std::string> const& names) {
    auto const wanted = Folded(typed);
    std::vector<std::pair<std::size_t, std::string>> near;
    for (auto const& name : names) {
        if (name.empty())
            continue; // It could not be typed.
        auto const distance = Distance(wanted, Folded(name));
        if (distance <= FarFrom(wanted))
            near.emplace_back(distance, name);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](auto const& a, auto const& b) { return a.first < b.first; });

    std::vector<std::string> result;
    result.reserve(near.size());
    for (auto const& entry : near)
        result.push_back(entry.second);
    if (result.empty())
        std::copy_if(names.begin(), names.end(), std::back_inserter(result),
                     [](auto const& name) { return !name.empty(); });
    result.resize(std::min(result.size(), kMost));
    return result;
}

std::string NearestNote(std::string_view typed, std::vector<std::string> const& names) {
    std::string note;
    for (auto const& name : FindNearest(typed, names))
        note += (note.empty() ? "; nearest: " : ", ") + name;
    return note;
}

} // namespace zbbrowse
