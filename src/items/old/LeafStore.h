// SPDX-License-Identifier: MIT
//! \file
//! The leaves of one place, found by order, by data item and by source.
#pragma once

#include "containers/PointerIndex.h"
#include "containers/Prefetch.h"
#include "containers/SlotVector.h"
#include "items/old/zbBrowserViewItemDataLeaf.h"

#include <array>
#include <unordered_map>
#include <vector>

class zbIBrowserDataSource;
class zbIBrowserViewItem;

namespace zbbrowser::detail {

//! An ordered list of leaves with an index by data item and one by source. Adding, finding and
//! taking out a leaf are O(1) amortised; the leaves of a source are listed without looking at the
//! others; a reader learns without looking at each leaf that nothing is hidden.
//!
//! The index holds the first leaf of a data item only. While it has fewer entries than there are
//! leaves it is out of step, and then every look-up finds nothing.
//!
//! The store neither makes nor frees leaves, and it calls nobody. A loop that does call somebody
//! runs over a snapshot and asks each leaf whether it is still listed.
class LeafStore {
public:
    using Leaf = zbBrowserViewItemDataLeaf;

    std::size_t Count() const { return slots_.Count(); }
    bool IsEmpty() const { return slots_.IsEmpty(); }
    bool HasVisible() const { return Count() > hidden_; }
    bool IsIndexInStep() const { return index_.Count() == slots_.Count(); }

    //! The leaf of a data item; null if there is none or the index is out of step.
    Leaf* Find(zbIBrowserDataItemSimple const* item) const;
    void PrefetchFind(zbIBrowserDataItemSimple const* item) const { index_.Prefetch(item); }
    class Search;

    //! Makes room for `count` further leaves.
    void Reserve(std::size_t count);

    //! Puts a leaf behind the last one. `source` is the source of its data item.
    //! Failure: std::bad_alloc; the store is as before.
    void Append(Leaf& leaf, zbIBrowserDataSource const* source);

    //! Takes one leaf out. Requires: it is listed here.
    void Take(Leaf& leaf) noexcept;

    //! Takes several leaves out. Requires: they are distinct and listed here.
    void Take(std::vector<Leaf*> const& leaves) noexcept;

    //! Requires: `visit` changes nothing here; it may free the leaf if the store goes next.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (auto* const leaf : slots_.Slots()) {
            if (leaf != nullptr)
                visit(*leaf);
        }
    }

    //! Takes all leaves out.
    std::vector<Leaf*> TakeAll();

    //! The leaves stay, but each counts as taken out from now on.
    void MarkAllGone();

    void AppendAllTo(std::vector<zbIBrowserViewItem*>& out) const;
    void AppendVisibleTo(std::vector<zbIBrowserViewItem*>& out, bool ascending) const;
    std::vector<Leaf*> Snapshot() const;
    std::vector<Leaf*> SnapshotOf(zbIBrowserDataSource const* source) const;
    std::size_t CountOf(zbIBrowserDataSource const* source) const;
    //! A leaf that is listed here came with that source.
    bool IsOf(Leaf const& leaf, zbIBrowserDataSource const* source) const;
    //! The leaves of these data items, each once, in the order of the leaves.
    std::vector<Leaf*> FindAll(std::vector<zbIBrowserDataItemSimple*> const& items) const;

    //! \name Order
    //! The leaves stand in the order in which they came until they are given another one, and what
    //! comes after that stands behind them.
    //! \{
    //! All are as Reorder left them, and none has gone since, or there are none.
    bool IsOrdered() const { return orderedEnd_ == slots_.Slots().size() && !hasLost_; }
    //! All are as Reorder left them and not known to have changed, though some may have gone.
    bool AreInPlace() const { return orderedEnd_ == slots_.Slots().size() && loose_.empty(); }
    //! They are ordered again. Requires: AreInPlace().
    void NoteOrdered() { hasLost_ = false; }
    //! Those that are as Reorder left them and are not known to have changed, then the others.
    //! Answers how many the former are.
    std::size_t AppendOrderedFirst(std::vector<zbIBrowserViewItem*>& out);
    //! Puts the leaves into this order. O(leaves).
    //! Requires: `order` holds the leaves of this store and nothing else.
    //! Failure: std::bad_alloc; the store is as before.
    void Reorder(std::vector<zbIBrowserViewItem*> const& order);
    //! From now on the leaves count as not ordered. They stay where they are.
    void ForgetOrder();
    //! The same for one leaf, as often as one likes. Amortized O(1). Without the memory for one it
    //! is done for all.
    void ForgetOrder(Leaf const& leaf) noexcept;
    //! What a leaf is ordered by may have changed. It still counts as ordered, but
    //! AppendOrderedFirst gives it among the others. Amortized O(1).
    void NoteChanged(Leaf const& leaf) noexcept;
    //! Changes with each leaf that comes or goes and with each new or lost order.
    std::size_t ChangeNumber() const { return changes_; }
    //! \}

    //! A listed leaf was hidden or shown.
    void NoteHidden(bool hidden) { hidden ? ++hidden_ : --hidden_; }

    //! Throws nothing and changes nothing: true if all that is kept twice agrees. For tests.
    bool IsConsistent() const;

private:
    using Slot = SlotVector<Leaf*>::Slot;

    // The slots from first up to last hold leaves of the source or nothing, and, if the source is
    // mixed, some of other sources in between.
    struct Run {
        Slot first;
        Slot last;
    };
    struct Source {
        std::vector<Run> runs;
        std::size_t count = 0;
        bool isMixed = false;
    };
    // Leaves of other sources that a run may bridge: without bridges, an order in which sources
    // alternate would cost a run for each leaf.
    static constexpr Slot bridgedSlots = 8;

    std::uint32_t NumberOf(zbIBrowserDataSource const* source);
    void SortUnique(std::vector<Slot>& slots) const;
    void AppendSlots(Slot from, Slot to, std::vector<zbIBrowserViewItem*>& out) const;
    void Clear();
    void Compact() noexcept;
    //! What sources_ will be when the leaves stand in this order; null stands for none.
    template <class Item>
    std::vector<Source> SourcesInOrder(std::vector<Item*> const& order) const;
    static void ExtendRuns(Source& source, Slot slot);

    SlotVector<Leaf*> slots_;
    PointerIndex index_;
    std::vector<Source> sources_;
    std::unordered_map<zbIBrowserDataSource const*, std::uint32_t> sourceNumbers_;
    zbIBrowserDataSource const* lastSource_ = nullptr; // Of the last Append, with its number
    std::uint32_t lastNumber_ = 0;
    std::size_t hidden_ = 0;
    Slot orderedEnd_ = 0;     // The slots before it are as Reorder left them
    std::vector<Slot> loose_; // Slots before it that are not, or whose leaves have changed; some
                              // may be empty or come twice
    bool hasLost_ = false;    // Some of them are not, or have gone since
    std::size_t changes_ = 0;
};

//! Finds the leaves of many data items in turn. What memory has to bring for an item is asked for
//! while those before it are looked at: its entry in the index, its place in the list, the leaf.
class LeafStore::Search {
public:
    using Items = std::vector<zbIBrowserDataItemSimple*>;

    //! Both must outlive the search, and the items stay as they are. The store may change.
    Search(LeafStore const& store, Items const& items);

    //! The same as the store's Find of items[i]. To be called for 0, 1 and so on.
    Leaf* Find(std::size_t i);

private:
    struct Guess {
        Slot slot = PointerIndex::none;
        std::size_t changes = 0; // Of the store, until then
    };

    void LookAhead(std::size_t i);

    LeafStore const& store_;
    Items const& items_;
    std::array<Guess, 4 * prefetchDistance> guesses_; // Of the items that come next, in a ring
    std::size_t next_ = 0;
};

} // namespace zbbrowser::detail
