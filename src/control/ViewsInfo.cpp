// SPDX-License-Identifier: MIT
//! \file
//! zbbrowser::ViewsInfo: making, ending and finding views.
#include "control/ViewsInfo.h"

#include "control/Messages.h"

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>

#include <memory>
#include <new>

namespace zbbrowser {

namespace {

template <class AnyView>
AnyView* FindByName(detail::ViewList<AnyView> const& views, zbString const& name) {
    return views.FindIf([&name](AnyView const& view) {
        return StrICmp(name.c_str(), view.GetName().c_str()) == 0;
    });
}

} // namespace

ViewsInfo::ViewsInfo(zbBrowserViewCtrl* viewCtrl)
    : viewCtrl_(viewCtrl) {
}

ViewsInfo::~ViewsInfo() {
    DeleteAll(newViews_);
    DeleteAll(oldViews_);
}

// A view is listed no more when its destructor runs, so that whoever is called by that does not
// find it.
template <class AnyView>
void ViewsInfo::DeleteAll(detail::ViewList<AnyView>& views) {
    views.Walk([&views](AnyView& view) {
        views.Remove(&view);
        Destroy(&view);
    });
}

// A view with an operation under way frees itself when that is over.
template <class AnyView>
void ViewsInfo::Destroy(AnyView* view) {
    AnyView::Destroy(view);
}

void ViewsInfo::RequireFreeName(zbString const& name) const {
    if (FindView(name) != nullptr)
        throw "View with specified name already exists";
}

// A view calls the host while it is made, and the host may make one of the same name meanwhile; so
// the name is looked at twice. Running out of memory is a failure inside like any other, and
// reported in the same way.
template <class AnyView, class Make>
AnyView* ViewsInfo::Create(detail::ViewList<AnyView>& views, zbString const& name, Make make) try {
    RequireFreeName(name);
    std::unique_ptr<AnyView, void (*)(AnyView*)> view(make(), &ViewsInfo::Destroy<AnyView>);
    RequireFreeName(name);
    views.Append(view.get());
    return view.release();
} catch (std::bad_alloc const&) {
    detail::Fail(detail::NotEnoughMemory);
}

View* ViewsInfo::CreateNewView(zbString const& name) {
    return Create(newViews_, name, [&] { return new View(viewCtrl_, name); });
}

zbBrowserView* ViewsInfo::CreateOldView(zbString const& name) {
    return Create(oldViews_, name, [&] { return new zbBrowserView(viewCtrl_, name.c_str()); });
}

bool ViewsInfo::DeleteView(zbIBrowserView* view) {
    return DeleteFrom(newViews_, view) || DeleteFrom(oldViews_, view);
}

template <class AnyView>
bool ViewsInfo::DeleteFrom(detail::ViewList<AnyView>& views, zbIBrowserView const* view) {
    AnyView* const found = views.Find(view);
    if (found == nullptr)
        return false;
    zbIBrowserDataCtrl* const ctrl = found->GetDataCtrl();
    views.Remove(found);
    Destroy(found);
    auto const hasCtrl = [ctrl](AnyView const& other) { return other.GetDataCtrl() == ctrl; };
    if (ctrl != nullptr && views.FindIf(hasCtrl) == nullptr)
        ctrl->Release(nullptr);
    return true;
}

zbIBrowserView* ViewsInfo::FindView(zbString const& name) const {
    if (View* const view = FindNewView(name))
        return view;
    return FindOldView(name);
}

View* ViewsInfo::FindNewView(zbString const& name) const {
    return FindByName(newViews_, name);
}

zbBrowserView* ViewsInfo::FindOldView(zbString const& name) const {
    return FindByName(oldViews_, name);
}

zbBrowserView* ViewsInfo::FindOldViewByPtr(zbIBrowserView const* view) const {
    return oldViews_.Find(view);
}

bool ViewsInfo::IsListed(zbIBrowserView const* view) const {
    return newViews_.Find(view) != nullptr || oldViews_.Find(view) != nullptr;
}

std::uint64_t ViewsInfo::GetViewList(std::vector<zbIBrowserView*>& out,
                                     zbIBrowserDataCtrl const* filter) const {
    out.clear();
    newViews_.AppendTo(out, filter);
    oldViews_.AppendTo(out, filter);
    return out.size();
}

std::uint64_t ViewsInfo::GetNewViewList(std::vector<View*>& out,
                                        zbIBrowserDataCtrl const* filter) const {
    out.clear();
    newViews_.AppendTo(out, filter);
    return out.size();
}

std::uint64_t ViewsInfo::GetOldViewList(std::vector<zbBrowserView*>& out,
                                        zbIBrowserDataCtrl const* filter) const {
    out.clear();
    oldViews_.AppendTo(out, filter);
    return out.size();
}

} // namespace zbbrowser
