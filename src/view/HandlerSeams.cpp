// SPDX-License-Identifier: MIT
#include "view/HandlerSeams.h"

namespace zbbrowser::detail {

bool HandlerSeams::IsDataSourceFiltered(zbIBrowserDataSource const*) const {
    return false;
}

bool HandlerSeams::IsViewItemFiltered(zbBrowserViewItemDataLeaf const&) const {
    return false;
}

} // namespace zbbrowser::detail
