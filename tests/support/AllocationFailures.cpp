// SPDX-License-Identifier: MIT
//! \file
//! The replaced operators. Each goes on to the one that it replaces, so that the checks of a
//! sanitizer see what they would have seen without.
#include "AllocationFailures.h"

#include <cxxabi.h>
#include <dlfcn.h>

#include <atomic>
#include <exception>
#include <typeinfo>

namespace zbtest {

namespace {

std::atomic<long> allocations = 0;
std::atomic<long> live = 0;
thread_local constinit int depth = 0; // The operators of the standard library call each other

bool HandlesAnotherException() {
    auto const* const type = abi::__cxa_current_exception_type();
    return type != nullptr && *type != typeid(NoMemory);
}

class Nesting {
public:
    Nesting() { ++depth; }
    Nesting(Nesting const&) = delete;
    Nesting& operator=(Nesting const&) = delete;
    ~Nesting() { --depth; }

    static bool IsOutermost() { return depth == 1; }
};

//! The operator of that mangled name that comes next after those of this program.
template <class Operator>
Operator* Next(char const* name) {
    return reinterpret_cast<Operator*>(dlsym(RTLD_NEXT, name));
}

//! Null: it fails.
template <class... Args>
void* Allocate(void* (*next)(Args...), Args... args) {
    Nesting const nesting;
    if (Nesting::IsOutermost() && AllocationFailures::IsNext())
        return nullptr;
    void* const memory = next(args...);
    if (Nesting::IsOutermost() && memory != nullptr) {
        ++allocations;
        ++live;
    }
    return memory;
}

//! For a breakpoint.
[[noreturn, gnu::noinline]] void OnFailure() {
    throw NoMemory();
}

template <class... Args>
void* AllocateOrThrow(void* (*next)(Args...), Args... args) {
    void* const memory = Allocate(next, args...);
    if (memory == nullptr)
        OnFailure();
    return memory;
}

template <class... Args>
void Free(void (*next)(void*, Args...), void* memory, Args... args) noexcept {
    Nesting const nesting;
    if (Nesting::IsOutermost() && memory != nullptr)
        --live;
    next(memory, args...);
}

} // namespace

char const* NoMemory::what() const noexcept {
    AllocationFailures::End();
    return "an allocation failed on purpose";
}

void AllocationFailures::Begin(Failing failing, std::size_t first) {
    state_ = {true, false, failing, state_.pauses, first, 0};
}

bool AllocationFailures::IsNext() noexcept {
    auto& state = state_;
    if (!state.on || state.pauses > 0 || std::uncaught_exceptions() > 0 ||
        HandlesAnotherException())
        return false;
    auto const number = state.count++;
    auto const fails =
        state.failing == Failing::Once ? number == state.first : number >= state.first;
    state.hasFailed = state.hasFailed || fails;
    return fails;
}

long AllocationCount() {
    return allocations;
}

long LiveAllocations() {
    return live;
}

} // namespace zbtest

using zbtest::Allocate;
using zbtest::AllocateOrThrow;
using zbtest::Free;
using zbtest::Next;

using Size = std::size_t;
using Alignment = std::align_val_t;
using NoThrow = std::nothrow_t const&;

void* operator new(Size size) {
    static auto* const next = Next<void*(Size)>("_Znwm");
    return AllocateOrThrow(next, size);
}
void* operator new[](Size size) {
    static auto* const next = Next<void*(Size)>("_Znam");
    return AllocateOrThrow(next, size);
}
void* operator new(Size size, Alignment alignment) {
    static auto* const next = Next<void*(Size, Alignment)>("_ZnwmSt11align_val_t");
    return AllocateOrThrow(next, size, alignment);
}
void* operator new[](Size size, Alignment alignment) {
    static auto* const next = Next<void*(Size, Alignment)>("_ZnamSt11align_val_t");
    return AllocateOrThrow(next, size, alignment);
}
void* operator new(Size size, NoThrow tag) noexcept {
    static auto* const next = Next<void*(Size, NoThrow)>("_ZnwmRKSt9nothrow_t");
    return Allocate<Size, NoThrow>(next, size, tag);
}
void* operator new[](Size size, NoThrow tag) noexcept {
    static auto* const next = Next<void*(Size, NoThrow)>("_ZnamRKSt9nothrow_t");
    return Allocate<Size, NoThrow>(next, size, tag);
}
void* operator new(Size size, Alignment alignment, NoThrow tag) noexcept {
    static auto* const next =
        Next<void*(Size, Alignment, NoThrow)>("_ZnwmSt11align_val_tRKSt9nothrow_t");
    return Allocate<Size, Alignment, NoThrow>(next, size, alignment, tag);
}
void* operator new[](Size size, Alignment alignment, NoThrow tag) noexcept {
    static auto* const next =
        Next<void*(Size, Alignment, NoThrow)>("_ZnamSt11align_val_tRKSt9nothrow_t");
    return Allocate<Size, Alignment, NoThrow>(next, size, alignment, tag);
}

void operator delete(void* memory) noexcept {
    static auto* const next = Next<void(void*)>("_ZdlPv");
    Free(next, memory);
}
void operator delete[](void* memory) noexcept {
    static auto* const next = Next<void(void*)>("_ZdaPv");
    Free(next, memory);
}
void operator delete(void* memory, Size size) noexcept {
    static auto* const next = Next<void(void*, Size)>("_ZdlPvm");
    Free(next, memory, size);
}
void operator delete[](void* memory, Size size) noexcept {
    static auto* const next = Next<void(void*, Size)>("_ZdaPvm");
    Free(next, memory, size);
}
void operator delete(void* memory, Alignment alignment) noexcept {
    static auto* const next = Next<void(void*, Alignment)>("_ZdlPvSt11align_val_t");
    Free(next, memory, alignment);
}
void operator delete[](void* memory, Alignment alignment) noexcept {
    static auto* const next = Next<void(void*, Alignment)>("_ZdaPvSt11align_val_t");
    Free(next, memory, alignment);
}
void operator delete(void* memory, Size size, Alignment alignment) noexcept {
    static auto* const next = Next<void(void*, Size, Alignment)>("_ZdlPvmSt11align_val_t");
    Free(next, memory, size, alignment);
}
void operator delete[](void* memory, Size size, Alignment alignment) noexcept {
    static auto* const next = Next<void(void*, Size, Alignment)>("_ZdaPvmSt11align_val_t");
    Free(next, memory, size, alignment);
}
void operator delete(void* memory, NoThrow tag) noexcept {
    static auto* const next = Next<void(void*, NoThrow)>("_ZdlPvRKSt9nothrow_t");
    Free<NoThrow>(next, memory, tag);
}
void operator delete[](void* memory, NoThrow tag) noexcept {
    static auto* const next = Next<void(void*, NoThrow)>("_ZdaPvRKSt9nothrow_t");
    Free<NoThrow>(next, memory, tag);
}
void operator delete(void* memory, Alignment alignment, NoThrow tag) noexcept {
    static auto* const next =
        Next<void(void*, Alignment, NoThrow)>("_ZdlPvSt11align_val_tRKSt9nothrow_t");
    Free<Alignment, NoThrow>(next, memory, alignment, tag);
}
void operator delete[](void* memory, Alignment alignment, NoThrow tag) noexcept {
    static auto* const next =
        Next<void(void*, Alignment, NoThrow)>("_ZdaPvSt11align_val_tRKSt9nothrow_t");
    Free<Alignment, NoThrow>(next, memory, alignment, tag);
}
