// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataCollector: a tool of the host that gathers entities.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

//! A tool of the host that gathers entities, for instance while a dialogue asks the user to pick
//! some. An old view offers the collectors that the host has added to it and passes on, by signals,
//! what gets selected; what was gathered stays with the host.
//!
//! Ownership: the host's; taken off every view before it is deleted.
class ZBBROWSERVIEW_API zbIBrowserDataCollector {
public:
    //! Name, by which views find the collector without regard to ASCII case. "" by default, under
    //! which a view holds one collector only. Not null.
    virtual char const* GetName() const { return ""; }

    //! Title for people. Not null.
    virtual char const* GetTitle() const { return ""; }

protected:
    ~zbIBrowserDataCollector() = default;
};
