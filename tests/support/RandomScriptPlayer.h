// SPDX-License-Identifier: MIT
//! \file
//! ScriptPlayer: takes the steps of a script and looks whether all is as it should be.
#pragma once

#include "Oracle.h"
#include "ScriptNotifier.h"
#include "SignalRecorder.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>

class zbBrowserView;
class zbBrowserViewItemDataLeaf;
class zbBrowserViewItemFreeFolder;
class zbIBrowserSelectionManager;
class zbIBrowserViewColumn;
class zbIBrowserViewProperty;

namespace zbbrowser {
class View;
class ViewItemFreeFolder;
} // namespace zbbrowser

namespace zbtest {

//! Plays a script on a host of its own. After each step the invariants of all views are checked.
//!
//! A calm script is also compared with an Oracle, step by step: answers, signals, views. In a
//! hostile script the step `on WHAT N STEP` arms an attack: when the signal or host operation WHAT
//! is reached for the Nth time from then on, STEP is taken from within. Such a step may also be
//! `throw-text`, `throw-string` or `throw-exception`.
//!
//! A step whose objects do not exist does nothing, so that a script stays a script when lines are
//! taken out of it.
class ScriptPlayer {
public:
    enum class Mode { Calm, Hostile };

    explicit ScriptPlayer(Mode mode);
    ScriptPlayer(ScriptPlayer const&) = delete;
    ScriptPlayer& operator=(ScriptPlayer const&) = delete;
    ~ScriptPlayer();

    //! Takes a step. The result tells what is wrong afterwards; empty if nothing is.
    [[nodiscard]] std::string Play(ScriptStep const& step);
    //! Builds everything anew, compares it with the data, and ends all views.
    [[nodiscard]] std::string Finish();

    //! What a generator draws from.
    [[nodiscard]] bool IsCalm() const { return mode_ == Mode::Calm; }
    //! An exception went through a view, which may be deaf to data events since then.
    [[nodiscard]] bool HasThrown() const { return hasThrown_; }
    [[nodiscard]] ScriptData const& Data() const { return data_; }
    //! Of the old views.
    [[nodiscard]] std::vector<std::string> ViewNames();
    //! The names of all folders of a view; the root is "/".
    [[nodiscard]] std::vector<std::string> FolderNames(std::string const& view);
    //! The names of the rows of a folder.
    [[nodiscard]] std::vector<std::string> RowNames(std::string const& place);
    [[nodiscard]] std::size_t RowCount();

    //! What an attack can wait for.
    [[nodiscard]] static std::vector<std::string> const& Signals();
    [[nodiscard]] static std::vector<std::string> const& HostOperations();

private:
    using Folder = zbBrowserViewItemFreeFolder;
    using ItemSet = std::set<zbIBrowserViewItem*, std::less<>>;
    using FlatItems = std::vector<zbIBrowserDataItemSimple*>;
    using Handler = std::string (ScriptPlayer::*)(ScriptStep const&);
    struct Attack {
        std::string on;
        std::size_t left;
        ScriptStep step;
    };

    // RandomScriptPlayer.cpp
    std::string PlayCompared(ScriptStep const& step);
    std::string PlayLose(ScriptStep const& step);
    std::string PlayDropSource(ScriptStep const& step);
    std::string PlayAll(Script const& steps);
    std::string Perform(ScriptStep const& step);
    static std::map<std::string, Handler> const& DataHandlers();
    static std::map<std::string, Handler> const& ViewHandlers();
    static std::map<std::string, Handler> const& FolderHandlers();
    static std::map<std::string, Handler> const& SelectionHandlers();
    static std::map<std::string, Handler> const& QueryHandlers();
    static std::map<std::string, Handler> const& ColumnHandlers();
    static std::map<std::string, Handler> const& PropertyHandlers();
    static Handler FindHandler(std::string const& name);

    //! A host operation other than GetDataItems must not free data items without telling.
    [[nodiscard]] bool MayFree() const { return lookingCalls_ == 0; }

    // RandomScriptPlayer_Attacks.cpp
    void Listen();
    void Unhook();
    void CheckSignalled(std::string const& signal, zbIBrowserViewItem const* item);
    void HearNotice(std::string const& view, std::string const& operation,
                    std::vector<zbIBrowserViewItem*> const& items, bool flag);
    void Reached(std::string const& what, bool inHost);
    std::string Arm(ScriptStep const& step);

    // RandomScriptPlayer_Checks.cpp
    std::string CheckInvariants();
    void CompareViews(std::string& problems);
    std::string CheckAgainstData();
    std::string Settle();
    bool HasGhosts();
    bool HasGhosts(zbBrowserView& view);
    bool IsForbiddenToAsk(zbBrowserView& view);
    //! The view that the step names shows items that have gone, so nothing may be asked about them.
    bool ShowsGhosts(ScriptStep const& step);
    void MarkAllForRebuild();
    zbBrowserView* View(std::string const& name);
    zbIBrowserView* AnyView(std::string const& name);
    static bool IsNewView(std::string const& nameOrPlace) { return nameOrPlace.starts_with('n'); }
    zbIBrowserViewItemFreeFolder* FindAnyFolder(std::string const& place,
                                                zbIBrowserView** view = nullptr);
    std::string StateOfOld(std::string const& view);
    //! The first folder of that name from the root down; `view` is set if the view is there.
    Folder* FindFolder(std::string const& place, zbBrowserView** view = nullptr);
    zbIBrowserViewItem* FindRow(std::string const& place, std::string const& row);
    bool IsShown(RecordingItem const& item);
    bool IsUsed(RecordingSource const& source);

    // RandomScriptPlayer_NewViews.cpp
    zbbrowser::View* NewView(std::string const& name);
    //! Each folder before those in it.
    std::vector<zbbrowser::ViewItemFreeFolder*> NewFolders(std::string const& view);
    std::string StateOfNew(std::string const& view);
    std::string CheckNewViews();
    std::string Lock(ScriptStep const& step);

    // RandomScriptPlayer_Data.cpp
    std::string MakeItem(ScriptStep const& step);
    std::string FreeItem(ScriptStep const& step);
    std::string LoseItem(ScriptStep const& step);
    std::string GatherCrowd(ScriptStep const& step);
    std::string DisperseCrowd(ScriptStep const& step);
    std::string Unlist(ScriptStep const& step);
    std::string Relist(ScriptStep const& step);
    std::string ListTwice(ScriptStep const& step);
    std::string Reorder(ScriptStep const& step);
    std::string MarkItem(ScriptStep const& step);
    std::string MarkSource(ScriptStep const& step);
    std::string MarkTree(ScriptStep const& step);
    std::string Fail(ScriptStep const& step);
    std::string SetValue(ScriptStep const& step);
    std::string Compare(ScriptStep const& step);
    std::string OrderSources(ScriptStep const& step);
    std::string MakeSource(ScriptStep const& step);
    std::string DropSource(ScriptStep const& step);
    std::string ThrowText(ScriptStep const& step);
    std::string ThrowString(ScriptStep const& step);
    std::string ThrowException(ScriptStep const& step);

    // RandomScriptPlayer_Views.cpp
    std::string MakeView(ScriptStep const& step);
    std::string DeleteView(ScriptStep const& step);
    std::string SetControl(ScriptStep const& step);
    std::string ControlDeleted(ScriptStep const& step);
    std::string Connect(ScriptStep const& step);
    std::string ConnectTree(ScriptStep const& step);
    std::string Disconnect(ScriptStep const& step);
    std::string DisconnectAll(ScriptStep const& step);
    std::string DropListEverywhere(ScriptStep const& step);
    std::string ShowEmptyFolders(ScriptStep const& step);
    std::string Created(ScriptStep const& step);
    std::string Updated(ScriptStep const& step);
    std::string ReportedDeleted(ScriptStep const& step);
    std::string Deleted(ScriptStep const& step);
    std::string Renumbered(ScriptStep const& step);
    std::string RebuildAll(ScriptStep const& step);
    std::string RebuildLists(ScriptStep const& step);
    std::string Refresh(ScriptStep const& step);
    std::string Redraw(ScriptStep const& step);
    std::string Build(ScriptStep const& step);
    std::string BuildItem(ScriptStep const& step);
    std::string UnbuildItem(ScriptStep const& step);
    std::string DeleteRows(ScriptStep const& step);
    std::string UnsortAll(ScriptStep const& step);

    // RandomScriptPlayer_Columns.cpp
    zbIBrowserViewColumn* FindColumn(ScriptStep const& step);
    static std::string PresentationOf(zbIBrowserView& view);
    std::string MakeColumn(ScriptStep const& step);
    std::string DropColumn(ScriptStep const& step);
    std::string ShowColumn(ScriptStep const& step);
    std::string SetTitle(ScriptStep const& step);
    std::string MarkUnsorted(ScriptStep const& step);
    std::string SetSorting(ScriptStep const& step);
    std::string SetItalicTexts(ScriptStep const& step);
    std::string Sort(ScriptStep const& step);
    std::string SetCustomSort(ScriptStep const& step);
    std::string MakeColumnStyle(ScriptStep const& step);
    std::string DropColumnStyle(ScriptStep const& step);
    std::string StyleItem(ScriptStep const& step);
    std::string StyleSource(ScriptStep const& step);
    std::string DropElement(ScriptStep const& step);
    std::string GuiMapDeleted(ScriptStep const& step);
    std::string Paint(ScriptStep const& step);
    void PaintCell(zbIBrowserView& view, zbIBrowserViewColumn& column, zbIBrowserViewItem& item);
    std::string ReadChildren(ScriptStep const& step);
    std::string SortingException(ScriptStep const& step);

    // RandomScriptPlayer_Properties.cpp
    zbIBrowserViewProperty* FindProperty(std::string const& view, std::string const& name);
    std::string MakeProperty(ScriptStep const& step);
    std::string DropProperty(ScriptStep const& step);
    std::string ConnectProperty(ScriptStep const& step);
    std::string DisconnectProperty(ScriptStep const& step);
    std::string ReadValue(ScriptStep const& step);
    std::string WriteValue(ScriptStep const& step);
    std::string ReadForms(ScriptStep const& step);
    std::string ScriptProperty(ScriptStep const& step);

    // RandomScriptPlayer_Queries.cpp
    std::string AskSelection(ScriptStep const& step);
    std::string AskTexts(ScriptStep const& step);
    std::string AskRowsOf(ScriptStep const& step);
    std::string KeepManager(ScriptStep const& step);
    std::string AskManager(ScriptStep const& step);
    std::string AskView(ScriptStep const& step);
    std::string CopyView(ScriptStep const& step);
    std::string Activate(ScriptStep const& step);
    std::string SelectInPanel(ScriptStep const& step);

    // RandomScriptPlayer_Selection.cpp
    std::string Select(ScriptStep const& step);
    std::string SelectData(ScriptStep const& step);
    std::string DeselectData(ScriptStep const& step);
    std::string DeselectBelow(ScriptStep const& step);
    std::string SetDropItem(ScriptStep const& step);
    std::string DeselectRow(ScriptStep const& step);
    std::string DeselectAll(ScriptStep const& step);
    std::string ForgetSelection(ScriptStep const& step);
    std::string TellPrevious(ScriptStep const& step);
    std::string FinishSelection(ScriptStep const& step);
    std::string SetSync(ScriptStep const& step);
    std::string SetNotifier(ScriptStep const& step);
    std::string Popup(ScriptStep const& step);
    std::string Edit(ScriptStep const& step);
    FlatItems ItemsOf(ScriptStep const& step, std::size_t from);
    std::vector<zbIBrowserViewItem*> RowsOf(zbBrowserView& view, FlatItems const& items);
    //! Makes a change of the selection, which has to come out as expected unless an attack
    //! interferes.
    void ChangeSelection(ScriptStep const& step, zbIBrowserView& view, ItemSet const& expected,
                         std::function<void()> const& change);

    // RandomScriptPlayer_Folders.cpp
    std::string MakeFolder(ScriptStep const& step);
    std::string DeleteFolder(ScriptStep const& step);
    std::string MakeList(ScriptStep const& step);
    std::string DropList(ScriptStep const& step);
    std::string MakeTree(ScriptStep const& step);
    std::string DropTree(ScriptStep const& step);
    std::string GroupLeaves(ScriptStep const& step);
    std::string GroupList(ScriptStep const& step);
    std::string GroupType(ScriptStep const& step);
    std::string SetStyle(ScriptStep const& step);
    std::string SetEmptyContainers(ScriptStep const& step);
    std::string SetKeepOrder(ScriptStep const& step);
    std::string SetCaption(ScriptStep const& step);
    std::string SetBold(ScriptStep const& step);
    std::string SetItalic(ScriptStep const& step);
    std::string SetIcon(ScriptStep const& step);
    std::string SetCount(ScriptStep const& step);
    std::string SetShowsWhenEmpty(ScriptStep const& step);
    std::string CanBeShown(ScriptStep const& step);
    std::string Expand(ScriptStep const& step);
    std::string Collapse(ScriptStep const& step);
    std::string ExpandList(ScriptStep const& step);
    std::string CollapseList(ScriptStep const& step);
    std::string HideRow(ScriptStep const& step);
    std::string ShowRow(ScriptStep const& step);
    std::string HideFolder(ScriptStep const& step);
    std::string ShowFolder(ScriptStep const& step);
    std::string Path(ScriptStep const& step);

    Mode const mode_;
    RecordingHost host_;
    ScriptData data_{host_};
    std::unique_ptr<SignalRecorder> recorder_; // Null while hostile
    std::optional<Oracle> oracle_;
    zbListener<single_threaded> listener_;
    std::map<std::string, ScriptNotifier> notifiers_; // By view
    zbIBrowserSelectionManager* keptManager_ =
        nullptr; // Not owned; perhaps of a view that has gone
    std::vector<Attack> attacks_;
    std::set<std::string> hooked_; // Host operations
    std::vector<std::string> notices_;
    std::string wrongSignals_; // And wrong selections
    std::size_t attacksMade_ = 0;
    std::size_t depth_ = 0;        // Attacks that are going on
    std::size_t hostCalls_ = 0;    // Of those, the ones from within a host operation
    std::size_t lookingCalls_ = 0; // Of those, the ones other than GetDataItems
    bool isQuiet_ = false;         // No attacks
    bool isThrowing_ = false;
    bool hasThrown_ = false;
    bool hasMissedEnd_ = false;
    bool wasAttackedInQuestion_ = false; // Since the step began
};

} // namespace zbtest
