// SPDX-License-Identifier: MIT
// What there is, and whether it is as it should be.
#include "Dump.h"
#include "InvariantChecker.h"
#include "items/new/ViewItemFreeFolder.h"
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "RandomScriptPlayer.h"
#include "view/OldViewContext.h"
#include "ViewItemNames.h"

#include <algorithm>

namespace zbtest {

namespace {

template <class Visit>
void ForEachFolder(zbBrowserView& view, Visit visit) {
    auto& root = *static_cast<zbBrowserViewItemFreeFolder*>(view.GetVirtualRoot());
    zbbrowser::detail::WalkFolders(root, [&](zbBrowserViewItemFreeFolder& folder) {
        visit(folder);
        return true;
    });
}

} // namespace

void ScriptPlayer::CompareViews(std::string& problems) {
    for (char const* const name : {"v0", "v1", "n0"}) {
        std::string const text = IsNewView(name) ? StateOfNew(name) : StateOfOld(name);
        std::string const expected = oracle_->State(name);
        if (text != expected) {
            problems.append("expected view ").append(name).append(":\n").append(expected);
            problems.append("view:\n").append(text);
        }
    }
}

std::string ScriptPlayer::StateOfOld(std::string const& name) {
    zbBrowserView* const view = View(name);
    if (view == nullptr) {
        return "";
    }
    std::string text = "sources";
    std::vector<zbIBrowserDataSourceSimple*> sources;
    view->GetDataSourceSimpleList(sources);
    for (auto const* const source : sources) {
        text.append(" ").append(source->GetName());
    }
    std::vector<zbIBrowserDataSourceHierarchical*> trees;
    view->GetDataSourceHierarchicalList(trees);
    text += "\ntrees";
    for (auto const* const tree : trees) {
        text.append(" ").append(tree->GetName());
    }
    return text + "\n" + PresentationOf(*view) + Dump(*view, &host_.calls);
}

// After a full rebuild a folder shows the items of its lists, each once, and nothing else.
std::string ScriptPlayer::CheckAgainstData() {
    std::string problems;
    for (std::string const& source : data_.Sources()) {
        data_.Source(source)->failing = false;
    }
    for (std::string const& name : ViewNames()) {
        zbBrowserView& view = *View(name);
        problems += Play(ScriptStep::Of("rebuild-all", name));
        ForEachFolder(view, [&](Folder& folder) {
            std::vector<zbIBrowserDataItemSimple*> expected;
            for (auto* const list : folder.Holder()->NoGrouping().Lists().Snapshot()) {
                for (RecordingItem* const item : static_cast<RecordingSource*>(list)->All()) {
                    if (std::find(expected.begin(), expected.end(), item) == expected.end()) {
                        expected.push_back(item);
                    }
                }
            }
            std::vector<zbIBrowserViewItem*> rows;
            folder.GetAllViewItems(rows, false);
            auto const shows = [](zbIBrowserViewItem const* row, zbIBrowserDataItemSimple* item) {
                return row->GetDataItemSimple() == item;
            };
            if (!std::equal(rows.begin(), rows.end(), expected.begin(), expected.end(), shows)) {
                problems += name + ":" + folder.GetName() + ": not as the data after a rebuild\n" +
                            Dump(view, &host_.calls);
            }
        });
    }
    return problems;
}

std::string ScriptPlayer::CheckInvariants() {
    bool const wasQuiet = std::exchange(isQuiet_, true);
    std::string problems = std::exchange(wrongSignals_, "");
    problems += hasMissedEnd_ ? "" : InvariantChecker::CheckHost(host_);
    for (char const* const tree : {"t0", "s1"}) {
        bool const hasEnded = hasMissedEnd_ || data_.Tree(tree)->changeDepth == 0;
        problems += hasEnded ? "" : "a change of a tree has not ended\n";
    }
    for (std::string const& view : ViewNames()) {
        problems += InvariantChecker(*View(view), hasThrown_).Check();
    }
    problems += CheckNewViews();
    isQuiet_ = wasQuiet;
    return problems;
}

// Items that have gone before their rows

bool ScriptPlayer::HasGhosts(zbBrowserView& view) {
    bool any = false;
    ForEachFolder(view, [&](Folder& folder) {
        std::vector<zbIBrowserViewItem*> rows;
        folder.GetAllViewItems(rows, false);
        any = any || std::any_of(rows.begin(), rows.end(), [this](auto const* row) {
                  return !data_.IsAlive(row->GetDataItemSimple());
              });
    });
    return any;
}

bool ScriptPlayer::HasGhosts() {
    auto const views = ViewNames();
    return std::any_of(views.begin(), views.end(),
                       [this](std::string const& view) { return HasGhosts(*View(view)); });
}

// After a host has freed items that a view shows, it may only rebuild it; but what the view was
// doing at that moment has to cope.
bool ScriptPlayer::IsForbiddenToAsk(zbBrowserView& view) {
    auto& lifetime = static_cast<Folder*>(view.GetVirtualRoot())->Context().Lifetime();
    bool const copes = lifetime.IsBusy() && lifetime.HasHostRun();
    return !copes && HasGhosts(view);
}

bool ScriptPlayer::ShowsGhosts(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1).substr(0, step.Arg(1).find(':')));
    return view != nullptr && HasGhosts(*view);
}

void ScriptPlayer::MarkAllForRebuild() {
    for (std::string const& name : data_.Sources()) {
        data_.Source(name)->failing = false;
        data_.Source(name)->dirty = true;
    }
}

// A host that has deleted items rebuilds before it asks for anything else.
std::string ScriptPlayer::Settle() {
    if (!HasGhosts()) {
        return "";
    }
    isQuiet_ = true;
    MarkAllForRebuild();
    for (std::string const& view : ViewNames()) {
        Perform(ScriptStep::Of("rebuild-lists", view));
    }
    for (std::string const& view :
         HasGhosts() && hasThrown_ ? ViewNames() : std::vector<std::string>()) {
        Perform(ScriptStep::Of("delete-view", view));
    }
    isQuiet_ = false;
    return HasGhosts() ? "rows of items that have gone survive a rebuild\n" : "";
}

// What there is

std::vector<std::string> ScriptPlayer::ViewNames() {
    std::vector<zbBrowserView*> views;
    host_.Controller().GetViewList(views, nullptr);
    std::vector<std::string> names;
    names.reserve(views.size());
    for (auto const* const view : views) {
        names.emplace_back(view->GetName().c_str());
    }
    return names;
}

zbIBrowserView* ScriptPlayer::AnyView(std::string const& name) {
    return host_.Controller().FindView(name.c_str());
}

zbBrowserView* ScriptPlayer::View(std::string const& name) {
    return host_.Controller().OLD_FindView(name.c_str());
}

zbbrowser::View* ScriptPlayer::NewView(std::string const& name) {
    return host_.Controller().FindNewView(name.c_str());
}

std::vector<std::string> ScriptPlayer::FolderNames(std::string const& view) {
    std::vector<std::string> names;
    if (zbBrowserView* const found = View(view)) {
        ForEachFolder(*found, [&](Folder& folder) { names.push_back(NameOf(&folder)); });
    }
    for (auto const* const folder : NewFolders(view)) {
        names.push_back(NameOf(folder));
    }
    return names;
}

std::vector<std::string> ScriptPlayer::RowNames(std::string const& place) {
    std::vector<std::string> names;
    if (Folder const* const folder = FindFolder(place)) {
        std::vector<zbIBrowserViewItem*> rows;
        folder->GetAllViewItems(rows, false);
        for (auto const* const row : rows) {
            names.push_back(NameOf(row, &host_.calls));
        }
    }
    return names;
}

std::size_t ScriptPlayer::RowCount() {
    std::size_t count = 0;
    for (std::string const& view : ViewNames()) {
        ForEachFolder(*View(view), [&](Folder& folder) { count += folder.GetChildrenCount(); });
    }
    return count;
}

ScriptPlayer::Folder* ScriptPlayer::FindFolder(std::string const& place, zbBrowserView** view) {
    auto const colon = place.find(':');
    zbBrowserView* const found = View(place.substr(0, colon));
    if (found == nullptr || colon == std::string::npos) {
        return nullptr;
    }
    if (view != nullptr) {
        *view = found;
    }
    Folder* first = nullptr;
    ForEachFolder(*found, [&](Folder& folder) {
        if (first == nullptr && NameOf(&folder) == place.substr(colon + 1)) {
            first = &folder;
        }
    });
    return first;
}

zbIBrowserViewItemFreeFolder* ScriptPlayer::FindAnyFolder(std::string const& place,
                                                          zbIBrowserView** view) {
    auto const colon = place.find(':');
    if (view != nullptr) {
        *view = AnyView(place.substr(0, colon));
    }
    if (!IsNewView(place)) {
        return FindFolder(place);
    }
    for (auto* const folder : NewFolders(place.substr(0, colon))) {
        if (colon != std::string::npos && NameOf(folder) == place.substr(colon + 1)) {
            return folder;
        }
    }
    return nullptr;
}

zbIBrowserViewItem* ScriptPlayer::FindRow(std::string const& place, std::string const& row) {
    Folder const* const folder = FindFolder(place);
    if (folder == nullptr) {
        return nullptr;
    }
    std::vector<zbIBrowserViewItem*> rows;
    folder->GetAllViewItems(rows, false);
    auto const found = std::find_if(rows.begin(), rows.end(), [&](auto const* candidate) {
        return NameOf(candidate, &host_.calls) == row;
    });
    return found == rows.end() ? nullptr : *found;
}

bool ScriptPlayer::IsShown(RecordingItem const& item) {
    bool isShown = false;
    for (std::string const& view : ViewNames()) {
        ForEachFolder(*View(view), [&](Folder& folder) {
            std::vector<zbIBrowserViewItem*> rows;
            folder.GetAllViewItems(rows, false);
            isShown = isShown || std::any_of(rows.begin(), rows.end(), [&](auto const* row) {
                          return row->GetDataItemSimple() == &item;
                      });
        });
    }
    return isShown;
}

bool ScriptPlayer::IsUsed(RecordingSource const& source) {
    bool isUsed = false;
    for (std::string const& view : ViewNames()) {
        isUsed = isUsed || View(view)->GetDataSourceSimple(&source) != nullptr;
        ForEachFolder(*View(view), [&](Folder const& folder) {
            isUsed = isUsed || folder.FindList(&source) != nullptr;
        });
    }
    return isUsed;
}

} // namespace zbtest
