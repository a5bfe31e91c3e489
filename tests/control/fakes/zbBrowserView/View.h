// SPDX-License-Identifier: MIT
//! \file
//! Stands in for the view of the new generation where the controller is tested by itself.
#pragma once

#include "RecordedView.h"

namespace zbbrowser {

struct PendingViewChangeInfo;
class ViewsInfo;

class View : public zbtest::RecordedView {
public:
    bool IsNewView() const override { return true; }

    bool Expand(zbIBrowserViewItem* item);
    bool Collapse(zbIBrowserViewItem* item);
    void Hide(zbIBrowserViewItem* item);
    void Lock(bool lock);
    void Fill(PendingViewChangeInfo& info);
    void ClearDirtyForWindowItems();
    void UpdateDirtyForWindowItems();
    void AllDataDependentItemsDelete(bool flag);
    void AllDirtyDataDependentItemsRebuild(bool flag);
    bool ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder, bool immediately);
    void OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear, bool flag);
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items);

private:
    friend class ViewsInfo;

    using RecordedView::RecordedView;
    ~View() override = default;
    static void Destroy(View* view) { delete view; }
};

} // namespace zbbrowser
