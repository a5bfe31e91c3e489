// SPDX-License-Identifier: MIT
//! \file
//! The old view's data control.

#include "ViewTestSupport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;

class DataControlTest : public zbtest::ViewTest {
protected:
    [[nodiscard]] std::vector<zbIBrowserDataSourceSimple*> Simple() const {
        std::vector<zbIBrowserDataSourceSimple*> out;
        EXPECT_TRUE(view.GetDataSourceSimpleList(out));
        return out;
    }
};

TEST_F(DataControlTest, TakingTheControlAwayEmptiesTheFoldersAndTellsEachSourceOnce) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tool = Connected("tool", {"saw_1"});
    auto& a = Folder("a");
    Show(a, part);
    Show(Root(), tool);

    view.SetDataCtrl(nullptr);

    EXPECT_EQ(view.GetDataCtrl(), nullptr);
    EXPECT_EQ(Rows(Root()), (Names{"a"}));
    EXPECT_THAT(Rows(a), IsEmpty());
    EXPECT_EQ(host.calls.Count("OnDisconnected", "part"), 1U);
    EXPECT_EQ(host.calls.Count("OnDisconnected", "tool"), 1U);
    signals.Discard();
}

TEST_F(DataControlTest, AnotherControlDisconnectsNothing) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);

    view.SetDataCtrl(&host.Control("other"));

    EXPECT_EQ(view.GetDataCtrl(), &host.Control("other"));
    EXPECT_THAT(Simple(), ElementsAre(&part));
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1"}));
    EXPECT_EQ(host.calls.Count("OnDisconnected"), 0U);
}

TEST_F(DataControlTest, TheControlIsTakenAwayWhenItIsReportedDeleted) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);

    view.OnDataControlDeleted("data");

    EXPECT_EQ(view.GetDataCtrl(), nullptr);
    EXPECT_THAT(Rows(Root()), IsEmpty());
    EXPECT_EQ(host.calls.Count("OnDisconnected", "part"), 1U);
    signals.Discard();
}

class OtherControlNameTest : public DataControlTest,
                             public testing::WithParamInterface<char const*> {};

TEST_P(OtherControlNameTest, ChangesNothing) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);

    view.OnDataControlDeleted(GetParam());

    EXPECT_EQ(view.GetDataCtrl(), &host.Control());
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1"}));
}

INSTANTIATE_TEST_SUITE_P(OfAnotherControl, OtherControlNameTest,
                         testing::Values("other", "DATA", "Data", "dat", "data ", "", nullptr));

TEST_F(DataControlTest, ADeletedControlIsIgnoredByAViewWithoutOne) {
    view.SetDataCtrl(nullptr);
    view.OnDataControlDeleted("data");
    EXPECT_EQ(view.GetDataCtrl(), nullptr);
}

TEST_F(DataControlTest, TheFoldersStayWhenTheControlGoes) {
    auto& a = Folder("a");
    view.OnDataControlDeleted("data");
    EXPECT_NE(view.FindFreeFolder(&a), nullptr);
    EXPECT_EQ(Rows(Root()), (Names{"a"}));
}

TEST_F(DataControlTest, ADataEventFromWithinTheDeletionOfTheControlIsDropped) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tool = Connected("tool", {"saw_1"});
    Show(Root(), tool);
    auto& added = tool.Add("drill_2");
    host.calls.On("OnDisconnected", "part", [&] { view.OnDataItemCreated(&added, false); });

    view.OnDataControlDeleted("data");

    EXPECT_EQ(signals.Count("ViewItemCreated"), 0U);
    EXPECT_EQ(part.connections, 0);
    signals.Discard();
}

TEST_F(DataControlTest, ADeletionOfTheControlFromWithinADataEventIsDropped) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);
    auto& added = part.Add("nut_2");
    signals.Once(&zbBrowserSignalManager::ViewItemCreated,
                 [&](auto*) { view.OnDataControlDeleted("data"); });

    view.OnDataItemCreated(&added, false);

    EXPECT_EQ(view.GetDataCtrl(), &host.Control());
    signals.Discard();
}

TEST_F(DataControlTest, TheGuardIsOpenAgainAfterTheDeletionOfAControl) {
    view.OnDataControlDeleted("other");
    view.OnDataControlDeleted("data");
    EXPECT_EQ(view.GetDataCtrl(), nullptr);
}

} // namespace
