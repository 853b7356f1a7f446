#include "strict/extensions/value_text.h"

#include <vector>

#include "strict/certificates/time_text.h"
#include "strict/der/string_value.h"
#include "strict/extensions/leaf_text.h"
#include "strict/extensions/moment.h"
#include "strict/extensions/name_text.h"
#include "strict/extensions/oid_names.h"
#include "strict/extensions/resource_text.h"
#include "strict/extensions/shape_reader.h"
#include "strict/extensions/tls_reader.h"
#include "strict/general_names/escaped_text.h"

namespace Ortholan::strict {
namespace {

constexpr size_t kStep = 2;  // blanks further in

// A label waits for the value that it belongs to: behind it on one line, or below it further in.
class TextVisitor final : public ShapeVisitor {
 public:
  TextVisitor(size_t indent, Output* out) : indent_(indent), out_(out) {}

  void BeginFields(const Shape& shape) override;
  void EndFields(const Shape& shape) override {
    if (shape.kind != ShapeKind::kChoice) Leave();
  }
  bool BeginList(const Shape&) override {
    outer_.push_back(indent_);
    PutLabel();
    return true;
  }
  void EndList(const Shape&, ByteView, size_t count) override {
    if (count == 0) PutLine({}, "none");
    Leave();
  }
  bool BeginField(const Field& field, ByteView) override {
    if (*field.words != '\0') label_ = field.words;
    return true;
  }
  void Default(const Field& field) override {
    if (field.presence == Presence::kToldDefault) PutLine(field.words, "no");
  }
  void Leaf(const Shape& shape, const Element& element) override;
  void PutLine(std::string_view label, std::string_view text);

 private:
  // The label as a line of its own, where there is one.
  void PutLabel();
  void Leave() {
    indent_ = outer_.back();
    outer_.pop_back();
    label_ = {};
  }

  size_t indent_;
  Output* out_;
  std::string_view label_;
  std::vector<size_t> outer_;  // blanks outside the parts that have begun
  ByteView family_;            // of the addresses that come
  bool opens_ = false;         // the next value stands behind the label of its whole
};

void TextVisitor::PutLine(std::string_view label, std::string_view text) {
  for (size_t i = 0; i < indent_; ++i) out_->Put(' ');
  out_->Put(label);
  if (!label.empty()) out_->Put(text.empty() ? ":" : ": ");
  out_->Put(text);
  out_->Put('\n');
}

void TextVisitor::PutLabel() {
  if (label_.empty()) return;
  PutLine(label_, {});
  label_ = {};
  indent_ += kStep;
}

void TextVisitor::BeginFields(const Shape& shape) {
  if (shape.kind == ShapeKind::kChoice) return;
  outer_.push_back(indent_);
  if (label_.empty()) label_ = shape.words;
  opens_ = shape.fields.count != 0 && *shape.fields.first->words == '\0';
  if (!opens_) PutLabel();
}

void PutSafe(std::string_view text, Output* out) {
  PutEscapedText(text, Characters::kUtf8, {}, out);
}

void PutOctets(ByteView octets, Output* out) {
  out->Put('#');
  PutHex(octets, out);
}

void PutString(uint8_t identifier, const Element& element, Output* out) {
  std::string text;
  if (StringKindName(identifier) != nullptr && StringText(identifier, element.content, &text)) {
    PutSafe(text, out);
  } else {
    PutOctets(element.bytes, out);
  }
}

void PutNamedNumber(const Shape& shape, bool isShort, int64_t number, ByteView content,
                    Output* out) {
  const char* const name =
      isShort && number >= 0 ? NameOf(shape, static_cast<uint64_t>(number)) : nullptr;
  if (name != nullptr) {
    out->Put(name);
  } else if (isShort) {
    PutSigned(number, out);
  } else {
    PutOctets(content, out);
  }
}

void PutBits(const Shape& shape, ByteView content, Output* out) {
  bool is_first = true;
  ForEachBit(content, [&shape, &is_first, out](size_t bit) {
    if (!is_first) out->Put(", ");
    is_first = false;
    const char* const name = NameOf(shape, bit);
    name != nullptr ? out->Put(name) : PutDecimal(bit, out);
  });
  if (is_first) out->Put("none");
}

void PutLeaf(const Shape& shape, const Element& element, Output* out) {
  const ByteView content = element.content;
  int64_t number = 0;
  switch (shape.kind) {
    case ShapeKind::kBoolean:
      return out->Put(content[0] != 0 ? "yes" : "no");
    case ShapeKind::kNull:
      return out->Put(*shape.words != '\0' ? shape.words : "present");
    case ShapeKind::kInteger:
    case ShapeKind::kEnumerated: {
      const bool is_short = IsShortInteger(content, &number);
      return PutNamedNumber(shape, is_short, number, content, out);
    }
    case ShapeKind::kTlsNumber:
      return PutNamedNumber(shape, true, static_cast<int64_t>(TlsNumber(content)), content, out);
    case ShapeKind::kBits:
      return PutBits(shape, content, out);
    case ShapeKind::kOid:
      return PutIdentifierName(content, out);
    case ShapeKind::kUtcTime:
    case ShapeKind::kTime:
      PutTimeText(IdentifierOf(shape), content, out);
      return;
    case ShapeKind::kTlsTime:
      return PutMilliseconds(TlsNumber(content), out);
    case ShapeKind::kAscii:
      return PutString(kIA5String, element, out);
    case ShapeKind::kString: {
      const uint8_t only = IdentifierOf(shape);
      return PutString(only != 0 ? only : element.identifier, element, out);
    }
    case ShapeKind::kGeneralName:
    case ShapeKind::kSubtreeBase:
      return out->Put(TextOfName(element));
    case ShapeKind::kRdn:
      return out->Put(TextOfRdn(content));
    case ShapeKind::kAny:
      return PutString(element.identifier, element, out);
    default:
      return PutHex(content, out);
  }
}

// What has no text as an address is shown as its bits.
void PutAddressOrOctets(const Shape& shape, ByteView family, const Element& element, Output* out) {
  const bool is_put = shape.kind == ShapeKind::kAddress
                          ? PutAddressText(shape.number, family, element.content, out)
                          : PutFamilyText(family, out);
  if (!is_put) PutOctets(element.content, out);
}

void TextVisitor::Leaf(const Shape& shape, const Element& element) {
  const bool is_family = shape.kind == ShapeKind::kAddressFamily;
  if (is_family) family_ = element.content;
  const bool is_resource = is_family || shape.kind == ShapeKind::kAddress;
  PutLine(label_, TextOf([&](Output* out) {
            is_resource ? PutAddressOrOctets(shape, family_, element, out)
                        : PutLeaf(shape, element, out);
          }));
  label_ = {};
  if (opens_) indent_ += kStep;
  opens_ = false;
}

}  // namespace

bool PutValueText(const Shape* shape, ByteView der, Leniency leniency, size_t indent, Output* out,
                  Refusal* refusal) {
  TextVisitor visitor(indent, out);
  if (shape == nullptr) {
    visitor.Leaf({ShapeKind::kOctets}, {kOctetString, der, der});
    return true;
  }
  const size_t before = out->size();
  if (!ReadByShape(*shape, der, leniency, &visitor, refusal)) return false;
  // Nothing was told of a structure without parts.
  if (out->size() == before) visitor.PutLine({}, "none");
  return true;
}

}  // namespace Ortholan::strict
