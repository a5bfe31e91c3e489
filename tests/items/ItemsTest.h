// SPDX-License-Identifier: MIT
//! \file
//! What the tests of items and contents share: an old view with one folder in it.
#pragma once

#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "support/RecordingHost.h"
#include "support/SignalRecorder.h"
#include "support/ViewItemNames.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace zbtest {

class ItemsTest : public testing::Test {
protected:
    using Folder = zbBrowserViewItemFreeFolder;
    using Leaf = zbBrowserViewItemDataLeaf;
    using Items = std::vector<zbIBrowserViewItem*>;
    using Sources = std::vector<zbIBrowserDataSourceSimple*>;
    using Names = std::vector<std::string>;

    ItemsTest() { recorder.Discard(); }

    //! A new folder behind the others; its signals are not recorded.
    Folder& NewFolder(Folder& parent, char const* name) {
        host.OldView().CreateFreeFolder(&parent, name);
        recorder.Discard();
        Folder* last = nullptr;
        for (auto const& child : parent.ChildFolders())
            last = child != nullptr ? child.get() : last;
        return *last;
    }

    //! Shows a source in the folder; the signals are not recorded.
    void Show(Folder& where, RecordingSource& source) {
        EXPECT_TRUE(where.CreateList(&source));
        recorder.Discard();
    }

    static Names NamesOf(Items const& items, RecordingHostCalls const& calls) {
        Names names;
        for (auto const* const item : items)
            names.push_back(NameOf(item, &calls));
        return names;
    }

    //! The rows of a folder.
    Names Rows(Folder const& of) const {
        Items items;
        of.GetAllViewItems(items, false);
        return NamesOf(items, host.calls);
    }
    //! What is to be shown of a folder: child folders and rows, without the hidden ones.
    Names Shown(Folder& of) const {
        Items items;
        of.GetChildren(items);
        return NamesOf(items, host.calls);
    }
    static Names ChildNames(Folder const& of) {
        Names names;
        for (auto const& child : of.ChildFolders()) {
            if (child != nullptr)
                names.emplace_back(child->GetName());
        }
        return names;
    }

    //! The row of that name.
    static Leaf& Row(Folder& of, char const* name) {
        Leaf* found = nullptr;
        of.RequireHolder().NoGrouping().Leaves().ForEach([&](Leaf& leaf) {
            if (NameOf(leaf.GetDataItemSimple()) == name)
                found = &leaf;
        });
        if (found == nullptr)
            throw std::out_of_range(name);
        return *found;
    }
    static zbBrowserFreeFolderContentNoGrouping& Flat(Folder& of) {
        return of.RequireHolder().NoGrouping();
    }
    static zbBrowserFreeFolderContentWithGrouping& Grouped(Folder& of) {
        return of.RequireHolder().WithGrouping();
    }
    static zbBrowserFreeFolderContentWithTree& Trees(Folder& of) {
        return of.RequireHolder().WithTree();
    }
    static void SetGroupLeafs(Folder& of, bool group) { of.SetGroupLeafs(group); }

    zbBrowserView& View() { return host.OldView(); }
    zbbrowser::detail::ViewLifetime& Lifetime() { return folder.Context().Lifetime(); }
    Folder& Root() { return *View().FindFreeFolder(View().GetRootFreeFolder()); }

    RecordingHost host;
    SignalRecorder recorder{host};
    Folder& root = Root();
    Folder& folder = NewFolder(root, "box");
    RecordingSource& part = host.Source("part").Items({"bolt", "nut", "pin"});
    RecordingSource& tool = host.Source("tool").Items({"saw", "file"});
};

} // namespace zbtest
