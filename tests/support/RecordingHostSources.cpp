// SPDX-License-Identifier: MIT
#include "RecordingHostControl.h"
#include "RecordingHostItems.h"

#include <algorithm>
#include <stdexcept>

namespace zbtest {

namespace {

template <class T>
void EraseFirst(std::vector<T*>& from, T const* element) {
    auto const found = std::find(from.begin(), from.end(), element);
    if (found != from.end()) {
        from.erase(found);
    }
}

} // namespace

RecordingSource::RecordingSource(RecordingHostCalls& calls, RecordingDataCtrl* itsControl,
                                 std::string const& name)
    : RecordingSourceBase(calls, itsControl, name)
    , caption(name)
    , typeName(name) {
    calls.Remember(static_cast<zbIBrowserDataSource*>(this), name);
}

RecordingSource::~RecordingSource() = default;

RecordingSource& RecordingSource::Items(std::initializer_list<char const*> names) {
    for (char const* const name : names) {
        Add(name);
    }
    return *this;
}

RecordingItem& RecordingSource::Add(std::string name) {
    return Insert(listed_.size(), std::move(name));
}

RecordingItem& RecordingSource::Insert(std::size_t position, std::string name) {
    auto item = std::make_unique<RecordingItem>(calls_, this, std::move(name), nextId_++);
    RecordingItem& made = *item;
    owned_.emplace(&made, std::move(item));
    listed_.insert(listed_.begin() + static_cast<std::ptrdiff_t>(position), &made);
    ++timesListed_[&made];
    return made;
}

RecordingItem* RecordingSource::Find(std::string_view name) const {
    auto const found = std::find_if(listed_.begin(), listed_.end(),
                                    [&](RecordingItem* item) { return item->Name() == name; });
    return found == listed_.end() ? nullptr : *found;
}

RecordingItem& RecordingSource::operator[](std::string_view name) const {
    RecordingItem* const found = Find(name);
    if (found == nullptr) {
        throw std::out_of_range("no item " + std::string(name) + " in " + name_);
    }
    return *found;
}

RecordingItem& RecordingSource::Unlist(std::string_view name) {
    RecordingItem& item = (*this)[name];
    Unlist(item);
    return item;
}

void RecordingSource::Unlist(RecordingItem& item) {
    std::erase(listed_, &item);
    timesListed_.erase(&item);
}

void RecordingSource::Relist(RecordingItem& item) {
    listed_.push_back(&item);
    ++timesListed_[&item];
}

void RecordingSource::Delete(RecordingItem& item) {
    Unlist(item);
    owned_.erase(&item);
}

void RecordingSource::DeleteAll() {
    listed_.clear();
    timesListed_.clear();
    owned_.clear();
}

void RecordingSource::Reorder(std::initializer_list<char const*> names) {
    std::vector<RecordingItem*> order;
    for (char const* const name : names) {
        order.push_back(&(*this)[name]);
        EraseFirst(listed_, order.back());
    }
    order.insert(order.end(), listed_.begin(), listed_.end());
    listed_ = std::move(order);
}

char const* RecordingSource::GetListCaption() const {
    calls_.Asked("GetListCaption", name_);
    return caption.c_str();
}

char const* RecordingSource::GetTypeName() const {
    calls_.Asked("GetTypeName", name_);
    return typeName.c_str();
}

void RecordingSource::OnConnected() {
    calls_.Called("OnConnected", name_);
    ++connections;
}

void RecordingSource::OnDisconnected() {
    calls_.Called("OnDisconnected", name_);
    --connections;
}

void RecordingSource::GetFilterGroups(std::vector<zbIBrowserDataSourceSimple*>& out) {
    calls_.Called("GetFilterGroups", name_);
    out.insert(out.end(), filterGroups.begin(), filterGroups.end());
}

bool RecordingSource::IsOfType(zbIBrowserDataSourceSimple* source) {
    calls_.Called("IsOfType", name_, {calls_.NameOf(static_cast<zbIBrowserDataSource*>(source))});
    return source == this || baseTypes.contains(source);
}

void RecordingSource::ClearDirty(bool value) {
    calls_.Called("ClearDirty", name_, {value ? "true" : "false"});
    dirty = value;
}

bool RecordingSource::GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) {
    calls_.Called("GetDataItems", name_);
    if (!out.empty()) {
        throw std::logic_error("GetDataItems of " + name_ + ": out arrives with items in it");
    }
    out.insert(out.end(), listed_.begin(), listed_.end());
    return !failing;
}

bool RecordingSource::ContainsDataItem(zbIBrowserDataItemSimple* item) {
    calls_.Called("ContainsDataItem", name_,
                  {calls_.NameOf(static_cast<zbIBrowserDataItem*>(item))});
    return timesListed_.contains(item);
}

bool RecordingSource::AcceptsEmptySelection() {
    calls_.Called("AcceptsEmptySelection", name_);
    return acceptsEmptySelection;
}

zbIBrowserDataSource* RecordingSource::GetParentSource() const {
    calls_.Asked("GetParentSource", name_);
    return parentSource;
}

RecordingTreeItem::RecordingTreeItem(RecordingHostCalls& calls, RecordingTree& tree,
                                     RecordingItem& face, RecordingTreeItem* above)
    : parent(above)
    , flat(&face)
    , calls_(calls)
    , tree_(tree) {
    calls_.Remember(static_cast<zbIBrowserDataItem*>(this), face.Name());
}

zbIBrowserDataSourceHierarchical* RecordingTreeItem::GetDataSource() const {
    calls_.Asked("GetDataSource", flat->Name());
    return &tree_;
}

zbIBrowserDataItemSimple* RecordingTreeItem::GetDataItemSimple() const {
    calls_.Asked("GetDataItemSimple", flat->Name());
    return flat;
}

bool RecordingTreeItem::IsHiddenFromTree() const {
    calls_.Called("IsHiddenFromTree", flat->Name());
    return hidden;
}

bool RecordingTreeItem::IsDirty() const {
    calls_.Called("IsDirty", flat->Name());
    return dirty;
}

zbIBrowserDataItemHierarchical* RecordingTreeItem::GetParent() const {
    calls_.Asked("GetParent", flat->Name());
    return tellsParent ? parent : nullptr;
}

RecordingTree::RecordingTree(RecordingHostCalls& calls, RecordingDataCtrl* itsControl,
                             std::string const& name, RecordingSource& ownType)
    : RecordingSourceBase(calls, itsControl, name)
    , childTypes{&ownType}
    , ownType_(ownType) {
    calls.Remember(static_cast<zbIBrowserDataSource*>(this), name);
}

RecordingTree::~RecordingTree() = default;

RecordingTreeItem& RecordingTree::Add(RecordingSource& type, std::string_view path) {
    auto const slash = path.rfind('/');
    RecordingTreeItem* const parent =
        slash == std::string_view::npos ? nullptr : &(*this)[path.substr(0, slash)];
    auto const name = slash == std::string_view::npos ? path : path.substr(slash + 1);
    return Add(type.Add(std::string(name)), parent);
}

RecordingTreeItem& RecordingTree::Add(RecordingItem& flat, RecordingTreeItem* parent) {
    auto item = std::make_unique<RecordingTreeItem>(calls_, *this, flat, parent);
    RecordingTreeItem& made = *item;
    owned_.emplace(&made, std::move(item));
    ChildrenOf(parent).push_back(&made);
    return made;
}

RecordingTreeItem* RecordingTree::Find(std::string_view path) const {
    std::vector<RecordingTreeItem*> const* level = &top_;
    for (;;) {
        auto const slash = path.find('/');
        auto const name = path.substr(0, slash);
        auto const found = std::find_if(level->begin(), level->end(), [&](RecordingTreeItem* item) {
            return item->flat->Name() == name;
        });
        if (found == level->end()) {
            return nullptr;
        }
        if (slash == std::string_view::npos) {
            return *found;
        }
        level = &(*found)->children;
        path.remove_prefix(slash + 1);
    }
}

RecordingTreeItem& RecordingTree::operator[](std::string_view path) const {
    RecordingTreeItem* const found = Find(path);
    if (found == nullptr) {
        throw std::out_of_range("no item " + std::string(path) + " in " + name_);
    }
    return *found;
}

void RecordingTree::Unlist(RecordingTreeItem& item) {
    EraseFirst(ChildrenOf(item.parent), &item);
    item.parent = nullptr;
}

void RecordingTree::Move(RecordingTreeItem& item, RecordingTreeItem* newParent) {
    EraseFirst(ChildrenOf(item.parent), &item);
    item.parent = newParent;
    ChildrenOf(newParent).push_back(&item);
}

void RecordingTree::Delete(RecordingTreeItem& item) {
    Unlist(item);
    std::vector<RecordingTreeItem*> open{&item};
    while (!open.empty()) {
        RecordingTreeItem* const next = open.back();
        open.pop_back();
        open.insert(open.end(), next->children.begin(), next->children.end());
        owned_.erase(next);
    }
}

void RecordingTree::OnDisconnected() {
    calls_.Called("OnDisconnected", name_);
}

bool RecordingTree::SkipsBuildOnExpand() const {
    calls_.Called("SkipsBuildOnExpand", name_);
    return skipsBuildOnExpand;
}

bool RecordingTree::HasDirtyItems() const {
    calls_.Called("HasDirtyItems", name_);
    return hasDirtyItems;
}

zbIBrowserDataSourceSimple* RecordingTree::GetOwnType() const {
    calls_.Asked("GetOwnType", name_);
    return &ownType_;
}

void RecordingTree::GetChildTypes(std::vector<zbIBrowserDataSourceSimple*>& out) {
    calls_.Called("GetChildTypes", name_);
    out.insert(out.end(), childTypes.begin(), childTypes.end());
}

zbIBrowserDataSourceSimple* RecordingTree::FindDataSourceSimple(char const* name) {
    calls_.Called("FindDataSourceSimple", name_, {name});
    auto const found =
        std::find_if(childTypes.begin(), childTypes.end(), [&](RecordingSource* type) {
            return StrICmp(type->Name().c_str(), name) == 0;
        });
    if (found != childTypes.end()) {
        return *found;
    }
    return StrICmp(ownType_.Name().c_str(), name) == 0 ? &ownType_ : nullptr;
}

void RecordingTree::GetChildren(zbIBrowserDataItemHierarchical* parent,
                                std::vector<zbIBrowserDataItemHierarchical*>& out,
                                zbIBrowserDataSourceSimple* type, bool recursive) {
    calls_.Called("GetChildren", name_,
                  {calls_.NameOf(static_cast<zbIBrowserDataItem*>(parent)),
                   calls_.NameOf(static_cast<zbIBrowserDataSource*>(type)),
                   recursive ? "true" : "false"});
    std::vector<RecordingTreeItem*> const& level =
        ChildrenOf(dynamic_cast<RecordingTreeItem*>(parent));
    std::vector<RecordingTreeItem*> open(level.rbegin(), level.rend());
    while (!open.empty()) {
        RecordingTreeItem* const next = open.back();
        open.pop_back();
        if (type == nullptr || next->flat->source == type) {
            out.push_back(next);
        }
        if (recursive) {
            open.insert(open.end(), next->children.rbegin(), next->children.rend());
        }
    }
}

void RecordingTree::BeginChange() {
    calls_.Called("BeginChange", name_);
    ++changeDepth;
}

void RecordingTree::EndChange() {
    calls_.Called("EndChange", name_);
    --changeDepth;
}

void RecordingTree::OnViewLost() {
    calls_.Called("OnViewLost", name_);
}

std::vector<RecordingTreeItem*>& RecordingTree::ChildrenOf(RecordingTreeItem* parent) {
    return parent == nullptr ? top_ : parent->children;
}

} // namespace zbtest
