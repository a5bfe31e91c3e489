// SPDX-License-Identifier: MIT
//! \file
//! Taking styles out of a column.
#include "presentation/columns/ColumnBase.h"
#include "presentation/columns/ColumnSet.h"
#include "StylesTest.h"

#include <stdexcept>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class StyleDeletionTest : public StylesTest<Generation> {};
TYPED_TEST_SUITE(StyleDeletionTest, Generations, GenerationName);

TYPED_TEST(StyleDeletionTest, APendingStyleIsDeletedSilently) {
    auto& style = MakeStyle(this->column, "plain");

    EXPECT_TRUE(this->column.DeleteStyle(&style));

    EXPECT_THAT(this->signals.take(), IsEmpty());
    EXPECT_THAT(StyleNames(this->column), IsEmpty());
}

TYPED_TEST(StyleDeletionTest, AStyleThatTheHostHasIsAnnouncedBeforeItLeavesTheList) {
    auto& style = MakeKnownStyle(this->column, "plain");
    Names listed;
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto*) { listed = StyleNames(this->column); });

    EXPECT_TRUE(this->column.DeleteStyle(&style));

    EXPECT_THAT(listed, ElementsAre("plain"));
    EXPECT_THAT(this->signals.take(), ElementsAre("StyleDeleted plain"));
    EXPECT_THAT(StyleNames(this->column), IsEmpty());
}

TYPED_TEST(StyleDeletionTest, DeletingTheCurrentStyleOfAScriptedColumnLeavesNone) {
    MakeStyle(this->column, "plain");
    auto& current = MakeStyle(this->column, "fancy");

    this->column.DeleteStyle(&current);

    EXPECT_EQ(this->Current(), nullptr);
}

TYPED_TEST(StyleDeletionTest, DeletingAnotherStyleKeepsTheCurrentOne) {
    auto& plain = MakeStyle(this->column, "plain");
    auto& current = MakeStyle(this->column, "fancy");

    this->column.DeleteStyle(&plain);

    EXPECT_EQ(this->Current(), &current);
}

TYPED_TEST(StyleDeletionTest, TheDefaultStyleIsNotDeleted) {
    auto& style = *this->Default().FindStyle("default_style");
    style.SetPending(false);

    EXPECT_FALSE(this->Default().DeleteStyle(&style));

    EXPECT_STREQ(this->DefaultManager().GetError(), "default column style cann't be deleted.");
    EXPECT_THAT(StyleNames(this->Default()), ElementsAre("default_style"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(StyleDeletionTest, AStyleThatIsNotInTheListIsNotDeleted) {
    auto& gone = MakeStyle(this->column, "gone");
    this->column.DeleteStyle(&gone);
    auto* const freed = &MakeStyle(this->column, "freed");
    delete freed;
    auto& foreign = MakeKnownStyle(this->Column(this->OtherView(), "weight"), "plain");

    EXPECT_FALSE(this->column.DeleteStyle(nullptr));
    EXPECT_FALSE(this->column.DeleteStyle(&gone));
    EXPECT_FALSE(this->column.DeleteStyle(freed));
    EXPECT_FALSE(this->column.DeleteStyle(&foreign));
    EXPECT_FALSE(this->column.DeleteStyle(this->Default().FindStyle("default_style")));
    EXPECT_TRUE(this->Manager().GetState());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(StyleDeletionTest, TheNameOfADeletedStyleIsFree) {
    auto& style = MakeStyle(this->column, "plain");
    this->column.DeleteStyle(&style);

    EXPECT_TRUE(this->column.CreateStyle("plain"));
    EXPECT_NE(this->column.FindStyle("plain"), &style);
}

TYPED_TEST(StyleDeletionTest, TheSlotThatHearsOfItMayDeleteTheStyleAgain) {
    auto& style = MakeKnownStyle(this->column, "plain");
    bool again = false;
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto* deleted) { again = this->column.DeleteStyle(deleted); });

    EXPECT_TRUE(this->column.DeleteStyle(&style));

    EXPECT_TRUE(again);
    EXPECT_THAT(StyleNames(this->column), IsEmpty());
    this->signals.Discard();
}

TYPED_TEST(StyleDeletionTest, TheSlotThatHearsOfItMayFreeTheStyle) {
    auto& style = MakeKnownStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [](auto* deleted) { delete deleted; });

    EXPECT_TRUE(this->column.DeleteStyle(&style));

    EXPECT_THAT(StyleNames(this->column), IsEmpty());
    this->signals.Discard();
}

TYPED_TEST(StyleDeletionTest, TheSlotThatHearsOfItMayDeleteTheColumn) {
    auto& style = MakeKnownStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto*) { this->view.DeleteScriptedColumn(&this->column); });

    EXPECT_TRUE(this->column.DeleteStyle(&style));

    EXPECT_EQ(style.GetColumn(), nullptr);
    this->signals.Discard();
}

TYPED_TEST(StyleDeletionTest, TheSlotThatHearsOfItMayDeleteTheView) {
    auto& style = MakeKnownStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [&](auto*) { this->host.DeleteView(this->view); });

    EXPECT_TRUE(this->column.DeleteStyle(&style));

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    this->signals.Discard();
}

TYPED_TEST(StyleDeletionTest, AStyleWhoseSlotThrowsStays) {
    auto& style = MakeKnownStyle(this->column, "plain");
    this->signals.Once(&zbBrowserSignalManager::StyleDeleted,
                       [](auto*) { throw std::runtime_error("no"); });

    EXPECT_THROW(this->column.DeleteStyle(&style), std::runtime_error);

    EXPECT_THAT(StyleNames(this->column), ElementsAre("plain"));
    this->signals.Discard();
}

TYPED_TEST(StyleDeletionTest, WithoutAControllerAStyleThatTheHostHasStays) {
    typename TestFixture::Context context(this->view, nullptr);
    context.SetColumns(std::make_unique<zbbrowser::detail::ColumnSet>(context));
    auto& lonely = *context.Columns()->Add("lonely");
    auto& known = MakeKnownStyle(lonely, "known");
    auto& pending = MakeStyle(lonely, "pending");

    EXPECT_TRUE(lonely.DeleteStyle(&known));
    EXPECT_TRUE(lonely.DeleteStyle(&pending));

    EXPECT_THAT(StyleNames(lonely), ElementsAre("known"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

// Differences

class OldStyleDeletionTest : public StyleDeletionTest<OldGeneration> {};

TEST_F(OldStyleDeletionTest, AStyleDeletedByNameIsAnnouncedAfterItHasLeftTheList) {
    MakeKnownStyle(column, "plain");
    Names listed{"not asked"};
    signals.Once(&Signals::StyleDeleted, [&](auto*) { listed = StyleNames(column); });

    EXPECT_TRUE(Manager().DeleteStyleByName("plain"));

    EXPECT_THAT(listed, IsEmpty());
    EXPECT_THAT(signals.take(), ElementsAre("StyleDeleted plain"));
    EXPECT_EQ(Current(), nullptr);
}

TEST_F(OldStyleDeletionTest, TheSlotThatHearsOfAStyleDeletedByNameMayFreeIt) {
    MakeKnownStyle(column, "plain");
    signals.Once(&Signals::StyleDeleted, [](auto* deleted) { delete deleted; });

    EXPECT_TRUE(Manager().DeleteStyleByName("plain"));

    EXPECT_THAT(StyleNames(column), IsEmpty());
    signals.Discard();
}

TEST_F(OldStyleDeletionTest, APendingStyleIsDeletedByNameSilently) {
    MakeStyle(column, "plain");

    EXPECT_TRUE(Manager().DeleteStyleByName("plain"));

    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_THAT(StyleNames(column), IsEmpty());
}

TEST_F(OldStyleDeletionTest, AStyleIsDeletedByItsExactNameOnly) {
    MakeStyle(column, "plain");

    EXPECT_FALSE(Manager().DeleteStyleByName("PLAIN"));
    EXPECT_FALSE(Manager().DeleteStyleByName(nullptr));
    EXPECT_FALSE(Manager().DeleteStyleByName(""));

    EXPECT_THAT(StyleNames(column), ElementsAre("plain"));
}

TEST_F(OldStyleDeletionTest, TheDefaultStyleIsNotDeletedByNameEither) {
    EXPECT_FALSE(DefaultManager().DeleteStyleByName("default_style"));

    EXPECT_STREQ(DefaultManager().GetError(), "default column style cann't be deleted.");
    EXPECT_THAT(StyleNames(Default()), ElementsAre("default_style"));
}

class NewStyleDeletionTest : public StyleDeletionTest<NewGeneration> {};

TEST_F(NewStyleDeletionTest, DeletesNoStyleByName) {
    MakeStyle(column, "plain");

    EXPECT_FALSE(Manager().DeleteStyleByName("plain"));

    EXPECT_THAT(StyleNames(column), ElementsAre("plain"));
}

} // namespace
} // namespace zbtest
