// SPDX-License-Identifier: MIT
//! \file
//! zbNeutralDataSourceSimple: a flat source to derive from.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

//! Answers neutrally what a flat source need not have: no properties, no order, no groups, never
//! dirty. What is left to write is what makes a source: its control, its name and its items
//! (`GetDataCtrl`, `GetName`, `GetDataItems`, `ContainsDataItem`).
class zbNeutralDataSourceSimple : public zbIBrowserDataSourceSimple {
public:
    //! A type of its own for each source.
    zbBrowserTypeId GetTypeId() override { return reinterpret_cast<zbBrowserTypeId>(this); }
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
    //! The name of the source.
    char const* GetListCaption() const override { return GetName(); }
    //! The name of the source.
    char const* GetTypeName() const override { return GetName(); }
    void OnConnected() override {}
    void OnDisconnected() override {}
    void GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>&) override {}
    //! True for the source itself only.
    bool IsOfType(zbIBrowserDataSourceSimple* source) override { return source == this; }
    void ClearDirty(bool) override {}
    bool AcceptsEmptySelection() override { return false; }

protected:
    ~zbNeutralDataSourceSimple() = default;
};
