// SPDX-License-Identifier: MIT
//! \file
//! Deleting, hiding and showing scripted columns.
#include "ColumnsTest.h"

#include <stdexcept>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class ColumnDeletionTest : public ColumnsTest<Generation> {
protected:
    void SortBy(zbIBrowserViewColumn& column) {
        ASSERT_TRUE(this->view.SetAscendingOrder(&column, true));
        this->signals.Discard();
    }
};
TYPED_TEST_SUITE(ColumnDeletionTest, Generations, GenerationName);

TYPED_TEST(ColumnDeletionTest, ADeletedColumnIsAnnouncedAndGone) {
    auto& column = this->Column("weight");
    this->Column("state");

    EXPECT_TRUE(this->view.DeleteScriptedColumn(&column));

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnDeleted weight"));
    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "state"));
    EXPECT_EQ(this->view.FindColumn("weight"), nullptr);
}

TYPED_TEST(ColumnDeletionTest, TheNameOfADeletedColumnIsFree) {
    auto& column = this->Column("weight");
    this->view.DeleteScriptedColumn(&column);

    EXPECT_TRUE(this->view.CreateTextBoxColumn("weight", ""));
    this->signals.Discard();
}

TYPED_TEST(ColumnDeletionTest, WhileItIsAnnouncedAColumnIsFoundButNotListed) {
    auto& column = this->Column("weight");
    Names listed;
    zbIBrowserViewColumn const* found = nullptr;
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted, [&](auto*) {
        listed = ColumnNames(this->view);
        found = this->view.FindColumn("weight");
    });

    this->view.DeleteScriptedColumn(&column);

    EXPECT_THAT(listed, ElementsAre("default_column"));
    EXPECT_EQ(found, &column);
    this->signals.Discard();
}

TYPED_TEST(ColumnDeletionTest, NullIsNotDeleted) {
    EXPECT_FALSE(this->view.DeleteScriptedColumn(nullptr));
    EXPECT_FALSE(this->view.ShowScriptedColumn(nullptr, true));
}

TYPED_TEST(ColumnDeletionTest, AColumnThatIsNotThereCountsAsDeletedAndAsShown) {
    auto& gone = this->Column("weight");
    this->view.DeleteScriptedColumn(&gone);
    auto& foreign = this->Column(this->OtherView(), "state");

    for (auto* const column : {&gone, &foreign, &this->Default()}) {
        EXPECT_TRUE(this->view.DeleteScriptedColumn(column));
        EXPECT_TRUE(this->view.ShowScriptedColumn(column, false));
    }

    EXPECT_THAT(this->signals.take(), IsEmpty());
    EXPECT_TRUE(foreign.IsVisible());
    EXPECT_TRUE(this->Default().IsVisible());
    EXPECT_THAT(ColumnNames(this->OtherView()), ElementsAre("default_column", "state"));
}

TYPED_TEST(ColumnDeletionTest, DeletingAnyColumnEndsTheSortByAnother) {
    auto& column = this->Column("weight");
    this->SortBy(this->Default());

    this->view.DeleteScriptedColumn(&column);

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged default_column false false",
                                                  "ColumnDeleted weight"));
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(ColumnDeletionTest, DeletingTheSortedColumnLeavesTheViewUnsorted) {
    auto& column = this->Column("weight");
    this->SortBy(column);

    this->view.DeleteScriptedColumn(&column);

    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnSortChanged weight false false", "ColumnDeleted weight"));
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(ColumnDeletionTest, AViewThatASlotSortsByAColumnThatGoesIsUnsortedAfterwards) {
    auto& column = this->Column("weight");
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted,
                       [&](auto* gone) { this->view.SetAscendingOrder(gone, true); });

    this->view.DeleteScriptedColumn(&column);

    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
    this->signals.Discard();
}

TYPED_TEST(ColumnDeletionTest, DeletingItAgainFromTheSlotDoesNothing) {
    auto& column = this->Column("weight");
    bool again = false;
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted,
                       [&](auto* gone) { again = this->view.DeleteScriptedColumn(gone); });

    EXPECT_TRUE(this->view.DeleteScriptedColumn(&column));

    EXPECT_TRUE(again);
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnDeleted weight"));
    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
}

TYPED_TEST(ColumnDeletionTest, ASlotMayDeleteAnotherColumn) {
    auto& column = this->Column("weight");
    auto& other = this->Column("state");
    Names listed;
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted, [&](auto*) {
        this->view.DeleteScriptedColumn(&other);
        listed = ColumnNames(this->view);
    });

    EXPECT_TRUE(this->view.DeleteScriptedColumn(&column));

    EXPECT_THAT(listed, ElementsAre("default_column"));
    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
    this->signals.Discard();
}

TYPED_TEST(ColumnDeletionTest, ASlotFindsTheNameStillTaken) {
    auto& column = this->Column("weight");
    bool made = true;
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted,
                       [&](auto*) { made = this->view.CreateTextBoxColumn("weight", ""); });

    this->view.DeleteScriptedColumn(&column);

    EXPECT_FALSE(made);
    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
    this->signals.Discard();
}

TYPED_TEST(ColumnDeletionTest, AColumnWhoseSlotThrowsStaysAndIsListed) {
    auto& column = this->Column("weight");
    this->signals.Once(&zbBrowserSignalManager::ColumnDeleted,
                       [](auto*) { throw std::runtime_error("no"); });

    EXPECT_THROW(this->view.DeleteScriptedColumn(&column), std::runtime_error);

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "weight"));
    EXPECT_TRUE(this->view.DeleteScriptedColumn(&column));
    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column"));
    this->signals.Discard();
}

TYPED_TEST(ColumnDeletionTest, TheSlotThatHearsOfTheEndOfTheSortMayDeleteTheColumn) {
    auto& column = this->Column("weight");
    this->SortBy(column);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto* sorted, bool, bool) { this->view.DeleteScriptedColumn(sorted); });

    EXPECT_TRUE(this->view.DeleteScriptedColumn(&column));

    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnSortChanged weight false false", "ColumnDeleted weight"));
}

TYPED_TEST(ColumnDeletionTest, ASlotMayDeleteTheView) {
    auto& column = this->Column("weight");
    this->SortBy(column);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto*, bool, bool) { this->host.DeleteView(this->view); });

    EXPECT_TRUE(this->view.DeleteScriptedColumn(&column));

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged weight false false"))
        << "a view that was given up raises nothing";
    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
}

TYPED_TEST(ColumnDeletionTest, ManyColumnsCanBeDeletedInAnyOrder) {
    Names const names{"a", "b", "c", "d", "e", "f", "g"};
    for (auto const& name : names) {
        this->Column(name.c_str());
    }

    for (auto const* const name : {"d", "a", "g", "c", "f"}) {
        EXPECT_TRUE(this->view.DeleteScriptedColumn(this->view.FindColumn(name)));
    }

    EXPECT_THAT(ColumnNames(this->view), ElementsAre("default_column", "b", "e"));
    this->signals.Discard();
}

// Hiding and showing

TYPED_TEST(ColumnDeletionTest, HidingAndShowingAreAnnounced) {
    auto& column = this->Column("weight");

    EXPECT_TRUE(this->view.ShowScriptedColumn(&column, false));
    EXPECT_FALSE(column.IsVisible());
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnShown weight", "ColumnsChanged"));

    EXPECT_TRUE(this->view.ShowScriptedColumn(&column, true));
    EXPECT_TRUE(column.IsVisible());
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnShown weight", "ColumnsChanged"));
}

TYPED_TEST(ColumnDeletionTest, HidingAnyColumnEndsTheSortByTheDefaultOne) {
    auto& column = this->Column("weight");
    this->SortBy(this->Default());

    this->view.ShowScriptedColumn(&column, false);

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged default_column false false",
                                                  "ColumnShown weight", "ColumnsChanged"));
    EXPECT_EQ(this->view.GetSortedColumn(), nullptr);
}

TYPED_TEST(ColumnDeletionTest, ShowingAColumnKeepsTheSort) {
    auto& column = this->Column("weight");
    this->view.ShowScriptedColumn(&column, false);
    this->SortBy(this->Default());

    this->view.ShowScriptedColumn(&column, true);

    EXPECT_EQ(this->view.GetSortedColumn(), &this->Default());
    this->signals.Discard();
}

TYPED_TEST(ColumnDeletionTest, AColumnThatASlotDeletesIsNotAnnouncedAsShown) {
    auto& column = this->Column("weight");
    this->SortBy(column);
    this->signals.Once(&zbBrowserSignalManager::ColumnSortChanged,
                       [&](auto* sorted, bool, bool) { this->view.DeleteScriptedColumn(sorted); });

    EXPECT_TRUE(this->view.ShowScriptedColumn(&column, false));

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnSortChanged weight false false",
                                                  "ColumnDeleted weight", "ColumnsChanged"));
}

TYPED_TEST(ColumnDeletionTest, ASlotThatHearsOfAHiddenColumnMayDeleteTheView) {
    auto& column = this->Column("weight");
    this->signals.Once(&zbBrowserSignalManager::ColumnShown,
                       [&](auto*) { this->host.DeleteView(this->view); });

    EXPECT_TRUE(this->view.ShowScriptedColumn(&column, false));

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnShown weight"));
}

// Differences

class OldColumnDeletionTest : public ColumnsTest<OldGeneration> {};

TEST_F(OldColumnDeletionTest, HidingAHiddenColumnIsAnnouncedAgain) {
    auto& column = Column("weight");
    view.ShowScriptedColumn(&column, false);
    signals.Discard();

    EXPECT_TRUE(view.ShowScriptedColumn(&column, false));

    EXPECT_THAT(signals.take(), ElementsAre("ColumnShown weight", "ColumnsChanged"));
}

TEST_F(OldColumnDeletionTest, DeletingAndShowingClearTheErrorState) {
    auto& foreign = Column(OtherView(), "weight");
    EXPECT_FALSE(view.CreateButtonColumn("default_column", ""));
    EXPECT_TRUE(view.DeleteScriptedColumn(&foreign));
    EXPECT_TRUE(view.GetState());

    EXPECT_FALSE(view.CreateButtonColumn("default_column", ""));
    EXPECT_TRUE(view.ShowScriptedColumn(&foreign, true));
    EXPECT_TRUE(view.GetState());

    EXPECT_FALSE(view.CreateButtonColumn("default_column", ""));
    EXPECT_FALSE(view.DeleteScriptedColumn(nullptr));
    EXPECT_TRUE(view.GetState());
}

TEST_F(OldColumnDeletionTest, TheAnswerIsTheErrorStateThatASlotLeaves) {
    auto& column = Column("weight");
    signals.Once(&Signals::ColumnDeleted, [&](auto*) { view.CreateButtonColumn("weight", ""); });

    EXPECT_FALSE(view.DeleteScriptedColumn(&column));

    EXPECT_THAT(ColumnNames(view), ElementsAre("default_column"));
    signals.Discard();
}

class NewColumnDeletionTest : public ColumnsTest<NewGeneration> {};

TEST_F(NewColumnDeletionTest, HidingAHiddenColumnDoesNothing) {
    auto& column = Column("weight");
    view.ShowScriptedColumn(&column, false);
    ASSERT_TRUE(view.SetAscendingOrder(&Default(), true));
    signals.Discard();

    EXPECT_TRUE(view.ShowScriptedColumn(&column, false));

    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(view.GetSortedColumn(), &Default());
}

TEST_F(NewColumnDeletionTest, ASlotMayDeleteAllColumnsSilently) {
    auto& column = Column("weight");
    Column("state");
    signals.Once(&Signals::ColumnDeleted, [&](auto*) { view.DeleteColumns(); });

    EXPECT_TRUE(view.DeleteScriptedColumn(&column));

    EXPECT_THAT(signals.take(), ElementsAre("ColumnDeleted weight"));
    EXPECT_THAT(ColumnNames(view), ElementsAre("null"));
}

} // namespace
} // namespace zbtest
