// SPDX-License-Identifier: MIT
//! \file
//! What waits for rows, menus, collector and view operations. Each operation answers as it will for
//! a view without them. What moves out of this file is built.
#include "control/Messages.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

namespace zbbrowser {

using detail::Fail;

// Rows

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

void View::ShowAscendants(zbIBrowserViewItem* const) {
}

zbIBrowserViewItem* View::GetNextViewItem(zbIBrowserViewItem const* const, bool, bool) const {
    return nullptr;
}

void View::ExpandAllItems() {
}

void View::CollapseAllItems() {
}

void View::ClearDirtyForWindowItems() {
}

void View::UpdateDirtyForWindowItems() {
}

void View::AllDirtyDataDependentItemsRebuild(bool) {
}

// Menus

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

// Collector

zbIBrowserCollector* View::GetCollectorHandler() const {
    return nullptr;
}

char const* View::GetCollectorGuiMapName() const {
    return "";
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

// View operations

bool View::CreateViewOperation(char const*) {
    return false;
}

zbIBrowserViewOperation* View::FindViewOperation(char const*) const {
    return nullptr;
}

void View::PerformVOPAttachedToGvnDOP(char const*) {
}

} // namespace zbbrowser
