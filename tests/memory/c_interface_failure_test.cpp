// Each allocation of each function of the C interface made to fail in turn: the function returns
// ORTHOLAN_ERROR_MEMORY, gives nothing out, leaks nothing and leaves its handle as it was.

#include <gtest/gtest.h>

#include <functional>

#include "tests/memory/counting_new.h"
#include "tests/support/handles.h"

namespace Ortholan::testing {
namespace {

// More attributes than scratch space holds without allocating, and letters outside ASCII.
std::string LongUtf8Text() {
  std::string text = "CN=\xD0\x90 name of some length";
  for (int i = 0; i < 40; ++i) text += ", OU=\xD0\x91 unit with a name of some length";
  return text;
}

const std::string kText = LongUtf8Text();
const OctetsIn kNameDer("\x30\x0D\x31\x0B\x30\x09\x06\x03\x55\x04\x06\x13\x02RU");
const OctetsIn kGeneral(
    "\x82\x03"
    "a.b");
const OctetsIn kGenerals(
    "\x30\x0A\x82\x03"
    "a.b\x82\x03"
    "a.c");
const OctetsIn kExtension(std::string("\x30\x09\x06\x03\x55\x1D\x13\x04\x02\x30\x00", 11));
const OctetsIn kExtensions(std::string("\x30\x0B\x30\x09\x06\x03\x55\x1D\x13\x04\x02\x30\x00", 13));

// A handle of each kind, made anew by every run.
template <class Handle, class Function>
Owned<Handle> Fresh(const Function& function) {
  ortholan_result result = ORTHOLAN_OK;
  return Made<Handle>(&result, function);
}
Owned<ortholan_name> MakeName() {
  return Fresh<ortholan_name>(
      [](ortholan_name** out) { return ortholan_name_from_text(kText.c_str(), 0, 0, out); });
}
Owned<ortholan_extension> MakeExtension(const char* oid) {
  return Fresh<ortholan_extension>([oid](ortholan_extension** out) {
    return ortholan_extension_new(oid, 1, kNameDer.data(), kNameDer.size, out);
  });
}
Owned<ortholan_extensions> MakeExtensions() {
  return Fresh<ortholan_extensions>([](ortholan_extensions** out) {
    return ortholan_extensions_from_der(kExtensions.data(), kExtensions.size, out);
  });
}

struct Handles {
  Owned<ortholan_name> name = MakeName();
  Owned<ortholan_general_name> general =
      Fresh<ortholan_general_name>([](ortholan_general_name** out) {
        return ortholan_general_name_from_der(kGeneral.data(), kGeneral.size, out);
      });
  Owned<ortholan_general_names> generals =
      Fresh<ortholan_general_names>([](ortholan_general_names** out) {
        return ortholan_general_names_from_der(kGenerals.data(), kGenerals.size, out);
      });
  Owned<ortholan_extension> extension = MakeExtension("2.5.29.15");
  Owned<ortholan_extensions> list = MakeExtensions();
};

// Runs one call with one failing allocation, and nothing around it.
template <class Call>
ortholan_result Armed(std::size_t number, const Call& call) {
  ortholan_result result = ORTHOLAN_OK;
  {
    const FailingAllocation failing(number);
    result = call();
  }
  EXPECT_TRUE(result == ORTHOLAN_OK || ortholan_last_status() == 16u);
  return result;
}

struct HandleCall {
  const char* label;
  std::function<ortholan_result(const Handles& handles, std::size_t number)> run;
};

// A call that gives out a handle.
template <class Handle>
HandleCall Makes(const char* label, ortholan_result (*call)(const Handles&, Handle**)) {
  return {label, [call](const Handles& handles, std::size_t number) {
            ortholan_result result = ORTHOLAN_OK;
            const auto made = Made<Handle>(&result, [&](Handle** out) {
              return Armed(number, [&] { return call(handles, out); });
            });
            EXPECT_EQ(result == ORTHOLAN_OK, made != nullptr);
            return result;
          }};
}

// A call that gives out memory and its size.
template <class Item>
HandleCall Gives(const char* label, ortholan_result (*call)(const Handles&, Item**, size_t*)) {
  return {label, [call](const Handles& handles, std::size_t number) {
            ortholan_result result = ORTHOLAN_OK;
            const std::string given = Given<Item>(&result, [&](Item** out, size_t* size) {
              return Armed(number, [&] { return call(handles, out, size); });
            });
            EXPECT_EQ(result == ORTHOLAN_OK, !given.empty());
            return result;
          }};
}

std::string TextOf(const Owned<ortholan_name>& name) {
  ortholan_result result = ORTHOLAN_OK;
  return Given<char>(&result, [&](char** text, size_t* size) {
    return ortholan_name_text(name.get(), ORTHOLAN_STYLE_KEYS, text, size);
  });
}

// A call that changes a name.
HandleCall Changes(const char* label, ortholan_result (*call)(ortholan_name*)) {
  return {label, [call](const Handles& handles, std::size_t number) {
            const std::string before = TextOf(handles.name);
            const ortholan_result result = Armed(number, [&] { return call(handles.name.get()); });
            EXPECT_EQ(result != ORTHOLAN_OK, TextOf(handles.name) == before);
            return result;
          }};
}

std::string Der(const Owned<ortholan_extensions>& list) {
  ortholan_result result = ORTHOLAN_OK;
  return Given<uint8_t>(&result, [&](uint8_t** der, size_t* size) {
    return ortholan_extensions_der(list.get(), der, size);
  });
}

HandleCall Sets(const char* label, const char* oid) {
  return {label, [oid](const Handles& handles, std::size_t number) {
            const auto extension = MakeExtension(oid);
            const std::string before = Der(handles.list);
            const ortholan_result result = Armed(number, [&] {
              return ortholan_extensions_set(handles.list.get(), extension.get());
            });
            EXPECT_EQ(result != ORTHOLAN_OK, Der(handles.list) == before);
            return result;
          }};
}

ortholan_result TellError(const Handles&, std::size_t number) {
  char* message = nullptr;
  uint32_t fault = 77;
  size_t place = 77;
  const std::string text = kText + ", C=\"\"\"_\"";
  const ortholan_result result = Armed(number, [&] {
    return ortholan_name_text_error(text.c_str(), 0, &fault, &place, &place, &message);
  });
  EXPECT_EQ(result == ORTHOLAN_OK, Owned<char>(message) != nullptr);
  EXPECT_EQ(result == ORTHOLAN_OK, fault == ORTHOLAN_FAULT_WRONG_CHARACTER);
  return result;
}

ortholan_result Compare(const Handles& handles, std::size_t number) {
  const auto other = MakeName();
  ortholan_name_remove(other.get(), "OU");
  int equal = 77;
  const auto result =
      Armed(number, [&] { return ortholan_name_equal(handles.name.get(), other.get(), &equal); });
  EXPECT_EQ(0, equal);
  return result;
}

const HandleCall kHandleCalls[] = {
    {"text error", TellError},
    {"equal", Compare},
    Makes<ortholan_name>(
        "from text",
        [](auto&, auto out) { return ortholan_name_from_text(kText.c_str(), 0, 1, out); }),
    Makes<ortholan_name>(
        "from text of a size",
        [](auto&, auto out) { return ortholan_name_from_text_n("CN=A", 4, 0, 0, out); }),
    Makes<ortholan_name>("name from octets",
                         [](auto&, auto out) {
                           return ortholan_name_from_der(kNameDer.data(), kNameDer.size, out);
                         }),
    Makes<ortholan_name>("new name", [](auto&, auto out) { return ortholan_name_new(out); }),
    Makes<ortholan_name>(
        "copy",
        [](auto& handles, auto out) { return ortholan_name_copy(handles.name.get(), out); }),
    Gives<char>("text",
                [](auto& handles, auto out, auto size) {
                  return ortholan_name_text(handles.name.get(), ORTHOLAN_STYLE_KEYS, out, size);
                }),
    Gives<uint8_t>("octets",
                   [](auto& handles, auto out, auto size) {
                     return ortholan_name_der(handles.name.get(), out, size);
                   }),
    Gives<ortholan_attribute>("attributes",
                              [](auto& handles, auto out, auto size) {
                                return ortholan_name_attributes(handles.name.get(), out, size);
                              }),
    Gives<char>("value",
                [](auto& handles, auto out, auto size) {
                  return ortholan_name_get(handles.name.get(), "CN", out, size);
                }),
    Changes("add", [](auto name) { return ortholan_name_add(name, "1.2.3.4", "A long value", 0); }),
    Changes(
        "add of a size",
        [](auto name) { return ortholan_name_add_n(name, "O", "A value of some length", 22, 0); }),
    Changes("set", [](auto name) { return ortholan_name_set(name, "CN", "A long value", 0); }),
    Changes(
        "set of a size",
        [](auto name) { return ortholan_name_set_n(name, "OU", "A value of some length", 22, 0); }),
    Changes("remove", [](auto name) { return ortholan_name_remove(name, "CN"); }),
    Makes<ortholan_general_name>("general name",
                                 [](auto&, auto out) {
                                   return ortholan_general_name_from_der(kGeneral.data(),
                                                                         kGeneral.size, out);
                                 }),
    Gives<char>("its text",
                [](auto& handles, auto out, auto size) {
                  return ortholan_general_name_text(handles.general.get(), out, size);
                }),
    Gives<uint8_t>("its value",
                   [](auto& handles, auto out, auto size) {
                     return ortholan_general_name_value(handles.general.get(), out, size);
                   }),
    Gives<uint8_t>("its octets",
                   [](auto& handles, auto out, auto size) {
                     return ortholan_general_name_der(handles.general.get(), out, size);
                   }),
    Makes<ortholan_general_names>("general names",
                                  [](auto&, auto out) {
                                    return ortholan_general_names_from_der(kGenerals.data(),
                                                                           kGenerals.size, out);
                                  }),
    Makes<ortholan_general_name>("one of them",
                                 [](auto& handles, auto out) {
                                   return ortholan_general_names_get(handles.generals.get(), 1,
                                                                     out);
                                 }),
    Makes<ortholan_extension>("new extension",
                              [](auto&, auto out) {
                                return ortholan_extension_new("2.5.29.15", 1, kNameDer.data(),
                                                              kNameDer.size, out);
                              }),
    Makes<ortholan_extension>("extension",
                              [](auto&, auto out) {
                                return ortholan_extension_from_der(kExtension.data(),
                                                                   kExtension.size, out);
                              }),
    Makes<char>("its identifier",
                [](auto& handles, auto out) {
                  return ortholan_extension_oid(handles.extension.get(), out);
                }),
    Gives<uint8_t>("extension's value",
                   [](auto& handles, auto out, auto size) {
                     return ortholan_extension_value(handles.extension.get(), out, size);
                   }),
    Gives<uint8_t>("extension's octets",
                   [](auto& handles, auto out, auto size) {
                     return ortholan_extension_der(handles.extension.get(), out, size);
                   }),
    Makes<ortholan_extensions>("new list",
                               [](auto&, auto out) { return ortholan_extensions_new(out); }),
    Makes<ortholan_extensions>("list",
                               [](auto&, auto out) {
                                 return ortholan_extensions_from_der(kExtensions.data(),
                                                                     kExtensions.size, out);
                               }),
    Makes<ortholan_extension>("one at an index",
                              [](auto& handles, auto out) {
                                return ortholan_extensions_get(handles.list.get(), 0, out);
                              }),
    Makes<ortholan_extension>("one by identifier",
                              [](auto& handles, auto out) {
                                return ortholan_extensions_find(handles.list.get(), "2.5.29.19",
                                                                out);
                              }),
    Sets("append to a list", "2.5.29.15"),
    Sets("replace in a list", "2.5.29.19"),
    Gives<uint8_t>("list's octets",
                   [](auto& handles, auto out, auto size) {
                     return ortholan_extensions_der(handles.list.get(), out, size);
                   }),
};

TEST(CInterfaceFailure, IsReportedAndLeaksNothing) {
  for (const HandleCall& row : kHandleCalls) {
    SCOPED_TRACE(row.label);
    std::size_t failures = 0;
    for (bool reached_end = false; !reached_end; ++failures) {
      const std::size_t before = LiveBlocks();
      const ortholan_result result = row.run(Handles(), failures);
      reached_end = !FailingAllocation::Failed();
      // A sort can do without its scratch space.
      EXPECT_TRUE(result == ORTHOLAN_OK || (!reached_end && result == ORTHOLAN_ERROR_MEMORY))
          << "allocation " << failures << ": " << result;
      EXPECT_EQ(before, LiveBlocks()) << "allocation " << failures;
      ASSERT_LT(failures, 1000u);
    }
    EXPECT_GT(failures, 1u) << "the function allocates nothing";
  }
}

}  // namespace
}  // namespace Ortholan::testing
