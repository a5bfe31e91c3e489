// SPDX-License-Identifier: MIT
// Hosts that call back from a slot: each operation of folders and contents, interrupted at each of
// its emissions by each of a list of hostile deeds. What the deed deletes is really freed, so that
// a stale pointer shows under AddressSanitizer.
#include "items/old/FolderWalk.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemDataLeaf.h"
#include "support/RecordingHost.h"
#include "support/SignalRecorder.h"
#include "view/OldViewContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Folder = zbBrowserViewItemFreeFolder;
using Items = std::vector<zbIBrowserViewItem*>;
using zbbrowser::detail::CallScope;

//! A view of three folders that show "part", one of them in another, and "tool" beside it.
class Bench {
public:
    Bench() {
        view.DataSourceConnect(&part);
        view.DataSourceConnect(&tool);
        view.CreateList(&box, &part, false);
        view.CreateList(&box, &tool, false);
        view.CreateList(&inner, &part, false);
        view.CreateList(&next, &part, false);
        recorder.Discard();
    }
    ~Bench() { recorder.Discard(); }
    Bench(Bench const&) = delete;
    Bench& operator=(Bench const&) = delete;

    Folder& NewFolder(zbIBrowserViewItemFreeFolder& parent, char const* name) {
        view.CreateFreeFolder(&parent, name);
        return *view.FindFreeFolder(parent.FindChildFreeFolder(name));
    }
    bool HasView() { return host.Controller().OLD_FindView("view") != nullptr; }
    bool Has(Folder const& folder) { return HasView() && view.FindFreeFolder(&folder) != nullptr; }

    //! Runs `deed` at the emission with this number, counted from 0, of any signal of the items.
    void At(std::size_t number, std::function<void()> deed) {
        auto const slot = [this, number, deed = std::move(deed)](auto&&...) {
            if (emissions++ == number)
                deed();
        };
        using Signals = zbBrowserSignalManager;
        static_cast<void>(recorder.On(&Signals::ViewItemCreated, slot));
        static_cast<void>(recorder.On(&Signals::ViewItemChanged, slot));
        static_cast<void>(recorder.On(&Signals::ViewItemDeleted, slot));
        static_cast<void>(recorder.On(&Signals::ViewItemListDeleted, slot));
        static_cast<void>(recorder.On(&Signals::ViewItemShown, slot));
        static_cast<void>(recorder.On(&Signals::ViewItemExpanded, slot));
        static_cast<void>(recorder.On(&Signals::ViewItemCollapsed, slot));
        static_cast<void>(recorder.On(&Signals::ViewContentChanged, slot));
        static_cast<void>(recorder.On(&Signals::FreeFolderCreated, slot));
    }

    zbtest::RecordingHost host;
    zbtest::SignalRecorder recorder{host};
    zbtest::RecordingSource& part = host.Source("part").Items({"bolt", "nut", "pin"});
    zbtest::RecordingSource& tool = host.Source("tool").Items({"saw", "file"});
    zbBrowserView& view = host.OldView();
    Folder& root = *view.FindFreeFolder(view.GetRootFreeFolder());
    Folder& box = NewFolder(root, "box");
    Folder& inner = NewFolder(box, "inner");
    Folder& next = NewFolder(root, "next");
    std::size_t emissions = 0;
    bool partIsGone = false;
};

//! Something to do; for an operation also what has to be done before.
struct Named {
    char const* name;
    std::function<void(Bench&)> run;
    std::function<void(Bench&)> prepare = [](Bench&) {};

    friend void PrintTo(Named const& named, std::ostream* out) { *out << named.name; }
};

void ForEachContent(Bench& bench, std::function<void(zbBrowserFreeFolderContent&)> const& visit) {
    CallScope const scope(bench.root.Context().Lifetime());
    zbbrowser::detail::WalkFolders(bench.root, [&](Folder& folder) {
        folder.RequireHolder().ForEach(visit);
        return true;
    });
}

void MakeDirty(Bench& bench) {
    bench.part.dirty = bench.tool.dirty = true;
    for (auto* const item : bench.part.All())
        item->dirty = true;
}

void ChangeItems(Bench& bench) {
    MakeDirty(bench);
    bench.part.Delete("nut");
    bench.part.Items({"cam", "rod"});
}

std::vector<Named> const operations{
    {"CreateList", [](Bench& b) { b.box.CreateList(&b.part); },
     [](Bench& b) { b.box.DeleteList(&b.part); }},
    {"DeleteList", [](Bench& b) { b.box.DeleteList(&b.part); }},
    {"DeleteListRecursive", [](Bench& b) { b.root.DeleteListRecursive(&b.part); }},
    {"SetListGrouped", [](Bench& b) { b.box.SetListGrouped(&b.part, true); }},
    {"UngroupList", [](Bench& b) { b.box.SetListGrouped(&b.part, false); },
     [](Bench& b) { b.box.SetListGrouped(&b.part, true); }},
    {"SetGroupLeafs", [](Bench& b) { b.view.SetFreeFolderGroupLeafs(&b.box, true); }},
    {"ClearGroupLeafs", [](Bench& b) { b.view.SetFreeFolderGroupLeafs(&b.box, false); },
     [](Bench& b) { b.view.SetFreeFolderGroupLeafs(&b.box, true); }},
    {"SetShowEmptyContainers",
     [](Bench& b) { b.view.SetFreeFolderShowEmptyContainers(&b.box, true); },
     [](Bench& b) { b.view.SetFreeFolderGroupLeafs(&b.box, true); }},
    {"ConnectAll",
     [](Bench& b) { ForEachContent(b, [](auto& content) { content.ConnectAll(false); }); },
     [](Bench& b) { ForEachContent(b, [](auto& content) { content.DeleteAll(); }); }},
    {"RebuildDirty",
     [](Bench& b) { ForEachContent(b, [](auto& content) { content.RebuildDirty(); }); },
     ChangeItems},
    {"RefreshAll", [](Bench& b) { ForEachContent(b, [](auto& content) { content.RefreshAll(); }); },
     MakeDirty},
    {"RedrawDirty",
     [](Bench& b) { ForEachContent(b, [](auto& content) { content.RedrawDirty(); }); }, MakeDirty},
    {"RebuildDirtyToNothing",
     [](Bench& b) { ForEachContent(b, [](auto& content) { content.RebuildDirty(); }); },
     [](Bench& b) {
         MakeDirty(b);
         b.part.DeleteAll();
     }},
    {"CreateDataItem",
     [](Bench& b) {
         Items created;
         Items parents;
         b.view.CreateDataDependentViewItems(b.part.Find("cam"), created, parents, false);
     },
     [](Bench& b) { b.part.Add("cam"); }},
    {"DeleteDataItem",
     [](Bench& b) { b.view.DeleteDataDependentViewItems(b.part.Find("nut"), false); }},
    {"RemoveViewItem",
     [](Bench& b) {
         Items found;
         Items parents;
         b.view.GetDataDependentViewItems(b.part.Find("nut"), found, parents);
         ForEachContent(b, [&](auto& content) {
             for (auto* const item : found)
                 content.OnViewItemRemoved(item);
         });
     }},
    {"ApplyFilter",
     [](Bench& b) { ForEachContent(b, [](auto& content) { content.ApplyFilter(); }); }},
    {"CreateFreeFolder", [](Bench& b) { b.view.CreateFreeFolder(&b.box, "made"); }},
    {"DeleteFreeFolder", [](Bench& b) { b.view.DeleteFreeFolder(&b.inner, true); }},
    {"ExpandRecursive", [](Bench& b) { b.root.ExpandRecursive(true); }},
    {"CollapseRecursive", [](Bench& b) { b.root.CollapseRecursive(true); },
     [](Bench& b) { b.root.ExpandRecursive(true); }},
    {"SetShowWhenEmpty", [](Bench& b) { b.root.SetShowWhenEmpty(false, true); }},
};

std::vector<Named> const deeds{
    {"DeletesTheFolder",
     [](Bench& b) {
         if (b.Has(b.box))
             b.view.DeleteFreeFolder(&b.box, true);
     }},
    {"DeletesTheInnerFolder",
     [](Bench& b) {
         if (b.Has(b.inner))
             b.view.DeleteFreeFolder(&b.inner, true);
     }},
    {"DeletesTheNextFolder",
     [](Bench& b) {
         if (b.Has(b.next))
             b.view.DeleteFreeFolder(&b.next, true);
     }},
    {"DeletesTheListEverywhere", [](Bench& b) { b.root.DeleteListRecursive(&b.part); }},
    {"DeletesAndCreatesTheList",
     [](Bench& b) {
         b.box.DeleteList(&b.part);
         b.box.CreateList(&b.part);
     }},
    {"FreesTheDataItems", [](Bench& b) { b.part.DeleteAll(); }},
    {"FreesADataItem",
     [](Bench& b) {
         if (auto* const last = b.part.Find("pin"))
             b.part.Delete(*last);
     }},
    {"FreesTheSource",
     [](Bench& b) {
         b.view.DataSourceDisconnect("part");
         b.host.Control().DeleteSource("part");
         b.partIsGone = true;
     }},
    {"DeletesRows",
     [](Bench& b) {
         Items rows;
         b.root.GetAllViewItems(rows, true);
         b.view.DeleteViewItemList(rows, false);
     }},
    {"DeletesTheView", [](Bench& b) { b.host.DeleteView(b.view); }},
    {"DeletesTheViewAndFreesTheData",
     [](Bench& b) {
         b.host.DeleteView(b.view);
         b.host.Control().DeleteSource("part");
         b.host.Control().DeleteSource("tool");
         b.partIsGone = true;
     }},
    {"CreatesAFolder", [](Bench& b) { b.view.CreateFreeFolder(&b.root, "new"); }},
    {"CreatesItems",
     [](Bench& b) {
         b.part.Add("late");
         b.part.dirty = true;
         b.view.OnAllDirtyDataListsRebuild();
     }},
    {"RebuildsAll", [](Bench& b) { b.view.OnDataItemsRebuildAll(); }},
    {"MovesTheLists", [](Bench& b) { b.view.SetFreeFolderGroupLeafs(&b.root, true); }},
    {"ThrowsAString", [](Bench&) { throw zbString("slot"); }},
    {"ThrowsAnException", [](Bench&) { throw std::runtime_error("slot"); }},
};

void CheckFolder(Bench& bench, Folder& folder) {
    EXPECT_TRUE(folder.IsAlive());
    EXPECT_EQ(bench.view.FindFreeFolder(&folder), &folder);
    for (auto const& child : folder.ChildFolders()) {
        if (child != nullptr) {
            EXPECT_EQ(child->Owner(), &folder);
        }
    }
    if (folder.Holder() == nullptr)
        return;
    auto& content = folder.Holder()->NoGrouping();
    EXPECT_TRUE(content.IsAlive());
    EXPECT_TRUE(content.Leaves().IsConsistent());
    EXPECT_TRUE(content.Leaves().IsIndexInStep());
    content.Leaves().ForEach([&](zbBrowserViewItemDataLeaf& leaf) {
        EXPECT_EQ(leaf.GetParentFreeFolder(), &folder);
        EXPECT_EQ(folder.Context().FindLeaf(&leaf), &leaf);
    });
    for (auto const* const list : {&bench.part, &bench.tool}) {
        if (content.FindList(list) == nullptr) {
            EXPECT_EQ(content.Leaves().CountOf(list), 0U) << "rows without their list";
        }
    }
}

//! The view has held together, and still works.
void CheckView(Bench& bench) {
    if (!bench.HasView())
        return;
    CallScope const scope(bench.root.Context().Lifetime());
    zbbrowser::detail::WalkFolders(bench.root, [&](Folder& folder) {
        CheckFolder(bench, folder);
        return true;
    });
    bench.host.manager.signals = nullptr; // A signal whose slot threw is mute
    auto& spare = bench.host.Source("spare").Items({"one", "two"});
    auto& fresh = bench.NewFolder(bench.root, "afterwards");
    EXPECT_TRUE(fresh.CreateList(&spare) || fresh.GetGroupLeafs());
    EXPECT_EQ(fresh.GetChildrenCount(), fresh.GetGroupLeafs() ? 0U : 2U);
}

//! Lists that are rebuilt show what their source has, whatever has happened to their rows.
void CheckRebuild(Bench& bench) {
    if (!bench.HasView() || bench.partIsGone)
        return;
    CallScope const scope(bench.root.Context().Lifetime());
    zbbrowser::detail::WalkFolders(bench.root, [&](Folder& folder) {
        auto& content = folder.RequireHolder().NoGrouping();
        if (content.FindList(&bench.part) != nullptr) {
            content.RebuildList(&bench.part, true);
            EXPECT_EQ(content.Leaves().CountOf(&bench.part), bench.part.All().size());
        }
        return true;
    });
}

class ContentReentranceTest : public testing::TestWithParam<std::tuple<Named, Named>> {
protected:
    //! False once the operation has fewer emissions than that.
    bool InterruptAt(std::size_t number) {
        auto const& operation = std::get<0>(GetParam());
        auto const& deed = std::get<1>(GetParam());
        Bench bench;
        operation.prepare(bench);
        bench.emissions = 0;
        bool done = false;
        bench.At(number, [&] {
            done = true;
            deed.run(bench);
        });
        try {
            operation.run(bench);
        } catch (zbString const&) {
        } catch (std::runtime_error const&) {
        }
        EXPECT_EQ(bench.host.manager.longOperations, 0);
        CheckView(bench);
        CheckRebuild(bench);
        return done;
    }
};

TEST_P(ContentReentranceTest, ASlotMayDoThisAtAnyEmission) {
    std::size_t number = 0;
    while (InterruptAt(number) && !HasFailure())
        ++number;

    EXPECT_GT(number, 0U) << "the operation raised nothing";
}

INSTANTIATE_TEST_SUITE_P(Slots, ContentReentranceTest,
                         testing::Combine(testing::ValuesIn(operations), testing::ValuesIn(deeds)),
                         [](auto const& test) {
                             return std::string(std::get<0>(test.param).name) + "_" +
                                    std::get<1>(test.param).name;
                         });

} // namespace
