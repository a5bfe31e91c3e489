// SPDX-License-Identifier: MIT
#include "ChangesTestSupport.h"

#include "support/ViewItemNames.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItem.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <sqlite3.h>

namespace zbtest {

using zbsqlite::ChangeKind;

void FollowedHost::Open(std::string const& sql, zbsqlite::HostOptions const& options) {
    changes_.reset();
    recorder_.reset();
    host_.reset();
    writer_.reset();
    std::filesystem::remove(folder_ / "test.db");
    std::filesystem::path const file = folder_.Make(sql);
    writer_.emplace(file);
    host_.emplace(file, options);
    auto& manager = host_->GetManager();
    recorder_.emplace(*manager.GetSignalManager(), *manager.GetDataSignalManager());
    recorder_->Only(
        {"ViewItemCreated", "ViewItemChanged", "ViewItemDeleted", "ViewItemListDeleted"});
    Follow();
}

void FollowedHost::TearDown() {
    if (recorder_)
        recorder_->Discard();
}

void FollowedHost::Follow() {
    changes_.emplace(host_->Data(), host_->Controller());
    changes_->SetListener([this](zbsqlite::Change const& change) {
        Note(change);
        if (slot_)
            slot_(change);
    });
}

void FollowedHost::Note(zbsqlite::Change const& change) {
    auto const ofRow = [&](char const* mark) {
        std::string name = "(none)";
        change.source->GetRowName(*change.row, name);
        log_.push_back(mark + name);
    };
    switch (change.kind) {
    case ChangeKind::RowDeleted:
        return ofRow("- ");
    case ChangeKind::RowUpdated:
        return ofRow("~ ");
    case ChangeKind::RowCreated:
        return ofRow("+ ");
    case ChangeKind::SourceGone:
        log_.push_back(std::string("gone ") + change.source->GetName());
        return;
    case ChangeKind::SourceAltered:
        log_.push_back(std::string("altered ") + change.source->GetName());
        return;
    case ChangeKind::SourceCreated:
        log_.push_back(std::string("new ") + change.source->GetName());
        return;
    }
}

void FollowedHost::ShowIn(std::string const& folder, std::string const& source) {
    auto* const place = host_->CreateFolder(host_->RootFolder(), zbString(folder));
    EXPECT_TRUE(host_->CreateList(place, SourceOf(source.c_str())));
    recorder_->Discard();
}

void FollowedHost::SortBy(std::string const& source, std::string const& column) {
    zbsqlite::Presentation presentation(host_->View(), {&SourceOf(source.c_str())});
    host_->View().SetAscendingOrder(presentation.FindColumn(column), true);
    recorder_->Discard();
}

void FollowedHost::RunInside(char const* sql) {
    auto* const handle = host_->Data().GetDatabase().Handle();
    EXPECT_EQ(sqlite3_exec(handle, sql, nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(handle);
}

void FollowedHost::Forget() {
    log_.clear();
    recorder_->Discard();
}

std::vector<zbIBrowserViewItem*> FollowedHost::PlacesIn(std::string const& folder) {
    std::vector<zbIBrowserViewItem*> items;
    host_->View().GetChildren(items, host_->RootFolder()->FindChildFreeFolder(zbString(folder)));
    return items;
}

std::vector<std::string> FollowedHost::Shown(std::string const& folder) {
    std::vector<std::string> names;
    for (zbIBrowserViewItem const* const item : PlacesIn(folder))
        names.push_back(NameOf(item));
    return names;
}

zbIBrowserViewItem* FollowedHost::PlaceOf(std::string const& folder, std::string const& name) {
    for (zbIBrowserViewItem* const item : PlacesIn(folder)) {
        if (NameOf(item) == name)
            return item;
    }
    return nullptr;
}

zbIBrowserDataItemSimple* FollowedHost::RowNamed(char const* source, std::string const& name) {
    for (zbIBrowserDataItemSimple* const row : ItemsOf(SourceOf(source))) {
        if (NameOf(row) == name)
            return row;
    }
    return nullptr;
}

std::string FollowedHost::Cell(zbIBrowserDataItemSimple* row, char const* column) {
    auto const* const ownRow = dynamic_cast<zbsqlite::Row*>(row);
    if (ownRow == nullptr)
        return "no row";
    auto const* const property = ownRow->GetSource().FindDataProperty(column);
    return property == nullptr ? "no column" : Describe(property->GetValue(*ownRow));
}

} // namespace zbtest
