#include "tests/memory/counting_new.h"

#include <cstdint>
#include <cstdlib>
#include <new>

namespace {

// Before each block: its size, in as much room as keeps the block aligned.
constexpr std::size_t kHeader = alignof(std::max_align_t);

std::size_t live_blocks = 0;
std::size_t live_bytes = 0;
std::size_t peak_bytes = 0;
bool armed = false;
bool failed = false;
std::size_t until_failure = 0;

void* Allocate(std::size_t size) {
  if (armed && !failed && until_failure-- == 0) {
    failed = true;
    return nullptr;
  }
  if (size > SIZE_MAX - kHeader) return nullptr;
  auto* block = static_cast<char*>(std::malloc(size + kHeader));
  if (block == nullptr) return nullptr;
  *reinterpret_cast<std::size_t*>(block) = size;
  ++live_blocks;
  live_bytes += size;
  if (live_bytes > peak_bytes) peak_bytes = live_bytes;
  return block + kHeader;
}

void* AllocateOrThrow(std::size_t size) {
  void* block = Allocate(size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void Release(void* block) {
  if (block == nullptr) return;
  char* const start = static_cast<char*>(block) - kHeader;
  --live_blocks;
  live_bytes -= *reinterpret_cast<std::size_t*>(start);
  std::free(start);
}

}  // namespace

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* block) noexcept { Release(block); }
void operator delete[](void* block) noexcept { Release(block); }
void operator delete(void* block, std::size_t) noexcept { Release(block); }
void operator delete[](void* block, std::size_t) noexcept { Release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { Release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { Release(block); }

namespace Ortholan::testing {

std::size_t LiveBlocks() { return live_blocks; }
std::size_t LiveBytes() { return live_bytes; }
std::size_t PeakBytes() { return peak_bytes; }
void ResetPeak() { peak_bytes = live_bytes; }

FailingAllocation::FailingAllocation(std::size_t number) {
  until_failure = number;
  failed = false;
  armed = true;
}
FailingAllocation::~FailingAllocation() { armed = false; }
bool FailingAllocation::Failed() { return failed; }

}  // namespace Ortholan::testing
