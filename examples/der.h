// Encodings looked at where they stand (ITU-T X.690), definite and indefinite lengths alike: views
// into octets of somebody else's.
//
//   std::string_view rest = octets;
//   for (Der each; TakeElement(rest, each);) Use(each.content);
//   if (!rest.empty()) Complain();
#ifndef ORTHOLAN_EXAMPLES_DER_H_
#define ORTHOLAN_EXAMPLES_DER_H_

#include <ortholan/ident_obj.h>

#include <cstddef>
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
  kNull = 0x05,
  kOid = 0x06,
  kUtf8String = 0x0C,
  kPrintableString = 0x13,
  kTeletexString = 0x14,
  kIa5String = 0x16,
  kUtcTime = 0x17,
  kGeneralizedTime = 0x18,
  kVisibleString = 0x1A,
  kBmpString = 0x1E,
  kSequence = 0x30,
  kSet = 0x31,
  kContext = 0x80,             // [n], primitive: kContext + n
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
Ortholan::IdentObj Copy(std::string_view octets);

// Dotted form of an identifier's content, arcs of any size; empty for content that is none.
std::string OidText(std::string_view content);

// UTF-8 of a string's content, by its tag: 8-bit types octet by octet as ISO 8859-1, unless the
// tag is UTF8String. What stands for no character becomes U+FFFD.
std::string StringText(unsigned tag, std::string_view content);

// "2026-11-21T21:50:39Z" of a UTCTime or GeneralizedTime as RFC 5280 4.1.2.5 has them; any other
// content as it stands.
std::string TimeText(unsigned tag, std::string_view content);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_DER_H_
