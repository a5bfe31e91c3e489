// SPDX-License-Identifier: MIT
// New views: what they show, and what must hold in them.
#include "items/new/ViewItemVirtualRoot.h"
#include "RandomScriptPlayer.h"
#include "view/NewViewContext.h"
#include "ViewItemNames.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <algorithm>

namespace zbtest {

using zbbrowser::ViewItemFreeFolder;

namespace {

using Items = std::vector<zbIBrowserViewItem*>;

bool Contains(Items const& items, zbIBrowserViewItem const* item) {
    return std::find(items.begin(), items.end(), item) != items.end();
}

std::size_t DepthOf(ViewItemFreeFolder const& folder) {
    std::size_t depth = 0;
    for (auto const* above = folder.GetParent(); above != nullptr; above = above->GetParent()) {
        ++depth;
    }
    return depth;
}

std::string FlagsOf(ViewItemFreeFolder const& folder) {
    std::string text;
    text += folder.IsExpanded() && !folder.IsVirtualRoot() ? " open" : "";
    text += folder.IsHidden() ? " hidden" : "";
    text += folder.GetGroupLeafs() ? " groups" : "";
    text += folder.GetFreeFolderStyle() ? " style" : "";
    text += folder.GetShowEmptyContainers() ? " empty-containers" : "";
    text += folder.GetKeepChildrenInOrder() ? "" : " sorts";
    text += folder.GetShowWhenEmpty() ? "" : " when-filled";
    text += folder.GetTextBold() ? " bold" : "";
    text += folder.GetTextItalic() ? " italic" : "";
    return text;
}

} // namespace

std::vector<ViewItemFreeFolder*> ScriptPlayer::NewFolders(std::string const& view) {
    zbbrowser::View const* const found = NewView(view);
    std::vector<ViewItemFreeFolder*> folders;
    std::vector<ViewItemFreeFolder*> ahead;
    if (found != nullptr && found->GetVirtualRoot() != nullptr) {
        ahead.push_back(found->GetVirtualRoot());
    }
    while (!ahead.empty()) {
        auto* const folder = ahead.back();
        ahead.pop_back();
        folders.push_back(folder);
        auto const& children = folder->ChildFolders();
        for (auto child = children.rbegin(); child != children.rend(); ++child) {
            ahead.push_back(child->get());
        }
    }
    return folders;
}

std::string ScriptPlayer::StateOfNew(std::string const& name) {
    zbbrowser::View* const view = NewView(name);
    if (view == nullptr) {
        return "";
    }
    Items changed;
    view->GetSelectionManager()->GetChangedViewItems(changed);
    std::string text = "sources\ntrees\n" + PresentationOf(*view);
    for (auto* const folder : NewFolders(name)) {
        text.append(2 * DepthOf(*folder), ' ').append(folder->GetName()).append("/");
        text += FlagsOf(*folder);
        text += view->IsViewItemSelected(folder) ? " selected" : "";
        text += Contains(changed, folder) ? " changed\n" : "\n";
    }
    return text;
}

std::string ScriptPlayer::CheckNewViews() {
    zbbrowser::View* const view = NewView("n0");
    if (view == nullptr) {
        return "";
    }
    std::string problems;
    auto const expect = [&problems](bool holds, char const* what) {
        problems += holds ? "" : std::string("n0: ") + what + "\n";
    };
    auto const folders = NewFolders("n0");
    for (auto const* const folder : folders) {
        expect(folder->GetView() == view, "a folder knows its view");
        for (auto const& child : folder->ChildFolders()) {
            expect(child->GetParent() == folder, "a folder knows its parent");
            expect(folder->FindChildFreeFolder(child->GetName()) == child.get(),
                   "a child folder is found by its name");
        }
    }
    auto const isThere = [&](zbIBrowserViewItem const* item) {
        return std::find(folders.begin(), folders.end(), item) != folders.end();
    };
    auto& manager = *view->GetSelectionManager();
    Items items;
    manager.GetSelectedViewItems(items);
    expect(std::all_of(items.begin(), items.end(), isThere), "what is selected is there");
    manager.GetChangedViewItems(items);
    expect(std::all_of(items.begin(), items.end(), isThere), "what was changed is there");
    auto const* const dropped = manager.GetDropItem();
    expect(dropped == nullptr || isThere(dropped), "the drop item is there");
    auto const* const sorted = view->GetSortedColumn();
    expect(sorted == nullptr || view->FindColumn(sorted) == sorted, "the sorted column is there");
    return problems;
}

std::string ScriptPlayer::Lock(ScriptStep const& step) {
    zbbrowser::View* const view = NewView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->Lock(step.Flag(2));
    return "";
}

} // namespace zbtest
