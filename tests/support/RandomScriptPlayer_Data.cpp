// SPDX-License-Identifier: MIT
// Steps on the data side, and those that arm attacks.
#include "RandomScriptPlayer.h"

#include <zbBrowserView/zbBrowserView.h>

#include <stdexcept>

namespace zbtest {

namespace {

// A crowd comes and goes at once, which leaves gaps in whatever holds it.
constexpr int sizeOfCrowd = 60;

} // namespace

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::DataHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"item", &ScriptPlayer::MakeItem},
        {"free", &ScriptPlayer::FreeItem},
        {"lose", &ScriptPlayer::LoseItem},
        {"crowd", &ScriptPlayer::GatherCrowd},
        {"disperse", &ScriptPlayer::DisperseCrowd},
        {"unlist", &ScriptPlayer::Unlist},
        {"relist", &ScriptPlayer::Relist},
        {"list-twice", &ScriptPlayer::ListTwice},
        {"reorder", &ScriptPlayer::Reorder},
        {"mark-item", &ScriptPlayer::MarkItem},
        {"mark", &ScriptPlayer::MarkSource},
        {"mark-tree", &ScriptPlayer::MarkTree},
        {"fail", &ScriptPlayer::Fail},
        {"value", &ScriptPlayer::SetValue},
        {"compares", &ScriptPlayer::Compare},
        {"order-sources", &ScriptPlayer::OrderSources},
        {"source", &ScriptPlayer::MakeSource},
        {"drop-source", &ScriptPlayer::DropSource},
        {"on", &ScriptPlayer::Arm},
        {"throw-text", &ScriptPlayer::ThrowText},
        {"throw-string", &ScriptPlayer::ThrowString},
        {"throw-exception", &ScriptPlayer::ThrowException},
    };
    return handlers;
}

std::string ScriptPlayer::MakeItem(ScriptStep const& step) {
    return data_.MakeItem(step.Arg(1), step.Arg(2)) ? "" : "skip";
}

//! Frees an item that no row shows. An attacker looks at nothing.
std::string ScriptPlayer::FreeItem(ScriptStep const& step) {
    RecordingItem const* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr || !MayFree() || (depth_ == 0 && IsShown(*item))) {
        return "skip";
    }
    data_.FreeItem(step.Arg(1), step.Arg(2));
    return "";
}

std::string ScriptPlayer::LoseItem(ScriptStep const& step) {
    if (!MayFree() || !data_.FreeItem(step.Arg(1), step.Arg(2))) {
        return "skip";
    }
    data_.Source(step.Arg(1))->dirty = true;
    return "";
}

std::string ScriptPlayer::GatherCrowd(ScriptStep const& step) {
    for (int i = 0; i < sizeOfCrowd; ++i) {
        std::string const name = step.Arg(1) + "_" + std::to_string(i);
        if (!data_.MakeItem(step.Arg(1), name)) {
            Relist(ScriptStep::Of("relist", step.Arg(1), name));
        }
    }
    return "";
}

std::string ScriptPlayer::DisperseCrowd(ScriptStep const& step) {
    for (int i = 0; i < sizeOfCrowd; ++i) {
        Unlist(ScriptStep::Of("unlist", step.Arg(1), step.Arg(1) + "_" + std::to_string(i)));
    }
    return "";
}

std::string ScriptPlayer::Unlist(ScriptStep const& step) {
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr) {
        return "skip";
    }
    data_.Source(step.Arg(1))->Unlist(*item);
    return "";
}

std::string ScriptPlayer::Relist(ScriptStep const& step) {
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr || ScriptData::IsListed(*data_.Source(step.Arg(1)), *item)) {
        return "skip";
    }
    data_.Source(step.Arg(1))->Relist(*item);
    return "";
}

std::string ScriptPlayer::ListTwice(ScriptStep const& step) {
    RecordingItem const* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr || !ScriptData::IsListed(*data_.Source(step.Arg(1)), *item)) {
        return "skip";
    }
    data_.Source(step.Arg(1))->ListTwice(step.Arg(2));
    return "";
}

std::string ScriptPlayer::Reorder(ScriptStep const& step) {
    RecordingItem const* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr || !ScriptData::IsListed(*data_.Source(step.Arg(1)), *item)) {
        return "skip";
    }
    data_.Source(step.Arg(1))->Reorder({step.Arg(2).c_str()});
    return "";
}

std::string ScriptPlayer::MarkItem(ScriptStep const& step) {
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr) {
        return "skip";
    }
    item->dirty = step.Flag(3);
    return "";
}

std::string ScriptPlayer::MarkSource(ScriptStep const& step) {
    RecordingSource* const source = data_.Source(step.Arg(1));
    if (source == nullptr) {
        return "skip";
    }
    source->dirty = step.Flag(2);
    return "";
}

std::string ScriptPlayer::MarkTree(ScriptStep const& step) {
    RecordingTree* const tree = data_.Tree(step.Arg(1));
    if (tree == nullptr) {
        return "skip";
    }
    tree->dirty = step.Flag(2);
    return "";
}

std::string ScriptPlayer::Fail(ScriptStep const& step) {
    RecordingSource* const source = data_.Source(step.Arg(1));
    if (source == nullptr) {
        return "skip";
    }
    source->failing = step.Flag(2);
    return "";
}

std::string ScriptPlayer::SetValue(ScriptStep const& step) {
    RecordingItem* const item = data_.Item(step.Arg(1), step.Arg(2));
    if (item == nullptr) {
        return "skip";
    }
    item->Set("rank", std::atoi(step.Arg(3).c_str()));
    return "";
}

std::string ScriptPlayer::Compare(ScriptStep const& step) {
    RecordingSource* const source = data_.Source(step.Arg(1));
    if (source == nullptr) {
        return "skip";
    }
    source->compares = step.Flag(2);
    return "";
}

//! The order of the sources that the step names; the data control knows none of the others.
std::string ScriptPlayer::OrderSources(ScriptStep const& step) {
    auto& order = data_.Control("data")->sourceOrder;
    order.clear();
    for (std::size_t i = 1; i < step.Count(); ++i) {
        order.push_back(data_.Source(step.Arg(i)));
    }
    std::erase(order, nullptr);
    return "";
}

std::string ScriptPlayer::MakeSource(ScriptStep const& step) {
    return ScriptData::MayGo(step.Arg(1)) && data_.MakeSource(step.Arg(1)) ? "" : "skip";
}

//! Takes a source out of all views and frees it, unless it may be the one that is being called.
std::string ScriptPlayer::DropSource(ScriptStep const& step) {
    if (!ScriptData::MayGo(step.Arg(1)) || data_.Source(step.Arg(1)) == nullptr) {
        return "skip";
    }
    for (std::string const& view : ViewNames()) {
        Perform(ScriptStep::Of("drop-list-everywhere", view + ":/", step.Arg(1)));
        Perform(ScriptStep::Of("disconnect", view, step.Arg(1)));
    }
    for (char const* const view : {"v0", "v1", "n0"}) {
        for (char const* const property : {"p0", "p1", "default_name_prop"}) {
            Perform(ScriptStep::Of("disconnect-property", view, property, step.Arg(1)));
        }
    }
    RecordingSource const* const source = data_.Source(step.Arg(1));
    if (source == nullptr || hostCalls_ > 0 || IsUsed(*source)) {
        return "skip";
    }
    data_.FreeSource(step.Arg(1));
    return "";
}

std::string ScriptPlayer::ThrowText(ScriptStep const&) {
    isThrowing_ = true;
    throw "thrown by a slot";
}

std::string ScriptPlayer::ThrowString(ScriptStep const&) {
    isThrowing_ = true;
    throw zbString("thrown by a slot");
}

std::string ScriptPlayer::ThrowException(ScriptStep const&) {
    isThrowing_ = true;
    throw std::runtime_error("thrown by a slot");
}

} // namespace zbtest
