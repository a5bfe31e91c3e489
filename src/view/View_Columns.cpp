// SPDX-License-Identifier: MIT
// Columns and their styles.
#include "presentation/columns/ColumnSet.h"
#include "presentation/columns/ViewColumn.h"
#include "view/NewViewContext.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserViewItem.h>

namespace zbbrowser {

// Columns

void View::CreateDefaultColumn() {
    if (context_->Columns() == nullptr)
        context_->SetColumns(std::make_unique<detail::ColumnSet>(*context_));
    context_->Columns()->CreateDefault();
}

void View::DeleteDefaultColumn() {
    context_->Columns()->DeleteDefault();
}

void View::DeleteScriptedColumns() {
    context_->Columns()->DeleteAllScripted();
}

void View::DeleteColumns() {
    DeleteDefaultColumn();
    DeleteScriptedColumns();
}

bool View::GetColumns(std::vector<zbIBrowserViewColumn*>& out) const {
    context_->Columns()->List(out);
    return true;
}

zbIBrowserViewColumn* View::GetDefaultColumn() const {
    return context_->Columns()->Default();
}

ViewColumnDefault* View::GetDefaultColumnPtr() const {
    return static_cast<ViewColumnDefault*>(context_->Columns()->DefaultImpl());
}

zbIBrowserViewColumn* View::FindColumn(char const* name) const {
    return context_->Columns()->FindByName(name);
}

zbIBrowserViewColumn* View::FindColumn(zbIBrowserViewColumn const* column) const {
    return context_->Columns()->Find(column);
}

ViewColumnCustom* View::FindScriptedColumn(zbIBrowserViewColumn const* const column) const {
    return static_cast<ViewColumnCustom*>(context_->Columns()->FindScripted(column));
}

unsigned View::GetColumnIndex(zbIBrowserViewColumn const* column) const {
    auto const* const scripted = FindScriptedColumn(column);
    return scripted == nullptr ? 0 : scripted->GetIndex();
}

ViewColumnCustom* View::CreateColumnCustom(zbString const& name) {
    return static_cast<ViewColumnCustom*>(context_->Columns()->Add(name.c_str()));
}

bool View::CreateIconColumn(char const* name, char const*, char const*) {
    return context_->Columns()->Create(name, true);
}

bool View::CreateButtonColumn(char const* name, char const*) {
    return context_->Columns()->Create(name, false);
}

bool View::CreateTextBoxColumn(char const* name, char const* title) {
    return CreateButtonColumn(name, title);
}

bool View::CreateCheckBoxColumn(char const*, char const*) {
    return true;
}

bool View::CreateComboBoxColumn(char const*, char const*) {
    return true;
}

bool View::DeleteScriptedColumn(zbIBrowserViewColumn* column) {
    return context_->Columns()->Delete(column);
}

bool View::ShowScriptedColumn(zbIBrowserViewColumn* const column, bool show) {
    return context_->Columns()->Show(column, show);
}

bool View::GetSorting() const {
    return sorting_;
}

bool View::SetSorting(bool sorting) {
    sorting_ = sorting;
    context_->Columns()->SetSorting(sorting);
    return true;
}

bool View::GetItalic() const {
    return italic_;
}

bool View::SetItalic(bool italic) {
    italic_ = italic;
    context_->Columns()->SetItalic(italic);
    return true;
}

void View::OnGuiMapDeleted(zbString const& name) {
    context_->Columns()->OnGuiMapDeleted(name);
}

// Styles

zbIBrowserStyle* View::GetViewItemStyle(zbIBrowserViewColumn* const column,
                                        zbIBrowserViewItem* const item) const {
    return context_->Columns()->StyleOf(column, item);
}

bool View::SetViewItemStyle(zbIBrowserViewItem* const item) {
    return context_->Columns()->GiveStyle(item);
}

bool View::RemoveViewItemStyle(zbIBrowserViewItem* const item) {
    return context_->Columns()->TakeStyles(item);
}

// Deletes nothing: in this generation only the style itself does.
bool View::DeleteStyleElement(zbIBrowserStyleElement* element) {
    return context_->Styles().ColumnOf(element) != nullptr;
}

// Texts of folders are never bold or italic here, and about rows nothing is told.

bool View::IsTextBold(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                      bool& out) const {
    if (item == nullptr || context_->Styles().ColumnOf(element) == nullptr || !item->IsFreeFolder())
        return false;
    out = false;
    return true;
}

bool View::IsTextItalic(zbIBrowserViewItem* const item, zbIBrowserStyleElement* const element,
                        bool& out) const {
    auto const* const column = context_->Styles().ColumnOf(element);
    return column != nullptr && column->GetItalic() && IsTextBold(item, element, out);
}

bool View::GetCheckBoxValue(zbIBrowserViewItem* const, zbIBrowserStyleElement* const, bool&) const {
    return false;
}

} // namespace zbbrowser
