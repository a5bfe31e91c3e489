// SPDX-License-Identifier: MIT
//! \file
//! The sort handler of a new view.
#pragma once

#include "filtersort/SortHandlerBase.h"

namespace zbbrowser {

class ViewItemFreeFolder;

namespace detail {
class NewViewContext;
}

//! Orders the child folders and the groups of children of a new view. Rows of this generation stand
//! as the data side gave them; under a descending order they are read backwards.
class SortHandler final : public detail::SortHandlerBase {
public:
    explicit SortHandler(detail::NewViewContext& context);

    //! Replaces `out` by the children of a folder as they are to be shown. True.
    //! Failure: throws the zbString "Attempt to operate on object belonging to different manager"
    //! for a folder of another view, and the `char const*` "Could not get sorted children of parent
    //! item" if the folder does not list its child folders.
    bool GetChildren(ViewItemFreeFolder& folder, Items& out);

private:
    void SetListsUnsorted() override;
    static bool Append(ViewItemFreeFolder& folder, detail::ChildGroupRead const& group, Items& out);

    detail::NewViewContext& newContext_;
};

} // namespace zbbrowser
