// SPDX-License-Identifier: MIT
// What is asked about rows and about the selection.
#include "Oracle.h"

#include <algorithm>
#include <sstream>

namespace zbtest {

namespace {

void AppendName(std::string& names, std::string const& name) {
    names.append(names.empty() ? "" : " ").append(name);
}

std::string Sorted(std::string const& text) {
    std::istringstream stream(text);
    std::multiset<std::string> words;
    for (std::string word; stream >> word;) {
        words.insert(word);
    }
    std::string sorted;
    for (std::string const& word : words) {
        AppendName(sorted, word);
    }
    return sorted;
}

} // namespace

Oracle::Row* Oracle::FindRow(std::string const& place, std::string const& name) {
    Folder* const folder = FindFolder(place);
    if (folder == nullptr) {
        return nullptr;
    }
    auto const row = std::find_if(folder->rows.begin(), folder->rows.end(),
                                  [&](Row const& other) { return NameOf(other) == name; });
    return row == folder->rows.end() ? nullptr : &*row;
}

// Values

std::string Oracle::ReadValue(ScriptStep const& step) {
    View* view = nullptr;
    Folder const* const folder = FindFolder(step.Arg(1), &view);
    auto const property = folder == nullptr ? nullptr : FindProperty(*view, step.Arg(3));
    Row const* const row = FindRow(step.Arg(1), step.Arg(2));
    if (property == nullptr || row == nullptr) {
        return "skip";
    }
    auto const connection = property->connections.find(row->source);
    auto const value = connection == property->connections.end()
                           ? std::nullopt
                           : row->item->Value(connection->second);
    if (value) {
        return std::string("true ") + ToText(*value).c_str();
    }
    // What has no icon of its own shows that of its source.
    bool const isIcon = property->name == "default_icon_name_prop";
    bool const showsSource = isIcon && connection == property->connections.end();
    return showsSource ? "true " + row->source->Name() : "false";
}

std::string Oracle::WriteValue(ScriptStep const& step) {
    View* view = nullptr;
    Folder const* const folder = FindFolder(step.Arg(1), &view);
    auto const property = folder == nullptr ? nullptr : FindProperty(*view, step.Arg(3));
    bool const isThere = property != nullptr && FindRow(step.Arg(1), step.Arg(2)) != nullptr;
    return isThere ? "true" : "skip";
}

// The selection

// What comes in the order of addresses is told in the order of names.
std::string Oracle::AskSelection(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    std::string folders;
    std::string changed;
    std::set<std::string> sources;
    Items selected;
    ForEachItem(*view, [&](Item const& item) {
        if (item.folder != nullptr && item.folder->changed) {
            AppendName(changed, NameOf(item));
        }
        if (!Mark(item)) {
            return;
        }
        selected.push_back(item);
        if (item.row != nullptr) {
            sources.insert(item.row->source->Name());
            return;
        }
        AppendName(folders, NameOf(item));
        for (auto const& lists : {item.folder->lists, item.folder->groupedLists}) {
            for (RecordingSource const* const list : lists) {
                sources.insert(list->Name());
            }
        }
    });
    std::string text = "folders " + Sorted(folders) + "; items " + Sorted(DataNamesOf(selected));
    text += "; sources";
    for (std::string const& source : sources) {
        text.append(" ").append(source);
    }
    return text + "; changed " + Sorted(changed);
}

std::string Oracle::AskTexts(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    RecordingSource* const source = data_.Source(step.Arg(2));
    auto const property = view == nullptr ? nullptr : FindProperty(*view, step.Arg(3));
    if (property == nullptr || source == nullptr) {
        return "skip";
    }
    auto const connection = property->connections.find(source);
    std::string text;
    ForEachItem(*view, [&](Item const& item) {
        if (!Mark(item) || connection == property->connections.end()) {
            return;
        }
        auto const folders =
            item.folder == nullptr ? std::vector<Folder*>() : PreOrder(*item.folder);
        std::vector<Row> rows;
        for (Folder const* const folder : folders) {
            rows.insert(rows.end(), folder->rows.begin(), folder->rows.end());
        }
        if (item.row != nullptr) {
            rows.push_back(*item.row);
        }
        for (Row const& row : rows) {
            auto const value =
                row.source == source ? row.item->Value(connection->second) : std::nullopt;
            if (value) {
                AppendName(text, ToText(*value).c_str());
            }
        }
    });
    return text.empty() ? "false" : "true " + Sorted(text);
}

// Rows of a data item

std::string Oracle::AskRowsOf(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    RecordingItem const* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    std::string names;
    for (Folder* const folder : PreOrder(view->root)) {
        folder->used = true;
        for (Row const& row : folder->rows) {
            if (row.item == item) {
                AppendName(names, NameOf(*folder));
            }
        }
    }
    return names;
}

} // namespace zbtest
