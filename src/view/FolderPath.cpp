// SPDX-License-Identifier: MIT
#include "view/FolderPath.h"

#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <unordered_set>
#include <vector>

namespace zbbrowser::detail {

bool FolderPath(zbIBrowserViewItemFreeFolder const* folder, zbString& out) {
    if (folder == nullptr)
        return false;
    out.clear();
    if (folder->IsVirtualRoot()) {
        out = "/";
        return true;
    }
    std::vector<zbIBrowserViewItemFreeFolder const*> names;
    std::unordered_set<zbIBrowserViewItemFreeFolder const*> seen;
    for (auto const* parent = folder->GetParentFreeFolder();
         parent != nullptr && seen.insert(folder).second; parent = folder->GetParentFreeFolder()) {
        names.push_back(folder);
        folder = parent;
    }
    for (auto name = names.rbegin(); name != names.rend(); ++name) {
        out += "/";
        out += (*name)->GetName();
    }
    return true;
}

} // namespace zbbrowser::detail
