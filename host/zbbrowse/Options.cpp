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

--select selects rows in all lists that are shown, and shows what is selected. In a
pattern, which is for the whole name, * stands for any characters, ? for one, [abc] for
one of these; case matters.

--write writes to what --select selects, and shows it as it is then. All is written in
one transaction: if anything fails, nothing is. VALUE is a text, which a column of
numbers makes a number; in the names a backslash takes the meaning from . and =.

--watch shows no rows, but a line for each that another program creates (+ name),
updates (~ name) or deletes (- name) in these lists, and for each table or view that is
new, gone or altered (! table part is gone). With --format jsonl, lines are
{"change":"created","list":"part","name":"bolt"}, and list_created, list_deleted or
list_altered without a name. It has begun when standard error says so.

Exit status: 0 if all went well, also if a pipe was closed; 2 if not; 130 when
interrupted by Ctrl-C, 143 by SIGTERM.)";

//! What is checked here, since the parser's own checks take -1 for a very large number and name the
//! formats by number.
struct Unchecked {
    std::vector<std::string> folders;
    std::optional<std::string> columns;
    std::optional<std::string> sort;
    std::vector<std::string> writes;
    std::string generation = "old";
    std::string limit;
    std::string format = "text";
};

//! What the view has in it.
void AddViewOptions(CLI::App& app, Options& options, Unchecked& unchecked) {
    app.add_option("FILE", options.file, "The SQLite database to show; only --write changes it")
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
}

//! What is done with it.
void AddTaskOptions(CLI::App& app, Options& options, Unchecked& unchecked) {
    app.add_option("--limit", unchecked.limit,
                   "Show at most N rows of each list; else 3, and all with --list or --select")
        ->option_text("N");
    app.add_option("--select", options.select,
                   "Select rows by name and show no others (repeatable)")
        ->option_text("PATTERN")
        ->allow_extra_args(false);
    app.add_option("--write", unchecked.writes,
                   "Write VALUE to the selected rows of this table (repeatable)")
        ->option_text("TABLE.COLUMN=VALUE")
        ->allow_extra_args(false);
    app.add_flag("--watch", options.watch,
                 "Tell each change that another program makes, until Ctrl-C");
    app.add_option("--format", unchecked.format, "text, json, jsonl (one object a line) or csv")
        ->option_text("FORMAT");
    app.add_option("--output", options.output,
                   "Write to FILE, which appears when it is complete; else to standard output")
        ->option_text("FILE");
}

void AddOptions(CLI::App& app, Options& options, Unchecked& unchecked) {
    AddViewOptions(app, options, unchecked);
    AddTaskOptions(app, options, unchecked);
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

std::string CheckWrites(Unchecked const& unchecked, Options& options) {
    for (auto const& text : unchecked.writes) {
        auto write = ReadWriteOption(text);
        if (!write)
            return "--write " + text + ": not TABLE.COLUMN=VALUE";
        options.writes.push_back(std::move(*write));
    }
    return options.writes.empty() || !options.select.empty()
               ? ""
               : "--write needs --select, which says to what rows";
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

//! What only says how rows are shown has no meaning where none are.
std::string CheckWatch(Unchecked const& unchecked, Options& options) {
    if (!options.watch)
        return {};
    if (options.format != Format::Text && options.format != Format::JsonLines)
        return "--watch never comes to the end that --format " + unchecked.format +
               " needs; text and jsonl do without";
    if (!options.output.empty())
        return "--watch never comes to the end at which the file of --output appears";
    std::pair<bool, char const*> const showRows[] = {{options.limit.has_value(), "--limit"},
                                                     {options.columns.has_value(), "--columns"},
                                                     {options.sort.has_value(), "--sort"},
                                                     {options.bold.has_value(), "--bold"},
                                                     {options.icon, "--icon"},
                                                     {!options.select.empty(), "--select"}};
    for (auto const& [given, name] : showRows) {
        if (given)
            return std::string(name) + " says how rows are shown, and --watch shows none";
    }
    return {};
}

std::string CheckGeneration(Unchecked const& unchecked, Options& options) {
    options.newGeneration = unchecked.generation == "new";
    if (!options.newGeneration)
        return unchecked.generation == "old"
                   ? ""
                   : "--generation " + unchecked.generation + ": not old or new";
    std::pair<bool, char const*> const needRows[] = {{!options.lists.empty(), "--list"},
                                                     {options.limit.has_value(), "--limit"},
                                                     {options.columns.has_value(), "--columns"},
                                                     {options.sort.has_value(), "--sort"},
                                                     {options.name.has_value(), "--name"},
                                                     {options.bold.has_value(), "--bold"},
                                                     {options.watch, "--watch"},
                                                     {!options.select.empty(), "--select"}};
    for (auto const& [given, name] : needRows) {
        if (given)
            return std::string(name) + " needs rows, and --generation new has none yet";
    }
    return {};
}

std::string Check(Unchecked const& unchecked, Options& options) {
    for (auto* const check :
         {CheckFolders, CheckColumns, CheckWrites, CheckOutput, CheckWatch, CheckGeneration}) {
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
