// SPDX-License-Identifier: MIT
//! \file
//! The selection manager of an old view.
#pragma once

#include "selection/SelectionBase.h"

class zbBrowserView;
class zbBrowserViewItemDataLeaf;

namespace zbbrowser::detail {
class OldViewContext;
}

//! Tells the data side about each change that makes a difference, with the data items behind the
//! view items. These are only looked up if somebody hears of them.
class zbBrowserSelectionManager final : public zbbrowser::detail::SelectionBase {
public:
    explicit zbBrowserSelectionManager(zbbrowser::detail::OldViewContext& context);

    void Update(Items items, bool select, bool clear) override;
    //! A source has been disconnected: the host may free it.
    void ForgetSource(zbIBrowserDataSource const& source);

    using SelectionBase::GetSelectedDataSources;
    using SelectionBase::GetSelectedPropertyTextOfSource;

    void OnSelectionChangeFinished() override;
    bool GetSelectedDataItems(zbBrowserDataItemMap& bySource,
                              std::vector<zbIBrowserDataItemSimple*>& simple,
                              std::vector<zbIBrowserDataItemHierarchical*>& hierarchical,
                              bool recursive) override;
    bool GetSelectedDataItems(std::set<zbIBrowserDataItemHierarchical*>& out,
                              bool recursive) override;
    bool GetSelectedDataItems(std::vector<zbIBrowserDataItemHierarchical*>& out,
                              bool recursive) override;
    bool GetSelectedDataItems(std::set<zbIBrowserDataItemSimple*>& out, bool recursive) override;
    bool GetSelectedDataItems(std::vector<zbIBrowserDataItemSimple*>& out, bool recursive) override;
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceHierarchical* source,
                                      std::set<zbIBrowserDataItemHierarchical*>& out,
                                      bool recursive) override;
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceHierarchical* source,
                                      std::vector<zbIBrowserDataItemHierarchical*>& out,
                                      bool recursive) override;
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceSimple* source,
                                      std::set<zbIBrowserDataItemSimple*>& out,
                                      bool recursive) override;
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceSimple* source,
                                      std::vector<zbIBrowserDataItemSimple*>& out,
                                      bool recursive) override;
    bool GetSelectedDataSources(std::set<zbIBrowserDataSourceSimple*>& out,
                                bool ancestors) override;
    bool GetSelectedDataSourcesHierarchical(std::set<zbIBrowserDataSourceHierarchical*>& out,
                                            bool ancestors) override;
    bool GetSelectedPropertyTextOfSource(zbIBrowserDataSourceSimple* source,
                                         zbIBrowserViewProperty* ofSimple,
                                         zbIBrowserViewProperty* ofHierarchical, zbString& out,
                                         bool list) override;
    bool GetSelectedPropertyTextOfSource(zbIBrowserDataSourceHierarchical* source,
                                         zbIBrowserViewProperty* ofSimple,
                                         zbIBrowserViewProperty* ofHierarchical, zbString& out,
                                         bool list) override;
    bool GetSelectedDependentFolders(Items& out) override;
    zbIBrowserDataItemSimple* GetDropDataItemSimple() const override { return drop_.simple; }
    zbIBrowserDataItemHierarchical* GetDropDataItemHierarchical() const override {
        return drop_.hierarchical;
    }
    zbIBrowserDataSource* GetDropDataSource() const override;
    void ResetDropItem() override;
    void ClearSelected() override;
    bool GetViewName(zbString& out) const override;

protected:
    bool RemembersAny() const override;
    void ForgetItem(zbIBrowserViewItem const& item) override;
    void OnDropItemSet(zbIBrowserViewItem& item) override;

private:
    //! Each selected item in one of four places.
    struct SelectedData {
        zbBrowserDataItemMap bySource; // Of groups
        std::vector<zbIBrowserDataItemSimple*> simple;
        std::vector<zbIBrowserDataItemHierarchical*> hierarchical;
        std::vector<zbIBrowserDataItemHierarchical*> inFolders;
        bool anyFolder = false;
    };

    struct Drop {
        zbIBrowserDataSource* source = nullptr;                 // Not owned; may be null
        zbIBrowserDataItemHierarchical* hierarchical = nullptr; // Not owned; may be null
        zbIBrowserDataItemSimple* simple = nullptr;             // Not owned; may be null
        zbIBrowserViewItem const* simpleItem = nullptr;         // Compared only; that of `simple`
    };

    //! As Context().
    zbBrowserView& OldView() const;
    zbIBrowserDataCtrl* DataCtrl() const;
    void TellChanging(Items const& items, bool select);
    void TellViews(Items& items, bool select, bool finished);
    void TellSummary();
    //! Requires: an open CallScope.
    SelectedData CollectData(bool recursive) const;
    template <class Source, class DataItem>
    bool CollectSources(std::set<Source*>& out,
                        bool (zbIBrowserViewItemFreeFolder::*ofFolder)(std::vector<Source*>&) const,
                        DataItem* (zbIBrowserViewItem::*ofRow)() const) const;
    template <class DataItem>
    bool CollectItems(std::vector<DataItem*>& out, bool recursive) const;
    //! Calls nobody. Requires: a view.
    std::vector<zbBrowserViewItemDataLeaf*> SelectedLeavesOf(zbIBrowserDataSource const* source,
                                                             bool recursive) const;
    void CollectItemsOf(zbIBrowserDataSourceSimple const* source,
                        std::vector<zbIBrowserDataItemSimple*>& out, bool recursive) const;
    bool CollectItemsOf(zbIBrowserDataSourceHierarchical const* source,
                        std::vector<zbIBrowserDataItemHierarchical*>& out, bool recursive) const;

    Drop drop_;
};
