// SPDX-License-Identifier: MIT
//! \file
//! RecordingHostCalls: what the library called on a RecordingHost, and code to run within the
//! calls.
#pragma once

#include <functional>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zbtest {

//! Every operation of every object of a RecordingHost reports here first.
//!
//! Counts are always kept. Lines such as "part.ContainsDataItem bolt_1" are kept while Record(true)
//! holds. Readers that the library may call as often as it likes (GetName, GetDataSource and the
//! like) are counted but leave no line, unless RecordReaders(true) holds.
class RecordingHostCalls {
public:
    using Hook = std::function<void()>;
    using Hooks = std::map<std::string, std::map<std::string, Hook>, std::less<>>; //!< By names

    RecordingHostCalls() = default;
    RecordingHostCalls(RecordingHostCalls const&) = delete;
    RecordingHostCalls& operator=(RecordingHostCalls const&) = delete;
    //! Fails the running test if a hook was never reached: it would have tested nothing.
    ~RecordingHostCalls();

    void Record(bool on) { recording_ = on; }
    void RecordReaders(bool on) { recordingReaders_ = on; }
    //! The lines so far; they are forgotten.
    [[nodiscard]] std::vector<std::string> take();

    //! Number of calls of an operation, on all objects or on one.
    [[nodiscard]] std::size_t Count(std::string_view operation) const;
    [[nodiscard]] std::size_t Count(std::string_view operation, std::string_view object) const;
    void ForgetCounts() { counts_.clear(); }
    //! Counting costs; a test that makes millions of calls turns it off.
    void CountCalls(bool on) { counting_ = on; }

    //! Runs `hook` at the beginning of each call of `operation`, on any object or on the one of
    //! that name. One hook for each; another replaces it. The hook may throw, call the library,
    //! delete what it likes except the object that is being called, and remove itself with Off.
    void On(std::string const& operation, Hook hook) { On(operation, "", std::move(hook)); }
    void On(std::string const& operation, std::string const& object, Hook hook);
    void Off(std::string const& operation, std::string const& object = "");

    //! Puts other hooks in the place of all that are set, and answers those.
    [[nodiscard]] Hooks ExchangeHooks(Hooks hooks) {
        return std::exchange(hooks_, std::move(hooks));
    }

    //! Called by the host objects. `arguments` come behind the line, separated by blanks.
    void Called(char const* operation, std::string_view object,
                std::initializer_list<std::string_view> arguments = {});
    //! As Called, for readers.
    void Asked(char const* operation, std::string_view object);

    //! Names of data items, sources and controls by address, also of those that have gone, so that
    //! lines about them can be written without following the pointer.
    void Remember(void const* object, std::string name) { names_[object] = std::move(name); }
    //! Null: "null". Unknown: "?".
    [[nodiscard]] std::string NameOf(void const* object) const;
    [[nodiscard]] bool Knows(void const* object) const { return names_.contains(object); }

private:
    struct Key {
        std::string operation;
        std::string object;
        auto operator<=>(Key const&) const = default;
    };

    void CountAndRunHooks(char const* operation, std::string_view object);
    void RunHook(std::string const& operation, std::string const& object);

    bool recording_ = false;
    bool recordingReaders_ = false;
    bool counting_ = true;
    std::vector<std::string> lines_;
    std::map<std::string, std::map<std::string, std::size_t, std::less<>>, std::less<>> counts_;
    Hooks hooks_;
    std::set<Key> unreached_;
    std::unordered_map<void const*, std::string> names_;
};

} // namespace zbtest
