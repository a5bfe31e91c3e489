// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::View: life, name, data control, connections, lock.
#include "control/Messages.h"
#include "selection/SelectionBase.h"
#include "view/NewViewContext.h"

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

char const* const View::DEFAULT_NAME_PROP = "default_name_prop";
char const* const View::DEFAULT_ICON_NAME_PROP = "default_icon_name_prop";
char const* const View::DEFAULT_BOLD_TEXT_PROP = "default_bold_text_prop";
char const* const View::DEFAULT_ITALIC_TEXT_PROP = "default_italic_text_prop";
char const* const View::DEFAULT_COPYAT_OPERATION = "default_copyat_operation";
char const* const View::DEFAULT_MOVETO_OPERATION = "default_moveto_operation";

// Later parts read earlier ones from the view.
View::View(zbBrowserViewCtrl const* ctrl, zbString const& name)
    : name_(name)
    , viewCtrl_(ctrl) {
    auto context = std::make_unique<detail::NewViewContext>(*this, ctrl);
    context_ = context.get();
    CreateVirtualRoot();
    CreatePropertyHolder();
    CreateDefaultViewProperties();
    CreateDefaultColumn();
    CreateSortHandler();
    CreateSelectionManager();
    static_cast<void>(context.release());
}

View::View(View const& other)
    : zbIBrowserView(other)
    , name_(other.name_)
    , viewCtrl_(other.viewCtrl_)
    , dataCtrl_(other.dataCtrl_)
    , context_(other.context_)
    , sorting_(other.sorting_)
    , italic_(other.italic_)
    , showEmptyFolders_(other.showEmptyFolders_)
    , locked_(other.locked_)
    , isCopy_(true)
    , connectedSources_(other.connectedSources_)
    , connectedReferences_(other.connectedReferences_) {
}

// What the target owned goes first; then it is a copy like any other. A view that is given the
// value of one of its own copies goes on owning what they share.
View& View::operator=(View const& other) {
    if (this == &other)
        return *this;
    auto sources = other.connectedSources_;
    auto references = other.connectedReferences_;
    name_ = other.name_;
    if (context_ != other.context_) {
        CleanUp();
        isCopy_ = true;
    }
    viewCtrl_ = other.viewCtrl_;
    dataCtrl_ = other.dataCtrl_;
    context_ = other.context_;
    sorting_ = other.sorting_;
    italic_ = other.italic_;
    showEmptyFolders_ = other.showEmptyFolders_;
    locked_ = other.locked_;
    connectedSources_ = std::move(sources);
    connectedReferences_ = std::move(references);
    return *this;
}

View::~View() {
    CleanUp();
}

void View::CleanUp() {
    if (isCopy_)
        return;
    context_->Selection().ForgetAll();
    DeleteSortHandler();
    DeleteColumns();
    DeletePropertyHolder();
    DeleteVirtualRoot();
    delete context_;
    context_ = nullptr;
}

void View::Destroy(View* view) {
    if (view->isCopy_ || !view->context_->Lifetime().IsBusy()) {
        delete view;
        return;
    }
    view->context_->Lifetime().GiveUp(view, [](void* gone) { delete static_cast<View*>(gone); });
    view->LetGo();
}

// The host may free its data as soon as the view has been given up, so whatever is still running
// finds nothing any more of which it could ask the host.
void View::LetGo() {
    dataCtrl_ = nullptr;
    connectedSources_.clear();
    connectedReferences_.clear();
    context_->Selection().ForgetAll();
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

zbIBrowserViewItem* View::GetLastFindStartPoint() const {
    return context_->lastFindStartPoint;
}

void View::SetLastFindStartPoint(zbIBrowserViewItem* item) {
    context_->lastFindStartPoint = item;
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
    detail::CallScope const scope(context_->Lifetime());
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
    if (name == nullptr)
        return nullptr;
    detail::CallScope const scope(context_->Lifetime());
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

bool View::GetShowEmptyFoldersFlag() const {
    return showEmptyFolders_;
}

void View::ShowEmptyFolders(bool show) {
    detail::CallScope const scope(context_->Lifetime());
    showEmptyFolders_ = show;
    context_->Raise(&zbBrowserSignalManager::EmptyFoldersShown, this, show);
}

// A folder of this generation never counts as empty, so there is nothing to ask it.
bool View::IsEmptyFolderCanBeShown(zbIBrowserViewItem* const) {
    return true;
}

} // namespace zbbrowser
