// SPDX-License-Identifier: MIT
#include "Process.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <stdexcept>

namespace zbtest {

namespace {

void Check(bool good, char const* what) {
    if (!good)
        throw std::runtime_error(what);
}

void ApplyEnvironment(std::vector<std::string> const& changes) {
    for (auto const& change : changes) {
        auto const mark = change.find('=');
        if (mark == std::string::npos)
            ::unsetenv(change.c_str());
        else
            ::setenv(change.substr(0, mark).c_str(), change.substr(mark + 1).c_str(), 1);
    }
}

//! The input as a file without a name, so that nobody has to feed it.
int MakeInput(std::string const& text) {
    auto* const file = std::tmpfile();
    Check(file != nullptr, "tmpfile");
    Check(std::fwrite(text.data(), 1, text.size(), file) == text.size(), "input");
    std::rewind(file);
    return ::dup(::fileno(file));
}

} // namespace

Child::Child(Command const& command, Place place, unsigned short columns) {
    if (place == Place::Pipes)
        StartOnPipes(command);
    else
        StartOnTerminal(command, columns);
}

Child::~Child() {
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
    for (int const descriptor : {output_, errors_}) {
        if (descriptor >= 0)
            ::close(descriptor);
    }
}

void Child::Become(Command const& command) {
    ::signal(SIGPIPE, SIG_DFL);
    ApplyEnvironment(command.environment);
    std::vector<char*> arguments;
    auto copy = command.arguments;
    arguments.reserve(copy.size() + 1);
    for (auto& argument : copy)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    ::execv(arguments[0], arguments.data());
    ::_exit(127);
}

void Child::StartOnPipes(Command const& command) {
    std::array<int, 2> output{};
    std::array<int, 2> errors{};
    Check(::pipe2(output.data(), O_CLOEXEC) == 0, "pipe");
    Check(::pipe2(errors.data(), O_CLOEXEC) == 0, "pipe");
    auto const input = MakeInput(command.input);
    process_ = ::fork();
    Check(process_ >= 0, "fork");
    if (process_ == 0) {
        ::dup2(input, STDIN_FILENO);
        ::dup2(output[1], STDOUT_FILENO);
        ::dup2(errors[1], STDERR_FILENO);
        Become(command);
    }
    ::close(input);
    ::close(output[1]);
    ::close(errors[1]);
    output_ = output[0];
    errors_ = errors[0];
}

void Child::StartOnTerminal(Command const& command, unsigned short columns) {
    winsize size{};
    size.ws_col = columns;
    size.ws_row = 24;
    process_ = ::forkpty(&output_, nullptr, nullptr, &size);
    Check(process_ >= 0, "forkpty");
    if (process_ == 0) {
        // The terminal would write CR LF for each line end.
        termios settings{};
        ::tcgetattr(STDOUT_FILENO, &settings);
        settings.c_oflag &= ~static_cast<tcflag_t>(OPOST);
        ::tcsetattr(STDOUT_FILENO, TCSANOW, &settings);
        Become(command);
    }
}

void Child::Read(int& descriptor, std::string& text) {
    std::array<char, 65536> buffer;
    auto const count = ::read(descriptor, buffer.data(), buffer.size());
    if (count > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
        return;
    }
    if (count < 0 && errno == EINTR)
        return;
    ::close(descriptor);
    descriptor = -1;
}

bool Child::ReadSome() {
    std::array<pollfd, 2> waiting{pollfd{output_, POLLIN, 0}, pollfd{errors_, POLLIN, 0}};
    if (output_ < 0 && errors_ < 0)
        return false;
    ::poll(waiting.data(), waiting.size(), -1);
    if (waiting[0].revents != 0)
        Read(output_, ending_.output);
    if (waiting[1].revents != 0)
        Read(errors_, ending_.errors);
    return true;
}

bool Child::WaitFor(std::string const& text, std::string const& in) {
    while (in.find(text) == std::string::npos) {
        if (!ReadSome())
            return false;
    }
    return true;
}

void Child::CloseOutput() {
    ::close(output_);
    output_ = -1;
}

void Child::Signal(int number) {
    ::kill(process_, number);
}

Ending Child::Wait() {
    while (ReadSome()) {
    }
    int state = 0;
    ::waitpid(process_, &state, 0);
    process_ = -1;
    ending_.status = WIFEXITED(state) ? WEXITSTATUS(state) : -WTERMSIG(state);
    return ending_;
}

Ending RunToEnd(Command const& command) {
    return Child(command, Child::Place::Pipes).Wait();
}

} // namespace zbtest
