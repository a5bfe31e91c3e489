// SPDX-License-Identifier: MIT
//! \file
//! A database on show: the host with its one view.
#pragma once

#include "text/List.h"
#include "zbbrowse/Options.h"
#include "zbbrowse/Progress.h"

#include <zbBrowserView/sqlite/Changes.h>
#include <zbBrowserView/sqlite/Host.h>

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class zbIBrowserViewItemFreeFolder;

namespace zbbrowse {

//! Opens the database, makes the view that the options ask for, and reads it back for the writers.
//!
//! Only what is shown is loaded: a list that stands in no folder costs nothing.
class OpenView {
public:
    //! Throws `zbsqlite::Error` for a file that cannot be shown, `Complaint` for a name of a list
    //! or a column that it does not have, and `zbtext::Stopped`. `stop` must outlive the view.
    OpenView(Options const& options, std::atomic<bool> const& stop);
    ~OpenView();
    OpenView(OpenView const&) = delete;
    OpenView& operator=(OpenView const&) = delete;

    //! The whole view. `rowLimit` is the most rows that each list hands out; `namesAreColumns`: see
    //! zbtext::PaintOptions.
    zbtext::Folder ReadView(std::size_t rowLimit, bool namesAreColumns) const;

    //! The lists that `--list` names, in their order, each once.
    std::vector<std::unique_ptr<zbtext::List>> ReadLists(std::size_t rowLimit,
                                                         bool namesAreColumns) const;

    //! How many lists `--list` names, each counted once.
    std::size_t GetListCount() const { return lists_.size(); }

    //! A line for each list that could not be loaded.
    std::vector<std::string> GetFaults() const;

    //! Puts the lists into their folders, which loads them, and selects the rows that `--select`
    //! names. Only these are read from then on, if there is such an option; first `--write` is
    //! done to them. Throws what `WriteSelected` throws.
    void Load();

    //! Takes in a table or view that has come since, if what the options ask for has a place for
    //! it: by its name, or if they ask for nothing, as all others. False if not.
    bool Add(zbsqlite::Source& source);

    zbsqlite::Host& GetHost() { return host_; }

private:
    using Path = std::vector<std::string>;

    zbsqlite::Source& FindSource(std::string const& name);
    std::vector<std::string> NamesByRank() const;
    void Resolve();
    void Write();
    std::vector<zbsqlite::Source*> ShownSources() const;
    bool ShowsAll() const { return options_.folders.empty() && options_.lists.empty(); }
    bool IsPlaced(zbsqlite::Source const& source) const;
    void Place(Path path, zbsqlite::Source& source);
    void PlaceByKind();
    void PlaceAsAskedFor(zbsqlite::Source& source);
    zbIBrowserViewItemFreeFolder& MakeFolder(Path const& path);
    void LoadList(zbIBrowserViewItemFreeFolder& folder, zbsqlite::Source& source);

    //! A list and the folder that it is to stand in.
    struct Placement {
        Path path;
        zbsqlite::Source* source; // Not owned, never null.
    };

    Options const& options_;
    std::atomic<bool> const& stop_;
    Progress progress_;
    zbsqlite::Host host_;
    std::optional<zbsqlite::Changes> changes_; // Of what is written; none if nothing is.
    std::vector<zbsqlite::Source*> lists_;     // Not owned; what --list names.
    std::vector<Placement> placements_;
};

} // namespace zbbrowse
