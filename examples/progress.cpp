#include "examples/progress.h"

#include <cstdio>

#include "examples/console.h"
#include "examples/input.h"

namespace Example {
namespace {

constexpr std::size_t kFirst = 1000;
constexpr std::chrono::milliseconds kPause{100};

}  // namespace

void Progress::Show(std::size_t number, std::size_t position) {
  if (number < kFirst || !IsTerminal(Stream::kError)) return;
  const Clock::time_point now = Clock::now();
  if (now < next_ && !isHeld_) return;
  // The terminal may hold both streams.
  if (isHeld_) FinishOutput();
  std::fprintf(stderr, "\r%zu %s", number, what_);
  if (size_ != 0) std::fprintf(stderr, ", %zu %%", position * 100 / size_);
  std::fputs("\x1B[K", stderr);
  std::fflush(stderr);
  isShown_ = true;
  isHeld_ = false;
  next_ = now + kPause;
}

void Progress::Hide() {
  if (!isShown_) return;
  std::fputs("\r\x1B[K", stderr);
  std::fflush(stderr);
  isShown_ = false;
}

void Progress::HideForOutput() {
  if (!isShown_ || !IsTerminal(Stream::kOutput)) return;
  Hide();
  isHeld_ = true;
}

}  // namespace Example
