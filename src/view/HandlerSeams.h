// SPDX-License-Identifier: MIT
//! \file
//! What items ask of the handler of an old view that is not built yet.
#pragma once

class zbBrowserViewItemDataLeaf;
class zbIBrowserDataSource;

namespace zbbrowser::detail {

//! The questions that items and contents have for the filter handler. No view has one yet, so each
//! answer is that of a view without it: nothing is filtered.
class HandlerSeams {
public:
    bool IsDataSourceFiltered(zbIBrowserDataSource const* source) const;
    bool IsViewItemFiltered(zbBrowserViewItemDataLeaf const& leaf) const;
};

} // namespace zbbrowser::detail
