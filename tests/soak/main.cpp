// SPDX-License-Identifier: MIT
// Plays random scripts of host calls, or one script from a file.
#include "support/RandomScriptRunner.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

constexpr char const* help = R"(usage: soak [--steps N] [--seed S] [--journal FILE]
       soak --replay FILE

Plays random scripts of host calls on views in memory, compares them with a model, and checks after
each step that the views hang together. Half of the scripts call back from within signals and host
operations. A script that fails is printed.

  --steps N       about that many steps; 1000000 unless told
  --seed S        the first seed; 1 unless told
  --journal FILE  each script is written there while it is played, to have it after a crash
  --replay FILE   plays the script in FILE
)";

struct Options {
    std::size_t steps = 1000000;
    std::uint64_t seed = 1;
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

std::string Play(Options const& options) {
    zbtest::RandomScriptRunner runner(options.seed);
    if (options.replay.empty()) {
        runner.KeepJournal(options.journal);
        std::string problem = runner.Run(options.steps);
        std::cout << runner.StepsTaken() << " steps in " << runner.ScriptsPlayed() << " scripts\n";
        return problem;
    }
    std::ifstream file(options.replay);
    if (!file) {
        return "cannot read " + options.replay;
    }
    std::ostringstream text;
    text << file.rdbuf();
    return runner.Replay(zbtest::ParseScript(text.str()));
}

} // namespace

int main(int argc, char** argv) {
    Options const options = Parse(argc, argv);
    if (!options.isGood) {
        std::cerr << help;
        return 2;
    }
    std::string const problem = Play(options);
    std::cerr << problem << (problem.empty() ? "" : "\n");
    return problem.empty() ? 0 : 1;
}
