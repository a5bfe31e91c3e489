// SPDX-License-Identifier: MIT
//! \file
//! Copies of the old view share what they show and own nothing of it.

#include "ViewTestSupport.h"

#include <optional>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbtest::Names;

//! Gives access to what a host may do with a copy.
class Copy final : public zbBrowserView {
public:
    explicit Copy(zbBrowserView const& other)
        : zbBrowserView(other) {}
    explicit Copy(char const* name)
        : zbBrowserView(nullptr, name) {}
    Copy(Copy const&) = default;
    Copy& operator=(Copy const&) = default;
    ~Copy() override = default;

    void Assign(zbBrowserView const& other) { zbBrowserView::operator=(other); }
};

class ViewCopyTest : public zbtest::ViewTest {
protected:
    zbtest::RecordingSource& part = Connected("part", {"bolt_1"});
};

TEST_F(ViewCopyTest, ACopyHasTheValuesOfTheOriginal) {
    view.SetSorting(false);
    view.SetItalic(false);
    view.ShowEmptyFolders(false);
    view.SetLastFindStartPoint(&Root());
    signals.Discard();

    Copy const copy(view);

    EXPECT_STREQ(copy.GetName().c_str(), "view");
    EXPECT_EQ(copy.GetRootFreeFolder(), &Root());
    EXPECT_EQ(copy.GetViewCtrl(), &host.Controller());
    EXPECT_EQ(copy.GetDataCtrl(), &host.Control());
    EXPECT_EQ(copy.GetDataSourceSimple("part"), &part);
    EXPECT_EQ(copy.GetLastFindStartPoint(), &Root());
    EXPECT_FALSE(copy.GetSorting());
    EXPECT_FALSE(copy.GetItalic());
    EXPECT_FALSE(copy.GetShowEmptyFoldersFlag());
}

TEST_F(ViewCopyTest, ACopyHasTheErrorStateOfTheOriginal) {
    view.SetFreeFolderShowEmptyContainers(&Root(), true);
    Copy const copy(view);
    EXPECT_FALSE(copy.GetState());
    EXPECT_STREQ(copy.GetError(), "Cannot show empty folders when grouping is disabled");
}

TEST_F(ViewCopyTest, TheSourcesOfACopyAreItsOwn) {
    Copy copy(view);
    auto& tool = host.Source("tool");
    view.DataSourceConnect(&tool);
    EXPECT_EQ(copy.GetDataSourceSimple(&tool), nullptr);
    EXPECT_TRUE(copy.DataSourceDisconnectAll(false));
    EXPECT_EQ(view.GetDataSourceSimple(&part), &part);
}

TEST_F(ViewCopyTest, TheFoldersOfACopyAreThoseOfTheOriginal) {
    Copy copy(view);
    EXPECT_TRUE(copy.CreateFreeFolder(copy.GetRootFreeFolder(), "a"));
    EXPECT_EQ(Rows(Root()), (Names{"a"}));
    signals.Discard();
}

TEST_F(ViewCopyTest, TheOriginalWorksAfterItsCopyHasGone) {
    Show(Root(), part);
    std::optional<Copy> copy(std::in_place, view);
    copy.reset();
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1"}));
    Folder("a");
    EXPECT_EQ(Rows(Root()), (Names{"a", "bolt_1"}));
}

TEST_F(ViewCopyTest, ACopyMayOutliveTheOriginal) {
    Show(Root(), part);
    Copy copy(view);
    std::optional<Copy> const second(std::in_place, copy);
    EXPECT_TRUE(host.DeleteView(view));
    EXPECT_STREQ(copy.GetName().c_str(), "view");
    EXPECT_STREQ(second->GetName().c_str(), "view");
}

TEST_F(ViewCopyTest, AViewThatIsAssignedToLosesItsOwnContent) {
    Copy other("other");
    auto* const before = other.GetRootFreeFolder();
    other.Assign(view);
    EXPECT_NE(other.GetRootFreeFolder(), before);
    EXPECT_EQ(other.GetRootFreeFolder(), &Root());
    EXPECT_STREQ(other.GetName().c_str(), "view");
}

TEST_F(ViewCopyTest, AViewOfTheControllerThatIsAssignedToCanBeDeletedAfterTheOriginal) {
    auto& other = host.OldView("other");
    other = view;
    EXPECT_TRUE(host.DeleteView(view));
    EXPECT_TRUE(host.DeleteView(other));
}

TEST_F(ViewCopyTest, AViewThatIsAssignedToItselfStaysAsItIs) {
    Show(Root(), part);
    auto const& same = view;
    view = same;
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1"}));
}

TEST_F(ViewCopyTest, AViewThatIsGivenItsOwnCopyGoesOnOwningItsContent) {
    Show(Root(), part);
    Copy const copy(view);
    view = copy;
    EXPECT_EQ(Rows(Root()), (Names{"bolt_1"}));
    EXPECT_TRUE(host.DeleteView(view));
}

TEST_F(ViewCopyTest, CopyingAsksTheHostNothingAndSignalsNothing) {
    host.calls.Record(true);
    Copy copy(view);
    copy.Assign(view);
    EXPECT_THAT(host.calls.take(), IsEmpty());
    EXPECT_THAT(signals.take(), IsEmpty());
}

} // namespace
