// SPDX-License-Identifier: MIT
//! \file
//! Typed reads and writes of an old view's properties, through their connections.

#include "PropertiesTest.h"

#include <zbBrowserView/host/neutral/zbNeutralDataProperty.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::ContainerDouble;
using zbtest::Lines;
using zbtest::StringOf;

class OldPropertyTest : public zbtest::OldPropertiesTest {
protected:
    zbtest::RecordingItem& bolt = part["bolt_1"];

    //! Makes a property that reads this value of the first row.
    zbIBrowserViewProperty& Holding(zbVariant value) {
        bolt.Set("value", std::move(value));
        return Connected("value");
    }
};

TEST_F(OldPropertyTest, AnIntegerIsRead) {
    int out = 0;

    EXPECT_TRUE(Holding(42).GetIntegerValue(Row(), out));

    EXPECT_EQ(out, 42);
    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetInteger bolt_1"));
}

TEST_F(OldPropertyTest, AnUnsignedNumberIsRead) {
    unsigned out = 0;

    EXPECT_TRUE(Holding(42).GetUnsignedValue(Row(), out));

    EXPECT_EQ(out, 42U);
    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetUnsigned bolt_1"));
}

TEST_F(OldPropertyTest, ATruthValueIsRead) {
    bool out = false;

    EXPECT_TRUE(Holding(true).GetBooleanValue(Row(), out));

    EXPECT_TRUE(out);
    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetBoolean bolt_1"));
}

TEST_F(OldPropertyTest, ADoubleIsRead) {
    double out = 0;

    EXPECT_TRUE(Holding(2.5).GetDoubleValue(Row(), out));

    EXPECT_EQ(out, 2.5);
    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetDouble bolt_1"));
}

TEST_F(OldPropertyTest, ATextIsRead) {
    EXPECT_EQ(StringOf(Holding("steel"), Row()), "steel");
    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetString bolt_1"));
}

TEST_F(OldPropertyTest, TheFormWithADataItemReadsTheRowAllTheSame) {
    zbString out;

    EXPECT_TRUE(Holding("steel").GetStringValue(Row(), &part["nut_2"], out));

    EXPECT_EQ(out, "steel");
}

TEST_F(OldPropertyTest, ADisplayTextIsRead) {
    zbString out;

    EXPECT_TRUE(Holding("steel").GetDisplayValue(Row(), out));

    EXPECT_EQ(out, "steel");
    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetDisplayText bolt_1"));
}

TEST_F(OldPropertyTest, TheTextOfTheDataPropertyIsHandedOn) {
    EXPECT_STREQ(Holding("steel").GetTextPointer(Row()), "steel");
    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetTextPointer bolt_1"));
}

TEST_F(OldPropertyTest, AValueThatHasChangedItsKindIsNotConverted) {
    auto& property = Holding(42);
    bolt.Set("value", "steel");
    int out = 7;

    EXPECT_FALSE(property.GetIntegerValue(Row(), out));

    EXPECT_EQ(out, 7);
}

// Where nothing is read

struct Read {
    char const* name;
    bool (*read)(zbIBrowserViewProperty& property, zbIBrowserViewItem* item);
};

template <class T, bool (zbIBrowserViewProperty::*reader)(zbIBrowserViewItem*, T&)>
bool ReadAs(zbIBrowserViewProperty& property, zbIBrowserViewItem* item) {
    T const before = T();
    T out = before;
    bool const answer = (property.*reader)(item, out);
    EXPECT_TRUE(answer || out == before);
    return answer;
}

std::vector<Read> AllReads() {
    using Property = zbIBrowserViewProperty;
    return {{"Integer", ReadAs<int, &Property::GetIntegerValue>},
            {"Unsigned", ReadAs<unsigned, &Property::GetUnsignedValue>},
            {"Boolean", ReadAs<bool, &Property::GetBooleanValue>},
            {"String", ReadAs<zbString, &Property::GetStringValue>},
            {"Double", ReadAs<double, &Property::GetDoubleValue>},
            {"Display", ReadAs<zbString, &Property::GetDisplayValue>},
            {"TextPointer", [](Property& p, zbIBrowserViewItem* item) {
                 return p.GetTextPointer(item) != nullptr;
             }}};
}

class OldReadTest : public OldPropertyTest, public testing::WithParamInterface<Read> {
protected:
    bool ReadRow(zbIBrowserViewProperty& property) { return GetParam().read(property, Row()); }
};

INSTANTIATE_TEST_SUITE_P(All, OldReadTest, testing::ValuesIn(AllReads()),
                         [](auto const& test) { return std::string(test.param.name); });

TEST_P(OldReadTest, ASourceWithoutConnectionGivesNothing) {
    EXPECT_FALSE(ReadRow(Property("unconnected")));
}

TEST_P(OldReadTest, ADataPropertyThatFailsGivesNothing) {
    part.Property("value").readable = false;

    EXPECT_FALSE(ReadRow(Holding(1)));
    EXPECT_EQ(host.calls.take().size(), 1U);
}

TEST_P(OldReadTest, ANullDataPropertyGivesNothing) {
    auto& property = Property("value");
    view.CreateVPConnect(&property, &part, nullptr);

    EXPECT_FALSE(ReadRow(property));
}

TEST_P(OldReadTest, ARowWhoseDataHasNoSourceGivesNothing) {
    auto& property = Holding(1);
    auto* const row = Row();
    bolt.source = nullptr;

    EXPECT_FALSE(GetParam().read(property, row));
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_P(OldReadTest, AFolderHasNoValue) {
    EXPECT_FALSE(GetParam().read(Holding(1), &folder));
}

TEST_P(OldReadTest, NullHasNoValue) {
    EXPECT_FALSE(GetParam().read(Holding(1), nullptr));
}

TEST_P(OldReadTest, ARowOfANewViewHasNoValue) {
    zbtest::NodeDouble row(&view, &bolt);

    EXPECT_FALSE(GetParam().read(Holding(1), &row));
}

TEST_P(OldReadTest, APropertyOfANewViewReadsNothing) {
    auto& other = host.NewView("new");
    other.CreateViewProperty("value");
    auto& property = *other.FindViewProperty("value");
    other.CreateVPConnect(&property, &part, &part.Property("name"));
    static_cast<void>(host.calls.take());

    EXPECT_FALSE(ReadRow(property));
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(OldPropertyTest, ValuesOfNewViewsAreNotOffered) {
    auto& property = Holding(1);
    zbVariant out("untouched");

    EXPECT_FALSE(property.GetValue(Row(), out));
    EXPECT_FALSE(property.SetValue(Row(), 2));

    EXPECT_EQ(ToText(out), "untouched");
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

// Rows of trees

//! Notes what it is asked for.
class PlacedProperty final : public zbNeutralDataProperty {
public:
    zbIBrowserDataItem* item = nullptr;
    zbIBrowserDataItem* parent = nullptr;

    bool GetString(zbIBrowserDataItem* itsItem, zbIBrowserDataItem* itsParent,
                   zbString& out) override {
        item = itsItem;
        parent = itsParent;
        out = "placed";
        return true;
    }
};

class OldTreePropertyTest : public OldPropertyTest {
protected:
    zbtest::RecordingTree& tree = host.Tree("assembly", part);
    PlacedProperty placed;
    zbIBrowserViewProperty& property = Property("place");

    OldTreePropertyTest() {
        tree.Add(part, "engine");
        tree.Add(part, "engine/piston");
        view.CreateVPConnect(&property, &part, &placed);
    }
};

TEST_F(OldTreePropertyTest, ARowOfATreeIsReadThroughTheFlatFacesOfItselfAndOfItsParent) {
    ContainerDouble row(&view, &tree["engine/piston"]);

    EXPECT_EQ(StringOf(property, &row), "placed");

    EXPECT_EQ(placed.item, tree["engine/piston"].flat);
    EXPECT_EQ(placed.parent, tree["engine"].flat);
}

TEST_F(OldTreePropertyTest, ARowOnTopOfATreeHasNoParent) {
    ContainerDouble row(&view, &tree["engine"]);

    EXPECT_EQ(StringOf(property, &row), "placed");

    EXPECT_EQ(placed.item, tree["engine"].flat);
    EXPECT_EQ(placed.parent, nullptr);
}

TEST_F(OldTreePropertyTest, ARowOfAFlatSourceHasNoParent) {
    EXPECT_EQ(StringOf(property, Row()), "placed");

    EXPECT_EQ(placed.item, &bolt);
    EXPECT_EQ(placed.parent, nullptr);
}

//! An item that breaks its contract.
class FacelessItem final : public zbIBrowserDataItemHierarchical {
public:
    zbIBrowserDataSourceHierarchical* GetDataSource() const override { return nullptr; }
    zbIBrowserDataItemSimple* GetDataItemSimple() const override { return nullptr; }
    bool IsHiddenFromTree() const override { return false; }
    bool IsDirty() const override { return false; }
};

TEST_F(OldTreePropertyTest, ATreeItemWithoutFlatFaceHasNoValue) {
    FacelessItem faceless;
    ContainerDouble row(&view, &faceless);

    EXPECT_EQ(StringOf(property, &row), "no");
    EXPECT_FALSE(property.SetIntegerValue(&row, 1));
}

// Writing

TEST_F(OldPropertyTest, AnIntegerIsWrittenThroughTheSource) {
    auto& property = Holding(1);

    EXPECT_TRUE(property.SetIntegerValue(Row(), 7));

    EXPECT_THAT(host.calls.take(), ElementsAre("part.SetDataPropertyInteger bolt_1 7"));
    EXPECT_EQ(ToText(*bolt.Value("value")), "7");
}

TEST_F(OldPropertyTest, ATruthValueIsWrittenThroughTheSource) {
    auto& property = Holding(false);

    EXPECT_TRUE(property.SetBooleanValue(Row(), true));

    EXPECT_THAT(host.calls.take(), ElementsAre("part.SetDataPropertyBoolean bolt_1 true"));
    EXPECT_EQ(ToText(*bolt.Value("value")), "true");
}

TEST_F(OldPropertyTest, WithoutConnectionTheSourceIsToldToWriteNoDataProperty) {
    auto& property = Property("unconnected");

    EXPECT_TRUE(property.SetIntegerValue(Row(), 7));
    EXPECT_TRUE(property.SetBooleanValue(Row(), true));

    EXPECT_THAT(host.calls.take(), ElementsAre("part.SetDataPropertyInteger bolt_1 7",
                                               "part.SetDataPropertyBoolean bolt_1 true"));
    EXPECT_FALSE(bolt.Value("unconnected").has_value());
}

TEST_F(OldTreePropertyTest, ARowOfATreeIsWrittenThroughItsFlatFace) {
    ContainerDouble row(&view, &tree["engine/piston"]);

    EXPECT_TRUE(property.SetIntegerValue(&row, 7));

    EXPECT_THAT(host.calls.take(), testing::Contains("part.SetDataPropertyInteger piston 7"));
}

TEST_F(OldPropertyTest, NothingIsWrittenWithoutData) {
    auto& property = Holding(1);

    EXPECT_FALSE(property.SetIntegerValue(nullptr, 7));
    EXPECT_FALSE(property.SetBooleanValue(nullptr, true));
    EXPECT_FALSE(property.SetIntegerValue(&folder, 7));
    EXPECT_FALSE(property.SetBooleanValue(&folder, true));
    bolt.source = nullptr;
    EXPECT_FALSE(property.SetIntegerValue(Row(), 7));

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

} // namespace
