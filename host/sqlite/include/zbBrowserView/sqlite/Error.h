// SPDX-License-Identifier: MIT
//! \file
//! The one exception of the SQLite data side.
#pragma once

#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <stdexcept>
#include <string>

namespace zbsqlite {

//! Thrown when a file cannot be opened, read or understood. `what()` is one line without a line
//! end, "<where>: <what>", fit to be shown to the user as it stands.
class ZBSQLITE_API Error : public std::runtime_error {
public:
    //! `code` is SQLite's extended result code, 0 when the failure is not SQLite's.
    Error(std::string where, std::string what, int code = 0);
    Error(Error const&) = default;
    Error& operator=(Error const&) = default;
    ~Error() override;

    //! The file, or the file and the table in it.
    std::string const& Where() const { return where_; }

    //! What is wrong, in words, without the place.
    std::string const& What() const { return what_; }

    int Code() const { return code_; }

    //! Whether another program had the file locked; the same may work a moment later.
    bool IsBusy() const;

    //! Whether the work was stopped on request (see `OpenOptions::stop`) and nothing is wrong.
    bool IsInterrupted() const;

private:
    std::string where_;
    std::string what_;
    int code_;
};

} // namespace zbsqlite
