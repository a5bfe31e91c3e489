// SPDX-License-Identifier: MIT
// Playing, comparing and attacking.
#include "RandomScriptPlayer.h"

#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <algorithm>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace zbtest {

namespace {

std::string Indented(std::string const& title, std::string const& text) {
    return title + "\n    " + text + "\n";
}

std::string Joined(std::vector<std::string> const& lines) {
    std::string text;
    for (std::string const& line : lines) {
        text.append(text.empty() ? "" : "\n    ").append(line);
    }
    return text;
}

//! The words between each pair of brackets in the order of their letters.
std::string WithSortedLists(std::string line) {
    std::replace(line.begin(), line.end(), '<', '[');
    std::replace(line.begin(), line.end(), '>', ']');
    for (auto open = line.find('['); open != std::string::npos; open = line.find('[', open + 1)) {
        auto const close = line.find(']', open);
        std::istringstream list(line.substr(open + 1, close - open - 1));
        std::vector<std::string> words{std::istream_iterator<std::string>(list), {}};
        std::sort(words.begin(), words.end());
        std::string text;
        for (std::string const& word : words) {
            text.append(text.empty() ? "" : " ").append(word);
        }
        line.replace(open + 1, close - open - 1, text);
    }
    return line;
}

//! What the model writes between < and > may come in any order.
bool Matches(std::string const& expected, std::string const& line) {
    return expected == line || (expected.find('<') != std::string::npos &&
                                WithSortedLists(expected) == WithSortedLists(line));
}

void CompareLines(char const* what, std::vector<std::string> const& expected,
                  std::vector<std::string> const& lines, std::string& problems) {
    if (!std::equal(expected.begin(), expected.end(), lines.begin(), lines.end(), Matches)) {
        problems += Indented(std::string("expected ") + what, Joined(expected)) +
                    Indented(what, Joined(lines));
    }
}

//! Within a handler.
std::string TextOfException() {
    try {
        throw;
    } catch (zbString const& text) {
        return std::string("throw zbString ") + text.c_str();
    } catch (char const* const text) {
        return std::string("throw char const* ") + text;
    } catch (std::exception const& exception) {
        return std::string("throw ") + exception.what();
    }
}

} // namespace

ScriptPlayer::ScriptPlayer(Mode mode)
    : mode_(mode) {
    host_.calls.CountCalls(false);
    if (IsCalm()) {
        recorder_ = std::make_unique<SignalRecorder>(host_);
        oracle_.emplace(data_, host_.calls);
    } else {
        Listen();
    }
}

ScriptPlayer::~ScriptPlayer() {
    Unhook();
    if (recorder_ != nullptr) {
        recorder_->Discard();
    }
}

// Playing

std::string ScriptPlayer::Play(ScriptStep const& step) {
    if (IsCalm() && step.Name() == "lose") {
        return PlayLose(step);
    }
    if (IsCalm() && step.Name() == "drop-source") {
        return PlayDropSource(step);
    }
    std::string problems;
    wasAttackedInQuestion_ = false;
    if (IsCalm()) {
        problems = PlayCompared(step);
    } else {
        Perform(step);
        isThrowing_ = false;
        problems = Settle();
    }
    return problems.empty() ? CheckInvariants() : problems;
}

std::string ScriptPlayer::PlayCompared(ScriptStep const& step) {
    bool const concernsViews = Oracle::Knows(step);
    std::string expected = concernsViews ? oracle_->Take(step) : "";
    std::string const result = Perform(step);
    if (!concernsViews) {
        return result == "unknown step" ? result + "\n" : "";
    }
    expected = oracle_->IsOrderOpen() ? oracle_->Adopt(RowNames(step.Arg(1))) : expected;
    std::string problems;
    if (result != expected) {
        problems += Indented("expected answer:", expected) + Indented("answer:", result);
    }
    CompareLines("signals:", oracle_->TakeSignals(), recorder_->take(), problems);
    CompareLines("notices:", oracle_->TakeNotices(), std::exchange(notices_, {}), problems);
    for (RecordingSource const* const source : oracle_->TakeCleared()) {
        problems += source->dirty ? source->Name() + " has kept its mark\n" : "";
    }
    CompareViews(problems);
    return problems;
}

std::string ScriptPlayer::PlayAll(Script const& steps) {
    for (ScriptStep const& step : steps) {
        std::string const problems = Play(step);
        if (!problems.empty()) {
            return "in " + step.Line() + ": " + problems;
        }
    }
    return "";
}

// An item that went before its rows: each view is rebuilt before anything else is asked of it.
std::string ScriptPlayer::PlayLose(ScriptStep const& step) {
    RecordingSource const* const source = data_.Source(step.Arg(1));
    if (source == nullptr || source->failing || Perform(step) == "skip") {
        return "";
    }
    Script rebuilds;
    for (std::string const& view : ViewNames()) {
        rebuilds.push_back(ScriptStep::Of("rebuild-lists", view));
    }
    return PlayAll(rebuilds);
}

std::string ScriptPlayer::PlayDropSource(ScriptStep const& step) {
    if (!ScriptData::MayGo(step.Arg(1)) || data_.Source(step.Arg(1)) == nullptr) {
        return "";
    }
    Script steps;
    for (std::string const& view : ViewNames()) {
        steps.push_back(ScriptStep::Of("drop-list-everywhere", view + ":/", step.Arg(1)));
        if (View(view)->GetDataSourceSimple(data_.Source(step.Arg(1))) != nullptr) {
            steps.push_back(ScriptStep::Of("disconnect", view, step.Arg(1)));
        }
    }
    for (char const* const view : {"v0", "v1", "n0"}) {
        for (char const* const property : {"p0", "p1", "default_name_prop"}) {
            steps.push_back(ScriptStep::Of("disconnect-property", view, property, step.Arg(1)));
        }
    }
    std::string problems = PlayAll(steps);
    data_.FreeSource(step.Arg(1));
    return problems;
}

std::string ScriptPlayer::Finish() {
    std::string problems;
    if (!hasThrown_) {
        isQuiet_ = true;
        problems = CheckAgainstData();
        isQuiet_ = false;
    }
    for (char const* const view : {"v0", "v1", "n0"}) {
        problems += problems.empty() ? Play(ScriptStep::Of("delete-view", view)) : "";
    }
    return problems;
}

// Steps

ScriptPlayer::Handler ScriptPlayer::FindHandler(std::string const& name) {
    for (auto const* const handlers :
         {&DataHandlers(), &ViewHandlers(), &FolderHandlers(), &SelectionHandlers(),
          &QueryHandlers(), &ColumnHandlers(), &PropertyHandlers()}) {
        auto const found = handlers->find(name);
        if (found != handlers->end()) {
            return found->second;
        }
    }
    return nullptr;
}

// An exception that an attack throws goes all the way; one that an attack causes ends with it.
std::string ScriptPlayer::Perform(ScriptStep const& step) {
    Handler const handler = FindHandler(step.Name());
    if (handler == nullptr) {
        return "unknown step";
    }
    try {
        return (this->*handler)(step);
    } catch (...) {
        if (isThrowing_ && depth_ > 0) {
            throw;
        }
        hasThrown_ = hasThrown_ || isThrowing_;
        return TextOfException();
    }
}

} // namespace zbtest
