// SPDX-License-Identifier: MIT
// The object, its parts and its accessors.
#include "filtersort/SortHandlerBase.h"
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "presentation/columns/ColumnSet.h"
#include "selection/zbBrowserSelectionManager.h"
#include "view/ConnectedSources.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>

using zbbrowser::detail::ConnectedSources;
using zbbrowser::detail::OldViewContext;

char const* const zbBrowserView::DEFAULT_NAME_PROP = "default_name_prop";
char const* const zbBrowserView::DEFAULT_ICON_NAME_PROP = "default_icon_name_prop";
char const* const zbBrowserView::DEFAULT_BOLD_TEXT_PROP = "default_bold_text_prop";
char const* const zbBrowserView::DEFAULT_ITALIC_TEXT_PROP = "default_italic_text_prop";
char const* const zbBrowserView::DEFAULT_COPYAT_OPERATION = "default_copyat_operation";
char const* const zbBrowserView::DEFAULT_MOVETO_OPERATION = "default_moveto_operation";

zbBrowserView::zbBrowserView(zbBrowserViewCtrl const* ctrl, char const* name)
    : name_(name)
    , viewCtrl_(ctrl)
    , sources_(std::make_unique<ConnectedSources>()) {
    auto context = std::make_unique<OldViewContext>(*this, ctrl);
    context->SetSelection(std::make_shared<zbBrowserSelectionManager>(*context));
    root_ = new zbBrowserViewItemVirtualRoot(*context);
    context_ = context.release();
    try {
        CreateViewPropertyHolder();
        CreateDefaultViewProperties();
        CreateDefaultColumn();
        CreateSortHandler();
    } catch (...) {
        CleanUp();
        throw;
    }
}

zbBrowserView::zbBrowserView(zbBrowserView const& other)
    : zbIBrowserView(other)
    , zbBrowserErrorReporter(other)
    , name_(other.name_)
    , viewCtrl_(other.viewCtrl_)
    , dataCtrl_(other.dataCtrl_)
    , root_(other.root_)
    , sources_(std::make_unique<ConnectedSources>(*other.sources_))
    , context_(other.context_)
    , sorting_(other.sorting_)
    , italic_(other.italic_)
    , showEmptyFolders_(other.showEmptyFolders_)
    , inCallback_(other.inCallback_)
    , isCopy_(true) {
}

// What the target owned goes first; then it is a copy like any other. A view that is given the
// value of one of its own copies goes on owning what they share.
zbBrowserView& zbBrowserView::operator=(zbBrowserView const& other) {
    if (this == &other)
        return *this;
    auto const sharesAlready = context_ == other.context_;
    auto sources = std::make_unique<ConnectedSources>(*other.sources_);
    zbString name = other.name_;
    if (!sharesAlready) {
        CleanUp();
        isCopy_ = true;
    }
    zbBrowserErrorReporter::operator=(other);
    name_ = std::move(name);
    viewCtrl_ = other.viewCtrl_;
    dataCtrl_ = other.dataCtrl_;
    root_ = other.root_;
    sources_ = std::move(sources);
    context_ = other.context_;
    sorting_ = other.sorting_;
    italic_ = other.italic_;
    showEmptyFolders_ = other.showEmptyFolders_;
    inCallback_ = other.inCallback_;
    return *this;
}

zbBrowserView::~zbBrowserView() {
    CleanUp();
}

void zbBrowserView::CleanUp() {
    if (isCopy_)
        return;
    context_->Selection().ForgetAll();
    context_->NoteEnd();
    delete root_;
    root_ = nullptr;
    context_->SetColumns(nullptr);
    context_->SetSortHandler(nullptr);
    delete context_;
    context_ = nullptr;
}

void zbBrowserView::Destroy(zbBrowserView* view) {
    if (view->isCopy_ || !view->context_->Lifetime().IsBusy()) {
        delete view;
        return;
    }
    view->context_->Lifetime().GiveUp(view,
                                      [](void* gone) { delete static_cast<zbBrowserView*>(gone); });
    view->LetGo();
}

// The host may free its data as soon as the view has been given up, so whatever is still running
// finds nothing any more of which it could ask the host.
void zbBrowserView::LetGo() {
    dataCtrl_ = nullptr;
    sources_->simple.Clear();
    sources_->hierarchical.Clear();
    context_->Selection().ForgetAll();
    root_->LetGo();
}

zbString const& zbBrowserView::GetName() const {
    return name_;
}

zbIBrowserInfo* zbBrowserView::GetBrowserInfo() const {
    return viewCtrl_ == nullptr ? nullptr : viewCtrl_->GetBrowserInfo();
}

zbIBrowserViewCtrl* zbBrowserView::GetViewCtrl() const {
    return GetViewCtrlPtr();
}

// The controller hands itself to its views as const, and the host wants it back as it was.
zbBrowserViewCtrl* zbBrowserView::GetViewCtrlPtr() const {
    return const_cast<zbBrowserViewCtrl*>(viewCtrl_);
}

zbBrowserSignalManager* zbBrowserView::GetSignalManager() const {
    auto* const manager = context_->Manager();
    return manager == nullptr ? nullptr : manager->GetSignalManager();
}

zbBrowserViewItemVirtualRoot* zbBrowserView::GetVirtualRoot() const {
    return root_;
}

zbIBrowserViewItemFreeFolder* zbBrowserView::GetRootFreeFolder() const {
    return root_;
}

zbIBrowserViewItem* zbBrowserView::GetLastFindStartPoint() const {
    return context_->lastFindStartPoint;
}

void zbBrowserView::SetLastFindStartPoint(zbIBrowserViewItem* item) {
    context_->lastFindStartPoint = item;
}

bool zbBrowserView::IsNewView() const {
    return false;
}
