// SPDX-License-Identifier: MIT
#include "view/DataOfItems.h"

#include "view/ViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

namespace zbbrowser::detail {

std::set<zbIBrowserDataItem*> DataItemsOf(ViewContext const& context,
                                          std::vector<zbIBrowserViewItem*> const& items) {
    std::set<zbIBrowserDataItem*> dataItems;
    for (auto const* const item : items) {
        if (context.Owns(item))
            dataItems.insert(item->GetDataItem());
    }
    dataItems.erase(nullptr);
    return dataItems;
}

std::set<zbIBrowserDataSource*> DataSourcesOf(ViewContext const& context,
                                              std::vector<zbIBrowserViewItem*> const& items) {
    std::set<zbIBrowserDataSource*> sources;
    for (auto const* const dataItem : DataItemsOf(context, items))
        sources.insert(dataItem->GetDataSource());
    sources.erase(nullptr);
    return sources;
}

} // namespace zbbrowser::detail
