// SPDX-License-Identifier: MIT
//! \file
//! Where the writers put what they write.
#pragma once

#include <atomic>
#include <cstddef>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zbtext {

//! Takes finished pieces of output. `Write` takes all of `text` or throws.
class Sink {
public:
    virtual ~Sink() = default;
    virtual void Write(std::string_view text) = 0;
};

//! The output could not be written; `what()` is the system's reason.
class OutputError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

//! The reader has gone, as `head` does when it has seen enough. Nobody is to be told.
class ClosedPipe : public std::exception {
public:
    char const* what() const noexcept override { return "closed pipe"; }
};

//! The stop flag was set: somebody asked the program to end.
class Stopped : public std::exception {
public:
    char const* what() const noexcept override { return "stopped"; }
};

//! A buffer in front of a sink. Writers append to `Text()` and call `Checkpoint()` after each row,
//! so that memory is bounded by the buffer and one row.
//!
//! What is still in the buffer when the object goes is dropped: only `Finish` says that all is
//! well.
class Output {
public:
    //! `stop` may be null, and is looked at often enough to end within some milliseconds.
    explicit Output(Sink& sink, std::atomic<bool> const* stop = nullptr);

    std::string& Text() { return text_; }

    //! Hands on what has gathered if it is enough. Throws what the sink throws, and `Stopped`.
    void Checkpoint() {
        ThrowIfStopped();
        if (text_.size() >= kEnough)
            Flush();
    }

    void ThrowIfStopped() const {
        if (stop_ != nullptr && stop_->load(std::memory_order_relaxed))
            throw Stopped();
    }

    void Finish() { Flush(); }

private:
    static constexpr std::size_t kEnough = 1U << 16U;

    void Flush();

    Sink& sink_;
    std::atomic<bool> const* stop_; // Not owned; may be null.
    std::string text_;
};

//! Writes to a file descriptor, which stays open.
class DescriptorSink : public Sink {
public:
    explicit DescriptorSink(int descriptor, std::atomic<bool> const* stop = nullptr);

    //! Throws `ClosedPipe`, `OutputError`, or `Stopped` if a signal broke off the wait for a slow
    //! reader. Requires that SIGPIPE is ignored.
    void Write(std::string_view text) override;

private:
    int descriptor_;
    std::atomic<bool> const* stop_; // Not owned; may be null.
};

//! Gathers everything in memory.
class StringSink : public Sink {
public:
    void Write(std::string_view text) override { text_ += text; }
    std::string const& GetText() const { return text_; }

private:
    std::string text_;
};

} // namespace zbtext
