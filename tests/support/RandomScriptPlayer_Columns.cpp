// SPDX-License-Identifier: MIT
// Steps on columns, styles and the order, on views of both kinds.
#include "filtersort/SortHandler.h"
#include "filtersort/zbBrowserSortHandler.h"
#include "items/new/ViewItemFreeFolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"
#include "ViewItemNames.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <algorithm>

namespace zbtest {

namespace {

std::string Answer(bool answer) {
    return answer ? "true" : "false";
}

constexpr char const* elementName = "element";

} // namespace

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::ColumnHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"column", &ScriptPlayer::MakeColumn},
        {"icon-column", &ScriptPlayer::MakeColumn},
        {"drop-column", &ScriptPlayer::DropColumn},
        {"show-column", &ScriptPlayer::ShowColumn},
        {"title", &ScriptPlayer::SetTitle},
        {"mark-unsorted", &ScriptPlayer::MarkUnsorted},
        {"sorting", &ScriptPlayer::SetSorting},
        {"italic-texts", &ScriptPlayer::SetItalicTexts},
        {"sort", &ScriptPlayer::Sort},
        {"custom-sort", &ScriptPlayer::SetCustomSort},
        {"column-style", &ScriptPlayer::MakeColumnStyle},
        {"drop-column-style", &ScriptPlayer::DropColumnStyle},
        {"style-item", &ScriptPlayer::StyleItem},
        {"style-source", &ScriptPlayer::StyleSource},
        {"drop-element", &ScriptPlayer::DropElement},
        {"gui-map-deleted", &ScriptPlayer::GuiMapDeleted},
        {"paint", &ScriptPlayer::Paint},
        {"read", &ScriptPlayer::ReadChildren},
        {"sorting-exception", &ScriptPlayer::SortingException},
    };
    return handlers;
}

std::string ScriptPlayer::PresentationOf(zbIBrowserView& view) {
    std::string text;
    std::vector<zbIBrowserViewColumn*> columns;
    view.GetColumns(columns);
    for (auto const* const column : columns) {
        if (!column->IsDefault()) {
            text.append(column->IsVisible() ? "column " : "hidden column ");
            text.append(column->GetName()).append("\n");
        }
    }
    std::vector<zbIBrowserViewProperty*> properties;
    view.GetViewPropertyList(properties);
    for (auto const* const property : properties) {
        std::string const name = property->GetName();
        text += name.starts_with("default_") ? "" : "property " + name + "\n";
    }
    auto* const sorted = view.GetSortedColumn();
    bool ascending = false;
    if (sorted != nullptr && view.GetAscendingOrder(sorted, ascending)) {
        text.append("sorted ").append(sorted->GetName()).append(ascending ? " up\n" : " down\n");
    }
    return text;
}

//! The column that the step names behind its view.
zbIBrowserViewColumn* ScriptPlayer::FindColumn(ScriptStep const& step) {
    zbIBrowserView const* const view = AnyView(step.Arg(1));
    return view == nullptr ? nullptr : view->FindColumn(step.Arg(2).c_str());
}

std::string ScriptPlayer::MakeColumn(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    char const* const name = step.Arg(2).c_str();
    return Answer(step.Name() == "column" ? view->CreateTextBoxColumn(name, "")
                                          : view->CreateIconColumn(name, "", ""));
}

std::string ScriptPlayer::DropColumn(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    return column == nullptr ? "skip" : Answer(AnyView(step.Arg(1))->DeleteScriptedColumn(column));
}

std::string ScriptPlayer::ShowColumn(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    return column == nullptr
               ? "skip"
               : Answer(AnyView(step.Arg(1))->ShowScriptedColumn(column, step.Flag(3)));
}

std::string ScriptPlayer::SetTitle(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    return column == nullptr ? "skip" : Answer(column->SetTitle("title"));
}

std::string ScriptPlayer::MarkUnsorted(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    if (column == nullptr) {
        return "skip";
    }
    column->SetUnsorted(true);
    return "";
}

std::string ScriptPlayer::SetSorting(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    return view == nullptr ? "skip" : Answer(view->SetSorting(step.Flag(2)));
}

std::string ScriptPlayer::SetItalicTexts(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    return view == nullptr ? "skip" : Answer(view->SetItalic(step.Flag(2)));
}

// The order

std::string ScriptPlayer::Sort(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    return column == nullptr
               ? "skip"
               : Answer(AnyView(step.Arg(1))->SetAscendingOrder(column, step.Flag(3)));
}

std::string ScriptPlayer::SetCustomSort(ScriptStep const& step) {
    if (AnyView(step.Arg(1)) == nullptr) {
        return "skip";
    }
    zbString name;
    if (zbBrowserView* const view = View(step.Arg(1))) {
        view->SetSortDefaultColumnByCustomProperty(step.Arg(2).c_str());
        view->SortDefaultColumnByCustomProperty(name);
    }
    return name.c_str();
}

//! Lists a folder as it is to be shown: the step at which rows are sorted.
std::string ScriptPlayer::ReadChildren(ScriptStep const& step) {
    auto* const folder = FindAnyFolder(step.Arg(1));
    if (folder == nullptr || ShowsGhosts(step)) {
        return "skip";
    }
    std::string const name = step.Arg(1).substr(0, step.Arg(1).find(':'));
    std::vector<zbIBrowserViewItem*> children;
    if (zbBrowserView const* const view = View(name)) {
        view->GetChildren(children, folder);
    } else {
        NewView(name)->GetSortHandler()->GetChildren(
            *static_cast<zbbrowser::ViewItemFreeFolder*>(folder), children);
    }
    std::string text;
    for (auto const* const child : IsCalm() ? children : std::vector<zbIBrowserViewItem*>()) {
        text.append(text.empty() ? "" : " ").append(NameOf(child, &host_.calls));
    }
    return text;
}

std::string ScriptPlayer::SortingException(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    view->SetSortingException(folder, source, 1);
    return "";
}

// Styles

//! A style with one element, which shows a view property.
std::string ScriptPlayer::MakeColumnStyle(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    if (column == nullptr) {
        return "skip";
    }
    zbString const name = step.Arg(3).c_str();
    if (!column->CreateStyle(name)) {
        return "false";
    }
    auto* const element = column->FindStyle(name)->CreateElement(elementName, "");
    auto* const property = FindProperty(step.Arg(1), step.Arg(4));
    return Answer(element != nullptr && element->SetViewProperty(property));
}

std::string ScriptPlayer::DropColumnStyle(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    return column == nullptr ? "skip"
                             : Answer(column->DeleteStyle(column->FindStyle(step.Arg(3).c_str())));
}

//! Gives a folder the current style of the default column, or takes it.
std::string ScriptPlayer::StyleItem(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    if (step.Flag(2)) {
        return Answer(view->SetViewItemStyle(folder));
    }
    zbBrowserView* const old = View(step.Arg(1).substr(0, 2));
    return Answer(old != nullptr ? old->RemoveViewItemStyle(folder)
                                 : NewView(step.Arg(1).substr(0, 2))->RemoveViewItemStyle(folder));
}

std::string ScriptPlayer::StyleSource(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    auto* const column = view == nullptr ? nullptr : view->GetDefaultColumn();
    if (folder == nullptr || source == nullptr || column == nullptr) {
        return "skip";
    }
    std::vector<zbIBrowserStyle*> styles;
    column->GetStyles(styles);
    column->SetCurrentStyle(styles.empty() ? nullptr : styles.back());
    column->AddFolderStyle(folder);
    bool const isOld = !IsNewView(step.Arg(1));
    return Answer(isOld ? column->SetFolderDataListStyle(folder, source, step.Flag(3))
                        : column->SetFolderDataSourceStyle(folder, source, step.Flag(3)));
}

std::string ScriptPlayer::DropElement(ScriptStep const& step) {
    auto* const column = FindColumn(step);
    auto* const style = column == nullptr ? nullptr : column->FindStyle(step.Arg(3).c_str());
    auto* const element = style == nullptr ? nullptr : style->FindElement(elementName);
    return Answer(AnyView(step.Arg(1)) != nullptr &&
                  AnyView(step.Arg(1))->DeleteStyleElement(element));
}

std::string ScriptPlayer::GuiMapDeleted(ScriptStep const& step) {
    host_.Controller().OnGuiMapDeleted(step.Arg(1).c_str());
    return "";
}

// What has been looked up is there only until an attack comes.
void ScriptPlayer::PaintCell(zbIBrowserView& view, zbIBrowserViewColumn& column,
                             zbIBrowserViewItem& item) {
    auto const attacksBefore = attacksMade_;
    auto const isUndisturbed = [&] { return attacksMade_ == attacksBefore; };
    auto* const style = view.GetViewItemStyle(&column, &item);
    if (style == nullptr || !isUndisturbed()) {
        return;
    }
    style->SetPending(false);
    std::vector<zbIBrowserStyleElement*> elements;
    style->GetElements(elements);
    auto* const element = elements.empty() ? nullptr : elements.front();
    bool flag = false;
    view.IsTextBold(&item, element, flag);
    if (isUndisturbed()) {
        view.IsTextItalic(&item, element, flag);
    }
    zbBrowserView* const old = isUndisturbed() ? View(view.GetName().c_str()) : nullptr;
    if (old != nullptr) {
        old->GetCheckBoxValue(&item, element, flag);
    }
}

//! What is asked for each cell of a folder and its rows.
std::string ScriptPlayer::Paint(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    for (std::size_t i = 0; i <= RowNames(step.Arg(1)).size(); ++i) {
        auto const names = RowNames(step.Arg(1));
        zbIBrowserViewItem* const anyFolder = FindAnyFolder(step.Arg(1), &view);
        auto* const item = i < names.size() ? FindRow(step.Arg(1), names[i]) : anyFolder;
        auto* const column = view == nullptr ? nullptr : view->FindColumn(step.Arg(2).c_str());
        if (item == nullptr || column == nullptr || ShowsGhosts(step)) {
            return "skip";
        }
        PaintCell(*view, *column, *item);
    }
    return "";
}

} // namespace zbtest
