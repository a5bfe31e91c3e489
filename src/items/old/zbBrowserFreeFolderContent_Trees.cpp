// SPDX-License-Identifier: MIT
// Which trees a content has and how their types are shown.
#include "items/old/zbBrowserFreeFolderContent.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "view/HostBracket.h"
#include "view/OldViewContext.h"

#include <zbBrowserView/host/zbIBrowserDataSourceHierarchical.h>
#include <zbBrowserView/host/zbIBrowserDataSourceSimple.h>

#include <algorithm>
#include <cstring>

using zbbrowser::detail::TreeTypeSettings;

namespace {

template <class Source>
char const* NameOf(Source const* source) {
    char const* const name = source == nullptr ? nullptr : source->GetName();
    return name == nullptr ? "" : name;
}

//! Tells the tree that a change begins, and with the result that it has ended.
auto BeginTreeChange(zbIBrowserDataSourceHierarchical& tree) {
    tree.BeginChange();
    return zbbrowser::detail::HostBracket([&tree] { tree.EndChange(); });
}

} // namespace

bool zbBrowserFreeFolderContent::AddTree(Tree* tree) {
    if (tree == nullptr)
        return false;
    RecordTree(tree);
    if (FindSettings(tree)->empty())
        AddMissingTypes(*tree);
    bool connected = false;
    if (HasTree(tree)) { // The host may take it out again while it is asked
        auto const change = BeginTreeChange(*tree);
        connected = HasTree(tree) && ConnectTree(tree, false);
    }
    if (!connected) {
        treeSettings_.erase(tree);
        return false;
    }
    RaiseContentChanged();
    return true;
}

void zbBrowserFreeFolderContent::RecordTree(Tree* tree) {
    treeSettings_.try_emplace(tree);
}

bool zbBrowserFreeFolderContent::RemoveTree(Tree* tree) {
    if (FindSettings(tree) == nullptr)
        return false;
    DisconnectTree(tree, false);
    if (treeSettings_.erase(tree) == 0)
        return true; // A slot was quicker
    tree->OnViewLost();
    RaiseContentChanged();
    return true;
}

zbBrowserFreeFolderContent::Tree* zbBrowserFreeFolderContent::FindTree(char const* name) const {
    auto const trees = Trees();
    auto const found = std::find_if(trees.begin(), trees.end(), [&](Tree* tree) {
        return StrICmp(tree->GetName(), name) == 0;
    });
    return found == trees.end() ? nullptr : *found;
}

std::vector<zbBrowserFreeFolderContent::Tree*> zbBrowserFreeFolderContent::Trees() const {
    std::vector<Tree*> trees;
    trees.reserve(treeSettings_.size());
    for (auto const& [tree, settings] : treeSettings_)
        trees.push_back(tree);
    return trees;
}

zbBrowserFreeFolderContent::Simple* zbBrowserFreeFolderContent::FindChildType(char const* name) {
    if (treeSettings_.empty() || name == nullptr)
        return nullptr;
    Tree* const tree = treeSettings_.begin()->first;
    auto const isWanted = [name](Simple const* type) {
        return type != nullptr && std::strcmp(NameOf(type), name) == 0;
    };
    if (auto* const rootType = tree->GetOwnType(); isWanted(rootType))
        return rootType;
    std::vector<Simple*> types;
    tree->GetChildTypes(types);
    auto const found = std::find_if(types.begin(), types.end(), isWanted);
    return found == types.end() ? nullptr : *found;
}

bool zbBrowserFreeFolderContent::GetChildTypes(Tree* tree, std::vector<Simple*>& out) {
    out.clear();
    if (FindSettings(tree) == nullptr)
        return RefuseUnknownTree(tree);
    auto const types = AddMissingTypes(*tree);
    if (auto* const rootType = tree->GetOwnType(); rootType != nullptr)
        out.push_back(rootType);
    for (auto* const type : types) {
        bool shown = false;
        if (type != nullptr && IsTypeShown(tree, type, shown) && shown)
            out.push_back(type);
    }
    return true;
}

bool zbBrowserFreeFolderContent::IsTypeGrouped(Tree* tree, Simple* type, bool& out) {
    if (tree == nullptr || type == nullptr)
        return false;
    auto const* const settings = FindTypeSettings(tree, type);
    out = settings != nullptr && settings->IsGrouped();
    return true;
}

bool zbBrowserFreeFolderContent::IsTypeShown(Tree* tree, Simple* type, bool& out) {
    if (tree == nullptr || type == nullptr)
        return false;
    out = false;
    auto const* const settings = FindSettings(tree);
    if (settings == nullptr)
        return true;
    auto const found = settings->find(type);
    out = (found != settings->end() && found->second.IsShown()) || type == tree->GetOwnType();
    return true;
}

bool zbBrowserFreeFolderContent::SetTypeGrouped(Tree* tree, Simple* type, bool grouped) {
    if (FindSettings(tree) == nullptr || type == nullptr)
        return RefuseUnknownTree(tree);
    auto* const settings = FindTypeSettings(tree, type);
    // A type that the tree does not have is not grouped, and asking for that changes nothing.
    if (settings == nullptr || settings->IsGrouped() == grouped)
        return true;
    settings->Set(TreeTypeSettings::grouped, grouped);
    DisconnectChildType(tree, type);
    if (!HasTree(tree))
        return true; // A slot has taken it out
    auto const change = BeginTreeChange(*tree);
    if (HasTree(tree))
        ConnectTree(tree, false);
    return true;
}

bool zbBrowserFreeFolderContent::SetTypeShown(Tree* tree, Simple* type, bool show) {
    if (FindSettings(tree) == nullptr || type == nullptr)
        return RefuseUnknownTree(tree);
    zbString const tell = zbString("Tree type: ") + NameOf(tree);
    if (!show && type == tree->GetOwnType())
        return Refuse(tell + " can not hide parent type: " + NameOf(tree));
    auto* const settings = FindTypeSettings(tree, type);
    if (settings == nullptr)
        return Refuse(tell + " does not have child type: " + NameOf(type));
    if (settings->IsShown() == show)
        return true;
    settings->Set(TreeTypeSettings::shown, show);
    if (show)
        ConnectChildType(tree, type);
    else
        DisconnectChildType(tree, type);
    RaiseContentChanged();
    return true;
}

bool zbBrowserFreeFolderContent::SetTreeGrouped(Tree* tree, bool grouped) {
    std::vector<Simple*> types;
    if (!GetChildTypes(tree, types))
        return false;
    bool all = true;
    for (auto* const type : types)
        all = SetTypeGrouped(tree, type, grouped) && all;
    return all;
}

zbBrowserFreeFolderContent::TypeSettings* zbBrowserFreeFolderContent::FindSettings(Tree* tree) {
    auto const found = treeSettings_.find(tree);
    return found == treeSettings_.end() ? nullptr : &found->second;
}

TreeTypeSettings* zbBrowserFreeFolderContent::FindTypeSettings(Tree* tree, Simple* type) {
    auto* settings = FindSettings(tree);
    if (settings == nullptr)
        return nullptr;
    if (!settings->contains(type))
        AddMissingTypes(*tree);
    settings = FindSettings(tree); // Asking the tree may have taken it out
    if (settings == nullptr)
        return nullptr;
    auto const found = settings->find(type);
    return found == settings->end() ? nullptr : &found->second;
}

std::vector<zbBrowserFreeFolderContent::Simple*>
zbBrowserFreeFolderContent::AddMissingTypes(Tree& tree) {
    std::vector<Simple*> types;
    tree.GetChildTypes(types);
    auto* const rootType = tree.GetOwnType();
    auto* const settings = FindSettings(&tree);
    if (settings == nullptr)
        return {}; // The host has taken the tree out meanwhile
    AddMissingType(*settings, rootType);
    for (auto* const type : types)
        AddMissingType(*settings, type);
    return types;
}

void zbBrowserFreeFolderContent::AddMissingType(TypeSettings& settings, Simple* type) const {
    if (type == nullptr)
        return;
    TreeTypeSettings fresh;
    fresh.Set(TreeTypeSettings::grouped, Folder().GetGroupLeafs());
    settings.emplace(type, fresh);
}

bool zbBrowserFreeFolderContent::Refuse(zbString message) {
    lastMessage_ = std::move(message);
    return false;
}

bool zbBrowserFreeFolderContent::RefuseUnknownTree(Tree const* tree) {
    return Refuse(zbString("Tree type: ") + NameOf(tree) +
                  " not configured in the folder: " + Folder().GetName());
}
