// SPDX-License-Identifier: MIT
//! \file
//! What a database says about its tables.
#pragma once

#include <zbBrowserView/sqlite/zbSqliteExport.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zbsqlite {

class Database;

enum class TableKind : std::uint8_t {
    Table,
    View,
    Virtual, //!< Answered by a module: full-text search, r-tree and the like.
    Shadow,  //!< Where a virtual table keeps its content.
    System   //!< SQLite's own, named "sqlite_...".
};

//! How SQLite converts what is stored in a column, following from its declared type. A value of
//! any type may stand in it all the same.
enum class Affinity : std::uint8_t { Text, Numeric, Integer, Real, Blob };

enum class ColumnKind : std::uint8_t {
    Plain,
    Hidden, //!< Of a virtual table; not part of its rows.
    GeneratedVirtual,
    GeneratedStored
};

struct Column {
    std::string name;
    std::string declaredType; //!< As it was written, often empty in views.
    Affinity affinity = Affinity::Blob;
    ColumnKind kind = ColumnKind::Plain;
    bool isNotNull = false;
    bool hasDefault = false;
    std::string defaultValue;   //!< An SQL expression.
    int primaryKeyPosition = 0; //!< 1-based place in the primary key, 0 outside.

    bool operator==(Column const& other) const = default;
};

//! A declared foreign key. Nothing guarantees that the rows keep to it, nor that the parent table
//! or its columns exist.
struct ForeignKey {
    std::vector<std::string> columns;
    std::string parentTable; //!< In the same schema.

    //! One for each of `columns`. Where the declaration names none, those of the parent's primary
    //! key if it has as many, else empty texts.
    std::vector<std::string> parentColumns;
    std::string onUpdate; //!< "NO ACTION", "CASCADE" ...
    std::string onDelete;
    std::string match;

    bool operator==(ForeignKey const& other) const = default;
};

struct ZBSQLITE_API Table {
    std::string schema; //!< "main", or the name under which a file was attached.
    std::string name;
    TableKind kind = TableKind::Table;
    bool hasRowid = true;
    bool isStrict = false;
    int rowidColumn = -1; //!< Index of the column that is the rowid itself; -1 if none is.
    std::vector<Column> columns;
    std::vector<ForeignKey> foreignKeys;

    //! Why the columns could not be read, for instance a module that is not there or a view of a
    //! table that has gone. Empty if nothing is wrong. The columns are those of before, if any.
    std::string problem;

    //! Indexes of the primary key's columns, in its order.
    std::vector<std::size_t> PrimaryKey() const;

    //! Index of a column, ASCII case aside; -1 if there is none.
    int FindColumn(std::string_view columnName) const;

    bool operator==(Table const& other) const = default;
};

//! Reads all tables and views: schema by schema (the file, then what was attached, in that order),
//! each in the order of their creation.
//! Failure: throws `Error`. A table that cannot be described does not fail the whole; see
//! `Table::problem`.
ZBSQLITE_API std::vector<Table> ReadSchema(Database const& database);

//! The affinity that SQLite derives from a declared type.
ZBSQLITE_API Affinity AffinityOf(std::string_view declaredType);

//! Whether two names are one to SQLite, which folds the ASCII letters only.
ZBSQLITE_API bool IsSameName(std::string_view a, std::string_view b);

} // namespace zbsqlite
