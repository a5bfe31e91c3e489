// SPDX-License-Identifier: MIT
//! \file
//! The least that a host can write: each interface with the operations that have no default.
#pragma once

#include <zbBrowserView/host/zbIBrowserCollectorOperation.h>
#include <zbBrowserView/host/zbIBrowserDataCollector.h>
#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataOperation.h>

namespace zbtest {

class MinimalSource final : public zbIBrowserDataSourceSimple {
public:
    zbIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }
    char const* GetName() const override { return "source"; }
    zbBrowserTypeId GetTypeId() override { return 1; }
    bool IsDirty() const override { return false; }
    bool GetFolderScriptText(zbIBrowserViewItemFreeFolder*, zbString&) override { return false; }
    zbIBrowserDataProperty* FindDataProperty(char const*) override { return nullptr; }
    void SetDataPropertyInteger(zbIBrowserDataItem*, zbIBrowserDataProperty*, int) override {}
    void SetDataPropertyBoolean(zbIBrowserDataItem*, zbIBrowserDataProperty*, bool) override {}
    void SetSortProperty(zbIBrowserDataProperty*) override {}
    bool CompareBySortProperty(zbIBrowserDataItem*, zbIBrowserDataItem*, int&) override {
        return false;
    }
    bool CompareByDataProperty(zbIBrowserDataItem*, zbIBrowserDataProperty*, zbIBrowserDataItem*,
                               zbIBrowserDataProperty*, int&) override {
        return false;
    }
    bool CompareByName(zbIBrowserDataItem*, zbIBrowserDataItem*, int&) override { return false; }
    bool CompareById(zbIBrowserDataItem*, zbIBrowserDataItem*, int&) override { return false; }
    char const* GetListCaption() const override { return ""; }
    char const* GetTypeName() const override { return ""; }
    void OnConnected() override {}
    void OnDisconnected() override {}
    void GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>&) override {}
    bool IsOfType(zbIBrowserDataSourceSimple* source) override { return source == this; }
    void ClearDirty(bool) override {}
    bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>&) override { return true; }
    bool ContainsDataItem(zbIBrowserDataItemSimple*) override { return false; }
    bool AcceptsEmptySelection() override { return false; }
};

class MinimalTree final : public zbIBrowserDataSourceHierarchical {
public:
    zbIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }
    char const* GetName() const override { return "tree"; }
    zbBrowserTypeId GetTypeId() override { return 2; }
    bool IsDirty() const override { return false; }
    bool GetFolderScriptText(zbIBrowserViewItemFreeFolder*, zbString&) override { return false; }
    zbIBrowserDataProperty* FindDataProperty(char const*) override { return nullptr; }
    void SetDataPropertyInteger(zbIBrowserDataItem*, zbIBrowserDataProperty*, int) override {}
    void SetDataPropertyBoolean(zbIBrowserDataItem*, zbIBrowserDataProperty*, bool) override {}
    void SetSortProperty(zbIBrowserDataProperty*) override {}
    bool CompareBySortProperty(zbIBrowserDataItem*, zbIBrowserDataItem*, int&) override {
        return false;
    }
    bool CompareByDataProperty(zbIBrowserDataItem*, zbIBrowserDataProperty*, zbIBrowserDataItem*,
                               zbIBrowserDataProperty*, int&) override {
        return false;
    }
    bool CompareByName(zbIBrowserDataItem*, zbIBrowserDataItem*, int&) override { return false; }
    bool CompareById(zbIBrowserDataItem*, zbIBrowserDataItem*, int&) override { return false; }
    void OnDisconnected() override {}
    bool SkipsBuildOnExpand() const override { return false; }
    bool HasDirtyItems() const override { return false; }
    zbIBrowserDataSourceSimple* GetOwnType() const override { return nullptr; }
    void GetChildTypes(std::vector<zbIBrowserDataSourceSimple*>&) override {}
    zbIBrowserDataSourceSimple* FindDataSourceSimple(char const*) override { return nullptr; }
    void GetChildren(zbIBrowserDataItemHierarchical*, std::vector<zbIBrowserDataItemHierarchical*>&,
                     zbIBrowserDataSourceSimple*, bool) override {}
};

class MinimalItem final : public zbIBrowserDataItemSimple {
public:
    explicit MinimalItem(MinimalSource& source)
        : source_(source) {}
    MinimalSource* GetDataSource() const override { return &source_; }
    bool GetProperty(char const*, zbString&) override { return false; }
    bool IsDirty() const override { return false; }

private:
    MinimalSource& source_;
};

class MinimalTreeItem final : public zbIBrowserDataItemHierarchical {
public:
    explicit MinimalTreeItem(MinimalTree& tree)
        : tree_(tree) {}
    MinimalTree* GetDataSource() const override { return &tree_; }
    zbIBrowserDataItemSimple* GetDataItemSimple() const override { return nullptr; }
    bool IsHiddenFromTree() const override { return false; }
    bool IsDirty() const override { return false; }

private:
    MinimalTree& tree_;
};

class MinimalOperation final : public zbIBrowserDataOperation {
public:
    char const* GetName() const override { return "operation"; }
    bool IsAvailableForItems(zbBrowserDataItemMap&, std::vector<zbIBrowserDataItemSimple*>&,
                             std::vector<zbIBrowserDataItemHierarchical*>&,
                             std::vector<zbIBrowserDataItemHierarchical*>&) override {
        return true;
    }
    bool IsAvailable(zbBrowserDataItemMap&, std::vector<zbIBrowserDataItemSimple*>&) override {
        return true;
    }
    bool IsChecked(zbBrowserDataItemMap&, std::vector<zbIBrowserDataItemSimple*>&) override {
        return true;
    }
};

class MinimalCollector final : public zbIBrowserDataCollector {};
class MinimalCollectorOperation final : public zbIBrowserCollectorOperation {};

} // namespace zbtest
