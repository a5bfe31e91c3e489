// SPDX-License-Identifier: MIT
#include "RecordingHostCalls.h"

#include <gtest/gtest.h>

#include <utility>

namespace zbtest {

RecordingHostCalls::~RecordingHostCalls() {
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
    Key const key{operation, object};
    hooks_[key] = std::move(hook);
    unreached_.insert(key);
}

void RecordingHostCalls::Off(std::string const& operation, std::string const& object) {
    hooks_.erase(Key{operation, object});
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
    if (hooks_.empty()) {
        return;
    }
    std::string const name(object);
    RunHook({operation, ""});
    RunHook({operation, name});
}

void RecordingHostCalls::RunHook(Key const& key) {
    auto const found = hooks_.find(key);
    if (found == hooks_.end()) {
        return;
    }
    unreached_.erase(key);
    Hook const hook = found->second; // A copy: the hook may remove itself.
    hook();
}

} // namespace zbtest
