// SPDX-License-Identifier: MIT
//! \file
//! Comma-separated values.
#pragma once

#include "text/ListWriter.h"

namespace zbtext {

//! CSV as RFC 4180 has it: a header line, lines that end in CR LF, quotes where a value needs them.
//!
//! A null is an empty field and an empty text is `""`. Text goes through byte for byte, whether it
//! is UTF-8 or not. A blob is written as in SQL, `X'00FF'`. A file has one table, so one list only.
//!
//! A view is a table with the columns folder, list and count.
class CsvWriter : public ListWriter {
public:
    explicit CsvWriter(Output& output);

    void WriteLists(std::vector<std::unique_ptr<List>> const& lists) override;
    void WriteView(Folder const& root) override;
    bool CanWrite(std::size_t lists) const override { return lists == 1; }

private:
    void WriteHeader(std::vector<std::string> const& columns);
    void WriteFolder(Folder const& folder, std::string const& path);

    Output& output_;
};

//! Appends one field; in quotes if it holds a comma, a quote, a line end or a blank at either end.
void AppendCsv(std::string& out, Value const& value);

} // namespace zbtext
