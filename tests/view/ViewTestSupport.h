// SPDX-License-Identifier: MIT
//! \file
//! What the tests of the old view share.
#pragma once

#include "support/RecordingHost.h"
#include "support/SignalRecorder.h"
#include "support/ViewItemNames.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zbtest {

using Names = std::vector<std::string>;

//! The names of what GetChildren gives for an item.
[[nodiscard]] inline Names ChildrenOf(zbBrowserView const& view, zbIBrowserViewItem const& item,
                                      RecordingHostCalls const* calls = nullptr) {
    std::vector<zbIBrowserViewItem*> children;
    view.GetChildren(children, &item);
    Names names;
    for (zbIBrowserViewItem* const child : children) {
        names.push_back(NameOf(child, calls));
    }
    return names;
}

//! The row of a data item in a folder; null if there is none.
[[nodiscard]] inline zbIBrowserViewItem*
RowOf(zbBrowserView const& view, zbIBrowserViewItem const& folder, std::string const& name) {
    std::vector<zbIBrowserViewItem*> children;
    view.GetChildren(children, &folder);
    for (zbIBrowserViewItem* const child : children) {
        if (child->IsDataLeaf() && NameOf(child) == name) {
            return child;
        }
    }
    return nullptr;
}

//! A host with one old view that has the data control "data", and a recorder of all signals.
class ViewTest : public testing::Test {
protected:
    using FreeFolder = zbIBrowserViewItemFreeFolder;

    RecordingHost host;
    zbBrowserView& view = host.OldView();
    SignalRecorder signals{host};

    [[nodiscard]] FreeFolder& Root() const { return *view.GetRootFreeFolder(); }

    //! Makes a folder; its signals are forgotten.
    FreeFolder& Folder(char const* name, FreeFolder* parent = nullptr) {
        FreeFolder& owner = parent == nullptr ? Root() : *parent;
        EXPECT_TRUE(view.CreateFreeFolder(&owner, name));
        signals.Discard();
        std::vector<FreeFolder*> children;
        owner.GetChildFreeFolders(children, false, true);
        return *children.back();
    }

    //! A source with these items that is connected to the view.
    RecordingSource& Connected(char const* name, std::initializer_list<char const*> items) {
        RecordingSource& source = host.Source(name).Items(items);
        EXPECT_TRUE(view.DataSourceConnect(&source));
        return source;
    }

    //! A tree that is connected to the view. Its own type is a source of the name with "_type".
    RecordingTree& ConnectedTree(char const* name) {
        RecordingTree& tree = host.Tree(name, host.Source(std::string(name) + "_type"));
        EXPECT_TRUE(view.DataSourceConnect(&tree));
        return tree;
    }

    //! Shows a source in a folder; the signals are forgotten.
    void Show(FreeFolder& folder, RecordingSource& source) {
        EXPECT_TRUE(view.CreateList(&folder, &source, false));
        signals.Discard();
    }

    [[nodiscard]] Names Rows(FreeFolder const& folder) const { return ChildrenOf(view, folder); }
    [[nodiscard]] zbIBrowserViewItem* Row(FreeFolder const& folder, char const* name) const {
        return RowOf(view, folder, name);
    }
};

//! The text that a call throws as `char const*`; "nothing" if it does not throw that.
template <class Call>
[[nodiscard]] std::string ThrownText(Call call) {
    try {
        call();
    } catch (char const* text) {
        return text;
    }
    return "nothing";
}

//! The same for a zbString.
template <class Call>
[[nodiscard]] std::string ThrownString(Call call) {
    try {
        call();
    } catch (zbString const& text) {
        return text.c_str();
    }
    return "nothing";
}

} // namespace zbtest
