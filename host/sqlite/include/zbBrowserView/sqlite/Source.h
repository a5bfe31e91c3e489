// SPDX-License-Identifier: MIT
//! \file
//! One table or view.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/sqlite/Error.h>
#include <zbBrowserView/sqlite/Property.h>
#include <zbBrowserView/sqlite/Row.h>
#include <zbBrowserView/sqlite/Schema.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zbsqlite {

class DataCtrl;
class RowName;

namespace detail {
class Statement;
}

//! One table or view: a flat data source whose items are rows and whose data properties are
//! columns. Its rows are loaded when they are first asked for, in one pass. From then on they stay
//! as they are, unless somebody follows what other programs write (Changes.h).
class ZBSQLITE_API Source final : public zbIBrowserDataSourceSimple {
public:
    //! Made by the data control. `name` is unique in it.
    Source(DataCtrl& control, Table table, std::string name, std::size_t index);
    Source(Source const&) = delete;
    Source& operator=(Source const&) = delete;
    ~Source();

    //! What the schema says about the table. Valid as long as the source; another object after the
    //! table was altered.
    Table const& Declaration() const { return *table_; }

    //! The columns of a row, in their order; hidden ones are left out. After the table was altered
    //! they are other objects; those of before go on reading the columns of their names.
    std::span<Property> Properties() { return properties_; }
    std::span<Property const> Properties() const { return properties_; }

    //! Why the last attempt to load failed; null if it did not, or there was none.
    Error const* LastError() const { return error_ ? &*error_ : nullptr; }

    //! The loaded rows in the order in which the database gave them; empty before. O(rows).
    std::vector<Row const*> Rows() const;

    //! What the loaded rows take in memory, all included.
    std::size_t MemoryUsed() const;

    //! The part of `MemoryUsed` that is texts and blobs themselves.
    std::size_t TextBytes() const;

    //! The row's name: its column called name, title, label or caption (in this order, in any
    //! ASCII case), else its first text column, else its primary key (values joined by ", "),
    //! else its rowid, else its number in the list, from 1.
    //! Failure: false if the value is null; `out` stays.
    bool GetRowName(Row const& row, std::string& out) const;

    //! The columns that make a row's name; empty if none does, but the rowid or the number.
    std::span<std::size_t const> NameColumns() const { return nameColumns_; }

    //! Makes another column the name. It counts from the next question on: what has been sorted by
    //! name must be sorted anew. Requires: a property of this source.
    void NameRowsBy(Property const& column);

    //! A data property whose text is the row's name. A view shows it as soon as its
    //! "default_name_prop" is connected to it. Lives as long as the source.
    zbIBrowserDataProperty& NameProperty() const;

    //! The data property as a column of this source; null if it is none. It is not followed.
    Property const* AsColumn(zbIBrowserDataProperty const* property) const;

    //! 0-based place in `Rows()`; of a row that has come since they were loaded, a number that no
    //! other row has. It stays as long as the row. Requires: a row of this source.
    std::size_t IndexOf(Row const& row) const;

    //! The item as a row of this source, null if it is none. The item is not followed, so it may
    //! have gone.
    Row const* FindRow(zbIBrowserDataItem const* item) const;

    //! Place among the control's sources.
    std::size_t Index() const { return index_; }

    DataCtrl& Control() const { return control_; }

    //! `Control` gives the same object in its own type.
    zbIBrowserDataCtrl* GetDataCtrl() override;
    char const* GetName() const override { return name_.c_str(); }
    zbBrowserTypeId GetTypeId() override;
    bool IsDirty() const override { return isDirty_ || hasNews_; }
    bool GetFolderScriptText(zbIBrowserViewItemFreeFolder* folder, zbString& out) override;

    //! ASCII case aside, as SQLite compares names.
    Property* FindDataProperty(char const* name) override;

    //! Writes to the file, as `Property::SetVariant` does; true is 1. Does nothing if that fails,
    //! and for an item or a property of another source.
    void SetDataPropertyInteger(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                int value) override;
    void SetDataPropertyBoolean(zbIBrowserDataItem* item, zbIBrowserDataProperty* property,
                                bool value) override;

    void SetSortProperty(zbIBrowserDataProperty* property) override;

    //! By `Compare` of the values. Decides nothing without a sort property, and for a property or
    //! an item that is none of this data side's.
    bool CompareBySortProperty(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;
    bool CompareByDataProperty(zbIBrowserDataItem* a, zbIBrowserDataProperty* propertyOfA,
                               zbIBrowserDataItem* b, zbIBrowserDataProperty* propertyOfB,
                               int& cmp) override;

    //! By `Compare` of the values that make the names, so that numbers stand in their order.
    bool CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;

    //! By `IndexOf`, and by source before that.
    bool CompareById(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) override;

    char const* GetListCaption() const override { return name_.c_str(); }

    //! "table", "view", "virtual table", "shadow table" or "system table".
    char const* GetTypeName() const override;
    void OnConnected() override {}
    void OnDisconnected() override {}
    void GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>& out) override;
    bool IsOfType(zbIBrowserDataSourceSimple* source) override;
    void ClearDirty(bool dirty) override { isDirty_ = dirty; }

    //! Loads the rows if that has not been done.
    //! Failure: false; `LastError` says why, no row is kept, and the next call tries anew.
    bool GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) override;

    //! Constant time.
    bool ContainsDataItem(zbIBrowserDataItemSimple* item) override;
    bool AcceptsEmptySelection() override { return false; }

private:
    friend class Changes;
    friend class DataCtrl;
    friend class Property;
    friend class Row;
    struct Difference;
    struct RowStore;

    //! What the table had before it was altered. Views may still read by its properties.
    struct Former {
        std::unique_ptr<Table const> table;
        std::vector<Property> properties;
    };

    std::vector<Property> MakeProperties(Table const& table);
    void ChooseName();
    bool ChooseNameByColumn(std::string_view name);
    static std::string_view FindRowidName(Table const& table);
    std::vector<std::size_t> PrimaryKeyColumns() const;
    bool Load();
    void KeepKeys();
    std::vector<std::size_t> KeyColumns() const;
    bool IsFollowed() const;
    Difference FindDifference();
    Difference DifferenceFromNothing() const;
    Difference CompareWithFile();
    std::byte const* Keep(std::span<std::byte const> record);
    void PairByName(Difference& difference) const;
    void NoteCompared();
    std::vector<Row*> Apply(Difference& difference);
    void ForgetRemoved();
    void AddDirtyRows(std::set<zbIBrowserDataItem*>& out) const;
    void AddRemovedRows(std::set<zbIBrowserDataItem*>& out) const;
    void Alter(Table table);
    std::vector<std::size_t> OldPlaces(std::vector<Property> const& properties,
                                       bool hasRowid) const;
    void RenewName(std::string const& nameColumn);
    void Leave();
    std::unique_ptr<RowStore> ReadRows();
    std::string LoadQuery() const;
    static void ReadValues(detail::Statement const& query, std::span<Value> values);
    std::size_t SizeOfRecord(std::span<Value const> values, std::size_t rowNumber) const;
    bool Write(Row const& row, Property const& column, Value const& value);
    void WriteOrThrow(Row const& row, Property const& column, Value const& value);
    std::string WriteQuery(Property const& column, std::vector<std::size_t> const& keys) const;
    std::string Where() const;
    std::string Place() const;
    std::size_t RecordColumns() const;
    bool IsRowDirty(Row const& row) const;
    Value ReadValue(std::byte const* record, std::size_t column) const;
    std::size_t NameParts() const;
    Value NamePart(Row const& row, std::size_t part) const;
    Row const* AnyRow(zbIBrowserDataItem const* item) const;
    Property const* AnyProperty(zbIBrowserDataProperty const* property) const;
    std::optional<std::size_t> NameColumn() const;
    int CompareByColumn(Row const& a, Row const& b, std::size_t column);
    static bool CompareValues(Row const* a, Property const* propertyOfA, Row const* b,
                              Property const* propertyOfB, int& cmp);

    DataCtrl& control_;
    std::unique_ptr<Table const> table_; // Never null.
    std::string name_;
    std::size_t index_;
    std::vector<Property> properties_;
    std::vector<Former> former_;
    std::vector<std::size_t> nameColumns_;
    bool isNameGiven_ = false;
    std::unique_ptr<RowName> rowName_;       // Never null.
    std::string_view rowidName_;             // Literal; empty if the rowid is not needed.
    Property const* sortProperty_ = nullptr; // Not owned, may be null.
    std::unique_ptr<RowStore> store_;        // Null until loaded.
    std::optional<Error> error_;
    bool isDirty_ = false;
    bool hasNews_ = false; // Views are being told of changes.
    bool isLoading_ = false;
    bool keepsKeys_ = false; // Rows are told apart by key, for which they keep the rowid.
    bool isGone_ = false;    // The table has gone.
};

} // namespace zbsqlite
