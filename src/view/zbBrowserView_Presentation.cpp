// SPDX-License-Identifier: MIT
// Filter, menus, view operations and collector: the answers of a view that has none of these
// handlers, and those that stay as they are.
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
