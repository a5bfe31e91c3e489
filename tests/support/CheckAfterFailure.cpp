// SPDX-License-Identifier: MIT
//! \file
//! What must hold of the views of a host after an allocation has failed, linked with the test
//! programs that have the inside of the library at hand.
#include "AllocationRun.h"
#include "InvariantChecker.h"
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "RecordingHost.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <algorithm>
#include <exception>
#include <set>
#include <typeinfo>

namespace zbtest {

namespace {

using Folder = zbBrowserViewItemFreeFolder;
using Items = std::vector<zbIBrowserViewItem*>;
using zbbrowser::detail::CallScope;
using zbbrowser::detail::WalkFolders;

void Expect(bool holds, char const* what) {
    if (!holds)
        ReportProblem(std::string("afterwards: ") + what);
}

//! The slots and hooks of a test may want objects of the test that have gone by now.
class Silence {
public:
    explicit Silence(RecordingHost& host)
        : host_(host)
        , signals_(std::exchange(host.manager.signals, nullptr))
        , dataSignals_(std::exchange(host.manager.dataSignals, nullptr))
        , hooks_(host.calls.ExchangeHooks({})) {}
    Silence(Silence const&) = delete;
    Silence& operator=(Silence const&) = delete;
    ~Silence() {
        host_.manager.signals = signals_;
        host_.manager.dataSignals = dataSignals_;
        static_cast<void>(host_.calls.ExchangeHooks(std::move(hooks_)));
    }

private:
    RecordingHost& host_;
    zbBrowserSignalManager* signals_;
    zbBrowserDataSignalManager* dataSignals_;
    RecordingHostCalls::Hooks hooks_;
};

bool ShowsOwnItems(RecordingHost const& host, zbIBrowserDataSourceSimple* list) {
    if (!host.Owns(list))
        return false;
    auto const& items = dynamic_cast<RecordingSource&>(*list).All();
    return std::all_of(items.begin(), items.end(),
                       [&](auto* item) { return item->source == list; });
}

//! False where the test has broken on purpose what is looked at here: it has lists and trees of its
//! own making, which may have gone, items that say that they are of another source, or folders
//! under another parent.
bool IsRegular(RecordingHost const& host, Folder& root) {
    bool all = true;
    WalkFolders(root, [&](Folder& folder) {
        std::vector<zbIBrowserDataSourceSimple*> lists;
        std::vector<zbIBrowserDataSourceHierarchical*> trees;
        folder.GetLists(lists);
        folder.GetTrees(trees);
        all = all && folder.GetParent() == folder.Owner() &&
              std::all_of(lists.begin(), lists.end(),
                          [&](auto* list) { return ShowsOwnItems(host, list); }) &&
              std::all_of(trees.begin(), trees.end(), [&](auto* tree) { return host.Owns(tree); });
        return true;
    });
    return all;
}

void CheckRebuild(Folder& folder) {
    if (folder.Holder() == nullptr)
        return;
    auto& content = folder.Holder()->NoGrouping();
    for (auto* const list : content.Lists().Snapshot()) {
        auto const& source = dynamic_cast<RecordingSource&>(*list);
        if (source.failing || !content.RebuildList(list, true))
            continue;
        std::set<zbIBrowserDataItemSimple const*> shown;
        for (auto const* const leaf : content.Leaves().SnapshotOf(list))
            shown.insert(leaf->GetDataItemSimple());
        std::set<zbIBrowserDataItemSimple const*> const wanted(source.All().begin(),
                                                               source.All().end());
        Expect(shown == wanted, "a rebuilt list shows its data");
    }
}

zbIBrowserViewItemFreeFolder* MakeFolder(zbIBrowserView& view) {
    auto* const root = view.GetRootFreeFolder();
    Expect(view.CreateFreeFolder(root, "after the failure"), "a folder is made");
    auto* const folder = root->FindChildFreeFolder("after the failure");
    Expect(folder != nullptr, "a folder is found");
    return folder;
}

void Select(zbIBrowserView& view, Items const& items) {
    auto& selection = *view.GetSelectionManager();
    selection.ClearNotifiers();
    selection.UpdateSelection(items, true, true);
    Items selected;
    selection.GetSelectedViewItems(selected);
    Expect(std::set(selected.begin(), selected.end()) == std::set(items.begin(), items.end()),
           "what is selected is selected");
}

void SortByName(zbIBrowserView& view) {
    if (auto* const column = view.GetDefaultColumn(); column != nullptr)
        view.SetAscendingOrder(column, true);
}

void Use(RecordingHost& host, zbBrowserView& view) {
    auto* const folder = MakeFolder(view);
    auto& source = host.Source("after the failure");
    if (source.All().empty())
        source.Items({"c", "a", "b"});
    Expect(view.CreateList(folder, &source, false), "a list is made");
    SortByName(view);
    Items rows;
    view.GetChildren(rows, folder);
    Expect(rows.size() == 3, "a list has its rows");
    Select(view, rows);
    ReportProblem(InvariantChecker(view, true).Check());
    rows.pop_back();
    view.DeleteViewItemList(rows, false);
    Expect(folder->GetChildrenCount() == 1, "rows are deleted");
    ReportProblem(InvariantChecker(view, true).Check());
    view.DeleteFreeFolder(folder, true);
}

void Check(RecordingHost& host, zbBrowserView& view) {
    auto* const root = static_cast<Folder*>(view.GetVirtualRoot());
    if (!IsRegular(host, *root))
        return;
    ReportProblem(InvariantChecker(view, true).Check());
    {
        CallScope const scope(root->Context().Lifetime());
        WalkFolders(*root, [](Folder& folder) {
            CheckRebuild(folder);
            return true;
        });
    }
    Use(host, view);
    ReportProblem(InvariantChecker(view, true).Check());
}

void Check(zbbrowser::View& view) {
    if (view.GetRootFreeFolder() == nullptr || view.IsLocked())
        return; // As the test has left it
    auto* const folder = MakeFolder(view);
    SortByName(view);
    Select(view, {folder, view.GetRootFreeFolder()});
}

void CheckViews(RecordingHost& host) {
    std::vector<zbBrowserView*> oldViews;
    host.Controller().GetViewList(oldViews, nullptr);
    for (auto* const view : oldViews)
        Check(host, *view);
    std::vector<zbbrowser::View*> newViews;
    host.Controller().GetViewList(newViews, nullptr);
    for (auto* const view : newViews)
        Check(*view);
}

void CheckHost(RecordingHost& host) {
    Silence const silence(host);
    try {
        CheckViews(host);
    } catch (std::exception const& error) {
        ReportProblem(std::string("afterwards: ") + error.what());
    } catch (char const* text) {
        ReportProblem(std::string("afterwards: ") + text);
    } catch (zbString const& text) {
        ReportProblem(std::string("afterwards: ") + text.c_str());
    }
}

[[maybe_unused]] bool const isInstalled =
    (RecordingHost::checkAfterFailure = &CheckHost) != nullptr;

} // namespace

} // namespace zbtest
