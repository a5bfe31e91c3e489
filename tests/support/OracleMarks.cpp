// SPDX-License-Identifier: MIT
// Marks of folders and rows, and expansion.
#include "Oracle.h"

#include <algorithm>

namespace zbtest {

std::string Oracle::SetStyle(ScriptStep const& step) {
    Folder* const top = FindFolder(step.Arg(1));
    if (top == nullptr) {
        return "skip";
    }
    for (Folder* const folder : PreOrder(*top)) {
        folder->style = step.Flag(2);
    }
    return "true";
}

std::string Oracle::SetKeepOrder(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->keepsOrder = step.Flag(2);
    return "true";
}

std::string Oracle::SetCaption(ScriptStep const& step) {
    Folder const* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr || data_.Source(step.Arg(2)) == nullptr) {
        return "skip";
    }
    return folder->used ? "true" : "false";
}

std::string Oracle::SetBold(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    if (folder->bold != step.Flag(2)) {
        folder->bold = step.Flag(2);
        Changed(*folder);
    }
    return "";
}

std::string Oracle::SetItalic(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    if (folder->italic != step.Flag(2)) {
        folder->italic = step.Flag(2);
        Changed(*folder);
    }
    return "";
}

std::string Oracle::SetIcon(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->iconShows = step.Flag(2);
    folder->iconRecursive = step.Flag(3);
    Changed(*folder);
    return "";
}

std::string Oracle::SetCount(ScriptStep const& step) {
    Folder const* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    Changed(*folder);
    return "";
}

std::string Oracle::SetShowsWhenEmpty(ScriptStep const& step) {
    Folder* const top = FindFolder(step.Arg(1));
    if (top == nullptr) {
        return "skip";
    }
    for (Folder* const folder : step.Flag(3) ? PostOrder(*top) : std::vector<Folder*>{top}) {
        folder->showsWhenEmpty = step.Flag(2);
        Changed(*folder);
    }
    return "";
}

std::string Oracle::ShowEmptyFolders(ScriptStep const& step) {
    View const* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    Signal("EmptyFoldersShown " + view->name + (step.Flag(2) ? " true" : " false"));
    return "";
}

// What was never used is empty, whatever is below it.
bool Oracle::IsDataEmpty(Folder const& folder) const {
    if (!folder.used) {
        return true;
    }
    auto sources = folder.lists;
    sources.insert(sources.end(), folder.groupedLists.begin(), folder.groupedLists.end());
    for (TreeRecord const& record : folder.trees) {
        sources.insert(sources.end(), record.tree->childTypes.begin(),
                       record.tree->childTypes.end());
    }
    auto const hasItems = [](RecordingSource const* source) {
        return !source->failing && !source->All().empty();
    };
    return std::none_of(sources.begin(), sources.end(), hasItems) &&
           std::all_of(folder.children.begin(), folder.children.end(),
                       [this](auto const& child) { return IsDataEmpty(*child); });
}

std::string Oracle::CanBeShown(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    if (folder->showsWhenEmpty || !IsDataEmpty(*folder)) {
        return "true";
    }
    Update(*view, {{folder, nullptr}}, false, false);
    return "false";
}

// Expansion

void Oracle::OpenFolder(Folder& folder) {
    if (!folder.open) {
        folder.open = true;
        Signal("ViewItemExpanded " + NameOf(folder));
    }
}

void Oracle::CloseFolder(Folder& folder) {
    if (folder.open) {
        folder.open = false;
        Signal("ViewItemCollapsed " + NameOf(folder));
    }
}

std::string Oracle::Expand(ScriptStep const& step) {
    Folder* const top = FindFolder(step.Arg(1));
    if (top == nullptr) {
        return "skip";
    }
    for (Folder* const folder : step.Flag(2) ? PreOrder(*top) : std::vector<Folder*>{top}) {
        OpenFolder(*folder);
    }
    return "true";
}

std::string Oracle::Collapse(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const top = FindFolder(step.Arg(1), &view);
    if (top == nullptr) {
        return "skip";
    }
    for (Folder* const folder : step.Flag(2) ? PreOrder(*top) : std::vector<Folder*>{}) {
        if (folder != top && folder->open) {
            Update(*view, {{folder, nullptr}}, false, false);
            CloseFolder(*folder);
        }
    }
    CloseFolder(*top);
    return "true";
}

std::string Oracle::ExpandList(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr || data_.Source(step.Arg(2)) == nullptr) {
        return "skip";
    }
    OpenFolder(*folder);
    return "true";
}

std::string Oracle::CollapseList(ScriptStep const& step) {
    bool const exists = FindFolder(step.Arg(1)) != nullptr && data_.Source(step.Arg(2)) != nullptr;
    return exists ? "true" : "skip";
}

// Hidden items

std::string Oracle::HideRow(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    for (Row& row : folder->rows) {
        if (NameOf(row) == step.Arg(2)) {
            row.hidden = true;
            return "";
        }
    }
    return "skip";
}

std::string Oracle::ShowRow(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    for (Row& row : folder->rows) {
        if (NameOf(row) == step.Arg(2)) {
            row.hidden = false;
            Signal("ViewItemShown " + NameOf(row));
            return "";
        }
    }
    return "skip";
}

std::string Oracle::HideFolder(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->hidden = true;
    return "";
}

std::string Oracle::ShowFolder(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->hidden = false;
    Signal("ViewItemShown " + NameOf(*folder));
    return "";
}

std::string Oracle::Path(ScriptStep const& step) {
    Folder const* folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    std::string path = folder->parent == nullptr ? "/" : "";
    for (; folder->parent != nullptr; folder = folder->parent) {
        path.insert(0, "/" + folder->name);
    }
    return path;
}

} // namespace zbtest
