// SPDX-License-Identifier: MIT
//! \file
//! The two generations of views, for tests that hold for both.
#pragma once

#include "RecordingHost.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>

#include <gtest/gtest.h>

#include <string>

namespace zbtest {

struct OldGeneration {
    static constexpr char const* name = "Old";
    using View = zbBrowserView;
    using Source = zbIBrowserDataSourceSimple; //!< What its properties connect
    static View& Make(RecordingHost& host, char const* viewName) { return host.OldView(viewName); }
};

struct NewGeneration {
    static constexpr char const* name = "New";
    using View = zbbrowser::View;
    using Source = zbIBrowserDataSource;
    static View& Make(RecordingHost& host, char const* viewName) { return host.NewView(viewName); }
};

//! For TYPED_TEST_SUITE(Suite, Generations, GenerationName).
using Generations = testing::Types<OldGeneration, NewGeneration>;

struct GenerationName {
    template <class Generation>
    static std::string GetName(int) {
        return Generation::name;
    }
};

} // namespace zbtest
