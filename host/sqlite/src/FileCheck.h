// SPDX-License-Identifier: MIT
//! \file
//! What can be said about a database file without SQLite.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace zbsqlite::detail {

//! Refuses what is no readable regular file, in plainer words than SQLite has for it.
//! Failure: throws `Error`.
void CheckFile(std::filesystem::path const& file);

//! Whether nothing can change the file's content under us or is missing from it: it stands in a
//! folder that cannot be written, and neither a write-ahead log nor a journal with content lies
//! beside it. Such a file may be read without the locks and the index file that SQLite would need.
bool IsFrozen(std::filesystem::path const& file);

enum class Access : std::uint8_t {
    Read,
    ReadFrozen, //!< Without locks; only for a frozen file.
    Write
};

//! The file as a URI that SQLite opens with that access, and does not make.
std::string FileUri(std::filesystem::path const& file, Access access);

} // namespace zbsqlite::detail
