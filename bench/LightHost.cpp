// SPDX-License-Identifier: MIT
#include "LightHost.h"

#include <algorithm>
#include <charconv>
#include <random>
#include <string_view>

namespace zbbench {

namespace {

//! Spreads the identities over all numbers (the finaliser of splitmix64).
std::uint64_t Mix(std::uint64_t id) {
    id = (id ^ (id >> 30U)) * 0xbf58476d1ce4e5b9U;
    id = (id ^ (id >> 27U)) * 0x94d049bb133111ebU;
    return id ^ (id >> 31U);
}

constexpr std::array<std::string_view, 16> words{
    "Bolt",  "bolt",  "BOLT",  "Washer", "washer", "WASHER", "Nut",   "nut",
    "Rivet", "RIVET", "Hinge", "hinge",  "Gasket", "GASKET", "screw", "Screw"};

Item const& ItemOf(zbIBrowserDataItem const* item) {
    return *static_cast<Item const*>(item);
}

//! The eight bytes that begin here, in lower case, as a number that orders as the bytes do.
std::uint64_t LowerCase(char const* text) {
    std::uint64_t bytes = 0;
    for (std::size_t i = 0; i < sizeof bytes; ++i)
        bytes = bytes << 8U | static_cast<unsigned char>(text[i]);
    constexpr std::uint64_t each = 0x0101010101010101U; // ASCII only, so no sum leaves its byte
    auto const fromA = bytes + each * (0x80U - 'A');
    auto const behindZ = bytes + each * (0x7fU - 'Z');
    return bytes | ((fromA & ~behindZ & each * 0x80U) >> 2U);
}

template <class T>
int Order(T a, T b) {
    return a < b ? -1 : static_cast<int>(b < a);
}

} // namespace

Item::Item(Source& source, std::uint32_t id, std::uint32_t names)
    : source_(source)
    , number_(static_cast<int>(Mix(std::uint64_t{id} + 1) % names))
    , id_(id) {
    Rename(id, names);
}

void Item::Rename(std::uint64_t lot, std::uint32_t names) {
    auto const drawn = Mix(~lot);
    auto const& word = words[drawn % words.size()];
    name_.fill('\0');
    auto* end = std::copy(word.begin(), word.end(), name_.data());
    *end++ = ' ';
    std::to_chars(end, name_.end() - 1, (drawn >> 8U) % (names / 7 + 1));
}

std::array<std::uint64_t, 2> Item::GetNameKey() const {
    auto const rest = name_.size() - sizeof(std::uint64_t);
    return {LowerCase(name_.data()), LowerCase(&name_[rest])};
}

int Item::CompareName(Item const& other) const {
    auto const rest = name_.size() - sizeof(std::uint64_t);
    auto const first = Order(LowerCase(name_.data()), LowerCase(other.name_.data()));
    return first != 0 ? first : Order(LowerCase(&name_[rest]), LowerCase(&other.name_[rest]));
}

zbIBrowserDataSourceSimple* Item::GetDataSource() const {
    return &source_;
}

bool NameProperty::GetString(zbIBrowserDataItem* item, zbIBrowserDataItem*, zbString& out) {
    out = ItemOf(item).GetName();
    return true;
}

char const* NameProperty::GetTextPointer(zbIBrowserDataItem* item, zbIBrowserDataItem*) {
    return ItemOf(item).GetName();
}

bool NumberProperty::GetInteger(zbIBrowserDataItem* item, zbIBrowserDataItem*, int& out) {
    out = ItemOf(item).GetNumber();
    return true;
}

bool FlagProperty::GetBoolean(zbIBrowserDataItem* item, zbIBrowserDataItem*, bool& out) {
    out = ItemOf(item).GetNumber() % 2 == 0;
    return true;
}

Source::Source(std::size_t count)
    : names_(static_cast<std::uint32_t>(count) + 1) {
    for (std::size_t i = 0; i < count; ++i)
        AddItem();
}

Item* Source::AddItem() {
    return &items_.emplace_back(*this, static_cast<std::uint32_t>(items_.size()), names_);
}

std::vector<Item*> Draw(Source& source, std::size_t count) {
    std::vector<Item*> items;
    items.reserve(source.Items().size());
    for (auto& item : source.Items())
        items.push_back(&item);
    std::shuffle(items.begin(), items.end(), std::mt19937_64(5));
    items.resize(std::min(count, items.size()));
    return items;
}

bool Source::GetDataItems(std::vector<zbIBrowserDataItemSimple*>& out) {
    out.reserve(items_.size());
    for (auto& item : items_) {
        if (item.isListed)
            out.push_back(&item);
    }
    return true;
}

bool Source::CompareByDataProperty(zbIBrowserDataItem* a, zbIBrowserDataProperty*,
                                   zbIBrowserDataItem* b, zbIBrowserDataProperty*, int& cmp) {
    ++comparisons;
    cmp = Order(ItemOf(a).GetNumber(), ItemOf(b).GetNumber());
    return true;
}

bool Source::CompareByName(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) {
    ++comparisons;
    cmp = ItemOf(a).CompareName(ItemOf(b));
    return true;
}

bool Source::CompareById(zbIBrowserDataItem* a, zbIBrowserDataItem* b, int& cmp) {
    ++comparisons;
    cmp = Order(ItemOf(a).GetId(), ItemOf(b).GetId());
    return true;
}

zbBrowserView& Manager::NewView(zbBrowserViewCtrl& controller) {
    CreateView(controller, "view", false);
    return *controller.OLD_FindView("view");
}

LightView::LightView(Source& shown)
    : source(shown)
    , dataCtrl(source)
    , controller(CreateBrowserViewCtrl(&manager))
    , view(manager.NewView(*controller)) {
    view.SetDataCtrl(&dataCtrl);
    view.DataSourceConnect(&source);
}

} // namespace zbbench
