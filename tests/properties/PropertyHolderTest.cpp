// SPDX-License-Identifier: MIT
//! \file
//! The properties of a view: what holds for both generations.

#include "PropertiesTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using zbtest::Names;

Names DefaultNames() {
    return {"default_name_prop", "default_icon_name_prop", "default_bold_text_prop",
            "default_italic_text_prop"};
}

template <class Generation>
class PropertyHolderTest : public zbtest::PropertiesTest<Generation> {
protected:
    zbtest::RecordingSource& part = this->host.Source("part");
    zbtest::RecordingSource& tool = this->host.Source("tool");
};

TYPED_TEST_SUITE(PropertyHolderTest, zbtest::Generations, zbtest::GenerationName);

// Finding and making

TYPED_TEST(PropertyHolderTest, AFreshViewHasTheFourDefaultProperties) {
    EXPECT_EQ(this->PropertyNames(), DefaultNames());
    EXPECT_EQ(this->Default("default_name_prop").GetDataType(), ZBBROWSER_DATA_TYPE_STRING);
    EXPECT_EQ(this->Default("default_icon_name_prop").GetDataType(), ZBBROWSER_DATA_TYPE_STRING);
    EXPECT_EQ(this->Default("default_bold_text_prop").GetDataType(), ZBBROWSER_DATA_TYPE_BOOLEAN);
    EXPECT_EQ(this->Default("default_italic_text_prop").GetDataType(), ZBBROWSER_DATA_TYPE_BOOLEAN);
}

TYPED_TEST(PropertyHolderTest, PropertiesStandInTheOrderOfTheirCreation) {
    this->view.CreateViewProperty("z");
    this->view.CreateViewProperty("a");

    auto expected = DefaultNames();
    expected.insert(expected.end(), {"z", "a"});
    EXPECT_EQ(this->PropertyNames(), expected);
}

TYPED_TEST(PropertyHolderTest, CreatingATakenNameKeepsThePropertyThatIsThere) {
    auto& before = this->Property("weight");

    this->view.CreateViewProperty("weight");

    EXPECT_EQ(this->view.FindViewProperty("weight"), &before);
    EXPECT_EQ(this->PropertyNames().size(), 5U);
}

TYPED_TEST(PropertyHolderTest, PropertiesAreFoundByTheirExactName) {
    auto& small = this->Property("weight");
    auto& capital = this->Property("Weight");

    EXPECT_NE(&small, &capital);
    EXPECT_EQ(this->view.FindViewProperty("weight"), &small);
    EXPECT_EQ(this->view.FindViewProperty("Weight"), &capital);
    EXPECT_EQ(this->view.FindViewProperty("WEIGHT"), nullptr);
    EXPECT_EQ(this->view.FindViewProperty("DEFAULT_NAME_PROP"), nullptr);
    EXPECT_EQ(this->view.FindViewProperty(zbString("weight\0", 7)), nullptr);
}

TYPED_TEST(PropertyHolderTest, TheListReplacesWhatIsThere) {
    std::vector<zbIBrowserViewProperty*> out(7, nullptr);

    EXPECT_TRUE(this->view.GetViewPropertyList(out));

    EXPECT_EQ(out.size(), 4U);
    EXPECT_EQ(out.front(), this->view.FindViewProperty("default_name_prop"));
}

TYPED_TEST(PropertyHolderTest, APlainPropertyStartsNeutral) {
    auto& property = this->Property("weight");

    EXPECT_STREQ(property.GetName(), "weight");
    EXPECT_EQ(property.GetView(), &this->view);
    EXPECT_EQ(property.GetDataType(), ZBBROWSER_DATA_TYPE_NOT_SET);
    EXPECT_STREQ(property.GetReservedTextA(), "");
    EXPECT_STREQ(property.GetReservedTextB(), "");
    EXPECT_TRUE(property.IsAvailable());
    EXPECT_TRUE(property.IsReadable());
    EXPECT_TRUE(property.IsWritable());
    EXPECT_FALSE(property.GetFlag());
    EXPECT_THAT(this->ConnectionsOf(property), IsEmpty());
}

TYPED_TEST(PropertyHolderTest, TheFlagIsKept) {
    auto& property = this->Property("weight");

    property.SetFlag(true);
    EXPECT_TRUE(property.GetFlag());
    property.SetFlag(false);
    EXPECT_FALSE(property.GetFlag());
}

// Types

TYPED_TEST(PropertyHolderTest, TheTypesFromOneToThirteenCanBeSet) {
    auto& property = this->Property("weight");

    for (int type = 1; type <= 13; ++type) {
        this->view.UpdateViewPropertyType("weight", static_cast<ZBBROWSER_DATA_TYPE>(type));
        EXPECT_EQ(property.GetDataType(), type);
    }
}

TYPED_TEST(PropertyHolderTest, ATypeOutOfRangeChangesNothing) {
    auto& property = this->Property("weight");
    this->view.UpdateViewPropertyType("weight", ZBBROWSER_DATA_TYPE_DOUBLE);

    for (int const type : {0, 14, -1, 1000}) {
        this->view.UpdateViewPropertyType("weight", static_cast<ZBBROWSER_DATA_TYPE>(type));
        EXPECT_EQ(property.GetDataType(), ZBBROWSER_DATA_TYPE_DOUBLE) << type;
    }
}

TYPED_TEST(PropertyHolderTest, TheTypeOfAnUnknownPropertyCannotBeSet) {
    this->view.UpdateViewPropertyType("weight", ZBBROWSER_DATA_TYPE_DOUBLE);

    EXPECT_EQ(this->PropertyNames(), DefaultNames());
}

TYPED_TEST(PropertyHolderTest, APropertyItselfTakesAnyType) {
    auto& property = this->Property("weight");

    EXPECT_TRUE(property.SetDataType(static_cast<ZBBROWSER_DATA_TYPE>(99)));

    EXPECT_EQ(property.GetDataType(), 99);
}

// Connections

TYPED_TEST(PropertyHolderTest, APropertyHasOneConnectionForEachSource) {
    auto& property = this->Property("weight");

    EXPECT_TRUE(this->view.CreateVPConnect(&property, &this->part, &this->part.Property("kg")));
    EXPECT_TRUE(this->view.CreateVPConnect(&property, &this->tool, &this->tool.Property("lb")));

    typename TestFixture::Source* const ofPart = &this->part;
    typename TestFixture::Source* const ofTool = &this->tool;
    EXPECT_EQ(property.GetDataProperty(ofPart), &this->part.Property("kg"));
    EXPECT_EQ(property.GetDataProperty(ofTool), &this->tool.Property("lb"));
    EXPECT_EQ(this->ConnectionsOf(property),
              (typename TestFixture::Connections{{ofPart, &this->part.Property("kg")},
                                                 {ofTool, &this->tool.Property("lb")}}));
}

TYPED_TEST(PropertyHolderTest, TheConnectionsReplaceWhatIsThere) {
    auto& property = this->Property("weight");
    this->view.CreateVPConnect(&property, &this->part, &this->part.Property("kg"));
    typename TestFixture::Connections out{{&this->tool, nullptr}};

    EXPECT_TRUE(property.GetConnections(out));

    typename TestFixture::Source* const ofPart = &this->part;
    EXPECT_THAT(out, ElementsAre(Pair(ofPart, &this->part.Property("kg"))));
}

TYPED_TEST(PropertyHolderTest, ASourceWithoutConnectionHasNoDataProperty) {
    auto& property = this->Property("weight");
    typename TestFixture::Source* const ofPart = &this->part;

    EXPECT_EQ(property.GetDataProperty(ofPart), nullptr);
}

TYPED_TEST(PropertyHolderTest, NullIsNeverConnected) {
    auto& property = this->Property("weight");
    typename TestFixture::Source* const none = nullptr;

    EXPECT_TRUE(this->view.CreateVPConnect(&property, none, &this->part.Property("kg")));

    EXPECT_EQ(property.GetDataProperty(none), nullptr);
}

TYPED_TEST(PropertyHolderTest, AConnectionCanBeTakenAway) {
    auto& property = this->Property("weight");
    this->view.CreateVPConnect(&property, &this->part, &this->part.Property("kg"));
    this->view.CreateVPConnect(&property, &this->tool, &this->tool.Property("lb"));

    EXPECT_TRUE(this->view.DeleteVPConnect(&property, &this->part));

    typename TestFixture::Source* const ofTool = &this->tool;
    EXPECT_THAT(this->ConnectionsOf(property),
                ElementsAre(Pair(ofTool, &this->tool.Property("lb"))));
}

TYPED_TEST(PropertyHolderTest, AConnectionThatWasTakenAwayCanBeMadeAnew) {
    auto& property = this->Property("weight");
    this->view.CreateVPConnect(&property, &this->part, &this->part.Property("kg"));
    this->view.DeleteVPConnect(&property, &this->part);

    EXPECT_TRUE(this->view.CreateVPConnect(&property, &this->part, &this->part.Property("lb")));

    typename TestFixture::Source* const ofPart = &this->part;
    EXPECT_EQ(property.GetDataProperty(ofPart), &this->part.Property("lb"));
}

TYPED_TEST(PropertyHolderTest, ConnectingAScriptTakesTheGetScriptAway) {
    this->host.panel.scriptResult = "of the script";
    auto& property = this->Default("default_name_prop");
    property.SetScripts("", "get");
    ASSERT_EQ(this->TextOf(property, nullptr), "of the script");

    EXPECT_TRUE(this->view.CreateVPConnect(&property, "set"));

    EXPECT_EQ(this->TextOf(property, nullptr), "no");
}

TYPED_TEST(PropertyHolderTest, ConnectingAScriptKeepsTheConnections) {
    auto& property = this->Property("weight");
    this->view.CreateVPConnect(&property, &this->part, &this->part.Property("kg"));

    EXPECT_TRUE(this->view.CreateVPConnect(&property, "set"));

    EXPECT_EQ(this->ConnectionsOf(property).size(), 1U);
}

// Deleting

TYPED_TEST(PropertyHolderTest, DeletingAPropertyInAViewWithoutScriptedColumnsAnswersFalse) {
    auto& property = this->Property("weight");

    EXPECT_FALSE(this->view.DeleteViewProperty(&property));

    EXPECT_EQ(this->view.FindViewProperty("weight"), nullptr);
    EXPECT_EQ(this->PropertyNames(), DefaultNames());
}

TYPED_TEST(PropertyHolderTest, DeletingAPropertyInAViewWithAScriptedColumnAnswersTrue) {
    auto& property = this->Property("weight");
    ASSERT_TRUE(this->view.CreateButtonColumn("column", ""));

    EXPECT_TRUE(this->view.DeleteViewProperty(&property));

    EXPECT_EQ(this->view.FindViewProperty("weight"), nullptr);
}

TYPED_TEST(PropertyHolderTest, ADefaultPropertyCannotBeDeleted) {
    ASSERT_TRUE(this->view.CreateButtonColumn("column", ""));

    for (auto const& name : DefaultNames()) {
        EXPECT_FALSE(this->view.DeleteViewProperty(&this->Default(name.c_str()))) << name;
    }

    EXPECT_EQ(this->PropertyNames(), DefaultNames());
}

TYPED_TEST(PropertyHolderTest, ADeletedPropertyCanStillBeUsedAndHasNoConnections) {
    auto& property = this->Property("weight");
    this->view.CreateVPConnect(&property, &this->part, &this->part.Property("kg"));

    this->view.DeleteViewProperty(&property);

    EXPECT_STREQ(property.GetName(), "weight");
    EXPECT_EQ(property.GetView(), &this->view);
    EXPECT_THAT(this->ConnectionsOf(property), IsEmpty());
}

TYPED_TEST(PropertyHolderTest, ColumnsShowADeletedPropertyNoMore) {
    auto& property = this->Property("weight");
    auto* const element = this->Elements().at(0);
    element->SetViewProperty(&property);

    this->view.DeleteViewProperty(&property);

    EXPECT_EQ(element->GetViewProperty(), nullptr);
}

TYPED_TEST(PropertyHolderTest, TheNameOfADeletedPropertyIsFree) {
    auto& gone = this->Property("weight");
    this->view.DeleteViewProperty(&gone);

    auto& made = this->Property("weight");

    EXPECT_NE(&made, &gone);
    auto expected = DefaultNames();
    expected.emplace_back("weight");
    EXPECT_EQ(this->PropertyNames(), expected);
}

TYPED_TEST(PropertyHolderTest, DeletingFromTheMiddleKeepsTheOrderOfTheOthers) {
    auto& a = this->Property("a");
    this->Property("b");
    this->Property("c");

    this->view.DeleteViewProperty(&a);

    auto expected = DefaultNames();
    expected.insert(expected.end(), {"b", "c"});
    EXPECT_EQ(this->PropertyNames(), expected);
}

} // namespace
