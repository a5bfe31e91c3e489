// SPDX-License-Identifier: MIT
#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/sqlite/Reference.h>
#include <zbBrowserView/sqlite/Source.h>

namespace zbsqlite {

zbIBrowserDataCtrl* Reference::GetDataCtrl() {
    return control_;
}

zbBrowserTypeId Reference::GetParentTypeId() {
    return parent_->GetTypeId();
}

zbBrowserTypeId Reference::GetChildTypeId() {
    return child_->GetTypeId();
}

} // namespace zbsqlite
