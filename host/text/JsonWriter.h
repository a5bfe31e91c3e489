// SPDX-License-Identifier: MIT
//! \file
//! JSON, and JSON in lines.
#pragma once

#include "text/ListWriter.h"

namespace zbtext {

//! A row is `{"name": ..., "columns": {...}}` with the columns in their order; the values are
//! written as JsonText.h says. Where icons are asked for, "icon" follows each name.
//!
//! One list is an array of rows. Several lists are one object, in which each list's name leads to
//! its array. A view is `{"view": name, "folders": [...], "lists": [...]}`, in which a folder has
//! "name" in place of "view", and a list has "name", "count", "rows" and, if it could not be read,
//! "error".
//!
//! The text is made here piece by piece rather than from a document in memory, since a list may
//! have ten million rows.
class JsonWriter : public ListWriter {
public:
    explicit JsonWriter(Output& output);

    bool NamesRows() const override { return true; }

    void WriteLists(std::vector<std::unique_ptr<List>> const& lists) override;
    void WriteView(Folder const& root) override;

private:
    void WriteArray(List const& list);
    void WriteFolder(char const* nameKey, Folder const& folder);
    void WriteListSummary(List const& list);

    Output& output_;
};

//! One object in each line: of a list its rows, written as in JSON; of several lists the same with
//! "list" as the first key; of a view `{"folder": path, "list": name, "count": n}` for each list,
//! where the path joins the names with `/`.
class JsonLinesWriter : public ListWriter {
public:
    explicit JsonLinesWriter(Output& output);

    bool NamesRows() const override { return true; }

    void WriteLists(std::vector<std::unique_ptr<List>> const& lists) override;
    void WriteView(Folder const& root) override;

private:
    void WriteFolder(Folder const& folder, std::string const& path);

    Output& output_;
};

} // namespace zbtext
