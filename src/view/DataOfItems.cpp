// SPDX-License-Identifier: MIT
#include "view/DataOfItems.h"

#include "view/ViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItem.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

#include <utility>

namespace zbbrowser::detail {

using Items = std::vector<zbIBrowserViewItem*>;

void ForEachDataItemOf(ViewContext const& context, Items const& items,
                       std::function<void(zbIBrowserDataItem&)> const& visit) {
    std::set<std::pair<zbIBrowserDataItem*, zbIBrowserViewItem const*>> shown;
    for (auto const* const item : items) {
        auto* const dataItem = context.Owns(item) ? item->GetDataItem() : nullptr;
        if (dataItem != nullptr)
            shown.emplace(dataItem, item);
    }
    zbIBrowserDataItem const* visited = nullptr;
    for (auto const& [dataItem, row] : shown) {
        if (dataItem == visited || !context.IsAlive() || !context.Owns(row))
            continue;
        visited = dataItem;
        visit(*dataItem);
    }
}

std::set<zbIBrowserDataItem*> DataItemsOf(ViewContext const& context, Items const& items) {
    std::set<zbIBrowserDataItem*> dataItems;
    ForEachDataItemOf(context, items,
                      [&](zbIBrowserDataItem& dataItem) { dataItems.insert(&dataItem); });
    return dataItems;
}

std::set<zbIBrowserDataItem*> DataItemsOf(ViewContext const& context, Items const& items,
                                          zbIBrowserDataSource const* source) {
    std::set<zbIBrowserDataItem*> dataItems;
    ForEachDataItemOf(context, items, [&](zbIBrowserDataItem& dataItem) {
        if (dataItem.GetDataSource() == source)
            dataItems.insert(&dataItem);
    });
    return dataItems;
}

std::set<zbIBrowserDataSource*> DataSourcesOf(ViewContext const& context, Items const& items) {
    std::set<zbIBrowserDataSource*> sources;
    ForEachDataItemOf(context, items, [&](zbIBrowserDataItem const& dataItem) {
        sources.insert(dataItem.GetDataSource());
    });
    sources.erase(nullptr);
    return sources;
}

} // namespace zbbrowser::detail
