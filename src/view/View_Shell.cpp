// SPDX-License-Identifier: MIT
//! \file
//! What a view of the new generation offers and does not do yet, for want of its root folder,
//! columns and handlers. Each operation answers as it will when it finds none. What moves out of
//! this file into one of its own is built.
#include "control/Messages.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

namespace zbbrowser {

using detail::Fail;

// Folders. The tests of the arguments are final, in content and order.

ViewItemFreeFolder* View::FindFreeFolderImpl(zbIBrowserViewItem const* item) const {
    if (item == nullptr)
        Fail(detail::NullPointerHit);
    if (item->GetView() != this)
        Fail(detail::DifferentManager);
    if (!item->IsFreeFolder())
        throw "Another type of view item where free folder is expected";
    return nullptr; // There is no root to search from
}

ViewItemFreeFolder* View::RequireFreeFolder(zbIBrowserViewItem const* item) const {
    ViewItemFreeFolder* const folder = FindFreeFolderImpl(item);
    if (folder == nullptr)
        Fail(detail::NullPointerHit);
    return folder;
}

bool View::CreateFreeFolder(zbIBrowserViewItemFreeFolder const* parent, zbString const&) {
    if (locked_)
        return false;
    RequireFreeFolder(parent);
    return false;
}

bool View::DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool) {
    if (locked_)
        return false;
    FindFreeFolderImpl(folder);
    return false;
}

bool View::ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::GetFreeFoldersFromViewItems(std::vector<zbIBrowserViewItem*> const& items,
                                       std::vector<zbIBrowserViewItemFreeFolder*>& out) const {
    out.clear();
    for (zbIBrowserViewItem const* item : items) {
        if (item == nullptr || item->GetView() != this)
            return false;
        if (item->IsFreeFolder() && FindFreeFolderImpl(item) == nullptr)
            return false;
    }
    return true;
}

bool View::GetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder) const {
    RequireFreeFolder(folder);
    return false;
}

bool View::GetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder) const {
    RequireFreeFolder(folder);
    return false;
}

bool View::SetFreeFolderGroupLeafs(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::SetFreeFolderStyle(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::SetFreeFolderShowEmptyContainers(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::SetKeepChildrenFreeFoldersInOrderAsCreated(zbIBrowserViewItemFreeFolder* folder, bool) {
    if (folder == nullptr)
        return false;
    RequireFreeFolder(folder);
    return false;
}

bool View::ExpandFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::CollapseFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool) {
    RequireFreeFolder(folder);
    return false;
}

bool View::Expand(zbIBrowserViewItem* item) {
    if (locked_)
        return false;
    return Collapse(item);
}

bool View::Collapse(zbIBrowserViewItem* item) {
    if (item == nullptr)
        Fail(detail::NullPointerHit);
    RequireFreeFolder(item->GetParentFreeFolder());
    return true;
}

void View::Hide(zbIBrowserViewItem*) {
}

// Columns: a column that is not one of the view's is answered with true.

bool View::DeleteScriptedColumn(zbIBrowserViewColumn* column) {
    return column != nullptr;
}

bool View::ShowScriptedColumn(zbIBrowserViewColumn* const column, bool) {
    return column != nullptr;
}

// Everything else.

char const* View::GetCollectorGuiMapName() const {
    return "";
}

bool View::CreateViewOperation(char const*) {
    return false;
}

zbIBrowserCollector* View::GetCollectorHandler() const {
    return nullptr;
}

zbIBrowserViewItemFreeFolder* View::GetRootFreeFolder() const {
    return nullptr;
}

bool View::GetFreeFolderAbsolutePathName(zbIBrowserViewItemFreeFolder const*, zbString&) const {
    return false;
}

zbIBrowserStyle* View::GetViewItemStyle(zbIBrowserViewColumn* const,
                                        zbIBrowserViewItem* const) const {
    return nullptr;
}

bool View::SetViewItemStyle(zbIBrowserViewItem* const) {
    return false;
}

bool View::IsTextBold(zbIBrowserViewItem* const, zbIBrowserStyleElement* const, bool&) const {
    return false;
}

bool View::IsTextItalic(zbIBrowserViewItem* const, zbIBrowserStyleElement* const, bool&) const {
    return false;
}

bool View::GetColumns(std::vector<zbIBrowserViewColumn*>&) const {
    return false;
}

zbIBrowserViewColumn* View::GetDefaultColumn() const {
    return nullptr;
}

zbIBrowserViewColumn* View::FindColumn(char const*) const {
    return nullptr;
}

void View::UpdatePreviousSelection() {
}

zbIBrowserViewOperation* View::FindViewOperation(char const*) const {
    return nullptr;
}

void View::PerformVOPAttachedToGvnDOP(char const*) {
}

bool View::EditSelectedDataItem(char const*) {
    return false;
}

zbIBrowserPopupMenu* View::CreatePopupMenu(char const*) {
    return nullptr;
}

bool View::DeletePopupMenu(char const*, bool) {
    return false;
}

bool View::FindPopupMenu(zbIBrowserPopupMenu* const) const {
    return false;
}

zbIBrowserPopupMenu* View::FindPopupMenu(char const*) const {
    return nullptr;
}

bool View::GetAllPopupMenus(std::vector<zbIBrowserPopupMenu*>&) {
    return false;
}

zbIBrowserViewItem* View::GetNextViewItem(zbIBrowserViewItem const* const, bool, bool) const {
    return nullptr;
}

zbIBrowserViewColumn* View::GetSortedColumn() const {
    return nullptr;
}

bool View::GetAscendingOrder(zbIBrowserViewColumn* const, bool&) const {
    return false;
}

zbIBrowserViewProperty* View::FindViewProperty(zbString const&) const {
    return nullptr;
}

void View::CreateViewProperty(char const*) {
}

bool View::DeleteViewProperty(zbIBrowserViewProperty*) {
    return false;
}

bool View::GetViewPropertyList(std::vector<zbIBrowserViewProperty*>&) const {
    return false;
}

void View::UpdateViewPropertyType(zbString const&, ZBBROWSER_DATA_TYPE) {
}

zbIBrowserSelectionManager* View::GetSelectionManager() const {
    return nullptr;
}

bool View::IsBrowserCollectorOn() const {
    return false;
}

void View::ResetCollector() {
}

void View::SetCollectorEnable(bool) {
}

bool View::IsCollectorEnable() const {
    return false;
}

bool View::PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE) const {
    return false;
}

bool View::CreateIconColumn(char const*, char const*, char const*) {
    return false;
}

bool View::CreateButtonColumn(char const*, char const*) {
    return false;
}

bool View::CreateTextBoxColumn(char const*, char const*) {
    return false;
}

bool View::DeleteStyleElement(zbIBrowserStyleElement*) {
    return false;
}

void View::ShowAscendants(zbIBrowserViewItem* const) {
}

void View::DeselectAllViewItems() {
}

void View::OnSelectionChangeFinished() {
}

void View::ExpandAllItems() {
}

void View::ExpandSelectedItems() {
}

void View::CollapseAllItems() {
}

void View::CollapseSelectedItems() {
}

bool View::SetAscendingOrder(zbIBrowserViewColumn* const, bool) {
    return false;
}

void View::SetDropItem(zbIBrowserViewItem*) {
}

void View::ResetDropItem() {
}

void View::DeselectViewItem(zbIBrowserViewItem const* const, bool) {
}

// Operations beyond the interface.

bool View::IsViewItemSelected(zbIBrowserViewItem*) {
    return false;
}

void View::ClearDirtyForWindowItems() {
}

void View::UpdateDirtyForWindowItems() {
}

void View::AllDataDependentItemsDelete(bool) {
}

void View::AllDirtyDataDependentItemsRebuild(bool) {
}

void View::OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const&, bool, bool) {
}

void View::OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const&) {
}

void View::OnUpdateViewSelection(std::vector<zbIBrowserViewItem*> const&, bool, bool) {
}

void View::OnPopupSelection(bool) {
}

void View::OnGuiMapDeleted(zbString const&) {
}

} // namespace zbbrowser
