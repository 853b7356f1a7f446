// Room for octets whose end is the end of a readable page: a read past them ends the process, also
// without sanitizers.
//
//   GuardedRoom room;
//   target(room.Put(bytes), bytes.size());
#ifndef ORTHOLAN_FUZZ_GUARDED_ROOM_H_
#define ORTHOLAN_FUZZ_GUARDED_ROOM_H_

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace Ortholan::fuzzing {

class GuardedRoom {
 public:
  GuardedRoom() = default;
  GuardedRoom(const GuardedRoom&) = delete;
  GuardedRoom& operator=(const GuardedRoom&) = delete;
  ~GuardedRoom() { Release(); }

  // A copy that lives until the next one. Ends the process where the system has no memory.
  const uint8_t* Put(const std::string& octets) {
    if (octets.size() > size_) Take(octets.size());
    uint8_t* const copy = begin_ + size_ - octets.size();
    if (!octets.empty()) std::memcpy(copy, octets.data(), octets.size());
    return copy;
  }

 private:
  void Take(size_t least) {
    Release();
    const auto page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    size_ = (least + page - 1) / page * page;
    void* const pages =
        mmap(nullptr, size_ + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    begin_ = static_cast<uint8_t*>(pages);
    if (pages == MAP_FAILED || mprotect(begin_ + size_, page, PROT_NONE) != 0) {
      std::perror("guarded room");
      std::exit(2);
    }
  }

  void Release() {
    if (begin_ != nullptr) munmap(begin_, size_ + static_cast<size_t>(sysconf(_SC_PAGESIZE)));
  }

  uint8_t* begin_ = nullptr;
  size_t size_ = 0;  // of the readable pages
};

}  // namespace Ortholan::fuzzing

#endif  // ORTHOLAN_FUZZ_GUARDED_ROOM_H_
