// What holds for any octets: a decoded name keeps them, its encoding changes the identifier alone,
// and what cannot be shown is refused with a status.

#include <gtest/gtest.h>
#include <ortholan/general_name.h>

#include "tests/support/data_lines.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

constexpr char kHighTagNumber = 0x1F;

// Identifier octets as the encoding has them, for tag numbers of one octet.
char ContextOctet(GeneralNameTag tag) { return static_cast<char>(0xA0u | tag); }

// True where the octets were decoded and shown.
bool HoldsFor(const std::string& octets) {
  GeneralName name;
  if (Thrown([&] { name = GeneralName::DerDecode(ExactCopy(octets)); }) != "0") return false;
  EXPECT_EQ(AsText(name.GetContent()), octets);
  const IdentObj encoded = name.DerEncode();
  if (name.GetTag() < static_cast<GeneralNameTag>(kHighTagNumber) &&
      (octets[0] & kHighTagNumber) != kHighTagNumber) {
    EXPECT_EQ(AsText(encoded), ContextOctet(name.GetTag()) + octets.substr(1));
  }
  GeneralName again = GeneralName::DerDecode(encoded);
  EXPECT_EQ(again.GetTag(), name.GetTag());
  EXPECT_EQ(Hex(again.DerEncode()), Hex(encoded));
  return Thrown([&] { name.ToString(0, 0); }) == "0";
}

TEST(RealGeneralNames, KeepEveryOctet) {
  size_t shown = 0;
  for (const std::string& line : DataLines("general-names.txt")) {
    SCOPED_TRACE(line);
    if (HoldsFor(Octets(line))) ++shown;
  }
  EXPECT_GT(shown, 35u);
}

TEST(RealGeneralNames, MayBeCutShort) {
  for (const std::string& line : DataLines("general-names.txt")) {
    const std::string octets = Octets(line);
    for (size_t size = 0; size < octets.size(); ++size) HoldsFor(octets.substr(0, size));
    ASSERT_FALSE(HasFailure()) << line;
  }
}

TEST(RealGeneralNames, MayBeSpoiled) {
  for (const std::string& line : DataLines("general-names.txt")) {
    const std::string octets = Octets(line);
    for (size_t i = 0; i < octets.size(); ++i) {
      for (const unsigned flipped : {0x01u, 0x05u, 0x20u, 0x80u, 0xFFu}) {
        std::string broken = octets;
        broken[i] = static_cast<char>(static_cast<unsigned char>(octets[i]) ^ flipped);
        HoldsFor(broken);
        ASSERT_FALSE(HasFailure()) << Hex(broken);
      }
    }
  }
}

}  // namespace
}  // namespace Ortholan::testing
