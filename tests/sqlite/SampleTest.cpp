// SPDX-License-Identifier: MIT
//! \file
//! The sample database shows what a database can hold.
#include "SqliteTestSupport.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <gmock/gmock.h>

#include <set>

namespace zbtest {

namespace {

using zbsqlite::Database;
using zbsqlite::DataCtrl;
using zbsqlite::Reference;
using zbsqlite::TableKind;

constexpr char const* kSample = ZB_SAMPLE_DATABASE;

std::size_t CountRows(DataCtrl& control, TableKind kind) {
    std::size_t rows = 0;
    for (auto const& source : control.Sources())
        rows += source->Declaration().kind == kind ? ItemsOf(*source).size() : 0;
    return rows;
}

} // namespace

TEST(Sample, IsReadAsPlainSqlReadsIt) {
    DataCtrl control{Database(kSample)};
    ExpectSameAsSql(control, kSample);
}

TEST(Sample, HasEnoughTablesAndRowsToBrowse) {
    DataCtrl control{Database(kSample)};
    EXPECT_GE(control.Sources().size(), 10U);
    EXPECT_GE(CountRows(control, TableKind::Table), 300U);
    EXPECT_GE(CountRows(control, TableKind::View), 1U);
}

TEST(Sample, HasATableThatRefersToItself) {
    DataCtrl control{Database(kSample)};
    std::set<std::string> own;
    for (Reference const& reference : control.References()) {
        if (&reference.Parent() == &reference.Child())
            own.insert(reference.Parent().GetName());
    }
    EXPECT_THAT(own, testing::ElementsAre("assembly"));
}

TEST(Sample, HasNoTwoPartsOfOneName) {
    DataCtrl control{Database(kSample)};
    auto const names = NamesOf(Find(control, "part"));
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
}

} // namespace zbtest
