// SPDX-License-Identifier: MIT
//! \file
//! The list of styles of a column.
#include "presentation/columns/ColumnBase.h"
#include "presentation/columns/ColumnSet.h"
#include "presentation/styles/zbBrowserStyleManager.h"
#include "StylesTest.h"

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class StyleManagerTest : public StylesTest<Generation> {};
TYPED_TEST_SUITE(StyleManagerTest, Generations, GenerationName);

TYPED_TEST(StyleManagerTest, AScriptedColumnStartsWithoutAStyle) {
    EXPECT_THAT(StyleNames(this->column), IsEmpty());
    EXPECT_EQ(this->Current(), nullptr);
    EXPECT_EQ(this->Manager().GetColumn(), &this->column);
}

TYPED_TEST(StyleManagerTest, TheDefaultColumnHasTheDefaultStyle) {
    auto const* const style = this->Default().FindStyle("default_style");

    EXPECT_THAT(StyleNames(this->Default()), ElementsAre("default_style"));
    EXPECT_THAT(ElementNames(*style),
                ElementsAre("default_style_elem_icon", "default_style_elem_name"));
    EXPECT_TRUE(style->IsPending());
    EXPECT_EQ(style->GetColumn(), &this->Default());
}

TYPED_TEST(StyleManagerTest, TheElementsOfTheDefaultStyleShowTheDefaultProperties) {
    auto const& style = *this->Default().FindStyle("default_style");
    auto const* const icon = style.FindElement("default_style_elem_icon");
    auto const* const name = style.FindElement("default_style_elem_name");

    EXPECT_NE(icon->GetViewProperty(), nullptr);
    EXPECT_EQ(icon->GetViewProperty(), this->view.FindViewProperty("default_icon_name_prop"));
    EXPECT_EQ(name->GetViewProperty(), this->view.FindViewProperty("default_name_prop"));
    EXPECT_STREQ(icon->GetTitle(), "");
    EXPECT_STREQ(name->GetTitle(), "");
}

TYPED_TEST(StyleManagerTest, AMadeStyleIsCurrentAndPendingAndNotAnnounced) {
    EXPECT_TRUE(this->column.CreateStyle("plain"));
    EXPECT_TRUE(this->column.CreateStyle("fancy"));

    EXPECT_THAT(this->signals.take(), IsEmpty());
    EXPECT_THAT(StyleNames(this->column), ElementsAre("plain", "fancy"));
    EXPECT_EQ(this->Current(), this->column.FindStyle("fancy"));
    EXPECT_TRUE(this->column.FindStyle("fancy")->IsPending());
    EXPECT_EQ(this->column.FindStyle("fancy")->GetColumn(), &this->column);
}

TYPED_TEST(StyleManagerTest, ATakenNameIsRefusedWithAText) {
    this->column.CreateStyle("plain");

    EXPECT_FALSE(this->column.CreateStyle("plain"));

    EXPECT_STREQ(this->Manager().GetError(), "Style \"plain\" already exists");
    EXPECT_FALSE(this->Manager().GetState());
    EXPECT_THAT(StyleNames(this->column), ElementsAre("plain"));
}

TYPED_TEST(StyleManagerTest, NamesDifferByCase) {
    EXPECT_TRUE(this->column.CreateStyle("plain"));
    EXPECT_TRUE(this->column.CreateStyle("PLAIN"));

    EXPECT_STREQ(this->column.FindStyle("PLAIN")->GetName(), "PLAIN");
    EXPECT_EQ(this->column.FindStyle("Plain"), nullptr);
    EXPECT_EQ(this->Default().FindStyle("Default_Style"), nullptr);
}

TYPED_TEST(StyleManagerTest, NamesMayBeLongAndNotUtf8) {
    std::string const longName(100'000, 'x');
    EXPECT_TRUE(this->column.CreateStyle("\xff\xc0"));
    EXPECT_TRUE(this->column.CreateStyle(longName.c_str()));

    EXPECT_THAT(StyleNames(this->column), ElementsAre("\xff\xc0", longName));
}

TYPED_TEST(StyleManagerTest, AStyleNeedsAName) {
    EXPECT_FALSE(this->column.CreateStyle(nullptr));
    EXPECT_FALSE(this->column.CreateStyle(""));

    EXPECT_TRUE(this->Manager().GetState());
    EXPECT_EQ(this->column.FindStyle(nullptr), nullptr);
    EXPECT_THAT(StyleNames(this->column), IsEmpty());
}

TYPED_TEST(StyleManagerTest, TwoColumnsMayHaveStylesOfOneName) {
    EXPECT_TRUE(this->column.CreateStyle("default_style"));
    EXPECT_TRUE(this->Default().CreateStyle("plain"));
    EXPECT_TRUE(this->column.CreateStyle("plain"));
}

TYPED_TEST(StyleManagerTest, TheListReplacesWhatWasInTheVector) {
    auto& style = MakeStyle(this->column, "plain");
    std::vector<zbIBrowserStyle*> styles(5, nullptr);

    EXPECT_TRUE(this->Manager().GetStyles(styles));

    EXPECT_THAT(styles, ElementsAre(&style));
}

TYPED_TEST(StyleManagerTest, AStyleOfTheColumnCanBeMadeCurrent) {
    auto& plain = MakeStyle(this->column, "plain");
    MakeStyle(this->column, "fancy");

    EXPECT_TRUE(this->column.SetCurrentStyle(&plain));

    EXPECT_EQ(this->Current(), &plain);
}

TYPED_TEST(StyleManagerTest, NoOtherStyleCanBeMadeCurrent) {
    auto& plain = MakeStyle(this->column, "plain");
    auto& deleted = MakeStyle(this->column, "deleted");
    this->column.DeleteStyle(&deleted);
    this->column.SetCurrentStyle(&plain);
    auto* const freed = &MakeStyle(this->column, "freed");
    delete freed;
    this->column.SetCurrentStyle(&plain);

    EXPECT_FALSE(this->column.SetCurrentStyle(nullptr));
    EXPECT_FALSE(this->column.SetCurrentStyle(this->Default().FindStyle("default_style")));
    EXPECT_FALSE(this->column.SetCurrentStyle(&deleted));
    EXPECT_FALSE(this->column.SetCurrentStyle(freed));
    EXPECT_EQ(this->Current(), &plain);
}

//! A controller of a host that wants to know of styles before the slots do.
class ListeningController final : public zbBrowserViewCtrl {
public:
    ListeningController()
        : zbBrowserViewCtrl(nullptr) {}

    Names heard;

    void OnStyleCreated(zbIBrowserStyle* style) override {
        heard.push_back(std::string("created ") + style->GetName());
    }
    void OnStyleDeleted(zbIBrowserStyle* style) override {
        heard.push_back(std::string("deleted ") + style->GetName());
    }
};

TYPED_TEST(StyleManagerTest, StylesAreAnnouncedByTheController) {
    ListeningController controller;
    typename TestFixture::Context context(this->view, &controller);
    context.SetColumns(std::make_unique<zbbrowser::detail::ColumnSet>(context));
    auto& listened = *context.Columns()->Add("listened");
    auto& style = MakeStyle(listened, "plain");
    ItemDouble row(&this->view);

    listened.GetViewItemStyle(&row);
    style.SetPending(false);
    listened.DeleteStyle(&style);

    EXPECT_THAT(controller.heard, ElementsAre("created plain", "deleted plain"));
}

// Differences

class OldStyleManagerTest : public StyleManagerTest<OldGeneration> {
protected:
    zbBrowserStyleManager& OldManager() {
        return static_cast<zbBrowserStyleManager&>(*column.GetStyleManager());
    }
};

TEST_F(OldStyleManagerTest, ATakenOutStyleCanBeAddedAgain) {
    auto& style = MakeStyle(column, "plain");
    MakeStyle(column, "fancy");
    column.DeleteStyle(&style);

    EXPECT_TRUE(OldManager().AddStyle(&style));

    EXPECT_THAT(StyleNames(column), ElementsAre("fancy", "plain"));
    EXPECT_EQ(Current(), &style);
}

TEST_F(OldStyleManagerTest, AStyleOfAnotherColumnMovesWhenItIsAdded) {
    auto& other = Column("state");
    auto& style = MakeStyle(other, "plain");

    EXPECT_TRUE(OldManager().AddStyle(&style));

    EXPECT_THAT(StyleNames(column), ElementsAre("plain"));
    EXPECT_THAT(StyleNames(other), IsEmpty());
    EXPECT_EQ(style.GetColumn(), &column);
}

TEST_F(OldStyleManagerTest, AStyleWhoseNameIsTakenIsNotAdded) {
    auto& style = MakeStyle(column, "plain");

    EXPECT_FALSE(OldManager().AddStyle(&style));

    EXPECT_STREQ(Manager().GetError(), "Style \"plain\" already exists");
    EXPECT_THAT(StyleNames(column), ElementsAre("plain"));
}

TEST_F(OldStyleManagerTest, NoStyleOfAnotherViewIsAdded) {
    EXPECT_FALSE(OldManager().AddStyle(nullptr));
    EXPECT_FALSE(OldManager().AddStyle(OtherView().GetDefaultColumn()->FindStyle("default_style")));
}

TEST_F(OldStyleManagerTest, TellsItsViewAndACopyOfItsList) {
    auto& style = MakeStyle(column, "plain");
    std::vector<zbIBrowserStyle*> styles(5, nullptr);

    EXPECT_TRUE(OldManager().GetStylesCopy(styles));

    EXPECT_THAT(styles, ElementsAre(&style));
    EXPECT_EQ(OldManager().GetView(), &view);
    EXPECT_FALSE(OldManager().RemoveStyleFromFolders(&style));
}

class NewStyleManagerTest : public StyleManagerTest<NewGeneration> {};

TEST_F(NewStyleManagerTest, TheDefaultStyleIsMadeWithoutDefaultPropertiesToo) {
    view.DeleteDefaultColumn();
    view.DeletePropertyHolder();

    view.CreateDefaultColumn();

    auto const& style = *Default().FindStyle("default_style");
    EXPECT_THAT(ElementNames(style),
                ElementsAre("default_style_elem_icon", "default_style_elem_name"));
    EXPECT_EQ(style.FindElement("default_style_elem_name")->GetViewProperty(), nullptr);
}

} // namespace
} // namespace zbtest
