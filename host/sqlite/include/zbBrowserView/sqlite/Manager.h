// SPDX-License-Identifier: MIT
//! \file
//! A manager that answers for a host without a user interface of its own.
#pragma once

#include <zbBrowserView/host/neutral/zbNeutralManager.h>
#include <zbBrowserView/sqlite/zbSqliteExport.h>

namespace zbsqlite {

//! The least that a host needs.
class ZBSQLITE_API Manager final : public zbNeutralManager {
public:
    // The controller keeps these for its manager; this one lets everybody use them.
    using zbBrowserManager::CreateFreeFolder;
    using zbBrowserManager::CreateView;
    using zbBrowserManager::DeleteFreeFolder;
    using zbBrowserManager::DeleteView;

    //! Whether a rebuild is going on, which is when repainting is not worth the while.
    bool IsInLongOperation() const { return longOperations_ > 0; }

    void BeginLongOperation() override { ++longOperations_; }
    void EndLongOperation() override { --longOperations_; }

private:
    int longOperations_ = 0;
};

} // namespace zbsqlite
