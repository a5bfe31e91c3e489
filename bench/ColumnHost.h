// SPDX-License-Identifier: MIT
//! \file
//! A view with columns.
#pragma once

#include "LightHost.h"

#include <zbBrowserView/zbIBrowserViewColumn.h>

namespace zbbench {

//! Shows its source in four columns: the default one with icon and name, one of numbers, one of
//! texts and one more of numbers. Every second row is bold and italic.
struct ColumnView : LightView {
    explicit ColumnView(Source& shown);

    //! Sorts by a column as if for the first time, and reads all rows.
    void Sort(zbIBrowserViewColumn& column);
    //! The rows in their order.
    void Read();

    zbIBrowserViewColumn& name;
    zbIBrowserViewColumn& number;
    std::vector<zbIBrowserViewItem*> rows;

private:
    zbIBrowserViewColumn& AddColumn(char const* title, ZBBROWSER_DATA_TYPE type,
                                    zbIBrowserDataProperty& property);
    void ConnectDefault(char const* viewProperty, zbIBrowserDataProperty& property);
};

//! With a source of its own, and its list made.
struct ColumnHost : HostOf<ColumnView> {
    explicit ColumnHost(std::size_t count)
        : HostOf(count) {
        Connect();
    }
};

} // namespace zbbench
