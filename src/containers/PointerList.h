// SPDX-License-Identifier: MIT
//! \file
//! A list of distinct objects in the order in which they came.
#pragma once

#include "containers/PointerIndex.h"
#include "containers/SlotVector.h"

#include <new>
#include <vector>

namespace zbbrowser::detail {

//! Pointers to objects that belong to somebody else, each at most once, in order of insertion.
//! Contains, Add and Remove are O(1).
template <class T>
class PointerList {
public:
    bool IsEmpty() const { return slots_.IsEmpty(); }
    std::size_t Count() const { return slots_.Count(); }

    //! Compares the pointer only, so a stale one is harmless.
    bool Contains(T const* object) const { return Find(object) != nullptr; }

    //! The object itself if it is in the list, otherwise null.
    T* Find(T const* object) const {
        auto const slot = SlotOf(object);
        return slot == PointerIndex::none ? nullptr : slots_[slot];
    }

    //! The last object; null if there is none.
    T* Last() { return slots_.Last(); }

    //! Makes room for `count` further objects, so that adding them takes no memory.
    void Reserve(std::size_t count) {
        slots_.Reserve(count);
        index_.Reserve(count);
    }

    //! Null: refused. False if it is there already. Failure: std::bad_alloc; the list is as before.
    bool Add(T* object) {
        if (object == nullptr || Contains(object))
            return false;
        Reserve(1);
        auto const slot = slots_.Append(object);
        index_.InsertIfAbsent(object, slot, [](Slot) { return false; });
        return true;
    }

    //! False if it is not there.
    bool Remove(T const* object) noexcept {
        auto const slot = SlotOf(object);
        if (slot == PointerIndex::none)
            return false;
        index_.Erase(object, slot);
        slots_.Take(slot);
        if (slots_.WantsCompaction())
            Compact();
        return true;
    }

    void Clear() {
        slots_.Clear();
        index_.Clear();
    }

    //! A copy, for loops that call the host.
    std::vector<T*> Snapshot() const {
        std::vector<T*> copy;
        AppendTo(copy);
        return copy;
    }

    void AppendTo(std::vector<T*>& out) const {
        out.reserve(out.size() + Count());
        ForEach([&](T* object) { out.push_back(object); });
    }

    //! The first object for which `isWanted` holds, otherwise null. `isWanted` may ask the host,
    //! and so may even change the list.
    template <class IsWanted>
    T* FindIf(IsWanted isWanted) const {
        for (std::size_t i = 0; i < slots_.Slots().size(); ++i) {
            T* const object = slots_.Slots()[i];
            if (object != nullptr && isWanted(object))
                return object;
        }
        return nullptr;
    }

    //! Requires: `visit` does not change the list.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (T* object : slots_.Slots()) {
            if (object != nullptr)
                visit(object);
        }
    }

private:
    using Slot = PointerIndex::Slot;

    // One is often asked for several times in a row.
    Slot SlotOf(T const* object) const {
        auto const isObject = [&](Slot slot) { return slots_[slot] == object; };
        if (object != nullptr && last_ < slots_.Slots().size() && isObject(last_))
            return last_;
        auto const slot = index_.Find(object, isObject);
        last_ = slot;
        return slot;
    }

    // Without the memory for it the holes stay until the next object goes.
    void Compact() noexcept try {
        std::vector<Slot> newSlot(slots_.Slots().size());
        slots_.Compact([&](T&, Slot from, Slot to) { newSlot[from] = to; });
        index_.Renumber(newSlot);
    } catch (std::bad_alloc const&) {
        return;
    }

    SlotVector<T*> slots_;
    PointerIndex index_;
    mutable Slot last_ = PointerIndex::none; // That was asked for; none if there was none
};

} // namespace zbbrowser::detail
