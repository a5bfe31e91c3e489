// SPDX-License-Identifier: MIT
#include "presentation/styles/StyleManagerBase.h"

#include "containers/MakeRoom.h"
#include "presentation/styles/zbBrowserStyleElement.h"
#include "view/ViewContext.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <algorithm>

namespace zbbrowser::detail {

StyleManagerBase::StyleManagerBase(zbIBrowserViewColumn& column, ViewContext& context)
    : column_(column)
    , isDefault_(column.IsDefault())
    , context_(context) {
    if (isDefault_)
        CreateDefaultStyle();
}

StyleManagerBase::~StyleManagerBase() {
    for (auto* const style : styles_)
        style->SetManager(nullptr);
    for (auto* const style : former_)
        style->SetManager(nullptr);
}

void StyleManagerBase::CreateDefaultStyle() {
    default_ = new zbBrowserStyle(context_, "default_style");
    auto const addElement = [this](char const* name, char const* property) {
        default_->CreateElement(name, "")->SetViewProperty(
            context_.View().FindViewProperty(property));
    };
    addElement(zbBrowserStyleElement::defaultIconName, zbBrowserView::DEFAULT_ICON_NAME_PROP);
    addElement(zbBrowserStyleElement::defaultNameName, zbBrowserView::DEFAULT_NAME_PROP);
    Add(default_);
}

// The list of styles

bool StyleManagerBase::IsTaken(zbString const& name) {
    if (Named(name) == nullptr)
        return false;
    SetError("Style \"" + name + "\" already exists");
    return true;
}

bool StyleManagerBase::CreateStyle(zbString const& name) {
    return !name.empty() && !IsTaken(name) && Add(new zbBrowserStyle(context_, name));
}

bool StyleManagerBase::Add(zbIBrowserStyle* style) {
    auto* const own = context_.Styles().Find(style);
    if (own == nullptr || IsTaken(own->Name()))
        return false;
    MakeRoom(styles_);
    if (own->Manager() != nullptr)
        own->Manager()->Forget(*own);
    own->SetManager(nullptr);
    styles_.push_back(own);
    own->SetManager(this);
    current_ = own;
    return true;
}

zbBrowserStyle* StyleManagerBase::Listed(zbIBrowserStyle const* style) const {
    auto const found = std::find(styles_.begin(), styles_.end(), style);
    return found == styles_.end() ? nullptr : *found;
}

zbBrowserStyle* StyleManagerBase::Named(zbString const& name) const {
    auto const found = std::find_if(styles_.begin(), styles_.end(),
                                    [&name](auto* style) { return style->Name() == name; });
    return found == styles_.end() ? nullptr : *found;
}

zbIBrowserStyle* StyleManagerBase::FindStyle(zbString const& name) const {
    return Named(name);
}

bool StyleManagerBase::GetStyles(std::vector<zbIBrowserStyle*>& out) const {
    out.assign(styles_.begin(), styles_.end());
    return true;
}

bool StyleManagerBase::SetCurrentStyle(zbIBrowserStyle* style) {
    auto* const listed = Listed(style);
    if (listed == nullptr)
        return false;
    current_ = listed;
    return true;
}

// What both ways to delete a style have in common.
bool StyleManagerBase::BeginDeletion(zbIBrowserStyle const* listed) {
    if (listed == nullptr)
        return false;
    MakeRoom(former_);
    if (listed == default_) {
        SetError("default column style cann't be deleted.");
        return false;
    }
    if (current_ == listed)
        current_ = default_;
    return true;
}

bool StyleManagerBase::DeleteStyle(zbIBrowserStyle* style) {
    auto* const listed = Listed(style);
    if (!BeginDeletion(listed))
        return false;
    CallScope const scope(context_.Lifetime());
    RemoveFromFolders(listed);
    if (!listed->IsPending()) {
        if (context_.Ctrl() == nullptr)
            return true;
        context_.Styles().TellDeleted(*listed);
    }
    TakeOut(listed);
    return true;
}

bool StyleManagerBase::DeleteByName(char const* name) {
    auto* const listed = name == nullptr ? nullptr : Named(name);
    if (!BeginDeletion(listed))
        return false;
    CallScope const scope(context_.Lifetime());
    TakeOut(listed);
    if (!listed->IsPending())
        context_.Styles().TellDeleted(*listed);
    return true;
}

// A slot may have taken it out already, or even deleted it.
void StyleManagerBase::TakeOut(zbBrowserStyle* style) {
    auto const place = std::find(styles_.begin(), styles_.end(), style);
    if (place == styles_.end())
        return;
    former_.push_back(style);
    styles_.erase(place);
}

void StyleManagerBase::Forget(zbBrowserStyle& style) {
    std::erase(styles_, &style);
    std::erase(former_, &style);
    RemoveFromFolders(&style);
    if (default_ == &style)
        default_ = nullptr;
    if (current_ == &style)
        current_ = default_;
}

// Elements

template <class Visit>
void StyleManagerBase::ForEachElement(Visit visit) const {
    for (auto const* const style : styles_)
        std::for_each(style->Elements().begin(), style->Elements().end(), visit);
}

bool StyleManagerBase::DeleteStyleElement(zbIBrowserStyleElement* element) {
    CallScope const scope(context_.Lifetime());
    for (auto* const style : Styles(styles_)) {
        if (Listed(style) != nullptr)
            style->DeleteElement(element);
    }
    return true;
}

void StyleManagerBase::OnViewPropertyDeleted(zbIBrowserViewProperty* property) {
    if (property == nullptr)
        return;
    ForEachElement([property](zbBrowserStyleElement* element) {
        if (element->GetViewProperty() == property)
            element->SetViewProperty(nullptr);
    });
}

void StyleManagerBase::OnGuiMapDeleted(zbString const& name) {
    ForEachElement([&name](zbBrowserStyleElement* element) {
        if (name == element->GetGuiMapName())
            element->SetGuiMapName("");
    });
}

// Styles of folders

bool StyleManagerBase::AddFolderStyle(zbIBrowserViewItem* folder) {
    if (!isDefault_ || !IsFreeFolder(folder) || context_.Ctrl() == nullptr)
        return false;
    if (current_ == nullptr || current_ == default_)
        return false;
    folderStyles_[folder].try_emplace(current_);
    return true;
}

bool StyleManagerBase::RemoveFolderStyles(zbIBrowserViewItem* folder) {
    return folderStyles_.erase(folder) > 0;
}

bool StyleManagerBase::RemoveFromFolders(zbBrowserStyle* style) {
    for (auto& [folder, styles] : folderStyles_)
        styles.erase(style);
    return false;
}

StyleManagerBase::Sources* StyleManagerBase::CurrentSources(zbIBrowserViewItem const* folder) {
    auto const styles = folderStyles_.find(folder);
    if (styles == folderStyles_.end())
        return nullptr;
    auto const current = styles->second.find(current_);
    return current == styles->second.end() ? nullptr : &current->second;
}

bool StyleManagerBase::SetSourceStyle(zbIBrowserViewItem* folder, zbIBrowserDataSource* source,
                                      bool flag) {
    auto* sources = CurrentSources(folder);
    if (sources == nullptr || source == nullptr)
        return false;
    CallScope const scope(context_.Lifetime());
    auto const entry = sources->find(source);
    if (entry != sources->end() && entry->second != flag) {
        entry->second = flag;
        Redraw(*source);
        return false;
    }
    auto* const shown = FindSource(*folder, *source);
    sources = CurrentSources(folder); // Anew: the host was asked for names
    if (sources == nullptr || shown == nullptr)
        return false;
    sources->try_emplace(shown, flag);
    Redraw(*shown);
    return false;
}

// The style of an item

zbIBrowserStyle* StyleManagerBase::GetViewItemStyle(zbIBrowserViewItem* item) {
    if (item == nullptr)
        return nullptr;
    CallScope const scope(context_.Lifetime());
    auto* const style = StyleOf(*item);
    if (style != nullptr && style->IsPending() && !context_.Styles().TellCreated(*style))
        return nullptr;
    return style;
}

zbBrowserStyle* StyleManagerBase::StyleOf(zbIBrowserViewItem& item) const {
    if (item.IsDataLeaf()) // Asked first, since nearly all items are leaves
        return StyleOfRow(item);
    auto const isFreeFolder = item.IsFreeFolder();
    if (!isFreeFolder && !item.IsDependentFolder() && !item.IsGroupingFolder())
        return StyleOfRow(item);
    if (isDefault_)
        return default_;
    auto const isStyled =
        isFreeFolder && static_cast<zbIBrowserViewItemFreeFolder&>(item).GetFreeFolderStyle();
    return isStyled ? current_ : nullptr;
}

zbBrowserStyle* StyleManagerBase::StyleOfRow(zbIBrowserViewItem const& row) const {
    auto* style = isDefault_ ? default_ : current_;
    if (folderStyles_.empty())
        return style;
    auto const* folder = row.GetParent();
    while (folder != nullptr && !folder->IsFreeFolder())
        folder = folder->GetParent();
    auto const styles = folderStyles_.find(folder);
    if (styles == folderStyles_.end())
        return style;
    auto const* const source = SourceOf(row);
    for (auto const& [candidate, sources] : styles->second) {
        auto const entry = sources.find(source);
        if (entry != sources.end() && entry->second)
            style = candidate;
    }
    return style;
}

} // namespace zbbrowser::detail
