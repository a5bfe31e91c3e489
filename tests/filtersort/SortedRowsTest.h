// SPDX-License-Identifier: MIT
//! \file
//! An old view with rows and columns to sort them by.
#pragma once

#include "filtersort/CurrentSortProperty.h"
#include "filtersort/zbBrowserSortHandler.h"
#include "items/old/zbBrowserFreeFolderContentHolder.h"
#include "items/old/zbBrowserViewItemFreeFolder.h"
#include "SortTest.h"
#include "view/ViewTestSupport.h"

namespace zbtest {

//! The folder "box" shows the list part, whose items have a weight:
//!
//!     nut 5, bolt 30, pin 5, axle 7
//!
//! The column "weight" shows it, and the column "empty" has no style.
class SortedRowsTest : public testing::Test {
protected:
    using FreeFolder = zbIBrowserViewItemFreeFolder;

    SortedRowsTest() {
        part["nut"].Set("weight", 5);
        part["bolt"].Set("weight", 30);
        part["pin"].Set("weight", 5);
        part["axle"].Set("weight", 7);
        Bind("weight", part, "weight");
        EXPECT_TRUE(view.DataSourceConnect(&part));
        EXPECT_TRUE(view.CreateList(&box, &part, false));
        host.calls.ForgetCounts();
    }
    ~SortedRowsTest() override { zbbrowser::detail::SetCurrentSortProperty(nullptr); }

    FreeFolder& NewFolder(FreeFolder& parent, char const* name) {
        EXPECT_TRUE(view.CreateFreeFolder(&parent, name));
        return *parent.FindChildFreeFolder(name);
    }

    //! The view property, made if need be.
    zbIBrowserViewProperty& Property(char const* name) {
        view.CreateViewProperty(name);
        return *view.FindViewProperty(name);
    }
    //! Lets a view property read a property of a source.
    void Bind(char const* property, RecordingSource& source, char const* dataProperty) {
        EXPECT_TRUE(
            view.CreateVPConnect(&Property(property), &source, &source.Property(dataProperty)));
    }
    //! A new column with one element that shows a view property. Null: none.
    zbIBrowserViewColumn& NewColumn(char const* name, zbIBrowserViewProperty* property) {
        auto& column = ColumnOf(view, name);
        EXPECT_TRUE(column.CreateStyle("cell"));
        column.FindStyle("cell")->CreateElement("text", "")->SetViewProperty(property);
        return column;
    }

    void SortBy(zbIBrowserViewColumn& column, bool ascending = true) {
        EXPECT_TRUE(view.SetAscendingOrder(&column, ascending));
    }
    Names Rows() const { return ChildrenOf(view, box, &host.calls); }
    //! The rows as they are stored.
    [[nodiscard]] Names StoredRows() {
        std::vector<zbIBrowserViewItem*> rows;
        view.FindFreeFolder(&box)->GetAllViewItems(rows, false);
        Names names;
        names.reserve(rows.size());
        for (auto const* const row : rows)
            names.push_back(NameOf(row, &host.calls));
        return names;
    }
    //! How often the host has compared two rows since this was last asked.
    std::size_t Comparisons() {
        std::size_t count = 0;
        for (auto const* const operation : {"CompareByName", "CompareById", "CompareByDataProperty",
                                            "CompareBySortProperty", "CompareDataSources"})
            count += host.calls.Count(operation);
        host.calls.ForgetCounts();
        return count;
    }
    //! Adds an item and reports it.
    void Create(char const* name, int weight) {
        auto& item = part.Add(name).Set("weight", weight);
        host.Controller().OnDataItemCreated(&item, true);
    }

    RecordingHost host;
    zbBrowserView& view = host.OldView();
    FreeFolder& box = NewFolder(*view.GetRootFreeFolder(), "box");
    RecordingSource& part = host.Source("part").Items({"nut", "bolt", "pin", "axle"});
    zbIBrowserViewColumn& standard = *view.GetDefaultColumn();
    zbIBrowserViewColumn& byWeight = NewColumn("weight", &Property("weight"));
    zbIBrowserViewColumn& empty = ColumnOf(view, "empty");
};

} // namespace zbtest
