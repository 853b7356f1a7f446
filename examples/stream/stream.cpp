#include "examples/stream/stream.h"

#include <ortholan/status.h>

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "examples/failure.h"
#include "examples/input.h"
#include "examples/progress.h"

namespace Example {
namespace {

constexpr Ortholan::DWORD kMostJobs = 256;

// Threads that each read a batch, answer it and write the answers when it is their turn. With one
// of them reading, one writing and no batches in between, memory is as many batches as there are
// threads, however long the stream is.
class Stream {
 public:
  Stream(const char* command, ItemSource& source, std::uint64_t size)
      : command_(command), source_(source), progress_(size, "items") {}

  // The life of a thread, to the end of all items.
  void Work(const ItemWork& work, bool is_json);
  // The same, what it throws kept for Finish.
  void WorkGuarded(const ItemWork& work, bool is_json);
  // The exit status; throws what stopped a thread.
  int Finish();

 private:
  bool Read(Batch& batch);
  void Write(const Batch& batch, const Answers& answers);

  const char* command_;
  std::mutex reading_;
  ItemSource& source_;

  std::mutex writing_;
  std::condition_variable is_turn_;
  std::size_t turn_ = 0;  // the number of the batch that is written next
  std::exception_ptr fault_;
  Progress progress_;
  std::uint64_t count_ = 0;
  std::uint64_t refused_ = 0;
};

void Answer(const ItemWork& work, const Item& item, Answers& answers) {
  try {
    work(item, answers);
  } catch (const Failure& failure) {
    answers.AddRefusal(failure.code, Describe(failure));
  } catch (const Ortholan::XZEPStatus& failure) {
    answers.AddRefusal(Ortholan::ASNTStatusToWinError(failure.GetStatus()),
                       "the data cannot be read");
  }
}

void AnswerBatch(const ItemWork& work, Batch& batch, Answers& answers) {
  answers.Clear();
  if (batch.is_too_long) {
    answers.AddRefusal(0, "an item of more than 16 MiB");
    return;
  }
  Item item{{}, batch.framing};
  while (TakeItem(batch.framing, batch.rest, &item.text)) Answer(work, item, answers);
}

void Stream::Work(const ItemWork& work, bool is_json) {
  Batch batch;
  Answers answers(is_json);
  while (Read(batch)) {
    AnswerBatch(work, batch, answers);
    Write(batch, answers);
  }
}

void Stream::WorkGuarded(const ItemWork& work, bool is_json) {
  try {
    Work(work, is_json);
  } catch (...) {
    const std::lock_guard<std::mutex> lock(writing_);
    if (!fault_) fault_ = std::current_exception();
    is_turn_.notify_all();
  }
}

bool Stream::Read(Batch& batch) {
  const std::lock_guard<std::mutex> lock(reading_);
  {
    const std::lock_guard<std::mutex> writing(writing_);
    if (fault_) return false;
  }
  return source_.Read(command_, batch);
}

void Stream::Write(const Batch& batch, const Answers& answers) {
  std::unique_lock<std::mutex> lock(writing_);
  is_turn_.wait(lock, [&] { return turn_ == batch.number || fault_; });
  if (fault_) return;
  progress_.HideForOutput();
  Print(answers.Lines());
  FinishOutput();
  count_ += answers.Count();
  refused_ += answers.RefusedCount();
  progress_.Show(count_, batch.position);
  ++turn_;
  is_turn_.notify_all();
}

int Stream::Finish() {
  if (fault_) std::rethrow_exception(fault_);
  progress_.Hide();
  if (refused_ != 0) {
    ReportLine(std::string(command_) + ": " + std::to_string(refused_) + " of " +
               std::to_string(count_) + " items refused");
  }
  return refused_ != 0 || source_.HasFailed() ? 1 : 0;
}

// Octets of all files; 0 where that cannot be told of one of them.
std::uint64_t SizeOf(const std::vector<std::string>& paths) {
  std::uint64_t size = 0;
  for (const std::string& path : paths) {
    std::error_code error;
    const std::uintmax_t each = std::filesystem::file_size(std::filesystem::u8path(path), error);
    if (path == "-" || error) return 0;
    size += each;
  }
  return size;
}

}  // namespace

const Option kLinesOption = {"--lines", nullptr, "an item a line of files or standard input"};
const Option kJobsOption = {"--jobs", "N", "with --lines: threads, 1 to 256; the order stays"};

int RunStream(const char* command, const LineWork& work, const Arguments& arguments) {
  const Ortholan::DWORD jobs = arguments.Number(kJobsOption.name, 1);
  if (jobs == 0 || jobs > kMostJobs) throw UsageError{"--jobs needs a number from 1 to 256"};
  const bool is_json = arguments.Has("--json");
  std::vector<std::string> paths = arguments.operands;
  if (paths.empty()) paths.emplace_back("-");

  std::vector<ItemWork> works;
  for (Ortholan::DWORD i = 0; i < jobs; ++i) works.push_back(work.make(arguments));
  ItemSource source(paths, work.takes_documents);
  Stream stream(command, source, SizeOf(paths));
  std::vector<std::thread> threads;
  for (Ortholan::DWORD i = 1; i < jobs; ++i) {
    try {
      threads.emplace_back([&, i] { stream.WorkGuarded(works[i], is_json); });
    } catch (const std::system_error&) {
      break;  // as many as the system has
    }
  }
  stream.WorkGuarded(works[0], is_json);
  for (std::thread& thread : threads) thread.join();
  return stream.Finish();
}

}  // namespace Example
