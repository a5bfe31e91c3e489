// SPDX-License-Identifier: MIT
//! \file
//! A view that follows its data: rows come and go with the items that they show, and the host hears
//! of it through signals, which is where a real host would repaint.

#include "PartData.h"
#include "PartManager.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <cstdio>
#include <memory>
#include <vector>

namespace {

//! What a widget would show for an item: a folder's name, or the name of the part in the row.
zbString TextOf(zbIBrowserViewItem const* item) {
    zbString text;
    if (item->IsFreeFolder())
        text = static_cast<zbIBrowserViewItemFreeFolder const*>(item)->GetName();
    else if (auto* const data = item->GetDataItemSimple(); data != nullptr)
        data->GetProperty("name", text);
    return text;
}

void Print(zbBrowserView const& view, zbIBrowserViewItem const* item, int depth) {
    std::printf("%*s%s\n", 2 * depth, "", TextOf(item).c_str());
    std::vector<zbIBrowserViewItem*> children;
    view.GetChildren(children, item);
    for (auto const* child : children)
        Print(view, child, depth + 1);
}

//! A slot that says what it was told.
auto Say(char const* what) {
    return [what](zbIBrowserViewItem* item) { std::printf("%s %s\n", what, TextOf(item).c_str()); };
}

} // namespace

int main() {
    example::PartManager manager;
    example::PartDataCtrl data;
    auto& parts = data.Parts();
    parts.Add("frame");
    auto& wheel = parts.Add("wheel");

    // The manager and the data outlive the controller, and the controller its views.
    std::unique_ptr<zbBrowserViewCtrl> const controller(CreateBrowserViewCtrl(&manager));
    example::PartManager::CreateView(*controller, "bicycle", false);
    auto* const view = controller->OLD_FindView("bicycle");

    view->SetDataCtrl(&data);
    view->DataSourceConnect(&parts);
    view->CreateFreeFolder(view->GetRootFreeFolder(), "To buy");
    auto* const folder = view->GetRootFreeFolder()->FindChildFreeFolder("To buy");
    view->CreateList(folder, &parts, false);
    Print(*view, folder, 0);

    // From here on this host wants to know what happens.
    zbScopedConnection<> const created =
        manager.GetSignalManager()->ViewItemCreated.Connect(Say("created"));
    zbScopedConnection<> const deleted =
        manager.GetSignalManager()->ViewItemDeleted.Connect(Say("deleted"));

    controller->OnDataItemCreated(&parts.Add("saddle"), false);
    auto const gone = parts.Take(wheel);
    view->OnDataItemDeleted(gone.get());
    Print(*view, folder, 0);
}
