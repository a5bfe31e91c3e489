// SPDX-License-Identifier: MIT
#include "text/TextTable.h"

#include "text/Base64.h"
#include "text/NumberText.h"

#include <algorithm>

namespace zbtext {

namespace {

constexpr std::size_t kGap = 2;
constexpr std::size_t kNarrowestColumn = 6;
constexpr std::string_view kNull = "NULL";
constexpr std::string_view kEllipsis = "\xE2\x80\xA6";
constexpr std::string_view kRule = "\xE2\x94\x80";
constexpr std::string_view kAscending = " \xE2\x96\xB2";
constexpr std::string_view kDescending = " \xE2\x96\xBC";
constexpr std::size_t kMarkWidth = 2;

//! A number is never cut in the middle, where it would read as another number.
std::size_t AppendNumber(std::string& out, Value const& value, std::size_t limit) {
    auto const before = out.size();
    if (value.kind == ValueKind::Integer)
        AppendInteger(out, value.integer);
    else
        AppendReal(out, value.real);
    auto const width = out.size() - before;
    if (width <= limit)
        return width;
    out.resize(before);
    out += kEllipsis;
    return 1;
}

//! Makes no more digits than can be shown.
std::size_t AppendBlob(std::string& out, std::string_view bytes, std::size_t limit) {
    std::string text = "X'";
    AppendHex(text, bytes.substr(0, limit));
    text += '\'';
    return AppendCut(out, text, limit);
}

std::size_t IntegerWidth(std::int64_t number) {
    std::size_t width = number < 0 ? 2 : 1;
    while (number > 9 || number < -9) {
        number /= 10;
        ++width;
    }
    return width;
}

//! Cells of a value; counting stops beyond `limit`.
std::size_t CellWidth(Value const& value, std::string& scratch, std::size_t limit) {
    switch (value.kind) {
    case ValueKind::Null:
        return kNull.size();
    case ValueKind::Integer:
        return IntegerWidth(value.integer);
    case ValueKind::Real:
        scratch.clear();
        AppendReal(scratch, value.real);
        return scratch.size();
    case ValueKind::Text:
        return DisplayWidth(value.bytes, limit);
    case ValueKind::Blob:
        return 2 * value.bytes.size() + 3;
    }
    return 0;
}

} // namespace

std::size_t AppendCell(std::string& out, Value const& value, std::size_t limit) {
    switch (value.kind) {
    case ValueKind::Null:
        return AppendCut(out, kNull, limit);
    case ValueKind::Integer:
    case ValueKind::Real:
        return AppendNumber(out, value, limit);
    case ValueKind::Text:
        return AppendCut(out, value.bytes, limit);
    case ValueKind::Blob:
        return AppendBlob(out, value.bytes, limit);
    }
    return 0;
}

TextTable::TextTable(Output& output, List const& list, TextStyle const& style,
                     std::string_view prefix, std::size_t prefixWidth, std::size_t cellLimit)
    : output_(output)
    , list_(list)
    , palette_(GetPalette(style.colour))
    , colour_(style.colour)
    , sortMark_(list.GetSortMark())
    , prefix_(prefix)
    , measureLimit_(std::min(cellLimit, style.width == kNoLimit ? kWidestColumn : style.width)) {
    Measure();
    if (style.width != kNoLimit)
        Narrow(style.width > prefixWidth ? style.width - prefixWidth : 0);
    for (auto& column : columns_)
        column.cut = style.width == kNoLimit ? cellLimit : column.width;
}

std::string_view TextTable::MarkOf(std::size_t index) const {
    if (!sortMark_ || sortMark_->column != index)
        return {};
    return sortMark_->ascending ? kAscending : kDescending;
}

void TextTable::Measure() {
    for (auto const& name : list_.GetColumns()) {
        auto const mark = MarkOf(columns_.size()).empty() ? 0 : kMarkWidth;
        auto const width = DisplayWidth(name, measureLimit_) + mark;
        columns_.push_back({.width = std::min(width, measureLimit_)});
    }
    for (std::size_t row = 0; row < list_.GetRowCount(); ++row) {
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            auto const value = list_.GetValue(row, i);
            auto& column = columns_[i];
            auto const width = CellWidth(value, scratch_, measureLimit_);
            column.width = std::max(column.width, std::min(width, measureLimit_));
            column.numbers += value.IsNumber() ? 1U : 0U;
            column.others += !value.IsNumber() && value.kind != ValueKind::Null ? 1U : 0U;
        }
        output_.ThrowIfStopped();
    }
}

std::size_t TextTable::WidthWithCap(std::size_t cap) const {
    std::size_t sum = columns_.empty() ? 0 : kGap * (columns_.size() - 1);
    for (auto const& column : columns_)
        sum += std::min(column.width, cap);
    return sum + (dropped_ ? kGap + 1 : 0);
}

void TextTable::Narrow(std::size_t available) {
    while (columns_.size() > 1 && WidthWithCap(kNarrowestColumn) > available) {
        columns_.pop_back();
        dropped_ = true;
    }
    auto cap = measureLimit_;
    while (cap > 1 && WidthWithCap(cap) > available)
        --cap;
    for (auto& column : columns_)
        column.width = std::min(column.width, cap);
}

void TextTable::BeginLine() {
    output_.Text() += prefix_;
}

void TextTable::EndLine() {
    auto& out = output_.Text();
    if (dropped_)
        out.append(kGap, ' ').append(kEllipsis);
    out += '\n';
    output_.Checkpoint();
}

void TextTable::AppendColumn(std::size_t index, std::string_view cell, std::size_t width,
                             Align align, std::string_view colour) {
    auto& out = output_.Text();
    auto const fill = columns_[index].width > width ? columns_[index].width - width : 0;
    if (index != 0)
        out.append(kGap, ' ');
    if (align == Align::Right)
        out.append(fill, ' ');
    out += colour;
    out += cell;
    if (!colour.empty())
        out += palette_.reset;
    // Blanks at the end of a line are of no use to anybody.
    if (align == Align::Left && (index + 1 < columns_.size() || dropped_))
        out.append(fill, ' ');
}

//! The mark stays where the name is cut.
std::size_t TextTable::AppendHeader(std::size_t index) {
    auto const& name = list_.GetColumns()[index];
    auto const mark = MarkOf(index);
    auto const room = columns_[index].cut;
    scratch_.clear();
    if (mark.empty() || room <= kMarkWidth)
        return AppendCut(scratch_, name, room);
    auto const width = AppendCut(scratch_, name, room - kMarkWidth);
    scratch_ += mark;
    return width + kMarkWidth;
}

void TextTable::WriteHeader() {
    BeginLine();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        auto const width = AppendHeader(i);
        AppendColumn(i, scratch_, width, columns_[i].HeaderAlign(), palette_.header);
    }
    EndLine();
}

void TextTable::WriteRule() {
    BeginLine();
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        scratch_.clear();
        for (std::size_t cell = 0; cell < columns_[i].width; ++cell)
            scratch_ += kRule;
        AppendColumn(i, scratch_, columns_[i].width, Align::Left, palette_.faint);
    }
    EndLine();
}

std::string_view TextTable::ColourOf(std::size_t row, std::size_t index) const {
    if (!colour_)
        return {};
    auto const look = list_.GetLook(row, index);
    if (look.bold)
        return look.italic ? palette_.boldItalic : palette_.bold;
    return look.italic ? palette_.italic : std::string_view();
}

void TextTable::WriteCell(std::size_t row, std::size_t index) {
    auto const value = list_.GetValue(row, index);
    auto const& column = columns_[index];
    scratch_.clear();
    auto const width = AppendCell(scratch_, value, column.cut);
    if (value.kind == ValueKind::Null) {
        AppendColumn(index, scratch_, width, column.HeaderAlign(), palette_.faint);
        return;
    }
    auto const align = value.IsNumber() ? Align::Right : Align::Left;
    AppendColumn(index, scratch_, width, align, ColourOf(row, index));
}

void TextTable::WriteRows() {
    for (std::size_t row = 0; row < list_.GetRowCount(); ++row) {
        BeginLine();
        for (std::size_t i = 0; i < columns_.size(); ++i)
            WriteCell(row, i);
        EndLine();
    }
}

} // namespace zbtext
