// SPDX-License-Identifier: MIT
//! \file
//! What the signal tests share.
#pragma once

#include <zbBrowserView/platform/zbSignal.h>

#include <string>

namespace platformtest {

using Signal = zbSignal<single_threaded, int>;
using Connection = zbConnectionBase<single_threaded>;
using Handle = zbConnectionHandle<single_threaded>;
using Scoped = zbScopedConnection<>;
using Tracker = zbSignalTracker<single_threaded>;

//! Appends its letter to a text each time it is called.
class Listener : public zbListener<single_threaded> {
public:
    Listener(std::string& text, char letter)
        : text_(text)
        , letter_(letter) {}
    void Hear(int) { text_ += letter_; }

private:
    std::string& text_;
    char letter_;
};

//! Connects a slot that appends \p letter to \p text. It stays until the signal goes.
inline Connection* ConnectLetter(Signal& signal, std::string& text, char letter) {
    return signal.Connect([&text, letter](int) { text += letter; }).Connection();
}

//! Raises \p signal and gives what its slots appended.
inline std::string Raise(Signal& signal, std::string& text) {
    text.clear();
    signal(0);
    return text;
}

} // namespace platformtest
