// SPDX-License-Identifier: MIT
#include "ReentranceBench.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>

#include <map>

namespace zbtest {

using FreeFolder = zbIBrowserViewItemFreeFolder;

std::vector<Trigger> const& AllTriggers() {
    static std::vector<Trigger> const triggers = {
        {"ViewItemCreated", ""},
        {"ViewItemChanged", ""},
        {"ViewItemDeleted", ""},
        {"ViewItemListDeleted", ""},
        {"ViewItemShown", ""},
        {"ViewItemExpanded", ""},
        {"ViewItemCollapsed", ""},
        {"ViewContentChanged", ""},
        {"FreeFolderCreated", ""},
        {"FreeFolderStyleChanged", ""},
        {"EmptyFoldersShown", ""},
        {"SelectionClearing", ""},
        {"ViewItemsSelected", ""},
        {"ViewItemsDeselected", ""},
        {"DataItemsSelectionChanging", ""},
        {"DataItemsGrouped", ""},
        {"DataItemsSelectionSummary", ""},
        {"SelectionManagerChanged", ""},
        {"SelectionChangeFinished", ""},
        {"OnSelectionChanged", "notifier"},
        {"OnSelectionFinished", "notifier"},
        {"ShowViewItem", "manager"},
        {"IsHiddenFromTree", "engine"},
        {"OnConnected", "spare"},
        {"OnDisconnected", "part"},
        {"OnDisconnected", "tool"},
        {"OnDisconnected", "assembly"},
        {"GetDataItems", "part"},
        {"GetDataItems", "tool"},
        {"ContainsDataItem", "part"},
        {"ContainsDataItem", "tool"},
        {"FindDataSourceSimple", "data"},
        {"FindDataSourceHierarchical", "data"},
        {"BeginLongOperation", "manager"},
        {"EndLongOperation", "manager"},
        {"IsDirty", "part"},
        {"IsDirty", "tool"},
        {"IsDirty", "assembly"},
        {"IsDirty", "nut_2"},
        {"IsDirty", "saw_1"},
        {"ClearDirty", "part"},
        {"ClearDirty", "tool"},
        {"GetChildTypes", "assembly"},
        {"BeginChange", "assembly"},
        {"EndChange", "assembly"},
        {"OnViewLost", "assembly"},
        {"FindDataSourceSimple", "assembly"},
        {"GetChildren", "assembly"},
        {"GetDataSource", "nut_2"},
        {"GetDataSource", "engine"},
        {"GetString", "part_size"},
    };
    return triggers;
}

ReentranceBench::ReentranceBench()
    : view(&host.OldView())
    , root(view->GetRootFreeFolder())
    , a(Make(root, "a"))
    , b(Make(a, "b"))
    , c(Make(root, "c"))
    , g(Make(root, "g")) {
    auto& part = host.Source("part").Items({"bolt_1", "nut_2", "nut_3", "pin_4"});
    auto& tool = host.Source("tool").Items({"saw_1", "file_2", "drill_3"});
    auto& assembly = host.Tree("assembly", host.Source("assembly_type"));
    assembly.childTypes.push_back(&part);
    host.Source("spare").Items({"rest_1"});
    EXPECT_TRUE(view->DataSourceConnect(&part));
    EXPECT_TRUE(view->DataSourceConnect(&tool));
    EXPECT_TRUE(view->DataSourceConnect(&assembly));
    EXPECT_TRUE(view->CreateList(a, &part, false));
    EXPECT_TRUE(view->CreateList(a, &tool, false));
    EXPECT_TRUE(view->CreateTree(a, &assembly));
    EXPECT_TRUE(view->CreateList(b, &part, false));
    EXPECT_TRUE(view->CreateList(c, &tool, false));
    EXPECT_TRUE(view->SetFreeFolderGroupLeafs(g, true));
    EXPECT_TRUE(view->CreateList(g, &part, false));
    announced = &part.Add("new_5");
    engine = &assembly.Add(host.Source("assembly_type"), "engine");
    auto& selection = *view->GetSelectionManager();
    selection.AddNotifier(&notifier_);
    selection.UpdateSelection(
        {b, RowOf(*view, *a, "nut_2"), RowOf(*view, *a, "saw_1"), RowOf(*view, *c, "file_2")}, true,
        false);
    host.panel.activeView = view;
}

FreeFolder* ReentranceBench::Make(FreeFolder* parent, char const* name) {
    EXPECT_TRUE(view->CreateFreeFolder(parent, name));
    return parent->FindChildFreeFolder(name);
}

namespace {

template <class... Args>
void Hear(zbSignal<single_threaded, Args...>& signal, std::function<void()> const& reached) {
    static_cast<void>(signal.Connect([reached](Args...) { reached(); }));
}

} // namespace

void ReentranceBench::Listen(std::string const& signal) {
    zbBrowserSignalManager& s = host.signals;
    zbBrowserDataSignalManager& d = host.dataSignals;
    std::function<void()> const reached = [this] { Reached(); };
    std::map<std::string, std::function<void()>> const connects = {
        {"ViewItemCreated", [&] { Hear(s.ViewItemCreated, reached); }},
        {"ViewItemChanged", [&] { Hear(s.ViewItemChanged, reached); }},
        {"ViewItemDeleted", [&] { Hear(s.ViewItemDeleted, reached); }},
        {"ViewItemListDeleted", [&] { Hear(s.ViewItemListDeleted, reached); }},
        {"ViewItemShown", [&] { Hear(s.ViewItemShown, reached); }},
        {"ViewItemExpanded", [&] { Hear(s.ViewItemExpanded, reached); }},
        {"ViewItemCollapsed", [&] { Hear(s.ViewItemCollapsed, reached); }},
        {"ViewContentChanged", [&] { Hear(s.ViewContentChanged, reached); }},
        {"FreeFolderCreated", [&] { Hear(s.FreeFolderCreated, reached); }},
        {"FreeFolderStyleChanged", [&] { Hear(s.FreeFolderStyleChanged, reached); }},
        {"EmptyFoldersShown", [&] { Hear(s.EmptyFoldersShown, reached); }},
        {"SelectionClearing", [&] { Hear(s.SelectionClearing, reached); }},
        {"ViewItemsSelected", [&] { Hear(s.ViewItemsSelected, reached); }},
        {"ViewItemsDeselected", [&] { Hear(s.ViewItemsDeselected, reached); }},
        {"DataItemsSelectionChanging", [&] { Hear(d.DataItemsSelectionChanging, reached); }},
        {"DataItemsGrouped", [&] { Hear(d.DataItemsGrouped, reached); }},
        {"DataItemsSelectionSummary", [&] { Hear(d.DataItemsSelectionSummary, reached); }},
        {"SelectionManagerChanged", [&] { Hear(d.SelectionManagerChanged, reached); }},
        {"SelectionChangeFinished", [&] { Hear(d.SelectionChangeFinished, reached); }},
    };
    connects.at(signal)();
}

void ReentranceBench::Arm(Trigger const& trigger, int nth, std::function<void()> deed) {
    trigger_ = trigger;
    left_ = nth;
    deed_ = std::move(deed);
    if (trigger.IsSignal()) {
        Listen(trigger.name);
    } else {
        host.calls.On(trigger.name, trigger.object, [this] { Reached(); });
    }
}

bool ReentranceBench::Disarm() {
    left_ = 0;
    if (!trigger_.IsSignal()) {
        host.calls.Called(trigger_.name.c_str(), trigger_.object); // A hook must be reached once
        host.calls.Off(trigger_.name, trigger_.object);
    }
    return done_;
}

void ReentranceBench::Reached() {
    if (left_ > 0 && --left_ == 0) {
        done_ = true;
        deed_();
    }
}

bool ReentranceBench::IsCalled(RecordingSource& source) const {
    return Callee().starts_with(source.Name()) || source.Find(Callee()) != nullptr;
}

void ReentranceBench::FreeSource(std::string const& name) {
    RecordingSource& source = host.Source(name);
    if (IsCalled(source)) {
        return;
    }
    if (ViewLives()) {
        view->DataSourceDisconnect(name.c_str());
    }
    if (name == "part" && host.Control().FindDataSourceHierarchical("assembly") != nullptr) {
        auto& assembly = host.Tree("assembly");
        std::erase(assembly.childTypes, &source);
    }
    host.Control().DeleteSource(name);
}

std::vector<zbIBrowserViewItem*> ReentranceBench::SomeRows() {
    std::vector<zbIBrowserViewItem*> rows;
    for (auto* const folder : {a, c}) {
        if (view->FindFreeFolder(folder) == nullptr) {
            continue;
        }
        for (char const* const name : {"bolt_1", "nut_2", "saw_1", "drill_3"}) {
            if (auto* const row = RowOf(*view, *folder, name); row != nullptr) {
                rows.push_back(row);
            }
        }
    }
    return rows;
}

std::vector<zbIBrowserDataItemSimple*> ReentranceBench::SomeData() {
    std::vector<zbIBrowserDataItemSimple*> items;
    for (char const* const name : {"part", "tool"}) {
        auto const& all = host.Source(name).All();
        items.insert(items.end(), all.begin(), all.end());
    }
    return items;
}

void ReentranceBench::FreeItems(std::string const& name) {
    RecordingSource& source = host.Source(name);
    std::vector<RecordingItem*> const items = source.All();
    for (std::size_t i = 0; i < items.size(); i += 2) {
        if (items[i]->Name() != Callee()) {
            source.Delete(*items[i]);
        }
    }
}

void ReentranceBench::ExpectSound(FreeFolder& folder, bool complete) {
    EXPECT_EQ(folder.GetView(), view);
    std::vector<FreeFolder*> children;
    folder.GetChildFreeFolders(children, false, true);
    std::vector<zbIBrowserViewItem*> items;
    view->GetChildren(items, &folder);
    ASSERT_GE(items.size(), children.size());
    for (std::size_t i = 0; i < children.size(); ++i) {
        EXPECT_EQ(items[i], children[i]);
        EXPECT_EQ(children[i]->GetParent(), &folder);
        ExpectSound(*children[i], complete);
    }
    Names rows;
    for (std::size_t i = children.size(); i < items.size(); ++i) {
        EXPECT_TRUE(items[i]->IsDataLeaf());
        EXPECT_EQ(items[i]->GetParentFreeFolder(), &folder);
        EXPECT_EQ(items[i]->GetView(), view);
        rows.push_back(
            host.calls.NameOf(static_cast<zbIBrowserDataItem*>(items[i]->GetDataItemSimple())));
    }
    EXPECT_EQ(rows.size(), folder.GetChildrenCount());
    if (!complete) {
        return;
    }
    std::vector<zbIBrowserDataSourceSimple*> lists;
    folder.GetLists(lists);
    Names data;
    for (zbIBrowserDataSourceSimple* const list : lists) {
        for (RecordingItem* const item : static_cast<RecordingSource*>(list)->All()) {
            data.push_back(item->Name());
        }
    }
    EXPECT_EQ(rows, folder.GetGroupLeafs() ? Names() : data) << "in folder " << folder.GetName();
}

void ReentranceBench::ExpectThatTheViewWorks() {
    ExpectSound(*root, false);
    auto& fresh = host.Source("fresh").Items({"fresh_1", "fresh_2"});
    view->SetDataCtrl(&host.Control());
    EXPECT_TRUE(view->DataSourceConnect(&fresh));
    auto* const folder = Make(root, "fresh");
    ASSERT_NE(folder, nullptr);
    EXPECT_TRUE(view->CreateList(folder, &fresh, false));
    EXPECT_EQ(ChildrenOf(*view, *folder), (Names{"fresh_1", "fresh_2"}));
}

void ReentranceBench::ExpectThatARebuildShowsTheData() {
    view->OnDataItemsRebuildAll();
    ExpectSound(*root, true);
}

} // namespace zbtest
