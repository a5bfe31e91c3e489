// SPDX-License-Identifier: MIT
// Steps on folders.
#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

namespace zbtest {

namespace {

std::string Answer(bool answer) {
    return answer ? "true" : "false";
}

} // namespace

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::FolderHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"folder", &ScriptPlayer::MakeFolder},
        {"delete-folder", &ScriptPlayer::DeleteFolder},
        {"list", &ScriptPlayer::MakeList},
        {"drop-list", &ScriptPlayer::DropList},
        {"tree", &ScriptPlayer::MakeTree},
        {"drop-tree", &ScriptPlayer::DropTree},
        {"group-leaves", &ScriptPlayer::GroupLeaves},
        {"group-list", &ScriptPlayer::GroupList},
        {"group-type", &ScriptPlayer::GroupType},
        {"style", &ScriptPlayer::SetStyle},
        {"empty-containers", &ScriptPlayer::SetEmptyContainers},
        {"keep-order", &ScriptPlayer::SetKeepOrder},
        {"caption", &ScriptPlayer::SetCaption},
        {"bold", &ScriptPlayer::SetBold},
        {"italic", &ScriptPlayer::SetItalic},
        {"icon", &ScriptPlayer::SetIcon},
        {"count", &ScriptPlayer::SetCount},
        {"shows-when-empty", &ScriptPlayer::SetShowsWhenEmpty},
        {"can-be-shown", &ScriptPlayer::CanBeShown},
        {"expand", &ScriptPlayer::Expand},
        {"collapse", &ScriptPlayer::Collapse},
        {"expand-list", &ScriptPlayer::ExpandList},
        {"collapse-list", &ScriptPlayer::CollapseList},
        {"hide-row", &ScriptPlayer::HideRow},
        {"show-row", &ScriptPlayer::ShowRow},
        {"hide-folder", &ScriptPlayer::HideFolder},
        {"show-folder", &ScriptPlayer::ShowFolder},
        {"path", &ScriptPlayer::Path},
    };
    return handlers;
}

std::string ScriptPlayer::MakeFolder(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto const* const folder = FindAnyFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    return Answer(view->CreateFreeFolder(folder, step.Arg(2).c_str()));
}

std::string ScriptPlayer::DeleteFolder(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    return folder == nullptr ? "skip" : Answer(view->DeleteFreeFolder(folder, step.Flag(2)));
}

// Lists and trees

std::string ScriptPlayer::MakeList(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return Answer(view->CreateList(folder, source, false));
}

std::string ScriptPlayer::DropList(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return Answer(view->DeleteList(folder, source));
}

std::string ScriptPlayer::MakeTree(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    if (folder == nullptr || tree == nullptr) {
        return "skip";
    }
    return Answer(view->CreateTree(folder, tree));
}

std::string ScriptPlayer::DropTree(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    if (folder == nullptr || tree == nullptr) {
        return "skip";
    }
    return Answer(view->DeleteTree(folder, tree));
}

std::string ScriptPlayer::GroupLeaves(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    return folder == nullptr ? "skip" : Answer(view->SetFreeFolderGroupLeafs(folder, step.Flag(2)));
}

std::string ScriptPlayer::GroupList(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return Answer(folder->SetListGrouped(source, step.Flag(3)));
}

// In a hostile script the folder may be gone by the time when it would be asked for its text.
std::string ScriptPlayer::GroupType(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    RecordingSource* const source = data_.Source(step.Arg(3));
    if (folder == nullptr || tree == nullptr || source == nullptr) {
        return "skip";
    }
    bool const isDone = folder->SetChildTypeGrouped(tree, source, step.Flag(4));
    return isDone || !IsCalm() ? "true" : std::string("false ") + folder->GetError();
}

std::string ScriptPlayer::SetEmptyContainers(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    bool const isDone = view->SetFreeFolderShowEmptyContainers(folder, step.Flag(2));
    return isDone || !IsCalm() ? "true"
                               : std::string("false ") + View(view->GetName().c_str())->GetError();
}

// Marks

std::string ScriptPlayer::SetStyle(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    return folder == nullptr ? "skip" : Answer(view->SetFreeFolderStyle(folder, step.Flag(2)));
}

std::string ScriptPlayer::SetKeepOrder(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    return Answer(view->SetKeepChildrenFreeFoldersInOrderAsCreated(folder, step.Flag(2)));
}

std::string ScriptPlayer::SetCaption(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return Answer(view->SetListCaption(folder, source, "caption"));
}

std::string ScriptPlayer::SetBold(ScriptStep const& step) {
    auto* const folder = FindAnyFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->SetTextBold(step.Flag(2));
    return "";
}

std::string ScriptPlayer::SetItalic(ScriptStep const& step) {
    auto* const folder = FindAnyFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->SetTextItalic(step.Flag(2));
    return "";
}

std::string ScriptPlayer::SetIcon(ScriptStep const& step) {
    auto* const folder = FindAnyFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->SetIconShowsData(step.Flag(2), step.Flag(3));
    return "";
}

std::string ScriptPlayer::SetCount(ScriptStep const& step) {
    auto* const folder = FindAnyFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->SetCaptionShowsCount(step.Flag(2), step.Flag(3));
    return "";
}

std::string ScriptPlayer::SetShowsWhenEmpty(ScriptStep const& step) {
    auto* const folder = FindAnyFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->SetShowWhenEmpty(step.Flag(2), step.Flag(3));
    return "";
}

std::string ScriptPlayer::CanBeShown(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    return folder == nullptr ? "skip" : Answer(view->IsEmptyFolderCanBeShown(folder));
}

// Expansion

std::string ScriptPlayer::Expand(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    return folder == nullptr ? "skip" : Answer(view->ExpandFreeFolder(folder, step.Flag(2)));
}

std::string ScriptPlayer::Collapse(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto* const folder = FindAnyFolder(step.Arg(1), &view);
    return folder == nullptr ? "skip" : Answer(view->CollapseFreeFolder(folder, step.Flag(2)));
}

std::string ScriptPlayer::ExpandList(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return Answer(view->ExpandFreeFolderList(folder, source, step.Flag(3)));
}

std::string ScriptPlayer::CollapseList(ScriptStep const& step) {
    zbBrowserView* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return Answer(view->CollapseFreeFolderList(folder, source, step.Flag(3)));
}

// Hidden items. There is no operation yet that hides one, so the mark is set directly.

std::string ScriptPlayer::HideRow(ScriptStep const& step) {
    Folder const* const folder = FindFolder(step.Arg(1));
    auto* const row = FindRow(step.Arg(1), step.Arg(2));
    if (row == nullptr) {
        return "skip";
    }
    folder->Context().FindLeaf(row)->SetHidden(true);
    return "";
}

std::string ScriptPlayer::ShowRow(ScriptStep const& step) {
    auto* const row = FindRow(step.Arg(1), step.Arg(2));
    if (row == nullptr) {
        return "skip";
    }
    row->Show();
    return "";
}

std::string ScriptPlayer::HideFolder(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->SetHidden(true);
    return "";
}

std::string ScriptPlayer::ShowFolder(ScriptStep const& step) {
    auto* const folder = FindAnyFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->Show();
    return "";
}

std::string ScriptPlayer::Path(ScriptStep const& step) {
    zbIBrowserView* view = nullptr;
    auto const* const folder = FindAnyFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    zbString path;
    view->GetFreeFolderAbsolutePathName(folder, path);
    return path.c_str();
}

} // namespace zbtest
