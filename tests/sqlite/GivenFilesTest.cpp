// SPDX-License-Identifier: MIT
//! \file
//! Databases that nobody made for a test:
//!
//!     ZBSQLITE_FILES=/usr/share/proj/proj.db:other.db sqlite_tests --gtest_filter='GivenFiles*'
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <sstream>

namespace zbtest {

TEST(GivenFiles, AreReadAsPlainSqlReadsThem) {
    char const* const files = std::getenv("ZBSQLITE_FILES");
    if (files == nullptr)
        GTEST_SKIP() << "name some in ZBSQLITE_FILES";
    std::istringstream list(files);
    for (std::string file; std::getline(list, file, ':');) {
        zbsqlite::DataCtrl control{zbsqlite::Database(file)};
        ExpectSameAsSql(control, file);
        std::size_t rows = 0;
        for (auto const& source : control.Sources())
            rows += source->Rows().size();
        std::cout << file << ": " << control.Sources().size() << " tables and views, " << rows
                  << " rows\n";
    }
}

} // namespace zbtest
