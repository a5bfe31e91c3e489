// SPDX-License-Identifier: MIT
// Folders, and the lists and trees in them.
#include "Oracle.h"

#include <algorithm>
#include <functional>

namespace zbtest {

namespace {

template <class T>
bool Holds(std::vector<T*> const& all, T const* one) {
    return std::find(all.begin(), all.end(), one) != all.end();
}

} // namespace

// Parts

bool Oracle::HasVisible(Folder const& folder) {
    return std::any_of(folder.rows.begin(), folder.rows.end(),
                       [](Row const& row) { return !row.hidden; });
}

void Oracle::Forget(Folder& folder) {
    folder.used = false;
    folder.lists.clear();
    folder.groupedLists.clear();
    folder.trees.clear();
    folder.rows.clear();
    folder.basis = Basis();
    folder.unsorted = false;
}

void Oracle::AddRow(Folder& folder, RecordingItem* item, RecordingSource* source, bool silent) {
    folder.rows.push_back({item, source});
    folder.unsorted = true;
    if (!silent) {
        Signal("ViewItemCreated " + NameOf(folder.rows.back()));
    }
}

bool Oracle::BuildList(Folder& folder, RecordingSource* source, bool silent) {
    auto const items = Listed(*source);
    if (items.empty()) {
        return !source->failing;
    }
    for (RecordingItem* const item : items) {
        bool const isShown = std::any_of(folder.rows.begin(), folder.rows.end(),
                                         [item](Row const& row) { return row.item == item; });
        if (!isShown) {
            AddRow(folder, item, source, silent);
        }
    }
    if (!silent) {
        Changed(folder);
    }
    return true;
}

void Oracle::DropRows(View& view, Folder& folder, std::function<bool(Row const&)> const& goes) {
    std::vector<Row> gone;
    std::copy_if(folder.rows.begin(), folder.rows.end(), std::back_inserter(gone), goes);
    folder.unsorted = std::erase_if(folder.rows, goes) > 0 || folder.unsorted;
    RowsGone(view, std::move(gone), false);
}

void Oracle::RowsGone(View& view, std::vector<Row> rows, bool silent) {
    if (rows.empty()) {
        return;
    }
    Items items;
    for (Row& row : rows) {
        items.push_back({nullptr, &row});
    }
    Update(view, items, false, false);
    Signal("ViewItemsSelected <" + NamesOfSelected(view) + ">");
    if (!silent) {
        Signal("ViewItemListDeleted [" + NamesOf(items) + "]");
    }
}

bool Oracle::RemoveList(View& view, Folder& folder, RecordingSource* source) {
    if (Holds(folder.lists, source)) {
        std::erase(folder.lists, source);
        DropRows(view, folder, [source](Row const& row) { return row.source == source; });
        Changed(folder);
    } else if (Holds(folder.groupedLists, source)) {
        std::erase(folder.groupedLists, source);
    } else {
        return false;
    }
    ContentChanged(view);
    return true;
}

void Oracle::AddTree(View& view, Folder& folder, RecordingTree* tree) {
    auto const isTree = [tree](TreeRecord const& record) { return record.tree == tree; };
    if (std::none_of(folder.trees.begin(), folder.trees.end(), isTree)) {
        TreeRecord record{tree, {}};
        for (RecordingSource* const type : tree->childTypes) {
            record.types.push_back({type, folder.groups});
        }
        folder.trees.push_back(std::move(record));
        std::sort(folder.trees.begin(), folder.trees.end(), [](auto const& a, auto const& b) {
            return std::less<zbIBrowserDataSourceHierarchical*>()(a.tree, b.tree);
        });
    }
    ContentChanged(view);
}

bool Oracle::RemoveTree(View& view, Folder& folder, RecordingTree* tree) {
    auto const isTree = [tree](TreeRecord const& record) { return record.tree == tree; };
    if (std::erase_if(folder.trees, isTree) == 0) {
        return false;
    }
    ContentChanged(view);
    return true;
}

bool Oracle::MoveList(View& view, Folder& folder, RecordingSource* source, bool grouped) {
    auto const& from = grouped ? folder.lists : folder.groupedLists;
    bool isBuilt = true;
    if (Holds(from, source)) {
        RemoveList(view, folder, source);
        (grouped ? folder.groupedLists : folder.lists).push_back(source);
        isBuilt = grouped || BuildList(folder, source, false);
        if (isBuilt) {
            ContentChanged(view);
        }
    }
    for (TreeRecord& record : folder.trees) {
        for (Type& type : record.types) {
            type.grouped = type.source == source ? grouped : type.grouped;
        }
    }
    return isBuilt;
}

void Oracle::SetTypes(TreeRecord& record, bool grouped) {
    for (Type& type : record.types) {
        type.grouped = grouped;
    }
}

// Making and removing

std::string Oracle::MakeFolder(ScriptStep const& step) {
    Folder* const parent = FindFolder(step.Arg(1));
    if (parent == nullptr) {
        return "skip";
    }
    Folder& folder = *parent->children.emplace_back(std::make_unique<Folder>());
    folder.name = step.Arg(2);
    folder.parent = parent;
    folder.showsWhenEmpty = parent->showsWhenEmpty;
    Signal("ViewItemCreated " + folder.name);
    Signal("FreeFolderCreated " + NameOf(*parent));
    Changed(*parent);
    return "true";
}

std::string Oracle::DeleteFolder(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    Folder* const parent = folder->parent;
    if (parent == nullptr) {
        return "throw zbString Null pointer hit";
    }
    bool const withContent = step.Flag(2);
    if (!withContent && folder->used && (!folder->children.empty() || HasVisible(*folder))) {
        return "throw char const* Cannot delete non-empty folder. Use deletecontent flag or delete "
               "all content first.";
    }
    if (withContent) {
        folder->children.clear();
        Forget(*folder);
    }
    if (!folder->children.empty() || !folder->lists.empty() || !folder->groupedLists.empty() ||
        !folder->trees.empty()) {
        return "throw char const* Attempt to delete non-empty free folder object";
    }
    Signal("ViewItemDeleted " + folder->name);
    std::erase_if(parent->children, [folder](auto const& child) { return child.get() == folder; });
    Changed(*parent);
    return "true";
}

std::string Oracle::MakeList(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    folder->used = true;
    if (Holds(folder->lists, source) || Holds(folder->groupedLists, source)) {
        return "false";
    }
    if (folder->groups) {
        folder->groupedLists.push_back(source);
    } else {
        folder->lists.push_back(source);
        if (!BuildList(*folder, source, false)) {
            return "false";
        }
    }
    ContentChanged(*view);
    return "true";
}

std::string Oracle::DropList(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return !folder->used || RemoveList(*view, *folder, source) ? "true" : "false";
}

std::string Oracle::MakeTree(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    if (folder == nullptr || tree == nullptr) {
        return "skip";
    }
    folder->used = true;
    AddTree(*view, *folder, tree);
    return "true";
}

std::string Oracle::DropTree(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    if (folder == nullptr || tree == nullptr) {
        return "skip";
    }
    return !folder->used || RemoveTree(*view, *folder, tree) ? "true" : "false";
}

// Grouping

std::string Oracle::GroupLeaves(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const top = FindFolder(step.Arg(1), &view);
    if (top == nullptr) {
        return "skip";
    }
    bool const grouped = step.Flag(2);
    for (Folder* const folder : PostOrder(*top)) {
        if (folder->groups == grouped) {
            continue;
        }
        folder->groups = grouped;
        auto lists = folder->lists;
        lists.insert(lists.end(), folder->groupedLists.begin(), folder->groupedLists.end());
        for (RecordingSource* const list : lists) {
            MoveList(*view, *folder, list, grouped);
        }
        for (TreeRecord& record : folder->trees) {
            SetTypes(record, grouped);
        }
    }
    Signal("FreeFolderStyleChanged " + NameOf(*top) + " true");
    return "true";
}

std::string Oracle::GroupList(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    folder->used = true;
    return MoveList(*view, *folder, source, step.Flag(3)) ? "true" : "false";
}

std::string Oracle::GroupType(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    RecordingSource const* const source = data_.Source(step.Arg(3));
    if (folder == nullptr || tree == nullptr || source == nullptr) {
        return "skip";
    }
    folder->used = true;
    for (TreeRecord& record : folder->trees) {
        if (record.tree != tree) {
            continue;
        }
        for (Type& type : record.types) {
            type.grouped = type.source == source ? step.Flag(4) : type.grouped;
        }
        return "true";
    }
    return "false Tree type: " + tree->Name() + " not configured in the folder: " + folder->name;
}

std::string Oracle::SetEmptyContainers(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    if (folder->emptyContainers != step.Flag(2)) {
        if (!folder->groups) {
            return "false Cannot show empty folders when grouping is disabled";
        }
        folder->emptyContainers = step.Flag(2);
        auto lists = folder->lists;
        lists.insert(lists.end(), folder->groupedLists.begin(), folder->groupedLists.end());
        auto const trees = folder->trees;
        Forget(*folder);
        folder->used = true;
        folder->groupedLists = lists;
        for (std::size_t i = 0; i < lists.size(); ++i) {
            ContentChanged(*view);
        }
        for (TreeRecord const& record : trees) {
            AddTree(*view, *folder, record.tree);
        }
    }
    Signal("FreeFolderStyleChanged " + NameOf(*folder) + " true");
    return "true";
}

} // namespace zbtest
