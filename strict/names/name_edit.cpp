#include "strict/names/name_edit.h"

#include "strict/der/any_value.h"
#include "strict/der/reader.h"
#include "strict/der/string_value.h"
#include "strict/names/name_writer.h"
#include "strict/names/postal_address.h"
#include "strict/names/string_choice.h"

namespace Ortholan::strict {
namespace {

bool PutElement(const NewAttribute& attribute, NameWriter* name, AttributeFault* fault) {
  Refusal inner;
  Reader reader(attribute.element, Leniency::kDer, &inner);
  Element element;
  if (!reader.Read(&element) || !reader.End() || !CheckValue(element, Leniency::kDer, &inner)) {
    *fault = {inner.reason, inner.From(attribute.element.data).offset, inner.expected};
    return false;
  }
  uint8_t* const place = name->TakeValue(attribute.element.size);
  if (place != nullptr) WriteBytes(place, attribute.element);
  name->EndAttribute(attribute.oid);
  return true;
}

StringChoice CheckUtf8(ByteView text) {
  const StringFault broken = FindStringFault(kUtf8String, text, false);
  if (broken.reason == ORTHOLAN_REASON_NONE) return {kUtf8String};
  return {kUtf8String, ORTHOLAN_REASON_TEXT_UTF8, broken.offset};
}

// The string type that is asked for, or the one that type and policy have.
StringChoice ChooseFor(const NewAttribute& attribute, ByteView text, StringPolicy policy) {
  const StringChoice broken = CheckUtf8(text);
  if (broken.reason != ORTHOLAN_REASON_NONE) return broken;
  if (attribute.identifier == 0) return ChooseString(text, attribute.syntax, policy);
  if (!IsString(attribute.identifier)) return {attribute.identifier, ORTHOLAN_REASON_NO_STRING};
  return {attribute.identifier};
}

bool PutText(const NewAttribute& attribute, StringPolicy policy, NameWriter* name,
             AttributeFault* fault) {
  const ByteView text = AsBytes(attribute.text.data(), attribute.text.size());
  const StringChoice choice = ChooseFor(attribute, text, policy);
  *fault = {choice.reason, choice.offset, choice.identifier};
  if (choice.reason != ORTHOLAN_REASON_NONE) return false;
  Output measured(nullptr, 0);
  const StringFault outside = PutString(choice.identifier, text, &measured);
  if (outside.reason != ORTHOLAN_REASON_NONE) {
    *fault = {ORTHOLAN_REASON_TEXT_ALPHABET, outside.offset, choice.identifier};
    return false;
  }
  uint8_t* const place = name->TakeValue(measured.size());
  Output content(place, place != nullptr ? measured.size() : 0);
  PutString(choice.identifier, text, &content);
  name->EndAttribute(choice.identifier, attribute.oid);
  return true;
}

bool PutAddress(const NewAttribute& attribute, StringPolicy policy, NameWriter* name,
                AttributeFault* fault) {
  const ByteView text = AsBytes(attribute.text.data(), attribute.text.size());
  std::string element;
  StringChoice choice = CheckUtf8(text);
  if (choice.reason == ORTHOLAN_REASON_NONE) choice = ReadPostalAddress(text, policy, &element);
  *fault = {choice.reason, choice.offset, choice.identifier};
  if (choice.reason != ORTHOLAN_REASON_NONE) return false;
  name->TakeValue(0);
  name->ReplaceValue(AsBytes(element.data(), element.size()));
  name->EndAttribute(attribute.oid);
  return true;
}

bool PutNew(const NewAttribute& attribute, StringPolicy policy, NameWriter* name,
            AttributeFault* fault) {
  if (!attribute.element.empty()) return PutElement(attribute, name, fault);
  const bool is_address =
      attribute.syntax == ValueSyntax::kPostalAddress && attribute.identifier == 0;
  return is_address ? PutAddress(attribute, policy, name, fault)
                    : PutText(attribute, policy, name, fault);
}

// One edit of one RDN; the attributes are numbered over the whole name.
class Editor {
 public:
  Editor(NameEdit edit, size_t place, const NewAttribute& attribute, StringPolicy policy,
         BackwardOutput* out, AttributeFault* fault)
      : edit_(edit),
        place_(place),
        attribute_(attribute),
        policy_(policy),
        name_(out),
        fault_(fault) {}

  bool Run(const NameView& view) {
    if (place_ >= PlacesOf(view)) {
      *fault_ = {ORTHOLAN_REASON_NOT_FOUND, 0, 0};
      return false;
    }
    size_t rdn_number = view.rdn_count();
    size_t first = view.attribute_count();
    if (InsertsRdn() && place_ == rdn_number && !PutRdnOfItsOwn()) return false;
    Element rdn;
    for (BackwardRdns rdns(view); rdns.Next(&rdn);) {
      --rdn_number;
      const size_t count = CountAttributes(rdn.content);
      first -= count;
      if (!PutRdn(rdn, rdn_number, first, count)) return false;
    }
    name_.End(TextOrder::kReversed);
    return true;
  }

 private:
  bool InsertsRdn() const { return edit_ == NameEdit::kInsert && attribute_.begins_rdn; }

  size_t PlacesOf(const NameView& view) const {
    if (edit_ != NameEdit::kInsert) return view.attribute_count();
    return view.rdn_count() + (attribute_.begins_rdn ? 1 : 0);
  }

  static size_t CountAttributes(ByteView content) {
    size_t count = 0;
    for (AttributeView each; NextAttribute(&content, &each);) ++count;
    return count;
  }

  bool PutRdnOfItsOwn() {
    name_.BeginRdn();
    return PutNew(attribute_, policy_, &name_, fault_);
  }

  bool PutRdn(const Element& rdn, size_t rdn_number, size_t first, size_t count) {
    if (edit_ == NameEdit::kInsert && place_ == rdn_number) {
      if (!attribute_.begins_rdn) return PutJoined(rdn.content);
      name_.PutRdn(rdn.bytes);
      return PutRdnOfItsOwn();
    }
    if (edit_ == NameEdit::kInsert || place_ < first || place_ >= first + count) {
      name_.PutRdn(rdn.bytes);
      return true;
    }
    return PutChanged(rdn.content, place_ - first, count);
  }

  bool PutJoined(ByteView attributes) {
    name_.BeginRdn();
    for (AttributeView each; NextAttribute(&attributes, &each);) name_.PutAttribute(each.bytes);
    return PutNew(attribute_, policy_, &name_, fault_);
  }

  bool PutChanged(ByteView attributes, size_t changed, size_t count) {
    if (edit_ == NameEdit::kRemove && count == 1) return true;
    name_.BeginRdn();
    AttributeView each;
    for (size_t i = 0; NextAttribute(&attributes, &each); ++i) {
      if (i != changed) {
        name_.PutAttribute(each.bytes);
      } else if (edit_ == NameEdit::kReplace && !PutNew(attribute_, policy_, &name_, fault_)) {
        return false;
      }
    }
    return true;
  }

  NameEdit edit_;
  size_t place_;
  const NewAttribute& attribute_;
  StringPolicy policy_;
  NameWriter name_;
  AttributeFault* fault_;
};

}  // namespace

bool BuildName(const NewAttribute* attributes, size_t count, StringPolicy policy,
               BackwardOutput* out, AttributeFault* fault, size_t* index) {
  NameWriter name(out);
  bool begins = true;
  for (size_t i = count; i-- != 0;) {
    if (begins) name.BeginRdn();
    *index = i;
    if (!PutNew(attributes[i], policy, &name, fault)) return false;
    begins = attributes[i].begins_rdn;
  }
  name.End(TextOrder::kReversed);
  return true;
}

bool EditName(const NameView& name, NameEdit edit, size_t place, const NewAttribute& attribute,
              StringPolicy policy, BackwardOutput* out, AttributeFault* fault) {
  return Editor(edit, place, attribute, policy, out, fault).Run(name);
}

}  // namespace Ortholan::strict
