// SPDX-License-Identifier: MIT
//! \file
//! The sort handler of an old view.
#pragma once

#include "filtersort/RowSort.h"
#include "filtersort/SortBasis.h"
#include "filtersort/SortHandlerBase.h"

#include <zbBrowserView/platform/zbString.h>

class zbBrowserViewItemFreeFolder;
class zbIBrowserDataItemSimple;
class zbIBrowserDataSourceSimple;

namespace zbbrowser::detail {
class OldViewContext;
}

//! Sorts the rows of an old view by the comparisons of the sources, and lists the children of its
//! parents. While the view has no sorted column, rows are left as they are.
//!
//! The sorts of lists of rows answer false, and leave the list alone, if something of the view went
//! or the sorted column changed while the host compared. What a comparison throws passes through
//! them, with the same outcome.
class zbBrowserSortHandler final : public zbbrowser::detail::SortHandlerBase {
public:
    using CaptionOf = char const* (*)(zbIBrowserViewItem const&);

    explicit zbBrowserSortHandler(zbbrowser::detail::OldViewContext& context);

    //! \name Lists of rows
    //! \{

    //! Rows of a free folder, a tree or a container: by the order of their sources, then, unless
    //! the default column is sorted, by what the sorted column shows, then by name and identity.
    bool SortDataItems(Items& items);
    //! The same if the first `sorted` rows are still in the order of `basis`, which is brought up
    //! to date. They are sorted again only if they have to be.
    bool SortDataItems(Items& items, std::size_t sorted, zbbrowser::detail::SortBasis& basis);
    //! Whether it would leave so many rows alone that are all still in the order of `basis`.
    bool IsCurrent(zbbrowser::detail::SortBasis const& basis, std::size_t rows) const;

    //! The two lists of a dependent folder. The first item stands for all: its source is told the
    //! property by which it compares. Under the default column that is the one of
    //! SetCustomProperty, if there is one; otherwise the lists are sorted by name and identity, the
    //! containers by the order of their sources before. Under any other column it is the property
    //! that the column shows, and nothing else orders the rows.
    bool SortDependentFolderContainers(Items& items);
    bool SortDependentFolderLeaves(Items& items);
    //! \}

    //! Dependent folders by caption, regardless of case and whatever the sorted column is.
    static void SortDependentFolders(Items& folders, CaptionOf captionOf);

    //! The name of a data property; "" for none.
    void SetCustomProperty(zbString const& name) { customProperty_ = name; }
    zbString const& CustomProperty() const { return customProperty_; }

    //! Replaces `out` by the children of a folder as they are to be shown.
    //! False: for a folder of another view, and for one that goes while its rows are sorted.
    bool GetChildren(zbBrowserViewItemFreeFolder& folder, Items& out);

private:
    using RowOrder = zbbrowser::detail::RowOrder;

    void SetListsUnsorted() override;
    void RaiseChanging(bool changing) override;
    void RaiseRepeated(zbIBrowserViewColumn* column, bool ascending) override;

    //! The lists of a dependent folder, whose flat items are found in two ways.
    using FlatItem = zbIBrowserDataItemSimple* (*)(zbIBrowserViewItem const&);
    bool SortPrepared(Items& items, FlatItem flatItem, RowOrder custom, RowOrder plain);
    //! By what so many rows are sorted under a column, whose sort property is taken.
    zbbrowser::detail::SortBasis TakeBasis(zbIBrowserViewColumn const& column,
                                           std::size_t rows) const;
    void PrepareCustomProperty(zbIBrowserDataSourceSimple* source) const;
    static void PrepareColumnProperty(zbIBrowserDataSourceSimple* source);

    zbbrowser::detail::OldViewContext& oldContext_;
    zbString customProperty_;
};
