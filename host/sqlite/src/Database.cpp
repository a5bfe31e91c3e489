// SPDX-License-Identifier: MIT
#include "FileCheck.h"
#include "Quote.h"
#include "Statement.h"

#include <zbBrowserView/sqlite/Database.h>
#include <zbBrowserView/sqlite/Error.h>

#include <sqlite3.h>

#include <algorithm>
#include <thread>
#include <utility>

namespace zbsqlite {

namespace {

using std::chrono::milliseconds;

// Steps of SQLite's virtual machine between two looks at the stop flag: well under a millisecond,
// and too seldom to be felt.
constexpr int kStepsBetweenLooks = 2000;

constexpr milliseconds kWaitStep{10};

//! SQLite's own words ("database is locked") leave open what to do about it.
std::string Describe(int code, std::string const& message, milliseconds busyTimeout) {
    if (code == SQLITE_READONLY_ROLLBACK)
        return "a write to the database was cut short and must be undone first: open it once with "
               "a program that may write it";
    switch (code & 0xff) {
    case SQLITE_NOTADB:
        return "not an SQLite database, or an encrypted one";
    case SQLITE_CORRUPT:
        return "the database is damaged (" + message + ")";
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return "another program is writing the database (waited " +
               std::to_string(busyTimeout.count()) + " ms)";
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
        return "cannot be opened; if it has a write-ahead log, its folder must be writable";
    case SQLITE_INTERRUPT:
        return "stopped";
    default:
        return message;
    }
}

//! Opening reads nothing; the first query finds out what the file is.
void ReadSchemaOnce(Database const& database, std::string_view schema) {
    detail::Statement(database,
                      "SELECT count(*) FROM " + detail::QuoteName(schema) + ".sqlite_schema")
        .Step();
}

//! Opens a file for reading through `open(uri)`, which must throw when the file cannot be read.
//!
//! A write-ahead file cannot be read in a folder where its index file cannot be made. If nothing
//! can change there either, it needs no index.
template <class Open>
void OpenAsNeeded(std::filesystem::path const& file, Open const& open) {
    detail::CheckFile(file);
    try {
        open(detail::FileUri(file, detail::Access::Read));
    } catch (Error const& error) {
        int const code = error.Code() & 0xff;
        if ((code != SQLITE_CANTOPEN && code != SQLITE_READONLY) || !detail::IsFrozen(file))
            throw;
        open(detail::FileUri(file, detail::Access::ReadFrozen));
    }
}

} // namespace

struct Database::State {
    std::string file;
    OpenOptions options;
    sqlite3* handle = nullptr; // Owned.

    State(std::string name, OpenOptions const& openOptions)
        : file(std::move(name))
        , options(openOptions) {}
    State(State const&) = delete;
    State& operator=(State const&) = delete;
    ~State() { sqlite3_close_v2(handle); }

    bool IsStopped() const {
        return options.stop != nullptr && options.stop->load(std::memory_order_relaxed);
    }

    int Connect(std::string const& uri);
    void Harden() const;

    static int OnProgress(void* state) { return static_cast<State*>(state)->IsStopped() ? 1 : 0; }
    static int OnBusy(void* state, int calls);
};

//! SQLite's own busy timeout cannot be stopped.
int Database::State::OnBusy(void* state, int calls) {
    auto const* const self = static_cast<State*>(state);
    if (self->IsStopped() || kWaitStep * calls >= self->options.busyTimeout)
        return 0;
    std::this_thread::sleep_for(std::min(kWaitStep, self->options.busyTimeout));
    return 1;
}

int Database::State::Connect(std::string const& uri) {
    sqlite3_close_v2(std::exchange(handle, nullptr));
    int const access = options.canWrite ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
    int const flags = access | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
    int const code = sqlite3_open_v2(uri.c_str(), &handle, flags, nullptr);
    if (code != SQLITE_OK)
        return code;
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_handler(handle, &OnBusy, this);
    if (options.stop != nullptr)
        sqlite3_progress_handler(handle, kStepsBetweenLooks, &OnProgress, this);
    Harden();
    return SQLITE_OK;
}

//! The file comes from anywhere. Its views may use whatever SQLite itself lets a view use: nothing
//! of ours is added to that, so a stricter setting would refuse sound views and guard nothing.
void Database::State::Harden() const {
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);

    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0, nullptr);
    sqlite3_exec(handle, "PRAGMA cell_size_check = ON", nullptr, nullptr, nullptr);
    if (options.canWrite)
        sqlite3_exec(handle, "PRAGMA foreign_keys = ON", nullptr, nullptr, nullptr);
}

Database::Database(std::filesystem::path const& file, OpenOptions const& options)
    : state_(std::make_unique<State>(file.string(), options)) {
    auto const open = [this](std::string const& uri) {
        if (state_->Connect(uri) != SQLITE_OK)
            ThrowLastError({});
        ReadSchemaOnce(*this, "main");
    };
    if (!options.canWrite) {
        OpenAsNeeded(file, open);
        return;
    }
    detail::CheckFile(file);
    open(detail::FileUri(file, detail::Access::Write));
}

Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;
Database::~Database() = default;

void Database::Attach(std::filesystem::path const& file, std::string_view schema) {
    auto const attach = [this, schema](std::string const& uri) {
        detail::Statement(*this, "ATTACH ?1 AS ?2").Bind(1, uri).Bind(2, schema).Step();
        try {
            ReadSchemaOnce(*this, schema);
        } catch (Error const&) {
            detail::Statement(*this, "DETACH ?1").Bind(1, schema).Step();
            throw;
        }
    };
    try {
        OpenAsNeeded(file, attach);
    } catch (Error const& error) {
        throw Error(file.string(), error.What(), error.Code());
    }
}

std::string const& Database::File() const {
    return state_->file;
}

sqlite3* Database::Handle() const {
    return state_->handle;
}

void Database::SetBusyTimeout(milliseconds timeout) {
    state_->options.busyTimeout = timeout;
}

milliseconds Database::BusyTimeout() const {
    return state_->options.busyTimeout;
}

bool Database::IsStopped() const {
    return state_->IsStopped();
}

void Database::ThrowLastError(std::string_view place) const {
    std::string where = state_->file;
    if (!place.empty())
        where.append(", ").append(place);
    // Without a connection there was no memory for one, and SQLite says so for null as well.
    int code = sqlite3_extended_errcode(state_->handle);
    std::string const message = sqlite3_errmsg(state_->handle);
    // A wait that a stop cut short ends as "busy".
    if (IsStopped() && (code & 0xff) == SQLITE_BUSY)
        code = SQLITE_INTERRUPT;
    throw Error(std::move(where), Describe(code, message, state_->options.busyTimeout), code);
}

} // namespace zbsqlite
