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

zbIBrowserViewOperation* View::FindViewOperation(char const*) const {
    return nullptr;
}

void View::PerformVOPAttachedToGvnDOP(char const*) {
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

void View::ShowAscendants(zbIBrowserViewItem* const) {
}

void View::ExpandAllItems() {
}

void View::ExpandSelectedItems() {
}

void View::CollapseAllItems() {
}

void View::CollapseSelectedItems() {
}

// Operations beyond the interface.

void View::ClearDirtyForWindowItems() {
}

void View::UpdateDirtyForWindowItems() {
}

void View::AllDirtyDataDependentItemsRebuild(bool) {
}

} // namespace zbbrowser
