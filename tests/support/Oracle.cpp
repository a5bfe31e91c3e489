// SPDX-License-Identifier: MIT
// Views, data controls and data sources, and what the other steps look up.
#include "Oracle.h"

#include <algorithm>

namespace zbtest {

namespace {

bool SameName(std::string const& a, std::string const& b) {
    return StrICmp(a.c_str(), b.c_str()) == 0;
}

template <class T>
bool Holds(std::vector<T*> const& all, T const* one) {
    return std::find(all.begin(), all.end(), one) != all.end();
}

template <class T>
T* FindNamed(std::vector<T*> const& all, std::string const& name) {
    auto const found = std::find_if(all.begin(), all.end(),
                                    [&](T const* one) { return SameName(one->Name(), name); });
    return found == all.end() ? nullptr : *found;
}

} // namespace

std::string Oracle::Take(ScriptStep const& step) {
    hostHasRun_ = false;
    openOrder_ = nullptr;
    Handler const handler = HandlerOf(step);
    return handler == nullptr ? "unknown step" : (this->*handler)(step);
}

// A new view takes the steps of its own, and those that both kinds take in the same way.
Oracle::Handler Oracle::HandlerOf(ScriptStep const& step) {
    auto const find = [&](std::map<std::string, Handler> const& handlers) {
        auto const found = handlers.find(step.Name());
        return found == handlers.end() ? nullptr : found->second;
    };
    Handler const ofNewView = step.Arg(1).starts_with('n') ? find(NewViewHandlers()) : nullptr;
    Handler handler = ofNewView != nullptr ? ofNewView : find(Handlers());
    handler = handler != nullptr ? handler : find(ColumnHandlers());
    return handler != nullptr ? handler : find(SelectionHandlers());
}

std::map<std::string, Oracle::Handler> const& Oracle::Handlers() {
    static std::map<std::string, Handler> const handlers = {
        {"view", &Oracle::MakeView},
        {"delete-view", &Oracle::DeleteView},
        {"control", &Oracle::SetControl},
        {"control-deleted", &Oracle::ControlDeleted},
        {"connect", &Oracle::Connect},
        {"connect-tree", &Oracle::ConnectTree},
        {"disconnect", &Oracle::Disconnect},
        {"disconnect-all", &Oracle::DisconnectAll},
        {"drop-list-everywhere", &Oracle::DropListEverywhere},
        {"folder", &Oracle::MakeFolder},
        {"delete-folder", &Oracle::DeleteFolder},
        {"list", &Oracle::MakeList},
        {"drop-list", &Oracle::DropList},
        {"tree", &Oracle::MakeTree},
        {"drop-tree", &Oracle::DropTree},
        {"group-leaves", &Oracle::GroupLeaves},
        {"group-list", &Oracle::GroupList},
        {"group-type", &Oracle::GroupType},
        {"style", &Oracle::SetStyle},
        {"empty-containers", &Oracle::SetEmptyContainers},
        {"keep-order", &Oracle::SetKeepOrder},
        {"caption", &Oracle::SetCaption},
        {"bold", &Oracle::SetBold},
        {"italic", &Oracle::SetItalic},
        {"icon", &Oracle::SetIcon},
        {"count", &Oracle::SetCount},
        {"shows-when-empty", &Oracle::SetShowsWhenEmpty},
        {"show-empty-folders", &Oracle::ShowEmptyFolders},
        {"can-be-shown", &Oracle::CanBeShown},
        {"expand", &Oracle::Expand},
        {"collapse", &Oracle::Collapse},
        {"expand-list", &Oracle::ExpandList},
        {"collapse-list", &Oracle::CollapseList},
        {"hide-row", &Oracle::HideRow},
        {"show-row", &Oracle::ShowRow},
        {"hide-folder", &Oracle::HideFolder},
        {"show-folder", &Oracle::ShowFolder},
        {"path", &Oracle::Path},
        {"created", &Oracle::Created},
        {"updated", &Oracle::Updated},
        {"reported-deleted", &Oracle::Updated},
        {"deleted", &Oracle::Deleted},
        {"renumbered", &Oracle::Renumbered},
        {"rebuild-all", &Oracle::RebuildAll},
        {"rebuild-lists", &Oracle::RebuildLists},
        {"refresh", &Oracle::Refresh},
        {"redraw", &Oracle::Redraw},
        {"build", &Oracle::Build},
        {"build-item", &Oracle::BuildItem},
        {"unbuild-item", &Oracle::UnbuildItem},
        {"delete-rows", &Oracle::DeleteRows},
        {"unsort-all", &Oracle::UnsortAll},
    };
    return handlers;
}

// Views, data controls and data sources

std::string Oracle::MakeView(ScriptStep const& step) {
    if (FindView(step.Arg(1)) != nullptr) {
        return "throw char const* View with specified name already exists";
    }
    View& view = views_.emplace_back();
    view.name = step.Arg(1);
    view.isNew = view.name.starts_with('n');
    view.root.open = true;
    view.root.used = view.isNew;
    view.columns.push_back(std::make_unique<Column>());
    view.columns.front()->name = "default_column";
    for (char const* const name : {"default_name_prop", "default_icon_name_prop",
                                   "default_bold_text_prop", "default_italic_text_prop"}) {
        view.properties.push_back(std::make_shared<Property>());
        view.properties.back()->name = name;
    }
    return "true";
}

std::string Oracle::DeleteView(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    views_.remove_if([view](View const& other) { return &other == view; });
    return "true";
}

std::string Oracle::SetControl(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    view->control = data_.Control(step.Arg(2));
    if (view->control == nullptr) {
        DisconnectEverything(*view, true);
    }
    return "";
}

std::string Oracle::ControlDeleted(ScriptStep const& step) {
    for (View& view : views_) {
        if (view.control != nullptr && view.control->Name() == step.Arg(1)) {
            view.control = nullptr;
            DisconnectEverything(view, true);
        }
    }
    return "";
}

std::string Oracle::Connect(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (view == nullptr || source == nullptr) {
        return "skip";
    }
    bool const isKnown = view->control != nullptr && view->control->Name() == "data";
    if (isKnown && !Holds(view->sources, source)) {
        view->sources.push_back(source);
    }
    return "true";
}

std::string Oracle::ConnectTree(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    RecordingTree* const tree = data_.Tree(step.Arg(2));
    if (view == nullptr || tree == nullptr) {
        return "skip";
    }
    bool const isKnown = view->control != nullptr && view->control->Name() == "data";
    if (isKnown && !Holds(view->trees, tree)) {
        view->trees.push_back(tree);
    }
    return "true";
}

std::string Oracle::Disconnect(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    if (RecordingSource* const source = FindNamed(view->sources, step.Arg(2))) {
        for (Folder* const folder : PreOrder(view->root)) {
            RemoveList(*view, *folder, source);
        }
        std::erase(view->sources, source);
        return "true";
    }
    if (RecordingTree* const tree = FindNamed(view->trees, step.Arg(2))) {
        for (Folder* const folder : PreOrder(view->root)) {
            RemoveTree(*view, *folder, tree);
        }
        std::erase(view->trees, tree);
        return "true";
    }
    return "false";
}

std::string Oracle::DisconnectAll(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    DisconnectEverything(*view, step.Flag(2));
    return "true";
}

void Oracle::DisconnectEverything(View& view, bool removeContent) {
    for (RecordingSource* const source : view.sources) {
        for (Folder* const folder : PreOrder(view.root)) {
            if (removeContent) {
                RemoveList(view, *folder, source);
            }
        }
    }
    for (RecordingTree* const tree : view.trees) {
        for (Folder* const folder : PreOrder(view.root)) {
            if (removeContent) {
                RemoveTree(view, *folder, tree);
            }
        }
    }
    view.sources.clear();
    view.trees.clear();
}

std::string Oracle::DropListEverywhere(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const top = FindFolder(step.Arg(1), &view);
    RecordingSource* const source = data_.Source(step.Arg(2));
    if (top == nullptr || source == nullptr) {
        return "skip";
    }
    bool any = false;
    for (Folder* const folder : PreOrder(*top)) {
        any = RemoveList(*view, *folder, source) || any;
    }
    return any ? "true" : "false";
}

// Looking things up

Oracle::View* Oracle::FindView(std::string const& name) {
    auto const found = std::find_if(views_.begin(), views_.end(),
                                    [&](View const& view) { return view.name == name; });
    return found == views_.end() ? nullptr : &*found;
}

Oracle::View const* Oracle::FindView(std::string const& name) const {
    return const_cast<Oracle*>(this)->FindView(name);
}

Oracle::Folder* Oracle::FindFolder(std::string const& place, View** view) {
    auto const colon = place.find(':');
    View* const found = FindView(place.substr(0, colon));
    if (found == nullptr || colon == std::string::npos) {
        return nullptr;
    }
    if (view != nullptr) {
        *view = found;
    }
    std::string const name = place.substr(colon + 1);
    for (Folder* const folder : PreOrder(found->root)) {
        if (NameOf(*folder) == name) {
            return folder;
        }
    }
    return nullptr;
}

std::vector<Oracle::Folder*> Oracle::PreOrder(Folder& top) {
    std::vector<Folder*> all{&top};
    for (auto const& child : top.children) {
        auto const below = PreOrder(*child);
        all.insert(all.end(), below.begin(), below.end());
    }
    return all;
}

std::vector<Oracle::Folder*> Oracle::PostOrder(Folder& top) {
    std::vector<Folder*> all;
    for (auto const& child : top.children) {
        auto const below = PostOrder(*child);
        all.insert(all.end(), below.begin(), below.end());
    }
    all.push_back(&top);
    return all;
}

std::vector<RecordingItem*> Oracle::Listed(RecordingSource const& source) {
    hostHasRun_ = true;
    return source.failing ? std::vector<RecordingItem*>() : source.All();
}

std::string Oracle::NameOf(Row const& row) const {
    return calls_.NameOf(static_cast<zbIBrowserDataItem const*>(row.item));
}

std::string Oracle::NameOf(Folder const& folder) {
    return folder.parent == nullptr ? "/" : folder.name;
}

bool Oracle::IsDirty(RecordingSource const& source) const {
    return source.dirty && !Holds(cleared_, &source);
}

// The views as text

std::string Oracle::State(std::string const& name) const {
    View const* const view = FindView(name);
    if (view == nullptr) {
        return "";
    }
    std::string text = "sources";
    for (RecordingSource const* const source : view->sources) {
        text.append(" ").append(source->Name());
    }
    text.append("\ntrees");
    for (RecordingTree const* const tree : view->trees) {
        text.append(" ").append(tree->Name());
    }
    text.append("\n").append(TextOfPresentation(*view));
    AppendDump(text, view->root, "");
    return text;
}

std::string Oracle::TextOfLists(Folder const& folder) {
    std::string text;
    for (RecordingSource const* const list : folder.lists) {
        text += " " + list->Name();
    }
    for (RecordingSource const* const list : folder.groupedLists) {
        text += " " + list->Name() + "*";
    }
    return text.empty() ? "" : " [" + text.substr(1) + "]";
}

// The first of the child types is the own type, which is told once more before them.
std::string Oracle::TextOfTrees(Folder const& folder) {
    std::string text;
    for (TreeRecord const& record : folder.trees) {
        std::string types;
        auto const append = [&](RecordingSource const* source) {
            types += "," + source->Name();
            for (Type const& type : record.types) {
                types += type.source == source && type.grouped ? "*" : "";
            }
        };
        append(record.tree->childTypes.front());
        std::for_each(record.tree->childTypes.begin(), record.tree->childTypes.end(), append);
        text += " " + record.tree->Name() + ":" + types.substr(1);
    }
    return text.empty() ? "" : " {" + text.substr(1) + "}";
}

void Oracle::AppendDump(std::string& text, Folder const& folder, std::string const& indent) const {
    text += indent + folder.name + "/";
    text += TextOfLists(folder) + TextOfTrees(folder);
    text += folder.open && folder.parent != nullptr ? " open" : "";
    text += folder.hidden ? " hidden" : "";
    text += folder.groups ? " groups" : "";
    text += folder.style ? " style" : "";
    text += folder.emptyContainers ? " empty-containers" : "";
    text += folder.keepsOrder ? "" : " sorts";
    text += folder.showsWhenEmpty ? "" : " when-filled";
    text += folder.bold ? " bold" : "";
    text += folder.italic ? " italic" : "";
    text += folder.used ? "" : " unused";
    text += folder.selected ? " selected" : "";
    text += folder.changed ? " changed\n" : "\n";
    for (Row const& row : folder.rows) {
        text += indent + "  " + NameOf(row) + (row.hidden ? " hidden" : "");
        text += row.selected ? " selected\n" : "\n";
    }
    for (auto const& child : folder.children) {
        AppendDump(text, *child, indent + "  ");
    }
}

} // namespace zbtest
