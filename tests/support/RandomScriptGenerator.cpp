// SPDX-License-Identifier: MIT
#include "RandomScriptGenerator.h"

namespace zbtest {

namespace {

constexpr std::size_t manyFolders = 12;
constexpr std::size_t manyRows = 60;

template <class... Words>
Script One(Words const&... words) {
    return {ScriptStep::Of(words...)};
}

} // namespace

Script ScriptGenerator::Prologue() {
    Script script = ParseScript(R"(
        view v0
        control v0 data
        connect v0 s0
        connect v0 s1
        connect v0 s2
        connect-tree v0 t0
        item s0 a0
        item s0 a1
        item s0 a2
        item s1 b0
        item s1 b1
        item s2 c0
        folder v0:/ a
        folder v0:a b
        list v0:a s0
        list v0:a s1
        list v0:a s2
        list v0:b s1
        view v1
        control v1 data
        connect v1 s1
        folder v1:/ a
        list v1:a s1
        view n0
        control n0 data
        folder n0:/ a
    )");
    Script const sorted = ParseScript(R"(
        notifier v0 on
        value s0 a1 3
        value s1 b0 2
        column v0 c0
        property v0 p0
        connect-property v0 p0 s0 rank
        connect-property v0 p0 s1 rank
        connect-property v0 p0 s2 rank
        column-style v0 c0 x p0
        sort v0 c0 on
        read v0:a
        select v0:a a0 on off
        folder n0:/ b10
        folder n0:/ B2
        keep-order n0:/ off
        sort n0 default_column off
        read n0:/
    )");
    if (numbers_.OneIn(2)) {
        script.insert(script.end(), sorted.begin(), sorted.end());
    }
    return script;
}

Script ScriptGenerator::Next() {
    if (player_.IsCalm()) {
        return DrawStep();
    }
    switch (numbers_.Below(8)) {
    case 0:
        return DrawAttack();
    case 1:
    case 2:
    case 3:
        return DrawAmbush();
    case 4:
        return numbers_.OneIn(2) ? DrawOddStep() : DrawPainting();
    default:
        return DrawStep();
    }
}

Script ScriptGenerator::DrawFrom(std::vector<Choice> const& choices) {
    std::size_t sum = 0;
    for (Choice const& choice : choices) {
        sum += choice.weight;
    }
    std::size_t at = numbers_.Below(sum);
    for (Choice const& choice : choices) {
        if (at < choice.weight) {
            return (this->*choice.draw)();
        }
        at -= choice.weight;
    }
    return {};
}

Script ScriptGenerator::DrawStep() {
    return DrawFrom({
        {16, &ScriptGenerator::DrawDataStep},  {8, &ScriptGenerator::DrawRemoval},
        {10, &ScriptGenerator::DrawMark},      {8, &ScriptGenerator::DrawConnection},
        {10, &ScriptGenerator::DrawFolder},    {18, &ScriptGenerator::DrawContent},
        {6, &ScriptGenerator::DrawFolderMark}, {5, &ScriptGenerator::DrawExpansion},
        {5, &ScriptGenerator::DrawHidden},     {12, &ScriptGenerator::DrawEvent},
        {12, &ScriptGenerator::DrawRebuild},   {4, &ScriptGenerator::DrawRows},
        {1, &ScriptGenerator::DrawCrowd},      {8, &ScriptGenerator::DrawColumn},
        {8, &ScriptGenerator::DrawOrder},      {14, &ScriptGenerator::DrawReading},
        {6, &ScriptGenerator::DrawProperty},   {8, &ScriptGenerator::DrawValue},
        {12, &ScriptGenerator::DrawSelection}, {8, &ScriptGenerator::DrawDataSelection},
        {6, &ScriptGenerator::DrawQuestion},   {8, &ScriptGenerator::DrawNewView},
    });
}

// The data side

Script ScriptGenerator::DrawDataStep() {
    std::string const source = AnySource();
    std::string const item = AnyItem(source);
    switch (numbers_.Below(10)) {
    case 0:
        return One("unlist", source, item);
    case 1:
        return One("relist", source, item);
    case 2:
        return One("reorder", source, item);
    case 3:
        return numbers_.OneIn(4) ? One("list-twice", source, item) : One("source", source);
    case 4:
        return numbers_.OneIn(3) ? One("drop-source", source) : One("source", source);
    default: {
        std::string const made = NewItem(source);
        Script steps = One("item", source, made);
        if (!numbers_.OneIn(4)) {
            steps.push_back(ScriptStep::Of("created", source, made));
        }
        return steps;
    }
    }
}

// The ways in which a host lets an item go.
Script ScriptGenerator::DrawRemoval() {
    std::string const source = AnySource();
    std::string const item = AnyItem(source);
    Script steps = One("unlist", source, item);
    switch (numbers_.Below(4)) {
    case 0:
        return One("lose", source, item);
    case 1:
        steps.push_back(ScriptStep::Of("mark", source, true));
        for (char const* const view : {"v0", "v1"}) {
            steps.push_back(ScriptStep::Of("rebuild-lists", view));
        }
        steps.push_back(ScriptStep::Of("mark", source, false));
        break;
    case 2:
        steps.push_back(ScriptStep::Of("reported-deleted", source, item));
        break;
    default:
        for (char const* const view : {"v0", "v1"}) {
            steps.push_back(ScriptStep::Of("deleted", view, source, item));
        }
    }
    steps.push_back(ScriptStep::Of("free", source, item));
    return steps;
}

// Many rows or folders that come and go.
Script ScriptGenerator::DrawCrowd() {
    std::string const source = AnySource();
    std::string const view = AnyView();
    Script steps;
    if (numbers_.OneIn(8)) {
        constexpr std::size_t count = 40;
        for (std::size_t i = 0; i < count; ++i) {
            steps.push_back(ScriptStep::Of("folder", view + ":/", "crowd"));
        }
        for (std::size_t i = 0; i < count; ++i) {
            steps.push_back(ScriptStep::Of("delete-folder", view + ":crowd", true));
        }
        return steps;
    }
    steps.push_back(ScriptStep::Of("list", view + ":/", source));
    for (char const* const change : {"crowd", "disperse"}) {
        steps.push_back(ScriptStep::Of(change, source));
        steps.push_back(ScriptStep::Of("mark", source, true));
        steps.push_back(ScriptStep::Of("rebuild-lists", "v0"));
        steps.push_back(ScriptStep::Of("rebuild-lists", "v1"));
    }
    return steps;
}

Script ScriptGenerator::DrawMark() {
    std::string const source = AnySource();
    switch (numbers_.Below(8)) {
    case 0:
        return One("fail", source, numbers_.OneIn(3));
    case 1:
        return One("mark-tree", AnyTree(), Flag());
    case 2:
    case 3:
    case 4:
        return One("mark", source, !numbers_.OneIn(3));
    default:
        return One("mark-item", source, AnyItem(source), !numbers_.OneIn(3));
    }
}

// Views and folders

Script ScriptGenerator::DrawConnection() {
    std::string const view = AnyView();
    switch (numbers_.Below(20)) {
    case 0:
        return {ScriptStep::Of("view", "v1"), ScriptStep::Of("control", "v1", "data")};
    case 1:
        return One("delete-view", view);
    case 2:
        return One("control", view, numbers_.OneIn(3) ? "null" : "data");
    case 3:
        return One("control", view, numbers_.OneIn(3) ? "other" : "data");
    case 4:
        return One("control-deleted", numbers_.OneIn(3) ? "data" : "DATA");
    case 5:
        return One("disconnect-all", view, Flag());
    case 6:
    case 7:
        return One("disconnect", view, numbers_.OneIn(3) ? "S1" : AnySource());
    case 8:
        return One("disconnect", view, AnyTree());
    case 9:
        return One("connect-tree", view, AnyTree());
    case 10:
        return One("show-empty-folders", view, Flag());
    case 11:
        return One("view", view);
    default:
        return One("connect", view, AnySource());
    }
}

Script ScriptGenerator::DrawFolder() {
    static std::vector<std::string> const names = {"a", "b", "c", "d", "e", "f"};
    std::string const place = AnyPlace();
    bool const isFull = player_.FolderNames(place.substr(0, 2)).size() > manyFolders;
    if (isFull || numbers_.OneIn(3)) {
        return One("delete-folder", place, isFull || Flag());
    }
    return One("folder", place, numbers_.Pick(names));
}

Script ScriptGenerator::DrawContent() {
    std::string const place = AnyPlace();
    bool const isFull = player_.RowCount() > manyRows;
    switch (numbers_.Below(14)) {
    case 0:
        return One("tree", place, AnyTree());
    case 1:
        return One("drop-tree", place, AnyTree());
    case 2:
        return One("group-leaves", place, numbers_.OneIn(3));
    case 3:
        return One("group-list", place, AnySource(), numbers_.OneIn(3));
    case 4:
        return One("group-type", place, AnyTree(), AnySource(), Flag());
    case 5:
        return One("empty-containers", place, Flag());
    case 6:
        return One("drop-list-everywhere", place, AnySource());
    case 7:
    case 8:
        return One("drop-list", place, AnySource());
    default:
        return One(isFull ? "drop-list" : "list", place, AnySource());
    }
}

Script ScriptGenerator::DrawFolderMark() {
    static std::vector<std::string> const marks = {
        "style", "keep-order", "bold", "italic", "icon", "count", "shows-when-empty",
    };
    std::string const place = AnyPlace();
    switch (numbers_.Below(8)) {
    case 0:
        return One("caption", place, AnySource());
    case 1:
        return One("can-be-shown", place);
    case 2:
        return One("path", place);
    default:
        return One(numbers_.Pick(marks), place, Flag(), Flag());
    }
}

Script ScriptGenerator::DrawExpansion() {
    std::string const place = AnyPlace();
    switch (numbers_.Below(6)) {
    case 0:
        return One("expand-list", place, AnySource(), Flag());
    case 1:
        return One("collapse-list", place, AnySource(), Flag());
    case 2:
    case 3:
        return One("collapse", place, Flag());
    default:
        return One("expand", place, Flag());
    }
}

Script ScriptGenerator::DrawHidden() {
    std::string const place = AnyPlace();
    if (numbers_.OneIn(4)) {
        return One(numbers_.OneIn(2) ? "hide-folder" : "show-folder", place);
    }
    auto const rows = player_.RowNames(place);
    std::string const row = rows.empty() ? "a0" : numbers_.Pick(rows);
    return One(numbers_.OneIn(3) ? "show-row" : "hide-row", place, row);
}

// Events

Script ScriptGenerator::DrawEvent() {
    std::string const source = AnySource();
    std::string const item = AnyItem(source);
    switch (numbers_.Below(8)) {
    case 0:
    case 1:
        return One("created", source, item);
    case 2:
    case 3:
        return One("updated", source, item);
    case 4:
        return One("renumbered", source);
    case 5:
        return One("deleted", AnyView(), source, item);
    case 6:
        return One("build-item", AnyView(), source, item);
    default:
        return One("unbuild-item", AnyView(), source, item, Flag());
    }
}

Script ScriptGenerator::DrawRebuild() {
    static std::vector<std::string> const kinds = {
        "rebuild-all", "rebuild-lists", "rebuild-lists", "refresh", "redraw",
    };
    std::string const view = AnyView();
    return numbers_.OneIn(8) ? One("build", view, Flag()) : One(numbers_.Pick(kinds), view);
}

Script ScriptGenerator::DrawRows() {
    std::string const view = AnyView();
    std::string const prefix = view + ":";
    std::string items;
    auto const folders = player_.FolderNames(view);
    for (std::size_t i = numbers_.Below(4); i > 0 && !folders.empty(); --i) {
        std::string const& folder = numbers_.Pick(folders);
        auto const rows = player_.RowNames(prefix + folder);
        bool const isRow = !rows.empty() && !numbers_.OneIn(6);
        items += " " + folder + (isRow ? "=" + numbers_.Pick(rows) : "");
    }
    return One("delete-rows", view, Flag(), items);
}

} // namespace zbtest
