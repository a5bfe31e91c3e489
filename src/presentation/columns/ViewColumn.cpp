// SPDX-License-Identifier: MIT
#include "presentation/columns/ViewColumn.h"

#include "presentation/styles/StyleManager.h"
#include "view/NewViewContext.h"

namespace zbbrowser {

ViewColumnCustom::ViewColumnCustom(detail::NewViewContext& context, zbString const& name,
                                   std::uint64_t number)
    : CustomColumn(context, name, number) {
    SetStyleManager(std::make_unique<StyleManager>(*this, context));
}

ViewColumnDefault::ViewColumnDefault(detail::NewViewContext& context)
    : DefaultColumn(context) {
    SetStyleManager(std::make_unique<StyleManager>(*this, context));
}

} // namespace zbbrowser
