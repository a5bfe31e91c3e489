// SPDX-License-Identifier: MIT
//! \file
//! One way to write lists, for each output format one.
#pragma once

#include "text/List.h"
#include "text/Output.h"

#include <memory>
#include <vector>

namespace zbtext {

//! Writes whole lists, and the overview of a view. All writers write row by row: none holds more
//! than one row of text. Every operation may throw what `Output::Checkpoint` throws.
class ListWriter {
public:
    virtual ~ListWriter() = default;

    //! Writes one list after the other. Requires: no list has a fault, `CanWrite(lists.size())`.
    virtual void WriteLists(std::vector<std::unique_ptr<List>> const& lists) = 0;

    //! Writes which folders there are, and which lists they hold.
    virtual void WriteView(Folder const& root) = 0;

    //! False where the format has no place for so many lists in one output.
    virtual bool CanWrite(std::size_t /*lists*/) const { return true; }

    //! True where the format has a place of its own for the name and the icon of a row.
    virtual bool NamesRows() const { return false; }
};

} // namespace zbtext
