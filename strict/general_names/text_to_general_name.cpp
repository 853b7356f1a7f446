#include "strict/general_names/text_to_general_name.h"

#include <ortholan/strict/general_names.h>

#include <algorithm>
#include <string>

#include "bytes/hex.h"
#include "strict/der/integer.h"
#include "strict/der/oid.h"
#include "strict/der/reader.h"
#include "strict/der/string_value.h"
#include "strict/general_names/escaped_text.h"
#include "strict/general_names/guid.h"
#include "strict/general_names/host.h"
#include "strict/general_names/ip_address.h"
#include "strict/general_names/mailbox.h"
#include "strict/general_names/name_characters.h"
#include "strict/general_names/name_prefixes.h"
#include "strict/general_names/service_name.h"
#include "strict/general_names/uri.h"
#include "strict/names/text_to_name.h"

namespace Ortholan::strict {
namespace {

class NameParser {
 public:
  NameParser(std::string_view text, bool allowsRange, BackwardOutput* out, Refusal* refusal)
      : text_(text), allows_range_(allowsRange), out_(out), refusal_(refusal) {}

  bool Put() {
    for (const NameKindRow& row : kNameKinds) {
      if (!SameWithoutCase(text_.substr(0, row.prefix.size()), row.prefix)) continue;
      const std::string_view value = text_.substr(row.prefix.size());
      return row.kind == GeneralNameKind::kOther ? PutOther(row.other, value)
                                                 : PutPlain(row.kind, value);
    }
    return RefuseAt(ORTHOLAN_REASON_NAME_KIND, text_);
  }

 private:
  using Check = bool (*)(std::string_view text, Refusal* refusal);

  bool PutPlain(GeneralNameKind kind, std::string_view value) {
    const auto number = static_cast<uint8_t>(kind);
    switch (kind) {
      case GeneralNameKind::kMail:
        return PutText(Context(number), value, CheckMailbox);
      case GeneralNameKind::kDns:
        return PutText(Context(number), value, CheckDnsName);
      case GeneralNameKind::kUri:
        return PutText(Context(number), value, CheckUri);
      case GeneralNameKind::kAddress:
        return PutAddress(value);
      case GeneralNameKind::kRegisteredId:
        return PutOid(Context(number), value);
      case GeneralNameKind::kDirectory:
        return PutInside(ContextConstructed(number), [&] {
          TextOptions options;
          options.strings = StringPolicy::kUtf8;
          return PutNameOfText(value, options, out_, refusal_);
        });
      case GeneralNameKind::kEdiParty:
        return PutEdiParty(value);
      default:
        return PutOctets(ContextConstructed(number), value);
    }
  }

  // An other name: its value inside a tag, behind its type.
  template <class PutValue>
  bool PutOtherOf(ByteView type, PutValue put) {
    return PutInside(ContextConstructed(0), [&] {
      if (!PutInside(ContextConstructed(0), put)) return false;
      out_->Put(type);
      out_->PutHeader(kOid, type.size);
      return true;
    });
  }

  bool PutOther(OtherNameKind kind, std::string_view value) {
    if (kind == OtherNameKind::kUnknown) return PutAnyOther(value);
    return PutOtherOf(TypeOfOtherName(kind), [&] {
      switch (kind) {
        case OtherNameKind::kService:
          return PutText(kIA5String, value, CheckService);
        case OtherNameKind::kUtf8Mailbox:
          return PutText(kUtf8String, value, CheckUtf8Mailbox);
        case OtherNameKind::kKerberos:
          return PutKerberos(value);
        case OtherNameKind::kPermanentId:
          return PutPermanentId(value);
        case OtherNameKind::kHardwareModule:
          return PutHardwareModule(value);
        case OtherNameKind::kGuid:
          return PutGuid(value);
        default:
          return PutText(kUtf8String, value, nullptr);
      }
    });
  }

  // "1.2.3;UTF8:text", "1.2.3;IA5:text" or "1.2.3;#0C0474657874"; "#" and octets for all of it.
  bool PutAnyOther(std::string_view value) {
    if (value.substr(0, 1) == "#") return PutOctets(ContextConstructed(0), value);
    const size_t end = value.find(';');
    if (end == std::string_view::npos) {
      return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value.substr(value.size()));
    }
    uint8_t type[kMaxIdentifierOctets];
    Output oid(type, sizeof type);
    if (!PutIdentifier(value.substr(0, end), &oid)) return RefuseAt(ORTHOLAN_REASON_OID, value);
    value.remove_prefix(end + 1);
    return PutOtherOf({type, oid.size()}, [&] {
      if (SameWithoutCase(value.substr(0, kUtf8Tag.size()), kUtf8Tag)) {
        return PutText(kUtf8String, value.substr(kUtf8Tag.size()), nullptr);
      }
      if (SameWithoutCase(value.substr(0, kIA5Tag.size()), kIA5Tag)) {
        return PutText(kIA5String, value.substr(kIA5Tag.size()), nullptr);
      }
      return PutElementOctets(value);
    });
  }

  bool PutAddress(std::string_view value) {
    IpAddress address;
    if (!ReadIpAddress(value, &address)) {
      if (!ReadIpRange(value, &address)) return RefuseAt(ORTHOLAN_REASON_ADDRESS_TEXT, value);
      if (!allows_range_) return RefuseAt(ORTHOLAN_REASON_ADDRESS_RANGE, value);
    }
    out_->Put(address.view());
    out_->PutHeader(Context(static_cast<uint8_t>(GeneralNameKind::kAddress)), address.size);
    return true;
  }

  bool PutOid(uint8_t identifier, std::string_view dotted) {
    uint8_t content[kMaxIdentifierOctets];
    Output oid(content, sizeof content);
    if (!PutIdentifier(dotted, &oid)) return RefuseAt(ORTHOLAN_REASON_OID, dotted);
    out_->Put({content, oid.size()});
    out_->PutHeader(identifier, oid.size());
    return true;
  }

  // "host/a.example.org@EXAMPLE.ORG;3", the type of the name behind the semicolon.
  bool PutKerberos(std::string_view value) {
    const size_t at = value.find('@');
    if (at == std::string_view::npos) {
      return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value.substr(value.size()));
    }
    const size_t semicolon = std::min(value.find(';', at), value.size());
    const std::string_view components = value.substr(0, at);
    const std::string_view realm = value.substr(at + 1, semicolon - at - 1);
    int64_t type = kKerberosPrincipal;
    if (semicolon != value.size() && !ReadNameType(value.substr(semicolon + 1), &type)) {
      return false;
    }
    return PutInside(kSequence, [&] {
      return PutInside(ContextConstructed(1), [&] { return PutPrincipal(components, type); }) &&
             PutInside(ContextConstructed(0),
                       [&] { return PutText(kGeneralString, realm, nullptr); });
    });
  }

  bool PutPrincipal(std::string_view components, int64_t type) {
    return PutInside(kSequence, [&] {
      return PutInside(
                 ContextConstructed(1),
                 [&] { return PutInside(kSequence, [&] { return PutComponents(components); }); }) &&
             PutInside(ContextConstructed(0), [&] {
               PutInteger(type);
               return true;
             });
    });
  }

  // From the last to the first.
  bool PutComponents(std::string_view components) {
    for (;;) {
      const size_t slash = components.rfind('/');
      const size_t start = slash == std::string_view::npos ? 0 : slash + 1;
      if (!PutText(kGeneralString, components.substr(start), nullptr)) return false;
      if (start == 0) return true;
      components = components.substr(0, slash);
    }
  }

  // An Int32 (RFC 4120 5.2.4).
  bool ReadNameType(std::string_view text, int64_t* type) {
    const bool is_negative = text.substr(0, 1) == "-";
    const std::string_view digits = text.substr(is_negative ? 1 : 0);
    const bool is_number = !digits.empty() && digits.size() <= 10 &&
                           digits.find_first_not_of("0123456789") == std::string_view::npos &&
                           (digits.size() == 1 || digits[0] != '0');
    int64_t number = 0;
    for (const char digit : is_number ? digits : std::string_view()) {
      number = number * 10 + (digit - '0');
    }
    *type = is_negative ? -number : number;
    if (is_number && *type >= INT32_MIN && *type <= INT32_MAX) return true;
    return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, text);
  }

  void PutInteger(int64_t number) {
    uint8_t octets[kMaxIntegerOctets];
    const size_t size = WriteInteger(number, octets);
    out_->Put({octets, size});
    out_->PutHeader(kInteger, size);
  }

  // "1.2.3;value", of which either may be missing.
  bool PutPermanentId(std::string_view value) {
    const size_t end = value.find(';');
    const std::string_view assigner = value.substr(0, end);
    return PutInside(kSequence, [&] {
      return (assigner.empty() || PutOid(kOid, assigner)) &&
             (end == std::string_view::npos ||
              PutText(kUtf8String, value.substr(end + 1), nullptr));
    });
  }

  // "1.2.3;0A0B"
  bool PutHardwareModule(std::string_view value) {
    const size_t end = value.find(';');
    if (end == std::string_view::npos) {
      return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value.substr(value.size()));
    }
    return PutInside(kSequence, [&] {
      std::string serial;
      if (!ReadHex(value.substr(end + 1), &serial)) return false;
      out_->Put(AsBytes(serial.data(), serial.size()));
      out_->PutHeader(kOctetString, serial.size());
      return PutOid(kOid, value.substr(0, end));
    });
  }

  bool PutGuid(std::string_view value) {
    std::string digits;
    for (size_t i = 0; i < value.size(); ++i) {
      const bool is_hyphen = i == 8 || i == 13 || i == 18 || i == 23;
      if (is_hyphen != (value[i] == '-') || (!is_hyphen && HexDigitValue(value[i]) < 0)) {
        return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value.substr(i));
      }
      if (!is_hyphen) digits += value[i];
    }
    std::string shown;
    size_t fault;
    if (digits.size() != 2 * kGuidOctets || !AppendHexOctets(digits, &shown, &fault)) {
      return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value.substr(value.size()));
    }
    uint8_t stored[kGuidOctets];
    for (size_t i = 0; i < kGuidOctets; ++i) stored[kGuidOrder[i]] = static_cast<uint8_t>(shown[i]);
    out_->Put({stored, kGuidOctets});
    out_->PutHeader(kOctetString, kGuidOctets);
    return true;
  }

  // "assigner;party" or "party", or "#" and octets.
  bool PutEdiParty(std::string_view value) {
    const uint8_t identifier = ContextConstructed(static_cast<uint8_t>(GeneralNameKind::kEdiParty));
    if (value.substr(0, 1) == "#") return PutOctets(identifier, value);
    const size_t end = value.find(';');
    return PutInside(identifier, [&] {
      const std::string_view party = end == std::string_view::npos ? value : value.substr(end + 1);
      const auto put = [&](std::string_view part) { return PutText(kUtf8String, part, nullptr); };
      return PutInside(ContextConstructed(1), [&] { return put(party); }) &&
             (end == std::string_view::npos ||
              PutInside(ContextConstructed(0), [&] { return put(value.substr(0, end)); }));
    });
  }

  // "#" and the content of a constructed element.
  bool PutOctets(uint8_t identifier, std::string_view value) {
    std::string octets;
    if (!ReadHashed(value, &octets)) return false;
    const Element element = {identifier, AsBytes(octets.data(), octets.size()), {}};
    if (!CheckNested(element, Leniency::kDer, nullptr)) {
      return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value);
    }
    out_->Put(element.content);
    out_->PutHeader(identifier, octets.size());
    return true;
  }

  // "#" and one whole element.
  bool PutElementOctets(std::string_view value) {
    std::string octets;
    if (!ReadHashed(value, &octets)) return false;
    Reader reader(AsBytes(octets.data(), octets.size()), Leniency::kDer, nullptr);
    Element element;
    if (!reader.Read(&element) || !reader.End() || !CheckNested(element, Leniency::kDer, nullptr)) {
      return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value);
    }
    out_->Put(element.bytes);
    return true;
  }

  bool ReadHashed(std::string_view value, std::string* octets) {
    if (value.substr(0, 1) != "#") return RefuseAt(ORTHOLAN_REASON_NAME_VALUE, value);
    return ReadHex(value.substr(1), octets);
  }
  bool ReadHex(std::string_view digits, std::string* octets) {
    size_t fault = 0;
    return AppendHexOctets(digits, octets, &fault) ||
           RefuseAt(ORTHOLAN_REASON_NAME_VALUE, digits.substr(std::min(fault, digits.size())));
  }

  // Characters, which `check` looks at; without one those of the type, but for controls.
  bool PutText(uint8_t identifier, std::string_view escaped, Check check) {
    UnescapedText value;
    if (!value.Read(escaped, refusal_)) return false;
    Refusal found;
    if (!(check != nullptr ? check(value.text(), &found)
                           : CheckCharacters(identifier, value.octets(), &found))) {
      const auto offset = static_cast<const char*>(found.at) - value.text().data();
      const char* const place = value.PlaceOf(static_cast<size_t>(offset));
      return RefuseAt(found.reason, text_.substr(OffsetOf(place)));
    }
    out_->Put(value.octets());
    out_->PutHeader(identifier, value.text().size());
    return true;
  }

  static bool CheckCharacters(uint8_t identifier, ByteView octets, Refusal* refusal) {
    const bool is_utf8 = identifier == kUtf8String;
    const StringFault fault = FindNameFault(is_utf8 ? kUtf8String : kIA5String, octets);
    if (fault.reason == ORTHOLAN_REASON_NONE) return true;
    // What is UTF-8 all the same is no ASCII.
    return Refuse(refusal, is_utf8 ? fault.reason : ortholan_reason{ORTHOLAN_REASON_NAME_CHARACTER},
                  octets.data + fault.offset, octets.size - fault.offset);
  }
  static bool CheckDnsName(std::string_view text, Refusal* refusal) {
    return CheckHostPattern(text, kUnderscores, refusal);
  }
  static bool CheckMailbox(std::string_view text, Refusal* refusal) {
    Mailbox mailbox;
    return Mailbox::Read(text, Mailbox::kAscii, &mailbox, refusal);
  }
  static bool CheckUri(std::string_view text, Refusal* refusal) {
    Uri uri;
    return Uri::Read(text, &uri, refusal);
  }
  static bool CheckService(std::string_view text, Refusal* refusal) {
    std::string_view service, host;
    return SplitService(text, &service, &host, refusal);
  }

  // The header of what `put` puts.
  template <class PutContent>
  bool PutInside(uint8_t identifier, PutContent put) {
    const size_t end = out_->size();
    if (!put()) return false;
    out_->PutHeader(identifier, out_->size() - end);
    return true;
  }

  size_t OffsetOf(const char* place) const { return static_cast<size_t>(place - text_.data()); }
  // From where `rest`, a part of the text, begins.
  bool RefuseAt(ortholan_reason reason, std::string_view rest) {
    return RefuseText(refusal_, reason, text_.substr(OffsetOf(rest.data())));
  }

  std::string_view text_;
  bool allows_range_;
  BackwardOutput* out_;
  Refusal* refusal_;
};

}  // namespace

bool PutGeneralNameOfText(std::string_view text, bool allowsRange, BackwardOutput* out,
                          Refusal* refusal) {
  return NameParser(text, allowsRange, out, refusal).Put();
}

// From the last to the first, so that what is refused last is the first.
bool PutGeneralNamesOfTexts(const ortholan_text* texts, size_t count, BackwardOutput* out,
                            size_t* wrong, Refusal* refusal) {
  *wrong = count;
  const size_t end = out->size();
  for (size_t i = count; i-- != 0;) {
    const std::string_view text(texts[i].data, texts[i].size);
    if (!PutGeneralNameOfText(text, false, out, refusal)) *wrong = i;
  }
  if (count == 0) return Refuse(refusal, ORTHOLAN_REASON_EMPTY, nullptr, 0);
  out->PutHeader(kSequence, out->size() - end);
  return *wrong == count;
}

}  // namespace Ortholan::strict
