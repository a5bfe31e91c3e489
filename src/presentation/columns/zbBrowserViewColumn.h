// SPDX-License-Identifier: MIT
//! \file
//! The columns of an old view.
#pragma once

#include "presentation/columns/ColumnBase.h"

namespace zbbrowser::detail {
class OldViewContext;
}

using zbBrowserViewColumn = zbbrowser::detail::ColumnBase;

class zbBrowserViewColumnCustom final : public zbbrowser::detail::CustomColumn {
public:
    zbBrowserViewColumnCustom(zbbrowser::detail::OldViewContext& context, zbString const& name,
                              std::uint64_t number);
};

class zbBrowserViewColumnDefault final : public zbbrowser::detail::DefaultColumn {
public:
    explicit zbBrowserViewColumnDefault(zbbrowser::detail::OldViewContext& context);
};
