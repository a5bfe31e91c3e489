// SPDX-License-Identifier: MIT
// The selection, and from data items to rows.
#include "Oracle.h"

#include <algorithm>

namespace zbtest {

namespace {

void AppendName(std::string& names, std::string const& name) {
    names.append(names.empty() ? "" : " ").append(name);
}

template <class T>
bool Holds(std::vector<T*> const& all, T const* one) {
    return std::find(all.begin(), all.end(), one) != all.end();
}

std::string Answer(bool answer) {
    return answer ? "true" : "false";
}

} // namespace

std::map<std::string, Oracle::Handler> const& Oracle::SelectionHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"select", &Oracle::Select},
        {"deselect-below", &Oracle::DeselectBelow},
        {"deselect-row", &Oracle::DeselectRow},
        {"deselect-all", &Oracle::DeselectAll},
        {"select-data", &Oracle::SelectData},
        {"deselect-data", &Oracle::DeselectData},
        {"drop-item", &Oracle::SetDropItem},
        {"clear-all", &Oracle::ForgetSelection},
        {"clear-selected", &Oracle::ForgetSelection},
        {"tell-previous", &Oracle::TellPrevious},
        {"finish-selection", &Oracle::FinishSelection},
        {"sync", &Oracle::SetSync},
        {"notifier", &Oracle::SetNotifier},
        {"popup", &Oracle::Popup},
        {"ask-selection", &Oracle::AskSelection},
        {"ask-texts", &Oracle::AskTexts},
        {"ask-rows", &Oracle::AskRowsOf},
    };
    return handlers;
}

// Parts

bool& Oracle::Mark(Item const& item) {
    return item.folder != nullptr ? item.folder->selected : item.row->selected;
}

std::string Oracle::NameOf(Item const& item) const {
    return item.folder != nullptr ? NameOf(*item.folder) : NameOf(*item.row);
}

std::string Oracle::NamesOf(Items const& items) const {
    std::string names;
    for (Item const& item : items) {
        AppendName(names, NameOf(item));
    }
    return names;
}

void Oracle::ForEachItem(View& view, std::function<void(Item const&)> const& visit) {
    for (Folder* const folder : PreOrder(view.root)) {
        visit({folder, nullptr});
        for (Row& row : folder->rows) {
            visit({nullptr, &row});
        }
    }
}

//! The names of the data items of rows, and of all rows below folders.
std::string Oracle::DataNamesOf(Items const& items) const {
    std::string names;
    for (Item const& item : items) {
        auto const folders =
            item.folder == nullptr ? std::vector<Folder*>() : PreOrder(*item.folder);
        for (Folder const* const folder : folders) {
            for (Row const& row : folder->rows) {
                AppendName(names, NameOf(row));
            }
        }
        if (item.row != nullptr) {
            AppendName(names, NameOf(*item.row));
        }
    }
    return names;
}

std::string Oracle::NamesOfSelected(View& view) const {
    std::string names;
    ForEachItem(view, [&](Item const& item) {
        if (Mark(item)) {
            AppendName(names, NameOf(item));
        }
    });
    return names;
}

void Oracle::Notify(View const& view, std::string const& notice) {
    if (view.hasNotifier) {
        notices_.push_back(view.name + " " + notice);
        hostHasRun_ = true;
    }
}

void Oracle::TellChanging(View const& view, std::string const& names, bool select) {
    if (!view.isNew && names.find_first_not_of("<>") != std::string::npos) {
        std::string const list = names.starts_with('<') ? names : "[" + names + "]";
        Signal("DataItemsSelectionChanging " +
               (view.control == nullptr ? "null" : view.control->Name()) + " " + list + " [] " +
               Answer(select));
    }
}

void Oracle::TellSummary(View& view) {
    std::string names;
    ForEachItem(view, [&](Item const& item) {
        if (item.row != nullptr && item.row->selected) {
            AppendName(names, NameOf(item));
        }
    });
    std::string const control = view.control == nullptr ? "null" : view.control->Name();
    if (view.control != nullptr) {
        Signal("DataItemsGrouped " + control + " {} <" + names + "> []");
    }
    Signal("DataItemsSelectionSummary " + control + " <" + names + "> [] selection");
}

void Oracle::ClearSelection(View& view, bool tellsEnd) {
    Items selected;
    ForEachItem(view, [&](Item const& item) {
        if (Mark(item)) {
            selected.push_back(item);
        }
    });
    Signal("SelectionClearing " + view.name);
    Notify(view, "changed <" + NamesOf(selected) + "> false");
    TellChanging(view, std::string("<").append(DataNamesOf(selected)).append(">"), false);
    ForEachItem(view, [](Item const& item) {
        Mark(item) = false;
        if (item.folder != nullptr) {
            item.folder->changed = false;
        }
    });
    if (tellsEnd && !view.isNew) {
        Signal("SelectionManagerChanged " +
               (view.control == nullptr ? "null" : view.control->Name()) + " selection");
    }
}

void Oracle::Update(View& view, Items const& items, bool select, bool clear) {
    if (clear) {
        ClearSelection(view, items.empty());
    }
    bool const makesDifference = std::any_of(
        items.begin(), items.end(), [select](Item const& item) { return Mark(item) != select; });
    if (items.empty() || (view.isNew && !makesDifference)) {
        return;
    }
    if (makesDifference) {
        TellChanging(view, DataNamesOf(items), select);
    }
    ForEachItem(view, [&](Item const& item) {
        if (view.isNew && item.folder != nullptr) {
            item.folder->changed = false;
        }
    });
    for (Item const& item : items) {
        Mark(item) = select;
        if (view.isNew) {
            item.folder->changed = true;
        }
    }
    view.sync = true;
    Notify(view, "changed [" + NamesOf(items) + "] " + Answer(select));
    if (makesDifference) {
        Notify(view, "finished");
    }
    Signal(std::string(select ? "ViewItemsSelected [" : "ViewItemsDeselected [") + NamesOf(items) +
           "]");
    if (makesDifference && !view.isNew) {
        TellSummary(view);
    }
}

// By items

std::string Oracle::Select(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    if (view == nullptr) {
        return "skip";
    }
    Items items;
    if (folder != nullptr) {
        items.push_back({folder, nullptr});
    }
    if (Row* const row = FindRow(step.Arg(1), step.Arg(2))) {
        items.push_back({nullptr, row});
    }
    Update(*view, items, step.Flag(3), step.Flag(4));
    return "";
}

// A folder comes before what is in it, and its folders before its rows.
std::string Oracle::DeselectBelow(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const top = FindFolder(step.Arg(1), &view);
    if (top == nullptr) {
        return "skip";
    }
    Items items;
    std::function<void(Folder&)> const append = [&](Folder& folder) {
        items.push_back({&folder, nullptr});
        for (auto const& child : folder.children) {
            append(*child);
        }
        for (Row& row : folder.rows) {
            items.push_back({nullptr, &row});
        }
    };
    append(*top);
    Update(*view, items, false, false);
    return "";
}

std::string Oracle::DeselectRow(ScriptStep const& step) {
    View* view = nullptr;
    static_cast<void>(FindFolder(step.Arg(1), &view));
    Row* const row = view == nullptr ? nullptr : FindRow(step.Arg(1), step.Arg(2));
    if (row == nullptr) {
        return "skip";
    }
    Update(*view, {{nullptr, row}}, false, false);
    return "";
}

std::string Oracle::DeselectAll(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    Update(*view, {}, false, true);
    return "";
}

// Silent.
std::string Oracle::ForgetSelection(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    bool const forgetsChanges = step.Name() == "clear-all";
    ForEachItem(*view, [&](Item const& item) {
        Mark(item) = false;
        if (item.folder != nullptr && forgetsChanges) {
            item.folder->changed = false;
        }
    });
    return "";
}

// By data items

//! The rows of the items that the step names, `SOURCE ITEM` and so on, if the view is connected to
//! their sources.
Oracle::Items Oracle::ItemsOf(View& view, ScriptStep const& step, std::size_t from) {
    std::vector<RecordingItem*> wanted;
    for (std::size_t i = from; i + 1 < step.Count(); i += 2) {
        RecordingSource const* const source = data_.Source(step.Arg(i));
        if (source != nullptr && Holds(view.sources, source)) {
            wanted.push_back(data_.Item(step.Arg(i), step.Arg(i + 1)));
        }
    }
    Items items;
    for (Folder* const folder : PreOrder(view.root)) {
        folder->used = true;
        for (Row& row : folder->rows) {
            if (Holds<RecordingItem>(wanted, row.item)) {
                items.push_back({nullptr, &row});
            }
        }
    }
    return items;
}

// The folder of a row is opened, and those above it less the root.
void Oracle::OpenAround(View& view, Row const& row) {
    for (Folder* const folder : PreOrder(view.root)) {
        auto const isRow = [&row](Row const& other) { return &other == &row; };
        if (std::none_of(folder->rows.begin(), folder->rows.end(), isRow)) {
            continue;
        }
        OpenFolder(*folder);
        Folder* above = folder->parent;
        for (; above != nullptr && above->parent != nullptr; above = above->parent) {
            OpenFolder(*above);
        }
    }
}

std::string Oracle::SelectData(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    if (!view->sync) {
        return "";
    }
    Items const items = view->isNew ? Items() : ItemsOf(*view, step, 3);
    for (Item const& item : items) {
        OpenAround(*view, *item.row);
    }
    Update(*view, items, true, step.Flag(2));
    return "";
}

std::string Oracle::DeselectData(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    if (view->sync) {
        Update(*view, view->isNew ? Items() : ItemsOf(*view, step, 2), false, false);
    }
    return "";
}

// The rest of the manager

std::string Oracle::SetDropItem(ScriptStep const& step) {
    return FindView(step.Arg(1).substr(0, step.Arg(1).find(':'))) == nullptr ? "skip" : "";
}

std::string Oracle::TellPrevious(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    Signal("ViewItemsSelected <" + NamesOfSelected(*view) + ">");
    return "";
}

std::string Oracle::FinishSelection(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    std::string const control = view->control == nullptr ? "null" : view->control->Name();
    if (!view->isNew) {
        Signal("SelectionChangeFinished " + control);
    }
    Signal("SelectionManagerChanged " + control + " selection");
    return "";
}

std::string Oracle::SetSync(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->sync = step.Flag(2);
    return "";
}

std::string Oracle::SetNotifier(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->hasNotifier = step.Flag(2);
    return "";
}

std::string Oracle::Popup(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    Notify(*view, "popup " + Answer(step.Flag(2)));
    return "";
}

} // namespace zbtest
