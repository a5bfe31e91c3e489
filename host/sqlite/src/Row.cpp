// SPDX-License-Identifier: MIT
#include <zbBrowserView/sqlite/Row.h>
#include <zbBrowserView/sqlite/Source.h>

namespace zbsqlite {

zbIBrowserDataSourceSimple* Row::GetDataSource() const {
    return source_;
}

bool Row::IsDirty() const {
    return source_->IsRowDirty(*this);
}

Value Row::GetValue(std::size_t column) const {
    return source_->ReadValue(record_, column);
}

bool Row::GetProperty(char const* key, zbString& value) {
    if (key == nullptr)
        return false;
    if (!IsSameName(key, "name")) {
        Property* const property = source_->FindDataProperty(key);
        return property != nullptr && property->GetString(this, nullptr, value);
    }
    std::string name;
    if (!source_->GetRowName(*this, name))
        return false;
    value = zbString(name);
    return true;
}

} // namespace zbsqlite
