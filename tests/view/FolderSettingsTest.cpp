// SPDX-License-Identifier: MIT
//! \file
//! Free folders of the old view: settings, and what is shown of empty ones.

#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "ViewTestSupport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::ThrownText;

class FolderSettingsTest : public zbtest::ViewTest {
protected:
    //! Puts a list into a folder that has no visible row.
    zbtest::RecordingSource& ShowEmptyList(FreeFolder& folder) {
        auto& part = Connected("empty", {});
        Show(folder, part);
        return part;
    }
};

// Settings

TEST_F(FolderSettingsTest, GroupingIsStoredAndAnnounced) {
    auto& a = Folder("a");
    EXPECT_TRUE(view.SetFreeFolderGroupLeafs(&a, true));
    EXPECT_TRUE(view.GetFreeFolderGroupLeafs(&a));
    EXPECT_THAT(signals.take(), ElementsAre("FreeFolderStyleChanged a true"));
}

TEST_F(FolderSettingsTest, GroupingIsAnnouncedAlsoWithoutAChange) {
    auto& a = Folder("a");
    EXPECT_TRUE(view.SetFreeFolderGroupLeafs(&a, false));
    EXPECT_THAT(signals.take(), ElementsAre("FreeFolderStyleChanged a true"));
}

TEST_F(FolderSettingsTest, GroupingReachesTheFoldersBelowAndIsAnnouncedForTheFolderAlone) {
    auto& a = Folder("a");
    auto& c = Folder("c", &Folder("b", &a));
    EXPECT_TRUE(view.SetFreeFolderGroupLeafs(&a, true));
    EXPECT_TRUE(view.GetFreeFolderGroupLeafs(&c));
    EXPECT_FALSE(view.GetFreeFolderGroupLeafs(&Root()));
    EXPECT_THAT(signals.take(), ElementsAre("FreeFolderStyleChanged a true"));
}

TEST_F(FolderSettingsTest, GroupingMovesTheListsBelowBeforeThoseOfTheFolder) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tool = Connected("tool", {"saw_1"});
    auto& a = Folder("a");
    auto& b = Folder("b", &a);
    Show(a, part);
    Show(b, tool);

    view.SetFreeFolderGroupLeafs(&a, true);

    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsDeselected [saw_1]", "ViewItemsSelected []",
                                            "ViewItemListDeleted [saw_1]", "ViewItemChanged b",
                                            "ViewContentChanged view", "ViewContentChanged view",
                                            "ViewItemsDeselected [bolt_1]", "ViewItemsSelected []",
                                            "ViewItemListDeleted [bolt_1]", "ViewItemChanged a",
                                            "ViewContentChanged view", "ViewContentChanged view",
                                            "FreeFolderStyleChanged a true"));
    EXPECT_EQ(view.FindList(&a, &part), &part);
    EXPECT_EQ(view.FindList(&b, &tool), &tool);
}

TEST_F(FolderSettingsTest, EndingTheGroupingBringsTheRowsBackIntoTheFolder) {
    auto& part = Connected("part", {"bolt_1", "nut_2"});
    auto& a = Folder("a");
    Show(a, part);
    view.SetFreeFolderGroupLeafs(&a, true);
    EXPECT_THAT(Rows(a), IsEmpty());
    view.SetFreeFolderGroupLeafs(&a, false);
    EXPECT_EQ(Rows(a), (Names{"bolt_1", "nut_2"}));
    signals.Discard();
}

TEST_F(FolderSettingsTest, AFolderThatIsBeingGroupedRefusesToBeGroupedAgain) {
    auto& part = Connected("part", {"bolt_1"});
    auto& a = Folder("a");
    Show(a, part);
    bool nested = true;
    signals.Once(&zbBrowserSignalManager::ViewItemListDeleted,
                 [&](auto&&) { nested = view.SetFreeFolderGroupLeafs(&a, false); });

    EXPECT_TRUE(view.SetFreeFolderGroupLeafs(&a, true));

    EXPECT_FALSE(nested);
    EXPECT_FALSE(view.GetState());
    EXPECT_TRUE(view.GetFreeFolderGroupLeafs(&a));
    EXPECT_EQ(signals.Count("FreeFolderStyleChanged"), 1U);
    signals.Discard();
}

TEST_F(FolderSettingsTest, TheStyleReachesTheFoldersBelowWithoutASignal) {
    auto& a = Folder("a");
    auto& b = Folder("b", &a);
    EXPECT_TRUE(view.SetFreeFolderStyle(&a, true));
    EXPECT_TRUE(view.GetFreeFolderStyle(&a));
    EXPECT_TRUE(view.GetFreeFolderStyle(&b));
    EXPECT_FALSE(view.GetFreeFolderStyle(&Root()));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FolderSettingsTest, EmptyGroupsCannotBeShownWhileGroupingIsOff) {
    auto& a = Folder("a");
    EXPECT_FALSE(view.SetFreeFolderShowEmptyContainers(&a, true));
    EXPECT_STREQ(view.GetError(), "Cannot show empty folders when grouping is disabled");
    EXPECT_FALSE(a.GetShowEmptyContainers());
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FolderSettingsTest, EmptyGroupsCannotBeHiddenEitherWhileGroupingIsOff) {
    auto& a = Folder("a");
    view.SetFreeFolderGroupLeafs(&a, true);
    view.SetFreeFolderShowEmptyContainers(&a, true);
    view.SetFreeFolderGroupLeafs(&a, false);
    signals.Discard();
    EXPECT_FALSE(view.SetFreeFolderShowEmptyContainers(&a, false));
    EXPECT_STREQ(view.GetError(), "Cannot show empty folders when grouping is disabled");
    EXPECT_TRUE(a.GetShowEmptyContainers());
}

TEST_F(FolderSettingsTest, AfterARefusalAboutEmptyGroupsTheFolderIsNotBusy) {
    auto& a = Folder("a");
    view.SetFreeFolderShowEmptyContainers(&a, true);
    EXPECT_TRUE(view.SetFreeFolderGroupLeafs(&a, true));
    signals.Discard();
}

TEST_F(FolderSettingsTest, ShowingEmptyGroupsKeepsTheListsAndTreesAndIsAnnouncedLast) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tree = ConnectedTree("assembly");
    auto& a = Folder("a");
    view.SetFreeFolderGroupLeafs(&a, true);
    Show(a, part);
    view.CreateTree(&a, &tree);
    signals.Discard();

    EXPECT_TRUE(view.SetFreeFolderShowEmptyContainers(&a, true));

    EXPECT_TRUE(a.GetShowEmptyContainers());
    EXPECT_EQ(view.FindList(&a, &part), &part);
    EXPECT_EQ(view.FindTree(&a, &tree), &tree);
    EXPECT_THAT(signals.take(), ElementsAre("ViewContentChanged view", "ViewContentChanged view",
                                            "FreeFolderStyleChanged a true"));
}

TEST_F(FolderSettingsTest, EmptyGroupsAreAnnouncedAlsoWithoutAChangeAndNothingIsRebuilt) {
    auto& part = Connected("part", {"bolt_1"});
    auto& a = Folder("a");
    Show(a, part);
    auto* const row = Row(a, "bolt_1");
    EXPECT_TRUE(view.SetFreeFolderShowEmptyContainers(&a, false));
    EXPECT_THAT(signals.take(), ElementsAre("FreeFolderStyleChanged a true"));
    EXPECT_EQ(Row(a, "bolt_1"), row);
}

TEST_F(FolderSettingsTest, EmptyGroupsOfTheFoldersBelowAreNotTouched) {
    auto& a = Folder("a");
    auto& b = Folder("b", &a);
    view.SetFreeFolderGroupLeafs(&a, true);
    view.SetFreeFolderShowEmptyContainers(&a, true);
    EXPECT_FALSE(b.GetShowEmptyContainers());
    signals.Discard();
}

TEST_F(FolderSettingsTest, TheOrderOfChildFoldersIsStoredWithoutASignal) {
    auto& a = Folder("a");
    EXPECT_TRUE(view.SetKeepChildrenFreeFoldersInOrderAsCreated(&a, false));
    EXPECT_FALSE(a.GetKeepChildrenInOrder());
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FolderSettingsTest, NullAndForeignFoldersHaveNoSettings) {
    auto& foreign = *host.View("other").GetRootFreeFolder();
    auto& part = Connected("part", {});
    for (FreeFolder* const folder : {static_cast<FreeFolder*>(nullptr), &foreign}) {
        EXPECT_FALSE(view.SetFreeFolderGroupLeafs(folder, true));
        EXPECT_FALSE(view.SetFreeFolderStyle(folder, true));
        EXPECT_FALSE(view.SetFreeFolderShowEmptyContainers(folder, true));
        EXPECT_FALSE(view.GetFreeFolderGroupLeafs(folder));
        EXPECT_FALSE(view.GetFreeFolderStyle(folder));
        EXPECT_FALSE(view.SetKeepChildrenFreeFoldersInOrderAsCreated(folder, false));
        EXPECT_FALSE(view.SetListCaption(folder, &part, "caption"));
    }
    EXPECT_FALSE(foreign.GetGroupLeafs());
    EXPECT_FALSE(foreign.GetFreeFolderStyle());
    EXPECT_TRUE(foreign.GetKeepChildrenInOrder());
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FolderSettingsTest, ACaptionNeedsAFolderThatOnceShowedSomething) {
    auto& part = Connected("part", {});
    EXPECT_FALSE(view.SetListCaption(&Root(), &part, "Parts"));
    Show(Root(), part);
    EXPECT_TRUE(view.SetListCaption(&Root(), &part, "Parts"));
    EXPECT_TRUE(view.SetListCaption(&Root(), &host.Source("other"), nullptr));
}

TEST_F(FolderSettingsTest, ACaptionIsNeverMadeBold) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);
    EXPECT_FALSE(view.MakeCaptionBold(&Root(), &part, "bold"));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(FolderSettingsTest, ExceptionsFromSortingNeedAFolderThatOnceShowedSomething) {
    auto& part = Connected("part", {});
    auto& foreign = *host.View("other").GetRootFreeFolder();
    for (FreeFolder* const folder : {static_cast<FreeFolder*>(nullptr), &foreign, &Root()}) {
        EXPECT_EQ(ThrownText([&] { view.SetSortingException(folder, &part, 7); }),
                  "NULL pointer hit");
        EXPECT_EQ(ThrownText([&] { view.SetCreateExpandedItem(folder, &part, 7); }),
                  "NULL pointer hit");
    }
    Show(Root(), part);
    EXPECT_NO_THROW(view.SetSortingException(&Root(), &part, 7));
    EXPECT_NO_THROW(view.SetCreateExpandedItem(&Root(), &part, 7));
}

// Empty folders

TEST_F(FolderSettingsTest, ShowingEmptyFoldersIsStoredAndAnnouncedAlsoWithoutAChange) {
    EXPECT_TRUE(view.GetShowEmptyFoldersFlag());
    view.ShowEmptyFolders(false);
    EXPECT_FALSE(view.GetShowEmptyFoldersFlag());
    view.ShowEmptyFolders(false);
    view.ShowEmptyFolders(true);
    EXPECT_TRUE(view.GetShowEmptyFoldersFlag());
    EXPECT_THAT(signals.take(),
                ElementsAre("EmptyFoldersShown view false", "EmptyFoldersShown view false",
                            "EmptyFoldersShown view true"));
}

TEST_F(FolderSettingsTest, ARowCanAlwaysBeShown) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);
    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(Row(Root(), "bolt_1")));
    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(nullptr));
}

TEST_F(FolderSettingsTest, AnEmptyFolderThatWantsToBeShownCanBeShown) {
    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(&Folder("a")));
}

TEST_F(FolderSettingsTest, AnEmptyFolderThatDoesNotWantToBeShownCannotWhateverTheViewsFlag) {
    auto& a = Folder("a");
    a.SetShowWhenEmpty(false, false);
    signals.Discard();
    EXPECT_FALSE(view.IsEmptyFolderCanBeShown(&a));
    view.ShowEmptyFolders(false);
    EXPECT_FALSE(view.IsEmptyFolderCanBeShown(&a));
    signals.Discard();
}

TEST_F(FolderSettingsTest, AFolderWhoseSourceHasItemsCanBeShown) {
    auto& part = Connected("part", {});
    auto& a = Folder("a");
    Show(a, part);
    a.SetShowWhenEmpty(false, false);
    signals.Discard();
    EXPECT_FALSE(view.IsEmptyFolderCanBeShown(&a));
    EXPECT_THAT(signals.take(), ElementsAre("ViewItemsDeselected [a]"));
    part.Add("bolt_1");
    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(&a));
}

TEST_F(FolderSettingsTest, AFolderWithDataBelowItCanBeShownIfItOnceShowedSomethingItself) {
    auto& part = Connected("part", {"bolt_1"});
    auto& a = Folder("a");
    a.SetShowWhenEmpty(false, false);
    Show(Folder("b", &a), part);
    EXPECT_FALSE(view.IsEmptyFolderCanBeShown(&a));
    ShowEmptyList(a);
    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(&a));
}

} // namespace
