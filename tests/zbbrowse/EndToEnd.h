// SPDX-License-Identifier: MIT
//! \file
//! zbbrowse as its users see it.
#pragma once

#include "Process.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace zbtest {

//! A folder of its own for each test, with databases in it that the sqlite3 shell makes.
class EndToEnd : public testing::Test {
protected:
    EndToEnd();
    ~EndToEnd() override;

    //! The path of a file in the test's folder.
    std::string Path(std::string const& name) const;

    //! Lets the shell run `sql` on the file of that name, and gives what it prints.
    std::string Sql(std::string const& name, std::string const& sql) const;

    //! The command line `zbbrowse` with these arguments, in the test's folder and a plain
    //! environment.
    Command Zbbrowse(std::vector<std::string> arguments) const;

    //! Runs it with its output going to pipes.
    Ending Browse(std::vector<std::string> arguments) const;

    //! Names of all that is in the test's folder, in order.
    std::vector<std::string> Files() const;

    void Write(std::string const& name, std::string const& content) const;
    std::string Read(std::string const& name) const;

private:
    std::filesystem::path folder_;
};

//! Lines of a text, without their ends.
std::vector<std::string> Lines(std::string const& text);

} // namespace zbtest
