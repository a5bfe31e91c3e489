// SPDX-License-Identifier: MIT
//! \file
//! A view of the new generation in a recording host.
#pragma once

#include "support/RecordingHost.h"
#include "support/Thrown.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <gmock/gmock.h>

#include <set>

namespace zbtest {

class NewView : public testing::Test {
protected:
    NewView()
        : view(host.NewView("parts")) {
        host.calls.Record(true);
    }

    std::set<zbIBrowserDataSource*> Sources() const {
        std::set<zbIBrowserDataSource*> sources{nullptr};
        EXPECT_TRUE(view.GetConnected(sources));
        return sources;
    }

    std::set<zbIBrowserDataReference*> References() const {
        std::set<zbIBrowserDataReference*> references{nullptr};
        EXPECT_TRUE(view.GetConnected(references));
        return references;
    }

    zbIBrowserViewItemFreeFolder& Root() { return *view.GetRootFreeFolder(); }

    zbIBrowserViewItemFreeFolder& Make(zbIBrowserViewItemFreeFolder& parent, char const* name) {
        EXPECT_TRUE(view.CreateFreeFolder(&parent, name));
        return *parent.FindChildFreeFolder(name);
    }
    zbIBrowserViewItemFreeFolder& Make(char const* name) { return Make(Root(), name); }

    bool ConnectSource(char const* name, bool connect) {
        zbIBrowserDataSource* const source = &host.Source(name);
        return view.Connect(source, connect);
    }

    RecordingHost host;
    zbbrowser::View& view;
};

} // namespace zbtest
