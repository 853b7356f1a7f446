// The library's operations as the benchmarks repeat them: each call makes its own objects, as an
// application that handles one name after another does.
#ifndef ORTHOLAN_BENCH_OPERATIONS_H_
#define ORTHOLAN_BENCH_OPERATIONS_H_

#include <ortholan/ortholan.h>

#include <cstddef>
#include <cstdlib>
#include <list>
#include <string>
#include <utility>

#include "bench/names.h"

namespace Bench {

inline Ortholan::IdentObj Blob(const std::string& bytes) {
  return Ortholan::IdentObj(bytes.data(), static_cast<Ortholan::DWORD>(bytes.size()));
}

inline std::string Bytes(const Ortholan::IdentObj& blob) {
  return std::string(reinterpret_cast<const char*>(blob.pbData), blob.cbData);
}

inline Ortholan::IdentObj EncodeText(const std::wstring& text) {
  Ortholan::X500NameEncoder encoder;
  Ortholan::IdentObj der;
  if (!encoder.Encode(text, der, false)) std::abort();
  return der;
}

template <typename Structured>
Ortholan::IdentObj EncodeStructured(const Structured& rdns) {
  Ortholan::X500NameEncoder encoder;
  Ortholan::IdentObj der;
  if (!encoder.Encode(rdns, der)) std::abort();
  return der;
}

inline Ortholan::IdentObj EncodeStructured(const std::list<Ortholan::SimpleRDN>& rdns) {
  Ortholan::X500NameEncoder encoder;
  Ortholan::IdentObj der;
  if (!encoder.Encode(rdns, der, false)) std::abort();
  return der;
}

inline Ortholan::X509Name SetByText(const std::string& text) {
  Ortholan::X509Name name;
  name.SetBy(text.c_str(), 0, false);
  return name;
}

inline std::wstring DecodeText(const Ortholan::IdentObj& der) {
  Ortholan::X500NameDecoder decoder;
  std::wstring text;
  if (!decoder.Decode(der, text, Ortholan::kStyleKeys)) std::abort();
  return text;
}

inline std::string GetText(const Ortholan::X509Name& name) {
  std::string text;
  name.GetX500String(text, Ortholan::kStyleKeys);
  return text;
}

using PairList = std::list<std::pair<std::wstring, std::list<std::wstring>>>;

inline PairList DecodePairs(const Ortholan::IdentObj& der) {
  Ortholan::X500NameDecoder decoder;
  PairList pairs;
  if (!decoder.Decode(der, pairs, Ortholan::kStyleOids)) std::abort();
  return pairs;
}

// Makes the tree and releases it. Returns the number of its RDNs.
inline Ortholan::DWORD DecodeTree(const Ortholan::IdentObj& der) {
  Ortholan::X500NameDecoder decoder;
  Ortholan::CertNameInfoWrapper tree;
  if (!decoder.Decode(der, tree)) std::abort();
  const Ortholan::CERT_NAME_INFO* info = tree;
  return info->cRDN;
}

inline std::list<Ortholan::SimpleRDN> SimpleList(const Ortholan::X509Name& name) {
  std::list<Ortholan::SimpleRDN> list;
  name.GetSimpleRDNList(list, false);
  return list;
}

inline std::list<std::list<Ortholan::RDNAttr>> NameInfo(const Ortholan::X509Name& name) {
  std::list<std::list<Ortholan::RDNAttr>> rdns;
  name.GetNameInfo(rdns);
  return rdns;
}

inline Ortholan::CertExtension ReadExtension(const std::string& record) {
  Ortholan::CertExtension extension;
  int error = 0;
  extension.ReadData(record.data(), static_cast<Ortholan::DWORD>(record.size()), &error);
  if (error != 0) std::abort();
  return extension;
}

// Texts of ASCII alone, which is all that the structures here are compared for.
inline std::string Narrow(const std::wstring& wide) {
  std::string text;
  for (const wchar_t unit : wide) text += static_cast<char>(unit < 0x80 ? unit : '?');
  return text;
}

inline Pairs ToPairs(const PairList& list) {
  Pairs pairs;
  for (const auto& [type, values] : list) {
    pairs.emplace_back(Narrow(type), values.size() == 1 ? Narrow(values.front()) : std::string());
  }
  return pairs;
}

inline Pairs ToPairs(const std::list<Ortholan::SimpleRDN>& list) {
  Pairs pairs;
  for (const Ortholan::SimpleRDN& rdn : list)
    pairs.emplace_back(rdn.key.c_str(), rdn.value.c_str());
  return pairs;
}

// The pairs of a tree, its values read as UTF-16LE.
inline Pairs TreePairs(const Ortholan::IdentObj& der) {
  Ortholan::X500NameDecoder decoder;
  Ortholan::CertNameInfoWrapper tree;
  Pairs pairs;
  if (!decoder.Decode(der, tree)) return pairs;
  const Ortholan::CERT_NAME_INFO* info = tree;
  for (Ortholan::DWORD i = 0; i < info->cRDN; ++i) {
    const Ortholan::CERT_RDN_ATTR& attribute = info->rgRDN[i].rgRDNAttr[0];
    std::string value;
    // The padding behind the text is counted.
    for (Ortholan::DWORD k = 0; k + 5 < attribute.Value.cbData; k += 2) {
      value += static_cast<char>(attribute.Value.pbData[k]);
    }
    pairs.emplace_back(attribute.pszObjId, value);
  }
  return pairs;
}

}  // namespace Bench

#endif  // ORTHOLAN_BENCH_OPERATIONS_H_
