// SPDX-License-Identifier: MIT
#include "Record.h"
#include "RowName.h"
#include "RowStore.h"

#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/sqlite/Source.h>

#include <functional>
#include <utility>

namespace zbsqlite {

Source::Source(DataCtrl& control, Table const& table, std::string name, std::size_t index)
    : control_(control)
    , table_(table)
    , name_(std::move(name))
    , index_(index)
    , rowName_(std::make_unique<RowName>(*this)) {
    properties_.reserve(table.columns.size());
    for (Column const& column : table.columns) {
        if (column.kind != ColumnKind::Hidden)
            properties_.emplace_back(*this, column, properties_.size());
    }
    ChooseName();
}

Source::~Source() = default;

zbIBrowserDataCtrl* Source::GetDataCtrl() {
    return &control_;
}

zbBrowserTypeId Source::GetTypeId() {
    return reinterpret_cast<zbBrowserTypeId>(this);
}

char const* Source::GetTypeName() const {
    switch (table_.kind) {
    case TableKind::View:
        return "view";
    case TableKind::Virtual:
        return "virtual table";
    case TableKind::Shadow:
        return "shadow table";
    case TableKind::System:
        return "system table";
    case TableKind::Table:
        break;
    }
    return "table";
}

bool Source::GetFolderScriptText(zbIBrowserViewItemFreeFolder* /*folder*/, zbString& /*out*/) {
    return false;
}

Property* Source::FindDataProperty(char const* name) {
    if (name == nullptr)
        return nullptr;
    for (Property& property : properties_) {
        if (IsSameName(property.Name(), name))
            return &property;
    }
    return nullptr;
}

void Source::SetDataPropertyInteger(zbIBrowserDataItem* /*item*/,
                                    zbIBrowserDataProperty* /*property*/, int /*value*/) {
}

void Source::SetDataPropertyBoolean(zbIBrowserDataItem* /*item*/,
                                    zbIBrowserDataProperty* /*property*/, bool /*value*/) {
}

void Source::GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>& /*out*/) {
}

bool Source::IsOfType(zbIBrowserDataSourceSimple* source) {
    return source == this;
}

bool Source::GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) {
    if (!Load())
        return false;
    out.reserve(out.size() + store_->rows.size());
    for (Row& row : store_->rows)
        out.push_back(&row);
    return true;
}

bool Source::ContainsDataItem(zbIBrowserDataItemSimple* item) {
    return FindRow(item) != nullptr;
}

std::span<Row const> Source::Rows() const {
    if (!store_)
        return {};
    return store_->rows;
}

std::size_t Source::MemoryUsed() const {
    return store_ ? store_->MemoryUsed() : 0;
}

std::size_t Source::TextBytes() const {
    return store_ ? store_->textBytes : 0;
}

Row const* Source::FindRow(zbIBrowserDataItem const* item) const {
    std::span<Row const> const rows = Rows();
    // The rows stand side by side, so an address tells whether it is one of them.
    auto const first =
        reinterpret_cast<std::uintptr_t>(static_cast<zbIBrowserDataItem const*>(rows.data()));
    auto const offset = reinterpret_cast<std::uintptr_t>(item) - first;
    if (item == nullptr || offset >= rows.size_bytes() || offset % sizeof(Row) != 0)
        return nullptr;
    return &rows[offset / sizeof(Row)];
}

zbIBrowserDataProperty& Source::NameProperty() const {
    return *rowName_;
}

//! A cast costs more than a comparison of addresses, and painting and sorting ask a million times.
Property const* Source::AsColumn(zbIBrowserDataProperty const* property) const {
    auto const* const own = static_cast<Property const*>(property);
    std::less_equal<> const notAfter;
    bool const isOwn = !properties_.empty() && notAfter(&properties_.front(), own) &&
                       notAfter(own, &properties_.back());
    return isOwn ? own : nullptr;
}

std::size_t Source::IndexOf(Row const& row) const {
    return static_cast<std::size_t>(&row - store_->rows.data());
}

Value Source::ReadValue(std::byte const* record, std::size_t column) const {
    return detail::ReadRecord(record, RecordColumns(), column);
}

//! The rowid stands behind the columns in a record, where it is needed.
std::size_t Source::RecordColumns() const {
    return properties_.size() + (rowidName_.empty() ? 0 : 1);
}

} // namespace zbsqlite
