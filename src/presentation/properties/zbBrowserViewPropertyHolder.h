// SPDX-License-Identifier: MIT
//! \file
//! The view properties of one old view.
#pragma once

#include "presentation/properties/PropertyList.h"

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>

namespace zbbrowser::detail {
class OldViewContext;
}

//! A source keeps the connection that it has, and none is missed.
class zbBrowserViewPropertyHolder final : public zbBrowserErrorReporter,
                                          public zbbrowser::detail::PropertyList {
public:
    using OldViewContext = zbbrowser::detail::OldViewContext;

    explicit zbBrowserViewPropertyHolder(OldViewContext& context);

    //! Null: for null, too.
    virtual zbIBrowserViewProperty* FindViewProperty(char const* name) const;
    //! True.
    virtual bool GetViewPropertyList(std::vector<zbIBrowserViewProperty*>& out) const;
    zbString ErrorText() const override { return GetError(); }

private:
    std::unique_ptr<zbbrowser::detail::ViewPropertyBase> Make(zbbrowser::detail::PropertyKind kind,
                                                              zbString const& name) override;

    OldViewContext& context_;
};
