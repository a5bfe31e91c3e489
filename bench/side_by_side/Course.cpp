// SPDX-License-Identifier: MIT
#include "Course.h"

#include <malloc.h>
#include <sys/time.h>
#include <time.h>

#include <algorithm>

namespace zbbench {

namespace {

unsigned limit = 0; // Seconds; 0: none

void SetTimer(unsigned seconds) {
    itimerval timer{};
    timer.it_value.tv_sec = seconds;
    setitimer(ITIMER_PROF, &timer, nullptr);
}

//! Adds rows whose keys are equal in their order, wherever they stood; false if they stood in
//! neither that order nor its reverse.
bool AddGroup(Hash& hash, Items group) {
    auto const isBefore = [](Item const* a, Item const* b) {
        return IsBefore(*a, *b, Column::Name);
    };
    auto const inOrder = std::is_sorted(group.begin(), group.end(), isBefore) ||
                         std::is_sorted(group.rbegin(), group.rend(), isBefore);
    std::sort(group.begin(), group.end(), isBefore);
    for (auto const* const item : group)
        hash.Add(item->GetId());
    return inOrder;
}

bool AreTied(Item const& a, Item const& b, Column column) {
    return column == Column::Name ? a.CompareName(b) == 0 : a.GetNumber() == b.GetNumber();
}

} // namespace

std::size_t BytesInUse() {
    auto const info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void SetLimit(unsigned seconds) {
    limit = seconds;
}

Limited::Limited() {
    SetTimer(limit);
}

Limited::~Limited() {
    SetTimer(0);
}

double Now() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

Items Course::AddItems(std::size_t count) {
    Items items(count);
    for (auto*& item : items)
        item = source.AddItem();
    return items;
}

Items Course::TakeOut(std::size_t count) {
    auto items = Draw(source, count);
    for (auto* const item : items)
        source.TakeOut(*item);
    return items;
}

Sample Course::Result(double value, std::optional<Column> column) const {
    Sample sample{value};
    Hash hash;
    auto const items = contestant->GetItems();
    for (auto next = items.begin(); next != items.end();) {
        auto const first = next++;
        while (next != items.end() && column && AreTied(**first, **next, *column))
            ++next;
        sample.tiesInOrder &= AddGroup(hash, {first, next});
    }
    sample.check = hash.Get();
    return sample;
}

} // namespace zbbench
