// SPDX-License-Identifier: MIT
//! \file
//! What the views do with properties and names that are null, foreign, deleted or strange.

#include "PropertiesTest.h"

namespace {

template <class Generation>
class PropertyBadInputTest : public zbtest::PropertiesTest<Generation> {
protected:
    zbtest::RecordingSource& part = this->host.Source("part");

    //! No operation takes this for a property of the view.
    void ExpectUnknown(zbIBrowserViewProperty* property) {
        EXPECT_TRUE(this->view.CreateButtonColumn("column", ""));
        EXPECT_FALSE(this->view.CreateVPConnect(property, &part, &part.Property("kg")));
        EXPECT_FALSE(this->view.CreateVPConnect(property, "set"));
        EXPECT_FALSE(this->view.DeleteVPConnect(property, &part));
        EXPECT_FALSE(this->view.DeleteViewProperty(property));
        EXPECT_EQ(this->PropertyNames().size(), 4U);
    }
};

TYPED_TEST_SUITE(PropertyBadInputTest, zbtest::Generations, zbtest::GenerationName);

TYPED_TEST(PropertyBadInputTest, NullIsNoProperty) {
    this->ExpectUnknown(nullptr);
}

TYPED_TEST(PropertyBadInputTest, APropertyOfAnotherViewIsNoneOfThisOne) {
    auto& other = TypeParam::Make(this->host, "other");
    auto* const foreign = other.FindViewProperty("default_name_prop");

    this->ExpectUnknown(foreign);

    EXPECT_EQ(other.FindViewProperty("default_name_prop"), foreign);
    EXPECT_TRUE(this->ConnectionsOf(*foreign).empty());
}

TYPED_TEST(PropertyBadInputTest, ADeletedPropertyIsUnknown) {
    auto& property = this->Property("weight");
    this->view.DeleteViewProperty(&property);

    this->ExpectUnknown(&property);
}

// The address of a property that has been freed: it must be compared and never followed.
TYPED_TEST(PropertyBadInputTest, ThePropertyOfADeletedViewIsUnknown) {
    auto& other = TypeParam::Make(this->host, "other");
    auto* const gone = other.FindViewProperty("default_name_prop");
    this->host.DeleteView(other);

    this->ExpectUnknown(gone);
}

TYPED_TEST(PropertyBadInputTest, NullIsNoName) {
    this->view.CreateViewProperty(nullptr);

    EXPECT_EQ(this->PropertyNames().size(), 4U);
}

TYPED_TEST(PropertyBadInputTest, AnyTextIsAName) {
    zbString const longName(std::string(100'000, 'n').c_str());
    std::vector<zbString> const names{"", longName, "\xff\xfe\x80", "a b\n/\"", " "};

    for (auto const& name : names) {
        this->view.CreateViewProperty(name.c_str());
    }

    for (auto const& name : names) {
        auto const* const property = this->view.FindViewProperty(name);
        ASSERT_NE(property, nullptr);
        EXPECT_EQ(name, property->GetName());
    }
    EXPECT_EQ(this->PropertyNames().size(), 4U + names.size());
}

TYPED_TEST(PropertyBadInputTest, ANullDataPropertyIsAConnectionThatGivesNothing) {
    auto& property = this->Property("weight");
    typename TestFixture::Source* const source = &this->part;

    EXPECT_TRUE(this->view.CreateVPConnect(&property, source, nullptr));

    EXPECT_EQ(property.GetDataProperty(source), nullptr);
    EXPECT_EQ(this->ConnectionsOf(property).size(), 1U);
}

TYPED_TEST(PropertyBadInputTest, ANullScriptIsNoScript) {
    auto& property = this->Property("weight");

    EXPECT_TRUE(this->view.CreateVPConnect(&property, nullptr));
    EXPECT_TRUE(property.SetScripts(nullptr, nullptr));

    EXPECT_EQ(this->TextOf(property, nullptr), "no");
}

TYPED_TEST(PropertyBadInputTest, ManyPropertiesAreFoundAndDeletedOneByOne) {
    constexpr int count = 2'000;
    std::vector<zbIBrowserViewProperty*> made;
    made.reserve(count);
    for (int i = 0; i < count; ++i) {
        made.push_back(&this->Property(("p" + std::to_string(i)).c_str()));
    }

    for (int i = 0; i < count; i += 2) {
        this->view.DeleteViewProperty(made[static_cast<std::size_t>(i)]);
    }

    EXPECT_EQ(this->PropertyNames().size(), 4U + count / 2);
    EXPECT_EQ(this->PropertyNames()[4], "p1");
    EXPECT_EQ(this->PropertyNames().back(), "p1999");
    EXPECT_EQ(this->view.FindViewProperty("p1000"), nullptr);
    EXPECT_EQ(this->view.FindViewProperty("p1001"), made[1001]);
}

} // namespace
