// SPDX-License-Identifier: MIT
#include "ViewItemNames.h"

#include "RecordingHostCalls.h"

#include <zbBrowserView/host/zbIBrowserDataItemHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/zbIBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

namespace zbtest {

namespace {

std::string NameOfFolder(zbIBrowserViewItem const* item) {
    auto const* const folder = dynamic_cast<zbIBrowserViewItemFreeFolder const*>(item);
    if (folder == nullptr) {
        return "?";
    }
    return folder->IsVirtualRoot() ? "/" : folder->GetName();
}

std::string NameOfGroup(zbIBrowserViewItem const* item) {
    std::vector<zbIBrowserDataSourceSimple*> sources;
    item->GetView()->GetDataSourceSimpleList(sources);
    for (zbIBrowserDataSourceSimple* const source : sources) {
        if (item->HasDataSource(source)) {
            return std::string("[") + source->GetName() + "]";
        }
    }
    return "[]";
}

//! The data item of a row. A row of a tree answers with its flat face as well, so that comes last.
zbIBrowserDataItem* DataItemOf(zbIBrowserViewItem const* item) {
    if (zbIBrowserDataItem* const any = item->GetDataItem()) {
        return any;
    }
    if (zbIBrowserDataItem* const inTree = item->GetDataItemHierarchical()) {
        return inTree;
    }
    return item->GetDataItemSimple();
}

} // namespace

std::string NameOf(zbIBrowserViewItem const* item, RecordingHostCalls const* calls) {
    if (item == nullptr) {
        return "null";
    }
    if (item->IsFreeFolder()) {
        return NameOfFolder(item);
    }
    if (item->IsDependentFolder() || item->IsGroupingFolder()) {
        return NameOfGroup(item);
    }
    zbIBrowserDataItem* const data = DataItemOf(item);
    if (data == nullptr) {
        return "?";
    }
    return calls != nullptr && calls->Knows(data) ? calls->NameOf(data) : NameOf(data);
}

std::string NameOf(zbIBrowserDataItem* item) {
    if (item == nullptr) {
        return "null";
    }
    auto* flat = dynamic_cast<zbIBrowserDataItemSimple*>(item);
    if (auto* const inTree = dynamic_cast<zbIBrowserDataItemHierarchical*>(item)) {
        flat = inTree->GetDataItemSimple();
    }
    zbString name;
    return flat != nullptr && flat->GetProperty("name", name) ? name.c_str() : "?";
}

std::string NameOf(zbIBrowserView const* view) {
    return view == nullptr ? "null" : view->GetName().c_str();
}

} // namespace zbtest
