// Each allocation of each function of the C interface made to fail in turn: the function returns
// ORTHOLAN_ERROR_MEMORY, gives nothing out, leaks nothing and leaves its handle as it was.

#include <gtest/gtest.h>
#include <ortholan/ortholan_c.h>

#include <functional>
#include <memory>
#include <string>

#include "tests/memory/counting_new.h"

namespace Ortholan::testing {
namespace {

template <typename Handle, void (*kFree)(Handle*)>
struct Freeing {
  void operator()(Handle* handle) const { kFree(handle); }
};
template <typename Handle, void (*kFree)(Handle*)>
using Owned = std::unique_ptr<Handle, Freeing<Handle, kFree>>;
using Name = Owned<ortholan_name, ortholan_name_free>;
using General = Owned<ortholan_general_name, ortholan_general_name_free>;
using Generals = Owned<ortholan_general_names, ortholan_general_names_free>;
using Extension = Owned<ortholan_extension, ortholan_extension_free>;
using Extensions = Owned<ortholan_extensions, ortholan_extensions_free>;

// More attributes than scratch space holds without allocating, and letters outside ASCII.
std::string LongText() {
  std::string text = "CN=\xD0\x90 name of some length";
  for (int i = 0; i < 40; ++i) text += ", OU=\xD0\x91 unit with a name of some length";
  return text;
}

const std::string kText = LongText();
constexpr uint8_t kNameDer[] = {0x30, 0x0D, 0x31, 0x0B, 0x30, 0x09, 0x06, 0x03,
                                0x55, 0x04, 0x06, 0x13, 0x02, 0x52, 0x55};
constexpr uint8_t kGeneral[] = {0x82, 0x03, 'a', '.', 'b'};
constexpr uint8_t kGenerals[] = {0x30, 0x0A, 0x82, 0x03, 'a', '.', 'b', 0x82, 0x03, 'a', '.', 'c'};
constexpr uint8_t kExtension[] = {0x30, 0x09, 0x06, 0x03, 0x55, 0x1D, 0x13, 0x04, 0x02, 0x30, 0x00};
constexpr uint8_t kExtensions[] = {0x30, 0x0B, 0x30, 0x09, 0x06, 0x03, 0x55,
                                   0x1D, 0x13, 0x04, 0x02, 0x30, 0x00};

Name MakeName() {
  ortholan_name* name = nullptr;
  ortholan_name_from_text(kText.c_str(), 0, 0, &name);
  return Name(name);
}

General MakeGeneral() {
  ortholan_general_name* name = nullptr;
  ortholan_general_name_from_der(kGeneral, sizeof kGeneral, &name);
  return General(name);
}

Generals MakeGenerals() {
  ortholan_general_names* names = nullptr;
  ortholan_general_names_from_der(kGenerals, sizeof kGenerals, &names);
  return Generals(names);
}

Extension MakeExtension(const char* oid) {
  ortholan_extension* extension = nullptr;
  ortholan_extension_new(oid, 1, kNameDer, sizeof kNameDer, &extension);
  return Extension(extension);
}

Extensions MakeExtensions() {
  ortholan_extensions* extensions = nullptr;
  ortholan_extensions_from_der(kExtensions, sizeof kExtensions, &extensions);
  return Extensions(extensions);
}

// Runs one call with one failing allocation, and nothing around it.
class Arm {
 public:
  explicit Arm(std::size_t number) : number_(number) {}
  template <typename Operation>
  ortholan_result operator()(Operation operation) const {
    const ortholan_result result = Run(operation);
    if (result == ORTHOLAN_ERROR_MEMORY) {
      EXPECT_EQ(16u, ortholan_last_status());
    }
    return result;
  }
  // For a call that gives out a handle.
  template <typename Handle, typename Operation>
  ortholan_result Make(void (*release)(Handle*), Operation operation) const {
    Handle* made = nullptr;
    const ortholan_result result = (*this)([&] { return operation(&made); });
    EXPECT_EQ(result == ORTHOLAN_OK, made != nullptr);
    release(made);
    return result;
  }
  // For a call that gives out memory and its size.
  template <typename Item, typename Operation>
  ortholan_result Give(Operation operation) const {
    Item* given = nullptr;
    size_t size = 77;
    const ortholan_result result = (*this)([&] { return operation(&given, &size); });
    EXPECT_EQ(result == ORTHOLAN_OK, given != nullptr);
    if (result != ORTHOLAN_OK) {
      EXPECT_EQ(0u, size);
    }
    ortholan_free(given);
    return result;
  }

 private:
  template <typename Operation>
  ortholan_result Run(Operation operation) const {
    const FailingAllocation failing(number_);
    return operation();
  }

  std::size_t number_;
};

std::string Text(const ortholan_name* name) {
  char* text = nullptr;
  ortholan_name_text(name, ORTHOLAN_STYLE_KEYS, &text, nullptr);
  const std::string copy = text != nullptr ? text : "(null)";
  ortholan_free(text);
  return copy;
}

// For a call that changes a name.
template <typename Operation>
ortholan_result Change(const Arm& arm, Operation operation) {
  const Name name = MakeName();
  const std::string before = Text(name.get());
  const ortholan_result result = arm([&] { return operation(name.get()); });
  EXPECT_EQ(result != ORTHOLAN_OK, Text(name.get()) == before);
  return result;
}

bool Has(const ortholan_extensions* list, const char* oid) {
  ortholan_extension* found = nullptr;
  ortholan_extensions_find(list, oid, &found);
  const Extension owned(found);
  return found != nullptr;
}

ortholan_result SetExtension(const Arm& arm, const char* oid) {
  const Extensions list = MakeExtensions();
  const Extension extension = MakeExtension(oid);
  size_t before = 0;
  size_t after = 0;
  const bool had = Has(list.get(), oid);
  ortholan_extensions_count(list.get(), &before);
  const ortholan_result result =
      arm([&] { return ortholan_extensions_set(list.get(), extension.get()); });
  ortholan_extensions_count(list.get(), &after);
  if (result != ORTHOLAN_OK) {
    EXPECT_EQ(before, after);
    EXPECT_EQ(had, Has(list.get(), oid));
  }
  ortholan_extension* last = nullptr;
  EXPECT_EQ(ORTHOLAN_OK, ortholan_extensions_get(list.get(), after - 1, &last));
  ortholan_extension_free(last);
  return result;
}

struct Case {
  const char* label;
  std::function<ortholan_result(const Arm&)> run;
};

const Case kCases[] = {
    {"name_text_error",
     [](const Arm& arm) {
       char* message = nullptr;
       uint32_t fault = 77;
       size_t position = 77;
       size_t length = 77;
       const std::string text = kText + ", C=\"\"\"_\"";
       const ortholan_result result = arm([&] {
         return ortholan_name_text_error(text.c_str(), 0, &fault, &position, &length, &message);
       });
       EXPECT_EQ(result == ORTHOLAN_OK, message != nullptr);
       EXPECT_EQ(result == ORTHOLAN_OK, fault == ORTHOLAN_FAULT_WRONG_CHARACTER);
       ortholan_free(message);
       return result;
     }},
    {"name_from_text",
     [](const Arm& arm) {
       return arm.Make(ortholan_name_free, [](ortholan_name** name) {
         return ortholan_name_from_text(kText.c_str(), 0, 1, name);
       });
     }},
    {"name_from_text_n",
     [](const Arm& arm) {
       return arm.Make(ortholan_name_free, [](ortholan_name** name) {
         return ortholan_name_from_text_n("CN=A", 4, 0, 0, name);
       });
     }},
    {"name_from_der",
     [](const Arm& arm) {
       return arm.Make(ortholan_name_free, [](ortholan_name** name) {
         return ortholan_name_from_der(kNameDer, sizeof kNameDer, name);
       });
     }},
    {"name_new", [](const Arm& arm) { return arm.Make(ortholan_name_free, ortholan_name_new); }},
    {"name_copy",
     [](const Arm& arm) {
       const Name name = MakeName();
       return arm.Make(ortholan_name_free,
                       [&](ortholan_name** copy) { return ortholan_name_copy(name.get(), copy); });
     }},
    {"name_text",
     [](const Arm& arm) {
       const Name name = MakeName();
       return arm.Give<char>([&](char** text, size_t* size) {
         return ortholan_name_text(name.get(), ORTHOLAN_STYLE_KEYS, text, size);
       });
     }},
    {"name_der",
     [](const Arm& arm) {
       const Name name = MakeName();
       return arm.Give<uint8_t>(
           [&](uint8_t** der, size_t* size) { return ortholan_name_der(name.get(), der, size); });
     }},
    {"name_attributes",
     [](const Arm& arm) {
       const Name name = MakeName();
       return arm.Give<ortholan_attribute>([&](ortholan_attribute** attributes, size_t* count) {
         return ortholan_name_attributes(name.get(), attributes, count);
       });
     }},
    {"name_get",
     [](const Arm& arm) {
       const Name name = MakeName();
       return arm.Give<char>([&](char** value, size_t* size) {
         return ortholan_name_get(name.get(), "CN", value, size);
       });
     }},
    {"name_add",
     [](const Arm& arm) {
       return Change(arm, [](ortholan_name* name) {
         return ortholan_name_add(name, "1.2.3.4", "A value of some length", 0);
       });
     }},
    {"name_add_n",
     [](const Arm& arm) {
       return Change(arm, [](ortholan_name* name) {
         return ortholan_name_add_n(name, "O", "A value of some length", 22, 0);
       });
     }},
    {"name_set",
     [](const Arm& arm) {
       return Change(arm, [](ortholan_name* name) {
         return ortholan_name_set(name, "CN", "A value of some length", 0);
       });
     }},
    {"name_set_n",
     [](const Arm& arm) {
       return Change(arm, [](ortholan_name* name) {
         return ortholan_name_set_n(name, "OU", "A value of some length", 22, 0);
       });
     }},
    {"name_remove",
     [](const Arm& arm) {
       return Change(arm, [](ortholan_name* name) { return ortholan_name_remove(name, "CN"); });
     }},
    {"name_equal",
     [](const Arm& arm) {
       const Name a = MakeName();
       const Name b = MakeName();
       ortholan_name_remove(b.get(), "OU");
       int equal = 77;
       const auto result = arm([&] { return ortholan_name_equal(a.get(), b.get(), &equal); });
       EXPECT_EQ(0, equal);
       return result;
     }},
    {"general_name_from_der",
     [](const Arm& arm) {
       return arm.Make(ortholan_general_name_free, [](ortholan_general_name** name) {
         return ortholan_general_name_from_der(kGeneral, sizeof kGeneral, name);
       });
     }},
    {"general_name_text",
     [](const Arm& arm) {
       const General name = MakeGeneral();
       return arm.Give<char>([&](char** text, size_t* size) {
         return ortholan_general_name_text(name.get(), text, size);
       });
     }},
    {"general_name_value",
     [](const Arm& arm) {
       const General name = MakeGeneral();
       return arm.Give<uint8_t>([&](uint8_t** value, size_t* size) {
         return ortholan_general_name_value(name.get(), value, size);
       });
     }},
    {"general_name_der",
     [](const Arm& arm) {
       const General name = MakeGeneral();
       return arm.Give<uint8_t>([&](uint8_t** der, size_t* size) {
         return ortholan_general_name_der(name.get(), der, size);
       });
     }},
    {"general_names_from_der",
     [](const Arm& arm) {
       return arm.Make(ortholan_general_names_free, [](ortholan_general_names** names) {
         return ortholan_general_names_from_der(kGenerals, sizeof kGenerals, names);
       });
     }},
    {"general_names_get",
     [](const Arm& arm) {
       const Generals names = MakeGenerals();
       return arm.Make(ortholan_general_name_free, [&](ortholan_general_name** name) {
         return ortholan_general_names_get(names.get(), 1, name);
       });
     }},
    {"extension_new",
     [](const Arm& arm) {
       return arm.Make(ortholan_extension_free, [](ortholan_extension** extension) {
         return ortholan_extension_new("2.5.29.15", 1, kNameDer, sizeof kNameDer, extension);
       });
     }},
    {"extension_from_der",
     [](const Arm& arm) {
       return arm.Make(ortholan_extension_free, [](ortholan_extension** extension) {
         return ortholan_extension_from_der(kExtension, sizeof kExtension, extension);
       });
     }},
    {"extension_oid",
     [](const Arm& arm) {
       const Extension extension = MakeExtension("2.5.29.15");
       return arm.Give<char>([&](char** oid, size_t* size) {
         *size = 0;
         return ortholan_extension_oid(extension.get(), oid);
       });
     }},
    {"extension_value",
     [](const Arm& arm) {
       const Extension extension = MakeExtension("2.5.29.15");
       return arm.Give<uint8_t>([&](uint8_t** value, size_t* size) {
         return ortholan_extension_value(extension.get(), value, size);
       });
     }},
    {"extension_der",
     [](const Arm& arm) {
       const Extension extension = MakeExtension("2.5.29.15");
       return arm.Give<uint8_t>([&](uint8_t** der, size_t* size) {
         return ortholan_extension_der(extension.get(), der, size);
       });
     }},
    {"extensions_new",
     [](const Arm& arm) { return arm.Make(ortholan_extensions_free, ortholan_extensions_new); }},
    {"extensions_from_der",
     [](const Arm& arm) {
       return arm.Make(ortholan_extensions_free, [](ortholan_extensions** extensions) {
         return ortholan_extensions_from_der(kExtensions, sizeof kExtensions, extensions);
       });
     }},
    {"extensions_get",
     [](const Arm& arm) {
       const Extensions list = MakeExtensions();
       return arm.Make(ortholan_extension_free, [&](ortholan_extension** extension) {
         return ortholan_extensions_get(list.get(), 0, extension);
       });
     }},
    {"extensions_find",
     [](const Arm& arm) {
       const Extensions list = MakeExtensions();
       return arm.Make(ortholan_extension_free, [&](ortholan_extension** extension) {
         return ortholan_extensions_find(list.get(), "2.5.29.19", extension);
       });
     }},
    {"extensions_set appends", [](const Arm& arm) { return SetExtension(arm, "2.5.29.15"); }},
    {"extensions_set replaces", [](const Arm& arm) { return SetExtension(arm, "2.5.29.19"); }},
    {"extensions_der",
     [](const Arm& arm) {
       const Extensions list = MakeExtensions();
       return arm.Give<uint8_t>([&](uint8_t** der, size_t* size) {
         return ortholan_extensions_der(list.get(), der, size);
       });
     }},
};

TEST(CInterfaceFailure, IsReportedAndLeaksNothing) {
  for (const Case& row : kCases) {
    SCOPED_TRACE(row.label);
    std::size_t failures = 0;
    for (bool reached_end = false; !reached_end; ++failures) {
      const std::size_t before = LiveBlocks();
      const ortholan_result result = row.run(Arm(failures));
      reached_end = !FailingAllocation::Failed();
      // A sort can do without its scratch space.
      const bool as_promised = reached_end
                                   ? result == ORTHOLAN_OK
                                   : result == ORTHOLAN_ERROR_MEMORY || result == ORTHOLAN_OK;
      EXPECT_TRUE(as_promised) << "allocation " << failures << ": " << result;
      EXPECT_EQ(before, LiveBlocks()) << "allocation " << failures;
      ASSERT_LT(failures, 1000u);
    }
    EXPECT_GT(failures, 1u) << "the function allocates nothing";
  }
}

}  // namespace
}  // namespace Ortholan::testing
