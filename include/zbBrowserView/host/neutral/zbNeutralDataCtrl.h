// SPDX-License-Identifier: MIT
//! \file
//! zbNeutralDataCtrl: a data control to derive from.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>

//! Answers neutrally what a data control need not have: no trees, no operations, no collectors, no
//! order of sources, no changes to report. What is left to write is its name and how it finds a
//! flat source (`GetName`, `FindDataSourceSimple`).
class zbNeutralDataCtrl : public zbIBrowserDataCtrl {
public:
    zbIBrowserDataSourceHierarchical* FindDataSourceHierarchical(char const*) override {
        return nullptr;
    }
    bool IsSelectionForwardingBlocked() override { return false; }
    bool IsCollectorDisabledNew() override { return false; }
    bool IsCollectorDisabled() override { return false; }
    void Release(void*) override {}
    bool IsCollectorInUse() override { return false; }
    zbIBrowserDataOperation* FindDataOperation(char const*) override { return nullptr; }
    bool CompareDataSources(zbIBrowserDataSource*, zbIBrowserDataSource*, bool&) override {
        return false;
    }
    void SetCurrentDataItem(zbIBrowserDataItem*) override {}
    zbIBrowserDataCollectorType* FindCollectorType(char const*) override { return nullptr; }
    void GetDirtyItems(std::set<zbIBrowserDataSource*>&, std::set<zbIBrowserDataItem*>&) override {}
    void GetDeletedItems(std::set<zbIBrowserDataSource*>&,
                         std::set<zbIBrowserDataItem*>&) override {}
    void GetItems(std::vector<zbIBrowserDataItem*>&, zbIBrowserDataReference*,
                  zbIBrowserDataSource*, zbIBrowserDataItem*, bool) override {}
    void GetChangedLinks(std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>&,
                         std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>&,
                         zbIBrowserDataReference*, zbIBrowserDataSource*, zbIBrowserDataSource*,
                         bool) override {}

protected:
    ~zbNeutralDataCtrl() = default;
};
