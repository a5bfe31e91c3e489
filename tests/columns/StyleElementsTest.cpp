// SPDX-License-Identifier: MIT
//! \file
//! The elements of a style.
#include "ColumnsTest.h"

#include <stdexcept>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class StyleElementsTest : public ColumnsTest<Generation> {
protected:
    zbIBrowserViewColumn& column = this->Column("weight");
    zbIBrowserStyle& style = MakeStyle(column, "plain");

    zbIBrowserStyle& DefaultStyle() { return *this->Default().FindStyle("default_style"); }
};
TYPED_TEST_SUITE(StyleElementsTest, Generations, GenerationName);

TYPED_TEST(StyleElementsTest, ElementsStandInOrderOfCreation) {
    this->style.CreateElement("b", "B");
    this->style.CreateElement("a", "A");

    EXPECT_THAT(ElementNames(this->style), ElementsAre("b", "a"));
}

TYPED_TEST(StyleElementsTest, AnElementStartsWithItsTextsAndNothingElse) {
    auto const* const element = this->style.CreateElement("a", "A");

    EXPECT_STREQ(element->GetName(), "a");
    EXPECT_STREQ(element->GetTitle(), "A");
    EXPECT_STREQ(element->GetGuiMapName(), "");
    EXPECT_EQ(element->GetStyle(), &this->style);
    EXPECT_EQ(element->GetViewProperty(), nullptr);
}

TYPED_TEST(StyleElementsTest, TextsMayBeNullTakenLongAndNotUtf8) {
    std::string const longName(100'000, 'x');

    EXPECT_STREQ(this->style.CreateElement(nullptr, nullptr)->GetName(), "");
    EXPECT_STREQ(this->style.CreateElement("", "")->GetTitle(), "");
    EXPECT_STREQ(this->style.CreateElement("\xff\xc0", "\xff")->GetName(), "\xff\xc0");
    EXPECT_EQ(this->style.CreateElement(longName.c_str(), "")->GetName(), longName);
}

TYPED_TEST(StyleElementsTest, TheListReplacesWhatWasInTheVector) {
    auto* const element = this->style.CreateElement("a", "A");
    std::vector<zbIBrowserStyleElement*> elements(5, nullptr);

    EXPECT_TRUE(this->style.GetElements(elements));

    EXPECT_THAT(elements, ElementsAre(element));
}

TYPED_TEST(StyleElementsTest, TheFirstElementOfANameIsFoundRegardlessOfCase) {
    auto* const first = this->style.CreateElement("a", "1");
    this->style.CreateElement("A", "2");

    EXPECT_EQ(this->style.FindElement("A"), first);
    EXPECT_EQ(this->style.FindElement("b"), nullptr);
}

TYPED_TEST(StyleElementsTest, NoElementHasANullName) {
    this->style.CreateElement("", "");

    EXPECT_EQ(this->style.FindElement(nullptr), nullptr);
    EXPECT_NE(this->style.FindElement(""), nullptr);
}

// Making

TYPED_TEST(StyleElementsTest, AddingToAPendingStyleIsSilent) {
    this->style.CreateElement("a", "A");

    EXPECT_TRUE(this->style.IsPending());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(StyleElementsTest, AddingTakesAStyleFromTheHostBeforeTheListChanges) {
    this->style.SetPending(false);
    Names listed{"not asked"};
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto* deleted) { listed = ElementNames(*deleted); });

    this->style.CreateElement("a", "A");

    EXPECT_THAT(listed, IsEmpty());
    EXPECT_TRUE(this->style.IsPending());
    EXPECT_THAT(this->signals.take(), ElementsAre("StyleDeleted plain"));
}

TYPED_TEST(StyleElementsTest, ASlotCannotKeepAChangedStyleFromBeingPending) {
    this->style.SetPending(false);
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [](auto* deleted) { deleted->SetPending(false); });

    this->style.CreateElement("a", "A");

    EXPECT_TRUE(this->style.IsPending());
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, NothingIsAddedToAStyleThatASlotFrees) {
    auto* const freed = &MakeKnownStyle(this->column, "freed");
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [](auto* deleted) { delete deleted; });

    EXPECT_EQ(freed->CreateElement("a", "A"), nullptr);

    EXPECT_THAT(StyleNames(this->column), ElementsAre("plain"));
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, ASlotMayDeleteTheColumnThatAnElementIsAddedTo) {
    this->style.SetPending(false);
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto*) { this->view.DeleteScriptedColumn(&this->column); });

    auto* const element = this->style.CreateElement("a", "A");

    EXPECT_EQ(element->GetStyle(), &this->style);
    EXPECT_EQ(this->style.GetColumn(), nullptr);
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, NothingIsAddedToAStyleOfAViewThatASlotDeletes) {
    this->style.SetPending(false);
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto*) { this->host.DeleteView(this->view); });

    EXPECT_EQ(this->style.CreateElement("a", "A"), nullptr);

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, AStyleWhoseSlotThrowsIsLeftAsItWas) {
    this->style.SetPending(false);
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [](auto*) { throw std::runtime_error("no"); });

    EXPECT_THROW(this->style.CreateElement("a", "A"), std::runtime_error);

    EXPECT_THAT(ElementNames(this->style), IsEmpty());
    EXPECT_FALSE(this->style.IsPending());
    this->signals.Discard();
}

// Deleting

TYPED_TEST(StyleElementsTest, ADeletedElementLeavesTheStyleBeforeThatIsAnnounced) {
    auto* const element = this->style.CreateElement("a", "A");
    this->style.CreateElement("b", "B");
    this->style.SetPending(false);
    Names listed;
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto* deleted) { listed = ElementNames(*deleted); });

    EXPECT_TRUE(this->style.DeleteElement(element));

    EXPECT_THAT(listed, ElementsAre("b"));
    EXPECT_TRUE(this->style.IsPending());
    EXPECT_THAT(this->signals.take(), ElementsAre("StyleDeleted plain"));
}

TYPED_TEST(StyleElementsTest, DeletingFromAPendingStyleIsSilent) {
    auto* const element = this->style.CreateElement("a", "A");

    EXPECT_TRUE(this->style.DeleteElement(element));

    EXPECT_THAT(ElementNames(this->style), IsEmpty());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(StyleElementsTest, TheElementsOfTheDefaultStyleAreNotDeleted) {
    for (auto const* const name : {"default_style_elem_icon", "default_style_elem_name"}) {
        auto& guarded = this->DefaultStyle();
        EXPECT_FALSE(guarded.DeleteElement(guarded.FindElement(name)));
        EXPECT_STREQ(guarded.GetError(), "default column style element cann't be deleted.");
        EXPECT_FALSE(guarded.GetState());
    }

    EXPECT_THAT(ElementNames(this->DefaultStyle()),
                ElementsAre("default_style_elem_icon", "default_style_elem_name"));
}

TYPED_TEST(StyleElementsTest, ElementsOfTheseNamesAreNotDeletedFromAnyStyle) {
    auto* const element = this->style.CreateElement("default_style_elem_name", "");

    EXPECT_FALSE(this->style.DeleteElement(element));

    EXPECT_STREQ(this->style.GetError(), "default column style element cann't be deleted.");
    EXPECT_THAT(ElementNames(this->style), ElementsAre("default_style_elem_name"));
}

TYPED_TEST(StyleElementsTest, AStyleRefusesElementsOfTheseNamesAlsoWhenTheyAreNotInIt) {
    EXPECT_FALSE(
        this->style.DeleteElement(this->DefaultStyle().FindElement("default_style_elem_icon")));

    EXPECT_STREQ(this->style.GetError(), "default column style element cann't be deleted.");
}

TYPED_TEST(StyleElementsTest, TheseNamesInAnotherCaseAreLikeAnyOther) {
    auto* const element = this->style.CreateElement("Default_style_elem_name", "");

    EXPECT_TRUE(this->style.DeleteElement(element));
}

TYPED_TEST(StyleElementsTest, AnElementThatIsNotInTheStyleIsNotDeleted) {
    auto* const deleted = this->style.CreateElement("a", "A");
    this->style.DeleteElement(deleted);
    auto* const freed = this->style.CreateElement("b", "B");
    delete freed;
    auto* const other = MakeStyle(this->column, "fancy").CreateElement("c", "C");
    auto* const foreign =
        MakeStyle(this->Column(this->OtherView(), "weight"), "plain").CreateElement("d", "D");

    for (auto* const element :
         {static_cast<zbIBrowserStyleElement*>(nullptr), deleted, freed, other, foreign}) {
        EXPECT_FALSE(this->style.DeleteElement(element));
    }
    EXPECT_TRUE(this->style.GetState());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(StyleElementsTest, AStyleWithoutAColumnKeepsItsElements) {
    auto* const element = this->style.CreateElement("a", "A");
    this->view.DeleteScriptedColumn(&this->column);

    EXPECT_FALSE(this->style.DeleteElement(element));

    EXPECT_THAT(ElementNames(this->style), ElementsAre("a"));
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, ASlotMayFreeTheStyleWhoseElementIsDeleted) {
    auto* const freed = &MakeStyle(this->column, "freed");
    auto* const element = freed->CreateElement("a", "A");
    freed->SetPending(false);
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [](auto* deleted) { delete deleted; });

    EXPECT_TRUE(freed->DeleteElement(element));

    EXPECT_EQ(element->GetStyle(), nullptr);
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, ASlotMayDeleteTheViewWhoseElementIsDeleted) {
    auto* const element = this->style.CreateElement("a", "A");
    this->style.SetPending(false);
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto*) { this->host.DeleteView(this->view); });

    EXPECT_TRUE(this->style.DeleteElement(element));

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, AColumnDeletesAnElementFromTheStyleThatHasIt) {
    auto* const element = this->style.CreateElement("a", "A");
    MakeStyle(this->column, "fancy").CreateElement("a", "A");

    EXPECT_TRUE(this->column.DeleteStyleElement(element));

    EXPECT_THAT(ElementNames(this->style), IsEmpty());
    EXPECT_THAT(ElementNames(*this->column.FindStyle("fancy")), ElementsAre("a"));
}

TYPED_TEST(StyleElementsTest, AColumnAnswersTrueForAnyElement) {
    auto* const freed = this->style.CreateElement("a", "A");
    delete freed;

    EXPECT_TRUE(this->column.DeleteStyleElement(nullptr));
    EXPECT_TRUE(this->column.DeleteStyleElement(freed));
    EXPECT_TRUE(this->column.DeleteStyleElement(
        this->DefaultStyle().FindElement("default_style_elem_icon")));
}

TYPED_TEST(StyleElementsTest, ASlotMayDeleteStylesWhileAColumnDeletesAnElement) {
    auto* const element = this->style.CreateElement("a", "A");
    this->style.SetPending(false);
    auto& second = MakeStyle(this->column, "second");
    MakeStyle(this->column, "third");
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted, [&](auto* deleted) {
        this->column.DeleteStyle(deleted);
        this->column.DeleteStyle(this->column.FindStyle("third"));
        delete &second;
    });

    EXPECT_TRUE(this->column.DeleteStyleElement(element));

    EXPECT_THAT(StyleNames(this->column), IsEmpty());
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, TheViewRefusesElementsThatAreNotItsOwn) {
    auto* const freed = this->style.CreateElement("a", "A");
    delete freed;
    auto* const foreign =
        MakeStyle(this->Column(this->OtherView(), "weight"), "plain").CreateElement("a", "A");

    EXPECT_FALSE(this->view.DeleteStyleElement(nullptr));
    EXPECT_FALSE(this->view.DeleteStyleElement(freed));
    EXPECT_FALSE(this->view.DeleteStyleElement(foreign));
}

TYPED_TEST(StyleElementsTest, TheViewRefusesElementsOfAColumnThatHasGone) {
    auto* const element = this->style.CreateElement("a", "A");
    this->view.DeleteScriptedColumn(&this->column);

    EXPECT_FALSE(this->view.DeleteStyleElement(element));
    this->signals.Discard();
}

TYPED_TEST(StyleElementsTest, AColumnThatASlotDeletedHasGoneForTheSlotToo) {
    auto* const element = this->style.CreateElement("a", "A");
    auto& folder = *this->view.GetRootFreeFolder();
    bool bold = true;
    bool found = true;
    this->signals.Once(&zbBrowserSignalManager::ColumnCaptionChanged, [&](auto* changed) {
        this->view.DeleteScriptedColumn(changed);
        found = this->view.DeleteStyleElement(element) ||
                this->view.IsTextBold(&folder, element, bold) ||
                this->view.IsTextItalic(&folder, element, bold);
    });

    this->column.SetTitle("Weight");

    EXPECT_FALSE(found);
    this->signals.Discard();
}

// Differences

class OldStyleElementsTest : public StyleElementsTest<OldGeneration> {};

TEST_F(OldStyleElementsTest, TheViewDeletesAnElement) {
    auto* const element = style.CreateElement("a", "A");
    style.SetPending(false);

    EXPECT_TRUE(view.DeleteStyleElement(element));

    EXPECT_THAT(ElementNames(style), IsEmpty());
    EXPECT_THAT(signals.take(), ElementsAre("StyleDeleted plain"));
}

TEST_F(OldStyleElementsTest, TheViewAnswersTrueForAnElementThatStays) {
    EXPECT_TRUE(view.DeleteStyleElement(DefaultStyle().FindElement("default_style_elem_icon")));

    EXPECT_EQ(ElementNames(DefaultStyle()).size(), 2U);
    EXPECT_TRUE(view.GetState());
}

class NewStyleElementsTest : public StyleElementsTest<NewGeneration> {};

TEST_F(NewStyleElementsTest, TheViewAnswersTrueAndDeletesNoElement) {
    auto* const element = style.CreateElement("a", "A");
    style.SetPending(false);

    EXPECT_TRUE(view.DeleteStyleElement(element));

    EXPECT_THAT(ElementNames(style), ElementsAre("a"));
    EXPECT_THAT(signals.take(), IsEmpty());
}

} // namespace
} // namespace zbtest
