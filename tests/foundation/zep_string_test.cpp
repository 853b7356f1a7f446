#include <gtest/gtest.h>
#include <ortholan/zep_string.h>

#include <atomic>
#include <string>
#include <thread>

namespace Ortholan::testing {
namespace {

std::string Text(const CZEPString& text) {
  const std::string characters = text.c_str();
  EXPECT_EQ(text.GetLength(), static_cast<int32_t>(characters.size())) << characters;
  return characters;
}

class Probe final : public CZEPReference {
 public:
  explicit Probe(int* ends) : ends_(ends) {}
  ~Probe() override { ++*ends_; }

 private:
  int* ends_;
};

TEST(CZEPReference, EndsOnceWithItsLastHolder) {
  int ends = 0;
  auto* probe = new Probe(&ends);
  std::atomic<int> ready = 0;
  const auto hold = [&] {
    for (++ready; ready < 2;) {
    }
    for (int i = 0; i < 300000; ++i) {
      probe->AddRef();
      probe->Release();
    }
  };
  std::thread other(hold);
  hold();
  other.join();
  EXPECT_EQ(probe->AddRef(), 2);
  EXPECT_EQ(probe->Release(), 1);
  EXPECT_EQ(ends, 0);
  EXPECT_EQ(probe->Release(), 0);
  EXPECT_EQ(ends, 1);
}

TEST(CZEPString, CopiesShareAndNeverChangeEachOther) {
  CZEPString first("abc");
  CZEPString copy(first);
  EXPECT_EQ(copy.c_str(), first.c_str());
  copy += 'd';
  EXPECT_EQ(Text(first), "abc");
  // `copy` has room to grow in place now; its own copy must not see that.
  const CZEPString second = copy;
  copy += "ef";
  EXPECT_EQ(Text(second), "abcd");
  EXPECT_EQ(Text(copy), "abcdef");
  copy = second;
  copy = static_cast<const CZEPString&>(copy);
  EXPECT_EQ(Text(copy), "abcd");
}

TEST(CZEPString, Appends) {
  CZEPString text = static_cast<const char*>(nullptr);
  const CZEPString other("ab");
  text += other;
  EXPECT_EQ(text.c_str(), other.c_str());
  text += CZEPString("");
  for (int i = 0; i < 3; ++i) text += text;
  EXPECT_EQ(Text(text), "abababababababab");
  EXPECT_EQ(Text(other), "ab");
  // The text moves to a larger buffer a few times, not once for each character.
  CZEPString letter;
  int moves = 0;
  for (int i = 0; i < 100000; ++i) {
    const char* const before = letter.c_str();
    letter += 'x';
    moves += letter.c_str() != before;
  }
  EXPECT_EQ(Text(letter), std::string(100000, 'x'));
  EXPECT_LT(moves, 100);
}

TEST(CZEPString, Compares) {
  const struct {
    const char* a;
    const char* b;
    int plain;
    int ignoringCase;
    bool less;
  } kRows[] = {
      {"", "", 0, 0, false},          {"", "a", -1, -1, false},    {"abc", "abc", 0, 0, false},
      {"ABC", "abc", -1, 0, true},    {"ab", "abc", -1, -1, true}, {"a\x7F", "a\x80", -1, -1, true},
      {"A", "_", -1, 1, true},         // letters fold downwards, past the underscore
      {"\xC0", "\xE0", -1, -1, true},  // letters in many code pages, none in ASCII
  };
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::string(row.a) + " and " + row.b);
    const CZEPString a(row.a);
    const CZEPString b(row.b);
    // The programs of the tests stay in the "C" locale.
    for (const bool locale : {false, true}) {
      EXPECT_EQ(a.Compare(b, false, locale), row.plain);
      EXPECT_EQ(b.Compare(a, false, locale), -row.plain);
      EXPECT_EQ(a.Compare(b, true, locale), row.ignoringCase);
      EXPECT_EQ(b.Compare(a, true, locale), -row.ignoringCase);
    }
    EXPECT_EQ(a < b, row.less);
    EXPECT_EQ(b > a, row.less);
    EXPECT_FALSE(b < a || a > b);
    EXPECT_EQ(a == b, row.plain == 0);
    EXPECT_EQ(a != b, row.plain != 0);
  }
}

TEST(CZEPString, Formats) {
  CZEPString text('o');
  text.Format("%s|%5d|%-3u|%04lx|%c|%*.*f|%%", "ab", -12, 7u, 0xABCul, 'z', 6, 2, 1.5);
  EXPECT_EQ(Text(text), "ab|  -12|7  |0abc|z|  1.50|%");
  text.Format("%070000d", 5);
  EXPECT_EQ(Text(text), std::string(69999, '0') + "5");
  text.Format("%d", 5);
  const CZEPString copy = text;
  text.Format("%s%s", text.c_str(), text.c_str());
  EXPECT_EQ(Text(text), "55");
  text.Format("%s", "");
  EXPECT_EQ(Text(text), "");
  EXPECT_EQ(Text(copy), "5");
}

}  // namespace
}  // namespace Ortholan::testing
