#include "strict/names/name_to_text.h"

#include "strict/der/oid.h"
#include "strict/der/string_value.h"
#include "strict/names/escaped_value.h"
#include "strict/names/postal_address.h"
#include "strict/names/string_choice.h"

namespace Ortholan::strict {
namespace {

bool IsFree(ValueSyntax syntax) {
  return syntax == ValueSyntax::kDirectoryString || syntax == ValueSyntax::kUtf8 ||
         syntax == ValueSyntax::kIA5OrUtf8;
}

// Whether the plain text of a string would be read as a value of the type at all.
bool IsReadable(const Element& value, ValueSyntax syntax) {
  if (IsFree(syntax)) return true;
  if (value.identifier == kUtf8String || IsAsciiString(value.identifier)) {
    return ChooseString(value.content, syntax, {}).reason == ORTHOLAN_REASON_NONE;
  }
  ScalarReader scalars(value.identifier, value.content);
  uint8_t octet = 0;
  for (uint32_t scalar; scalars.Next(&scalar);) {
    octet = static_cast<uint8_t>(scalar);
    if (scalar >= 0x80 || ChooseString({&octet, 1}, syntax, {}).reason != ORTHOLAN_REASON_NONE) {
      return false;
    }
  }
  return ChooseString({}, syntax, {}).reason == ORTHOLAN_REASON_NONE;
}

class Decoder {
 public:
  Decoder(const TextOptions& options, Output* out, Refusal* refusal)
      : options_(options), out_(out), refusal_(refusal) {}

  bool PutRdn(ByteView rdn) {
    if (separate_) out_->Put(',');
    separate_ = true;
    AttributeView attribute;
    for (bool first = true; NextAttribute(&rdn, &attribute); first = false) {
      if (!first) out_->Put('+');
      if (!Put(attribute)) return false;
    }
    return true;
  }

 private:
  bool Put(const AttributeView& attribute) {
    const NamedType type = Describe(attribute.type, options_);
    if (type.name.empty()) return PutUnnamed(attribute);
    out_->Put(type.name);
    out_->Put('=');
    const Element& value = attribute.value;
    if (!(type.syntax == ValueSyntax::kPostalAddress ? PutAddress(value)
                                                     : PutPlain(value, type.syntax))) {
      PutElement(value);
    }
    return true;
  }

  // The text of a string, where it would be read as the value.
  bool PutPlain(const Element& value, ValueSyntax syntax) {
    return IsString(value.identifier) &&
           (options_.exact ? ComesBack(value, syntax, options_.strings)
                           : IsReadable(value, syntax)) &&
           PutEscaped(value.identifier, value.content, out_);
  }

  bool PutAddress(const Element& value) {
    std::string text;
    return WritePostalAddress(value, options_.strings, options_.exact, &text) &&
           PutEscaped(kUtf8String, AsBytes(text.data(), text.size()), out_);
  }

  // RFC 4514 2.4: a dotted type has the encoding of its value.
  bool PutUnnamed(const AttributeView& attribute) {
    if (!PutIdentifierText(attribute.type, out_)) {
      return Refuse(refusal_, ORTHOLAN_REASON_TOO_LONG, attribute.type.data, attribute.type.size);
    }
    out_->Put('=');
    PutElement(attribute.value);
    return true;
  }

  void PutElement(const Element& value) {
    out_->Put('#');
    PutHex(value.bytes, out_);
  }

  const TextOptions& options_;
  Output* out_;
  Refusal* refusal_;
  bool separate_ = false;
};

}  // namespace

bool PutTextOfName(const NameView& name, const TextOptions& options, Output* out,
                   Refusal* refusal) {
  Decoder decoder(options, out, refusal);
  Element rdn;
  if (options.order == TextOrder::kAsEncoded) {
    for (ByteView rest = name.rdns(); NextRdn(&rest, &rdn);) {
      if (!decoder.PutRdn(rdn.content)) return false;
    }
    return true;
  }
  for (BackwardRdns rdns(name); rdns.Next(&rdn);) {
    if (!decoder.PutRdn(rdn.content)) return false;
  }
  return true;
}

bool PutTextOfRdn(ByteView rdn, const TextOptions& options, Output* out, Refusal* refusal) {
  return Decoder(options, out, refusal).PutRdn(rdn);
}

}  // namespace Ortholan::strict
