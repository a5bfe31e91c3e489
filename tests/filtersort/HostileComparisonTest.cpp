// SPDX-License-Identifier: MIT
// Comparisons that throw, contradict themselves or call back into the view.
#include "SortedRowsTest.h"

#include <algorithm>
#include <random>

namespace {

using testing::ElementsAre;
using testing::Gt;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;
using zbbrowser::detail::CurrentSortProperty;
using zbbrowser::detail::SetCurrentSortProperty;
using zbtest::Names;

class HostileComparison : public zbtest::SortedRowsTest {
protected:
    //! Runs `deed` in the first comparison by name, which is between bolt and nut.
    template <class Deed>
    void DuringAComparison(Deed deed) {
        host.calls.On("CompareByName", "part", [this, deed] {
            host.calls.Off("CompareByName", "part");
            deed();
        });
    }
    zbBrowserFreeFolderContentNoGrouping& Content() {
        return view.FindFreeFolder(&box)->RequireHolder().NoGrouping();
    }
};

TEST_F(HostileComparison, WhatAComparisonThrowsPassesAndNothingIsSorted) {
    SortBy(standard);
    DuringAComparison([] { throw "host"; });

    EXPECT_THROW(Rows(), char const*);

    EXPECT_THAT(StoredRows(), ElementsAre("nut", "bolt", "pin", "axle"));
    EXPECT_FALSE(Content().Leaves().IsOrdered());
}

TEST_F(HostileComparison, AListWhoseSortThrewIsSortedWhenItIsReadAgain) {
    SortBy(standard);
    DuringAComparison([] { throw "host"; });
    EXPECT_THROW(Rows(), char const*);

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
}

TEST_F(HostileComparison, ASortedListStaysSortedWhenSortingInANewRowThrows) {
    SortBy(standard);
    Rows();
    Create("gear", 6);
    DuringAComparison([] { throw "host"; });
    EXPECT_THROW(Rows(), char const*);
    EXPECT_THAT(StoredRows(), ElementsAre("axle", "bolt", "nut", "pin", "gear"));

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "gear", "nut", "pin"));
}

TEST_F(HostileComparison, AnOrderThatContradictsItselfLosesNoRow) {
    Names names{"nut", "bolt", "pin", "axle"};
    for (int i = 0; i < 500; ++i) {
        names.push_back("n" + std::to_string(i));
        Create(names.back().c_str(), 0);
    }
    std::mt19937 random(1);
    // Now a key decides and now it does not, and what rows weigh changes all the time.
    host.calls.On("CompareById", "part", [&] { part.compares = random() % 2 == 0; });
    host.calls.On("CompareByName", "part", [&] { part.compares = random() % 3 == 0; });
    host.calls.On("CompareByDataProperty", "part", [&] {
        part.All()[random() % part.All().size()]->Set("weight", static_cast<int>(random() % 100));
    });

    SortBy(byWeight);

    EXPECT_THAT(Rows(), UnorderedElementsAreArray(names));
    EXPECT_TRUE(Content().Leaves().IsConsistent());
}

TEST_F(HostileComparison, ARowThatGoesWhileItsListIsSortedIsNotListed) {
    SortBy(standard);
    DuringAComparison([&] {
        auto& pin = part.Unlist("pin");
        view.OnDataItemDeleted(&pin);
        part.Delete(pin);
    });

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "axle")) << "as they are stored";
    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut"));
    EXPECT_TRUE(Content().Leaves().IsConsistent());
}

TEST_F(HostileComparison, NothingIsComparedAfterARowHasGone) {
    for (int i = 0; i < 100; ++i)
        Create(("n" + std::to_string(i)).c_str(), 0);
    SortBy(standard);
    DuringAComparison([&] { view.OnDataItemDeleted(&part["pin"]); });
    Comparisons();

    Rows();

    EXPECT_EQ(host.calls.Count("CompareByName"), 1U);
    EXPECT_EQ(host.calls.Count("CompareById"), 0U);
}

TEST_F(HostileComparison, ARowThatComesWhileItsListIsSortedStandsBehindTheOthers) {
    SortBy(standard);
    DuringAComparison([&] { Create("gear", 6); });

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle", "gear"));
    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "gear", "nut", "pin"));
}

TEST_F(HostileComparison, AListThatGoesWhileItIsSortedIsNotListed) {
    SortBy(standard);
    DuringAComparison([&] { view.DeleteList(&box, &part); });

    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(HostileComparison, ASourceMayBeDisconnectedWhileItIsSorted) {
    SortBy(standard);
    DuringAComparison([&] { view.DataSourceDisconnect("part"); });

    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(HostileComparison, AFolderMayGoWhileItsRowsAreSorted) {
    NewFolder(box, "inner");
    SortBy(standard);
    DuringAComparison([&] { view.DeleteFreeFolder(&box, true); });

    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(HostileComparison, AChildFolderThatGoesWhileRowsAreSortedIsNotListed) {
    auto& inner = NewFolder(box, "inner");
    NewFolder(box, "other");
    SortBy(standard);
    DuringAComparison([&] { view.DeleteFreeFolder(&inner, true); });

    EXPECT_THAT(Rows(), ElementsAre("other", "nut", "bolt", "pin", "axle"));
}

TEST_F(HostileComparison, TheViewMayGoWhileRowsAreSorted) {
    SortBy(standard);
    DuringAComparison([&] { host.DeleteView(view); });
    std::vector<zbIBrowserViewItem*> out;

    EXPECT_FALSE(view.GetChildren(out, &box));

    EXPECT_THAT(out, IsEmpty());
    EXPECT_EQ(host.Controller().FindView("view"), nullptr);
}

TEST_F(HostileComparison, AnotherSourceMayGoWhileRowsAreSorted) {
    auto& tool = host.Source("tool").Items({"saw", "file"});
    view.DataSourceConnect(&tool);
    view.CreateList(&box, &tool, false);
    SortBy(standard);
    DuringAComparison([&] {
        view.DataSourceDisconnect("tool");
        host.Control().DeleteSource("tool");
    });

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle"));
    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
}

TEST_F(HostileComparison, TheViewOfTheCurrentSortPropertyMayGoWhileRowsAreSorted) {
    auto& other = host.OldView("other");
    other.CreateViewProperty("mass");
    SetCurrentSortProperty(other.FindViewProperty("mass"));
    other.CreateVPConnect(CurrentSortProperty(), &part, &part.Property("weight"));
    SortBy(empty);
    host.calls.On("GetDataCtrl", "part", [&] {
        host.calls.Off("GetDataCtrl", "part");
        host.DeleteView(other);
    });

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle")) << "that sort was given up";
    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
}

TEST_F(HostileComparison, ADirectionThatIsFlippedWhileRowsAreSortedHolds) {
    SortBy(standard);
    DuringAComparison([&] { SortBy(standard, false); });

    EXPECT_THAT(Rows(), ElementsAre("pin", "nut", "bolt", "axle"));
}

TEST_F(HostileComparison, RowsOfASortThatIsEndedMeanwhileComeAsTheyAreStored) {
    SortBy(standard, false);
    DuringAComparison([&] { view.GetSortHandlerPtr()->ResetSortedColumn(); });

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle"));
}

TEST_F(HostileComparison, TheHandlerLeavesAListAloneIfTheSortedColumnChangesMeanwhile) {
    std::vector<zbIBrowserViewItem*> rows;
    view.GetChildren(rows, &box);
    auto const before = rows;
    auto& handler = *view.GetSortHandlerPtr();
    for (auto const sort :
         {&zbBrowserSortHandler::SortDependentFolderLeaves,
          static_cast<bool (zbBrowserSortHandler::*)(std::vector<zbIBrowserViewItem*>&)>(
              &zbBrowserSortHandler::SortDataItems)}) {
        SortBy(standard);
        DuringAComparison([&] { handler.SetAscendingOrder(&byWeight, true); });

        EXPECT_FALSE((handler.*sort)(rows));
        EXPECT_EQ(rows, before);
    }
}

TEST_F(HostileComparison, AListThatIsReadWhileItIsSortedIsGivenAsItIsStored) {
    SortBy(standard);
    Names read;
    DuringAComparison([&] { read = Rows(); });

    EXPECT_THAT(Rows(), ElementsAre("axle", "bolt", "nut", "pin"));
    EXPECT_THAT(read, ElementsAre("nut", "bolt", "pin", "axle"));
}

TEST_F(HostileComparison, AnotherListMayBeSortedWhileOneIsSorted) {
    auto& second = NewFolder(*view.GetRootFreeFolder(), "second");
    view.CreateList(&second, &part, false);
    SortBy(byWeight);
    Names read;
    DuringAComparison([&] { read = zbtest::ChildrenOf(view, second); });

    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));
    EXPECT_THAT(read, ElementsAre("nut", "pin", "axle", "bolt"));
}

TEST_F(HostileComparison, TheViewMayBeSortedByAnotherColumnWhileRowsAreSorted) {
    SortBy(standard);
    DuringAComparison([&] { view.SetAscendingOrder(&byWeight, true); });

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle")) << "that sort was given up";
    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));
}

TEST_F(HostileComparison, TheHandlerMayBeGivenAnotherColumnWhileRowsAreSorted) {
    SortBy(standard);
    DuringAComparison([&] { view.GetSortHandlerPtr()->SetAscendingOrder(&byWeight, true); });

    Rows();

    EXPECT_THAT(Rows(), ElementsAre("nut", "pin", "axle", "bolt"));
}

TEST_F(HostileComparison, TheSortedColumnMayGoWhileRowsAreSorted) {
    SortBy(byWeight);
    DuringAComparison([&] { view.DeleteScriptedColumn(&byWeight); });

    EXPECT_THAT(Rows(), ElementsAre("nut", "bolt", "pin", "axle"));
    EXPECT_EQ(view.GetSortedColumn(), nullptr);
}

TEST_F(HostileComparison, TheSortPropertyMayGoWhileRowsAreSorted) {
    SortBy(byWeight);
    DuringAComparison([&] { view.DeleteViewProperty(&Property("weight")); });

    Rows();

    EXPECT_EQ(view.FindViewProperty("weight"), nullptr);
    EXPECT_TRUE(Content().Leaves().IsConsistent());
}

} // namespace
