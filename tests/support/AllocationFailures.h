// SPDX-License-Identifier: MIT
//! \file
//! Allocations that fail on purpose.
#pragma once

#include <cstddef>
#include <new>

namespace zbtest {

//! What a failing allocation throws. Whoever asks for its text is the test program that reports
//! it, for which there is memory again.
class NoMemory final : public std::bad_alloc {
public:
    char const* what() const noexcept override;
};

enum class Failing { Once, Always };

//! Which allocations of this thread fail. Counted are those in which a failure could be told: none
//! fails while an exception is on its way already, nor in the handler of one that was not thrown
//! here.
class AllocationFailures {
public:
    //! From now on the allocation `first`, counted from 0, fails, and for Always all that follow.
    static void Begin(Failing failing, std::size_t first);
    static void End() { state_.on = false; }

    //! Any has failed since Begin.
    static bool HasFailed() { return state_.hasFailed; }
    //! Allocations since Begin that failed or could have.
    static std::size_t Count() { return state_.count; }

    //! For the replaced operators: this one fails.
    static bool IsNext() noexcept;

private:
    friend class MemoryIsBack;

    struct State {
        bool on;
        bool hasFailed;
        Failing failing;
        int pauses;
        std::size_t first;
        std::size_t count;
    };
    static inline thread_local constinit State state_{};
};

//! No allocation fails while it lives: what belongs to the tests alone opens one where it could not
//! go on, such as in a destructor that allocates.
class [[nodiscard]] MemoryIsBack {
public:
    MemoryIsBack() { ++AllocationFailures::state_.pauses; }
    MemoryIsBack(MemoryIsBack const&) = delete;
    MemoryIsBack& operator=(MemoryIsBack const&) = delete;
    ~MemoryIsBack() { --AllocationFailures::state_.pauses; }
};

//! \name Counts of all threads
//! Zero unless the program replaces the operators, as the test programs do.
//! \{
long AllocationCount();
//! Those that were not given back yet.
long LiveAllocations();
//! \}

} // namespace zbtest
