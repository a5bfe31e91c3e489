// SPDX-License-Identifier: MIT
// Steps on view properties, on views of both kinds.
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "RandomScriptPlayer.h"

#include <zbBrowserView/View.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

namespace zbtest {

namespace {

std::string Answer(bool answer) {
    return answer ? "true" : "false";
}

} // namespace

std::map<std::string, ScriptPlayer::Handler> const& ScriptPlayer::PropertyHandlers() {
    static std::map<std::string, Handler> const handlers = {
        {"property", &ScriptPlayer::MakeProperty},
        {"drop-property", &ScriptPlayer::DropProperty},
        {"connect-property", &ScriptPlayer::ConnectProperty},
        {"disconnect-property", &ScriptPlayer::DisconnectProperty},
        {"read-value", &ScriptPlayer::ReadValue},
        {"write-value", &ScriptPlayer::WriteValue},
        {"read-forms", &ScriptPlayer::ReadForms},
        {"script-property", &ScriptPlayer::ScriptProperty},
    };
    return handlers;
}

std::string ScriptPlayer::MakeProperty(ScriptStep const& step) {
    zbIBrowserView* const view = AnyView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->CreateViewProperty(step.Arg(2).c_str());
    return "";
}

zbIBrowserViewProperty* ScriptPlayer::FindProperty(std::string const& view,
                                                   std::string const& name) {
    zbIBrowserView const* const found = AnyView(view);
    return found == nullptr ? nullptr : found->FindViewProperty(name.c_str());
}

std::string ScriptPlayer::DropProperty(ScriptStep const& step) {
    auto* const property = FindProperty(step.Arg(1), step.Arg(2));
    return property == nullptr ? "skip"
                               : Answer(AnyView(step.Arg(1))->DeleteViewProperty(property));
}

std::string ScriptPlayer::ConnectProperty(ScriptStep const& step) {
    auto* const property = FindProperty(step.Arg(1), step.Arg(2));
    RecordingSource* const source = data_.Source(step.Arg(3));
    if (property == nullptr || source == nullptr) {
        return "skip";
    }
    auto* const ofData = &source->Property(step.Arg(4));
    zbBrowserView* const view = View(step.Arg(1));
    return Answer(view != nullptr
                      ? view->CreateVPConnect(property, source, ofData)
                      : NewView(step.Arg(1))->CreateVPConnect(property, source, ofData));
}

std::string ScriptPlayer::DisconnectProperty(ScriptStep const& step) {
    auto* const property = FindProperty(step.Arg(1), step.Arg(2));
    RecordingSource* const source = data_.Source(step.Arg(3));
    if (property == nullptr || source == nullptr) {
        return "skip";
    }
    zbBrowserView* const view = View(step.Arg(1));
    return Answer(view != nullptr ? view->DeleteVPConnect(property, source)
                                  : NewView(step.Arg(1))->DeleteVPConnect(property, source));
}

std::string ScriptPlayer::ReadValue(ScriptStep const& step) {
    auto* const property = FindProperty(step.Arg(1).substr(0, step.Arg(1).find(':')), step.Arg(3));
    auto* const row = FindRow(step.Arg(1), step.Arg(2));
    if (property == nullptr || row == nullptr || ShowsGhosts(step)) {
        return "skip";
    }
    zbString text;
    return property->GetStringValue(row, text) ? std::string("true ") + text.c_str() : "false";
}

std::string ScriptPlayer::WriteValue(ScriptStep const& step) {
    auto* const property = FindProperty(step.Arg(1).substr(0, step.Arg(1).find(':')), step.Arg(3));
    auto* const row = FindRow(step.Arg(1), step.Arg(2));
    if (property == nullptr || row == nullptr || ShowsGhosts(step)) {
        return "skip";
    }
    return Answer(property->SetIntegerValue(row, std::atoi(step.Arg(4).c_str())));
}

//! Reads and writes in every form, of a row or, without one of that name, of the folder. What is
//! asked in between may end the view, so everything is looked up anew.
std::string ScriptPlayer::ReadForms(ScriptStep const& step) {
    struct Values {
        int whole = 0;
        unsigned positive = 0;
        bool flag = false;
        double number = 0;
        zbString text;
        zbVariant any;
    } values;
    using Form = std::function<void(zbIBrowserViewProperty&, zbIBrowserViewItem*)>;
    std::vector<Form> const forms = {
        [&](auto& property, auto* item) { property.GetIntegerValue(item, values.whole); },
        [&](auto& property, auto* item) { property.GetUnsignedValue(item, values.positive); },
        [&](auto& property, auto* item) { property.GetBooleanValue(item, values.flag); },
        [&](auto& property, auto* item) { property.GetDoubleValue(item, values.number); },
        [&](auto& property, auto* item) { property.GetStringValue(item, values.text); },
        [&](auto& property, auto* item) { property.GetDisplayValue(item, values.text); },
        [&](auto& property, auto* item) { property.GetTextPointer(item); },
        [&](auto& property, auto* item) { property.GetValue(item, values.any); },
        [&](auto& property, auto* item) { property.SetValue(item, zbVariant(1)); },
        [&](auto& property, auto* item) { property.SetBooleanValue(item, true); },
        [&](auto& property, auto* item) { property.SetTextByScript(item, "text"); },
    };
    for (Form const& form : forms) {
        auto* const property =
            FindProperty(step.Arg(1).substr(0, step.Arg(1).find(':')), step.Arg(3));
        auto* const row = FindRow(step.Arg(1), step.Arg(2));
        zbIBrowserViewItem* const item = row == nullptr ? FindAnyFolder(step.Arg(1)) : row;
        if (property == nullptr || item == nullptr || ShowsGhosts(step)) {
            return "skip";
        }
        form(*property, item);
    }
    return "";
}

std::string ScriptPlayer::ScriptProperty(ScriptStep const& step) {
    auto* const property = FindProperty(step.Arg(1), step.Arg(2));
    if (property == nullptr) {
        return "skip";
    }
    char const* const script = step.Flag(3) ? "script" : "";
    return Answer(property->SetScripts(script, script));
}

} // namespace zbtest
