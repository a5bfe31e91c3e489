// SPDX-License-Identifier: MIT
#include "presentation/styles/zbBrowserStyle.h"

#include "containers/MakeRoom.h"
#include "presentation/styles/StyleManagerBase.h"
#include "presentation/styles/zbBrowserStyleElement.h"
#include "view/ViewContext.h"

#include <algorithm>
#include <utility>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::MakeRoom;

zbBrowserStyle::zbBrowserStyle(zbbrowser::detail::ViewContext& context, zbString name)
    : context_(context)
    , name_(std::move(name)) {
    context_.Styles().Add(*this);
}

zbBrowserStyle::~zbBrowserStyle() {
    if (manager_ != nullptr)
        manager_->Forget(*this);
    for (auto* const element : former_)
        element->SetStyle(nullptr);
    for (auto* const element : elements_) {
        element->SetStyle(nullptr); // So that it does not look for itself here
        delete element;
    }
    context_.Styles().Remove(*this);
}

zbIBrowserViewColumn* zbBrowserStyle::GetColumn() const {
    return manager_ == nullptr ? nullptr : manager_->GetColumn();
}

bool zbBrowserStyle::GetElements(std::vector<zbIBrowserStyleElement*>& out) const {
    out.assign(elements_.begin(), elements_.end());
    return true;
}

zbIBrowserStyleElement* zbBrowserStyle::FindElement(char const* name) const {
    if (name == nullptr)
        return nullptr;
    auto const found = std::find_if(elements_.begin(), elements_.end(), [name](auto* element) {
        return StrICmp(element->GetName(), name) == 0;
    });
    return found == elements_.end() ? nullptr : *found;
}

bool zbBrowserStyle::DeleteElement(zbIBrowserStyleElement* element) {
    auto* const own = context_.Styles().Find(element);
    if (manager_ == nullptr || own == nullptr)
        return false;
    if (own->IsProtected()) {
        SetError("default column style element cann't be deleted.");
        return false;
    }
    auto const place = std::find(elements_.begin(), elements_.end(), own);
    if (place == elements_.end())
        return false;
    CallScope const scope(context_.Lifetime());
    former_.push_back(own);
    elements_.erase(place);
    Withdraw();
    return true;
}

zbIBrowserStyleElement* zbBrowserStyle::CreateElement(char const* name, char const* title) {
    CallScope const scope(context_.Lifetime());
    if (!Withdraw())
        return nullptr;
    MakeRoom(elements_);
    auto* const element = new zbBrowserStyleElement(context_, name, title);
    elements_.push_back(element);
    element->SetStyle(this);
    return element;
}

void zbBrowserStyle::Forget(zbBrowserStyleElement const& element) {
    std::erase(elements_, &element);
    std::erase(former_, &element);
}

bool zbBrowserStyle::Withdraw() {
    if (!pending_ && !context_.Styles().TellDeleted(*this))
        return false;
    pending_ = true;
    return true;
}
