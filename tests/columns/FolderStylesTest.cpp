// SPDX-License-Identifier: MIT
//! \file
//! Styles that folders have of their own in the default column.
#include "ColumnsTest.h"
#include "presentation/columns/ViewColumn.h"
#include "presentation/columns/zbBrowserViewColumn.h"

namespace zbtest {
namespace {

using testing::IsEmpty;

template <class Generation>
class FolderStylesTest : public ColumnsTest<Generation> {
protected:
    zbIBrowserViewItemFreeFolder& folder = this->Folder("a");

    //! What RemoveFolderStyles answers: whether there was something to remove.
    bool Remove(zbIBrowserViewItem* item) {
        return this->view.GetDefaultColumnPtr()->RemoveFolderStyles(item);
    }
};
TYPED_TEST_SUITE(FolderStylesTest, Generations, GenerationName);

TYPED_TEST(FolderStylesTest, AFolderIsGivenTheCurrentStyle) {
    MakeStyle(this->Default(), "fancy");

    EXPECT_TRUE(this->view.SetViewItemStyle(&this->folder));

    EXPECT_TRUE(this->Remove(&this->folder));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(FolderStylesTest, AFolderIsGivenAStyleThroughTheColumn) {
    MakeStyle(this->Default(), "fancy");

    EXPECT_TRUE(this->Default().AddFolderStyle(&this->folder));
    EXPECT_TRUE(this->Default().AddFolderStyle(&this->folder)) << "also when it has it";

    EXPECT_TRUE(this->Remove(&this->folder));
    EXPECT_FALSE(this->Remove(&this->folder));
}

TYPED_TEST(FolderStylesTest, TheStylesOfAFolderAreTakenAway) {
    MakeStyle(this->Default(), "fancy");
    this->view.SetViewItemStyle(&this->folder);

    EXPECT_TRUE(this->view.RemoveViewItemStyle(&this->folder));

    EXPECT_FALSE(this->Remove(&this->folder));
    EXPECT_TRUE(this->view.RemoveViewItemStyle(&this->folder)) << "also when it had none";
}

TYPED_TEST(FolderStylesTest, TheDefaultStyleIsGivenToNoFolder) {
    EXPECT_FALSE(this->Default().AddFolderStyle(&this->folder));
    EXPECT_TRUE(this->view.SetViewItemStyle(&this->folder)) << "the answer does not tell";

    EXPECT_FALSE(this->Remove(&this->folder));
}

TYPED_TEST(FolderStylesTest, OnlyTheDefaultColumnHasStylesOfFolders) {
    auto& column = this->Column("weight");
    MakeStyle(column, "plain");

    EXPECT_FALSE(column.AddFolderStyle(&this->folder));
}

TYPED_TEST(FolderStylesTest, OnlyFoldersOfTheViewHaveStyles) {
    MakeStyle(this->Default(), "fancy");
    ItemDouble row(&this->view);
    auto& foreign = this->Folder(this->OtherView(), "a");

    EXPECT_FALSE(this->Default().AddFolderStyle(nullptr));
    EXPECT_FALSE(this->Default().AddFolderStyle(&row));
    EXPECT_FALSE(this->Default().AddFolderStyle(&foreign));
}

TYPED_TEST(FolderStylesTest, TheViewRefusesNullAndItemsOfAnotherView) {
    MakeStyle(this->Default(), "fancy");
    auto& foreign = this->Folder(this->OtherView(), "a");

    EXPECT_FALSE(this->view.SetViewItemStyle(nullptr));
    EXPECT_FALSE(this->view.SetViewItemStyle(&foreign));
    EXPECT_FALSE(this->view.RemoveViewItemStyle(nullptr));
    EXPECT_FALSE(this->view.RemoveViewItemStyle(&foreign));
}

TYPED_TEST(FolderStylesTest, ADeletedStyleLeavesTheFolderWithAnEmptyEntry) {
    auto& style = MakeStyle(this->Default(), "fancy");
    this->view.SetViewItemStyle(&this->folder);

    this->Default().DeleteStyle(&style);

    EXPECT_TRUE(this->Remove(&this->folder));
}

} // namespace
} // namespace zbtest
