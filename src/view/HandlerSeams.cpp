// SPDX-License-Identifier: MIT
#include "view/HandlerSeams.h"

namespace zbbrowser::detail {

bool HandlerSeams::IsDataSourceFiltered(zbIBrowserDataSource const*) const {
    return false;
}

bool HandlerSeams::IsViewItemFiltered(zbBrowserViewItemDataLeaf const&) const {
    return false;
}

HandlerSeams::ChildOrder HandlerSeams::OrderOfFolders() const {
    return {false, true};
}

HandlerSeams::ChildOrder HandlerSeams::OrderOfLeaves() const {
    return {false, true};
}

void HandlerSeams::UpdateSelection(std::vector<zbIBrowserViewItem*> const&, bool, bool) {
}

void HandlerSeams::UpdatePreviousSelection() {
}

bool HandlerSeams::SelectsItems() const {
    return false;
}

void HandlerSeams::SelectViewItem(zbIBrowserViewItem&, bool, bool) {
}

void HandlerSeams::DeselectViewItem(zbIBrowserViewItem const&, bool) {
}

void HandlerSeams::RemoveFolderStyle(zbBrowserViewItemFreeFolder const&) {
}

} // namespace zbbrowser::detail
