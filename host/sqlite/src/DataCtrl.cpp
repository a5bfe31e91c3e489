// SPDX-License-Identifier: MIT
#include "Names.h"

#include <zbBrowserView/sqlite/DataCtrl.h>

#include <filesystem>
#include <utility>

namespace zbsqlite {

DataCtrl::DataCtrl(Database database)
    : database_(std::move(database))
    , name_(std::filesystem::path(database_.File()).filename().string()) {
    MakeSources(ReadSchema(database_));
    MakeReferences();
}

DataCtrl::~DataCtrl() = default;

void DataCtrl::MakeSources(std::vector<Table> tables) {
    std::vector<std::string> names = detail::UniqueNames(tables);
    sources_.reserve(tables.size());
    for (std::size_t i = 0; i < tables.size(); ++i)
        AddSource(std::move(tables[i]), std::move(names[i]));
}

Source& DataCtrl::AddSource(Table table, std::string name) {
    sources_.push_back(
        std::make_unique<Source>(*this, std::move(table), std::move(name), sourcesMade_++));
    Source& source = *sources_.back();
    byName_.emplace(detail::FoldName(source.GetName()), &source);
    if (keepsKeys_)
        source.KeepKeys();
    return source;
}

void DataCtrl::MakeReferences() {
    std::unordered_map<std::string, Source*> byTable;
    auto const key = [](Table const& table, std::string const& name) {
        // No name holds a zero byte.
        return detail::FoldName(table.schema) + '\0' + detail::FoldName(name);
    };
    references_.clear();
    for (auto const& source : sources_)
        byTable.emplace(key(source->Declaration(), source->Declaration().name), source.get());
    for (auto const& child : sources_) {
        Table const& table = child->Declaration();
        for (ForeignKey const& foreignKey : table.foreignKeys) {
            auto const parent = byTable.find(key(table, foreignKey.parentTable));
            if (parent != byTable.end())
                references_.emplace_back(*this, *parent->second, *child, foreignKey);
        }
    }
}

Source* DataCtrl::FindDataSourceSimple(char const* name) {
    if (name == nullptr)
        return nullptr;
    auto const found = byName_.find(detail::FoldName(name));
    return found == byName_.end() ? nullptr : found->second;
}

zbIBrowserDataSourceHierarchical* DataCtrl::FindDataSourceHierarchical(char const* /*name*/) {
    return nullptr;
}

zbIBrowserDataOperation* DataCtrl::FindDataOperation(char const* /*name*/) {
    return nullptr;
}

zbIBrowserDataCollectorType* DataCtrl::FindCollectorType(char const* /*name*/) {
    return nullptr;
}

Source* DataCtrl::AsOwn(zbIBrowserDataSource* source) const {
    auto* const own = dynamic_cast<Source*>(source);
    return own != nullptr && &own->Control() == this ? own : nullptr;
}

bool DataCtrl::CompareDataSources(zbIBrowserDataSource* a, zbIBrowserDataSource* b, bool& less) {
    Source const* const sourceA = AsOwn(a);
    Source const* const sourceB = AsOwn(b);
    if (sourceA == nullptr || sourceB == nullptr || sourceA == sourceB)
        return false;
    less = sourceA->Index() < sourceB->Index();
    return true;
}

void DataCtrl::GetDirtyItems(std::set<zbIBrowserDataSource*>& sources,
                             std::set<zbIBrowserDataItem*>& out) {
    for (zbIBrowserDataSource* const source : sources) {
        if (Source* const own = AsOwn(source))
            own->AddDirtyRows(out);
    }
}

void DataCtrl::GetDeletedItems(std::set<zbIBrowserDataSource*>& sources,
                               std::set<zbIBrowserDataItem*>& out) {
    for (zbIBrowserDataSource* const source : sources) {
        if (Source* const own = AsOwn(source))
            own->AddRemovedRows(out);
    }
}

void DataCtrl::GetItems(std::vector<zbIBrowserDataItem*>& out, zbIBrowserDataReference* reference,
                        zbIBrowserDataSource* source, zbIBrowserDataItem* parent, bool /*flag*/) {
    Source* const own = AsOwn(source);
    if (own == nullptr || reference != nullptr || parent != nullptr)
        return;
    std::vector<zbIBrowserDataItemSimple*> items;
    own->GetDataItems(items);
    out.insert(out.end(), items.begin(), items.end());
}

void DataCtrl::GetChangedLinks(
    std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& /*removed*/,
    std::vector<std::pair<zbIBrowserDataItem*, zbIBrowserDataItem*>>& /*added*/,
    zbIBrowserDataReference* /*reference*/, zbIBrowserDataSource* /*parentSource*/,
    zbIBrowserDataSource* /*childSource*/, bool /*flag*/) {
}

void DataCtrl::ReportProgress(Source const& source, std::uint64_t rows) const {
    if (progress_)
        progress_(source, rows);
}

} // namespace zbsqlite
