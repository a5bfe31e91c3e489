// SPDX-License-Identifier: MIT
//! \file
//! A whole database as a data control.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/sqlite/Database.h>
#include <zbBrowserView/sqlite/Error.h>
#include <zbBrowserView/sqlite/Reference.h>
#include <zbBrowserView/sqlite/Schema.h>
#include <zbBrowserView/sqlite/Source.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zbsqlite {

//! A whole database as a data control: each table and view is a source, each row an item, each
//! column a data property, each declared foreign key a reference.
//!
//! Sources are named after their tables. Where the schemas of several attached files have a table
//! of the same name, ASCII case aside, the schema stands in front: "main.part", "other.Part".
class ZBSQLITE_API DataCtrl final : public zbIBrowserDataCtrl {
public:
    //! Called now and then while a source loads, with the number of rows so far. It may set the
    //! stop flag; what it throws leaves the load undone and goes on to whoever asked for rows.
    using Progress = std::function<void(Source const& source, std::uint64_t rows)>;

    //! Reads the schema; no rows yet. The control is named after the file.
    //! Failure: throws `Error`.
    explicit DataCtrl(Database database);
    DataCtrl(DataCtrl const&) = delete;
    DataCtrl& operator=(DataCtrl const&) = delete;
    ~DataCtrl();

    Database const& GetDatabase() const { return database_; }

    //! All sources, in the order of `ReadSchema`, and behind them what has been made since. They
    //! live as long as the control, also when their tables have gone and they stand here no longer.
    std::vector<std::unique_ptr<Source>> const& Sources() const { return sources_; }

    //! One for each foreign key whose parent table exists. They are made anew when the schema
    //! changes.
    std::vector<Reference>& References() { return references_; }

    void SetProgress(Progress progress) { progress_ = std::move(progress); }

    //! Why the last load or write that failed did so, of whichever source; null if none has.
    Error const* LastError() const { return error_ ? &*error_ : nullptr; }

    char const* GetName() const override { return name_.c_str(); }

    //! ASCII case aside.
    Source* FindDataSourceSimple(char const* name) override;

    //! Always null: there are flat sources only.
    zbIBrowserDataSourceHierarchical* FindDataSourceHierarchical(char const* name) override;
    bool IsSelectionForwardingBlocked() override { return false; }
    bool IsCollectorDisabledNew() override { return false; }
    bool IsCollectorDisabled() override { return false; }
    void Release(void*) override {}
    bool IsCollectorInUse() override { return false; }

    //! Always null: there are no operations on a database that is open for reading.
    zbIBrowserDataOperation* FindDataOperation(char const* name) override;

    //! By place in `Sources()`; undecided for sources of another control.
    bool CompareDataSources(zbIBrowserDataSource* a, zbIBrowserDataSource* b, bool& less) override;
    void SetCurrentDataItem(zbIBrowserDataItem* item) override { current_ = item; }
    zbIBrowserDataItem* GetCurrentDataItem() const { return current_; }
    zbIBrowserDataCollectorType* FindCollectorType(char const* name) override;

    //! The rows of which views are just being told, by `Changes`.
    void GetDirtyItems(std::set<zbIBrowserDataSource*>& sources,
                       std::set<zbIBrowserDataItem*>& out) override;
    void GetDeletedItems(std::set<zbIBrowserDataSource*>& sources,
                         std::set<zbIBrowserDataItem*>& out) override;

    //! Adds nothing: links are not followed.
    void GetChangedLinks(std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& removed,
                         std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& added,
                         zbIBrowserDataReference* reference, zbIBrowserDataSource* parentSource,
                         zbIBrowserDataSource* childSource, bool flag) override;

    //! All rows of a source, when neither a reference nor a parent is given. Links are declared
    //! (`References()`) but not followed: nothing is added for a reference.
    void GetItems(std::vector<zbIBrowserDataItem*>& out, zbIBrowserDataReference* reference,
                  zbIBrowserDataSource* source, zbIBrowserDataItem* parent, bool flag) override;

private:
    friend class Changes;
    friend class Source;

    struct SchemaChanges {
        std::vector<Source*> gone;
        std::vector<Source*> altered;
        std::vector<Source*> created;
    };

    void MakeSources(std::vector<Table> tables);
    Source& AddSource(Table table, std::string name);
    void MakeReferences();
    void KeepKeys();
    bool IsSchema(std::vector<Table> const& tables) const;
    SchemaChanges UpdateSchema(std::vector<Table> tables);
    void Remove(Source& source);
    std::string UnusedName(Table const& table) const;
    Source* AsOwn(zbIBrowserDataSource* source) const;
    void ReportProgress(Source const& source, std::uint64_t rows) const;
    void NoteError(Error const& error) { error_ = error; }

    Database database_;
    std::string name_;
    std::vector<std::unique_ptr<Source>> sources_;
    std::size_t sourcesMade_ = 0;
    std::vector<std::unique_ptr<Source>> gone_;       // Views and programs may still know them.
    std::unordered_map<std::string, Source*> byName_; // By folded name. Not owned.
    std::vector<Reference> references_;
    bool keepsKeys_ = false;
    zbIBrowserDataItem* current_ = nullptr; // Not owned, may be null or gone; never followed.
    Progress progress_;
    std::optional<Error> error_;
};

} // namespace zbsqlite
