// SPDX-License-Identifier: MIT
//! \file
//! A column by itself, and what the view tells all of its columns.
#include "ColumnsTest.h"

#include <stdexcept>

namespace zbtest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Generation>
class ColumnTest : public ColumnsTest<Generation> {
protected:
    zbIBrowserViewColumn& column = this->Column("weight");
};
TYPED_TEST_SUITE(ColumnTest, Generations, GenerationName);

TYPED_TEST(ColumnTest, ATitleIsAnnounced) {
    EXPECT_TRUE(this->column.SetTitle("Weight (kg)"));

    EXPECT_STREQ(this->column.GetTitle(), "Weight (kg)");
    EXPECT_STREQ(this->column.GetName(), "weight");
    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnCaptionChanged weight"));
}

TYPED_TEST(ColumnTest, TheSameTitleIsAnnouncedAgain) {
    this->column.SetTitle("Weight");
    this->column.SetTitle("Weight");

    EXPECT_EQ(this->signals.Count("ColumnCaptionChanged"), 2U);
    this->signals.Discard();
}

TYPED_TEST(ColumnTest, AColumnWhoseTitleWasClearedIsTitledByItsName) {
    this->column.SetTitle("Weight");
    EXPECT_TRUE(this->column.SetTitle(""));

    EXPECT_STREQ(this->column.GetTitle(), "weight");
    this->signals.Discard();
}

TYPED_TEST(ColumnTest, NullIsNoTitle) {
    EXPECT_FALSE(this->column.SetTitle(nullptr));

    EXPECT_STREQ(this->column.GetTitle(), "weight");
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnTest, TheFirstPositionStays) {
    EXPECT_EQ(this->column.GetPosition(), 0U);
    this->column.SetPosition(0);
    this->column.SetPosition(5);
    this->column.SetPosition(7);
    this->column.SetPosition(0);

    EXPECT_EQ(this->column.GetPosition(), 5U);
}

TYPED_TEST(ColumnTest, AnIndexIsStored) {
    EXPECT_EQ(this->column.GetIndex(), 0U);
    this->column.SetIndex(5);
    this->column.SetIndex(7);

    EXPECT_EQ(this->column.GetIndex(), 7U);
}

TYPED_TEST(ColumnTest, AnUnknownMenuIsRefused) {
    EXPECT_FALSE(this->column.SetPopupMenu("nothing"));
    EXPECT_FALSE(this->column.SetPopupMenu(""));
    EXPECT_FALSE(this->column.SetPopupMenu(nullptr));

    EXPECT_EQ(this->column.GetPopupMenu(), nullptr);
}

TYPED_TEST(ColumnTest, SetVisibleIsSilent) {
    this->column.SetVisible(false);

    EXPECT_FALSE(this->column.IsVisible());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnTest, SetUnsortedIsSilent) {
    this->column.SetUnsorted(false);

    EXPECT_FALSE(this->column.IsUnsorted());
    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnTest, AChangeOfSortingIsAnnounced) {
    this->column.SetSorting(false);
    EXPECT_FALSE(this->column.GetSorting());
    this->column.SetSorting(false);
    this->column.SetSorting(true);

    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnStateChanged weight false", "ColumnStateChanged weight true"));
}

TYPED_TEST(ColumnTest, AChangeOfItalicIsAnnouncedWithTheSortingFlag) {
    this->column.SetItalic(false);
    EXPECT_FALSE(this->column.GetItalic());
    this->column.SetItalic(false);

    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnStateChanged weight true", "ColumnUpdated weight"));
}

TYPED_TEST(ColumnTest, AColumnThatDoesNotSortSaysSoWhenItTurnsItalic) {
    this->column.SetSorting(false);
    this->column.SetItalic(false);
    this->signals.Discard();

    this->column.SetItalic(true);

    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnStateChanged weight false", "ColumnUpdated weight"));
}

TYPED_TEST(ColumnTest, AColumnThatASlotDeletesIsNotAnnouncedAsUpdated) {
    this->signals.Once(&zbBrowserSignalManager::ColumnStateChanged,
                       [&](auto* changed, bool) { this->view.DeleteScriptedColumn(changed); });

    this->column.SetItalic(false);

    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnStateChanged weight true", "ColumnDeleted weight"));
}

TYPED_TEST(ColumnTest, AColumnThatHasBeenDeletedCanStillBeAskedInTheSlot) {
    std::string title;
    this->signals.Once(&zbBrowserSignalManager::ColumnCaptionChanged, [&](auto* changed) {
        this->view.DeleteScriptedColumn(changed);
        changed->SetSorting(false);
        title = changed->GetTitle();
    });

    EXPECT_TRUE(this->column.SetTitle("Weight"));

    EXPECT_EQ(title, "Weight");
    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnCaptionChanged weight", "ColumnDeleted weight"));
}

TYPED_TEST(ColumnTest, ASlotThatHearsOfATitleMayDeleteTheView) {
    this->signals.Once(&zbBrowserSignalManager::ColumnCaptionChanged,
                       [&](auto*) { this->host.DeleteView(this->view); });

    EXPECT_TRUE(this->column.SetTitle("Weight"));

    this->signals.Discard();
    EXPECT_EQ(this->host.Controller().FindView("view"), nullptr);
}

// The view's flags

TYPED_TEST(ColumnTest, SortingOfTheViewReachesAllColumnsTheDefaultOneFirst) {
    this->Column("state");

    EXPECT_TRUE(this->view.SetSorting(false));

    EXPECT_FALSE(this->view.GetSorting());
    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnStateChanged default_column false",
                            "ColumnStateChanged weight false", "ColumnStateChanged state false"));
}

TYPED_TEST(ColumnTest, ItalicOfTheViewReachesAllColumns) {
    EXPECT_TRUE(this->view.SetItalic(false));

    EXPECT_FALSE(this->view.GetItalic());
    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnStateChanged default_column true",
                            "ColumnUpdated default_column", "ColumnStateChanged weight true",
                            "ColumnUpdated weight"));
}

TYPED_TEST(ColumnTest, AFlagThatTheColumnsHaveAlreadyIsNotAnnounced) {
    EXPECT_TRUE(this->view.SetSorting(true));
    EXPECT_TRUE(this->view.SetItalic(true));

    EXPECT_THAT(this->signals.take(), IsEmpty());
}

TYPED_TEST(ColumnTest, AColumnThatASlotDeletesMeanwhileIsLeftOut) {
    this->Column("state");
    this->signals.Once(&zbBrowserSignalManager::ColumnStateChanged, [&](auto*, bool) {
        this->view.DeleteScriptedColumn(this->view.FindColumn("weight"));
    });

    EXPECT_TRUE(this->view.SetSorting(false));

    EXPECT_THAT(this->signals.take(),
                ElementsAre("ColumnStateChanged default_column false", "ColumnDeleted weight",
                            "ColumnStateChanged state false"));
}

TYPED_TEST(ColumnTest, AColumnThatASlotMakesMeanwhileKeepsItsOwnFlags) {
    this->signals.Once(&zbBrowserSignalManager::ColumnStateChanged,
                       [&](auto*, bool) { this->view.CreateTextBoxColumn("made", ""); });

    EXPECT_TRUE(this->view.SetSorting(false));

    EXPECT_TRUE(this->view.FindColumn("made")->GetSorting());
    this->signals.Discard();
}

TYPED_TEST(ColumnTest, ASlotMayDeleteTheViewWhileTheColumnsAreTold) {
    this->signals.Once(&zbBrowserSignalManager::ColumnStateChanged,
                       [&](auto*, bool) { this->host.DeleteView(this->view); });

    EXPECT_TRUE(this->view.SetItalic(false));

    EXPECT_THAT(this->signals.take(), ElementsAre("ColumnStateChanged default_column true"));
}

TYPED_TEST(ColumnTest, TheViewKeepsItsFlagWhenASlotThrows) {
    this->signals.Once(&zbBrowserSignalManager::ColumnStateChanged,
                       [](auto*, bool) { throw std::runtime_error("no"); });

    EXPECT_THROW(this->view.SetSorting(false), std::runtime_error);

    EXPECT_FALSE(this->view.GetSorting());
    EXPECT_FALSE(this->Default().GetSorting());
    EXPECT_TRUE(this->column.GetSorting());
    this->signals.Discard();
}

} // namespace
} // namespace zbtest
