// SPDX-License-Identifier: MIT
//! \file
//! The values of what is selected in an old view, as one text.
#include "OldSelectionFixture.h"

#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <string>

namespace zbtest {
namespace {

class OldSelectionText : public OldSelection {
protected:
    OldSelectionText() {
        part["bolt"].Set("size", "M6");
        part["nut"].Set("size", "left handed");
        part["pin"].Set("size", "");
        Show(a, part);
        Show(a, tool);
        view.CreateViewProperty("size");
        Select({&a});
    }
    [[nodiscard]] zbIBrowserViewProperty* Property() { return view.FindViewProperty("size"); }
    [[nodiscard]] std::string Text(bool list) {
        zbString text = "before";
        auto const answer = manager.GetSelectedPropertyTextOfSource(
            static_cast<zbIBrowserDataSourceSimple*>(&part), Property(), Property(), text, list);
        return std::string(answer ? "true " : "false ") + text.c_str();
    }
};

TEST_F(OldSelectionText, TheValuesOfASourceStandWithABlankBetween) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));

    EXPECT_EQ(Text(false), "true M6 left handed");
}

TEST_F(OldSelectionText, InAListAValueWithABlankStandsInBraces) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));

    EXPECT_EQ(Text(true), "true M6 {left handed}");
}

TEST_F(OldSelectionText, WithoutADataPropertyForTheSourceTheAnswerIsFalseAtOnce) {
    View().CreateVPConnect(Property(), &tool, &tool.Property("size"));

    EXPECT_EQ(Text(false), "false before");
}

TEST_F(OldSelectionText, WithoutSelectedItemsThereIsNoText) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));
    manager.ClearAll();

    EXPECT_EQ(Text(false), "false ");
}

TEST_F(OldSelectionText, NullIsNoProperty) {
    zbString text = "before";

    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(
        static_cast<zbIBrowserDataSourceSimple*>(&part), nullptr, Property(), text, false));
    EXPECT_FALSE(manager.GetSelectedPropertyTextOfSource(
        static_cast<zbIBrowserDataSourceHierarchical*>(nullptr), Property(), Property(), text,
        false));
    EXPECT_EQ(text, "before");
}

TEST_F(OldSelectionText, ATreeWithoutRowsHasNoText) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));
    auto* const tree = static_cast<zbIBrowserDataSourceHierarchical*>(&host.Tree("t", part));
    zbString text = "before";

    EXPECT_FALSE(
        manager.GetSelectedPropertyTextOfSource(tree, Property(), Property(), text, false));
    EXPECT_EQ(text, "");
}

TEST_F(OldSelectionText, ARowThatGoesWhileAnotherValueIsReadHasNoValue) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));
    host.calls.On("GetString", "size", [this] { View().OnDataItemDeleted(&part["nut"]); });

    EXPECT_EQ(Text(false), "true M6");
    signals.Discard();
}

TEST_F(OldSelectionText, NoValueIsReadBehindTheEndOfItsConnection) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));
    host.calls.On("GetString", "size", [this] { View().DeleteVPConnect(Property(), &part); });

    EXPECT_EQ(Text(false), "true M6");
    EXPECT_EQ(host.calls.Count("GetString", "size"), 1U);
    signals.Discard();
}

TEST_F(OldSelectionText, NoValueIsReadBehindTheEndOfTheView) {
    View().CreateVPConnect(Property(), &part, &part.Property("size"));
    host.calls.On("GetString", "size", [this] { host.DeleteView(view); });
    auto* const property = Property();
    zbString text;

    manager.GetSelectedPropertyTextOfSource(static_cast<zbIBrowserDataSourceSimple*>(&part),
                                            property, property, text, false);

    EXPECT_EQ(host.calls.Count("GetString", "size"), 1U);
    signals.Discard();
}

} // namespace
} // namespace zbtest
