// The last error of the C interface, and every pointer that may not be null.

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <thread>
#include <tuple>

#include "tests/support/handles.h"

namespace Ortholan::testing {
namespace {

// The last error as "result status system-error: message".
std::string LastError() {
  return std::to_string(ortholan_last_error()) + ' ' + std::to_string(ortholan_last_status()) +
         ' ' + std::to_string(ortholan_last_system_error()) + ": " + ortholan_last_error_message();
}

TEST(CInterface, LastErrorStaysAThreadsOwn) {
  ortholan_result result = ORTHOLAN_OK;
  const auto refused = Made<ortholan_name>(
      &result, [](ortholan_name** name) { return ortholan_name_from_text("", 0, 0, name); });
  const std::string after = LastError();
  EXPECT_EQ(after.substr(0, after.find(": ")),
            std::to_string(ORTHOLAN_ERROR_NAME_TEXT) + " 28 160");
  const auto name = Made<ortholan_name>(&result, ortholan_name_new);
  EXPECT_EQ(LastError(), after) << "success leaves it";
  std::string fresh;
  std::thread([&] { fresh = LastError(); }).join();
  EXPECT_EQ(fresh, "0 0 0: ");
  EXPECT_EQ(ortholan_name_remove(name.get(), "CN"), ORTHOLAN_ERROR_NOT_FOUND);
  EXPECT_EQ(ortholan_last_status() + ortholan_last_system_error(), 0u);
  EXPECT_NE(std::strchr(ortholan_version(), '.'), nullptr);
}

// One call tells what is wrong with a text, and where.
TEST(CInterface, MessageTellsThePlaceInAText) {
  const std::tuple<const char*, const char*> rows[] = {
      {"",
       "ortholan_name_from_text: end of the text at character 1: expected a type such as CN, "
       "\"=\" and a value"},
      {"CN=\xD0\x96, C=\xD0\x96",
       "ortholan_name_from_text: \"\xD0\x96\" at character 9: expected letters"},
  };
  for (const auto& [text, message] : rows) {
    ortholan_result result = ORTHOLAN_OK;
    Made<ortholan_name>(&result, [text = text](ortholan_name** name) {
      return ortholan_name_from_text(text, 0, 0, name);
    });
    EXPECT_EQ(std::string(ortholan_last_error_message()).substr(0, std::strlen(message)), message);
  }
}

TEST(CInterface, NothingCanBeReleased) {
  ortholan_free(nullptr);
  ortholan_name_free(nullptr);
  ortholan_general_name_free(nullptr);
  ortholan_general_names_free(nullptr);
  ortholan_extension_free(nullptr);
  ortholan_extensions_free(nullptr);
}

// Sizes above 32 bits are refused before an octet is read.
TEST(CInterface, RefusesFourGibibytes) {
  const uint8_t octet = 0x30;
  ortholan_result result = ORTHOLAN_OK;
  const auto size = static_cast<size_t>(0x100000000);
  Made<ortholan_name>(
      &result, [&](ortholan_name** name) { return ortholan_name_from_der(&octet, size, name); });
  EXPECT_EQ(result, ORTHOLAN_ERROR_ARGUMENT);
  Made<ortholan_extension>(&result, [&](ortholan_extension** extension) {
    return ortholan_extension_new("2.5.29.15", 0, &octet, size, extension);
  });
  EXPECT_EQ(result, ORTHOLAN_ERROR_ARGUMENT);
}

// An output that the caller may leave out.
template <class T>
struct Optional {
  T* place;
};

template <class T>
T Passed(T argument) {
  return argument;
}
template <class T>
T* Passed(Optional<T> argument) {
  return argument.place;
}

// Makes one pointer null; false for what is none or may be null.
template <class T>
bool MakeNull(T** argument) {
  *argument = nullptr;
  return true;
}
template <class T>
bool MakeNull(T*) {
  return false;
}

// Fills the outputs of a call with what a failure must not leave, and tells whether it was left.
template <class T>
void Spoil(T** place) {
  static char untouched;
  if (place != nullptr) *place = reinterpret_cast<T*>(&untouched);
}
template <class T>
bool IsCleared(T** place) {
  return place == nullptr || *place == nullptr;
}
template <class T>
void Spoil(const T&) {}
template <class T>
bool IsCleared(const T&) {
  return true;
}
inline void Spoil(size_t* place) {
  if (place != nullptr) *place = 77;
}
inline bool IsCleared(size_t* place) { return place == nullptr || *place == 0; }

// The argument, null if none of those before it were left to pass by.
template <class T>
T NullAfter(size_t* before, T argument, bool* made) {
  if ((*before)-- == 0) *made = MakeNull(&argument);
  return argument;
}

void ExpectRefused(size_t index, int result, bool is_cleared) {
  EXPECT_EQ(result, ORTHOLAN_ERROR_ARGUMENT) << "argument " << index;
  EXPECT_TRUE(is_cleared) << "argument " << index;
}

// Calls the function with each of its pointers null in turn.
template <class Function, class... Arguments>
void ExpectNoNulls(const char* name, const Function& function, Arguments... arguments) {
  SCOPED_TRACE(name);
  size_t refused = 0;
  for (size_t index = 0; index < sizeof...(Arguments); ++index) {
    size_t before = index;
    bool made = false;
    // The braces have the arguments taken in their order.
    const std::tuple<Arguments...> tried{NullAfter(&before, arguments, &made)...};
    if (!made) continue;
    ++refused;
    std::apply(
        [&](const auto&... each) {
          (Spoil(Passed(each)), ...);
          const int result = function(Passed(each)...);
          ExpectRefused(index, result, (IsCleared(Passed(each)) && ...));
        },
        tried);
  }
  EXPECT_GT(refused, 0u);
}
#define EXPECT_NO_NULLS(function, ...) ExpectNoNulls(#function, function, __VA_ARGS__)

TEST(CInterface, TakesNoOctetsFromNowhere) {
  ortholan_result result = ORTHOLAN_OK;
  const auto none = Made<ortholan_name>(&result, [](ortholan_name** made) {
    return ortholan_name_from_text_n(nullptr, 0, 0, 0, made);
  });
  EXPECT_EQ(result, ORTHOLAN_ERROR_NAME_TEXT);
  const auto name = Made<ortholan_name>(&result, ortholan_name_new);
  EXPECT_EQ(ortholan_name_add_n(name.get(), "CN", nullptr, 0, 0), ORTHOLAN_ERROR_VALUE);
  EXPECT_EQ(ortholan_name_set_n(name.get(), "CN", nullptr, 0, 0), ORTHOLAN_ERROR_VALUE);
  uint32_t kind = 0;
  size_t place = 0;
  EXPECT_EQ(ortholan_name_text_error_n(nullptr, 0, 0, &kind, &place, &place, nullptr), ORTHOLAN_OK);
  EXPECT_NE(kind, 0u);
}

TEST(CInterface, RefusesOctetsBehindAList) {
  const uint8_t octets[] = {0x30, 0x00, 0x00};
  ortholan_result result = ORTHOLAN_OK;
  for (const size_t size : {size_t{2}, size_t{3}}) {
    const auto list = Made<ortholan_extensions>(&result, [&](ortholan_extensions** made) {
      return ortholan_extensions_from_der(octets, size, made);
    });
    EXPECT_EQ(result, size == 2 ? ORTHOLAN_OK : ORTHOLAN_ERROR_DER);
  }
}

TEST(CInterface, RefusesNulls) {
  const uint8_t octets[] = {0x30, 0x00};
  const uint8_t* const der = octets;
  const char* const text = "CN=a";
  const size_t one = 1;
  ortholan_result result = ORTHOLAN_OK;
  const auto name = Made<ortholan_name>(&result, ortholan_name_new);
  const auto list = Made<ortholan_extensions>(&result, ortholan_extensions_new);
  const auto extension = Made<ortholan_extension>(&result, [](ortholan_extension** made) {
    return ortholan_extension_new("2.5.29.15", 0, nullptr, 0, made);
  });
  const uint8_t dns[] = {0x82, 0x00};
  const auto general = Made<ortholan_general_name>(&result, [&](ortholan_general_name** made) {
    return ortholan_general_name_from_der(dns, 2, made);
  });
  const auto generals = Made<ortholan_general_names>(&result, [&](ortholan_general_names** made) {
    return ortholan_general_names_from_der(octets, 2, made);
  });
  const ortholan_name* const n = name.get();
  const ortholan_extensions* const l = list.get();
  const ortholan_extension* const e = extension.get();
  const ortholan_general_name* const g = general.get();
  const ortholan_general_names* const gs = generals.get();
  ortholan_name* made_name = nullptr;
  ortholan_extensions* made_list = nullptr;
  ortholan_extension* made_extension = nullptr;
  ortholan_general_name* made_general = nullptr;
  ortholan_general_names* made_generals = nullptr;
  ortholan_attribute* attributes = nullptr;
  char* made_text = nullptr;
  uint8_t* made_der = nullptr;
  size_t size = 0;
  size_t length = 0;
  int number = 0;
  uint32_t kind = 0;
  const Optional<size_t> any_size = {&size};

  EXPECT_NO_NULLS(ortholan_name_from_text, text, 0u, 0, &made_name);
  EXPECT_NO_NULLS(ortholan_name_from_text_n, text, one, 0u, 0, &made_name);
  EXPECT_NO_NULLS(ortholan_name_text_error, text, 0u, &kind, &size, &length,
                  Optional<char*>{&made_text});
  EXPECT_NO_NULLS(ortholan_name_text_error_n, text, one, 0u, &kind, &size, &length,
                  Optional<char*>{&made_text});
  EXPECT_NO_NULLS(ortholan_name_from_der, der, one, &made_name);
  EXPECT_NO_NULLS(ortholan_name_new, &made_name);
  EXPECT_NO_NULLS(ortholan_name_copy, n, &made_name);
  EXPECT_NO_NULLS(ortholan_name_text, n, 3u, &made_text, any_size);
  EXPECT_NO_NULLS(ortholan_name_der, n, &made_der, &size);
  EXPECT_NO_NULLS(ortholan_name_count, n, &size);
  EXPECT_NO_NULLS(ortholan_name_attributes, n, &attributes, &size);
  EXPECT_NO_NULLS(ortholan_name_get, n, text, &made_text, any_size);
  EXPECT_NO_NULLS(ortholan_name_add, name.get(), text, text, 0u);
  EXPECT_NO_NULLS(ortholan_name_add_n, name.get(), text, text, one, 0u);
  EXPECT_NO_NULLS(ortholan_name_set, name.get(), text, text, 0u);
  EXPECT_NO_NULLS(ortholan_name_set_n, name.get(), text, text, one, 0u);
  EXPECT_NO_NULLS(ortholan_name_remove, name.get(), text);
  EXPECT_NO_NULLS(ortholan_name_equal, n, n, &number);
  EXPECT_NO_NULLS(ortholan_general_name_from_der, der, one, &made_general);
  EXPECT_NO_NULLS(ortholan_general_name_kind, g, &kind);
  EXPECT_NO_NULLS(ortholan_general_name_text, g, &made_text, any_size);
  EXPECT_NO_NULLS(ortholan_general_name_value, g, &made_der, &size);
  EXPECT_NO_NULLS(ortholan_general_name_der, g, &made_der, &size);
  EXPECT_NO_NULLS(ortholan_general_names_from_der, der, one, &made_generals);
  EXPECT_NO_NULLS(ortholan_general_names_count, gs, &size);
  EXPECT_NO_NULLS(ortholan_general_names_get, gs, size_t{0}, &made_general);
  EXPECT_NO_NULLS(ortholan_extension_new, "2.5.29.15", 0, der, one, &made_extension);
  EXPECT_NO_NULLS(ortholan_extension_from_der, der, one, &made_extension);
  EXPECT_NO_NULLS(ortholan_extension_oid, e, &made_text);
  EXPECT_NO_NULLS(ortholan_extension_critical, e, &number);
  EXPECT_NO_NULLS(ortholan_extension_value, e, &made_der, &size);
  EXPECT_NO_NULLS(ortholan_extension_der, e, &made_der, &size);
  EXPECT_NO_NULLS(ortholan_extensions_new, &made_list);
  EXPECT_NO_NULLS(ortholan_extensions_from_der, der, one, &made_list);
  EXPECT_NO_NULLS(ortholan_extensions_count, l, &size);
  EXPECT_NO_NULLS(ortholan_extensions_get, l, size_t{0}, &made_extension);
  EXPECT_NO_NULLS(ortholan_extensions_find, l, text, &made_extension);
  EXPECT_NO_NULLS(ortholan_extensions_set, list.get(), e);
  EXPECT_NO_NULLS(ortholan_extensions_der, l, &made_der, &size);
  size = 77;
  number = 77;
  EXPECT_EQ(ortholan_name_equal(n, nullptr, &number), ORTHOLAN_ERROR_ARGUMENT);
  EXPECT_EQ(number, 0);
}

}  // namespace
}  // namespace Ortholan::testing
