// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserViewCtrl: life, views, error state, shares.
#include "control/Messages.h"
#include "control/SharedDSHHandler.h"
#include "control/ViewsInfo.h"

#include <zbBrowserView/host/zbBrowserManager.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>
#include <zbBrowserView/zbIBrowserInfo.h>

#include <new>

using zbbrowser::detail::Fail;

//! What a controller that is no copy owns.
struct zbBrowserViewCtrl::Owned {
    std::vector<std::shared_ptr<void>> partsOfViews; // First, so that they go last
    std::unique_ptr<zbIBrowserInfo> browserInfo;
    std::unique_ptr<SharedDSHHandler> sharedDSHHandler;
    std::unique_ptr<zbbrowser::ViewsInfo> viewsInfo;
};

zbBrowserViewCtrl* CreateBrowserViewCtrl(zbBrowserManager* manager) {
    return new (std::nothrow) zbBrowserViewCtrl(manager);
}

zbBrowserViewCtrl::zbBrowserViewCtrl(zbBrowserManager* manager) try
    : manager_(manager)
    , owned_(std::make_unique<Owned>()) {
    CreateBrowserInfo();
    CreateSharedDSHHandler();
    CreateViewsInfo();
} catch (std::bad_alloc const&) {
    Fail(zbbrowser::detail::NotEnoughMemory);
}

zbBrowserViewCtrl::zbBrowserViewCtrl(zbBrowserViewCtrl const& other)
    : zbIBrowserViewCtrl(other)
    , manager_(other.manager_)
    , viewsInfo_(other.viewsInfo_)
    , sharedDSHHandler_(other.sharedDSHHandler_)
    , state_(other.state_)
    , error_(other.error_)
    , browserInfo_(other.browserInfo_)
    , inCB_(other.inCB_) {
}

zbBrowserViewCtrl& zbBrowserViewCtrl::operator=(zbBrowserViewCtrl const& other) {
    if (this == &other)
        return *this;
    error_ = other.error_; // First, since it alone can fail
    manager_ = other.manager_;
    viewsInfo_ = other.viewsInfo_;
    sharedDSHHandler_ = other.sharedDSHHandler_;
    state_ = other.state_;
    browserInfo_ = other.browserInfo_;
    inCB_ = other.inCB_;
    return *this;
}

// The views go first, while everything that they may ask for is there. A controller that became an
// alias shows its own parts again for that.
zbBrowserViewCtrl::~zbBrowserViewCtrl() {
    if (owned_ == nullptr)
        return;
    viewsInfo_ = owned_->viewsInfo.get();
    sharedDSHHandler_ = owned_->sharedDSHHandler.get();
    browserInfo_ = owned_->browserInfo.get();
    DeleteViewsInfo();
    DeleteSharedDSHHandler();
    DeleteBrowserInfo();
}

void zbBrowserViewCtrl::KeepBeyondViews(std::shared_ptr<void> part) {
    if (owned_ != nullptr)
        owned_->partsOfViews.push_back(std::move(part));
}

void zbBrowserViewCtrl::CreateBrowserInfo() {
    owned_->browserInfo = std::make_unique<zbIBrowserInfo>();
    browserInfo_ = owned_->browserInfo.get();
}

void zbBrowserViewCtrl::DeleteBrowserInfo() {
    owned_->browserInfo.reset();
    browserInfo_ = nullptr;
}

void zbBrowserViewCtrl::CreateSharedDSHHandler() {
    if (sharedDSHHandler_ != nullptr)
        return;
    owned_->sharedDSHHandler = std::make_unique<SharedDSHHandler>(this);
    sharedDSHHandler_ = owned_->sharedDSHHandler.get();
}

void zbBrowserViewCtrl::DeleteSharedDSHHandler() {
    owned_->sharedDSHHandler.reset();
    sharedDSHHandler_ = nullptr;
}

void zbBrowserViewCtrl::CreateViewsInfo() {
    if (viewsInfo_ != nullptr)
        Fail(zbbrowser::detail::InitializedMemory);
    owned_->viewsInfo = std::make_unique<zbbrowser::ViewsInfo>(this);
    viewsInfo_ = owned_->viewsInfo.get();
}

// The registry can be asked until the last view has gone: views call back while they go.
void zbBrowserViewCtrl::DeleteViewsInfo() {
    if (viewsInfo_ == nullptr)
        Fail(zbbrowser::detail::NullPointerHit);
    owned_->viewsInfo.reset();
    viewsInfo_ = nullptr;
}

bool zbBrowserViewCtrl::CreateView(char const* name, bool isNew) {
    try {
        zbString const text(name);
        if (isNew)
            GetViewsInfo()->CreateNewView(text);
        else
            GetViewsInfo()->CreateOldView(text);
        return true;
    } catch (zbString const& message) {
        SetError(message.c_str());
        return false;
    }
}

bool zbBrowserViewCtrl::DeleteView(zbIBrowserView* view) {
    if (view == nullptr)
        Fail(zbbrowser::detail::NullPointerHit);
    return GetViewsInfo()->DeleteView(view);
}

zbIBrowserView* zbBrowserViewCtrl::FindView(zbString const& name) const {
    return GetViewsInfo()->FindView(name);
}

zbbrowser::View* zbBrowserViewCtrl::FindNewView(zbString const& name) const {
    return GetViewsInfo()->FindNewView(name);
}

zbBrowserView* zbBrowserViewCtrl::OLD_FindView(zbString const& name) const {
    return GetViewsInfo()->FindOldView(name);
}

zbBrowserView* zbBrowserViewCtrl::OLD_FindViewByPtr(zbIBrowserView const* view) const {
    return GetViewsInfo()->FindOldViewByPtr(view);
}

std::uint64_t zbBrowserViewCtrl::GetViewList(std::vector<zbIBrowserView*>& out,
                                             zbIBrowserDataCtrl const* filter) const {
    return GetViewsInfo()->GetViewList(out, filter);
}

std::uint64_t zbBrowserViewCtrl::GetViewList(std::vector<zbbrowser::View*>& out,
                                             zbIBrowserDataCtrl const* filter) const {
    return GetViewsInfo()->GetNewViewList(out, filter);
}

std::uint64_t zbBrowserViewCtrl::GetViewList(std::vector<zbBrowserView*>& out,
                                             zbIBrowserDataCtrl const* filter) const {
    return GetViewsInfo()->GetOldViewList(out, filter);
}

zbIBrowserManager* zbBrowserViewCtrl::GetManager() const {
    return manager_;
}

zbBrowserManager* zbBrowserViewCtrl::GetManagerImpl() const {
    return manager_;
}

zbIBrowserInfo* zbBrowserViewCtrl::GetBrowserInfo() const {
    return browserInfo_;
}

zbbrowser::ViewsInfo* zbBrowserViewCtrl::GetViewsInfo() const {
    return viewsInfo_;
}

zbBrowserViewCtrl::SharedDSHHandler* zbBrowserViewCtrl::GetSharedDSHHandler() const {
    return sharedDSHHandler_;
}

zbBrowserSignalManager* zbBrowserViewCtrl::GetSignalManager() const {
    return manager_ == nullptr ? nullptr : manager_->GetSignalManager();
}

bool zbBrowserViewCtrl::GetState() const {
    return state_;
}

char const* zbBrowserViewCtrl::GetError() const {
    return error_.empty() ? nullptr : error_.c_str();
}

void zbBrowserViewCtrl::SetError(char const* text) {
    error_ = text;
    state_ = false;
}

void zbBrowserViewCtrl::SetOk() {
    error_.clear();
    state_ = true;
}

void zbBrowserViewCtrl::InCB(bool running) {
    inCB_ = running;
}

bool zbBrowserViewCtrl::InCB() const {
    return inCB_;
}

bool zbBrowserViewCtrl::CreateDataSourceHierarchicalShare(
    zbIBrowserView const* view1, zbIBrowserView const* view2,
    zbIBrowserDataSourceHierarchical const* source) {
    if (sharedDSHHandler_->CreateShare(view1, view2, source))
        return true;
    SetError(sharedDSHHandler_->GetError());
    return false;
}

bool zbBrowserViewCtrl::GetDataSourceHierarchicalSharedInfo(
    zbIBrowserView const* view,
    std::vector<std::pair<zbIBrowserView const*, zbIBrowserDataSourceHierarchical const*>>& out)
    const {
    return sharedDSHHandler_->GetSharedInfo(view, out);
}

bool zbBrowserViewCtrl::GetDataSourceHierarchicalSharedList(
    zbIBrowserView const* view1, zbIBrowserView const* view2,
    std::vector<zbIBrowserDataSourceHierarchical const*>& out) const {
    return sharedDSHHandler_->GetSharedList(view1, view2, out);
}
