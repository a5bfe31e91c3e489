// SPDX-License-Identifier: MIT
//! \file
//! The command line of zbbrowse.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zbbrowse {

enum class Format { Text, Json, JsonLines, Csv };

//! A folder that the user asked for, and the lists to put into it.
struct FolderOption {
    std::vector<std::string> path; //!< From the top; at least one name, none empty.
    std::vector<std::string> lists;
};

//! The columns that the user asked for: all, or those named, in this order.
struct ColumnsOption {
    bool all = false;
    std::vector<std::string> names;
};

//! A value that is to be written to a column of all selected rows of a list.
struct WriteOption {
    std::string list;
    std::string column;
    std::string value;
};

struct SortOption {
    std::string column;
    bool ascending = true;
};

struct Options {
    std::string file;
    std::string view; //!< Empty: named after the file.
    std::vector<std::string> lists;
    std::vector<FolderOption> folders;
    std::optional<ColumnsOption> columns;
    std::optional<SortOption> sort;
    std::optional<std::string> name; //!< The column that names the rows.
    std::optional<std::string> bold; //!< The column that makes rows bold.
    bool icon = false;
    bool newGeneration = false;
    std::optional<std::size_t> limit;
    bool watch = false;
    std::vector<std::string> select; //!< Patterns for the names of rows.
    std::vector<WriteOption> writes;
    Format format = Format::Text;
    std::string output; //!< Empty: standard output.
};

//! Reads the command line. Nothing is given back where the program has done all that was asked of
//! it (`--help`, `--version`) or can do nothing (a mistake, told on standard error); `status` is
//! the exit status then.
std::optional<Options> ReadOptions(int argc, char const* const* argv, int& status);

//! Reads `PATH=NAME[,NAME...]`, where a backslash takes the meaning from the character behind it.
//! Nothing if a part is missing or a name is empty.
std::optional<FolderOption> ReadFolderOption(std::string const& text);

//! Reads `all` or `NAME[,NAME...]`, with backslashes as above: `\all` is a column of that name.
//! Nothing if a name is empty.
std::optional<ColumnsOption> ReadColumnsOption(std::string const& text);

//! Reads `COL[:asc|:desc]`. Only the last direction is one; what stands before it is the name.
//! Nothing if the name is empty.
std::optional<SortOption> ReadSortOption(std::string const& text);

//! Reads `TABLE.COLUMN=VALUE`, with backslashes in the names as above; the value is what stands
//! behind the first `=`, as it stands. Nothing if a part is missing or a name is empty.
std::optional<WriteOption> ReadWriteOption(std::string const& text);

} // namespace zbbrowse
