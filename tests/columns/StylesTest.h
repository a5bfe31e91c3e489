// SPDX-License-Identifier: MIT
//! \file
//! What the tests of the styles of a column share.
#pragma once

#include "ColumnsTest.h"
#include "view/NewViewContext.h"
#include "view/OldViewContext.h"

#include <type_traits>

namespace zbtest {

//! A view with the scripted column "weight".
template <class Generation>
class StylesTest : public ColumnsTest<Generation> {
protected:
    using Context =
        std::conditional_t<std::is_same_v<Generation, OldGeneration>,
                           zbbrowser::detail::OldViewContext, zbbrowser::detail::NewViewContext>;

    zbIBrowserViewColumn& column = this->Column("weight");

    zbIBrowserStyleManager& Manager() { return *column.GetStyleManager(); }
    zbIBrowserStyleManager& DefaultManager() { return *this->Default().GetStyleManager(); }
    //! The current style, as a row shows it.
    zbIBrowserStyle* Current() {
        ItemDouble row(&this->view);
        auto* const style = column.GetViewItemStyle(&row);
        this->signals.Discard();
        return style;
    }
};

} // namespace zbtest
