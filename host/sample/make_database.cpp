// SPDX-License-Identifier: MIT
//! \file
//! make_database SCRIPT DATABASE: makes a database from an SQL script, at build time.
//!
//! The database appears as a whole or not at all, and not if its foreign keys lead nowhere.
#include <sqlite3.h>

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
using DatabasePtr = std::unique_ptr<sqlite3, Close>;

std::string ReadFile(fs::path const& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

DatabasePtr Create(fs::path const& file) {
    sqlite3* database = nullptr;
    int const code = sqlite3_open(file.c_str(), &database);
    DatabasePtr owner(database);
    if (code != SQLITE_OK)
        throw std::runtime_error("cannot create " + file.string());
    return owner;
}

void Execute(sqlite3& database, std::string const& sql) {
    char* message = nullptr;
    if (sqlite3_exec(&database, sql.c_str(), nullptr, nullptr, &message) == SQLITE_OK)
        return;
    std::string const text = message != nullptr ? message : "out of memory";
    sqlite3_free(message);
    throw std::runtime_error(text);
}

//! Called for each row that refers to one that is not there.
int CountBrokenKey(void* count, int /*columns*/, char** /*values*/, char** /*names*/) {
    ++*static_cast<int*>(count);
    return 0;
}

void CheckForeignKeys(sqlite3& database) {
    int broken = 0;
    int const code =
        sqlite3_exec(&database, "PRAGMA foreign_key_check", &CountBrokenKey, &broken, nullptr);
    if (code != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(&database));
    if (broken > 0)
        throw std::runtime_error(std::to_string(broken) + " rows refer to rows that do not exist");
}

void MakeDatabase(fs::path const& script, fs::path const& file) {
    fs::path unfinished = file;
    unfinished += ".unfinished";
    fs::remove(unfinished);
    {
        DatabasePtr const database = Create(unfinished);
        Execute(*database, ReadFile(script));
        CheckForeignKeys(*database);
        Execute(*database, "VACUUM");
    }
    fs::rename(unfinished, file);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: make_database SCRIPT DATABASE\n";
        return 2;
    }
    try {
        MakeDatabase(argv[1], argv[2]);
        return 0;
    } catch (std::exception const& error) {
        std::cerr << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
}
