// SPDX-License-Identifier: MIT
//! \file
//! What the writers write: folders with lists of rows.
#pragma once

#include "text/Value.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zbtext {

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

    virtual Value GetValue(std::size_t row, std::size_t column) const = 0;
};

//! A folder, with what stands in it in the order in which it is shown.
struct Folder {
    std::string name;
    std::vector<Folder> folders;
    std::vector<std::unique_ptr<List>> lists;
};

//! Takes the first list of that name (byte for byte) out of a folder or the folders below it. Null
//! if there is none.
std::unique_ptr<List> TakeList(Folder& folder, std::string_view name);

} // namespace zbtext
