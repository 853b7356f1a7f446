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

// Lengths have 31 bits, the terminator included: what is longer is not read.
TEST(CZEPString, RefusesLongTextByItsLength) { EXPECT_EQ(Text(CZEPString("a", 0x7FFFFFFF)), ""); }

// Formats and comparisons are the fuzz target's; here what it does not reach.
TEST(CZEPString, FormatsLongTexts) {
  CZEPString text('o');
  text.Format("%s|%04lx|%*.*f|%%", "ab", 0xABCul, 6, 2, 1.5);
  EXPECT_EQ(Text(text), "ab|0abc|  1.50|%");
  text.Format("%070000d", 5);
  EXPECT_EQ(Text(text), std::string(69999, '0') + "5");
}

}  // namespace
}  // namespace Ortholan::testing
