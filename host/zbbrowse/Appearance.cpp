// SPDX-License-Identifier: MIT
#include "zbbrowse/Appearance.h"

#include "zbbrowse/Complaint.h"
#include "zbbrowse/Suggestion.h"

#include <zbBrowserView/sqlite/Presentation.h>
#include <zbBrowserView/sqlite/Schema.h>
#include <zbBrowserView/zbIBrowserView.h>
#include <zbBrowserView/zbIBrowserViewColumn.h>

#include <algorithm>

namespace zbbrowse {

namespace {

constexpr char const* kNameTitle = "name";

class Appearance {
public:
    Appearance(zbIBrowserView& view, std::vector<zbsqlite::Source*> const& shown,
               Options const& options)
        : view_(view)
        , options_(options)
        , presentation_(view, shown) {}

    void Set() {
        auto* const name = view_.GetDefaultColumn();
        name->SetTitle(kNameTitle);
        name->SetVisible(options_.icon || options_.name.has_value());
        for (auto const& column : ColumnNames())
            Require("--columns", column, presentation_.FindColumn(column) != nullptr);
        if (options_.name)
            Require("--name", *options_.name, presentation_.NameRowsBy(*options_.name));
        if (options_.bold)
            Require("--bold", *options_.bold, presentation_.MakeRowsBoldBy(*options_.bold));
        if (options_.sort)
            Sort(*options_.sort);
    }

private:
    std::vector<std::string> ColumnNames() const {
        bool const all = !options_.columns || options_.columns->all;
        return all ? presentation_.Names() : options_.columns->names;
    }

    void Require(char const* option, std::string const& column, bool found) const {
        if (!found)
            throw Complaint(options_.file + ": " + option + ": no list shown has a column \"" +
                            column + '"' + NearestNote(column, presentation_.Names()));
    }

    //! What is sorted by need not be shown.
    void Sort(SortOption const& sort) {
        auto* column = FindSortColumn(sort.column);
        if (column == nullptr && zbsqlite::IsSameName(sort.column, kNameTitle)) {
            column = view_.GetDefaultColumn();
            column->SetVisible(true);
        }
        if (column == nullptr)
            RefuseDirection(sort.column);
        Require("--sort", sort.column, column != nullptr);
        view_.SetAscendingOrder(column, sort.ascending);
    }

    zbIBrowserViewColumn* FindSortColumn(std::string const& name) {
        auto* const column = presentation_.FindColumn(name);
        if (column != nullptr && !IsAskedFor(name))
            view_.ShowScriptedColumn(column, false);
        return column;
    }

    bool IsAskedFor(std::string const& name) const {
        auto const names = ColumnNames();
        return std::any_of(names.begin(), names.end(),
                           [&](auto const& other) { return zbsqlite::IsSameName(name, other); });
    }

    void RefuseDirection(std::string const& text) {
        auto const colon = text.rfind(':');
        if (colon != std::string::npos &&
            presentation_.FindColumn(text.substr(0, colon)) != nullptr)
            throw Complaint("--sort " + text + ": the direction is asc or desc");
    }

    zbIBrowserView& view_;
    Options const& options_;
    zbsqlite::Presentation presentation_;
};

} // namespace

bool IsPainted(Options const& options) {
    return options.columns || options.sort || options.name || options.bold || options.icon;
}

void SetAppearance(zbIBrowserView& view, std::vector<zbsqlite::Source*> const& shown,
                   Options const& options) {
    Appearance(view, shown, options).Set();
}

} // namespace zbbrowse
