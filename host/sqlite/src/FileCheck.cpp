// SPDX-License-Identifier: MIT
#include "FileCheck.h"

#include <zbBrowserView/sqlite/Error.h>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <system_error>

namespace zbsqlite::detail {

namespace fs = std::filesystem;

namespace {

//! With the effective rights, which are those that opening the file uses.
int AccessError(fs::path const& path, int mode) {
    return faccessat(AT_FDCWD, path.c_str(), mode, AT_EACCESS) == 0 ? 0 : errno;
}

bool HasContent(fs::path const& file) {
    std::error_code error;
    auto const size = fs::file_size(file, error);
    return !error && size > 0;
}

fs::path Beside(fs::path file, char const* suffix) {
    file += suffix;
    return file;
}

bool IsPlain(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("/-_.~").find(c) != std::string_view::npos;
}

std::string PercentEncode(std::string_view text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string encoded;
    for (char const c : text) {
        if (IsPlain(c)) {
            encoded += c;
            continue;
        }
        auto const byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += digits[byte >> 4U];
        encoded += digits[byte & 15U];
    }
    return encoded;
}

} // namespace

void CheckFile(fs::path const& file) {
    std::error_code error;
    fs::file_status const status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found)
        throw Error(file.string(), "no such file");
    if (status.type() == fs::file_type::none || status.type() == fs::file_type::unknown)
        throw Error(file.string(), "cannot be examined (" + error.message() + ")");
    if (status.type() == fs::file_type::directory)
        throw Error(file.string(), "is a folder, not a database");
    if (status.type() != fs::file_type::regular)
        throw Error(file.string(), "is not a regular file");
    if (int const code = AccessError(file, R_OK); code != 0)
        throw Error(file.string(),
                    "cannot be read (" + std::generic_category().message(code) + ")");
}

bool IsFrozen(fs::path const& file) {
    fs::path const folder = fs::absolute(file).parent_path();
    return AccessError(folder, W_OK) != 0 && !HasContent(Beside(file, "-wal")) &&
           !HasContent(Beside(file, "-journal"));
}

std::string FileUri(fs::path const& file, Access access) {
    std::string uri = "file://" + PercentEncode(fs::absolute(file).native());
    uri += access == Access::Write ? "?mode=rw" : "?mode=ro";
    if (access == Access::ReadFrozen)
        uri += "&immutable=1";
    return uri;
}

} // namespace zbsqlite::detail
