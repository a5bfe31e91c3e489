// SPDX-License-Identifier: MIT
#include "view/ViewContext.h"

#include "filtersort/SortHandlerBase.h"
#include "presentation/columns/ColumnSet.h"
#include "presentation/properties/PropertyList.h"
#include "selection/SelectionBase.h"

#include <zbBrowserView/zbIBrowserView.h>

#include <utility>

namespace zbbrowser::detail {

ViewContext::ViewContext(zbIBrowserView& view, zbBrowserViewCtrl const* ctrl, Generation generation)
    : view_(view)
    , ctrl_(ctrl)
    , generation_(generation) {
}

ViewContext::~ViewContext() {
    if (selection_ != nullptr)
        selection_->LoseView();
}

void ViewContext::SetSelection(std::shared_ptr<SelectionBase> selection) {
    if (auto* const ctrl = Ctrl(); ctrl != nullptr)
        ctrl->KeepBeyondViews(selection);
    selection_ = std::move(selection);
}

void ViewContext::Forget(zbIBrowserViewItem const& item) {
    if (selection_ != nullptr)
        selection_->Forget(item);
    if (lastFindStartPoint == &item)
        lastFindStartPoint = nullptr;
}

void ViewContext::SetProperties(std::unique_ptr<PropertyList> properties) {
    properties_.swap(properties);
    if (properties != nullptr)
        lifetime_.Retire(std::move(properties));
}

void ViewContext::SetColumns(std::unique_ptr<ColumnSet> columns) {
    columns_ = std::move(columns);
}

void ViewContext::SetSortHandler(std::unique_ptr<SortHandlerBase> handler) {
    auto before = std::exchange(sortHandler_, std::move(handler));
    if (before != nullptr)
        lifetime_.Retire(std::move(before));
}

bool ViewContext::Report(zbString const&) {
    return false;
}

void ViewContext::OnFolderGone(zbIBrowserViewItem const& folder) {
    Forget(folder);
    if (columns_ != nullptr)
        columns_->OnFolderGone(folder);
}

// Handed to its views as const, since they change nothing in it; scripts that they run may.
zbBrowserViewCtrl* ViewContext::Ctrl() const {
    return const_cast<zbBrowserViewCtrl*>(ctrl_);
}

zbIBrowserDataCtrl* ViewContext::DataCtrl() const {
    return view_.GetDataCtrl();
}

} // namespace zbbrowser::detail
