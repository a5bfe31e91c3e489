// SPDX-License-Identifier: MIT
#include "Widget.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

namespace zbbench {

void Widget::Paint(std::size_t first, Canvas& canvas) {
    view_.GetColumns(columns_);
    cells_.resize(columns_.size());
    for (auto& cell : cells_)
        cell.style = nullptr;
    for (auto row = first; row < first + rowsShown; ++row) {
        for (std::size_t i = 0; i < columns_.size(); ++i)
            PaintCell(*columns_[i], cells_[i], *rows_[row], canvas);
    }
}

void Widget::PaintCell(zbIBrowserViewColumn& column, Cell& cell, zbIBrowserViewItem& row,
                       Canvas& canvas) {
    auto* const style = view_.GetViewItemStyle(&column, &row);
    if (style == nullptr)
        return;
    if (style != cell.style || style->IsPending()) {
        cell.style = style;
        style->GetElements(cell.elements);
        style->SetPending(false);
    }
    auto& last = *cell.elements.back(); // What stands before it is an icon
    for (auto* const element : cell.elements) {
        if (element != &last && element->GetViewProperty()->GetStringValue(&row, text_))
            canvas.Icon();
    }
    ReadValue(*last.GetViewProperty(), row, canvas);
    ReadLook(last, row, canvas);
}

void Widget::ReadValue(zbIBrowserViewProperty& property, zbIBrowserViewItem& row, Canvas& canvas) {
    if (property.GetDataType() == ZBBROWSER_DATA_TYPE_INTEGER) {
        int number = 0;
        if (property.GetIntegerValue(&row, number))
            canvas.Number(number);
    } else if (property.GetStringValue(&row, text_)) {
        canvas.Text(static_cast<unsigned char>(*text_.c_str()), text_.length());
    }
}

void Widget::ReadLook(zbIBrowserStyleElement& element, zbIBrowserViewItem& row, Canvas& canvas) {
    bool bold = false;
    bool italic = false;
    if (view_.IsTextBold(&row, &element, bold) && view_.IsTextItalic(&row, &element, italic))
        canvas.Look(bold, italic);
}

} // namespace zbbench
