// SPDX-License-Identifier: MIT
#include "text/Painter.h"

#include "text/NumberText.h"

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserView.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <algorithm>
#include <string_view>

namespace zbtext {

namespace {

constexpr std::string_view kIconElement = "default_style_elem_icon";

Value ValueOf(zbVariant const& variant) {
    switch (variant.GetKind()) {
    case zbVariant::Boolean:
        return Value::OfInteger(variant.GetBoolean() ? 1 : 0);
    case zbVariant::Integer:
        return Value::OfInteger(variant.GetInteger());
    case zbVariant::Long64:
        return Value::OfInteger(variant.GetLong64());
    case zbVariant::Double:
    case zbVariant::Double6:
        return Value::OfReal(variant.GetDouble());
    case zbVariant::String:
        return Value::OfText(variant.GetString());
    default:
        return {};
    }
}

void AppendPlain(std::string& out, Value const& value) {
    switch (value.kind) {
    case ValueKind::Null:
        break;
    case ValueKind::Integer:
        AppendInteger(out, value.integer);
        break;
    case ValueKind::Real:
        AppendReal(out, value.real);
        break;
    case ValueKind::Text:
    case ValueKind::Blob:
        out += value.bytes;
        break;
    }
}

} // namespace

Painter::Painter(zbIBrowserView const& view, RowReader const& rows)
    : view_(view)
    , rows_(rows)
    , isNew_(view.IsNewView()) {
    std::vector<zbIBrowserViewColumn*> columns;
    view.GetColumns(columns);
    columns_.reserve(columns.size());
    for (auto* const column : columns)
        columns_.push_back({.column = column, .isIcon = column->IsIconColumn(), .elements = {}});
}

std::vector<Painter::Element> const& Painter::ElementsOf(zbIBrowserViewItem& item,
                                                         std::size_t index) {
    static std::vector<Element> const none;
    auto& column = columns_[index];
    auto* const style = view_.GetViewItemStyle(column.column, &item);
    if (style == nullptr)
        return none;
    if (style == column.style && !style->IsPending())
        return column.elements;
    std::vector<zbIBrowserStyleElement*> elements;
    style->GetElements(elements);
    style->SetPending(false);
    column.style = style;
    column.elements.clear();
    for (auto* const element : elements) {
        auto const isIcon = column.isIcon || element->GetName() == kIconElement;
        column.elements.push_back({element, isIcon ? Part::Icon : Part::Text});
    }
    return column.elements;
}

Value Painter::GetValue(zbIBrowserViewItem& item, std::size_t column, Part part) {
    auto const& elements = ElementsOf(item, column);
    auto const isWanted = [part](Element const& element) { return element.part == part; };
    auto const first = std::find_if(elements.begin(), elements.end(), isWanted);
    if (first == elements.end())
        return {};
    if (std::none_of(first + 1, elements.end(), isWanted))
        return Read(*first->element, item);
    return ReadJoined(elements, item, part);
}

Value Painter::ReadJoined(std::vector<Element> const& elements, zbIBrowserViewItem& item,
                          Part part) {
    joined_.clear();
    for (auto const& element : elements) {
        if (element.part != part)
            continue;
        auto const value = Read(*element.element, item);
        if (value.kind != ValueKind::Null && !joined_.empty())
            joined_ += ' ';
        AppendPlain(joined_, value);
    }
    return Value::OfText(joined_);
}

Value Painter::Read(zbIBrowserStyleElement const& element, zbIBrowserViewItem& item) {
    auto* const property = element.GetViewProperty();
    if (property == nullptr)
        return {};
    if (auto* const row = item.GetDataItemSimple()) {
        auto* const source = row->GetDataSource();
        auto* const connected = ConnectedTo(*property, source);
        if (connected != nullptr && rows_.IsColumn(*connected, *source))
            return rows_.GetValue(*connected, *row);
    }
    return ReadText(*property, item);
}

Value Painter::ReadText(zbIBrowserViewProperty& property, zbIBrowserViewItem& item) {
    if (isNew_) {
        variant_ = zbVariant();
        return property.GetValue(&item, variant_) ? ValueOf(variant_) : Value{};
    }
    text_.clear(); // A property may answer true and leave the text as it was.
    return property.GetStringValue(&item, text_) ? Value::OfText(text_) : Value{};
}

zbIBrowserDataProperty* Painter::ConnectedTo(zbIBrowserViewProperty& property,
                                             zbIBrowserDataSourceSimple* source) const {
    return isNew_ ? property.GetDataProperty(static_cast<zbIBrowserDataSource*>(source))
                  : property.GetDataProperty(source);
}

Look Painter::GetLook(zbIBrowserViewItem& item, std::size_t column) {
    Look look;
    auto const& elements = ElementsOf(item, column);
    auto const text = std::find_if(elements.begin(), elements.end(), [](Element const& element) {
        return element.part == Part::Text;
    });
    if (text == elements.end())
        return look;
    // An answer of false leaves it open whether the flag was written.
    look.bold = view_.IsTextBold(&item, text->element, look.bold) && look.bold;
    look.italic = view_.IsTextItalic(&item, text->element, look.italic) && look.italic;
    return look;
}

bool Painter::HasCells(zbIBrowserDataSourceSimple& source, std::size_t column) const {
    std::vector<zbIBrowserStyle*> styles;
    columns_[column].column->GetStyles(styles);
    std::vector<zbIBrowserStyleElement*> elements;
    return std::any_of(styles.begin(), styles.end(), [&](zbIBrowserStyle const* style) {
        style->GetElements(elements);
        return std::any_of(elements.begin(), elements.end(), [&](auto const* element) {
            auto* const property = element->GetViewProperty();
            return property != nullptr && ConnectedTo(*property, &source) != nullptr;
        });
    });
}

std::optional<SortMark> Painter::GetSortMark() const {
    auto* const sorted = view_.GetSortedColumn();
    auto const found = std::find_if(columns_.begin(), columns_.end(), [sorted](auto const& column) {
        return column.column == sorted;
    });
    bool ascending = true;
    if (found == columns_.end() || !view_.GetAscendingOrder(sorted, ascending))
        return std::nullopt;
    return SortMark{static_cast<std::size_t>(found - columns_.begin()), ascending};
}

} // namespace zbtext
