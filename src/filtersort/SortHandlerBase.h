// SPDX-License-Identifier: MIT
//! \file
//! Which column a view is sorted by: what the sort handlers of both generations share.
#pragma once

#include "filtersort/ChildGroupOrder.h"
#include "view/ViewLifetime.h"

#include <zbBrowserView/platform/zbBrowserErrorReporter.h>

#include <cstdint>
#include <vector>

class zbIBrowserViewColumn;
class zbIBrowserViewItem;
class zbIBrowserViewItemFreeFolder;

namespace zbbrowser::detail {

class ViewContext;

//! Keeps the sorted column of a view and its direction, and orders what the folders list. It sorts
//! nothing by itself: each list is sorted when it is first read in sorted form after its order was
//! lost. A change of the direction sorts nothing at all, it reads the lists the other way round.
class SortHandlerBase : public zbBrowserErrorReporter, public Retirable {
public:
    using Items = std::vector<zbIBrowserViewItem*>;

    explicit SortHandlerBase(ViewContext& context);
    ~SortHandlerBase() override;

    //! Null: the view is not sorted.
    zbIBrowserViewColumn* GetSortedColumn() const { return column_; }

    //! False, and `out` untouched, for all but the sorted column.
    bool GetAscendingOrder(zbIBrowserViewColumn const* column, bool& out) const;

    //! Notes the column and the direction down. The lists are left as they are.
    //! Signals: for the column that was sorted before, if it is another one,
    //! `ColumnSortChanged(column, false, ascending)`, where the direction is already the new one;
    //! then `ColumnSortChanged(column, true, ascending)`. Column and direction as before: true, old
    //! with `ColumnSortRepeated(column, true, ascending)`, new without a signal.
    //! False: for a column that is null, of another view, or has gone in a slot of the first
    //! signal.
    bool SetAscendingOrder(zbIBrowserViewColumn* column, bool ascending);

    //! What SetAscendingOrder of the view does.
    bool SortViewBy(zbIBrowserViewColumn* column, bool ascending);

    //! The view is not sorted any more; the direction stays.
    //! Signals: `ColumnSortChanged(column, false, false)` if a column was sorted; it still is while
    //! that is raised.
    void ResetSortedColumn();

    //! The view loses a column: if it is the sorted one, the view is not sorted any more. Silent.
    void OnColumnGone(zbIBrowserViewColumn const* column);

    //! By name, regardless of case, whatever the sorted column is.
    static void SortFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& folders);

    //! How the groups of a parent are listed now.
    ChildGroupReads GroupsOf(ChildParent parent) const;

    //! Counts the changes of the sorted column. 0 before the first.
    std::uint64_t OrderNumber() const { return orderNumber_; }

private:
    virtual void SetListsUnsorted() = 0;
    //! The bracket around a change by SortViewBy.
    virtual void RaiseChanging(bool) {}
    virtual void RaiseRepeated(zbIBrowserViewColumn*, bool) {}

    bool IsOfView(zbIBrowserViewColumn const* column) const;
    void SetColumn(zbIBrowserViewColumn* column);

    ViewContext& context_;
    zbIBrowserViewColumn* column_ = nullptr; // Not owned; null: the view is not sorted
    bool ascending_ = true;
    std::uint64_t orderNumber_ = 0;
};

} // namespace zbbrowser::detail
