// SPDX-License-Identifier: MIT
#include "text/TextWriter.h"

#include "text/NumberText.h"
#include "text/TextTable.h"

namespace zbtext {

namespace {

constexpr std::string_view kBranch = "├─ ";
constexpr std::string_view kLastBranch = "└─ ";
constexpr std::string_view kTrunk = "│  ";
constexpr std::string_view kNoTrunk = "   ";

std::string CountNote(List const& list) {
    if (!list.GetFault().empty())
        return " (cannot be read: " + list.GetFault() + ')';
    std::string note = " (";
    AppendInteger(note, static_cast<std::int64_t>(list.GetTotal()));
    return note + ')';
}

} // namespace

TextWriter::TextWriter(Output& output, TextStyle const& style)
    : output_(output)
    , style_(style)
    , palette_(GetPalette(style.colour)) {
}

void TextWriter::WriteName(std::string_view prefix, std::string_view name, std::string_view colour,
                           std::string const& note, std::string_view noteColour) {
    auto& out = output_.Text();
    auto room = style_.width;
    auto const take = [&](std::string_view text) {
        auto const used = AppendCut(out, text, room);
        room -= room == kNoLimit ? 0 : used;
    };
    take(prefix);
    out += colour;
    take(name);
    out += palette_.reset;
    out += noteColour;
    take(note);
    if (!note.empty())
        out += palette_.reset;
    out += '\n';
    output_.Checkpoint();
}

void TextWriter::WriteMore(std::string_view prefix, List const& list) {
    if (list.GetTotal() == list.GetRowCount())
        return;
    std::string text = "… ";
    AppendInteger(text, static_cast<std::int64_t>(list.GetTotal() - list.GetRowCount()));
    text += " more";
    WriteName(prefix, text, palette_.faint, {}, {});
}

void TextWriter::WriteList(List const& list) {
    WriteName({}, list.GetName(), palette_.title, CountNote(list), palette_.faint);
    if (list.GetColumns().empty())
        return;
    TextTable table(output_, list, style_, {}, 0, kNoLimit);
    table.WriteHeader();
    table.WriteRule();
    table.WriteRows();
    WriteMore({}, list);
}

void TextWriter::WriteLists(std::vector<std::unique_ptr<List>> const& lists) {
    bool first = true;
    for (auto const& list : lists) {
        if (!first)
            output_.Text() += '\n';
        WriteList(*list);
        first = false;
    }
}

void TextWriter::WriteSketch(List const& list, std::string const& prefix) {
    if (list.GetRowCount() == 0 || list.GetColumns().empty())
        return;
    TextTable table(output_, list, style_, prefix, DisplayWidth(prefix), kSketchCell);
    table.WriteHeader();
    table.WriteRows();
    WriteMore(prefix, list);
}

void TextWriter::WriteFolder(Folder const& folder, std::string const& prefix) {
    auto left = folder.folders.size() + folder.lists.size();
    auto const branch = [&] { return prefix + std::string(left == 1 ? kLastBranch : kBranch); };
    auto const below = [&] { return prefix + std::string(left == 1 ? kNoTrunk : kTrunk); };
    for (auto const& child : folder.folders) {
        auto const icon = child.icon ? '[' + *child.icon + "] " : std::string();
        WriteName(branch() + icon, child.name, palette_.folder, {}, {});
        WriteFolder(child, below());
        --left;
    }
    for (auto const& list : folder.lists) {
        auto const& noteColour = list->GetFault().empty() ? palette_.faint : palette_.fault;
        WriteName(branch(), list->GetName(), {}, CountNote(*list), noteColour);
        WriteSketch(*list, below() + "   ");
        --left;
    }
}

void TextWriter::WriteView(Folder const& root) {
    WriteName({}, root.name, palette_.title, {}, {});
    WriteFolder(root, {});
}

} // namespace zbtext
