// SPDX-License-Identifier: MIT
#include "text/Output.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace zbtext {

Output::Output(Sink& sink, std::atomic<bool> const* stop)
    : sink_(sink)
    , stop_(stop) {
    text_.reserve(kEnough + kEnough / 4);
}

void Output::Flush() {
    ThrowIfStopped();
    if (text_.empty())
        return;
    sink_.Write(text_);
    text_.clear();
}

DescriptorSink::DescriptorSink(int descriptor, std::atomic<bool> const* stop)
    : descriptor_(descriptor)
    , stop_(stop) {
}

void DescriptorSink::Write(std::string_view text) {
    while (!text.empty()) {
        if (stop_ != nullptr && stop_->load())
            throw Stopped();
        auto const written = ::write(descriptor_, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
            continue;
        }
        if (errno == EINTR)
            continue;
        if (errno == EPIPE)
            throw ClosedPipe();
        throw OutputError(std::generic_category().message(errno));
    }
}

} // namespace zbtext
