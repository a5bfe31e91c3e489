// SPDX-License-Identifier: MIT
// Columns, view properties, and by what a view is sorted.
#include "Oracle.h"

#include <algorithm>

namespace zbtest {

namespace {

std::string Answer(bool answer) {
    return answer ? "true" : "false";
}

} // namespace

std::map<std::string, Oracle::Handler> const& Oracle::ColumnHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"column", &Oracle::MakeColumn},
        {"icon-column", &Oracle::MakeColumn},
        {"drop-column", &Oracle::DropColumn},
        {"show-column", &Oracle::ShowColumn},
        {"title", &Oracle::SetTitle},
        {"mark-unsorted", &Oracle::MarkUnsorted},
        {"sorting", &Oracle::SetSorting},
        {"italic-texts", &Oracle::SetItalicTexts},
        {"sort", &Oracle::Sort},
        {"custom-sort", &Oracle::SetCustomSort},
        {"column-style", &Oracle::MakeColumnStyle},
        {"drop-column-style", &Oracle::DropColumnStyle},
        {"property", &Oracle::MakeProperty},
        {"drop-property", &Oracle::DropProperty},
        {"connect-property", &Oracle::ConnectProperty},
        {"disconnect-property", &Oracle::DisconnectProperty},
        {"read-value", &Oracle::ReadValue},
        {"write-value", &Oracle::WriteValue},
        {"read", &Oracle::ReadChildren},
    };
    return handlers;
}

Oracle::Column* Oracle::FindColumn(View const& view, std::string const& name) {
    auto const found = std::find_if(view.columns.begin(), view.columns.end(),
                                    [&](auto const& column) { return column->name == name; });
    return found == view.columns.end() ? nullptr : found->get();
}

std::shared_ptr<Oracle::Property> Oracle::FindProperty(View const& view, std::string const& name) {
    auto const found = std::find_if(view.properties.begin(), view.properties.end(),
                                    [&](auto const& property) { return property->name == name; });
    return found == view.properties.end() ? nullptr : *found;
}

//! What a view has beyond those with which it is made.
std::string Oracle::TextOfPresentation(View const& view) {
    std::string text;
    for (auto const& column : view.columns) {
        if (column != view.columns.front()) {
            text.append(column->visible ? "column " : "hidden column ").append(column->name + "\n");
        }
    }
    for (auto const& property : view.properties) {
        text += property->name.starts_with("default_") ? "" : "property " + property->name + "\n";
    }
    if (view.sorted != nullptr) {
        text.append("sorted ")
            .append(view.sorted->name)
            .append(view.ascending ? " up\n" : " down\n");
    }
    return text;
}

// Columns

std::string Oracle::MakeColumn(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    if (FindColumn(*view, step.Arg(2)) != nullptr) {
        return "false";
    }
    view->columns.push_back(std::make_unique<Column>());
    view->columns.back()->name = step.Arg(2);
    Signal("ColumnCreated " + step.Arg(2));
    return "true";
}

void Oracle::ResetSort(View& view) {
    if (view.sorted != nullptr) {
        Signal("ColumnSortChanged " + view.sorted->name + " false false");
        view.sorted = nullptr;
        ++view.orderNumber;
    }
}

// The default column is not deleted, and that is no failure.
std::string Oracle::DropColumn(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    Column const* const column = view == nullptr ? nullptr : FindColumn(*view, step.Arg(2));
    if (column == nullptr) {
        return "skip";
    }
    if (column != view->columns.front().get()) {
        ResetSort(*view);
        Signal("ColumnDeleted " + column->name);
        std::erase_if(view->columns, [&](auto const& other) { return other.get() == column; });
    }
    return "true";
}

std::string Oracle::ShowColumn(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    Column* const column = view == nullptr ? nullptr : FindColumn(*view, step.Arg(2));
    if (column == nullptr) {
        return "skip";
    }
    bool const show = step.Flag(3);
    bool const isKept = view->isNew && column->visible == show;
    if (column == view->columns.front().get() || isKept) {
        return "true";
    }
    column->visible = show;
    if (!show) {
        ResetSort(*view);
    }
    Signal("ColumnShown " + column->name);
    Signal("ColumnsChanged");
    return "true";
}

std::string Oracle::SetTitle(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    Column const* const column = view == nullptr ? nullptr : FindColumn(*view, step.Arg(2));
    if (column == nullptr) {
        return "skip";
    }
    Signal("ColumnCaptionChanged " + column->name);
    return "true";
}

std::string Oracle::MarkUnsorted(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    Column* const column = view == nullptr ? nullptr : FindColumn(*view, step.Arg(2));
    if (column == nullptr) {
        return "skip";
    }
    column->unsorted = true;
    return "";
}

std::string Oracle::SetSorting(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    for (auto const& column : view->columns) {
        if (std::exchange(column->sorting, step.Flag(2)) != step.Flag(2)) {
            Signal("ColumnStateChanged " + column->name + " " + Answer(step.Flag(2)));
        }
    }
    return "true";
}

std::string Oracle::SetItalicTexts(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    for (auto const& column : view->columns) {
        if (std::exchange(column->italic, step.Flag(2)) != step.Flag(2)) {
            Signal("ColumnStateChanged " + column->name + " " + Answer(column->sorting));
            Signal("ColumnUpdated " + column->name);
        }
    }
    return "true";
}

std::string Oracle::Sort(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    Column* const column = view == nullptr ? nullptr : FindColumn(*view, step.Arg(2));
    if (column == nullptr) {
        return "skip";
    }
    bool const ascending = step.Flag(3);
    bool const isAsBefore = view->sorted == column && view->ascending == ascending;
    if (isAsBefore && !column->unsorted) {
        return "true";
    }
    if (view->sorted != column || column->unsorted) {
        if (!view->isNew) {
            LoosenAll(*view);
        }
        column->unsorted = false;
    }
    if (!view->isNew) {
        Signal("SortChanging true");
    }
    std::string const direction = " true " + Answer(ascending);
    if (!isAsBefore) {
        if (view->sorted != nullptr && view->sorted != column) {
            Signal("ColumnSortChanged " + view->sorted->name + " false " + Answer(ascending));
        }
        view->orderNumber += view->sorted == column ? 0 : 1;
        view->sorted = column;
        view->ascending = ascending;
        Signal("ColumnSortChanged " + column->name + direction);
    } else if (!view->isNew) {
        Signal("ColumnSortRepeated " + column->name + direction);
    }
    Signal("ViewChanged " + view->name);
    if (!view->isNew) {
        Signal("SortChanging false");
    }
    return "true";
}

// Only groups are sorted by it.
std::string Oracle::SetCustomSort(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->customSort = view->isNew ? "" : step.Arg(2);
    return view->customSort;
}

std::string Oracle::MakeColumnStyle(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    Column* const column = view == nullptr ? nullptr : FindColumn(*view, step.Arg(2));
    if (column == nullptr) {
        return "skip";
    }
    auto const isTaken = [&](Style const& style) { return style.name == step.Arg(3); };
    if (std::any_of(column->styles.begin(), column->styles.end(), isTaken)) {
        return "false";
    }
    column->styles.push_back({step.Arg(3), FindProperty(*view, step.Arg(4))});
    return "true";
}

std::string Oracle::DropColumnStyle(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    Column* const column = view == nullptr ? nullptr : FindColumn(*view, step.Arg(2));
    if (column == nullptr) {
        return "skip";
    }
    auto const isNamed = [&](Style const& style) { return style.name == step.Arg(3); };
    return Answer(std::erase_if(column->styles, isNamed) > 0);
}

// View properties

std::string Oracle::MakeProperty(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    if (FindProperty(*view, step.Arg(2)) == nullptr) {
        view->properties.push_back(std::make_shared<Property>());
        view->properties.back()->name = step.Arg(2);
    }
    return "";
}

// The property stays the current one for sorting, if it was that.
std::string Oracle::DropProperty(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    auto const property = view == nullptr ? nullptr : FindProperty(*view, step.Arg(2));
    if (property == nullptr) {
        return "skip";
    }
    if (property->name.starts_with("default_")) {
        return "false";
    }
    property->connections.clear();
    std::erase(view->properties, property);
    view->deletedProperties.push_back(property);
    for (auto const& column : view->columns) {
        for (Style& style : column->styles) {
            if (style.property.lock() == property) {
                style.property.reset();
            }
        }
    }
    return Answer(view->columns.size() > 1);
}

// A source of an old view keeps the connection that it has.
std::string Oracle::ConnectProperty(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    auto const property = view == nullptr ? nullptr : FindProperty(*view, step.Arg(2));
    RecordingSource* const source = data_.Source(step.Arg(3));
    if (property == nullptr || source == nullptr) {
        return "skip";
    }
    auto const [place, isNew] = property->connections.try_emplace(source, step.Arg(4));
    if (!isNew && view->isNew) {
        place->second = step.Arg(4);
    }
    return "true";
}

std::string Oracle::DisconnectProperty(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    auto const property = view == nullptr ? nullptr : FindProperty(*view, step.Arg(2));
    RecordingSource* const source = data_.Source(step.Arg(3));
    if (property == nullptr || source == nullptr) {
        return "skip";
    }
    bool const isFound = property->connections.erase(source) > 0;
    return Answer(isFound || !view->isNew);
}

} // namespace zbtest
