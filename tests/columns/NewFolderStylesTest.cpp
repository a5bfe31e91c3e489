// SPDX-License-Identifier: MIT
//! \file
//! Styles of folders in a new view, which are for the rows of some sources.
#include "ColumnsTest.h"
#include "items/new/ViewItemFreeFolder.h"
#include "presentation/columns/ColumnSet.h"
#include "presentation/columns/ViewColumn.h"
#include "view/NewViewContext.h"

#include <functional>
#include <utility>

namespace zbtest {
namespace {

using testing::IsEmpty;

//! A folder that shows one source.
class FolderWithSource final : public zbbrowser::ViewItemFreeFolder {
public:
    FolderWithSource(zbbrowser::detail::NewViewContext& context, zbIBrowserDataSource& source)
        : ViewItemFreeFolder(context, nullptr, "a")
        , source_(source) {}

    zbIBrowserDataSource* FindDataSource(zbString const& name) const override {
        return name == source_.GetName() ? &source_ : nullptr;
    }

private:
    zbIBrowserDataSource& source_;
};

class NewFolderStylesTest : public ColumnsTest<NewGeneration> {
protected:
    RecordingSource& part = host.Source("part").Items({"bolt_1"});
    RecordingSource& tool = host.Source("tool").Items({"saw_1"});
    zbbrowser::detail::NewViewContext context{view, &host.Controller()};
    FolderWithSource shown{context, part};
    NodeDouble bolt{&view, &part["bolt_1"]};
    NodeDouble saw{&view, &tool["saw_1"]};

    NewFolderStylesTest() {
        context.SetColumns(std::make_unique<zbbrowser::detail::ColumnSet>(context));
        context.Columns()->CreateDefault();
        bolt.parentFolder = &shown;
        saw.parentFolder = &shown;
    }

    zbIBrowserViewColumn& Column() { return *context.Columns()->Default(); }
    std::string StyleOf(zbIBrowserViewItem& item) {
        auto const* const style = Column().GetViewItemStyle(&item);
        signals.Discard();
        return style == nullptr ? "none" : style->GetName();
    }
    void GiveStyle(char const* name) {
        MakeStyle(Column(), name);
        EXPECT_TRUE(Column().AddFolderStyle(&shown));
    }
};

TEST_F(NewFolderStylesTest, AFolderStyleIsForTheRowsOfItsSources) {
    GiveStyle("fancy");
    EXPECT_EQ(StyleOf(bolt), "default_style");

    EXPECT_FALSE(Column().SetFolderDataSourceStyle(&shown, &part, true));

    EXPECT_EQ(StyleOf(bolt), "fancy");
    EXPECT_EQ(StyleOf(saw), "default_style");
}

TEST_F(NewFolderStylesTest, AFlagIsTakenBackSilently) {
    GiveStyle("fancy");
    Column().SetFolderDataSourceStyle(&shown, &part, true);

    EXPECT_FALSE(Column().SetFolderDataSourceStyle(&shown, &part, false));

    EXPECT_EQ(StyleOf(bolt), "default_style");
    EXPECT_THAT(signals.take(), IsEmpty());
    EXPECT_EQ(host.calls.Count("ClearDirty"), 0U);
}

TEST_F(NewFolderStylesTest, OfTwoStylesThatClaimASourceTheOneAtTheHigherAddressWins) {
    GiveStyle("first");
    Column().SetFolderDataSourceStyle(&shown, &part, true);
    GiveStyle("second");
    Column().SetFolderDataSourceStyle(&shown, &part, true);

    auto const* const first = Column().FindStyle("first");
    auto const* const second = Column().FindStyle("second");
    EXPECT_EQ(StyleOf(bolt), std::less<>()(first, second) ? "second" : "first");
}

TEST_F(NewFolderStylesTest, AClaimThatWasTakenBackDoesNotWin) {
    GiveStyle("first");
    GiveStyle("second");
    auto* lower = Column().FindStyle("first");
    auto* higher = Column().FindStyle("second");
    if (std::less<>()(higher, lower)) {
        std::swap(lower, higher);
    }
    Column().SetCurrentStyle(lower);
    Column().SetFolderDataSourceStyle(&shown, &part, true);
    Column().SetCurrentStyle(higher);
    Column().SetFolderDataSourceStyle(&shown, &part, false);

    EXPECT_EQ(StyleOf(bolt), lower->GetName());
}

TEST_F(NewFolderStylesTest, WithoutTheCurrentStyleInTheFolderNothingHappens) {
    EXPECT_FALSE(Column().SetFolderDataSourceStyle(&shown, &part, true));
    GiveStyle("fancy");
    MakeStyle(Column(), "elsewhere");

    EXPECT_FALSE(Column().SetFolderDataSourceStyle(&shown, &part, true));
    EXPECT_FALSE(Column().SetFolderDataSourceStyle(&shown, nullptr, true));
    EXPECT_FALSE(Column().SetFolderDataSourceStyle(nullptr, &part, true));

    EXPECT_EQ(StyleOf(bolt), "default_style");
}

TEST_F(NewFolderStylesTest, AStyleThatIsDeletedLeavesTheFolders) {
    GiveStyle("fancy");
    Column().SetFolderDataSourceStyle(&shown, &part, true);

    Column().DeleteStyle(Column().FindStyle("fancy"));

    EXPECT_EQ(StyleOf(bolt), "default_style");
}

TEST_F(NewFolderStylesTest, AStyleThatTheHostFreesLeavesTheFolders) {
    GiveStyle("fancy");
    Column().SetFolderDataSourceStyle(&shown, &part, true);

    delete Column().FindStyle("fancy");

    EXPECT_EQ(StyleOf(bolt), "default_style");
}

TEST_F(NewFolderStylesTest, WithoutAControllerNoFolderIsGivenAStyle) {
    zbbrowser::detail::NewViewContext lonely(view, nullptr);
    lonely.SetColumns(std::make_unique<zbbrowser::detail::ColumnSet>(lonely));
    lonely.Columns()->CreateDefault();
    FolderWithSource folder(lonely, part);
    auto& column = *lonely.Columns()->Default();
    MakeStyle(column, "fancy");

    EXPECT_FALSE(column.AddFolderStyle(&folder));

    EXPECT_FALSE(lonely.Columns()->DefaultImpl()->RemoveFolderStyles(&folder));
}

TEST_F(NewFolderStylesTest, ASourceIsFoundByItselfAndNotByItsName) {
    GiveStyle("fancy");
    auto& namesake = host.Control("other").Source("part").Items({"bolt_1"});
    bolt.data = &namesake["bolt_1"];

    Column().SetFolderDataSourceStyle(&shown, &namesake, true);
    Column().SetFolderDataSourceStyle(&shown, &tool, true);

    EXPECT_EQ(StyleOf(bolt), "default_style");
    EXPECT_EQ(StyleOf(saw), "default_style");
    bolt.data = &part["bolt_1"];
    EXPECT_EQ(StyleOf(bolt), "default_style");
}

TEST_F(NewFolderStylesTest, TheOperationOfTheOldGenerationDoesNothing) {
    GiveStyle("fancy");

    EXPECT_FALSE(Column().SetFolderDataListStyle(&shown, &part, true));

    EXPECT_EQ(StyleOf(bolt), "default_style");
}

TEST_F(NewFolderStylesTest, AFolderThatGoesIsForgotten) {
    MakeStyle(Column(), "fancy");
    zbIBrowserViewItem const* address = nullptr;
    {
        FolderWithSource going(context, part);
        address = &going;
        EXPECT_TRUE(Column().AddFolderStyle(&going));
    }

    EXPECT_FALSE(context.Columns()->DefaultImpl()->RemoveFolderStyles(
        const_cast<zbIBrowserViewItem*>(address)));
}

} // namespace
} // namespace zbtest
