// One X.509 GeneralName (RFC 5280 4.2.1.6), the choice that alternative names are made of.
//
//   Ortholan::GeneralName name = Ortholan::GeneralName::CreateDnsName(L"example.org");
//   Ortholan::IdentObj der = name.DerEncode();
#ifndef ORTHOLAN_GENERAL_NAME_H_
#define ORTHOLAN_GENERAL_NAME_H_

#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <cstddef>
#include <cstdint>
#include <string>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// The context tag numbers of the choice.
enum GeneralNameTag : uint32_t {
  otherName = 0,
  rfc822Name = 1,
  dNSName = 2,
  x400Address = 3,
  directoryName = 4,
  ediPartyName = 5,
  uniformResourceIdentifier = 6,
  iPAddress = 7,
  registeredID = 8,
};

// The two texts of an ediPartyName.
struct ORTHOLAN_EXPORT EdiPartyName {
  std::wstring nameAssigner;  // who gave the name; may be empty
  std::wstring partyName;     // the name itself
};

// One alternative name, a plain value: a tag and the DER element of the chosen alternative. All
// failures are exceptions: XZEPStatus as the DerHelper operations throw it, and the standard ones
// of containers.
class ORTHOLAN_EXPORT GeneralName {
 public:
  GeneralName();
  // Both as they stand.
  GeneralName(GeneralNameTag tag, const IdentObj& content);
  GeneralName(const GeneralName&);
  GeneralName(GeneralName&&) noexcept;
  GeneralName& operator=(const GeneralName&);
  GeneralName& operator=(GeneralName&&) noexcept;
  ~GeneralName();

  // The element with its own universal tag, or for a decoded name the whole tagged element.
  const IdentObj& GetContent() const noexcept;
  // Which alternative it is, or the tag number that was decoded.
  GeneralNameTag GetTag() const noexcept;

  // An IA5String; letters outside ASCII become what the platform's US-ASCII has for them.
  static GeneralName CreateRfc822Name(const std::wstring& text);
  // The same as a DNS name, tag 2.
  static GeneralName CreateDnsName(const std::wstring& text);
  // The same; stored like a DNS name, with tag 2.
  static GeneralName CreateUri(const std::wstring& text);
  // The encoding as it stands, under tag 3.
  static GeneralName CreateX400Address(const IdentObj& der);
  // The encoding of a Name as it stands, under tag 4.
  static GeneralName CreateDirectoryName(const IdentObj& der);
  // A SEQUENCE of both names, [0] and [1], also where they are empty; stored with tag 4.
  static GeneralName CreateEdiPartyName(const EdiPartyName& name);
  // Always fails: with XZEPStatus where `text` cannot be converted, otherwise with std::bad_alloc.
  static GeneralName CreateIpAddress(const std::wstring& text);
  // An OBJECT IDENTIFIER, stored with tag 2.
  static GeneralName CreateRegisteredId(const std::string& oid);
  // A SEQUENCE of the identifier and the value's bytes, which are not wrapped; tag 0.
  static GeneralName CreateOther(const std::string& oid, const IdentObj& value);

  // The content with its identifier octets replaced by the context-specific tag, constructed for
  // every alternative. Content that is no element is returned as it is.
  IdentObj DerEncode();
  // Keeps the whole of `der`, its identifier octets included. Throws XZEPStatus,
  // "DerHelper::GetTag".
  static GeneralName DerDecode(const IdentObj& der);

  // The name as text for display, by its tag alone; the arguments are ignored.
  std::wstring ToString(size_t, size_t);

 private:
  GeneralNameTag tag_;
  IdentObj content_;
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_GENERAL_NAME_H_
