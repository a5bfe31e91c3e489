// SPDX-License-Identifier: MIT
//! \file
//! One declared foreign key.
#pragma once

#include <zbBrowserView/host/zbIBrowserDataReference.h>
#include <zbBrowserView/sqlite/Schema.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

namespace zbsqlite {

class DataCtrl;
class Source;

//! One declared foreign key between two tables that exist: the parent is the table that is referred
//! to. Lives as long as its data control.
class ZBSQLITE_API Reference final : public zbIBrowserDataReference {
public:
    //! Made by the data control. All arguments must outlive the reference.
    Reference(DataCtrl& control, Source& parent, Source& child, ForeignKey const& key)
        : control_(&control)
        , parent_(&parent)
        , child_(&child)
        , key_(&key) {}

    Source& Parent() const { return *parent_; }
    Source& Child() const { return *child_; }

    //! What the schema says about the key.
    ForeignKey const& Declaration() const { return *key_; }

    zbIBrowserDataCtrl* GetDataCtrl() override;
    zbBrowserTypeId GetParentTypeId() override;
    zbBrowserTypeId GetChildTypeId() override;

    //! Always false: links do not change under a connection for reading.
    bool IsDirty() const override { return false; }

private:
    DataCtrl* control_;     // Not owned, never null.
    Source* parent_;        // Not owned, never null.
    Source* child_;         // Not owned, never null.
    ForeignKey const* key_; // Not owned, never null.
};

} // namespace zbsqlite
