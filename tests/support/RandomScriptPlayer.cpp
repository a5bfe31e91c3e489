// SPDX-License-Identifier: MIT
// Playing, comparing and attacking.
#include "RandomScriptPlayer.h"

#include "items/old/zbBrowserViewItemVirtualRoot.h"
#include "view/OldViewContext.h"

#include <algorithm>
#include <stdexcept>

namespace zbtest {

namespace {

constexpr std::size_t deepestAttack = 3;

class Counted {
public:
    Counted(std::size_t& counter, bool counts)
        : counter_(counter)
        , counts_(counts) {
        counter_ += counts_ ? 1 : 0;
    }
    Counted(Counted const&) = delete;
    Counted& operator=(Counted const&) = delete;
    ~Counted() { counter_ -= counts_ ? 1 : 0; }

private:
    std::size_t& counter_;
    bool const counts_;
};

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

// The host insists that each of its hooks was reached, which is a matter of chance here.
ScriptPlayer::~ScriptPlayer() {
    isQuiet_ = true;
    for (std::string const& operation : IsCalm() ? std::vector<std::string>() : HostOperations()) {
        host_.calls.Asked(operation.c_str(), "");
        host_.calls.Off(operation);
    }
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
    bool const concernsViews = Oracle::Knows(step.Name());
    std::string const expected = concernsViews ? oracle_->Take(step) : "";
    std::string const result = Perform(step);
    if (!concernsViews) {
        return result == "unknown step" ? result + "\n" : "";
    }
    std::string problems;
    if (result != expected) {
        problems += Indented("expected answer:", expected) + Indented("answer:", result);
    }
    auto const expectedSignals = oracle_->TakeSignals();
    auto const signals = recorder_->take();
    if (signals != expectedSignals) {
        problems += Indented("expected signals:", Joined(expectedSignals)) +
                    Indented("signals:", Joined(signals));
    }
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
    for (std::string const& view : ViewNames()) {
        problems += problems.empty() ? Play(ScriptStep::Of("delete-view", view)) : "";
    }
    return problems;
}

// Attacks

std::vector<std::string> const& ScriptPlayer::Signals() {
    static std::vector<std::string> const names = {
        "ViewItemCreated",   "ViewItemChanged",     "ViewItemDeleted",        "ViewItemListDeleted",
        "ViewItemShown",     "ViewItemExpanded",    "ViewItemCollapsed",      "ViewContentChanged",
        "EmptyFoldersShown", "FreeFolderCreated",   "FreeFolderStyleChanged", "SelectionClearing",
        "ViewItemsSelected", "ViewItemsDeselected",
    };
    return names;
}

std::vector<std::string> const& ScriptPlayer::HostOperations() {
    static std::vector<std::string> const names = {
        "OnConnected",
        "OnDisconnected",
        "GetDataItems",
        "ContainsDataItem",
        "IsDirty",
        "ClearDirty",
        "FindDataSourceSimple",
        "FindDataSourceHierarchical",
        "BeginLongOperation",
        "EndLongOperation",
        "GetChildTypes",
        "BeginChange",
        "EndChange",
        "OnViewLost",
        "ShowViewItem",
    };
    return names;
}

void ScriptPlayer::Listen() {
    auto const hear = [this](auto& signal, char const* name) {
        static_cast<void>(
            signal.Connect([this, name](auto&&...) { Reached(name, false); }, &listener_));
    };
    auto const hearOf = [this](auto& signal, char const* name) {
        auto const slot = [this, name](auto* item, auto&&...) {
            CheckSignalled(name, item);
            Reached(name, false);
        };
        static_cast<void>(signal.Connect(slot, &listener_));
    };
    zbBrowserSignalManager& signals = host_.signals;
    hearOf(signals.ViewItemCreated, "ViewItemCreated");
    hearOf(signals.ViewItemChanged, "ViewItemChanged");
    hearOf(signals.ViewItemDeleted, "ViewItemDeleted");
    hear(signals.ViewItemListDeleted, "ViewItemListDeleted");
    hearOf(signals.ViewItemShown, "ViewItemShown");
    hearOf(signals.ViewItemExpanded, "ViewItemExpanded");
    hearOf(signals.ViewItemCollapsed, "ViewItemCollapsed");
    hear(signals.ViewContentChanged, "ViewContentChanged");
    hear(signals.EmptyFoldersShown, "EmptyFoldersShown");
    hearOf(signals.FreeFolderCreated, "FreeFolderCreated");
    hearOf(signals.FreeFolderStyleChanged, "FreeFolderStyleChanged");
    hear(signals.SelectionClearing, "SelectionClearing");
    hear(signals.ViewItemsSelected, "ViewItemsSelected");
    hear(signals.ViewItemsDeselected, "ViewItemsDeselected");
    for (std::string const& operation : HostOperations()) {
        host_.calls.On(operation, [this, operation] { Reached(operation, true); });
    }
}

// Rows that go in a list have left their folder before they are signalled; all others stand in
// their view.
void ScriptPlayer::CheckSignalled(std::string const& signal, zbIBrowserViewItem const* item) {
    bool isThere = false;
    for (std::string const& view : ViewNames()) {
        auto& context = static_cast<Folder*>(View(view)->GetVirtualRoot())->Context();
        isThere = isThere || context.Owns(item);
    }
    wrongSignals_ += isThere ? "" : signal + " about an item that is not there\n";
}

void ScriptPlayer::Reached(std::string const& what, bool inHost) {
    if (isQuiet_ || depth_ >= deepestAttack) {
        return;
    }
    auto const due = std::find_if(attacks_.begin(), attacks_.end(), [&](Attack& attack) {
        return attack.on == what && --attack.left == 0;
    });
    if (due == attacks_.end()) {
        return;
    }
    ScriptStep const step = due->step;
    attacks_.erase(due);
    ++attacksMade_;
    Counted const deeper(depth_, true);
    Counted const host(hostCalls_, inHost);
    Counted const calm(lookingCalls_, inHost && what != "GetDataItems");
    try {
        Perform(step);
    } catch (...) {
        // Then the host misses the end that it was just told of.
        hasMissedEnd_ = hasMissedEnd_ || what.starts_with("End");
        throw;
    }
}

// An exception that an attack throws goes all the way; one that an attack causes ends with it.
std::string ScriptPlayer::Perform(ScriptStep const& step) {
    for (auto const* const handlers :
         {&DataHandlers(), &ViewHandlers(), &FolderHandlers(), &SelectionHandlers()}) {
        auto const found = handlers->find(step.Name());
        if (found == handlers->end()) {
            continue;
        }
        try {
            return (this->*found->second)(step);
        } catch (...) {
            if (isThrowing_ && depth_ > 0) {
                throw;
            }
            hasThrown_ = hasThrown_ || isThrowing_;
            return TextOfException();
        }
    }
    return "unknown step";
}

} // namespace zbtest
