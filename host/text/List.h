// SPDX-License-Identifier: MIT
//! \file
//! What the writers write: folders with lists of rows.
#pragma once

#include "text/Value.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zbtext {

//! How the text of a cell is to look.
struct Look {
    bool bold = false;
    bool italic = false;
};

//! The column by which rows are sorted.
struct SortMark {
    std::size_t column;
    bool ascending;
};

//! One list with its rows and columns. Rows and columns are 0-based.
class List {
public:
    virtual ~List() = default;

    virtual std::string const& GetName() const = 0;

    //! Why the rows are not there; empty if they are. A list with a fault has no rows.
    virtual std::string const& GetFault() const = 0;

    virtual std::vector<std::string> const& GetColumns() const = 0;

    //! Rows that the list has; `GetRowCount` tells how many of them, from the first, can be read.
    virtual std::size_t GetTotal() const = 0;
    virtual std::size_t GetRowCount() const = 0;

    //! The row's name: a text, or null if it has none. Valid until the next call.
    virtual Value GetRowName(std::size_t row) const = 0;

    //! Valid until the next call.
    virtual Value GetValue(std::size_t row, std::size_t column) const = 0;

    //! Whether the rows have icons beside their names, and the name of a row's icon: a text, or
    //! null if it has none. Valid until the next call.
    virtual bool HasIcons() const { return false; }
    virtual Value GetIcon(std::size_t /*row*/) const { return {}; }

    //! Nothing if the rows stand as they come, or are sorted by something that is not shown.
    virtual std::optional<SortMark> GetSortMark() const { return std::nullopt; }

    virtual Look GetLook(std::size_t /*row*/, std::size_t /*column*/) const { return {}; }
};

//! A folder, with what stands in it in the order in which it is shown.
struct Folder {
    std::string name;
    std::vector<Folder> folders;
    std::vector<std::unique_ptr<List>> lists;
    std::optional<std::string> icon = std::nullopt; //!< Its name, where icons are asked for.
};

//! Takes the first list of that name (byte for byte) out of a folder or the folders below it. Null
//! if there is none.
std::unique_ptr<List> TakeList(Folder& folder, std::string_view name);

} // namespace zbtext
