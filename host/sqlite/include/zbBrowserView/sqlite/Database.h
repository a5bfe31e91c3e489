// SPDX-License-Identifier: MIT
//! \file
//! One open SQLite file, for reading only unless asked for.
#pragma once

#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

namespace zbsqlite {

struct OpenOptions {
    //! How long to wait for another program that is writing the file.
    std::chrono::milliseconds busyTimeout{5000};

    //! Not owned, may be null. When it becomes true (a signal handler may set it), whatever is
    //! running or waiting stops within milliseconds with an `Error` whose `IsInterrupted()` is
    //! true. Must outlive the database.
    std::atomic<bool> const* stop = nullptr;

    //! Whether statements of the program's own may write the file. Files that are attached may not
    //! be written in any case. What is written must keep to declared foreign keys.
    bool canWrite = false;
};

//! One connection to one file. Unless `OpenOptions::canWrite` is set, nothing is ever written: not
//! to the file, and not beside it unless the file is in write-ahead mode, where SQLite itself needs
//! its index file.
//!
//! The file is not trusted: nothing in it can load code or change anything, and its pages are
//! checked while they are read.
class ZBSQLITE_API Database {
public:
    //! Opens the file and reads its schema once, so that a file that is missing, unreadable, a
    //! folder, no database, encrypted, damaged or locked is refused here.
    //!
    //! A write-ahead file on read-only media is read as it stands, provided that no log with
    //! content lies beside it.
    //!
    //! Failure: throws `Error`.
    explicit Database(std::filesystem::path const& file, OpenOptions const& options = {});
    Database(Database&&) noexcept;
    Database& operator=(Database&&) noexcept;
    ~Database();

    //! Adds a second file as a schema of its own, under the same rules as the first.
    //! Failure: throws `Error`; the database stays as it was.
    void Attach(std::filesystem::path const& file, std::string_view schema);

    //! The file's name as it was given.
    std::string const& File() const;

    //! The connection, for queries of one's own. Valid as long as the database.
    sqlite3* Handle() const;

    //! `OpenOptions::busyTimeout`, from now on.
    void SetBusyTimeout(std::chrono::milliseconds timeout);
    std::chrono::milliseconds BusyTimeout() const;

    //! Whether a stop was asked for.
    bool IsStopped() const;

    //! Throws the connection's last failure as an `Error`.
    //! `place` follows the file's name in `Where()`; empty stands for the file as a whole.
    [[noreturn]] void ThrowLastError(std::string_view place) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace zbsqlite
