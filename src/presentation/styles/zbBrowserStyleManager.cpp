// SPDX-License-Identifier: MIT
#include "presentation/styles/zbBrowserStyleManager.h"

#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

zbBrowserStyleManager::zbBrowserStyleManager(zbIBrowserViewColumn& column,
                                             zbbrowser::detail::OldViewContext& context)
    : StyleManagerBase(column, context)
    , oldContext_(context) {
}

zbBrowserView* zbBrowserStyleManager::GetView() const {
    return &oldContext_.OldView();
}

bool zbBrowserStyleManager::RemoveStyleFromFolders(zbIBrowserStyle* style) {
    return RemoveFromFolders(oldContext_.Styles().Find(style));
}

bool zbBrowserStyleManager::SetFolderDataListStyle(zbIBrowserViewItem* folder,
                                                   zbIBrowserDataSourceSimple* source, bool flag) {
    return SetSourceStyle(folder, source, flag);
}

bool zbBrowserStyleManager::IsFreeFolder(zbIBrowserViewItem const* item) const {
    return oldContext_.FindFolder(item) != nullptr;
}

zbIBrowserDataSource* zbBrowserStyleManager::SourceOf(zbIBrowserViewItem const& row) const {
    auto const* const inTree = row.GetDataItemHierarchical();
    auto const* const data =
        inTree == nullptr ? row.GetDataItemSimple() : inTree->GetDataItemSimple();
    return data == nullptr ? nullptr : data->GetDataSource();
}

zbIBrowserDataSource* zbBrowserStyleManager::FindSource(zbIBrowserViewItem const& folder,
                                                        zbIBrowserDataSource& source) const {
    return oldContext_.FindFolder(&folder)->FindList(source.GetName());
}

// All that comes here are lists: arguments of SetFolderDataListStyle and what FindList found.
void zbBrowserStyleManager::Redraw(zbIBrowserDataSource& source) {
    static_cast<zbIBrowserDataSourceSimple&>(source).ClearDirty(true);
    oldContext_.OldView().RedrawAllDirtyDataLists(true);
}
