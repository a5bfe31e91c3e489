// SPDX-License-Identifier: MIT
//! \file
//! What the tests of columns and styles share.
#pragma once

#include "support/Generations.h"
#include "support/RecordingHost.h"
#include "support/RowDoubles.h"
#include "support/SignalRecorder.h"

#include <zbBrowserView/zbIBrowserStyle.h>
#include <zbBrowserView/zbIBrowserStyleElement.h>
#include <zbBrowserView/zbIBrowserStyleManager.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>
#include <zbBrowserView/zbIBrowserViewProperty.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zbtest {

using Names = std::vector<std::string>;

template <class T>
[[nodiscard]] Names NamesOf(std::vector<T*> const& objects) {
    Names names;
    names.reserve(objects.size());
    for (auto const* const object : objects) {
        names.emplace_back(object == nullptr ? "null" : object->GetName());
    }
    return names;
}

[[nodiscard]] inline Names ColumnNames(zbIBrowserView const& view) {
    std::vector<zbIBrowserViewColumn*> columns;
    EXPECT_TRUE(view.GetColumns(columns));
    return NamesOf(columns);
}

[[nodiscard]] inline Names StyleNames(zbIBrowserViewColumn const& column) {
    std::vector<zbIBrowserStyle*> styles;
    EXPECT_TRUE(column.GetStyles(styles));
    return NamesOf(styles);
}

[[nodiscard]] inline Names ElementNames(zbIBrowserStyle const& style) {
    std::vector<zbIBrowserStyleElement*> elements;
    EXPECT_TRUE(style.GetElements(elements));
    return NamesOf(elements);
}

//! Makes a style that is pending.
inline zbIBrowserStyle& MakeStyle(zbIBrowserViewColumn& column, char const* name) {
    EXPECT_TRUE(column.CreateStyle(name));
    return *column.FindStyle(name);
}

//! Makes a style as the host has it after it has taken it over.
inline zbIBrowserStyle& MakeKnownStyle(zbIBrowserViewColumn& column, char const* name) {
    auto& style = MakeStyle(column, name);
    style.SetPending(false);
    return style;
}

//! A host with one view of a generation and a recorder of all signals.
template <class Generation>
class ColumnsTest : public testing::Test {
protected:
    using View = typename Generation::View;
    using Signals = zbBrowserSignalManager;

    RecordingHost host;
    View& view = Generation::Make(host, "view");
    SignalRecorder signals{host};

    [[nodiscard]] zbIBrowserViewColumn& Default() const { return *view.GetDefaultColumn(); }

    //! Makes a column; the signals are forgotten.
    zbIBrowserViewColumn& Column(char const* name) { return Column(view, name); }
    zbIBrowserViewColumn& Column(View& itsView, char const* name) {
        EXPECT_TRUE(itsView.CreateTextBoxColumn(name, ""));
        signals.Discard();
        return *itsView.FindColumn(name);
    }

    View& OtherView() { return Generation::Make(host, "other"); }

    //! Makes a folder; the signals are forgotten.
    zbIBrowserViewItemFreeFolder& Folder(char const* name) { return Folder(view, name); }
    zbIBrowserViewItemFreeFolder& Folder(View& itsView, char const* name) {
        auto& root = *itsView.GetRootFreeFolder();
        EXPECT_TRUE(itsView.CreateFreeFolder(&root, name));
        signals.Discard();
        return *root.FindChildFreeFolder(name);
    }
};

} // namespace zbtest
