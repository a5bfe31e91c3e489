// SPDX-License-Identifier: MIT
#include "text/ViewReader.h"

#include <zbBrowserView/host/zbIBrowserDataItemSimple.h>
#include <zbBrowserView/host/zbIBrowserDataProperty.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <algorithm>
#include <utility>

namespace zbtext {

namespace {

using Folders = std::vector<zbIBrowserViewItemFreeFolder*>;

//! The rows of one source in one folder.
class ViewList : public List {
public:
    ViewList(zbIBrowserDataSourceSimple& source, RowReader const& reader)
        : source_(source)
        , reader_(reader)
        , name_(source.GetName())
        , fault_(reader.GetFault(source))
        , columns_(reader.GetColumnNames(source)) {
        for (auto const& column : columns_)
            properties_.push_back(source.FindDataProperty(column.c_str()));
    }

    zbIBrowserDataSourceSimple const* GetSource() const { return &source_; }

    void Add(zbIBrowserDataItemSimple& row, std::size_t rowLimit) {
        ++total_;
        if (rows_.size() < rowLimit)
            rows_.push_back(&row);
    }

    std::string const& GetName() const override { return name_; }
    std::string const& GetFault() const override { return fault_; }
    std::vector<std::string> const& GetColumns() const override { return columns_; }
    std::size_t GetTotal() const override { return total_; }
    std::size_t GetRowCount() const override { return rows_.size(); }

    Value GetRowName(std::size_t row) const override {
        if (!rows_[row]->GetProperty("name", rowName_))
            return {};
        return Value::OfText(rowName_);
    }

    Value GetValue(std::size_t row, std::size_t column) const override {
        auto* const property = properties_[column];
        return property != nullptr ? reader_.GetValue(*property, *rows_[row]) : Value{};
    }

private:
    zbIBrowserDataSourceSimple& source_;
    RowReader const& reader_;
    std::string name_;
    std::string fault_;
    std::vector<std::string> columns_;
    std::vector<zbIBrowserDataProperty*> properties_; // Not owned; null: the source has it no more.
    std::vector<zbIBrowserDataItemSimple*> rows_;     // Not owned.
    std::size_t total_ = 0;
    mutable zbString rowName_;
};

//! Deals the rows of a folder out to its lists. They come list by list, so that the last list is
//! nearly always the right one.
class Dealer {
public:
    Dealer(std::vector<std::unique_ptr<ViewList>>& lists, std::size_t rowLimit)
        : lists_(lists)
        , rowLimit_(rowLimit) {}

    void Deal(zbIBrowserViewItem const& item) {
        auto* const row = item.GetDataItemSimple();
        if (row == nullptr)
            return;
        if (auto* const list = FindList(row->GetDataSource()))
            list->Add(*row, rowLimit_);
    }

private:
    ViewList* FindList(zbIBrowserDataSourceSimple const* source) {
        if (last_ != nullptr && last_->GetSource() == source)
            return last_;
        auto const found = std::find_if(lists_.begin(), lists_.end(), [&](auto const& list) {
            return list->GetSource() == source;
        });
        last_ = found == lists_.end() ? nullptr : found->get();
        return last_;
    }

    std::vector<std::unique_ptr<ViewList>>& lists_;
    std::size_t rowLimit_;
    ViewList* last_ = nullptr;
};

Folders ChildFolders(zbIBrowserViewItemFreeFolder& folder) {
    Folders children;
    folder.GetChildFreeFolders(children, false, true);
    return children;
}

} // namespace

ViewReader::ViewReader(zbBrowserView const& view, RowReader const& rows, std::size_t rowLimit)
    : view_(view)
    , rows_(rows)
    , rowLimit_(rowLimit) {
}

std::vector<std::unique_ptr<List>>
ViewReader::ReadLists(zbIBrowserViewItemFreeFolder& folder) const {
    std::vector<zbIBrowserDataSourceSimple*> sources;
    folder.GetLists(sources);
    std::vector<std::unique_ptr<ViewList>> lists;
    lists.reserve(sources.size());
    for (auto* const source : sources)
        lists.push_back(std::make_unique<ViewList>(*source, rows_));

    std::vector<zbIBrowserViewItem*> items;
    view_.GetChildren(items, &folder);
    Dealer dealer(lists, rowLimit_);
    for (auto const* const item : items)
        dealer.Deal(*item);
    return {std::make_move_iterator(lists.begin()), std::make_move_iterator(lists.end())};
}

Folder ViewReader::ReadFolder(zbIBrowserViewItemFreeFolder& folder) const {
    Folder result{folder.GetName(), {}, ReadLists(folder)};
    for (auto* const child : ChildFolders(folder))
        result.folders.push_back(ReadFolder(*child));
    return result;
}

Folder ViewReader::ReadView() const {
    auto result = ReadFolder(*view_.GetRootFreeFolder());
    result.name = view_.GetName().c_str();
    return result;
}

} // namespace zbtext
