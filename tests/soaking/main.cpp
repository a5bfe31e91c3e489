// SPDX-License-Identifier: MIT
// Plays random scripts of host calls, or one script from a file.
#include "support/RandomScriptRunner.h"

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

constexpr char const* help = R"(usage: soak [--steps N] [--seed S] [--journal FILE]
       soak --replay FILE

Plays random scripts of host calls on views in memory, compares them with a model, and checks after
each step that the views hang together. Half of the scripts call back from within signals and host
operations. A script that fails is printed. The same seed gives the same scripts.

  --steps N       about that many steps; 1000000 unless told
  --seed S        the first seed; the time unless told
  --journal FILE  each script is written there while it is played, to have it after a crash
  --replay FILE   plays the script in FILE
)";

struct Options {
    std::size_t steps = 1000000;
    std::uint64_t seed =
        static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::seconds>(
                                       std::chrono::system_clock::now().time_since_epoch())
                                       .count()) *
        1000000; // So that two such seeds have no script in common
    std::string journal;
    std::string replay;
    bool isGood = true;
};

Options Parse(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; i += 2) {
        std::string const name = argv[i];
        std::string const value = i + 1 < argc ? argv[i + 1] : "";
        if (name == "--steps") {
            options.steps = std::strtoull(value.c_str(), nullptr, 10);
        } else if (name == "--seed") {
            options.seed = std::strtoull(value.c_str(), nullptr, 10);
        } else if (name == "--journal") {
            options.journal = value;
        } else if (name == "--replay") {
            options.replay = value;
        } else {
            options.isGood = false;
        }
        options.isGood = options.isGood && !value.empty();
    }
    return options;
}

//! Says how far it has come: now and then, and in the end.
class Progress {
public:
    explicit Progress(zbtest::RandomScriptRunner const& runner)
        : runner_(runner) {}

    void NowAndThen() {
        constexpr std::chrono::seconds pause(10);
        if (Clock::now() - told_ >= pause) {
            told_ = Clock::now();
            Tell();
        }
    }
    void Tell() const {
        double const seconds = std::chrono::duration<double>(Clock::now() - begin_).count();
        auto const rate = static_cast<double>(runner_.StepsTaken()) / seconds;
        std::cout << runner_.StepsTaken() << " steps in " << runner_.ScriptsPlayed() << " scripts, "
                  << static_cast<std::uint64_t>(seconds) << " s, "
                  << static_cast<std::uint64_t>(rate) << " steps/s" << std::endl;
    }

private:
    zbtest::RandomScriptRunner const& runner_;
    Clock::time_point const begin_ = Clock::now();
    Clock::time_point told_ = begin_;
};

std::string PlayRandom(Options const& options) {
    std::cout << "seed " << options.seed << std::endl;
    zbtest::RandomScriptRunner runner(options.seed);
    Progress progress(runner);
    runner.KeepJournal(options.journal);
    runner.AfterEachScript([&progress] { progress.NowAndThen(); });
    std::string problem = runner.Run(options.steps);
    progress.Tell();
    return problem;
}

std::string Replay(std::string const& file) {
    std::ifstream script(file);
    if (!script) {
        return "cannot read " + file;
    }
    std::ostringstream text;
    text << script.rdbuf();
    return zbtest::RandomScriptRunner(0).Replay(zbtest::ParseScript(text.str()));
}

} // namespace

int main(int argc, char** argv) {
    Options const options = Parse(argc, argv);
    if (!options.isGood) {
        std::cerr << help;
        return 2;
    }
    std::string const problem =
        options.replay.empty() ? PlayRandom(options) : Replay(options.replay);
    std::cerr << problem << (problem.empty() ? "" : "\n");
    return problem.empty() ? 0 : 1;
}
