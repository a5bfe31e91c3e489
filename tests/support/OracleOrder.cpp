// SPDX-License-Identifier: MIT
// The order of rows and child folders.
#include "Oracle.h"

#include <zbBrowserView/platform/zbString.h>

#include <algorithm>

namespace zbtest {

namespace {

//! What a comparison of the host decides; empty if it decides nothing.
template <class Ask>
std::optional<bool> Less(Ask ask) {
    int cmp = 0;
    return ask(cmp) && cmp != 0 ? std::optional(cmp < 0) : std::nullopt;
}

std::optional<bool> OrderOf(RecordingSource& a, RecordingSource& b) {
    bool less = false;
    bool const decides = a.control != nullptr && a.control->CompareDataSources(&a, &b, less);
    return decides ? std::optional(less) : std::nullopt;
}

bool AllOrNone(std::size_t count, std::size_t all) {
    return count == 0 || count == all;
}

} // namespace

std::string Oracle::UnsortAll(ScriptStep const& step) {
    View* const view = FindView(step.Arg(1));
    if (view == nullptr) {
        return "skip";
    }
    LoosenAll(*view);
    return "";
}

void Oracle::LoosenAll(View& view) {
    for (Folder* const folder : PreOrder(view.root)) {
        folder->used = true;
        folder->unsorted = true;
        for (Row& row : folder->rows) {
            row.ordered = false;
        }
    }
}

std::string Oracle::ReadChildren(ScriptStep const& step) {
    View* view = nullptr;
    Folder* const folder = FindFolder(step.Arg(1), &view);
    if (folder == nullptr) {
        return "skip";
    }
    if (view->sorted != nullptr) {
        SortRows(*view, *folder);
    }
    openView_ = view;
    return Listing(*view, *folder);
}

std::string Oracle::Adopt(std::vector<std::string> const& rows) {
    std::vector<Row> adopted;
    for (std::string const& name : rows) {
        auto const row = std::find_if(openOrder_->rows.begin(), openOrder_->rows.end(),
                                      [&](Row const& known) { return NameOf(known) == name; });
        if (row != openOrder_->rows.end()) {
            adopted.push_back(*row);
        }
    }
    if (rows.size() != openOrder_->rows.size() || adopted.size() != rows.size()) {
        return "";
    }
    openOrder_->rows = std::move(adopted);
    return Listing(*openView_, *openOrder_);
}

// Sorting rows

// The column's first style has the property by which it sorts; a column without a style leaves the
// one that is there. False: it does.
bool Oracle::TakeSortProperty(View const& view) {
    if (view.sorted->styles.empty()) {
        return false;
    }
    sortProperty_ = view.sorted->styles.front().property;
    return true;
}

Oracle::Property const* Oracle::SortPropertyOf(View const& view) const {
    return view.sorted == view.columns.front().get() ? nullptr : sortProperty_.lock().get();
}

Oracle::Basis Oracle::BasisOf(View const& view) const {
    Basis basis;
    basis.orderNumber = view.orderNumber;
    basis.property = SortPropertyOf(view);
    if (basis.property != nullptr) {
        basis.connections = basis.property->connections;
    }
    return basis;
}

// Rows that are in order stay in it, unless they have changed, and the others are sorted into them,
// behind those with which they tie; unless what they were sorted by has changed, which sorts all
// anew.
void Oracle::SortRows(View& view, Folder& folder) {
    auto const stays = [](Row const& row) { return row.ordered && !row.changed; };
    if (folder.rows.empty() || !folder.unsorted) {
        return;
    }
    bool const isDefault = view.sorted == view.columns.front().get();
    bool const takes = !isDefault && folder.rows.size() > 1 && TakeSortProperty(view);
    bool const knowsProperty = isDefault || takes || knowsSortProperty_;
    Basis const now = BasisOf(view);
    knowsSortProperty_ = knowsSortProperty_ || takes;
    auto const loose = std::stable_partition(folder.rows.begin(), folder.rows.end(), stays);
    auto const ordered = static_cast<std::size_t>(loose - folder.rows.begin());
    bool const knowsBasis = knowsProperty && (folder.basis || ordered == 0);
    bool const merges = folder.basis == now;
    folder.basis = knowsProperty ? std::optional(now) : std::nullopt;
    folder.unsorted = false;
    openOrder_ = &folder;
    if (knowsBasis && HasDefiniteOrder(folder, now.property)) {
        SortKnown(view, folder, merges ? ordered : 0);
    }
    for (Row& row : folder.rows) {
        row.ordered = true;
        row.changed = false;
    }
}

// What was in order may not be so any more, if values have changed and nobody was told.
void Oracle::SortKnown(View& view, Folder& folder, std::size_t ordered) {
    auto const* const property = SortPropertyOf(view);
    auto const isBefore = [&](Row const& a, Row const& b) { return IsBefore(a, b, property); };
    auto const loose = folder.rows.begin() + static_cast<std::ptrdiff_t>(ordered);
    if (!std::is_sorted(folder.rows.begin(), loose, isBefore)) {
        return;
    }
    std::stable_sort(loose, folder.rows.end(), isBefore);
    std::inplace_merge(folder.rows.begin(), loose, folder.rows.end(), isBefore);
    openOrder_ = nullptr;
}

// The keys of a list: the order of the sources, what the column shows, name and identity.
bool Oracle::IsBefore(Row const& a, Row const& b, Property const* property) {
    RecordingItem* const left = a.item;
    RecordingItem* const right = b.item;
    std::optional<bool> less = OrderOf(*a.source, *b.source);
    if (!less && property != nullptr && property->connections.contains(a.source) &&
        property->connections.contains(b.source)) {
        auto& ofA = a.source->Property(property->connections.at(a.source));
        auto& ofB = b.source->Property(property->connections.at(b.source));
        less = Less([&](int& cmp) {
            return a.source->CompareByDataProperty(left, &ofA, right, &ofB, cmp);
        });
    }
    if (!less) {
        less = Less([&](int& cmp) { return a.source->CompareByName(left, right, cmp); });
    }
    if (!less) {
        less = Less([&](int& cmp) { return a.source->CompareById(left, right, cmp); });
    }
    return less.value_or(false);
}

// Rows of several sources whose order the data control does not tell compare by the same keys only
// if the sources are alike.
bool Oracle::HasDefiniteOrder(Folder const& folder, Property const* property) {
    std::set<RecordingSource*> sources;
    for (Row const& row : folder.rows) {
        sources.insert(row.source);
    }
    std::size_t pairs = 0;
    std::size_t decided = 0;
    for (RecordingSource* const a : sources) {
        for (RecordingSource* const b : sources) {
            pairs += a == b ? 0U : 1U;
            decided += a != b && OrderOf(*a, *b).has_value() ? 1U : 0U;
        }
    }
    if (decided == pairs) {
        return true;
    }
    auto const count = [&](auto const& holds) {
        return static_cast<std::size_t>(std::count_if(sources.begin(), sources.end(), holds));
    };
    auto const comparing = count([](RecordingSource const* source) { return source->compares; });
    auto const connected = count([&](RecordingSource* source) {
        return property != nullptr && property->connections.contains(source);
    });
    return decided == 0 && AllOrNone(comparing, sources.size()) &&
           AllOrNone(connected, sources.size());
}

// Listing

std::vector<std::string> Oracle::ListedFolders(Folder const& folder, bool sorted, bool ascending) {
    std::vector<Folder const*> children;
    for (auto const& child : folder.children) {
        children.push_back(child.get());
    }
    if (sorted && !folder.keepsOrder) {
        std::stable_sort(children.begin(), children.end(), [](auto const* a, auto const* b) {
            return StrICmp(a->name.c_str(), b->name.c_str()) < 0;
        });
        if (!ascending) {
            std::reverse(children.begin(), children.end());
        }
    }
    std::vector<std::string> names;
    for (Folder const* const child : children) {
        if (!child->hidden) {
            names.push_back(child->name);
        }
    }
    return names;
}

// Child folders lead, except under the default column downwards. Under another column those of an
// old view stay ascending.
std::string Oracle::Listing(View const& view, Folder const& folder) const {
    bool const isSorted = view.sorted != nullptr;
    bool const isDefault = view.sorted == view.columns.front().get();
    bool const forward = !isSorted || view.ascending;
    auto names = ListedFolders(folder, isSorted, forward || (!isDefault && !view.isNew));
    std::vector<std::string> rows;
    for (Row const& row : folder.rows) {
        if (!row.hidden) {
            rows.push_back(NameOf(row));
        }
    }
    if (!forward) {
        std::reverse(rows.begin(), rows.end());
    }
    names.insert(isDefault && !forward ? names.begin() : names.end(), rows.begin(), rows.end());
    std::string text;
    for (std::string const& name : names) {
        text.append(text.empty() ? "" : " ").append(name);
    }
    return text;
}

} // namespace zbtest
