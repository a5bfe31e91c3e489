// SPDX-License-Identifier: MIT
//! \file
//! A controller whose views only report what is called on them.
#pragma once

#include "RecordedView.h"
#include "support/AllocationFailures.h"
#include "support/ItemDoubles.h"
#include "support/RecordingHostControl.h"
#include "support/RecordingHostGui.h"
#include "support/Thrown.h"

#include <zbBrowserView/host/zbBrowserSignalManager.h>
#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <gmock/gmock.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace zbtest {

using testing::ElementsAre;
using testing::IsEmpty;

class ControlTest : public testing::Test {
protected:
    ControlTest() {
        viewCalls = &calls;
        manager.signals = &signals;
        manager.panel = &panel;
        ctrl.reset(CreateBrowserViewCtrl(&manager));
        if (ctrl == nullptr)
            throw std::bad_alloc();
        calls.Record(true);
    }

    ~ControlTest() override {
        MemoryIsBack const memory;
        if (AllocationFailures::HasFailed()) // The hooks may want what the test body had
            static_cast<void>(calls.ExchangeHooks({}));
        ctrl.reset();
        viewCalls = nullptr;
    }

    zbbrowser::View& New(char const* name) {
        Create(name, true);
        return *ctrl->FindNewView(name);
    }

    zbBrowserView& Old(char const* name) {
        Create(name, false);
        return *ctrl->OLD_FindView(name);
    }

    //! The lines since the last call, each "view.Operation arguments".
    std::vector<std::string> Take() { return calls.take(); }

    void Delete(zbIBrowserView& view) { EXPECT_TRUE(RecordingManager::DeleteView(*ctrl, &view)); }

    RecordingHostCalls calls;
    zbBrowserSignalManager signals;
    RecordingPanel panel{calls};
    RecordingManager manager{calls};
    std::unique_ptr<zbBrowserViewCtrl> ctrl;
    RecordingDataCtrl data{calls, "data"};

private:
    void Create(char const* name, bool isNew) {
        if (!RecordingManager::CreateView(*ctrl, name, isNew))
            throw std::runtime_error(name);
        static_cast<void>(Take());
    }
};

} // namespace zbtest
