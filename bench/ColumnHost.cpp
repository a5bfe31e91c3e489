// SPDX-License-Identifier: MIT
#include "ColumnHost.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

namespace zbbench {

ColumnView::ColumnView(Source& shown)
    : LightView(shown)
    , name(*view.GetDefaultColumn())
    , number(AddColumn("number", ZBBROWSER_DATA_TYPE_INTEGER, source.number)) {
    AddColumn("text", ZBBROWSER_DATA_TYPE_STRING, source.name);
    AddColumn("count", ZBBROWSER_DATA_TYPE_INTEGER, source.number);
    ConnectDefault(zbBrowserView::DEFAULT_NAME_PROP, source.name);
    ConnectDefault(zbBrowserView::DEFAULT_BOLD_TEXT_PROP, source.flag);
    ConnectDefault(zbBrowserView::DEFAULT_ITALIC_TEXT_PROP, source.flag);
}

zbIBrowserViewColumn& ColumnView::AddColumn(char const* title, ZBBROWSER_DATA_TYPE type,
                                            zbIBrowserDataProperty& property) {
    view.CreateViewProperty(title);
    view.UpdateViewPropertyType(title, type);
    auto* const viewProperty = view.FindViewProperty(title);
    view.CreateVPConnect(viewProperty, &source, &property);
    view.CreateTextBoxColumn(title, title);
    auto* const column = view.FindColumn(title);
    column->CreateStyle(title);
    column->FindStyle(title)->CreateElement(title, title)->SetViewProperty(viewProperty);
    return *column;
}

void ColumnView::ConnectDefault(char const* viewProperty, zbIBrowserDataProperty& property) {
    view.CreateVPConnect(view.FindViewProperty(viewProperty), &source, &property);
}

void ColumnView::Sort(zbIBrowserViewColumn& column) {
    column.SetUnsorted(true);
    view.SetAscendingOrder(&column, true);
    Read();
}

void ColumnView::Read() {
    view.GetChildren(rows, view.GetRootFreeFolder());
}

} // namespace zbbench
