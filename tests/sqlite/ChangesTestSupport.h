// SPDX-License-Identifier: MIT
//! \file
//! A host that follows a file which another program writes.
#pragma once

#include "SqliteTestSupport.h"
#include "support/SignalRecorder.h"

#include <zbBrowserView/sqlite/Changes.h>
#include <zbBrowserView/sqlite/Host.h>
#include <zbBrowserView/sqlite/Presentation.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class zbIBrowserViewItem;

namespace zbtest {

//! A host that follows a file which another program writes. What it is told stands in the log, a
//! line for each change: "+ name", "~ name", "- name" of rows; "new name", "altered name" and
//! "gone name" of sources. Signals about rows are recorded as well, but for the lists that a test
//! makes itself.
class FollowedHost : public testing::Test {
protected:
    //! Makes the file, and opens it in place of the one before.
    void Open(std::string const& sql, zbsqlite::HostOptions const& options = {});
    //! Done by `Open`, too.
    void Follow();

    //! Shows a source in a folder of its name.
    void Show(std::string const& source) { ShowIn(source, source); }
    void ShowIn(std::string const& folder, std::string const& source);
    void SortBy(std::string const& source, std::string const& column);

    //! As another program, as this one, and the look at what it has done.
    void Run(std::string_view sql) { writer_->Run(sql); }
    void RunInside(char const* sql);
    zbsqlite::PollResult Poll() { return changes_->Poll(); }

    [[nodiscard]] std::vector<std::string> TakeLog() { return std::exchange(log_, {}); }
    [[nodiscard]] std::vector<std::string> TakeSignals() { return recorder_->take(); }
    //! For a test to which neither matters.
    void Forget();

    //! The rows of a folder, as the view shows them.
    [[nodiscard]] std::vector<std::string> Shown(std::string const& folder);
    [[nodiscard]] zbsqlite::Source& SourceOf(char const* name) { return Find(host_->Data(), name); }
    //! Null: there is none.
    [[nodiscard]] zbIBrowserDataItemSimple* RowNamed(char const* source, std::string const& name);
    [[nodiscard]] zbIBrowserViewItem* PlaceOf(std::string const& folder, std::string const& name);
    //! A value as `Describe` has it.
    [[nodiscard]] static std::string Cell(zbIBrowserDataItemSimple* row, char const* column);

    void TearDown() override;

    TempFolder folder_;
    std::optional<OtherProgram> writer_;
    std::optional<zbsqlite::Host> host_;
    std::optional<SignalRecorder> recorder_;
    std::optional<zbsqlite::Changes> changes_;
    //! Called for each change after it was noted.
    std::function<void(zbsqlite::Change const&)> slot_;

private:
    std::vector<zbIBrowserViewItem*> PlacesIn(std::string const& folder);
    void Note(zbsqlite::Change const& change);

    std::vector<std::string> log_;
};

} // namespace zbtest
