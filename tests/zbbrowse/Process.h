// SPDX-License-Identifier: MIT
//! \file
//! Other programs, run from a test.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace zbtest {

//! How a program is to be run. `environment` holds `NAME=value` and, to take one away, `NAME`.
struct Command {
    std::vector<std::string> arguments; //!< The program first.
    std::vector<std::string> environment;
    std::string input;
};

struct Ending {
    int status = -1; //!< Exit status, or minus the signal that ended it.
    std::string output;
    std::string errors;
};

//! Runs a program to its end.
Ending RunToEnd(Command const& command);

//! A running program whose standard output and error can be read piece by piece.
class Child {
public:
    enum class Place { Pipes, Terminal };

    //! On a terminal, output and errors are one, in the order in which they come.
    //! `columns` is the terminal's width.
    Child(Command const& command, Place place, unsigned short columns = 80);
    ~Child();
    Child(Child const&) = delete;
    Child& operator=(Child const&) = delete;

    //! Reads output until it holds `text`. False if the program ends before.
    bool WaitFor(std::string const& text) { return WaitFor(text, ending_.output); }

    //! The same for standard error. Requires: pipes.
    bool WaitForError(std::string const& text) { return WaitFor(text, ending_.errors); }

    //! Lets nobody read the output any more.
    void CloseOutput();

    void Signal(int number);

    //! Waits for the end and gives all that was written.
    Ending Wait();

private:
    [[noreturn]] void Become(Command const& command);
    void StartOnPipes(Command const& command);
    void StartOnTerminal(Command const& command, unsigned short columns);
    bool WaitFor(std::string const& text, std::string const& in);
    bool ReadSome();
    void Read(int& descriptor, std::string& text);

    pid_t process_ = -1;
    int output_ = -1;
    int errors_ = -1;
    Ending ending_;
};

} // namespace zbtest
