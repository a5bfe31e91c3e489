// SPDX-License-Identifier: MIT
//! \file
//! From view items to data items and back.

#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "ViewTestSupport.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;
using zbtest::RecordingSource;
using zbtest::RecordingTree;

using Items = std::vector<zbIBrowserViewItem*>;
using SimpleItems = std::vector<zbIBrowserDataItemSimple*>;
using TreeItems = std::vector<zbIBrowserDataItemHierarchical*>;

class MappingTest : public zbtest::ViewTest {
protected:
    //! The names of the flat items; "false" in front if that is the answer.
    [[nodiscard]] Names Simple(Items const& items, bool withDescendants = false) const {
        SimpleItems out{nullptr};
        Names names;
        if (!view.GetDataItemsFromViewItems(items, out, withDescendants)) {
            names.emplace_back("false");
        }
        for (auto* const item : out) {
            names.push_back(zbtest::NameOf(item));
        }
        return names;
    }

    RecordingSource& part = Connected("part", {"bolt_1", "nut_2"});
    RecordingSource& tool = Connected("tool", {"saw_1"});
    FreeFolder& a = Folder("a");
    FreeFolder& b = Folder("b", &a);
};

// From view items to flat data items

TEST_F(MappingTest, TheDataItemsOfRowsComeInTheOrderOfTheRowsThatAreGiven) {
    Show(a, part);
    EXPECT_EQ(Simple({Row(a, "nut_2"), Row(a, "bolt_1")}), (Names{"nut_2", "bolt_1"}));
}

TEST_F(MappingTest, NoItemsHaveNoDataAndTheAnswerIsTrue) {
    EXPECT_EQ(Simple({}), Names());
    TreeItems out{nullptr};
    EXPECT_TRUE(view.GetDataItemsFromViewItems({}, out, true));
    EXPECT_THAT(out, IsEmpty());
}

TEST_F(MappingTest, AFolderStandsForItsOwnRows) {
    Show(a, part);
    Show(b, tool);
    EXPECT_EQ(Simple({&a}), (Names{"bolt_1", "nut_2"}));
}

TEST_F(MappingTest, AFolderWithDescendantsStandsForTheRowsOfTheFoldersBelowToo) {
    Show(a, part);
    Show(b, tool);
    EXPECT_EQ(Simple({&a}, true), (Names{"bolt_1", "nut_2", "saw_1"}));
}

TEST_F(MappingTest, AnItemThatIsNamedTwiceHasItsDataTwice) {
    Show(a, part);
    EXPECT_EQ(Simple({Row(a, "nut_2"), &a, Row(a, "nut_2")}),
              (Names{"nut_2", "bolt_1", "nut_2", "nut_2"}));
}

TEST_F(MappingTest, AnItemOfAnotherViewEndsTheListWithFalse) {
    Show(a, part);
    auto* const foreign = host.View("other").GetRootFreeFolder();
    auto* const nut = Row(a, "nut_2");
    EXPECT_EQ(Simple({nut, foreign, nut}), (Names{"false", "nut_2"}));
    TreeItems ofTrees{nullptr};
    EXPECT_FALSE(view.GetDataItemsFromViewItems({nut, foreign}, ofTrees, true));
    EXPECT_THAT(ofTrees, IsEmpty());
}

TEST_F(MappingTest, NullEndsTheListWithFalse) {
    Show(a, part);
    EXPECT_EQ(Simple({Row(a, "nut_2"), nullptr}), (Names{"false", "nut_2"}));
    TreeItems ofTrees;
    EXPECT_FALSE(view.GetDataItemsFromViewItems({nullptr}, ofTrees, false));
}

TEST_F(MappingTest, TheOldNamesAnswerTheSame) {
    Show(a, part);
    SimpleItems simple;
    EXPECT_TRUE(view.OLD_GetDataItemsFromViewItems({&a}, simple, false));
    EXPECT_THAT(simple, ElementsAre(&part["bolt_1"], &part["nut_2"]));
    TreeItems ofTrees{nullptr};
    EXPECT_TRUE(view.OLD_GetDataItemsFromViewItems({&a}, ofTrees, false));
    EXPECT_THAT(ofTrees, IsEmpty());
}

TEST_F(MappingTest, RowsOfFlatSourcesHaveNoItemsOfTrees) {
    Show(a, part);
    TreeItems out{nullptr};
    EXPECT_TRUE(view.GetDataItemsFromViewItems({&a, Row(a, "nut_2")}, out, true));
    EXPECT_THAT(out, IsEmpty());
    EXPECT_EQ(host.calls.Count("GetChildren"), 0U);
}

TEST_F(MappingTest, TheTypesOfASelectionAreAnEmptyListWhateverIsSelected) {
    Show(a, part);
    std::vector<zbIBrowserDataSourceSimple*> out{&part};
    EXPECT_TRUE(view.GetSelectionTypes({Row(a, "nut_2"), &a, nullptr}, out));
    EXPECT_THAT(out, IsEmpty());
}

// Items of trees below others

class DescendantsTest : public MappingTest {
protected:
    RecordingTree& tree = ConnectedTree("assembly");
    RecordingSource& type = host.Source("assembly_type");
    zbIBrowserDataItemHierarchical* engine = &tree.Add(type, "engine");
    zbIBrowserDataItemHierarchical* piston = &tree.Add(type, "engine/piston");
    zbIBrowserDataItemHierarchical* ring = &tree.Add(type, "engine/piston/ring");
};

TEST_F(DescendantsTest, AllLevelsBelowAreAppended) {
    TreeItems out{ring};
    view.AppendDescendentDataItems(out, {engine});
    EXPECT_THAT(out, ElementsAre(ring, piston, ring));
}

TEST_F(DescendantsTest, EachItemAddsWhatIsBelowItAgain) {
    TreeItems out;
    view.AppendDescendentDataItems(out, {piston, piston, nullptr});
    EXPECT_THAT(out, ElementsAre(ring, ring));
}

TEST_F(DescendantsTest, TheListMayBeTheOneThatGrows) {
    TreeItems out{engine, piston};
    view.AppendDescendentDataItems(out, out);
    EXPECT_THAT(out, ElementsAre(engine, piston, piston, ring, ring));
}

TEST_F(DescendantsTest, WhatIsBelowNothingIsNothing) {
    TreeItems out;
    view.AppendDescendentDataItems(out, {});
    EXPECT_THAT(out, IsEmpty());
    EXPECT_EQ(host.calls.Count("GetChildren"), 0U);
}

TEST_F(DescendantsTest, NoFurtherItemIsAskedOnceTheViewHasGone) {
    auto* const wheel = &tree.Add(type, "wheel");
    host.calls.On("GetChildren", "assembly", [this] { host.DeleteView(view); });
    TreeItems out;

    view.AppendDescendentDataItems(out, {engine, wheel});

    EXPECT_EQ(host.calls.Count("GetDataSource", "wheel"), 0U);
    EXPECT_THAT(out, IsEmpty());
    signals.Discard();
}

TEST_F(DescendantsTest, ATreeIsNotAskedWhenTheViewGoesWithTheQuestionWhichTreeItIs) {
    host.calls.On("GetDataSource", "engine", [this] { host.DeleteView(view); });
    TreeItems out;
    view.AppendDescendentDataItems(out, {engine});
    EXPECT_EQ(host.calls.Count("GetChildren"), 0U);
    signals.Discard();
}

// From data items to view items

TEST_F(MappingTest, TheRowsOfADataItemAreAppendedFolderByFolder) {
    Show(b, part);
    Show(Root(), part);
    Show(a, part);
    Items found{&b};
    Items parents{&a};
    view.GetDataDependentViewItems(&part["nut_2"], found, parents);
    EXPECT_THAT(found, ElementsAre(&b, Row(Root(), "nut_2"), Row(a, "nut_2"), Row(b, "nut_2")));
    EXPECT_THAT(parents, ElementsAre(&a, &Root(), &a, &b));
}

TEST_F(MappingTest, AnItemWithoutARowHasNoViewItems) {
    Show(a, part);
    Items found;
    Items parents;
    view.GetDataDependentViewItems(&tool["saw_1"], found, parents);
    view.GetDataDependentViewItems(&part.Add("pin_3"), found, parents);
    view.GetDataDependentViewItems(static_cast<zbIBrowserDataItemSimple*>(nullptr), found, parents);
    EXPECT_THAT(found, IsEmpty());
    EXPECT_THAT(parents, IsEmpty());
}

TEST_F(MappingTest, AnItemThatTheListOfAnotherSourceShowsIsFound) {
    part["nut_2"].source = &tool;
    Show(a, part);
    Items found;
    Items parents;
    view.GetDataDependentViewItems(&part["nut_2"], found, parents);
    EXPECT_THAT(found, ElementsAre(Row(a, "nut_2")));
}

TEST_F(MappingTest, AnItemWithoutASourceIsFoundByItsRow) {
    part["nut_2"].source = nullptr;
    Show(a, part);
    Items found;
    Items parents;
    view.GetDataDependentViewItems(&part["nut_2"], found, parents);
    EXPECT_THAT(found, ElementsAre(Row(a, "nut_2")));
}

TEST_F(MappingTest, AHiddenRowIsFoundAndStandsForItsData) {
    Show(a, part);
    auto* const nut = Row(a, "nut_2");
    static_cast<zbBrowserViewItemDataLeaf*>(nut)->SetHidden(true);
    Items found;
    Items parents;
    view.GetDataDependentViewItems(&part["nut_2"], found, parents);
    EXPECT_THAT(found, ElementsAre(nut));
    EXPECT_EQ(Simple({&a}), (Names{"bolt_1", "nut_2"}));
}

TEST_F(MappingTest, TheViewMayBeDeletedWhileAnItemIsAskedForItsSource) {
    Show(a, part);
    auto& bolt = part["bolt_1"];
    host.calls.On("GetDataSource", "bolt_1", [&] {
        host.calls.Off("GetDataSource", "bolt_1");
        host.DeleteView(view);
    });

    Items found;
    Items parents;
    view.GetDataDependentViewItems(&bolt, found, parents);

    EXPECT_EQ(host.Controller().OLD_FindView("view"), nullptr);
    signals.Discard();
}

TEST_F(MappingTest, AskingForRowsCallsNobodyAndSignalsNothing) {
    Show(a, part);
    host.calls.Record(true);
    Items found;
    Items parents;
    view.GetDataDependentViewItems(&part["nut_2"], found, parents);
    EXPECT_THAT(host.calls.take(), IsEmpty());
    EXPECT_THAT(signals.take(), IsEmpty());
}

} // namespace
