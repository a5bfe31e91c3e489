// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataCollectorType: a type of entities that a collector of a new view gathers.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

//! A type of entities that a collector of a new view gathers. It means nothing to the library,
//! which finds it by name (zbIBrowserDataCtrl::FindCollectorType) and hands the pointer back to the
//! host.
//!
//! Ownership: the host's; valid as long as the control finds it.
class ZBBROWSERVIEW_API zbIBrowserDataCollectorType {
protected:
    ~zbIBrowserDataCollectorType() = default;
};
