// SPDX-License-Identifier: MIT
// The data behind the selection: items, sources and values.
#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "selection/SelectedText.h"
#include "selection/zbBrowserSelectionManager.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <algorithm>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::OldViewContext;
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
    auto const& view = OldView();
    view.GetDataItemsFromViewItems(rows, data.simple, recursive);
    view.GetDataItemsFromViewItems(rows, data.hierarchical, recursive);
    view.GetDataItemsFromViewItems(folders, data.inFolders, recursive);
    data.anyFolder = !folders.empty();
    return data;
}

bool zbBrowserSelectionManager::GetSelectedDataItems(
    zbBrowserDataItemMap& bySource, std::vector<zbIBrowserDataItemSimple*>& simple,
    std::vector<zbIBrowserDataItemHierarchical*>& hierarchical, bool recursive) {
    bySource.clear();
    simple.clear();
    hierarchical.clear();
    if (!HasView())
        return false;
    CallScope const scope(Context().Lifetime());
    auto data = CollectData(recursive);
    bySource = std::move(data.bySource);
    simple = std::move(data.simple);
    hierarchical = std::move(data.hierarchical);
    return true;
}

template <class DataItem>
bool zbBrowserSelectionManager::CollectItems(std::vector<DataItem*>& out, bool recursive) const {
    out.clear();
    return HasView() && OldView().GetDataItemsFromViewItems(Selected(), out, recursive);
}

std::vector<zbBrowserViewItemDataLeaf*>
zbBrowserSelectionManager::SelectedLeavesOf(zbIBrowserDataSource const* source,
                                            bool recursive) const {
    auto const& context = static_cast<OldViewContext&>(Context());
    std::vector<zbBrowserViewItemDataLeaf*> leaves;
    auto const append = [&](zbIBrowserViewItem const* row) {
        if (auto* const leaf = context.FindLeaf(row); leaf != nullptr && leaf->IsOf(source))
            leaves.push_back(leaf);
    };
    for (auto const* const item : Selected()) {
        Items rows;
        if (auto const* const folder = context.FindFolder(item); folder != nullptr)
            folder->GetAllViewItems(rows, recursive);
        append(item);
        std::for_each(rows.begin(), rows.end(), append);
    }
    return leaves;
}

void zbBrowserSelectionManager::CollectItemsOf(zbIBrowserDataSourceSimple const* source,
                                               std::vector<zbIBrowserDataItemSimple*>& out,
                                               bool recursive) const {
    out.clear();
    if (!HasView())
        return;
    for (auto const* const leaf : SelectedLeavesOf(source, recursive))
        out.push_back(leaf->GetDataItemSimple());
}

bool zbBrowserSelectionManager::CollectItemsOf(zbIBrowserDataSourceHierarchical const* source,
                                               std::vector<zbIBrowserDataItemHierarchical*>& out,
                                               bool recursive) const {
    out.clear();
    if (!HasView())
        return false;
    CallScope const scope(Context().Lifetime());
    auto const answer = CollectItems(out, recursive);
    std::erase_if(out, [source](auto const* item) { return item->GetDataSource() != source; });
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
    if (!HasView())
        return false;
    CallScope const scope(Context().Lifetime());
    for (auto const* const item : Selected()) {
        std::vector<Source*> sources;
        if (zbIBrowserViewItemFreeFolder const* const folder = OldView().FindFreeFolder(item);
            folder != nullptr)
            (folder->*ofFolder)(sources);
        else if (auto const* const data = Context().Owns(item) ? (item->*ofRow)() : nullptr;
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
    if (!HasView() || DataPropertyOf(ofSimple, source) == nullptr ||
        DataPropertyOf(ofHierarchical, source) == nullptr)
        return false;
    CallScope const scope(Context().Lifetime());
    SelectedText text(list);
    for (auto const* const leaf : SelectedLeavesOf(source, true)) {
        if (Context().Owns(leaf)) // Else it has gone while another value was read
            AppendValue(text, DataPropertyOf(ofSimple, source), leaf->GetDataItemSimple(), nullptr);
    }
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
    if (!HasView() || source == nullptr)
        return false;
    CallScope const scope(Context().Lifetime());
    auto* const ownType = source->GetOwnType();
    if (DataPropertyOf(ofSimple, ownType) == nullptr ||
        DataPropertyOf(ofHierarchical, ownType) == nullptr)
        return false;
    SelectedText text(list);
    std::vector<zbIBrowserDataItemHierarchical*> items;
    CollectItemsOf(source, items, true);
    AppendValues(text, ofHierarchical, items);
    out = text.Take();
    return !out.empty();
}
