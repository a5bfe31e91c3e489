// SPDX-License-Identifier: MIT
//! \file
//! What can be said about a database file without SQLite.
#pragma once

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

//! The file as a URI that SQLite opens for reading only.
//! `immutable`: without locks; only for a frozen file.
std::string FileUri(std::filesystem::path const& file, bool immutable);

} // namespace zbsqlite::detail
