// SPDX-License-Identifier: MIT
#include "InvariantChecker.h"

#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "RecordingHost.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <algorithm>
#include <functional>

namespace zbtest {

namespace {

using Rows = std::vector<zbIBrowserViewItem*>;

bool Contains(Rows const& rows, zbIBrowserViewItem const* row) {
    return std::find(rows.begin(), rows.end(), row) != rows.end();
}

} // namespace

void InvariantChecker::Expect(bool holds, char const* what) {
    if (!holds) {
        problems_.append(where_).append(": ").append(what).append("\n");
    }
}

std::string InvariantChecker::Check() {
    problems_.clear();
    allRows_.clear();
    folders_ = 0;
    holders_ = 0;
    auto& root = *static_cast<Folder*>(view_.GetVirtualRoot());
    zbbrowser::detail::WalkFolders(root, [&](Folder& folder) {
        CheckFolder(folder);
        return true;
    });

    where_ = view_.GetName().c_str();
    auto& context = root.Context();
    Expect(!context.Lifetime().IsBusy(), "no operation of the view is running");
    Expect(context.IsAlive(), "the view has not been given up");
    Expect(context.FolderCount() == folders_, "the register holds the folders of the view");
    Expect(context.AllFoldersHaveHolders() == (holders_ == folders_), "the holders are counted");
    Expect(root.IsVirtualRoot() && root.IsExpanded(), "the root is the root and open");
    Expect(view_.GetRootFreeFolder() == &root, "the root is one object");
    Rows selected;
    view_.GetSelectionManager()->GetSelectedViewItems(selected);
    Expect(std::all_of(selected.begin(), selected.end(),
                       [&](auto const* item) { return context.Owns(item); }),
           "what is selected is there");
    Expect(std::is_sorted(selected.begin(), selected.end(), std::less<>()),
           "the selection stands in the order of addresses");
    auto const* const dropped = view_.GetSelectionManager()->GetDropDataItemSimple();
    Expect(dropped == nullptr ||
               std::any_of(allRows_.begin(), allRows_.end(),
                           [&](auto const* row) { return row->GetDataItemSimple() == dropped; }),
           "the row that was dragged over is there");
    auto const* const start = view_.GetLastFindStartPoint();
    Expect(start == nullptr || context.Owns(start), "the start of a search is there");
    Rows recursive;
    root.GetAllViewItems(recursive, true);
    Expect(recursive == allRows_, "all rows of the view are those of the folders in their order");
    return problems_;
}

void InvariantChecker::CheckFolder(Folder& folder) {
    ++folders_;
    where_ = std::string(view_.GetName().c_str()) + ":" + folder.GetName();
    Rows rows;
    bool const any = folder.GetAllViewItems(rows, false);
    allRows_.insert(allRows_.end(), rows.begin(), rows.end());
    Expect(any == !rows.empty(), "GetAllViewItems tells whether there are rows");
    Expect(folder.GetChildrenCount() == rows.size(), "the count is the number of rows");
    CheckPlace(folder);
    CheckListing(folder, rows);
    for (auto* const row : rows) {
        CheckRow(folder, *row);
    }
    if (folder.Holder() == nullptr) {
        CheckUnused(folder);
        return;
    }
    ++holders_;
    CheckStore(folder, rows);
    CheckLists(folder);
    CheckEvents(folder);
    CheckTrees(folder);
}

void InvariantChecker::CheckPlace(Folder& folder) {
    Expect(folder.IsAlive(), "a folder that is reached lives");
    Expect(threw_ || !folder.IsBusy(), "no folder stays busy");
    Expect(view_.FindFreeFolder(&folder) == &folder, "the folder is found by its pointer");
    Expect(folder.GetView() == &view_, "the folder knows its view");
    Expect(folder.IsFreeFolder() && !folder.IsDataLeaf(), "a folder is a folder");
    Expect(folder.IsVirtualRoot() == (folder.Owner() == nullptr), "the root alone has no owner");
    Expect(folder.GetParent() == folder.Owner(), "the parent is the folder that holds it");
    Expect(folder.GetParentFreeFolder() == folder.Owner(), "and its free folder is the same");
    std::size_t children = 0;
    for (auto const& child : folder.ChildFolders()) {
        if (child != nullptr) {
            ++children;
            Expect(child->Owner() == &folder, "each child knows the folder that holds it");
        }
    }
    Expect(folder.ChildFolderCount() == children, "the count of child folders is right");
}

// While the view is sorted, listing its children would sort them and hide what waits to be sorted.
void InvariantChecker::CheckListing(Folder& folder, Rows const& rows) {
    std::vector<zbIBrowserViewItemFreeFolder*> folders;
    folder.GetChildFreeFolders(folders, false, true);
    Rows shown;
    auto const isShown = [](zbIBrowserViewItem const* item) { return !item->IsHidden(); };
    std::copy_if(folders.begin(), folders.end(), std::back_inserter(shown), isShown);
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(shown), isShown);
    if (view_.GetSortedColumn() == nullptr) {
        Rows children;
        bool const any = view_.GetChildren(children, &folder);
        Expect(children == shown, "the children are the folders and rows that are not hidden");
        Expect(any == !shown.empty(), "GetChildren tells whether there are any");
    }
    bool const rowsShow = std::any_of(rows.begin(), rows.end(), isShown);
    Expect(folder.HasChildren() == (folder.Holder() != nullptr && (!folders.empty() || rowsShow)),
           "HasChildren means child folders or visible rows");
}

void InvariantChecker::CheckRow(Folder& folder, zbIBrowserViewItem& row) {
    auto const* const leaf = folder.Context().FindLeaf(&row);
    Expect(leaf == &row, "the row is found by its pointer");
    Expect(leaf != nullptr && leaf->IsListed(), "the row is listed");
    Expect(row.GetView() == &view_, "the row knows its view");
    Expect(row.GetParent() == &folder, "the row knows its parent");
    Expect(row.GetParentFreeFolder() == &folder, "the row knows its folder");
    Expect(row.IsDataLeaf() && !row.IsFreeFolder(), "a row is a row");
    Expect(row.GetDataItemSimple() != nullptr, "the row has a data item");
    Expect(view_.FindFreeFolder(&row) == nullptr, "a row is no folder");
    Rows children{&row};
    Expect(!view_.GetChildren(children, &row) && children.empty(), "a row has no children");
}

void InvariantChecker::CheckStore(Folder& folder, Rows const& rows) {
    auto& content = folder.Holder()->NoGrouping();
    auto const& store = content.Leaves();
    Expect(store.IsConsistent(), "the store of the rows agrees with itself");
    Expect(store.IsIndexInStep(), "each data item has one row");
    Expect(store.Count() == rows.size(), "the store holds the rows");
    Rows ofLists;
    for (auto* const list : content.Lists().Snapshot()) {
        auto const leaves = store.SnapshotOf(list);
        ofLists.insert(ofLists.end(), leaves.begin(), leaves.end());
    }
    Expect(ofLists.size() == rows.size(), "each row belongs to a list");
    for (auto* const row : rows) {
        Rows found;
        Rows parents;
        content.GetViewItems(row->GetDataItemSimple(), found, parents);
        Expect(found == Rows{row}, "the row is found by its data item");
        Expect(parents == Rows{&folder}, "and its folder with it");
        Expect(content.FindViewItem(row) == row, "and by itself");
        Expect(Contains(ofLists, row), "and among the rows of its list");
    }
}

void InvariantChecker::CheckLists(Folder& folder) {
    auto& holder = *folder.Holder();
    Expect(holder.IsAlive(), "a folder's holder lives");
    std::vector<zbIBrowserDataSourceSimple*> lists;
    Expect(folder.GetLists(lists), "a folder with a holder gives its lists");
    Expect(holder.HasLists() == !lists.empty(), "HasLists agrees with the lists");
    for (auto* const list : lists) {
        Expect(folder.FindList(list) == list, "a list is found by its pointer");
        bool const inOne = holder.NoGrouping().FindList(list) == nullptr;
        bool const inOther = holder.WithGrouping().FindList(list) == nullptr;
        Expect(inOne != inOther, "a list is in one of the two contents");
        Expect(folder.FindList(list->GetName()) != nullptr, "a list is found by its name");
        Expect(folder.HasDataSource(list), "the folder has the source of its list");
        Expect(std::count(lists.begin(), lists.end(), list) == 1, "a list stands there once");
    }
    Expect(folder.IsContentEmpty() ==
               (lists.empty() && !holder.HasTrees() && folder.ChildFolderCount() == 0),
           "IsContentEmpty means no child folders, lists and trees");
}

void InvariantChecker::CheckEvents(Folder& folder) {
    using zbbrowser::detail::FolderIndex;
    std::vector<zbIBrowserDataSourceSimple*> lists;
    folder.GetLists(lists);
    for (auto* const list : lists) {
        std::vector<Folder*> concerned;
        folder.Context().Folders().AppendTo(list, concerned);
        Expect(std::count(concerned.begin(), concerned.end(), &folder) == 1,
               "events of a list come to its folder, once");
        Expect(std::all_of(concerned.begin(), concerned.end(),
                           [&](auto const* other) { return view_.FindFreeFolder(other) == other; }),
               "and to no folder that has gone");
        Expect(std::is_sorted(concerned.begin(), concerned.end(), FolderIndex::Before()),
               "and in the order of the folders");
    }
}

void InvariantChecker::CheckTrees(Folder& folder) {
    std::vector<zbIBrowserDataSourceHierarchical*> trees;
    Expect(folder.GetTrees(trees), "a folder with a holder gives its trees");
    Expect(folder.Holder()->HasTrees() == !trees.empty(), "HasTrees agrees with the trees");
    for (auto* const tree : trees) {
        Expect(folder.Holder()->WithTree().HasTree(tree), "a tree is found by its pointer");
        std::vector<zbIBrowserDataSourceSimple*> types;
        Expect(folder.GetChildTypes(tree, types), "a tree gives its types");
    }
}

void InvariantChecker::CheckUnused(Folder& folder) {
    std::vector<zbIBrowserDataSourceSimple*> lists{nullptr};
    Expect(!folder.GetLists(lists) && lists.empty(), "an unused folder has no lists");
    std::vector<zbIBrowserDataSourceHierarchical*> trees{nullptr};
    Expect(!folder.GetTrees(trees) && trees.empty(), "an unused folder has no trees");
    Expect(folder.GetChildrenCount() == 0, "an unused folder has no rows");
    Expect(folder.IsContentEmpty() == (folder.ChildFolderCount() == 0), "nor content");
}

std::string InvariantChecker::CheckHost(RecordingHost& host) {
    return host.manager.longOperations == 0 ? "" : "host: a long operation has not ended\n";
}

} // namespace zbtest
