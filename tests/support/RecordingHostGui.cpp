// SPDX-License-Identifier: MIT
#include "RecordingHostGui.h"

#include "ViewItemNames.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>

namespace zbtest {

namespace {

constexpr char const* Flag(bool value) {
    return value ? "true" : "false";
}

template <class T>
std::string NamesOf(RecordingHostCalls const& calls, std::vector<T*> const& items) {
    std::string names = "[";
    for (T* const item : items) {
        names.append(names.size() > 1 ? " " : "");
        names.append(calls.NameOf(static_cast<zbIBrowserDataItem*>(item)));
    }
    return names + "]";
}

} // namespace

RecordingGuiMap::RecordingGuiMap(RecordingHostCalls& calls, std::string name)
    : calls_(calls)
    , name_(std::move(name)) {
    calls_.Remember(static_cast<zbIBrowserGuiMap*>(this), name_);
}

bool RecordingGuiMap::GetEntryKind(char const* key, zbString& out) {
    calls_.Called("GetEntryKind", name_, {key});
    auto const found = entries.find(key);
    if (found != entries.end()) {
        out = found->second.kind.c_str();
    }
    return found != entries.end();
}

bool RecordingGuiMap::GetEntryValue(char const* key, zbString& out) {
    calls_.Called("GetEntryValue", name_, {key});
    auto const found = entries.find(key);
    if (found != entries.end()) {
        out = found->second.value.c_str();
    }
    return found != entries.end();
}

RecordingGuiMapManager::RecordingGuiMapManager(RecordingHostCalls& calls)
    : calls_(calls) {
}

RecordingGuiMap& RecordingGuiMapManager::Map(std::string const& name) {
    auto& map = maps_[name];
    if (map == nullptr) {
        map = std::make_unique<RecordingGuiMap>(calls_, name);
    }
    return *map;
}

zbIBrowserGuiMap* RecordingGuiMapManager::FindGuiMap(zbString const& name) {
    calls_.Called("FindGuiMap", "guiMaps", {name});
    auto const found = maps_.find(name.c_str());
    return found == maps_.end() ? nullptr : found->second.get();
}

RecordingPanel::RecordingPanel(RecordingHostCalls& calls)
    : calls_(calls) {
}

zbIBrowserView* RecordingPanel::GetActiveView() {
    calls_.Asked("GetActiveView", "panel");
    return activeView;
}

void RecordingPanel::OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*>& simple,
                                         std::vector<zbIBrowserDataItemHierarchical*>& hierarchical,
                                         bool clear) {
    calls_.Called("OnDataItemsSelected", "panel",
                  {NamesOf(calls_, simple), NamesOf(calls_, hierarchical), Flag(clear)});
}

void RecordingPanel::OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items,
                                         bool clear) {
    calls_.Called("OnDataItemsSelected", "panel", {NamesOf(calls_, items), Flag(clear)});
}

void RecordingPanel::OnDataItemsDeselected(
    std::vector<zbIBrowserDataItemSimple*>& simple,
    std::vector<zbIBrowserDataItemHierarchical*>& hierarchical) {
    calls_.Called("OnDataItemsDeselected", "panel",
                  {NamesOf(calls_, simple), NamesOf(calls_, hierarchical)});
}

void RecordingPanel::OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items) {
    calls_.Called("OnDataItemsDeselected", "panel", {NamesOf(calls_, items)});
}

bool RecordingPanel::GetStringFromScript(char const* expression, zbString& result,
                                         zbString argument) {
    calls_.Called("GetStringFromScript", "panel", {expression, "(", argument, ")"});
    if (scriptResult) {
        result = scriptResult->c_str();
    }
    return scriptResult.has_value();
}

RecordingManager::RecordingManager(RecordingHostCalls& calls)
    : calls_(calls) {
}

zbBrowserDataSignalManager* RecordingManager::GetDataSignalManager() {
    calls_.Asked("GetDataSignalManager", "manager");
    return dataSignals;
}

zbIBrowserGuiMapManager* RecordingManager::GetGuiMapManager() {
    calls_.Asked("GetGuiMapManager", "manager");
    return guiMaps;
}

void RecordingManager::BeginLongOperation() {
    calls_.Called("BeginLongOperation", "manager");
    ++longOperations;
}

void RecordingManager::EndLongOperation() {
    calls_.Called("EndLongOperation", "manager");
    --longOperations;
}

void RecordingManager::EvaluateScript(zbString const& script, zbString& result) {
    calls_.Called("EvaluateScript", "manager", {script});
    result = scriptResult.c_str();
}

void RecordingManager::ShowViewItem(zbIBrowserViewItem* item) {
    calls_.Called("ShowViewItem", "manager", {NameOf(item, &calls_)});
}

zbIBrowserPanel* RecordingManager::GetBrowserPanel() {
    calls_.Asked("GetBrowserPanel", "manager");
    return panel;
}

void RecordingManager::RegisterGuiMap(char const* name) {
    calls_.Called("RegisterGuiMap", "manager", {name});
}

void RecordingManager::RegisterGuiMapObject(zbIBrowserGuiMap* map, int use) {
    calls_.Called("RegisterGuiMapObject", "manager", {calls_.NameOf(map), std::to_string(use)});
}

void RecordingManager::ShowCollectorButton(zbIBrowserView* view, int which, bool show) {
    calls_.Called("ShowCollectorButton", "manager",
                  {NameOf(view), std::to_string(which), Flag(show)});
}

zbBrowserSignalManager* RecordingManager::GetSignalManager() const {
    calls_.Asked("GetSignalManager", "manager");
    return signals;
}

void RecordingManager::OnCollectorSwitchedOn(zbIBrowserView* view) {
    calls_.Called("OnCollectorSwitchedOn", "manager", {NameOf(view)});
}

} // namespace zbtest
