// SPDX-License-Identifier: MIT
//! \file
//! One column of a table or view.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/sqlite/Schema.h>
#include <zbBrowserView/sqlite/Value.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstddef>
#include <string>

namespace zbsqlite {

class Row;
class Source;

//! One column of a table or view: a data property. Lives as long as its source.
//!
//! All readers answer false, and leave the output as it was, for a null value, for a value that
//! has no such form, and for an item of another source. `parent` plays no part.
//!
//! A painter that wants the stored value with its type asks `GetValue`; the readers convert.
class ZBSQLITE_API Property final : public zbIBrowserDataProperty {
public:
    //! Made by the source; `column` must outlive the property.
    Property(Source& source, Column const& column, std::size_t index)
        : source_(&source)
        , column_(&column)
        , index_(index) {}

    Source& GetSource() const { return *source_; }

    std::string const& Name() const { return column_->name; }

    //! What the schema says about the column.
    Column const& Declaration() const { return *column_; }

    //! 0-based place among `Source::Properties()`. Requires: the column has not gone.
    std::size_t Index() const { return index_; }

    //! Whether the table has lost the column since; each value is null then.
    bool IsGone() const { return index_ == kGone; }

    //! The value as it is stored. No copy is made; it is valid as long as that of `Row::GetValue`.
    //! Requires: a row of this property's source.
    Value GetValue(Row const& row) const;

    //! As above; null for an item that is not a row of this property's source.
    Value GetValue(zbIBrowserDataItem const* item) const;

    //! As `GetString`, but a blob is shown as an SQL literal, `x'00ff'`; of more than 32 bytes the
    //! first 16 and their number, `x'00ff...' (1234 bytes)`.
    bool GetDisplayText(zbIBrowserDataItem* item, zbIBrowserDataItem* parent,
                        zbString& out) override;

    //! A whole number in range, also one that is stored as a real or as text.
    bool GetInteger(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, int& out) override;
    bool GetUnsigned(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, unsigned& out) override;

    //! A number (also as text) is true unless it is 0; "true" and "false" in any ASCII case.
    bool GetBoolean(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, bool& out) override;

    //! Text without a copy. Null for a blob, at whose end there is no zero byte.
    //! Numbers are written into a buffer of the property, valid until it is asked again.
    char const* GetTextPointer(zbIBrowserDataItem* item, zbIBrowserDataItem* parent) override;

    //! The text that SQL's cast to text gives; a blob's bytes as they stand.
    bool GetString(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, zbString& out) override;

    //! A number, also one that is stored as text.
    bool GetDouble(zbIBrowserDataItem* item, zbIBrowserDataItem* parent, double& out) override;

    //! Of the item that was given to `DataCtrl::SetCurrentDataItem`. An integer becomes kind 3, or
    //! kind 4 if it does not fit; a real 5; a text 7, a blob 7 with its bytes as they stand.
    bool GetVariant(zbVariant& out) override;

    //! Writes the item that was given to `DataCtrl::SetCurrentDataItem` to the file, if that was
    //! opened for writing; see Transaction.h for several at once. A kind without a value writes
    //! null, a boolean 1 or 0, and the column makes of a number or text what it makes of each. The
    //! row itself, and the views, follow at the next `Changes::Poll`.
    //!
    //! The row is found by its key as it was read, which is the primary key, or with `Changes` the
    //! rowid; views have none.
    //! Failure: false, and nothing is written; `DataCtrl::LastError` says why, unless the item is
    //! none of this source, or the kind one that has no meaning here.
    bool SetVariant(zbVariant value) override;

private:
    friend class Source;

    static constexpr std::size_t kGone = static_cast<std::size_t>(-1);

    Source* source_;       // Not owned, never null.
    Column const* column_; // Not owned, never null.
    std::size_t index_;
    std::string text_; // The last answer of GetTextPointer that was no text.
};

//! The text in which a value is shown; see `Property::GetDisplayText`. Empty for null.
ZBSQLITE_API std::string ToDisplayText(Value const& value);

} // namespace zbsqlite
