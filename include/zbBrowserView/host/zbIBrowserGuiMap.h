// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserGuiMap: a table of texts and icon names.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>

//! A table from keys to pairs of a text and a value, in which a host keeps the icons and captions
//! of its user interface. An entry for the disabled state of `key` has the key "DISABLED_" + `key`.
//!
//! Ownership: the host's. Valid until the host tells zbBrowserViewCtrl::OnGuiMapDeleted.
class ZBBROWSERVIEW_API zbIBrowserGuiMap {
public:
    //! The first text of an entry, for instance the kind of an icon. True if `out` was set; the
    //! library ignores the answer and takes `out` as it is.
    virtual bool GetEntryKind(char const* key, zbString& out) = 0;

    //! The value of an entry, for instance the name of an icon. False: there is no such key.
    virtual bool GetEntryValue(char const* key, zbString& out) = 0;

protected:
    ~zbIBrowserGuiMap() = default;
};
