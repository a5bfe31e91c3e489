// SPDX-License-Identifier: MIT
#include "text/SourceList.h"

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

#include <algorithm>
#include <utility>

namespace zbtext {

namespace {

constexpr std::size_t kDefaultColumn = 0; // Of a painter.

} // namespace

SourceList::SourceList(zbIBrowserDataSourceSimple& source, RowReader const& reader)
    : source_(source)
    , name_(source.GetName())
    , fault_(reader.GetFault(source)) {
}

PlainList::PlainList(zbIBrowserDataSourceSimple& source, RowReader const& reader)
    : SourceList(source, reader)
    , reader_(reader) {
    for (auto& column : reader.GetColumnNames(source)) {
        properties_.push_back(source.FindDataProperty(column.c_str()));
        AddColumn(std::move(column));
    }
}

void PlainList::Keep(zbIBrowserViewItem& /*item*/, zbIBrowserDataItemSimple& row) {
    rows_.push_back(&row);
}

Value PlainList::GetRowName(std::size_t row) const {
    if (!rows_[row]->GetProperty("name", rowName_))
        return {};
    return Value::OfText(rowName_);
}

Value PlainList::GetValue(std::size_t row, std::size_t column) const {
    auto* const property = properties_[column];
    return property != nullptr ? reader_.GetValue(*property, *rows_[row]) : Value{};
}

PaintedList::PaintedList(zbIBrowserDataSourceSimple& source, RowReader const& reader,
                         std::shared_ptr<Painter> painter, PaintOptions const& options)
    : SourceList(source, reader)
    , painter_(std::move(painter))
    , options_(options) {
    AddNames();
    for (std::size_t i = kDefaultColumn + 1; i < painter_->GetColumnCount(); ++i)
        AddCells(i);
}

void PaintedList::Keep(zbIBrowserViewItem& item, zbIBrowserDataItemSimple& /*row*/) {
    rows_.push_back(&item);
}

void PaintedList::AddNames() {
    auto const& column = painter_->GetColumn(kDefaultColumn);
    if (!options_.namesAreColumns || !column.IsVisible())
        return;
    if (options_.icons) {
        AddColumn("icon");
        cells_.push_back({kDefaultColumn, Part::Icon});
    }
    AddColumn(column.GetTitle());
    cells_.push_back({kDefaultColumn, Part::Text});
}

void PaintedList::AddCells(std::size_t index) {
    auto const& column = painter_->GetColumn(index);
    if (!column.IsVisible() || !painter_->HasCells(Source(), index))
        return;
    AddColumn(column.GetTitle());
    cells_.push_back({index, column.IsIconColumn() ? Part::Icon : Part::Text});
}

Value PaintedList::GetRowName(std::size_t row) const {
    return painter_->GetValue(*rows_[row], kDefaultColumn, Part::Text);
}

Value PaintedList::GetIcon(std::size_t row) const {
    return painter_->GetValue(*rows_[row], kDefaultColumn, Part::Icon);
}

Value PaintedList::GetValue(std::size_t row, std::size_t column) const {
    auto const& cell = cells_[column];
    return painter_->GetValue(*rows_[row], cell.column, cell.part);
}

Look PaintedList::GetLook(std::size_t row, std::size_t column) const {
    auto const& cell = cells_[column];
    return cell.part == Part::Text ? painter_->GetLook(*rows_[row], cell.column) : Look{};
}

std::optional<SortMark> PaintedList::GetSortMark() const {
    auto mark = painter_->GetSortMark();
    if (!mark)
        return mark;
    auto const found = std::find_if(cells_.begin(), cells_.end(), [&](Cell const& cell) {
        return cell.column == mark->column &&
               (cell.part == Part::Text || cell.column != kDefaultColumn);
    });
    if (found == cells_.end())
        return std::nullopt;
    return SortMark{static_cast<std::size_t>(found - cells_.begin()), mark->ascending};
}

} // namespace zbtext
