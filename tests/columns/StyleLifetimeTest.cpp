// SPDX-License-Identifier: MIT
//! \file
//! How long styles and elements live, and hosts that free them.
#include "ColumnsTest.h"

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class StyleLifetimeTest : public ColumnsTest<Generation> {
protected:
    zbIBrowserViewColumn& column = this->Column("weight");
    zbIBrowserStyle& style = MakeStyle(column, "plain");
};
TYPED_TEST_SUITE(StyleLifetimeTest, Generations, GenerationName);

TYPED_TEST(StyleLifetimeTest, ADeletedStyleLivesOnAndKnowsItsColumn) {
    this->style.CreateElement("a", "A");

    this->column.DeleteStyle(&this->style);

    EXPECT_EQ(this->style.GetColumn(), &this->column);
    EXPECT_THAT(ElementNames(this->style), ElementsAre("a"));
}

TYPED_TEST(StyleLifetimeTest, ADeletedElementLivesOnAndKnowsItsStyle) {
    auto* const element = this->style.CreateElement("a", "A");

    this->style.DeleteElement(element);

    EXPECT_EQ(element->GetStyle(), &this->style);
    EXPECT_STREQ(element->GetTitle(), "A");
}

TYPED_TEST(StyleLifetimeTest, TheStylesOfADeletedColumnLiveOnWithoutAColumn) {
    auto& deleted = MakeStyle(this->column, "deleted");
    this->column.DeleteStyle(&deleted);
    this->style.CreateElement("a", "A");

    this->view.DeleteScriptedColumn(&this->column);

    EXPECT_EQ(this->style.GetColumn(), nullptr);
    EXPECT_EQ(deleted.GetColumn(), nullptr);
    EXPECT_THAT(ElementNames(this->style), ElementsAre("a"));
    this->signals.Discard();
}

TYPED_TEST(StyleLifetimeTest, AStyleWithoutAColumnCanStillBeChanged) {
    this->view.DeleteScriptedColumn(&this->column);
    this->style.SetPending(false);
    this->signals.Discard();

    this->style.CreateElement("a", "A");

    EXPECT_THAT(ElementNames(this->style), ElementsAre("a"));
    EXPECT_THAT(this->signals.take(), ElementsAre("StyleDeleted plain"));
}

TYPED_TEST(StyleLifetimeTest, AStyleThatTheHostFreesIsForgottenSilently) {
    MakeStyle(this->column, "fancy");
    this->style.SetPending(false);

    delete &this->style;

    EXPECT_THAT(StyleNames(this->column), ElementsAre("fancy"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(StyleLifetimeTest, WithTheCurrentStyleThatTheHostFreesThereIsNone) {
    ItemDouble row(&this->view);

    delete &this->style;

    EXPECT_EQ(this->column.GetViewItemStyle(&row), nullptr);
}

TYPED_TEST(StyleLifetimeTest, ADefaultStyleThatTheHostFreesIsForgotten) {
    ItemDouble row(&this->view);

    delete this->Default().FindStyle("default_style");

    EXPECT_EQ(this->Default().GetViewItemStyle(&row), nullptr);
    EXPECT_THAT(StyleNames(this->Default()), IsEmpty());
}

TYPED_TEST(StyleLifetimeTest, ADeletedStyleMayBeFreedByTheHost) {
    this->column.DeleteStyle(&this->style);

    delete &this->style;

    EXPECT_THAT(StyleNames(this->column), IsEmpty());
    this->view.DeleteScriptedColumn(&this->column);
    this->signals.Discard();
}

TYPED_TEST(StyleLifetimeTest, AStyleTakesItsElementsAlongWhenTheHostFreesIt) {
    auto* const inside = this->style.CreateElement("a", "A");
    auto* const outside = this->style.CreateElement("b", "B");
    this->style.DeleteElement(outside);

    delete &this->style;

    EXPECT_EQ(outside->GetStyle(), nullptr);
    EXPECT_FALSE(this->view.DeleteStyleElement(inside)) << "it has gone";
    EXPECT_FALSE(this->view.DeleteStyleElement(outside)) << "it has no style";
}

TYPED_TEST(StyleLifetimeTest, AnElementThatTheHostFreesIsForgottenSilently) {
    auto* const element = this->style.CreateElement("a", "A");
    this->style.CreateElement("b", "B");
    this->style.SetPending(false);

    delete element;

    EXPECT_THAT(ElementNames(this->style), ElementsAre("b"));
    EXPECT_FALSE(this->style.IsPending());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(StyleLifetimeTest, ADeletedElementMayBeFreedByTheHost) {
    auto* const element = this->style.CreateElement("a", "A");
    this->style.DeleteElement(element);

    delete element;
    delete &this->style;

    EXPECT_THAT(StyleNames(this->column), IsEmpty());
}

TYPED_TEST(StyleLifetimeTest, AHostMayFreeStylesAndElementsFromTheSlotOfTheirColumn) {
    auto* const element = this->style.CreateElement("a", "A");
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted, [&](auto*) {
        delete element;
        delete &this->style;
    });

    EXPECT_TRUE(this->view.DeleteScriptedColumn(&this->column));

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
    this->signals.Discard();
}

} // namespace
} // namespace zbtest
