// SPDX-License-Identifier: MIT
#include "presentation/columns/ColumnBase.h"

#include "presentation/columns/ColumnSet.h"
#include "view/ViewContext.h"

#include <zbBrowserView/zbIBrowserView.h>

#include <utility>

namespace zbbrowser::detail {

ColumnBase::ColumnBase(ViewContext& context, zbString name, zbString title)
    : context_(context)
    , name_(std::move(name))
    , title_(std::move(title)) {
}

ColumnBase::~ColumnBase() = default;

// A column that has been deleted, and is only waiting to be freed, is not heard of any more.
template <class Signal, class... Args>
void ColumnBase::Raise(Signal signal, Args... args) {
    if (context_.Columns()->Find(this) != nullptr)
        context_.Raise(signal, this, args...);
}

zbIBrowserView* ColumnBase::GetView() const {
    return &context_.View();
}

char const* ColumnBase::GetTitle() const {
    return title_.empty() ? GetName() : title_.c_str();
}

void ColumnBase::SetPosition(unsigned position) {
    if (position_ == 0)
        position_ = position;
}

bool ColumnBase::SetPopupMenu(char const* name) {
    if (context_.View().FindPopupMenu(name) == nullptr)
        return false;
    popupMenuName_ = name;
    return true;
}

zbIBrowserPopupMenu* ColumnBase::GetPopupMenu() const {
    return context_.View().FindPopupMenu(popupMenuName_.c_str());
}

void ColumnBase::SetSorting(bool sorting) {
    if (std::exchange(sorting_, sorting) == sorting)
        return;
    CallScope const scope(context_.Lifetime());
    Raise(&zbBrowserSignalManager::ColumnStateChanged, sorting);
}

void ColumnBase::SetItalic(bool italic) {
    if (std::exchange(italic_, italic) == italic)
        return;
    CallScope const scope(context_.Lifetime());
    Raise(&zbBrowserSignalManager::ColumnStateChanged, sorting_);
    Raise(&zbBrowserSignalManager::ColumnUpdated);
}

bool ColumnBase::SetTitle(char const* title) {
    if (title == nullptr)
        return false;
    title_ = title;
    CallScope const scope(context_.Lifetime());
    Raise(&zbBrowserSignalManager::ColumnCaptionChanged);
    return true;
}

// Styles

bool ColumnBase::GetStyles(std::vector<zbIBrowserStyle*>& out) const {
    return styles_->GetStyles(out);
}

bool ColumnBase::CreateStyle(zbString const& name) {
    return styles_->CreateStyle(name);
}

zbIBrowserStyle* ColumnBase::FindStyle(zbString const& name) const {
    return styles_->FindStyle(name);
}

bool ColumnBase::DeleteStyle(zbIBrowserStyle* style) {
    return styles_->DeleteStyle(style);
}

bool ColumnBase::DeleteStyleElement(zbIBrowserStyleElement* element) {
    return styles_->DeleteStyleElement(element);
}

bool ColumnBase::SetFolderDataSourceStyle(zbIBrowserViewItem* folder, zbIBrowserDataSource* source,
                                          bool flag) {
    return styles_->SetFolderDataSourceStyle(folder, source, flag);
}

bool ColumnBase::SetFolderDataListStyle(zbIBrowserViewItem* folder,
                                        zbIBrowserDataSourceSimple* source, bool flag) {
    return styles_->SetFolderDataListStyle(folder, source, flag);
}

bool ColumnBase::AddFolderStyle(zbIBrowserViewItem* folder) {
    return styles_->AddFolderStyle(folder);
}

bool ColumnBase::RemoveFolderStyles(zbIBrowserViewItem* folder) {
    return styles_->RemoveFolderStyles(folder);
}

zbIBrowserStyle* ColumnBase::GetViewItemStyle(zbIBrowserViewItem* item) {
    return styles_->GetViewItemStyle(item);
}

bool ColumnBase::SetCurrentStyle(zbIBrowserStyle* style) {
    return styles_->SetCurrentStyle(style);
}

} // namespace zbbrowser::detail
