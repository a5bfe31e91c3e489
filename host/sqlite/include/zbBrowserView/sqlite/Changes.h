// SPDX-License-Identifier: MIT
//! \file
//! What other programs write, as events of a view.
#pragma once

#include <zbBrowserView/sqlite/Error.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class zbBrowserViewCtrl;

namespace zbsqlite {

class DataCtrl;
class Row;
class Source;

namespace detail {
struct FileState;
}

enum class ChangeKind : std::uint8_t {
    RowDeleted,
    RowUpdated,
    RowCreated,
    SourceGone,    //!< Its table or view is there no longer. Its rows have been told before.
    SourceAltered, //!< Its columns, or what else its declaration says, are others now.
    SourceCreated  //!< A table or view came. It stands in no folder yet.
};

struct Change {
    ChangeKind kind;
    Source* source; //!< Not null.
    Row const* row; //!< Null for a change of a source.
};

enum class PollResult : std::uint8_t {
    Nothing, //!< All is as it was.
    Changed, //!< The views have been told of something.
    Busy     //!< Another program has the file locked. The next call will find what it wrote.
};

//! Follows what other programs write to the file of a data control, and what is written on its own
//! connection: what was committed since the last look becomes changes of rows and sources, of which
//! the views are told. A program looks when it likes, a few times a second for instance; what was
//! written and taken back between two looks is never seen.
//!
//!     zbsqlite::Host host("parts.db");
//!     zbsqlite::Changes changes(host.Data(), host.Controller()); // before any row is loaded
//!     host.CreateList(folder, *host.Data().FindDataSourceSimple("part"));
//!     changes.SetListener([](zbsqlite::Change const& change) { ... });
//!     for (;; Wait())
//!         changes.Poll();
//!
//! Sources whose rows are loaded are compared with the file, all in one state of it. A row stays
//! the row that it is, at its address, as long as its key is in the table: the rowid, or the
//! primary key of a table without rowids. A key that is changed makes another row. Rows of a view
//! have no key: a row that is the same in all columns stays, and so does, with an update, one of
//! the same name. The rows of a source stand in the order in which the database gives them now.
//!
//! A table that goes takes its source with it: out of the views, then out of the control. One that
//! comes becomes a source of the control, connected to its views. One that is altered keeps its
//! source and its rows; a column that is renamed is one that goes and one that comes.
//!
//! Views of the new generation show no lists, so they are told of sources only.
//!
//! A look at which nothing is new costs a query that reads no page of any table. Otherwise all
//! loaded sources are read, once.
class ZBSQLITE_API Changes {
public:
    //! Told of each change after the views were. May read, and change the views; a deleted row can
    //! still be read. What it throws goes through `Poll`, and the next call goes on behind it.
    using Listener = std::function<void(Change const& change)>;

    //! `control` and `controller` must outlive it. One follower for one control. Rows that were
    //! loaded before are told apart by their primary key, or if there is none as those of a view
    //! are.
    Changes(DataCtrl& control, zbBrowserViewCtrl& controller);
    Changes(Changes const&) = delete;
    Changes& operator=(Changes const&) = delete;
    ~Changes();

    void SetListener(Listener listener) { listener_ = std::move(listener); }

    //! Looks, and tells. Does nothing when it is called from within itself. Requires: no view is in
    //! the middle of an operation, for it would drop the events.
    //!
    //! Signals, all within one BeginLongOperation and EndLongOperation of the manager; source by
    //! source, its deleted rows, updated rows and created rows:
    //! - of a deleted row, `ViewItemDeleted` for each of its places in old views;
    //! - before the first updated row, `ViewItemChanged` for each place of each updated row, whose
    //!   lists are sorted anew when they are next read in order; then for each its parents, as
    //!   zbBrowserViewCtrl::OnDataItemSimpleUpdated has it;
    //! - of a created row, those of zbBrowserViewCtrl::OnDataItemCreated.
    //! While the views are told, the rows are as they are now.
    //!
    //! Failure: throws `Error`. Rows that cannot be read any more, because the file was replaced,
    //! emptied or damaged, stay as they were, and are compared again at the next call; of the
    //! others the views have been told. Throws what a slot or the listener throws.
    PollResult Poll();

private:
    struct Findings;

    void Look();
    void FollowSchema();
    void CompareSources(Findings& findings);
    void NoteFailure(Source& source, Error const& error);
    void Accept(Findings& findings);
    void MakeRoom(std::size_t count);
    void Enqueue(ChangeKind kind, Source& source, std::vector<Row*> const& rows);
    bool TellAll();
    void Tell(Change const& change);
    void RefreshViews();
    template <class View, class Visit>
    void ForEachView(Visit visit);

    DataCtrl& control_;
    zbBrowserViewCtrl& controller_;
    Listener listener_;
    std::unique_ptr<detail::FileState> seen_; // Never null.
    std::vector<Change> pending_;
    std::size_t told_ = 0; // The first so many of them.
    bool isRefreshed_ = false;
    std::vector<Source*> news_; // Not owned: the sources of what is pending.
    std::optional<Error> failure_;
    bool isPolling_ = false;
};

} // namespace zbsqlite
