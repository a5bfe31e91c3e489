// SPDX-License-Identifier: MIT
//! \file
//! A view of either generation, to be sorted.
#pragma once

#include "filtersort/SortHandler.h"
#include "filtersort/zbBrowserSortHandler.h"
#include "SortTest.h"
#include "support/Generations.h"

namespace zbtest {

inline zbBrowserSortHandler& HandlerOf(zbBrowserView& view) {
    return *view.GetSortHandlerPtr();
}
inline zbbrowser::SortHandler& HandlerOf(zbbrowser::View& view) {
    return *view.GetSortHandler();
}

//! A view with the columns weight and color, which is not sorted.
template <class Generation>
class SortStateTest : public testing::Test {
protected:
    //! Without the bracket, which only old views raise.
    [[nodiscard]] Names SignalsWithoutBracket() {
        auto lines = signals.take();
        std::erase_if(lines, [](std::string const& line) {
            return line == "SortChanging true" || line == "SortChanging false";
        });
        return lines;
    }
    [[nodiscard]] bool IsAscending(zbIBrowserViewColumn& column) const {
        bool ascending = false;
        return view.GetAscendingOrder(&column, ascending) && ascending;
    }
    [[nodiscard]] bool KnowsDirectionOf(zbIBrowserViewColumn* column) const {
        bool ascending = true;
        auto const known = view.GetAscendingOrder(column, ascending);
        EXPECT_TRUE(known || ascending) << "the output changes only with true";
        return known;
    }

    RecordingHost host;
    typename Generation::View& view = Generation::Make(host, "view");
    zbIBrowserViewColumn& standard = *view.GetDefaultColumn();
    zbIBrowserViewColumn& weight = ColumnOf(view, "weight");
    zbIBrowserViewColumn& color = ColumnOf(view, "color");
    SortSignals signals{host};
};

} // namespace zbtest
