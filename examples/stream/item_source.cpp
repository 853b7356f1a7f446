#include "examples/stream/item_source.h"

#include "examples/failure.h"

namespace Example {
namespace {

// As much as a pipe of Linux holds.
constexpr std::size_t kBlock = std::size_t{64} << 10;

}  // namespace

bool ItemSource::Read(const std::string& where, Batch& batch) {
  batch.octets.swap(left_);
  left_.clear();
  for (;;) {
    if (!file_ && !Open(where)) return false;
    const std::size_t seen = batch.octets.size();
    const bool at_end = ReadBlock(where, batch.octets) == 0;
    if (at_end) file_.reset();
    if (is_skipping_ && !Skip(batch.octets)) continue;
    if (Cut(at_end, seen, batch)) return true;
  }
}

bool ItemSource::Open(const std::string& where) {
  while (next_path_ < paths_.size()) {
    try {
      file_.emplace(paths_[next_path_++]);
      framing_.reset();
      is_skipping_ = false;
      return true;
    } catch (const Failure& failure) {
      Report(where, failure);
      has_failed_ = true;
    }
  }
  return false;
}

std::size_t ItemSource::ReadBlock(const std::string& where, std::string& octets) {
  try {
    const std::size_t before = octets.size();
    octets.resize(before + kBlock);
    const std::size_t count = file_->Read(octets.data() + before, kBlock);
    octets.resize(before + count);
    position_ += count;
    return count;
  } catch (const Failure& failure) {
    Report(where, failure);
    has_failed_ = true;
    return 0;
  }
}

bool ItemSource::Skip(std::string& octets) {
  const std::size_t rest = RestOfItem(*framing_, octets);
  if (rest == std::string_view::npos) {
    octets.clear();
    return false;
  }
  octets.erase(0, rest);
  is_skipping_ = false;
  return true;
}

// Takes what is whole into the batch; false where there is nothing yet.
bool ItemSource::Cut(bool at_end, std::size_t seen, Batch& batch) {
  const std::string_view data = batch.octets;
  if (data.size() < 2 && !at_end) return false;
  if (!framing_) framing_ = takes_documents_ ? RecogniseFraming(data) : Framing::kLines;

  std::size_t whole = at_end ? data.size() : WholeItems(*framing_, data, seen);
  batch.is_too_long = whole == 0 && data.size() > kMostItemOctets;
  is_skipping_ = batch.is_too_long || whole == std::string_view::npos;
  if (is_skipping_) whole = data.size();
  if (whole == 0) return false;

  left_ = data.substr(whole);
  batch.rest = data.substr(0, whole);
  batch.number = batches_++;
  batch.framing = *framing_;
  batch.position = position_;
  return true;
}

}  // namespace Example
