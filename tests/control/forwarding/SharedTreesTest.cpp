// SPDX-License-Identifier: MIT
//! \file
//! The table of trees that old views share.
#include "control/SharedDSHHandler.h"
#include "ControlTest.h"

#include <algorithm>

namespace zbtest {
namespace {

class SharedTrees : public ControlTest {
protected:
    using Share = std::pair<zbIBrowserView const*, zbIBrowserDataSourceHierarchical const*>;
    using Tree = zbIBrowserDataSourceHierarchical const*;

    std::vector<Share> SharesOf(zbIBrowserView const& view) {
        std::vector<Share> shares;
        EXPECT_TRUE(ctrl->GetDataSourceHierarchicalSharedInfo(&view, shares));
        return shares;
    }

    std::vector<Tree> SharedBy(zbIBrowserView const& view1, zbIBrowserView const& view2) {
        std::vector<Tree> sources;
        EXPECT_TRUE(ctrl->GetDataSourceHierarchicalSharedList(&view1, &view2, sources));
        return sources;
    }

    bool Create(zbIBrowserView const& view1, zbIBrowserView const& view2, Tree source) {
        return ctrl->CreateDataSourceHierarchicalShare(&view1, &view2, source);
    }

    zbBrowserView& a = Old("a");
    zbBrowserView& b = Old("b");
    zbBrowserView& c = Old("c");
    zbBrowserView& d = Old("d");
    RecordingSource& type = data.Source("part");
    RecordingTree& tree = data.Tree("tree", type);
};

TEST_F(SharedTrees, AreToldToBothViewsWithTheOtherOne) {
    EXPECT_TRUE(Create(a, b, &tree));

    EXPECT_THAT(SharesOf(a), ElementsAre(Share(&b, &tree)));
    EXPECT_THAT(SharesOf(b), ElementsAre(Share(&a, &tree)));
    EXPECT_THAT(SharesOf(c), IsEmpty());
    EXPECT_TRUE(ctrl->GetState());
}

TEST_F(SharedTrees, AreListedForThePairInEitherOrder) {
    Create(a, b, &tree);

    EXPECT_THAT(SharedBy(a, b), ElementsAre(&tree));
    EXPECT_THAT(SharedBy(b, a), ElementsAre(&tree));
    EXPECT_THAT(SharedBy(a, c), IsEmpty());
    EXPECT_THAT(SharedBy(a, a), IsEmpty());
}

TEST_F(SharedTrees, CannotBeSharedOnceMoreByTheFirstView) {
    Create(a, b, &tree);

    EXPECT_FALSE(Create(a, c, &tree));

    EXPECT_STREQ(ctrl->GetError(), "Share already exists");
    EXPECT_FALSE(ctrl->GetState());
    EXPECT_STREQ(ctrl->GetSharedDSHHandler()->GetError(), "Share already exists");
    EXPECT_THAT(SharesOf(a), ElementsAre(Share(&b, &tree)));
    EXPECT_THAT(SharesOf(c), IsEmpty());
}

TEST_F(SharedTrees, CannotBeSharedOnceMoreTheOtherWayRound) {
    Create(a, b, &tree);

    EXPECT_FALSE(Create(b, a, &tree));

    EXPECT_STREQ(ctrl->GetError(), "Share already exists");
}

TEST_F(SharedTrees, AnswerARequestFromOutsideThePairWithTrueAndStayAsTheyAre) {
    Create(a, b, &tree);

    EXPECT_TRUE(Create(c, d, &tree));
    EXPECT_TRUE(Create(c, a, &tree)) << "only the first view of the request counts";

    EXPECT_TRUE(ctrl->GetState());
    EXPECT_THAT(SharesOf(a), ElementsAre(Share(&b, &tree)));
    EXPECT_THAT(SharesOf(c), IsEmpty());
    EXPECT_THAT(SharedBy(c, d), IsEmpty());
}

TEST_F(SharedTrees, CanBeSharedByAViewWithItself) {
    EXPECT_TRUE(Create(a, a, &tree));

    EXPECT_THAT(SharesOf(a), ElementsAre(Share(&a, &tree)));
    EXPECT_THAT(SharedBy(a, a), ElementsAre(&tree));
    EXPECT_FALSE(Create(a, b, &tree));
}

TEST_F(SharedTrees, AreRefusedWithoutATextForNullAndForViewsThatAreNotOld) {
    zbbrowser::View& newView = New("new");
    RecordedView stranger(ctrl.get(), "a");

    EXPECT_FALSE(Create(a, b, nullptr));
    EXPECT_FALSE(ctrl->CreateDataSourceHierarchicalShare(nullptr, &b, &tree));
    EXPECT_FALSE(ctrl->CreateDataSourceHierarchicalShare(&a, nullptr, &tree));
    EXPECT_FALSE(Create(a, newView, &tree));
    EXPECT_FALSE(Create(newView, b, &tree));
    EXPECT_FALSE(Create(stranger, b, &tree));

    EXPECT_EQ(ctrl->GetError(), nullptr);
    EXPECT_FALSE(ctrl->GetState());
    EXPECT_THAT(SharesOf(a), IsEmpty());
    EXPECT_THAT(SharesOf(b), IsEmpty());
}

TEST_F(SharedTrees, RefusedWithoutATextOfTheirOwnShowTheTextOfTheLastRefusal) {
    Create(a, b, &tree);
    Create(a, b, &tree);

    EXPECT_FALSE(Create(a, b, nullptr));

    EXPECT_STREQ(ctrl->GetError(), "Share already exists");
}

TEST_F(SharedTrees, DoNotClearTheErrorWhenTheySucceed) {
    Create(a, b, &tree);
    Create(a, b, &tree);

    EXPECT_TRUE(Create(a, b, &data.Tree("tree2", type)));

    EXPECT_STREQ(ctrl->GetError(), "Share already exists");
    EXPECT_FALSE(ctrl->GetState());
}

TEST_F(SharedTrees, LeaveTheOutputAloneForANullView) {
    std::vector<Share> shares{{&a, &tree}};
    std::vector<Tree> sources{&tree};

    EXPECT_FALSE(ctrl->GetDataSourceHierarchicalSharedInfo(nullptr, shares));
    EXPECT_FALSE(ctrl->GetDataSourceHierarchicalSharedList(nullptr, &a, sources));
    EXPECT_FALSE(ctrl->GetDataSourceHierarchicalSharedList(&a, nullptr, sources));

    EXPECT_EQ(shares.size(), 1U);
    EXPECT_EQ(sources.size(), 1U);
}

TEST_F(SharedTrees, ClearTheOutputForAViewThatIsNotOld) {
    zbbrowser::View& newView = New("new");
    std::vector<Share> shares{{&a, &tree}};
    std::vector<Tree> sources{&tree};
    std::vector<Tree> more{&tree};

    EXPECT_FALSE(ctrl->GetDataSourceHierarchicalSharedInfo(&newView, shares));
    EXPECT_FALSE(ctrl->GetDataSourceHierarchicalSharedList(&newView, &a, sources));
    EXPECT_FALSE(ctrl->GetDataSourceHierarchicalSharedList(&a, &newView, more));

    EXPECT_THAT(shares, IsEmpty());
    EXPECT_THAT(sources, IsEmpty());
    EXPECT_THAT(more, IsEmpty());
}

TEST_F(SharedTrees, ClearTheOutputBeforeTheyFillIt) {
    Create(a, b, &tree);
    std::vector<Share> shares(4);
    std::vector<Tree> sources(4);

    EXPECT_TRUE(ctrl->GetDataSourceHierarchicalSharedInfo(&a, shares));
    EXPECT_TRUE(ctrl->GetDataSourceHierarchicalSharedList(&a, &b, sources));

    EXPECT_THAT(shares, ElementsAre(Share(&b, &tree)));
    EXPECT_THAT(sources, ElementsAre(&tree));
}

TEST_F(SharedTrees, StayWithTheOtherViewWhenOneIsDeleted) {
    Create(a, b, &tree);
    zbIBrowserView const* const gone = &a;
    Delete(a);
    std::vector<Share> shares{{&b, &tree}};

    EXPECT_THAT(SharesOf(b), ElementsAre(Share(gone, &tree)));
    EXPECT_FALSE(ctrl->GetDataSourceHierarchicalSharedInfo(gone, shares));

    EXPECT_THAT(shares, IsEmpty());
}

TEST_F(SharedTrees, ComeInTheOrderOfTheirPointers) {
    std::vector<Tree> trees;
    for (char const* name : {"t1", "t2", "t3", "t4", "t5"})
        trees.push_back(&data.Tree(name, type));
    std::sort(trees.begin(), trees.end(), std::greater<>());
    for (Tree each : trees)
        Create(a, b, each);

    std::sort(trees.begin(), trees.end(), std::less<>());

    EXPECT_EQ(SharedBy(a, b), trees);
    std::vector<Tree> told;
    for (Share const& share : SharesOf(a))
        told.push_back(share.second);
    EXPECT_EQ(told, trees);
}

} // namespace
} // namespace zbtest
