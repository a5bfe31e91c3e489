// SPDX-License-Identifier: MIT
//! \file
//! Telling what other programs write.
#pragma once

#include "text/Output.h"
#include "zbbrowse/Options.h"

#include <zbBrowserView/sqlite/Changes.h>

#include <string>

namespace zbbrowse {

class OpenView;

//! Writes a line for each row of the view's lists that another program creates, updates or deletes,
//! and for each table or view that comes, goes or is altered. Each line is handed on at once.
//!
//! As text: `+ name`, `~ name` and `- name` for rows, with the name that an updated row has now;
//! `! table part is new`, `is gone` and `is altered`. As JSON lines: `{"change": ..., "list": ...,
//! "name": ...}` with "created", "updated" and "deleted" for rows; without a name, and with
//! "list_created", "list_deleted" and "list_altered", for lists.
//!
//! Rows of a list that comes into the view are told as created.
class Watch {
public:
    //! Begins with the file as it is now. The view must not have been loaded, and must outlive the
    //! object, as must `output`. Throws `zbsqlite::Error`.
    Watch(OpenView& view, Format format, zbtext::Output& output);

    //! Looks for changes until something is thrown: `zbtext::Stopped` or an error of the same
    //! meaning when the program is asked to end, `zbtext::ClosedPipe` when nobody reads
    //! `descriptor`, on which the output goes out, `zbsqlite::Error` for a file that cannot be
    //! followed any more. A list that cannot be read any more is complained about, and left out
    //! until it can.
    [[noreturn]] void Run(int descriptor);

private:
    void Look();
    void Tell(zbsqlite::Change const& change);
    void Write(zbsqlite::Change const& change);
    void Complain(std::string const& what);

    OpenView& view_;
    Format format_;
    zbtext::Output& output_;
    zbsqlite::Changes changes_;
    std::string complaint_; // The last one, as long as it is true.
};

} // namespace zbbrowse
