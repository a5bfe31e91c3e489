// SPDX-License-Identifier: MIT
#include "Difference.h"
#include "FileState.h"
#include "FlagGuard.h"

#include <zbBrowserView/sqlite/Changes.h>
#include <zbBrowserView/sqlite/DataCtrl.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace zbsqlite {

using detail::FileState;

//! What a look finds out, in the order in which it is told: of each source its rows, and then what
//! has become of itself.
struct Changes::Findings {
    struct Step {
        Source* source;
        Source::Difference rows;
        std::optional<ChangeKind> kind;
    };

    std::vector<Step> steps;

    void Add(Source& source, Source::Difference rows) {
        steps.push_back({&source, std::move(rows), std::nullopt});
    }
    void Add(Source& source, ChangeKind kind, Source::Difference rows = {}) {
        steps.push_back({&source, std::move(rows), kind});
    }
};

//! What is loaded from now on is not older than the state that is read here. If nothing can be read
//! now, or something is older, the first look compares.
Changes::Changes(DataCtrl& control, zbBrowserViewCtrl& controller)
    : control_(control)
    , controller_(controller)
    , seen_(std::make_unique<FileState>()) {
    Database const& database = control_.GetDatabase();
    seen_->schemas = detail::ReadSchemaNames(database);
    auto const& sources = control_.Sources();
    bool const isLoaded = std::any_of(sources.begin(), sources.end(),
                                      [](auto const& source) { return source->IsFollowed(); });
    control_.KeepKeys();
    if (isLoaded)
        return;
    try {
        detail::ReadTransaction const transaction(database);
        FileState state = detail::ReadState(database, seen_->schemas);
        if (control_.IsSchema(ReadSchema(database)))
            *seen_ = std::move(state);
    } catch (Error const&) {
        return;
    }
}

Changes::~Changes() = default;

PollResult Changes::Poll() {
    if (isPolling_)
        return PollResult::Nothing;
    detail::FlagGuard const guard(isPolling_);
    bool hasTold = TellAll(); // What a slot that threw has left.
    failure_.reset();
    try {
        Look();
    } catch (Error const& error) {
        failure_ = error;
    }
    hasTold = TellAll() || hasTold;
    if (failure_ && failure_->IsBusy())
        return PollResult::Busy;
    if (failure_)
        throw Error(*failure_);
    return hasTold ? PollResult::Changed : PollResult::Nothing;
}

void Changes::Look() {
    Database& database = control_.database_;
    detail::ShortPatience const patience(database);
    if (!detail::IsOutdated(database, *seen_))
        return;
    Findings findings;
    FileState state;
    {
        detail::ReadTransaction const transaction(database);
        state = detail::ReadState(database, seen_->schemas);
        if (state.schemaVersions != seen_->schemaVersions) {
            FollowSchema();
            seen_->schemaVersions = state.schemaVersions;
        }
        CompareSources(findings);
    }
    Accept(findings);
    if (!failure_)
        *seen_ = std::move(state);
}

void Changes::FollowSchema() {
    auto const changes = control_.UpdateSchema(ReadSchema(control_.GetDatabase()));
    Findings findings;
    for (Source* const source : changes.gone)
        findings.Add(*source, ChangeKind::SourceGone, source->FindDifference());
    for (Source* const source : changes.altered)
        findings.Add(*source, ChangeKind::SourceAltered);
    for (Source* const source : changes.created)
        findings.Add(*source, ChangeKind::SourceCreated);
    Accept(findings);
}

void Changes::CompareSources(Findings& findings) {
    for (auto const& source : control_.Sources()) {
        if (!source->IsFollowed())
            continue;
        try {
            findings.Add(*source, source->FindDifference());
            source->NoteCompared();
        } catch (Error const& error) {
            if (error.IsBusy() || error.IsInterrupted())
                throw;
            NoteFailure(*source, error);
        }
    }
}

//! What could not be read before either is no news.
void Changes::NoteFailure(Source& source, Error const& error) {
    source.error_ = error;
    control_.NoteError(error);
    if (source.store_ && !failure_)
        failure_ = error;
}

//! The rows become what was found, and there is something to tell.
void Changes::Accept(Findings& findings) {
    for (auto& [source, rows, kind] : findings.steps) {
        MakeRoom(rows.ChangeCount() + 1);
        if (kind || !rows.IsEmpty())
            news_.push_back(source);
        if (!rows.IsEmpty()) {
            std::vector<Row*> const created = source->Apply(rows);
            Enqueue(ChangeKind::RowDeleted, *source, rows.deleted);
            for (auto const& update : rows.updated)
                pending_.push_back({ChangeKind::RowUpdated, source, update.row});
            Enqueue(ChangeKind::RowCreated, *source, created);
        }
        if (kind)
            pending_.push_back({*kind, source, nullptr});
    }
}

//! So that what is accepted is told, whatever memory there is.
void Changes::MakeRoom(std::size_t count) {
    std::size_t const needed = pending_.size() + count;
    if (needed > pending_.capacity())
        pending_.reserve(std::max(needed, 2 * pending_.capacity()));
}

void Changes::Enqueue(ChangeKind kind, Source& source, std::vector<Row*> const& rows) {
    for (Row const* const row : rows)
        pending_.push_back({kind, &source, row});
}

} // namespace zbsqlite
