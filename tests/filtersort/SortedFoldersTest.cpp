// SPDX-License-Identifier: MIT
// Child folders, in both generations.
#include "filtersort/SortHandler.h"
#include "items/new/ViewItemFreeFolder.h"
#include "items/new/ViewItemVirtualRoot.h"
#include "SortTest.h"
#include "support/Generations.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;

template <class Generation>
class SortedFoldersTest : public testing::Test {
protected:
    using FreeFolder = zbIBrowserViewItemFreeFolder;

    FreeFolder& NewFolder(char const* name) {
        EXPECT_TRUE(view.CreateFreeFolder(&root, name));
        return *root.FindChildFreeFolder(name);
    }
    void LetSort() { view.SetKeepChildrenFreeFoldersInOrderAsCreated(&root, false); }
    [[nodiscard]] Names Folders(bool sorted, bool ascending) {
        std::vector<FreeFolder*> found{nullptr};
        EXPECT_TRUE(root.GetChildFreeFolders(found, sorted, ascending));
        Names names;
        names.reserve(found.size());
        for (auto const* const folder : found)
            names.emplace_back(folder->GetName());
        return names;
    }

    zbtest::RecordingHost host;
    typename Generation::View& view = Generation::Make(host, "view");
    FreeFolder& root = *view.GetRootFreeFolder();
};

TYPED_TEST_SUITE(SortedFoldersTest, zbtest::Generations, zbtest::GenerationName);

TYPED_TEST(SortedFoldersTest, NamesAreSortedByBytesWithoutRegardToCase) {
    this->LetSort();
    for (auto const* const name : {"part 2", "Part 10", "b_", "B", "a", "\xc3\xa4"})
        this->NewFolder(name);

    EXPECT_THAT(this->Folders(true, true),
                ElementsAre("a", "B", "b_", "Part 10", "part 2", "\xc3\xa4"));
}

TYPED_TEST(SortedFoldersTest, DescendingIsTheReverse) {
    this->LetSort();
    for (auto const* const name : {"b", "c", "a"})
        this->NewFolder(name);

    EXPECT_THAT(this->Folders(true, false), ElementsAre("c", "b", "a"));
}

TYPED_TEST(SortedFoldersTest, FoldersThatAreKeptInOrderAreNotSorted) {
    for (auto const* const name : {"b", "c", "a"})
        this->NewFolder(name);

    EXPECT_THAT(this->Folders(true, true), ElementsAre("b", "c", "a"));
    EXPECT_THAT(this->Folders(true, false), ElementsAre("b", "c", "a"));
}

TYPED_TEST(SortedFoldersTest, APlainReadAfterASortIsInTheOrderOfCreation) {
    this->LetSort();
    for (auto const* const name : {"b", "c", "a"})
        this->NewFolder(name);
    EXPECT_THAT(this->Folders(true, true), ElementsAre("a", "b", "c"));

    EXPECT_THAT(this->Folders(false, false), ElementsAre("b", "c", "a"));
}

TYPED_TEST(SortedFoldersTest, AFolderThatComesAfterASortIsSortedIn) {
    this->LetSort();
    this->NewFolder("b");
    EXPECT_THAT(this->Folders(true, true), ElementsAre("b"));

    this->NewFolder("a");

    EXPECT_THAT(this->Folders(true, true), ElementsAre("a", "b"));
}

TYPED_TEST(SortedFoldersTest, FoldersAreSortedByNameWhateverTheSortedColumn) {
    this->LetSort();
    for (auto const* const name : {"b", "a"})
        this->NewFolder(name);
    this->view.SetAscendingOrder(&zbtest::ColumnOf(this->view, "weight"), false);

    EXPECT_THAT(this->Folders(true, true), ElementsAre("a", "b"));
}

class OldSortedFoldersTest : public SortedFoldersTest<zbtest::OldGeneration> {};

TEST_F(OldSortedFoldersTest, FoldersOfOneNameKeepTheirOrderAndTurnRoundDescending) {
    LetSort();
    for (auto const* const name : {"b", "B", "a"})
        view.CreateFreeFolder(&root, name);

    EXPECT_THAT(Folders(true, true), ElementsAre("a", "b", "B"));
    EXPECT_THAT(Folders(true, false), ElementsAre("B", "b", "a"));
}

//! What the handler lists of the root of a new view.
class NewSortedFoldersTest : public SortedFoldersTest<zbtest::NewGeneration> {
protected:
    NewSortedFoldersTest() {
        LetSort();
        for (auto const* const name : {"b", "c", "a"})
            NewFolder(name);
    }
    [[nodiscard]] Names Children() {
        std::vector<zbIBrowserViewItem*> found{nullptr};
        EXPECT_TRUE(handler.GetChildren(*view.GetVirtualRoot(), found));
        Names names;
        names.reserve(found.size());
        for (auto const* const item : found)
            names.emplace_back(static_cast<FreeFolder const*>(item)->GetName());
        return names;
    }

    zbbrowser::SortHandler& handler = *view.GetSortHandler();
};

TEST_F(NewSortedFoldersTest, FoldersComeInTheOrderOfCreationWhileTheViewIsNotSorted) {
    EXPECT_THAT(Children(), ElementsAre("b", "c", "a"));
}

TEST_F(NewSortedFoldersTest, FoldersFollowTheDirectionUnderAnyColumn) {
    auto& weight = zbtest::ColumnOf(view, "weight");

    view.SetAscendingOrder(&weight, true);
    EXPECT_THAT(Children(), ElementsAre("a", "b", "c"));
    view.SetAscendingOrder(&weight, false);
    EXPECT_THAT(Children(), ElementsAre("c", "b", "a"));
    view.SetAscendingOrder(view.GetDefaultColumn(), false);
    EXPECT_THAT(Children(), ElementsAre("c", "b", "a"));
}

TEST_F(NewSortedFoldersTest, FoldersAreSortedWithoutAHandlerToo) {
    view.DeleteSortHandler();

    EXPECT_THAT(Folders(true, true), ElementsAre("a", "b", "c"));
}

TEST_F(NewSortedFoldersTest, AFolderOfAnotherViewIsRefused) {
    auto& other = host.NewView("other");
    std::vector<zbIBrowserViewItem*> out{&root};
    zbString thrown;

    try {
        handler.GetChildren(*other.GetVirtualRoot(), out);
    } catch (zbString const& text) {
        thrown = text;
    }

    EXPECT_EQ(thrown, "Attempt to operate on object belonging to different manager");
    EXPECT_THAT(out, IsEmpty()) << "it is cleared before the view is looked at";
}

//! A folder that is hidden and lists itself.
class HiddenFolder final : public zbbrowser::ViewItemFreeFolder {
public:
    using ViewItemFreeFolder::ViewItemFreeFolder;
    bool IsHidden() const override { return true; }
    bool GetChildFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out, bool, bool) override {
        out = {this};
        return true;
    }
};

TEST_F(NewSortedFoldersTest, HiddenFoldersAreLeftOut) {
    zbbrowser::detail::NewViewContext context(view, nullptr);
    HiddenFolder folder(context, nullptr, "hidden");
    std::vector<zbIBrowserViewItem*> out;

    EXPECT_TRUE(handler.GetChildren(folder, out));

    EXPECT_THAT(out, IsEmpty());
}

//! A folder that cannot list its child folders.
class SilentFolder final : public zbbrowser::ViewItemFreeFolder {
public:
    using ViewItemFreeFolder::ViewItemFreeFolder;
    bool GetChildFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>&, bool, bool) override {
        return false;
    }
};

TEST_F(NewSortedFoldersTest, AFolderThatListsNothingIsAFailure) {
    zbbrowser::detail::NewViewContext context(view, nullptr);
    SilentFolder folder(context, nullptr, "silent");
    std::vector<zbIBrowserViewItem*> out;
    std::string thrown;

    try {
        handler.GetChildren(folder, out);
    } catch (char const* text) {
        thrown = text;
    }

    EXPECT_EQ(thrown, "Could not get sorted children of parent item");
}

} // namespace
