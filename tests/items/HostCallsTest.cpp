// SPDX-License-Identifier: MIT
// Hosts that call back from their own operations while a content asks them.
#include "ItemsTest.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::CallScope;

class HostCallsTest : public zbtest::ItemsTest {
protected:
    //! Runs `deed` at the first call of that operation of "part".
    template <class Deed>
    void During(char const* operation, Deed deed) {
        host.calls.On(operation, "part", [this, operation, deed] {
            host.calls.Off(operation, "part");
            deed();
        });
    }
    ~HostCallsTest() override { recorder.Discard(); }
};

TEST_F(HostCallsTest, AListThatIsDeletedWhileItsItemsAreListedGetsNoRows) {
    During("GetDataItems", [&] { folder.DeleteList(&part); });

    EXPECT_FALSE(folder.CreateList(&part));
    EXPECT_THAT(Rows(folder), IsEmpty());
}

TEST_F(HostCallsTest, AFolderMayBeDeletedWhileItemsAreListed) {
    During("GetDataItems", [&] { View().DeleteFreeFolder(&folder, true); });

    EXPECT_FALSE(folder.CreateList(&part));
    EXPECT_THAT(ChildNames(root), IsEmpty());
}

TEST_F(HostCallsTest, AViewMayBeDeletedWhileItemsAreListed) {
    During("GetDataItems", [&] { host.DeleteView(View()); });

    EXPECT_FALSE(folder.CreateList(&part));
    EXPECT_EQ(host.Controller().OLD_FindView("view"), nullptr);
}

TEST_F(HostCallsTest, AListThatIsDeletedWhileTheSourceIsAskedForAnItemGetsNoFurtherRow) {
    During("ContainsDataItem", [&] { folder.DeleteList(&part); });

    EXPECT_FALSE(folder.CreateList(&part));
    EXPECT_THAT(Rows(folder), IsEmpty());
}

TEST_F(HostCallsTest, AListThatIsDeletedWhileAnItemIsAskedForItsSourceGetsNoRow) {
    host.calls.On("GetDataSource", "bolt", [&] {
        host.calls.Off("GetDataSource", "bolt");
        folder.DeleteList(&part);
    });

    EXPECT_FALSE(folder.CreateList(&part));
    EXPECT_TRUE(Flat(folder).Leaves().IsEmpty());
}

TEST_F(HostCallsTest, TheSameForRowsThatAreMadeSilently) {
    Show(folder, part);
    Flat(folder).DeleteAll();
    host.calls.On("GetDataSource", "nut", [&] {
        host.calls.Off("GetDataSource", "nut");
        folder.DeleteList(&part);
    });
    CallScope const scope(Lifetime());

    EXPECT_FALSE(Flat(folder).ConnectAll(true));
    EXPECT_TRUE(Flat(folder).Leaves().IsEmpty());
}

TEST_F(HostCallsTest, ARowIsMadeOnceThoughAnotherOneGoesWhileItsItemIsAskedForItsSource) {
    Show(folder, part);
    part.Add("saw");
    host.calls.On("GetDataSource", "saw", [&] {
        host.calls.Off("GetDataSource", "saw");
        part.Unlist("nut");
        part.dirty = true;
        View().OnAllDirtyDataListsRebuild();
    });
    CallScope const scope(Lifetime());
    Flat(folder).ConnectList(&part, false);

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "pin", "saw"));
    EXPECT_TRUE(Flat(folder).Leaves().IsIndexInStep());
}

TEST_F(HostCallsTest, AListThatIsDeletedAtTheBeginningOfARebuildStaysDeleted) {
    Show(folder, part);
    During("GetDataItems", [&] { folder.DeleteList(&part); });
    CallScope const scope(Lifetime());

    EXPECT_FALSE(Flat(folder).RebuildList(&part, false));
    EXPECT_THAT(Rows(folder), IsEmpty());
}

TEST_F(HostCallsTest, AListThatIsDeletedWhileStaleRowsAreLookedForStaysDeleted) {
    Show(folder, part);
    part.Unlist("nut");
    During("ContainsDataItem", [&] { folder.DeleteList(&part); });
    CallScope const scope(Lifetime());
    Flat(folder).RebuildList(&part, false);

    EXPECT_THAT(Rows(folder), IsEmpty());
}

TEST_F(HostCallsTest, AFolderMayBeDeletedWhileStaleRowsAreLookedFor) {
    Show(folder, part);
    During("ContainsDataItem", [&] { View().DeleteFreeFolder(&folder, true); });
    CallScope const scope(Lifetime());
    Flat(folder).RebuildList(&part, false);

    EXPECT_THAT(ChildNames(root), IsEmpty());
}

TEST_F(HostCallsTest, ASourceMayGoWhileItIsAskedWhetherAnotherIsDirty) {
    Show(folder, part);
    Show(folder, tool);
    During("IsDirty", [&] {
        folder.DeleteList(&tool);
        host.Control().DeleteSource("tool");
    });
    CallScope const scope(Lifetime());
    Flat(folder).RebuildDirty();

    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
}

TEST_F(HostCallsTest, AFolderAndItsSourcesMayGoWhileADirtyMarkIsTakenAway) {
    Show(folder, part);
    Show(folder, tool);
    part.dirty = tool.dirty = true;
    During("ClearDirty", [&] {
        View().DeleteFreeFolder(&folder, true);
        host.Control().DeleteSource("tool");
    });
    CallScope const scope(Lifetime());
    Flat(folder).RedrawDirty();

    EXPECT_THAT(ChildNames(root), IsEmpty());
}

TEST_F(HostCallsTest, AThrowingSourceLeavesTheRowsAsTheyWereAndTheBracketClosed) {
    Show(folder, part);
    part.dirty = true;
    During("ContainsDataItem", [] { throw "host"; });
    {
        CallScope const scope(Lifetime());
        EXPECT_THROW(Flat(folder).RebuildDirty(), char const*);
    }

    EXPECT_EQ(host.manager.longOperations, 0);
    EXPECT_THAT(Rows(folder), ElementsAre("bolt", "nut", "pin"));
    EXPECT_TRUE(Flat(folder).Leaves().IsConsistent());
    EXPECT_FALSE(Lifetime().IsBusy());
}

TEST_F(HostCallsTest, AFolderMayBeDeletedWhenTheLongOperationBegins) {
    Show(folder, part);
    part.dirty = true;
    host.calls.On("BeginLongOperation", [&] {
        host.calls.Off("BeginLongOperation");
        View().DeleteFreeFolder(&folder, true);
        host.Control().DeleteSource("part");
    });
    CallScope const scope(Lifetime());
    Flat(folder).RebuildDirty();

    EXPECT_EQ(host.manager.longOperations, 0);
    EXPECT_THAT(ChildNames(root), IsEmpty());
}

} // namespace
