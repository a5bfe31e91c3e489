// SPDX-License-Identifier: MIT
//! \file
//! A tree and the content that can show it.
#pragma once

#include "ItemsTest.h"

namespace zbtest {

//! A tree "machine" of type "own" whose items can have "child" and "extra" below them.
class TreeSettingsFixture : public ItemsTest {
protected:
    TreeSettingsFixture() { tree.childTypes = {&child, &extra}; }

    void Add() {
        EXPECT_TRUE(trees.AddTree(&tree));
        recorder.Discard();
    }
    bool IsGrouped(zbIBrowserDataSourceSimple& type) {
        bool out = false;
        EXPECT_TRUE(trees.IsTypeGrouped(&tree, &type, out));
        return out;
    }
    bool IsShown(zbIBrowserDataSourceSimple& type) {
        bool out = false;
        EXPECT_TRUE(trees.IsTypeShown(&tree, &type, out));
        return out;
    }
    Sources Types() {
        Sources types;
        EXPECT_TRUE(trees.GetChildTypes(&tree, types));
        return types;
    }

    zbbrowser::detail::CallScope scope{Lifetime()};
    RecordingSource& own = host.Source("own");
    RecordingSource& child = host.Source("child");
    RecordingSource& extra = host.Source("extra");
    RecordingTree& tree = host.Tree("machine", own);
    zbBrowserFreeFolderContentWithTree& trees = Trees(folder);
};

} // namespace zbtest
