// SPDX-License-Identifier: MIT
//! \file
//! How the rows of a source differ from those in the file.
#pragma once

#include "RowStore.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace zbsqlite {

//! Found out first, for all sources in one state of the file, and only then made true. New records
//! stand in the arena of the source already.
struct Source::Difference {
    struct Update {
        Row* row;
        std::byte const* record;
    };

    std::unique_ptr<RowStore> loaded; // All rows, if there were none; the rest is empty then.
    bool hasNewOrder = false;
    std::vector<Row*> order; // The rows as the file has them, null for each that is created.
    std::vector<Row*> deleted;
    std::vector<Update> updated;
    std::vector<std::byte const*> created; // In the order of the nulls.

    //! How many changes there are to tell of.
    std::size_t ChangeCount() const {
        return deleted.size() + updated.size() + (loaded ? loaded->Count() : created.size());
    }

    bool IsEmpty() const { return !loaded && !hasNewOrder && updated.empty(); }
};

} // namespace zbsqlite
