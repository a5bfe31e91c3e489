// SPDX-License-Identifier: MIT
#include "EndToEnd.h"

#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>

namespace zbtest {

EndToEnd::EndToEnd() {
    auto pattern = (std::filesystem::temp_directory_path() / "zbbrowse.XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("mkdtemp");
    folder_ = pattern;
}

EndToEnd::~EndToEnd() {
    std::filesystem::remove_all(folder_);
}

std::string EndToEnd::Path(std::string const& name) const {
    return (folder_ / name).string();
}

std::string EndToEnd::Sql(std::string const& name, std::string const& sql) const {
    auto const ending =
        RunToEnd({.arguments = {SQLITE3_SHELL, "-batch", "-init", "/dev/null", Path(name)},
                  .environment = {},
                  .input = "pragma synchronous = off;\n" + sql});
    if (ending.status != 0)
        throw std::runtime_error("sqlite3: " + ending.errors);
    return ending.output;
}

Command EndToEnd::Zbbrowse(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), ZBBROWSE_PROGRAM);
    return {.arguments = std::move(arguments),
            .environment = {"NO_COLOR", "COLUMNS", "TERM=xterm"},
            .input = {}};
}

Ending EndToEnd::Browse(std::vector<std::string> arguments) const {
    return RunToEnd(Zbbrowse(std::move(arguments)));
}

std::vector<std::string> EndToEnd::Files() const {
    std::vector<std::string> names;
    for (auto const& entry : std::filesystem::directory_iterator(folder_))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

void EndToEnd::Write(std::string const& name, std::string const& content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
}

std::string EndToEnd::Read(std::string const& name) const {
    std::ifstream file(Path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> Lines(std::string const& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

} // namespace zbtest
