// SPDX-License-Identifier: MIT
//! \file
//! What a view of the new generation does not offer. These answers are final: callers rely on them.
#include <zbBrowserView/View.h>

namespace zbbrowser {

bool View::GetDataSourceSimpleList(std::vector<zbIBrowserDataSourceSimple*>&) const {
    return false;
}

zbIBrowserDataSourceSimple* View::GetDataSourceSimple(zbIBrowserDataSourceSimple const*) const {
    return nullptr;
}

zbIBrowserDataSourceSimple* View::GetDataSourceSimple(char const*) const {
    return nullptr;
}

zbIBrowserDataSourceSimple* View::GetDataSourceSimpleFromHierarchical(char const*) const {
    return nullptr;
}

bool View::DataSourceConnect(zbIBrowserDataSourceHierarchical*) {
    return false;
}

bool View::DataSourceConnect(zbIBrowserDataSourceSimple*) {
    return false;
}

bool View::DataSourceDisconnectAll(bool) {
    return false;
}

bool View::DataSourceDisconnect(char const*) {
    return false;
}

bool View::GetDataSourceHierarchicalList(std::vector<zbIBrowserDataSourceHierarchical*>&) const {
    return false;
}

zbIBrowserDataSourceHierarchical*
View::GetDataSourceHierarchical(zbIBrowserDataSourceHierarchical const*) const {
    return nullptr;
}

zbIBrowserDataSourceHierarchical* View::GetDataSourceHierarchical(char const*) const {
    return nullptr;
}

bool View::GetFilterNames(std::vector<zbIBrowserDataSourceSimple*>&) const {
    return false;
}

bool View::GetCurrentFilter(std::vector<zbIBrowserDataSourceSimple*>&) const {
    return false;
}

bool View::GetFilterByName(bool&) const {
    return false;
}

bool View::GetFilterMatchCase(bool&) const {
    return false;
}

bool View::GetFilterMatchWord(bool&) const {
    return false;
}

bool View::GetFilterUseRegExp(bool&) const {
    return false;
}

bool View::GetFilterLookupString(zbString&) const {
    return false;
}

void View::GetFilterMapNames(zbString&) const {
}

bool View::IsBrowserColDisabled() const {
    return false;
}

void View::OnBrowserColPerform() {
}

void View::ShowCollectorButton(ZBBROWSER_TCLAPI_KEYWORD, bool) {
}

void View::OnBrowserColDeselected() {
}

void View::OnBrowserColDisabled(bool) {
}

bool View::MakeCaptionBold(zbIBrowserViewItemFreeFolder* const, zbIBrowserDataSourceSimple* const,
                           char const*) {
    return false;
}

bool View::SetCurrentFilter(std::set<zbIBrowserDataSourceSimple*> const&) {
    return false;
}

bool View::SetFilterLookupString(zbString const&) {
    return false;
}

bool View::SetFilterMatchCaseFlag(bool) {
    return false;
}

bool View::SetFilterMatchWordFlag(bool) {
    return false;
}

bool View::GetFilterMatchWordFlag(bool&) {
    return false;
}

bool View::ExpandFreeFolderList(zbIBrowserViewItemFreeFolder*, zbIBrowserDataSourceSimple*, bool) {
    return false;
}

bool View::CollapseFreeFolderList(zbIBrowserViewItemFreeFolder*, zbIBrowserDataSourceSimple*,
                                  bool) {
    return false;
}

bool View::SetListCaption(zbIBrowserViewItem* const, zbIBrowserDataSourceSimple* const,
                          char const*) {
    return false;
}

void View::SetSortingException(zbIBrowserViewItemFreeFolder* const,
                               zbIBrowserDataSourceSimple* const, int) {
}

void View::SetCreateExpandedItem(zbIBrowserViewItemFreeFolder* const,
                                 zbIBrowserDataSourceSimple* const, int) {
}

bool View::SetFilterGrouping(bool) {
    return false;
}

bool View::GetFilterGrouping() const {
    return false;
}

bool View::RebuildFilterLists() const {
    return false;
}

zbIBrowserDataSourceSimple* View::GetFilterDataSource(char const*) const {
    return nullptr;
}

void View::Hide(zbIBrowserViewItem*) {
}

void View::ExpandSelectedItems() {
}

void View::CollapseSelectedItems() {
}

FilterHandler* View::GetFilterHandlerImpl() const {
    return nullptr;
}

void View::CreateFilterHandler() {
}

void View::DeleteFilterHandler() {
}

} // namespace zbbrowser
