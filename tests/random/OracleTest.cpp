// SPDX-License-Identifier: MIT
// The model by itself. That it says the same as the library is the business of the random scripts.
#include "support/Oracle.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zbtest {
namespace {

using testing::ElementsAre;

class OracleTest : public testing::Test {
protected:
    RecordingHost host;
    ScriptData data{host};
    Oracle oracle{data, host.calls};

    OracleTest() {
        data.MakeItem("s0", "a0");
        data.MakeItem("s0", "a1");
        Take("view v0");
        Take("folder v0:/ a");
        static_cast<void>(oracle.TakeSignals());
    }

    std::string Take(char const* step) { return oracle.Take(ScriptStep(step)); }
};

TEST_F(OracleTest, SaysHowAListIsBuilt) {
    // when
    std::string const answer = Take("list v0:a s0");

    // then
    EXPECT_EQ(answer, "true");
    EXPECT_THAT(oracle.TakeSignals(), ElementsAre("ViewItemCreated a0", "ViewItemCreated a1",
                                                  "ViewItemChanged a", "ViewContentChanged v0"));
    EXPECT_EQ(oracle.State("v0"), "sources\ntrees\n/ unused\n  a/ [s0]\n    a0\n    a1\n");
}

TEST_F(OracleTest, SaysHowAFolderIsDeleted) {
    // given
    Take("list v0:a s0");
    static_cast<void>(oracle.TakeSignals());

    // when
    std::string const refused = Take("delete-folder v0:a off");
    std::string const answer = Take("delete-folder v0:a on");

    // then
    EXPECT_EQ(refused,
              "throw char const* Cannot delete non-empty folder. Use deletecontent flag or "
              "delete all content first.");
    EXPECT_EQ(answer, "true");
    EXPECT_THAT(oracle.TakeSignals(), ElementsAre("ViewItemDeleted a", "ViewItemChanged /"));
    EXPECT_EQ(oracle.State("v0"), "sources\ntrees\n/ unused\n");
}

TEST_F(OracleTest, SaysWhoHearsOfASelection) {
    // given
    Take("list v0:a s0");
    Take("control v0 data");
    Take("notifier v0 on");
    static_cast<void>(oracle.TakeSignals());

    // when
    Take("select v0:a a1 on off");

    // then
    EXPECT_THAT(oracle.TakeNotices(), ElementsAre("v0 changed [a a1] true", "v0 finished"));
    EXPECT_THAT(oracle.TakeSignals(),
                ElementsAre("DataItemsSelectionChanging data [a0 a1 a1] [] true",
                            "ViewItemsSelected [a a1]", "DataItemsGrouped data {} <a1> []",
                            "DataItemsSelectionSummary data <a1> [] selection"));
}

TEST_F(OracleTest, ListsRowsInTheOrderOfTheSortedColumn) {
    // given
    Take("list v0:a s0");

    // when
    Take("sort v0 default_column off");

    // then
    EXPECT_EQ(Take("read v0:a"), "a1 a0");
}

TEST_F(OracleTest, PutsARefreshedRowBehindThoseWithWhichItTies) {
    // given
    data.Source("s0")->compares = false;
    Take("list v0:a s0");
    Take("sort v0 default_column on");
    Take("read v0:a");

    // when
    data.Item("s0", "a0")->dirty = true;
    Take("refresh v0");

    // then
    EXPECT_EQ(Take("read v0:a"), "a1 a0");
}

TEST_F(OracleTest, TakesOverAnOrderThatNothingDetermines) {
    // given: a source whose rows compare, and one whose rows do not
    data.MakeItem("s1", "b0");
    data.Source("s1")->compares = false;
    Take("list v0:a s0");
    Take("list v0:a s1");
    Take("sort v0 default_column on");

    // when
    Take("read v0:a");

    // then
    EXPECT_TRUE(oracle.IsOrderOpen());
    EXPECT_EQ(oracle.Adopt({"b0", "a0"}), "");
    EXPECT_EQ(oracle.Adopt({"b0", "a1", "a0"}), "b0 a1 a0");
}

TEST_F(OracleTest, DoesNothingForObjectsThatDoNotExist) {
    EXPECT_EQ(Take("list v0:b s0"), "skip");
    EXPECT_EQ(Take("list v1:a s0"), "skip");
    EXPECT_EQ(Take("list v0:a s9"), "skip");
    EXPECT_TRUE(oracle.TakeSignals().empty());
}

} // namespace
} // namespace zbtest
