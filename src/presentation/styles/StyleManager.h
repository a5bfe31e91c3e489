// SPDX-License-Identifier: MIT
//! \file
//! The style manager of a column of a new view.
#pragma once

#include "presentation/styles/StyleManagerBase.h"

namespace zbbrowser {

namespace detail {
class NewViewContext;
}

class StyleManager final : public detail::StyleManagerBase {
public:
    StyleManager(zbIBrowserViewColumn& column, detail::NewViewContext& context);

    bool DeleteStyleByName(char const*) override { return false; }
    bool SetFolderDataSourceStyle(zbIBrowserViewItem* folder, zbIBrowserDataSource* source,
                                  bool flag) override;
    bool SetFolderDataListStyle(zbIBrowserViewItem*, zbIBrowserDataSourceSimple*, bool) override {
        return false;
    }

private:
    bool IsFreeFolder(zbIBrowserViewItem const* item) const override;
    zbIBrowserDataSource* SourceOf(zbIBrowserViewItem const& row) const override;
    zbIBrowserDataSource* FindSource(zbIBrowserViewItem const& folder,
                                     zbIBrowserDataSource& source) const override;
    //! Does nothing: a new view draws no lists again, and its sources have no mark to set.
    void Redraw(zbIBrowserDataSource&) override {}

    detail::NewViewContext& newContext_;
};

} // namespace zbbrowser
