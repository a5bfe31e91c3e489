// SPDX-License-Identifier: MIT
//! \file
//! The columns of a new view.
#pragma once

#include "presentation/columns/ColumnBase.h"

namespace zbbrowser {

namespace detail {
class NewViewContext;
}

using ViewColumn = detail::ColumnBase;

class ViewColumnCustom final : public detail::CustomColumn {
public:
    ViewColumnCustom(detail::NewViewContext& context, zbString const& name, std::uint64_t number);
};

class ViewColumnDefault final : public detail::DefaultColumn {
public:
    explicit ViewColumnDefault(detail::NewViewContext& context);
};

} // namespace zbbrowser
