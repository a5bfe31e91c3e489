// SPDX-License-Identifier: MIT
//! \file
//! How the view of the new generation tests the folders and items that it is given.
#include "NewViewTest.h"
#include "support/ItemDoubles.h"

namespace zbtest {
namespace {

using testing::IsEmpty;

char const* const nullHit = "string: Null pointer hit";
char const* const foreign = "string: Attempt to operate on object belonging to different manager";
char const* const noFolder = "text: Another type of view item where free folder is expected";

TEST_F(NewView, LetsEveryFolderBeShownWhetherEmptyOrNot) {
    FolderDouble folder(&view, "tools");
    view.ShowEmptyFolders(false);

    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(&folder));
    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(nullptr));
}

// What is tested of a folder, in this order: null, then the view, then the kind of item.
struct FolderOperation {
    char const* name;
    void (*call)(zbbrowser::View&, zbIBrowserViewItemFreeFolder*);
};

class NewViewFolderOperation : public NewView, public testing::WithParamInterface<FolderOperation> {
protected:
    std::string Given(zbIBrowserViewItemFreeFolder* folder) {
        return Thrown([&] { GetParam().call(view, folder); });
    }
};

TEST_P(NewViewFolderOperation, TestsItsFolder) {
    FolderDouble elsewhere(&host.NewView("other"), "tools");
    elsewhere.isFreeFolder = false;
    FolderDouble row(&view, "bolt");
    row.isFreeFolder = false;

    EXPECT_EQ(Given(nullptr), nullHit);
    EXPECT_EQ(Given(&elsewhere), foreign);
    EXPECT_EQ(Given(&row), noFolder);
}

INSTANTIATE_TEST_SUITE_P(
    Every, NewViewFolderOperation,
    testing::Values(
        FolderOperation{"CreateFreeFolder",
                        [](auto& v, auto* folder) { v.CreateFreeFolder(folder, "x"); }},
        FolderOperation{"DeleteFreeFolder",
                        [](auto& v, auto* folder) { v.DeleteFreeFolder(folder, true); }},
        FolderOperation{"GetFreeFolderGroupLeafs",
                        [](auto& v, auto* folder) { v.GetFreeFolderGroupLeafs(folder); }},
        FolderOperation{"SetFreeFolderGroupLeafs",
                        [](auto& v, auto* folder) { v.SetFreeFolderGroupLeafs(folder, true); }},
        FolderOperation{"GetFreeFolderStyle",
                        [](auto& v, auto* folder) { v.GetFreeFolderStyle(folder); }},
        FolderOperation{"SetFreeFolderStyle",
                        [](auto& v, auto* folder) { v.SetFreeFolderStyle(folder, true); }},
        FolderOperation{
            "SetFreeFolderShowEmptyContainers",
            [](auto& v, auto* folder) { v.SetFreeFolderShowEmptyContainers(folder, true); }},
        FolderOperation{"ExpandFreeFolder",
                        [](auto& v, auto* folder) { v.ExpandFreeFolder(folder, true); }},
        FolderOperation{"CollapseFreeFolder",
                        [](auto& v, auto* folder) { v.CollapseFreeFolder(folder, true); }}),
    [](auto const& each) { return std::string(each.param.name); });

TEST_F(NewView, DeletesNoFolder) {
    FolderDouble folder(&view, "tools");

    EXPECT_FALSE(view.DeleteFreeFolder(&folder, true));
}

TEST_F(NewView, AnswersFalseForKeepingTheChildrenOfNoFolderInOrder) {
    FolderDouble elsewhere(&host.NewView("other"), "tools");

    EXPECT_FALSE(view.SetKeepChildrenFreeFoldersInOrderAsCreated(nullptr, true));
    EXPECT_EQ(Thrown([&] { view.SetKeepChildrenFreeFoldersInOrderAsCreated(&elsewhere, true); }),
              foreign);
}

TEST_F(NewView, TestsItemsBeforeItExpandsThem) {
    ItemDouble row(&view);
    ItemDouble rowElsewhere(&view);
    FolderDouble elsewhere(&host.NewView("other"), "tools");
    rowElsewhere.parentFolder = &elsewhere;

    EXPECT_EQ(Thrown([&] { view.Expand(nullptr); }), nullHit);
    EXPECT_EQ(Thrown([&] { view.Expand(&row); }), nullHit) << "the root has no parent";
    EXPECT_EQ(Thrown([&] { view.Expand(&rowElsewhere); }), foreign);
    EXPECT_EQ(Thrown([&] { view.Collapse(nullptr); }), nullHit);
    EXPECT_EQ(Thrown([&] { view.Collapse(&row); }), nullHit);
    EXPECT_EQ(Thrown([&] { view.Collapse(&rowElsewhere); }), foreign);
}

TEST_F(NewView, RefusesToExpandWhileLockedAndCollapsesAllTheSame) {
    view.Lock(true);

    EXPECT_FALSE(view.Expand(nullptr));
    EXPECT_EQ(Thrown([&] { view.Collapse(nullptr); }), nullHit);
}

TEST_F(NewView, GathersNoFoldersFromRows) {
    ItemDouble row(&view);
    std::vector<zbIBrowserViewItemFreeFolder*> folders{nullptr};

    EXPECT_TRUE(view.GetFreeFoldersFromViewItems({&row}, folders));
    EXPECT_THAT(folders, IsEmpty());
    EXPECT_TRUE(view.GetFreeFoldersFromViewItems({}, folders));
}

TEST_F(NewView, StopsGatheringFoldersAtAnItemThatIsNotItsOwn) {
    ItemDouble elsewhere(&host.NewView("other"));
    FolderDouble unknown(&view, "tools");
    std::vector<zbIBrowserViewItemFreeFolder*> folders{nullptr};

    EXPECT_FALSE(view.GetFreeFoldersFromViewItems({&elsewhere}, folders));
    EXPECT_THAT(folders, IsEmpty());
    EXPECT_FALSE(view.GetFreeFoldersFromViewItems({nullptr}, folders));
    EXPECT_FALSE(view.GetFreeFoldersFromViewItems({&unknown}, folders));
}

} // namespace
} // namespace zbtest
