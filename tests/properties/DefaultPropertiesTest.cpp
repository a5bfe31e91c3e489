// SPDX-License-Identifier: MIT
//! \file
//! The texts of "default_name_prop" and "default_icon_name_prop".

#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "presentation/properties/FolderTexts.h"
#include "PropertiesTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::NodeDouble;
using zbtest::StringOf;
using zbtest::Thrown;
using zbtest::ValueOf;

// What holds for both generations

template <class Generation>
class DefaultPropertiesTest : public zbtest::PropertiesTest<Generation> {
protected:
    zbIBrowserViewProperty& name = this->Default("default_name_prop");
    zbIBrowserViewProperty& icon = this->Default("default_icon_name_prop");
};

TYPED_TEST_SUITE(DefaultPropertiesTest, zbtest::Generations, zbtest::GenerationName);

TYPED_TEST(DefaultPropertiesTest, TheNameOfAFolderIsItsName) {
    auto& folder = this->Folder("b", &this->Folder("a"));

    EXPECT_EQ(this->TextOf(this->name, &folder), "b");
    EXPECT_EQ(this->TextOf(this->name, this->view.GetRootFreeFolder()), "");
}

TYPED_TEST(DefaultPropertiesTest, TheIconOfAFolderIsItsPath) {
    auto& folder = this->Folder("b", &this->Folder("a"));

    EXPECT_EQ(this->TextOf(this->icon, &folder), "/a/b");
    EXPECT_EQ(this->TextOf(this->icon, this->view.GetRootFreeFolder()), "/");
}

TYPED_TEST(DefaultPropertiesTest, AnEmptyFolderMayShowThatItHasNoRows) {
    auto& folder = this->Folder("a");

    folder.SetCaptionShowsCount(true, false);
    EXPECT_EQ(this->TextOf(this->name, &folder), "a (0)");
    folder.SetCaptionShowsCount(true, true);
    EXPECT_EQ(this->TextOf(this->name, &folder), "a (0)");
    folder.SetCaptionShowsCount(false, true);
    EXPECT_EQ(this->TextOf(this->name, &folder), "a");
}

TYPED_TEST(DefaultPropertiesTest, TheIconOfAnEmptyFolderShowsNoData) {
    auto& folder = this->Folder("a");

    folder.SetIconShowsData(true, false);
    EXPECT_EQ(this->TextOf(this->icon, &folder), "/a");
    folder.SetIconShowsData(true, true);
    EXPECT_EQ(this->TextOf(this->icon, &folder), "/a");
}

TYPED_TEST(DefaultPropertiesTest, AScriptAnswersForEverythingAndGetsAnEmptyArgument) {
    this->host.panel.scriptResult = "text";
    this->name.SetScripts("", "get");
    auto& folder = this->Folder("a");
    zbtest::GroupingFolderDouble group(&this->view, {});
    static_cast<void>(this->host.calls.take());

    EXPECT_EQ(this->TextOf(this->name, &folder), "text");
    EXPECT_EQ(this->TextOf(this->name, &group), "text");
    EXPECT_EQ(this->TextOf(this->name, nullptr), "text");

    EXPECT_THAT(this->host.calls.take(), testing::Each("panel.GetStringFromScript get (  )"));
}

TYPED_TEST(DefaultPropertiesTest, AScriptThatFailsGivesAnEmptyText) {
    this->icon.SetScripts("", "get");

    EXPECT_EQ(this->TextOf(this->icon, nullptr), "");
}

TYPED_TEST(DefaultPropertiesTest, NullHasNoText) {
    EXPECT_EQ(this->TextOf(this->name, nullptr), "no");
    EXPECT_EQ(this->TextOf(this->icon, nullptr), "no");
}

TYPED_TEST(DefaultPropertiesTest, AFolderOfAnotherViewHasNoText) {
    auto& sameGeneration = *TypeParam::Make(this->host, "other").GetRootFreeFolder();
    zbtest::FolderDouble unknown(&this->view, "a");

    EXPECT_EQ(this->TextOf(this->name, &sameGeneration), "no");
    EXPECT_EQ(this->TextOf(this->icon, &sameGeneration), "no");
    EXPECT_EQ(this->TextOf(this->name, &unknown), "no");
    EXPECT_EQ(this->TextOf(this->icon, &unknown), "no");
}

TYPED_TEST(DefaultPropertiesTest, BoldAndItalicArePlainProperties) {
    auto& folder = this->Folder("a");

    EXPECT_EQ(this->TextOf(this->Default("default_bold_text_prop"), &folder), "no");
    EXPECT_EQ(this->TextOf(this->Default("default_italic_text_prop"), &folder), "no");
}

// Old views

class OldDefaultPropertiesTest : public zbtest::OldPropertiesTest {
protected:
    zbIBrowserViewProperty& name = Default("default_name_prop");
    zbIBrowserViewProperty& icon = Default("default_icon_name_prop");
};

TEST_F(OldDefaultPropertiesTest, AFolderShowsTheNumberOfItsRows) {
    folder.SetCaptionShowsCount(true, false);

    EXPECT_EQ(StringOf(name, &folder), "a (2)");
}

TEST_F(OldDefaultPropertiesTest, HiddenRowsCount) {
    folder.SetCaptionShowsCount(true, false);
    dynamic_cast<zbBrowserViewItemDataLeaf&>(*Row()).SetHidden(true);

    EXPECT_EQ(StringOf(name, &folder), "a (2)");
}

TEST_F(OldDefaultPropertiesTest, AFolderShowsTheNumberOfRowsInItAndBelow) {
    auto& below = Folder("b", &folder);
    auto& deep = Folder("c", &below);
    view.CreateList(&deep, &part, false);
    folder.SetCaptionShowsCount(true, true);
    below.SetCaptionShowsCount(true, false);

    EXPECT_EQ(StringOf(name, &folder), "a (4)");
    EXPECT_EQ(StringOf(name, &below), "b (0)");
}

TEST_F(OldDefaultPropertiesTest, TheIconShowsThatAFolderHasRows) {
    folder.SetIconShowsData(true, false);

    EXPECT_EQ(StringOf(icon, &folder), "/a_DATA");
}

TEST_F(OldDefaultPropertiesTest, TheIconShowsThatThereAreRowsInAFolderOrBelow) {
    auto& root = *view.GetRootFreeFolder();
    root.SetIconShowsData(true, true);
    folder.SetIconShowsData(true, true);

    EXPECT_EQ(StringOf(icon, &root), "/_DATA_RECURSIVE");
    EXPECT_EQ(StringOf(icon, &folder), "/a_DATA_RECURSIVE");
    root.SetIconShowsData(true, false);
    EXPECT_EQ(StringOf(icon, &root), "/");
}

TEST_F(OldDefaultPropertiesTest, TheTextsOfARowComeFromItsConnections) {
    view.CreateVPConnect(&name, &part, &part.Property("name"));
    view.CreateVPConnect(&icon, &part, &part.Property("id"));

    EXPECT_EQ(StringOf(name, Row(1)), "nut_2");
    EXPECT_EQ(StringOf(icon, Row(1)), "2");
}

TEST_F(OldDefaultPropertiesTest, ARowWithoutConnectionHasTheNameOfItsSourceAsIconAndNoName) {
    EXPECT_EQ(StringOf(icon, Row()), "part");
    EXPECT_EQ(StringOf(name, Row()), "no");
}

TEST_F(OldDefaultPropertiesTest, ARowWhoseDataHasNoSourceHasNeither) {
    part["bolt_1"].source = nullptr;

    EXPECT_EQ(StringOf(icon, Row()), "no");
    EXPECT_EQ(StringOf(name, Row()), "no");
}

TEST_F(OldDefaultPropertiesTest, ADataPropertyThatFailsIsNotReplacedByTheNameOfTheSource) {
    view.CreateVPConnect(&icon, &part, &part.Property("icon"));

    EXPECT_EQ(StringOf(icon, Row()), "no");
}

TEST_F(OldDefaultPropertiesTest, WhatHasNoTextClearsTheOutput) {
    zbString ofRow = "before";
    zbString ofGroup = "before";
    zbString ofNull = "before";
    zbtest::DependentFolderDouble group(&view);

    EXPECT_FALSE(name.GetStringValue(Row(), ofRow));
    EXPECT_FALSE(name.GetStringValue(&group, ofGroup));
    EXPECT_FALSE(name.GetStringValue(nullptr, ofNull));

    EXPECT_EQ(ofRow, "");
    EXPECT_EQ(ofGroup, "");
    EXPECT_EQ(ofNull, "before");
}

TEST_F(OldDefaultPropertiesTest, DisplayTextAndLongFormAreTheSameText) {
    zbString display;
    zbString longForm;

    EXPECT_TRUE(name.GetDisplayValue(&folder, display));
    EXPECT_TRUE(icon.GetStringValue(&folder, nullptr, longForm));

    EXPECT_EQ(display, "a");
    EXPECT_EQ(longForm, "/a");
}

TEST_F(OldDefaultPropertiesTest, TheOtherReadsOfADefaultPropertyPassThePathOfAFolder) {
    name.SetScripts("", "get");
    host.panel.scriptResult = "12";
    int number = 0;

    EXPECT_TRUE(name.GetIntegerValue(&folder, number));

    EXPECT_EQ(number, 12);
    EXPECT_THAT(host.calls.take(), ElementsAre("panel.GetStringFromScript get ( /a )"));
}

// New views

class NewDefaultPropertiesTest : public zbtest::NewPropertiesTest {
protected:
    zbIBrowserViewProperty& name = Default("default_name_prop");
    zbIBrowserViewProperty& icon = Default("default_icon_name_prop");
};

TEST_F(NewDefaultPropertiesTest, TheTextsOfARowComeFromItsConnections) {
    view.CreateVPConnect(&name, &part, &part.Property("name"));
    view.CreateVPConnect(&icon, &part, &part.Property("id"));
    zbVariant id;

    EXPECT_EQ(ValueOf(name, &row), "bolt_1");
    EXPECT_TRUE(icon.GetValue(&row, id));

    EXPECT_EQ(id.GetKind(), zbVariant::Integer);
    EXPECT_THAT(host.calls.take(),
                ElementsAre("data.SetCurrentDataItem bolt_1", "name.GetVariant bolt_1",
                            "data.SetCurrentDataItem bolt_1", "id.GetVariant bolt_1"));
}

TEST_F(NewDefaultPropertiesTest, ARowWithoutConnectionHasTheNameOfItsSourceAsIconAndNoName) {
    EXPECT_EQ(ValueOf(icon, &row), "part");
    EXPECT_EQ(ValueOf(name, &row), "no");
}

TEST_F(NewDefaultPropertiesTest, ARowWithoutDataHasNeither) {
    row.data = nullptr;

    EXPECT_EQ(ValueOf(icon, &row), "no");
    EXPECT_EQ(ValueOf(name, &row), "no");
}

TEST_F(NewDefaultPropertiesTest, ARowOfAnotherViewHasNeither) {
    NodeDouble foreign(&host.NewView("other"), &bolt);

    EXPECT_EQ(ValueOf(icon, &foreign), "no");
    EXPECT_EQ(ValueOf(name, &foreign), "no");
}

TEST_F(NewDefaultPropertiesTest, AScriptIsRunWithoutPositioningTheControl) {
    name.SetScripts("", "get");

    EXPECT_EQ(ValueOf(name, &row), "");

    EXPECT_THAT(host.calls.take(), ElementsAre("panel.GetStringFromScript get (  )"));
}

TEST_F(NewDefaultPropertiesTest, AFolderHasNoRows) {
    auto& folder = Folder("b", &Folder("a"));
    auto& above = *folder.GetParentFreeFolder();
    above.SetCaptionShowsCount(true, true);
    above.SetIconShowsData(true, true);

    EXPECT_EQ(ValueOf(name, &above), "a (0)");
    EXPECT_EQ(ValueOf(icon, &above), "/a");
}

TEST_F(NewDefaultPropertiesTest, ADependentFolderAnswersTrueAndNothing) {
    zbtest::DependentFolderDouble group(&view);
    zbVariant out("untouched");

    EXPECT_TRUE(name.GetValue(&group, out));
    EXPECT_TRUE(icon.GetValue(&group, out));

    EXPECT_EQ(ToText(out), "untouched");
}

TEST_F(NewDefaultPropertiesTest, TheIconOfAGroupIsTheNameOfItsFirstSource) {
    zbtest::GroupingFolderDouble group(&view, {&part, &host.Source("tool")});

    EXPECT_EQ(ValueOf(icon, &group), "part");
}

TEST_F(NewDefaultPropertiesTest, AGroupWithoutSourceHasNoIcon) {
    zbtest::GroupingFolderDouble empty(&view, {});
    zbtest::GroupingFolderDouble ofNull(&view, {nullptr});

    EXPECT_EQ(ValueOf(icon, &empty), "no");
    EXPECT_EQ(ValueOf(icon, &ofNull), "no");
}

TEST_F(NewDefaultPropertiesTest, AskingTheNameOfAGroupThatIsNotInItsFolderThrows) {
    zbtest::GroupingFolderDouble group(&view, {&part});
    zbVariant out("untouched");

    EXPECT_EQ(Thrown([&] { name.GetValue(&group, out); }), "string: Null pointer hit");

    EXPECT_EQ(ToText(out), "untouched");
}

TEST_F(NewDefaultPropertiesTest, AnythingElseHasNoText) {
    zbtest::ItemDouble leaf(&view);

    EXPECT_EQ(ValueOf(name, &leaf), "no");
    EXPECT_EQ(ValueOf(icon, &leaf), "no");
}

// The count by itself, as a group shows it

TEST(FolderTextsTest, ACountStandsInBracketsBehindABlank) {
    zbString text;

    zbbrowser::detail::AppendCount(text, 3);

    EXPECT_EQ(text, " (3)");
}

TEST(FolderTextsTest, ACountHas32Bits) {
    zbString text;

    zbbrowser::detail::AppendCount(text, 4294967295U);
    zbbrowser::detail::AppendCount(text, 4294967297U);

    EXPECT_EQ(text, " (4294967295) (1)");
}

} // namespace
