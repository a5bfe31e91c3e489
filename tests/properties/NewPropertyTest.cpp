// SPDX-License-Identifier: MIT
//! \file
//! Reads and writes of a new view's properties.

#include "PropertiesTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Lines;
using zbtest::NodeDouble;
using zbtest::ValueOf;

class NewPropertyTest : public zbtest::NewPropertiesTest {
protected:
    zbIBrowserViewProperty& Holding(zbVariant value) {
        bolt.Set("value", std::move(value));
        return Connected("value");
    }
};

// Reading

TEST_F(NewPropertyTest, TheDataControlIsPositionedBeforeTheValueIsRead) {
    EXPECT_EQ(ValueOf(Holding("steel"), &row), "steel");

    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.SetCurrentDataItem bolt_1", "value.GetVariant bolt_1"));
}

TEST_F(NewPropertyTest, AValueKeepsItsKind) {
    zbVariant out;

    EXPECT_TRUE(Holding(2.5).GetValue(&row, out));

    EXPECT_EQ(out.GetKind(), zbVariant::Double);
    EXPECT_EQ(out.GetDouble(), 2.5);
}

TEST_F(NewPropertyTest, AValueThatHasChangedItsKindIsReadAsItIsNow) {
    auto& property = Holding(42);
    property.SetDataType(ZBBROWSER_DATA_TYPE_INTEGER);
    bolt.Set("value", "steel");
    zbVariant out;

    EXPECT_TRUE(property.GetValue(&row, out));

    EXPECT_EQ(out.GetKind(), zbVariant::String);
    EXPECT_EQ(out.GetString(), "steel");
}

TEST_F(NewPropertyTest, AScriptGivesATextOnceTheControlIsPositioned) {
    auto& property = Holding(1);
    property.SetScripts("", "get");
    host.panel.scriptResult = "of the script";
    zbVariant out;

    EXPECT_TRUE(property.GetValue(&row, out));

    EXPECT_EQ(out.GetKind(), zbVariant::String);
    EXPECT_EQ(out.GetString(), "of the script");
    EXPECT_THAT(host.calls.take(), ElementsAre("data.SetCurrentDataItem bolt_1",
                                               "panel.GetStringFromScript get (  )"));
}

TEST_F(NewPropertyTest, AScriptThatFailsGivesAnEmptyText) {
    auto& property = Holding(1);
    property.SetScripts("", "get");

    EXPECT_EQ(ValueOf(property, &row), "");
}

TEST_F(NewPropertyTest, ASourceWithoutConnectionGivesNothing) {
    EXPECT_EQ(ValueOf(Property("unconnected"), &row), "no");

    EXPECT_THAT(host.calls.take(), ElementsAre("data.SetCurrentDataItem bolt_1"));
}

TEST_F(NewPropertyTest, ARowWithoutDataGivesNothing) {
    row.data = nullptr;

    EXPECT_EQ(ValueOf(Holding(1), &row), "no");

    EXPECT_THAT(host.calls.take(), ElementsAre("data.SetCurrentDataItem null"));
}

TEST_F(NewPropertyTest, ARowWhoseDataHasNoSourceGivesNothing) {
    bolt.source = nullptr;

    EXPECT_EQ(ValueOf(Holding(1), &row), "no");
}

TEST_F(NewPropertyTest, ADataPropertyThatFailsGivesNothing) {
    part.Property("value").readable = false;

    EXPECT_EQ(ValueOf(Holding(1), &row), "no");
}

TEST_F(NewPropertyTest, AViewWithoutDataControlReadsWhereverTheControlStands) {
    view.SetDataCtrl(nullptr);
    auto& property = Holding("steel");
    host.Control().current = &bolt;

    EXPECT_EQ(ValueOf(property, &row), "steel");

    EXPECT_THAT(host.calls.take(), ElementsAre("value.GetVariant bolt_1"));
}

TEST_F(NewPropertyTest, TheControlThatIsPositionedIsTheViewsAndNotTheSources) {
    view.SetDataCtrl(&host.Control("other"));
    auto& property = Holding("steel");

    static_cast<void>(ValueOf(property, &row));

    EXPECT_THAT(host.calls.take(),
                ElementsAre("other.SetCurrentDataItem bolt_1", "value.GetVariant null"));
}

TEST_F(NewPropertyTest, OnlyRowsOfTheViewAreRead) {
    auto& property = Holding("steel");
    property.SetScripts("", "get");
    NodeDouble foreign(&host.NewView("other"), &bolt);
    zbtest::ItemDouble leaf(&view);
    zbVariant out("untouched");

    EXPECT_FALSE(property.GetValue(nullptr, out));
    EXPECT_FALSE(property.GetValue(&foreign, out));
    EXPECT_FALSE(property.GetValue(&leaf, out));
    EXPECT_FALSE(property.GetValue(view.GetRootFreeFolder(), out));

    EXPECT_EQ(ToText(out), "untouched");
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(NewPropertyTest, TypedValuesAreNotOffered) {
    auto& property = Holding(1);
    property.SetScripts("set", "get");

    EXPECT_FALSE(property.SetIntegerValue(&row, 1));
    property.SetTextByScript(view.GetRootFreeFolder(), "text");

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

// Writing

TEST_F(NewPropertyTest, TheDataControlIsPositionedBeforeTheValueIsWritten) {
    auto& property = Holding(1);
    property.SetDataType(ZBBROWSER_DATA_TYPE_INTEGER);

    EXPECT_TRUE(property.SetValue(&row, 7));

    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.SetCurrentDataItem bolt_1", "value.SetVariant bolt_1 7"));
    EXPECT_EQ(ToText(*bolt.Value("value")), "7");
}

struct KindAndType {
    int kind;
    int type;
};

class NewPropertyKindTest : public NewPropertyTest,
                            public testing::WithParamInterface<KindAndType> {};

INSTANTIATE_TEST_SUITE_P(All, NewPropertyKindTest,
                         testing::Values(KindAndType{0, 0}, KindAndType{1, 1}, KindAndType{2, 3},
                                         KindAndType{3, 3}, KindAndType{4, 3}, KindAndType{5, 4},
                                         KindAndType{6, 4}, KindAndType{7, 5}, KindAndType{8, 10},
                                         KindAndType{9, 0}, KindAndType{-1, 0}),
                         [](auto const& test) {
                             return test.param.kind < 0 ? std::string("Negative")
                                                        : "Kind" + std::to_string(test.param.kind);
                         });

TEST_P(NewPropertyKindTest, AKindIsWrittenToPropertiesOfItsTypeOnly) {
    auto& property = Holding(1);
    zbVariant value;
    value.SetKind(GetParam().kind);

    for (int type = 0; type <= 13; ++type) {
        property.SetDataType(static_cast<ZBBROWSER_DATA_TYPE>(type));
        EXPECT_EQ(property.SetValue(&row, value), type == GetParam().type) << "type " << type;
    }

    EXPECT_EQ(host.calls.Count("SetVariant"), 1U);
    EXPECT_EQ(host.calls.Count("SetCurrentDataItem"), 1U);
}

TEST_F(NewPropertyTest, WritingToAnythingButARowSucceedsAndDoesNothing) {
    auto& property = Holding(1);
    zbtest::ItemDouble foreignLeaf(&host.NewView("other"));

    EXPECT_TRUE(property.SetValue(view.GetRootFreeFolder(), "text"));
    EXPECT_TRUE(property.SetValue(&foreignLeaf, "text"));

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(NewPropertyTest, NullAndRowsOfOtherViewsAreNotWritten) {
    auto& property = Holding(1);
    property.SetDataType(ZBBROWSER_DATA_TYPE_INTEGER);
    NodeDouble foreign(&host.NewView("other"), &bolt);

    EXPECT_FALSE(property.SetValue(nullptr, 7));
    EXPECT_FALSE(property.SetValue(&foreign, 7));

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(NewPropertyTest, ASetScriptWritesNoRows) {
    auto& property = Holding(1);
    property.SetDataType(ZBBROWSER_DATA_TYPE_INTEGER);
    property.SetScripts("set", "");

    EXPECT_FALSE(property.SetValue(&row, 7));

    EXPECT_THAT(host.calls.take(), ElementsAre("data.SetCurrentDataItem bolt_1"));
}

TEST_F(NewPropertyTest, NothingIsWrittenWithoutConnection) {
    auto& property = Property("unconnected");

    EXPECT_FALSE(property.SetValue(&row, zbVariant()));
    row.data = nullptr;
    EXPECT_FALSE(property.SetValue(&row, zbVariant()));

    EXPECT_EQ(host.calls.Count("SetVariant"), 0U);
}

// Truth values

//! "checked" runs the script "set" with the text of "key", which is connected to the item's id.
class NewBooleanTest : public NewPropertyTest {
protected:
    zbIBrowserViewProperty& key = Property("key");
    zbIBrowserViewProperty& checked = Property("checked");

    NewBooleanTest() {
        view.CreateVPConnect(&key, &part, &part.Property("key"));
        bolt.Set("key", "K1");
        checked.SetDataType(ZBBROWSER_DATA_TYPE_BOOLEAN);
        checked.SetScripts("set", "", "key");
    }

    //! Why a write may be refused before anything is asked of the host.
    void ExpectRefused(zbIBrowserViewItem* item) {
        EXPECT_FALSE(checked.SetBooleanValue(item, true));
        EXPECT_THAT(host.calls.take(), IsEmpty());
    }
};

TEST_F(NewBooleanTest, TheScriptGetsTheTextOfTheLinkedProperty) {
    EXPECT_TRUE(checked.SetBooleanValue(&row, true));
    EXPECT_TRUE(checked.SetBooleanValue(&row, false));

    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.SetCurrentDataItem bolt_1", "key.GetVariant bolt_1",
                            "panel.GetStringFromScript set K1 true\n (  )",
                            "data.SetCurrentDataItem bolt_1", "key.GetVariant bolt_1",
                            "panel.GetStringFromScript set K1 false\n (  )"));
}

TEST_F(NewBooleanTest, OfA64BitNumberTheLow32BitsAreTheText) {
    bolt.Set("key", (1LL << 32) + 1);

    EXPECT_TRUE(checked.SetBooleanValue(&row, true));

    EXPECT_EQ(host.calls.take().back(), "panel.GetStringFromScript set 1 true\n (  )");
}

TEST_F(NewBooleanTest, ALinkedPropertyThatFailsGivesAnEmptyText) {
    part.Property("key").readable = false;

    EXPECT_TRUE(checked.SetBooleanValue(&row, true));

    EXPECT_EQ(host.calls.take().back(), "panel.GetStringFromScript set  true\n (  )");
}

TEST_F(NewBooleanTest, WithoutScriptTheLinkedPropertyIsReadForNothing) {
    checked.SetScripts("", "");

    EXPECT_FALSE(checked.SetBooleanValue(&row, true));

    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.SetCurrentDataItem bolt_1", "key.GetVariant bolt_1"));
}

TEST_F(NewBooleanTest, TheControlThatIsPositionedIsTheSources) {
    view.SetDataCtrl(&host.Control("other"));

    EXPECT_TRUE(checked.SetBooleanValue(&row, true));

    EXPECT_EQ(host.calls.take().front(), "data.SetCurrentDataItem bolt_1");
}

TEST_F(NewBooleanTest, OnlyABooleanPropertyIsWritten) {
    for (int type = 0; type <= 13; ++type) {
        if (type != ZBBROWSER_DATA_TYPE_BOOLEAN) {
            checked.SetDataType(static_cast<ZBBROWSER_DATA_TYPE>(type));
            ExpectRefused(&row);
        }
    }
}

TEST_F(NewBooleanTest, OnlyRowsOfTheViewAreWritten) {
    NodeDouble foreign(&host.NewView("other"), &bolt);
    zbtest::ItemDouble leaf(&view);

    ExpectRefused(nullptr);
    ExpectRefused(&foreign);
    ExpectRefused(&leaf);
    ExpectRefused(view.GetRootFreeFolder());
}

TEST_F(NewBooleanTest, ARowWithoutDataIsNotWritten) {
    row.data = nullptr;

    ExpectRefused(&row);
}

TEST_F(NewBooleanTest, ARowWhoseDataHasNoSourceIsNotWritten) {
    bolt.source = nullptr;

    ExpectRefused(&row);
}

TEST_F(NewBooleanTest, ARowWhoseSourceHasNoDataControlIsNotWritten) {
    part.control = nullptr;

    ExpectRefused(&row);
}

TEST_F(NewBooleanTest, WithoutLinkedPropertyNothingIsWritten) {
    auto& unlinked = Property("unlinked");
    unlinked.SetDataType(ZBBROWSER_DATA_TYPE_BOOLEAN);
    unlinked.SetScripts("set", "");

    EXPECT_FALSE(unlinked.SetBooleanValue(&row, true));
    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(NewBooleanTest, WithoutConnectionOfTheLinkedPropertyNothingIsWritten) {
    view.DeleteVPConnect(&key, &part);

    ExpectRefused(&row);
}

TEST_F(NewBooleanTest, ALinkedPropertyThatWasDeletedHasNoConnection) {
    view.DeleteViewProperty(&key);

    ExpectRefused(&row);
}

TEST_F(NewBooleanTest, ALinkThatIsNullOrUnknownKeepsTheOneBefore) {
    checked.SetScripts("set2", "", nullptr);
    EXPECT_TRUE(checked.SetBooleanValue(&row, true));
    EXPECT_EQ(host.calls.take().back(), "panel.GetStringFromScript set2 K1 true\n (  )");

    checked.SetScripts("set3", "", "KEY");
    EXPECT_TRUE(checked.SetBooleanValue(&row, true));
    EXPECT_EQ(host.calls.take().back(), "panel.GetStringFromScript set3 K1 true\n (  )");
}

TEST_F(NewBooleanTest, ANewLinkReplacesTheOneBefore) {
    checked.SetScripts("set", "", "checked");
    view.CreateVPConnect(&checked, &part, &part.Property("name"));

    EXPECT_TRUE(checked.SetBooleanValue(&row, true));

    EXPECT_EQ(host.calls.take().back(), "panel.GetStringFromScript set bolt_1 true\n (  )");
}

} // namespace
