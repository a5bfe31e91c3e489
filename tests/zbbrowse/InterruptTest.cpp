// SPDX-License-Identifier: MIT
#include "zbbrowse/Interrupt.h"

#include "EndToEnd.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

namespace {

using namespace zbtest;

// Databases with views that never come to an end, so that nothing here depends on how quick the
// machine is.
class Interrupted : public EndToEnd {
protected:
    Interrupted() {
        Sql("a.db", "create view silent as with recursive c(x) as (select 1 union all select x+1 "
                    "from c) select x from c where x < 0;"
                    "create view talking as with recursive c(x) as (select 1 union all select "
                    "x from c) select null as x from c;"
                    "create table many as with recursive c(x) as (select 1 union all select x+1 "
                    "from c where x < 300000) select x, 'some text' as name from c;");
    }
    std::string const file_ = Path("a.db");
};

TEST_F(Interrupted, AClosedPipeEndsQuietly) {
    Child child(Zbbrowse({file_, "--list", "many", "--format", "jsonl"}), Child::Place::Pipes);
    ASSERT_TRUE(child.WaitFor("\n"));

    child.CloseOutput();
    auto const ending = child.Wait();

    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.errors, "");
}

TEST_F(Interrupted, CtrlCWhileALoadGivesRowsEndsWith130) {
    Child child(Zbbrowse({file_, "--list", "talking"}), Child::Place::Terminal);
    // The count on the terminal shows that the load is under way.
    ASSERT_TRUE(child.WaitFor(" rows"));

    child.Signal(SIGINT);
    auto const ending = child.Wait();

    EXPECT_EQ(ending.status, 130);
}

TEST_F(Interrupted, CtrlCLeavesTheTerminalClean) {
    Child child(Zbbrowse({file_, "--list", "talking"}), Child::Place::Terminal);
    ASSERT_TRUE(child.WaitFor(" rows"));

    child.Signal(SIGINT);
    auto const output = child.Wait().output;

    // The line of the count is taken away, colours are off, and the prompt has its own line.
    std::string const farewell = "\r\x1b[K\x1b[0m\n";
    ASSERT_GE(output.size(), farewell.size());
    EXPECT_EQ(output.substr(output.size() - farewell.size()), farewell);
}

TEST_F(Interrupted, CtrlCBeforeAnyRowEndsWith130) {
    // The temporary file shows that the program has come to the load.
    Child child(Zbbrowse({file_, "--list", "silent", "--output", Path("out.txt")}),
                Child::Place::Pipes);
    while (Files().size() < 2) {
    }

    child.Signal(SIGINT);
    auto const ending = child.Wait();

    EXPECT_EQ(ending.status, 130);
    EXPECT_EQ(ending.output, "");
    EXPECT_EQ(ending.errors, "");
    EXPECT_EQ(Files(), std::vector<std::string>{"a.db"});
}

TEST_F(Interrupted, CtrlCWhileAReaderIsSlowEndsWith130) {
    Child child(Zbbrowse({file_, "--list", "many", "--format", "jsonl"}), Child::Place::Pipes);
    ASSERT_TRUE(child.WaitFor("\n"));

    child.Signal(SIGINT);

    EXPECT_EQ(child.Wait().status, 130);
}

TEST_F(Interrupted, OtherRequestsToEndHaveTheirOwnStatus) {
    for (int const number : {SIGTERM, SIGHUP}) {
        Child child(Zbbrowse({file_, "--list", "silent", "--output", Path("out.txt")}),
                    Child::Place::Pipes);
        while (Files().size() < 2) {
        }

        child.Signal(number);

        EXPECT_EQ(child.Wait().status, 128 + number);
        EXPECT_EQ(Files(), std::vector<std::string>{"a.db"});
    }
}

TEST_F(Interrupted, WithoutATerminalThereIsNoProgress) {
    auto const ending = Browse({file_, "--list", "many"});

    EXPECT_EQ(ending.status, 0);
    EXPECT_EQ(ending.errors, "");
    EXPECT_EQ(ending.output.find('\r'), std::string::npos);
}

//! A program that takes no notice of the flag, in a process of its own.
class Deaf : public EndToEnd {
protected:
    Deaf() {
        Write("temporary", "half");
        EXPECT_EQ(::pipe(ready_.data()), 0);
        process_ = ::fork();
        if (process_ != 0)
            return;
        zbbrowse::Interrupt const interrupt;
        zbbrowse::Interrupt::SetTemporaryFile(Path("temporary").c_str());
        [[maybe_unused]] auto const written = ::write(ready_[1], "x", 1);
        while (true)
            ::pause();
    }

    ~Deaf() override {
        ::close(ready_[0]);
        ::close(ready_[1]);
    }

    //! Sends the signal when the program is ready for it, and gives the exit status.
    int StatusAfter(int number) const {
        char byte = 0;
        EXPECT_EQ(::read(ready_[0], &byte, 1), 1);
        ::kill(process_, number);
        int state = 0;
        ::waitpid(process_, &state, 0);
        return WIFEXITED(state) ? WEXITSTATUS(state) : -1;
    }

private:
    std::array<int, 2> ready_{};
    pid_t process_ = -1;
};

TEST_F(Deaf, IsEndedAllTheSameAndLeavesNothing) {
    EXPECT_EQ(StatusAfter(SIGINT), 130);
    EXPECT_TRUE(Files().empty());
}

TEST_F(Deaf, IsEndedWithTheStatusOfItsSignal) {
    EXPECT_EQ(StatusAfter(SIGTERM), 143);
}

} // namespace
