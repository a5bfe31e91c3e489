// SPDX-License-Identifier: MIT
#include "RandomScript.h"

#include <algorithm>
#include <sstream>

namespace zbtest {

ScriptStep::ScriptStep(std::string_view line) {
    std::istringstream words{std::string(line)};
    for (std::string word; words >> word;) {
        words_.push_back(word);
    }
}

std::string const& ScriptStep::Arg(std::size_t i) const {
    static std::string const none;
    return i < words_.size() ? words_[i] : none;
}

ScriptStep ScriptStep::Rest(std::size_t from) const {
    ScriptStep rest("");
    rest.words_.assign(words_.begin() + static_cast<std::ptrdiff_t>(std::min(from, words_.size())),
                       words_.end());
    return rest;
}

std::string ScriptStep::Line() const {
    std::string line;
    for (std::string const& word : words_) {
        line.append(line.empty() ? "" : " ").append(word);
    }
    return line;
}

Script ParseScript(std::string_view text) {
    Script script;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        ScriptStep step(line);
        if (step.Count() > 0 && step.Name().front() != '#') {
            script.push_back(std::move(step));
        }
    }
    return script;
}

std::string TextOf(Script const& script) {
    std::string text;
    for (ScriptStep const& step : script) {
        text.append(step.Line()).append("\n");
    }
    return text;
}

// The generator of Steele, Lea and Flood, "Fast splittable pseudorandom number generators".
std::uint64_t RandomNumbers::Next() {
    state_ += 0x9e3779b97f4a7c15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebU;
    return mixed ^ (mixed >> 31);
}

ScriptData::ScriptData(RecordingHost& host)
    : host_(host) {
    for (char const* const name : {"s0", "s1", "s2", "s3"}) {
        MakeSource(name);
    }
    RecordingTree& tree = host.Tree("t0", host.Source("s0"));
    tree.childTypes.push_back(&host.Source("s3"));
    trees_ = {{"t0", &tree}, {"s1", &host.Tree("s1", host.Source("s3"))}};
    static_cast<void>(host.Control("other"));
}

RecordingSource* ScriptData::Source(std::string const& name) const {
    auto const found = sources_.find(name);
    return found == sources_.end() ? nullptr : found->second.source;
}

RecordingTree* ScriptData::Tree(std::string const& name) const {
    auto const found = trees_.find(name);
    return found == trees_.end() ? nullptr : found->second;
}

RecordingItem* ScriptData::Item(std::string const& source, std::string const& name) const {
    auto const record = sources_.find(source);
    if (record == sources_.end()) {
        return nullptr;
    }
    auto const found = record->second.items.find(name);
    return found == record->second.items.end() ? nullptr : found->second;
}

RecordingDataCtrl* ScriptData::Control(std::string const& name) const {
    return name == "data" || name == "other" ? &host_.Control(name) : nullptr;
}

std::vector<std::string> ScriptData::Sources() const {
    std::vector<std::string> names;
    for (auto const& [name, record] : sources_) {
        names.push_back(name);
    }
    return names;
}

std::vector<std::string> ScriptData::Items(std::string const& source) const {
    std::vector<std::string> names;
    auto const record = sources_.find(source);
    if (record != sources_.end()) {
        for (auto const& [name, item] : record->second.items) {
            names.push_back(name);
        }
    }
    return names;
}

bool ScriptData::IsListed(RecordingSource const& source, RecordingItem const& item) {
    return std::find(source.All().begin(), source.All().end(), &item) != source.All().end();
}

bool ScriptData::IsAlive(void const* item) const {
    return std::any_of(sources_.begin(), sources_.end(), [item](auto const& record) {
        return std::any_of(record.second.items.begin(), record.second.items.end(),
                           [item](auto const& entry) { return entry.second == item; });
    });
}

bool ScriptData::MakeItem(std::string const& source, std::string const& name) {
    auto const record = sources_.find(source);
    if (record == sources_.end() || record->second.items.contains(name)) {
        return false;
    }
    record->second.items[name] = &record->second.source->Add(name);
    return true;
}

bool ScriptData::FreeItem(std::string const& source, std::string const& name) {
    RecordingItem* const item = Item(source, name);
    if (item == nullptr) {
        return false;
    }
    Source(source)->Delete(*item);
    sources_.at(source).items.erase(name);
    return true;
}

bool ScriptData::MakeSource(std::string const& name) {
    if (sources_.contains(name)) {
        return false;
    }
    sources_[name] = {&host_.Source(name), {}};
    return true;
}

bool ScriptData::FreeSource(std::string const& name) {
    if (!MayGo(name) || !sources_.contains(name)) {
        return false;
    }
    host_.Control().DeleteSource(name);
    sources_.erase(name);
    return true;
}

} // namespace zbtest
