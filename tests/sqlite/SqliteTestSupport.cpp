// SPDX-License-Identifier: MIT
#include "SqliteTestSupport.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace zbtest {

namespace fs = std::filesystem;

namespace {

std::string Hex(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (char const c : bytes) {
        auto const byte = static_cast<unsigned char>(c);
        text += digits[byte >> 4U];
        text += digits[byte & 15U];
    }
    return text;
}

std::string DescribeReal(double value) {
    char text[64];
    sqlite3_snprintf(sizeof text, text, "%!.17g", value);
    return std::string("real ") + text;
}

//! Independent of the code under test: straight from SQLite.
std::string DescribeColumn(sqlite3_stmt* statement, int column) {
    auto const bytes = [&](void const* data) {
        auto const size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
        return size == 0 ? std::string() : std::string(static_cast<char const*>(data), size);
    };
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        return "int " + std::to_string(sqlite3_column_int64(statement, column));
    case SQLITE_FLOAT:
        return DescribeReal(sqlite3_column_double(statement, column));
    case SQLITE_TEXT:
        return "text " + bytes(sqlite3_column_text(statement, column));
    case SQLITE_BLOB:
        return "blob " + Hex(bytes(sqlite3_column_blob(statement, column)));
    default:
        return "null";
    }
}

std::string QuoteForSql(std::string const& name) {
    char* const text = sqlite3_mprintf("\"%w\"", name.c_str());
    std::string quoted = text;
    sqlite3_free(text);
    return quoted;
}

} // namespace

TempFolder::TempFolder() {
    std::string pattern = (fs::temp_directory_path() / "zbsqlite-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("cannot make a temporary folder");
    path_ = pattern;
    // For `WithoutRoot`, who is another user of the same group.
    fs::permissions(path_, fs::perms::group_exec | fs::perms::group_read, fs::perm_options::add);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(path_, ignored);
}

fs::path TempFolder::Make(std::string_view sql) const {
    fs::path file = path_ / "test.db";
    OtherProgram(file).Run(sql);
    return file;
}

OtherProgram::OtherProgram(fs::path const& file) {
    if (sqlite3_open(file.c_str(), &database_) != SQLITE_OK)
        throw std::runtime_error("cannot open " + file.string());
    Run("PRAGMA synchronous = OFF"); // A test's database need not survive a power failure.
}

OtherProgram::~OtherProgram() {
    sqlite3_close(database_);
}

void OtherProgram::Run(std::string_view sql) {
    char* message = nullptr;
    sqlite3_exec(database_, std::string(sql).c_str(), nullptr, nullptr, &message);
    if (message != nullptr)
        ADD_FAILURE() << message << " in " << sql;
    sqlite3_free(message);
}

std::vector<std::string> OtherProgram::Query(std::string const& sql) {
    std::vector<std::string> rows;
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(database_, sql.c_str(), -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database_) << " in " << sql;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        std::string row;
        for (int column = 0; column < sqlite3_column_count(statement); ++column)
            row += (column > 0 ? "|" : "") + DescribeColumn(statement, column);
        rows.push_back(std::move(row));
    }
    sqlite3_finalize(statement);
    return rows;
}

WithoutRoot::WithoutRoot()
    : user_(geteuid()) {
    constexpr uid_t nobody = 65534;
    if (user_ == 0 && seteuid(nobody) != 0)
        return; // IsInEffect tells.
}

WithoutRoot::~WithoutRoot() {
    if (seteuid(user_) != 0)
        std::abort();
}

bool WithoutRoot::IsInEffect() const {
    return geteuid() != 0;
}

std::string Describe(zbsqlite::Value const& value) {
    switch (value.kind) {
    case zbsqlite::ValueKind::Integer:
        return "int " + std::to_string(value.integer);
    case zbsqlite::ValueKind::Real:
        return DescribeReal(value.real);
    case zbsqlite::ValueKind::Text:
        return "text " + std::string(value.bytes);
    case zbsqlite::ValueKind::Blob:
        return "blob " + Hex(value.bytes);
    case zbsqlite::ValueKind::Null:
        break;
    }
    return "null";
}

std::vector<zbIBrowserDataItemSimple*> ItemsOf(zbsqlite::Source& source) {
    std::vector<zbIBrowserDataItemSimple*> items;
    EXPECT_TRUE(source.GetDataItems(items))
        << (source.LastError() != nullptr ? source.LastError()->what() : "no error");
    return items;
}

std::vector<std::string> RowsOf(zbsqlite::Source& source) {
    std::vector<std::string> lines;
    for (zbIBrowserDataItemSimple* const item : ItemsOf(source)) {
        std::string line;
        for (zbsqlite::Property const& property : source.Properties())
            line += (property.Index() > 0 ? "|" : "") + Describe(property.GetValue(item));
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<std::string> NamesOf(zbsqlite::Source& source) {
    std::vector<std::string> names;
    for (zbIBrowserDataItemSimple* const item : ItemsOf(source)) {
        zbString name("(untouched)");
        bool const hasName = item->GetProperty("name", name);
        EXPECT_TRUE(hasName || name == "(untouched)");
        names.emplace_back(hasName ? std::string(std::string_view(name)) : "(none)");
    }
    return names;
}

zbsqlite::Error LoadError(zbsqlite::Source& source) {
    std::vector<zbIBrowserDataItemSimple*> items;
    EXPECT_FALSE(source.GetDataItems(items));
    EXPECT_TRUE(items.empty());
    EXPECT_TRUE(source.Rows().empty());
    if (source.LastError() == nullptr)
        return {"nowhere", "no error"};
    return *source.LastError();
}

std::vector<std::string> SourceNames(zbsqlite::DataCtrl const& control) {
    std::vector<std::string> names;
    for (auto const& source : control.Sources())
        names.emplace_back(source->GetName());
    return names;
}

zbsqlite::Source& Find(zbsqlite::DataCtrl& control, char const* name) {
    zbsqlite::Source* const source = control.FindDataSourceSimple(name);
    if (source == nullptr)
        throw std::runtime_error(std::string("no source ") + name);
    return *source;
}

void ExpectSameAsSql(zbsqlite::DataCtrl& control, fs::path const& file) {
    OtherProgram sql(file);
    auto const tables = sql.Query("SELECT name FROM sqlite_schema WHERE type IN ('table', 'view')");
    EXPECT_EQ(control.Sources().size(), tables.size());
    for (std::string const& line : tables) {
        std::string const name = line.substr(5);
        zbsqlite::Source* const source = control.FindDataSourceSimple(name.c_str());
        ASSERT_NE(source, nullptr) << name;
        EXPECT_EQ(RowsOf(*source), sql.Query("SELECT * FROM " + QuoteForSql(name))) << name;
    }
}

void WriteFile(fs::path const& file, std::string_view bytes) {
    std::ofstream stream(file, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string ReadFile(fs::path const& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

} // namespace zbtest
