// SPDX-License-Identifier: MIT
//! \file
//! The style that a column has for an item.
#include "ColumnsTest.h"

#include <stdexcept>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class ItemStyleTest : public ColumnsTest<Generation> {
protected:
    zbIBrowserViewColumn& column = this->Column("weight");
    zbIBrowserViewItemFreeFolder& folder = this->Folder("a");
    ItemDouble row{&this->view};

    zbIBrowserStyle& DefaultStyle() { return *this->Default().FindStyle("default_style"); }

    //! The style's name, asked of the view; the signals are forgotten.
    std::string StyleOf(zbIBrowserViewColumn& itsColumn, zbIBrowserViewItem& item) {
        auto const* const style = this->view.GetViewItemStyle(&itsColumn, &item);
        this->signals.Discard();
        return style == nullptr ? "none" : style->GetName();
    }
};
TYPED_TEST_SUITE(ItemStyleTest, Generations, GenerationName);

TYPED_TEST(ItemStyleTest, TheDefaultColumnHasTheDefaultStyleForEverything) {
    DependentFolderDouble group(&this->view);
    GroupingFolderDouble grouping(&this->view, {});

    EXPECT_EQ(this->StyleOf(this->Default(), this->row), "default_style");
    EXPECT_EQ(this->StyleOf(this->Default(), this->folder), "default_style");
    EXPECT_EQ(this->StyleOf(this->Default(), *this->view.GetRootFreeFolder()), "default_style");
    EXPECT_EQ(this->StyleOf(this->Default(), group), "default_style");
    EXPECT_EQ(this->StyleOf(this->Default(), grouping), "default_style");
}

TYPED_TEST(ItemStyleTest, TheDefaultColumnKeepsTheDefaultStyleWhateverIsCurrent) {
    MakeStyle(this->Default(), "fancy");

    EXPECT_EQ(this->StyleOf(this->Default(), this->row), "default_style");
    EXPECT_EQ(this->StyleOf(this->Default(), this->folder), "default_style");
}

TYPED_TEST(ItemStyleTest, AScriptedColumnWithoutAStyleShowsNothing) {
    this->view.SetFreeFolderStyle(&this->folder, true);

    EXPECT_EQ(this->StyleOf(this->column, this->row), "none");
    EXPECT_EQ(this->StyleOf(this->column, this->folder), "none");
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ItemStyleTest, AScriptedColumnHasItsCurrentStyleForRows) {
    MakeStyle(this->column, "plain");
    MakeStyle(this->column, "fancy");

    EXPECT_EQ(this->StyleOf(this->column, this->row), "fancy");
}

TYPED_TEST(ItemStyleTest, AScriptedColumnHasAStyleForAFolderOnlyIfTheFolderWantsOne) {
    MakeStyle(this->column, "plain");
    EXPECT_EQ(this->StyleOf(this->column, this->folder), "none");

    this->view.SetFreeFolderStyle(&this->folder, true);

    EXPECT_EQ(this->StyleOf(this->column, this->folder), "plain");
}

TYPED_TEST(ItemStyleTest, AScriptedColumnHasNoStyleForGroups) {
    MakeStyle(this->column, "plain");
    DependentFolderDouble group(&this->view);
    GroupingFolderDouble grouping(&this->view, {});

    EXPECT_EQ(this->StyleOf(this->column, group), "none");
    EXPECT_EQ(this->StyleOf(this->column, grouping), "none");
}

TYPED_TEST(ItemStyleTest, APendingStyleIsAnnouncedEachTime) {
    MakeStyle(this->column, "plain");

    this->view.GetViewItemStyle(&this->column, &this->row);
    this->view.GetViewItemStyle(&this->column, &this->row);

    EXPECT_THAT(this->signals.take(), ElementsAre("StyleCreated plain", "StyleCreated plain"));
}

TYPED_TEST(ItemStyleTest, AStyleThatTheHostHasIsNotAnnounced) {
    MakeKnownStyle(this->column, "plain");

    EXPECT_NE(this->view.GetViewItemStyle(&this->column, &this->row), nullptr);

    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ItemStyleTest, AChangedStyleComesBackWithTheNextRead) {
    auto& style = MakeKnownStyle(this->column, "plain");

    style.CreateElement("a", "A");
    this->view.GetViewItemStyle(&this->column, &this->row);

    EXPECT_THAT(this->signals.take(), ElementsAre("StyleDeleted plain", "StyleCreated plain"));
}

TYPED_TEST(ItemStyleTest, TheStyleStaysPendingUntilTheHostClearsThat) {
    auto& style = MakeStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleCreated,
                       [](auto* created) { created->SetPending(false); });

    this->view.GetViewItemStyle(&this->column, &this->row);
    this->view.GetViewItemStyle(&this->column, &this->row);

    EXPECT_FALSE(style.IsPending());
    EXPECT_THAT(this->signals.take(), ElementsAre("StyleCreated plain"));
}

TYPED_TEST(ItemStyleTest, NullAndForeignColumnsAndNoItemHaveNoStyle) {
    auto& gone = this->Column("gone");
    this->view.DeleteScriptedColumn(&gone);
    this->signals.Discard();
    auto& foreign = *this->OtherView().GetDefaultColumn();

    EXPECT_EQ(this->view.GetViewItemStyle(nullptr, &this->row), nullptr);
    EXPECT_EQ(this->view.GetViewItemStyle(&foreign, &this->row), nullptr);
    EXPECT_EQ(this->view.GetViewItemStyle(&gone, &this->row), nullptr);
    EXPECT_EQ(this->view.GetViewItemStyle(&this->Default(), nullptr), nullptr);
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ItemStyleTest, AStyleThatASlotDeletesIsStillAnsweredAndValid) {
    auto& style = MakeStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleCreated,
                       [&](auto* created) { this->column.DeleteStyle(created); });

    EXPECT_EQ(this->view.GetViewItemStyle(&this->column, &this->row), &style);

    EXPECT_THAT(StyleNames(this->column), IsEmpty());
    EXPECT_STREQ(style.GetName(), "plain");
    this->signals.Discard();
}

TYPED_TEST(ItemStyleTest, AStyleThatASlotFreesIsNotAnswered) {
    MakeStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleCreated,
                       [](auto* created) { delete created; });

    EXPECT_EQ(this->view.GetViewItemStyle(&this->column, &this->row), nullptr);
    this->signals.Discard();
}

TYPED_TEST(ItemStyleTest, ASlotMayDeleteTheColumn) {
    auto& style = MakeStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleCreated,
                       [&](auto*) { this->view.DeleteScriptedColumn(&this->column); });

    EXPECT_EQ(this->view.GetViewItemStyle(&this->column, &this->row), &style);

    EXPECT_EQ(style.GetColumn(), nullptr);
    this->signals.Discard();
}

TYPED_TEST(ItemStyleTest, ASlotMayDeleteTheView) {
    MakeStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleCreated,
                       [&](auto*) { this->host.DeleteView(this->view); });

    EXPECT_EQ(this->view.GetViewItemStyle(&this->column, &this->row), nullptr);

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    this->signals.Discard();
}

TYPED_TEST(ItemStyleTest, WhatASlotThrowsArrives) {
    MakeStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleCreated,
                       [](auto*) { throw std::runtime_error("no"); });

    EXPECT_THROW(this->view.GetViewItemStyle(&this->column, &this->row), std::runtime_error);
    this->signals.Discard();
}

class NewItemStyleTest : public ItemStyleTest<NewGeneration> {};

TEST_F(NewItemStyleTest, AViewWithoutADefaultColumnHasNoStyleForIt) {
    auto* const gone = &Default();
    view.DeleteDefaultColumn();

    EXPECT_EQ(view.GetViewItemStyle(gone, &row), nullptr);
    EXPECT_FALSE(view.SetViewItemStyle(&folder));
    EXPECT_FALSE(view.RemoveViewItemStyle(&folder));
}

} // namespace
} // namespace zbtest
