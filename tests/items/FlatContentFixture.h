// SPDX-License-Identifier: MIT
//! \file
//! The content without grouping of a folder, within an operation.
#pragma once

#include "ItemsTest.h"

namespace zbtest {

class FlatContentFixture : public ItemsTest {
protected:
    //! The list is there, its rows are not built.
    void Record(RecordingSource& source) {
        content.AddList(&source);
        content.DeleteAll();
        recorder.Discard();
    }

    zbbrowser::detail::CallScope scope{Lifetime()};
    zbBrowserFreeFolderContentNoGrouping& content = Flat(folder);
};

} // namespace zbtest
