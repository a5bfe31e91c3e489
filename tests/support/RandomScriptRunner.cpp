// SPDX-License-Identifier: MIT
#include "RandomScriptRunner.h"

#include "RandomScriptGenerator.h"

#include <fstream>

namespace zbtest {

namespace {

constexpr std::size_t shortestScript = 50;
constexpr std::size_t spreadOfLength = 150;
constexpr std::size_t stepsAfterAThrow = 4;

ScriptPlayer::Mode ModeOf(Script const& script) {
    bool const isHostile = !script.empty() && script.front().Line() == "mode hostile";
    return isHostile ? ScriptPlayer::Mode::Hostile : ScriptPlayer::Mode::Calm;
}

} // namespace

std::string RandomScriptRunner::Run(std::size_t steps) {
    for (std::uint64_t seed = seed_; steps_ < steps; ++seed) {
        Played const played = PlayRandom(seed);
        afterEachScript_();
        if (played.problem.empty()) {
            continue;
        }
        Script const shortened = Shorten(played.script);
        return "seed " + std::to_string(seed) + ": " + played.problem +
               "\nThe script, made shorter:\n\n" + TextOf(shortened) + "\nwhich says\n" +
               Replay(shortened);
    }
    return "";
}

RandomScriptRunner::Played RandomScriptRunner::PlayRandom(std::uint64_t seed) {
    RandomNumbers numbers(seed);
    bool const isCalm = numbers.OneIn(2);
    std::size_t const length = shortestScript + numbers.Below(spreadOfLength);
    Played played{{ScriptStep::Of("mode", isCalm ? "calm" : "hostile")}, ""};
    std::ofstream journal;
    if (!journal_.empty()) {
        journal.open(journal_);
        journal << "# seed " << seed << '\n' << played.script.front().Line() << std::endl;
    }

    ScriptPlayer player(isCalm ? ScriptPlayer::Mode::Calm : ScriptPlayer::Mode::Hostile);
    ScriptGenerator generator(player, numbers.Next());
    Script next = generator.Prologue();
    std::size_t left = length;
    while (played.problem.empty() && left > 0) {
        for (ScriptStep const& step : next) {
            played.script.push_back(step);
            if (journal.is_open()) {
                journal << step.Line() << std::endl;
            }
            ++steps_;
            played.problem = player.Play(step);
            if (!played.problem.empty()) {
                break;
            }
        }
        --left;
        left = player.HasThrown() ? std::min(left, stepsAfterAThrow) : left;
        next = generator.Next();
    }
    if (played.problem.empty()) {
        played.problem = player.Finish();
    }
    ++scripts_;
    return played;
}

std::string RandomScriptRunner::Replay(Script const& script) {
    ScriptPlayer player(ModeOf(script));
    for (ScriptStep const& step : script) {
        std::string const problem = step.Name() == "mode" ? "" : player.Play(step);
        if (!problem.empty()) {
            return "after " + step.Line() + ":\n" + problem;
        }
    }
    return player.Finish();
}

// Takes out pieces, large ones first, without which it still fails.
Script RandomScriptRunner::Shorten(Script script) {
    for (std::size_t size = script.size() / 2; size > 0; size /= 2) {
        for (std::size_t at = 1; at < script.size();) {
            Script shorter = script;
            auto const first = shorter.begin() + static_cast<std::ptrdiff_t>(at);
            auto const count = std::min(size, script.size() - at);
            shorter.erase(first, first + static_cast<std::ptrdiff_t>(count));
            if (Replay(shorter).empty()) {
                at += size;
            } else {
                script = std::move(shorter);
            }
        }
    }
    return script;
}

} // namespace zbtest
