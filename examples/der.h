// Encodings told apart where they stand (ITU-T X.690), as generously as the library's classes do
// it, with definite and indefinite lengths alike: views into octets of somebody else's. What is
// inside is read by the strict layer.
//
//   std::string_view rest = octets;
//   for (Der each; TakeElement(rest, each);) Use(each.content);
//   if (!rest.empty()) Complain();
#ifndef ORTHOLAN_EXAMPLES_DER_H_
#define ORTHOLAN_EXAMPLES_DER_H_

#include <ortholan/ident_obj.h>

#include <cstddef>
#include <ortholan/strict/base.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace Example {

// Identifier octets of elements with a tag number below 31: class, constructed or not, number.
enum : unsigned {
  kBoolean = 0x01,
  kInteger = 0x02,
  kBitString = 0x03,
  kOctetString = 0x04,
  kOid = 0x06,
  kUtcTime = 0x17,
  kGeneralizedTime = 0x18,
  kSequence = 0x30,
  kSet = 0x31,
  kContextConstructed = 0xA0,  // [n], constructed
};

struct Der {
  unsigned tag = 0;  // the identifier octet; 0 where the tag number has octets of its own
  std::string_view content;
  std::string_view whole;
};

// Cuts the first element from `rest`; false, with `rest` unchanged, where there is no whole one.
bool TakeElement(std::string_view& rest, Der& element);

// The elements that `content` is made of. `isWhole`, which may be null, tells whether there was
// nothing else behind them.
std::vector<Der> Elements(std::string_view content, bool* isWhole = nullptr);

// The one element that `octets` are, or one without tag, content and octets.
Der OnlyElement(std::string_view octets);

std::string_view View(const Ortholan::IdentObj& octets);
std::string_view View(ortholan::Octets octets);
Ortholan::IdentObj Copy(std::string_view octets);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_DER_H_
