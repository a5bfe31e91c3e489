// SPDX-License-Identifier: MIT
//! \file
//! The selection manager of a new view.
#pragma once

#include "selection/SelectionBase.h"

namespace zbbrowser {

namespace detail {
class NewViewContext;
class SelectedText;
} // namespace detail

//! Remembers which items the last change named and tells nothing to the data side.
class SelectionManager final : public detail::SelectionBase {
public:
    explicit SelectionManager(detail::NewViewContext& context);

    void Update(Items items, bool select, bool clear) override;

    using SelectionBase::GetSelectedDataSources;
    using SelectionBase::GetSelectedPropertyTextOfSource;

    void ClearAll() override;
    void OnSelectionChangeFinished() override;
    bool GetChangedViewItems(Items& out) override;
    bool GetSelectedDataSources(std::set<zbIBrowserDataSource*>& out, bool ancestors) override;
    bool GetSelectedPropertyText(zbIBrowserViewProperty* property, zbString& out) override;
    bool GetSelectedPropertyTextOfSource(zbIBrowserDataSource* source,
                                         zbIBrowserViewProperty* property, zbString& out) override;
    zbIBrowserViewItem* GetDropItem() const override { return DropItem(); }
    bool GetLastSelect() const override { return lastSelect_; }

protected:
    bool RemembersAny() const override;
    void ForgetItem(zbIBrowserViewItem const& item) override;

private:
    //! Source null: of all sources.
    bool CollectText(zbIBrowserDataSource const* source, zbIBrowserViewProperty& property,
                     zbString& out);
    void AppendValue(detail::SelectedText& text, zbIBrowserDataItem& item,
                     zbIBrowserDataSource const* source, zbIBrowserViewProperty& property) const;

    detail::ItemSet changed_; // The items of the last change that made a difference
    bool lastSelect_ = false;
};

} // namespace zbbrowser
