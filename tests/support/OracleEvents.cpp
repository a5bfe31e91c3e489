// SPDX-License-Identifier: MIT
// Data events and rebuilds.
#include "Oracle.h"

#include <algorithm>

namespace zbtest {

namespace {

template <class T>
bool Holds(std::vector<T*> const& all, T const* one) {
    return std::find(all.begin(), all.end(), one) != all.end();
}

constexpr int contentsOfAFolder = 3;

} // namespace

void Oracle::CreateRows(View& view, RecordingItem* item, RecordingSource* source) {
    for (Folder* const folder : PreOrder(view.root)) {
        folder->used = true;
        if (!Holds(folder->lists, source)) {
            continue;
        }
        bool const isShown = std::any_of(folder->rows.begin(), folder->rows.end(),
                                         [item](Row const& row) { return row.item == item; });
        if (!isShown) {
            AddRow(*folder, item, source, false);
        }
        Changed(*folder);
    }
}

std::string Oracle::Created(ScriptStep const& step) {
    RecordingSource* const source = data_.Source(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr || !ScriptData::IsListed(*source, *item)) {
        return "skip";
    }
    for (View& view : views_) {
        if (Holds(view.sources, source)) {
            CreateRows(view, item, source);
        }
    }
    return "";
}

// The folder of each row is signalled, not the row.
std::string Oracle::Updated(ScriptStep const& step) {
    RecordingSource const* const source = data_.Source(step.Arg(1));
    RecordingItem const* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr) {
        return "skip";
    }
    for (View& view : views_) {
        if (!Holds(view.sources, source)) {
            continue;
        }
        for (Folder* const folder : PreOrder(view.root)) {
            folder->used = true;
            for (Row& row : folder->rows) {
                if (row.item == item) {
                    row.changed = true;
                    Changed(*folder);
                }
            }
        }
    }
    return "";
}

std::string Oracle::Deleted(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    RecordingItem const* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    auto const isRow = [item](Row const& row) { return row.item == item; };
    for (Folder* const folder : PreOrder(view->root)) {
        folder->used = true;
        auto const row = std::find_if(folder->rows.begin(), folder->rows.end(), isRow);
        if (row == folder->rows.end()) {
            continue;
        }
        Signal("ViewItemDeleted " + NameOf(*row));
        folder->rows.erase(row);
        folder->unsorted = true;
        if (folder->children.empty() && !HasVisible(*folder)) {
            Changed(*folder);
        }
    }
    return "";
}

std::string Oracle::Renumbered(ScriptStep const& step) {
    if (data_.Source(step.Arg(1)) == nullptr) {
        return "skip";
    }
    for (View& view : views_) {
        LoosenAll(view);
    }
    return "";
}

std::string Oracle::RebuildAll(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    ForEachItem(*view, [](Item const& item) { Mark(item) = false; });
    for (Folder* const folder : PreOrder(view->root)) {
        folder->rows.clear();
    }
    return Build(ScriptStep::Of("build", view->name, true));
}

std::string Oracle::Build(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    for (Folder* const folder : PreOrder(view->root)) {
        folder->used = true;
        for (RecordingSource* const list : folder->lists) {
            if (!BuildList(*folder, list, step.Flag(2))) {
                break;
            }
        }
    }
    return "";
}

// Rebuilding and refreshing

void Oracle::RebuildList(View& view, Folder& folder, RecordingSource* source) {
    auto const items = Listed(*source);
    if (source->failing) {
        return;
    }
    DropRows(view, folder, [&](Row const& row) {
        return row.source == source &&
               std::find(items.begin(), items.end(), row.item) == items.end();
    });
    if (items.empty()) {
        Changed(folder);
    } else {
        BuildList(folder, source, false);
    }
    for (Folder const* above = &folder; above != nullptr; above = above->parent) {
        if (above->iconShows || above->iconRecursive) {
            Changed(*above);
        }
    }
}

// Once the host has run within the step, it may have freed what its source does not list any more;
// so that is passed over.
void Oracle::RefreshFolder(Folder& folder) {
    folder.used = true;
    for (RecordingSource const* const list : folder.lists) {
        for (Row& row : folder.rows) {
            bool const mayBeAsked = !hostHasRun_ || Holds<RecordingItem>(list->All(), row.item);
            if (row.source == list && mayBeAsked && row.item->dirty) {
                row.ordered = false;
                folder.unsorted = true;
                Signal("ViewItemChanged " + NameOf(row));
            }
        }
    }
}

std::string Oracle::RebuildLists(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    for (Folder* const folder : PostOrder(view->root)) {
        folder->used = true;
        for (RecordingSource* const list : folder->lists) {
            if (IsDirty(*list)) {
                RebuildList(*view, *folder, list);
            }
        }
        for (int content = 0; content < contentsOfAFolder; ++content) {
            ContentChanged(*view);
        }
        for (Folder* const below : PreOrder(*folder)) {
            RefreshFolder(*below);
        }
    }
    return "";
}

std::string Oracle::Refresh(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    for (Folder* const folder : PreOrder(view->root)) {
        RefreshFolder(*folder);
    }
    return "";
}

// The first folder that draws a list anew takes back the mark of its source.
std::string Oracle::Redraw(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    for (Folder* const folder : PreOrder(view->root)) {
        folder->used = true;
        for (bool const grouped : {false, true}) {
            std::vector<RecordingSource*> drawn;
            for (RecordingSource* const list : grouped ? folder->groupedLists : folder->lists) {
                if (!IsDirty(*list)) {
                    continue;
                }
                drawn.push_back(list);
                folder->basis = grouped ? folder->basis : Basis();
                for (Row const& row : grouped ? std::vector<Row>() : folder->rows) {
                    Signal("ViewItemChanged " + NameOf(row));
                }
            }
            cleared_.insert(cleared_.end(), drawn.begin(), drawn.end());
            ContentChanged(*view);
        }
        ContentChanged(*view);
    }
    return "";
}

// Single rows

std::string Oracle::BuildItem(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    RecordingSource* const source = data_.Source(step.Arg(2));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr || !ScriptData::IsListed(*source, *item)) {
        return "skip";
    }
    CreateRows(*view, item, source);
    return "";
}

std::string Oracle::UnbuildItem(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    RecordingItem const* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    auto const isRow = [item](Row const& row) { return row.item == item; };
    for (Folder* const folder : PreOrder(view->root)) {
        folder->used = true;
        auto const row = std::find_if(folder->rows.begin(), folder->rows.end(), isRow);
        if (row == folder->rows.end()) {
            continue;
        }
        if (!step.Flag(4)) {
            Signal("ViewItemDeleted " + NameOf(*row));
        }
        folder->rows.erase(row);
        folder->unsorted = true;
    }
    return "";
}

std::string Oracle::DeleteRows(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    std::vector<Row> gone;
    for (std::size_t i = 3; i < step.Count(); ++i) {
        std::string const& place = step.Arg(i);
        auto const equals = place.find('=');
        Folder* const folder = FindFolder(view->name + ":" + place.substr(0, equals));
        if (folder == nullptr || equals == std::string::npos) {
            continue;
        }
        auto const row =
            std::find_if(folder->rows.begin(), folder->rows.end(), [&](Row const& candidate) {
                return NameOf(candidate) == place.substr(equals + 1);
            });
        if (row != folder->rows.end()) {
            gone.push_back(*row);
            folder->rows.erase(row);
            folder->unsorted = true;
        }
    }
    RowsGone(*view, std::move(gone), step.Flag(2));
    return "";
}

} // namespace zbtest
