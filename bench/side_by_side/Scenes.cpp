// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Course.h"

#include <algorithm>

namespace zbbench {

namespace {

constexpr std::size_t changed = 10'000;

//! Frames that begin `step` rows after the one before, round and round.
Sample Paint(Course& course, std::size_t step) {
    Canvas seen;
    course.contestant->Paint(0, seen);
    auto const places = course.source.Items().size() - rowsShown;
    auto first = places / 2;
    Canvas canvas;
    auto const seconds = SecondsEach([&] {
        course.contestant->Paint(first, canvas);
        first = (first + step) % places;
    });
    return {seconds, seen.IsComplete(1) ? seen.GetSum() : 0};
}

//! A table is made, filled, sorted by name, scrolled and turned round, and goes.
void Show(Entrant const& entrant, std::size_t rows, Report& report) {
    Course course(rows);
    auto& contestant = course.contestant;
    auto const before = BytesInUse();
    auto const bytesPerRow = [&] {
        contestant->Forget();
        return Sample{static_cast<double>(BytesInUse() - before) / static_cast<double>(rows)};
    };
    auto const sort = [&](bool ascending) {
        contestant->Sort(Column::Name, ascending);
        contestant->Read();
    };

    report.Add("start", {Seconds([&] { contestant = entrant.create(course.source); })});
    auto seconds = Seconds([&] {
        contestant->Attach();
        contestant->Read(); // Who makes rows when asked for them makes them now
    });
    report.Add("attach", course.Result(seconds));
    report.Add("bytes-unsorted", bytesPerRow());

    contestant->Read();
    seconds = Seconds([&] { sort(true); });
    report.Add("sort-name", course.Result(seconds, Column::Name));
    report.Add("bytes-sorted", bytesPerRow());

    contestant->Read();
    seconds = SecondsEach([&] { contestant->Read(); });
    report.Add("read", course.Result(seconds, Column::Name));
    report.Add("paint-again", Paint(course, 0));
    report.Add("paint-pages", Paint(course, rowsShown));

    auto ascending = true;
    seconds = SecondsEach([&] { sort(ascending = !ascending); });
    sort(false);
    report.Add("reverse", course.Result(seconds, Column::Name));
    contestant->Forget();
    report.Add("tear-down", {Seconds([&] { contestant.reset(); })});
}

void SortByNumber(Entrant const& entrant, std::size_t rows, Report& report) {
    AttachedCourse course(entrant, rows);
    course.contestant->Read();
    auto const seconds = Seconds([&] {
        course.contestant->Sort(Column::Number, true);
        course.contestant->Read();
    });
    report.Add("sort-number", course.Result(seconds, Column::Number));
}

void ChangeUnsorted(Entrant const& entrant, std::size_t rows, Report& report) {
    AttachedCourse course(entrant, rows);
    auto const fresh = course.AddItems(changed);
    auto seconds = Seconds([&] { course.contestant->Insert(fresh); });
    auto const gone = course.TakeOut(changed);
    seconds += Seconds([&] { course.contestant->Remove(gone); });
    course.contestant->Read();
    report.Add("change-unsorted", course.Result(seconds));
}

void ChangeSorted(Entrant const& entrant, std::size_t rows, Report& report) {
    SortedCourse course(entrant, rows);
    auto const fresh = course.AddItems(changed);
    auto seconds = Seconds([&] { course.contestant->Insert(fresh); });
    auto const gone = course.TakeOut(changed);
    seconds += Seconds([&] {
        course.contestant->Remove(gone);
        course.contestant->Read();
    });
    report.Add("change-sorted", course.Result(seconds, Column::Name));
}

void ChangeAtOnce(Entrant const& entrant, std::size_t rows, Report& report) {
    SortedCourse course(entrant, rows);
    auto const fresh = course.AddItems(changed);
    auto const gone = course.TakeOut(changed);
    auto const seconds = Seconds([&] {
        course.contestant->Exchange(gone, fresh);
        course.contestant->Read();
    });
    report.Add("change-batch", course.Result(seconds, Column::Name));
}

//! One row in a hundred gets another name.
void RenameEach(Entrant const& entrant, std::size_t rows, Report& report) {
    SortedCourse course(entrant, rows);
    auto const renamed = Draw(course.source, rows / 100);
    auto const seconds = Seconds([&] {
        course.contestant->Rename(renamed);
        course.contestant->Read();
    });
    report.Add("rename-each", course.Result(seconds, Column::Name));
}

void RenameAtOnce(Entrant const& entrant, std::size_t rows, Report& report) {
    SortedCourse course(entrant, rows);
    auto const renamed = Draw(course.source, rows / 100);
    for (auto* const item : renamed)
        course.source.Rename(*item);
    auto const seconds = Seconds([&] {
        course.contestant->RenameAtOnce(renamed);
        course.contestant->Read();
    });
    report.Add("rename-batch", course.Result(seconds, Column::Name));
}

void Select(Entrant const& entrant, std::size_t rows, Report& report) {
    AttachedCourse course(entrant, rows);
    auto& contestant = *course.contestant;
    contestant.Read();
    auto const wanted = Draw(course.source, std::min<std::size_t>(rows / 10, 100'000));
    std::vector<char> selected(rows);
    auto const seconds = Seconds([&] {
        contestant.Select(wanted);
        contestant.AskSelected(selected);
        contestant.ClearSelection();
    });
    std::vector<char> cleared(rows);
    contestant.AskSelected(cleared);
    Hash hash;
    for (std::size_t i = 0; i < rows; ++i)
        hash.Add(static_cast<std::uint64_t>(selected[i] * 2 + cleared[i]));
    report.Add("select", {seconds, hash.Get()});
}

constexpr Scene scenes[] = {
    {"show", Show},
    {"sort-number", SortByNumber},
    {"change-unsorted", ChangeUnsorted},
    {"change-sorted", ChangeSorted},
    {"change-batch", ChangeAtOnce},
    {"rename-each", RenameEach},
    {"rename-batch", RenameAtOnce},
    {"select", Select},
};

} // namespace

Scene const* FindScene(std::string_view name) {
    auto const* const found =
        std::find_if(std::begin(scenes), std::end(scenes),
                     [name](Scene const& scene) { return name == scene.name; });
    return found == std::end(scenes) ? nullptr : found;
}

} // namespace zbbench
