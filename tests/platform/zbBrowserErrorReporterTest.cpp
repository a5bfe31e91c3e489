// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserErrorReporter.
#include <zbBrowserView/platform/zbBrowserErrorReporter.h>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

struct Reporter : zbBrowserErrorReporter {
    using zbBrowserErrorReporter::SetError;
    using zbBrowserErrorReporter::SetOk;
};

static_assert(std::has_virtual_destructor_v<zbBrowserErrorReporter>);

TEST(zbBrowserErrorReporterTest, ANewReporterIsFineAndHasAnEmptyText) {
    Reporter const reporter;

    EXPECT_TRUE(reporter.GetState());
    ASSERT_NE(reporter.GetError(), nullptr);
    EXPECT_STREQ(reporter.GetError(), "");
}

TEST(zbBrowserErrorReporterTest, AnErrorStoresItsTextAndMakesTheStateFalse) {
    Reporter reporter;

    reporter.SetError("no such folder");

    EXPECT_FALSE(reporter.GetState());
    EXPECT_STREQ(reporter.GetError(), "no such folder");
}

TEST(zbBrowserErrorReporterTest, ALaterErrorReplacesTheText) {
    Reporter reporter;
    reporter.SetError("first");

    reporter.SetError("second");

    EXPECT_STREQ(reporter.GetError(), "second");
}

TEST(zbBrowserErrorReporterTest, ASuccessKeepsTheText) {
    Reporter reporter;
    reporter.SetError("no such folder");

    reporter.SetOk();

    EXPECT_TRUE(reporter.GetState());
    EXPECT_STREQ(reporter.GetError(), "no such folder");
}

TEST(zbBrowserErrorReporterTest, CopyAndAssignmentTakeTextAndState) {
    Reporter failed;
    failed.SetError("no such folder");

    Reporter const copy(failed);
    Reporter assigned;
    assigned = failed;
    failed.SetError("other");

    EXPECT_FALSE(copy.GetState());
    EXPECT_STREQ(copy.GetError(), "no such folder");
    EXPECT_FALSE(assigned.GetState());
    EXPECT_STREQ(assigned.GetError(), "no such folder");
}

TEST(zbBrowserErrorReporterTest, ACommandChangesNothing) {
    Reporter reporter;
    reporter.SetError("no such folder");

    reporter.SetErrCommand("create");

    EXPECT_FALSE(reporter.GetState());
    EXPECT_STREQ(reporter.GetError(), "no such folder");
}

TEST(zbBrowserErrorReporterTest, ADerivedReporterHearsOfItsCommand) {
    struct Hearing : zbBrowserErrorReporter {
        void SetErrCommand(zbString const& command) override { heard = command; }
        zbString heard;
    };
    Hearing reporter;
    zbBrowserErrorReporter& base = reporter;

    base.SetErrCommand("create");

    EXPECT_EQ(reporter.heard, "create");
}

TEST(zbBrowserErrorReporterTest, ADerivedReporterIsDeletedThroughItsBase) {
    struct Flagging : zbBrowserErrorReporter {
        explicit Flagging(bool& flag)
            : gone(flag) {}
        Flagging(Flagging const&) = delete;
        Flagging& operator=(Flagging const&) = delete;
        ~Flagging() override { gone = true; }
        bool& gone;
    };
    bool gone = false;
    std::unique_ptr<zbBrowserErrorReporter> base = std::make_unique<Flagging>(gone);

    base.reset();

    EXPECT_TRUE(gone);
}

} // namespace
