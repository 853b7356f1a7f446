// The C interface by the rows that the other interfaces are asked too.

#include "tests/support/vectors.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/handles.h"

namespace Ortholan::testing {
namespace {

// How the rows call a result. A failure is also the thread's last error, with a message that begins
// with the name of a function.
std::string Code(ortholan_result result) {
  static const std::pair<ortholan_result, const char*> kNames[] = {
      {ORTHOLAN_ERROR_ARGUMENT, "ARGUMENT"},
      {ORTHOLAN_ERROR_NAME_TEXT, "NAME_TEXT"},
      {ORTHOLAN_ERROR_UTF8, "UTF8"},
      {ORTHOLAN_ERROR_DER, "DER"},
      {ORTHOLAN_ERROR_MULTI_VALUED, "MULTI_VALUED"},
      {ORTHOLAN_ERROR_TYPE, "TYPE"},
      {ORTHOLAN_ERROR_VALUE, "VALUE"},
      {ORTHOLAN_ERROR_NOT_FOUND, "NOT_FOUND"}};
  if (result == ORTHOLAN_OK) return "";
  EXPECT_EQ(ortholan_last_error(), result);
  const std::string message = ortholan_last_error_message();
  EXPECT_EQ(message.compare(0, 9, "ortholan_"), 0) << message;
  for (const auto& [code, name] : kNames) {
    if (code == result) return name;
  }
  return std::to_string(result);
}

Owned<ortholan_name> NameOf(const std::string& octets, ortholan_result* result) {
  const OctetsIn der(octets);
  return Made<ortholan_name>(result, [&](ortholan_name** name) {
    return ortholan_name_from_der(der.data(), der.size, name);
  });
}

std::string Der(const Owned<ortholan_name>& name) {
  ortholan_result result = ORTHOLAN_OK;
  return name == nullptr ? "" : Given<uint8_t>(&result, [&](uint8_t** der, size_t* size) {
    return ortholan_name_der(name.get(), der, size);
  });
}

std::string Text(const Owned<ortholan_name>& name, uint32_t style, ortholan_result* result) {
  return Given<char>(result, [&](char** text, size_t* size) {
    return ortholan_name_text(name.get(), style, text, size);
  });
}

TEST(CInterface, NamesFromText) {
  for (const VectorRow& row : ReadVectors("name_text.tsv")) {
    SCOPED_TRACE(row.where());
    const std::string& text = row.text("text");
    const auto options = static_cast<uint32_t>(row.number("options"));
    const int sort = row.has("sort") ? 1 : 0;
    ortholan_result result = ORTHOLAN_OK;
    const auto sized = Made<ortholan_name>(&result, [&](ortholan_name** name) {
      return ortholan_name_from_text_n(text.data(), text.size(), options, sort, name);
    });
    EXPECT_EQ(Code(result), row.text("code"));
    const auto name = Made<ortholan_name>(&result, [&](ortholan_name** out) {
      return ortholan_name_from_text(text.c_str(), options, sort, out);
    });
    EXPECT_EQ(Code(result), row.text("code"));
    EXPECT_EQ(Der(name), row.octets("der"));
    EXPECT_EQ(Der(sized), row.octets("der"));
    if (row.has("code")) continue;
    EXPECT_EQ(Text(name, static_cast<uint32_t>(row.number("style")), &result),
              row.text("rendered"));
    EXPECT_EQ(result, ORTHOLAN_OK);
  }
}

TEST(CInterface, NamesFromOctets) {
  for (const VectorRow& row : ReadVectors("name_der.tsv")) {
    SCOPED_TRACE(row.where());
    ortholan_result result = ORTHOLAN_OK;
    const auto name = NameOf(row.octets("der"), &result);
    const bool unreadable = row.text("code").compare(0, 5, "TEXT_") == 0;
    EXPECT_EQ(Code(result), unreadable ? "" : row.text("code"));
    EXPECT_EQ(Der(name), name != nullptr ? row.octets("der") : "");
    if (name == nullptr) continue;
    EXPECT_EQ(Text(name, ORTHOLAN_STYLE_KEYS, &result), row.text("text"));
    EXPECT_EQ(Code(result), unreadable ? row.text("code").substr(5) : "");
  }
}

ortholan_result Edit(ortholan_name* name, const VectorRow& row, bool sized) {
  const char* const type = row.text("type").c_str();
  const std::string& value = row.text("value");
  const auto options = static_cast<uint32_t>(row.number("options"));
  if (row.text("edit") == "remove") return ortholan_name_remove(name, type);
  if (row.text("edit") == "add") {
    return sized ? ortholan_name_add_n(name, type, value.data(), value.size(), options)
                 : ortholan_name_add(name, type, value.c_str(), options);
  }
  return sized ? ortholan_name_set_n(name, type, value.data(), value.size(), options)
               : ortholan_name_set(name, type, value.c_str(), options);
}

TEST(CInterface, Edits) {
  for (const VectorRow& row : ReadVectors("name_edits.tsv")) {
    SCOPED_TRACE(row.where());
    for (const bool sized : {false, true}) {
      ortholan_result result = ORTHOLAN_OK;
      const auto name = NameOf(row.octets("der"), &result);
      ASSERT_EQ(result, ORTHOLAN_OK);
      if (row.text("edit") == "get") {
        const std::string value = Given<char>(&result, [&](char** text, size_t* size) {
          return ortholan_name_get(name.get(), row.text("type").c_str(), text, size);
        });
        EXPECT_EQ(value, row.text("value"));
      } else if (sized || row.text("value").find('\0') == std::string::npos) {
        result = Edit(name.get(), row, sized);
      } else {
        continue;
      }
      EXPECT_EQ(Code(result), row.text("code"));
      EXPECT_EQ(Der(name), row.octets("after"));
    }
  }
}

// What is asked of a general name that was read.
void ExpectGeneralName(const ortholan_general_name* name, const VectorRow& row) {
  ortholan_result result = ORTHOLAN_OK;
  uint32_t kind = 77;
  EXPECT_EQ(ortholan_general_name_kind(name, &kind), ORTHOLAN_OK);
  EXPECT_EQ(kind, row.number("tag"));
  EXPECT_EQ(Given<uint8_t>(&result,
                           [&](uint8_t** der, size_t* size) {
                             return ortholan_general_name_der(name, der, size);
                           }),
            row.octets("der"));
  EXPECT_EQ(Given<uint8_t>(&result,
                           [&](uint8_t** value, size_t* size) {
                             return ortholan_general_name_value(name, value, size);
                           }),
            row.octets("value"));
  EXPECT_EQ(result, ORTHOLAN_OK);
  EXPECT_EQ(Given<char>(&result,
                        [&](char** text, size_t* size) {
                          return ortholan_general_name_text(name, text, size);
                        }),
            row.text("text"));
  EXPECT_EQ(Code(result), row.has("code") ? row.text("code").substr(5) : "");
}

// Each alone, and all together as a subjectAltName has them.
TEST(CInterface, GeneralNames) {
  std::string all;
  std::vector<VectorRow> read;
  for (const VectorRow& row : ReadVectors("general_names.tsv")) {
    SCOPED_TRACE(row.where());
    const OctetsIn der(row.octets("der"));
    ortholan_result result = ORTHOLAN_OK;
    const auto name = Made<ortholan_general_name>(&result, [&](ortholan_general_name** out) {
      return ortholan_general_name_from_der(der.data(), der.size, out);
    });
    EXPECT_EQ(name == nullptr ? Code(result) : "", row.text("code") == "DER" ? "DER" : "");
    if (name == nullptr) continue;
    ExpectGeneralName(name.get(), row);
    all += row.octets("der");
    read.push_back(row);
  }
  ASSERT_LT(all.size(), 128u);
  const OctetsIn der(std::string{0x30, static_cast<char>(all.size())} + all);
  ortholan_result result = ORTHOLAN_OK;
  auto names = Made<ortholan_general_names>(&result, [&](ortholan_general_names** out) {
    return ortholan_general_names_from_der(der.data(), der.size, out);
  });
  ASSERT_EQ(result, ORTHOLAN_OK);
  size_t count = 0;
  EXPECT_EQ(ortholan_general_names_count(names.get(), &count), ORTHOLAN_OK);
  ASSERT_EQ(count, read.size());
  // From beyond the end to the first, which is a copy and outlives the list.
  for (size_t i = count + 1; i-- != 0;) {
    const auto name = Made<ortholan_general_name>(&result, [&](ortholan_general_name** out) {
      return ortholan_general_names_get(names.get(), i, out);
    });
    EXPECT_EQ(Code(result), i < count ? "" : "NOT_FOUND");
    if (i == count) continue;
    if (i == 0) names.reset();
    ExpectGeneralName(name.get(), read[i]);
  }
}

TEST(CInterface, ListsOfGeneralNamesAreWhole) {
  for (const char* octets : {"", "\x31\x03\x82\x01\x61", "\x30\x03\x82\x01\x61\x01",
                             "\x30\x04\x82\x01\x61", "\x30\x02\xA4\x80"}) {
    const OctetsIn der(octets);
    ortholan_result result = ORTHOLAN_OK;
    const auto names = Made<ortholan_general_names>(&result, [&](ortholan_general_names** out) {
      return ortholan_general_names_from_der(der.data(), der.size, out);
    });
    EXPECT_EQ(Code(result), "DER");
    EXPECT_EQ(names, nullptr);
  }
}

std::string Der(const ortholan_extension* extension) {
  ortholan_result result = ORTHOLAN_OK;
  return Given<uint8_t>(&result, [&](uint8_t** der, size_t* size) {
    return ortholan_extension_der(extension, der, size);
  });
}

void ExpectExtension(const ortholan_extension* extension, const VectorRow& row) {
  char* oid = nullptr;
  int critical = 77;
  ortholan_result result = ORTHOLAN_OK;
  EXPECT_EQ(ortholan_extension_oid(extension, &oid), ORTHOLAN_OK);
  EXPECT_EQ(Owned<char>(oid).get(), row.text("oid"));
  EXPECT_EQ(ortholan_extension_critical(extension, &critical), ORTHOLAN_OK);
  EXPECT_EQ(critical, row.has("critical") ? 1 : 0);
  EXPECT_EQ(Given<uint8_t>(&result,
                           [&](uint8_t** value, size_t* size) {
                             return ortholan_extension_value(extension, value, size);
                           }),
            row.octets("value"));
  EXPECT_EQ(Der(extension), row.octets("der"));
}

Owned<ortholan_extensions> ListOf(const std::string& octets, ortholan_result* result) {
  const OctetsIn der(octets);
  return Made<ortholan_extensions>(result, [&](ortholan_extensions** list) {
    return ortholan_extensions_from_der(der.data(), der.size, list);
  });
}

std::string Der(const Owned<ortholan_extensions>& list) {
  ortholan_result result = ORTHOLAN_OK;
  return Given<uint8_t>(&result, [&](uint8_t** der, size_t* size) {
    return ortholan_extensions_der(list.get(), der, size);
  });
}

// Each by its parts and by its octets, and all in a list.
TEST(CInterface, Extensions) {
  ortholan_result result = ORTHOLAN_OK;
  const auto list = Made<ortholan_extensions>(&result, ortholan_extensions_new);
  std::string all;
  for (const VectorRow& row : ReadVectors("extensions.tsv")) {
    SCOPED_TRACE(row.where());
    const OctetsIn value(row.octets("value"));
    const OctetsIn der(row.octets("der"));
    const auto made = Made<ortholan_extension>(&result, [&](ortholan_extension** extension) {
      return ortholan_extension_new(row.text("oid").c_str(), row.has("critical") ? 5 : 0,
                                    value.data(), value.size, extension);
    });
    const std::string unmade = Code(result);
    const auto read = Made<ortholan_extension>(&result, [&](ortholan_extension** extension) {
      return ortholan_extension_from_der(der.data(), der.size, extension);
    });
    EXPECT_EQ(row.text("code") == "TYPE" ? unmade : Code(result), row.text("code"));
    if (row.has("code")) {
      EXPECT_EQ(row.text("code") == "TYPE" ? made : read, nullptr);
      continue;
    }
    ExpectExtension(made.get(), row);
    ExpectExtension(read.get(), row);
    EXPECT_EQ(ortholan_extensions_set(list.get(), made.get()), ORTHOLAN_OK);
    all += row.octets("der");
    const auto found = Made<ortholan_extension>(&result, [&](ortholan_extension** extension) {
      return ortholan_extensions_find(list.get(), row.text("oid").c_str(), extension);
    });
    ExpectExtension(found.get(), row);
  }
  const std::string octets = std::string{0x30, static_cast<char>(all.size())} + all;
  EXPECT_EQ(Der(list), octets);
  EXPECT_EQ(Der(ListOf(octets, &result)), octets);
}

TEST(CInterface, ListsOfExtensionsChange) {
  ortholan_result result = ORTHOLAN_OK;
  for (const char* octets : {"", "\x31\x09\x30\x07\x06\x03\x2A\x03\x04\x04", "\x30\x02\x05",
                             "\x30\x01\x05", "\x30\x02\x30\x01"}) {
    EXPECT_EQ(ListOf(octets, &result), nullptr);
    EXPECT_EQ(Code(result), "DER");
  }
  const auto list = ListOf(std::string("\x30\x07\x30\x05\x06\x01\x2A\x04\x00", 9), &result);
  size_t count = 0;
  EXPECT_EQ(ortholan_extensions_count(list.get(), &count), ORTHOLAN_OK);
  EXPECT_EQ(count, 1u);
  const auto second = Made<ortholan_extension>(&result, [&](ortholan_extension** extension) {
    return ortholan_extensions_get(list.get(), 1, extension);
  });
  EXPECT_EQ(Code(result), "NOT_FOUND");
  EXPECT_EQ(second, nullptr);
  for (const char* oid : {"2.5.29.1", ""}) {
    const auto found = Made<ortholan_extension>(&result, [&](ortholan_extension** extension) {
      return ortholan_extensions_find(list.get(), oid, extension);
    });
    EXPECT_EQ(Code(result), "NOT_FOUND");
  }
  const auto other = Made<ortholan_extension>(&result, [&](ortholan_extension** extension) {
    return ortholan_extension_new("1.2", 1, reinterpret_cast<const uint8_t*>("A"), 1, extension);
  });
  // Twice: the first replaces, the second changes nothing.
  EXPECT_EQ(ortholan_extensions_set(list.get(), other.get()), ORTHOLAN_OK);
  EXPECT_EQ(ortholan_extensions_set(list.get(), other.get()), ORTHOLAN_OK);
  EXPECT_EQ(Der(list), "\x30\x0B" + Der(other.get()));
}

// C=RU, 1.2.3.4=A<NUL>B, and a string that cannot be read.
TEST(CInterface, Attributes) {
  const std::string der(
      "\x30\x27\x31\x0B\x30\x09\x06\x03\x55\x04\x06\x13\x02RU"
      "\x31\x0C\x30\x0A\x06\x03\x2A\x03\x04\x0C\x03"
      "A\0B"
      "\x31\x0A\x30\x08\x06\x03\x55\x04\x03\x2C\x01"
      "A",
      41);
  ortholan_result result = ORTHOLAN_OK;
  auto name = NameOf(der, &result);
  ASSERT_NE(name, nullptr);
  ortholan_attribute* attributes = nullptr;
  size_t count = 0;
  size_t counted = 0;
  EXPECT_EQ(ortholan_name_count(name.get(), &counted), ORTHOLAN_OK);
  EXPECT_EQ(ortholan_name_attributes(name.get(), &attributes, &count), ORTHOLAN_OK);
  const Owned<ortholan_attribute> owned(attributes);
  name.reset();
  std::string shown;
  for (const ortholan_attribute* each = attributes; each != attributes + count; ++each) {
    EXPECT_EQ(each->value[each->value_size], '\0');
    shown += std::string(each->type) + ' ' + each->key + ' ' +
             std::string(each->value, each->value_size) + ' ' +
             std::string(reinterpret_cast<const char*>(each->der), each->der_size) + ';';
  }
  const std::string nul(1, '\0');
  EXPECT_EQ(shown, "2.5.4.6 C RU \x13\x02RU;1.2.3.4 1.2.3.4 A" + nul + "B \x0C\x03" + 'A' + nul +
                       "B;2.5.4.3 CN #2C0141 \x2C\x01" + "A;");
  EXPECT_EQ(counted, 3u);
  name = NameOf(std::string("\x30\x00", 2), &result);
  EXPECT_EQ(ortholan_name_attributes(name.get(), &attributes, &count), ORTHOLAN_OK);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(attributes, nullptr);
}

TEST(CInterface, NamesCompare) {
  const auto equal = [](const char* a, const char* b) {
    ortholan_result result = ORTHOLAN_OK;
    int answer = 77;
    const auto first =
        NameOf(std::string("\x30\x0D\x31\x0B\x30\x09\x06\x03\x55\x04\x03", 11) + std::string(a, 4),
               &result);
    const auto second =
        NameOf(std::string("\x30\x0D\x31\x0B\x30\x09\x06\x03\x55\x04\x03", 11) + std::string(b, 4),
               &result);
    EXPECT_EQ(ortholan_name_equal(first.get(), second.get(), &answer), ORTHOLAN_OK);
    const auto copy = Made<ortholan_name>(
        &result, [&](ortholan_name** out) { return ortholan_name_copy(first.get(), out); });
    EXPECT_EQ(Der(copy), Der(first));
    return answer;
  };
  EXPECT_EQ(equal("\x13\x02"
                  "ab",
                  "\x0C\x02"
                  "ab"),
            1)
      << "another string type";
  EXPECT_EQ(equal("\x13\x02"
                  "ab",
                  "\x13\x02"
                  "aB"),
            0)
      << "another letter case";
  // Both read as U+FFFD; the units decide.
  EXPECT_EQ(equal("\x1E\x02\xD8\x00", "\x1E\x02\xD8\x01"), 0);
}

// Places are counted in octets of the UTF-8 text, characters of the message in letters.
TEST(CInterface, TextErrors) {
  uint32_t fault = 77;
  size_t position = 77;
  size_t length = 77;
  char* message = nullptr;
  const std::string text = "O=\xD0\x90\xD0\x91\xF0\x9F\x98\x80,C=\xD0\x90";
  EXPECT_EQ(ortholan_name_text_error(text.c_str(), 0, &fault, &position, &length, &message),
            ORTHOLAN_OK);
  EXPECT_EQ(fault, static_cast<uint32_t>(ORTHOLAN_FAULT_WRONG_CHARACTER));
  EXPECT_EQ(std::to_string(position) + ' ' + std::to_string(length), "13 2");
  EXPECT_STREQ(Owned<char>(message).get(),
               "\"\xD0\x90\" at character 10: expected letters, digits, blank and '()+,-./:? alone "
               "in the value of C");
  EXPECT_EQ(ortholan_name_text_error_n("CN=a,", 4, 0, &fault, &position, &length, nullptr),
            ORTHOLAN_OK);
  EXPECT_EQ(fault, static_cast<uint32_t>(ORTHOLAN_FAULT_NONE));
  EXPECT_EQ(position + length, 0u);
}

TEST(CInterface, RefusesBrokenUtf8) {
  for (const std::string octets :
       {"\x80", "\xD0", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xD0\x90\xFF\xD0\xBB"}) {
    const std::string text = "CN=a" + octets;
    ortholan_result result = ORTHOLAN_OK;
    uint32_t fault = 0;
    size_t place = 0;
    auto name = Made<ortholan_name>(&result, [&](ortholan_name** out) {
      return ortholan_name_from_text(text.c_str(), 0, 0, out);
    });
    EXPECT_EQ(name, nullptr);
    EXPECT_EQ(Code(result), "UTF8");
    EXPECT_EQ(Code(ortholan_name_text_error(text.c_str(), 0, &fault, &place, &place, nullptr)),
              "UTF8");
    name = Made<ortholan_name>(&result, ortholan_name_new);
    EXPECT_EQ(Code(ortholan_name_add(name.get(), "CN", octets.c_str(), 0)), "UTF8");
    EXPECT_EQ(Code(ortholan_name_remove(name.get(), octets.c_str())), "UTF8");
    const auto extension = Made<ortholan_extension>(&result, [&](ortholan_extension** out) {
      return ortholan_extension_new(("2.5.29." + octets).c_str(), 0, nullptr, 0, out);
    });
    EXPECT_EQ(Code(result), "UTF8");
  }
}

}  // namespace
}  // namespace Ortholan::testing
