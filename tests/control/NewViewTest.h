// SPDX-License-Identifier: MIT
//! \file
//! A view of the new generation in a recording host.
#pragma once

#include "control/Thrown.h"
#include "support/RecordingHost.h"

#include <zbBrowserView/View.h>

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

    bool ConnectSource(char const* name, bool connect) {
        zbIBrowserDataSource* const source = &host.Source(name);
        return view.Connect(source, connect);
    }

    RecordingHost host;
    zbbrowser::View& view;
};

} // namespace zbtest
