// SPDX-License-Identifier: MIT
#include "Connect.h"

#include <zbBrowserView/sqlite/Error.h>
#include <zbBrowserView/sqlite/Host.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <new>

namespace zbsqlite {

Host::Host(std::filesystem::path const& file, HostOptions const& options)
    : manager_(std::make_unique<Manager>())
    , data_(std::make_unique<DataCtrl>(Database(file, options.open)))
    , controller_(CreateBrowserViewCtrl(manager_.get())) {
    if (!controller_)
        throw std::bad_alloc();
    CreateView(options);
    view_->SetDataCtrl(data_.get());
    ConnectSources();
}

Host::~Host() = default;

void Host::CreateView(HostOptions const& options) {
    auto const& name = options.viewName;
    if (!Manager::CreateView(*controller_, name.c_str(), options.generation == Generation::New)) {
        char const* const reason = controller_->GetError();
        throw Error("view \"" + name + "\"", reason != nullptr ? reason : "cannot be made");
    }
    view_ = controller_->FindView(zbString(name));
    oldView_ = controller_->OLD_FindView(zbString(name));
}

void Host::ConnectSources() {
    for (auto const& source : data_->Sources())
        detail::ConnectWithNames(*view_, *source);
}

zbIBrowserViewItemFreeFolder* Host::RootFolder() const {
    return view_->GetRootFreeFolder();
}

zbIBrowserViewItemFreeFolder* Host::CreateFolder(zbIBrowserViewItemFreeFolder* parent,
                                                 zbString const& name) {
    if (parent == nullptr)
        return nullptr;
    if (auto* const existing = parent->FindChildFreeFolder(name))
        return existing;
    if (!Manager::CreateFreeFolder(*controller_, parent, name))
        return nullptr;
    return parent->FindChildFreeFolder(name);
}

bool Host::CreateList(zbIBrowserViewItemFreeFolder* folder, Source& source) {
    return oldView_ != nullptr && oldView_->CreateList(folder, &source, false);
}

} // namespace zbsqlite
