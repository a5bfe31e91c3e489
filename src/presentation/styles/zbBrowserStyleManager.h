// SPDX-License-Identifier: MIT
//! \file
//! The style manager of a column of an old view.
#pragma once

#include "presentation/styles/StyleManagerBase.h"

class zbBrowserView;

namespace zbbrowser::detail {
class OldViewContext;
}

class zbBrowserStyleManager final : public zbbrowser::detail::StyleManagerBase {
public:
    zbBrowserStyleManager(zbIBrowserViewColumn& column, zbbrowser::detail::OldViewContext& context);

    bool DeleteStyleByName(char const* name) override { return DeleteByName(name); }
    bool SetFolderDataSourceStyle(zbIBrowserViewItem*, zbIBrowserDataSource*, bool) override {
        return false;
    }
    bool SetFolderDataListStyle(zbIBrowserViewItem* folder, zbIBrowserDataSourceSimple* source,
                                bool flag) override;

    virtual zbBrowserView* GetView() const;
    //! The same as GetStyles.
    virtual bool GetStylesCopy(std::vector<zbIBrowserStyle*>& out) const { return GetStyles(out); }
    //! Takes a style of this view into the list, from whatever list it is in, and makes it current.
    //! Null: false. Failure: false, with an error text, if the name is taken.
    virtual bool AddStyle(zbIBrowserStyle* style) { return Add(style); }
    //! Takes a style from all folders; false always.
    virtual bool RemoveStyleFromFolders(zbIBrowserStyle* style);

private:
    bool IsFreeFolder(zbIBrowserViewItem const* item) const override;
    zbIBrowserDataSource* SourceOf(zbIBrowserViewItem const& row) const override;
    zbIBrowserDataSource* FindSource(zbIBrowserViewItem const& folder,
                                     zbIBrowserDataSource& source) const override;
    void Redraw(zbIBrowserDataSource& source) override;

    zbbrowser::detail::OldViewContext& oldContext_;
};
