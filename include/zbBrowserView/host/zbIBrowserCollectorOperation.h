// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserCollectorOperation: what a collector button of a new view does.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/zbBrowserEnums.h>

//! What a collector button of a new view does. The host sets up to ten of them, one for each type.
//!
//! Ownership: the host's; cleared from every view before it is deleted.
class ZBBROWSERVIEW_API zbIBrowserCollectorOperation {
public:
    //! Called when the button is pressed or, for the current type, when the selection changed. The
    //! operation asks the view's selection manager for what is selected. While it runs, the
    //! collector ignores further calls. Does nothing by default.
    virtual void Perform(ZBBROWSER_COLSEL_TYPE type) { static_cast<void>(type); }

protected:
    ~zbIBrowserCollectorOperation() = default;
};
