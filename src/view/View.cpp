// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::View: life, name, data control, connections, lock.
#include "control/Messages.h"
#include "view/ViewLifetime.h"

#include <zbBrowserView/host/zbBrowserSignalManager.h>
#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataSource.h>
#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <cstring>

namespace zbbrowser {

namespace {

// Connects or disconnects; false if that is how it stands already.
template <class T>
bool SetConnected(std::set<T*>& connected, T* object, bool connect) {
    if (object == nullptr)
        return false;
    return connect ? connected.insert(object).second : connected.erase(object) > 0;
}

bool HasName(char const* actual, char const* wanted) {
    return actual != nullptr && wanted != nullptr && std::strcmp(actual, wanted) == 0;
}

} // namespace

View::View(zbBrowserViewCtrl const* ctrl, zbString const& name)
    : name_(name)
    , viewCtrl_(ctrl)
    , lifetime_(std::make_unique<detail::ViewLifetime>()) {
}

View::View(View const& other)
    : View(other.viewCtrl_, other.name_) {
    *this = other;
}

View& View::operator=(View const& other) {
    if (this == &other)
        return *this;
    name_ = other.name_;
    viewCtrl_ = other.viewCtrl_;
    dataCtrl_ = other.dataCtrl_;
    sorting_ = other.sorting_;
    italic_ = other.italic_;
    showEmptyFolders_ = other.showEmptyFolders_;
    locked_ = other.locked_;
    connectedSources_ = other.connectedSources_;
    connectedReferences_ = other.connectedReferences_;
    return *this;
}

View::~View() = default;

void View::Destroy(View* view) {
    if (!view->lifetime_->IsBusy()) {
        delete view;
        return;
    }
    view->lifetime_->GiveUp(view, [](void* gone) { delete static_cast<View*>(gone); });
    view->LetGo();
}

// The host may free its data as soon as the view has been given up, so whatever is still running
// finds nothing any more of which it could ask the host.
void View::LetGo() {
    dataCtrl_ = nullptr;
    connectedSources_.clear();
    connectedReferences_.clear();
}

zbString const& View::GetName() const {
    return name_;
}

zbIBrowserInfo* View::GetBrowserInfo() const {
    return viewCtrl_->GetBrowserInfo();
}

zbIBrowserViewCtrl* View::GetViewCtrl() const {
    return GetViewCtrlPtr();
}

// Handed in as const, since the view itself changes nothing in its controller; whoever asks the
// view for it may.
zbBrowserViewCtrl* View::GetViewCtrlPtr() const {
    return const_cast<zbBrowserViewCtrl*>(viewCtrl_);
}

zbBrowserSignalManager* View::GetSignalManager() const {
    return viewCtrl_->GetSignalManager();
}

bool View::IsNewView() const {
    return true;
}

void View::SetDataCtrl(zbIBrowserDataCtrl* const ctrl) {
    dataCtrl_ = ctrl;
    if (ctrl == nullptr)
        DataSourceDisconnectAll(true);
}

zbIBrowserDataCtrl* View::GetDataCtrl() const {
    return dataCtrl_;
}

void View::OnDataControlDeleted(char const* name) {
    detail::CallScope const scope(*lifetime_);
    if (locked_ || dataCtrl_ == nullptr || !HasName(dataCtrl_->GetName(), name))
        return;
    SetDataCtrl(nullptr);
}

bool View::Connect(zbIBrowserDataSource* source, bool connect) {
    return SetConnected(connectedSources_, source, connect);
}

bool View::Connect(zbIBrowserDataReference* reference, bool connect) {
    return SetConnected(connectedReferences_, reference, connect);
}

bool View::GetConnected(std::set<zbIBrowserDataSource*>& out) const {
    out = connectedSources_;
    return true;
}

bool View::GetConnected(std::set<zbIBrowserDataReference*>& out) const {
    out = connectedReferences_;
    return true;
}

// A source may connect and disconnect while it is asked for its name, so the walk finds its place
// anew each time.
zbIBrowserDataSource* View::FindConnected(char const* name) {
    detail::CallScope const scope(*lifetime_);
    for (auto place = connectedSources_.begin(); place != connectedSources_.end();) {
        zbIBrowserDataSource* const source = *place;
        if (HasName(source->GetName(), name))
            return source;
        place = connectedSources_.upper_bound(source);
    }
    return nullptr;
}

void View::Lock(bool lock) {
    locked_ = lock;
}

bool View::IsLocked() const {
    return locked_;
}

void View::Fill(PendingViewChangeInfo&) {
    if (!locked_)
        detail::Fail(detail::UnexpectedGeneralError);
}

bool View::GetSorting() const {
    return sorting_;
}

bool View::SetSorting(bool sorting) {
    sorting_ = sorting;
    return true;
}

bool View::GetItalic() const {
    return italic_;
}

bool View::SetItalic(bool italic) {
    italic_ = italic;
    return true;
}

bool View::GetShowEmptyFoldersFlag() const {
    return showEmptyFolders_;
}

void View::ShowEmptyFolders(bool show) {
    showEmptyFolders_ = show;
    if (zbBrowserSignalManager* const signals = GetSignalManager())
        signals->EmptyFoldersShown(this, show); // Last: a slot may delete this view
}

// A folder of this generation never counts as empty, so there is nothing to ask it.
bool View::IsEmptyFolderCanBeShown(zbIBrowserViewItem* const) {
    return true;
}

} // namespace zbbrowser
