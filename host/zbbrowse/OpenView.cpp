// SPDX-License-Identifier: MIT
#include "zbbrowse/OpenView.h"

#include "text/Output.h"
#include "text/ViewReader.h"
#include "zbbrowse/Appearance.h"
#include "zbbrowse/Complaint.h"
#include "zbbrowse/RowValues.h"
#include "zbbrowse/Selection.h"
#include "zbbrowse/Suggestion.h"
#include "zbbrowse/WriteSelected.h"

#include <zbBrowserView/zbBrowserView.h>
#include <zbBrowserView/zbIBrowserViewItemFreeFolder.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace zbbrowse {

namespace {

std::string ViewName(Options const& options) {
    if (!options.view.empty())
        return options.view;
    auto const stem = std::filesystem::path(options.file).stem().string();
    return stem.empty() ? "view" : stem;
}

zbsqlite::HostOptions MakeHostOptions(Options const& options, std::atomic<bool> const& stop) {
    zbsqlite::HostOptions result;
    result.open.stop = &stop;
    result.open.canWrite = !options.writes.empty();
    result.viewName = ViewName(options);
    if (options.newGeneration)
        result.generation = zbsqlite::Generation::New;
    return result;
}

//! Folders in the order in which people look for things: what they made first, what SQLite made
//! last.
constexpr std::array kKinds{zbsqlite::TableKind::Table, zbsqlite::TableKind::Virtual,
                            zbsqlite::TableKind::View, zbsqlite::TableKind::Shadow,
                            zbsqlite::TableKind::System};

std::string KindFolder(zbsqlite::Source& source) {
    return std::string(source.GetTypeName()) + 's';
}

} // namespace

OpenView::OpenView(Options const& options, std::atomic<bool> const& stop)
    : options_(options)
    , stop_(stop)
    , host_(options.file, MakeHostOptions(options, stop)) {
    host_.Data().SetProgress([this](zbsqlite::Source const& source, std::uint64_t rows) {
        progress_.Show(source.GetName(), rows);
    });
    if (!options_.writes.empty())
        changes_.emplace(host_.Data(), host_.Controller());
    Resolve();
    if (IsPainted(options_))
        SetAppearance(host_.AnyView(), ShownSources(), options_);
}

OpenView::~OpenView() = default;

std::vector<std::string> OpenView::NamesByRank() const {
    std::vector<std::string> names;
    for (auto const kind : kKinds) {
        for (auto const& source : host_.Data().Sources()) {
            if (source->Declaration().kind == kind)
                names.emplace_back(source->GetName());
        }
    }
    return names;
}

zbsqlite::Source& OpenView::FindSource(std::string const& name) {
    if (auto* const source = host_.Data().FindDataSourceSimple(name.c_str()))
        return *source;
    throw Complaint(options_.file + ": no list \"" + name + '"' + NearestNote(name, NamesByRank()));
}

void OpenView::Resolve() {
    for (auto const& name : options_.lists) {
        auto& source = FindSource(name);
        if (std::find(lists_.begin(), lists_.end(), &source) == lists_.end())
            lists_.push_back(&source);
    }
    for (auto const& folder : options_.folders) {
        for (auto const& name : folder.lists)
            Place(folder.path, FindSource(name));
    }
    if (ShowsAll())
        PlaceByKind();
    for (auto* const source : lists_) {
        if (!IsPlaced(*source))
            Place({KindFolder(*source)}, *source);
    }
}

std::vector<zbsqlite::Source*> OpenView::ShownSources() const {
    std::vector<zbsqlite::Source*> sources;
    for (auto const& placement : placements_) {
        if (std::find(sources.begin(), sources.end(), placement.source) == sources.end())
            sources.push_back(placement.source);
    }
    return sources;
}

bool OpenView::IsPlaced(zbsqlite::Source const& source) const {
    return std::any_of(placements_.begin(), placements_.end(),
                       [&](auto const& placement) { return placement.source == &source; });
}

void OpenView::Place(Path path, zbsqlite::Source& source) {
    placements_.push_back({std::move(path), &source});
}

void OpenView::PlaceByKind() {
    for (auto const kind : kKinds) {
        for (auto const& source : host_.Data().Sources()) {
            if (source->Declaration().kind == kind)
                Place({KindFolder(*source)}, *source);
        }
    }
}

void OpenView::Load() {
    for (auto const& placement : placements_)
        LoadList(MakeFolder(placement.path), *placement.source);
    progress_.Clear();
    if (!options_.select.empty())
        SelectRows(host_.View(), options_.select);
    if (changes_)
        Write();
}

void OpenView::Write() {
    WriteSelected(host_, options_.writes);
    while (changes_->Poll() == zbsqlite::PollResult::Busy) {
        if (stop_.load())
            throw zbtext::Stopped();
    }
}

void OpenView::PlaceAsAskedFor(zbsqlite::Source& source) {
    auto const isMeant = [&](std::string const& name) {
        return zbsqlite::IsSameName(name, source.GetName());
    };
    for (auto const& folder : options_.folders) {
        if (std::any_of(folder.lists.begin(), folder.lists.end(), isMeant))
            Place(folder.path, source);
    }
    auto const& lists = options_.lists;
    bool const isListed = std::any_of(lists.begin(), lists.end(), isMeant);
    if (ShowsAll() || (isListed && !IsPlaced(source)))
        Place({KindFolder(source)}, source);
}

bool OpenView::Add(zbsqlite::Source& source) {
    PlaceAsAskedFor(source);
    if (options_.name) {
        if (auto const* const column = source.FindDataProperty(options_.name->c_str()))
            source.NameRowsBy(*column);
    }
    for (auto const& placement : placements_) {
        if (placement.source == &source)
            LoadList(MakeFolder(placement.path), source);
    }
    progress_.Clear();
    return IsPlaced(source);
}

zbIBrowserViewItemFreeFolder& OpenView::MakeFolder(Path const& path) {
    auto* folder = host_.RootFolder();
    for (auto const& name : path)
        folder = host_.CreateFolder(folder, zbString(name));
    return *folder;
}

void OpenView::LoadList(zbIBrowserViewItemFreeFolder& folder, zbsqlite::Source& source) {
    if (options_.newGeneration || folder.FindList(&source) != nullptr)
        return;
    host_.CreateList(&folder, source);
    if (stop_.load())
        throw zbtext::Stopped();
}

zbtext::Folder OpenView::ReadView(std::size_t rowLimit, bool namesAreColumns) const {
    static RowValues const values;
    std::optional<zbtext::PaintOptions> paint;
    if (IsPainted(options_))
        paint = {.icons = options_.icon, .namesAreColumns = namesAreColumns};
    auto const extent = options_.select.empty() ? zbtext::Extent::All : zbtext::Extent::Selected;
    return zbtext::ViewReader(host_.AnyView(), values, rowLimit, paint, extent).ReadView();
}

std::vector<std::unique_ptr<zbtext::List>> OpenView::ReadLists(std::size_t rowLimit,
                                                               bool namesAreColumns) const {
    auto view = ReadView(rowLimit, namesAreColumns);
    std::vector<std::unique_ptr<zbtext::List>> lists;
    for (auto const* const source : lists_) {
        if (auto list = zbtext::TakeList(view, source->GetName()))
            lists.push_back(std::move(list));
    }
    return lists;
}

std::vector<std::string> OpenView::GetFaults() const {
    std::vector<std::string> faults;
    for (auto const& source : host_.Data().Sources()) {
        if (auto const* const error = source->LastError())
            faults.emplace_back(error->what());
    }
    return faults;
}

} // namespace zbbrowse
