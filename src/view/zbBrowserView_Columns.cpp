// SPDX-License-Identifier: MIT
// Columns and their styles.
#include "presentation/columns/ColumnSet.h"
#include "presentation/columns/zbBrowserViewColumn.h"
#include "presentation/properties/PropertyList.h"
#include "presentation/properties/zbBrowserViewProperty.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

using zbbrowser::detail::ColumnSet;
using zbbrowser::detail::DefaultProperty;
using zbbrowser::detail::OldViewContext;

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
    return context_->Columns()->StyleOf(column, item);
}

bool zbBrowserView::SetViewItemStyle(zbIBrowserViewItem* const item) {
    return context_->Columns()->GiveStyle(item);
}

bool zbBrowserView::RemoveViewItemStyle(zbIBrowserViewItem* const item) {
    return context_->Columns()->TakeStyles(item);
}

bool zbBrowserView::DeleteStyleElement(zbIBrowserStyleElement* element) {
    auto* const column = context_->Styles().ColumnOf(element);
    return column != nullptr && column->DeleteStyleElement(element);
}

// The look of texts. What the property asks the host for is an operation of its own, after which
// nothing of the view is touched here.

namespace {

//! Reads a yes or no about a row. A property of another type leaves `out` as it is, and that counts
//! as read.
bool ReadFlag(zbBrowserViewProperty* property, zbIBrowserViewItem* row, bool& out) {
    if (property == nullptr)
        return false;
    return property->GetDataType() != ZBBROWSER_DATA_TYPE_BOOLEAN ||
           property->GetBooleanValue(row, out);
}

zbBrowserViewProperty* Find(OldViewContext const& context, DefaultProperty which) {
    auto const* const properties = context.Properties();
    return properties == nullptr ? nullptr
                                 : static_cast<zbBrowserViewProperty*>(properties->Default(which));
}

//! A folder tells its own flag, a group has none, and about a row the property tells.
bool ReadLook(OldViewContext const& context, zbIBrowserViewItem& item, DefaultProperty which,
              bool (zbIBrowserViewItemFreeFolder::*ofFolder)() const, bool& out) {
    if (item.IsDataLeaf() || (!item.IsFreeFolder() && !item.IsDependentFolder()))
        return ReadFlag(Find(context, which), &item, out);
    out = item.IsFreeFolder() && (static_cast<zbIBrowserViewItemFreeFolder&>(item).*ofFolder)();
    return true;
}

} // namespace

bool zbBrowserView::IsTextBold(zbIBrowserViewItem* const item,
                               zbIBrowserStyleElement* const element, bool& out) const {
    if (item == nullptr || context_->Styles().ColumnOf(element) == nullptr)
        return false;
    return ReadLook(*context_, *item, DefaultProperty::BoldText,
                    &zbIBrowserViewItemFreeFolder::GetTextBold, out);
}

bool zbBrowserView::IsTextItalic(zbIBrowserViewItem* const item,
                                 zbIBrowserStyleElement* const element, bool& out) const {
    auto const* const column = context_->Styles().ColumnOf(element);
    if (item == nullptr || column == nullptr || !column->GetItalic())
        return false;
    return ReadLook(*context_, *item, DefaultProperty::ItalicText,
                    &zbIBrowserViewItemFreeFolder::GetTextItalic, out);
}

// There is no property of its own for check boxes.
bool zbBrowserView::GetCheckBoxValue(zbIBrowserViewItem* const item,
                                     zbIBrowserStyleElement* const element, bool& out) const {
    if (item == nullptr || context_->Styles().ColumnOf(element) == nullptr ||
        item->IsFreeFolder() || item->IsDependentFolder())
        return false;
    return ReadFlag(Find(*context_, DefaultProperty::ItalicText), item, out);
}
