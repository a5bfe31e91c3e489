// SPDX-License-Identifier: MIT
//! \file
//! The view of the new generation as an object: name, data control, connections, lock, switches.
#include "NewViewTest.h"
#include "support/SignalRecorder.h"

#include <zbBrowserView/host/PendingViewChangeInfo.h>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(NewView, KnowsItsNameAndItsController) {
    EXPECT_EQ(view.GetName(), "parts");
    EXPECT_EQ(view.GetViewCtrl(), &host.Controller());
    EXPECT_EQ(view.GetViewCtrlPtr(), &host.Controller());
    EXPECT_EQ(view.GetBrowserInfo(), host.Controller().GetBrowserInfo());
    EXPECT_EQ(view.GetSignalManager(), &host.signals);
}

TEST_F(NewView, StartsNewWithItsDefaultPropertiesItsDefaultColumnAndAnEmptyRoot) {
    std::vector<zbIBrowserViewProperty*> properties;
    std::vector<zbIBrowserViewColumn*> columns;
    std::vector<zbIBrowserViewItemFreeFolder*> folders;

    EXPECT_TRUE(view.IsNewView());
    EXPECT_TRUE(view.GetViewPropertyList(properties));
    EXPECT_THAT(properties, ElementsAre(view.FindViewProperty("default_name_prop"),
                                        view.FindViewProperty("default_icon_name_prop"),
                                        view.FindViewProperty("default_bold_text_prop"),
                                        view.FindViewProperty("default_italic_text_prop")));
    EXPECT_TRUE(view.GetColumns(columns));
    EXPECT_THAT(columns, ElementsAre(view.GetDefaultColumn()));
    EXPECT_NE(view.GetDefaultColumn(), nullptr);
    EXPECT_TRUE(view.GetRootFreeFolder()->GetChildFreeFolders(folders, false, true));
    EXPECT_THAT(folders, IsEmpty());
    EXPECT_EQ(view.GetSortedColumn(), nullptr);
    EXPECT_EQ(view.GetLastFindStartPoint(), nullptr);
}

TEST_F(NewView, ListsItsDefaultColumnFirst) {
    std::vector<zbIBrowserViewColumn*> columns;

    EXPECT_TRUE(view.CreateButtonColumn("mass", ""));

    EXPECT_TRUE(view.GetColumns(columns));
    EXPECT_THAT(columns, ElementsAre(view.GetDefaultColumn(), view.FindColumn("mass")));
}

TEST_F(NewView, KeepsItsDefaultProperties) {
    auto* const name = view.FindViewProperty("default_name_prop");

    EXPECT_FALSE(view.DeleteViewProperty(name));

    EXPECT_EQ(view.FindViewProperty("default_name_prop"), name);
}

TEST_F(NewView, ComesAndGoesSilently) {
    SignalRecorder recorder(host);

    auto& other = host.NewView("other");
    other.CreateFreeFolder(other.GetRootFreeFolder(), "tools");
    other.CreateButtonColumn("mass", "");
    recorder.Discard();
    EXPECT_TRUE(host.DeleteView(other));

    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(NewView, HasNoFilter) {
    view.CreateFilterHandler();
    EXPECT_EQ(view.GetFilterHandlerImpl(), nullptr);
    view.DeleteFilterHandler();
}

TEST_F(NewView, StoresTheLastFindStartPointAndNeverFollowsIt) {
    // Compared only, so anything will do for an item
    auto* const item = reinterpret_cast<zbIBrowserViewItem*>(&host);

    view.SetLastFindStartPoint(item);

    EXPECT_EQ(view.GetLastFindStartPoint(), item);
}

TEST_F(NewView, KeepsTheDataControlThatIsSet) {
    view.SetDataCtrl(nullptr);
    EXPECT_EQ(view.GetDataCtrl(), nullptr);
    view.SetDataCtrl(&host.Control("other"));
    EXPECT_EQ(view.GetDataCtrl(), &host.Control("other"));
}

TEST_F(NewView, KeepsItsConnectionsWithoutADataControl) {
    ConnectSource("part", true);

    view.SetDataCtrl(nullptr);

    EXPECT_THAT(Sources(), ElementsAre(&host.Source("part")));
}

TEST_F(NewView, LetsGoOfADataControlThatIsDeleted) {
    view.OnDataControlDeleted("data");

    EXPECT_EQ(view.GetDataCtrl(), nullptr);
    view.OnDataControlDeleted("data");
    EXPECT_EQ(view.GetDataCtrl(), nullptr);
}

TEST_F(NewView, KeepsItsDataControlWhenAnotherIsDeleted) {
    view.OnDataControlDeleted("DATA");
    view.OnDataControlDeleted("other");
    view.OnDataControlDeleted(nullptr);

    EXPECT_EQ(view.GetDataCtrl(), &host.Control());
}

TEST_F(NewView, KeepsADeletedDataControlWhileItIsLocked) {
    view.Lock(true);

    view.OnDataControlDeleted("data");

    EXPECT_EQ(view.GetDataCtrl(), &host.Control());
}

TEST_F(NewView, StartsWithNothingConnected) {
    EXPECT_THAT(Sources(), IsEmpty());
    EXPECT_THAT(References(), IsEmpty());
}

TEST_F(NewView, ConnectsASourceOnce) {
    EXPECT_TRUE(ConnectSource("part", true));
    EXPECT_FALSE(ConnectSource("part", true));

    EXPECT_THAT(Sources(), ElementsAre(&host.Source("part")));
    EXPECT_THAT(host.calls.take(), IsEmpty()) << "a source is told nothing";
}

TEST_F(NewView, DisconnectsASourceThatIsConnected) {
    ConnectSource("part", true);
    ConnectSource("tool", true);

    EXPECT_TRUE(ConnectSource("part", false));
    EXPECT_FALSE(ConnectSource("part", false));

    EXPECT_THAT(Sources(), ElementsAre(&host.Source("tool")));
}

TEST_F(NewView, RefusesToDisconnectASourceThatIsNotConnected) {
    EXPECT_FALSE(ConnectSource("part", false));
}

TEST_F(NewView, ConnectsReferencesInTheSameWay) {
    auto& uses = host.Control().Reference("uses", host.Source("part"), host.Source("tool"));

    EXPECT_FALSE(view.Connect(&uses, false));
    EXPECT_TRUE(view.Connect(&uses, true));
    EXPECT_FALSE(view.Connect(&uses, true));
    EXPECT_THAT(References(), ElementsAre(&uses));
    EXPECT_THAT(Sources(), IsEmpty());
    EXPECT_TRUE(view.Connect(&uses, false));
    EXPECT_THAT(References(), IsEmpty());
}

TEST_F(NewView, RefusesToConnectNothing) {
    EXPECT_FALSE(view.Connect(static_cast<zbIBrowserDataSource*>(nullptr), true));
    EXPECT_FALSE(view.Connect(static_cast<zbIBrowserDataSource*>(nullptr), false));
    EXPECT_FALSE(view.Connect(static_cast<zbIBrowserDataReference*>(nullptr), true));
    EXPECT_FALSE(view.Connect(static_cast<zbIBrowserDataReference*>(nullptr), false));
    EXPECT_THAT(Sources(), IsEmpty());
    EXPECT_THAT(References(), IsEmpty());
}

TEST_F(NewView, FindsAConnectedSourceByItsExactName) {
    ConnectSource("part", true);
    ConnectSource("tool", true);
    static_cast<void>(host.Source("idle"));

    EXPECT_EQ(view.FindConnected("part"), &host.Source("part"));
    EXPECT_EQ(view.FindConnected("tool"), &host.Source("tool"));
    EXPECT_EQ(view.FindConnected("PART"), nullptr);
    EXPECT_EQ(view.FindConnected("idle"), nullptr);
    EXPECT_EQ(view.FindConnected(""), nullptr);
}

TEST_F(NewView, AsksNoSourceForANullName) {
    ConnectSource("part", true);
    host.calls.ForgetCounts();

    EXPECT_EQ(view.FindConnected(nullptr), nullptr);

    EXPECT_EQ(host.calls.Count("GetName"), 0U);
}

TEST_F(NewView, FindsTheFirstByPointerOfSourcesOfOneName) {
    zbIBrowserDataSource* const one = &host.Control("data").Source("part");
    zbIBrowserDataSource* const two = &host.Control("other").Source("part");
    view.Connect(one, true);
    view.Connect(two, true);

    EXPECT_EQ(view.FindConnected("part"), std::less<>()(one, two) ? one : two);
}

TEST_F(NewView, MayBeChangedBySourcesThatAreAskedForTheirNames) {
    ConnectSource("bolt", true);
    ConnectSource("nut", true);
    ConnectSource("part", true);
    host.calls.On("GetName", [&] {
        host.calls.Off("GetName");
        ConnectSource("bolt", false);
        ConnectSource("nut", false);
    });

    EXPECT_EQ(view.FindConnected("part"), &host.Source("part"));
}

TEST_F(NewView, MayBeDeletedByASourceThatIsAskedForItsName) {
    ConnectSource("bolt", true);
    ConnectSource("nut", true);
    host.calls.ForgetCounts();
    host.calls.On("GetName", [&] {
        host.calls.Off("GetName");
        host.DeleteView(view);
    });

    EXPECT_EQ(view.FindConnected("neither"), nullptr);

    EXPECT_EQ(host.calls.Count("GetName"), 1U) << "the host may have freed the other source";
    EXPECT_EQ(host.Controller().FindView("parts"), nullptr);
}

TEST_F(NewView, MayBeDeletedByADataControlThatIsAskedForItsName) {
    host.calls.On("GetName", "data", [&] {
        host.calls.Off("GetName", "data");
        host.DeleteView(view);
    });

    view.OnDataControlDeleted("data");

    EXPECT_EQ(host.Controller().FindView("parts"), nullptr);
}

// Once it is given up, the host may free its data.
TEST_F(NewView, LetsGoOfTheHostsDataWhenItIsDeletedFromWithin) {
    auto& uses = host.Control().Reference("uses", host.Source("part"), host.Source("tool"));
    ConnectSource("part", true);
    view.Connect(&uses, true);
    SignalRecorder recorder(host);
    auto const handle = recorder.On(&zbBrowserSignalManager::EmptyFoldersShown, [&](auto*, bool) {
        host.DeleteView(view);
        EXPECT_EQ(view.GetDataCtrl(), nullptr);
        EXPECT_THAT(Sources(), IsEmpty());
        EXPECT_THAT(References(), IsEmpty());
    });

    view.ShowEmptyFolders(false);

    recorder.Discard();
}

struct Copy : zbbrowser::View {
    explicit Copy(zbbrowser::View const& other)
        : View(other) {}
};

TEST_F(NewView, CopiedHasTheSwitchesOfTheOriginal) {
    view.SetSorting(false);
    view.SetItalic(false);
    view.ShowEmptyFolders(false);
    view.Lock(true);

    Copy const copy(view);

    EXPECT_FALSE(copy.GetSorting());
    EXPECT_FALSE(copy.GetItalic());
    EXPECT_FALSE(copy.GetShowEmptyFoldersFlag());
    EXPECT_TRUE(copy.IsLocked());
}

TEST_F(NewView, AssignedToTakesTheSwitches) {
    Copy const before(view);
    view.SetSorting(false);
    view.SetItalic(false);
    view.ShowEmptyFolders(false);
    view.Lock(true);

    view = before;

    EXPECT_TRUE(view.GetSorting());
    EXPECT_TRUE(view.GetItalic());
    EXPECT_TRUE(view.GetShowEmptyFoldersFlag());
    EXPECT_FALSE(view.IsLocked());
}

TEST_F(NewView, CopiedShowsTheSameDataAndIsNoViewOfTheController) {
    ConnectSource("part", true);
    {
        Copy copy(view);
        EXPECT_EQ(copy.GetName(), "parts");
        EXPECT_EQ(copy.GetDataCtrl(), &host.Control());
        EXPECT_EQ(copy.FindConnected("part"), &host.Source("part"));
        EXPECT_FALSE(host.DeleteView(copy));

        copy.Connect(static_cast<zbIBrowserDataSource*>(&host.Source("part")), false);
        EXPECT_THAT(Sources(), ElementsAre(&host.Source("part"))) << "each has its own list";
        view = copy;
        EXPECT_THAT(Sources(), IsEmpty());
    }
    EXPECT_EQ(host.Controller().FindView("parts"), &view);
}

TEST_F(NewView, IsConnectedToNothingThroughTheController) {
    std::vector<zbIBrowserDataSourceSimple*> const flat{&host.Source("part")};
    std::vector<zbIBrowserDataSourceHierarchical*> const trees{
        &host.Tree("tree", host.Source("part"))};

    EXPECT_TRUE(host.Controller().DataSourceConnect(&view, flat));
    EXPECT_TRUE(host.Controller().DataSourceConnect(&view, trees));

    EXPECT_THAT(Sources(), IsEmpty());
    std::vector<zbIBrowserDataSourceSimple*> connected;
    EXPECT_FALSE(view.GetDataSourceSimpleList(connected));
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(NewView, IsLockedBetweenLockAndUnlock) {
    EXPECT_FALSE(view.IsLocked());
    view.Lock(true);
    view.Lock(true);
    EXPECT_TRUE(view.IsLocked());
    view.Lock(false);
    EXPECT_FALSE(view.IsLocked()) << "locks do not nest";
}

TEST_F(NewView, FillsTheRecordOnlyWhileLocked) {
    zbbrowser::PendingViewChangeInfo info;

    EXPECT_EQ(Thrown([&] { view.Fill(info); }), "string: Unexpected general error");
    EXPECT_EQ(Thrown([&] { host.Controller().Fill(&view, info); }),
              "string: Unexpected general error");
    host.Controller().Lock(&view, true);
    EXPECT_EQ(Thrown([&] { host.Controller().Fill(&view, info); }), "nothing");
}

TEST_F(NewView, SortsAndUsesItalicsUntilToldOtherwise) {
    EXPECT_TRUE(view.GetSorting());
    EXPECT_TRUE(view.GetItalic());

    EXPECT_TRUE(view.SetSorting(false));
    EXPECT_FALSE(view.GetSorting());
    EXPECT_TRUE(view.GetItalic());
    EXPECT_TRUE(view.SetItalic(false));
    EXPECT_FALSE(view.GetItalic());
    EXPECT_TRUE(view.SetSorting(true));
    EXPECT_TRUE(view.GetSorting());
}

TEST_F(NewView, SignalsWhetherEmptyFoldersAreShownAlsoWithoutAChange) {
    SignalRecorder recorder(host);
    EXPECT_TRUE(view.GetShowEmptyFoldersFlag());

    view.ShowEmptyFolders(true);
    view.ShowEmptyFolders(false);

    EXPECT_FALSE(view.GetShowEmptyFoldersFlag());
    EXPECT_THAT(recorder.take(),
                ElementsAre("EmptyFoldersShown parts true", "EmptyFoldersShown parts false"));
}

TEST_F(NewView, MayBeDeletedByTheSlotThatHearsOfEmptyFolders) {
    SignalRecorder recorder(host);
    auto const handle = recorder.On(&zbBrowserSignalManager::EmptyFoldersShown,
                                    [&](zbIBrowserView* told, bool) { host.DeleteView(*told); });

    view.ShowEmptyFolders(false);

    recorder.Discard();
    EXPECT_EQ(host.Controller().FindView("parts"), nullptr);
}

TEST_F(NewView, AnswersTrueForColumnsThatAreNotItsOwn) {
    // Compared only, so anything will do for a column of somebody else
    auto* const column = reinterpret_cast<zbIBrowserViewColumn*>(&host);

    EXPECT_FALSE(view.DeleteScriptedColumn(nullptr));
    EXPECT_FALSE(view.ShowScriptedColumn(nullptr, true));
    EXPECT_TRUE(view.DeleteScriptedColumn(column));
    EXPECT_TRUE(view.ShowScriptedColumn(column, true));
}

} // namespace
} // namespace zbtest
