// SPDX-License-Identifier: MIT
#include <zbBrowserView/sqlite/Error.h>

#include <sqlite3.h>

#include <utility>

namespace zbsqlite {

Error::Error(std::string where, std::string what, int code)
    : std::runtime_error(where + ": " + what)
    , where_(std::move(where))
    , what_(std::move(what))
    , code_(code) {
}

Error::~Error() = default;

bool Error::IsBusy() const {
    int const code = code_ & 0xff;
    return code == SQLITE_BUSY || code == SQLITE_LOCKED;
}

bool Error::IsInterrupted() const {
    return (code_ & 0xff) == SQLITE_INTERRUPT;
}

} // namespace zbsqlite
