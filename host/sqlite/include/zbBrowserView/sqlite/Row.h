// SPDX-License-Identifier: MIT
//! \file
//! One row of a table or view.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/sqlite/Value.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstddef>

namespace zbsqlite {

class Source;

//! One row of a table or view: a data item. It is three pointers large, since there may be
//! millions; its values stand packed in its source's memory. It lives and keeps its address as
//! long as its source.
class ZBSQLITE_API Row final : public zbIBrowserDataItemSimple {
public:
    //! Made by the source. `record` is not owned.
    Row(Source& source, std::byte const* record)
        : source_(&source)
        , record_(record) {}

    Source& GetSource() const { return *source_; }

    //! Never null. `GetSource` gives the same object in its own type.
    zbIBrowserDataSourceSimple* GetDataSource() const override;

    //! "name" gives the row's name (`Source::GetRowName`), any other key the text of the column of
    //! that name, ASCII case aside.
    //! Failure: false for a column that does not exist or holds null; `value` stays.
    bool GetProperty(char const* key, zbString& value) override;

    //! Always false: the rows are as they were when they were loaded.
    bool IsDirty() const override { return false; }

    //! The value of a column, 0-based among `Source::Properties()`. No copy is made; the value is
    //! valid as long as the row.
    Value GetValue(std::size_t column) const;

private:
    Source* source_;          // Not owned, never null.
    std::byte const* record_; // Not owned, never null.
};

} // namespace zbsqlite
