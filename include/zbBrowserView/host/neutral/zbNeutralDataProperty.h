// SPDX-License-Identifier: MIT
//! \file
//! zbNeutralDataProperty: a data property to derive from.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/platform/zbVariant.h>

//! Has no value of any type. What is left to write is the getter of the type that the property has;
//! a text property has `GetDisplayText`, `GetString` and `GetTextPointer`.
class zbNeutralDataProperty : public zbIBrowserDataProperty {
public:
    bool GetDisplayText(zbIBrowserDataItem*, zbIBrowserDataItem*, zbString&) override {
        return false;
    }
    bool GetInteger(zbIBrowserDataItem*, zbIBrowserDataItem*, int&) override { return false; }
    bool GetUnsigned(zbIBrowserDataItem*, zbIBrowserDataItem*, unsigned&) override { return false; }
    bool GetBoolean(zbIBrowserDataItem*, zbIBrowserDataItem*, bool&) override { return false; }
    char const* GetTextPointer(zbIBrowserDataItem*, zbIBrowserDataItem*) override {
        return nullptr;
    }
    bool GetString(zbIBrowserDataItem*, zbIBrowserDataItem*, zbString&) override { return false; }
    bool GetDouble(zbIBrowserDataItem*, zbIBrowserDataItem*, double&) override { return false; }
    bool GetVariant(zbVariant&) override { return false; }
    bool SetVariant(zbVariant) override { return false; }

protected:
    ~zbNeutralDataProperty() = default;
};
