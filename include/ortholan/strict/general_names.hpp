// General names in C++17: typed, and as text.
//
//   for (const ortholan::GeneralName& name : ortholan::GeneralNames::Read(extension).value()) {
//     std::cout << name.Text() << "\n";                 // DNS:example.org
//     if (name.kind() == ortholan::NameKind::kUri)
//     use(ortholan::Uri::Read(name.AsText()).value().host);
//   }
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_HPP_
#define ORTHOLAN_STRICT_GENERAL_NAMES_HPP_

#include <ortholan/strict/general_names.h>

#include <ortholan/strict/base.hpp>

namespace ortholan {

inline std::string_view ToView(ortholan_text text) { return {text.data, text.size}; }

enum class NameKind : int32_t {
  kOther = ORTHOLAN_NAME_OTHER,
  kMail = ORTHOLAN_NAME_MAIL,
  kDns = ORTHOLAN_NAME_DNS,
  kX400 = ORTHOLAN_NAME_X400,
  kDirectory = ORTHOLAN_NAME_DIRECTORY,
  kEdiParty = ORTHOLAN_NAME_EDI_PARTY,
  kUri = ORTHOLAN_NAME_URI,
  kAddress = ORTHOLAN_NAME_ADDRESS,
  kRegisteredId = ORTHOLAN_NAME_REGISTERED_ID,
};

enum class OtherNameKind : int32_t {
  kUnknown = ORTHOLAN_OTHER_UNKNOWN,
  kUpn = ORTHOLAN_OTHER_UPN,
  kService = ORTHOLAN_OTHER_SERVICE,
  kUtf8Mailbox = ORTHOLAN_OTHER_UTF8_MAILBOX,
  kKerberos = ORTHOLAN_OTHER_KERBEROS,
  kXmpp = ORTHOLAN_OTHER_XMPP,
  kPermanentId = ORTHOLAN_OTHER_PERMANENT_ID,
  kHardwareModule = ORTHOLAN_OTHER_HARDWARE_MODULE,
  kGuid = ORTHOLAN_OTHER_GUID,
};

// A mailbox taken apart: views into the text that was read.
struct Mailbox {
  std::string_view local;
  std::string_view host;         // empty where an address stands
  std::vector<uint8_t> address;  // empty where a host stands
  bool has_ascii_local = true;

  static Result<Mailbox> Read(std::string_view text, bool has_utf8 = false) {
    ortholan_mailbox read;
    Refusal refusal;
    if (ortholan_mailbox_read(ToText(text), has_utf8 ? 1 : 0, &read, &refusal) != 0) return refusal;
    return Mailbox{ToView(read.local),
                   ToView(read.host),
                   {read.address, read.address + read.address_size},
                   read.has_ascii_local != 0};
  }
};

// A URI taken apart: views into the text that was read.
struct Uri {
  std::string_view scheme;
  std::string_view userinfo;
  std::string_view host;
  std::string_view port;
  std::string_view rest;
  std::vector<uint8_t> address;  // where the host is one
  bool has_authority = false;

  static Result<Uri> Read(std::string_view text) {
    ortholan_uri read;
    Refusal refusal;
    if (ortholan_uri_read(ToText(text), &read, &refusal) != 0) return refusal;
    return Uri{ToView(read.scheme),    ToView(read.userinfo),
               ToView(read.host),      ToView(read.port),
               ToView(read.rest),      {read.address, read.address + read.address_size},
               read.has_authority != 0};
  }
};

// An other name taken apart: views into its encoding. Parts that its kind has not are empty.
struct OtherName {
  OtherNameKind kind = OtherNameKind::kUnknown;
  Octets type;   // content octets of the identifier
  Octets value;  // the whole element inside the explicit tag
  std::string_view text;
  Octets oid;
  Octets octets;
  Octets components;
};

struct EdiParty {
  Octets assigner;  // a whole element of a string type; empty where there is none
  Octets party;
};

// The text of a whole GeneralName, be it malformed inside; empty for octets that are none.
inline std::string GeneralNameText(Octets name) {
  std::string text;
  WithRoom(&text, [name](char* out, size_t room, size_t* size) {
    return ortholan_general_name_to_text(name, out, room, size, nullptr);
  });
  return text;
}

// One general name over borrowed octets.
class GeneralName {
 public:
  GeneralName() = default;
  explicit GeneralName(const ortholan_general_name_view& view) : view_(view) {}

  // Reads one name that is the whole of `der`.
  static Result<GeneralName> Read(Octets der, Reading reading = Reading::kDer) {
    return detail::ReadValue<GeneralName, ortholan_general_name_view>(
        der, reading, ortholan_general_name_view_read);
  }

  NameKind kind() const { return static_cast<NameKind>(view_.kind); }
  OtherNameKind other_kind() const { return static_cast<OtherNameKind>(view_.other); }
  Octets der() const { return view_.bytes; }
  Octets content() const { return view_.content; }
  // The characters of an e-mail address, DNS name or URI.
  std::string_view AsText() const {
    return {reinterpret_cast<const char*>(view_.content.data), view_.content.size};
  }
  Result<OtherName> AsOther() const {
    ortholan_other_name read;
    Refusal refusal;
    if (ortholan_other_name_read(&view_, &read, &refusal) != 0) return refusal;
    return OtherName{static_cast<OtherNameKind>(read.kind),
                     read.type,
                     read.value,
                     ToView(read.text),
                     read.oid,
                     read.octets,
                     read.components};
  }
  Result<EdiParty> AsEdiParty() const {
    ortholan_edi_party read;
    Refusal refusal;
    if (ortholan_edi_party_read(&view_, &read, &refusal) != 0) return refusal;
    return EdiParty{read.assigner, read.party};
  }
  // "DNS:example.org"; what cannot be seen is escaped.
  std::string Text() const { return GeneralNameText(view_.bytes); }

  friend bool operator==(const GeneralName& a, const GeneralName& b) { return a.der() == b.der(); }
  friend bool operator!=(const GeneralName& a, const GeneralName& b) { return !(a == b); }

 private:
  ortholan_general_name_view view_{};
};

namespace detail {

// The names of a list, one behind the other.
class GeneralNameWalk {
 public:
  GeneralNameWalk() = default;
  explicit GeneralNameWalk(const ortholan_general_names_view& names) : names_(names) { Step(); }

  const GeneralName& item() const { return name_; }
  bool IsAt(const GeneralNameWalk& other) const {
    return name_.der().data() == other.name_.der().data();
  }
  void Step() {
    ortholan_general_name_view view;
    ortholan_general_names_view_next(&names_, &offset_, &view);
    name_ = GeneralName(view);
  }

 private:
  ortholan_general_names_view names_{};
  size_t offset_ = 0;
  GeneralName name_;  // without octets at the end
};

}  // namespace detail

// A list of general names over borrowed octets; a range.
class GeneralNames {
 public:
  using Iterator = detail::Iterator<detail::GeneralNameWalk>;

  GeneralNames() = default;
  // Names that were read before.
  explicit GeneralNames(const ortholan_general_names_view& view) : view_(view) {}

  // Reads a list that is the whole of `der`, the value of an alternative-name extension.
  static Result<GeneralNames> Read(Octets der, Reading reading = Reading::kDer) {
    return detail::ReadValue<GeneralNames, ortholan_general_names_view>(
        der, reading, ortholan_general_names_view_read);
  }

  Iterator begin() const { return Iterator(view_); }
  Iterator end() const { return {}; }
  size_t size() const { return view_.count; }
  bool empty() const { return view_.count == 0; }

 private:
  ortholan_general_names_view view_{};
};

// Octets of an address or a range as text: "192.0.2.1", "2001:db8::/32".
inline Result<std::string> AddressToText(Octets address) {
  return MadeBy<std::string>([address](char* out, size_t room, size_t* size) {
    return ortholan_address_to_text(address, out, room, size);
  });
}

// The octets of an address, 4 or 16, or of a range with its mask, 8 or 32.
inline Result<std::vector<uint8_t>> AddressFromText(std::string_view text) {
  return MadeBy<std::vector<uint8_t>>([text](uint8_t* out, size_t room, size_t* size) {
    return ortholan_address_from_text(ToText(text), out, room, size);
  });
}

// The GeneralName of a text: "DNS:example.org", "IP:192.0.2.1", "UPN:joe@example.org".
inline Result<std::vector<uint8_t>> GeneralNameFromText(std::string_view text,
                                                        bool allows_range = false) {
  const int32_t range = allows_range ? 1 : 0;
  return MadeBy<std::vector<uint8_t>>(
      [=](uint8_t* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_general_name_from_text(ToText(text), range, out, room, size, refusal);
      });
}

enum class AlternativeNames : int32_t {
  kValue = ORTHOLAN_ALTERNATIVE_NAMES_VALUE,
  kCritical = ORTHOLAN_ALTERNATIVE_NAMES_CRITICAL,
  kExtension = ORTHOLAN_ALTERNATIVE_NAMES_EXTENSION,
};

// Alternative names of texts, a range of what std::string_view is made of, in their order. `wrong`,
// where given, is the number of the text that was refused.
template <class Texts>
Result<std::vector<uint8_t>> AlternativeNamesFromText(const Texts& texts,
                                                      AlternativeNames form = {},
                                                      size_t* wrong = nullptr) {
  std::vector<ortholan_text> all;
  for (const auto& text : texts) all.push_back(ToText(text));
  return MadeBy<std::vector<uint8_t>>(
      [&](uint8_t* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_alternative_names_from_text(
            all.data(), all.size(), static_cast<int32_t>(form), out, room, size, wrong, refusal);
      });
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_HPP_
