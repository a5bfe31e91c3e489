// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserInfo: which version of the view layer runs.
#pragma once

//! The version record of a controller, the same for all its views.
//! Ownership: belongs to the controller and goes with it.
class zbIBrowserInfo {
public:
    char const* version = "1.0"; //!< Constant text, valid for the life of the process.
};
