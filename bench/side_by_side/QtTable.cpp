// SPDX-License-Identifier: MIT
#include "QtTable.h"

#include <algorithm>
#include <QFont>

namespace zbbench {

void QtTable::Sort(Column column, bool ascending) {
    proxy_->sort(column == Column::Name ? 0 : 1,
                 ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void QtTable::Read() {
    auto const rows = proxy_->rowCount();
    handles_.clear();
    handles_.reserve(rows);
    for (int row = 0; row < rows; ++row)
        handles_.append(proxy_->index(row, 0));
}

//! Rows that stand next to each other as one range of all columns. With the flag `Rows` the columns
//! need not be told, but each range is compared with each.
void QtTable::Select(Items const& items) {
    std::vector<int> rows;
    rows.reserve(items.size());
    for (auto const* const item : items)
        rows.push_back(proxy_->mapFromSource(FindItem(*item)).row());
    std::sort(rows.begin(), rows.end());
    QItemSelection ranges;
    for (auto first = rows.begin(); first != rows.end();) {
        auto last = first;
        while (last + 1 != rows.end() && *(last + 1) == *last + 1)
            ++last;
        ranges.append({proxy_->index(*first, 0), proxy_->index(*last, columnsShown - 1)});
        first = last + 1;
    }
    selection_.select(ranges, QItemSelectionModel::ClearAndSelect);
}

void QtTable::Paint(std::size_t first, Canvas& canvas) {
    auto const begin = static_cast<int>(first);
    for (auto row = begin; row < begin + static_cast<int>(rowsShown); ++row) {
        for (int column = 0; column < static_cast<int>(columnsShown); ++column) {
            auto const index = proxy_->index(row, column);
            auto const value = index.data(Qt::DisplayRole);
            if (column % 2 != 0) {
                canvas.Number(value.toInt());
            } else {
                auto const text = value.toString();
                canvas.Text(text.front().unicode(), static_cast<std::size_t>(text.size()));
            }
            if (column == 0 && index.data(Qt::DecorationRole).isValid())
                canvas.Icon();
            auto const font = qvariant_cast<QFont>(index.data(Qt::FontRole));
            canvas.Look(font.bold(), font.italic());
        }
    }
}

Items QtTable::GetItems() const {
    Items items;
    items.reserve(static_cast<std::size_t>(handles_.size()));
    for (auto const& handle : handles_)
        items.push_back(GetItem(proxy_->mapToSource(handle)));
    return items;
}

Entrant QtEntrant(std::unique_ptr<Contestant> (*create)(Source& source)) {
    return {std::string("Qt ") + qVersion(), create};
}

} // namespace zbbench
