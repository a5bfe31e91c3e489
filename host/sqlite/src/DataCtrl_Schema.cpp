// SPDX-License-Identifier: MIT
//! \file
//! A schema that changes.
#include "Names.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <algorithm>
#include <utility>

namespace zbsqlite {

namespace {

//! No name holds a zero byte.
std::string KeyOf(Table const& table) {
    return detail::FoldName(table.schema) + '\0' + detail::FoldName(table.name);
}

} // namespace

void DataCtrl::KeepKeys() {
    keepsKeys_ = true;
    for (auto const& source : sources_)
        source->KeepKeys();
}

bool DataCtrl::IsSchema(std::vector<Table> const& tables) const {
    return std::equal(
        sources_.begin(), sources_.end(), tables.begin(), tables.end(),
        [](auto const& source, Table const& table) { return source->Declaration() == table; });
}

//! A table of the same name is the same table, whatever has become of it.
DataCtrl::SchemaChanges DataCtrl::UpdateSchema(std::vector<Table> tables) {
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t i = 0; i < tables.size(); ++i)
        places.emplace(KeyOf(tables[i]), i);
    std::vector<bool> isKnown(tables.size());
    SchemaChanges changes;
    for (auto const& source : sources_) {
        auto const found = places.find(KeyOf(source->Declaration()));
        if (found == places.end()) {
            changes.gone.push_back(source.get());
            continue;
        }
        isKnown[found->second] = true;
        Table& table = tables[found->second];
        if (!table.problem.empty()) // It may be mended, and its rows are yet to be told by name.
            table.columns = source->Declaration().columns;
        if (table != source->Declaration()) {
            source->Alter(std::move(table));
            changes.altered.push_back(source.get());
        }
    }
    for (Source* const source : changes.gone)
        Remove(*source);
    for (std::size_t i = 0; i < tables.size(); ++i) {
        if (!isKnown[i]) {
            std::string name = UnusedName(tables[i]);
            changes.created.push_back(&AddSource(std::move(tables[i]), std::move(name)));
        }
    }
    MakeReferences();
    return changes;
}

void DataCtrl::Remove(Source& source) {
    auto const place = std::find_if(sources_.begin(), sources_.end(),
                                    [&](auto const& known) { return known.get() == &source; });
    gone_.push_back(std::move(*place));
    sources_.erase(place);
    byName_.erase(detail::FoldName(source.GetName()));
    source.Leave();
}

//! Sources that are shown keep their names, so that a new one may have to take what is left.
std::string DataCtrl::UnusedName(Table const& table) const {
    auto const isTaken = [this](std::string const& name) {
        return byName_.contains(detail::FoldName(name));
    };
    if (!isTaken(table.name))
        return table.name;
    std::string const qualified = table.schema + "." + table.name;
    std::string name = qualified;
    for (int number = 2; isTaken(name); ++number)
        name = qualified + " (" + std::to_string(number) + ")";
    return name;
}

} // namespace zbsqlite
