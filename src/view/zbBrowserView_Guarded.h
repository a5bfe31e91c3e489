// SPDX-License-Identifier: MIT
//! \file
//! The guard of the data events of an old view.
#pragma once

#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

// The guard is a plain mark on purpose: it stays set when the work throws.
template <class Work>
void zbBrowserView::Guarded(Work work) {
    if (inCallback_)
        return;
    zbbrowser::detail::CallScope const scope(context_->Lifetime());
    inCallback_ = true;
    work();
    inCallback_ = false;
}
