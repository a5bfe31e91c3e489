// SPDX-License-Identifier: MIT
#include "presentation/styles/StyleManager.h"

#include "items/new/ViewItemFreeFolder.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/host/zbIBrowserDataSource.h>

namespace zbbrowser {

StyleManager::StyleManager(zbIBrowserViewColumn& column, detail::NewViewContext& context)
    : StyleManagerBase(column, context)
    , newContext_(context) {
}

bool StyleManager::SetFolderDataSourceStyle(zbIBrowserViewItem* folder,
                                            zbIBrowserDataSource* source, bool flag) {
    return SetSourceStyle(folder, source, flag);
}

bool StyleManager::IsFreeFolder(zbIBrowserViewItem const* item) const {
    return newContext_.FindFolder(item) != nullptr;
}

zbIBrowserDataSource* StyleManager::SourceOf(zbIBrowserViewItem const& row) const {
    auto const* const data = row.GetDataItem();
    return data == nullptr ? nullptr : data->GetDataSource();
}

zbIBrowserDataSource* StyleManager::FindSource(zbIBrowserViewItem const& folder,
                                               zbIBrowserDataSource& source) const {
    auto* const found = newContext_.FindFolder(&folder)->FindDataSource(source.GetName());
    return found == &source ? found : nullptr;
}

} // namespace zbbrowser
