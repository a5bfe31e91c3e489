// SPDX-License-Identifier: MIT
//! \file
//! What a scene needs: a source and a contestant, a watch, and a check of what came out.
#pragma once

#include "Scenes.h"

#include <optional>

namespace zbbench {

//! Bytes that the allocator has handed out and not got back, whatever asked for them.
std::size_t BytesInUse();

//! Each measurement may take that much processor time. Then SIGPROF ends the process.
void SetLimit(unsigned seconds);

//! Sets the limit for as long as it lives.
struct Limited {
    Limited();
    ~Limited();
    Limited(Limited const&) = delete;
    Limited& operator=(Limited const&) = delete;
};

//! Processor time of this thread so far, in seconds. (There are no others, and that of the process
//! is inexact while a limit is set.)
double Now();

//! Processor time: what else the machine has to do does not count.
template <class Work>
double Seconds(Work const& work) {
    Limited const limited;
    auto const start = Now();
    work();
    return Now() - start;
}

//! Of what can be done again and again, for a while: the time for each.
template <class Work>
double SecondsEach(Work const& work) {
    constexpr double enough = 0.05;
    double seconds = 0;
    std::size_t count = 0;
    for (std::size_t more = 1; seconds < enough; more *= 2, count = more - 1) {
        seconds += Seconds([&] {
            for (std::size_t i = 0; i < more; ++i)
                work();
        });
    }
    return seconds / static_cast<double>(count);
}

class Hash {
public:
    void Add(std::uint64_t value) {
        sum_ = (sum_ ^ value) * 0x9e3779b97f4a7c15U;
        sum_ ^= sum_ >> 32U;
    }
    std::uint64_t Get() const { return sum_; }

private:
    std::uint64_t sum_ = 1;
};

struct Course {
    explicit Course(std::size_t rows)
        : source(rows) {}

    Items AddItems(std::size_t count);
    //! Drawn at random from all items.
    Items TakeOut(std::size_t count);
    //! With a check of the rows that were read, in the order of a column or unsorted.
    Sample Result(double value, std::optional<Column> column = {}) const;

    Source source;
    std::unique_ptr<Contestant> contestant; // Null: not made yet
};

struct AttachedCourse : Course {
    AttachedCourse(Entrant const& entrant, std::size_t rows)
        : Course(rows) {
        contestant = entrant.create(source);
        contestant->Attach();
    }
};

//! By name, and read.
struct SortedCourse : AttachedCourse {
    SortedCourse(Entrant const& entrant, std::size_t rows)
        : AttachedCourse(entrant, rows) {
        contestant->Sort(Column::Name, true);
        contestant->Read();
    }
};

} // namespace zbbench
