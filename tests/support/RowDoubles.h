// SPDX-License-Identifier: MIT
//! \file
//! View items of the kinds that a view cannot make yet.
#pragma once

#include "support/ItemDoubles.h"

#include <vector>

namespace zbtest {

//! A row of a new view.
class NodeDouble final : public ItemDouble {
public:
    NodeDouble(zbIBrowserView* itsView, zbIBrowserDataItem* itsData)
        : ItemDouble(itsView)
        , data(itsData) {}

    zbIBrowserDataItem* data;

    zbIBrowserDataItem* GetDataItem() const override { return data; }
    bool IsDataLeaf() const override { return false; }
    bool IsDataNode() const override { return true; }
};

//! A row of a tree in an old view.
class ContainerDouble final : public ItemDouble {
public:
    ContainerDouble(zbIBrowserView* itsView, zbIBrowserDataItemHierarchical* itsData)
        : ItemDouble(itsView)
        , data(itsData) {}

    zbIBrowserDataItemHierarchical* data;

    zbIBrowserDataItemHierarchical* GetDataItemHierarchical() const override { return data; }
    bool IsDataLeaf() const override { return false; }
    bool IsDataContainer() const override { return true; }
};

//! A group of an old view.
class DependentFolderDouble final : public ItemDouble {
public:
    using ItemDouble::ItemDouble;

    bool IsDataLeaf() const override { return false; }
    bool IsDependentFolder() const override { return true; }
};

//! A group of a new view.
class GroupingFolderDouble final : public ItemDouble {
public:
    GroupingFolderDouble(zbIBrowserView* itsView, std::vector<zbIBrowserDataSource*> itsSources)
        : ItemDouble(itsView)
        , sources(std::move(itsSources)) {}

    std::vector<zbIBrowserDataSource*> sources;

    bool GetDataSources(std::vector<zbIBrowserDataSource*>& out) const override {
        out = sources;
        return true;
    }
    bool IsDataLeaf() const override { return false; }
    bool IsGroupingFolder() const override { return true; }
};

} // namespace zbtest
