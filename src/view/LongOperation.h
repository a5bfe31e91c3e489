// SPDX-License-Identifier: MIT
//! \file
//! The bracket around a rebuild.
#pragma once

#include "view/HostBracket.h"
#include "view/ViewContext.h"

namespace zbbrowser::detail {

//! Tells the host's manager that a long operation begins. The result tells it, when it goes, that
//! the operation has ended. Without a manager nobody is told.
[[nodiscard]] inline auto BeginLongOperation(ViewContext const& context) {
    auto* const manager = context.Manager();
    if (manager != nullptr)
        manager->BeginLongOperation();
    return HostBracket([manager] {
        if (manager != nullptr)
            manager->EndLongOperation();
    });
}

//! Long operations that nest as a walk over folders does. EndAll ends what is still open when
//! the walk was cut short.
class NestedLongOperations {
public:
    explicit NestedLongOperations(ViewContext const& context)
        : manager_(context.Manager()) {}
    NestedLongOperations(NestedLongOperations const&) = delete;
    NestedLongOperations& operator=(NestedLongOperations const&) = delete;

    void Begin() {
        if (manager_ != nullptr)
            manager_->BeginLongOperation();
        ++open_;
    }
    void End() {
        --open_;
        if (manager_ != nullptr)
            manager_->EndLongOperation();
    }
    void EndAll() {
        while (open_ > 0)
            End();
    }

private:
    zbIBrowserManager* const manager_; // Not owned; null without a manager
    std::size_t open_ = 0;
};

} // namespace zbbrowser::detail
