// SPDX-License-Identifier: MIT
//! \file
//! What the parts of a view need of the view that they belong to.
#pragma once

#include "presentation/styles/StyleShelf.h"
#include "view/ViewLifetime.h"

#include <zbBrowserView/host/zbBrowserDataSignalManager.h>
#include <zbBrowserView/host/zbBrowserSignalManager.h>
#include <zbBrowserView/host/zbIBrowserManager.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <memory>

class zbIBrowserDataCtrl;
class zbIBrowserView;
class zbIBrowserViewItem;

namespace zbbrowser::detail {

class ColumnSet;
class PropertyList;
class SelectionBase;
class SortHandlerBase;

enum class Generation { Old, New };

//! Signals, manager, lifetime and handlers of one view, the same for both generations. Items,
//! contents and handlers hold this instead of the view.
class ViewContext {
public:
    ViewContext(zbIBrowserView& view, zbBrowserViewCtrl const* ctrl, Generation generation);
    ViewContext(ViewContext const&) = delete;
    ViewContext& operator=(ViewContext const&) = delete;
    virtual ~ViewContext();

    zbIBrowserView& View() const { return view_; }
    bool IsNew() const { return generation_ == Generation::New; }
    ViewLifetime& Lifetime() { return lifetime_; }
    bool IsAlive() const { return lifetime_.IsAlive(); }

    //! \name Handlers
    //! Null before they are made and once the view has deleted them.
    //! \{
    PropertyList* Properties() const { return properties_.get(); }
    //! The one before goes once no operation is running.
    void SetProperties(std::unique_ptr<PropertyList> properties);
    ColumnSet* Columns() const { return columns_.get(); }
    void SetColumns(std::unique_ptr<ColumnSet> columns);
    SortHandlerBase* SortHandler() const { return sortHandler_.get(); }
    //! The one before goes when the operations that are running have returned.
    void SetSortHandler(std::unique_ptr<SortHandlerBase> handler);
    //! \}

    //! \name Selection
    //! There is one from the time when the view was made.
    //! \{
    SelectionBase& Selection() const { return *selection_; }
    //! Shares the manager with the controller, since a host may hold it longer than the view.
    void SetSelection(std::shared_ptr<SelectionBase> selection);
    //! Whether what is selected by its data is brought into sight: what a collector answers that
    //! nobody has told otherwise.
    bool ShowsSelectedItem() const { return !IsNew(); }

    //! It is an item of this view. The pointer is compared and not followed.
    virtual bool Owns(zbIBrowserViewItem const* item) const = 0;
    //! The same, or an item that has left the view and is about to be freed.
    virtual bool Knows(zbIBrowserViewItem const* item) const { return Owns(item); }
    //! An item leaves the view: it is deselected and is no drop item and no start of a search any
    //! more, silently.
    void Forget(zbIBrowserViewItem const& item);

    //! Stored for the host; compared and never followed. May be null.
    zbIBrowserViewItem* lastFindStartPoint = nullptr;
    //! \}

    //! Styles and elements, also those that are in no column any more.
    StyleShelf& Styles() { return styles_; }

    //! \name The view's error text
    //! An old view keeps it, a new one drops it.
    //! \{
    virtual void ClearError() {}
    //! \return false
    virtual bool Report(zbString const& text);
    //! False after an error that was kept.
    virtual bool State() const { return true; }
    //! \}

    //! Null without a controller.
    zbBrowserViewCtrl* Ctrl() const;

    //! The view's. May be null.
    zbIBrowserDataCtrl* DataCtrl() const;

    //! Null without a controller.
    zbIBrowserManager* Manager() const { return ctrl_ == nullptr ? nullptr : ctrl_->GetManager(); }

    //! Raises a signal of the host's signal manager, which is asked for anew each time. Nothing
    //! happens without a manager or once the view has been given up.
    template <class Signal, class... Args>
    void Raise(Signal zbBrowserSignalManager::*signal, Args&&... args) {
        auto* const signals = Signals();
        if (signals == nullptr || (signals->*signal).Count() == 0)
            return;
        lifetime_.NoteHostRun();
        (signals->*signal)(args...);
    }

    //! The same for a signal of the host's data signal manager.
    template <class Signal, class... Args>
    void RaiseData(Signal zbBrowserDataSignalManager::*signal, Args&&... args) {
        auto* const signals = DataSignals();
        if (signals == nullptr || (signals->*signal).Count() == 0)
            return;
        lifetime_.NoteHostRun();
        (signals->*signal)(args...);
    }

    //! Somebody would hear that signal now.
    //! \{
    template <class Signal>
    bool IsHeard(Signal zbBrowserSignalManager::*signal) const {
        auto* const signals = Signals();
        return signals != nullptr && (signals->*signal).Count() > 0;
    }
    template <class Signal>
    bool IsHeard(Signal zbBrowserDataSignalManager::*signal) const {
        auto* const signals = DataSignals();
        return signals != nullptr && (signals->*signal).Count() > 0;
    }
    //! \}

protected:
    //! A folder of the view has left it for good.
    void OnFolderGone(zbIBrowserViewItem const& folder);

private:
    zbBrowserSignalManager* Signals() const {
        if (!IsAlive())
            return nullptr;
        auto* const manager = Manager();
        return manager == nullptr ? nullptr : manager->GetSignalManager();
    }

    zbBrowserDataSignalManager* DataSignals() const {
        if (!IsAlive())
            return nullptr;
        auto* const manager = Manager();
        return manager == nullptr ? nullptr : manager->GetDataSignalManager();
    }

    zbIBrowserView& view_;
    zbBrowserViewCtrl const* const ctrl_; // Not owned; null only in tests
    Generation const generation_;
    std::unique_ptr<PropertyList> properties_;
    std::shared_ptr<SelectionBase> selection_; // Null while the view is made
    StyleShelf styles_{*this};
    std::unique_ptr<ColumnSet> columns_;
    std::unique_ptr<SortHandlerBase> sortHandler_;
    ViewLifetime lifetime_;
};

} // namespace zbbrowser::detail
