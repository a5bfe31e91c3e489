// SPDX-License-Identifier: MIT
#include "Names.h"
#include "Quote.h"
#include "Statement.h"

#include <zbBrowserView/sqlite/Error.h>
#include <zbBrowserView/sqlite/Schema.h>

#include <algorithm>
#include <map>
#include <utility>

namespace zbsqlite {

namespace {

using detail::FoldName;
using detail::Statement;

//! What the list of tables says beyond their names.
struct ListEntry {
    std::string type;
    bool hasRowid = true;
    bool isStrict = false;
};

using TableList = std::map<std::pair<std::string, std::string>, ListEntry>;

TableList ReadTableList(Database const& database) {
    TableList list;
    Statement query(database, "SELECT schema, name, type, wr, strict FROM pragma_table_list");
    while (query.Step())
        list[{query.Text(0), query.Text(1)}] = {query.Text(2), query.Integer(3) == 0,
                                                query.Integer(4) != 0};
    return list;
}

std::vector<std::string> ReadSchemaNames(Database const& database) {
    std::vector<std::string> names;
    Statement query(database, "SELECT name FROM pragma_database_list ORDER BY seq");
    while (query.Step()) {
        // Nothing temporary is ever made on this connection.
        if (std::string name = query.Text(0); name != "temp")
            names.push_back(std::move(name));
    }
    return names;
}

ColumnKind KindOfColumn(std::int64_t hidden) {
    switch (hidden) {
    case 0:
        return ColumnKind::Plain;
    case 2:
        return ColumnKind::GeneratedVirtual;
    case 3:
        return ColumnKind::GeneratedStored;
    default:
        return ColumnKind::Hidden;
    }
}

TableKind KindOfTable(std::string const& name, ListEntry const& entry) {
    if (entry.type == "view")
        return TableKind::View;
    if (entry.type == "virtual")
        return TableKind::Virtual;
    if (entry.type == "shadow")
        return TableKind::Shadow;
    return IsSameName(std::string_view(name).substr(0, 7), "sqlite_") ? TableKind::System
                                                                      : TableKind::Table;
}

std::vector<Column> ReadColumns(Database const& database, Table const& table) {
    std::vector<Column> columns;
    Statement query(database,
                    "SELECT name, type, \"notnull\", dflt_value IS NOT NULL, dflt_value, pk, "
                    "hidden FROM pragma_table_xinfo(?1, ?2) ORDER BY cid");
    query.Bind(1, table.name).Bind(2, table.schema);
    while (query.Step()) {
        Column column;
        column.name = query.Text(0);
        column.declaredType = query.Text(1);
        column.affinity = AffinityOf(column.declaredType);
        column.isNotNull = query.Integer(2) != 0;
        column.hasDefault = query.Integer(3) != 0;
        column.defaultValue = query.Text(4);
        column.primaryKeyPosition = static_cast<int>(query.Integer(5));
        column.kind = KindOfColumn(query.Integer(6));
        columns.push_back(std::move(column));
    }
    return columns;
}

std::vector<ForeignKey> ReadForeignKeys(Database const& database, Table const& table) {
    // SQLite numbers the keys of a table from the last declared to the first.
    std::vector<ForeignKey> keys;
    Statement query(database,
                    "SELECT id, \"table\", \"from\", \"to\", on_update, on_delete, \"match\" "
                    "FROM pragma_foreign_key_list(?1, ?2) ORDER BY id DESC, seq");
    query.Bind(1, table.name).Bind(2, table.schema);
    std::int64_t last = -1;
    while (query.Step()) {
        if (query.Integer(0) != last) {
            last = query.Integer(0);
            keys.push_back({{}, query.Text(1), {}, query.Text(4), query.Text(5), query.Text(6)});
        }
        keys.back().columns.push_back(query.Text(2));
        keys.back().parentColumns.push_back(query.Text(3));
    }
    return keys;
}

//! The one column of a primary key is the rowid if it is declared as INTEGER, but for some odd
//! cases in which, as for any other key, there is an index of it.
int ReadRowidColumn(Database const& database, Table const& table) {
    std::vector<std::size_t> const key = table.PrimaryKey();
    if (!table.hasRowid || key.size() != 1 ||
        !IsSameName(table.columns[key.front()].declaredType, "INTEGER"))
        return -1;
    Statement query(database, "SELECT 1 FROM pragma_index_list(?1, ?2) WHERE origin = 'pk'");
    query.Bind(1, table.name).Bind(2, table.schema);
    return query.Step() ? -1 : static_cast<int>(key.front());
}

void ReadTable(Database const& database, Table& table) {
    try {
        table.columns = ReadColumns(database, table);
        table.rowidColumn = ReadRowidColumn(database, table);
        table.foreignKeys = ReadForeignKeys(database, table);
        if (table.columns.empty()) // Why there are none, only a query tells.
            Statement(database, "SELECT * FROM " + detail::QuoteName(table.schema) + "." +
                                    detail::QuoteName(table.name));
    } catch (Error const& error) {
        if (error.IsInterrupted())
            throw;
        table.problem = error.What();
    }
}

std::vector<Table> ReadTables(Database const& database, std::string const& schema,
                              TableList const& list) {
    std::vector<Table> tables;
    Statement query(database, "SELECT name FROM " + detail::QuoteName(schema) +
                                  ".sqlite_schema WHERE type IN ('table', 'view') ORDER BY rowid");
    while (query.Step()) {
        Table table;
        table.schema = schema;
        table.name = query.Text(0);
        auto const found = list.find({schema, table.name});
        ListEntry const entry = found == list.end() ? ListEntry() : found->second;
        table.kind = KindOfTable(table.name, entry);
        table.hasRowid = table.kind != TableKind::View && entry.hasRowid;
        table.isStrict = entry.isStrict;
        tables.push_back(std::move(table));
    }
    for (Table& table : tables)
        ReadTable(database, table);
    return tables;
}

//! Fills in what a declaration such as "REFERENCES parent" leaves open.
void ResolveParentColumns(std::vector<Table>& tables) {
    std::map<std::pair<std::string, std::string>, Table const*> byName;
    for (Table const& table : tables)
        byName[{table.schema, FoldName(table.name)}] = &table;
    for (Table& table : tables) {
        for (ForeignKey& key : table.foreignKeys) {
            auto const parent = byName.find({table.schema, FoldName(key.parentTable)});
            if (parent == byName.end() || !key.parentColumns.front().empty())
                continue;
            std::vector<std::size_t> const primaryKey = parent->second->PrimaryKey();
            if (primaryKey.size() != key.columns.size())
                continue;
            for (std::size_t i = 0; i < primaryKey.size(); ++i)
                key.parentColumns[i] = parent->second->columns[primaryKey[i]].name;
        }
    }
}

} // namespace

std::vector<std::size_t> Table::PrimaryKey() const {
    std::vector<std::size_t> key;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].primaryKeyPosition > 0)
            key.push_back(i);
    }
    std::sort(key.begin(), key.end(), [this](std::size_t a, std::size_t b) {
        return columns[a].primaryKeyPosition < columns[b].primaryKeyPosition;
    });
    return key;
}

int Table::FindColumn(std::string_view columnName) const {
    auto const found =
        std::find_if(columns.begin(), columns.end(), [columnName](Column const& column) {
            return IsSameName(column.name, columnName);
        });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

Affinity AffinityOf(std::string_view declaredType) {
    std::string const type = FoldName(declaredType);
    auto const has = [&type](char const* word) { return type.find(word) != std::string::npos; };
    if (has("int"))
        return Affinity::Integer;
    if (has("char") || has("clob") || has("text"))
        return Affinity::Text;
    if (type.empty() || has("blob"))
        return Affinity::Blob;
    if (has("real") || has("floa") || has("doub"))
        return Affinity::Real;
    return Affinity::Numeric;
}

bool IsSameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && detail::CompareFolded(a, b) == 0;
}

std::vector<Table> ReadSchema(Database const& database) {
    TableList const list = ReadTableList(database);
    std::vector<Table> tables;
    for (std::string const& schema : ReadSchemaNames(database)) {
        for (Table& table : ReadTables(database, schema, list))
            tables.push_back(std::move(table));
    }
    ResolveParentColumns(tables);
    return tables;
}

} // namespace zbsqlite
