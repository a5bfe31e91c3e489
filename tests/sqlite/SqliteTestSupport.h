// SPDX-License-Identifier: MIT
//! \file
//! Databases made for a test, and plain SQL to compare with.
#pragma once

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace zbtest {

//! A folder of its own that goes with its content.
class TempFolder {
public:
    TempFolder();
    TempFolder(TempFolder const&) = delete;
    TempFolder& operator=(TempFolder const&) = delete;
    ~TempFolder();

    std::filesystem::path const& Path() const { return path_; }
    std::filesystem::path operator/(char const* name) const { return path_ / name; }

    //! Makes a database "test.db" by a script.
    std::filesystem::path Make(std::string_view sql) const;

private:
    std::filesystem::path path_;
};

//! A connection as another program would have it: reading, writing, locking.
class OtherProgram {
public:
    explicit OtherProgram(std::filesystem::path const& file);
    OtherProgram(OtherProgram const&) = delete;
    OtherProgram& operator=(OtherProgram const&) = delete;
    ~OtherProgram();

    //! Fails the test when the script fails.
    void Run(std::string_view sql);

    //! Rows in the form of `RowsOf`.
    std::vector<std::string> Query(std::string const& sql);

    sqlite3* Handle() const { return database_; }

private:
    sqlite3* database_ = nullptr;
};

//! Sheds the rights of root, which may read and write everything, as long as it lives.
class WithoutRoot {
public:
    WithoutRoot();
    WithoutRoot(WithoutRoot const&) = delete;
    WithoutRoot& operator=(WithoutRoot const&) = delete;
    ~WithoutRoot();

    //! False where the system does not let go of them; a test about rights then has no meaning.
    bool IsInEffect() const;

private:
    uid_t user_;
};

//! "null", "int 1", "real 1.5", "text abc", "blob 00ff".
std::string Describe(zbsqlite::Value const& value);

//! Loads a source; one line a row, values as `Describe` has them, joined by "|".
std::vector<std::string> RowsOf(zbsqlite::Source& source);

//! The text names of all rows; "(none)" where there is none.
std::vector<std::string> NamesOf(zbsqlite::Source& source);

//! Why a source does not load. Fails the test if it does, or if it keeps a row all the same.
zbsqlite::Error LoadError(zbsqlite::Source& source);

//! The names of all sources.
std::vector<std::string> SourceNames(zbsqlite::DataCtrl const& control);

//! Loads a source; its rows as items.
std::vector<zbIBrowserDataItemSimple*> ItemsOf(zbsqlite::Source& source);

//! Fails the test unless each table and view has exactly the rows that plain SQL gives.
void ExpectSameAsSql(zbsqlite::DataCtrl& control, std::filesystem::path const& file);

//! The source of that name; it must exist.
zbsqlite::Source& Find(zbsqlite::DataCtrl& control, char const* name);

void WriteFile(std::filesystem::path const& file, std::string_view bytes);
std::string ReadFile(std::filesystem::path const& file);

} // namespace zbtest
