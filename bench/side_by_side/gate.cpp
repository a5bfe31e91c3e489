// SPDX-License-Identifier: MIT
// Holds the library to what it has reached, and to n log n:
//     zbGate ratios.txt    status 1 if something has become worse
//     zbGate               prints the ratios that hold here and now, as the file has them
// No time is compared with a stored one, only with that of plain arrays at the same work in the
// same run. Of each the least counts, and what seems too slow gets more chances.
#include "Scenes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <string>
#include <tuple>

using zbbench::Entrant;
using zbbench::Report;
using zbbench::Sample;

namespace {

// How much worse than what is stored is still let pass: other processors have other caches.
constexpr double slack = 2;
// The same for growth: what fits the allocator's heap one size below may be fresh memory here.
constexpr double growthSlack = 3;
constexpr int chances = 4;

constexpr std::size_t sizes[] = {10'000, 100'000, 1'000'000};
constexpr std::array repetitions{10, 4, 1}; // For each chance
constexpr std::string_view scenes[] = {"show",          "sort-number",  "change-unsorted",
                                       "change-sorted", "change-batch", "rename-batch",
                                       "select"};

//! The least of each measurement of one entrant at one size.
class Least final : public Report {
public:
    void Add(std::string_view measure, Sample const& sample) override {
        auto const [found, isNew] = samples_.try_emplace(std::string(measure), sample);
        found->second.value = std::min(found->second.value, sample.value);
    }
    std::map<std::string, Sample> const& GetSamples() const { return samples_; }
    double GetValue(std::string const& measure) const { return samples_.at(measure).value; }

private:
    std::map<std::string, Sample> samples_;
};

struct Size {
    std::size_t rows;
    int repetitions;
    Least ours;
    Least limit;

    void Measure() {
        for (int i = 0; i < repetitions; ++i) {
            for (auto const scene : scenes) {
                auto const play = zbbench::FindScene(scene)->play;
                play(zbbench::Library(), rows, ours);
                play(zbbench::Limit(), rows, limit);
            }
        }
    }
    double Ratio(std::string const& measure) const {
        return ours.GetValue(measure) / limit.GetValue(measure);
    }
};

//! The first start-up in a process costs more than those after it.
bool HasGrowth(std::string const& measure) {
    return measure != "start";
}

//! Where arrays have next to nothing to do, or only wait for the kernel's memory, ratios mean
//! little.
bool HasRatio(std::string const& measure) {
    return HasGrowth(measure) && measure != "attach" && measure != "tear-down";
}

//! Results other than those of the arrays, whatever the times are.
int CountWrong(Size const& size) {
    int wrong = 0;
    for (auto const& [measure, sample] : size.ours.GetSamples()) {
        auto const& expected = size.limit.GetSamples().at(measure);
        if (sample.check == expected.check && sample.tiesInOrder)
            continue;
        std::printf("%s at %zu rows: another result than that of the arrays\n", measure.c_str(),
                    size.rows);
        ++wrong;
    }
    return wrong;
}

using Ratios = std::map<std::pair<std::string, std::size_t>, double>;

Ratios ReadRatios(char const* path) {
    Ratios ratios;
    std::ifstream file(path);
    std::string measure;
    std::size_t rows = 0;
    double ratio = 0;
    while (file >> measure >> rows >> ratio)
        ratios[{measure, rows}] = ratio;
    return ratios;
}

int CountWorse(Size const& size, Ratios const& stored) {
    int worse = 0;
    for (auto const& [measure, sample] : size.ours.GetSamples()) {
        auto const found = stored.find({measure, size.rows});
        if (found == stored.end() || size.Ratio(measure) <= slack * found->second)
            continue;
        std::printf("%s at %zu rows: %.3g times the arrays, stored are %.3g\n", measure.c_str(),
                    size.rows, size.Ratio(measure), found->second);
        ++worse;
    }
    return worse;
}

double NLogN(std::size_t rows) {
    auto const n = static_cast<double>(rows);
    return n * std::log2(n);
}

//! Where more rows no longer fit the caches, arrays grow faster than n log n, too.
int CountGrowing(Size const& few, Size const& many) {
    int growing = 0;
    for (auto const& [measure, sample] : many.ours.GetSamples()) {
        auto const growth = sample.value / few.ours.GetValue(measure);
        auto const growthOfLimit = many.limit.GetValue(measure) / few.limit.GetValue(measure);
        auto const allowed =
            growthSlack * std::max(NLogN(many.rows) / NLogN(few.rows), growthOfLimit);
        if (!HasGrowth(measure) || growth <= allowed)
            continue;
        std::printf("%s grows %.3g times from %zu to %zu rows, allowed is %.3g\n", measure.c_str(),
                    growth, few.rows, many.rows, allowed);
        ++growing;
    }
    return growing;
}

using Measured = std::array<Size, 3>;

int CountFaults(Measured const& measured, Ratios const& stored) {
    int faults = 0;
    for (auto const& size : measured)
        faults += CountWrong(size) + CountWorse(size, stored);
    return faults + CountGrowing(measured[0], measured[1]) + CountGrowing(measured[1], measured[2]);
}

int Check(Measured& measured, Ratios const& stored) {
    if (stored.empty()) {
        std::puts("no ratios are stored");
        return 1;
    }
    int faults = 0;
    for (int chance = 0; chance < chances; ++chance) {
        for (auto& size : measured)
            size.Measure();
        faults = CountFaults(measured, stored);
        if (faults == 0)
            break;
        std::puts(chance + 1 < chances ? "once more, to be sure" : "that is so");
    }
    std::printf("%zu ratios compared, %d faults\n", stored.size(), faults);
    return faults == 0 ? 0 : 1;
}

int Print(Measured& measured) {
    for (auto& size : measured) {
        size.Measure();
        for (auto const& [measure, sample] : size.ours.GetSamples()) {
            if (HasRatio(measure))
                std::printf("%s %zu %.3g\n", measure.c_str(), size.rows, size.Ratio(measure));
        }
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    Measured measured{Size{sizes[0], repetitions[0], {}, {}},
                      Size{sizes[1], repetitions[1], {}, {}},
                      Size{sizes[2], repetitions[2], {}, {}}};
    return argc == 2 ? Check(measured, ReadRatios(argv[1])) : Print(measured);
}
