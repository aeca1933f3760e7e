// A global operator new that counts its calls.
// SPDX-License-Identifier: MIT
#include "benchmarks/Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> count = 0;

}  // namespace

// The default array and nothrow forms call these; aligned forms are not used.
void* operator new(std::size_t size) {
    count.fetch_add(1, std::memory_order_relaxed);
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

namespace brisel::benchmarks {

std::size_t allocations() {
    return count.load(std::memory_order_relaxed);
}

}  // namespace brisel::benchmarks
