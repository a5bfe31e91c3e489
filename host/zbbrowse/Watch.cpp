// SPDX-License-Identifier: MIT
#include "zbbrowse/Watch.h"

#include "text/DisplayText.h"
#include "text/JsonText.h"
#include "zbbrowse/Complaint.h"
#include "zbbrowse/OpenView.h"

#include <poll.h>

#include <utility>

namespace zbbrowse {

namespace {

using zbsqlite::Change;
using zbsqlite::ChangeKind;

// Short enough that a change is told well within a second, also when the file is locked at times.
constexpr int kMillisecondsBetweenLooks = 100;

//! How a kind of change is called in each format.
struct Words {
    char const* text; //!< In front of a row's name, or behind that of a list.
    char const* json;
};

Words WordsFor(ChangeKind kind) {
    switch (kind) {
    case ChangeKind::RowCreated:
        return {"+ ", "created"};
    case ChangeKind::RowUpdated:
        return {"~ ", "updated"};
    case ChangeKind::RowDeleted:
        return {"- ", "deleted"};
    case ChangeKind::SourceCreated:
        return {" is new", "list_created"};
    case ChangeKind::SourceGone:
        return {" is gone", "list_deleted"};
    case ChangeKind::SourceAltered:
        return {" is altered", "list_altered"};
    }
    return {"", ""};
}

void AppendText(std::string& out, Change const& change, std::string const* name) {
    char const* const words = WordsFor(change.kind).text;
    if (change.row != nullptr) {
        out += words;
        zbtext::AppendShown(out, name != nullptr ? *name : "NULL");
    } else {
        out.append("! ").append(change.source->GetTypeName()) += ' ';
        zbtext::AppendShown(out, change.source->GetName());
        out += words;
    }
    out += '\n';
}

void AppendJsonLine(std::string& out, Change const& change, std::string const* name) {
    out.append("{\"change\":\"").append(WordsFor(change.kind).json).append("\",\"list\":");
    zbtext::AppendJsonString(out, change.source->GetName());
    if (change.row != nullptr) {
        out += ",\"name\":";
        zbtext::AppendJson(out, name != nullptr ? zbtext::Value::OfText(*name) : zbtext::Value());
    }
    out += "}\n";
}

//! A signal ends the wait. A reader who has gone is noticed even if there is nothing to write.
void Wait(int descriptor) {
    pollfd output{descriptor, 0, 0};
    if (::poll(&output, 1, kMillisecondsBetweenLooks) > 0)
        throw zbtext::ClosedPipe();
}

} // namespace

Watch::Watch(OpenView& view, Format format, zbtext::Output& output)
    : view_(view)
    , format_(format)
    , output_(output)
    , changes_(view.GetHost().Data(), view.GetHost().Controller()) {
    changes_.SetListener([this](Change const& change) { Tell(change); });
}

void Watch::Run(int descriptor) {
    while (true) {
        output_.ThrowIfStopped();
        Look();
        Wait(descriptor);
    }
}

void Watch::Look() {
    try {
        if (changes_.Poll() != zbsqlite::PollResult::Busy)
            complaint_.clear();
    } catch (zbsqlite::Error const& error) {
        bool const isWholeFile = error.Where() == view_.GetHost().Data().GetDatabase().File();
        if (isWholeFile || error.IsInterrupted())
            throw;
        Complain(error.what());
    }
}

void Watch::Tell(Change const& change) {
    Write(change);
    if (change.kind != ChangeKind::SourceCreated || !view_.Add(*change.source))
        return;
    for (zbsqlite::Row const* const row : change.source->Rows())
        Write({ChangeKind::RowCreated, change.source, row});
    if (auto const* const error = change.source->LastError())
        Complain(error->what());
}

void Watch::Write(Change const& change) {
    std::string name;
    bool const hasName = change.row != nullptr && change.source->GetRowName(*change.row, name);
    auto* const append = format_ == Format::JsonLines ? AppendJsonLine : AppendText;
    append(output_.Text(), change, hasName ? &name : nullptr);
    output_.Finish();
}

//! Not each time that it is looked at.
void Watch::Complain(std::string const& what) {
    if (what != complaint_)
        zbbrowse::Complain(what);
    complaint_ = what;
}

} // namespace zbbrowse
