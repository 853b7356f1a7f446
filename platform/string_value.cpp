#include "platform/string_value.h"

namespace Ortholan {

BYTE* StringValue::Take(size_t size) {
  if (size <= kLocalBytes) return local_;
  heap_.reset(new BYTE[size]);
  return heap_.get();
}

}  // namespace Ortholan
