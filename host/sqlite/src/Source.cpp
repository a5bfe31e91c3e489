// SPDX-License-Identifier: MIT
#include "Record.h"
#include "RowName.h"
#include "RowStore.h"

#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/sqlite/Source.h>

#include <algorithm>
#include <functional>
#include <utility>

namespace zbsqlite {

Source::Source(DataCtrl& control, Table table, std::string name, std::size_t index)
    : control_(control)
    , table_(std::make_unique<Table const>(std::move(table)))
    , name_(std::move(name))
    , index_(index)
    , rowName_(std::make_unique<RowName>(*this)) {
    properties_ = MakeProperties(*table_);
    ChooseName();
}

Source::~Source() = default;

std::vector<Property> Source::MakeProperties(Table const& table) {
    std::vector<Property> properties;
    properties.reserve(table.columns.size());
    for (Column const& column : table.columns) {
        if (column.kind != ColumnKind::Hidden)
            properties.emplace_back(*this, column, properties.size());
    }
    return properties;
}

zbIBrowserDataCtrl* Source::GetDataCtrl() {
    return &control_;
}

zbBrowserTypeId Source::GetTypeId() {
    return reinterpret_cast<zbBrowserTypeId>(this);
}

char const* Source::GetTypeName() const {
    switch (table_->kind) {
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

void Source::GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>& /*out*/) {
}

bool Source::IsOfType(zbIBrowserDataSourceSimple* source) {
    return source == this;
}

bool Source::GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) {
    if (!Load())
        return false;
    std::vector<Row*> const rows = store_->InOrder();
    out.insert(out.end(), rows.begin(), rows.end());
    return true;
}

bool Source::ContainsDataItem(zbIBrowserDataItemSimple* item) {
    return FindRow(item) != nullptr;
}

std::vector<Row const*> Source::Rows() const {
    if (!store_)
        return {};
    std::vector<Row*> const rows = store_->InOrder();
    return {rows.begin(), rows.end()};
}

std::size_t Source::MemoryUsed() const {
    return store_ ? store_->MemoryUsed() : 0;
}

std::size_t Source::TextBytes() const {
    return store_ ? store_->textBytes : 0;
}

Row const* Source::FindRow(zbIBrowserDataItem const* item) const {
    return store_ ? store_->slots.Find(item) : nullptr;
}

zbIBrowserDataProperty& Source::NameProperty() const {
    return *rowName_;
}

//! A checked cast costs more than a comparison of addresses, and painting and sorting ask a million
//! times.
Property const* Source::AsColumn(zbIBrowserDataProperty const* property) const {
    auto const isAmong = [property](std::vector<Property> const& properties) {
        std::less_equal<zbIBrowserDataProperty const*> const notAfter;
        return !properties.empty() && notAfter(&properties.front(), property) &&
               notAfter(property, &properties.back());
    };
    bool const isOwn =
        isAmong(properties_) || std::any_of(former_.begin(), former_.end(),
                                            [&](Former const& f) { return isAmong(f.properties); });
    return isOwn ? static_cast<Property const*>(property) : nullptr;
}

std::size_t Source::IndexOf(Row const& row) const {
    return store_->slots.SlotOf(&row);
}

Value Source::ReadValue(std::byte const* record, std::size_t column) const {
    return detail::ReadRecord(record, RecordColumns(), column);
}

bool Source::IsRowDirty(Row const& row) const {
    if (!store_ || store_->dirty.empty())
        return false;
    std::size_t const slot = store_->slots.SlotOf(&row);
    return slot < store_->dirty.size() && store_->dirty[slot];
}

//! The rowid stands behind the columns in a record, where it is needed.
std::size_t Source::RecordColumns() const {
    return properties_.size() + (rowidName_.empty() ? 0 : 1);
}

} // namespace zbsqlite
