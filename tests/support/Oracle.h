// SPDX-License-Identifier: MIT
//! \file
//! Oracle: what views are expected to do.
#pragma once

#include "RandomScript.h"

#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace zbtest {

//! The views of a script in the simplest form: plain vectors, each question answered by looking at
//! everything. It predicts for each step what is answered, which signals come, what notifiers hear
//! and how the views look afterwards. A view whose name begins with n is a new one.
//!
//! It reads the data side, never the library, so it is asked before the step is really taken. It
//! does not know what a slot or a host that calls back does.
//!
//! What comes in the order of addresses, as the selection does, is written between < and >.
class Oracle {
public:
    Oracle(ScriptData& data, RecordingHostCalls const& calls)
        : data_(data)
        , calls_(calls) {}

    //! It is a step that concerns a view, and not the data side alone.
    [[nodiscard]] static bool Knows(ScriptStep const& step) { return HandlerOf(step) != nullptr; }
    //! Takes a step. The result is what is answered or thrown, as in ScriptPlayer.
    [[nodiscard]] std::string Take(ScriptStep const& step);
    //! The signals since the last call, as a SignalRecorder writes them.
    [[nodiscard]] std::vector<std::string> TakeSignals() { return std::exchange(signals_, {}); }
    //! What notifiers have heard since the last call.
    [[nodiscard]] std::vector<std::string> TakeNotices() { return std::exchange(notices_, {}); }
    //! The last step sorted rows whose order nothing determines. The order that they were given
    //! becomes the expected one, and the answer is told. Empty: they are not the same rows.
    [[nodiscard]] bool IsOrderOpen() const { return openOrder_ != nullptr; }
    [[nodiscard]] std::string Adopt(std::vector<std::string> const& rows);
    //! The sources whose dirty mark has been taken back since the last call.
    [[nodiscard]] std::vector<RecordingSource*> TakeCleared() {
        return std::exchange(cleared_, {});
    }
    //! A view with its sources, its trees and its dump; empty if there is no such view.
    [[nodiscard]] std::string State(std::string const& view) const;

private:
    struct Row {
        RecordingItem* item; // Followed only while nobody can have freed it
        RecordingSource* source;
        bool hidden = false;
        bool selected = false;
        bool ordered = false; // As the last sort left it
        bool changed = false; // And finds its place anew when others are sorted next
    };
    struct Type {
        RecordingSource* source;
        bool grouped;
    };
    struct TreeRecord {
        RecordingTree* tree;
        std::vector<Type> types;
    };
    struct Property {
        std::string name;
        std::map<RecordingSource*, std::string> connections;
    };
    struct Style {
        std::string name;
        std::weak_ptr<Property> property; // Of its one element
    };
    struct Column {
        std::string name;
        bool visible = true;
        bool unsorted = true;
        bool sorting = true;
        bool italic = true;
        std::vector<Style> styles; // Less the default one
    };
    //! By what rows were sorted.
    struct Basis {
        std::size_t orderNumber = 0;
        Property const* property = nullptr;
        std::map<RecordingSource*, std::string> connections;
        bool operator==(Basis const&) const = default;
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
        bool selected = false;
        bool changed = false;
        std::optional<Basis> basis = Basis(); // Empty: it cannot be told
        bool unsorted = false; // Since the last sort a row has come, gone or lost its place
    };
    struct View {
        std::string name;
        bool isNew = false;
        RecordingDataCtrl* control = nullptr;
        std::vector<RecordingSource*> sources;
        std::vector<RecordingTree*> trees;
        Folder root;
        std::vector<std::shared_ptr<Property>> properties;
        std::vector<std::shared_ptr<Property>> deletedProperties;
        std::vector<std::unique_ptr<Column>> columns; // The default column first
        Column* sorted = nullptr;
        bool ascending = true;
        std::size_t orderNumber = 0;
        std::string customSort;
        bool sync = true;
        bool locked = false;
        bool hasNotifier = false;
    };
    //! A folder or a row; the other one is null.
    struct Item {
        Folder* folder;
        Row* row;
    };
    using Items = std::vector<Item>;
    using Handler = std::string (Oracle::*)(ScriptStep const&);

    // Steps, by theme.
    static std::map<std::string, Handler> const& Handlers();
    static std::map<std::string, Handler> const& ColumnHandlers();
    static std::map<std::string, Handler> const& SelectionHandlers();
    static std::map<std::string, Handler> const& NewViewHandlers();
    static Handler HandlerOf(ScriptStep const& step);
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
    std::string UnsortAll(ScriptStep const& step);

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
    std::string MakeProperty(ScriptStep const& step);
    std::string DropProperty(ScriptStep const& step);
    std::string ConnectProperty(ScriptStep const& step);
    std::string DisconnectProperty(ScriptStep const& step);
    std::string ReadValue(ScriptStep const& step);
    std::string WriteValue(ScriptStep const& step);
    std::string ReadChildren(ScriptStep const& step);

    std::string Select(ScriptStep const& step);
    std::string DeselectBelow(ScriptStep const& step);
    std::string DeselectRow(ScriptStep const& step);
    std::string DeselectAll(ScriptStep const& step);
    std::string SelectData(ScriptStep const& step);
    std::string DeselectData(ScriptStep const& step);
    std::string SetDropItem(ScriptStep const& step);
    std::string ForgetSelection(ScriptStep const& step);
    std::string TellPrevious(ScriptStep const& step);
    std::string FinishSelection(ScriptStep const& step);
    std::string SetSync(ScriptStep const& step);
    std::string SetNotifier(ScriptStep const& step);
    std::string Popup(ScriptStep const& step);
    std::string AskSelection(ScriptStep const& step);
    std::string AskTexts(ScriptStep const& step);
    std::string AskRowsOf(ScriptStep const& step);

    std::string MakeNewFolder(ScriptStep const& step);
    std::string DeleteNewFolder(ScriptStep const& step);
    std::string ExpandNew(ScriptStep const& step);
    std::string Lock(ScriptStep const& step);
    std::string ShowEmptyContainersOfNew(ScriptStep const& step);
    std::string AnswerTrue(ScriptStep const& step);
    std::string AnswerFalse(ScriptStep const& step);
    std::string AnswerNothing(ScriptStep const& step);

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
    Row* FindRow(std::string const& place, std::string const& name);
    static Column* FindColumn(View const& view, std::string const& name);
    static std::shared_ptr<Property> FindProperty(View const& view, std::string const& name);
    static void ForEachItem(View& view, std::function<void(Item const&)> const& visit);

    // Parts of steps.
    void Signal(std::string line) {
        signals_.push_back(std::move(line));
        hostHasRun_ = true;
    }
    //! Rows have left their folders together.
    void RowsGone(View& view, std::vector<Row> rows, bool silent);
    void Update(View& view, Items const& items, bool select, bool clear);
    void ClearSelection(View& view, bool tellsEnd);
    void TellChanging(View const& view, std::string const& names, bool select);
    void TellSummary(View& view);
    void Notify(View const& view, std::string const& notice);
    Items ItemsOf(View& view, ScriptStep const& step, std::size_t from);
    static bool& Mark(Item const& item);
    [[nodiscard]] std::string NameOf(Item const& item) const;
    [[nodiscard]] std::string NamesOf(Items const& items) const;
    [[nodiscard]] std::string DataNamesOf(Items const& items) const;
    [[nodiscard]] std::string NamesOfSelected(View& view) const;
    void ResetSort(View& view);
    void LoosenAll(View& view);
    void SortRows(View& view, Folder& folder);
    void SortKnown(View& view, Folder& folder, std::size_t ordered);
    bool TakeSortProperty(View const& view);
    [[nodiscard]] Basis BasisOf(View const& view) const;
    [[nodiscard]] Property const* SortPropertyOf(View const& view) const;
    static bool HasDefiniteOrder(Folder const& folder, Property const* property);
    static bool IsBefore(Row const& a, Row const& b, Property const* property);
    [[nodiscard]] std::string Listing(View const& view, Folder const& folder) const;
    static std::vector<std::string> ListedFolders(Folder const& folder, bool sorted,
                                                  bool ascending);
    static std::string TextOfPresentation(View const& view);
    void Changed(Folder const& folder) { Signal("ViewItemChanged " + NameOf(folder)); }
    void ContentChanged(View const& view) { Signal("ViewContentChanged " + view.name); }
    static bool HasVisible(Folder const& folder);
    static void Forget(Folder& folder);
    static void SetTypes(TreeRecord& record, bool grouped);
    void AddRow(Folder& folder, RecordingItem* item, RecordingSource* source, bool silent);
    bool BuildList(Folder& folder, RecordingSource* source, bool silent);
    void DropRows(View& view, Folder& folder, std::function<bool(Row const&)> const& goes);
    bool RemoveList(View& view, Folder& folder, RecordingSource* source);
    bool RemoveTree(View& view, Folder& folder, RecordingTree* tree);
    void AddTree(View& view, Folder& folder, RecordingTree* tree);
    bool MoveList(View& view, Folder& folder, RecordingSource* source, bool grouped);
    void RebuildList(View& view, Folder& folder, RecordingSource* source);
    void RefreshFolder(Folder& folder);
    void CreateRows(View& view, RecordingItem* item, RecordingSource* source);
    bool IsDataEmpty(Folder const& folder) const;
    void DisconnectEverything(View& view, bool removeContent);
    void OpenFolder(Folder& folder);
    void OpenAround(View& view, Row const& row);
    void CloseFolder(Folder& folder);
    static std::string TextOfLists(Folder const& folder);
    static std::string TextOfTrees(Folder const& folder);
    void AppendDump(std::string& text, Folder const& folder, std::string const& indent) const;

    ScriptData& data_;
    RecordingHostCalls const& calls_;
    std::list<View> views_;
    std::vector<std::string> signals_;
    std::vector<std::string> notices_;
    std::vector<RecordingSource*> cleared_;
    std::weak_ptr<Property> sortProperty_; // The current one, whichever view it is of
    bool knowsSortProperty_ = true;
    View* openView_ = nullptr;
    Folder* openOrder_ = nullptr; // Null: all orders are known
    bool hostHasRun_ = false;     // A slot or GetDataItems, since the step began
};

} // namespace zbtest
