#include "strict/names/text_to_name.h"

#include <string>

#include "strict/der/any_value.h"
#include "strict/der/ber_value.h"
#include "strict/der/reader.h"
#include "strict/names/name_writer.h"
#include "strict/names/postal_address.h"
#include "strict/names/string_choice.h"
#include "strict/names/text_parser.h"
#include "strict/names/type_finder.h"

namespace Ortholan::strict {
namespace {

class Encoder {
 public:
  Encoder(std::string_view text, const TextOptions& options, BackwardOutput* out, Refusal* refusal)
      : text_(text), options_(options), name_(out), refusal_(refusal), finder_(options) {}

  bool Run() {
    TextParser parser(text_, refusal_);
    for (TextAttribute attribute; parser.Next(&attribute);) {
      if (attribute.begins_rdn) name_.BeginRdn();
      NamedType type;
      if (!FindType(attribute, &type) || !PutValue(attribute, type)) return false;
    }
    if (*refusal_) return false;
    name_.End(options_.order);
    return true;
  }

 private:
  bool FindType(const TextAttribute& attribute, NamedType* type) {
    const ortholan_reason reason = finder_.Find(attribute.type, attribute.dotted, type);
    return reason == ORTHOLAN_REASON_NONE || RefuseAt(reason, attribute.type);
  }

  bool PutValue(const TextAttribute& attribute, const NamedType& type) {
    uint8_t* const place = name_.TakeValue(attribute.octets);
    const bool is_hex = attribute.form == ValueForm::kHex;
    const bool as_it_stands = !is_hex && attribute.octets == attribute.value.size();
    ByteView octets = AsBytes(attribute.value.data(), attribute.value.size());
    if (!as_it_stands || place != nullptr) octets = Write(attribute, place);
    if (is_hex) {
      if (!ReadElement(attribute, octets)) return false;
      name_.EndAttribute(type.oid);
      return true;
    }
    if (!as_it_stands && !CheckUtf8(attribute, octets)) return false;
    if (type.syntax == ValueSyntax::kPostalAddress) return PutAddress(attribute, octets, type.oid);
    const StringChoice choice = ChooseString(octets, type.syntax, options_.strings);
    if (choice.reason != ORTHOLAN_REASON_NONE) {
      return RefuseValue(choice.reason, attribute, choice.offset, choice.identifier);
    }
    name_.EndAttribute(choice.identifier, type.oid);
    return true;
  }

  bool PutAddress(const TextAttribute& attribute, ByteView text, ByteView type) {
    std::string element;
    const StringChoice address = ReadPostalAddress(text, options_.strings, &element);
    if (address.reason != ORTHOLAN_REASON_NONE) {
      return RefuseValue(address.reason, attribute, address.offset);
    }
    name_.ReplaceValue(AsBytes(element.data(), element.size()));
    name_.EndAttribute(type);
    return true;
  }

  // The value's octets at their place, or where it is not there in a room of their own.
  ByteView Write(const TextAttribute& attribute, uint8_t* place) {
    if (place == nullptr) {
      value_.resize(attribute.octets + 1);
      place = reinterpret_cast<uint8_t*>(&value_[0]);
    }
    if (attribute.form == ValueForm::kHex) {
      ReadHexDigits(attribute.value, place);
    } else if (attribute.octets == attribute.value.size()) {
      WriteBytes(place, AsBytes(attribute.value.data(), attribute.octets));
    } else {
      Unescape(attribute.value, place);
    }
    return {place, attribute.octets};
  }

  // What the digits stand for is one element of BER, all of it, which is put in DER.
  bool ReadElement(const TextAttribute& attribute, ByteView octets) {
    Reader reader(octets, Leniency::kDer, nullptr);
    Element element;
    if (reader.Read(&element) && reader.AtEnd() && CheckValue(element, Leniency::kDer, nullptr)) {
      return true;
    }
    Refusal inner;
    std::string der;
    if (ReadBerValue(octets, &der, &inner)) {
      name_.ReplaceValue(AsBytes(der.data(), der.size()));
      return true;
    }
    const auto offset = static_cast<size_t>(static_cast<const uint8_t*>(inner.at) - octets.data);
    return RefuseAt(ORTHOLAN_REASON_TEXT_ELEMENT, attribute.value.substr(2 * offset),
                    static_cast<uint32_t>(inner.reason));
  }

  bool CheckUtf8(const TextAttribute& attribute, ByteView octets) {
    const StringFault fault = FindStringFault(kUtf8String, octets, false);
    return fault.reason == ORTHOLAN_REASON_NONE ||
           RefuseValue(ORTHOLAN_REASON_TEXT_VALUE_UTF8, attribute, fault.offset);
  }

  // Refuses the octet number `offset` of a value.
  bool RefuseValue(ortholan_reason reason, const TextAttribute& attribute, size_t offset,
                   uint32_t expected = 0) {
    const size_t place = PlaceOf(offset, attribute.value);
    return RefuseAt(reason, attribute.value.substr(place), expected);
  }
  // Refuses what begins a part of the text.
  bool RefuseAt(ortholan_reason reason, std::string_view part, uint32_t expected = 0) {
    const auto before = static_cast<size_t>(part.data() - text_.data());
    return RefuseText(refusal_, reason, text_.substr(before), expected);
  }

  std::string_view text_;
  const TextOptions& options_;
  NameWriter name_;
  Refusal* refusal_;
  TypeFinder finder_;
  std::string value_;
};

}  // namespace

bool PutNameOfText(std::string_view text, const TextOptions& options, BackwardOutput* out,
                   Refusal* refusal) {
  Refusal found;
  const bool done = Encoder(text, options, out, &found).Run();
  if (!done && refusal != nullptr) *refusal = found;
  return done;
}

}  // namespace Ortholan::strict
