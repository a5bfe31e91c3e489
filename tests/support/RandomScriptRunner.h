// SPDX-License-Identifier: MIT
//! \file
//! RandomScriptRunner: plays many random scripts, or one that is given.
#pragma once

#include "RandomScript.h"

#include <functional>
#include <string>

namespace zbtest {

//! Plays random scripts until a number of steps has been taken.
//!
//! Each script begins with the step `mode calm` or `mode hostile` and has a seed of its own, which
//! follows from the first. A script that fails is made shorter as long as it fails, and told.
class RandomScriptRunner {
public:
    explicit RandomScriptRunner(std::uint64_t seed)
        : seed_(seed) {}

    //! Each script is written to this file while it is played, so that it is there after a crash.
    void KeepJournal(std::string file) { journal_ = std::move(file); }

    //! Is called between two scripts.
    void AfterEachScript(std::function<void()> call) { afterEachScript_ = std::move(call); }

    //! Takes at least that many steps. The result tells what failed, with the script; empty if
    //! nothing did.
    [[nodiscard]] std::string Run(std::size_t steps);
    //! Plays one script.
    [[nodiscard]] std::string Replay(Script const& script);

    [[nodiscard]] std::size_t StepsTaken() const { return steps_; }
    [[nodiscard]] std::size_t ScriptsPlayed() const { return scripts_; }

private:
    struct Played {
        Script script;
        std::string problem;
    };

    Played PlayRandom(std::uint64_t seed);
    Script Shorten(Script script);

    std::uint64_t const seed_;
    std::string journal_;
    std::function<void()> afterEachScript_ = [] {};
    std::size_t steps_ = 0;
    std::size_t scripts_ = 0;
};

} // namespace zbtest
