// SPDX-License-Identifier: MIT
// Steps on views, and data events.
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbBrowserView.h>

namespace zbtest {

namespace {

std::string Answer(bool answer) {
    return answer ? "true" : "false";
}

} // namespace

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::ViewHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"view", &ScriptPlayer::MakeView},
        {"delete-view", &ScriptPlayer::DeleteView},
        {"control", &ScriptPlayer::SetControl},
        {"control-deleted", &ScriptPlayer::ControlDeleted},
        {"connect", &ScriptPlayer::Connect},
        {"connect-tree", &ScriptPlayer::ConnectTree},
        {"disconnect", &ScriptPlayer::Disconnect},
        {"disconnect-all", &ScriptPlayer::DisconnectAll},
        {"drop-list-everywhere", &ScriptPlayer::DropListEverywhere},
        {"show-empty-folders", &ScriptPlayer::ShowEmptyFolders},
        {"created", &ScriptPlayer::Created},
        {"updated", &ScriptPlayer::Updated},
        {"reported-deleted", &ScriptPlayer::ReportedDeleted},
        {"deleted", &ScriptPlayer::Deleted},
        {"renumbered", &ScriptPlayer::Renumbered},
        {"rebuild-all", &ScriptPlayer::RebuildAll},
        {"rebuild-lists", &ScriptPlayer::RebuildLists},
        {"refresh", &ScriptPlayer::Refresh},
        {"redraw", &ScriptPlayer::Redraw},
        {"build", &ScriptPlayer::Build},
        {"build-item", &ScriptPlayer::BuildItem},
        {"unbuild-item", &ScriptPlayer::UnbuildItem},
        {"delete-rows", &ScriptPlayer::DeleteRows},
        {"unsort-all", &ScriptPlayer::UnsortAll},
        {"copy-view", &ScriptPlayer::CopyView},
        {"lock", &ScriptPlayer::Lock},
    };
    return handlers;
}

std::string ScriptPlayer::MakeView(ScriptStep const& step) {
    bool const isNew = IsNewView(step.Arg(1));
    return Answer(RecordingManager::CreateView(host_.Controller(), step.Arg(1).c_str(), isNew));
}

std::string ScriptPlayer::DeleteView(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    return view == nullptr ? "skip" : Answer(host_.DeleteView(*view));
}

std::string ScriptPlayer::SetControl(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->SetDataCtrl(data_.Control(step.Arg(2)));
    return "";
}

std::string ScriptPlayer::ControlDeleted(ScriptStep const& step) {
    host_.Controller().OnDataControlDeleted(step.Arg(1).c_str());
    return "";
}

std::string ScriptPlayer::Connect(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingSource* const source = data_.Source(step.Arg(2));
    return view == nullptr || source == nullptr ? "skip" : Answer(view->DataSourceConnect(source));
}

std::string ScriptPlayer::ConnectTree(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    return view == nullptr || tree == nullptr ? "skip" : Answer(view->DataSourceConnect(tree));
}

std::string ScriptPlayer::Disconnect(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    return view == nullptr ? "skip" : Answer(view->DataSourceDisconnect(step.Arg(2).c_str()));
}

std::string ScriptPlayer::DisconnectAll(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    return view == nullptr ? "skip" : Answer(view->DataSourceDisconnectAll(step.Flag(2)));
}

std::string ScriptPlayer::DropListEverywhere(ScriptStep const& step) {
    Folder* const folder = FindFolder(step.Arg(1));
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (folder == nullptr || source == nullptr) {
        return "skip";
    }
    return Answer(folder->DeleteListRecursive(source));
}

std::string ScriptPlayer::ShowEmptyFolders(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->ShowEmptyFolders(step.Flag(2));
    return "";
}

// Data events

std::string ScriptPlayer::Created(ScriptStep const& step) {
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr || !ScriptData::IsListed(*data_.Source(step.Arg(1)), *item)) {
        return "skip";
    }
    host_.Controller().OnDataItemCreated(item, false);
    return "";
}

std::string ScriptPlayer::Updated(ScriptStep const& step) {
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr) {
        return "skip";
    }
    host_.Controller().OnDataItemSimpleUpdated(item);
    return "";
}

std::string ScriptPlayer::ReportedDeleted(ScriptStep const& step) {
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr) {
        return "skip";
    }
    host_.Controller().OnDataItemSimpleDeleted(item);
    return "";
}

std::string ScriptPlayer::Deleted(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    view->OnDataItemDeleted(item);
    return "";
}

std::string ScriptPlayer::Renumbered(ScriptStep const& step) {
    RecordingSource* const source = data_.Source(step.Arg(1));
    if (source == nullptr) {
        return "skip";
    }
    host_.Controller().OnDataSourceRenumbered(source);
    return "";
}

// Rebuilds

std::string ScriptPlayer::RebuildAll(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    host_.Controller().OnDataItemsRebuildAll(view);
    return "";
}

std::string ScriptPlayer::RebuildLists(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    if (depth_ > 0 && IsForbiddenToAsk(*view)) {
        MarkAllForRebuild();
    }
    host_.Controller().OnAllDirtyDataListsRebuild(view);
    return "";
}

std::string ScriptPlayer::Refresh(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    if (view == nullptr || (depth_ > 0 && IsForbiddenToAsk(*view))) {
        return "skip";
    }
    view->OnAllDirtyDataItemsRebuild();
    return "";
}

std::string ScriptPlayer::Redraw(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->RedrawAllDirtyDataLists(true);
    return "";
}

std::string ScriptPlayer::Build(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->CreateDataDependentViewItems(step.Flag(2));
    return "";
}

std::string ScriptPlayer::BuildItem(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr ||
        !ScriptData::IsListed(*data_.Source(step.Arg(2)), *item)) {
        return "skip";
    }
    std::vector<zbIBrowserViewItem*> created;
    std::vector<zbIBrowserViewItem*> parents;
    view->CreateDataDependentViewItems(item, created, parents, false);
    return "";
}

std::string ScriptPlayer::UnbuildItem(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    RecordingItem* const item = data_.Item(step.Arg(2), step.Arg(3));
    if (view == nullptr || item == nullptr) {
        return "skip";
    }
    view->DeleteDataDependentViewItems(item, step.Flag(4));
    return "";
}

//! Besides rows, `folder=row`, there may be folders and null among the items.
std::string ScriptPlayer::DeleteRows(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    std::vector<zbIBrowserViewItem*> items;
    for (std::size_t i = 3; i < step.Count(); ++i) {
        std::string const& item = step.Arg(i);
        auto const equals = item.find('=');
        std::string const place = step.Arg(1) + ":" + item.substr(0, equals);
        items.push_back(equals == std::string::npos ? FindFolder(place)
                                                    : FindRow(place, item.substr(equals + 1)));
    }
    view->DeleteViewItemList(items, step.Flag(2));
    return items.empty() ? "" : "some items are left in the list";
}

std::string ScriptPlayer::UnsortAll(ScriptStep const& step) {
    zbBrowserView* const view = View(step.Arg(1));
    zbbrowser::View* const newView = NewView(step.Arg(1));
    if (view == nullptr && newView == nullptr) {
        return "skip";
    }
    view != nullptr ? view->SetAllDataItemListsUnsorted() : newView->SetAllDataItemListsUnsorted();
    return "";
}

} // namespace zbtest
