// SPDX-License-Identifier: MIT
//! \file
//! Slots and host operations that change, delete or leave by an exception what is being worked on.

#include "ReentranceBench.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>

#include <iterator>
#include <stdexcept>

namespace {

using zbtest::AllTriggers;
using zbtest::ChildrenOf;
using zbtest::Names;
using zbtest::RecordingItem;
using zbtest::RecordingManager;
using zbtest::ReentranceBench;
using zbtest::Trigger;

struct Operation {
    char const* name;
    void (*run)(ReentranceBench&);
    void (*prepare)(ReentranceBench&) = [](ReentranceBench&) {};
};

struct Deed {
    char const* name;
    void (*act)(ReentranceBench&, Operation const&);
    bool throws = false;
    bool freesItems = false;
    bool freesSources = false;
};

void MakeDirty(ReentranceBench& bench) {
    bench.host.Source("part").dirty = true;
    bench.host.Source("tool").dirty = true;
    bench.host.Tree("assembly").dirty = true;
    for (char const* const source : {"part", "tool"}) {
        for (RecordingItem* const item : bench.host.Source(source).All()) {
            item->dirty = true;
        }
    }
}

//! New rows to be made, and old ones to go.
void ChangeData(ReentranceBench& bench) {
    bench.host.Source("part").Unlist("nut_3");
    bench.host.Source("tool").Unlist("drill_3");
    bench.host.Source("tool").Add("plane_4");
    MakeDirty(bench);
}

void Group(ReentranceBench& bench) {
    bench.view->SetFreeFolderGroupLeafs(bench.a, true);
}

void EmptyTheSources(ReentranceBench& bench) {
    for (char const* const source : {"part", "tool"}) {
        auto const items = bench.host.Source(source).All();
        for (RecordingItem* const item : items) {
            bench.host.Source(source).Unlist(*item);
        }
    }
    bench.a->SetShowWhenEmpty(false, false);
}

void ConnectText(ReentranceBench& bench) {
    auto& part = bench.host.Source("part");
    bench.view->CreateViewProperty("size");
    bench.view->CreateVPConnect(bench.view->FindViewProperty("size"), &part,
                                &part.Property("part_size"));
}

void ReadText(ReentranceBench& bench) {
    zbIBrowserDataSourceSimple* const part = &bench.host.Source("part");
    auto* const property = bench.view->FindViewProperty("size");
    zbString text;
    bench.view->GetSelectionManager()->GetSelectedPropertyTextOfSource(part, property, property,
                                                                       text, true);
}

// Short, for the tables
using B = ReentranceBench;
using O = Operation const;
using TreeItems = std::vector<zbIBrowserDataItemHierarchical*>;

constexpr Operation allOperations[] = {
    {"CreateList", [](B& t) { t.view->CreateList(t.c, &t.host.Source("part"), false); }},
    {"DeleteList", [](B& t) { t.view->DeleteList(t.a, &t.host.Source("part")); }},
    {"CreateTree", [](B& t) { t.view->CreateTree(t.c, &t.host.Tree("assembly")); }},
    {"DeleteTree", [](B& t) { t.view->DeleteTree(t.a, &t.host.Tree("assembly")); }},
    {"CreateFreeFolder", [](B& t) { t.view->CreateFreeFolder(t.a, "x"); }},
    {"DeleteFreeFolder", [](B& t) { t.view->DeleteFreeFolder(t.a, true); }},
    {"GroupLeafs", [](B& t) { t.view->SetFreeFolderGroupLeafs(t.a, true); }},
    {"UngroupLeafs", [](B& t) { t.view->SetFreeFolderGroupLeafs(t.a, false); }, Group},
    {"ShowEmptyContainers", [](B& t) { t.view->SetFreeFolderShowEmptyContainers(t.a, true); },
     Group},
    {"ShowEmptyFolders", [](B& t) { t.view->ShowEmptyFolders(false); }},
    {"IsEmptyFolderCanBeShown", [](B& t) { t.view->IsEmptyFolderCanBeShown(t.a); },
     EmptyTheSources},
    {"Expand", [](B& t) { t.view->ExpandFreeFolder(t.a, true); }},
    {"Collapse", [](B& t) { t.view->CollapseFreeFolder(t.a, true); },
     [](B& t) { t.view->ExpandFreeFolder(t.a, true); }},
    {"ConnectSource", [](B& t) { t.view->DataSourceConnect(&t.host.Source("spare")); }},
    {"ConnectTree", [](B& t) { t.view->DataSourceConnect(&t.host.Tree("assembly")); },
     [](B& t) { t.view->DataSourceDisconnect("assembly"); }},
    {"DisconnectSource", [](B& t) { t.view->DataSourceDisconnect("part"); }},
    {"DisconnectTree", [](B& t) { t.view->DataSourceDisconnect("assembly"); }},
    {"DisconnectAll", [](B& t) { t.view->DataSourceDisconnectAll(true); }},
    {"SetDataCtrl", [](B& t) { t.view->SetDataCtrl(nullptr); }},
    {"DataControlDeleted", [](B& t) { t.host.Controller().OnDataControlDeleted("data"); }},
    {"ViewDataControlDeleted", [](B& t) { t.view->OnDataControlDeleted("data"); }},
    {"FindTypeOfTree", [](B& t) { t.view->GetDataSourceSimpleFromHierarchical("nothing"); }},
    {"ItemCreated", [](B& t) { t.host.Controller().OnDataItemCreated(t.announced, false); }},
    {"ItemUpdated",
     [](B& t) {
         t.host.Controller().OnDataItemSimpleUpdated(t.host.Source("part").Find("nut_2"));
     }},
    {"ItemDeleted", [](B& t) { t.view->OnDataItemDeleted(t.host.Source("part").Find("nut_2")); }},
    {"DeleteRowsOfItem",
     [](B& t) {
         t.view->DeleteDataDependentViewItems(t.host.Source("part").Find("nut_2"), false);
     }},
    {"RebuildAll", [](B& t) { t.host.Controller().OnDataItemsRebuildAll(t.view); }},
    {"RebuildLoud", [](B& t) { t.view->CreateDataDependentViewItems(false); }, ChangeData},
    {"RebuildLists", [](B& t) { t.host.Controller().OnAllDirtyDataListsRebuild(t.view); },
     ChangeData},
    {"RebuildEmptyLists", [](B& t) { t.host.Controller().OnAllDirtyDataListsRebuild(t.view); },
     [](B& t) {
         MakeDirty(t);
         EmptyTheSources(t);
     }},
    {"RebuildItems", [](B& t) { t.view->OnAllDirtyDataItemsRebuild(); }, MakeDirty},
    {"Redraw", [](B& t) { t.view->RedrawAllDirtyDataLists(false); }, MakeDirty},
    {"ShowFolder", [](B& t) { t.a->Show(); }},
    {"MarkFolder", [](B& t) { t.a->SetShowWhenEmpty(false, true); }},
    {"DeleteViewItemList",
     [](B& t) {
         std::vector<zbIBrowserViewItem*> items;
         t.view->GetChildren(items, t.c);
         t.view->DeleteViewItemList(items, false);
     }},
    {"TreeItemCreated", [](B& t) { t.host.Controller().OnDataItemCreated(t.engine, false); }},
    {"Descendants",
     [](B& t) {
         TreeItems out;
         t.view->AppendDescendentDataItems(out, {t.engine, t.engine});
     }},
    {"SelectTreeItems",
     [](B& t) { t.view->OnDataItemsSelected(TreeItems{t.engine}, false, false); }},
    {"SelectData", [](B& t) { t.host.Controller().OnDataItemsSelected(t.SomeData(), true); }},
    {"DeselectData", [](B& t) { t.host.Controller().OnDataItemsDeselected(t.SomeData()); }},
    {"SelectRows",
     [](B& t) { t.host.Controller().OnUpdateViewSelection(t.view, t.SomeRows(), true, true); }},
    {"DeselectFolder", [](B& t) { t.view->DeselectViewItem(t.root, true); }},
    {"DeselectAll", [](B& t) { t.view->DeselectAllViewItems(); }},
    {"AnnounceSelection", [](B& t) { t.view->UpdatePreviousSelection(); }},
    {"SelectedSources",
     [](B& t) {
         std::set<zbIBrowserDataSourceSimple*> sources;
         t.view->GetSelectionManager()->GetSelectedDataSources(sources, true);
     }},
    {"SelectedText", ReadText, ConnectText},
};

// While the control looks for the tree, it reads the tree's own name.
void FreeAllData(ReentranceBench& bench) {
    if (bench.Callee() != "assembly" && bench.Callee() != "data" && bench.Callee() != "engine") {
        if (bench.ViewLives()) {
            bench.view->DataSourceDisconnect("assembly");
        }
        bench.host.Control().DeleteTree("assembly");
    }
    for (char const* const source : {"part", "tool"}) {
        if (bench.host.Control().FindDataSourceSimple(source) != nullptr) {
            bench.FreeSource(source);
        }
    }
}

constexpr Deed allDeeds[] = {
    {"DeletesTheFolder", [](B& t, O&) { t.view->DeleteFreeFolder(t.a, true); }},
    {"DeletesTheOtherFolder", [](B& t, O&) { t.view->DeleteFreeFolder(t.c, true); }},
    {"DeletesTheLists",
     [](B& t, O&) {
         t.view->DeleteList(t.a, &t.host.Source("part"));
         t.view->DeleteList(t.a, &t.host.Source("tool"));
         t.view->DeleteList(t.c, &t.host.Source("tool"));
     }},
    {"DeletesTheTree", [](B& t, O&) { t.view->DeleteTree(t.a, &t.host.Tree("assembly")); }},
    {"FreesTheItems",
     [](B& t, O&) {
         t.FreeItems("part");
         t.FreeItems("tool");
     },
     false, true},
    {"FreesOneSource", [](B& t, O&) { t.FreeSource("part"); }, false, false, true},
    {"FreesTheOtherSource", [](B& t, O&) { t.FreeSource("tool"); }, false, false, true},
    {"FreesTheFolderAndAllData",
     [](B& t, O&) {
         try {
             t.view->DeleteFreeFolder(t.a, true);
         } catch (zbString const&) {
             SUCCEED(); // It has gone already
         }
         FreeAllData(t);
     },
     false, false, true},
    {"TakesTheControlAway",
     [](B& t, O&) {
         t.view->SetDataCtrl(nullptr);
         FreeAllData(t);
     },
     false, false, true},
    {"DeletesTheView", [](B& t, O&) { t.host.DeleteView(*t.view); }},
    {"DeletesTheViewAndAllData",
     [](B& t, O&) {
         t.host.DeleteView(*t.view);
         FreeAllData(t);
     }},
    {"MakesFoldersAndLists",
     [](B& t, O&) {
         for (auto* const folder : {t.root, t.a, t.c}) {
             t.view->CreateFreeFolder(folder, "made");
             if (auto* const made = folder->FindChildFreeFolder("made"); made != nullptr) {
                 t.view->CreateList(made, &t.host.Source("spare"), false);
             }
         }
         t.view->CreateList(t.c, &t.host.Source("part"), false);
         t.host.Source("tool").Add("made_7");
     }},
    {"RebuildsEverything",
     [](B& t, O&) {
         t.view->OnDataItemsRebuildAll();
         t.view->OnAllDirtyDataListsRebuild();
     }},
    {"SelectsOthers",
     [](B& t, O&) {
         auto const rows = t.SomeRows();
         t.view->GetSelectionManager()->UpdateSelection(rows, true, true);
         t.view->DeselectViewItem(t.root, true);
         t.view->GetSelectionManager()->UpdateSelection(rows, true, false);
         t.view->OnDataItemsSelected(t.SomeData(), {}, true);
     }},
    {"DeletesRows",
     [](B& t, O&) {
         auto rows = t.SomeRows();
         t.view->DeleteViewItemList(rows, false);
     }},
    {"Sorts",
     [](B& t, O&) {
         t.view->CreateTextBoxColumn("sorted", "");
         auto* const column = t.view->FindColumn("sorted");
         t.view->SetAscendingOrder(column, false);
         EXPECT_FALSE(ChildrenOf(*t.view, *t.root).empty());
         t.view->DeleteScriptedColumn(column);
     }},
    {"RaisesEvents",
     [](B& t, O&) {
         for (auto* const item : t.SomeData()) {
             t.host.Controller().OnDataItemCreated(item, false);
             t.host.Controller().OnDataItemSimpleUpdated(item);
             t.view->OnDataItemDeleted(item);
         }
         t.view->OnAllDirtyDataItemsRebuild();
         t.view->RedrawAllDirtyDataLists(false);
     }},
    {"DoesTheSameAgain", [](B& t, O& operation) { operation.run(t); }},
    {"ThrowsText", [](B&, O&) { throw "slot failed"; }, true},
    {"ThrowsString", [](B&, O&) { throw zbString("slot failed"); }, true},
    {"ThrowsException", [](B&, O&) { throw std::runtime_error("slot failed"); }, true},
};

class ReentranceTest : public testing::TestWithParam<std::tuple<std::size_t, std::size_t>> {
protected:
    Operation const& operation = allOperations[std::get<0>(GetParam())];
    Deed const& deed = allDeeds[std::get<1>(GetParam())];

    //! False if the trigger is not reached so often.
    bool RunWith(Trigger const& trigger, int nth);
    void Run(ReentranceBench& bench) const;
    void Check(ReentranceBench& bench) const;
};

// A nested DeleteFreeFolder may find its folder gone, and says so.
void ReentranceTest::Run(ReentranceBench& bench) const {
    bool thrown = false;
    try {
        operation.run(bench);
    } catch (char const* text) {
        thrown = deed.throws && text == std::string("slot failed");
    } catch (zbString const& text) {
        thrown = text == (deed.throws ? "slot failed" : "Null pointer hit");
    } catch (std::runtime_error const& error) {
        thrown = deed.throws && error.what() == std::string("slot failed");
    }
    if (bench.Disarm() && deed.throws) {
        EXPECT_TRUE(thrown) << "what the slot throws arrives at the caller";
    }
}

void ReentranceTest::Check(ReentranceBench& bench) const {
    if (!deed.throws) {
        EXPECT_EQ(bench.host.manager.longOperations, 0);
    }
    if (!bench.ViewLives()) {
        EXPECT_EQ(bench.host.Controller().FindView("view"), nullptr);
        EXPECT_NE(&bench.host.OldView(), nullptr);
        return;
    }
    bench.ExpectThatTheViewWorks();
    if (!deed.throws) {
        bench.ExpectThatARebuildShowsTheData();
    }
}

bool ReentranceTest::RunWith(Trigger const& trigger, int nth) {
    SCOPED_TRACE(trigger.name + " " + trigger.object + " " + std::to_string(nth));
    ReentranceBench bench;
    operation.prepare(bench);
    bool done = false;
    bench.Arm(trigger, nth, [&] {
        done = true;
        deed.act(bench, operation);
    });
    Run(bench);
    Check(bench);
    return done;
}

// What an item of the source is asked in the middle of a walk over its siblings is no place to free
// those, and neither is the question for its source in the middle of a list that the host gave,
// unless the view goes too.
bool IsAllowed(Deed const& deed, Trigger const& trigger) {
    if (trigger.name == "GetDataSource" && deed.freesSources) {
        return false;
    }
    return !deed.freesItems || trigger.IsSignal() || trigger.name == "GetDataItems" ||
           trigger.name == "ContainsDataItem" || trigger.name == "OnConnected" ||
           trigger.name == "OnDisconnected" || trigger.name == "FindDataSourceSimple";
}

TEST_P(ReentranceTest, TheViewSurvives) {
    for (Trigger const& trigger : AllTriggers()) {
        for (int nth = 1; nth <= 6 && IsAllowed(deed, trigger); ++nth) {
            if (!RunWith(trigger, nth)) {
                break;
            }
        }
        if (HasFailure()) {
            return;
        }
    }
}

std::string NameOfCase(testing::TestParamInfo<std::tuple<std::size_t, std::size_t>> const& info) {
    return std::string(allOperations[std::get<0>(info.param)].name) +
           allDeeds[std::get<1>(info.param)].name;
}

INSTANTIATE_TEST_SUITE_P(WhenSomebodyWithin, ReentranceTest,
                         testing::Combine(testing::Range(std::size_t{0}, std::size(allOperations)),
                                          testing::Range(std::size_t{0}, std::size(allDeeds))),
                         NameOfCase);

// A matrix whose operations call nobody would test nothing.
TEST(ReentranceMatrix, EachOperationIsLeftSomewhere) {
    for (Operation const& operation : allOperations) {
        bool reached = false;
        for (Trigger const& trigger : AllTriggers()) {
            ReentranceBench bench;
            operation.prepare(bench);
            bench.Arm(trigger, 1, [] {});
            operation.run(bench);
            reached = bench.Disarm() || reached;
        }
        EXPECT_TRUE(reached) << operation.name;
    }
}

TEST(ReentranceMatrix, EachPointIsReachedBySomeOperation) {
    for (Trigger const& trigger : AllTriggers()) {
        bool reached = false;
        for (Operation const& operation : allOperations) {
            ReentranceBench bench;
            operation.prepare(bench);
            bench.Arm(trigger, 1, [] {});
            operation.run(bench);
            reached = bench.Disarm() || reached;
        }
        EXPECT_TRUE(reached) << trigger.name << " " << trigger.object;
    }
}

} // namespace
