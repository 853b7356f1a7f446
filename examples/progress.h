// How far a long walk through a file has come: one line on standard error, on a terminal alone.
#ifndef ORTHOLAN_EXAMPLES_PROGRESS_H_
#define ORTHOLAN_EXAMPLES_PROGRESS_H_

#include <chrono>
#include <cstddef>

namespace Example {

class Progress {
 public:
  // `size` is the whole file's, in octets, 0 where it is not known; `what` is counted.
  explicit Progress(std::size_t size, const char* what = "certificates")
      : size_(size), what_(what) {}
  ~Progress() { Hide(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // After the one numbered `number`, which ends `position` octets into the file. The line first
  // appears at the thousandth and is renewed some ten times a second.
  void Show(std::size_t number, std::size_t position);

  // Before anything else goes to the terminal.
  void Hide();
  // Before something goes to standard output, which need not be the terminal.
  void HideForOutput();

 private:
  using Clock = std::chrono::steady_clock;

  std::size_t size_;
  const char* what_;
  bool isShown_ = false;
  bool isHeld_ = false;  // hidden for output, to come back after it
  Clock::time_point next_;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_PROGRESS_H_
