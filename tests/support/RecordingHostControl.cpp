// SPDX-License-Identifier: MIT
#include "RecordingHostControl.h"

#include <algorithm>
#include <stdexcept>

namespace zbtest {

RecordingReference::RecordingReference(RecordingHostCalls& calls, RecordingDataCtrl& control,
                                       std::string name, zbBrowserTypeId parentType,
                                       zbBrowserTypeId childType)
    : calls_(calls)
    , control_(control)
    , name_(std::move(name))
    , parentType_(parentType)
    , childType_(childType) {
}

zbIBrowserDataCtrl* RecordingReference::GetDataCtrl() {
    calls_.Asked("GetDataCtrl", name_);
    return &control_;
}

zbBrowserTypeId RecordingReference::GetParentTypeId() {
    calls_.Asked("GetParentTypeId", name_);
    return parentType_;
}

zbBrowserTypeId RecordingReference::GetChildTypeId() {
    calls_.Asked("GetChildTypeId", name_);
    return childType_;
}

bool RecordingReference::IsDirty() const {
    calls_.Called("IsDirty", name_);
    return dirty;
}

RecordingOperation::RecordingOperation(RecordingHostCalls& calls, std::string name)
    : calls_(calls)
    , name_(std::move(name)) {
}

char const* RecordingOperation::GetName() const {
    calls_.Asked("GetName", name_);
    return name_.c_str();
}

bool RecordingOperation::IsAvailableForItems(
    zbBrowserDataItemMap& /*bySource*/, std::vector<zbIBrowserDataItemSimple*>& /*simple*/,
    std::vector<zbIBrowserDataItemHierarchical*>& /*hierarchical*/,
    std::vector<zbIBrowserDataItemHierarchical*>& /*inFolders*/) {
    calls_.Called("IsAvailableForItems", name_);
    return available;
}

bool RecordingOperation::IsAvailable(zbBrowserDataItemMap& /*bySource*/,
                                     std::vector<zbIBrowserDataItemSimple*>& /*simple*/) {
    calls_.Called("IsAvailable", name_);
    return available;
}

bool RecordingOperation::IsChecked(zbBrowserDataItemMap& /*bySource*/,
                                   std::vector<zbIBrowserDataItemSimple*>& /*simple*/) {
    calls_.Called("IsChecked", name_);
    return isChecked;
}

bool RecordingOperation::Perform(zbIBrowserSelectionManager* selection) {
    calls_.Called("Perform", name_, {selection == nullptr ? "null" : "selection"});
    return result;
}

RecordingCollector::RecordingCollector(RecordingHostCalls& calls, std::string name,
                                       std::string title)
    : calls_(calls)
    , name_(std::move(name))
    , title_(std::move(title)) {
    calls.Remember(static_cast<zbIBrowserDataCollector*>(this), name_);
}

char const* RecordingCollector::GetName() const {
    calls_.Asked("GetName", name_);
    return name_.c_str();
}

char const* RecordingCollector::GetTitle() const {
    calls_.Asked("GetTitle", name_);
    return title_.c_str();
}

RecordingCollectorOperation::RecordingCollectorOperation(RecordingHostCalls& calls,
                                                         std::string name)
    : calls_(calls)
    , name_(std::move(name)) {
}

void RecordingCollectorOperation::Perform(ZBBROWSER_COLSEL_TYPE type) {
    calls_.Called("Perform", name_, {std::to_string(static_cast<int>(type))});
}

RecordingDataCtrl::RecordingDataCtrl(RecordingHostCalls& calls, std::string name)
    : calls_(calls)
    , name_(std::move(name)) {
    calls_.Remember(static_cast<zbIBrowserDataCtrl*>(this), name_);
}

RecordingDataCtrl::~RecordingDataCtrl() = default;

RecordingSource& RecordingDataCtrl::Source(std::string const& name) {
    auto& source = sources_[name];
    if (source == nullptr) {
        source = std::make_unique<RecordingSource>(calls_, this, name);
    }
    return *source;
}

RecordingTree& RecordingDataCtrl::Tree(std::string const& name) {
    return *trees_.at(name);
}

RecordingTree& RecordingDataCtrl::Tree(std::string const& name, RecordingSource& ownType) {
    auto& tree = trees_[name];
    if (tree != nullptr) {
        throw std::logic_error("tree " + name + " exists");
    }
    tree = std::make_unique<RecordingTree>(calls_, this, name, ownType);
    return *tree;
}

void RecordingDataCtrl::DeleteSource(std::string const& name) {
    sources_.erase(name);
}

bool RecordingDataCtrl::Owns(zbIBrowserDataSource const* source) const {
    auto const isIt = [source](auto const& entry) { return entry.second.get() == source; };
    return std::any_of(sources_.begin(), sources_.end(), isIt) ||
           std::any_of(trees_.begin(), trees_.end(), isIt);
}

void RecordingDataCtrl::DeleteTree(std::string const& name) {
    trees_.erase(name);
}

RecordingReference& RecordingDataCtrl::Reference(std::string const& name, RecordingSource& parent,
                                                 RecordingSource& child) {
    auto& reference = references_[name];
    reference =
        std::make_unique<RecordingReference>(calls_, *this, name, parent.typeId, child.typeId);
    return *reference;
}

RecordingOperation& RecordingDataCtrl::Operation(std::string const& name) {
    auto& operation = operations_[name];
    if (operation == nullptr) {
        operation = std::make_unique<RecordingOperation>(calls_, name);
    }
    return *operation;
}

RecordingCollectorType& RecordingDataCtrl::CollectorType(std::string const& name) {
    auto& type = collectorTypes_[name];
    if (type == nullptr) {
        type = std::make_unique<RecordingCollectorType>();
    }
    return *type;
}

void RecordingDataCtrl::Link(RecordingReference& reference, RecordingItem& parent,
                             RecordingItem& child, bool reported) {
    links_.push_back({&reference, &parent, &child});
    if (reported) {
        added_.push_back(links_.back());
    }
}

void RecordingDataCtrl::Unlink(RecordingReference& reference, RecordingItem& parent,
                               RecordingItem& child, bool reported) {
    LinkRecord const link{&reference, &parent, &child};
    std::erase(links_, link);
    if (reported) {
        removed_.push_back(link);
    }
}

char const* RecordingDataCtrl::GetName() const {
    calls_.Asked("GetName", name_);
    return name_.c_str();
}

zbIBrowserDataSourceSimple* RecordingDataCtrl::FindDataSourceSimple(char const* name) {
    calls_.Called("FindDataSourceSimple", name_, {name});
    auto const found = sources_.find(name);
    return !knowsSources || found == sources_.end() ? nullptr : found->second.get();
}

zbIBrowserDataSourceHierarchical* RecordingDataCtrl::FindDataSourceHierarchical(char const* name) {
    calls_.Called("FindDataSourceHierarchical", name_, {name});
    auto const found = trees_.find(name);
    return !knowsSources || found == trees_.end() ? nullptr : found->second.get();
}

bool RecordingDataCtrl::IsSelectionForwardingBlocked() {
    calls_.Called("IsSelectionForwardingBlocked", name_);
    return selectionForwardingBlocked;
}

bool RecordingDataCtrl::IsCollectorDisabledNew() {
    calls_.Called("IsCollectorDisabledNew", name_);
    return collectorDisabledNew;
}

bool RecordingDataCtrl::IsCollectorDisabled() {
    calls_.Called("IsCollectorDisabled", name_);
    return collectorDisabled;
}

void RecordingDataCtrl::Release(void* reserved) {
    calls_.Called("Release", name_, {reserved == nullptr ? "null" : "not null"});
}

bool RecordingDataCtrl::IsCollectorInUse() {
    calls_.Called("IsCollectorInUse", name_);
    return collectorInUse;
}

zbIBrowserDataOperation* RecordingDataCtrl::FindDataOperation(char const* name) {
    calls_.Called("FindDataOperation", name_, {name});
    auto const found = operations_.find(name);
    return found == operations_.end() ? nullptr : found->second.get();
}

bool RecordingDataCtrl::CompareDataSources(zbIBrowserDataSource* a, zbIBrowserDataSource* b,
                                           bool& less) {
    calls_.Called("CompareDataSources", name_, {calls_.NameOf(a), calls_.NameOf(b)});
    auto const first = std::find(sourceOrder.begin(), sourceOrder.end(), a);
    auto const second = std::find(sourceOrder.begin(), sourceOrder.end(), b);
    if (first == sourceOrder.end() || second == sourceOrder.end() || first == second) {
        return false;
    }
    less = first < second;
    return true;
}

void RecordingDataCtrl::SetCurrentDataItem(zbIBrowserDataItem* item) {
    calls_.Called("SetCurrentDataItem", name_, {calls_.NameOf(item)});
    current = item;
}

zbIBrowserDataCollectorType* RecordingDataCtrl::FindCollectorType(char const* name) {
    calls_.Called("FindCollectorType", name_, {name});
    auto const found = collectorTypes_.find(name);
    return found == collectorTypes_.end() ? nullptr : found->second.get();
}

void RecordingDataCtrl::GetDirtyItems(std::set<zbIBrowserDataSource*>& /*sources*/,
                                      std::set<zbIBrowserDataItem*>& out) {
    calls_.Called("GetDirtyItems", name_);
    out.insert(dirtyItems.begin(), dirtyItems.end());
}

void RecordingDataCtrl::GetDeletedItems(std::set<zbIBrowserDataSource*>& /*sources*/,
                                        std::set<zbIBrowserDataItem*>& out) {
    calls_.Called("GetDeletedItems", name_);
    out.insert(deletedItems.begin(), deletedItems.end());
}

void RecordingDataCtrl::GetItems(std::vector<zbIBrowserDataItem*>& out,
                                 zbIBrowserDataReference* reference, zbIBrowserDataSource* source,
                                 zbIBrowserDataItem* parent, bool flag) {
    calls_.Called("GetItems", name_,
                  {calls_.NameOf(source), calls_.NameOf(parent), flag ? "true" : "false"});
    if (parent != nullptr) {
        for (LinkRecord const& link : links_) {
            if (link.reference == reference && link.parent == parent &&
                link.child->source == source) {
                out.push_back(link.child);
            }
        }
        return;
    }
    auto const* const flat = dynamic_cast<RecordingSource*>(source);
    if (flat == nullptr) {
        return;
    }
    std::copy_if(flat->All().begin(), flat->All().end(), std::back_inserter(out),
                 [&](RecordingItem* item) {
                     return std::none_of(links_.begin(), links_.end(), [&](LinkRecord const& link) {
                         return link.reference == reference && link.child == item;
                     });
                 });
}

void RecordingDataCtrl::GetChangedLinks(Pairs& removed, Pairs& added,
                                        zbIBrowserDataReference* reference,
                                        zbIBrowserDataSource* parentSource,
                                        zbIBrowserDataSource* childSource, bool flag) {
    calls_.Called(
        "GetChangedLinks", name_,
        {calls_.NameOf(parentSource), calls_.NameOf(childSource), flag ? "true" : "false"});
    MoveChanges(removed_, reference, removed);
    MoveChanges(added_, reference, added);
}

void RecordingDataCtrl::MoveChanges(Links& from, zbIBrowserDataReference* reference, Pairs& out) {
    for (LinkRecord const& link : from) {
        if (link.reference == reference) {
            out.emplace_back(link.parent, link.child);
        }
    }
    std::erase_if(from, [&](LinkRecord const& link) { return link.reference == reference; });
}

} // namespace zbtest
