// SPDX-License-Identifier: MIT
// What new views do differently from old ones.
#include "Oracle.h"

#include <zbBrowserView/platform/zbString.h>

#include <algorithm>

namespace zbtest {

std::map<std::string, Oracle::Handler> const& Oracle::NewViewHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"folder", &Oracle::MakeNewFolder},
        {"delete-folder", &Oracle::DeleteNewFolder},
        {"lock", &Oracle::Lock},
        {"expand", &Oracle::ExpandNew},
        {"empty-containers", &Oracle::ShowEmptyContainersOfNew},
        {"collapse", &Oracle::AnswerTrue},
        {"can-be-shown", &Oracle::AnswerTrue},
        {"disconnect-all", &Oracle::AnswerFalse},
        {"disconnect", &Oracle::AnswerFalse},
        {"group-leaves", &Oracle::AnswerFalse},
        {"bold", &Oracle::AnswerNothing},
        {"italic", &Oracle::AnswerNothing},
        {"unsort-all", &Oracle::AnswerNothing},
    };
    return handlers;
}

// Only those that concern a view or folder that there is are asked.

std::string Oracle::AnswerTrue(ScriptStep const& step) {
    return FindFolder(step.Arg(1)) == nullptr ? "skip" : "true";
}

std::string Oracle::AnswerFalse(ScriptStep const& step) {
    bool const isThere = FindView(step.Arg(1)) != nullptr || FindFolder(step.Arg(1)) != nullptr;
    return isThere ? "false" : "skip";
}

std::string Oracle::AnswerNothing(ScriptStep const& step) {
    bool const isThere = FindView(step.Arg(1)) != nullptr || FindFolder(step.Arg(1)) != nullptr;
    return isThere ? "" : "skip";
}

std::string Oracle::MakeNewFolder(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const parent = FindFolder(step.Arg(1), &view);
    if (parent == nullptr) {
        return "skip";
    }
    if (view->locked) {
        return "false";
    }
    auto const isNamed = [&](auto const& child) {
        return StrICmp(child->name.c_str(), step.Arg(2).c_str()) == 0;
    };
    if (std::any_of(parent->children.begin(), parent->children.end(), isNamed)) {
        return "throw char const* Child Free Folder with supplied name already exists in parent";
    }
    MakeFolder(step);
    parent->children.back()->used = true;
    return "true";
}

std::string Oracle::DeleteNewFolder(ScriptStep const& step) {
    View* view = nullptr;
    Folder const* const folder = FindFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    bool const isRefused = !view->locked && folder->parent == nullptr;
    return isRefused ? "throw char const* Cannot remove toplevel (canvas) free folder" : "false";
}

std::string Oracle::ExpandNew(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    folder->open = true;
    return "true";
}

std::string Oracle::ShowEmptyContainersOfNew(ScriptStep const& step) {
    Folder const* const folder = FindFolder(step.Arg(1));
    if (folder == nullptr) {
        return "skip";
    }
    Signal("FreeFolderStyleChanged " + NameOf(*folder) + " true");
    return "true";
}

std::string Oracle::Lock(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->locked = step.Flag(2);
    return "";
}

} // namespace zbtest
