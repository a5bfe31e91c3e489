// SPDX-License-Identifier: MIT
//! \file
//! The columns of one view.
#pragma once

#include "containers/PointerList.h"

#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

class zbIBrowserStyle;
class zbIBrowserViewProperty;

namespace zbbrowser::detail {

class ColumnBase;
class CustomColumn;
class DefaultColumn;
class ViewContext;

//! The default column and the scripted ones, for views of both generations. What an operation does
//! is told for the operation of the view that leads here.
//!
//! Column pointers that come in are compared and never followed. A deleted column is freed when the
//! running operation of the view returns.
class ColumnSet {
public:
    explicit ColumnSet(ViewContext& context);
    ColumnSet(ColumnSet const&) = delete;
    ColumnSet& operator=(ColumnSet const&) = delete;
    ~ColumnSet();

    //! \name Looking up
    //! \{
    //! Null in a view whose default column was deleted.
    zbIBrowserViewColumn* Default() const;
    DefaultColumn* DefaultImpl() const { return default_.get(); }
    bool HasScripted() const { return !scripted_.IsEmpty(); }
    //! The column itself. Null: it is not one of this view's. O(1).
    zbIBrowserViewColumn* Find(zbIBrowserViewColumn const* column) const;
    CustomColumn* FindScripted(zbIBrowserViewColumn const* column) const;
    //! The default column, or else the oldest column of that name, regardless of case. O(log n).
    zbIBrowserViewColumn* FindByName(char const* name) const;
    //! The default column and the scripted ones in order of creation, without those whose deletion
    //! is being told.
    void List(std::vector<zbIBrowserViewColumn*>& out) const;
    //! \}

    //! \name Making and deleting
    //! \{
    void CreateDefault();
    //! Silent, as DeleteAllScripted.
    void DeleteDefault();
    void DeleteAllScripted();

    //! Adds a column; no signal. Null: for null, and for an empty name in a new view.
    CustomColumn* Add(char const* name);
    bool Create(char const* name, bool isIcon);
    bool Delete(zbIBrowserViewColumn* column);
    bool Show(zbIBrowserViewColumn* column, bool show);
    //! \}

    //! \name To all columns, the default one first
    //! \{
    void SetSorting(bool sorting);
    void SetItalic(bool italic);
    void OnGuiMapDeleted(zbString const& name);
    //! Reaches the elements too that are in no style or column any more.
    void OnViewPropertyDeleted(zbIBrowserViewProperty* property);
    //! \}

    //! \name Styles of items
    //! \{
    //! Null: for a column that is not one of this view's.
    zbIBrowserStyle* StyleOf(zbIBrowserViewColumn const* column, zbIBrowserViewItem* item) const;
    //! False: for an item that is not of this view, and without a default column. True for any
    //! other, also when it is given nothing.
    bool GiveStyle(zbIBrowserViewItem* item);
    bool TakeStyles(zbIBrowserViewItem* item);
    //! \}

    //! Forgets the styles of a folder that is going.
    void OnFolderGone(zbIBrowserViewItem const& folder);

private:
    struct NameKey {
        char const* name;
        std::uint64_t number;
        bool operator<(NameKey const& other) const;
    };

    static NameKey KeyOf(CustomColumn const& column);
    std::unique_ptr<CustomColumn> Make(char const* name, std::uint64_t number);
    void Remove(zbIBrowserViewColumn const* column);
    void ResetSort();
    void ForgetSortBy(zbIBrowserViewColumn const* column);
    template <class Visit>
    void ForEach(Visit visit);

    ViewContext& context_;
    std::unique_ptr<DefaultColumn> default_;
    PointerList<zbIBrowserViewColumn> scripted_; // CustomColumns
    std::map<NameKey, std::unique_ptr<CustomColumn>> byName_;
    std::uint64_t lastNumber_ = 0;
};

} // namespace zbbrowser::detail
