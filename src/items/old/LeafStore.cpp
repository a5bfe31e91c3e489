// SPDX-License-Identifier: MIT
#include "items/old/LeafStore.h"

#include <algorithm>
#include <iterator>

namespace zbbrowser::detail {

LeafStore::Leaf* LeafStore::Find(zbIBrowserDataItemSimple const* item) const {
    if (item == nullptr || !IsIndexInStep())
        return nullptr;
    auto const slot =
        index_.Find(item, [&](Slot candidate) { return slots_[candidate]->dataItem_ == item; });
    return slot == PointerIndex::none ? nullptr : slots_[slot];
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
    leaf.slot_ = slot;
    leaf.sourceNumber_ = number & 0x3fffffffU;
    leaf.listed_ = 1;
    if (leaf.IsHidden())
        NoteHidden(true);
}

void LeafStore::Take(Leaf& leaf) {
    auto& source = sources_[leaf.sourceNumber_];
    if (--source.count == 0)
        source.runs.clear();
    index_.Erase(leaf.dataItem_, leaf.slot_);
    slots_.Take(leaf.slot_);
    leaf.listed_ = 0;
    if (leaf.IsHidden())
        NoteHidden(false);
    if (slots_.WantsCompaction())
        Compact();
}

void LeafStore::Take(std::vector<Leaf*> const& leaves) {
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
}

void LeafStore::MarkAllGone() {
    ForEach([](Leaf& leaf) { leaf.listed_ = 0; });
}

void LeafStore::AppendAllTo(std::vector<zbIBrowserViewItem*>& out) const {
    auto const& slots = slots_.Slots();
    if (!slots_.HasHoles()) {
        out.insert(out.end(), slots.begin(), slots.end());
        return;
    }
    out.reserve(out.size() + Count());
    std::copy_if(slots.begin(), slots.end(), std::back_inserter(out),
                 [](Leaf const* leaf) { return leaf != nullptr; });
}

void LeafStore::AppendVisibleTo(std::vector<zbIBrowserViewItem*>& out, bool ascending) const {
    if (hidden_ == 0 && ascending) {
        AppendAllTo(out);
        return;
    }
    auto const& slots = slots_.Slots();
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
    leaves.reserve(sources_[found->second].count);
    for (auto const& run : sources_[found->second].runs) {
        for (Slot slot = run.first; slot < run.last; ++slot) {
            if (slots_[slot] != nullptr)
                leaves.push_back(slots_[slot]);
        }
    }
    return leaves;
}

std::size_t LeafStore::CountOf(zbIBrowserDataSource const* source) const {
    auto const found = sourceNumbers_.find(source);
    return found == sourceNumbers_.end() ? 0 : sources_[found->second].count;
}

std::vector<LeafStore::Leaf*>
LeafStore::FindAll(std::set<zbIBrowserDataItemSimple*> const& items) const {
    std::vector<Leaf*> found;
    for (auto const* const item : items) {
        if (auto* const leaf = Find(item); leaf != nullptr)
            found.push_back(leaf);
    }
    std::sort(found.begin(), found.end(),
              [](Leaf const* a, Leaf const* b) { return a->slot_ < b->slot_; });
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
    if (source.runs.empty() || source.runs.back().last != slot)
        source.runs.push_back({slot, slot});
    source.runs.back().last = slot + 1;
}

void LeafStore::Compact() {
    std::vector<Slot> newSlot(slots_.Slots().size());
    slots_.Compact([&](Leaf& leaf, Slot from, Slot to) {
        newSlot[from] = to;
        leaf.slot_ = to;
    });
    index_.Renumber(newSlot);
    RebuildRuns();
}

void LeafStore::RebuildRuns() {
    for (auto& source : sources_)
        source.runs.clear();
    for (auto* const leaf : slots_.Slots())
        ExtendRuns(sources_[leaf->sourceNumber_], leaf->slot_);
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
