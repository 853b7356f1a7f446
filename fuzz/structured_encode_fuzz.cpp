// Attribute lists and trees, built from the input, to a name's encoding.
#include <ortholan/asn1.h>
#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/x509_name.h>

#include <list>
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/law.h"
#include "fuzz/targets.h"

namespace Ortholan::fuzzing {
namespace {

using RdnList = std::list<std::list<RDNAttr>>;

constexpr const char* kTypes[] = {"2.5.4.3",  "2.5.4.6",
                                  "2.5.4.16", "1.2.840.113549.1.9.1",
                                  "2.5.4.5",  "1.2.643.3.131.1.1",
                                  "2.5.4.10", "0.0",
                                  "2.39.4.1", "1.2.4294967295",
                                  "2.5.4.7",  "1.2.4294967296",
                                  "2.5..3",   "2.5.4.0003",
                                  "2.5.4.3.", "",
                                  "CN",       "2.5.4.8"};
constexpr DWORD kValueTypes[] = {4, 7, 12, 13, 0, 1, 2, 3, 5, 6, 8, 9, 10, 11, 14, 0xFFFFFFFF};
// Most inputs should be encoded: one of the first few rows is taken three times out of four.
template <typename T, size_t N>
T Choose(Input* input, const T (&rows)[N], size_t usual) {
  const uint8_t byte = input->Byte();
  return (byte & 0xC0) != 0 ? rows[(byte & 0x3F) % usual] : rows[(byte & 0x3F) % N];
}

RdnList ReadRdns(Input* input) {
  RdnList rdns;
  while (!input->AtEnd()) {
    std::list<RDNAttr> rdn;
    const uint8_t shape = input->Byte();
    const size_t count = shape < 0xE0 ? 1 : shape & 3;
    for (size_t i = 0; i < count; ++i) {
      const char* const oid = Choose(input, kTypes, 8);
      const DWORD type = Choose(input, kValueTypes, 4);
      rdn.emplace_back(oid, type, Input::Blob(input->ShortText()));
    }
    rdns.push_back(std::move(rdn));
  }
  return rdns;
}

// The same attributes as the platform's tree, which points into them.
class Tree {
 public:
  explicit Tree(RdnList* rdns) {
    for (std::list<RDNAttr>& rdn : *rdns) {
      attributes_.emplace_back();
      for (RDNAttr& attr : rdn) {
        attributes_.back().push_back(
            {const_cast<char*>(attr.oid.c_str()), attr.valueType, attr.value});
      }
      rdns_.push_back({static_cast<DWORD>(rdn.size()), attributes_.back().data()});
    }
    info_ = {static_cast<DWORD>(rdns_.size()), rdns_.data()};
  }
  Tree(const Tree&) = delete;
  Tree& operator=(const Tree&) = delete;

  const CERT_NAME_INFO& info() const { return info_; }

 private:
  std::list<std::vector<CERT_RDN_ATTR>> attributes_;
  std::vector<CERT_RDN> rdns_;
  CERT_NAME_INFO info_;
};

// A name that was encoded decodes to attributes that are encoded as it was.
void CheckStable(const IdentObj& der, DWORD options) {
  std::list<IdentObj> rdns;
  DWORD status = kUntouched;
  LAW(ASNTGetSequence(rdns, der.pbData, der.cbData, &status) == der.cbData && status == 0);
  RdnList decoded;
  if (!X509Name(der).TryGetNameInfo(decoded)) {
    bool plain = true;
    for (const IdentObj& rdn : rdns) {
      std::list<IdentObj> attributes;
      ASNTGetSequence(attributes, rdn.pbData, rdn.cbData);
      plain &= attributes.size() == 1;
    }
    LAW(!plain);
    return;
  }
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  IdentObj again;
  LAW(encoder.Encode(decoded, again) && again == der);
}

void CheckAttributes(RdnList rdns, DWORD options) {
  const Tree tree(&rdns);
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(options);
  const IdentObj before("before", 6);
  IdentObj der(before);
  IdentObj from_tree(before);
  const auto encoded = Answer([&] { return encoder.Encode(rdns, der); });
  LAW(Answer([&] { return encoder.Encode(tree.info(), from_tree); }) == encoded);
  LAW(der == from_tree);
  LAW(encoded.first || der == before);
  if (encoded.first) CheckStable(der, options);

  const bool flag = options == 0x00140000;
  if (options != 0 && !flag) return;
  X509Name listed(before);
  X509Name treed(before);
  LAW(Answer([&] { return listed.TrySetBy(rdns, flag); }) == encoded);
  LAW(Answer([&] { return treed.TrySetBy(tree.info(), flag); }) == encoded);
  LAW(der == listed && der == treed);
  const std::string outcome = encoded.first ? kReturned : kNameRefused;
  listed = before;
  treed = before;
  LAW(Outcome([&] { listed.SetBy(rdns, flag); }) == outcome);
  LAW(Outcome([&] { treed.SetBy(tree.info(), flag); }) == outcome);
  LAW(der == listed && der == treed);
}

std::list<SimpleRDN> Flattened(const RdnList& rdns) {
  std::list<SimpleRDN> pairs;
  for (const std::list<RDNAttr>& rdn : rdns) {
    for (const RDNAttr& attr : rdn) {
      const std::string value(attr.value.pbData, attr.value.pbData + attr.value.cbData);
      pairs.emplace_back(attr.oid.c_str(), value.c_str());
    }
  }
  return pairs;
}

void CheckPairs(const std::list<SimpleRDN>& pairs, bool flag) {
  const IdentObj before("before", 6);
  for (const bool sort : {false, true}) {
    X509Name name(before);
    const auto encoded = Answer([&] { return name.TrySetBy(pairs, flag, sort); });
    LAW(encoded.first || before == name);
    X509Name thrown(before);
    const std::string outcome = Outcome([&] { thrown.SetBy(pairs, flag, sort); });
    LAW(outcome == (encoded.first ? kReturned : kNameRefused));
    LAW(static_cast<const IdentObj&>(thrown) == name);
    // The order is that of a stable sort by falling priority.
    std::list<SimpleRDN> sorted(pairs);
    if (sort) sorted.sort([](const SimpleRDN& a, const SimpleRDN& b) { return a > b; });
    X509Name presorted(before);
    LAW(Answer([&] { return presorted.TrySetBy(sorted, flag, false); }) == encoded);
    LAW(static_cast<const IdentObj&>(presorted) == name);
    if (!encoded.first) continue;
    std::list<SimpleRDN> read;
    LAW(name.TryGetSimpleRDNList(read) && read.size() == pairs.size());
    X509Name again;
    LAW(again.TrySetBy(read, flag, false));
    LAW(static_cast<const IdentObj&>(again) == name && again == name);
  }
}

// Setting one value keeps the others and is read back; what is refused changes nothing.
void CheckEdit(const std::list<SimpleRDN>& pairs) {
  X509Name name;
  if (pairs.empty() || !name.TrySetBy(pairs, true, false)) return;
  const X509Name before(name);
  const CZEPString key = pairs.back().key;
  const CZEPString value = pairs.front().value;
  bool done = false;
  const std::string outcome =
      Outcome([&] { done = name.SetSimpleRDN(key.c_str(), value.c_str()); });
  LAW(outcome == kReturned || outcome.rfind("untyped", 0) == 0);
  if (!done) {
    LAW(static_cast<const IdentObj&>(before) == name);
    return;
  }
  std::list<SimpleRDN> read;
  LAW(name.TryGetSimpleRDNList(read) && read.size() == pairs.size());
}

}  // namespace

void FuzzStructuredEncode(const uint8_t* data, size_t size) {
  Input input(data, size);
  const RdnList rdns = ReadRdns(&input);
  for (const DWORD options : {0u, 0x00040000u, 0x00140000u}) CheckAttributes(rdns, options);
  const std::list<SimpleRDN> pairs = Flattened(rdns);
  CheckPairs(pairs, false);
  CheckPairs(pairs, true);
  CheckEdit(pairs);
}

}  // namespace Ortholan::fuzzing
