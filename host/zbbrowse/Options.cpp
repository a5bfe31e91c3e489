// SPDX-License-Identifier: MIT
#include "zbbrowse/Options.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <iostream>
#include <map>
#include <utility>

namespace zbbrowse {

namespace {

constexpr int kUsageStatus = 2;

char const* const kFooter = R"(
Without --list, a picture of the view is shown: a folder for the tables and one for
the views of the database, in them a list for each, with its count and first rows.

In --folder a backslash takes the meaning from a following , = / or backslash.
The folders asked for stand in place of those for tables and views.

Columns are those of the lists that are shown, in any case; a list shows those that
it has. --columns all shows all; a backslash makes \all a column of that name, and
takes the meaning from a comma.

--sort takes the last :asc or :desc for the direction, so a column whose name ends so
needs one more. Null comes first, then numbers by size, text without regard to ASCII
case, blobs. Rows that tie, or whose list does not have the column, stand by name, then
as they come; :desc is :asc read backwards. "name" is the rows' name where no list has
a column of that name. With --name, --icon or a sort by the rows' name, text and CSV
show the name, too.

Text is cut to the width of the terminal, and not at all when it goes elsewhere.
CSV is for one --list, or for the picture. In JSON a blob is {"$blob": "<base64>"},
a text that is not UTF-8 {"$bytes": "<base64>"}.

Exit status: 0 if all went well, also if a pipe was closed; 2 if not; 130 when
interrupted.)";

//! What is checked here, since the parser's own checks take -1 for a very large number and name the
//! formats by number.
struct Unchecked {
    std::vector<std::string> folders;
    std::optional<std::string> columns;
    std::optional<std::string> sort;
    std::string generation = "old";
    std::string limit;
    std::string format = "text";
};

void AddOptions(CLI::App& app, Options& options, Unchecked& unchecked) {
    app.add_option("FILE", options.file, "The SQLite database to show; it is only read")
        ->required()
        ->option_text(" ");
    app.add_option("--list", options.lists, "Show this table or view whole (repeatable)")
        ->option_text("NAME")
        ->allow_extra_args(false);
    app.add_option("--folder", unchecked.folders,
                   "Make a folder with these lists in it (repeatable)")
        ->option_text("PATH=NAME[,NAME...]")
        ->allow_extra_args(false);
    app.add_option("--columns", unchecked.columns, "Show these columns, or all")
        ->option_text("COL[,COL...]");
    app.add_option("--sort", unchecked.sort, "Sort rows by this column, upwards unless told")
        ->option_text("COL[:asc|:desc]");
    app.add_option("--name", options.name, "Name rows after this column; else by the usual one")
        ->option_text("COL");
    app.add_flag("--icon", options.icon, "Show the names of icons");
    app.add_option("--bold", options.bold, "Show rows bold where this column is true")
        ->option_text("COL");
    app.add_option("--generation", unchecked.generation,
                   "old, or new: a view that has folders, but no rows yet")
        ->option_text("GENERATION");
    app.add_option("--view", options.view, "Name of the view; else that of the file")
        ->option_text("NAME");
    app.add_option("--limit", unchecked.limit,
                   "Show at most N rows of each list; else 3 in the picture, and all with --list")
        ->option_text("N");
    app.add_option("--format", unchecked.format, "text, json, jsonl (one object a line) or csv")
        ->option_text("FORMAT");
    app.add_option("--output", options.output,
                   "Write to FILE, which appears when it is complete; else to standard output")
        ->option_text("FILE");
    app.set_help_flag("--help", "Show this text and stop");
    app.set_version_flag("--version", "zbbrowse " ZBBROWSE_VERSION, "Show the version and stop");
    app.footer(kFooter + 1);
}

int Complain(std::string const& what) {
    std::cerr << "zbbrowse: " << what << "; see zbbrowse --help\n";
    return kUsageStatus;
}

std::optional<int> Parse(CLI::App& app, int argc, char const* const* argv) {
    try {
        app.parse(argc, argv);
    } catch (CLI::Success const& wish) {
        app.exit(wish);
        return 0;
    } catch (CLI::ParseError const& error) {
        return Complain(error.what());
    }
    return std::nullopt;
}

std::optional<Format> ReadFormat(std::string const& text) {
    static std::map<std::string, Format> const formats{{"text", Format::Text},
                                                       {"json", Format::Json},
                                                       {"jsonl", Format::JsonLines},
                                                       {"csv", Format::Csv}};
    auto const found = formats.find(text);
    return found == formats.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::size_t> ReadCount(std::string const& text) {
    std::size_t count = 0;
    auto const* const end = text.data() + text.size();
    auto const result = std::from_chars(text.data(), end, count);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return count;
}

// The checks give an empty text if all is well, else what to complain about.

std::string CheckFolders(Unchecked const& unchecked, Options& options) {
    for (auto const& text : unchecked.folders) {
        auto folder = ReadFolderOption(text);
        if (!folder)
            return "--folder " + text + ": not PATH=NAME[,NAME...]";
        options.folders.push_back(std::move(*folder));
    }
    return {};
}

std::string CheckColumns(Unchecked const& unchecked, Options& options) {
    if (unchecked.columns) {
        options.columns = ReadColumnsOption(*unchecked.columns);
        if (!options.columns)
            return "--columns " + *unchecked.columns + ": not all or COL[,COL...]";
    }
    if (unchecked.sort) {
        options.sort = ReadSortOption(*unchecked.sort);
        if (!options.sort)
            return "--sort " + *unchecked.sort + ": not COL[:asc|:desc]";
    }
    return {};
}

std::string CheckOutput(Unchecked const& unchecked, Options& options) {
    auto const format = ReadFormat(unchecked.format);
    if (!format)
        return "--format " + unchecked.format + ": not text, json, jsonl or csv";
    options.format = *format;
    if (unchecked.limit.empty())
        return {};
    options.limit = ReadCount(unchecked.limit);
    return options.limit ? "" : "--limit " + unchecked.limit + ": not a number from 0 on";
}

std::string CheckGeneration(Unchecked const& unchecked, Options& options) {
    options.newGeneration = unchecked.generation == "new";
    if (!options.newGeneration)
        return unchecked.generation == "old"
                   ? ""
                   : "--generation " + unchecked.generation + ": not old or new";
    std::pair<bool, char const*> const needRows[] = {
        {!options.lists.empty(), "--list"},         {options.limit.has_value(), "--limit"},
        {options.columns.has_value(), "--columns"}, {options.sort.has_value(), "--sort"},
        {options.name.has_value(), "--name"},       {options.bold.has_value(), "--bold"}};
    for (auto const& [given, name] : needRows) {
        if (given)
            return std::string(name) + " needs rows, and --generation new has none yet";
    }
    return {};
}

std::string Check(Unchecked const& unchecked, Options& options) {
    for (auto* const check : {CheckFolders, CheckColumns, CheckOutput, CheckGeneration}) {
        if (auto mistake = check(unchecked, options); !mistake.empty())
            return mistake;
    }
    return {};
}

} // namespace

std::optional<Options> ReadOptions(int argc, char const* const* argv, int& status) {
    CLI::App app("Shows a SQLite database as a view with folders, lists and rows.", "zbbrowse");
    Options options;
    Unchecked unchecked;
    AddOptions(app, options, unchecked);
    if (auto const done = Parse(app, argc, argv)) {
        status = *done;
        return std::nullopt;
    }
    if (auto const mistake = Check(unchecked, options); !mistake.empty()) {
        status = Complain(mistake);
        return std::nullopt;
    }
    return options;
}

} // namespace zbbrowse
