// The C interface: what it takes it gives back, what it refuses leaves nothing behind, and its
// answers are those of the classes.
#include <ortholan/der_helper.h>
#include <ortholan/name_encoder.h>
#include <ortholan/ortholan_c.h>
#include <ortholan/x509_name.h>

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

constexpr const char* kRareType = "1.2.3.4.5.6.7";

struct Free {
  void operator()(ortholan_name* handle) const { ortholan_name_free(handle); }
  void operator()(ortholan_general_name* handle) const { ortholan_general_name_free(handle); }
  void operator()(ortholan_general_names* handle) const { ortholan_general_names_free(handle); }
  void operator()(ortholan_extension* handle) const { ortholan_extension_free(handle); }
  void operator()(ortholan_extensions* handle) const { ortholan_extensions_free(handle); }
};
template <typename Handle>
using Owned = std::unique_ptr<Handle, Free>;

// Calls a function that gives out a handle; null where it refuses.
template <typename Handle, typename Call>
Owned<Handle> Make(Call&& call) {
  Handle* made = nullptr;
  const ortholan_result result = call(&made);
  LAW((result == ORTHOLAN_OK) == (made != nullptr));
  LAW(result != ORTHOLAN_ERROR_INTERNAL && result != ORTHOLAN_ERROR_ARGUMENT);
  LAW(made != nullptr || ortholan_last_error() == result);
  return Owned<Handle>(made);
}

// Calls a function that gives out memory; false where it refuses.
template <typename Item, typename Call>
bool Take(std::string* out, Call&& call) {
  Item* block = nullptr;
  size_t size = 0;
  const ortholan_result result = call(&block, &size);
  LAW((result == ORTHOLAN_OK) == (block != nullptr));
  LAW(result != ORTHOLAN_ERROR_INTERNAL);
  if (block != nullptr) {
    const char* bytes = reinterpret_cast<const char*>(block);
    LAW(bytes[size] == '\0');
    out->assign(bytes, size);
  }
  ortholan_free(block);
  return result == ORTHOLAN_OK;
}

IdentObj Der(const ortholan_name* name) {
  std::string der;
  LAW(Take<uint8_t>(
      &der, [&](uint8_t** out, size_t* size) { return ortholan_name_der(name, out, size); }));
  return IdentObj(der.data(), static_cast<DWORD>(der.size()));
}

bool IsUtf8(const std::string& text) {
  const int size = static_cast<int>(text.size());
  return size == 0 ||
         MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, nullptr, 0) > 0;
}

struct Attribute {
  std::string type;
  std::string value;
  std::string der;
};

std::vector<Attribute> Attributes(const ortholan_name* name) {
  ortholan_attribute* array = nullptr;
  size_t count = 0;
  size_t rdns = 0;
  LAW(ortholan_name_attributes(name, &array, &count) == ORTHOLAN_OK);
  LAW(ortholan_name_count(name, &rdns) == ORTHOLAN_OK && rdns == count);
  std::vector<Attribute> attributes;
  for (size_t i = 0; i < count; ++i) {
    attributes.push_back({array[i].type,
                          {array[i].value, array[i].value_size},
                          {reinterpret_cast<const char*>(array[i].der), array[i].der_size}});
    LAW(IsUtf8(attributes.back().value) && IsUtf8(array[i].key) && array[i].key[0] != '\0');
    LAW(array[i].value[array[i].value_size] == '\0');
  }
  ortholan_free(array);
  return attributes;
}

// Whether all attributes but the one at `skipped` are the same.
bool SameBut(const std::vector<Attribute>& a, const std::vector<Attribute>& b, size_t skipped) {
  for (size_t i = 0; i < a.size() && i < b.size(); ++i) {
    if (i != skipped && (a[i].type != b[i].type || a[i].der != b[i].der)) return false;
  }
  return true;
}

void CheckEdits(ortholan_name* name, const std::vector<Attribute>& before) {
  const size_t count = before.size();
  std::string value;
  if (!Take<char>(&value, [&](char** text, size_t* size) {
        return ortholan_name_get(name, kRareType, text, size);
      })) {
    LAW(ortholan_last_error() == ORTHOLAN_ERROR_NOT_FOUND);
    LAW(ortholan_name_add(name, kRareType, "x", 0) == ORTHOLAN_OK);
    LAW(Attributes(name).size() == count + 1 && SameBut(before, Attributes(name), count));
    LAW(ortholan_name_remove(name, kRareType) == ORTHOLAN_OK);
    LAW(Attributes(name).size() == count && SameBut(before, Attributes(name), count));
  }
  if (before.empty()) return;
  const char* type = before.front().type.c_str();
  const ortholan_result set = ortholan_name_set(name, type, "1", 0);
  // Some identifiers can be read and not written.
  LAW(set == ORTHOLAN_OK || set == ORTHOLAN_ERROR_TYPE);
  const std::vector<Attribute> after = Attributes(name);
  LAW(after.size() == count && SameBut(before, after, set == ORTHOLAN_OK ? 0 : count));
  LAW(set != ORTHOLAN_OK || after.front().value == "1");
}

void CheckName(Owned<ortholan_name> name) {
  const X509Name same(Der(name.get()));
  const std::vector<Attribute> attributes = Attributes(name.get());
  std::list<SimpleRDN> pairs;
  LAW(same.TryGetSimpleRDNList(pairs) && pairs.size() == attributes.size());
  for (const uint32_t style : {1u, 2u, 3u, 3u | ORTHOLAN_SEPARATE_CRLF}) {
    std::string text;
    std::wstring wide;
    const bool rendered = Take<char>(&text, [&](char** out, size_t* size) {
      return ortholan_name_text(name.get(), style, out, size);
    });
    LAW(same.TryGetX500String(wide, style) == rendered);
    if (rendered) LAW(text == DerHelper::ToString(wide, CP_UTF8));
  }
  const auto copy =
      Make<ortholan_name>([&](ortholan_name** out) { return ortholan_name_copy(name.get(), out); });
  int equal = 0;
  LAW(ortholan_name_equal(name.get(), copy.get(), &equal) == ORTHOLAN_OK && equal == 1);
  CheckEdits(copy.get(), attributes);
  LAW(SameBut(attributes, Attributes(name.get()), attributes.size()));
}

void CheckText(const char* text, size_t size) {
  for (const uint32_t options : {0u, 0x00140000u, 0x40000000u}) {
    auto name = Make<ortholan_name>([&](ortholan_name** out) {
      return ortholan_name_from_text_n(text, size, options, 1, out);
    });
    const std::string source(text, size);
    LAW((name == nullptr && ortholan_last_error() == ORTHOLAN_ERROR_UTF8) == !IsUtf8(source));
    if (!IsUtf8(source)) return;
    X500NameEncoder encoder;
    encoder.SetEncoderOptions(options);
    IdentObj der;
    LAW(encoder.Encode(DerHelper::ToWString(source, CP_UTF8), der, true) == (name != nullptr));
    if (name == nullptr) continue;
    LAW(der == Der(name.get()));
    CheckName(std::move(name));
  }
}

void CheckGeneralName(const ortholan_general_name* name) {
  std::string der;
  std::string value;
  std::string text;
  LAW(Take<uint8_t>(&der, [&](uint8_t** out, size_t* size) {
    return ortholan_general_name_der(name, out, size);
  }));
  LAW(Take<uint8_t>(&value, [&](uint8_t** out, size_t* size) {
    return ortholan_general_name_value(name, out, size);
  }));
  LAW(der.size() > value.size() &&
      der.compare(der.size() - value.size(), std::string::npos, value) == 0);
  if (Take<char>(&text, [&](char** out, size_t* size) {
        return ortholan_general_name_text(name, out, size);
      })) {
    LAW(IsUtf8(text));
  } else {
    LAW(ortholan_last_error() == ORTHOLAN_ERROR_DER);
  }
}

void CheckGeneralNames(const ortholan_general_names* names) {
  size_t count = 0;
  LAW(ortholan_general_names_count(names, &count) == ORTHOLAN_OK);
  for (size_t i = 0; i < count; ++i) {
    const auto each = Make<ortholan_general_name>(
        [&](ortholan_general_name** out) { return ortholan_general_names_get(names, i, out); });
    LAW(each != nullptr);
    CheckGeneralName(each.get());
  }
}

bool ExtensionDer(const ortholan_extension* extension, std::string* der) {
  return Take<uint8_t>(der, [&](uint8_t** out, size_t* size) {
    return ortholan_extension_der(extension, out, size);
  });
}

void CheckExtension(const ortholan_extension* extension) {
  std::string der;
  std::string again;
  if (!ExtensionDer(extension, &der)) {
    LAW(ortholan_last_error() == ORTHOLAN_ERROR_TYPE);
    return;
  }
  const auto read = Make<ortholan_extension>([&](ortholan_extension** out) {
    return ortholan_extension_from_der(reinterpret_cast<const uint8_t*>(der.data()), der.size(),
                                       out);
  });
  LAW(read != nullptr && ExtensionDer(read.get(), &again) && again == der);
}

void CheckExtensions(ortholan_extensions* list) {
  size_t count = 0;
  size_t after = 0;
  LAW(ortholan_extensions_count(list, &count) == ORTHOLAN_OK);
  for (size_t i = 0; i < count; ++i) {
    const auto each = Make<ortholan_extension>(
        [&](ortholan_extension** out) { return ortholan_extensions_get(list, i, out); });
    LAW(each != nullptr);
    CheckExtension(each.get());
    LAW(ortholan_extensions_set(list, each.get()) == ORTHOLAN_OK);
  }
  // Setting what is there adds nothing.
  LAW(ortholan_extensions_count(list, &after) == ORTHOLAN_OK && after == count);
}

}  // namespace

void FuzzCInterface(const uint8_t* octets, size_t size) {
  CheckText(reinterpret_cast<const char*>(octets), size);
  if (auto name = Make<ortholan_name>(
          [&](ortholan_name** out) { return ortholan_name_from_der(octets, size, out); })) {
    CheckName(std::move(name));
  }
  if (const auto name = Make<ortholan_general_name>([&](ortholan_general_name** out) {
        return ortholan_general_name_from_der(octets, size, out);
      })) {
    CheckGeneralName(name.get());
  }
  if (const auto names = Make<ortholan_general_names>([&](ortholan_general_names** out) {
        return ortholan_general_names_from_der(octets, size, out);
      })) {
    CheckGeneralNames(names.get());
  }
  if (const auto extension = Make<ortholan_extension>([&](ortholan_extension** out) {
        return ortholan_extension_from_der(octets, size, out);
      })) {
    CheckExtension(extension.get());
  }
  if (const auto list = Make<ortholan_extensions>([&](ortholan_extensions** out) {
        return ortholan_extensions_from_der(octets, size, out);
      })) {
    CheckExtensions(list.get());
  }
}

}  // namespace Ortholan::fuzzing
