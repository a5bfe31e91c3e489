// SPDX-License-Identifier: MIT
#include "RecordingHostCalls.h"

#include "AllocationFailures.h"

#include <gtest/gtest.h>

#include <utility>

namespace zbtest {

RecordingHostCalls::~RecordingHostCalls() {
    MemoryIsBack const memory;
    for (Key const& key : unreached_) {
        ADD_FAILURE() << "hook never reached: " << key.operation
                      << (key.object.empty() ? "" : " of ") << key.object;
    }
}

std::vector<std::string> RecordingHostCalls::take() {
    return std::exchange(lines_, {});
}

std::size_t RecordingHostCalls::Count(std::string_view operation) const {
    auto const found = counts_.find(operation);
    if (found == counts_.end()) {
        return 0;
    }
    std::size_t sum = 0;
    for (auto const& [object, count] : found->second) {
        sum += count;
    }
    return sum;
}

std::size_t RecordingHostCalls::Count(std::string_view operation, std::string_view object) const {
    auto const found = counts_.find(operation);
    if (found == counts_.end()) {
        return 0;
    }
    auto const count = found->second.find(object);
    return count == found->second.end() ? 0 : count->second;
}

void RecordingHostCalls::On(std::string const& operation, std::string const& object, Hook hook) {
    hooks_[operation][object] = std::move(hook);
    unreached_.insert({operation, object});
}

void RecordingHostCalls::Off(std::string const& operation, std::string const& object) {
    auto const hooks = hooks_.find(operation);
    if (hooks != hooks_.end()) {
        hooks->second.erase(object);
    }
}

void RecordingHostCalls::Called(char const* operation, std::string_view object,
                                std::initializer_list<std::string_view> arguments) {
    if (recording_) {
        std::string line(object);
        line.append(".").append(operation);
        for (std::string_view const argument : arguments) {
            line.append(" ").append(argument);
        }
        lines_.push_back(std::move(line));
    }
    CountAndRunHooks(operation, object);
}

void RecordingHostCalls::Asked(char const* operation, std::string_view object) {
    if (recording_ && recordingReaders_) {
        lines_.push_back(std::string(object).append(".").append(operation));
    }
    CountAndRunHooks(operation, object);
}

std::string RecordingHostCalls::NameOf(void const* object) const {
    if (object == nullptr) {
        return "null";
    }
    auto const found = names_.find(object);
    return found == names_.end() ? "?" : found->second;
}

void RecordingHostCalls::CountAndRunHooks(char const* operation, std::string_view object) {
    if (counting_) {
        auto& objects = counts_[operation];
        auto const found = objects.find(object);
        if (found != objects.end()) {
            ++found->second;
        } else {
            objects.emplace(object, 1);
        }
    }
    auto const hooks = hooks_.find(operation);
    if (hooks != hooks_.end()) {
        std::string const name(object); // A hook may be the end of the other one
        RunHook(hooks->first, "");
        RunHook(hooks->first, name);
    }
}

void RecordingHostCalls::RunHook(std::string const& operation, std::string const& object) {
    auto const& hooks = hooks_.at(operation);
    auto const found = hooks.find(object);
    if (found == hooks.end()) {
        return;
    }
    unreached_.erase({operation, object});
    Hook const hook = found->second; // A copy: the hook may remove itself.
    hook();
}

} // namespace zbtest
