// Many threads, each with objects of its own, sharing strings and the platform's remembered
// answers. Built with -fsanitize=thread this tells whether anything else is shared.

#include <gtest/gtest.h>
#include <ortholan/ortholan.h>
#include <ortholan/ortholan_c.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace Ortholan::testing {
namespace {

constexpr int kThreads = 8;
constexpr int kRounds = 300;

template <typename Work>
void RunThreads(Work work) {
  std::vector<std::thread> threads;
  for (int i = 0; i < kThreads; ++i) threads.emplace_back([i, work] { work(i); });
  for (std::thread& thread : threads) thread.join();
}

TEST(Threads, ConvertWithObjectsOfTheirOwn) {
  std::atomic<int> wrong{0};
  RunThreads([&wrong](int number) {
    const std::wstring unit(static_cast<std::size_t>(number + 1), L'\x0418');
    const std::wstring text = L"C=RU,OU=" + unit + L",CN=Alpha";
    for (int i = 0; i < kRounds; ++i) {
      IdentObj der;
      std::wstring back;
      CertNameInfoWrapper tree;
      const X509Name name("C=RU,CN=Alpha", 0, true);
      if (!X500NameEncoder().Encode(text, der, true)) ++wrong;
      if (!X500NameDecoder().Decode(der, back, 3) || back != text) ++wrong;
      if (!X500NameDecoder().Decode(der, tree) || !(name == name)) ++wrong;
    }
  });
  EXPECT_EQ(0, wrong);
}

TEST(Threads, ShareStrings) {
  const CZEPString shared("a text that all of them hold");
  std::atomic<int> wrong{0};
  RunThreads([&](int) {
    for (int i = 0; i < kRounds; ++i) {
      CZEPString mine = shared;
      mine += '!';
      const CZEPString again = mine;
      if (mine.GetLength() != shared.GetLength() + 1 || again != mine) ++wrong;
    }
  });
  EXPECT_EQ(0, wrong);
  EXPECT_STREQ("a text that all of them hold", shared.c_str());
}

TEST(Threads, KeepTheirLastErrorsApart) {
  std::atomic<int> wrong{0};
  RunThreads([&wrong](int number) {
    for (int i = 0; i < kRounds; ++i) {
      SetLastError(static_cast<DWORD>(number + 1));
      IdentObj der;
      if (number % 2 == 0) {
        X500NameEncoder().Encode(L"", der, false);
        if (GetLastError() != ERROR_BAD_ARGUMENTS) ++wrong;
      } else {
        X500NameEncoder().Encode(L"CN=a", der, false);
        if (GetLastError() != static_cast<DWORD>(number + 1)) ++wrong;
      }
    }
  });
  EXPECT_EQ(0, wrong);
}

// A handle that nobody changes serves all threads; each has its own last error, none at first.
TEST(Threads, ShareNamesOfTheCInterface) {
  ortholan_name* shared = nullptr;
  ASSERT_EQ(ORTHOLAN_OK, ortholan_name_from_text("C=RU, CN=\xD0\x98", 0, 0, &shared));
  std::atomic<int> wrong{0};
  RunThreads([&wrong, shared](int number) {
    const std::string type = "1.2.3." + std::to_string(number);
    if (ortholan_last_error() != ORTHOLAN_OK || *ortholan_last_error_message() != '\0') ++wrong;
    for (int i = 0; i < kRounds; ++i) {
      ortholan_name* mine = nullptr;
      char* value = nullptr;
      ortholan_attribute* attributes = nullptr;
      size_t count = 0;
      int equal = 1;
      if (ortholan_name_attributes(shared, &attributes, &count) != ORTHOLAN_OK || count != 2 ||
          ortholan_name_copy(shared, &mine) != ORTHOLAN_OK ||
          ortholan_name_set(mine, "CN", type.c_str(), 0) != ORTHOLAN_OK ||
          ortholan_name_get(mine, "CN", &value, nullptr) != ORTHOLAN_OK || value != type ||
          ortholan_name_equal(shared, mine, &equal) != ORTHOLAN_OK || equal != 0) {
        ++wrong;
      }
      ortholan_free(value);
      ortholan_free(attributes);
      const ortholan_result refused =
          number % 2 == 0 ? ortholan_name_remove(mine, "O") : ortholan_name_add(mine, "CN", "", 0);
      if (refused != (number % 2 == 0 ? ORTHOLAN_ERROR_NOT_FOUND : ORTHOLAN_ERROR_VALUE)) ++wrong;
      if (ortholan_last_error() != refused) ++wrong;
      ortholan_name_free(mine);
    }
  });
  EXPECT_EQ(0, wrong);
  ortholan_name_free(shared);
}

}  // namespace
}  // namespace Ortholan::testing
