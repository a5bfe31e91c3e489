// SPDX-License-Identifier: MIT
//! \file
//! Oracle: what old views are expected to do.
#pragma once

#include "RandomScript.h"

#include <functional>
#include <list>
#include <memory>

namespace zbtest {

//! The old views of a script in the simplest form: plain vectors, each question answered by looking
//! at everything. It predicts for each step what is answered, which signals come and how the views
//! look afterwards.
//!
//! It reads the data side, never the library, so it is asked before the step is really taken. It
//! does not know what a slot or a host that calls back does.
class Oracle {
public:
    Oracle(ScriptData& data, RecordingHostCalls const& calls)
        : data_(data)
        , calls_(calls) {}

    //! It is a step that concerns a view, and not the data side alone.
    [[nodiscard]] static bool Knows(std::string const& step) { return Handlers().contains(step); }
    //! Takes a step. The result is what is answered or thrown, as in ScriptPlayer.
    [[nodiscard]] std::string Take(ScriptStep const& step);
    //! The signals since the last call, as a SignalRecorder writes them.
    [[nodiscard]] std::vector<std::string> TakeSignals() { return std::exchange(signals_, {}); }
    //! The sources whose dirty mark has been taken back since the last call.
    [[nodiscard]] std::vector<RecordingSource*> TakeCleared() {
        return std::exchange(cleared_, {});
    }
    //! A view with its sources, its trees and its dump; empty if there is no such view.
    [[nodiscard]] std::string State(std::string const& view) const;

private:
    struct Row {
        RecordingItem const* item; // Compared, never followed
        RecordingSource const* source;
        bool hidden = false;
    };
    struct Type {
        RecordingSource* source;
        bool grouped;
    };
    struct TreeRecord {
        RecordingTree* tree;
        std::vector<Type> types;
    };
    struct Folder {
        std::string name;
        Folder* parent = nullptr;
        std::vector<std::unique_ptr<Folder>> children;
        bool used = false;
        std::vector<RecordingSource*> lists;
        std::vector<RecordingSource*> groupedLists;
        std::vector<TreeRecord> trees;
        std::vector<Row> rows;
        bool open = false;
        bool hidden = false;
        bool groups = false;
        bool style = false;
        bool emptyContainers = false;
        bool keepsOrder = true;
        bool showsWhenEmpty = true;
        bool bold = false;
        bool italic = false;
        bool iconShows = false;
        bool iconRecursive = true;
    };
    struct View {
        std::string name;
        RecordingDataCtrl* control = nullptr;
        std::vector<RecordingSource*> sources;
        std::vector<RecordingTree*> trees;
        Folder root;
    };
    using Handler = std::string (Oracle::*)(ScriptStep const&);

    // Steps, by theme.
    static std::map<std::string, Handler> const& Handlers();
    std::string MakeView(ScriptStep const& step);
    std::string DeleteView(ScriptStep const& step);
    std::string SetControl(ScriptStep const& step);
    std::string ControlDeleted(ScriptStep const& step);
    std::string Connect(ScriptStep const& step);
    std::string ConnectTree(ScriptStep const& step);
    std::string Disconnect(ScriptStep const& step);
    std::string DisconnectAll(ScriptStep const& step);
    std::string DropListEverywhere(ScriptStep const& step);

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
    std::string ShowEmptyFolders(ScriptStep const& step);
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

    std::string Created(ScriptStep const& step);
    std::string Updated(ScriptStep const& step);
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

    // Looking things up.
    View* FindView(std::string const& name);
    View const* FindView(std::string const& name) const;
    //! `view:folder`; the root is `view:/`. The view is stored in `view` if there is one.
    Folder* FindFolder(std::string const& place, View** view = nullptr);
    static std::vector<Folder*> PreOrder(Folder& top);
    static std::vector<Folder*> PostOrder(Folder& top);
    std::vector<RecordingItem*> Listed(RecordingSource const& source);
    [[nodiscard]] std::string NameOf(Row const& row) const;
    static std::string NameOf(Folder const& folder);
    [[nodiscard]] bool IsDirty(RecordingSource const& source) const;

    // Parts of steps.
    void Signal(std::string line) {
        signals_.push_back(std::move(line));
        hostHasRun_ = true;
    }
    //! Something is deselected that was not selected: the model selects nothing.
    void Deselected(std::string const& names) { Signal("ViewItemsDeselected [" + names + "]"); }
    //! Rows have gone in a list; their names, each behind a blank.
    void RowsGone(std::string const& names, bool silent);
    void Changed(Folder const& folder) { Signal("ViewItemChanged " + NameOf(folder)); }
    void ContentChanged(View const& view) { Signal("ViewContentChanged " + view.name); }
    static bool HasVisible(Folder const& folder);
    static void Forget(Folder& folder);
    static void SetTypes(TreeRecord& record, bool grouped);
    void AddRow(Folder& folder, RecordingItem* item, RecordingSource* source, bool silent);
    bool BuildList(Folder& folder, RecordingSource* source, bool silent);
    void DropRows(Folder& folder, std::function<bool(Row const&)> const& goes);
    bool RemoveList(View& view, Folder& folder, RecordingSource* source);
    bool RemoveTree(View& view, Folder& folder, RecordingTree* tree);
    void AddTree(View& view, Folder& folder, RecordingTree* tree);
    bool MoveList(View& view, Folder& folder, RecordingSource* source, bool grouped);
    void RebuildList(Folder& folder, RecordingSource* source);
    void RefreshFolder(Folder& folder);
    void CreateRows(View& view, RecordingItem* item, RecordingSource* source);
    bool IsDataEmpty(Folder const& folder) const;
    void DisconnectEverything(View& view, bool removeContent);
    void OpenFolder(Folder& folder);
    void CloseFolder(Folder& folder);
    static std::string TextOfLists(Folder const& folder);
    static std::string TextOfTrees(Folder const& folder);
    void AppendDump(std::string& text, Folder const& folder, std::string const& indent) const;

    ScriptData& data_;
    RecordingHostCalls const& calls_;
    std::list<View> views_;
    std::vector<std::string> signals_;
    std::vector<RecordingSource*> cleared_;
    bool hostHasRun_ = false; // A slot or GetDataItems, since the step began
};

} // namespace zbtest
