// SPDX-License-Identifier: MIT
// Columns, properties, the order, the selection, and new views.
#include "RandomScriptGenerator.h"

namespace zbtest {

namespace {

constexpr std::size_t manyFoldersOfNewView = 12;

template <class... Words>
Script One(Words const&... words) {
    return {ScriptStep::Of(words...)};
}

} // namespace

Script ScriptGenerator::DrawColumn() {
    std::string const view = AnyViewOfAll();
    std::string const column = AnyColumn();
    switch (numbers_.Below(12)) {
    case 0:
        return One("drop-column", view, column);
    case 1:
    case 2:
        return One("show-column", view, column, Flag());
    case 3:
        return One("title", view, column);
    case 4:
        return One("sorting", view, Flag());
    case 5:
        return One("italic-texts", view, Flag());
    case 6:
        return One("drop-column-style", view, column, Flag() ? "x" : "y");
    case 7:
    case 8:
    case 9:
        return One("column-style", view, column, Flag() ? "x" : "y", AnyProperty());
    default:
        return One(Flag() ? "column" : "icon-column", view, column);
    }
}

Script ScriptGenerator::DrawOrder() {
    std::string const view = AnyViewOfAll();
    switch (numbers_.Below(12)) {
    case 0:
        return One("unsort-all", view);
    case 1:
        return One("mark-unsorted", view, AnyColumn());
    case 2:
        return One("custom-sort", view, Flag() ? "rank" : "");
    case 3:
        return One("order-sources", "s2", "s0", "s3", "s1");
    case 4:
        return Flag() ? One("order-sources") : One("order-sources", AnySource(), AnySource());
    case 5:
        return One("compares", AnySource(), !numbers_.OneIn(3));
    default:
        return One("sort", view, AnyColumn(), !numbers_.OneIn(3));
    }
}

Script ScriptGenerator::DrawReading() {
    std::string const view = AnyViewOfAll();
    if (!numbers_.OneIn(4)) {
        return One("read", AnyPlaceIn(view));
    }
    Script steps;
    for (std::string const& folder : player_.FolderNames(view)) {
        steps.push_back(ScriptStep::Of("read", std::string(view).append(":").append(folder)));
    }
    return steps;
}

Script ScriptGenerator::DrawProperty() {
    static std::vector<std::string> const data = {"rank", "rank", "name", "id"};
    std::string const view = AnyViewOfAll();
    std::string const property = AnyProperty();
    switch (numbers_.Below(10)) {
    case 0:
        return One("drop-property", view, property);
    case 1:
        return One("disconnect-property", view, property, AnySource());
    case 2:
    case 3:
        return One("property", view, property);
    default:
        return One("connect-property", view, property, AnySource(), numbers_.Pick(data));
    }
}

// A value changes, and the views hear of it in one way or another, or not at all.
Script ScriptGenerator::DrawValue() {
    std::string const source = AnySource();
    std::string const item = AnyItem(source);
    Script steps;
    for (std::size_t i = numbers_.Below(3); i > 0; --i) {
        steps.push_back(ScriptStep::Of("value", source, AnyItem(source), numbers_.Below(5)));
    }
    steps.push_back(ScriptStep::Of("value", source, item, numbers_.Below(5)));
    std::string const place = AnyPlace();
    switch (numbers_.Below(5)) {
    case 0:
        break;
    case 1:
        steps.push_back(ScriptStep::Of("updated", source, item));
        break;
    case 2:
        return One("write-value", place, AnyRow(place), AnyProperty(), numbers_.Below(5));
    default:
        steps.push_back(ScriptStep::Of("mark-item", source, item, true));
        steps.push_back(ScriptStep::Of("refresh", "v0"));
        steps.push_back(ScriptStep::Of("refresh", "v1"));
        steps.push_back(ScriptStep::Of("mark-item", source, item, false));
    }
    steps.push_back(ScriptStep::Of("read", place));
    return steps;
}

// The selection

Script ScriptGenerator::DrawSelection() {
    std::string const place = AnyPlaceIn(AnyViewOfAll());
    std::string const view = ViewOf(place);
    std::string const row = AnyRow(place);
    std::vector<ScriptStep> const steps = {
        ScriptStep::Of("select", place, row, true, numbers_.OneIn(4)),
        ScriptStep::Of("select", place, row, true, false),
        ScriptStep::Of("select", place, row, true, false),
        ScriptStep::Of("select", place, row, false, numbers_.OneIn(4)),
        ScriptStep::Of("deselect-below", place),
        ScriptStep::Of("deselect-row", place, row),
        ScriptStep::Of(numbers_.OneIn(3) ? "deselect-all" : "tell-previous", view),
        ScriptStep::Of(numbers_.OneIn(3) ? "clear-all" : "finish-selection", view),
        ScriptStep::Of(numbers_.OneIn(3) ? "clear-selected" : "ask-selection", view),
        ScriptStep::Of("sync", view, !numbers_.OneIn(3)),
        ScriptStep::Of("notifier", view, !numbers_.OneIn(3)),
        ScriptStep::Of("popup", view, Flag()),
        ScriptStep::Of("drop-item", place, row),
    };
    return {numbers_.Pick(steps)};
}

Script ScriptGenerator::DrawDataSelection() {
    std::string const view = AnyViewOfAll();
    std::string items;
    for (std::size_t i = numbers_.Below(4); i > 0; --i) {
        std::string const source = AnySource();
        items.append(" ").append(source).append(" ").append(AnyItem(source));
    }
    return numbers_.OneIn(3) ? One("deselect-data", view, items)
                             : One("select-data", view, numbers_.OneIn(3), items);
}

Script ScriptGenerator::DrawQuestion() {
    std::string const place = AnyPlace();
    std::string const source = AnySource();
    switch (numbers_.Below(4)) {
    case 0:
        return One("ask-texts", AnyViewOfAll(), source, AnyProperty());
    case 1:
        return One("ask-rows", AnyView(), source, AnyItem(source));
    case 2:
        return One("read-value", place, AnyRow(place), AnyProperty());
    default:
        return One("ask-selection", AnyViewOfAll());
    }
}

// New views

Script ScriptGenerator::DrawNewView() {
    static std::vector<std::string> const names = {"b10", "B2", "a", "c", "b2", "D"};
    static std::vector<std::string> const marks = {
        "style", "keep-order",       "bold",   "italic",       "icon",
        "count", "shows-when-empty", "expand", "group-leaves", "empty-containers",
    };
    std::string const place = AnyPlaceIn("n0");
    bool const isFull = player_.FolderNames("n0").size() > manyFoldersOfNewView;
    switch (numbers_.Below(14)) {
    case 0:
        return {ScriptStep::Of("view", "n0"), ScriptStep::Of("control", "n0", "data")};
    case 1:
        return One(numbers_.OneIn(4) || isFull ? "delete-view" : "show-folder",
                   isFull ? "n0" : place);
    case 2:
        return One("lock", "n0", numbers_.OneIn(4));
    case 3:
        return One("delete-folder", place, Flag());
    case 4:
        return One(Flag() ? "path" : "show-folder", place);
    case 5:
        return One("collapse", place, Flag());
    case 6:
    case 7:
    case 8:
    case 9:
        return One(numbers_.Pick(marks), place, Flag(), Flag());
    default:
        return One("folder", place, numbers_.Pick(names));
    }
}

// What the model does not know.

Script ScriptGenerator::DrawPainting() {
    std::string const place = AnyPlaceIn(AnyViewOfAll());
    std::string const view = ViewOf(place);
    std::string const column = AnyColumn();
    std::vector<ScriptStep> const steps = {
        ScriptStep::Of("style-item", place, Flag()),
        ScriptStep::Of("style-source", place, AnySource(), Flag()),
        ScriptStep::Of("drop-element", view, column, Flag() ? "x" : "y"),
        ScriptStep::Of("gui-map-deleted", "map"),
        ScriptStep::Of("paint", place, column),
        ScriptStep::Of("paint", place, column),
        ScriptStep::Of("read-forms", place, AnyRow(place), AnyProperty()),
        ScriptStep::Of("script-property", view, AnyProperty(), numbers_.OneIn(3)),
    };
    return {numbers_.Pick(steps)};
}

Script ScriptGenerator::DrawOddStep() {
    std::string const place = AnyPlace();
    std::string const view = AnyViewOfAll();
    std::string const source = AnySource();
    std::vector<ScriptStep> const steps = {
        ScriptStep::Of("sorting-exception", place, source),
        ScriptStep::Of("copy-view", view),
        ScriptStep::Of("keep-manager", view),
        ScriptStep::Of("ask-manager", source),
        ScriptStep::Of("ask-view", place, source, AnyRow(place)),
        ScriptStep::Of("activate", view),
        ScriptStep::Of("panel-select", !numbers_.OneIn(3), Flag(), source, AnyItem(source)),
        ScriptStep::Of("edit", view),
    };
    return {numbers_.Pick(steps)};
}

} // namespace zbtest
