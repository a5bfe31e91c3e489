// SPDX-License-Identifier: MIT
//! \file
//! What the new view does with strange names, with folders that have gone, and while what answers
//! is not built yet.
#include "NewViewTest.h"
#include "StrangeNames.h"
#include "support/SignalRecorder.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <functional>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Names

class NewViewStrangeName : public NewView, public testing::WithParamInterface<StrangeName> {};

TEST_P(NewViewStrangeName, NamesAFolderByteForByteUpToTheFirstNul) {
    std::string const& name = GetParam().name;
    std::string const shown = GetParam().UpToTheFirstNul();

    EXPECT_TRUE(view.CreateFreeFolder(&Root(), zbString(name.data(), name.size())));

    auto const* const folder = Root().FindChildFreeFolder(shown.c_str());
    ASSERT_NE(folder, nullptr);
    EXPECT_EQ(folder->GetName(), shown);
    zbString path;
    EXPECT_TRUE(view.GetFreeFolderAbsolutePathName(folder, path));
    EXPECT_EQ(path.c_str(), "/" + shown);
    EXPECT_EQ(Thrown([&] { view.CreateFreeFolder(&Root(), shown.c_str()); }),
              "text: Child Free Folder with supplied name already exists in parent");
}

TEST_P(NewViewStrangeName, NamesAView) {
    std::string const shown = GetParam().UpToTheFirstNul();

    auto& strange = host.NewView(shown.c_str());

    EXPECT_EQ(strange.GetName().c_str(), shown);
    EXPECT_TRUE(host.DeleteView(strange));
}

TEST_P(NewViewStrangeName, NamesASource) {
    std::string const shown = GetParam().UpToTheFirstNul();

    ConnectSource(shown.c_str(), true);

    EXPECT_EQ(view.FindConnected(shown.c_str()), &host.Source(shown));
}

INSTANTIATE_TEST_SUITE_P(OfAnyKind, NewViewStrangeName, StrangeNames(), TitleOfName);

// Folders that go with their root

class NewViewGoneFolders : public NewView {
protected:
    SignalRecorder recorder{host};

    //! Deletes the root as soon as a folder is announced.
    [[nodiscard]] auto DeleteRootOn() {
        return recorder.On(&zbBrowserSignalManager::ViewItemCreated,
                           [this](zbIBrowserViewItem*) { view.DeleteVirtualRoot(); });
    }
};

TEST_F(NewViewGoneFolders, MayGoWhileOneOfThemIsAnnounced) {
    auto& tools = Make("tools");
    recorder.Discard();
    auto const handle = DeleteRootOn();

    EXPECT_TRUE(view.CreateFreeFolder(&tools, "saws"));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated saws", "FreeFolderCreated tools",
                                             "ViewItemChanged tools"));
    EXPECT_EQ(view.GetRootFreeFolder(), nullptr);
}

TEST_F(NewViewGoneFolders, AreNoFoldersOfTheViewFromThenOn) {
    auto& tools = Make("tools");
    view.OnUpdateViewSelection({&tools}, true, false);
    view.SetLastFindStartPoint(&tools);
    recorder.Discard();
    std::string thrown;
    std::vector<zbIBrowserViewItem*> selected;
    auto const handle = recorder.On(&zbBrowserSignalManager::EmptyFoldersShown, [&](auto*, bool) {
        view.DeleteVirtualRoot();
        thrown = Thrown([&] { view.CreateFreeFolder(&tools, "saws"); });
        view.GetSelectionManager()->GetSelectedViewItems(selected);
    });

    view.ShowEmptyFolders(true);

    EXPECT_EQ(thrown, "string: Null pointer hit");
    EXPECT_THAT(selected, IsEmpty());
    EXPECT_EQ(view.GetLastFindStartPoint(), nullptr);
    recorder.Discard();
}

TEST_F(NewViewGoneFolders, MayBeReplacedWhileOneOfThemIsAnnounced) {
    auto const handle = recorder.On(&zbBrowserSignalManager::ViewItemChanged, [&](auto*) {
        view.DeleteVirtualRoot();
        view.CreateVirtualRoot();
    });

    EXPECT_TRUE(view.CreateFreeFolder(&Root(), "tools"));

    recorder.Discard();
    EXPECT_EQ(Root().FindChildFreeFolder("tools"), nullptr);
}

// What is not built yet

struct NeutralAnswer {
    char const* name;
    std::function<bool(zbbrowser::View&)> isNeutral;
};

NeutralAnswer const neutralAnswers[] = {
    {"GetNextViewItem",
     [](auto& v) { return v.GetNextViewItem(v.GetRootFreeFolder(), true, true) == nullptr; }},
    {"ShowAscendants",
     [](auto& v) {
         v.ShowAscendants(v.GetRootFreeFolder());
         return true;
     }},
    {"ExpandAndCollapseAllItems",
     [](auto& v) {
         v.ExpandAllItems();
         v.CollapseAllItems();
         return true;
     }},
    {"ExpandAndCollapseSelectedItems",
     [](auto& v) {
         v.ExpandSelectedItems();
         v.CollapseSelectedItems();
         return true;
     }},
    {"Hide",
     [](auto& v) {
         v.Hide(v.GetRootFreeFolder());
         return !v.GetRootFreeFolder()->IsHidden();
     }},
    {"DirtyItems",
     [](auto& v) {
         v.UpdateDirtyForWindowItems();
         v.ClearDirtyForWindowItems();
         v.AllDirtyDataDependentItemsRebuild(true);
         return true;
     }},
    {"GetDataDependentViewItems",
     [](auto& v) {
         std::vector<zbIBrowserViewItem*> out(1, nullptr);
         v.GetDataDependentViewItems({nullptr}, out);
         return out.size() == 1;
     }},
    {"CreatePopupMenu", [](auto& v) { return v.CreatePopupMenu("m") == nullptr; }},
    {"FindPopupMenuByName", [](auto& v) { return v.FindPopupMenu("m") == nullptr; }},
    {"FindPopupMenuByPointer",
     [](auto& v) { return !v.FindPopupMenu(static_cast<zbIBrowserPopupMenu*>(nullptr)); }},
    {"DeletePopupMenu", [](auto& v) { return !v.DeletePopupMenu("m", true); }},
    {"GetAllPopupMenus",
     [](auto& v) {
         std::vector<zbIBrowserPopupMenu*> out;
         return !v.GetAllPopupMenus(out) && out.empty();
     }},
    {"GetCollectorHandler", [](auto& v) { return v.GetCollectorHandler() == nullptr; }},
    {"GetCollectorGuiMapName",
     [](auto& v) { return std::string(v.GetCollectorGuiMapName()).empty(); }},
    {"IsBrowserCollectorOn", [](auto& v) { return !v.IsBrowserCollectorOn(); }},
    {"IsCollectorEnable",
     [](auto& v) {
         v.SetCollectorEnable(true);
         v.ResetCollector();
         return !v.IsCollectorEnable();
     }},
    {"PerformCollectorOperation",
     [](auto& v) { return !v.PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE_FIRST); }},
    {"CreateViewOperation",
     [](auto& v) { return !v.CreateViewOperation("o") && v.FindViewOperation("o") == nullptr; }},
    {"DefaultViewOperations",
     [](auto& v) {
         v.PerformVOPAttachedToGvnDOP("o");
         return v.FindViewOperation(zbbrowser::View::DEFAULT_COPYAT_OPERATION) == nullptr &&
                v.FindViewOperation(zbbrowser::View::DEFAULT_MOVETO_OPERATION) == nullptr;
     }},
};

class NewViewNeutralAnswer : public NewView, public testing::WithParamInterface<NeutralAnswer> {};

TEST_P(NewViewNeutralAnswer, IsGivenAndNothingElseHappens) {
    SignalRecorder recorder(host);

    EXPECT_TRUE(GetParam().isNeutral(view));

    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OfWhatIsNotBuilt, NewViewNeutralAnswer, testing::ValuesIn(neutralAnswers),
                         [](auto const& tested) { return std::string(tested.param.name); });

} // namespace
} // namespace zbtest
