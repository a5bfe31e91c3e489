// SPDX-License-Identifier: MIT
//! \file
//! Styles of folders in an old view, which are for the rows of some sources.
#include "ColumnsTest.h"
#include "presentation/columns/zbBrowserViewColumn.h"

#include <algorithm>

namespace zbtest {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class OldFolderStylesTest : public ColumnsTest<OldGeneration> {
protected:
    zbIBrowserViewItemFreeFolder& folder = Folder("a");
    RecordingSource& part = Shown("part");
    RecordingSource& tool = Shown("tool");

    //! What RemoveFolderStyles answers: whether there was something to remove.
    bool Remove(zbIBrowserViewItem* item) const {
        return view.GetDefaultColumnPtr()->RemoveFolderStyles(item);
    }

    RecordingSource& Shown(char const* name) {
        auto& source = host.Source(name).Items({name});
        EXPECT_TRUE(view.DataSourceConnect(&source));
        EXPECT_TRUE(view.CreateList(&folder, &source, false));
        signals.Discard();
        return source;
    }

    zbIBrowserViewItem& Row(RecordingSource const& source) {
        std::vector<zbIBrowserViewItem*> rows;
        view.GetChildren(rows, &folder);
        return **std::find_if(rows.begin(), rows.end(), [&](auto const* row) {
            return row->GetDataItemSimple()->GetDataSource() == &source;
        });
    }

    std::string StyleOf(zbIBrowserViewItem& item) {
        auto const* const style = view.GetViewItemStyle(&Default(), &item);
        return style == nullptr ? "none" : style->GetName();
    }

    zbIBrowserStyle& FolderStyle(char const* name) {
        auto& style = MakeKnownStyle(Default(), name);
        EXPECT_TRUE(view.SetViewItemStyle(&folder));
        return style;
    }

    //! Makes the current style that of a source, or takes that back; the signals are forgotten.
    void Set(RecordingSource& source, bool flag) {
        Default().SetFolderDataListStyle(&folder, &source, flag);
        signals.Discard();
    }
};

TEST_F(OldFolderStylesTest, AFolderStyleIsForTheRowsOfItsSources) {
    FolderStyle("fancy");

    Set(part, true);

    EXPECT_EQ(StyleOf(Row(part)), "fancy");
    EXPECT_EQ(StyleOf(Row(tool)), "default_style");
    EXPECT_EQ(StyleOf(folder), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, TheAnswerIsFalseAlsoWhenItHasWorked) {
    FolderStyle("fancy");

    EXPECT_FALSE(Default().SetFolderDataListStyle(&folder, &part, true));

    EXPECT_EQ(StyleOf(Row(part)), "fancy");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, AFolderStyleIsForNoSourceAtFirst) {
    FolderStyle("fancy");

    EXPECT_EQ(StyleOf(Row(part)), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, AFlagCanBeTakenBackAndSetAgain) {
    FolderStyle("fancy");
    Set(part, true);

    Set(part, false);
    EXPECT_EQ(StyleOf(Row(part)), "default_style");
    Set(part, true);

    EXPECT_EQ(StyleOf(Row(part)), "fancy");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, OfTwoStylesThatClaimASourceTheOneAtTheHigherAddressWins) {
    auto& first = FolderStyle("first");
    Set(part, true);
    auto& second = FolderStyle("second");
    Set(part, true);

    auto const& higher = std::less<>()(&first, &second) ? second : first;
    EXPECT_EQ(StyleOf(Row(part)), higher.GetName());
}

TEST_F(OldFolderStylesTest, AClaimThatWasTakenBackDoesNotWin) {
    auto& first = FolderStyle("first");
    auto& second = FolderStyle("second");
    auto& lower = std::less<>()(&first, &second) ? first : second;
    auto& higher = &lower == &first ? second : first;
    Default().SetCurrentStyle(&lower);
    Set(part, true);
    Default().SetCurrentStyle(&higher);
    Set(part, false);

    EXPECT_EQ(StyleOf(Row(part)), lower.GetName());
}

TEST_F(OldFolderStylesTest, TheSourceIsMarkedAndTheDirtyListsAreDrawnAgain) {
    FolderStyle("fancy");
    host.calls.Record(true);

    Default().SetFolderDataListStyle(&folder, &part, true);

    EXPECT_THAT(host.calls.take(),
                testing::IsSupersetOf({"part.ClearDirty true", "part.ClearDirty false"}));
    EXPECT_THAT(signals.take(), Contains("ViewItemChanged part"));
}

TEST_F(OldFolderStylesTest, AnEqualFlagDrawsAgainAllTheSame) {
    FolderStyle("fancy");
    Set(part, true);
    host.calls.ForgetCounts();

    Default().SetFolderDataListStyle(&folder, &part, true);

    EXPECT_EQ(host.calls.Count("ClearDirty", "part"), 2U);
    EXPECT_THAT(signals.take(), Contains("ViewItemChanged part"));
}

TEST_F(OldFolderStylesTest, ASourceIsFoundByItsNameRegardlessOfCase) {
    FolderStyle("fancy");
    auto& namesake = host.Control("other").Source("PART");

    Set(namesake, true);

    EXPECT_EQ(StyleOf(Row(part)), "fancy");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, ASourceThatTheFolderDoesNotShowIsPassedOver) {
    FolderStyle("fancy");
    auto& spare = host.Source("spare");

    Default().SetFolderDataListStyle(&folder, &spare, true);

    EXPECT_EQ(host.calls.Count("ClearDirty"), 0U);
    EXPECT_THAT(signals.take(), IsEmpty());
}

TEST_F(OldFolderStylesTest, ASourceThatIsNoLongerShownCanBeChangedOnly) {
    FolderStyle("fancy");
    Set(part, true);
    view.DeleteList(&folder, &part);
    signals.Discard();
    host.calls.ForgetCounts();

    Default().SetFolderDataListStyle(&folder, &part, true);
    EXPECT_EQ(host.calls.Count("ClearDirty"), 0U);
    Default().SetFolderDataListStyle(&folder, &part, false);

    EXPECT_EQ(host.calls.Count("ClearDirty", "part"), 1U);
    signals.Discard();
}

TEST_F(OldFolderStylesTest, WithoutTheCurrentStyleInTheFolderNothingHappens) {
    Default().SetFolderDataListStyle(&folder, &part, true);
    FolderStyle("fancy");
    MakeStyle(Default(), "elsewhere");
    Default().SetFolderDataListStyle(&folder, &part, true);
    Default().SetCurrentStyle(Default().FindStyle("fancy"));
    Default().SetFolderDataListStyle(view.GetRootFreeFolder(), &part, true);
    Default().SetFolderDataListStyle(&folder, nullptr, true);
    Default().SetFolderDataListStyle(nullptr, &part, true);

    EXPECT_EQ(host.calls.Count("ClearDirty"), 0U);
    EXPECT_EQ(StyleOf(Row(part)), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, AScriptedColumnHasNoStylesForSources) {
    auto& column = Column("weight");
    MakeStyle(column, "plain");

    EXPECT_FALSE(column.SetFolderDataListStyle(&folder, &part, true));

    EXPECT_EQ(host.calls.Count("ClearDirty"), 0U);
}

TEST_F(OldFolderStylesTest, TheOperationOfTheNewGenerationDoesNothing) {
    FolderStyle("fancy");

    EXPECT_FALSE(Default().SetFolderDataSourceStyle(&folder, &part, true));

    EXPECT_EQ(StyleOf(Row(part)), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, ARowInAGroupBelongsToTheFolderAboveTheGroup) {
    FolderStyle("fancy");
    Set(part, true);
    FolderDouble group(&view, "group");
    group.isFreeFolder = false;
    group.parentFolder = &folder;
    auto& tree = host.Tree("assembly", part);
    tree.Add(part, "engine");
    ContainerDouble row(&view, &tree["engine"]);
    row.parentFolder = &group;

    EXPECT_EQ(StyleOf(row), "fancy");
}

TEST_F(OldFolderStylesTest, ARowOfAChildFolderIsNoRowOfItsParent) {
    FolderStyle("fancy");
    Set(part, true);
    EXPECT_TRUE(view.CreateFreeFolder(&folder, "b"));
    signals.Discard();
    auto& tree = host.Tree("assembly", part);
    tree.Add(part, "engine");
    ContainerDouble row(&view, &tree["engine"]);
    row.parentFolder = folder.FindChildFreeFolder("b");

    EXPECT_EQ(StyleOf(row), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, ARowWithoutDataOrFolderHasTheDefaultStyle) {
    FolderStyle("fancy");
    Set(part, true);
    ItemDouble row(&view);
    EXPECT_EQ(StyleOf(row), "default_style");
    row.parentFolder = &folder;

    EXPECT_EQ(StyleOf(row), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, AStyleThatIsDeletedLeavesTheFolders) {
    auto& style = FolderStyle("fancy");
    Set(part, true);

    Default().DeleteStyle(&style);

    EXPECT_EQ(StyleOf(Row(part)), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, AStyleThatIsDeletedByNameStaysInTheFolders) {
    FolderStyle("fancy");
    Set(part, true);

    Default().GetStyleManager()->DeleteStyleByName("fancy");

    EXPECT_THAT(StyleNames(Default()), ElementsAre("default_style"));
    EXPECT_EQ(StyleOf(Row(part)), "fancy");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, AStyleThatTheHostFreesLeavesTheFolders) {
    auto* const style = &FolderStyle("fancy");
    Set(part, true);
    Default().GetStyleManager()->DeleteStyleByName("fancy");

    delete style;

    EXPECT_EQ(StyleOf(Row(part)), "default_style");
    signals.Discard();
}

TEST_F(OldFolderStylesTest, ASlotMayDeleteTheFolderWhileItIsDrawnAgain) {
    FolderStyle("fancy");
    signals.Once(&Signals::ViewItemChanged, [&](auto*) { view.DeleteFreeFolder(&folder, true); });

    EXPECT_FALSE(Default().SetFolderDataListStyle(&folder, &part, true));

    EXPECT_FALSE(Remove(&folder));
    signals.Discard();
}

TEST_F(OldFolderStylesTest, ASlotMayDeleteTheViewWhileItIsDrawnAgain) {
    FolderStyle("fancy");
    signals.Once(&Signals::ViewItemChanged, [&](auto*) { host.DeleteView(view); });

    EXPECT_FALSE(Default().SetFolderDataListStyle(&folder, &part, true));

    EXPECT_EQ(host.Controller().FindView("view"), nullptr);
    signals.Discard();
}

TEST_F(OldFolderStylesTest, TheSourceMayDeleteTheViewWhenItIsMarked) {
    FolderStyle("fancy");
    host.calls.On("ClearDirty", "part", [&] {
        if (host.Controller().FindView("view") != nullptr) {
            host.DeleteView(view);
        }
    });

    EXPECT_FALSE(Default().SetFolderDataListStyle(&folder, &part, true));

    EXPECT_EQ(host.Controller().FindView("view"), nullptr);
    signals.Discard();
}

TEST_F(OldFolderStylesTest, TheSourceMayDeleteTheFolderWhenItIsAskedForItsName) {
    FolderStyle("fancy");
    host.calls.On("GetName", "spare", [&] {
        if (view.FindFreeFolder(&folder) != nullptr) {
            view.DeleteFreeFolder(&folder, true);
        }
    });

    EXPECT_FALSE(Default().SetFolderDataListStyle(&folder, &host.Source("spare"), true));

    EXPECT_EQ(view.FindFreeFolder(&folder), nullptr);
    signals.Discard();
}

TEST_F(OldFolderStylesTest, ADeletedFolderIsForgottenWithAllBelow) {
    EXPECT_TRUE(view.CreateFreeFolder(&folder, "b"));
    auto* const child = folder.FindChildFreeFolder("b");
    FolderStyle("fancy");
    view.SetViewItemStyle(child);

    view.DeleteFreeFolder(&folder, true);

    EXPECT_FALSE(Remove(&folder));
    EXPECT_FALSE(Remove(child));
    EXPECT_FALSE(view.SetViewItemStyle(&folder)) << "it is compared and not followed";
    signals.Discard();
}

} // namespace
} // namespace zbtest
