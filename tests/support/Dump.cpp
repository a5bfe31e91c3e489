// SPDX-License-Identifier: MIT
#include "Dump.h"

#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "ViewItemNames.h"

#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

namespace zbtest {

namespace {

using Folder = zbBrowserViewItemFreeFolder;

void AppendLists(std::string& text, Folder& folder) {
    std::vector<zbIBrowserDataSourceSimple*> lists;
    folder.GetLists(lists);
    if (lists.empty()) {
        return;
    }
    char const* separator = " [";
    for (auto* const list : lists) {
        bool const isGrouped = folder.Holder()->WithGrouping().FindList(list) != nullptr;
        text.append(separator).append(list->GetName()).append(isGrouped ? "*" : "");
        separator = " ";
    }
    text.append("]");
}

void AppendTypes(std::string& text, Folder const& folder, zbIBrowserDataSourceHierarchical* tree) {
    std::vector<zbIBrowserDataSourceSimple*> types;
    folder.GetChildTypes(tree, types);
    char const* separator = ":";
    for (auto* const type : types) {
        bool isGrouped = false;
        folder.IsChildTypeGrouped(tree, type, isGrouped);
        text.append(separator).append(type->GetName()).append(isGrouped ? "*" : "");
        separator = ",";
    }
}

void AppendTrees(std::string& text, Folder const& folder) {
    std::vector<zbIBrowserDataSourceHierarchical*> trees;
    folder.GetTrees(trees);
    if (trees.empty()) {
        return;
    }
    char const* separator = " {";
    for (auto* const tree : trees) {
        text.append(separator).append(tree->GetName());
        AppendTypes(text, folder, tree);
        separator = " ";
    }
    text.append("}");
}

bool IsSelected(zbIBrowserViewItem const& item) {
    auto& manager = *item.GetView()->GetSelectionManager();
    return manager.IsViewItemSelected(const_cast<zbIBrowserViewItem*>(&item));
}

void AppendFlags(std::string& text, Folder const& folder) {
    auto const append = [&](bool flag, char const* name) { text.append(flag ? name : ""); };
    append(folder.IsExpanded() && !folder.IsVirtualRoot(), " open");
    append(folder.IsHidden(), " hidden");
    append(folder.GetGroupLeafs(), " groups");
    append(folder.GetFreeFolderStyle(), " style");
    append(folder.GetShowEmptyContainers(), " empty-containers");
    append(!folder.GetKeepChildrenInOrder(), " sorts");
    append(!folder.GetShowWhenEmpty(), " when-filled");
    append(folder.GetTextBold(), " bold");
    append(folder.GetTextItalic(), " italic");
    append(folder.Holder() == nullptr, " unused");
    append(IsSelected(folder), " selected");
}

void AppendRows(std::string& text, Folder const& folder, std::string const& indent,
                RecordingHostCalls const* calls) {
    std::vector<zbIBrowserViewItem*> rows;
    folder.GetAllViewItems(rows, false);
    for (auto* const row : rows) {
        text.append(indent).append(NameOf(row, calls)).append(row->IsHidden() ? " hidden" : "");
        text.append(IsSelected(*row) ? " selected\n" : "\n");
    }
}

} // namespace

std::string Dump(zbBrowserView& view, RecordingHostCalls const* calls) {
    std::string text;
    std::string indent;
    zbbrowser::detail::WalkFolders(
        *static_cast<Folder*>(view.GetVirtualRoot()),
        [&](Folder& folder) {
            text.append(indent).append(folder.GetName()).append("/");
            AppendLists(text, folder);
            AppendTrees(text, folder);
            AppendFlags(text, folder);
            text.append("\n");
            indent.append("  ");
            AppendRows(text, folder, indent, calls);
            return true;
        },
        [&](Folder&) { indent.resize(indent.size() - 2); });
    return text;
}

} // namespace zbtest
