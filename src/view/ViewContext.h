// SPDX-License-Identifier: MIT
//! \file
//! What the parts of a view need of the view that they belong to.
#pragma once

#include "view/ViewLifetime.h"

#include <zbBrowserView/host/zbBrowserDataSignalManager.h>
#include <zbBrowserView/host/zbBrowserSignalManager.h>
#include <zbBrowserView/host/zbIBrowserManager.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

class zbIBrowserView;

namespace zbbrowser::detail {

//! Signals, manager and lifetime of one view, the same for both generations. Items, contents and
//! handlers hold this instead of the view.
class ViewContext {
public:
    ViewContext(zbIBrowserView& view, zbBrowserViewCtrl const* ctrl)
        : view_(view)
        , ctrl_(ctrl) {}
    ViewContext(ViewContext const&) = delete;
    ViewContext& operator=(ViewContext const&) = delete;

    zbIBrowserView& View() const { return view_; }
    ViewLifetime& Lifetime() { return lifetime_; }
    bool IsAlive() const { return lifetime_.IsAlive(); }

    //! Null without a controller.
    zbIBrowserManager* Manager() const { return ctrl_ == nullptr ? nullptr : ctrl_->GetManager(); }

    //! Raises a signal of the host's signal manager, which is asked for anew each time. Nothing
    //! happens without a manager or once the view has been given up.
    template <class Signal, class... Args>
    void Raise(Signal zbBrowserSignalManager::*signal, Args&&... args) {
        auto* const signals = Signals();
        if (signals == nullptr || (signals->*signal).Count() == 0)
            return;
        lifetime_.NoteHostRun();
        (signals->*signal)(args...);
    }

    //! Somebody would hear that signal now.
    template <class Signal>
    bool IsHeard(Signal zbBrowserSignalManager::*signal) const {
        auto* const signals = Signals();
        return signals != nullptr && (signals->*signal).Count() > 0;
    }

private:
    zbBrowserSignalManager* Signals() const {
        if (!IsAlive())
            return nullptr;
        auto* const manager = Manager();
        return manager == nullptr ? nullptr : manager->GetSignalManager();
    }

    zbIBrowserView& view_;
    zbBrowserViewCtrl const* const ctrl_; // Not owned; null only in tests
    ViewLifetime lifetime_;
};

} // namespace zbbrowser::detail
