// Two sorted tables, one a direction: the maps are not inverse to each other everywhere.
#include <ortholan/status.h>

#include <algorithm>
#include <iterator>

namespace Ortholan {
namespace {

struct CodePair {
  DWORD from;
  DWORD to;
};

constexpr DWORD kNoWinError = 1627;  // ERROR_FUNCTION_FAILED
constexpr DWORD kNoStatus = 36;

constexpr CodePair kStatusToWinError[] = {
    {0, 0},
    {1, 1326},
    {2, 86},
    {3, 12},
    {4, 2},
    {5, 0x80092003},
    {6, 0x80092003},
    {8, 3},
    {9, 1057},
    {10, 1223},
    {11, 1223},
    {16, 8},
    {17, 110},
    {18, 123},
    {19, 12},
    {21, 25},
    {22, 1358},
    {23, 1358},
    {24, 1358},
    {25, 1358},
    {26, 259},
    {27, 259},
    {28, 160},
    {29, 1216},
    {30, 1629},
    {31, 18},
    {32, 0x8009000D},
    {33, 1629},
    {35, 112},
    {37, 0x80091008},
    {52, 2},
    {55, 123},
    {58, 0x80090003},
    {61, 82},
    {63, 82},
    {64, 266},
    {67, 259},
    {68, 259},
    {73, 0x80091002},
    {74, 1392},
    {81, 8348},
    {83, 1358},
    {84, 1358},
    {85, 1358},
    {90, 259},
    {97, 259},
    {98, 0x80096004},
    {101, 259},
    {102, 1358},
    {103, 1358},
    {104, 1358},
    {110, 30},
    {115, 120},
    {117, 120},
    {121, 80},
    {131, 13},
    {134, 1358},
    {136, 0x80340004},
    {138, 259},
    {140, 0x80090005},
    {141, 0x80090006},
    {144, 21},
    {146, 1114},
    {147, 127},
    {148, 1223},
    {170, 87},
    {171, 31},
    {172, 31},
    {173, 31},
    {174, 31},
    {175, 31},
    {176, 31},
    {177, 31},
    {178, 0x8010000C},
    {179, 30},
    {180, 29},
    {182, 1785},
    {192, 0x80070005},
    {193, 0x80070005},
    {194, 259},
    {195, 0x8009000F},
    {200, 0x80070005},
    {201, 0x80070005},
    {202, 0x80096004},
    {203, 0x800B0101},
    {204, 13},
    {205, 0x8009310B},
    {206, 0x80093103},
    {217, 0x8010002A},
    {221, 0x80310036},
    {222, 0x80290119},
    {226, 0x8010006C},
    {227, 0x8010006C},
    {229, 0x80090023},
    {232, 1060},
    {233, 0x8009000B},
    {236, 1330},
    {237, 1330},
    {501, 5},
    {1038, 0x80090019},
    {1039, 0x80090022},
    {1040, 0x800B0110},
    {1041, 0x800B010E},
};

constexpr CodePair kWinErrorToStatus[] = {
    {0, 0},
    {2, 4},
    {3, 8},
    {5, 501},
    {6, 71},
    {8, 16},
    {29, 6},
    {30, 5},
    {31, 174},
    {82, 61},
    {86, 2},
    {110, 17},
    {112, 35},
    {120, 115},
    {123, 55},
    {126, 4},
    {127, 147},
    {160, 28},
    {170, 156},
    {183, 195},
    {206, 225},
    {234, 132},
    {266, 64},
    {1060, 232},
    {1114, 146},
    {1168, 194},
    {1223, 148},
    {1330, 236},
    {1785, 182},
    {8344, 106},
    {0x80004001, 115},
    {0x8007000E, 16},
    {0x80070057, 28},
    {0x80090001, 28},
    {0x80090003, 58},
    {0x80090006, 141},
    {0x80090008, 73},
    {0x80090009, 28},
    {0x8009000A, 28},
    {0x8009000C, 71},
    {0x8009000D, 32},
    {0x8009000E, 16},
    {0x8009000F, 195},
    {0x80090011, 194},
    {0x80090014, 28},
    {0x80090016, 1038},
    {0x80090017, 28},
    {0x80090019, 1038},
    {0x8009001A, 7},
    {0x8009001C, 146},
    {0x8009001D, 42},
    {0x8009001E, 146},
    {0x80090020, 16},
    {0x80090022, 1039},
    {0x80090023, 229},
    {0x80091002, 73},
    {0x80091003, 38},
    {0x80091004, 131},
    {0x80091008, 37},
    {0x80092003, 17},
    {0x80093103, 206},
    {0x8009310B, 205},
    {0x80096004, 98},
    {0x80096019, 202},
    {0x800B0005, 206},
    {0x800B0006, 206},
    {0x800B0101, 203},
    {0x800B0102, 202},
    {0x800B010A, 98},
    {0x800B010E, 1041},
    {0x800B0110, 1040},
    {0x80100001, 198},
    {0x80100006, 16},
    {0x8010000C, 178},
    {0x8010002A, 217},
    {0x8010006C, 226},
    {0x8010006E, 148},
    {0x8010006F, 217},
    {0x80280043, 136},
    {0x80290119, 222},
    {0x80310036, 222},
    {0x80340004, 136},
};

template <size_t N>
constexpr bool StrictlyAscending(const CodePair (&table)[N]) {
  for (size_t i = 1; i < N; ++i) {
    if (table[i - 1].from >= table[i].from) return false;
  }
  return true;
}
static_assert(StrictlyAscending(kStatusToWinError));
static_assert(StrictlyAscending(kWinErrorToStatus));

template <size_t N>
DWORD Map(const CodePair (&table)[N], DWORD from, DWORD otherwise) {
  const CodePair* row =
      std::lower_bound(std::begin(table), std::end(table), from,
                       [](const CodePair& entry, DWORD value) { return entry.from < value; });
  return row != std::end(table) && row->from == from ? row->to : otherwise;
}

}  // namespace

DWORD ASNTStatusToWinError(DWORD status) noexcept {
  return Map(kStatusToWinError, status, kNoWinError);
}

DWORD WinErrorToStatus(DWORD winError) noexcept {
  return Map(kWinErrorToStatus, winError, kNoStatus);
}

}  // namespace Ortholan
