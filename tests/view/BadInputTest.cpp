// SPDX-License-Identifier: MIT
//! \file
//! What the old view does with arguments that are null, stale, foreign or strange.

#include "StrangeNames.h"
#include "ViewTestSupport.h"

namespace {

using testing::IsEmpty;
using zbtest::Names;
using zbtest::StrangeName;
using zbtest::ThrownString;
using zbtest::ThrownText;

class BadInputTest : public zbtest::ViewTest {};

// The address of a folder that has been freed: it must be compared and never followed.
TEST_F(BadInputTest, TheAddressOfADeletedFolderIsRefused) {
    auto& part = Connected("part", {"bolt_1"});
    auto& tree = ConnectedTree("assembly");
    auto* const gone = &Folder("gone");
    ASSERT_TRUE(view.DeleteFreeFolder(gone, true));
    signals.Discard();

    EXPECT_EQ(view.FindFreeFolder(gone), nullptr);
    EXPECT_FALSE(view.CreateList(gone, &part, false));
    EXPECT_FALSE(view.DeleteList(gone, &part));
    EXPECT_FALSE(view.CreateTree(gone, &tree));
    EXPECT_FALSE(view.DeleteTree(gone, &tree));
    EXPECT_FALSE(view.CreateFreeFolder(gone, "a"));
    EXPECT_EQ(ThrownString([&] { view.DeleteFreeFolder(gone, true); }), "Null pointer hit");
    EXPECT_FALSE(view.SetFreeFolderGroupLeafs(gone, true));
    EXPECT_FALSE(view.SetFreeFolderStyle(gone, true));
    EXPECT_FALSE(view.SetFreeFolderShowEmptyContainers(gone, true));
    EXPECT_FALSE(view.GetFreeFolderGroupLeafs(gone));
    EXPECT_FALSE(view.GetFreeFolderStyle(gone));
    EXPECT_FALSE(view.SetKeepChildrenFreeFoldersInOrderAsCreated(gone, true));
    EXPECT_FALSE(view.SetListCaption(gone, &part, "c"));
    EXPECT_EQ(ThrownText([&] { view.SetSortingException(gone, &part, 1); }), "NULL pointer hit");
    EXPECT_FALSE(view.ExpandFreeFolder(gone, true));
    EXPECT_FALSE(view.CollapseFreeFolder(gone, true));
    EXPECT_TRUE(view.IsEmptyFolderCanBeShown(gone));
    view.DeselectViewItem(gone, true);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(BadInputTest, TheAddressOfADeletedItemIsNoItemOfTheView) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);
    auto* const row = Row(Root(), "bolt_1");
    view.DeleteList(&Root(), &part);
    signals.Discard();

    std::vector<FreeFolder*> folders;
    std::vector<zbIBrowserViewItem*> children;
    EXPECT_FALSE(view.GetFreeFoldersFromViewItems({row}, folders));
    EXPECT_FALSE(view.GetChildren(children, row));
    EXPECT_EQ(view.FindFreeFolder(row), nullptr);
    view.DeselectViewItem(row, true);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(BadInputTest, NullIsNoFolder) {
    auto& part = Connected("part", {"bolt_1"});
    EXPECT_FALSE(view.CreateList(nullptr, &part, false));
    EXPECT_FALSE(view.DeleteList(nullptr, &part));
    EXPECT_FALSE(view.ExpandFreeFolder(nullptr, true));
    EXPECT_FALSE(view.CollapseFreeFolder(nullptr, true));
    view.DeselectViewItem(nullptr, true);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(BadInputTest, NullIsNoSource) {
    EXPECT_TRUE(view.DataSourceConnect(static_cast<zbIBrowserDataSourceSimple*>(nullptr)));
    EXPECT_TRUE(view.DataSourceConnect(static_cast<zbIBrowserDataSourceHierarchical*>(nullptr)));
    std::vector<zbIBrowserDataSourceSimple*> out;
    view.GetDataSourceSimpleList(out);
    EXPECT_THAT(out, IsEmpty());
    EXPECT_FALSE(view.CreateList(&Root(), nullptr, false));
    EXPECT_EQ(view.GetDataSourceSimple(static_cast<zbIBrowserDataSourceSimple*>(nullptr)), nullptr);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(BadInputTest, NullIsNoDataItem) {
    auto& part = Connected("part", {"bolt_1"});
    Show(Root(), part);
    auto* const flat = static_cast<zbIBrowserDataItemSimple*>(nullptr);
    auto* const inTree = static_cast<zbIBrowserDataItemHierarchical*>(nullptr);
    view.OnDataItemCreated(flat, true);
    view.OnDataItemCreated(inTree, true);
    view.OnDataItemUpdated(flat);
    view.OnDataItemUpdated(inTree);
    view.OnDataItemDeleted(flat);
    view.OnDataItemDeleted(inTree);
    view.OnDataItemReparented(inTree, inTree);
    view.DeleteDataDependentViewItems(flat, false);
    view.DeleteDataDependentViewItems(inTree, false);
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1"}));
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(BadInputTest, ASourceMayListNullAndAnItemTwice) {
    auto& part = Connected("part", {"bolt_1", "nut_2"});
    part.ListTwice("bolt_1");
    Show(Root(), part);
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1", "nut_2"}));
}

class StrangeNameTest : public BadInputTest, public testing::WithParamInterface<StrangeName> {};

TEST_P(StrangeNameTest, NamesAFolderByteForByteUpToTheFirstNul) {
    std::string const& name = GetParam().name;
    std::string const shown = GetParam().UpToTheFirstNul();

    EXPECT_TRUE(view.CreateFreeFolder(&Root(), zbString(name.data(), name.size())));

    std::vector<FreeFolder*> children;
    Root().GetChildFreeFolders(children, false, true);
    ASSERT_EQ(children.size(), 1U);
    EXPECT_EQ(children[0]->GetName(), shown);
    zbString path;
    EXPECT_TRUE(view.GetFreeFolderAbsolutePathName(children[0], path));
    EXPECT_EQ(path.c_str(), "/" + shown);
    EXPECT_EQ(Root().FindChildFreeFolder(shown.c_str()), children[0]);
    EXPECT_TRUE(view.DeleteFreeFolder(children[0], false));
    signals.Discard();
}

TEST_P(StrangeNameTest, NamesAView) {
    std::string const shown = GetParam().UpToTheFirstNul();
    auto& strange = host.OldView(shown.c_str());
    EXPECT_EQ(strange.GetName().c_str(), shown);
    EXPECT_TRUE(host.DeleteView(strange));
}

TEST_P(StrangeNameTest, NamesASource) {
    std::string const shown = GetParam().UpToTheFirstNul();
    auto& source = host.Source(shown).Items({"x_1"});
    EXPECT_TRUE(view.DataSourceConnect(&source));
    EXPECT_EQ(view.GetDataSourceSimple(shown.c_str()), &source);
    Show(Root(), source);
    EXPECT_TRUE(view.DataSourceDisconnect(shown.c_str()));
    EXPECT_THAT(Rows(Root()), IsEmpty());
    signals.Discard();
}

INSTANTIATE_TEST_SUITE_P(OfAnyKind, StrangeNameTest, zbtest::StrangeNames(), zbtest::TitleOfName);

} // namespace
