// SPDX-License-Identifier: MIT
#include "RowName.h"

#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/sqlite/Source.h>

namespace zbsqlite {

bool RowName::GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* /*parent*/, zbString& out) {
    Row const* const row = source_.FindRow(item);
    std::string name;
    if (row == nullptr || !source_.GetRowName(*row, name))
        return false;
    out = zbString(name);
    return true;
}

bool RowName::GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, zbString& out) {
    return GetString(item, parent, out);
}

bool RowName::GetVariant(zbVariant& out) {
    zbString name;
    if (!GetString(source_.Control().GetCurrentDataItem(), nullptr, name))
        return false;
    out = name;
    return true;
}

} // namespace zbsqlite
