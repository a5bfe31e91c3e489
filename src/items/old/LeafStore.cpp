// SPDX-License-Identifier: MIT
#include "items/old/LeafStore.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <new>

namespace zbbrowser::detail {

LeafStore::Leaf* LeafStore::Find(zbIBrowserDataItemSimple const* item) const {
    if (item == nullptr || !IsIndexInStep())
        return nullptr;
    auto const slot =
        index_.Find(item, [&](Slot candidate) { return slots_[candidate]->dataItem_ == item; });
    return slot == PointerIndex::none ? nullptr : slots_[slot];
}

LeafStore::Search::Search(LeafStore const& store, Items const& items)
    : store_(store)
    , items_(items) {
}

// With the same leaves as when it was guessed, a guess is nearly always right: two items rarely
// share the hash.
LeafStore::Leaf* LeafStore::Search::Find(std::size_t i) {
    while (next_ <= i + 3 * prefetchDistance)
        LookAhead(next_++);
    auto const& guess = guesses_[i % guesses_.size()];
    if (guess.changes != store_.changes_ || !store_.IsIndexInStep())
        return store_.Find(items_[i]);
    if (guess.slot == PointerIndex::none)
        return nullptr;
    auto* const leaf = store_.slots_[guess.slot];
    return leaf->dataItem_ == items_[i] ? leaf : store_.Find(items_[i]);
}

// Of three items a different thing each. (What would be before the first one is behind the last.)
void LeafStore::Search::LookAhead(std::size_t i) {
    auto const count = items_.size();
    if (i < count)
        store_.index_.Prefetch(items_[i]);
    if (auto const k = i - prefetchDistance; k < count) {
        auto const slot = store_.index_.Guess(items_[k]);
        guesses_[k % guesses_.size()] = {slot, store_.changes_};
        if (slot != PointerIndex::none)
            Prefetch(&store_.slots_[slot]);
    }
    if (auto const k = i - 2 * prefetchDistance; k < count) {
        auto const& guess = guesses_[k % guesses_.size()];
        if (guess.slot != PointerIndex::none && guess.changes == store_.changes_)
            Prefetch(store_.slots_[guess.slot]);
    }
}

void LeafStore::Reserve(std::size_t count) {
    slots_.Reserve(count);
    index_.Reserve(count);
}

void LeafStore::Append(Leaf& leaf, zbIBrowserDataSource const* source) {
    Reserve(1);
    auto const number = NumberOf(source);
    auto const slot = static_cast<Slot>(slots_.Slots().size());
    ExtendRuns(sources_[number], slot);

    auto const* const item = leaf.dataItem_;
    index_.InsertIfAbsent(item, slot,
                          [&](Slot candidate) { return slots_[candidate]->dataItem_ == item; });
    slots_.Append(&leaf);
    ++sources_[number].count;
    ++changes_;
    leaf.slot_ = slot;
    leaf.sourceNumber_ = number & 0x3fffffffU;
    leaf.listed_ = 1;
    if (leaf.IsHidden())
        NoteHidden(true);
}

void LeafStore::Take(Leaf& leaf) noexcept {
    auto& source = sources_[leaf.sourceNumber_];
    if (--source.count == 0) {
        source.runs.clear();
        source.isMixed = false;
    }
    index_.Erase(leaf.dataItem_, leaf.slot_);
    slots_.Take(leaf.slot_);
    ++changes_;
    hasLost_ = orderedEnd_ > 0;
    if (slots_.Slots().size() < orderedEnd_)
        ForgetOrder(); // It was the last one, and all slots have gone
    leaf.listed_ = 0;
    if (leaf.IsHidden())
        NoteHidden(false);
    if (slots_.WantsCompaction())
        Compact();
}

void LeafStore::Take(std::vector<Leaf*> const& leaves) noexcept {
    if (leaves.size() == Count()) {
        Clear();
        return;
    }
    for (auto* const leaf : leaves)
        Take(*leaf);
}

std::vector<LeafStore::Leaf*> LeafStore::TakeAll() {
    auto all = Snapshot();
    Clear();
    return all;
}

void LeafStore::Clear() {
    MarkAllGone();
    slots_.Clear();
    index_.Clear();
    sources_.clear();
    sourceNumbers_.clear();
    lastSource_ = nullptr;
    hidden_ = 0;
    ForgetOrder();
}

void LeafStore::MarkAllGone() {
    ForEach([](Leaf& leaf) { leaf.listed_ = 0; });
}

void LeafStore::AppendAllTo(std::vector<zbIBrowserViewItem*>& out) const {
    out.reserve(out.size() + Count());
    AppendSlots(0, static_cast<Slot>(slots_.Slots().size()), out);
}

void LeafStore::AppendVisibleTo(std::vector<zbIBrowserViewItem*>& out, bool ascending) const {
    auto const& slots = slots_.Slots();
    if (hidden_ == 0 && ascending) {
        AppendAllTo(out);
        return;
    }
    if (hidden_ == 0 && !slots_.HasHoles()) {
        out.insert(out.end(), slots.rbegin(), slots.rend());
        return;
    }
    auto const isVisible = [](Leaf const* leaf) { return leaf != nullptr && !leaf->IsHidden(); };
    out.reserve(out.size() + Count() - hidden_);
    if (ascending)
        std::copy_if(slots.begin(), slots.end(), std::back_inserter(out), isVisible);
    else
        std::copy_if(slots.rbegin(), slots.rend(), std::back_inserter(out), isVisible);
}

std::vector<LeafStore::Leaf*> LeafStore::Snapshot() const {
    std::vector<Leaf*> all;
    all.reserve(Count());
    std::copy_if(slots_.Slots().begin(), slots_.Slots().end(), std::back_inserter(all),
                 [](Leaf const* leaf) { return leaf != nullptr; });
    return all;
}

std::vector<LeafStore::Leaf*> LeafStore::SnapshotOf(zbIBrowserDataSource const* source) const {
    std::vector<Leaf*> leaves;
    auto const found = sourceNumbers_.find(source);
    if (found == sourceNumbers_.end())
        return leaves;
    auto const number = found->second;
    auto const& wanted = sources_[number];
    leaves.reserve(wanted.count);
    for (auto const& run : wanted.runs) {
        for (Slot slot = run.first; slot < run.last; ++slot) {
            auto* const leaf = slots_[slot];
            if (leaf != nullptr && (!wanted.isMixed || leaf->sourceNumber_ == number))
                leaves.push_back(leaf);
        }
    }
    return leaves;
}

std::size_t LeafStore::CountOf(zbIBrowserDataSource const* source) const {
    if (source == lastSource_ && !sources_.empty())
        return sources_[lastNumber_].count;
    auto const found = sourceNumbers_.find(source);
    return found == sourceNumbers_.end() ? 0 : sources_[found->second].count;
}

bool LeafStore::IsOf(Leaf const& leaf, zbIBrowserDataSource const* source) const {
    if (source == lastSource_)
        return leaf.sourceNumber_ == lastNumber_;
    auto const found = sourceNumbers_.find(source);
    return found != sourceNumbers_.end() && found->second == leaf.sourceNumber_;
}

// One slot in 64 or more: marking them and looking at all marks takes less than sorting.
void LeafStore::SortUnique(std::vector<Slot>& slots) const {
    constexpr std::size_t bits = 64;
    if (slots.size() < slots_.Slots().size() / bits) {
        std::sort(slots.begin(), slots.end());
        slots.erase(std::unique(slots.begin(), slots.end()), slots.end());
        return;
    }
    std::vector<std::uint64_t> marks(slots_.Slots().size() / bits + 1);
    for (auto const slot : slots)
        marks[slot / bits] |= std::uint64_t{1} << (slot % bits);
    slots.clear();
    for (std::size_t i = 0; i < marks.size(); ++i) {
        for (auto word = marks[i]; word != 0; word &= word - 1)
            slots.push_back(
                static_cast<Slot>(i * bits + static_cast<std::size_t>(std::countr_zero(word))));
    }
}

std::vector<LeafStore::Leaf*>
LeafStore::FindAll(std::vector<zbIBrowserDataItemSimple*> const& items) const {
    std::vector<Slot> slots;
    slots.reserve(items.size());
    Search search(*this, items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (auto const* const leaf = search.Find(i); leaf != nullptr)
            slots.push_back(leaf->slot_);
    }
    SortUnique(slots);
    std::vector<Leaf*> found(slots.size());
    std::transform(slots.begin(), slots.end(), found.begin(),
                   [this](Slot slot) { return slots_[slot]; });
    return found;
}

std::uint32_t LeafStore::NumberOf(zbIBrowserDataSource const* source) {
    if (source == lastSource_ && !sources_.empty())
        return lastNumber_;
    auto const next = static_cast<std::uint32_t>(sources_.size());
    auto const [found, isNew] = sourceNumbers_.try_emplace(source, next);
    if (isNew) {
        try {
            sources_.emplace_back();
        } catch (...) {
            sourceNumbers_.erase(found);
            throw;
        }
    }
    lastSource_ = source;
    lastNumber_ = found->second;
    return lastNumber_;
}

void LeafStore::ExtendRuns(Source& source, Slot slot) {
    if (source.runs.empty() || source.runs.back().last + bridgedSlots < slot)
        source.runs.push_back({slot, slot});
    else if (source.runs.back().last != slot)
        source.isMixed = true;
    source.runs.back().last = slot + 1;
}

// Without the memory for it the holes stay until the next leaf goes.
void LeafStore::Compact() noexcept try {
    constexpr Slot gone = ~Slot{0};
    std::vector<Slot> newSlot(slots_.Slots().size(), gone);
    auto sources = SourcesInOrder(slots_.Slots());
    Slot ordered = 0;
    slots_.Compact([&](Leaf& leaf, Slot from, Slot to) {
        newSlot[from] = to;
        leaf.slot_ = to;
        if (from < orderedEnd_)
            ordered = to + 1;
    });
    orderedEnd_ = ordered;
    for (auto& slot : loose_)
        slot = newSlot[slot];
    std::erase(loose_, gone);
    index_.Renumber(newSlot);
    sources_ = std::move(sources);
} catch (std::bad_alloc const&) {
    return;
}

// No leaf is looked at: in the order of a sort they lie all over the memory.
std::size_t LeafStore::AppendOrderedFirst(std::vector<zbIBrowserViewItem*>& out) {
    SortUnique(loose_);
    out.reserve(out.size() + Count());
    auto const before = out.size();
    Slot from = 0;
    for (auto const slot : loose_) {
        AppendSlots(from, slot, out);
        from = slot + 1;
    }
    AppendSlots(from, orderedEnd_, out);
    auto const ordered = out.size() - before;
    for (auto const slot : loose_)
        AppendSlots(slot, slot + 1, out);
    AppendSlots(orderedEnd_, static_cast<Slot>(slots_.Slots().size()), out);
    return ordered;
}

void LeafStore::AppendSlots(Slot from, Slot to, std::vector<zbIBrowserViewItem*>& out) const {
    auto const first = slots_.Slots().begin() + static_cast<std::ptrdiff_t>(from);
    auto const last = slots_.Slots().begin() + static_cast<std::ptrdiff_t>(to);
    if (slots_.HasHoles())
        std::copy_if(first, last, std::back_inserter(out),
                     [](Leaf const* leaf) { return leaf != nullptr; });
    else
        out.insert(out.end(), first, last);
}

void LeafStore::ForgetOrder() {
    orderedEnd_ = 0;
    loose_.clear();
    hasLost_ = false;
    ++changes_;
}

void LeafStore::ForgetOrder(Leaf const& leaf) noexcept {
    if (leaf.slot_ >= orderedEnd_)
        return;
    NoteChanged(leaf);
    hasLost_ = true;
    ++changes_;
}

void LeafStore::NoteChanged(Leaf const& leaf) noexcept try {
    if (leaf.slot_ >= orderedEnd_)
        return;
    if (loose_.size() >= 2 * std::size_t{orderedEnd_})
        SortUnique(loose_); // Many came more than once
    loose_.push_back(leaf.slot_);
} catch (std::bad_alloc const&) {
    ForgetOrder();
}

// Leaves lie all over the memory in any order but that of their creation, so they are fetched some
// ahead.
void LeafStore::Reorder(std::vector<zbIBrowserViewItem*> const& order) {
    std::vector<Slot> newSlot(slots_.Slots().size());
    auto sources = SourcesInOrder(order);
    slots_.Reorder(order.size(), [&](Slot slot) {
        if (slot + prefetchDistance < order.size())
            Prefetch(order[slot + prefetchDistance]);
        auto* const leaf = static_cast<Leaf*>(order[slot]);
        newSlot[leaf->slot_] = slot;
        leaf->slot_ = slot;
        return leaf;
    });
    index_.Renumber(newSlot);
    sources_ = std::move(sources);
    orderedEnd_ = static_cast<Slot>(order.size());
    loose_.clear();
    hasLost_ = false;
    ++changes_;
}

// With one source there is nothing to ask the leaves for.
template <class Item>
std::vector<LeafStore::Source> LeafStore::SourcesInOrder(std::vector<Item*> const& order) const {
    std::vector<Source> sources(sources_.size());
    if (sources.size() == 1) {
        sources.front() = {{{0, static_cast<Slot>(Count())}}, Count()};
        return sources;
    }
    Slot slot = 0;
    for (auto const* const item : order) {
        if (item == nullptr)
            continue;
        auto& source = sources[static_cast<Leaf const*>(item)->sourceNumber_];
        ExtendRuns(source, slot++);
        ++source.count;
    }
    return sources;
}

bool LeafStore::IsConsistent() const {
    std::size_t hidden = 0;
    std::size_t found = 0;
    for (auto const* leaf : slots_.Slots()) {
        if (leaf == nullptr)
            continue;
        if (!leaf->IsListed() || slots_[leaf->slot_] != leaf)
            return false;
        hidden += leaf->IsHidden() ? 1U : 0U;
        found += Find(leaf->dataItem_) == leaf ? 1U : 0U;
    }
    std::size_t ofSources = 0;
    for (auto const& [source, number] : sourceNumbers_) {
        if (SnapshotOf(source).size() != sources_[number].count)
            return false;
        ofSources += sources_[number].count;
    }
    return hidden == hidden_ && ofSources == Count() && (!IsIndexInStep() || found == Count());
}

} // namespace zbbrowser::detail
