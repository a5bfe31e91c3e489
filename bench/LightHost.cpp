// SPDX-License-Identifier: MIT
#include "LightHost.h"

namespace zbbench {

zbIBrowserDataSourceSimple* Item::GetDataSource() const {
    return &source_;
}

Source::Source(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        AddItem();
}

Item* Source::AddItem() {
    return &items_.emplace_back(*this);
}

bool Source::GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) {
    out.reserve(items_.size());
    for (auto& item : items_) {
        if (item.isListed)
            out.push_back(&item);
    }
    return true;
}

zbBrowserView& Manager::NewView(zbBrowserViewCtrl& controller) {
    CreateView(controller, "view", false);
    return *controller.OLD_FindView("view");
}

LightHost::LightHost(std::size_t count)
    : source(count)
    , dataCtrl(source)
    , controller(CreateBrowserViewCtrl(&manager))
    , view(manager.NewView(*controller)) {
    view.SetDataCtrl(&dataCtrl);
    view.DataSourceConnect(&source);
}

} // namespace zbbench
