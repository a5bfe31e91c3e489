// SPDX-License-Identifier: MIT
//! \file
//! What the selection managers of both generations have in common.
#pragma once

#include "selection/ItemSet.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <functional>
#include <set>
#include <vector>

namespace zbbrowser::detail {

class ViewContext;

//! The set of selected items, the notifiers, the sync flag and the place of a drag. What only one
//! generation offers is answered here as the other one answers it.
//!
//! It outlives its view: ForgetAll empties it when the view is given up, and from LoseView on there
//! is no context to ask.
class SelectionBase : public zbIBrowserSelectionManager {
public:
    using Items = std::vector<zbIBrowserViewItem*>;
    using Notifier = zbIBrowserSelectionNotifierBase;

    explicit SelectionBase(ViewContext& context);
    SelectionBase(SelectionBase const&) = delete;
    SelectionBase& operator=(SelectionBase const&) = delete;
    ~SelectionBase() override;

    //! UpdateSelection with items that are known to be of this view, or about to leave it.
    virtual void Update(Items items, bool select, bool clear) = 0;

    //! Forgets an item that leaves the view, silently.
    void Forget(zbIBrowserViewItem const& item) {
        if (RemembersAny())
            ForgetItem(item);
    }
    //! The items of the view may go from now on without being forgotten one by one. Notifiers stay.
    void ForgetAll();
    void LoseView();

    //! \name zbIBrowserSelectionManager, both generations
    //! \{
    void UpdateSelection(Items const& items, bool select, bool clear) final;
    void UpdatePreviousSelection() final;
    void ClearAll() override;
    void OnPopupSelection(bool flag) final;
    bool GetSelectedViewItems(Items& out) final;
    bool GetSelectedFreeFolders(std::set<zbIBrowserViewItemFreeFolder*>& out) final;
    bool GetSelectedFreeFolders(std::vector<zbIBrowserViewItemFreeFolder*>& out) final;
    bool IsDropOnFreeFolder() const final { return isDropOnFolder_; }
    void SetDropItem(zbIBrowserViewItem* item) final;
    void ResetDropItem() override;
    bool IsViewItemSelected(zbIBrowserViewItem* item) final { return selected_.Contains(item); }
    void SetSyncFlag(bool sync) final { sync_ = sync; }
    bool GetSyncFlag() const final { return sync_; }
    void ClearSelected() override;
    void AddNotifier(Notifier* notifier) final;
    void RemoveNotifier(Notifier* notifier) final;
    void ClearNotifiers() final;
    //! \}

    //! \name zbIBrowserSelectionManager, offered by one generation
    //! \{
    bool GetChangedViewItems(Items&) override { return false; }
    bool GetSelectedDataItems(zbBrowserDataItemMap&, std::vector<zbIBrowserDataItemSimple*>&,
                              std::vector<zbIBrowserDataItemHierarchical*>&, bool) override {
        return false;
    }
    bool GetSelectedDataItems(std::set<zbIBrowserDataItemHierarchical*>&, bool) override {
        return false;
    }
    bool GetSelectedDataItems(std::vector<zbIBrowserDataItemHierarchical*>&, bool) override {
        return false;
    }
    bool GetSelectedDataItems(std::set<zbIBrowserDataItemSimple*>&, bool) override { return false; }
    bool GetSelectedDataItems(std::vector<zbIBrowserDataItemSimple*>&, bool) override {
        return false;
    }
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceHierarchical*,
                                      std::set<zbIBrowserDataItemHierarchical*>&, bool) override {
        return false;
    }
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceHierarchical*,
                                      std::vector<zbIBrowserDataItemHierarchical*>&,
                                      bool) override {
        return false;
    }
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceSimple*,
                                      std::set<zbIBrowserDataItemSimple*>&, bool) override {
        return false;
    }
    bool GetSelectedDataItemsOfSource(zbIBrowserDataSourceSimple*,
                                      std::vector<zbIBrowserDataItemSimple*>&, bool) override {
        return false;
    }
    bool GetSelectedDataSources(std::set<zbIBrowserDataSourceSimple*>&, bool) override {
        return false;
    }
    bool GetSelectedDataSourcesHierarchical(std::set<zbIBrowserDataSourceHierarchical*>&,
                                            bool) override {
        return false;
    }
    bool GetSelectedDataSources(std::set<zbIBrowserDataSource*>&, bool) override { return false; }
    bool GetSelectedPropertyText(zbIBrowserViewProperty*, zbString&) override { return false; }
    bool GetSelectedPropertyTextOfSource(zbIBrowserDataSource*, zbIBrowserViewProperty*,
                                         zbString&) override {
        return false;
    }
    bool GetSelectedPropertyTextOfSource(zbIBrowserDataSourceSimple*, zbIBrowserViewProperty*,
                                         zbIBrowserViewProperty*, zbString&, bool) override {
        return false;
    }
    bool GetSelectedPropertyTextOfSource(zbIBrowserDataSourceHierarchical*, zbIBrowserViewProperty*,
                                         zbIBrowserViewProperty*, zbString&, bool) override {
        return false;
    }
    bool GetSelectedDependentFolders(Items&) override { return false; }
    zbIBrowserDataItemSimple* GetDropDataItemSimple() const override { return nullptr; }
    zbIBrowserDataItemHierarchical* GetDropDataItemHierarchical() const override { return nullptr; }
    zbIBrowserDataSource* GetDropDataSource() const override { return nullptr; }
    zbIBrowserViewItem* GetDropItem() const override { return nullptr; }
    bool GetLastSelect() const override { return false; }
    bool GetViewName(zbString& out) const override {
        out.clear();
        return false;
    }
    //! \}

protected:
    //! False once the view has been given up, also while operations of it are still running.
    bool HasView() const;
    //! Requires: HasView(), or an open CallScope from when it was so.
    ViewContext& Context() const { return *context_; }
    Items Selected() const;
    zbIBrowserViewItem* DropItem() const { return dropItem_; }

    //! \name The steps of Update
    //! Each may call the host, unless said otherwise. `retiredBefore`: RetiredCount() of the
    //! lifetime when the update began, to see what has left the view since.
    //! Requires: a view and an open CallScope.
    //! \{

    //! Tells that the selection is about to be cleared. Answers what was selected, less what has
    //! left the view meanwhile.
    Items AnnounceClearing(std::size_t retiredBefore);
    //! Takes out what has left the view meanwhile: all, if the view has been given up. Calls
    //! nobody.
    void EraseGone(Items& items, std::size_t retiredBefore) const;
    //! Calls nobody.
    bool MakesDifference(Items const& items, bool select) const;
    //! Items that have left the view meanwhile are deselected only. Calls nobody.
    void Change(Items const& items, bool select, std::size_t retiredBefore);
    void Notify(Items const& items, bool select, bool finished);
    void RaiseChange(Items& items, bool select);
    //! \}

    //! \name Hooks
    //! \{
    virtual bool RemembersAny() const { return !selected_.IsEmpty() || dropItem_ != nullptr; }
    virtual void ForgetItem(zbIBrowserViewItem const& item);
    //! `item` is the drop item now.
    virtual void OnDropItemSet(zbIBrowserViewItem&) {}
    //! \}

private:
    bool MayHaveLost(std::size_t retiredBefore) const;
    //! Calls each notifier, until the view has been given up.
    template <class Call>
    void ForEachNotifier(Call call);

    ViewContext* context_; // Not owned; null once the view has been freed
    ItemSet selected_;
    std::set<Notifier*, std::less<Notifier*>> notifiers_; // Not owned, never null
    zbIBrowserViewItem* dropItem_ = nullptr;              // Not owned; may be null
    bool isDropOnFolder_ = false;
    bool sync_ = true;
};

} // namespace zbbrowser::detail
