#include "bench/Allocations.h"

#include <atomic>

namespace {

std::atomic<std::size_t> count = 0;

}  // namespace

// The linker prefers these definitions to those of the C library, for all libraries in the process.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t number, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size) {
  count.fetch_add(1, std::memory_order_relaxed);
  return __libc_malloc(size);
}
void* calloc(std::size_t number, std::size_t size) {
  count.fetch_add(1, std::memory_order_relaxed);
  return __libc_calloc(number, size);
}
void* realloc(void* memory, std::size_t size) {
  count.fetch_add(1, std::memory_order_relaxed);
  return __libc_realloc(memory, size);
}
}

namespace quorix::bench {

std::size_t allocations() { return count; }

}  // namespace quorix::bench
