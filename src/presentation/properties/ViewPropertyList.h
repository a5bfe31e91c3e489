// SPDX-License-Identifier: MIT
//! \file
//! The view properties of one new view.
#pragma once

#include "presentation/properties/PropertyList.h"

namespace zbbrowser {

namespace detail {
class NewViewContext;
}

//! The second connection of a source replaces the first, and one that is not there is missed.
class ViewPropertyList final : public detail::PropertyList {
public:
    explicit ViewPropertyList(detail::NewViewContext& context);

private:
    std::unique_ptr<detail::ViewPropertyBase> Make(detail::PropertyKind kind,
                                                   zbString const& name) override;

    detail::NewViewContext& context_;
};

} // namespace zbbrowser
