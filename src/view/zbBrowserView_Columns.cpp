// SPDX-License-Identifier: MIT
// Columns and their styles.
#include "presentation/columns/ColumnSet.h"
#include "presentation/columns/zbBrowserViewColumn.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

using zbbrowser::detail::CallScope;
using zbbrowser::detail::ColumnSet;

// Columns

void zbBrowserView::CreateDefaultColumn() {
    if (context_->Columns() == nullptr)
        context_->SetColumns(std::make_unique<ColumnSet>(*context_));
    context_->Columns()->CreateDefault();
}

bool zbBrowserView::GetColumns(std::vector<zbIBrowserViewColumn*>& out) const {
    context_->Columns()->List(out);
    return true;
}

zbIBrowserViewColumn* zbBrowserView::GetDefaultColumn() const {
    return context_->Columns()->Default();
}

zbBrowserViewColumnDefault* zbBrowserView::GetDefaultColumnPtr() const {
    return static_cast<zbBrowserViewColumnDefault*>(context_->Columns()->DefaultImpl());
}

zbIBrowserViewColumn* zbBrowserView::FindColumn(char const* name) const {
    return context_->Columns()->FindByName(name);
}

zbIBrowserViewColumn* zbBrowserView::FindColumn(zbIBrowserViewColumn const* const column) const {
    return context_->Columns()->Find(column);
}

zbBrowserViewColumnCustom*
zbBrowserView::FindScriptedColumn(zbIBrowserViewColumn const* const column) const {
    return static_cast<zbBrowserViewColumnCustom*>(context_->Columns()->FindScripted(column));
}

zbBrowserViewColumnCustom* zbBrowserView::CreateColumnCustom(char const* name) {
    SetOk();
    return static_cast<zbBrowserViewColumnCustom*>(context_->Columns()->Add(name));
}

bool zbBrowserView::CreateIconColumn(char const* name, char const*, char const*) {
    return context_->Columns()->Create(name, true);
}

bool zbBrowserView::CreateButtonColumn(char const* name, char const*) {
    return context_->Columns()->Create(name, false);
}

bool zbBrowserView::CreateTextBoxColumn(char const* name, char const* title) {
    return CreateButtonColumn(name, title);
}

bool zbBrowserView::CreateCheckBoxColumn(char const*, char const*) {
    return true;
}

bool zbBrowserView::CreateComboBoxColumn(char const*, char const*) {
    return true;
}

bool zbBrowserView::DeleteScriptedColumn(zbIBrowserViewColumn* column) {
    return context_->Columns()->Delete(column);
}

bool zbBrowserView::ShowScriptedColumn(zbIBrowserViewColumn* const column, bool show) {
    return context_->Columns()->Show(column, show);
}

bool zbBrowserView::GetSorting() const {
    return sorting_;
}

bool zbBrowserView::SetSorting(bool sorting) {
    sorting_ = sorting;
    context_->Columns()->SetSorting(sorting);
    return true;
}

bool zbBrowserView::GetItalic() const {
    return italic_;
}

bool zbBrowserView::SetItalic(bool italic) {
    italic_ = italic;
    context_->Columns()->SetItalic(italic);
    return true;
}

void zbBrowserView::OnGuiMapDeleted(zbString const& name) {
    context_->Columns()->OnGuiMapDeleted(name);
}

// Styles

zbIBrowserStyle* zbBrowserView::GetViewItemStyle(zbIBrowserViewColumn* const column,
                                                 zbIBrowserViewItem* const item) const {
    auto* const own = FindColumn(column);
    return own == nullptr ? nullptr : own->GetViewItemStyle(item);
}

bool zbBrowserView::SetViewItemStyle(zbIBrowserViewItem* const item) {
    auto* const column = GetDefaultColumnPtr();
    if (column == nullptr || !context_->Owns(item))
        return false;
    column->AddFolderStyle(item);
    return true;
}

bool zbBrowserView::RemoveViewItemStyle(zbIBrowserViewItem* const item) {
    auto* const column = GetDefaultColumnPtr();
    if (column == nullptr || !context_->Owns(item))
        return false;
    column->RemoveFolderStyles(item);
    return true;
}

bool zbBrowserView::DeleteStyleElement(zbIBrowserStyleElement* element) {
    auto* const column = FindColumn(context_->Styles().ColumnOf(element));
    return column != nullptr && column->DeleteStyleElement(element);
}

// The look of texts

namespace {

//! Reads a yes or no about a row. A property of another type leaves `out` as it is, and that counts
//! as read.
bool ReadFlag(zbIBrowserViewProperty* property, zbIBrowserViewItem* row, bool& out) {
    if (property == nullptr)
        return false;
    return property->GetDataType() != ZBBROWSER_DATA_TYPE_BOOLEAN ||
           property->GetBooleanValue(row, out);
}

zbString const& BoldProperty() {
    static zbString const name(zbBrowserView::DEFAULT_BOLD_TEXT_PROP);
    return name;
}

zbString const& ItalicProperty() {
    static zbString const name(zbBrowserView::DEFAULT_ITALIC_TEXT_PROP);
    return name;
}

} // namespace

bool zbBrowserView::IsTextBold(zbIBrowserViewItem* const item,
                               zbIBrowserStyleElement* const element, bool& out) const {
    if (item == nullptr || context_->Styles().ColumnOf(element) == nullptr)
        return false;
    CallScope const scope(context_->Lifetime());
    if (!item->IsFreeFolder() && !item->IsDependentFolder())
        return ReadFlag(FindViewProperty(BoldProperty()), item, out);
    out = item->IsFreeFolder() && static_cast<zbIBrowserViewItemFreeFolder*>(item)->GetTextBold();
    return true;
}

bool zbBrowserView::IsTextItalic(zbIBrowserViewItem* const item,
                                 zbIBrowserStyleElement* const element, bool& out) const {
    auto const* const column = context_->Styles().ColumnOf(element);
    if (item == nullptr || column == nullptr || !column->GetItalic())
        return false;
    CallScope const scope(context_->Lifetime());
    if (!item->IsFreeFolder() && !item->IsDependentFolder())
        return ReadFlag(FindViewProperty(ItalicProperty()), item, out);
    out = item->IsFreeFolder() && static_cast<zbIBrowserViewItemFreeFolder*>(item)->GetTextItalic();
    return true;
}

// There is no property of its own for check boxes.
bool zbBrowserView::GetCheckBoxValue(zbIBrowserViewItem* const item,
                                     zbIBrowserStyleElement* const element, bool& out) const {
    if (item == nullptr || context_->Styles().ColumnOf(element) == nullptr ||
        item->IsFreeFolder() || item->IsDependentFolder())
        return false;
    CallScope const scope(context_->Lifetime());
    return ReadFlag(FindViewProperty(ItalicProperty()), item, out);
}
