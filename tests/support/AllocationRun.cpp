// SPDX-License-Identifier: MIT
#include "AllocationRun.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace zbtest {

namespace {

constexpr unsigned secondsPerRun = 60;
constexpr std::size_t problemsPerTest = 5;
constexpr std::size_t never = ~std::size_t{0};

std::string& Problems() {
    static std::string problems;
    return problems;
}

//! Allocations fail from the time when a test's fixture is made; the report about what the test
//! threw and whatever comes after have memory again.
class FailDuringTest final : public testing::EmptyTestEventListener {
public:
    void Set(Failing failing, std::size_t first) {
        failing_ = failing;
        first_ = first;
    }
    void OnTestStart(testing::TestInfo const& /*info*/) override {
        AllocationFailures::Begin(failing_, first_);
    }
    void OnTestEnd(testing::TestInfo const& /*info*/) override { AllocationFailures::End(); }

private:
    Failing failing_ = Failing::Once;
    std::size_t first_ = never;
};

//! What the process that runs the tests tells the one that waits for it.
struct Progress {
    std::size_t test = 0; //!< The one that is running.
    bool isBegun = false; //!< It has the following.
    std::size_t next = 0; //!< The allocation that fails next.
    std::size_t step = 1;
    std::size_t problems = 0;

    std::size_t allAllocations = 0;
    std::size_t allFailures = 0;
    std::size_t allProblems = 0;
};

class AllocationRun {
public:
    AllocationRun(AllocationRunOptions const& options, std::string program)
        : options_(options)
        , program_(std::move(program))
        , progress_(*new (Shared()) Progress) {
        auto& listeners = testing::UnitTest::GetInstance()->listeners();
        delete listeners.Release(listeners.default_result_printer());
        listeners.Append(&failDuringTest_);
    }
    AllocationRun(AllocationRun const&) = delete;
    AllocationRun& operator=(AllocationRun const&) = delete;
    ~AllocationRun() {
        testing::UnitTest::GetInstance()->listeners().Release(&failDuringTest_);
        munmap(&progress_, sizeof(Progress));
    }

    // A crash ends the process that runs the tests, and another one goes on behind the place.
    int Run(std::vector<std::string> const& tests) {
        while (progress_.test < tests.size()) {
            std::cout.flush();
            auto const child = fork();
            if (child == 0) {
                for (; progress_.test < tests.size(); ++progress_.test)
                    RunTest(tests[progress_.test]);
                std::cout.flush();
                _exit(EXIT_SUCCESS);
            }
            int status = 0;
            waitpid(child, &status, 0);
            if (progress_.test == tests.size())
                break;
            Tell(tests[progress_.test], progress_.next,
                 !WIFSIGNALED(status)          ? "ended the program"
                 : WTERMSIG(status) == SIGALRM ? "does not end"
                                               : strsignal(WTERMSIG(status)));
            progress_.next += progress_.step;
        }
        std::cout << program_ << ": " << tests.size() << " tests, " << progress_.allFailures
                  << " of their " << progress_.allAllocations << " allocations failed, "
                  << progress_.allProblems << " problems\n";
        return progress_.allProblems == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    }

    //! In this process.
    int RunAt(std::string const& test, std::size_t place) {
        testing::GTEST_FLAG(filter) = test;
        RunOnce(never);
        Check(test, place);
        return progress_.allProblems == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    }

private:
    static void* Shared() {
        void* const memory = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE,
                                  MAP_SHARED | MAP_ANONYMOUS, -1, 0);
        if (memory == MAP_FAILED)
            throw std::bad_alloc();
        return memory;
    }

    //! The allocations that are left of a run of the test.
    long RunOnce(std::size_t failing) {
        failDuringTest_.Set(options_.failing, failing);
        auto const before = LiveAllocations();
        alarm(secondsPerRun);
        auto const status = RUN_ALL_TESTS();
        alarm(0);
        if (status != EXIT_SUCCESS)
            ForgetResults();
        return LiveAllocations() - before;
    }

    // A run of no test at all.
    static void ForgetResults() {
        auto test = testing::GTEST_FLAG(filter);
        testing::GTEST_FLAG(filter) = "-*";
        std::ignore = RUN_ALL_TESTS();
        testing::GTEST_FLAG(filter) = std::move(test);
    }

    // Not every test begins with its first allocation, since many begin alike. A test may also
    // begin and end failures of its own; what fails there is not counted.
    void RunTest(std::string const& test) {
        testing::GTEST_FLAG(filter) = test;
        RunOnce(never);
        auto const all = AllocationFailures::Count();
        if (!std::exchange(progress_.isBegun, true)) {
            progress_.step = options_.most == 0 ? 1 : all / options_.most + 1;
            progress_.next = progress_.test % progress_.step;
            progress_.problems = 0;
            progress_.allAllocations += all;
        }
        left_ = RunOnce(never);
        while (progress_.problems < problemsPerTest && progress_.next < all &&
               Check(test, progress_.next))
            progress_.next += progress_.step;
        progress_.isBegun = false;
    }

    // What is left for good the first time, such as a constant that is made when it is needed, is
    // not left again.
    bool Check(std::string const& test, std::size_t place) {
        auto left = RunOnce(place);
        if (!AllocationFailures::HasFailed())
            return false;
        ++progress_.allFailures;
        if (Problems().empty() && left != left_)
            left = RunOnce(place);
        if (Problems().empty() && left != left_)
            ReportProblem(std::to_string(left - left_) + " allocations are left");
        if (!Problems().empty())
            Tell(test, place, std::exchange(Problems(), std::string()));
        return true;
    }

    void Tell(std::string const& test, std::size_t place, std::string_view text) {
        ++progress_.problems;
        ++progress_.allProblems;
        std::cout << text << "\n  " << program_ << " --fail-allocations="
                  << (options_.failing == Failing::Once ? "once" : "always") << " --at=" << place
                  << " --gtest_filter=" << test << "\n";
    }

    AllocationRunOptions const options_;
    std::string const program_;
    Progress& progress_;
    FailDuringTest failDuringTest_;
    long left_ = 0;
};

std::vector<std::string> TestsToRun() {
    std::vector<std::string> names;
    auto const& all = *testing::UnitTest::GetInstance();
    for (int i = 0; i < all.total_test_suite_count(); ++i) {
        auto const& suite = *all.GetTestSuite(i);
        for (int j = 0; j < suite.total_test_count(); ++j) {
            auto const& test = *suite.GetTestInfo(j);
            if (test.should_run() && !std::string_view(suite.name()).ends_with("DeathTest"))
                names.push_back(std::string(suite.name()) + '.' + test.name());
        }
    }
    return names;
}

} // namespace

std::optional<AllocationRunOptions> ParseAllocationRunOptions(int argc, char const* const* argv) {
    AllocationRunOptions options;
    bool isAsked = false;
    for (int i = 1; i < argc; ++i) {
        std::string const argument = argv[i];
        auto const equals = argument.find('=');
        auto const name = argument.substr(0, equals);
        auto const value = equals == std::string::npos ? "" : argument.substr(equals + 1);
        if (argument == "--fail-allocations=once" || argument == "--fail-allocations=always") {
            isAsked = true;
            options.failing = value == "once" ? Failing::Once : Failing::Always;
        } else if (name == "--most") {
            options.most = std::stoul(value);
        } else if (name == "--at") {
            options.at = std::stoul(value);
        } else {
            throw std::invalid_argument("unknown option " + argument);
        }
    }
    return isAsked ? std::optional(options) : std::nullopt;
}

int RunWithFailures(AllocationRunOptions const& options, std::string const& program) {
    if (RUN_ALL_TESTS() != 0)
        return EXIT_FAILURE;
    auto const tests = TestsToRun();
    AllocationRun run(options, program);
    return options.at.has_value() && tests.size() == 1 ? run.RunAt(tests.front(), *options.at)
                                                       : run.Run(tests);
}

void ReportProblem(std::string const& text) {
    Problems().append(Problems().empty() || text.empty() ? "" : "\n").append(text);
}

} // namespace zbtest
