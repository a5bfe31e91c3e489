// SPDX-License-Identifier: MIT
// Which trees a content has, and how their types are shown.
#include "TreeSettingsFixture.h"

#include <algorithm>
#include <functional>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeSettingsTest : public zbtest::TreeSettingsFixture {};

TEST_F(TreeSettingsTest, TypeSettingsAreTwoBits) {
    zbbrowser::detail::TreeTypeSettings settings;
    EXPECT_EQ(sizeof settings, 4U);
    EXPECT_EQ(settings.bits, 2U);
    settings.Set(zbbrowser::detail::TreeTypeSettings::grouped, true);
    EXPECT_EQ(settings.bits, 3U);
    settings.Set(zbbrowser::detail::TreeTypeSettings::shown, false);
    EXPECT_EQ(settings.bits, 1U);
    EXPECT_TRUE(settings.IsGrouped());
    EXPECT_FALSE(settings.IsShown());
}

TEST_F(TreeSettingsTest, AddTreeConnectsWithinAChangeAndSignalsTheContent) {
    host.calls.Record(true);
    EXPECT_TRUE(trees.AddTree(&tree));

    EXPECT_THAT(host.calls.take(),
                ElementsAre("machine.GetChildTypes", "machine.BeginChange", "machine.EndChange"));
    EXPECT_TRUE(trees.HasTree(&tree));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(TreeSettingsTest, NullIsNoTree) {
    EXPECT_FALSE(trees.AddTree(nullptr));
    EXPECT_FALSE(trees.RemoveTree(nullptr));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(TreeSettingsTest, ATreeThatDoesNotConnectIsNotKept) {
    // A content that has no use for trees refuses to connect them.
    auto& content = Flat(folder);

    EXPECT_FALSE(content.AddTree(&tree));
    EXPECT_FALSE(content.HasTree(&tree));
    EXPECT_EQ(tree.changeDepth, 0);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(TreeSettingsTest, ATreeThatIsAddedAgainKeepsItsSettingsAndSignals) {
    Add();
    trees.SetTypeShown(&tree, &child, false);
    recorder.Discard();

    EXPECT_TRUE(trees.AddTree(&tree));
    EXPECT_FALSE(IsShown(child));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(TreeSettingsTest, RemoveTreeForgetsTheSettingsTellsTheTreeAndSignals) {
    Add();
    trees.SetTypeShown(&tree, &child, false);
    recorder.Discard();
    host.calls.Record(true);

    EXPECT_TRUE(trees.RemoveTree(&tree));
    EXPECT_THAT(host.calls.take(), ElementsAre("machine.OnViewLost"));
    EXPECT_FALSE(trees.HasTrees());
    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
    Add();
    EXPECT_TRUE(IsShown(child));
}

TEST_F(TreeSettingsTest, RemoveTreeOfAnUnknownTreeIsFalse) {
    EXPECT_FALSE(trees.RemoveTree(&tree));
    EXPECT_EQ(host.calls.Count("OnViewLost"), 0U);
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(TreeSettingsTest, ATreeIsFoundByNameWithoutRegardToCase) {
    EXPECT_EQ(trees.FindTree("machine"), nullptr);
    Add();

    EXPECT_EQ(trees.FindTree("MACHINE"), &tree);
    EXPECT_EQ(trees.FindTree("machin"), nullptr);
    EXPECT_EQ(trees.FindTree(nullptr), nullptr);
}

TEST_F(TreeSettingsTest, TreesComeInTheOrderOfTheirAddresses) {
    auto& other = host.Tree("other", own);
    Add();
    trees.AddTree(&other);
    recorder.Discard();
    std::vector<zbIBrowserDataSourceHierarchical*> expected{&tree, &other};
    std::sort(expected.begin(), expected.end(), std::less<>());

    EXPECT_EQ(trees.Trees(), expected);
}

TEST_F(TreeSettingsTest, TypesAreFoundInTheFirstTreeOnlyAndExactly) {
    EXPECT_EQ(trees.FindChildType("own"), nullptr);
    auto& other = host.Tree("other", part);
    Add();
    trees.AddTree(&other);
    recorder.Discard();
    bool const isFirst = trees.Trees().front() == &tree;

    EXPECT_EQ(trees.FindChildType("own"), isFirst ? &own : nullptr);
    EXPECT_EQ(trees.FindChildType("child"), isFirst ? &child : nullptr);
    EXPECT_EQ(trees.FindChildType("part"), isFirst ? nullptr : &part);
    EXPECT_EQ(trees.FindChildType("Own"), nullptr);
    EXPECT_EQ(trees.FindChildType("Part"), nullptr);
    EXPECT_EQ(trees.FindChildType(nullptr), nullptr);
}

TEST_F(TreeSettingsTest, TheTypeOfTheTreeItselfIsFoundBeforeAChildTypeOfThatName) {
    auto& twin = host.Control("other").Source("own");
    tree.childTypes = {&twin};
    Add();

    EXPECT_EQ(trees.FindChildType("own"), &own);
}

TEST_F(TreeSettingsTest, ChildTypesAreTheOwnTypeAndThenTheShownOnes) {
    Add();
    EXPECT_THAT(Types(), ElementsAre(&own, &child, &extra));
    trees.SetTypeShown(&tree, &child, false);
    recorder.Discard();

    EXPECT_THAT(Types(), ElementsAre(&own, &extra));
}

TEST_F(TreeSettingsTest, ChildTypesReplaceWhatWasInTheOutput) {
    Add();
    Sources types{&part, &tool};
    trees.GetChildTypes(&tree, types);

    EXPECT_THAT(types, ElementsAre(&own, &child, &extra));
}

TEST_F(TreeSettingsTest, ChildTypesAskTheTreeOnce) {
    Add();
    host.calls.ForgetCounts();
    Types();

    EXPECT_EQ(host.calls.Count("GetChildTypes"), 1U);
}

TEST_F(TreeSettingsTest, ATypeThatTheTreeGotLaterIsShownAndGroupedAsTheFolderSaysThen) {
    Add();
    tree.childTypes.push_back(&part);
    SetGroupLeafs(folder, true);
    recorder.Discard();

    EXPECT_THAT(Types(), ElementsAre(&own, &child, &extra, &part));
    EXPECT_TRUE(IsGrouped(part));
}

TEST_F(TreeSettingsTest, ChildTypesOfAnUnknownTreeAreRefusedWithAText) {
    Sources types{&part};

    EXPECT_FALSE(trees.GetChildTypes(&tree, types));
    EXPECT_THAT(types, IsEmpty());
    EXPECT_STREQ(trees.LastMessage().c_str(),
                 "Tree type: machine not configured in the folder: box");
}

TEST_F(TreeSettingsTest, ChildTypesOfNullAreRefusedWithATextWithoutAName) {
    Sources types;

    EXPECT_FALSE(trees.GetChildTypes(nullptr, types));
    EXPECT_STREQ(trees.LastMessage().c_str(), "Tree type:  not configured in the folder: box");
}

// Shown

TEST_F(TreeSettingsTest, AllTypesAreShownAtFirst) {
    Add();

    EXPECT_TRUE(IsShown(own));
    EXPECT_TRUE(IsShown(child));
}

TEST_F(TreeSettingsTest, IsShownOfNullIsFalse) {
    Add();
    bool out = true;

    EXPECT_FALSE(trees.IsTypeShown(nullptr, &child, out));
    EXPECT_FALSE(trees.IsTypeShown(&tree, nullptr, out));
    EXPECT_TRUE(out) << "left alone";
}

TEST_F(TreeSettingsTest, AnUnknownTreeOrTypeIsNotShownAndThatIsAnAnswer) {
    EXPECT_FALSE(IsShown(child)) << "the tree is not known yet";
    Add();

    EXPECT_FALSE(IsShown(part));
}

TEST_F(TreeSettingsTest, HidingATypeSignalsTheContentOnce) {
    Add();
    EXPECT_TRUE(trees.SetTypeShown(&tree, &child, false));
    EXPECT_FALSE(IsShown(child));
    EXPECT_TRUE(IsShown(extra));
    EXPECT_TRUE(trees.SetTypeShown(&tree, &child, false));

    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(TreeSettingsTest, ShowingATypeAgainSignalsTheContent) {
    Add();
    trees.SetTypeShown(&tree, &child, false);
    recorder.Discard();

    EXPECT_TRUE(trees.SetTypeShown(&tree, &child, true));
    EXPECT_TRUE(IsShown(child));
    EXPECT_THAT(recorder.take(), ElementsAre("ViewContentChanged view"));
}

TEST_F(TreeSettingsTest, TheTypeOfTheTreeItselfCannotBeHidden) {
    Add();

    EXPECT_FALSE(trees.SetTypeShown(&tree, &own, false));
    EXPECT_STREQ(trees.LastMessage().c_str(),
                 "Tree type: machine can not hide parent type: machine");
    EXPECT_TRUE(IsShown(own));
    EXPECT_THAT(recorder.take(), IsEmpty());
    EXPECT_TRUE(trees.SetTypeShown(&tree, &own, true));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(TreeSettingsTest, ATypeThatTheTreeDoesNotHaveCanNeitherBeHiddenNorShown) {
    Add();

    EXPECT_FALSE(trees.SetTypeShown(&tree, &part, true));
    EXPECT_STREQ(trees.LastMessage().c_str(), "Tree type: machine does not have child type: part");
    EXPECT_FALSE(trees.SetTypeShown(&tree, &part, false));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(TreeSettingsTest, ShowingATypeOfAnUnknownTreeIsRefusedWithAText) {
    EXPECT_FALSE(trees.SetTypeShown(&tree, &child, true));
    EXPECT_STREQ(trees.LastMessage().c_str(),
                 "Tree type: machine not configured in the folder: box");
    Add();
    EXPECT_FALSE(trees.SetTypeShown(&tree, nullptr, true));
    EXPECT_FALSE(trees.SetTypeShown(nullptr, &child, true));
}

// Grouped

TEST_F(TreeSettingsTest, TypesAreGroupedAsTheFolderSaysWhenTheTreeIsAdded) {
    Add();
    EXPECT_FALSE(IsGrouped(own));
    EXPECT_FALSE(IsGrouped(child));

    auto& second = NewFolder(root, "second");
    SetGroupLeafs(second, true);
    Trees(second).AddTree(&tree);
    recorder.Discard();
    bool grouped = false;
    Trees(second).IsTypeGrouped(&tree, &own, grouped);
    EXPECT_TRUE(grouped) << "the type of the tree itself as well";
    Trees(second).IsTypeGrouped(&tree, &child, grouped);
    EXPECT_TRUE(grouped);
}

TEST_F(TreeSettingsTest, IsGroupedOfNullIsFalse) {
    Add();
    bool out = true;

    EXPECT_FALSE(trees.IsTypeGrouped(nullptr, &child, out));
    EXPECT_FALSE(trees.IsTypeGrouped(&tree, nullptr, out));
}

TEST_F(TreeSettingsTest, AnUnknownTreeOrTypeIsNotGroupedAndThatIsAnAnswer) {
    bool out = true;
    EXPECT_TRUE(trees.IsTypeGrouped(&tree, &child, out));
    EXPECT_FALSE(out);
    Add();
    out = true;
    EXPECT_TRUE(trees.IsTypeGrouped(&tree, &part, out));

    EXPECT_FALSE(out);
}

TEST_F(TreeSettingsTest, GroupingATypeConnectsTheTreeAgainWithinAChangeAndSignalsNothing) {
    Add();
    host.calls.Record(true);
    host.calls.ForgetCounts();

    EXPECT_TRUE(trees.SetTypeGrouped(&tree, &child, true));
    EXPECT_TRUE(IsGrouped(child));
    EXPECT_FALSE(IsGrouped(extra));
    EXPECT_THAT(host.calls.take(), ElementsAre("machine.BeginChange", "machine.EndChange"));
    EXPECT_THAT(recorder.take(), IsEmpty());
}

TEST_F(TreeSettingsTest, GroupingATypeThatIsGroupedChangesNothing) {
    Add();
    trees.SetTypeGrouped(&tree, &child, true);
    host.calls.ForgetCounts();

    EXPECT_TRUE(trees.SetTypeGrouped(&tree, &child, true));
    EXPECT_EQ(host.calls.Count("BeginChange"), 0U);
}

TEST_F(TreeSettingsTest, GroupingLeavesTheShownMarkAlone) {
    Add();
    trees.SetTypeShown(&tree, &child, false);
    trees.SetTypeGrouped(&tree, &child, true);
    EXPECT_FALSE(IsShown(child));
    trees.SetTypeShown(&tree, &child, true);
    recorder.Discard();

    EXPECT_TRUE(IsGrouped(child));
}

TEST_F(TreeSettingsTest, GroupingInAnUnknownTreeIsRefusedWithAText) {
    EXPECT_FALSE(trees.SetTypeGrouped(&tree, &child, true));
    EXPECT_STREQ(trees.LastMessage().c_str(),
                 "Tree type: machine not configured in the folder: box");
    EXPECT_FALSE(trees.SetTypeGrouped(nullptr, &child, true));
    EXPECT_STREQ(trees.LastMessage().c_str(), "Tree type:  not configured in the folder: box");
    Add();
    EXPECT_FALSE(trees.SetTypeGrouped(&tree, nullptr, true));
}

TEST_F(TreeSettingsTest, GroupingATreeGroupsItsOwnTypeAndItsChildTypes) {
    Add();

    EXPECT_TRUE(trees.SetTreeGrouped(&tree, true));
    EXPECT_TRUE(IsGrouped(own));
    EXPECT_TRUE(IsGrouped(child));
    EXPECT_TRUE(IsGrouped(extra));
    EXPECT_TRUE(trees.SetTreeGrouped(&tree, false));
    EXPECT_FALSE(IsGrouped(own));
    EXPECT_FALSE(IsGrouped(extra));
}

TEST_F(TreeSettingsTest, GroupingAnUnknownTreeIsRefusedWithAText) {
    EXPECT_FALSE(trees.SetTreeGrouped(&tree, true));
    EXPECT_STREQ(trees.LastMessage().c_str(),
                 "Tree type: machine not configured in the folder: box");
}

} // namespace
