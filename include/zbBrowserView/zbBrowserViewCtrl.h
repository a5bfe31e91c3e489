// SPDX-License-Identifier: MIT
//! \file
//! zbBrowserViewCtrl: the root object of the library, and the function that makes it.
#pragma once

#include <zbBrowserView/platform/zbExport.h>
#include <zbBrowserView/platform/zbString.h>
#include <zbBrowserView/zbBrowserEnums.h>
#include <zbBrowserView/zbIBrowserViewCtrl.h>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

class zbBrowserManager;
class zbBrowserSignalManager;
class zbBrowserView;
class zbIBrowserDataItem;
class zbIBrowserDataItemHierarchical;
class zbIBrowserDataItemSimple;
class zbIBrowserDataSourceSimple;
class zbIBrowserPanel;
class zbIBrowserViewItemFreeFolder;

namespace zbbrowser {
struct PendingViewChangeInfo;
class ViewsInfo;
namespace detail {
class ViewContext;
}
} // namespace zbbrowser

//! The root object: a host makes one with CreateBrowserViewCtrl, and then talks to its views
//! through it or through the view pointers that it hands out.
//!
//! The controller does little itself. It checks pointers, finds the view that is meant and its
//! generation, and passes on. It owns the registry of the views, the table of shared trees and the
//! version record.
//!
//! **Creating views.** `CreateView`, `DeleteView`, `CreateFreeFolder` and `DeleteFreeFolder` are
//! protected: making and ending views is the business of the host's manager. `zbBrowserManager` is
//! a friend and offers them to the classes that derive from it. A host without such a manager can
//! name them in a class of its own:
//!
//!     struct Access : zbBrowserViewCtrl { using zbBrowserViewCtrl::CreateView; };
//!     (controller->*&Access::CreateView)("parts", false);
//!
//! **Lifetime.** Views may be deleted at any time, from within a slot or a host operation too: such
//! a view leaves the registry at once, and is freed when its own running operation returns. The
//! controller itself must not be deleted from within a slot or a host operation.
//!
//! **Failure.** Two kinds of exception come out of the library, from here as from the views, and
//! they mean different things. A `zbString`, by value, is a failure inside: "Null pointer hit",
//! "Attempt to operate on object belonging to different manager" and the like. A `char const*` is a
//! request that the caller got wrong, and says what. Whatever a host operation or a slot throws
//! passes through unchanged. Only CreateView catches anything. Unless told otherwise:
//! - a null view, folder or item given to a command throws the zbString "Null pointer hit";
//! - an event about a null item or source is ignored;
//! - an exception leaves GetError and GetState as they were.
//!
//! **Threads.** One: all calls come on the host's user interface thread.
class ZBBROWSERVIEW_API zbBrowserViewCtrl : public zbIBrowserViewCtrl {
public:
    class SharedDSHHandler;

    //! Prefer CreateBrowserViewCtrl.
    //! Null: a controller without a manager has no signals, no panel and so no active view.
    //! Ownership: the manager stays the host's and must outlive the controller.
    explicit zbBrowserViewCtrl(zbBrowserManager* manager);

    //! Makes an alias: the copy shows the same registry, shares and version record as the original,
    //! owns none of them, and must not be used once the original has gone.
    zbBrowserViewCtrl(zbBrowserViewCtrl const& other);

    //! Makes this an alias of `other`, as the copy constructor does. What this controller owned
    //! stays until it is destroyed, but is not reached through it any more.
    zbBrowserViewCtrl& operator=(zbBrowserViewCtrl const& other);

    zbIBrowserManager* GetManager() const override;
    zbIBrowserInfo* GetBrowserInfo() const override;
    char const* GetError() const override;
    std::uint64_t GetViewList(std::vector<zbIBrowserView*>& out,
                              zbIBrowserDataCtrl const* filter) const override;
    zbIBrowserView* FindView(zbString const& name) const override;
    zbbrowser::View* FindNewView(zbString const& name) const override;
    void OnStyleCreated(zbIBrowserStyle* style) override;
    void OnStyleDeleted(zbIBrowserStyle* style) override;
    void OnViewItemChanged(zbIBrowserViewItem* item) override;
    void OnViewItemRedraw(zbIBrowserViewItem* item, bool flag) override;
    void OnGuiMapDeleted(zbString const& name) override;
    void ResetAllCollectors() override;
    void SetCollectorEnable(bool enable) override;
    bool GetDataSourceHierarchicalSharedInfo(
        zbIBrowserView const* view,
        std::vector<std::pair<zbIBrowserView const*, zbIBrowserDataSourceHierarchical const*>>& out)
        const override;
    bool GetDataSourceHierarchicalSharedList(
        zbIBrowserView const* view1, zbIBrowserView const* view2,
        std::vector<zbIBrowserDataSourceHierarchical const*>& out) const override;
    void OnUpdateViewSelection(zbIBrowserView* view, std::vector<zbIBrowserViewItem*> const& items,
                               bool select, bool clear) override;
    void OnViewSelectionChangeFinished(zbIBrowserView* const view) override;
    bool IsViewItemSelected(zbIBrowserViewItem* item) override;
    void OnPopupSelection(zbIBrowserView* view, bool flag) override;

    //! Deletes all views, those of the new generation first, each kind in order of creation, and
    //! then what else belongs to the controller. Unlike DeleteView it does not release data
    //! controls. Requires: no operation of the controller or of one of its views is running.
    virtual ~zbBrowserViewCtrl();

    //! \name Lookup
    //! @{

    //! GetViewList for one generation: `out` is cleared, then filled in order of creation.
    //! Null: without a filter every view is listed, with one those whose data control it is.
    //! Returns the size of `out`.
    std::uint64_t GetViewList(std::vector<zbbrowser::View*>& out,
                              zbIBrowserDataCtrl const* filter) const;
    std::uint64_t GetViewList(std::vector<zbBrowserView*>& out,
                              zbIBrowserDataCtrl const* filter) const;

    //! The old view of that name, regardless of case. Null: when there is none, also when a new
    //! view has that name.
    zbBrowserView* OLD_FindView(zbString const& name) const;

    //! `view` as the old view that it is; the pointer is compared, never followed, so it may be one
    //! that has gone. Null: for anything else.
    zbBrowserView* OLD_FindViewByPtr(zbIBrowserView const* view) const;

    //! The table of shared trees, which keeps the text of its last failure. Null: never.
    SharedDSHHandler* GetSharedDSHHandler() const;

    //! The holder of the host's signals, asked of the manager anew each time. May be null.
    zbBrowserSignalManager* GetSignalManager() const;

    //! The same as GetManager, as the host gave it.
    zbBrowserManager* GetManagerImpl() const;

    //! False once an operation stored an error text for GetError; nothing makes it true again.
    bool GetState() const;
    //! @}

    //! \name Connecting data
    //! @{

    //! Calls the view's `DataSourceConnect` for each source in order, and ignores the answers.
    //! Returns true always; so does a new view, which is connected to nothing by this and takes its
    //! sources through `zbbrowser::View::Connect`. Ends early, with true, if a source that is told
    //! of its connection deletes the view.
    bool DataSourceConnect(zbIBrowserView* view,
                           std::vector<zbIBrowserDataSourceHierarchical*> const& sources);
    bool DataSourceConnect(zbIBrowserView* view,
                           std::vector<zbIBrowserDataSourceSimple*> const& sources);

    //! The view's `DataSourceDisconnect`. Null: a null view is answered with false.
    bool DataSourceDisconnect(zbIBrowserView* view, char const* name);

    //! Notes down that two old views show one tree. For the host's own use: the library does not
    //! act on it. Null: a null source, or a view that is not an old view of this controller, gives
    //! false. Failure: false with "Share already exists" if the source is shared by a pair of which
    //! `view1` is one. If it is shared by a pair without `view1`, the answer is true and that pair
    //! stays. Each failure stores the text of the last failure of the table, if there was any, for
    //! GetError. A share stays until the controller goes, also when a view or the source does not.
    bool CreateDataSourceHierarchicalShare(zbIBrowserView const* view1, zbIBrowserView const* view2,
                                           zbIBrowserDataSourceHierarchical const* source);
    //! @}

    //! \name Items
    //! @{

    //! Opens or closes an item: `Expand` and `Collapse` of the view, whose answer is returned.
    bool ExpandItem(zbbrowser::View* view, zbIBrowserViewItem* item);
    bool ExpandItem(zbBrowserView* view, zbIBrowserViewItem* item);
    bool CollapseItem(zbbrowser::View* view, zbIBrowserViewItem* item);
    bool CollapseItem(zbBrowserView* view, zbIBrowserViewItem* item);

    //! Opens whatever stands above each item, in order. Items of new views are passed over, and so
    //! are those of a view that a slot deletes meanwhile.
    void ExpandAscendants(std::vector<zbIBrowserViewItem*> const& items);

    //! Takes an item of an old view out of what is shown.
    //! Failure: throws "Null pointer hit" for an item of a new view, always.
    void HideItem(zbIBrowserViewItem* item);

    //! Deselects everything in the view: its `DeselectAllViewItems`.
    void OnAllViewItemsDeselected(zbIBrowserView* view);
    //! @}

    //! \name Batches of a new view
    //! @{

    //! Begins or ends a batch: `zbbrowser::View::Lock`. No lock in the sense of threads.
    void Lock(zbbrowser::View* view, bool lock);

    //! `zbbrowser::View::Fill`; only between Lock(view, true) and Lock(view, false), otherwise the
    //! zbString "Unexpected general error" is thrown.
    void Fill(zbbrowser::View* view, zbbrowser::PendingViewChangeInfo& info) const;

    //! Deletes what is flagged deleted and clears the flags of all else.
    void ClearDirtyForWindowItems(zbbrowser::View* view);
    void UpdateDirtyForWindowItems(zbbrowser::View* view);

    //! Makes the records take effect that were added to a folder of a new view.
    //! Failure: throws the zbString "Attempt to operate on object belonging to different manager"
    //! for a folder of another controller, and the `char const*` "ApplyPendingChanges() supported
    //! for NEW view objects only." for a folder of an old view.
    bool ApplyPendingChanges(zbIBrowserViewItemFreeFolder* folder, bool immediately);

    //! `AllDataDependentItemsDelete` and `AllDirtyDataDependentItemsRebuild` of the view.
    void OnAllDataItemsDeleted(zbbrowser::View* view, bool flag);
    void OnAllDirtyDataRebuild(zbbrowser::View* view, bool flag);
    //! @}

    //! \name Data events
    //! Called by the host after its data changed. They reach old views only, and of these the ones
    //! that have the item's source connected; a new view is brought up to date in batches.
    //! A view that a slot deletes meanwhile is left out, and so is one that a slot creates.
    //! @{
    void OnDataItemCreated(zbIBrowserDataItemHierarchical* item, bool flag);
    void OnDataItemCreated(zbIBrowserDataItemSimple* item, bool flag);
    void OnDataItemReparented(zbIBrowserDataItemHierarchical* item,
                              zbIBrowserDataItemHierarchical* newParent);

    //! A deletion is reported as an update: the views' `OnDataItemUpdated` runs, and a rebuild
    //! finds out that the item has gone. To take its rows out at once, call `OnDataItemDeleted` of
    //! the view. The item must still be alive during the call.
    void OnDataItemHierarchicalDeleted(zbIBrowserDataItemHierarchical* item);
    void OnDataItemHierarchicalUpdated(zbIBrowserDataItemHierarchical* item);
    void OnDataItemSimpleDeleted(zbIBrowserDataItemSimple* item);
    void OnDataItemSimpleUpdated(zbIBrowserDataItemSimple* item);

    //! The rows of the source stand in another order now. Every old view forgets the order of all
    //! its lists, whether it shows that source or not.
    void OnDataSourceRenumbered(zbIBrowserDataSourceSimple* source);

    //! A data control of that name, case matters, is about to go: every view that has it is given
    //! none. The control must still be alive during the call.
    //! A call from within this very event is ignored, and all further ones if it was left by an
    //! exception.
    void OnDataControlDeleted(char const* name);

    //! `OnAllDirtyDataListsRebuild` and `OnDataItemsRebuildAll` of the view.
    void OnAllDirtyDataListsRebuild(zbBrowserView* view);
    void OnDataItemsRebuildAll(zbBrowserView* view);
    //! @}

    //! \name Signals about items
    //! Each raises a signal of the host's signal manager and does nothing else.
    //! @{

    //! Signals: `ViewItemDeleted`, in spite of the name: it is the same as OnViewItemDeleted.
    void OnViewItemCreated(zbIBrowserViewItem* item);
    //! Signals: `ViewItemDeleted`.
    void OnViewItemDeleted(zbIBrowserViewItem* item);
    //! Signals: `ViewItemDeleted` for each item, in spite of the name.
    void OnViewItemsCreated(std::vector<zbIBrowserViewItem*> const& items);
    //! Signals: `ViewItemDeleted` for each item.
    void OnViewItemsDeleted(std::vector<zbIBrowserViewItem*> const& items);
    //! Signals: `ViewItemSelected`.
    void OnViewItemSelected(zbIBrowserViewItem* item);
    //! Signals: `ViewItemDeselected`.
    void OnViewItemDeselected(zbIBrowserViewItem* item);
    //! Signals: `ViewItemsSelected` once, with the vector itself, which slots can change.
    void OnViewItemsSelected(std::vector<zbIBrowserViewItem*>& items);
    //! Signals: `ViewItemsDeselected` once, with the vector itself, which slots can change.
    void OnViewItemsDeselected(std::vector<zbIBrowserViewItem*>& items);
    //! Signals: `ViewItemChanged` for each item, through OnViewItemChanged.
    void OnViewItemsUpdated(std::vector<zbIBrowserViewItem*> const& items);
    //! Signals: `ViewItemReparented`.
    void OnViewItemReparented(zbIBrowserViewItem* item, zbIBrowserViewItem* newParent);
    //! @}

    //! \name Selection of data
    //! The host selected data. The panel's active view is told, if it is of the generation named,
    //! then its `OnSelectionChangeFinished` is called, and then the panel is told in any case.
    //! Without an active view nothing happens.
    //! @{

    //! For new views. The panel is not told if `noPanelUpdate` is true.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItem*> const& items, bool clear,
                             bool noPanelUpdate);
    //! For old views. The panel is told always: the last argument is not used.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItemHierarchical*> const& items, bool clear,
                             bool noPanelUpdate);
    //! For old views.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*> const& items, bool clear);
    //! For old views.
    void OnDataItemsSelected(std::vector<zbIBrowserDataItemSimple*> const& simple,
                             std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical,
                             bool clear);
    //! For new views.
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItem*> const& items);
    //! For old views.
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItemHierarchical*> const& items);
    //! For old views.
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*> const& items);
    //! For old views.
    void OnDataItemsDeselected(std::vector<zbIBrowserDataItemSimple*> const& simple,
                               std::vector<zbIBrowserDataItemHierarchical*> const& hierarchical);
    //! @}

    //! \name Collectors
    //! @{

    //! The active view's answer; the empty text without one. Never null.
    char const* GetCollectorGuiMapName() const;
    //! Reaches the active view.
    void OnBrowserColPerform();
    //! The active view's answer; false without one.
    bool PerformCollectorOperation(ZBBROWSER_COLSEL_TYPE operation);
    //! Shows the panel's collector button for the active view: button 4 of the manager for a new
    //! view, keyword 121 of the view for an old one.
    void OnShowPanelCollectorButton(bool show);
    //! Reaches every old view.
    void OnBrowserColDisabled(bool disabled);
    //! @}

    //! Lets the panel evaluate an expression. `result` is the panel's.
    //! Returns the panel's answer; false and `result` untouched without a panel.
    bool TEMP_GetStringFromScript(char const* expression, zbString& result,
                                  zbString defaultText) const;

protected:
    //! Makes a view, of the new generation if `isNew`.
    //! Failure: throws the `char const*` "View with specified name already exists" if a view of
    //! either generation has that name, regardless of case. A failure inside, lack of memory for
    //! instance, gives false and is told by GetError and GetState.
    bool CreateView(char const* name, bool isNew);

    //! Deletes a view. If no other view of its generation has its data control, that is told by
    //! `Release(nullptr)`, also when views of the other generation have it.
    //! Failure: false for a pointer that is not a view of this controller; it is compared only.
    bool DeleteView(zbIBrowserView* view);

    //! `CreateFreeFolder` of the folder's view: makes a child folder of that name.
    //! Failure: false if the folder's view is not one of this controller. DeleteFreeFolder throws
    //! "Null pointer hit" then.
    bool CreateFreeFolder(zbIBrowserViewItemFreeFolder* parent, zbString const& name);

    //! `DeleteFreeFolder` of the folder's view.
    bool DeleteFreeFolder(zbIBrowserViewItemFreeFolder* folder, bool flag);

private:
    friend class zbBrowserManager;
    friend class zbbrowser::detail::ViewContext;

    struct Owned;

    void CreateBrowserInfo();
    void DeleteBrowserInfo();
    void CreateViewsInfo();
    void DeleteViewsInfo();
    void CreateSharedDSHHandler();
    void DeleteSharedDSHHandler();

    zbbrowser::ViewsInfo* GetViewsInfo() const;
    //! Keeps a part of a view until all views have gone: hosts may hold it longer than the view.
    void KeepBeyondViews(std::shared_ptr<void> part);
    void SetError(char const* text);
    void SetOk();
    void InCB(bool running);
    bool InCB() const;

    zbIBrowserPanel* GetPanel() const;
    zbIBrowserView* GetActiveView() const;

    zbBrowserManager* manager_;                    // Not owned, may be null
    zbbrowser::ViewsInfo* viewsInfo_ = nullptr;    // In owned_, or of the controller copied
    SharedDSHHandler* sharedDSHHandler_ = nullptr; // Likewise
    bool state_ = true;
    zbString error_;
    zbIBrowserInfo* browserInfo_ = nullptr; // Likewise
    bool inCB_ = false;
    std::unique_ptr<Owned> owned_; // Null in a copy
};

//! Makes the controller, with an empty registry.
//! Ownership: the caller's, who ends it with `delete`.
//! Null: if there is no memory for it. For a null manager see the constructor.
//! Failure: throws a zbString if there is no memory for what it holds.
extern "C++" ZBBROWSERVIEW_API zbBrowserViewCtrl* CreateBrowserViewCtrl(zbBrowserManager* manager);
