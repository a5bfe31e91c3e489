// SPDX-License-Identifier: MIT
//! \file
//! What the contestants do.
#pragma once

#include "Contestant.h"

#include <string_view>

namespace zbbench {

//! One measurement.
struct Sample {
    double value = 0;        // Seconds, or bytes a row
    std::uint64_t check = 0; // Sum over what came out; the same for whoever did the same
    bool tiesInOrder = true; // Rows with equal keys stood in their order too
};

//! Takes down each measurement under its name.
class Report {
public:
    Report() = default;
    Report(Report const&) = delete;
    Report& operator=(Report const&) = delete;
    virtual ~Report() = default;
    virtual void Add(std::string_view measure, Sample const& sample) = 0;
};

//! What is done in a process, from nothing.
struct Scene {
    std::string_view name;
    void (*play)(Entrant const& entrant, std::size_t rows, Report& report);
};

//! Null: none has that name.
Scene const* FindScene(std::string_view name);

} // namespace zbbench
