// SPDX-License-Identifier: MIT
//! \file
//! Ctrl-C and the other polite requests to end.
#pragma once

#include <atomic>

namespace zbbrowse {

//! From its construction to the end of the program, SIGINT, SIGTERM and SIGHUP set a flag, and
//! SIGPIPE is ignored.
//!
//! Whoever works for long looks at the flag. Some of the work is not the program's own and does not
//! look: if the program still runs 150 ms after the signal, it is ended there and then, with the
//! same exit status and as clean as otherwise (terminal reset, temporary file removed).
class Interrupt {
public:
    Interrupt();
    Interrupt(Interrupt const&) = delete;
    Interrupt& operator=(Interrupt const&) = delete;

    std::atomic<bool> const& GetFlag() const;

    //! 128 and the number of the signal that came; 130 for Ctrl-C.
    int GetExitStatus() const;

    //! Ends the program now, as it would end by itself after 150 ms.
    [[noreturn]] void End() const;

    //! What is to be written to a terminal at the end, for instance to switch colours off. `text`
    //! must live on; null: nothing. Standard output and standard error have one each.
    static void SetFarewell(int descriptor, char const* text);

    //! What is to be removed at the end. An empty path: nothing. False if it is too long for that.
    static bool SetTemporaryFile(char const* path);
};

} // namespace zbbrowse
