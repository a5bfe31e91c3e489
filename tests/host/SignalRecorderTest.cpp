// SPDX-License-Identifier: MIT
#include "support/SignalRecorder.h"

#include "support/RecordingHost.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::RecordingHost;
using zbtest::RecordingManager;
using zbtest::SignalRecorder;

//! A recorder over signals that the tests raise themselves.
class SignalRecorderTest : public testing::Test {
protected:
    RecordingHost host;
    SignalRecorder recorder{host};
};

TEST_F(SignalRecorderTest, ListensToEverySignalOfBothManagers) {
    auto const signalCount = (sizeof(zbBrowserSignalManager) + sizeof(zbBrowserDataSignalManager)) /
                             sizeof(zbSignal<single_threaded>);
    EXPECT_EQ(recorder.SignalNames().size(), signalCount);
    EXPECT_EQ(host.signals.ViewItemCreated.Count(), 1U);
    EXPECT_EQ(host.signals.EmptyFoldersShown.Count(), 1U);
    EXPECT_EQ(host.dataSignals.SortChanging.Count(), 1U);
}

TEST_F(SignalRecorderTest, WritesALineForEachSignalWithItsArguments) {
    host.signals.ColumnsChanged();
    host.signals.ViewItemRedraw(nullptr, true);
    host.signals.EditDataItem("rename", nullptr);
    host.signals.GuiEntryRemoved(nullptr, "bolt", 3);
    host.signals.CollectorButtonMoved(nullptr, ZBBROWSER_TCLAPI_KEYWORD_PANEL_COLLECTOR, 4, -5);
    host.dataSignals.SortChanging(false);

    EXPECT_THAT(recorder.take(),
                ElementsAre("ColumnsChanged", "ViewItemRedraw null true",
                            "EditDataItem \"rename\" null", "GuiEntryRemoved null \"bolt\" 3",
                            "CollectorButtonMoved null 121 4 -5", "SortChanging false"));
}

TEST_F(SignalRecorderTest, NamesDataItemsAndSourcesAndControls) {
    auto& part = host.Source("part").Items({"bolt_1", "nut_2"});
    auto& tree = host.Tree("machine", part);
    auto& engine = tree.Add(part, "engine");
    std::vector<zbIBrowserDataItemSimple*> simple{&part["bolt_1"], &part["nut_2"]};
    std::vector<zbIBrowserDataItemHierarchical*> hierarchical{&engine};
    zbBrowserDataItemMap map{{&part, {&part["nut_2"]}}};

    host.dataSignals.DataItemsGrouped(&host.Control(), map, simple, hierarchical);

    EXPECT_THAT(recorder.take(),
                ElementsAre("DataItemsGrouped data {part: [nut_2]} [bolt_1 nut_2] [engine]"));
}

TEST_F(SignalRecorderTest, NamesADataItemThatHasGoneWithoutAskingIt) {
    auto& part = host.Source("part").Items({"bolt_1"});
    std::vector<zbIBrowserDataItem*> items{&part["bolt_1"]};
    part.Delete("bolt_1");

    host.dataSignals.CollectorDataItems(nullptr, items, true);

    EXPECT_THAT(recorder.take(), ElementsAre("CollectorDataItems null [bolt_1] true"));
}

TEST_F(SignalRecorderTest, AsksDataItemsOfAnotherHostForTheirNames) {
    RecordingHost other;
    std::vector<zbIBrowserDataItem*> items{&other.Source("part").Add("washer_3")};

    host.dataSignals.CollectorDataItems(nullptr, items, false);

    EXPECT_THAT(recorder.take(), ElementsAre("CollectorDataItems null [washer_3] false"));
    EXPECT_EQ(other.calls.Count("GetProperty", "washer_3"), 1U);
}

TEST_F(SignalRecorderTest, ForgetsLinesThatWereTaken) {
    host.signals.ColumnsChanged();
    EXPECT_THAT(recorder.take(), ElementsAre("ColumnsChanged"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(SignalRecorderTest, LeavesOutIgnoredSignals) {
    recorder.Ignore({"ColumnsChanged"});
    host.signals.ColumnsChanged();
    host.signals.ViewChanged(nullptr);
    EXPECT_THAT(recorder.take(), ElementsAre("ViewChanged null"));
}

TEST_F(SignalRecorderTest, KeepsOnlyTheSignalsAskedFor) {
    recorder.Only({"ColumnsChanged"});
    host.signals.ColumnsChanged();
    host.signals.ViewChanged(nullptr);
    EXPECT_THAT(recorder.take(), ElementsAre("ColumnsChanged"));
}

TEST_F(SignalRecorderTest, RefusesNamesThatAreNoSignals) {
    EXPECT_THROW(recorder.Ignore({"ColumnChanged"}), std::invalid_argument);
    EXPECT_THROW(recorder.Only({"ColumnChanged"}), std::invalid_argument);
    EXPECT_THROW(static_cast<void>(recorder.Count("ColumnChanged")), std::invalid_argument);
}

TEST_F(SignalRecorderTest, CountsWholeNamesOnly) {
    host.signals.ViewItemExpanded(nullptr);
    host.signals.ViewItemExpandedAll(nullptr, true);
    EXPECT_EQ(recorder.Count("ViewItemExpanded"), 1U);
    recorder.Discard();
    EXPECT_EQ(recorder.Count("ViewItemExpanded"), 0U);
}

TEST_F(SignalRecorderTest, RunsCodeOfTheTestAfterWritingTheLine) {
    std::size_t linesThen = 0;
    auto handle =
        recorder.On(&zbBrowserSignalManager::ViewItemRedraw, [&](zbIBrowserViewItem*, bool) {
            linesThen = recorder.Count("ViewItemRedraw");
        });

    host.signals.ViewItemRedraw(nullptr, true);
    EXPECT_EQ(linesThen, 1U);

    handle.Disconnect();
    host.signals.ViewItemRedraw(nullptr, true);
    EXPECT_EQ(linesThen, 1U);
    recorder.Discard();
}

TEST_F(SignalRecorderTest, RunsCodeOfTheTestOnce) {
    int runs = 0;
    recorder.Once(&zbBrowserDataSignalManager::SortChanging, [&](bool) { ++runs; });
    host.dataSignals.SortChanging(true);
    host.dataSignals.SortChanging(false);
    EXPECT_EQ(runs, 1);
    recorder.Discard();
}

TEST_F(SignalRecorderTest, NamesRowsFoldersViewsAndTheRoot) {
    auto& part = host.Source("part").Items({"bolt_1"});
    zbBrowserView& view = host.OldView("parts");
    zbIBrowserViewItemFreeFolder* const root = view.GetRootFreeFolder();
    view.DataSourceConnect(&part);
    RecordingManager::CreateFreeFolder(host.Controller(), root, "box");
    recorder.Only({"ViewItemCreated", "FreeFolderCreated", "ViewContentChanged"});
    recorder.Discard();

    RecordingManager::CreateFreeFolder(host.Controller(), root, "tray");
    view.CreateList(root->FindChildFreeFolder("tray"), &part, false);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated tray", "FreeFolderCreated /",
                                             "ViewItemCreated bolt_1", "ViewContentChanged parts"));
}

TEST_F(SignalRecorderTest, NamesARowWhoseDataItemHasGone) {
    auto& part = host.Source("part").Items({"bolt_1"});
    zbBrowserView& view = host.OldView("parts");
    view.DataSourceConnect(&part);
    view.CreateList(view.GetRootFreeFolder(), &part, false);
    recorder.Discard();
    std::vector<zbIBrowserViewItem*> rows;
    view.GetChildren(rows, view.GetRootFreeFolder());
    ASSERT_EQ(rows.size(), 1U);

    part.Delete("bolt_1");
    host.signals.ViewItemRedraw(rows.front(), false);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemRedraw bolt_1 false"));
}

void LeaveLinesUnread() {
    RecordingHost host;
    SignalRecorder recorder(host);
    host.signals.ColumnsChanged();
}

TEST(SignalRecorder, FailsItsTestWhenItGoesWithUnreadLines) {
    EXPECT_NONFATAL_FAILURE(LeaveLinesUnread(), "signals that nobody took:\n  ColumnsChanged");
}

TEST(SignalRecorder, LeavesTheSignalsWhenItGoes) {
    RecordingHost host;
    { SignalRecorder const recorder(host); }
    EXPECT_EQ(host.signals.ColumnsChanged.Count(), 0U);
}

} // namespace
