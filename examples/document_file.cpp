#include "examples/document_file.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "examples/der.h"
#include "examples/failure.h"
#include "examples/kinds.h"
#include "examples/pasted.h"
#include "examples/pem.h"

namespace Example {
namespace {

constexpr std::string_view kTrusted = "TRUSTED CERTIFICATE";
constexpr std::string_view kLabels[] = {
    "CERTIFICATE",
    "X509 CERTIFICATE",
    kTrusted,
    "CERTIFICATE REQUEST",
    "NEW CERTIFICATE REQUEST",
    "X509 CRL",
    "PKCS7",
    "PKCS #7 SIGNED DATA",
    "CMS",
};

class Walk {
 public:
  Walk(const DocumentFound& found, const DocumentBad& bad) : found_(found), bad_(bad) {}

  void Bad(const std::string& what) { bad_(++count_, what); }
  void Found(std::string_view der, std::size_t position);
  std::size_t Count() const { return count_; }

 private:
  // False where the bundle is none.
  bool Open(std::string_view bundle, std::size_t position);

  const DocumentFound& found_;
  const DocumentBad& bad_;
  std::size_t count_ = 0;
};

void Walk::Found(std::string_view der, std::size_t position) {
  if (KindOf(der) != Kind::kPkcs7) {
    found_(++count_, der, position);
  } else if (!Open(der, position)) {
    Bad("a PKCS #7 bundle that is not SignedData");
  }
}

// RFC 5652 3 and 5.1: behind the first three fields [0] has certificates, among others with tags of
// their own, [1] revocation lists.
bool Walk::Open(std::string_view bundle, std::size_t position) {
  constexpr unsigned kFirst[] = {kInteger, kSet, kSequence};
  const std::vector<Der> info = Elements(OnlyElement(bundle).content);
  const Der data = OnlyElement(info[1].content);
  const std::vector<Der> fields = Elements(data.content);
  const bool isSignedData =
      data.tag == kSequence && fields.size() >= std::size(kFirst) &&
      std::equal(std::begin(kFirst), std::end(kFirst), fields.begin(),
                 [](unsigned tag, const Der& field) { return field.tag == tag; });
  for (const Der& list : isSignedData ? fields : std::vector<Der>()) {
    if (list.tag != kContextConstructed && list.tag != kContextConstructed + 1) continue;
    for (const Der& each : Elements(list.content)) {
      if (each.tag == kSequence) found_(++count_, each.whole, position);
    }
  }
  return isSignedData;
}

void WalkDer(std::string_view file, Walk& walk) {
  const std::size_t whole = file.size();
  while (!file.empty()) {
    Der document;
    if (static_cast<unsigned char>(file[0]) != kSequence || !TakeElement(file, document)) {
      // Nothing says where a next one would begin.
      walk.Bad("neither PEM nor the start of a whole DER sequence");
      return;
    }
    walk.Found(document.whole, whole - file.size());
  }
}

// A trusted certificate has behind it whom it is trusted for.
std::string_view DocumentOf(const PemBlock& block) {
  std::string_view rest = block.octets;
  Der document;
  const bool isFirst = block.label == kTrusted && TakeElement(rest, document);
  return isFirst ? document.whole : block.octets;
}

void WalkPem(std::string_view file, Walk& walk) {
  ForEachPemBlock(file, [&walk](const PemBlock& block) {
    if (!IsDocumentLabel(block.label)) return;
    if (block.fault != nullptr) {
      walk.Bad(block.fault);
    } else {
      walk.Found(DocumentOf(block), block.end);
    }
  });
}

}  // namespace

bool IsDocumentLabel(std::string_view label) {
  return std::find(std::begin(kLabels), std::end(kLabels), label) != std::end(kLabels);
}

std::size_t ForEachDocument(const std::string& file, const DocumentFound& found,
                            const DocumentBad& bad) {
  Walk walk(found, bad);
  // The second octet of a document's encoding is a length above 127, and no text.
  const bool isDer = file.size() > 1 && file[0] == '0' && (file[1] & 0x80) != 0;
  if (isDer) {
    WalkDer(file, walk);
  } else if (HasPemBlock(file)) {
    WalkPem(file, walk);
  } else {
    WalkDer(FromPasted(file), walk);
  }
  return walk.Count();
}

}  // namespace Example
