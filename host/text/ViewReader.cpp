// SPDX-License-Identifier: MIT
#include "text/ViewReader.h"

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

namespace zbtext {

namespace {

using Folders = std::vector<zbIBrowserViewItemFreeFolder*>;

//! Deals the rows of a folder out to its lists. They come list by list, so that the last list is
//! nearly always the right one.
class Dealer {
public:
    Dealer(SourceLists const& lists, std::size_t rowLimit)
        : lists_(lists)
        , rowLimit_(rowLimit) {}

    void Deal(zbIBrowserViewItem& item) {
        auto* const row = item.GetDataItemSimple();
        if (row == nullptr)
            return;
        auto* const list = FindList(row->GetDataSource());
        if (list == nullptr)
            return;
        list->SetTotal(list->GetTotal() + 1);
        if (list->GetRowCount() < rowLimit_)
            list->Add(item, *row);
    }

private:
    SourceList* FindList(zbIBrowserDataSourceSimple const* source) {
        if (last_ != nullptr && last_->GetSource() == source)
            return last_;
        auto const found = std::find_if(lists_.begin(), lists_.end(), [&](auto const& list) {
            return list->GetSource() == source;
        });
        last_ = found == lists_.end() ? nullptr : found->get();
        return last_;
    }

    SourceLists const& lists_;
    std::size_t rowLimit_;
    SourceList* last_ = nullptr;
};

//! All rows are the list's, so that those beyond the limit need not be looked at. Folders stand
//! before or behind them.
void Fill(SourceList& list, std::vector<zbIBrowserViewItem*> const& items, std::size_t rowLimit) {
    auto const isFolder = [](zbIBrowserViewItem const* item) { return item->IsFreeFolder(); };
    auto const first = std::find_if_not(items.begin(), items.end(), isFolder);
    auto const last =
        std::find_if_not(items.rbegin(), std::make_reverse_iterator(first), isFolder).base();
    auto const total = static_cast<std::size_t>(last - first);
    list.SetTotal(total);
    for (auto* const item : std::span(first, std::min(total, rowLimit))) {
        if (auto* const row = item->GetDataItemSimple())
            list.Add(*item, *row);
    }
}

Folders ChildFolders(zbIBrowserViewItemFreeFolder& folder) {
    Folders children;
    folder.GetChildFreeFolders(children, false, true);
    return children;
}

std::string TextOf(Value const& value) {
    return std::string(value.bytes);
}

} // namespace

ViewReader::ViewReader(zbIBrowserView const& view, RowReader const& rows, std::size_t rowLimit,
                       std::optional<PaintOptions> const& paint, Extent extent)
    : view_(view)
    , rows_(rows)
    , rowLimit_(rowLimit)
    , paint_(paint.value_or(PaintOptions{}))
    , painter_(paint ? std::make_shared<Painter>(view, rows) : nullptr)
    , extent_(extent) {
}

std::unique_ptr<SourceList> ViewReader::MakeList(zbIBrowserDataSourceSimple& source) const {
    if (painter_ == nullptr)
        return std::make_unique<PlainList>(source, rows_);
    return std::make_unique<PaintedList>(source, rows_, painter_, paint_);
}

void ViewReader::Deal(zbIBrowserViewItemFreeFolder const& folder, SourceLists const& lists) const {
    std::vector<zbIBrowserViewItem*> items;
    // A folder that has lists stands in an old view.
    static_cast<zbBrowserView const&>(view_).GetChildren(items, &folder);
    if (extent_ == Extent::Selected) {
        auto* const selection = view_.GetSelectionManager();
        std::erase_if(items, [&](auto* item) { return !selection->IsViewItemSelected(item); });
    }
    if (lists.size() == 1) {
        Fill(*lists.front(), items, rowLimit_);
        return;
    }
    Dealer dealer(lists, rowLimit_);
    for (auto* const item : items)
        dealer.Deal(*item);
}

std::vector<std::unique_ptr<List>>
ViewReader::ReadLists(zbIBrowserViewItemFreeFolder& folder) const {
    std::vector<zbIBrowserDataSourceSimple*> sources;
    folder.GetLists(sources);
    SourceLists lists;
    lists.reserve(sources.size());
    for (auto* const source : sources)
        lists.push_back(MakeList(*source));
    if (!lists.empty())
        Deal(folder, lists);
    return {std::make_move_iterator(lists.begin()), std::make_move_iterator(lists.end())};
}

void ViewReader::ReadName(zbIBrowserViewItemFreeFolder& folder, Folder& result) const {
    if (painter_ == nullptr) {
        result.name = folder.GetName();
        return;
    }
    result.name = TextOf(painter_->GetValue(folder, 0, Part::Text));
    if (paint_.icons)
        result.icon = TextOf(painter_->GetValue(folder, 0, Part::Icon));
}

Folder ViewReader::ReadFolder(zbIBrowserViewItemFreeFolder& folder) const {
    Folder result{{}, {}, ReadLists(folder)};
    ReadName(folder, result);
    for (auto* const child : ChildFolders(folder))
        result.folders.push_back(ReadFolder(*child));
    return result;
}

Folder ViewReader::ReadView() const {
    auto result = ReadFolder(*view_.GetRootFreeFolder());
    result.name = view_.GetName().c_str();
    result.icon.reset();
    return result;
}

} // namespace zbtext
