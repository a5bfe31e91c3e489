// SPDX-License-Identifier: MIT
#include "CountingNew.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {
std::size_t bytesInUse = 0;
std::size_t allocations = 0;
// What the allocator keeps in front of each block.
constexpr std::size_t blockHeader = sizeof(std::size_t);
} // namespace

namespace zbbench {
std::size_t BytesInUse() {
    return bytesInUse;
}
std::size_t Allocations() {
    return allocations;
}
} // namespace zbbench

static void* Count(void* block) {
    if (block == nullptr)
        throw std::bad_alloc();
    bytesInUse += malloc_usable_size(block) + blockHeader;
    ++allocations;
    return block;
}

void* operator new(std::size_t size) {
    return Count(std::malloc(size == 0 ? 1 : size));
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    void* block = nullptr;
    if (posix_memalign(&block, static_cast<std::size_t>(alignment), size) != 0)
        block = nullptr;
    return Count(block);
}

void operator delete(void* block) noexcept {
    if (block == nullptr)
        return;
    bytesInUse -= malloc_usable_size(block) + blockHeader;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}

void operator delete(void* block, std::align_val_t) noexcept {
    operator delete(block);
}

void operator delete(void* block, std::size_t, std::align_val_t) noexcept {
    operator delete(block);
}
