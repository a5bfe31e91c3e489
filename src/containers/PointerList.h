// SPDX-License-Identifier: MIT
//! \file
//! A list of distinct objects in the order in which they came.
#pragma once

#include "containers/SlotVector.h"

#include <unordered_map>
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
    bool Contains(T const* object) const { return slotOf_.contains(object); }

    //! The object itself if it is in the list, otherwise null.
    T* Find(T const* object) const {
        auto const found = slotOf_.find(object);
        return found == slotOf_.end() ? nullptr : slots_[found->second];
    }

    //! Null: refused. False if it is there already.
    bool Add(T* object) {
        if (object == nullptr || Contains(object))
            return false;
        slots_.Reserve(1);
        slotOf_.emplace(object, static_cast<typename SlotVector<T*>::Slot>(slots_.Slots().size()));
        slots_.Append(object);
        return true;
    }

    //! False if it is not there.
    bool Remove(T const* object) {
        auto const found = slotOf_.find(object);
        if (found == slotOf_.end())
            return false;
        slots_.Take(found->second);
        slotOf_.erase(found);
        if (slots_.WantsCompaction())
            slots_.Compact([this](T& moved, auto, auto to) { slotOf_[&moved] = to; });
        return true;
    }

    void Clear() {
        slots_.Clear();
        slotOf_.clear();
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
    SlotVector<T*> slots_;
    std::unordered_map<T const*, typename SlotVector<T*>::Slot> slotOf_;
};

} // namespace zbbrowser::detail
