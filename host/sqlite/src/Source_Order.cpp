// SPDX-License-Identifier: MIT
//! \file
//! The names of the rows of a source and their order.
#include "Names.h"
#include "Record.h"
#include "RowStore.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <algorithm>
#include <array>

namespace zbsqlite {

bool Source::ChooseNameByColumn(std::string_view name) {
    for (Property const& property : properties_) {
        if (IsSameName(property.Name(), name)) {
            nameColumns_ = {property.Index()};
            return true;
        }
    }
    return false;
}

void Source::ChooseName() {
    for (char const* const name : {"name", "title", "label", "caption"}) {
        if (ChooseNameByColumn(name))
            return;
    }
    auto const chooseFirst = [this](auto const& isText) {
        auto const found = std::find_if(properties_.begin(), properties_.end(),
                                        [&](Property const& p) { return isText(p.Declaration()); });
        if (found != properties_.end())
            nameColumns_ = {found->Index()};
        return found != properties_.end();
    };
    if (chooseFirst([](Column const& column) { return column.affinity == Affinity::Text; }))
        return;
    // Full-text tables and computed columns of views declare no types.
    bool const isUntyped = table_->kind == TableKind::Virtual || table_->kind == TableKind::View;
    if (isUntyped && chooseFirst([](Column const& column) { return column.declaredType.empty(); }))
        return;
    nameColumns_ = PrimaryKeyColumns();
    if (nameColumns_.empty())
        rowidName_ = FindRowidName(*table_);
}

std::vector<std::size_t> Source::PrimaryKeyColumns() const {
    std::vector<std::size_t> columns;
    for (std::size_t const column : table_->PrimaryKey()) {
        for (Property const& property : properties_) {
            if (&property.Declaration() == &table_->columns[column])
                columns.push_back(property.Index());
        }
    }
    return columns;
}

//! Loaded rows keep the rowid: it has its place in their records.
void Source::NameRowsBy(Property const& column) {
    nameColumns_ = {column.Index()};
    isNameGiven_ = true;
    if (!store_ && !keepsKeys_)
        rowidName_ = {};
}

//! A column may bear one of the rowid's names and hide it.
std::string_view Source::FindRowidName(Table const& table) {
    if (!table.hasRowid)
        return {};
    for (std::string_view const name : {"rowid", "_rowid_", "oid"}) {
        if (table.FindColumn(name) < 0)
            return name;
    }
    return {};
}

std::size_t Source::NameParts() const {
    return std::max<std::size_t>(nameColumns_.size(), 1);
}

//! Null behind the last part.
Value Source::NamePart(Row const& row, std::size_t part) const {
    if (part < nameColumns_.size())
        return row.GetValue(nameColumns_[part]);
    if (part > 0 || !nameColumns_.empty())
        return Value();
    if (!rowidName_.empty())
        return row.GetValue(properties_.size());
    return Value::Integer(static_cast<std::int64_t>(IndexOf(row)) + 1);
}

bool Source::GetRowName(Row const& row, std::string& out) const {
    if (nameColumns_.size() <= 1) {
        Value const value = NamePart(row, 0);
        if (value.IsNull())
            return false;
        out = ToDisplayText(value);
        return true;
    }
    std::string name;
    for (std::size_t const column : nameColumns_) {
        if (column != nameColumns_.front())
            name += ", ";
        name += ToDisplayText(row.GetValue(column));
    }
    out = std::move(name);
    return true;
}

//! The item as a row of this or of another source of such a data side. Unlike `FindRow` it follows
//! items that are not its own.
Row const* Source::AnyRow(zbIBrowserDataItem const* item) const {
    Row const* const row = FindRow(item);
    return row != nullptr ? row : dynamic_cast<Row const*>(item);
}

Property const* Source::AnyProperty(zbIBrowserDataProperty const* property) const {
    Property const* const column = AsColumn(property);
    return column != nullptr ? column : dynamic_cast<Property const*>(property);
}

void Source::SetSortProperty(zbIBrowserDataProperty* property) {
    sortProperty_ = dynamic_cast<Property const*>(property);
}

bool Source::CompareBySortProperty(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) {
    Row const* const rowB = AnyRow(b);
    if (rowB == nullptr)
        return false;
    Property const* const propertyOfB = rowB->GetSource().sortProperty_;
    return CompareValues(AnyRow(a), sortProperty_, rowB, propertyOfB, cmp);
}

bool Source::CompareByDataProperty(zbIBrowserDataItem* a, zbIBrowserDataProperty* propertyOfA,
                                   zbIBrowserDataItem* b, zbIBrowserDataProperty* propertyOfB,
                                   int& cmp) {
    return CompareValues(AnyRow(a), AnyProperty(propertyOfA), AnyRow(b), AnyProperty(propertyOfB),
                         cmp);
}

bool Source::CompareValues(Row const* a, Property const* propertyOfA, Row const* b,
                           Property const* propertyOfB, int& cmp) {
    if (a == nullptr || b == nullptr || propertyOfA == nullptr || propertyOfB == nullptr)
        return false;
    if (&propertyOfA->GetSource() != &a->GetSource() ||
        &propertyOfB->GetSource() != &b->GetSource())
        return false;
    if (propertyOfA == propertyOfB && !propertyOfA->IsGone())
        cmp = a->GetSource().CompareByColumn(*a, *b, propertyOfA->Index());
    else
        cmp = Compare(propertyOfA->GetValue(*a), propertyOfB->GetValue(*b));
    return true;
}

//! Requires: two rows of this source, and a column of its records.
int Source::CompareByColumn(Row const& a, Row const& b, std::size_t column) {
    return store_->orders[column].Compare(store_->slots, column, a, b);
}

//! The one column that makes the names; nothing if there are more or none.
std::optional<std::size_t> Source::NameColumn() const {
    if (nameColumns_.empty() && !rowidName_.empty())
        return properties_.size(); // The rowid stands behind the columns.
    if (nameColumns_.size() == 1)
        return nameColumns_.front();
    return std::nullopt;
}

bool Source::CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) {
    Row const* const rowA = AnyRow(a);
    Row const* const rowB = AnyRow(b);
    if (rowA == nullptr || rowB == nullptr)
        return false;
    Source& sourceA = rowA->GetSource();
    Source& sourceB = rowB->GetSource();
    if (auto const column = sourceA.NameColumn(); column && &sourceA == &sourceB) {
        cmp = sourceA.CompareByColumn(*rowA, *rowB, *column);
        return true;
    }
    std::size_t const parts = std::max(sourceA.NameParts(), sourceB.NameParts());
    int order = 0;
    for (std::size_t i = 0; i < parts && order == 0; ++i)
        order = Compare(sourceA.NamePart(*rowA, i), sourceB.NamePart(*rowB, i));
    cmp = order;
    return true;
}

bool Source::CompareById(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) {
    Row const* const rowA = AnyRow(a);
    Row const* const rowB = AnyRow(b);
    if (rowA == nullptr || rowB == nullptr)
        return false;
    Source const& sourceA = rowA->GetSource();
    Source const& sourceB = rowB->GetSource();
    if (&sourceA.control_ != &sourceB.control_)
        return false;
    auto const order = &sourceA == &sourceB ? sourceA.IndexOf(*rowA) <=> sourceB.IndexOf(*rowB)
                                            : sourceA.index_ <=> sourceB.index_;
    cmp = order < 0 ? -1 : (order > 0 ? 1 : 0);
    return true;
}

} // namespace zbsqlite
