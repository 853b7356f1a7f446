// Results inside the library: a code to test. report.h turns it into what an operation promises.
#ifndef ORTHOLAN_FOUNDATION_STATUS_CODE_H_
#define ORTHOLAN_FOUNDATION_STATUS_CODE_H_

#include <cstdint>

namespace Ortholan {

// The numbers are those that XZEPStatus and `DWORD* status` show.
enum class [[nodiscard]] Status : uint32_t{
    kOk = 0,
    // What a caller wants written has no encoding: an identifier that is no dotted one, a time out
    // of range, a type without a form. Never for what is read.
    kNotEncodable = 1,
    // An allocation failed, or a size passes the 32 bits that blobs and the platform's calls have.
    kNoMemory = 16,
    // An argument that no input makes right: a null text, an empty list, a tag of no such
    // structure.
    kBadArgument = 28,
    // Well-formed DER of another type than the operation is for.
    kWrongType = 131,
    // The identifier octets are at fault: a tag number that never ends or passes 32 bits, a type
    // that has no plain value, an element that is primitive where its children are wanted.
    kBadTag = 205,
    // Any other fault of DER: octets missing, a child outside its parent, content that its type
    // does not have.
    kCorrupt = 206,
};

inline uint32_t ToCode(Status status) { return static_cast<uint32_t>(status); }

// A failure, or kOk, with the operation that it is reported under.
struct [[nodiscard]] Fault {
  Status status = Status::kOk;
  const char* where = nullptr;

  explicit operator bool() const { return status != Status::kOk; }
};

}  // namespace Ortholan

#endif  // ORTHOLAN_FOUNDATION_STATUS_CODE_H_
