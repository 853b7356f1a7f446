#include <ortholan/name_encoder.h>

#include "bytes/arena.h"
#include "foundation/code_page.h"
#include "foundation/report.h"
#include "names/encoder/alphabets.h"
#include "names/encoder/name_assembler.h"
#include "names/encoder/name_parser.h"
#include "names/encoder/rank_order.h"
#include "names/encoder/structured_value.h"
#include "names/encoder/text_encoder.h"
#include "names/encoder/trim.h"

namespace Ortholan {
namespace {

// Adds one RDN of structured attributes; what is made of their values is kept in `texts`.
template <typename Attributes>
bool AddRdn(const Attributes& begin, const Attributes& end, NameAssembler* assembler,
            Arena* texts) {
  for (Attributes attr = begin; attr != end; ++attr) {
    const AttributeView view(*attr);
    Characters value;
    if (!ConvToX500NameElem(view, texts, &value)) return false;
    if (!assembler->EncodeElem(view.oid, value)) return false;
  }
  assembler->EndRdn();
  return true;
}

bool AddRdn(const SimpleRDN& rdn, NameAssembler* assembler, Arena* texts) {
  Characters value;
  if (!WidenCharacters(rdn.value.c_str(), kCodePageThreadAnsi, texts, &value)) return false;
  if (!assembler->EncodeElem(rdn.key.c_str(), value)) return false;
  assembler->EndRdn();
  return true;
}

}  // namespace

const std::wstring X500NameEncoder::PrintableString(kPrintableAlphabet);
const std::wstring X500NameEncoder::IA5String(kIA5Alphabet);

X500NameEncoder::X500NameEncoder() noexcept : options_(0), unfinished_(nullptr) {}
X500NameEncoder::X500NameEncoder(const X500NameEncoder& other) noexcept = default;
X500NameEncoder& X500NameEncoder::operator=(const X500NameEncoder& other) noexcept = default;
X500NameEncoder::~X500NameEncoder() = default;

void X500NameEncoder::SetEncoderOptions(unsigned long options) {
  options_ = static_cast<DWORD>(options);
}

unsigned long X500NameEncoder::GetEncoderOptions(unsigned long) const { return options_; }

void X500NameEncoder::AddEncoderOption(unsigned long bits) { options_ |= static_cast<DWORD>(bits); }

void X500NameEncoder::RemoveEncoderOption(unsigned long bits) {
  options_ &= ~static_cast<DWORD>(bits);
}

bool X500NameEncoder::DevideIntoElements(const std::wstring& text,
                                         std::list<X500NAME_ELEM>& elements) {
  // The text may be a member of the list that it replaces.
  std::list<X500NAME_ELEM> found;
  const std::wstring_view trimmed = Trimmed(std::wstring_view(text));
  bool divided = true;
  if (!trimmed.empty()) {
    NameParser<wchar_t> parser(trimmed, options_, unfinished_);
    divided = parser.Parse_NameElems();
    unfinished_ = parser.unfinished();
    divided = divided && parser.elements().ForEach([&found](const NameElem<wchar_t>& elem) {
      const std::wstring_view type =
          elem.row() != nullptr ? elem.row()->wide_oid : std::wstring_view();
      found.push_back({std::wstring(type), std::wstring(elem.value())});
      return true;
    });
  }
  elements.swap(found);
  return divided;
}

bool X500NameEncoder::Encode(const std::wstring& text, IdentObj& der, bool sortByPriority) {
  der.Clear();
  return EncodeNameText(text, options_, sortByPriority, &unfinished_, &der);
}

bool X500NameEncoder::Encode(const std::list<SimpleRDN>& rdns, IdentObj& der, bool sortByPriority) {
  if (rdns.empty()) return FailWith(Status::kBadArgument);
  NameAssembler assembler(options_);
  assembler.Reserve(rdns.size());
  Arena texts;
  if (sortByPriority) {
    for (const SimpleRDN* rdn : ByFallingRank(rdns)) {
      if (!AddRdn(*rdn, &assembler, &texts)) return false;
    }
  } else {
    for (const SimpleRDN& rdn : rdns) {
      if (!AddRdn(rdn, &assembler, &texts)) return false;
    }
  }
  return assembler.Write(&der);
}

bool X500NameEncoder::Encode(const std::list<std::list<RDNAttr>>& rdns, IdentObj& der) {
  if (rdns.empty()) return false;
  NameAssembler assembler(options_);
  assembler.Reserve(rdns.size());
  Arena texts;
  for (const std::list<RDNAttr>& rdn : rdns) {
    if (!AddRdn(rdn.begin(), rdn.end(), &assembler, &texts)) return false;
  }
  return assembler.Write(&der);
}

bool X500NameEncoder::Encode(const CERT_NAME_INFO& info, IdentObj& der) {
  if (info.cRDN == 0 || info.rgRDN == nullptr) return false;
  NameAssembler assembler(options_);
  assembler.Reserve(info.cRDN);
  Arena texts;
  for (DWORD i = 0; i < info.cRDN; ++i) {
    const CERT_RDN& rdn = info.rgRDN[i];
    if (rdn.rgRDNAttr == nullptr && rdn.cRDNAttr != 0) return false;
    if (!AddRdn(rdn.rgRDNAttr, rdn.rgRDNAttr + rdn.cRDNAttr, &assembler, &texts)) return false;
  }
  return assembler.Write(&der);
}

}  // namespace Ortholan
