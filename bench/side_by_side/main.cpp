// SPDX-License-Identifier: MIT
// Plays one scene with one contestant, and prints each measurement as a line of JSON:
//     compare_qt --scene show --rows 10000 [--limit SECONDS]
// Without arguments, what is compared.
#include "Course.h"

#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <map>

using zbbench::Entrant;
using zbbench::FindScene;
using zbbench::Report;
using zbbench::Sample;

namespace {

class Printed final : public Report {
    void Add(std::string_view measure, Sample const& sample) override {
        std::printf(R"({"measure": "%.*s", "value": %.9g, "check": "%016)" PRIx64
                    R"(", "ties": %s})"
                    "\n",
                    static_cast<int>(measure.size()), measure.data(), sample.value, sample.check,
                    sample.tiesInOrder ? "true" : "false");
        std::fflush(stdout); // The limit may end the process
    }
};

int Play(Entrant const& entrant, std::map<std::string_view, char const*> const& arguments) {
    auto const number = [&](char const* name) {
        auto const found = arguments.find(name);
        return found == arguments.end() ? 0 : std::strtoul(found->second, nullptr, 10);
    };
    auto const scene = arguments.find("--scene");
    auto const rows = number("--rows");
    auto const* const found = scene == arguments.end() ? nullptr : FindScene(scene->second);
    if (found == nullptr || rows <= zbbench::rowsShown) {
        std::fputs("--scene NAME --rows NUMBER [--limit SECONDS]\n", stderr);
        return 2;
    }
    zbbench::SetLimit(static_cast<unsigned>(number("--limit")));
    Printed report;
    found->play(entrant, rows, report);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    auto const entrant = zbbench::ENTRANT();
    if (argc == 1)
        return std::puts(entrant.version.c_str()) < 0 ? 1 : 0;
    std::map<std::string_view, char const*> arguments;
    for (int i = 1; i + 1 < argc; i += 2)
        arguments[argv[i]] = argv[i + 1];
    return Play(entrant, arguments);
}
