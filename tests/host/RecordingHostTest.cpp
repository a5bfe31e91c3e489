// SPDX-License-Identifier: MIT
//! \file
//! The double keeps the contract of a host, so that tests which pass with it mean something.

#include "support/RecordingHost.h"

#include <zbBrowserView/zbIBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::RecordingHost;
using zbtest::RecordingItem;
using zbtest::RecordingManager;
using zbtest::RecordingSource;
using zbtest::RecordingTree;
using zbtest::RecordingTreeItem;

std::vector<std::string> ItemsOf(RecordingSource& source) {
    std::vector<zbIBrowserDataItemSimple*> items;
    EXPECT_TRUE(source.GetDataItems(items));
    std::vector<std::string> names;
    names.reserve(items.size());
    for (zbIBrowserDataItemSimple* const item : items) {
        names.push_back(dynamic_cast<RecordingItem&>(*item).Name());
    }
    return names;
}

std::vector<std::string> ChildrenOf(RecordingTree& tree, RecordingTreeItem* parent,
                                    RecordingSource* type, bool recursive) {
    std::vector<zbIBrowserDataItemHierarchical*> items;
    tree.GetChildren(parent, items, type, recursive);
    std::vector<std::string> names;
    names.reserve(items.size());
    for (zbIBrowserDataItemHierarchical* const item : items) {
        names.push_back(dynamic_cast<RecordingTreeItem&>(*item).flat->Name());
    }
    return names;
}

class RecordingHostTest : public testing::Test {
protected:
    RecordingHost host;
    RecordingSource& part = host.Source("part").Items({"bolt_1", "nut_2", "nut_3"});
};

TEST_F(RecordingHostTest, ASourceGivesItsItemsInOrder) {
    EXPECT_THAT(ItemsOf(part), ElementsAre("bolt_1", "nut_2", "nut_3"));
    part.Insert(1, "pin_4");
    EXPECT_THAT(ItemsOf(part), ElementsAre("bolt_1", "pin_4", "nut_2", "nut_3"));
    part.Reorder({"nut_3", "bolt_1"});
    EXPECT_THAT(ItemsOf(part), ElementsAre("nut_3", "bolt_1", "pin_4", "nut_2"));
}

TEST_F(RecordingHostTest, ASourceRefusesAListThatIsNotEmpty) {
    std::vector<zbIBrowserDataItemSimple*> items{&part["bolt_1"]};
    EXPECT_THROW(part.GetDataItems(items), std::logic_error);
}

TEST_F(RecordingHostTest, AnUnlistedItemIsAliveButNotContained) {
    RecordingItem& bolt = part.Unlist("bolt_1");
    EXPECT_FALSE(part.ContainsDataItem(&bolt));
    EXPECT_THAT(ItemsOf(part), ElementsAre("nut_2", "nut_3"));
    EXPECT_EQ(bolt.Name(), "bolt_1");

    part.Relist(bolt);
    EXPECT_TRUE(part.ContainsDataItem(&bolt));
    EXPECT_THAT(ItemsOf(part), ElementsAre("nut_2", "nut_3", "bolt_1"));
}

TEST_F(RecordingHostTest, ADeletedItemIsComparedAndNotFollowed) {
    RecordingItem* const bolt = &part["bolt_1"];
    part.Delete("bolt_1");
    EXPECT_FALSE(part.ContainsDataItem(bolt));
    EXPECT_EQ(host.calls.NameOf(static_cast<zbIBrowserDataItem*>(bolt)), "bolt_1");
}

TEST_F(RecordingHostTest, AFailingSourceAnswersFalse) {
    part.failing = true;
    std::vector<zbIBrowserDataItemSimple*> items;
    EXPECT_FALSE(part.GetDataItems(items));
}

TEST_F(RecordingHostTest, ComparisonsOrderByNameThenById) {
    int cmp = 0;
    EXPECT_TRUE(part.CompareByName(&part["nut_2"], &part["bolt_1"], cmp));
    EXPECT_GT(cmp, 0);
    EXPECT_TRUE(part.CompareById(&part["bolt_1"], &part["nut_2"], cmp));
    EXPECT_LT(cmp, 0);
    EXPECT_TRUE(part.CompareById(&part["nut_2"], &part["nut_2"], cmp));
    EXPECT_EQ(cmp, 0);
}

TEST_F(RecordingHostTest, ComparisonsByPropertyOrderNumbersByValue) {
    part["bolt_1"].Set("mass", 10);
    part["nut_2"].Set("mass", 9);
    int cmp = 0;
    EXPECT_FALSE(part.CompareBySortProperty(&part["bolt_1"], &part["nut_2"], cmp));
    part.SetSortProperty(&part.Property("mass"));
    EXPECT_TRUE(part.CompareBySortProperty(&part["bolt_1"], &part["nut_2"], cmp));
    EXPECT_GT(cmp, 0);
    EXPECT_TRUE(part.CompareByDataProperty(&part["nut_2"], &part.Property("mass"), &part["bolt_1"],
                                           &part.Property("mass"), cmp));
    EXPECT_LT(cmp, 0);
}

TEST_F(RecordingHostTest, AComparisonThatDecidesNothingLeavesTheAnswerAlone) {
    part.compares = false;
    int cmp = 7;
    EXPECT_FALSE(part.CompareByName(&part["nut_2"], &part["bolt_1"], cmp));
    EXPECT_EQ(cmp, 7);
}

TEST_F(RecordingHostTest, PropertiesReadTheFormsThatFitTheValue) {
    RecordingItem& bolt = part["bolt_1"].Set("mass", 12);
    auto& mass = part.Property("mass");
    int integer = 0;
    unsigned natural = 0;
    double real = 0;
    bool flag = false;
    zbString text;
    EXPECT_TRUE(mass.GetInteger(&bolt, nullptr, integer));
    EXPECT_TRUE(mass.GetUnsigned(&bolt, nullptr, natural));
    EXPECT_TRUE(mass.GetDouble(&bolt, nullptr, real));
    EXPECT_TRUE(mass.GetString(&bolt, nullptr, text));
    EXPECT_FALSE(mass.GetBoolean(&bolt, nullptr, flag));
    EXPECT_EQ(mass.GetTextPointer(&bolt, nullptr), nullptr);
    EXPECT_EQ(integer, 12);
    EXPECT_EQ(natural, 12U);
    EXPECT_EQ(real, 12.0);
    EXPECT_STREQ(text.c_str(), "12");
    EXPECT_FALSE(mass.GetInteger(&part["nut_2"], nullptr, integer));
}

TEST_F(RecordingHostTest, VariantsBelongToTheCurrentItem) {
    zbVariant value;
    EXPECT_FALSE(part.Property("name").GetVariant(value));
    host.Control().SetCurrentDataItem(&part["nut_2"]);
    EXPECT_TRUE(part.Property("name").GetVariant(value));
    EXPECT_STREQ(value.GetString().c_str(), "nut_2");
    EXPECT_TRUE(part.Property("mass").SetVariant(3));
    EXPECT_EQ(part["nut_2"].Value("mass")->GetInteger(), 3);
}

TEST_F(RecordingHostTest, ATreeGivesChildrenByLevelAndByType) {
    auto& assembly = host.Source("assembly");
    auto& tree = host.Tree("machine", assembly);
    auto& engine = tree.Add(assembly, "engine");
    tree.Add(part, "engine/piston");
    tree.Add(assembly, "engine/head");
    tree.Add(part, "engine/head/valve");
    tree.Add(assembly, "frame");

    EXPECT_THAT(ChildrenOf(tree, nullptr, nullptr, false), ElementsAre("engine", "frame"));
    EXPECT_THAT(ChildrenOf(tree, &engine, nullptr, false), ElementsAre("piston", "head"));
    EXPECT_THAT(ChildrenOf(tree, &engine, &part, false), ElementsAre("piston"));
    EXPECT_THAT(ChildrenOf(tree, &engine, nullptr, true), ElementsAre("piston", "head", "valve"));
    EXPECT_EQ(tree["engine/head"].GetParent(), &engine);
    EXPECT_EQ(tree["engine/head"].GetDataItemSimple()->GetDataSource(), &assembly);
}

TEST_F(RecordingHostTest, TreeItemsMoveAndGo) {
    auto& tree = host.Tree("machine", part);
    tree.Add(part, "a");
    tree.Add(part, "a/b");
    tree.Add(part, "a/b/c");

    tree.Move(tree["a/b"], nullptr);
    EXPECT_THAT(ChildrenOf(tree, nullptr, nullptr, true), ElementsAre("a", "b", "c"));
    EXPECT_EQ(tree["b"].GetParent(), nullptr);

    tree.Delete(tree["b"]);
    EXPECT_THAT(ChildrenOf(tree, nullptr, nullptr, true), ElementsAre("a"));
    EXPECT_NE(part.Find("c"), nullptr);
}

TEST_F(RecordingHostTest, ReferencesTellRootsChildrenAndChangedLinks) {
    auto& control = host.Control();
    auto& uses = control.Reference("uses", part, part);
    control.Link(uses, part["bolt_1"], part["nut_2"], true);

    std::vector<zbIBrowserDataItem*> items;
    control.GetItems(items, &uses, &part, nullptr, false);
    EXPECT_THAT(items, ElementsAre(&part["bolt_1"], &part["nut_3"]));
    items.clear();
    control.GetItems(items, &uses, &part, &part["bolt_1"], false);
    EXPECT_THAT(items, ElementsAre(&part["nut_2"]));

    std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>> removed;
    std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>> added;
    control.GetChangedLinks(removed, added, &uses, &part, &part, false);
    EXPECT_THAT(removed, IsEmpty());
    EXPECT_THAT(added, ElementsAre(testing::Pair(&part["bolt_1"], &part["nut_2"])));
    added.clear();
    control.GetChangedLinks(removed, added, &uses, &part, &part, false);
    EXPECT_THAT(added, IsEmpty());
}

TEST_F(RecordingHostTest, TheOrderOfSourcesIsUndecidedUntilSet) {
    auto& material = host.Source("material");
    bool less = false;
    EXPECT_FALSE(host.Control().CompareDataSources(&part, &material, less));
    host.Control().sourceOrder = {&part, &material};
    EXPECT_TRUE(host.Control().CompareDataSources(&part, &material, less));
    EXPECT_TRUE(less);
    EXPECT_FALSE(host.Control().CompareDataSources(&part, &part, less));
}

TEST_F(RecordingHostTest, CallsAreCountedAndWrittenDownOnDemand) {
    RecordingItem& bolt = part["bolt_1"];
    part.ContainsDataItem(&bolt);
    host.calls.Record(true);
    part.ContainsDataItem(&bolt);
    static_cast<void>(part.GetName());
    host.manager.BeginLongOperation();

    EXPECT_THAT(host.calls.take(),
                ElementsAre("part.ContainsDataItem bolt_1", "manager.BeginLongOperation"));
    EXPECT_EQ(host.calls.Count("ContainsDataItem"), 2U);
    EXPECT_EQ(host.calls.Count("ContainsDataItem", "part"), 2U);
    EXPECT_EQ(host.calls.Count("ContainsDataItem", "material"), 0U);
    EXPECT_EQ(host.calls.Count("GetName", "part"), 1U);
}

TEST_F(RecordingHostTest, ReadersAreWrittenDownOnDemand) {
    host.calls.Record(true);
    host.calls.RecordReaders(true);
    static_cast<void>(part.GetName());
    EXPECT_THAT(host.calls.take(), ElementsAre("part.GetName"));
}

TEST_F(RecordingHostTest, AHookRunsWithinTheCallOfItsObject) {
    int runs = 0;
    host.calls.On("GetDataItems", "part", [&] { ++runs; });
    ItemsOf(host.Source("material"));
    EXPECT_EQ(runs, 0);
    ItemsOf(part);
    EXPECT_EQ(runs, 1);
    host.calls.Off("GetDataItems", "part");
    ItemsOf(part);
    EXPECT_EQ(runs, 1);
}

TEST_F(RecordingHostTest, AHookMayThrowAndRemoveItself) {
    host.calls.On("GetDataItems", [&] {
        host.calls.Off("GetDataItems");
        throw std::runtime_error("hook");
    });
    std::vector<zbIBrowserDataItemSimple*> items;
    EXPECT_THROW(part.GetDataItems(items), std::runtime_error);
    EXPECT_NO_THROW(part.GetDataItems(items));
}

TEST_F(RecordingHostTest, AHookMayChangeWhatTheCallAnswers) {
    host.calls.On("GetDataItems", [&] { part.Delete("nut_2"); });
    EXPECT_THAT(ItemsOf(part), ElementsAre("bolt_1", "nut_3"));
}

void ForgetToCall() {
    RecordingHost host;
    host.calls.On("GetDataItem", [] {});
}

TEST(RecordingHostCalls, FailItsTestWhenAHookWasNeverReached) {
    EXPECT_NONFATAL_FAILURE(ForgetToCall(), "hook never reached: GetDataItem");
}

TEST_F(RecordingHostTest, TheManagerHandsOutWhatTheHostHolds) {
    EXPECT_EQ(host.manager.GetSignalManager(), &host.signals);
    EXPECT_EQ(host.manager.GetDataSignalManager(), &host.dataSignals);
    EXPECT_EQ(host.manager.GetBrowserPanel(), &host.panel);
    EXPECT_EQ(host.manager.GetGuiMapManager(), &host.guiMaps);
}

TEST_F(RecordingHostTest, LongOperationsNest) {
    host.manager.BeginLongOperation();
    host.manager.BeginLongOperation();
    host.manager.EndLongOperation();
    EXPECT_EQ(host.manager.longOperations, 1);
}

TEST_F(RecordingHostTest, GuiMapsAreFoundByName) {
    host.guiMaps.Map("icons").entries["bolt"] = {"png", "bolt_16"};
    EXPECT_EQ(host.guiMaps.FindGuiMap("none"), nullptr);
    zbIBrowserGuiMap* const icons = host.guiMaps.FindGuiMap("icons");
    ASSERT_NE(icons, nullptr);
    zbString text;
    EXPECT_TRUE(icons->GetEntryKind("bolt", text));
    EXPECT_STREQ(text.c_str(), "png");
    EXPECT_TRUE(icons->GetEntryValue("bolt", text));
    EXPECT_STREQ(text.c_str(), "bolt_16");
    EXPECT_FALSE(icons->GetEntryValue("nut", text));
}

TEST_F(RecordingHostTest, TheManagerMakesAndDeletesViewsAndFolders) {
    zbIBrowserView& view = host.View("parts");
    EXPECT_EQ(&host.View("parts"), &view);
    EXPECT_EQ(view.GetDataCtrl(), &host.Control());

    EXPECT_TRUE(
        RecordingManager::CreateFreeFolder(host.Controller(), view.GetRootFreeFolder(), "box"));
    zbIBrowserViewItemFreeFolder* const box = view.GetRootFreeFolder()->FindChildFreeFolder("box");
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(RecordingManager::DeleteFreeFolder(host.Controller(), box, true));
    EXPECT_EQ(view.GetRootFreeFolder()->FindChildFreeFolder("box"), nullptr);

    EXPECT_TRUE(host.DeleteView(view));
    EXPECT_EQ(host.Controller().FindView("parts"), nullptr);
}

} // namespace
