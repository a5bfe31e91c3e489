// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserErrorReporter.
#include <zbBrowserView/platform/zbBrowserErrorReporter.h>

// Here, so that the library and the host share one table of virtual operations.
zbBrowserErrorReporter::~zbBrowserErrorReporter() = default;

void zbBrowserErrorReporter::SetErrCommand(zbString const& /*command*/) {
}

void zbBrowserErrorReporter::SetError(zbString const& text) {
    error_ = text;
    state_ = false;
}
