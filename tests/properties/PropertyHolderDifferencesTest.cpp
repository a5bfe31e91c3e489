// SPDX-License-Identifier: MIT
//! \file
//! The properties of a view: in what the generations differ.

#include "filtersort/CurrentSortProperty.h"
#include "PropertiesTest.h"

namespace {

using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingSource;

class OldPropertyHolderTest : public zbtest::PropertiesTest<zbtest::OldGeneration> {
protected:
    RecordingSource& part = host.Source("part");
};

class NewPropertyHolderTest : public zbtest::PropertiesTest<zbtest::NewGeneration> {
protected:
    RecordingSource& part = host.Source("part");
    zbIBrowserDataSource* const source = &part;
};

TEST_F(OldPropertyHolderTest, ASourceKeepsItsFirstConnection) {
    auto& property = Property("weight");
    view.CreateVPConnect(&property, &part, &part.Property("kg"));

    EXPECT_TRUE(view.CreateVPConnect(&property, &part, &part.Property("lb")));

    EXPECT_EQ(property.GetDataProperty(&part), &part.Property("kg"));
}

TEST_F(NewPropertyHolderTest, ASourceGetsItsSecondConnection) {
    auto& property = Property("weight");
    view.CreateVPConnect(&property, &part, &part.Property("kg"));

    EXPECT_TRUE(view.CreateVPConnect(&property, &part, &part.Property("lb")));

    EXPECT_EQ(property.GetDataProperty(source), &part.Property("lb"));
}

TEST_F(OldPropertyHolderTest, TakingAwayAConnectionThatIsNotThereSucceeds) {
    EXPECT_TRUE(view.DeleteVPConnect(&Property("weight"), &part));
}

TEST_F(NewPropertyHolderTest, TakingAwayAConnectionThatIsNotThereFails) {
    EXPECT_FALSE(view.DeleteVPConnect(&Property("weight"), &part));
}

TEST_F(OldPropertyHolderTest, ARefusedConnectionIsAnErrorWithoutText) {
    ASSERT_TRUE(view.GetState());

    EXPECT_FALSE(view.CreateVPConnect(nullptr, &part, &part.Property("kg")));

    EXPECT_FALSE(view.GetState());
    EXPECT_STREQ(view.GetError(), "");
}

TEST_F(OldPropertyHolderTest, ARefusedScriptIsAnErrorWithoutText) {
    EXPECT_FALSE(view.CreateVPConnect(nullptr, "set"));

    EXPECT_FALSE(view.GetState());
}

TEST_F(OldPropertyHolderTest, ARefusedDisconnectionIsAnErrorWithoutText) {
    EXPECT_FALSE(view.DeleteVPConnect(nullptr, &part));

    EXPECT_FALSE(view.GetState());
}

TEST_F(OldPropertyHolderTest, DeletingAnUnknownPropertyIsAnErrorWithoutText) {
    auto& property = Property("weight");
    view.DeleteViewProperty(&property);
    ASSERT_TRUE(view.GetState());

    EXPECT_FALSE(view.DeleteViewProperty(&property));

    EXPECT_FALSE(view.GetState());
}

TEST_F(OldPropertyHolderTest, ADefaultPropertyIsKeptWithoutAnError) {
    EXPECT_FALSE(view.DeleteViewProperty(&Default("default_name_prop")));
    EXPECT_FALSE(view.DeleteViewProperty(nullptr));

    EXPECT_TRUE(view.GetState());
}

TEST_F(OldPropertyHolderTest, ASuccessLeavesTheErrorOfTheView) {
    view.CreateVPConnect(nullptr, "set");

    EXPECT_TRUE(view.CreateVPConnect(&Property("weight"), "set"));

    EXPECT_FALSE(view.GetState());
}

TEST_F(OldPropertyHolderTest, TheFormForSourcesOfNewViewsAnswersNothing) {
    auto& property = Property("weight");
    view.CreateVPConnect(&property, &part, &part.Property("kg"));
    std::map<zbIBrowserDataSource*, zbIBrowserDataProperty*> out{{&part, nullptr}};

    EXPECT_FALSE(property.GetConnections(out));
    EXPECT_EQ(out.size(), 1U);
    EXPECT_EQ(property.GetDataProperty(static_cast<zbIBrowserDataSource*>(&part)), nullptr);
}

TEST_F(NewPropertyHolderTest, TheFormForSourcesOfOldViewsAnswersNothing) {
    auto& property = Property("weight");
    view.CreateVPConnect(&property, &part, &part.Property("kg"));
    std::map<zbIBrowserDataSourceSimple*, zbIBrowserDataProperty*> out{{&part, nullptr}};

    EXPECT_FALSE(property.GetConnections(out));
    EXPECT_EQ(out.size(), 1U);
    EXPECT_EQ(property.GetDataProperty(&part), nullptr);
}

TEST_F(NewPropertyHolderTest, AViewWithoutHolderHasNoProperties) {
    auto* const weight = &Property("weight");
    view.DeletePropertyHolder();
    std::vector<zbIBrowserViewProperty*> out(1, nullptr);

    view.CreateViewProperty("weight");
    view.CreateDefaultViewProperties();
    view.UpdateViewPropertyType("weight", ZBBROWSER_DATA_TYPE_DOUBLE);
    view.DeletePropertyHolder();

    EXPECT_EQ(view.FindViewProperty("weight"), nullptr);
    EXPECT_FALSE(view.GetViewPropertyList(out));
    EXPECT_EQ(out.size(), 1U);
    EXPECT_FALSE(view.DeleteViewProperty(weight));
    EXPECT_FALSE(view.CreateVPConnect(weight, &part, &part.Property("kg")));
    EXPECT_FALSE(view.CreateVPConnect(weight, "set"));
    EXPECT_FALSE(view.DeleteVPConnect(weight, &part));
}

TEST_F(NewPropertyHolderTest, ColumnsShowThePropertiesOfADeletedHolderNoMore) {
    auto const elements = Elements();
    ASSERT_EQ(elements.at(0)->GetViewProperty(), &Default("default_icon_name_prop"));
    ASSERT_EQ(elements.at(1)->GetViewProperty(), &Default("default_name_prop"));

    view.DeletePropertyHolder();

    EXPECT_EQ(elements.at(0)->GetViewProperty(), nullptr);
    EXPECT_EQ(elements.at(1)->GetViewProperty(), nullptr);
}

TEST_F(NewPropertyHolderTest, AHolderThatWasMadeAgainIsEmpty) {
    view.DeletePropertyHolder();

    view.CreatePropertyHolder();

    EXPECT_THAT(PropertyNames(), IsEmpty());
}

TEST_F(NewPropertyHolderTest, AHolderThatIsThereStays) {
    auto& property = Property("weight");

    view.CreatePropertyHolder();

    EXPECT_EQ(view.FindViewProperty("weight"), &property);
}

TEST_F(NewPropertyHolderTest, DefaultPropertiesThatAreThereStay) {
    auto& property = Default("default_name_prop");
    property.SetDataType(ZBBROWSER_DATA_TYPE_DOUBLE);

    view.CreateDefaultViewProperties();

    EXPECT_EQ(PropertyNames().size(), 4U);
    EXPECT_EQ(&Default("default_name_prop"), &property);
    EXPECT_EQ(property.GetDataType(), ZBBROWSER_DATA_TYPE_STRING);
}

TEST_F(NewPropertyHolderTest, DefaultPropertiesComeBehindThoseThatWereMadeBefore) {
    view.DeletePropertyHolder();
    view.CreatePropertyHolder();
    view.CreateViewProperty("weight");

    view.CreateDefaultViewProperties();

    EXPECT_EQ(PropertyNames(), (Names{"weight", "default_name_prop", "default_icon_name_prop",
                                      "default_bold_text_prop", "default_italic_text_prop"}));
}

TEST_F(NewPropertyHolderTest, DefaultPropertiesAreNotDeletedByThemselves) {
    view.DeleteDefaultViewProperties();

    EXPECT_EQ(PropertyNames().size(), 4U);
}

TEST_F(NewPropertyHolderTest, APropertyWithTheNameOfADefaultOneCannotBeDeletedEither) {
    view.DeletePropertyHolder();
    view.CreatePropertyHolder();
    auto& property = Property("default_name_prop");

    EXPECT_FALSE(view.DeleteViewProperty(&property));

    EXPECT_EQ(view.FindViewProperty("default_name_prop"), &property);
}

// The property by which lists were sorted last is noted for the whole process.

using zbbrowser::detail::CurrentSortProperty;
using zbbrowser::detail::SetCurrentSortProperty;

TEST_F(OldPropertyHolderTest, ADeletedPropertyStaysTheOneThatSorts) {
    auto& property = Property("weight");
    SetCurrentSortProperty(&property);

    view.DeleteViewProperty(&property);

    EXPECT_EQ(CurrentSortProperty(), &property);
}

TEST_F(OldPropertyHolderTest, APropertyThatGoesWithItsViewSortsNoMore) {
    SetCurrentSortProperty(&Property("weight"));

    host.DeleteView(view);

    EXPECT_EQ(CurrentSortProperty(), nullptr);
}

TEST_F(NewPropertyHolderTest, APropertyThatGoesWithItsHolderSortsNoMore) {
    SetCurrentSortProperty(&Property("weight"));

    view.DeletePropertyHolder();

    EXPECT_EQ(CurrentSortProperty(), nullptr);
}

} // namespace
