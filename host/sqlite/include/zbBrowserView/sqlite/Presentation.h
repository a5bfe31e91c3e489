// SPDX-License-Identifier: MIT
//! \file
//! Columns of a database as columns of a view.
#pragma once

#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class zbIBrowserView;
class zbIBrowserViewColumn;
class zbIBrowserViewProperty;

namespace zbsqlite {

class Property;
class Source;

//! Makes columns of a view for columns of tables and views of a database:
//!
//!     zbsqlite::Presentation presentation(host.View(), {part, supplier});
//!     auto* const mass = presentation.FindColumn("mass_kg");
//!     host.View().SetAscendingOrder(mass, false);
//!
//! For each name that is asked for there is one view property, with the type of the database
//! columns, connected for each source that has a column of that name; one column in the view; and
//! in it one style with one element, which is bound to the property.
//!
//! Names are those of SQL: ASCII case aside. The view's column and property bear the name, too,
//! unless the view has one of that name; " (2)" is added then. One without a name is called
//! "(no name)". The column's title is the name without such a number.
class ZBSQLITE_API Presentation {
public:
    //! `view`, of either generation, and `sources` must outlive what is made.
    Presentation(zbIBrowserView& view, std::vector<Source*> const& sources);

    //! The names of all columns, as the first source that has one spells it. The columns of each
    //! source stand in its own order, as far as the sources agree on one.
    std::vector<std::string> Names() const;

    //! The view's column for the database columns of that name; made, and visible, when it is first
    //! asked for. Null: no source has such a column.
    zbIBrowserViewColumn* FindColumn(std::string_view name);

    //! Makes rows bold whose column of that name is true. False: no source has such a column.
    bool MakeRowsBoldBy(std::string_view name);

    //! Names the rows of the sources that have such a column after it; false if none has. The other
    //! sources keep the names of their rows.
    bool NameRowsBy(std::string_view name);

private:
    struct Entry {
        std::string name;
        std::vector<Property*> columns;         // Of the database. Not owned.
        zbIBrowserViewColumn* column = nullptr; // Not owned; null until it is made.
    };

    using Entries = std::list<Entry>;

    void Add(Source& source);
    Entries::iterator FirstShared(Source const& source);
    Entry* Find(std::string_view name);
    zbIBrowserViewColumn* MakeColumn(Entry const& entry);
    zbIBrowserViewProperty* MakeProperty(Entry const& entry);
    void Connect(zbIBrowserViewProperty* property, Entry const& entry);

    zbIBrowserView& view_;
    Entries entries_;
    std::unordered_map<std::string, Entries::iterator> byName_; // By folded name.
};

} // namespace zbsqlite
