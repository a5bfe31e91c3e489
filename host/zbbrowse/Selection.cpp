// SPDX-License-Identifier: MIT
#include "zbbrowse/Selection.h"

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <sqlite3.h>

#include <algorithm>

namespace zbbrowse {

namespace {

using Patterns = std::vector<std::string>;
using Items = std::vector<zbIBrowserViewItem*>;

bool Matches(zbIBrowserDataItemSimple& row, Patterns const& patterns) {
    zbString name;
    if (!row.GetProperty("name", name))
        return false;
    return std::any_of(patterns.begin(), patterns.end(), [&](auto const& pattern) {
        return sqlite3_strglob(pattern.c_str(), name.c_str()) == 0;
    });
}

void Find(zbBrowserView const& view, zbIBrowserViewItem const& folder, Patterns const& patterns,
          Items& found) {
    Items children;
    view.GetChildren(children, &folder);
    for (auto* const child : children) {
        if (child->IsFreeFolder())
            Find(view, *child, patterns, found);
        else if (auto* const row = child->GetDataItemSimple(); row && Matches(*row, patterns))
            found.push_back(child);
    }
}

} // namespace

void SelectRows(zbBrowserView& view, Patterns const& patterns) {
    Items rows;
    Find(view, *view.GetRootFreeFolder(), patterns, rows);
    view.GetSelectionManager()->UpdateSelection(rows, true, true);
}

} // namespace zbbrowse
