// SPDX-License-Identifier: MIT
//! \file
//! Single operations for which memory ends, at each of their allocations in turn. Whole tests:
//! support/AllocationRun.h.
#include "support/AllocationFailures.h"
#include "support/Generations.h"
#include "ViewTestSupport.h"

#include <zbBrowserView/zbIBrowserSelectionManager.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>

#include <new>

namespace zbtest {
namespace {

//! Lets the nth allocation of an action fail, counted from 0. False: it has no more than n.
template <class Action>
bool FailsAt(std::size_t nth, Action action) {
    AllocationFailures::Begin(Failing::Once, nth);
    try {
        action();
    } catch (std::bad_alloc const&) {
        EXPECT_TRUE(AllocationFailures::HasFailed());
    } catch (zbString const&) { // As the controller says it
        EXPECT_TRUE(AllocationFailures::HasFailed());
    }
    AllocationFailures::End();
    return AllocationFailures::HasFailed();
}

class OutOfMemoryTest : public ViewTest {
protected:
    OutOfMemoryTest() {
        signals.Only({});
        host.calls.CountCalls(false);
    }

    FreeFolder& box = Folder("box");
    RecordingSource& part = Connected("part", {"bolt_1", "nut_2"});
};

TEST_F(OutOfMemoryTest, AListIsTakenOutWithItsRowsOrNotAtAll) {
    for (std::size_t n = 0;; ++n) {
        ASSERT_TRUE(view.CreateList(&box, &part, false));

        auto const failed = FailsAt(n, [&] { view.DeleteList(&box, &part); });

        EXPECT_EQ(box.FindList(&part) == nullptr ? 0U : 2U, box.GetChildrenCount());
        view.DeleteList(&box, &part);
        EXPECT_EQ(box.GetChildrenCount(), 0U);
        if (!failed) {
            EXPECT_GT(n, 0U);
            break;
        }
    }
}

TEST_F(OutOfMemoryTest, AListIsInOneOfTwoPlacesWhileItMoves) {
    for (std::size_t n = 0;; ++n) {
        auto& folder = Folder("moved");
        ASSERT_TRUE(view.CreateList(&folder, &part, false));

        auto const failed = FailsAt(n, [&] { folder.SetListGrouped(&part, true); });

        std::vector<zbIBrowserDataSourceSimple*> lists;
        folder.GetLists(lists);
        EXPECT_THAT(lists, testing::ElementsAre(&part));
        view.DeleteFreeFolder(&folder, true);
        if (!failed) {
            EXPECT_GT(n, 0U);
            break;
        }
    }
}

TEST_F(OutOfMemoryTest, TheListsOfAFolderStayWhenItIsToShowEmptyGroups) {
    for (std::size_t n = 0;; ++n) {
        auto& folder = Folder("shown");
        ASSERT_TRUE(view.SetFreeFolderGroupLeafs(&folder, true));
        ASSERT_TRUE(view.CreateList(&folder, &part, false));

        auto const failed =
            FailsAt(n, [&] { view.SetFreeFolderShowEmptyContainers(&folder, true); });

        EXPECT_EQ(folder.FindList(&part), &part);
        view.DeleteFreeFolder(&folder, true);
        if (!failed) {
            EXPECT_GT(n, 0U);
            break;
        }
    }
}

TEST_F(OutOfMemoryTest, AnExceptionThroughNestedOperationsLeavesTheViewIdle) {
    ASSERT_TRUE(view.CreateList(&box, &part, false));
    host.OldView("other");
    signals.Once(&zbBrowserSignalManager::ViewItemShown, [](auto*) { throw std::bad_alloc(); });

    EXPECT_THROW(box.Show(), std::bad_alloc);
    auto const before = LiveAllocations();
    EXPECT_TRUE(host.DeleteView(view));

    EXPECT_LT(LiveAllocations(), before);
}

template <class Generation>
class OutOfMemory : public testing::Test {
protected:
    RecordingHost host;

    OutOfMemory() { host.calls.CountCalls(false); }

    //! A view with what a view can have.
    void MakeView() {
        auto& view = Generation::Make(host, "view");
        auto& root = *view.GetRootFreeFolder();
        view.CreateFreeFolder(&root, "a");
        view.CreateFreeFolder(root.FindChildFreeFolder("a"), "b");
        view.CreateFreeFolder(&root, "c");
        auto& part = host.Source("part").Items({"bolt_1", "nut_2"});
        view.CreateTextBoxColumn("weight", "Weight");
        view.FindColumn("weight")->CreateStyle("bold");
        view.CreateViewProperty("colour");
        if constexpr (std::is_same_v<Generation, OldGeneration>) {
            view.DataSourceConnect(&part);
            view.CreateList(&root, &part, false);
        }
        view.SetAscendingOrder(view.GetDefaultColumn(), true);
        view.GetSelectionManager()->UpdateSelection({&root, root.FindChildFreeFolder("c")}, true,
                                                    false);
    }
};

TYPED_TEST_SUITE(OutOfMemory, Generations, GenerationName);

TYPED_TEST(OutOfMemory, AViewGoesWithoutMemory) {
    this->MakeView();
    auto const before = AllocationCount();

    this->host.DeleteController();

    EXPECT_EQ(AllocationCount(), before);
}

TYPED_TEST(OutOfMemory, AViewThatIsNotMadeLeavesNothingBehind) {
    auto const isNew = std::is_same_v<TypeParam, NewGeneration>;
    for (std::size_t n = 0;; ++n) {
        this->host.DeleteController();
        auto const before = LiveAllocations();
        auto const failed = FailsAt(
            n, [&] { RecordingManager::CreateView(this->host.Controller(), "view", isNew); });

        this->host.DeleteController();
        EXPECT_EQ(LiveAllocations(), before) << n;
        if (!failed)
            break;
    }
}

TYPED_TEST(OutOfMemory, AFolderThatIsNotMadeIsNotFound) {
    auto& view = TypeParam::Make(this->host, "view");
    auto& root = *view.GetRootFreeFolder();
    for (std::size_t n = 0;; ++n) {
        auto const name = "folder " + std::to_string(n);

        auto const failed = FailsAt(n, [&] { view.CreateFreeFolder(&root, name.c_str()); });

        std::vector<zbIBrowserViewItemFreeFolder*> folders;
        root.GetChildFreeFolders(folders, false, true);
        EXPECT_EQ(root.FindChildFreeFolder(name.c_str()) != nullptr, folders.size() > n) << name;
        if (!failed)
            break;
        if (folders.size() <= n)
            view.CreateFreeFolder(&root, name.c_str());
    }
}

} // namespace
} // namespace zbtest
