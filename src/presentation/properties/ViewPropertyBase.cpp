// SPDX-License-Identifier: MIT
#include "presentation/properties/ViewPropertyBase.h"

#include "filtersort/CurrentSortProperty.h"
#include "view/ViewContext.h"

#include <utility>

namespace zbbrowser::detail {

ViewPropertyBase::ViewPropertyBase(ViewContext& context, zbString name)
    : context_(context)
    , name_(std::move(name)) {
}

ViewPropertyBase::~ViewPropertyBase() {
    ForgetSortProperty(this);
}

zbIBrowserView* ViewPropertyBase::GetView() const {
    return &context_.View();
}

bool ViewPropertyBase::SetScripts(char const* setScript, char const* getScript, char const*) {
    setScript_ = setScript;
    getScript_ = getScript;
    return true;
}

bool ViewPropertyBase::SetDataType(ZBBROWSER_DATA_TYPE type) {
    type_ = type;
    return true;
}

void ViewPropertyBase::Connect(zbIBrowserDataSource* source, zbIBrowserDataProperty* property,
                               bool replaces) {
    auto const [place, isNew] = connections_.try_emplace(source, property);
    if (!isNew && replaces)
        place->second = property;
}

bool ViewPropertyBase::Disconnect(zbIBrowserDataSource* source) {
    return connections_.erase(source) > 0;
}

// A running script may give this property other scripts, so it is a copy that runs.
zbString ViewPropertyBase::RunScript(zbString const& script, zbString const& argument) const {
    zbString result;
    if (auto const* const ctrl = context_.Ctrl(); ctrl != nullptr) {
        context_.Lifetime().NoteHostRun();
        ctrl->TEMP_GetStringFromScript(zbString(script).c_str(), result, argument);
    }
    return result;
}

} // namespace zbbrowser::detail
