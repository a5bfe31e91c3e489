// SPDX-License-Identifier: MIT
//! \file
//! Rows without a list, to be sorted.
#pragma once

#include "filtersort/CurrentSortProperty.h"
#include "filtersort/RowSort.h"
#include "filtersort/zbBrowserSortHandler.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "SortTest.h"
#include "support/ItemDoubles.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <deque>

namespace zbtest {

using Lines = std::vector<std::string>;

//! A row of a flat source or, with a tree item, of a tree.
class RowDouble final : public ItemDouble {
public:
    RowDouble(zbIBrowserView* itsView, zbIBrowserDataItemSimple* itsData,
              zbIBrowserDataItemHierarchical* itsTreeItem = nullptr)
        : ItemDouble(itsView)
        , data(itsData)
        , treeItem(itsTreeItem) {}

    zbIBrowserDataItemSimple* data;
    zbIBrowserDataItemHierarchical* treeItem;

    zbIBrowserDataItemSimple* GetDataItemSimple() const override { return data; }
    zbIBrowserDataItemHierarchical* GetDataItemHierarchical() const override { return treeItem; }
};

//! The sources part, whose view property is "weight" and whose sort property is "rank", and tool,
//! which has neither. Weight and rank order nut before bolt.
class RowSortTest : public testing::Test {
protected:
    using Items = std::vector<zbIBrowserViewItem*>;

    RowSortTest() {
        for (auto const* const name : {"weight", "rank"}) {
            part["nut"].Set(name, 1);
            part["bolt"].Set(name, 2);
        }
        part.SetSortProperty(&part.Property("rank"));
        host.View().CreateViewProperty("weight");
        viewProperty = host.View().FindViewProperty("weight");
        EXPECT_TRUE(host.OldView().CreateVPConnect(viewProperty, &part, &part.Property("weight")));
        host.calls.ForgetCounts();
    }
    ~RowSortTest() override { zbbrowser::detail::SetCurrentSortProperty(nullptr); }

    zbbrowser::detail::ViewContext& Context() { return host.OldView().GetVirtualRoot()->Context(); }
    zbIBrowserViewItemFreeFolder& NewFolder() {
        host.View().CreateFreeFolder(host.View().GetRootFreeFolder(), "folder");
        return *host.View().GetRootFreeFolder()->FindChildFreeFolder("folder");
    }

    //! New rows of the items of these names.
    Items ItemsOf(Lines const& names) {
        Items items;
        items.reserve(names.size());
        for (auto const& name : names) {
            for (auto const* const source : sources) {
                if (auto* const item = source->Find(name))
                    items.push_back(&rows.emplace_back(&host.View(), item));
            }
        }
        return items;
    }
    Lines NamesOf(Items const& items) const {
        Lines names;
        names.reserve(items.size());
        for (auto const* const item : items)
            names.push_back(host.calls.NameOf(item->GetDataItemSimple()));
        return names;
    }

    bool Sort(Items& items, zbbrowser::detail::RowOrder order, std::size_t sorted = 0) {
        zbbrowser::detail::CallScope const scope(Context().Lifetime());
        zbbrowser::detail::SetCurrentSortProperty(viewProperty);
        auto const& handler = *host.OldView().GetSortHandlerPtr();
        return zbbrowser::detail::RowSort(Context(), handler, viewProperty)
            .Run(items, sorted, order);
    }
    Lines Sorted(Lines const& names, zbbrowser::detail::RowOrder order) {
        auto items = ItemsOf(names);
        EXPECT_TRUE(Sort(items, order));
        return NamesOf(items);
    }

    RecordingHost host;
    RecordingSource& part = host.Source("part").Items({"nut", "bolt", "pin", "axle"});
    RecordingSource& tool = host.Source("tool").Items({"saw", "file"});
    std::vector<RecordingSource*> sources{&part, &tool};
    std::deque<RowDouble> rows;
    zbIBrowserViewProperty* viewProperty = nullptr;
};

} // namespace zbtest
