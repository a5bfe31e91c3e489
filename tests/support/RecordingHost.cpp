// SPDX-License-Identifier: MIT
#include "RecordingHost.h"

#include "AllocationFailures.h"

#include <zbBrowserView/zbIBrowserView.h>

#include <algorithm>
#include <new>
#include <stdexcept>

namespace zbtest {

RecordingHost::RecordingHost()
    : guiMaps(calls)
    , panel(calls)
    , manager(calls) {
    manager.signals = &signals;
    manager.dataSignals = &dataSignals;
    manager.panel = &panel;
    manager.guiMaps = &guiMaps;
}

RecordingHost::~RecordingHost() {
    MemoryIsBack const memory;
    if (AllocationFailures::HasFailed() && checkAfterFailure != nullptr && controller_ != nullptr &&
        isCheckedAfterFailure) {
        checkAfterFailure(*this);
    }
    DeleteController();
}

RecordingDataCtrl& RecordingHost::Control(std::string const& name) {
    auto& control = controls_[name];
    if (control == nullptr) {
        control = std::make_unique<RecordingDataCtrl>(calls, name);
    }
    return *control;
}

void RecordingHost::DeleteControl(std::string const& name) {
    controls_.erase(name);
}

zbBrowserViewCtrl& RecordingHost::Controller() {
    if (controller_ == nullptr) {
        controller_.reset(CreateBrowserViewCtrl(&manager));
        if (controller_ == nullptr) {
            throw std::bad_alloc();
        }
    }
    return *controller_;
}

void RecordingHost::DeleteController() {
    panel.activeView = nullptr;
    controller_.reset();
}

zbIBrowserView& RecordingHost::View(char const* name) {
    if (zbIBrowserView* const found = Controller().FindView(name)) {
        return *found;
    }
    if (!RecordingManager::CreateView(Controller(), name, false)) {
        throw std::runtime_error(std::string("no view ") + name);
    }
    zbIBrowserView* const made = Controller().FindView(name);
    made->SetDataCtrl(&Control());
    return *made;
}

zbBrowserView& RecordingHost::OldView(char const* name) {
    View(name);
    return *Controller().OLD_FindView(name);
}

zbbrowser::View& RecordingHost::NewView(char const* name) {
    if (Controller().FindView(name) == nullptr) {
        if (!RecordingManager::CreateView(Controller(), name, true)) {
            throw std::runtime_error(std::string("no view ") + name);
        }
        Controller().FindView(name)->SetDataCtrl(&Control());
    }
    return *Controller().FindNewView(name);
}

bool RecordingHost::Owns(zbIBrowserDataSource const* source) const {
    return std::any_of(controls_.begin(), controls_.end(),
                       [&](auto const& control) { return control.second->Owns(source); });
}

bool RecordingHost::DeleteView(zbIBrowserView& view) {
    return RecordingManager::DeleteView(Controller(), &view);
}

} // namespace zbtest
