// SPDX-License-Identifier: MIT
// What is done from within signals and host operations.
#include "RandomScriptGenerator.h"

namespace zbtest {

// What is done from within is mostly a matter of taking away.
Script ScriptGenerator::DrawAttack() {
    Script const steps = DrawFrom({
        {10, &ScriptGenerator::DrawStep},
        {8, &ScriptGenerator::DrawRemoval},
        {5, &ScriptGenerator::DrawFolder},
        {6, &ScriptGenerator::DrawContent},
        {3, &ScriptGenerator::DrawConnection},
        {5, &ScriptGenerator::DrawRebuild},
        {2, &ScriptGenerator::DrawRows},
        {6, &ScriptGenerator::DrawSelection},
        {4, &ScriptGenerator::DrawColumn},
        {3, &ScriptGenerator::DrawOrder},
        {3, &ScriptGenerator::DrawProperty},
        {3, &ScriptGenerator::DrawOddStep},
    });
    std::string const& on = AnyMoment();
    Script attacks;
    for (ScriptStep const& step : steps) {
        attacks.push_back(ScriptStep::Of("on", on, 1 + numbers_.Below(4), step.Line()));
    }
    return attacks;
}

// Deeds that wait for a step which concerns the same things, and then that step.
Script ScriptGenerator::DrawAmbush() {
    std::string const place = AnyPlace();
    std::string const source = AnySource();
    std::string const item = AnyItem(source);
    Script steps;
    for (std::size_t i = 0; i <= numbers_.Below(3); ++i) {
        std::string const deed = DrawDeed(place, source, item).Line();
        steps.push_back(ScriptStep::Of("on", AnyMoment(), 1 + numbers_.Below(3), deed));
    }
    if (numbers_.OneIn(3)) {
        steps.push_back(ScriptStep::Of("unlist", source, item));
    }
    for (std::string const& name : SourceNames()) {
        steps.push_back(ScriptStep::Of("mark", name, !numbers_.OneIn(3)));
    }
    steps.push_back(DrawVictim(place, source, item));
    return steps;
}

ScriptStep ScriptGenerator::DrawVictim(std::string const& place, std::string const& source,
                                       std::string const& item) {
    std::string const view = place.substr(0, 2);
    std::vector<ScriptStep> const steps = {
        ScriptStep::Of("list", place, source),
        ScriptStep::Of("list", view + ":/", source),
        ScriptStep::Of("drop-list", place, source),
        ScriptStep::Of("drop-list-everywhere", view + ":/", source),
        ScriptStep::Of("disconnect", view, source),
        ScriptStep::Of("disconnect-all", view, true),
        ScriptStep::Of("created", source, item),
        ScriptStep::Of("updated", source, item),
        ScriptStep::Of("deleted", view, source, item),
        ScriptStep::Of("unbuild-item", view, source, item, false),
        ScriptStep::Of("rebuild-lists", view),
        ScriptStep::Of("rebuild-all", view),
        ScriptStep::Of("refresh", view),
        ScriptStep::Of("redraw", view),
        ScriptStep::Of("build", view, false),
        ScriptStep::Of("group-leaves", view + ":/", Flag()),
        ScriptStep::Of("group-list", place, source, Flag()),
        ScriptStep::Of("empty-containers", place, Flag()),
        ScriptStep::Of("delete-folder", place, true),
        ScriptStep::Of("folder", place, "a"),
        ScriptStep::Of("tree", place, AnyTree()),
        ScriptStep::Of("drop-tree", place, AnyTree()),
        ScriptStep::Of(Flag() ? "expand" : "collapse", view + ":/", true),
        ScriptStep::Of("shows-when-empty", view + ":/", Flag(), true),
    };
    std::string const column = AnyColumn();
    std::vector<ScriptStep> const ofPresentation = {
        ScriptStep::Of("sort", view, column, Flag()),
        ScriptStep::Of("read", place),
        ScriptStep::Of("read", place),
        ScriptStep::Of("drop-column", view, column),
        ScriptStep::Of("show-column", view, column, Flag()),
        ScriptStep::Of("sorting", view, Flag()),
        ScriptStep::Of("italic-texts", view, Flag()),
        ScriptStep::Of("paint", place, column),
        ScriptStep::Of("drop-column-style", view, column, "x"),
        ScriptStep::Of("read-forms", place, item, AnyProperty()),
        ScriptStep::Of("select", place, item, Flag(), Flag()),
        ScriptStep::Of("select-data", view, Flag(), source, item),
        ScriptStep::Of("deselect-data", view, source, item),
        ScriptStep::Of("deselect-below", place),
        ScriptStep::Of("deselect-all", view),
        ScriptStep::Of("finish-selection", view),
        ScriptStep::Of("panel-select", Flag(), Flag(), source, item),
        ScriptStep::Of("ask-texts", view, source, AnyProperty()),
    };
    return numbers_.Pick(numbers_.OneIn(2) ? steps : ofPresentation);
}

ScriptStep ScriptGenerator::DrawDeed(std::string const& place, std::string const& source,
                                     std::string const& item) {
    std::string const view = place.substr(0, 2);
    std::vector<ScriptStep> const steps = {
        ScriptStep::Of("delete-folder", place, true),
        ScriptStep::Of("delete-folder", AnyPlace(), true),
        ScriptStep::Of("drop-list", place, source),
        ScriptStep::Of("drop-list-everywhere", view + ":/", source),
        ScriptStep::Of("drop-source", source),
        ScriptStep::Of("drop-source", AnySource()),
        ScriptStep::Of("delete-view", view),
        ScriptStep::Of("disconnect", view, source),
        ScriptStep::Of("control", view, "null"),
        ScriptStep::Of("lose", source, item),
        ScriptStep::Of("lose", source, AnyItem(source)),
        ScriptStep::Of("unlist", source, AnyItem(source)),
        ScriptStep::Of("fail", source, true),
        ScriptStep::Of("created", source, AnyItem(source)),
        ScriptStep::Of("unbuild-item", view, source, item, Flag()),
        ScriptStep::Of("drop-tree", place, AnyTree()),
        ScriptStep::Of("drop-column", view, AnyColumn()),
        ScriptStep::Of("drop-property", view, AnyProperty()),
        ScriptStep::Of("sort", view, AnyColumn(), Flag()),
        ScriptStep::Of("notifier", view, Flag()),
        DrawVictim(place, source, item),
        DrawVictim(place, source, item),
        DrawVictim(place, source, item),
    };
    return numbers_.OneIn(40) ? DrawThrow().front() : numbers_.Pick(steps);
}

std::string const& ScriptGenerator::AnyMoment() {
    static std::vector<std::string> const frequent = {
        "ViewItemCreated",    "ViewItemChanged",  "ViewItemDeleted", "ViewItemListDeleted",
        "ViewContentChanged", "ContainsDataItem", "GetDataItems",
    };
    static std::vector<std::string> const ofPresentation = {
        "ViewItemsSelected",  "ViewItemsDeselected",     "SelectionClearing",
        "OnSelectionChanged", "OnSelectionFinished",     "DataItemsSelectionChanging",
        "DataItemsGrouped",   "CompareByName",           "CompareByDataProperty",
        "CompareDataSources", "ColumnSortChanged",       "SortChanging",
        "ColumnDeleted",      "SelectionManagerChanged",
    };
    switch (numbers_.Below(6)) {
    case 0:
        return numbers_.Pick(ScriptPlayer::HostOperations());
    case 1:
        return numbers_.Pick(ScriptPlayer::Signals());
    case 2:
    case 3:
        return numbers_.Pick(ofPresentation);
    default:
        return numbers_.Pick(frequent);
    }
}

Script ScriptGenerator::DrawThrow() {
    static std::vector<std::string> const kinds = {"throw-text", "throw-string", "throw-exception"};
    return {ScriptStep::Of(numbers_.Pick(kinds))};
}

} // namespace zbtest
