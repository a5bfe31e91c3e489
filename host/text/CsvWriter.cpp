// SPDX-License-Identifier: MIT
#include "text/CsvWriter.h"

#include "text/Base64.h"
#include "text/NumberText.h"

#include <string_view>

namespace zbtext {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

bool NeedsQuotes(std::string_view text) {
    if (text.empty() || text.front() == ' ' || text.back() == ' ')
        return true;
    return text.find_first_of(",\"\r\n") != std::string_view::npos;
}

void AppendCsvText(std::string& out, std::string_view text) {
    if (!NeedsQuotes(text)) {
        out += text;
        return;
    }
    out += '"';
    for (auto quote = text.find('"'); quote != std::string_view::npos; quote = text.find('"')) {
        out += text.substr(0, quote + 1);
        out += '"';
        text.remove_prefix(quote + 1);
    }
    out += text;
    out += '"';
}

} // namespace

void AppendCsv(std::string& out, Value const& value) {
    switch (value.kind) {
    case ValueKind::Null:
        return;
    case ValueKind::Integer:
        AppendInteger(out, value.integer);
        return;
    case ValueKind::Real:
        AppendReal(out, value.real);
        return;
    case ValueKind::Text:
        AppendCsvText(out, value.bytes);
        return;
    case ValueKind::Blob:
        out += "X'";
        AppendHex(out, value.bytes);
        out += '\'';
        return;
    }
}

CsvWriter::CsvWriter(Output& output)
    : output_(output) {
}

void CsvWriter::WriteHeader(std::vector<std::string> const& columns) {
    auto& out = output_.Text();
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (i != 0)
            out += ',';
        AppendCsvText(out, columns[i]);
    }
    out += kLineEnd;
}

void CsvWriter::WriteLists(std::vector<std::unique_ptr<List>> const& lists) {
    auto& out = output_.Text();
    for (auto const& list : lists) {
        auto const columns = list->GetColumns().size();
        WriteHeader(list->GetColumns());
        for (std::size_t row = 0; row < list->GetRowCount(); ++row) {
            for (std::size_t column = 0; column < columns; ++column) {
                if (column != 0)
                    out += ',';
                AppendCsv(out, list->GetValue(row, column));
            }
            out += kLineEnd;
            output_.Checkpoint();
        }
    }
}

void CsvWriter::WriteFolder(Folder const& folder, std::string const& path) {
    auto& out = output_.Text();
    for (auto const& child : folder.folders)
        WriteFolder(child, path.empty() ? child.name : path + '/' + child.name);
    for (auto const& list : folder.lists) {
        AppendCsvText(out, path);
        out += ',';
        AppendCsvText(out, list->GetName());
        out += ',';
        AppendInteger(out, static_cast<std::int64_t>(list->GetTotal()));
        out += kLineEnd;
        output_.Checkpoint();
    }
}

void CsvWriter::WriteView(Folder const& root) {
    WriteHeader({"folder", "list", "count"});
    WriteFolder(root, {});
}

} // namespace zbtext
