// SPDX-License-Identifier: MIT
//! \file
//! Scripts of steps that a host takes with its views, and the data that they are about.
#pragma once

#include "RecordingHost.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zbtest {

//! One step of a script: words with a blank between them, such as `list v0:a s1` or
//! `on ViewItemCreated 2 delete-folder v0:a on`. A missing word is the empty one.
class ScriptStep {
public:
    explicit ScriptStep(std::string_view line);
    //! The words, numbers and flags (`on`, `off`) one after the other.
    template <class... Words>
    static ScriptStep Of(Words const&... words) {
        std::string line;
        (line.append(line.empty() ? "" : " ").append(Word(words)), ...);
        return ScriptStep(line);
    }

    [[nodiscard]] std::string const& Name() const { return Arg(0); }
    //! The arguments count from 1.
    [[nodiscard]] std::string const& Arg(std::size_t i) const;
    [[nodiscard]] bool Flag(std::size_t i) const { return Arg(i) == "on"; }
    [[nodiscard]] std::size_t Count() const { return words_.size(); }
    //! The step that begins with that word.
    [[nodiscard]] ScriptStep Rest(std::size_t from) const;
    [[nodiscard]] std::string Line() const;

private:
    static std::string Word(std::string const& word) { return word; }
    static std::string Word(char const* word) { return word; }
    static std::string Word(bool flag) { return flag ? "on" : "off"; }
    static std::string Word(std::size_t number) { return std::to_string(number); }

    std::vector<std::string> words_;
};

using Script = std::vector<ScriptStep>;

//! One step to a line; empty lines and those that begin with # are passed over.
[[nodiscard]] Script ParseScript(std::string_view text);
[[nodiscard]] std::string TextOf(Script const& script);

//! Numbers that are the same for the same seed everywhere.
class RandomNumbers {
public:
    explicit RandomNumbers(std::uint64_t seed)
        : state_(seed) {}

    [[nodiscard]] std::uint64_t Next();
    //! Below `end`, which is above 0.
    [[nodiscard]] std::size_t Below(std::size_t end) { return Next() % end; }
    [[nodiscard]] bool OneIn(std::size_t n) { return Below(n) == 0; }
    template <class T>
    [[nodiscard]] T const& Pick(std::vector<T> const& choices) {
        return choices[Below(choices.size())];
    }

private:
    std::uint64_t state_;
};

//! The data side of a script. Four flat sources, of which s1 and s2 may come and go; the trees t0
//! and s1, the latter with the name of a flat source; the data controls `data`, which has them all,
//! and `other`, which has none.
class ScriptData {
public:
    explicit ScriptData(RecordingHost& host);

    //! Null: there is none of that name now.
    [[nodiscard]] RecordingSource* Source(std::string const& name) const;
    [[nodiscard]] RecordingTree* Tree(std::string const& name) const;
    //! An item that lives, listed or not.
    [[nodiscard]] RecordingItem* Item(std::string const& source, std::string const& name) const;
    [[nodiscard]] RecordingDataCtrl* Control(std::string const& name) const;

    [[nodiscard]] std::vector<std::string> Sources() const;
    [[nodiscard]] std::vector<std::string> Items(std::string const& source) const;
    [[nodiscard]] static bool IsListed(RecordingSource const& source, RecordingItem const& item);
    //! Some item lives at that address.
    [[nodiscard]] bool IsAlive(void const* item) const;

    bool MakeItem(std::string const& source, std::string const& name);
    bool FreeItem(std::string const& source, std::string const& name);
    bool MakeSource(std::string const& name);
    bool FreeSource(std::string const& name);
    [[nodiscard]] static bool MayGo(std::string const& source) {
        return source == "s1" || source == "s2";
    }

private:
    struct SourceRecord {
        RecordingSource* source;
        std::map<std::string, RecordingItem*> items;
    };

    RecordingHost& host_;
    std::map<std::string, SourceRecord> sources_;
    std::map<std::string, RecordingTree*> trees_;
};

} // namespace zbtest
