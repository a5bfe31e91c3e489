// SPDX-License-Identifier: MIT
//! \file
//! Scripts and data properties that call back, throw, or delete what is being read.

#include "PropertiesTest.h"
#include "support/SignalRecorder.h"

#include <stdexcept>

namespace {

using testing::IsEmpty;
using zbtest::StringOf;
using zbtest::ValueOf;

constexpr char const* script = "GetStringFromScript";

// Both generations, through a default property, which answers for folders.

template <class Generation>
class PropertyReentranceTest : public zbtest::PropertiesTest<Generation> {
protected:
    zbIBrowserViewProperty& name = this->Default("default_name_prop");

    PropertyReentranceTest() {
        name.SetScripts("", "get");
        this->host.panel.scriptResult = "text";
    }
};

TYPED_TEST_SUITE(PropertyReentranceTest, zbtest::Generations, zbtest::GenerationName);

TYPED_TEST(PropertyReentranceTest, AScriptMayDeleteTheView) {
    auto& folder = this->Folder("a");
    this->host.calls.On(script, [&] { this->host.DeleteView(this->view); });

    EXPECT_EQ(this->TextOf(this->name, &folder), "text");

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
}

TYPED_TEST(PropertyReentranceTest, AScriptMayGiveThePropertyOtherScripts) {
    auto const longScript = std::string(1'000, 's');
    this->name.SetScripts("", longScript.c_str());
    this->host.calls.On(script, [&] { this->name.SetScripts("", "other"); });

    EXPECT_EQ(this->TextOf(this->name, nullptr), "text");
    EXPECT_EQ(this->TextOf(this->name, nullptr), "text");

    EXPECT_EQ(this->host.calls.take(),
              (zbtest::Lines{"panel.GetStringFromScript " + longScript + " (  )",
                             "panel.GetStringFromScript other (  )"}));
}

TYPED_TEST(PropertyReentranceTest, AScriptThatThrowsLeavesThePropertyAsItWas) {
    this->host.calls.On(script, [] { throw std::runtime_error("script"); });

    EXPECT_THROW(static_cast<void>(this->TextOf(this->name, nullptr)), std::runtime_error);

    this->host.calls.Off(script);
    EXPECT_EQ(this->TextOf(this->name, nullptr), "text");
}

TYPED_TEST(PropertyReentranceTest, AScriptMayReadThePropertyItself) {
    std::string inner;
    this->host.calls.On(script, [&] {
        this->host.calls.Off(script);
        inner = this->TextOf(this->name, nullptr);
    });

    EXPECT_EQ(this->TextOf(this->name, nullptr), "text");
    EXPECT_EQ(inner, "text");
}

// Old views

class OldPropertyReentranceTest : public zbtest::OldPropertiesTest {
protected:
    zbIBrowserViewProperty& property = Connected("name");
};

TEST_F(OldPropertyReentranceTest, AScriptMayDeleteTheProperty) {
    property.SetScripts("", "get");
    host.panel.scriptResult = "text";
    host.calls.On(script, [&] { view.DeleteViewProperty(&property); });

    EXPECT_EQ(StringOf(property, Row()), "text");

    EXPECT_EQ(view.FindViewProperty("name"), nullptr);
}

TEST_F(OldPropertyReentranceTest, TheTextOfAScriptThatDeletedTheViewIsGone) {
    auto* const row = Row();
    property.SetScripts("", "get");
    host.panel.scriptResult = "text";
    host.calls.On(script, [&] { host.DeleteView(view); });

    EXPECT_EQ(property.GetTextPointer(row), nullptr);
}

TEST_F(OldPropertyReentranceTest, ASetScriptMayDeleteTheView) {
    property.SetScripts("set", "");
    host.calls.On(script, [&] { host.DeleteView(view); });

    EXPECT_TRUE(property.SetBooleanValue(&folder, true));
}

TEST_F(OldPropertyReentranceTest, AScriptMayDeleteTheFolderThatIsRead) {
    property.SetScripts("", "get");
    host.panel.scriptResult = "text";
    host.calls.On(script, [&] { view.DeleteFreeFolder(&folder, true); });

    EXPECT_EQ(StringOf(property, &folder), "text");
}

TEST_F(OldPropertyReentranceTest, ADataPropertyMayDeleteTheView) {
    auto* const row = Row();
    host.calls.On("GetString", [&] { host.DeleteView(view); });

    EXPECT_EQ(StringOf(property, row), "bolt_1");
}

TEST_F(OldPropertyReentranceTest, ADataPropertyMayDeleteTheViewProperty) {
    host.calls.On("GetString", [&] { view.DeleteViewProperty(&property); });

    EXPECT_EQ(StringOf(property, Row()), "bolt_1");
    EXPECT_EQ(StringOf(property, Row()), "no");
}

TEST_F(OldPropertyReentranceTest, ADataPropertyThatThrowsLeavesThePropertyAsItWas) {
    host.calls.On("GetString", [] { throw std::runtime_error("reader"); });

    EXPECT_THROW(static_cast<void>(StringOf(property, Row())), std::runtime_error);

    host.calls.Off("GetString");
    EXPECT_EQ(StringOf(property, Row()), "bolt_1");
}

TEST_F(OldPropertyReentranceTest, ASourceMayDeleteTheViewWhileItIsWrittenTo) {
    auto* const row = Row();
    host.calls.On("SetDataPropertyInteger", [&] { host.DeleteView(view); });

    EXPECT_TRUE(property.SetIntegerValue(row, 1));
}

TEST_F(OldPropertyReentranceTest, NothingIsReadOnceTheLookUpOfTheRowHasDeletedTheView) {
    auto* const row = Row();
    host.calls.On("GetDataSource", [&] { host.DeleteView(view); });

    EXPECT_EQ(StringOf(property, row), "no");

    EXPECT_EQ(host.calls.Count("GetString"), 0U);
}

TEST_F(OldPropertyReentranceTest, NothingIsWrittenOnceTheLookUpOfTheRowHasDeletedTheView) {
    auto* const row = Row();
    host.calls.On("GetDataSource", [&] { host.DeleteView(view); });

    EXPECT_FALSE(property.SetIntegerValue(row, 1));

    EXPECT_EQ(host.calls.Count("SetDataPropertyInteger"), 0U);
}

TEST_F(OldPropertyReentranceTest, ASetScriptThatThrowsLeavesThePropertyAsItWas) {
    property.SetScripts("set", "");
    host.calls.On(script, [] { throw std::runtime_error("script"); });

    EXPECT_THROW(property.SetBooleanValue(&folder, true), std::runtime_error);

    host.calls.Off(script);
    EXPECT_EQ(StringOf(property, Row()), "bolt_1");
}

TEST_F(OldPropertyReentranceTest, ARowStillHasItsValuesWhileItsDeletionIsTold) {
    std::string told;
    zbtest::SignalRecorder recorder(host);
    auto const handle = recorder.On(&zbBrowserSignalManager::ViewItemListDeleted,
                                    [&](auto& rows) { told = StringOf(property, rows.at(0)); });

    view.DeleteList(&folder, &part);

    recorder.Discard();
    EXPECT_EQ(told, "bolt_1");
}

// New views

class NewPropertyReentranceTest : public zbtest::NewPropertiesTest {
protected:
    zbIBrowserViewProperty& property = Connected("name");

    NewPropertyReentranceTest() { property.SetDataType(ZBBROWSER_DATA_TYPE_STRING); }
};

TEST_F(NewPropertyReentranceTest, NothingIsReadOnceThePositioningHasDeletedTheView) {
    host.calls.On("SetCurrentDataItem", [&] { host.DeleteView(view); });

    EXPECT_EQ(ValueOf(property, &row), "no");

    EXPECT_EQ(host.calls.Count("GetVariant"), 0U);
}

TEST_F(NewPropertyReentranceTest, NothingIsWrittenOnceThePositioningHasDeletedTheView) {
    host.calls.On("SetCurrentDataItem", [&] { host.DeleteView(view); });

    EXPECT_FALSE(property.SetValue(&row, "text"));

    EXPECT_EQ(host.calls.Count("SetVariant"), 0U);
}

TEST_F(NewPropertyReentranceTest, NothingIsReadOnceTheLookUpOfTheRowHasDeletedTheView) {
    host.calls.On("GetDataSource", [&] { host.DeleteView(view); });

    EXPECT_EQ(ValueOf(property, &row), "no");

    EXPECT_EQ(host.calls.Count("GetVariant"), 0U);
}

TEST_F(NewPropertyReentranceTest, AConnectionThatThePositioningTakesAwayIsNotRead) {
    host.calls.On("SetCurrentDataItem", [&] { view.DeleteVPConnect(&property, &part); });

    EXPECT_EQ(ValueOf(property, &row), "no");

    EXPECT_EQ(host.calls.Count("GetVariant"), 0U);
}

TEST_F(NewPropertyReentranceTest, AConnectionThatThePositioningTakesAwayIsNotWritten) {
    host.calls.On("SetCurrentDataItem", [&] { view.DeleteVPConnect(&property, &part); });

    EXPECT_FALSE(property.SetValue(&row, "text"));

    EXPECT_EQ(host.calls.Count("SetVariant"), 0U);
}

TEST_F(NewPropertyReentranceTest, ALinkThatThePositioningTakesAwayGivesAnEmptyText) {
    auto& checked = Property("checked");
    checked.SetDataType(ZBBROWSER_DATA_TYPE_BOOLEAN);
    checked.SetScripts("set", "", "name");
    host.calls.On("SetCurrentDataItem", [&] { view.DeleteVPConnect(&property, &part); });

    EXPECT_TRUE(checked.SetBooleanValue(&row, true));

    EXPECT_EQ(host.calls.take().back(), "panel.GetStringFromScript set  true\n (  )");
}

TEST_F(NewPropertyReentranceTest, AScriptMayDeleteTheProperty) {
    property.SetScripts("", "get");
    host.panel.scriptResult = "text";
    host.calls.On(script, [&] { view.DeleteViewProperty(&property); });

    EXPECT_EQ(ValueOf(property, &row), "text");

    EXPECT_EQ(view.FindViewProperty("name"), nullptr);
}

TEST_F(NewPropertyReentranceTest, APropertyWithoutHolderFindsNoLink) {
    property.SetScripts("", "get");
    host.panel.scriptResult = "text";
    host.calls.On(script, [&] {
        view.DeletePropertyHolder();
        EXPECT_TRUE(property.SetScripts("set", "", "default_name_prop"));
    });

    EXPECT_EQ(ValueOf(property, &row), "text");
}

TEST_F(NewPropertyReentranceTest, ADataPropertyMayDeleteTheView) {
    host.calls.On("GetVariant", [&] { host.DeleteView(view); });

    EXPECT_EQ(ValueOf(property, &row), "bolt_1");
}

TEST_F(NewPropertyReentranceTest, ADataPropertyMayDeleteTheViewWhileItIsWrittenTo) {
    host.calls.On("SetVariant", [&] { host.DeleteView(view); });

    EXPECT_TRUE(property.SetValue(&row, "text"));
}

TEST_F(NewPropertyReentranceTest, ADataPropertyThatThrowsLeavesThePropertyAsItWas) {
    host.calls.On("GetVariant", [] { throw std::runtime_error("reader"); });

    EXPECT_THROW(static_cast<void>(ValueOf(property, &row)), std::runtime_error);

    host.calls.Off("GetVariant");
    EXPECT_EQ(ValueOf(property, &row), "bolt_1");
}

TEST_F(NewPropertyReentranceTest, AScriptMayDeleteTheHolder) {
    property.SetScripts("", "get");
    host.panel.scriptResult = "text";
    host.calls.On(script, [&] { view.DeletePropertyHolder(); });

    EXPECT_EQ(ValueOf(property, &row), "text");

    EXPECT_EQ(view.FindViewProperty("name"), nullptr);
}

TEST_F(NewPropertyReentranceTest, ADataPropertyMayDeleteTheHolder) {
    host.calls.On("GetVariant", [&] { view.DeletePropertyHolder(); });

    EXPECT_EQ(ValueOf(property, &row), "bolt_1");
}

TEST_F(NewPropertyReentranceTest, ALinkedPropertyMayDeleteTheViewBeforeTheScriptRuns) {
    auto& checked = Property("checked");
    checked.SetDataType(ZBBROWSER_DATA_TYPE_BOOLEAN);
    checked.SetScripts("set", "", "name");
    host.calls.On("GetVariant", [&] { host.DeleteView(view); });

    EXPECT_TRUE(checked.SetBooleanValue(&row, true));

    EXPECT_EQ(host.calls.take().back(), "panel.GetStringFromScript set bolt_1 true\n (  )");
}

TEST_F(NewPropertyReentranceTest, AThrowWhileTheControlIsPositionedLeavesThePropertyAsItWas) {
    host.calls.On("SetCurrentDataItem", [] { throw std::runtime_error("position"); });

    EXPECT_THROW(static_cast<void>(ValueOf(property, &row)), std::runtime_error);

    host.calls.Off("SetCurrentDataItem");
    EXPECT_EQ(ValueOf(property, &row), "bolt_1");
}

// The guard that is open while a group's name is looked for closes when that throws.
TEST_F(NewPropertyReentranceTest, TheViewCanBeDeletedAfterTheNameOfAGroupHasThrown) {
    zbtest::GroupingFolderDouble group(&view, {});
    EXPECT_THROW(static_cast<void>(ValueOf(Default("default_name_prop"), &group)), zbString);

    EXPECT_TRUE(host.DeleteView(view));

    EXPECT_EQ(host.Controller().FindView("view"), nullptr);
}

} // namespace
