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

namespace detail {
class RowMatcher;
}

//! One row of a table or view: a data item. It is three pointers large, since there may be
//! millions; its values stand packed in its source's memory. It keeps its address, as long as its
//! source lives, whatever happens to its values.
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

    //! True from a change that another program made until all views have been told of it.
    bool IsDirty() const override;

    //! The value of a column, 0-based among `Source::Properties()`. No copy is made; the value is
    //! valid until `Changes::Poll` returns next; without a follower, as long as the row.
    Value GetValue(std::size_t column) const;

private:
    friend class Source;
    friend class detail::RowMatcher;

    Source* source_;          // Not owned, never null.
    std::byte const* record_; // Not owned, never null.
};

} // namespace zbsqlite
