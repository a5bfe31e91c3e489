// SPDX-License-Identifier: MIT
//! \file
//! zbNeutralDataItemSimple: a flat data item to derive from.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>

//! Has no properties and is never dirty. What is left to write is `GetDataSource`.
class zbNeutralDataItemSimple : public zbIBrowserDataItemSimple {
public:
    bool GetProperty(char const*, zbString&) override { return false; }
    bool IsDirty() const override { return false; }

protected:
    ~zbNeutralDataItemSimple() = default;
};
