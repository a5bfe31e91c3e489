// SPDX-License-Identifier: MIT
#include "text/JsonWriter.h"

#include "text/JsonText.h"
#include "text/NumberText.h"

namespace zbtext {

namespace {

void AppendKey(std::string& out, char const* key) {
    out += '"';
    out += key;
    out += "\":";
}

void AppendCount(std::string& out, std::size_t count) {
    AppendKey(out, "count");
    AppendInteger(out, static_cast<std::int64_t>(count));
}

void AppendFault(std::string& out, List const& list) {
    if (list.GetFault().empty())
        return;
    out += ',';
    AppendKey(out, "error");
    AppendJsonString(out, list.GetFault());
}

//! The rows of one list. What is the same in each row is put together once.
class RowText {
public:
    RowText(List const& list, bool namesList)
        : list_(list) {
        opening_ += '{';
        if (namesList) {
            AppendKey(opening_, "list");
            AppendJsonString(opening_, list.GetName());
            opening_ += ',';
        }
        AppendKey(opening_, "name");
        for (auto const& column : list.GetColumns()) {
            std::string key = keys_.empty() ? "" : ",";
            AppendJsonString(key, column);
            key += ':';
            keys_.push_back(std::move(key));
        }
    }

    void Append(std::string& out, std::size_t row) const {
        out += opening_;
        AppendJson(out, list_.GetRowName(row));
        if (list_.HasIcons()) {
            out += ",\"icon\":";
            AppendJson(out, list_.GetIcon(row));
        }
        out += ",\"columns\":{";
        for (std::size_t column = 0; column < keys_.size(); ++column) {
            out += keys_[column];
            AppendJson(out, list_.GetValue(row, column));
        }
        out += "}}";
    }

private:
    List const& list_;
    std::string opening_;
    std::vector<std::string> keys_;
};

} // namespace

JsonWriter::JsonWriter(Output& output)
    : output_(output) {
}

void JsonWriter::WriteArray(List const& list) {
    auto& out = output_.Text();
    RowText const rows(list, false);
    out += '[';
    for (std::size_t row = 0; row < list.GetRowCount(); ++row) {
        out += row == 0 ? "\n" : ",\n";
        rows.Append(out, row);
        output_.Checkpoint();
    }
    out += list.GetRowCount() == 0 ? "]" : "\n]";
}

void JsonWriter::WriteLists(std::vector<std::unique_ptr<List>> const& lists) {
    auto& out = output_.Text();
    if (lists.size() == 1) {
        WriteArray(*lists.front());
        out += '\n';
        return;
    }
    out += '{';
    for (std::size_t i = 0; i < lists.size(); ++i) {
        out += i == 0 ? "\n" : ",\n";
        AppendJsonString(out, lists[i]->GetName());
        out += ':';
        WriteArray(*lists[i]);
    }
    out += "\n}\n";
}

void JsonWriter::WriteListSummary(List const& list) {
    auto& out = output_.Text();
    out += '{';
    AppendKey(out, "name");
    AppendJsonString(out, list.GetName());
    out += ',';
    AppendCount(out, list.GetTotal());
    AppendFault(out, list);
    out += ',';
    AppendKey(out, "rows");
    WriteArray(list);
    out += '}';
}

void JsonWriter::WriteFolder(char const* nameKey, Folder const& folder) {
    auto& out = output_.Text();
    out += '{';
    AppendKey(out, nameKey);
    AppendJsonString(out, folder.name);
    out += ',';
    if (folder.icon) {
        AppendKey(out, "icon");
        AppendJsonString(out, *folder.icon);
        out += ',';
    }
    AppendKey(out, "folders");
    char const* separator = "[";
    for (auto const& child : folder.folders) {
        out += separator;
        WriteFolder("name", child);
        separator = ",";
    }
    out += folder.folders.empty() ? "[]," : "],";
    AppendKey(out, "lists");
    separator = "[\n";
    for (auto const& list : folder.lists) {
        out += separator;
        WriteListSummary(*list);
        separator = ",\n";
    }
    out += folder.lists.empty() ? "[]}" : "]}";
}

void JsonWriter::WriteView(Folder const& root) {
    WriteFolder("view", root);
    output_.Text() += '\n';
}

JsonLinesWriter::JsonLinesWriter(Output& output)
    : output_(output) {
}

void JsonLinesWriter::WriteLists(std::vector<std::unique_ptr<List>> const& lists) {
    auto& out = output_.Text();
    for (auto const& list : lists) {
        RowText const rows(*list, lists.size() > 1);
        for (std::size_t row = 0; row < list->GetRowCount(); ++row) {
            rows.Append(out, row);
            out += '\n';
            output_.Checkpoint();
        }
    }
}

void JsonLinesWriter::WriteFolder(Folder const& folder, std::string const& path) {
    auto& out = output_.Text();
    for (auto const& child : folder.folders)
        WriteFolder(child, path.empty() ? child.name : path + '/' + child.name);
    for (auto const& list : folder.lists) {
        out += '{';
        AppendKey(out, "folder");
        AppendJsonString(out, path);
        out += ',';
        AppendKey(out, "list");
        AppendJsonString(out, list->GetName());
        out += ',';
        AppendCount(out, list->GetTotal());
        AppendFault(out, *list);
        out += "}\n";
        output_.Checkpoint();
    }
}

void JsonLinesWriter::WriteView(Folder const& root) {
    WriteFolder(root, {});
}

} // namespace zbtext
