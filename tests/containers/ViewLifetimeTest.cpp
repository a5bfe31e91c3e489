// SPDX-License-Identifier: MIT
#include "view/ViewLifetime.h"

#include "support/AllocationFailures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zbbrowser::detail::CallScope;
using zbbrowser::detail::Retirable;
using zbbrowser::detail::ViewLifetime;
using zbtest::AllocationCount;
using zbtest::MemoryIsBack;

using Log = std::vector<std::string>;

//! Writes its name when it is destroyed, after it has retired what it holds.
struct Parked final : Retirable {
    Parked(Log& itsLog, std::string itsName)
        : log(itsLog)
        , name(std::move(itsName)) {}
    ~Parked() override {
        MemoryIsBack const memory;
        if (below != nullptr)
            lifetime->Retire(std::move(below));
        log.push_back(name);
    }

    Log& log;
    std::string name;
    ViewLifetime* lifetime = nullptr;
    std::unique_ptr<Parked> below;
};

class ViewLifetimeTest : public testing::Test {
protected:
    std::unique_ptr<Parked> Make(char const* name) { return std::make_unique<Parked>(log, name); }

    Log log;
    ViewLifetime lifetime;
};

TEST_F(ViewLifetimeTest, IsBusyWhileAnyScopeIsOpen) {
    EXPECT_FALSE(lifetime.IsBusy());
    {
        CallScope const outer(lifetime);
        EXPECT_TRUE(lifetime.IsBusy());
        {
            CallScope const inner(lifetime);
            EXPECT_TRUE(lifetime.IsBusy());
        }
        EXPECT_TRUE(lifetime.IsBusy());
    }
    EXPECT_FALSE(lifetime.IsBusy());
}

TEST_F(ViewLifetimeTest, FreesAtOnceWhenNothingRuns) {
    lifetime.Retire(Make("a"));

    EXPECT_THAT(log, ElementsAre("a"));
}

TEST_F(ViewLifetimeTest, FreesWhenTheOutermostScopeCloses) {
    {
        CallScope const outer(lifetime);
        {
            CallScope const inner(lifetime);
            lifetime.Retire(Make("a"));
        }
        EXPECT_THAT(log, IsEmpty());
    }
    EXPECT_THAT(log, ElementsAre("a"));
}

TEST_F(ViewLifetimeTest, FreesInTheOrderInWhichTheObjectsWent) {
    {
        CallScope const scope(lifetime);
        lifetime.Retire(Make("a"));
        lifetime.Retire(Make("b"));
        lifetime.Retire(Make("c"));
    }
    EXPECT_THAT(log, ElementsAre("a", "b", "c"));
}

TEST_F(ViewLifetimeTest, FreesWhatADestructorRetires) {
    {
        CallScope const scope(lifetime);
        auto above = Make("above");
        above->lifetime = &lifetime;
        above->below = Make("below");
        lifetime.Retire(std::move(above));
    }
    EXPECT_THAT(log, ElementsAre("above", "below"));
}

TEST_F(ViewLifetimeTest, FreesManyAndCanBeUsedAgain) {
    for (int round = 0; round < 2; ++round) {
        log.clear();
        {
            CallScope const scope(lifetime);
            for (int i = 0; i < 3000; ++i)
                lifetime.Retire(Make("x"));
        }
        EXPECT_EQ(log.size(), 3000U);
    }
}

TEST_F(ViewLifetimeTest, RetiringTakesNoMemory) {
    auto a = Make("a");
    auto b = Make("b");
    CallScope const scope(lifetime);
    auto const before = AllocationCount();

    lifetime.Retire(std::move(a));
    lifetime.Retire(std::move(b));

    EXPECT_EQ(AllocationCount(), before);
    EXPECT_EQ(lifetime.RetiredCount(), 2U);
}

TEST_F(ViewLifetimeTest, FreesWhenAnExceptionClosesTheScope) {
    try {
        CallScope const scope(lifetime);
        lifetime.Retire(Make("a"));
        throw 1;
    } catch (int) {
        EXPECT_THAT(log, ElementsAre("a"));
    }
    EXPECT_FALSE(lifetime.IsBusy());
}

//! A view in miniature: it owns its lifetime.
struct View {
    explicit View(Log& itsLog)
        : log(itsLog) {}
    View(View const&) = delete;
    View& operator=(View const&) = delete;
    ~View() {
        MemoryIsBack const memory;
        log.push_back("view");
    }

    Log& log;
    ViewLifetime lifetime;
};

void DeleteView(void* view) {
    delete static_cast<View*>(view);
}

TEST(GivenUpViewTest, GoesWhenTheOutermostScopeCloses) {
    Log log;
    auto* const view = new View(log);
    {
        CallScope const outer(view->lifetime);
        {
            CallScope const inner(view->lifetime);
            EXPECT_TRUE(view->lifetime.IsAlive());
            view->lifetime.GiveUp(view, DeleteView);
            EXPECT_FALSE(view->lifetime.IsAlive());
        }
        EXPECT_THAT(log, IsEmpty());
    }
    EXPECT_THAT(log, ElementsAre("view"));
}

TEST(GivenUpViewTest, FreesWhatWasRetiredFirst) {
    Log log;
    auto* const view = new View(log);
    {
        CallScope const scope(view->lifetime);
        view->lifetime.GiveUp(view, DeleteView);
        view->lifetime.Retire(std::make_unique<Parked>(log, "item"));
    }
    EXPECT_THAT(log, ElementsAre("item", "view"));
}

} // namespace
