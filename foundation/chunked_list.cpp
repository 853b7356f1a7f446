#include "foundation/chunked_list.h"

namespace Ortholan {

void Chunks::Grow(size_t items, size_t itemSize) {
  const size_t size = items * itemSize;
  chunks_.push_back({std::unique_ptr<unsigned char[]>(new unsigned char[size]), items});
  next_ = chunks_.back().bytes.get();
  end_ = next_ + size;
}

}  // namespace Ortholan
