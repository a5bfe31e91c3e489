// SPDX-License-Identifier: MIT
#include "zbbrowse/RowValues.h"

#include <zbBrowserView/sqlite/Source.h>

namespace zbbrowse {

namespace {

// The view gives back what it was given, and all of that is the SQLite data side's.
zbsqlite::Source& SourceOf(zbIBrowserDataSourceSimple& source) {
    return static_cast<zbsqlite::Source&>(source);
}

zbtext::Value ToTextValue(zbsqlite::Value const& value) {
    switch (value.kind) {
    case zbsqlite::ValueKind::Null:
        return {};
    case zbsqlite::ValueKind::Integer:
        return zbtext::Value::OfInteger(value.integer);
    case zbsqlite::ValueKind::Real:
        return zbtext::Value::OfReal(value.real);
    case zbsqlite::ValueKind::Text:
        return zbtext::Value::OfText(value.bytes);
    case zbsqlite::ValueKind::Blob:
        return zbtext::Value::OfBlob(value.bytes);
    }
    return {};
}

} // namespace

std::vector<std::string> RowValues::GetColumnNames(zbIBrowserDataSourceSimple& source) const {
    std::vector<std::string> names;
    for (auto const& property : SourceOf(source).Properties())
        names.push_back(property.Name());
    return names;
}

zbtext::Value RowValues::GetValue(zbIBrowserDataProperty& property,
                                  zbIBrowserDataItemSimple& row) const {
    auto const& column = static_cast<zbsqlite::Property const&>(property);
    return ToTextValue(column.GetValue(static_cast<zbsqlite::Row const&>(row)));
}

bool RowValues::IsColumn(zbIBrowserDataProperty& property,
                         zbIBrowserDataSourceSimple& source) const {
    return SourceOf(source).AsColumn(&property) != nullptr;
}

std::string RowValues::GetFault(zbIBrowserDataSourceSimple& source) const {
    auto const* const error = SourceOf(source).LastError();
    return error != nullptr ? error->What() : std::string();
}

} // namespace zbbrowse
