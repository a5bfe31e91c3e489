// SPDX-License-Identifier: MIT
//! \file
//! Stands in for the view of the old generation where the controller is tested by itself.
#pragma once

#include "RecordedView.h"

class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;

namespace zbbrowser {
class ViewsInfo;
}

class zbBrowserView : public zbtest::RecordedView {
public:
    bool Expand(zbIBrowserViewItem* item) const;
    bool Collapse(zbIBrowserViewItem* item);
    void Hide(zbIBrowserViewItem* item);
    void ExpandAscendants(zbIBrowserViewItem const* item) const;
    void OnDataItemCreated(zbIBrowserDataItemHierarchical* const item, bool flag);
    void OnDataItemCreated(zbIBrowserDataItemSimple* const item, bool flag);
    void OnDataItemReparented(zbIBrowserDataItemHierarchical* const item,
                              zbIBrowserDataItemHierarchical* const newParent);
    void OnDataItemUpdated(zbIBrowserDataItemHierarchical* const item);
    void OnDataItemUpdated(zbIBrowserDataItemSimple* const item,
                           zbIBrowserDataSourceSimple const* source);
    void OnDataSourceRenumbered(zbIBrowserDataSourceSimple* source);
    void OnAllDirtyDataListsRebuild();
    void OnDataItemsRebuildAll();
    void OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*> const& simple,
                             std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical,
                             bool clear);
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*> const& simple,
                               std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical);

private:
    friend class zbbrowser::ViewsInfo;

    using RecordedView::RecordedView;
    ~zbBrowserView() override = default;
    static void Destroy(zbBrowserView* view) { delete view; }
};
