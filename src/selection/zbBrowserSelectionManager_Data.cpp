// SPDX-License-Identifier: MIT
// The data behind the selection: items, sources and values.
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "selection/SelectedText.h"
#include "selection/zbBrowserSelectionManager.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::SelectedText;

// Items

zbBrowserSelectionManager::SelectedData
zbBrowserSelectionManager::CollectData(bool recursive) const {
    SelectedData data;
    Items rows;
    Items folders;
    for (auto* const item : Selected()) {
        if (item->IsFreeFolder())
            folders.push_back(item);
        else
            rows.push_back(item); // Groups, whose rows go to `bySource`, join here
    }
    auto const& view = *OldView();
    view.GetDataItemsFromViewItems(rows, data.simple, recursive);
    view.GetDataItemsFromViewItems(rows, data.hierarchical, recursive);
    view.GetDataItemsFromViewItems(folders, data.inFolders, recursive);
    data.anyFolder = !folders.empty();
    return data;
}

bool zbBrowserSelectionManager::GetSelectedDataItems(
    zbBrowserDataItemMap& bySource, std::vector<zbIBrowserDataItemSimple*>& simple,
    std::vector<zbIBrowserDataItemHierarchical*>& hierarchical, bool recursive) {
    auto data = OldView() == nullptr ? SelectedData() : CollectData(recursive);
    bySource = std::move(data.bySource);
    simple = std::move(data.simple);
    hierarchical = std::move(data.hierarchical);
    return OldView() != nullptr;
}

template <class DataItem>
bool zbBrowserSelectionManager::CollectItems(std::vector<DataItem*>& out, bool recursive) const {
    out.clear();
    return OldView() != nullptr && OldView()->GetDataItemsFromViewItems(Selected(), out, recursive);
}

template <class DataItem, class Source>
bool zbBrowserSelectionManager::CollectItemsOf(Source* source, std::vector<DataItem*>& out,
                                               bool recursive) const {
    auto const answer = CollectItems(out, recursive);
    std::erase_if(out, [source](DataItem const* item) { return item->GetDataSource() != source; });
    return answer;
}

bool zbBrowserSelectionManager::GetSelectedDataItems(
    std::vector<zbIBrowserDataItemHierarchical*>& out, bool recursive) {
    return CollectItems(out, recursive);
}

bool zbBrowserSelectionManager::GetSelectedDataItems(std::set<zbIBrowserDataItemHierarchical*>& out,
                                                     bool recursive) {
    std::vector<zbIBrowserDataItemHierarchical*> items;
    auto const answer = CollectItems(items, recursive);
    out = {items.begin(), items.end()};
    return answer;
}

bool zbBrowserSelectionManager::GetSelectedDataItems(std::vector<zbIBrowserDataItemSimple*>& out,
                                                     bool recursive) {
    CollectItems(out, recursive);
    return !out.empty();
}

bool zbBrowserSelectionManager::GetSelectedDataItems(std::set<zbIBrowserDataItemSimple*>& out,
                                                     bool recursive) {
    std::vector<zbIBrowserDataItemSimple*> items;
    CollectItems(items, recursive);
    out = {items.begin(), items.end()};
    return !out.empty();
}

bool zbBrowserSelectionManager::GetSelectedDataItemsOfSource(
    zbIBrowserDataSourceHierarchical* source, std::vector<zbIBrowserDataItemHierarchical*>& out,
    bool recursive) {
    return CollectItemsOf(source, out, recursive);
}

bool zbBrowserSelectionManager::GetSelectedDataItemsOfSource(
    zbIBrowserDataSourceHierarchical* source, std::set<zbIBrowserDataItemHierarchical*>& out,
    bool recursive) {
    std::vector<zbIBrowserDataItemHierarchical*> items;
    auto const answer = CollectItemsOf(source, items, recursive);
    out = {items.begin(), items.end()};
    return answer;
}

bool zbBrowserSelectionManager::GetSelectedDataItemsOfSource(
    zbIBrowserDataSourceSimple* source, std::vector<zbIBrowserDataItemSimple*>& out,
    bool recursive) {
    CollectItemsOf(source, out, recursive);
    return !out.empty();
}

bool zbBrowserSelectionManager::GetSelectedDataItemsOfSource(
    zbIBrowserDataSourceSimple* source, std::set<zbIBrowserDataItemSimple*>& out, bool recursive) {
    std::vector<zbIBrowserDataItemSimple*> items;
    CollectItemsOf(source, items, recursive);
    out = {items.begin(), items.end()};
    return !out.empty();
}

// Sources

template <class Source, class DataItem>
bool zbBrowserSelectionManager::CollectSources(
    std::set<Source*>& out,
    bool (zbIBrowserViewItemFreeFolder::*ofFolder)(std::vector<Source*>&) const,
    DataItem* (zbIBrowserViewItem::*ofRow)() const) const {
    out.clear();
    if (Context() == nullptr)
        return false;
    CallScope const scope(Context()->Lifetime());
    for (auto const* const item : Selected()) {
        std::vector<Source*> sources;
        if (zbIBrowserViewItemFreeFolder const* const folder = OldView()->FindFreeFolder(item);
            folder != nullptr)
            (folder->*ofFolder)(sources);
        else if (auto const* const data = Context()->Owns(item) ? (item->*ofRow)() : nullptr;
                 data != nullptr)
            sources.push_back(data->GetDataSource());
        out.insert(sources.begin(), sources.end());
    }
    out.erase(nullptr);
    return !out.empty();
}

// A row without groups or rows above it has no ancestors in its folder.
bool zbBrowserSelectionManager::GetSelectedDataSources(std::set<zbIBrowserDataSourceSimple*>& out,
                                                       bool) {
    return CollectSources(out, &zbIBrowserViewItemFreeFolder::GetLists,
                          &zbIBrowserViewItem::GetDataItemSimple);
}

bool zbBrowserSelectionManager::GetSelectedDataSourcesHierarchical(
    std::set<zbIBrowserDataSourceHierarchical*>& out, bool) {
    return CollectSources(out, &zbIBrowserViewItemFreeFolder::GetTrees,
                          &zbIBrowserViewItem::GetDataItemHierarchical);
}

bool zbBrowserSelectionManager::GetSelectedDependentFolders(Items& out) {
    out = Selected();
    std::erase_if(out, [](zbIBrowserViewItem const* item) { return !item->IsDependentFolder(); });
    return true;
}

// Values

namespace {

zbIBrowserDataProperty* DataPropertyOf(zbIBrowserViewProperty* property,
                                       zbIBrowserDataSourceSimple* source) {
    return property == nullptr ? nullptr : property->GetDataProperty(source);
}

void AppendValue(SelectedText& text, zbIBrowserDataProperty* property,
                 zbIBrowserDataItemSimple* item, zbIBrowserDataItemSimple* parent) {
    zbString value;
    if (property != nullptr && property->GetString(item, parent, value))
        text.Append(value);
}

//! The values of tree items whose flat face has a data property.
void AppendValues(SelectedText& text, zbIBrowserViewProperty* property,
                  std::vector<zbIBrowserDataItemHierarchical*> const& items) {
    for (auto const* const item : items) {
        auto* const face = item->GetDataItemSimple();
        if (face == nullptr)
            continue;
        auto const* const parent = item->GetParent();
        AppendValue(text, DataPropertyOf(property, face->GetDataSource()), face,
                    parent == nullptr ? nullptr : parent->GetDataItemSimple());
    }
}

} // namespace

bool zbBrowserSelectionManager::GetSelectedPropertyTextOfSource(
    zbIBrowserDataSourceSimple* source, zbIBrowserViewProperty* ofSimple,
    zbIBrowserViewProperty* ofHierarchical, zbString& out, bool list) {
    auto* const property = DataPropertyOf(ofSimple, source);
    if (OldView() == nullptr || property == nullptr ||
        DataPropertyOf(ofHierarchical, source) == nullptr)
        return false;
    CallScope const scope(Context()->Lifetime());
    SelectedText text(list);
    std::vector<zbIBrowserDataItemSimple*> flat;
    CollectItemsOf(source, flat, true);
    for (auto* const item : flat)
        AppendValue(text, property, item, nullptr);
    std::vector<zbIBrowserDataItemHierarchical*> ofTrees;
    CollectItems(ofTrees, true);
    std::erase_if(ofTrees, [source](zbIBrowserDataItemHierarchical const* item) {
        auto const* const face = item->GetDataItemSimple();
        return face == nullptr || face->GetDataSource() != source;
    });
    AppendValues(text, ofHierarchical, ofTrees);
    out = text.Take();
    return !out.empty();
}

bool zbBrowserSelectionManager::GetSelectedPropertyTextOfSource(
    zbIBrowserDataSourceHierarchical* source, zbIBrowserViewProperty* ofSimple,
    zbIBrowserViewProperty* ofHierarchical, zbString& out, bool list) {
    auto* const ownType = source == nullptr ? nullptr : source->GetOwnType();
    if (OldView() == nullptr || DataPropertyOf(ofSimple, ownType) == nullptr ||
        DataPropertyOf(ofHierarchical, ownType) == nullptr)
        return false;
    CallScope const scope(Context()->Lifetime());
    SelectedText text(list);
    std::vector<zbIBrowserDataItemHierarchical*> items;
    CollectItemsOf(source, items, true);
    AppendValues(text, ofHierarchical, items);
    out = text.Take();
    return !out.empty();
}
