// SPDX-License-Identifier: MIT
//! \file
//! Telling the views.
#include "Connect.h"

#include <zbBrowserView/host/zbIBrowserManager.h>
#include <zbBrowserView/sqlite/Changes.h>
#include <zbBrowserView/sqlite/DataCtrl.h>
#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbBrowserViewCtrl.h>

#include <algorithm>

namespace zbsqlite {

namespace {

class LongOperation {
public:
    explicit LongOperation(zbIBrowserManager* manager)
        : manager_(manager) {
        if (manager_ != nullptr)
            manager_->BeginLongOperation();
    }
    LongOperation(LongOperation const&) = delete;
    LongOperation& operator=(LongOperation const&) = delete;
    ~LongOperation() {
        if (manager_ != nullptr)
            manager_->EndLongOperation();
    }

private:
    zbIBrowserManager* manager_; // Not owned, may be null.
};

//! Views hand out the items that they were given, and take no others.
Row* AsItem(Row const* row) {
    return const_cast<Row*>(row);
}

} // namespace

//! Visits the views of one kind that show the control; a slot may delete those to come.
template <class View, class Visit>
void Changes::ForEachView(Visit visit) {
    std::vector<View*> views;
    controller_.GetViewList(views, &control_);
    for (View* const view : views) {
        std::vector<View*> present;
        controller_.GetViewList(present, &control_);
        if (std::find(present.begin(), present.end(), view) != present.end())
            visit(*view);
    }
}

bool Changes::TellAll() {
    if (pending_.empty() && news_.empty())
        return false;
    bool const hasEvents = !pending_.empty();
    if (hasEvents) {
        LongOperation const bracket(controller_.GetManager());
        while (told_ < pending_.size())
            Tell(Change(pending_[told_++]));
    }
    pending_.clear();
    told_ = 0;
    isRefreshed_ = false;
    for (Source* const source : news_)
        source->ForgetRemoved();
    news_.clear();
    return hasEvents;
}

void Changes::Tell(Change const& change) {
    Row* const row = AsItem(change.row);
    switch (change.kind) {
    case ChangeKind::RowDeleted:
        ForEachView<zbBrowserView>([&](zbBrowserView& view) { view.OnDataItemDeleted(row); });
        break;
    case ChangeKind::RowUpdated:
        RefreshViews();
        controller_.OnDataItemSimpleUpdated(row);
        break;
    case ChangeKind::RowCreated:
        controller_.OnDataItemCreated(row, false);
        break;
    case ChangeKind::SourceGone:
        ForEachView<zbIBrowserView>(
            [&](zbIBrowserView& view) { detail::Disconnect(view, *change.source); });
        break;
    case ChangeKind::SourceAltered:
        break;
    case ChangeKind::SourceCreated:
        ForEachView<zbIBrowserView>(
            [&](zbIBrowserView& view) { detail::ConnectWithNames(view, *change.source); });
        break;
    }
    if (listener_)
        listener_(change);
}

//! All rows that were updated bear their mark, so once is enough.
void Changes::RefreshViews() {
    if (isRefreshed_)
        return;
    isRefreshed_ = true;
    ForEachView<zbBrowserView>([](zbBrowserView& view) { view.OnAllDirtyDataItemsRebuild(); });
}

} // namespace zbsqlite
