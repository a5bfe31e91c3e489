// SPDX-License-Identifier: MIT
//! \file
//! Free folders of a new view: the root, making folders, their settings, order and paths.
#include "NewViewTest.h"
#include "support/ItemDoubles.h"
#include "support/SignalRecorder.h"

#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <string>
#include <vector>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;
using Folder = zbIBrowserViewItemFreeFolder;

class NewViewFolders : public NewView {
protected:
    static Names Children(Folder& folder, bool sorted, bool ascending) {
        std::vector<Folder*> found{nullptr};
        EXPECT_TRUE(folder.GetChildFreeFolders(found, sorted, ascending));
        Names names;
        names.reserve(found.size());
        for (auto* const child : found)
            names.emplace_back(child->GetName());
        return names;
    }

    std::string Path(Folder const* folder) const {
        zbString path = "before";
        EXPECT_TRUE(view.GetFreeFolderAbsolutePathName(folder, path));
        return path.c_str();
    }
};

TEST_F(NewViewFolders, StartWithARootThatStandsAloneAndOpen) {
    ASSERT_NE(view.GetRootFreeFolder(), nullptr);
    EXPECT_TRUE(Root().IsVirtualRoot());
    EXPECT_TRUE(Root().IsFreeFolder());
    EXPECT_TRUE(Root().IsExpanded());
    EXPECT_STREQ(Root().GetName(), "");
    EXPECT_EQ(Root().GetView(), &view);
    EXPECT_EQ(Root().GetParent(), nullptr);
    EXPECT_EQ(Root().GetParentFreeFolder(), nullptr);
    EXPECT_TRUE(Root().GetShowWhenEmpty());
    EXPECT_THAT(Children(Root(), false, true), IsEmpty());
}

TEST_F(NewViewFolders, AreAddedBehindTheOthersWithThreeSignals) {
    SignalRecorder recorder(host);
    Make("tools");
    recorder.Discard();

    EXPECT_TRUE(view.CreateFreeFolder(&Root(), "bolts"));

    EXPECT_THAT(recorder.take(),
                ElementsAre("ViewItemCreated bolts", "FreeFolderCreated /", "ViewItemChanged /"));
    EXPECT_THAT(Children(Root(), false, true), ElementsAre("tools", "bolts"));
}

TEST_F(NewViewFolders, DifferFromTheirSiblingsInMoreThanCase) {
    Make("tools");
    SignalRecorder recorder(host);

    EXPECT_EQ(Thrown([&] { view.CreateFreeFolder(&Root(), "TOOLS"); }),
              "text: Child Free Folder with supplied name already exists in parent");

    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_THAT(Children(Root(), false, true), ElementsAre("tools"));
}

TEST_F(NewViewFolders, StartClosedPlainAndInTheOrderOfTheirMaking) {
    auto& tools = Make("tools");

    EXPECT_FALSE(tools.IsExpanded());
    EXPECT_FALSE(tools.IsVirtualRoot());
    EXPECT_FALSE(tools.IsHidden());
    EXPECT_FALSE(tools.GetGroupLeafs());
    EXPECT_FALSE(tools.GetFreeFolderStyle());
    EXPECT_FALSE(tools.GetShowEmptyContainers());
    EXPECT_TRUE(tools.GetKeepChildrenInOrder());
    EXPECT_FALSE(tools.GetTextBold());
    EXPECT_FALSE(tools.GetTextItalic());
    EXPECT_EQ(tools.GetParent(), &Root());
    EXPECT_EQ(tools.GetParentFreeFolder(), &Root());
}

TEST_F(NewViewFolders, CountNoChildren) {
    Make(Make("tools"), "saws");

    EXPECT_EQ(Root().FindChildFreeFolder("tools")->GetChildrenCount(), 0U);
}

TEST_F(NewViewFolders, AreDeletedByNobody) {
    auto& tools = Make("tools");
    SignalRecorder recorder(host);

    EXPECT_FALSE(view.DeleteFreeFolder(&tools, true));
    EXPECT_EQ(Thrown([&] { view.DeleteFreeFolder(&Root(), true); }),
              "text: Cannot remove toplevel (canvas) free folder");

    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_THAT(Children(Root(), false, true), ElementsAre("tools"));
}

TEST_F(NewViewFolders, AreRefusedWhileTheViewIsLockedBeforeAnythingIsLookedAt) {
    view.Lock(true);

    EXPECT_FALSE(view.CreateFreeFolder(&Root(), "tools"));
    EXPECT_FALSE(view.CreateFreeFolder(nullptr, "tools"));
    EXPECT_FALSE(view.DeleteFreeFolder(&Root(), true));
    EXPECT_FALSE(view.DeleteFreeFolder(nullptr, true));

    EXPECT_THAT(Children(Root(), false, true), IsEmpty());
}

TEST_F(NewViewFolders, KeepTheirOrderUntilToldOtherwiseWhateverIsAskedFor) {
    for (auto const* const name : {"saws", "Bolts", "nuts"})
        Make(name);

    EXPECT_THAT(Children(Root(), true, false), ElementsAre("saws", "Bolts", "nuts"));
    EXPECT_TRUE(view.SetKeepChildrenFreeFoldersInOrderAsCreated(&Root(), false));
    EXPECT_THAT(Children(Root(), true, true), ElementsAre("Bolts", "nuts", "saws"));
    EXPECT_THAT(Children(Root(), true, false), ElementsAre("saws", "nuts", "Bolts"));
    EXPECT_THAT(Children(Root(), false, false), ElementsAre("saws", "Bolts", "nuts"));
}

TEST_F(NewViewFolders, AreSortedAnewAfterOneWasAdded) {
    view.SetKeepChildrenFreeFoldersInOrderAsCreated(&Root(), false);
    Make("saws");
    EXPECT_THAT(Children(Root(), true, true), ElementsAre("saws"));

    Make("nuts");

    EXPECT_THAT(Children(Root(), true, true), ElementsAre("nuts", "saws"));
}

TEST_F(NewViewFolders, OpenAndStayOpen) {
    auto& tools = Make("tools");
    SignalRecorder recorder(host);

    EXPECT_TRUE(view.ExpandFreeFolder(&tools, true));
    EXPECT_TRUE(view.ExpandFreeFolder(&tools, true));
    EXPECT_TRUE(view.CollapseFreeFolder(&tools, true));

    EXPECT_TRUE(tools.IsExpanded());
    EXPECT_THAT(recorder.take(), IsEmpty());
    tools.SetExpandedFlag(false);
    EXPECT_FALSE(tools.IsExpanded());
}

TEST_F(NewViewFolders, TakeTheStyleWithAllBelow) {
    auto& tools = Make("tools");
    auto& saws = Make(tools, "saws");
    auto& bolts = Make("bolts");

    EXPECT_TRUE(view.SetFreeFolderStyle(&tools, true));

    EXPECT_TRUE(view.GetFreeFolderStyle(&tools));
    EXPECT_TRUE(view.GetFreeFolderStyle(&saws));
    EXPECT_FALSE(view.GetFreeFolderStyle(&bolts));
    EXPECT_FALSE(view.GetFreeFolderStyle(&Root()));
}

TEST_F(NewViewFolders, AreNotGroupedAndSayNothing) {
    auto& tools = Make("tools");
    SignalRecorder recorder(host);

    EXPECT_FALSE(view.SetFreeFolderGroupLeafs(&tools, true));

    EXPECT_FALSE(view.GetFreeFolderGroupLeafs(&tools));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(NewViewFolders, SignalTheShowingOfEmptyContainersAndStoreNothing) {
    auto& tools = Make("tools");
    SignalRecorder recorder(host);

    EXPECT_TRUE(view.SetFreeFolderShowEmptyContainers(&tools, true));

    EXPECT_FALSE(tools.GetShowEmptyContainers());
    EXPECT_THAT(recorder.take(), ElementsAre("FreeFolderStyleChanged tools true"));
}

TEST_F(NewViewFolders, HavePathsThatBeginAtTheRoot) {
    auto& saws = Make(Make("tools"), "saws");
    zbString untouched = "before";

    EXPECT_EQ(Path(&Root()), "/");
    EXPECT_EQ(Path(&saws), "/tools/saws");
    EXPECT_FALSE(view.GetFreeFolderAbsolutePathName(nullptr, untouched));
    EXPECT_STREQ(untouched.c_str(), "before");
}

TEST_F(NewViewFolders, HavePathsThatEndAlsoWhenParentsWereWrittenInACircle) {
    auto& tools = Make("tools");
    auto& saws = Make(tools, "saws");

    tools.SetParentFolder(&saws);

    EXPECT_EQ(Path(&saws), "/tools/saws");
}

TEST_F(NewViewFolders, PassOnWhetherTheyAreShownWhenEmptyOnceAndSignalFromBelow) {
    auto& tools = Make("tools");
    tools.SetShowWhenEmpty(false, false);
    auto& saws = Make(tools, "saws");
    EXPECT_FALSE(saws.GetShowWhenEmpty());

    tools.SetShowWhenEmpty(true, false);
    EXPECT_FALSE(saws.GetShowWhenEmpty());
    auto& bits = Make(tools, "bits");
    Make(saws, "blades");
    SignalRecorder recorder(host);
    tools.SetShowWhenEmpty(false, true);

    EXPECT_FALSE(bits.GetShowWhenEmpty());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged blades", "ViewItemChanged saws",
                                             "ViewItemChanged bits", "ViewItemChanged tools"));
}

TEST_F(NewViewFolders, SignalNewMarksOfIconAndCaption) {
    auto& tools = Make("tools");
    SignalRecorder recorder(host);

    tools.SetIconShowsData(true, false);
    tools.SetCaptionShowsCount(true, true);

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemChanged tools", "ViewItemChanged tools"));
}

TEST_F(NewViewFolders, IgnoreBoldItalicAndAttachedObjects) {
    auto& tools = Make("tools");
    SignalRecorder recorder(host);

    tools.SetTextBold(true);
    tools.SetTextItalic(true);
    tools.SetAttachedObject(&host);

    EXPECT_FALSE(tools.GetTextBold());
    EXPECT_FALSE(tools.GetTextItalic());
    EXPECT_EQ(tools.GetAttachedObject(), nullptr);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(NewViewFolders, AreGatheredFromItemsUntilAForeignOne) {
    auto& tools = Make("tools");
    auto* const elsewhere = host.NewView("other").GetRootFreeFolder();
    ItemDouble row(&view);
    std::vector<Folder*> found{nullptr};

    EXPECT_TRUE(view.GetFreeFoldersFromViewItems({&tools, &row, &Root()}, found));
    EXPECT_THAT(found, ElementsAre(&tools, &Root()));
    EXPECT_FALSE(view.GetFreeFoldersFromViewItems({&tools, elsewhere, &Root()}, found));
    EXPECT_THAT(found, ElementsAre(&tools));
}

TEST_F(NewViewFolders, MayBeNestedAsDeepAsData) {
    auto* folder = &Root();
    for (int depth = 0; depth < 100'000; ++depth)
        folder = &Make(*folder, "x");

    view.SetFreeFolderStyle(&Root(), true);

    EXPECT_TRUE(folder->GetFreeFolderStyle());
    EXPECT_TRUE(host.DeleteView(view));
}

TEST_F(NewViewFolders, OutliveSlotsThatDeleteTheView) {
    SignalRecorder recorder(host);
    auto const handle = recorder.On(&zbBrowserSignalManager::ViewItemCreated,
                                    [&](zbIBrowserViewItem*) { host.DeleteView(view); });

    EXPECT_TRUE(view.CreateFreeFolder(&Root(), "tools"));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewItemCreated tools"));
    EXPECT_EQ(host.Controller().FindView("parts"), nullptr);
}

// What only old views have is tested like any folder and then refused.
TEST_F(NewViewFolders, RefuseSettingsOfOldViewsAfterTheTestOfTheFolder) {
    auto& tools = Make("tools");
    auto* const elsewhere = host.NewView("other").GetRootFreeFolder();
    char const* const foreign =
        "string: Attempt to operate on object belonging to different manager";

    EXPECT_FALSE(view.ChildrenAdd(&tools, nullptr, nullptr, true));
    EXPECT_FALSE(view.ChildrenGroup(&tools, nullptr, nullptr, true));
    EXPECT_FALSE(view.ChildrenShowEmptyGroupingFolder(&tools, nullptr, nullptr, true));
    EXPECT_FALSE(view.ListAdd(&tools, nullptr, true));
    EXPECT_FALSE(view.ListGroup(&tools, nullptr, true));
    EXPECT_FALSE(view.ListShowEmptyGroupingFolder(&tools, nullptr, true));
    EXPECT_EQ(Thrown([&] { view.ListAdd(elsewhere, nullptr, true); }), foreign);
    EXPECT_EQ(Thrown([&] { view.ListGroup(nullptr, nullptr, true); }), "string: Null pointer hit");
    EXPECT_EQ(Thrown([&] { view.ListShowEmptyGroupingFolder(elsewhere, nullptr, true); }), foreign);
    EXPECT_EQ(Thrown([&] { view.ChildrenAdd(elsewhere, nullptr, nullptr, true); }), foreign);
    EXPECT_EQ(Thrown([&] { view.ChildrenGroup(elsewhere, nullptr, nullptr, true); }), foreign);
    EXPECT_EQ(
        Thrown([&] { view.ChildrenShowEmptyGroupingFolder(elsewhere, nullptr, nullptr, true); }),
        foreign);
}

TEST_F(NewViewFolders, AnswerFalseWithoutATestToWhatThereIsNot) {
    zbString caption = "before";

    EXPECT_FALSE(view.DeleteTreeParentChild(nullptr, nullptr, nullptr, nullptr));
    EXPECT_FALSE(view.DeleteTreeTopLevel(nullptr, nullptr));
    EXPECT_FALSE(view.GetCaption(nullptr, caption));
    EXPECT_STREQ(caption.c_str(), "before");
}

TEST_F(NewViewFolders, HaveOneRootAtATime) {
    EXPECT_EQ(Thrown([&] { view.CreateVirtualRoot(); }),
              "string: Initialized memory where null is expected, possible memory leak");

    view.DeleteVirtualRoot();
    view.DeleteVirtualRoot();
    EXPECT_EQ(view.GetRootFreeFolder(), nullptr);
    EXPECT_EQ(view.GetVirtualRoot(), nullptr);
    view.CreateVirtualRoot();

    EXPECT_NE(view.GetRootFreeFolder(), nullptr);
}

TEST_F(NewViewFolders, AreFoundAmongManyRegardlessOfCase) {
    for (int i = 0; i < 2'000; ++i)
        view.CreateFreeFolder(&Root(), ("Tools" + std::to_string(i)).c_str());

    EXPECT_STREQ(Root().FindChildFreeFolder("TOOLS1999")->GetName(), "Tools1999");
    EXPECT_EQ(Root().FindChildFreeFolder("tools2000"), nullptr);
}

TEST_F(NewViewFolders, AnnounceAFilterThatTheyDoNotHave) {
    SignalRecorder recorder(host);

    EXPECT_TRUE(view.ApplyCurrentFilter());

    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged parts", "ViewChanged parts"));
}

} // namespace
} // namespace zbtest
