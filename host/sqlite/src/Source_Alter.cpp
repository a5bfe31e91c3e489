// SPDX-License-Identifier: MIT
//! \file
//! A source whose table is altered, or goes.
#include "RowStore.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace zbsqlite {

namespace {

std::size_t FindByName(std::vector<Property> const& properties, std::string const& name,
                       std::size_t ifNone) {
    auto const found = std::find_if(properties.begin(), properties.end(),
                                    [&](Property const& p) { return IsSameName(p.Name(), name); });
    return found == properties.end() ? ifNone
                                     : static_cast<std::size_t>(found - properties.begin());
}

} // namespace

//! The rows keep what they have, null in columns that are new, until they are compared with the
//! file.
void Source::Alter(Table table) {
    auto next = std::make_unique<Table const>(std::move(table));
    std::vector<Property> properties = MakeProperties(*next);
    std::string_view const rowid =
        next->rowidColumn < 0 ? FindRowidName(*next) : std::string_view();
    if (store_)
        store_->Rewrite(RecordColumns(), OldPlaces(properties, !rowid.empty()));

    std::string const nameColumn =
        isNameGiven_ ? properties_[nameColumns_.front()].Name() : std::string();
    rowidName_ = rowid;
    former_.push_back({std::exchange(table_, std::move(next)),
                       std::exchange(properties_, std::move(properties))});
    for (Former& former : former_) {
        for (Property& property : former.properties)
            property.index_ = FindByName(properties_, property.Name(), Property::kGone);
    }
    RenewName(nameColumn);
}

//! For each column of a new record its place in the old one.
std::vector<std::size_t> Source::OldPlaces(std::vector<Property> const& properties,
                                           bool hasRowid) const {
    std::vector<std::size_t> places;
    places.reserve(properties.size() + 1);
    for (Property const& property : properties)
        places.push_back(FindByName(properties_, property.Name(), Property::kGone));
    if (hasRowid)
        places.push_back(rowidName_.empty() ? Property::kGone : properties_.size());
    return places;
}

//! `nameColumn`: what the program asked for; empty if it did not.
void Source::RenewName(std::string const& nameColumn) {
    if (!nameColumn.empty() && ChooseNameByColumn(nameColumn))
        return;
    isNameGiven_ = false;
    ChooseName();
}

//! What the views show of it is not touched.
void Source::Leave() {
    isGone_ = true;
    error_ = Error(Where(), "the table has gone");
}

} // namespace zbsqlite
