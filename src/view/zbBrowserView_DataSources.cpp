// SPDX-License-Identifier: MIT
// Data control and data sources.
#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "selection/zbBrowserSelectionManager.h"
#include "view/ConnectedSources.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataCtrl.h>
#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbBrowserView.h>

#include <cstring>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::PointerList;

namespace {

template <class Source>
Source* FindByName(PointerList<Source> const& sources, char const* name) {
    if (name == nullptr)
        return nullptr;
    return sources.FindIf([name](Source* s) { return StrICmp(s->GetName(), name) == 0; });
}

// A source that a slot or another source has disconnected meanwhile has been told already.
template <class Source>
void Disconnect(PointerList<Source>& sources, Source* source,
                zbBrowserSelectionManager& selection) {
    if (!sources.Remove(source))
        return;
    selection.ForgetSource(*source);
    source->OnDisconnected();
}

} // namespace

void zbBrowserView::SetDataCtrl(zbIBrowserDataCtrl* const dataCtrl) {
    dataCtrl_ = dataCtrl;
    if (dataCtrl == nullptr)
        DataSourceDisconnectAll(true);
}

zbIBrowserDataCtrl* zbBrowserView::GetDataCtrl() const {
    return dataCtrl_;
}

void zbBrowserView::OnDataControlDeleted(char const* name) {
    if (inCallback_)
        return;
    CallScope const scope(context_->Lifetime());
    inCallback_ = true;
    char const* const own = dataCtrl_ == nullptr ? nullptr : dataCtrl_->GetName();
    if (own != nullptr && name != nullptr && std::strcmp(own, name) == 0)
        SetDataCtrl(nullptr);
    inCallback_ = false;
}

bool zbBrowserView::DataSourceConnect(zbIBrowserDataSourceSimple* source) {
    CallScope const scope(context_->Lifetime());
    SetOk();
    if (source == nullptr || dataCtrl_ == nullptr || sources_->simple.Contains(source))
        return true;
    auto const isKnown = dataCtrl_->FindDataSourceSimple(source->GetName()) != nullptr;
    if (isKnown && context_->IsAlive() && sources_->simple.Add(source))
        source->OnConnected();
    return true;
}

bool zbBrowserView::DataSourceConnect(zbIBrowserDataSourceHierarchical* source) {
    CallScope const scope(context_->Lifetime());
    SetOk();
    if (source == nullptr || dataCtrl_ == nullptr || sources_->hierarchical.Contains(source))
        return true;
    auto const isKnown = dataCtrl_->FindDataSourceHierarchical(source->GetName()) != nullptr;
    if (isKnown && context_->IsAlive())
        sources_->hierarchical.Add(source);
    return true;
}

bool zbBrowserView::DataSourceDisconnect(char const* name) {
    CallScope const scope(context_->Lifetime());
    auto const disconnect = [this](auto& sources, auto* source) {
        RemoveContentOf(*source);
        Disconnect(sources, source, *GetSelectionManagerPtr());
        return true;
    };
    if (auto* const simple = GetDataSourceSimple(name); simple != nullptr)
        return disconnect(sources_->simple, simple);
    if (auto* const tree = GetDataSourceHierarchical(name); tree != nullptr)
        return disconnect(sources_->hierarchical, tree);
    return false;
}

bool zbBrowserView::DataSourceDisconnectAll(bool removeContent) {
    CallScope const scope(context_->Lifetime());
    auto const disconnect = [&](auto& sources) {
        for (auto* const source : sources.Snapshot()) {
            if (removeContent && sources.Contains(source))
                RemoveContentOf(*source);
            Disconnect(sources, source, *GetSelectionManagerPtr());
        }
    };
    disconnect(sources_->simple);
    disconnect(sources_->hierarchical);
    return true;
}

void zbBrowserView::RemoveContentOf(zbIBrowserDataSourceSimple& source) {
    root_->DeleteListRecursive(&source);
}

void zbBrowserView::RemoveContentOf(zbIBrowserDataSourceHierarchical& source) {
    root_->DeleteTreeRecursive(&source);
}

zbIBrowserDataSourceSimple* zbBrowserView::GetDataSourceSimple(char const* name) const {
    CallScope const scope(context_->Lifetime());
    return FindByName(sources_->simple, name);
}

zbIBrowserDataSourceSimple*
zbBrowserView::GetDataSourceSimple(zbIBrowserDataSourceSimple const* source) const {
    return sources_->simple.Find(source);
}

zbIBrowserDataSourceHierarchical* zbBrowserView::GetDataSourceHierarchical(char const* name) const {
    CallScope const scope(context_->Lifetime());
    return FindByName(sources_->hierarchical, name);
}

zbIBrowserDataSourceHierarchical*
zbBrowserView::GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const* source) const {
    return sources_->hierarchical.Find(source);
}

zbIBrowserDataSourceSimple*
zbBrowserView::GetDataSourceSimpleFromHierarchical(char const* name) const {
    if (name == nullptr)
        return nullptr;
    CallScope const scope(context_->Lifetime());
    for (auto* const tree : sources_->hierarchical.Snapshot()) {
        if (!sources_->hierarchical.Contains(tree))
            continue;
        if (auto* const type = tree->FindDataSourceSimple(name); type != nullptr)
            return type;
    }
    return nullptr;
}

bool zbBrowserView::GetDataSourceSimpleList(std::vector<zbIBrowserDataSourceSimple*>& out) const {
    out = sources_->simple.Snapshot();
    return true;
}

bool zbBrowserView::GetDataSourceHierarchicalList(
    std::vector<zbIBrowserDataSourceHierarchical*>& out) const {
    out = sources_->hierarchical.Snapshot();
    return true;
}
