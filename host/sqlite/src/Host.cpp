// SPDX-License-Identifier: MIT
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
    CreateView(options.viewName);
    view_->SetDataCtrl(data_.get());
    for (auto const& source : data_->Sources())
        view_->DataSourceConnect(source.get());
}

Host::~Host() = default;

void Host::CreateView(std::string const& name) {
    if (!Manager::CreateView(*controller_, name.c_str(), false)) {
        char const* const reason = controller_->GetError();
        throw Error("view \"" + name + "\"", reason != nullptr ? reason : "cannot be made");
    }
    view_ = controller_->OLD_FindView(zbString(name));
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
    return view_->CreateList(folder, &source, false);
}

} // namespace zbsqlite
