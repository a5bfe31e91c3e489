// SPDX-License-Identifier: MIT
// The checker finds what is wrong; what is right it passes in every random script.
#include "support/InvariantChecker.h"

#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "support/RecordingHost.h"
#include "view/OldViewContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zbtest {
namespace {

using testing::HasSubstr;

class InvariantCheckerTest : public testing::Test {
protected:
    RecordingHost host;
    zbBrowserView& view = host.OldView();
    RecordingSource& part = host.Source("part").Items({"bolt_1", "nut_2"});

    InvariantCheckerTest() {
        view.CreateFreeFolder(view.GetRootFreeFolder(), "a");
        view.CreateList(&A(), &part, false);
    }

    [[nodiscard]] zbBrowserViewItemFreeFolder& Root() const { return *view.GetVirtualRoot(); }
    [[nodiscard]] zbBrowserViewItemFreeFolder& A() const {
        return *view.FindFreeFolder(view.GetRootFreeFolder()->FindChildFreeFolder("a"));
    }
    [[nodiscard]] std::string Problems() const { return InvariantChecker(view).Check(); }
};

TEST_F(InvariantCheckerTest, ASoundViewHasNoProblems) {
    EXPECT_EQ(Problems(), "");
}

TEST_F(InvariantCheckerTest, AFolderThatStaysBusyIsFound) {
    // when
    A().SetBusy(true);

    // then
    EXPECT_EQ(Problems(), "view:a: no folder stays busy\n");
    EXPECT_EQ(InvariantChecker(view, true).Check(), "");
}

TEST_F(InvariantCheckerTest, AFolderWithAWrongParentIsFound) {
    // when
    A().SetParentFolder(nullptr);

    // then
    EXPECT_THAT(Problems(), HasSubstr("view:a: the parent is the folder that holds it\n"));
    A().SetParentFolder(&Root());
}

TEST_F(InvariantCheckerTest, ARowWithoutItsListIsFound) {
    // given
    auto& content = A().Holder()->NoGrouping();

    // when: a source lists an item that says to be of another one
    part.Add("saw_1").source = &host.Source("other");
    content.ConnectList(&part, true);

    // then
    EXPECT_THAT(Problems(), HasSubstr("view:a: each row belongs to a list\n"));
}

TEST_F(InvariantCheckerTest, AnOperationThatHasNotEndedIsFound) {
    // when
    zbbrowser::detail::CallScope const scope(Root().Context().Lifetime());

    // then
    EXPECT_EQ(Problems(), "view: no operation of the view is running\n");
}

TEST_F(InvariantCheckerTest, AFolderThatIsMissingInTheRegisterIsFound) {
    // given
    zbBrowserViewItemFreeFolder& a = A();

    // when
    Root().Context().UnregisterFolder(a);

    // then
    EXPECT_THAT(Problems(), HasSubstr("view: the register holds the folders of the view\n"));
    Root().Context().RegisterFolder(a);
}

TEST_F(InvariantCheckerTest, ALongOperationThatHasNotEndedIsFound) {
    // when
    host.manager.BeginLongOperation();

    // then
    EXPECT_EQ(InvariantChecker::CheckHost(host), "host: a long operation has not ended\n");
    host.manager.EndLongOperation();
}

} // namespace
} // namespace zbtest
