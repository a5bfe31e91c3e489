// SPDX-License-Identifier: MIT
#include "items/new/ViewItemVirtualRoot.h"

namespace zbbrowser {

ViewItemVirtualRoot::ViewItemVirtualRoot(detail::NewViewContext& context)
    : ViewItemFreeFolder(context, nullptr, zbString(), true) {
}

} // namespace zbbrowser
