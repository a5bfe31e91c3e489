// SPDX-License-Identifier: MIT
#include "text/List.h"

#include <algorithm>

namespace zbtext {

std::unique_ptr<List> TakeList(Folder& folder, std::string_view name) {
    auto const found = std::find_if(folder.lists.begin(), folder.lists.end(),
                                    [&](auto const& list) { return list->GetName() == name; });
    if (found != folder.lists.end()) {
        auto list = std::move(*found);
        folder.lists.erase(found);
        return list;
    }
    for (auto& child : folder.folders) {
        if (auto list = TakeList(child, name))
            return list;
    }
    return nullptr;
}

} // namespace zbtext
