// SPDX-License-Identifier: MIT
//! \file
//! Scripted properties of an old view.

#include "PropertiesTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::StringOf;

class OldScriptsTest : public zbtest::OldPropertiesTest {
protected:
    zbIBrowserViewProperty& property = Connected("name");

    //! Gives the property a get script with this result.
    void Scripted(char const* result) {
        property.SetScripts("", "get");
        host.panel.scriptResult = result;
    }

    [[nodiscard]] int Integer() {
        int out = -1;
        EXPECT_TRUE(property.GetIntegerValue(Row(), out));
        return out;
    }

    [[nodiscard]] unsigned Unsigned() {
        unsigned out = 99;
        EXPECT_TRUE(property.GetUnsignedValue(Row(), out));
        return out;
    }

    [[nodiscard]] bool Boolean(bool before) {
        EXPECT_TRUE(property.GetBooleanValue(Row(), before));
        return before;
    }

    [[nodiscard]] double Double() {
        double out = -1;
        EXPECT_TRUE(property.GetDoubleValue(Row(), out));
        return out;
    }
};

// Reading

TEST_F(OldScriptsTest, AScriptGivesTheValueWhateverIsConnected) {
    Scripted("of the script");

    EXPECT_EQ(StringOf(property, Row()), "of the script");
    EXPECT_THAT(host.calls.take(), ElementsAre("panel.GetStringFromScript get (  )"));
}

TEST_F(OldScriptsTest, AFolderPassesItsPathToTheScript) {
    Scripted("text");

    EXPECT_EQ(StringOf(property, &Folder("b", &folder)), "text");
    EXPECT_THAT(host.calls.take(), ElementsAre("panel.GetStringFromScript get ( /a/b )"));
}

TEST_F(OldScriptsTest, TheRootPassesASlashToTheScript) {
    Scripted("text");

    EXPECT_EQ(StringOf(property, view.GetRootFreeFolder()), "text");
    EXPECT_THAT(host.calls.take(), ElementsAre("panel.GetStringFromScript get ( / )"));
}

TEST_F(OldScriptsTest, AFolderOfAnotherViewPassesAnEmptyText) {
    Scripted("text");
    auto& foreign = *host.OldView("other").GetRootFreeFolder();

    EXPECT_EQ(StringOf(property, &foreign), "text");
    EXPECT_THAT(host.calls.take(), ElementsAre("panel.GetStringFromScript get (  )"));
}

TEST_F(OldScriptsTest, TheNumberAtTheBeginningOfAScriptsTextCounts) {
    Scripted("12 kg");
    EXPECT_EQ(Integer(), 12);
    EXPECT_EQ(Unsigned(), 12U);
    Scripted("-5");
    EXPECT_EQ(Integer(), -5);
    EXPECT_EQ(Unsigned(), static_cast<unsigned>(-5));
    Scripted("kg");
    EXPECT_EQ(Integer(), 0);
    EXPECT_EQ(Unsigned(), 0U);
    Scripted("99999999999999999999");
    EXPECT_EQ(Integer(), -1); // The nearest long, cut to its low half
}

TEST_F(OldScriptsTest, ADoubleIsReadFromAScriptsText) {
    Scripted("2.5 kg");
    EXPECT_EQ(Double(), 2.5);
    Scripted("kg");
    EXPECT_EQ(Double(), 0);
}

TEST_F(OldScriptsTest, OnlyTheExactWordIsTrue) {
    Scripted("true");
    EXPECT_TRUE(Boolean(false));
    Scripted("TRUE");
    EXPECT_FALSE(Boolean(true));
    Scripted("true ");
    EXPECT_FALSE(Boolean(true));
    Scripted("1");
    EXPECT_FALSE(Boolean(true));
}

TEST_F(OldScriptsTest, ADisplayTextIsTheTextOfTheScript) {
    Scripted("2.5 kg");
    zbString out;

    EXPECT_TRUE(property.GetDisplayValue(Row(), out));

    EXPECT_EQ(out, "2.5 kg");
}

TEST_F(OldScriptsTest, TheTextOfAScriptLastsUntilTheNextCall) {
    Scripted("first");
    char const* const text = property.GetTextPointer(Row());
    host.panel.scriptResult = "second";

    EXPECT_EQ(StringOf(property, Row()), "second");

    EXPECT_STREQ(text, "first");
    EXPECT_STREQ(property.GetTextPointer(Row()), "second");
}

TEST_F(OldScriptsTest, AScriptThatFailsReadsAsAnEmptyText) {
    Scripted("");
    host.panel.scriptResult.reset();
    zbString out = "before";

    EXPECT_TRUE(property.GetStringValue(Row(), out));

    EXPECT_EQ(out, "");
    EXPECT_EQ(Integer(), 0);
    EXPECT_FALSE(Boolean(true));
    EXPECT_STREQ(property.GetTextPointer(Row()), "");
}

TEST_F(OldScriptsTest, WithoutPanelAScriptReadsAsAnEmptyText) {
    Scripted("text");
    host.manager.panel = nullptr;

    EXPECT_EQ(StringOf(property, Row()), "");
}

TEST_F(OldScriptsTest, NoScriptRunsForNullWhereNullIsRefused) {
    Scripted("12");
    int number = 0;
    unsigned positive = 0;
    double real = 0;

    EXPECT_FALSE(property.GetIntegerValue(nullptr, number));
    EXPECT_FALSE(property.GetUnsignedValue(nullptr, positive));
    EXPECT_FALSE(property.GetDoubleValue(nullptr, real));
    EXPECT_EQ(StringOf(property, nullptr), "no");

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(OldScriptsTest, TruthValueTextPointerAndDisplayTextOfNullComeFromTheScript) {
    Scripted("true");
    bool truth = false;
    zbString text;

    EXPECT_TRUE(property.GetBooleanValue(nullptr, truth));
    EXPECT_STREQ(property.GetTextPointer(nullptr), "true");
    EXPECT_TRUE(property.GetDisplayValue(nullptr, text));

    EXPECT_TRUE(truth);
    EXPECT_EQ(text, "true");
}

TEST_F(OldScriptsTest, NoGetScriptMeansToReadTheConnectionAgain) {
    Scripted("of the script");

    EXPECT_TRUE(property.SetScripts(nullptr, nullptr));

    EXPECT_EQ(StringOf(property, Row()), "bolt_1");
}

// Writing

TEST_F(OldScriptsTest, AFolderIsWrittenByTheScript) {
    property.SetScripts("set", "");
    auto& below = Folder("b", &folder);

    EXPECT_TRUE(property.SetBooleanValue(&below, true));
    EXPECT_TRUE(property.SetBooleanValue(&folder, false));
    EXPECT_TRUE(property.SetIntegerValue(&folder, -3));
    EXPECT_TRUE(property.SetIntegerValue(view.GetRootFreeFolder(), 0));
    property.SetTextByScript(&folder, "some text");

    EXPECT_THAT(host.calls.take(), ElementsAre("panel.GetStringFromScript set /a/b true (  )",
                                               "panel.GetStringFromScript set /a false (  )",
                                               "panel.GetStringFromScript set /a true (  )",
                                               "panel.GetStringFromScript set / false (  )",
                                               "panel.GetStringFromScript set /a some text (  )"));
}

TEST_F(OldScriptsTest, WithASetScriptARowCountsAsWrittenAndNothingRuns) {
    property.SetScripts("set", "");

    EXPECT_TRUE(property.SetIntegerValue(Row(), 7));
    EXPECT_TRUE(property.SetBooleanValue(Row(), true));
    property.SetTextByScript(Row(), "text");

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(OldScriptsTest, NullIsNotWrittenByTheScript) {
    property.SetScripts("set", "");

    EXPECT_FALSE(property.SetIntegerValue(nullptr, 7));
    EXPECT_FALSE(property.SetBooleanValue(nullptr, true));
    property.SetTextByScript(nullptr, "text");

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(OldScriptsTest, AFolderOfAnotherViewIsNotWrittenByTheScript) {
    property.SetScripts("set", "");

    property.SetTextByScript(host.OldView("other").GetRootFreeFolder(), "text");

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(OldScriptsTest, AFolderWithoutPathIsNotWrittenByTheScript) {
    property.SetScripts("set", "");
    folder.SetParentFolder(nullptr);

    property.SetTextByScript(&folder, "text");

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

TEST_F(OldScriptsTest, WithoutSetScriptATextIsNotWritten) {
    property.SetScripts("", "get");

    property.SetTextByScript(&folder, "text");

    EXPECT_THAT(host.calls.take(), IsEmpty());
}

} // namespace
