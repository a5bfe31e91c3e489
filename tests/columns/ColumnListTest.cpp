// SPDX-License-Identifier: MIT
//! \file
//! Which columns a view has, how they are made and how they are found.
#include "ColumnsTest.h"
#include "presentation/columns/ViewColumn.h"
#include "presentation/columns/zbBrowserViewColumn.h"

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class ColumnListTest : public ColumnsTest<Generation> {};
TYPED_TEST_SUITE(ColumnListTest, Generations, GenerationName);

TYPED_TEST(ColumnListTest, AViewStartsWithTheDefaultColumn) {
    auto const& column = this->Default();

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
    EXPECT_STREQ(column.GetTitle(), "Entities");
    EXPECT_TRUE(column.IsDefault());
    EXPECT_FALSE(column.IsIconColumn());
    EXPECT_EQ(column.GetView(), &this->view);
    EXPECT_EQ(this->view.GetDefaultColumnPtr(), &column);
}

TYPED_TEST(ColumnListTest, ColumnsAreListedInOrderOfCreationBehindTheDefaultOne) {
    this->Column("b");
    this->Column("a");
    this->Column("c");

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "b", "a", "c"));
}

TYPED_TEST(ColumnListTest, TheListReplacesWhatWasInTheVector) {
    std::vector<zbIBrowserViewColumn*> columns(5, nullptr);

    EXPECT_TRUE(this->view.GetColumns(columns));

    EXPECT_THAT(columns, ElementsAre(&this->Default()));
}

TYPED_TEST(ColumnListTest, ATextBoxColumnIsTitledByItsNameAndAnnounced) {
    EXPECT_TRUE(this->view.CreateTextBoxColumn("weight", "ignored"));

    auto const* const column = this->view.FindColumn("weight");
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnCreated weight"));
    EXPECT_STREQ(column->GetTitle(), "weight");
    EXPECT_FALSE(column->IsDefault());
    EXPECT_FALSE(column->IsIconColumn());
    EXPECT_EQ(column->GetView(), &this->view);
}

TYPED_TEST(ColumnListTest, AButtonColumnIsTheSameAsATextBoxColumn) {
    EXPECT_TRUE(this->view.CreateButtonColumn("weight", "ignored"));

    auto const* const column = this->view.FindColumn("weight");
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnCreated weight"));
    EXPECT_STREQ(column->GetTitle(), "weight");
    EXPECT_FALSE(column->IsIconColumn());
}

TYPED_TEST(ColumnListTest, AnIconColumnIsMarkedWhenItIsAnnounced) {
    bool wasIcon = false;
    this->signals.Once(&zbBrowserSignalManager::ColumnCreated,
                       [&](zbIBrowserViewColumn* column) { wasIcon = column->IsIconColumn(); });

    EXPECT_TRUE(this->view.CreateIconColumn("state", "ignored", "ignored"));

    EXPECT_TRUE(wasIcon);
    EXPECT_STREQ(this->view.FindColumn("state")->GetTitle(), "state");
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnCreated state"));
}

TYPED_TEST(ColumnListTest, TheOtherTextsMayBeNull) {
    EXPECT_TRUE(this->view.CreateIconColumn("state", nullptr, nullptr));
    EXPECT_TRUE(this->view.CreateButtonColumn("weight", nullptr));

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "state", "weight"));
    this->signals.Discard();
}

TYPED_TEST(ColumnListTest, CheckBoxAndComboBoxColumnsAreAnsweredTrueAndNotMade) {
    EXPECT_TRUE(this->view.CreateCheckBoxColumn("done", ""));
    EXPECT_TRUE(this->view.CreateComboBoxColumn("kind", ""));
    EXPECT_TRUE(this->view.CreateCheckBoxColumn(nullptr, nullptr));

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnListTest, ANameInAnotherCaseIsTaken) {
    this->Column("weight");

    EXPECT_FALSE(this->view.CreateTextBoxColumn("WEIGHT", ""));
    EXPECT_FALSE(this->view.CreateButtonColumn("Weight", ""));
    EXPECT_FALSE(this->view.CreateIconColumn("weighT", "", ""));

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "weight"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnListTest, TheNameOfTheDefaultColumnInCapitalsIsTaken) {
    EXPECT_FALSE(this->view.CreateTextBoxColumn("DEFAULT_COLUMN", ""));

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
}

TYPED_TEST(ColumnListTest, AColumnWithoutANameTextIsNotMade) {
    EXPECT_FALSE(this->view.CreateTextBoxColumn(nullptr, ""));
    EXPECT_FALSE(this->view.CreateIconColumn(nullptr, "", ""));
    EXPECT_EQ(this->view.CreateColumnCustom(nullptr), nullptr);

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnListTest, NamesMayBeLongAndNotUtf8) {
    std::string const longName(100'000, 'x');
    char const* const bytes = "\xff\xc0\n\x01";

    EXPECT_TRUE(this->view.CreateTextBoxColumn(longName.c_str(), ""));
    EXPECT_TRUE(this->view.CreateTextBoxColumn(bytes, ""));

    EXPECT_STREQ(this->view.FindColumn(bytes)->GetName(), bytes);
    EXPECT_EQ(this->view.FindColumn(longName.c_str())->GetTitle(), longName);
    this->signals.Discard();
}

TYPED_TEST(ColumnListTest, AColumnMadeDirectlyIsNotAnnounced) {
    auto* const column = this->view.CreateColumnCustom("weight");

    EXPECT_STREQ(column->GetTitle(), "weight");
    EXPECT_EQ(this->view.FindColumn("weight"), column);
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnListTest, AColumnMadeDirectlyMayHaveATakenNameAndTheOldestIsFound) {
    auto* const first = this->view.CreateColumnCustom("weight");
    this->view.CreateColumnCustom("Weight");
    this->view.CreateColumnCustom("DEFAULT_COLUMN");

    EXPECT_THAT(ColumnNames(this->view),
                ElementsAre("default_column", "weight", "Weight", "DEFAULT_COLUMN"));
    EXPECT_EQ(this->view.FindColumn("WEIGHT"), first);
    EXPECT_EQ(this->view.FindColumn("DEFAULT_COLUMN"), &this->Default());
}

TYPED_TEST(ColumnListTest, WhenTheOldestOfANameGoesTheNextIsFound) {
    auto* const first = this->view.CreateColumnCustom("weight");
    auto* const second = this->view.CreateColumnCustom("Weight");

    this->view.DeleteScriptedColumn(first);

    EXPECT_EQ(this->view.FindColumn("weight"), second);
    this->signals.Discard();
}

TYPED_TEST(ColumnListTest, NoColumnHasANullName) {
    EXPECT_EQ(this->view.FindColumn(static_cast<char const*>(nullptr)), nullptr);
    EXPECT_EQ(this->view.FindColumn("weight"), nullptr);
}

TYPED_TEST(ColumnListTest, AColumnIsFoundByItself) {
    auto const& column = this->Column("weight");

    EXPECT_EQ(this->view.FindColumn(&column), &column);
    EXPECT_EQ(this->view.FindScriptedColumn(&column), &column);
}

TYPED_TEST(ColumnListTest, TheDefaultColumnIsNoScriptedOne) {
    EXPECT_EQ(this->view.FindColumn(&this->Default()), &this->Default());
    EXPECT_EQ(this->view.FindScriptedColumn(&this->Default()), nullptr);
}

TYPED_TEST(ColumnListTest, AColumnOfAnotherViewIsNotFound) {
    auto const& foreign = this->Column(this->OtherView(), "weight");

    EXPECT_EQ(this->view.FindColumn(&foreign), nullptr);
    EXPECT_EQ(this->view.FindScriptedColumn(&foreign), nullptr);
    EXPECT_EQ(this->view.FindColumn(this->OtherView().GetDefaultColumn()), nullptr);
    EXPECT_EQ(this->view.FindColumn("weight"), nullptr);
}

TYPED_TEST(ColumnListTest, AColumnThatHasGoneIsNotFound) {
    auto& column = this->Column("weight");
    this->view.DeleteScriptedColumn(&column);

    EXPECT_EQ(this->view.FindColumn(&column), nullptr);
    EXPECT_EQ(this->view.FindScriptedColumn(&column), nullptr);
    this->signals.Discard();
}

TYPED_TEST(ColumnListTest, HiddenColumnsAreListedAndFound) {
    auto& column = this->Column("weight");

    this->view.ShowScriptedColumn(&column, false);

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "weight"));
    EXPECT_EQ(this->view.FindColumn("weight"), &column);
    this->signals.Discard();
}

TYPED_TEST(ColumnListTest, ANewColumnSortsAndIsItalicWhateverTheViewSays) {
    this->view.SetSorting(false);
    this->view.SetItalic(false);
    auto const& column = this->Column("weight");

    EXPECT_TRUE(column.GetSorting());
    EXPECT_TRUE(column.GetItalic());
    EXPECT_TRUE(column.IsVisible());
    EXPECT_TRUE(column.IsUnsorted());
}

TYPED_TEST(ColumnListTest, ASlotThatHearsOfAColumnMayDeleteIt) {
    this->signals.Once(&zbBrowserSignalManager::ColumnCreated, [&](zbIBrowserViewColumn* column) {
        this->view.DeleteScriptedColumn(column);
    });

    EXPECT_TRUE(this->view.CreateIconColumn("state", "", ""));

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnCreated state", "ColumnDeleted state"));
    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
}

TYPED_TEST(ColumnListTest, ASlotThatHearsOfAColumnMayDeleteTheView) {
    this->signals.Once(&zbBrowserSignalManager::ColumnCreated,
                       [&](auto*) { this->host.DeleteView(this->view); });

    EXPECT_TRUE(this->view.CreateTextBoxColumn("weight", ""));

    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
    this->signals.Discard();
}

TYPED_TEST(ColumnListTest, AColumnStaysWhenTheSlotThatHearsOfItThrows) {
    this->signals.Once(&zbBrowserSignalManager::ColumnCreated, [](auto*) { throw "no"; });

    EXPECT_THROW(this->view.CreateTextBoxColumn("weight", ""), char const*);

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "weight"));
    this->signals.Discard();
}

TYPED_TEST(ColumnListTest, TheDefaultColumnIsMadeOnce) {
    auto const& before = this->Default();

    EXPECT_EQ(this->view.FindColumn("default_column"), &before);
    EXPECT_FALSE(this->view.CreateTextBoxColumn("default_column", ""));
    EXPECT_EQ(&this->Default(), &before);
}

// What only old views do

class OldColumnListTest : public ColumnsTest<OldGeneration> {};

TEST_F(OldColumnListTest, ATakenNameIsReportedAsTheCallerWroteIt) {
    Column("weight");

    EXPECT_FALSE(view.CreateButtonColumn("WEIGHT", ""));

    EXPECT_STREQ(view.GetError(), "Column \"WEIGHT\" already exists");
    EXPECT_FALSE(view.GetState());
}

TEST_F(OldColumnListTest, AColumnWithoutANameTextIsReported) {
    EXPECT_FALSE(view.CreateIconColumn(nullptr, "", ""));

    EXPECT_STREQ(view.GetError(), "Could not create a column");
}

TEST_F(OldColumnListTest, MakingAColumnClearsTheErrorState) {
    EXPECT_FALSE(view.CreateButtonColumn("default_column", ""));

    EXPECT_TRUE(view.CreateButtonColumn("weight", ""));

    EXPECT_TRUE(view.GetState());
    signals.Discard();
}

TEST_F(OldColumnListTest, MakingAColumnDirectlyClearsTheErrorState) {
    EXPECT_FALSE(view.CreateButtonColumn("default_column", ""));

    EXPECT_EQ(view.CreateColumnCustom(nullptr), nullptr);

    EXPECT_TRUE(view.GetState());
}

TEST_F(OldColumnListTest, AColumnWhoseSlotLeavesAnErrorWasMadeAllTheSame) {
    signals.Once(&Signals::ColumnCreated, [&](auto*) { view.CreateButtonColumn("weight", ""); });

    EXPECT_TRUE(view.CreateButtonColumn("weight", ""));

    EXPECT_FALSE(view.GetState());
    EXPECT_THAT(ColumnNames(view), ElementsAre("default_column", "weight"));
    signals.Discard();
}

TEST_F(OldColumnListTest, AColumnMayHaveAnEmptyName) {
    EXPECT_TRUE(view.CreateButtonColumn("", ""));

    EXPECT_STREQ(view.FindColumn("")->GetTitle(), "");
    EXPECT_EQ(view.FindColumn(static_cast<char const*>(nullptr)), nullptr);
    EXPECT_FALSE(view.CreateButtonColumn(nullptr, ""));
    EXPECT_STREQ(view.GetError(), "Could not create a column");
    signals.Discard();
}

// What only new views do

class NewColumnListTest : public ColumnsTest<NewGeneration> {};

TEST_F(NewColumnListTest, AColumnNeedsAName) {
    EXPECT_FALSE(view.CreateButtonColumn("", ""));
    EXPECT_FALSE(view.CreateIconColumn("", "", ""));
    EXPECT_EQ(view.CreateColumnCustom(""), nullptr);

    EXPECT_THAT(ColumnNames(view), ElementsAre("default_column"));
}

TEST_F(NewColumnListTest, TellsTheIndexOfScriptedColumnsOnly) {
    auto& column = Column("weight");
    auto& foreign = Column(OtherView(), "weight");
    column.SetIndex(7);
    foreign.SetIndex(8);
    Default().SetIndex(9);

    EXPECT_EQ(view.GetColumnIndex(&column), 7U);
    EXPECT_EQ(view.GetColumnIndex(&foreign), 0U);
    EXPECT_EQ(view.GetColumnIndex(&Default()), 0U);
    EXPECT_EQ(view.GetColumnIndex(nullptr), 0U);
}

TEST_F(NewColumnListTest, TheDefaultColumnCanGoAndBeMadeAgain) {
    view.DeleteDefaultColumn();
    EXPECT_EQ(view.GetDefaultColumn(), nullptr);
    EXPECT_THAT(ColumnNames(view), ElementsAre("null"));
    EXPECT_EQ(view.FindColumn("default_column"), nullptr);
    view.DeleteDefaultColumn();

    view.CreateDefaultColumn();
    auto const& made = Default();
    view.CreateDefaultColumn();

    EXPECT_EQ(&Default(), &made);
    EXPECT_THAT(StyleNames(made), ElementsAre("default_style"));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(NewColumnListTest, AllColumnsCanGoSilently) {
    Column("weight");
    Column("state");

    view.DeleteColumns();

    EXPECT_THAT(ColumnNames(view), ElementsAre("null"));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(NewColumnListTest, AViewWhoseSortedColumnGoesSilentlyIsUnsorted) {
    auto& column = Column("weight");
    ASSERT_TRUE(view.SetAscendingOrder(&column, true));
    signals.Discard();

    view.DeleteScriptedColumns();

    EXPECT_EQ(view.GetSortedColumn(), nullptr);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(NewColumnListTest, AViewWhoseSortedDefaultColumnGoesSilentlyIsUnsorted) {
    ASSERT_TRUE(view.SetAscendingOrder(&Default(), true));
    signals.Discard();

    view.DeleteDefaultColumn();

    EXPECT_EQ(view.GetSortedColumn(), nullptr);
    EXPECT_THAT(signals.take(), IsEmpty());
}

} // namespace
} // namespace zbtest
