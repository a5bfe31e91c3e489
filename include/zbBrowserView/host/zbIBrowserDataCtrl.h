// SPDX-License-Identifier: MIT
//! \file
//! zbIBrowserDataCtrl: the root of a host's data.
//!
//! # The life of a connection
//!
//! A data side consists of one or more data controls, each with sources, each with items and
//! properties. All of it belongs to the host; the library holds plain pointers and nothing more.
//! Everything runs on one thread, and nothing in a data side is expected to throw: an exception
//! passes through the library to whoever called it, and leaves off what was going on.
//!
//! 1. The host gives a view its control: `view->SetDataCtrl(control)`. Nothing is called yet.
//! 2. The host connects a source: `view->DataSourceConnect(source)`. The view asks the control for
//!    the source's name (FindDataSourceSimple or FindDataSourceHierarchical). A null answer leaves
//!    the source unconnected without a word; otherwise the view notes the source, and a flat one
//!    gets OnConnected.
//! 3. The host makes a list or tree in a folder: GetDataItems or GetChildren is called and a row is
//!    made for each item. From here on rows hold pointers to items.
//! 4. Painting reads the items through data properties, sorting through the comparisons of the
//!    source, filtering through zbIBrowserDataItemSimple::GetProperty.
//! 5. Data change; see below.
//! 6. The host disconnects the source: `view->DataSourceDisconnect(name)`. The rows go, then the
//!    source gets OnDisconnected.
//! 7. The host deletes the source and its items. A control that goes is reported with
//!    zbBrowserViewCtrl::OnDataControlDeleted first, with its name, while it is still alive.
//!
//! Deleting a view calls neither DataSourceDisconnect nor OnDisconnected: the host may delete the
//! view first. After the last view of one generation that used a control has been deleted, the
//! control gets Release.
//!
//! # Changing data under an old view
//!
//! *Creating an item.* Make it, let its source list it (GetDataItems, ContainsDataItem,
//! GetChildren), then call zbBrowserViewCtrl::OnDataItemCreated. Its row appears at once.
//!
//! *Changing an item.* Make IsDirty of the item answer true, call
//! `zbBrowserView::OnAllDirtyDataItemsRebuild`, which signals `ViewItemChanged` for each dirty row,
//! then take the mark back: the library never does.
//!
//! *Removing an item.* Take it out of its source first, so that ContainsDataItem answers false and
//! GetDataItems no longer gives it. Then let its rows go, while the item is still alive. Then
//! delete it:
//!
//!     source.Unlist(item);                              // before anybody is told
//!     source.dirty = true;                              // IsDirty answers true
//!     controller->OnAllDirtyDataListsRebuild(view);     // for each view; its rows go here
//!     source.dirty = false;
//!     delete item;                                      // after
//!
//! `zbBrowserView::OnDataItemDeleted`, called on each view, removes the rows of one item without
//! looking at the others. zbBrowserViewCtrl::OnDataItemSimpleDeleted and its twin for trees do not:
//! they only have the parents of the rows painted anew, as for an update, and leave the rows to the
//! next rebuild.
//!
//! Reports are acted on at once, unless the view is in the middle of another report; then they are
//! dropped, not queued, and the next rebuild finds the truth.
//!
//! If an item had to be deleted before its rows: rebuild before anything else is asked of the view.
//! A rebuild recognises the row by the item's address alone, through ContainsDataItem and
//! GetDataItems; the address of an item that has gone is compared and never followed. Painting and
//! sorting in between would follow it. And if a new item has got the old address before the
//! rebuild, the row cannot be told from one of the new item.
//!
//! A host may call back into the library from within its operations, except from those that say
//! that they are mere readers, and may create, report and remove items there. It must not delete
//! the controller.
//!
//! # Changing data under a new view
//!
//! New views hear no reports. The host locks the view, lets it ask (GetDirtyItems, GetDeletedItems,
//! GetChangedLinks, GetItems), and unlocks it. An item that went stays alive until that round is
//! over.
//!
//! # Containers
//!
//! Every `out` arrives empty and belongs to the library. Append to it, do not keep a reference.
#pragma once

#include <zbBrowserView/platform/zbExport.h>

#include <set>
#include <utility>
#include <vector>

class zbIBrowserDataCollectorType;
class zbIBrowserDataItem;
class zbIBrowserDataOperation;
class zbIBrowserDataReference;
class zbIBrowserDataSource;
class zbIBrowserDataSourceHierarchical;
class zbIBrowserDataSourceSimple;

//! The root of a host's data: finds sources and operations by name, orders sources, and answers for
//! links and changes. Several views may share one; a view has at most one.
//!
//! Ownership: the host's. Stays valid until each view that uses it was given another, or none, or
//! was deleted, or was told OnDataControlDeleted.
class ZBBROWSERVIEW_API zbIBrowserDataCtrl {
public:
    //! Name, compared byte by byte with the one that is given to OnDataControlDeleted.
    //! Requires: not null; stays valid as long as the control.
    virtual char const* GetName() const = 0;

    //! The flat source of that name. Asked by DataSourceConnect, which goes by whether the answer
    //! is null and does not compare it with the source at hand. Null: no such source.
    virtual zbIBrowserDataSourceSimple* FindDataSourceSimple(char const* name) = 0;

    //! As FindDataSourceSimple, for trees.
    virtual zbIBrowserDataSourceHierarchical* FindDataSourceHierarchical(char const* name) = 0;

    //! True stops an old view whose collector is off from passing on what gets selected
    //! (`CollectorDataItems`).
    virtual bool IsSelectionForwardingBlocked() = 0;

    //! Whether the host lets each new view enable and disable its collector. False: the collectors
    //! of all new views read as disabled. Mind the name: true means that they can be used.
    virtual bool IsCollectorDisabledNew() = 0;

    //! Whether the host lets each old view disable its collector. False: the collectors of all old
    //! views can be used. Unlike IsCollectorDisabledNew, true does mean "disabled".
    virtual bool IsCollectorDisabled() = 0;

    //! The last view of one generation that used this control has been deleted; the other
    //! generation may still use it. `reserved` is always null.
    virtual void Release(void* reserved) = 0;

    //! True: button 121 of the collector of an old view reads as shown.
    virtual bool IsCollectorInUse() = 0;

    //! The operation of that name; exact comparison is expected. Asked each time that an operation
    //! of a view is performed or that a popup menu shows. Null: no such operation; it is skipped.
    virtual zbIBrowserDataOperation* FindDataOperation(char const* name) = 0;

    //! First sort key: the order of rows of different sources in one folder. Called on the control
    //! of `a`, also with twice the same source.
    //! True: `less` tells whether `a` stands before `b`. False: undecided; the next key is asked.
    virtual bool CompareDataSources(zbIBrowserDataSource* a, zbIBrowserDataSource* b,
                                    bool& less) = 0;

    //! Positions the control on an item, right before GetVariant or SetVariant of a data property
    //! is called. Null: an item without data; nothing is read then.
    virtual void SetCurrentDataItem(zbIBrowserDataItem* item) = 0;

    //! The collector type of that name, for new views; exact comparison is expected. Null: none.
    virtual zbIBrowserDataCollectorType* FindCollectorType(char const* name) = 0;

    //! Adds to `out` the items of `sources` whose data changed; their rows are redrawn.
    virtual void GetDirtyItems(std::set<zbIBrowserDataSource*>& sources,
                               std::set<zbIBrowserDataItem*>& out) = 0;

    //! Adds to `out` the items of `sources` that went; their rows go.
    virtual void GetDeletedItems(std::set<zbIBrowserDataSource*>& sources,
                                 std::set<zbIBrowserDataItem*>& out) = 0;

    //! Appends the items of `source` that are linked to `parent` by `reference`.
    //! Null: `parent` null asks for the roots, the items of `source` that have no parent by
    //! `reference`. `flag` is the one with which the host made the tree, and means what it likes.
    virtual void GetItems(std::vector<zbIBrowserDataItem*>& out, zbIBrowserDataReference* reference,
                          zbIBrowserDataSource* source, zbIBrowserDataItem* parent, bool flag) = 0;

    //! Appends the links of `reference` that went and that came since this was last asked, each as
    //! (parent, child). `flag` as in GetItems.
    virtual void
    GetChangedLinks(std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& removed,
                    std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& added,
                    zbIBrowserDataReference* reference, zbIBrowserDataSource* parentSource,
                    zbIBrowserDataSource* childSource, bool flag) = 0;

protected:
    ~zbIBrowserDataCtrl() = default;
};
