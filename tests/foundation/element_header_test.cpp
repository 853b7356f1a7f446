#include "foundation/element_header.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "foundation/blob_view.h"
#include "tests/support/hex.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

constexpr char kOk[] = "0";
constexpr char kBadHeader[] = "206 CASNTBaseRecord::ReadASNInfo";
constexpr char kBadTagNumber[] = "205 CASNTBaseRecord::ReadASNInfo";
constexpr char kBadContent[] = "206 ASNTGetIndefiniteLength";
constexpr DWORD kNoEnd = 0xFFFFFFFF;

struct HeaderRow {
  const char* label;
  const char* hex;
  BYTE classAndForm;
  DWORD tag;
  DWORD length;
  DWORD headerSize;
  const char* outcome = kOk;
};

const HeaderRow kHeaders[] = {
    {"universal", "02 01 05", 0x00, 2, 1, 2},
    {"application, content outside", "5E 7F", 0x40, 30, 127, 2},
    {"context-specific, constructed", "A3 00", 0xA0, 3, 0, 2},
    {"high tag, leading zero group", "1F 80 1F 00", 0x00, 31, 0, 4},
    {"high tag of two groups", "BF 81 00 01", 0xA0, 128, 1, 4},
    {"largest tag", "1F 8F FF FF FF 7F 00", 0x00, 0xFFFFFFFF, 0, 7},
    {"long form of eight", "30 88 00 00 00 00 00 00 01 00", 0x20, 16, 256, 10},
    {"long form wraps", "30 85 01 00 00 00 05", 0x20, 16, 5, 7},
    {"largest length", "04 84 FF FF FF FE", 0x00, 4, 0xFFFFFFFE, 6},
    {"indefinite", "30 80", 0x20, 16, kNoEnd, 2},
    {"primitive indefinite, empty", "04 80 00 00", 0x00, 4, 0, 2},
    {"primitive indefinite, first pair", "04 80 41 00 00 00", 0x00, 4, 1, 2},
    {"primitive indefinite, single zeros", "04 80 00 41 00 42 00 00", 0x00, 4, 4, 2},

    {"one octet", "30", 0, 0, 0, 0, kBadHeader},
    {"high tag never ends", "BF 81 82", 0, 0, 0, 0, kBadTagNumber},
    {"high tag above 32 bits", "1F 90 80 80 80 00 00", 0, 0, 0, 0, kBadTagNumber},
    {"no length after a high tag", "1F 01", 0, 1, 0, 0, kBadHeader},
    {"long length cut", "30 83 01 02", 0x20, 16, 0, 0, kBadHeader},
    {"nine length octets", "30 89 00 00 00 00 00 00 00 00 01", 0x20, 16, 0, 0, kBadHeader},
    {"wraps to a length that means none", "30 85 01 FF FF FF FF", 0x20, 16, 0, 0, kBadHeader},
    {"primitive indefinite, no pair", "04 80 00 41 00", 0, 4, 0, 0, kBadHeader},
};

TEST(ElementHeader, IsReadOrRefused) {
  for (const HeaderRow& row : kHeaders) {
    SCOPED_TRACE(row.label);
    const IdentObj in = Blob(row.hex);
    const bool good = row.outcome == kOk;
    CASNTBaseRecord record;
    EXPECT_EQ(Reported([&](DWORD* s) { return record.ReadASNInfo(in.pbData, in.cbData, s); },
                       row.outcome),
              row.headerSize);

    ASNT_ASN_STRUCT_INFO info;
    std::memset(&info, 0xAA, sizeof info);
    EXPECT_EQ(std::to_string(ASNTGetStructInfo(info, in.pbData, in.cbData)),
              std::string(row.outcome, good ? 1 : 3));
    EXPECT_EQ(info.cls | info.constructed, row.classAndForm);
    EXPECT_EQ(info.tag, row.tag);
    EXPECT_EQ(info.length, row.length);
    EXPECT_EQ(info.content, good ? in.pbData + row.headerSize : nullptr);
    EXPECT_EQ(record.GetASNInfo().length, row.length);

    ElementHeader header;
    if (good) {
      EXPECT_EQ(ReadHeader(ViewOf(in), &header), Status::kOk);
      EXPECT_EQ(header.indefinite, row.headerSize == 2 && in.pbData[1] == 0x80);
    }
  }
}

struct MeasureRow {
  const char* label;
  bool constructed;
  const char* hex;
  DWORD length;
  const char* outcome = kOk;
};

const MeasureRow kMeasures[] = {
    {"primitive", false, "41 42 00 00 43", 4},
    {"primitive, no zero", false, "41 42", 2},
    {"primitive, one zero", false, "41 00 42 00 00", 0, kBadContent},
    {"empty", true, "00 00 02 01 05", 2},
    {"no terminator", true, "04 02 00 00", 4},
    {"nested", true, "30 80 02 01 05 00 00 00 00 77", 9},
    {"nested, one terminator", true, "30 80 00 00", 4},
    {"indefinite inside definite", true, "30 04 30 80 00 00 00 00", 8},
    {"primitive child", true, "04 80 41 00 00 00 00 77", 7},
    {"primitive child, one zero", true, "04 80 41 00 42 00 00 00 00", 0, kBadContent},
    {"one zero at the end", true, "02 01 05 00", 0, kBadContent},
    {"child passes the end", true, "02 05 01 00 00", 0, kBadContent},
    {"child's header cut", true, "02 01 05 02", 0, kBadHeader},
    {"child's tag never ends", true, "1F 81 82", 0, kBadTagNumber},
};

TEST(IndefiniteLength, IsMeasured) {
  for (const MeasureRow& row : kMeasures) {
    const IdentObj in = Blob(row.hex);
    const auto measure = [&](DWORD* status) {
      return ASNTGetIndefiniteLength(in.pbData, in.cbData, row.constructed, status);
    };
    EXPECT_EQ(Reported(measure, row.outcome), row.length) << row.label;
  }
  // Nesting costs no stack.
  std::string nested;
  for (int depth = 0; depth < 200000; ++depth) nested += "\x30\x80";
  EXPECT_EQ(ASNTGetIndefiniteLength(nested.data(), 400000, true), 400000u);
}

}  // namespace
}  // namespace Ortholan::testing
