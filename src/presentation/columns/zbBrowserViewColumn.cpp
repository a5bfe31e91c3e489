// SPDX-License-Identifier: MIT
#include "presentation/columns/zbBrowserViewColumn.h"

#include "presentation/styles/zbBrowserStyleManager.h"
#include "view/OldViewContext.h"

using zbbrowser::detail::OldViewContext;

zbBrowserViewColumnCustom::zbBrowserViewColumnCustom(OldViewContext& context, zbString const& name,
                                                     std::uint64_t number)
    : CustomColumn(context, name, number) {
    SetStyleManager(std::make_unique<zbBrowserStyleManager>(*this, context));
}

zbBrowserViewColumnDefault::zbBrowserViewColumnDefault(OldViewContext& context)
    : DefaultColumn(context) {
    SetStyleManager(std::make_unique<zbBrowserStyleManager>(*this, context));
}
