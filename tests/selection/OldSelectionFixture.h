// SPDX-License-Identifier: MIT
//! \file
//! An old view with rows to select.
#pragma once

#include "SelectionTest.h"

namespace zbtest {

class OldSelection : public SelectionTest<OldGeneration> {
protected:
    [[nodiscard]] zbBrowserView& View() { return host.OldView(); }

    //! A connected source with these items.
    RecordingSource& Connected(char const* name, std::initializer_list<char const*> items) {
        RecordingSource& source = host.Source(name).Items(items);
        EXPECT_TRUE(view.DataSourceConnect(&source));
        return source;
    }
    //! Shows a source in a folder.
    void Show(FreeFolder& folder, RecordingSource& source) {
        EXPECT_TRUE(View().CreateList(&folder, &source, false));
        signals.Discard();
    }
    [[nodiscard]] zbIBrowserViewItem* Row(FreeFolder const& folder, char const* name) {
        Items children;
        View().GetChildren(children, &folder);
        for (auto* const child : children) {
            if (!child->IsFreeFolder() && NameOf(child) == name) {
                return child;
            }
        }
        throw std::out_of_range(name);
    }

    RecordingSource& part = Connected("part", {"bolt", "nut", "pin"});
    RecordingSource& tool = Connected("tool", {"saw"});
};

} // namespace zbtest
