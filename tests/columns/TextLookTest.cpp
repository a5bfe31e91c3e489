// SPDX-License-Identifier: MIT
//! \file
//! Whether texts are bold or italic, and check boxes set.
#include "ColumnsTest.h"

#include <stdexcept>

namespace zbtest {
namespace {

using testing::IsEmpty;

template <class Generation>
class TextLookTest : public ColumnsTest<Generation> {
protected:
    zbIBrowserViewItemFreeFolder& folder = this->Folder("a");
    zbIBrowserStyleElement& element = *NameElement(this->view);

    static zbIBrowserStyleElement* NameElement(zbIBrowserView& view) {
        return view.GetDefaultColumn()
            ->FindStyle("default_style")
            ->FindElement("default_style_elem_name");
    }

    //! What a question answers: "no", or its output.
    template <class Question>
    std::string Ask(Question question, zbIBrowserViewItem* item, zbIBrowserStyleElement* asked,
                    bool before) {
        bool out = before;
        if (!(this->view.*question)(item, asked, out)) {
            EXPECT_EQ(out, before) << "a refusal leaves the output alone";
            return "no";
        }
        return out ? "yes: true" : "yes: false";
    }
    std::string Bold(zbIBrowserViewItem& item, bool before = true) {
        return Ask(&TextLookTest::View::IsTextBold, &item, &element, before);
    }
    std::string Italic(zbIBrowserViewItem& item, bool before = true) {
        return Ask(&TextLookTest::View::IsTextItalic, &item, &element, before);
    }
    std::string CheckBox(zbIBrowserViewItem& item, bool before = true) {
        return Ask(&TextLookTest::View::GetCheckBoxValue, &item, &element, before);
    }
};
TYPED_TEST_SUITE(TextLookTest, Generations, GenerationName);

TYPED_TEST(TextLookTest, AFolderIsNeitherBoldNorItalicAtFirst) {
    EXPECT_EQ(this->Bold(this->folder), "yes: false");
    EXPECT_EQ(this->Italic(this->folder), "yes: false");
    EXPECT_EQ(this->CheckBox(this->folder), "no");
}

TYPED_TEST(TextLookTest, NothingIsToldAboutNullAndElementsThatAreNotOfTheView) {
    auto& column = this->Column("weight");
    auto* const orphan = MakeStyle(column, "plain").CreateElement("a", "A");
    this->view.DeleteScriptedColumn(&column);
    auto* const freed = MakeStyle(this->Default(), "fancy").CreateElement("b", "B");
    delete freed;
    auto* const foreign = this->NameElement(this->OtherView());
    using V = typename TestFixture::View;

    for (auto const question : {&V::IsTextBold, &V::IsTextItalic, &V::GetCheckBoxValue}) {
        EXPECT_EQ(this->Ask(question, nullptr, &this->element, true), "no");
        for (auto* const wrong :
             {static_cast<zbIBrowserStyleElement*>(nullptr), orphan, freed, foreign}) {
            EXPECT_EQ(this->Ask(question, &this->folder, wrong, true), "no");
        }
    }
    this->signals.Discard();
}

TYPED_TEST(TextLookTest, NothingIsItalicInAColumnThatIsNot) {
    this->Default().SetItalic(false);

    EXPECT_EQ(this->Italic(this->folder), "no");
    EXPECT_EQ(this->Bold(this->folder), "yes: false");
    this->signals.Discard();
}

// Old views

class OldTextLookTest : public TextLookTest<OldGeneration> {
protected:
    RecordingSource& part = host.Source("part").Items({"bolt_1"});
    DependentFolderDouble group{&view};

    OldTextLookTest() {
        EXPECT_TRUE(view.DataSourceConnect(&part));
        EXPECT_TRUE(view.CreateList(&folder, &part, false));
        signals.Discard();
    }

    zbIBrowserViewItem& Row() {
        std::vector<zbIBrowserViewItem*> rows;
        EXPECT_TRUE(view.GetChildren(rows, &folder));
        return *rows.front();
    }

    //! Makes a default property read a value of the item.
    void Read(char const* viewProperty, zbVariant value) {
        part["bolt_1"].Set("look", std::move(value));
        EXPECT_TRUE(view.CreateVPConnect(view.FindViewProperty(viewProperty), &part,
                                         &part.Property("look")));
    }
};

TEST_F(OldTextLookTest, AFolderTellsItsOwnLook) {
    folder.SetTextBold(true);
    EXPECT_EQ(Bold(folder, false), "yes: true");
    EXPECT_EQ(Italic(folder, true), "yes: false");

    folder.SetTextBold(false);
    folder.SetTextItalic(true);

    EXPECT_EQ(Bold(folder, true), "yes: false");
    EXPECT_EQ(Italic(folder, false), "yes: true");
    signals.Discard();
}

TEST_F(OldTextLookTest, AGroupIsNeitherBoldNorItalic) {
    EXPECT_EQ(Bold(group), "yes: false");
    EXPECT_EQ(Italic(group), "yes: false");
    EXPECT_EQ(CheckBox(group), "no");
}

TEST_F(OldTextLookTest, ARowIsBoldIfThePropertySaysSo) {
    Read("default_bold_text_prop", true);

    EXPECT_EQ(Bold(Row(), false), "yes: true");
    EXPECT_EQ(Italic(Row()), "no") << "the other property is not connected";
}

TEST_F(OldTextLookTest, ARowIsItalicIfThePropertySaysSo) {
    Read("default_italic_text_prop", true);

    EXPECT_EQ(Italic(Row(), false), "yes: true");
    EXPECT_EQ(Bold(Row()), "no");
}

TEST_F(OldTextLookTest, ARowIsNotItalicInAColumnThatIsNot) {
    Read("default_italic_text_prop", true);
    Default().SetItalic(false);

    EXPECT_EQ(Italic(Row()), "no");
    signals.Discard();
}

TEST_F(OldTextLookTest, ACheckBoxShowsTheItalicPropertyWhateverTheColumnAllows) {
    Read("default_italic_text_prop", true);
    Default().SetItalic(false);

    EXPECT_EQ(CheckBox(Row(), false), "yes: true");
    signals.Discard();
}

TEST_F(OldTextLookTest, APropertyOfAnotherTypeLeavesTheOutputAlone) {
    Read("default_bold_text_prop", true);
    Read("default_italic_text_prop", true);
    view.FindViewProperty("default_bold_text_prop")->SetDataType(ZBBROWSER_DATA_TYPE_STRING);
    view.FindViewProperty("default_italic_text_prop")->SetDataType(ZBBROWSER_DATA_TYPE_NOT_SET);

    EXPECT_EQ(Bold(Row(), false), "yes: false");
    EXPECT_EQ(Italic(Row(), false), "yes: false");
    EXPECT_EQ(CheckBox(Row(), false), "yes: false");
}

TEST_F(OldTextLookTest, ARowWhoseValueIsNoTruthValueIsNotTold) {
    Read("default_bold_text_prop", "bold");

    EXPECT_EQ(Bold(Row()), "no");
}

TEST_F(OldTextLookTest, WithoutADataControlAndASourceARowIsNotTold) {
    ItemDouble row(&view);

    EXPECT_EQ(Bold(row), "no");
    EXPECT_EQ(Italic(row), "no");
    EXPECT_EQ(CheckBox(row), "no");
}

TEST_F(OldTextLookTest, TheReaderMayDeleteTheView) {
    Read("default_bold_text_prop", true);
    auto& row = Row();
    host.calls.On("GetBoolean", [&] { host.DeleteView(view); });

    EXPECT_EQ(Bold(row, false), "yes: true");

    EXPECT_EQ(host.Controller().FindView("view"), nullptr);
}

// New views

class NewTextLookTest : public TextLookTest<NewGeneration> {};

TEST_F(NewTextLookTest, AFolderIsNeverBoldOrItalic) {
    folder.SetTextBold(true);
    folder.SetTextItalic(true);

    EXPECT_EQ(Bold(folder), "yes: false");
    EXPECT_EQ(Italic(folder), "yes: false");
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(NewTextLookTest, NothingIsToldAboutOtherItems) {
    RecordingItem& bolt = host.Source("part").Add("bolt_1");
    NodeDouble row(&view, &bolt);
    GroupingFolderDouble group(&view, {});

    EXPECT_EQ(Bold(row), "no");
    EXPECT_EQ(Italic(row), "no");
    EXPECT_EQ(CheckBox(row), "no");
    EXPECT_EQ(Bold(group), "no");
    EXPECT_EQ(Italic(group), "no");
}

} // namespace
} // namespace zbtest
