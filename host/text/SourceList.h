// SPDX-License-Identifier: MIT
//! \file
//! The rows of one source in one folder of a view.
#pragma once

#include "text/List.h"
#include "text/Painter.h"

#include <zbBrowserView/platform/zbString.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class zbIBrowserDataProperty;

namespace zbtext {

//! Gathers the view's items of one source. What a row shows is left to the derived classes.
class SourceList : public List {
public:
    SourceList(zbIBrowserDataSourceSimple& source, RowReader const& reader);

    zbIBrowserDataSourceSimple const* GetSource() const { return &source_; }

    //! Takes a row behind the others.
    void Add(zbIBrowserViewItem& item, zbIBrowserDataItemSimple& row) {
        Keep(item, row);
        ++rowCount_;
    }

    //! How many rows there are, with those that were not added.
    void SetTotal(std::size_t total) { total_ = total; }

    std::string const& GetName() const override { return name_; }
    std::string const& GetFault() const override { return fault_; }
    std::vector<std::string> const& GetColumns() const override { return columns_; }
    std::size_t GetTotal() const override { return total_; }
    std::size_t GetRowCount() const override { return rowCount_; }

protected:
    zbIBrowserDataSourceSimple& Source() const { return source_; }
    //! Takes what the list needs of a row; the rows come in their order.
    virtual void Keep(zbIBrowserViewItem& item, zbIBrowserDataItemSimple& row) = 0;
    void AddColumn(std::string name) { columns_.push_back(std::move(name)); }

private:
    zbIBrowserDataSourceSimple& source_;
    std::string name_;
    std::string fault_;
    std::vector<std::string> columns_;
    std::size_t total_ = 0;
    std::size_t rowCount_ = 0;
};

using SourceLists = std::vector<std::unique_ptr<SourceList>>;

//! Shows the source's own columns in their order, whatever columns the view has.
class PlainList final : public SourceList {
public:
    PlainList(zbIBrowserDataSourceSimple& source, RowReader const& reader);

    Value GetRowName(std::size_t row) const override;
    Value GetValue(std::size_t row, std::size_t column) const override;

private:
    void Keep(zbIBrowserViewItem& item, zbIBrowserDataItemSimple& row) override;

    RowReader const& reader_;
    std::vector<zbIBrowserDataItemSimple*> rows_;     // Not owned.
    std::vector<zbIBrowserDataProperty*> properties_; // Not owned; null: the source has it no more.
    mutable zbString rowName_;
};

//! What is to be painted beside the view's columns.
struct PaintOptions {
    bool icons = false;

    //! Icon and name come as columns of the list, if the default column is visible. Otherwise the
    //! writer asks for them by themselves.
    bool namesAreColumns = true;
};

//! Shows the view's visible columns, in their order, as far as they have cells for the source.
class PaintedList final : public SourceList {
public:
    PaintedList(zbIBrowserDataSourceSimple& source, RowReader const& reader,
                std::shared_ptr<Painter> painter, PaintOptions const& options);

    Value GetRowName(std::size_t row) const override;
    Value GetValue(std::size_t row, std::size_t column) const override;
    bool HasIcons() const override { return options_.icons; }
    Value GetIcon(std::size_t row) const override;
    std::optional<SortMark> GetSortMark() const override;
    Look GetLook(std::size_t row, std::size_t column) const override;

private:
    //! What a column of the list takes from the view.
    struct Cell {
        std::size_t column; // Of the painter.
        Part part;
    };

    void Keep(zbIBrowserViewItem& item, zbIBrowserDataItemSimple& row) override;
    void AddNames();
    void AddCells(std::size_t column);

    std::shared_ptr<Painter> painter_;
    PaintOptions options_;
    std::vector<zbIBrowserViewItem*> rows_; // Not owned.
    std::vector<Cell> cells_;
};

} // namespace zbtext
