// SPDX-License-Identifier: MIT
// Columns, styles, properties, filter, sorting, menus, view operations and collector: the answers
// of a view that has none of these handlers, and those that stay as they are.
#include <zbBrowserView/zbBrowserView.h>

// The new generation's part of the interface. Stays as it is.

bool zbBrowserView::Connect(zbIBrowserDataReference*, bool) {
    return false;
}
bool zbBrowserView::Connect(zbIBrowserDataSource*, bool) {
    return false;
}
bool zbBrowserView::GetConnected(std::set<zbIBrowserDataReference*>&) const {
    return false;
}
bool zbBrowserView::GetConnected(std::set<zbIBrowserDataSource*>&) const {
    return false;
}
zbIBrowserDataSource* zbBrowserView::FindConnected(char const*) {
    return nullptr;
}
bool zbBrowserView::IsCollectorEnable() const {
    return false;
}
bool zbBrowserView::PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE) const {
    return false;
}
void zbBrowserView::ResetCollector() {
}
void zbBrowserView::SetCollectorEnable(bool) {
}
bool zbBrowserView::GetFilterByName(bool&) const {
    return false;
}
bool zbBrowserView::GetFilterUseRegExp(bool&) const {
    return false;
}
bool zbBrowserView::CreateCheckBoxColumn(char const*, char const*) {
    return true;
}
bool zbBrowserView::CreateComboBoxColumn(char const*, char const*) {
    return true;
}

// Marks

bool zbBrowserView::GetSorting() const {
    return sorting_;
}
bool zbBrowserView::GetItalic() const {
    return italic_;
}

bool zbBrowserView::SetSorting(bool sorting) {
    sorting_ = sorting;
    return true;
}

bool zbBrowserView::SetItalic(bool italic) {
    italic_ = italic;
    return true;
}

// Columns and styles

bool zbBrowserView::GetColumns(std::vector<zbIBrowserViewColumn*>& out) const {
    out.clear();
    return true;
}
zbIBrowserViewColumn* zbBrowserView::GetDefaultColumn() const {
    return nullptr;
}
zbIBrowserViewColumn* zbBrowserView::FindColumn(char const*) const {
    return nullptr;
}
bool zbBrowserView::CreateIconColumn(char const*, char const*, char const*) {
    return false;
}
bool zbBrowserView::CreateButtonColumn(char const*, char const*) {
    return false;
}
bool zbBrowserView::CreateTextBoxColumn(char const*, char const*) {
    return false;
}
bool zbBrowserView::DeleteScriptedColumn(zbIBrowserViewColumn*) {
    return false;
}
bool zbBrowserView::ShowScriptedColumn(zbIBrowserViewColumn* const, bool) {
    return false;
}
zbIBrowserStyle* zbBrowserView::GetViewItemStyle(zbIBrowserViewColumn* const,
                                                 zbIBrowserViewItem* const) const {
    return nullptr;
}
bool zbBrowserView::SetViewItemStyle(zbIBrowserViewItem* const) {
    return false;
}
bool zbBrowserView::DeleteStyleElement(zbIBrowserStyleElement*) {
    return false;
}
bool zbBrowserView::IsTextBold(zbIBrowserViewItem* const, zbIBrowserStyleElement* const,
                               bool&) const {
    return false;
}
bool zbBrowserView::IsTextItalic(zbIBrowserViewItem* const, zbIBrowserStyleElement* const,
                                 bool&) const {
    return false;
}
void zbBrowserView::OnGuiMapDeleted(zbString const&) {
}

// Sorting

zbIBrowserViewColumn* zbBrowserView::GetSortedColumn() const {
    return nullptr;
}
bool zbBrowserView::GetAscendingOrder(zbIBrowserViewColumn* const, bool&) const {
    return false;
}
bool zbBrowserView::SetAscendingOrder(zbIBrowserViewColumn* const, bool) {
    return false;
}

// Properties

zbIBrowserViewProperty* zbBrowserView::FindViewProperty(zbString const&) const {
    return nullptr;
}
void zbBrowserView::CreateViewProperty(char const*) {
}
bool zbBrowserView::DeleteViewProperty(zbIBrowserViewProperty*) {
    return false;
}
bool zbBrowserView::GetViewPropertyList(std::vector<zbIBrowserViewProperty*>&) const {
    return false;
}
void zbBrowserView::UpdateViewPropertyType(zbString const&, ZBBROWSER_DATA_TYPE) {
}

// Filter

bool zbBrowserView::GetFilterNames(std::vector<zbIBrowserDataSourceSimple*>&) const {
    return false;
}
bool zbBrowserView::GetCurrentFilter(std::vector<zbIBrowserDataSourceSimple*>&) const {
    return false;
}
bool zbBrowserView::GetFilterMatchCase(bool&) const {
    return false;
}
bool zbBrowserView::GetFilterMatchWord(bool&) const {
    return false;
}
bool zbBrowserView::GetFilterLookupString(zbString&) const {
    return false;
}
void zbBrowserView::GetFilterMapNames(zbString&) const {
}
bool zbBrowserView::SetCurrentFilter(std::set<zbIBrowserDataSourceSimple*> const&) {
    return false;
}
bool zbBrowserView::SetFilterLookupString(zbString const&) {
    return false;
}
bool zbBrowserView::SetFilterMatchCaseFlag(bool) {
    return false;
}
bool zbBrowserView::SetFilterMatchWordFlag(bool) {
    return false;
}
bool zbBrowserView::GetFilterMatchWordFlag(bool&) {
    return false;
}
bool zbBrowserView::SetFilterGrouping(bool) {
    return false;
}
bool zbBrowserView::GetFilterGrouping() const {
    return false;
}
bool zbBrowserView::RebuildFilterLists() const {
    return false;
}
zbIBrowserDataSourceSimple* zbBrowserView::GetFilterDataSource(char const*) const {
    return nullptr;
}

// Menus and view operations

zbIBrowserPopupMenu* zbBrowserView::CreatePopupMenu(char const*) {
    return nullptr;
}
bool zbBrowserView::DeletePopupMenu(char const*, bool) {
    return false;
}
bool zbBrowserView::FindPopupMenu(zbIBrowserPopupMenu* const) const {
    return false;
}
zbIBrowserPopupMenu* zbBrowserView::FindPopupMenu(char const*) const {
    return nullptr;
}
bool zbBrowserView::GetAllPopupMenus(std::vector<zbIBrowserPopupMenu*>&) {
    return false;
}
bool zbBrowserView::CreateViewOperation(char const*) {
    return false;
}
zbIBrowserViewOperation* zbBrowserView::FindViewOperation(char const*) const {
    return nullptr;
}
void zbBrowserView::PerformVOPAttachedToGvnDOP(char const*) {
}
bool zbBrowserView::EditSelectedDataItem(char const*) {
    return false;
}

// Collector

zbIBrowserCollector* zbBrowserView::GetCollectorHandler() const {
    return nullptr;
}
char const* zbBrowserView::GetCollectorGuiMapName() const {
    return "";
}
bool zbBrowserView::IsBrowserCollectorOn() const {
    return false;
}
bool zbBrowserView::IsBrowserColDisabled() const {
    return false;
}
void zbBrowserView::OnBrowserColPerform() {
}
void zbBrowserView::ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD, bool) {
}
void zbBrowserView::OnBrowserColDeselected() {
}
void zbBrowserView::OnBrowserColDisabled(bool) {
}
