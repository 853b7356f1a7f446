#include <gtest/gtest.h>
#include <ortholan/status.h>

#include <sstream>
#include <string>

#include "foundation/report.h"
#include "tests/support/thrown.h"

namespace Ortholan::testing {
namespace {

TEST(XZEPStatus, CarriesCodeTextAndFlag) {
  XZEPStatus failure(206, "ASNTGetSequence", true);
  const XZEPStatus copy = failure;
  failure.ClearStatus();
  EXPECT_STREQ(failure.GetText().c_str(), "Status = 0");
  EXPECT_STREQ(copy.GetText().c_str(), "Status = 206");
  EXPECT_STREQ(copy.GetMessageText(), "ASNTGetSequence");
  EXPECT_TRUE(copy.GetFlag());
  EXPECT_STREQ(XZEPStatus(16).GetMessageText(), "");
  EXPECT_FALSE(XZEPStatus(16).GetFlag());
  EXPECT_STREQ(XZEPStatus(1, static_cast<const char*>(nullptr)).GetMessageText(), "");
  EXPECT_THROW(throw copy, XZEPMsg);
  EXPECT_THROW(throw XZEPMsg("text"), XZEPBaseMsg);
}

TEST(Fault, IsReportedThrownOrMadeALastError) {
  const Fault fault = {Status::kCorrupt, "Somewhere"};
  DWORD status = 7;
  EXPECT_EQ(Thrown([&] { ReportOrThrow(fault, &status); }), "0");
  EXPECT_EQ(status, 206u);
  ReportOrThrow({}, &status);
  EXPECT_EQ(status, 0u);
  EXPECT_EQ(Thrown([&] { ReportOrThrow(fault, nullptr); }), "206 Somewhere");
  EXPECT_EQ(Thrown([] { ReportOrThrow({}, nullptr); }), "0");
  EXPECT_EQ(Thrown([] { ThrowNoMemory(); }), "16");
  EXPECT_FALSE(FailWith(Status::kCorrupt));
  EXPECT_EQ(GetLastError(), 0x80093103u);
}

// Checks some rows ("from=to"), and that no more codes than `count` have an answer of their own.
void CheckMap(DWORD (*map)(DWORD) noexcept, DWORD otherwise, size_t count,
              const std::string& rows) {
  std::istringstream in(rows);
  for (std::string row; in >> row;) {
    const DWORD from = static_cast<DWORD>(std::stoul(row, nullptr, 0));
    EXPECT_EQ(map(from), std::stoul(row.substr(row.find('=') + 1), nullptr, 0)) << row;
  }
  size_t known = 0;
  for (const DWORD facility : {0u, 0x8000u, 0x8007u, 0x8009u, 0x800Au, 0x800Bu, 0x8010u, 0x8028u,
                               0x8029u, 0x8031u, 0x8034u, 0xC000u}) {
    for (DWORD code = 0; code < 0x10000; ++code) known += map(facility << 16 | code) != otherwise;
  }
  EXPECT_EQ(known, count);
}

TEST(StatusMap, IsOneTableEachWay) {
  CheckMap(
      &ASNTStatusToWinError, 1627, 103,
      "0=0 1=1326 4=2 5=0x80092003 6=0x80092003 10=1223 16=8 18=123 28=160 36=1627 "
      "58=0x80090003 73=0x80091002 85=1358 98=0x80096004 104=1358 131=13 134=1358 171=31 177=31 "
      "194=259 204=13 205=0x8009310B 206=0x80093103 217=0x8010002A 501=5 1038=0x80090019 "
      "1041=0x800B010E 0x7FFFFFFF=1627 0xFFFFFFFF=1627");
  CheckMap(&WinErrorToStatus, 36, 82,
           "0=0 2=4 8=16 31=174 87=36 126=4 160=28 1060=232 1785=182 8344=106 0x80004001=115 "
           "0x8007000E=16 0x80070057=28 0x80090016=1038 0x80090019=1038 0x80091002=73 "
           "0x80092003=17 0x80093103=206 0x8009310B=205 0x800B0006=206 0x80100001=198 "
           "0x80340004=136 0x7FFFFFFF=36 0xFFFFFFFF=36");
}

}  // namespace
}  // namespace Ortholan::testing
