// SPDX-License-Identifier: MIT
//! \file
//! The manager of a RecordingHost, with its panel and its gui maps.
#pragma once

#include "RecordingHostCalls.h"

#include <zbBrowserView/host/zbBrowserManager.h>
#include <zbBrowserView/host/zbIBrowserGuiMap.h>
#include <zbBrowserView/host/zbIBrowserGuiMapManager.h>
#include <zbBrowserView/host/zbIBrowserPanel.h>

#include <memory>
#include <optional>

namespace zbtest {

//! A table whose entries the test sets.
class RecordingGuiMap final : public zbIBrowserGuiMap {
public:
    RecordingGuiMap(RecordingHostCalls& calls, std::string name);

    struct Entry {
        std::string kind;
        std::string value;
    };
    std::map<std::string, Entry> entries;

    bool GetEntryKind(char const* key, zbString& out) override;
    bool GetEntryValue(char const* key, zbString& out) override;

private:
    RecordingHostCalls& calls_;
    std::string name_;
};

class RecordingGuiMapManager final : public zbIBrowserGuiMapManager {
public:
    explicit RecordingGuiMapManager(RecordingHostCalls& calls);

    //! Finds a map or makes it.
    [[nodiscard]] RecordingGuiMap& Map(std::string const& name);

    zbIBrowserGuiMap* FindGuiMap(zbString const& name) override;

private:
    RecordingHostCalls& calls_;
    std::map<std::string, std::unique_ptr<RecordingGuiMap>> maps_;
};

class RecordingPanel final : public zbIBrowserPanel {
public:
    explicit RecordingPanel(RecordingHostCalls& calls);

    zbIBrowserView* activeView = nullptr;
    //! Answer of GetStringFromScript; it fails while there is none.
    std::optional<std::string> scriptResult;

    zbIBrowserView* GetActiveView() override;
    void OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*>& simple,
                             std::vector<zbIBrowserDataItemHierarchical*>& hierarchical,
                             bool clear) override;
    void OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear) override;
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*>& simple,
                               std::vector<zbIBrowserDataItemHierarchical*>& hierarchical) override;
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items) override;
    bool GetStringFromScript(char const* expression, zbString& result, zbString argument) override;

private:
    RecordingHostCalls& calls_;
};

//! The manager, which makes public what zbBrowserManager protects. What it hands out may be set to
//! null.
class RecordingManager final : public zbBrowserManager {
public:
    explicit RecordingManager(RecordingHostCalls& calls);

    using zbBrowserManager::CreateFreeFolder;
    using zbBrowserManager::CreateView;
    using zbBrowserManager::DeleteFreeFolder;
    using zbBrowserManager::DeleteView;

    zbBrowserSignalManager* signals = nullptr;
    zbBrowserDataSignalManager* dataSignals = nullptr;
    zbIBrowserPanel* panel = nullptr;
    zbIBrowserGuiMapManager* guiMaps = nullptr;
    int longOperations = 0; //!< BeginLongOperation minus EndLongOperation.
    std::string scriptResult;

    zbBrowserDataSignalManager* GetDataSignalManager() override;
    zbIBrowserGuiMapManager* GetGuiMapManager() override;
    void BeginLongOperation() override;
    void EndLongOperation() override;
    void EvaluateScript(zbString const& script, zbString& result) override;
    void ShowViewItem(zbIBrowserViewItem* item) override;
    zbIBrowserPanel* GetBrowserPanel() override;
    void RegisterGuiMap(char const* name) override;
    void RegisterGuiMapObject(zbIBrowserGuiMap* map, int use) override;
    void ShowCollectorButton(zbIBrowserView* view, int which, bool show) override;
    zbBrowserSignalManager* GetSignalManager() const override;
    void OnCollectorSwitchedOn(zbIBrowserView* view) override;

private:
    RecordingHostCalls& calls_;
};

} // namespace zbtest
