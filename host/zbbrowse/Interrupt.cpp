// SPDX-License-Identifier: MIT
#include "zbbrowse/Interrupt.h"

#include <fcntl.h>
#include <signal.h>
#include <time.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace zbbrowse {

namespace {

constexpr long kGraceNanoseconds = 150'000'000;
constexpr std::array kPoliteSignals{SIGINT, SIGTERM, SIGHUP};

// A signal handler can reach nothing but what has static storage. It may read these at any moment,
// so each is written before the flag that guards it.
std::atomic<bool> stopFlag{false};
std::atomic<int> stopSignal{SIGINT};
std::atomic<char const*> outputFarewell{nullptr};
std::atomic<char const*> errorFarewell{nullptr};
std::array<char, 4096> temporaryPath{};
std::atomic<bool> hasTemporary{false};
timer_t graceTimer{};
std::atomic<bool> hasTimer{false};

static_assert(std::atomic<bool>::is_always_lock_free, "handlers may only use what never waits");
static_assert(std::atomic<char const*>::is_always_lock_free, "the same");

//! A terminal that is held up (Ctrl-S) must not hold up the end of the program.
void SayFarewell(int descriptor, char const* text) {
    if (text == nullptr)
        return;
    ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    [[maybe_unused]] auto const written = ::write(descriptor, text, std::strlen(text));
    ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
}

//! Only what may be called in a signal handler.
[[noreturn]] void EndNow() {
    SayFarewell(STDERR_FILENO, errorFarewell.load());
    SayFarewell(STDOUT_FILENO, outputFarewell.load());
    if (hasTemporary.load())
        ::unlink(temporaryPath.data());
    ::_exit(128 + stopSignal.load());
}

extern "C" void OnPoliteSignal(int number) {
    auto const error = errno;
    if (!stopFlag.load()) {
        stopSignal.store(number);
        stopFlag.store(true);
        itimerspec grace{};
        grace.it_value.tv_nsec = kGraceNanoseconds;
        if (!hasTimer.load() || ::timer_settime(graceTimer, 0, &grace, nullptr) != 0)
            EndNow();
    }
    errno = error;
}

extern "C" void OnGraceOver(int /*number*/) {
    EndNow();
}

//! Without SA_RESTART, so that a write to a slow reader returns and the flag is seen.
void Handle(int number, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    ::sigaction(number, &action, nullptr);
}

//! `nohup` has the program ignore the end of its terminal.
bool IsIgnored(int number) {
    struct sigaction action {};
    return ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void MakeTimer() {
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGALRM;
    hasTimer.store(::timer_create(CLOCK_MONOTONIC, &event, &graceTimer) == 0);
}

} // namespace

Interrupt::Interrupt() {
    MakeTimer();
    Handle(SIGALRM, OnGraceOver);
    Handle(SIGPIPE, SIG_IGN);
    for (int const number : kPoliteSignals) {
        if (number != SIGHUP || !IsIgnored(number))
            Handle(number, OnPoliteSignal);
    }
}

std::atomic<bool> const& Interrupt::GetFlag() const {
    return stopFlag;
}

int Interrupt::GetExitStatus() const {
    return 128 + stopSignal.load();
}

void Interrupt::End() const {
    EndNow();
}

void Interrupt::SetFarewell(int descriptor, char const* text) {
    (descriptor == STDERR_FILENO ? errorFarewell : outputFarewell).store(text);
}

bool Interrupt::SetTemporaryFile(char const* path) {
    hasTemporary.store(false);
    auto const length = std::strlen(path);
    if (length >= temporaryPath.size())
        return false;
    std::memcpy(temporaryPath.data(), path, length + 1);
    hasTemporary.store(length != 0);
    return true;
}

} // namespace zbbrowse
