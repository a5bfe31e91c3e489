// SPDX-License-Identifier: MIT
//! \file
//! The place of a virtual operation in its class, for tests that hold the order of an interface.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zbtest {

//! Whether VirtualSlot knows how this compiler represents a pointer to a virtual member.
inline constexpr bool canReadVirtualSlots =
#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__))
    true;
#else
    false;
#endif

//! The 0-based place of a virtual operation in the table of its class. The pointer to a virtual
//! member holds the offset in that table plus one, and then an adjustment of the object.
template <class MemberPointer>
[[nodiscard]] std::size_t VirtualSlot(MemberPointer operation) {
    struct Representation {
        std::ptrdiff_t pointer;
        std::ptrdiff_t adjustment;
    } representation{};
    static_assert(sizeof(representation) == sizeof(operation));
    std::memcpy(&representation, &operation, sizeof operation);
    bool const isVirtual = (representation.pointer & 1) != 0;
    return isVirtual ? static_cast<std::size_t>(representation.pointer - 1) / sizeof(void*)
                     : static_cast<std::size_t>(-1);
}

//! Operations of an interface with their places.
using VirtualSlots = std::vector<std::pair<std::string, std::size_t>>;

//! The same operations with the places that they have if they stand in this order, without gaps,
//! from `first` on.
[[nodiscard]] inline VirtualSlots InThisOrder(VirtualSlots slots, std::size_t first = 0) {
    for (auto& [name, place] : slots) {
        place = first++;
    }
    return slots;
}

} // namespace zbtest

//! An operation of an interface with its place; for an overloaded one, ZB_OVERLOAD_SLOT.
#define ZB_SLOT(interface, operation)                                                              \
    zbtest::VirtualSlots::value_type(#operation, zbtest::VirtualSlot(&interface::operation))

//! As ZB_SLOT, with the type of the function, such as `void(int) const`, to choose the overload.
#define ZB_OVERLOAD_SLOT(interface, operation, ...)                                                \
    zbtest::VirtualSlots::value_type(                                                              \
        #operation " " #__VA_ARGS__,                                                               \
        zbtest::VirtualSlot<std::type_identity_t<__VA_ARGS__> interface::*>(                       \
            &interface::operation))
