// Extensions taken apart into views.
#include <ortholan/strict.hpp>
#include <string>

#include "bench/extensions.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "Ortholan";

using ortholan::Octets;

template <class Value,
          ortholan_reason (*kRead)(ortholan_octets, int32_t, Value*, ortholan_refusal*)>
bool Read(Octets value) {
  Value read;
  if (kRead(value, ORTHOLAN_READ_DER, &read, nullptr) != ORTHOLAN_REASON_NONE) return false;
  benchmark::DoNotOptimize(read);
  return true;
}

struct Reader {
  std::string oid;  // content octets
  bool (*read)(Octets value);
};

const Reader* FindReader(Octets oid) {
  static const Reader kReaders[] = {
      {"\x55\x1D\x0F", Read<ortholan_bits, ortholan_bits_read>},
      {"\x55\x1D\x25", Read<ortholan_list, ortholan_oids_read>},
      {"\x55\x1D\x13", Read<ortholan_basic_constraints, ortholan_basic_constraints_read>},
      {"\x55\x1D\x0E", Read<ortholan_octets, ortholan_octet_string_read>},
      {"\x55\x1D\x23",
       Read<ortholan_authority_key_identifier, ortholan_authority_key_identifier_read>},
      {"\x2B\x06\x01\x05\x05\x07\x01\x01", Read<ortholan_list, ortholan_information_access_read>},
      {"\x55\x1D\x11", Read<ortholan_general_names_view, ortholan_general_names_view_read>},
      {"\x55\x1D\x20", Read<ortholan_list, ortholan_policies_read>},
      {"\x55\x1D\x1F", Read<ortholan_list, ortholan_distribution_points_read>},
      {"\x2B\x06\x01\x04\x01\xD6\x79\x02\x04\x02",
       Read<ortholan_list, ortholan_signed_timestamps_read>},
  };
  // The last octets are all different.
  for (const Reader& reader : kReaders) {
    if (reader.oid.back() != static_cast<char>(oid[oid.size() - 1])) continue;
    return Octets(reader.oid) == oid ? &reader : nullptr;
  }
  return nullptr;
}

size_t ReadAll(const std::string& list) {
  ortholan_certificate_view view;
  const Octets der(list);
  if (ortholan_extensions_view_read(der, ORTHOLAN_READ_DER, &view, nullptr) != 0) return 0;
  size_t count = 0;
  ortholan_extension_view extension;
  for (size_t at = 0; ortholan_certificate_view_next_extension(&view, &at, &extension) == 0;) {
    const Reader* const reader = FindReader(extension.oid);
    if (reader != nullptr && reader->read(extension.value)) ++count;
  }
  return count;
}

void AddCases() { AddExtensions(kSubject, ReadAll); }

const Registration registration(kSubject, "", AddCases);

}  // namespace
}  // namespace Bench
