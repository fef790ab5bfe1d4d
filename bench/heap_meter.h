// Measures what a piece of work holds on the heap, the peers' share included:
// the program's allocation functions stand before those of the C library and
// count while a measurement is under way. To be included by one source of a
// program.
#pragma once

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>

extern "C" {
void* __libc_malloc(std::size_t size) noexcept;
void* __libc_calloc(std::size_t count, std::size_t size) noexcept;
void* __libc_realloc(void* block, std::size_t size) noexcept;
void* __libc_memalign(std::size_t alignment, std::size_t size) noexcept;
void __libc_free(void* block) noexcept;
}

namespace bench {

/// Bytes beyond what was held when the work began.
struct HeapUse {
    std::ptrdiff_t peak = 0;
    std::ptrdiff_t kept = 0;  // by the work's result
};

inline std::atomic<bool> heapIsMetered = false;
inline std::atomic<std::ptrdiff_t> heapHeld = 0;
inline std::atomic<std::ptrdiff_t> heapPeak = 0;

inline void* noteAllocated(void* block) {
    if (!heapIsMetered.load(std::memory_order_relaxed) || block == nullptr) return block;
    const auto size = static_cast<std::ptrdiff_t>(malloc_usable_size(block));
    const std::ptrdiff_t held = heapHeld += size;
    if (held > heapPeak) heapPeak = held;
    return block;
}

inline void* noteFreed(void* block) {
    if (heapIsMetered.load(std::memory_order_relaxed) && block != nullptr) {
        heapHeld -= static_cast<std::ptrdiff_t>(malloc_usable_size(block));
    }
    return block;
}

/// What `work` holds until it returns, and what its result holds then. Only one
/// thread may allocate meanwhile.
template <class Work>
HeapUse heapUseOf(Work work) {
    heapHeld = 0;
    heapPeak = 0;
    heapIsMetered = true;
    [[maybe_unused]] const auto result = work();
    heapIsMetered = false;
    return {heapPeak, heapHeld};
}

}  // namespace bench

extern "C" {

void* malloc(std::size_t size) noexcept { return bench::noteAllocated(__libc_malloc(size)); }

void* calloc(std::size_t count, std::size_t size) noexcept {
    return bench::noteAllocated(__libc_calloc(count, size));
}

void* realloc(void* block, std::size_t size) noexcept {
    return bench::noteAllocated(__libc_realloc(bench::noteFreed(block), size));
}

void* memalign(std::size_t alignment, std::size_t size) noexcept {
    return bench::noteAllocated(__libc_memalign(alignment, size));
}

void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept {
    return memalign(alignment, size);
}

int posix_memalign(void** block, std::size_t alignment, std::size_t size) noexcept {
    *block = memalign(alignment, size);
    return *block == nullptr ? ENOMEM : 0;
}

void free(void* block) noexcept { __libc_free(bench::noteFreed(block)); }
}
