// get, set: one attribute of a name. The others keep their octets.

#include <ortholan/ortholan_c.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "examples/commands.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/name_text.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

struct Release {
  void operator()(ortholan_name* name) const { ortholan_name_free(name); }
  void operator()(void* memory) const { ortholan_free(memory); }
};
using Name = std::unique_ptr<ortholan_name, Release>;

Name ReadName(const std::string& argument) {
  const IdentObj der = ReadElement(argument, Kind::kName);
  ortholan_name* name = nullptr;
  if (ortholan_name_from_der(der.pbData, der.cbData, &name) != ORTHOLAN_OK) {
    FailToDecode(ortholan_last_system_error(), der);
  }
  return Name(name);
}

bool IsSame(const std::string& a, const std::string& b) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](char first, char second) { return lower(first) == lower(second); });
}

// What the name's attributes are called, for somebody who asked for another.
std::string Keys(const ortholan_attribute* attributes, std::size_t count) {
  std::string keys;
  for (std::size_t i = 0; i < count; ++i)
    keys += (i == 0 ? "" : ", ") + std::string(attributes[i].key);
  return keys;
}

// The value of the first attribute that `type` means, and its identifier, which is what attributes
// are written by.
std::string Find(const ortholan_name* name, std::string& type) {
  char* value = nullptr;
  std::size_t size = 0;
  const ortholan_result result = ortholan_name_get(name, type.c_str(), &value, &size);
  const std::unique_ptr<char, Release> ownedValue(value);
  ortholan_attribute* attributes = nullptr;
  std::size_t count = 0;
  if (ortholan_name_attributes(name, &attributes, &count) != ORTHOLAN_OK) throw std::bad_alloc();
  const std::unique_ptr<ortholan_attribute, Release> owned(attributes);
  if (result == ORTHOLAN_ERROR_NOT_FOUND) {
    Refuse("the name has no attribute " + type +
           (count == 0 ? "" : ", but " + Keys(attributes, count)));
  }
  if (result != ORTHOLAN_OK) Refuse(type + " is neither a key nor an identifier");
  const auto* const found = std::find_if(attributes, attributes + count,
                                         [&](const auto& each) { return IsSame(each.key, type); });
  if (found != attributes + count) type = found->type;
  return {value, size};
}

int RunGet(const Arguments& arguments) {
  std::string type = arguments.operands[0];
  const Name name = ReadName(arguments.operands[1]);
  Print(Output(FromUtf8(Find(name.get(), type))) + "\n");
  return 0;
}

int RunSet(const Arguments& arguments) {
  std::string type = arguments.operands[0];
  const std::string& value = arguments.operands[1];
  const Name name = ReadName(arguments.operands[2]);
  Find(name.get(), type);
  const ortholan_result result =
      ortholan_name_set_n(name.get(), type.c_str(), value.data(), value.size(),
                          ORTHOLAN_ENCODE_UTF8 | ORTHOLAN_ENCODE_ALWAYS);
  if (result == ORTHOLAN_ERROR_UTF8) Refuse("the value is not UTF-8");
  if (result == ORTHOLAN_ERROR_VALUE) {
    Fail(ortholan_last_system_error(),
         "the value is empty or has characters that " + arguments.operands[0] + " does not take");
  }
  if (result != ORTHOLAN_OK) Refuse(ortholan_last_error_message());
  std::uint8_t* der = nullptr;
  std::size_t size = 0;
  if (ortholan_name_der(name.get(), &der, &size) != ORTHOLAN_OK) throw std::bad_alloc();
  const std::unique_ptr<std::uint8_t, Release> owned(der);
  Print(Hex(IdentObj(der, static_cast<DWORD>(size))) + "\n");
  return 0;
}

}  // namespace

const Command kGetCommand = {
    "get",
    RunGet,
    2,
    2,
    "TYPE NAME",
    "the value of one attribute",
    "TYPE is a key such as CN, or a dotted identifier. Of several attributes the first counts.\n",
    "x509name get CN name.der\n"
    "x509name get 2.5.4.3 name.der\n",
    {}};

const Command kSetCommand = {
    "set",
    RunSet,
    3,
    3,
    "TYPE VALUE NAME",
    "the DER of a name with another value",
    "The attribute has to be there; its first value is replaced, as UTF8String where the type\n"
    "lets choose. All others keep their octets.\n",
    "x509name set CN Beta name.der\n",
    {}};

}  // namespace Example
