#include "bench/allocations.h"

#include <malloc.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>

// The C library's allocator under the names that it keeps for those who put their own in front.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(size_t size) noexcept;
void* __libc_calloc(size_t count, size_t size) noexcept;
void* __libc_realloc(void* block, size_t size) noexcept;
void* __libc_memalign(size_t alignment, size_t size) noexcept;
void __libc_free(void* block) noexcept;
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

struct Tally {
  uint64_t allocations = 0;
  bool peak_wanted = false;
  int64_t held = 0;
  int64_t peak = 0;
};
thread_local Tally tally;

void* Count(void* block) {
  ++tally.allocations;
  if (tally.peak_wanted) {
    tally.held += static_cast<int64_t>(malloc_usable_size(block));
    tally.peak = std::max(tally.peak, tally.held);
  }
  return block;
}

void Uncount(void* block) {
  if (tally.peak_wanted) tally.held -= static_cast<int64_t>(malloc_usable_size(block));
}

}  // namespace

extern "C" {

void* malloc(size_t size) noexcept { return Count(__libc_malloc(size)); }

void* calloc(size_t count, size_t size) noexcept { return Count(__libc_calloc(count, size)); }

void* realloc(void* block, size_t size) noexcept {
  Uncount(block);
  return Count(__libc_realloc(block, size));
}

void* memalign(size_t alignment, size_t size) noexcept {
  return Count(__libc_memalign(alignment, size));
}

void* aligned_alloc(size_t alignment, size_t size) noexcept { return memalign(alignment, size); }

int posix_memalign(void** block, size_t alignment, size_t size) noexcept {
  *block = memalign(alignment, size);
  return *block != nullptr ? 0 : ENOMEM;
}

void free(void* block) noexcept {
  Uncount(block);
  __libc_free(block);
}

}  // extern "C"

namespace Bench {

uint64_t AllocationCount() { return tally.allocations; }

PeakScope::PeakScope() {
  tally.held = 0;
  tally.peak = 0;
  tally.peak_wanted = true;
}

PeakScope::~PeakScope() { tally.peak_wanted = false; }

uint64_t PeakScope::bytes() const { return static_cast<uint64_t>(tally.peak); }

}  // namespace Bench
