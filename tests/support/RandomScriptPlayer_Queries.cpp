// SPDX-License-Identifier: MIT
// Questions to the selection manager and about rows, copies of views, and the panel.
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"
#include "ViewItemNames.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <sstream>

namespace zbtest {

namespace {

class OldCopy final : public zbBrowserView {
public:
    explicit OldCopy(zbBrowserView const& other)
        : zbBrowserView(other) {}
    OldCopy(OldCopy const&) = delete;
    OldCopy& operator=(OldCopy const&) = delete;
    ~OldCopy() override = default;
};

class NewCopy final : public zbbrowser::View {
public:
    explicit NewCopy(zbbrowser::View const& other)
        : View(other) {}
    NewCopy(NewCopy const&) = delete;
    NewCopy& operator=(NewCopy const&) = delete;
    ~NewCopy() override = default;
};

//! The names with a blank before each, in the order of their letters.
std::string Sorted(std::multiset<std::string> const& names) {
    std::string text;
    for (std::string const& name : names) {
        text.append(text.empty() ? "" : " ").append(name);
    }
    return text;
}

} // namespace

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::QueryHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"ask-selection", &ScriptPlayer::AskSelection},
        {"ask-texts", &ScriptPlayer::AskTexts},
        {"ask-rows", &ScriptPlayer::AskRowsOf},
        {"keep-manager", &ScriptPlayer::KeepManager},
        {"ask-manager", &ScriptPlayer::AskManager},
        {"ask-view", &ScriptPlayer::AskView},
        {"activate", &ScriptPlayer::Activate},
        {"panel-select", &ScriptPlayer::SelectInPanel},
    };
    return handlers;
}

std::string ScriptPlayer::AskSelection(ScriptStep const& step) {
    zbIBrowserView const* const view = AnyView(step.Arg(1));
    if (view == nullptr || ShowsGhosts(step)) {
        return "skip";
    }
    auto& manager = *view->GetSelectionManager();
    std::vector<zbIBrowserViewItemFreeFolder*> selected;
    manager.GetSelectedFreeFolders(selected);
    std::multiset<std::string> folders;
    for (auto const* const folder : selected) {
        folders.insert(NameOf(folder));
    }
    FlatItems items;
    manager.GetSelectedDataItems(items, true);
    std::multiset<std::string> names;
    for (auto* const item : items) {
        names.insert(host_.calls.NameOf(static_cast<zbIBrowserDataItem*>(item)));
    }
    std::set<zbIBrowserDataSourceSimple*> sources;
    manager.GetSelectedDataSources(sources, true);
    std::string ofSources;
    for (std::string const& name : data_.Sources()) {
        ofSources += sources.contains(data_.Source(name)) ? " " + name : "";
    }
    std::vector<zbIBrowserViewItem*> changed;
    manager.GetChangedViewItems(changed);
    std::multiset<std::string> ofChanged;
    for (auto const* const item : changed) {
        ofChanged.insert(NameOf(item, &host_.calls));
    }
    return "folders " + Sorted(folders) + "; items " + Sorted(names) + "; sources" + ofSources +
           "; changed " + Sorted(ofChanged);
}

std::string ScriptPlayer::AskTexts(ScriptStep const& step) {
    auto* const property = FindProperty(step.Arg(1), step.Arg(3));
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (property == nullptr || source == nullptr || ShowsGhosts(step)) {
        return "skip";
    }
    auto& manager = *AnyView(step.Arg(1))->GetSelectionManager();
    zbString text;
    bool const isAny =
        IsNewView(step.Arg(1))
            ? manager.GetSelectedPropertyTextOfSource(source, property, text)
            : manager.GetSelectedPropertyTextOfSource(source, property, property, text, true);
    std::istringstream words(text.c_str());
    std::multiset<std::string> sorted;
    for (std::string word; words >> word;) {
        sorted.insert(word);
    }
    return isAny ? "true " + Sorted(sorted) : "false";
}

//! The folders in which an item has a row.
std::string ScriptPlayer::AskRowsOf(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    std::vector<zbIBrowserViewItem*> found;
    std::vector<zbIBrowserViewItem*> parents;
    view->GetDataDependentViewItems(item, found, parents);
    std::string names;
    for (auto const* const parent : IsCalm() ? parents : std::vector<zbIBrowserViewItem*>()) {
        names.append(names.empty() ? "" : " ").append(NameOf(parent));
    }
    return names;
}

// A manager that outlives its view.

std::string ScriptPlayer::KeepManager(ScriptStep const& step) {
    zbIBrowserView const* const view = AnyView(step.Arg(1));
    keptManager_ = view == nullptr ? keptManager_ : view->GetSelectionManager();
    return "";
}

//! Asks everything. What it answers is a matter of the view that it may have lost.
std::string ScriptPlayer::AskManager(ScriptStep const& step) {
    RecordingSource* const source = data_.Source(step.Arg(1));
    if (keptManager_ == nullptr || HasGhosts()) {
        return "skip";
    }
    auto& manager = *keptManager_;
    zbBrowserDataItemMap map;
    FlatItems items;
    std::set<zbIBrowserDataItemSimple*> itemSet;
    std::vector<zbIBrowserDataItemHierarchical*> inTrees;
    std::set<zbIBrowserDataItemHierarchical*> inTreeSet;
    std::set<zbIBrowserDataSourceSimple*> sources;
    std::set<zbIBrowserDataSourceHierarchical*> trees;
    std::set<zbIBrowserDataSource*> anySources;
    std::set<zbIBrowserViewItemFreeFolder*> folders;
    std::vector<zbIBrowserViewItem*> groups;
    zbString text;
    manager.GetSelectedDataItems(map, items, inTrees, true);
    manager.GetSelectedDataItems(inTreeSet, true);
    manager.GetSelectedDataItems(itemSet, true);
    manager.GetSelectedDataItems(inTrees, false);
    manager.GetSelectedDataItemsOfSource(source, itemSet, true);
    manager.GetSelectedDataItemsOfSource(source, items, true);
    manager.GetSelectedDataItemsOfSource(data_.Tree("t0"), inTrees, true);
    manager.GetSelectedDataItemsOfSource(data_.Tree("t0"), inTreeSet, true);
    manager.GetSelectedDataSources(sources, false);
    manager.GetSelectedDataSourcesHierarchical(trees, false);
    manager.GetSelectedDataSources(anySources, false);
    manager.GetSelectedFreeFolders(folders);
    manager.GetSelectedDependentFolders(groups);
    manager.GetSelectedPropertyText(FindProperty("n0", "p0"), text);
    manager.GetViewName(text);
    static_cast<void>(manager.GetDropDataSource());
    static_cast<void>(manager.GetDropDataItemHierarchical());
    static_cast<void>(manager.GetDropItem());
    static_cast<void>(manager.GetLastSelect());
    manager.UpdateSelection({}, false, false);
    return "";
}

// Views

//! The other questions to a view and a folder, which are looked up anew for each.
std::string ScriptPlayer::AskView(ScriptStep const& step) {
    char const* const name = step.Arg(2).c_str();
    std::vector<zbIBrowserDataSourceSimple*> lists;
    std::vector<zbIBrowserDataSource*> sources;
    std::vector<zbIBrowserDataItemHierarchical*> items;
    RecordingTree* const tree = data_.Tree("t0");
    RecordingSource* const type = data_.Source("s0");
    bool flag = false;
    using Question = std::function<void(zbBrowserView&, Folder&)>;
    std::vector<Question> const questions = {
        [&](auto&, auto& folder) { folder.GetAllLists(lists, true); },
        [&](auto&, auto& folder) { folder.GetAllDataSources(sources, true); },
        [&](auto&, auto& folder) { static_cast<void>(folder.FindList(name)); },
        [&](auto&, auto& folder) { static_cast<void>(folder.FindTree(name)); },
        [&](auto&, auto& folder) { static_cast<void>(folder.FindDataSourceSimple(name)); },
        [&](auto&, auto& folder) { static_cast<void>(folder.HasDataSource(type)); },
        [&](auto&, auto& folder) { folder.IsChildTypeShown(tree, type, flag); },
        [&](auto&, auto& folder) { folder.SetTreeGrouped(tree, flag); },
        [&](auto&, auto& folder) { folder.DeleteTreeRecursive(tree); },
        [&](auto& view, auto& folder) { view.GetSelectionTypes({&folder}, lists); },
        [&](auto& view, auto& folder) { view.GetDataItemsFromViewItems({&folder}, items, true); },
        [&](auto& view, auto& folder) { static_cast<void>(view.FindTree(&folder, tree)); },
        [&](auto& view, auto&) {
            static_cast<void>(view.GetDataSourceSimpleFromHierarchical(name));
        },
        [&](auto& view, auto& folder) {
            view.ExpandAscendants(std::vector<zbIBrowserViewItem*>{&folder});
        },
    };
    for (Question const& ask : questions) {
        zbBrowserView* view = nullptr;
        Folder* const folder = FindFolder(step.Arg(1), &view);
        if (folder == nullptr || ShowsGhosts(step)) {
            return "skip";
        }
        ask(*view, *folder);
    }
    return "";
}

std::string ScriptPlayer::CopyView(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    zbbrowser::View* const newView = NewView(step.Arg(1));
    if (view != nullptr && !ShowsGhosts(step)) {
        OldCopy const copy(*view);
        std::vector<zbIBrowserViewItem*> children;
        copy.GetChildren(children, copy.GetRootFreeFolder());
    } else if (newView != nullptr) {
        NewCopy const copy(*newView);
        static_cast<void>(copy.GetSortedColumn());
    }
    return "";
}

// The panel

std::string ScriptPlayer::Activate(ScriptStep const& step) {
    host_.panel.activeView = AnyView(step.Arg(1));
    return "";
}

std::string ScriptPlayer::SelectInPanel(ScriptStep const& step) {
    // A panel forgets a view that has gone.
    bool isThere = false;
    for (char const* const name : {"v0", "v1", "n0"}) {
        isThere = isThere || (AnyView(name) != nullptr && AnyView(name) == host_.panel.activeView);
    }
    host_.panel.activeView = isThere ? host_.panel.activeView : nullptr;
    FlatItems const items = ItemsOf(step, 3);
    std::vector<zbIBrowserDataItem*> const anyItems(items.begin(), items.end());
    auto& controller = host_.Controller();
    if (step.Flag(1)) {
        controller.OnDataItemsSelected(items, step.Flag(2));
        controller.OnDataItemsSelected(anyItems, step.Flag(2), false);
    } else {
        controller.OnDataItemsDeselected(items);
        controller.OnDataItemsDeselected(anyItems);
    }
    return "";
}

} // namespace zbtest
