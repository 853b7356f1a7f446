// Names compared by RFC 5280's rule from their octets, and their keys.
#include <memory>
#include <ortholan/strict.hpp>
#include <string>

#include "bench/measure.h"
#include "bench/names.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "Ortholan";

void AddSame(const char* work, const std::string& a, const std::string& b) {
  const auto same = [=] { return ortholan::MatchNames(a, b).is_yes(); };
  Add({work, kSubject, same}, same);
}

void AddCases() {
  const std::string printable = ToDer(SixAttributes());
  const std::string cyrillic = ToDer(CyrillicAttributes(), kUtf8String);
  AddSame("same name, equal octets", printable, printable);
  AddSame(kCompareDisguised, printable, ToDer(Disguised(SixAttributes())));
  AddSame("same name, Cyrillic in another case", cyrillic,
          ToDer(CyrillicInCapitals(), kUtf8String));
  const auto key = [=] {
    uint8_t room[512];
    size_t size = 0;
    return ortholan_match_key(ortholan::Octets(printable), ORTHOLAN_MATCH_RFC5280, room,
                              sizeof room, &size, nullptr) == ORTHOLAN_REASON_NONE &&
           size > printable.size() / 2;
  };
  Add({"key of a name", kSubject, key}, key);
}

const Registration registration("Ortholan", "", AddCases);

}  // namespace
}  // namespace Bench
