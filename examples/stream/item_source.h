// Reads items from files, one after another, in batches that threads can have apart.
//
//   ItemSource source({"names.txt"}, false);
//   Batch batch;
//   while (source.Read(batch)) {
//     for (Item item; TakeItem(batch, &item);) ...
//   }
#ifndef ORTHOLAN_EXAMPLES_STREAM_ITEM_SOURCE_H_
#define ORTHOLAN_EXAMPLES_STREAM_ITEM_SOURCE_H_

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "examples/octet_file.h"
#include "examples/stream/framing.h"

namespace Example {

// An item of more octets is refused; nothing longer is held in memory.
constexpr std::size_t kMostItemOctets = std::size_t{16} << 20;

struct Item {
  std::string_view text;
  Framing framing = Framing::kLines;
};

// Whole items, or the beginning of one that is too long.
struct Batch {
  std::size_t number = 0;  // of the batch, from 0
  Framing framing = Framing::kLines;
  bool is_too_long = false;
  std::uint64_t position = 0;  // octets of all files up to its end
  std::string octets;
  std::string_view rest;  // items that were not taken yet
};

class ItemSource {
 public:
  // `takes_documents`: files of certificates may be PEM or DER as well.
  ItemSource(std::vector<std::string> paths, bool takes_documents)
      : paths_(std::move(paths)), takes_documents_(takes_documents) {}

  // False at the end of all files. What one read gives is a batch, if it ends an item, so that an
  // answer never waits for more input. A file that cannot be read is told on standard error under
  // `where`, and the next one follows.
  bool Read(const std::string& where, Batch& batch);

  bool HasFailed() const { return has_failed_; }

 private:
  bool Open(const std::string& where);
  std::size_t ReadBlock(const std::string& where, std::string& octets);
  bool Skip(std::string& octets);
  bool Cut(bool at_end, std::size_t seen, Batch& batch);

  std::vector<std::string> paths_;
  bool takes_documents_;
  std::size_t next_path_ = 0;
  std::optional<OctetFile> file_;
  std::optional<Framing> framing_;  // of the file, once it is known
  bool is_skipping_ = false;        // behind the beginning of an item that is too long
  bool has_failed_ = false;
  std::size_t batches_ = 0;
  std::uint64_t position_ = 0;
  std::string left_;  // the beginning of an item behind the last batch
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STREAM_ITEM_SOURCE_H_
