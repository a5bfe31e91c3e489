// SPDX-License-Identifier: MIT
#include "support/RandomScriptRunner.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace zbtest {
namespace {

constexpr std::size_t stepsUnlessTold = 100000;

std::uint64_t FromEnvironment(char const* name, std::uint64_t otherwise) {
    char const* const text = std::getenv(name);
    return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

TEST(ScriptStepTest, IsReadAndWrittenAsALine) {
    // given
    ScriptStep const step("  on ViewItemCreated 2   delete-folder v0:a on ");

    // then
    EXPECT_EQ(step.Line(), "on ViewItemCreated 2 delete-folder v0:a on");
    EXPECT_EQ(step.Name(), "on");
    EXPECT_EQ(step.Arg(9), "");
    EXPECT_EQ(step.Rest(3).Line(), "delete-folder v0:a on");
    EXPECT_TRUE(step.Rest(3).Flag(2));
    EXPECT_EQ(step.Rest(9).Count(), 0U);
}

TEST(ScriptStepTest, AScriptHasAStepOnEachLineAndRemarks) {
    EXPECT_EQ(TextOf(ParseScript("# seed 1\nview v0\n\n  folder v0:/ a\n")),
              "view v0\nfolder v0:/ a\n");
}

TEST(RandomNumbersTest, TheSameSeedGivesTheSameNumbers) {
    // given
    RandomNumbers one(7);
    RandomNumbers other(7);
    RandomNumbers third(8);

    // then
    auto const number = one.Next();
    EXPECT_EQ(number, other.Next());
    EXPECT_NE(number, third.Next());
}

TEST(RandomScriptTest, AReplayTellsWhatIsWrongAndWhere) {
    // given: a word that neither the model nor the player knows
    Script const script = ParseScript("mode calm\nview v0\nno-such-step\nfolder v0:/ a\n");

    // when
    std::string const problem = RandomScriptRunner(1).Replay(script);

    // then
    EXPECT_EQ(problem, "after no-such-step:\nunknown step\n");
}

TEST(RandomScriptTest, AReplayOfASoundScriptIsSilent) {
    EXPECT_EQ(RandomScriptRunner(1).Replay(ParseScript("mode calm\n"
                                                       "view v0\n"
                                                       "control v0 data\n"
                                                       "connect v0 s0\n"
                                                       "item s0 a0\n"
                                                       "list v0:/ s0\n"
                                                       "unlist s0 a0\n"
                                                       "mark s0 on\n"
                                                       "rebuild-lists v0\n")),
              "");
}

TEST(RandomScriptTest, AnAttackFromWithinASignalIsCarriedOut) {
    EXPECT_EQ(
        RandomScriptRunner(1).Replay(ParseScript("mode hostile\n"
                                                 "view v0\n"
                                                 "folder v0:/ a\n"
                                                 "item s0 a0\n"
                                                 "item s0 a1\n"
                                                 "on ViewItemCreated 1 delete-folder v0:a on\n"
                                                 "list v0:a s0\n")),
        "");
}

TEST(RandomScriptTest, ARowThatTheHostBuildsWhileItsSourceIsAskedIsMadeOnce) {
    EXPECT_EQ(RandomScriptRunner(1).Replay(ParseScript("mode hostile\n"
                                                       "view v0\n"
                                                       "item s0 a1\n"
                                                       "folder v0:/ a\n"
                                                       "on ContainsDataItem 1 build v0 on\n"
                                                       "list v0:a s0\n")),
              "");
}

TEST(RandomScriptTest, AViewThatGoesWhileTheSourceOfANewItemIsAskedIsNotTold) {
    EXPECT_EQ(RandomScriptRunner(1).Replay(ParseScript("mode hostile\n"
                                                       "view v0\n"
                                                       "control v0 data\n"
                                                       "connect v0 s0\n"
                                                       "list v0:/ s0\n"
                                                       "view v1\n"
                                                       "control v1 data\n"
                                                       "connect v1 s0\n"
                                                       "list v1:/ s0\n"
                                                       "item s0 a0\n"
                                                       "on ContainsDataItem 1 delete-view v1\n"
                                                       "created s0 a0\n")),
              "");
}

// More with ZBBROWSERVIEW_RANDOM_STEPS, others with ZBBROWSERVIEW_RANDOM_SEED. The script that is
// being played is kept in random_script.txt, for the case that it ends in a crash.
TEST(RandomScriptTest, ViewsDoWhatTheModelSaysAndSurviveEveryAttack) {
    // given
    RandomScriptRunner runner(FromEnvironment("ZBBROWSERVIEW_RANDOM_SEED", 1));
    runner.KeepJournal("random_script.txt");

    // when
    std::string const problem =
        runner.Run(FromEnvironment("ZBBROWSERVIEW_RANDOM_STEPS", stepsUnlessTold));

    // then
    EXPECT_EQ(problem, "");
}

} // namespace
} // namespace zbtest
