// SPDX-License-Identifier: MIT
//! \file
//! What the elements of styles are bound to.
#include "ColumnsTest.h"
#include "presentation/columns/ViewColumn.h"
#include "presentation/columns/zbBrowserViewColumn.h"

namespace zbtest {
namespace {

using testing::IsEmpty;

template <class Generation>
class ElementBindingsTest : public ColumnsTest<Generation> {
protected:
    zbIBrowserViewColumn& column = this->Column("weight");
    zbIBrowserStyle& style = MakeStyle(column, "plain");

    zbIBrowserViewProperty& Property(char const* name) {
        this->view.CreateViewProperty(name);
        return *this->view.FindViewProperty(name);
    }
};
TYPED_TEST_SUITE(ElementBindingsTest, Generations, GenerationName);

TYPED_TEST(ElementBindingsTest, AnElementIsBoundToAProperty) {
    auto* const element = this->style.CreateElement("a", "A");
    auto& property = this->Property("p");

    EXPECT_TRUE(element->SetViewProperty(&property));
    EXPECT_EQ(element->GetViewProperty(), &property);
    EXPECT_TRUE(element->SetViewProperty(nullptr));
    EXPECT_EQ(element->GetViewProperty(), nullptr);
}

TYPED_TEST(ElementBindingsTest, AnElementReadsTheDataPropertyThatIsConnectedForASource) {
    auto* const element = this->style.CreateElement("a", "A");
    auto& property = this->Property("p");
    auto& part = this->host.Source("part");
    ASSERT_TRUE(this->view.CreateVPConnect(&property, &part, &part.Property("name")));
    element->SetViewProperty(&property);

    EXPECT_EQ(element->GetDataProperty(&part), &part.Property("name"));
    EXPECT_EQ(element->GetDataProperty(&this->host.Source("tool")), nullptr);
    EXPECT_EQ(element->GetDataProperty(&this->host.Tree("assembly", part)), nullptr);
    EXPECT_EQ(element->GetDataProperty(nullptr), nullptr);
}

TYPED_TEST(ElementBindingsTest, AnElementWithoutAPropertyReadsNothing) {
    auto* const element = this->style.CreateElement("a", "A");

    EXPECT_EQ(element->GetDataProperty(&this->host.Source("part")), nullptr);
}

TYPED_TEST(ElementBindingsTest, APropertyOfAnotherViewIsBoundAndNotTakenAway) {
    auto* const element = this->style.CreateElement("a", "A");
    auto& other = this->OtherView();
    other.CreateViewProperty("p");
    auto* const foreign = other.FindViewProperty("p");
    auto& part = this->host.Source("part");
    ASSERT_TRUE(other.CreateVPConnect(foreign, &part, &part.Property("name")));

    EXPECT_TRUE(element->SetViewProperty(foreign));
    EXPECT_EQ(element->GetDataProperty(&part), &part.Property("name"));
    EXPECT_FALSE(this->view.DeleteViewProperty(foreign));
    other.DeleteViewProperty(foreign);

    EXPECT_EQ(element->GetViewProperty(), foreign);
    EXPECT_EQ(element->GetDataProperty(&part), nullptr) << "a deleted one reads nothing";
}

TYPED_TEST(ElementBindingsTest, ADeletedPropertyIsTakenFromAllElements) {
    auto& property = this->Property("p");
    auto& other = this->Property("q");
    auto* const first = this->style.CreateElement("a", "A");
    auto* const second = MakeStyle(this->Default(), "fancy").CreateElement("b", "B");
    auto* const third = this->style.CreateElement("c", "C");
    first->SetViewProperty(&property);
    second->SetViewProperty(&property);
    third->SetViewProperty(&other);

    EXPECT_TRUE(this->view.DeleteViewProperty(&property));

    EXPECT_EQ(first->GetViewProperty(), nullptr);
    EXPECT_EQ(second->GetViewProperty(), nullptr);
    EXPECT_EQ(third->GetViewProperty(), &other);
}

TYPED_TEST(ElementBindingsTest, ADeletedPropertyIsTakenFromElementsWithoutAStyleToo) {
    auto& property = this->Property("p");
    auto* const element = this->style.CreateElement("a", "A");
    element->SetViewProperty(&property);
    this->style.DeleteElement(element);

    this->view.DeleteViewProperty(&property);

    EXPECT_EQ(element->GetViewProperty(), nullptr);
}

TYPED_TEST(ElementBindingsTest, AManagerTakesAPropertyFromTheElementsOfItsOwnStyles) {
    auto& property = this->Property("p");
    auto* const own = this->style.CreateElement("a", "A");
    auto* const other = MakeStyle(this->Default(), "fancy").CreateElement("b", "B");
    own->SetViewProperty(&property);
    other->SetViewProperty(&property);

    this->column.GetStyleManager()->OnViewPropertyDeleted(nullptr);
    EXPECT_EQ(own->GetViewProperty(), &property);
    this->column.GetStyleManager()->OnViewPropertyDeleted(&property);

    EXPECT_EQ(own->GetViewProperty(), nullptr);
    EXPECT_EQ(other->GetViewProperty(), &property);
}

TYPED_TEST(ElementBindingsTest, AColumnPassesOnWhatIsDeletedToItsManager) {
    auto& property = this->Property("p");
    auto* const element = this->style.CreateElement("a", "A");
    element->SetViewProperty(&property);
    element->SetGuiMapName("icons");
    auto& passing = *this->view.FindScriptedColumn(&this->column);

    passing.OnViewPropertyDeleted(&property);
    passing.OnGuiMapDeleted("icons");

    EXPECT_EQ(element->GetViewProperty(), nullptr);
    EXPECT_STREQ(element->GetGuiMapName(), "");
}

TYPED_TEST(ElementBindingsTest, ADeletedGuiMapIsTakenFromTheElementsThatNameItExactly) {
    auto* const first = this->style.CreateElement("a", "A");
    auto* const second = MakeStyle(this->Default(), "fancy").CreateElement("b", "B");
    auto* const third = this->style.CreateElement("c", "C");
    EXPECT_TRUE(first->SetGuiMapName("icons"));
    EXPECT_TRUE(second->SetGuiMapName("icons"));
    EXPECT_TRUE(third->SetGuiMapName("Icons"));

    this->host.Controller().OnGuiMapDeleted("icons");

    EXPECT_STREQ(first->GetGuiMapName(), "");
    EXPECT_STREQ(second->GetGuiMapName(), "");
    EXPECT_STREQ(third->GetGuiMapName(), "Icons");
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

class NewElementBindingsTest : public ElementBindingsTest<NewGeneration> {};

TEST_F(NewElementBindingsTest, ElementsForgetThePropertiesWhenAllOfTheseGo) {
    auto* const element = style.CreateElement("a", "A");
    element->SetViewProperty(&Property("p"));

    view.DeletePropertyHolder();

    EXPECT_EQ(element->GetViewProperty(), nullptr);
    EXPECT_EQ(Default()
                  .FindStyle("default_style")
                  ->FindElement("default_style_elem_name")
                  ->GetViewProperty(),
              nullptr);
}

} // namespace
} // namespace zbtest
