// SPDX-License-Identifier: MIT
#include "selection/ItemSet.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace zbbrowser::detail {

bool ItemSet::Insert(Item* item) {
    auto const place = PlaceOf(item);
    auto& page = RequirePage(place.page);
    if (page.Has(place.bit))
        return false;
    page.Flip(place.bit);
    ++page.count;
    ++count_;
    return true;
}

bool ItemSet::Erase(Item const* item) {
    if (!Contains(item))
        return false;
    auto const place = PlaceOf(item);
    auto& page = *FindPage(place.page);
    page.Flip(place.bit);
    --count_;
    if (--page.count == 0) {
        pages_.erase(place.page);
        lastPage_ = nullptr;
    }
    return true;
}

void ItemSet::Clear() {
    pages_.clear();
    count_ = 0;
    lastPage_ = nullptr;
}

ItemSet::Page& ItemSet::RequirePage(std::uintptr_t number) {
    if (FindPage(number) == nullptr) {
        auto page = std::make_unique<Page>();
        lastPage_ = pages_.emplace(number, std::move(page)).first->second.get();
    }
    return *lastPage_;
}

void ItemSet::AppendTo(std::vector<Item*>& out) const {
    std::vector<std::pair<std::uintptr_t, Page const*>> pages;
    pages.reserve(pages_.size());
    for (auto const& [number, page] : pages_)
        pages.emplace_back(number, page.get());
    std::sort(pages.begin(), pages.end());
    out.reserve(out.size() + count_);
    for (auto const& [number, page] : pages)
        AppendPageTo(out, number, *page);
}

void ItemSet::AppendPageTo(std::vector<Item*>& out, std::uintptr_t number, Page const& page) {
    for (std::size_t i = 0; i < page.words.size(); ++i) {
        for (auto word = page.words[i]; word != 0; word &= word - 1) {
            auto const bit = i * wordBits + static_cast<std::size_t>(std::countr_zero(word));
            out.push_back(reinterpret_cast<Item*>((number << pageBits) | (bit << itemBits)));
        }
    }
}

} // namespace zbbrowser::detail
