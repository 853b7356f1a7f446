// Handles of the C interface that release themselves, and what its functions give out as text.
#ifndef ORTHOLAN_TESTS_SUPPORT_HANDLES_H_
#define ORTHOLAN_TESTS_SUPPORT_HANDLES_H_

#include <ortholan/ortholan_c.h>

#include <memory>
#include <string>

namespace Ortholan::testing {

struct Release {
  void operator()(ortholan_name* name) const { ortholan_name_free(name); }
  void operator()(ortholan_general_name* name) const { ortholan_general_name_free(name); }
  void operator()(ortholan_general_names* names) const { ortholan_general_names_free(names); }
  void operator()(ortholan_extension* extension) const { ortholan_extension_free(extension); }
  void operator()(ortholan_extensions* list) const { ortholan_extensions_free(list); }
  void operator()(void* memory) const { ortholan_free(memory); }
};
template <class Handle>
using Owned = std::unique_ptr<Handle, Release>;

// Octets as a function takes them, in a block of exactly their size.
class OctetsIn {
 public:
  explicit OctetsIn(const std::string& octets)
      : size(octets.size()), block_(new uint8_t[octets.size()]) {
    octets.copy(reinterpret_cast<char*>(block_.get()), octets.size());
  }
  const uint8_t* data() const { return block_.get(); }
  const size_t size;

 private:
  std::unique_ptr<uint8_t[]> block_;
};

// What a function puts into `Handle*`: null where it fails, whatever stood there.
template <class Handle, class Function>
Owned<Handle> Made(ortholan_result* result, const Function& function) {
  static char untouched;
  Handle* handle = reinterpret_cast<Handle*>(&untouched);
  *result = function(&handle);
  return Owned<Handle>(handle);
}

// What a function puts into `T*` and its size: octets of text or of an encoding; null and 0 where
// it fails.
template <class T, class Function>
std::string Given(ortholan_result* result, const Function& function) {
  static char untouched;
  T* memory = reinterpret_cast<T*>(&untouched);
  size_t size = 77;
  *result = function(&memory, &size);
  const Owned<T> owned(memory);
  if (memory == nullptr) return size == 0 ? "" : "a size without memory";
  return std::string(reinterpret_cast<const char*>(memory), size);
}

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_HANDLES_H_
