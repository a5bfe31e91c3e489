// SPDX-License-Identifier: MIT
#include "RecordedView.h"

#include "support/AllocationFailures.h"

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

namespace zbtest {

// A hook on "Constructed" can make the creation fail.
RecordedView::RecordedView(zbBrowserViewCtrl const* ctrl, zbString const& name)
    : SilentView(name)
    , controller(const_cast<zbBrowserViewCtrl*>(ctrl)) {
    Report("Constructed");
}

RecordedView::~RecordedView() {
    MemoryIsBack const memory;
    Report("Destroyed");
}

bool RecordedView::Report(char const* operation,
                          std::initializer_list<std::string_view> arguments) const {
    bool const result = answer; // The call may be the end of this view
    viewCalls->Called(operation, std::string(GetName().c_str()), arguments);
    return result;
}

void RecordedView::SetDataCtrl(zbIBrowserDataCtrl* const ctrl) {
    dataCtrl_ = ctrl;
    Report("SetDataCtrl", {ctrl == nullptr ? "null" : ctrl->GetName()});
}

zbIBrowserDataSourceSimple*
RecordedView::GetDataSourceSimple(zbIBrowserDataSourceSimple const* source) const {
    return hasSource ? const_cast<zbIBrowserDataSourceSimple*>(source) : nullptr;
}

zbIBrowserDataSourceHierarchical*
RecordedView::GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const* source) const {
    return hasSource ? const_cast<zbIBrowserDataSourceHierarchical*>(source) : nullptr;
}

bool RecordedView::DataSourceConnect(zbIBrowserDataSourceHierarchical* source) {
    return Report("DataSourceConnect", {"tree", source->GetName()});
}

bool RecordedView::DataSourceConnect(zbIBrowserDataSourceSimple* source) {
    return Report("DataSourceConnect", {"flat", source->GetName()});
}

bool RecordedView::DataSourceDisconnect(char const* name) {
    return Report("DataSourceDisconnect", {name});
}

bool RecordedView::CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent,
                                    zbString const& name) {
    return Report("CreateFreeFolder", {parent->GetName(), name});
}

bool RecordedView::DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool deleteContent) {
    return Report("DeleteFreeFolder", {folder->GetName(), Text(deleteContent)});
}

void RecordedView::OnBrowserColPerform() {
    Report("OnBrowserColPerform");
}

void RecordedView::OnBrowserColDeselected() {
    Report("OnBrowserColDeselected");
}

void RecordedView::OnBrowserColDisabled(bool disabled) {
    Report("OnBrowserColDisabled", {Text(disabled)});
}

void RecordedView::SetCollectorEnable(bool enable) {
    Report("SetCollectorEnable", {Text(enable)});
}

void RecordedView::ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD button, bool show) {
    Report("ShowCollectorButton", {std::to_string(static_cast<int>(button)), Text(show)});
}

bool RecordedView::PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE operation) const {
    return Report("PerformCollectorOperation", {std::to_string(static_cast<int>(operation))});
}

void RecordedView::DeselectAllViewItems() {
    Report("DeselectAllViewItems");
}

void RecordedView::OnSelectionChangeFinished() {
    Report("OnSelectionChangeFinished");
}

void RecordedView::OnGuiMapDeleted(zbString const& name) {
    Report("OnGuiMapDeleted", {name});
}

void RecordedView::OnPopupSelection(bool flag) {
    Report("OnPopupSelection", {Text(flag)});
}

void RecordedView::OnUpdateViewSelection(std::vector<zbIBrowserViewItem*> const& items, bool select,
                                         bool clear) {
    Report("OnUpdateViewSelection", {Text(items), Text(select), Text(clear)});
}

bool RecordedView::IsViewItemSelected(zbIBrowserViewItem* item) {
    return Report("IsViewItemSelected", {Text(item)});
}

} // namespace zbtest

// The view of the new generation.

namespace zbbrowser {

bool View::Expand(zbIBrowserViewItem* item) {
    return Report("Expand", {Text(item)});
}
bool View::Collapse(zbIBrowserViewItem* item) {
    return Report("Collapse", {Text(item)});
}
void View::Hide(zbIBrowserViewItem* item) {
    Report("Hide", {Text(item)});
}
void View::Lock(bool lock) {
    Report("Lock", {Text(lock)});
}
void View::Fill(PendingViewChangeInfo&) {
    Report("Fill");
}
void View::ClearDirtyForWindowItems() {
    Report("ClearDirtyForWindowItems");
}
void View::UpdateDirtyForWindowItems() {
    Report("UpdateDirtyForWindowItems");
}

void View::AllDataDependentItemsDelete(bool flag) {
    Report("AllDataDependentItemsDelete", {Text(flag)});
}

void View::AllDirtyDataDependentItemsRebuild(bool flag) {
    Report("AllDirtyDataDependentItemsRebuild", {Text(flag)});
}

bool View::ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder, bool immediately) {
    return Report("ApplyPendingChanges", {folder->GetName(), Text(immediately)});
}

void View::OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear,
                               bool flag) {
    Report("OnDataItemsSelected", {Text(items), Text(clear), Text(flag)});
}

void View::OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items) {
    Report("OnDataItemsDeselected", {Text(items)});
}

} // namespace zbbrowser

// The view of the old generation.

bool zbBrowserView::Expand(zbIBrowserViewItem* item) const {
    return Report("Expand", {Text(item)});
}
bool zbBrowserView::Collapse(zbIBrowserViewItem* item) {
    return Report("Collapse", {Text(item)});
}
void zbBrowserView::Hide(zbIBrowserViewItem* item) {
    Report("Hide", {Text(item)});
}

void zbBrowserView::ExpandAscendants(zbIBrowserViewItem const* item) const {
    Report("ExpandAscendants", {Text(item)});
}

void zbBrowserView::OnDataItemCreated(zbIBrowserDataItemHierarchical* const item, bool flag) {
    Report("OnDataItemCreated", {"tree", Text(item), Text(flag)});
}

void zbBrowserView::OnDataItemCreated(zbIBrowserDataItemSimple* const item, bool flag) {
    Report("OnDataItemCreated", {"flat", Text(item), Text(flag)});
}

void zbBrowserView::OnDataItemReparented(zbIBrowserDataItemHierarchical* const item,
                                         zbIBrowserDataItemHierarchical* const newParent) {
    Report("OnDataItemReparented", {Text(item), Text(newParent)});
}

void zbBrowserView::OnDataItemUpdated(zbIBrowserDataItemHierarchical* const item) {
    Report("OnDataItemUpdated", {"tree", Text(item)});
}

void zbBrowserView::OnDataItemUpdated(zbIBrowserDataItemSimple* const item,
                                      zbIBrowserDataSourceSimple const* /*source*/) {
    Report("OnDataItemUpdated", {"flat", Text(item)});
}

void zbBrowserView::OnDataSourceRenumbered(zbIBrowserDataSourceSimple* source) {
    Report("OnDataSourceRenumbered", {source->GetName()});
}

void zbBrowserView::OnAllDirtyDataListsRebuild() {
    Report("OnAllDirtyDataListsRebuild");
}
void zbBrowserView::OnDataItemsRebuildAll() {
    Report("OnDataItemsRebuildAll");
}

void zbBrowserView::OnDataItemsSelected(
    std::vector<zbIBrowserDataItemSimple*> const& simple,
    std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical, bool clear) {
    Report("OnDataItemsSelected", {Text(simple), Text(hierarchical), Text(clear)});
}

void zbBrowserView::OnDataItemsDeselected(
    std::vector<zbIBrowserDataItemSimple*> const& simple,
    std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical) {
    Report("OnDataItemsDeselected", {Text(simple), Text(hierarchical)});
}
