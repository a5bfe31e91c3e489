// SPDX-License-Identifier: MIT
#include "support/Dump.h"

#include "support/RecordingHost.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gtest/gtest.h>

namespace zbtest {
namespace {

TEST(DumpTest, TellsListsRowsAndFoldersInTheirOrder) {
    // given
    RecordingHost host;
    zbBrowserView& view = host.OldView();
    RecordingSource& part = host.Source("part").Items({"bolt_1", "nut_2"});
    auto* const root = view.GetRootFreeFolder();
    view.CreateFreeFolder(root, "a");
    auto* const a = root->FindChildFreeFolder("a");
    view.CreateFreeFolder(a, "b");

    // when
    view.CreateList(root, &part, false);
    view.CreateList(a, &part, false);

    // then
    EXPECT_EQ(Dump(view), "/ [part]\n"
                          "  bolt_1\n"
                          "  nut_2\n"
                          "  a/ [part]\n"
                          "    bolt_1\n"
                          "    nut_2\n"
                          "    b/ unused\n");
}

TEST(DumpTest, TellsTheFlagsOfAFolder) {
    // given
    RecordingHost host;
    zbBrowserView& view = host.OldView();
    auto* const root = view.GetRootFreeFolder();
    view.CreateFreeFolder(root, "a");
    auto* const a = root->FindChildFreeFolder("a");

    // when
    view.ExpandFreeFolder(a, false);
    view.SetFreeFolderGroupLeafs(a, true);
    view.SetFreeFolderShowEmptyContainers(a, true);
    view.SetFreeFolderStyle(a, true);
    view.SetKeepChildrenFreeFoldersInOrderAsCreated(a, false);
    a->SetShowWhenEmpty(false, false);
    a->SetTextBold(true);
    a->SetTextItalic(true);

    // then
    EXPECT_EQ(Dump(view),
              "/ unused\n"
              "  a/ open groups style empty-containers sorts when-filled bold italic\n");
}

TEST(DumpTest, MarksGroupedListsAndTypesOfTrees) {
    // given
    RecordingHost host;
    zbBrowserView& view = host.OldView();
    RecordingSource& part = host.Source("part").Items({"bolt_1"});
    RecordingTree& assembly = host.Tree("assembly", host.Source("module"));
    assembly.childTypes.push_back(&part);
    auto* const root = view.GetRootFreeFolder();

    // when
    view.CreateTree(root, &assembly);
    root->SetChildTypeGrouped(&assembly, &part, true);
    view.CreateList(root, &host.Source("tool"), false);
    view.CreateList(root, &part, false);
    root->SetListGrouped(&part, true);

    // then
    EXPECT_EQ(Dump(view), "/ [tool part*] {assembly:module,module,part*}\n");
}

TEST(DumpTest, NamesRowsWhoseItemsHaveGone) {
    // given
    RecordingHost host;
    zbBrowserView& view = host.OldView();
    RecordingSource& part = host.Source("part").Items({"bolt_1"});
    view.CreateList(view.GetRootFreeFolder(), &part, false);

    // when
    part.Delete("bolt_1");

    // then
    EXPECT_EQ(Dump(view, &host.calls), "/ [part]\n  bolt_1\n");
}

} // namespace
} // namespace zbtest
