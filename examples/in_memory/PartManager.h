// SPDX-License-Identifier: MIT
//! \file
//! The smallest manager: it makes views.
#pragma once

#include <zbBrowserView/host/neutral/zbNeutralManager.h>

namespace example {

class PartManager final : public zbNeutralManager {
public:
    // Making and ending views is the manager's business; this one lets everybody do it.
    using zbBrowserManager::CreateView;
    using zbBrowserManager::DeleteView;
};

} // namespace example
