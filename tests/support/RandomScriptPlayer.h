// SPDX-License-Identifier: MIT
//! \file
//! ScriptPlayer: takes the steps of a script and looks whether all is as it should be.
#pragma once

#include "Oracle.h"
#include "SignalRecorder.h"

#include <functional>
#include <memory>
#include <optional>
#include <set>

class zbBrowserView;
class zbBrowserViewItemDataLeaf;
class zbBrowserViewItemFreeFolder;

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
    void Listen();
    void CheckSignalled(std::string const& signal, zbIBrowserViewItem const* item);
    void Reached(std::string const& what, bool inHost);
    std::string Perform(ScriptStep const& step);
    static std::map<std::string, Handler> const& DataHandlers();
    static std::map<std::string, Handler> const& ViewHandlers();
    static std::map<std::string, Handler> const& FolderHandlers();
    static std::map<std::string, Handler> const& SelectionHandlers();

    //! A host operation other than GetDataItems must not free data items without telling.
    [[nodiscard]] bool MayFree() const { return lookingCalls_ == 0; }

    // RandomScriptPlayer_Checks.cpp
    std::string CheckInvariants();
    void CompareViews(std::string& problems);
    std::string CheckAgainstData();
    std::string Settle();
    bool HasGhosts();
    bool HasGhosts(zbBrowserView& view);
    bool IsForbiddenToAsk(zbBrowserView& view);
    void MarkAllForRebuild();
    zbBrowserView* View(std::string const& name);
    //! The first folder of that name from the root down; `view` is set if the view is there.
    Folder* FindFolder(std::string const& place, zbBrowserView** view = nullptr);
    zbIBrowserViewItem* FindRow(std::string const& place, std::string const& row);
    bool IsShown(RecordingItem const& item);
    bool IsUsed(RecordingSource const& source);

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
    std::string MakeSource(ScriptStep const& step);
    std::string DropSource(ScriptStep const& step);
    std::string Arm(ScriptStep const& step);
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

    // RandomScriptPlayer_Selection.cpp
    std::string Select(ScriptStep const& step);
    std::string SelectData(ScriptStep const& step);
    std::string DeselectData(ScriptStep const& step);
    std::string DeselectBelow(ScriptStep const& step);
    std::string SetDropItem(ScriptStep const& step);
    //! Makes a change of the selection, which has to come out as expected unless an attack
    //! interferes.
    void ChangeSelection(ScriptStep const& step, zbBrowserView& view, ItemSet const& expected,
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
    std::vector<Attack> attacks_;
    std::string wrongSignals_; // And wrong selections
    std::size_t attacksMade_ = 0;
    std::size_t depth_ = 0;        // Attacks that are going on
    std::size_t hostCalls_ = 0;    // Of those, the ones from within a host operation
    std::size_t lookingCalls_ = 0; // Of those, the ones other than GetDataItems
    bool isQuiet_ = false;         // No attacks
    bool isThrowing_ = false;
    bool hasThrown_ = false;
    bool hasMissedEnd_ = false;
};

} // namespace zbtest
