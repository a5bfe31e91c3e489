// SPDX-License-Identifier: MIT
//! \file
//! The old view as an object: what it is at first and what it answers without handlers.

#include "ViewTestSupport.h"

#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <functional>

namespace {

using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingHost;
using zbtest::RecordingManager;
using zbtest::RecordingSource;

class ViewObjectTest : public zbtest::ViewTest {};

TEST_F(ViewObjectTest, AViewHasTheNameThatItWasMadeWith) {
    EXPECT_STREQ(host.OldView("Bill of material").GetName().c_str(), "Bill of material");
}

TEST_F(ViewObjectTest, AnOldViewIsNotNew) {
    EXPECT_FALSE(view.IsNewView());
}

TEST_F(ViewObjectTest, AFreshViewHasNoDataControlAndNoSources) {
    ASSERT_TRUE(RecordingManager::CreateView(host.Controller(), "bare", false));
    zbIBrowserView& bare = *host.Controller().FindView("bare");
    std::vector<zbIBrowserDataSourceSimple*> simple{nullptr};
    std::vector<zbIBrowserDataSourceHierarchical*> trees{nullptr};

    EXPECT_EQ(bare.GetDataCtrl(), nullptr);
    EXPECT_TRUE(bare.GetDataSourceSimpleList(simple));
    EXPECT_TRUE(bare.GetDataSourceHierarchicalList(trees));
    EXPECT_THAT(simple, IsEmpty());
    EXPECT_THAT(trees, IsEmpty());
}

TEST_F(ViewObjectTest, MakingAndDeletingAViewRaisesNothing) {
    zbIBrowserView& other = host.View("other");
    EXPECT_TRUE(host.DeleteView(other));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(ViewObjectTest, DeletingAViewWithContentIsSilentAndDisconnectsNothing) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Folder("a"), part);

    EXPECT_TRUE(host.DeleteView(view));

    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(host.calls.Count("OnDisconnected"), 0U);
}

TEST_F(ViewObjectTest, TheRootIsTheNamelessExpandedFolderWithoutParent) {
    FreeFolder& root = Root();
    EXPECT_TRUE(root.IsVirtualRoot());
    EXPECT_STREQ(root.GetName(), "");
    EXPECT_EQ(root.GetParent(), nullptr);
    EXPECT_TRUE(root.IsExpanded());
    EXPECT_EQ(root.GetView(), &view);
}

TEST_F(ViewObjectTest, TheRootHasNoContentAtFirst) {
    EXPECT_THAT(Rows(Root()), IsEmpty());
    EXPECT_EQ(Root().GetChildrenCount(), 0U);
}

TEST_F(ViewObjectTest, ControllerAndVersionRecordAreThoseOfTheController) {
    EXPECT_EQ(view.GetViewCtrl(), &host.Controller());
    EXPECT_EQ(view.GetViewCtrlPtr(), &host.Controller());
    EXPECT_EQ(view.GetBrowserInfo(), host.Controller().GetBrowserInfo());
}

TEST_F(ViewObjectTest, TheSignalManagerIsAskedForAnew) {
    EXPECT_EQ(view.GetSignalManager(), &host.signals);
    host.manager.signals = nullptr;
    EXPECT_EQ(view.GetSignalManager(), nullptr);
}

TEST_F(ViewObjectTest, WithoutASignalManagerOperationsWorkInSilence) {
    auto& part = Connected("part", {"bolt_1"});
    host.manager.signals = nullptr;

    EXPECT_TRUE(view.CreateFreeFolder(&Root(), "a"));
    EXPECT_TRUE(view.CreateList(&Root(), &part, false));

    EXPECT_EQ(Rows(Root()), (Names{"a", "bolt_1"}));
    EXPECT_THAT(signals.take(), IsEmpty());
    host.manager.signals = &host.signals;
}

TEST(ViewWithoutManagerTest, AViewWorksWithoutAManager) {
    RecordingHost host;
    auto const controller = std::unique_ptr<zbBrowserViewCtrl>(CreateBrowserViewCtrl(nullptr));
    ASSERT_TRUE(RecordingManager::CreateView(*controller, "alone", false));
    zbBrowserView& view = *controller->OLD_FindView("alone");
    auto& part = host.Source("part").Items({"bolt_1"});
    part.dirty = true;
    view.SetDataCtrl(&host.Control());

    EXPECT_TRUE(view.DataSourceConnect(&part));
    EXPECT_TRUE(view.CreateList(view.GetRootFreeFolder(), &part, false));
    part.Add("nut_2");
    view.OnAllDirtyDataListsRebuild();

    EXPECT_EQ(view.GetSignalManager(), nullptr);
    EXPECT_EQ(zbtest::ChildrenOf(view, *view.GetRootFreeFolder()), (Names{"bolt_1", "nut_2"}));
}

TEST_F(ViewObjectTest, TheLastFindStartPointIsStoredAndNeverFollowed) {
    EXPECT_EQ(view.GetLastFindStartPoint(), nullptr);
    char nothing = 0;
    auto* const stale = reinterpret_cast<zbIBrowserViewItem*>(&nothing);
    view.SetLastFindStartPoint(stale);
    EXPECT_EQ(view.GetLastFindStartPoint(), stale);
}

TEST_F(ViewObjectTest, SortingIsOnAtFirstAndIsStored) {
    EXPECT_TRUE(view.GetSorting());
    EXPECT_TRUE(view.SetSorting(false));
    EXPECT_FALSE(view.GetSorting());
    EXPECT_TRUE(view.SetSorting(true));
    EXPECT_TRUE(view.GetSorting());
    EXPECT_EQ(signals.take(), (Names{"ColumnStateChanged default_column false",
                                     "ColumnStateChanged default_column true"}));
}

TEST_F(ViewObjectTest, ItalicIsOnAtFirstAndIsStored) {
    EXPECT_TRUE(view.GetItalic());
    EXPECT_TRUE(view.SetItalic(false));
    EXPECT_FALSE(view.GetItalic());
    signals.Discard();
    EXPECT_TRUE(view.SetItalic(true));
    EXPECT_TRUE(view.GetItalic());
    EXPECT_EQ(signals.take(),
              (Names{"ColumnStateChanged default_column true", "ColumnUpdated default_column"}))
        << "the flag told is that of sorting";
}

TEST_F(ViewObjectTest, AFreshViewReportsNoError) {
    EXPECT_STREQ(view.GetError(), "");
    EXPECT_TRUE(view.GetState());
}

TEST(ViewConstantsTest, TheNamesOfDefaultsAreFixed) {
    EXPECT_STREQ(zbBrowserView::DEFAULT_NAME_PROP, "default_name_prop");
    EXPECT_STREQ(zbBrowserView::DEFAULT_ICON_NAME_PROP, "default_icon_name_prop");
    EXPECT_STREQ(zbBrowserView::DEFAULT_BOLD_TEXT_PROP, "default_bold_text_prop");
    EXPECT_STREQ(zbBrowserView::DEFAULT_ITALIC_TEXT_PROP, "default_italic_text_prop");
    EXPECT_STREQ(zbBrowserView::DEFAULT_COPYAT_OPERATION, "default_copyat_operation");
    EXPECT_STREQ(zbBrowserView::DEFAULT_MOVETO_OPERATION, "default_moveto_operation");
}

TEST_F(ViewObjectTest, ACheckBoxColumnIsPromisedAndNotMade) {
    EXPECT_TRUE(view.CreateCheckBoxColumn("done", ""));
    EXPECT_EQ(view.FindColumn("done"), nullptr);
}

TEST_F(ViewObjectTest, AComboBoxColumnIsPromisedAndNotMade) {
    EXPECT_TRUE(view.CreateComboBoxColumn("state", ""));
    EXPECT_EQ(view.FindColumn("state"), nullptr);
}

// What answers false, null or "" always or as long as a view has no such handler.
struct Neutral {
    char const* name;
    std::function<bool(zbBrowserView&)> answersNothing;
};

Neutral const neutralAnswers[] = {
    {"ConnectReference",
     [](auto& v) { return !v.Connect(static_cast<zbIBrowserDataReference*>(nullptr), true); }},
    {"ConnectSource",
     [](auto& v) { return !v.Connect(static_cast<zbIBrowserDataSource*>(nullptr), true); }},
    {"GetConnectedReferences",
     [](auto& v) {
         std::set<zbIBrowserDataReference*> out;
         return !v.GetConnected(out) && out.empty();
     }},
    {"GetConnectedSources",
     [](auto& v) {
         std::set<zbIBrowserDataSource*> out;
         return !v.GetConnected(out) && out.empty();
     }},
    {"FindConnected", [](auto& v) { return v.FindConnected("part") == nullptr; }},
    {"IsCollectorEnable",
     [](auto& v) {
         v.SetCollectorEnable(true);
         return !v.IsCollectorEnable();
     }},
    {"PerformCollectorOperation",
     [](auto& v) { return !v.PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE{}); }},
    {"GetFilterByName",
     [](auto& v) {
         bool out = true;
         return !v.GetFilterByName(out) && out;
     }},
    {"GetFilterUseRegExp",
     [](auto& v) {
         bool out = true;
         return !v.GetFilterUseRegExp(out) && out;
     }},
    {"GetCollectorGuiMapName",
     [](auto& v) { return std::string(v.GetCollectorGuiMapName()).empty(); }},
    {"IsBrowserColDisabled",
     [](auto& v) {
         v.OnBrowserColDisabled(true);
         return !v.IsBrowserColDisabled();
     }},
    {"IsBrowserCollectorOn", [](auto& v) { return !v.IsBrowserCollectorOn(); }},
    {"GetCollectorHandler", [](auto& v) { return v.GetCollectorHandler() == nullptr; }},
    {"CreatePopupMenu", [](auto& v) { return v.CreatePopupMenu("m") == nullptr; }},
    {"FindPopupMenu", [](auto& v) { return v.FindPopupMenu("m") == nullptr; }},
    {"DeletePopupMenu", [](auto& v) { return !v.DeletePopupMenu("m", true); }},
    {"GetSortedColumn", [](auto& v) { return v.GetSortedColumn() == nullptr; }},
    {"GetAscendingOrderOfNull",
     [](auto& v) {
         bool out = true;
         return !v.GetAscendingOrder(nullptr, out) && out;
     }},
    {"SetAscendingOrderOfNull", [](auto& v) { return !v.SetAscendingOrder(nullptr, true); }},
    {"DeleteViewPropertyNull", [](auto& v) { return !v.DeleteViewProperty(nullptr); }},
    {"DeleteScriptedColumnNull", [](auto& v) { return !v.DeleteScriptedColumn(nullptr); }},
    {"ShowScriptedColumnNull", [](auto& v) { return !v.ShowScriptedColumn(nullptr, true); }},
    {"GetViewItemStyleNull",
     [](auto& v) { return v.GetViewItemStyle(nullptr, nullptr) == nullptr; }},
    {"SetViewItemStyleNull", [](auto& v) { return !v.SetViewItemStyle(nullptr); }},
    {"DeleteStyleElementNull", [](auto& v) { return !v.DeleteStyleElement(nullptr); }},
    {"IsTextBoldNull",
     [](auto& v) {
         bool out = true;
         return !v.IsTextBold(nullptr, nullptr, out) && out;
     }},
    {"IsTextItalicNull",
     [](auto& v) {
         bool out = true;
         return !v.IsTextItalic(nullptr, nullptr, out) && out;
     }},
    {"FindViewOperation", [](auto& v) { return v.FindViewOperation("o") == nullptr; }},
};

class NeutralAnswerTest : public testing::TestWithParam<Neutral> {};

TEST_P(NeutralAnswerTest, IsGivenWithoutASignal) {
    RecordingHost host;
    zbBrowserView& view = host.OldView();
    zbtest::SignalRecorder signals(host);

    EXPECT_TRUE(GetParam().answersNothing(view));
    EXPECT_THAT(signals.take(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OfAViewWithoutHandlers, NeutralAnswerTest,
                         testing::ValuesIn(neutralAnswers),
                         [](auto const& tested) { return std::string(tested.param.name); });

} // namespace
