// Distinguished names in C++: read, walked, kept, and as RFC 4514 text.
//
//   const ortholan::Result<ortholan::NameView> name = ortholan::NameView::Read(der);
//   if (!name) return Complain(name.refusal().Sentence());
//   for (const ortholan::Attribute& attribute : *name) use(attribute.Text());
//   std::cout << name->ToText().value();
//
//   const auto made = ortholan::Name::FromText("CN=Alpha,O=Org");
//   if (!made) return Complain(ortholan::ExplainNameText("CN=Alpha,O=Org",
//   made.refusal()).message);
#ifndef ORTHOLAN_STRICT_NAMES_HPP_
#define ORTHOLAN_STRICT_NAMES_HPP_

#include <ortholan/strict/names.h>

#include <functional>
#include <ortholan/strict/base.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ortholan {

// The order of RDNs in a text.
enum class RdnOrder : int32_t {
  kReversed = ORTHOLAN_RDNS_REVERSED,  // RFC 4514 2.1
  kAsEncoded = ORTHOLAN_RDNS_AS_ENCODED,
};

// The string type of free text.
enum class StringPolicy : int32_t {
  kPrintableOrUtf8 = ORTHOLAN_STRINGS_PRINTABLE_OR_UTF8,
  kUtf8 = ORTHOLAN_STRINGS_UTF8,
};

// A name of the caller's own for a type.
struct TypeName {
  std::string name;          // a letter, then letters, digits and hyphens
  std::vector<uint8_t> oid;  // content octets, as OidFromText makes them
};

// What text looks like. Text that was written is read back with the same options.
struct Rfc4514 {
  RdnOrder order = RdnOrder::kReversed;
  StringPolicy strings = StringPolicy::kPrintableOrUtf8;
  bool long_names = false;  // commonName, not CN
  // # and the digits of the encoding where a plain value would not be read as the same octets.
  bool exact = false;
  std::vector<TypeName> names;  // come before the names that the library knows
};

// One attribute of a name; valid as long as the name's octets.
class Attribute {
 public:
  Attribute() : view_{} {}
  explicit Attribute(const ortholan_attribute_view& view) : view_(view) {}

  Octets type() const { return view_.type; }        // content octets of the identifier
  Octets value() const { return view_.value; }      // the whole element
  Octets content() const { return view_.content; }  // content octets of the value
  // Identifier octet of the value: 0x13 is PrintableString.
  uint32_t identifier() const { return view_.identifier; }
  size_t rdn() const { return view_.rdn; }  // index of its RDN
  bool begins_rdn() const { return view_.begins_rdn != 0; }

  // The value of a string in UTF-8.
  Result<std::string> Text() const {
    return MadeBy<std::string>([this](char* out, size_t room, size_t* size) {
      return ortholan_attribute_view_text(&view_, out, room, size);
    });
  }

 private:
  ortholan_attribute_view view_;
};

namespace detail {

// The attributes of a name, by their number.
class AttributeWalk {
 public:
  AttributeWalk() = default;
  AttributeWalk(const ortholan_name_view& name, size_t index) : name_(name), index_(index) {
    Read();
  }

  const Attribute& item() const { return attribute_; }
  bool IsAt(const AttributeWalk& other) const { return index_ == other.index_; }
  void Step() {
    ++index_;
    Read();
  }

 private:
  void Read() {
    ortholan_attribute_view view;
    ortholan_name_view_attribute(&name_, index_, &cursor_, &view);
    attribute_ = Attribute(view);
  }

  ortholan_name_view name_{};
  size_t index_ = 0;
  ortholan_name_cursor cursor_ = {};
  Attribute attribute_;
};

}  // namespace detail

// A name over borrowed octets, read once; a range of its attributes in the order of the encoding.
class NameView {
 public:
  using Iterator = detail::Iterator<detail::AttributeWalk>;

  // The name without RDNs.
  NameView() : name_{} {}
  // A name that was read before.
  explicit NameView(const ortholan_name_view& name) : name_(name) {}

  // Reads a Name that is the whole of `der`.
  static Result<NameView> Read(Octets der, Reading reading = Reading::kDer) {
    return detail::ReadValue<NameView, ortholan_name_view>(der, reading, ortholan_name_view_read);
  }

  Octets der() const { return name_.der; }
  size_t rdn_count() const { return name_.rdn_count; }
  size_t attribute_count() const { return name_.attribute_count; }
  bool empty() const { return rdn_count() == 0; }
  Iterator begin() const { return Iterator(name_, size_t{0}); }
  Iterator end() const { return Iterator(name_, attribute_count()); }
  const ortholan_name_view& view() const { return name_; }

  // Text that is safe to show and to log.
  Result<std::string> ToText(const Rfc4514& options = {}) const;

  // The texts of all attributes of a type, by its dotted identifier ("2.5.4.3" is commonName), in
  // the order of the encoding; values that are no text are left out. As they stand there: a
  // character that cannot be seen is not escaped.
  std::vector<std::string> Values(std::string_view type) const {
    std::vector<std::string> values;
    const Result<std::vector<uint8_t>> oid = OidFromText(type);
    if (!oid) return values;
    for (const Attribute& attribute : *this) {
      if (attribute.type() != Octets(*oid)) continue;
      if (Result<std::string> text = attribute.Text()) values.push_back(std::move(*text));
    }
    return values;
  }

 private:
  ortholan_name_view name_;
};

// A name that owns its DER. Equality, order and hash are those of the octets.
class Name {
 public:
  // The name without RDNs.
  Name() : der_{0x30, 0x00} {}

  static Result<Name> FromDer(Octets der, Reading reading = Reading::kDer) {
    const Result<NameView> view = NameView::Read(der, reading);
    if (!view) return view.refusal();
    return Name(std::vector<uint8_t>(der.begin(), der.end()), reading);
  }
  // ExplainNameText tells a refusal further.
  static Result<Name> FromText(std::string_view text, const Rfc4514& options = {});

  const std::vector<uint8_t>& der() const { return der_; }
  NameView view() const { return *NameView::Read(der_, reading_); }
  Result<std::string> ToText(const Rfc4514& options = {}) const { return view().ToText(options); }

  friend bool operator==(const Name& a, const Name& b) { return a.der_ == b.der_; }
  friend bool operator!=(const Name& a, const Name& b) { return a.der_ != b.der_; }
  friend bool operator<(const Name& a, const Name& b) { return a.der_ < b.der_; }

 private:
  explicit Name(std::vector<uint8_t> der, Reading reading = Reading::kStructure)
      : der_(std::move(der)), reading_(reading) {}

  std::vector<uint8_t> der_;
  Reading reading_ = Reading::kDer;
};

// What is wrong with the first place of a text that is.
struct NameTextError {
  ortholan_reason reason = ORTHOLAN_REASON_NONE;
  size_t position = 0;   // octets of the text before the place
  size_t character = 0;  // characters before it
  std::string met;       // what stands there; "" at the end
  std::string expected;  // what is expected instead
  std::string message;   // both and the place in one sentence, safe to show
};

// Tells a refusal by Name::FromText of this text further.
inline NameTextError ExplainNameText(std::string_view text, const Refusal& refusal) {
  NameTextError told;
  ortholan_text_error error;
  ortholan_rfc4514_explain(ToText(text), &refusal, &error);
  WithRoom(&told.message, [&](char* out, size_t room, size_t* size) {
    return ortholan_rfc4514_sentence(ToText(text), &refusal, out, room, size);
  });
  told.reason = error.reason;
  told.position = error.offset;
  told.character = error.character;
  told.met = text.substr(error.offset, error.size);
  told.expected = error.expected;
  return told;
}

namespace detail {

// The options as the C functions take them; valid as long as `options`.
class PlainOptions {
 public:
  explicit PlainOptions(const Rfc4514& options) {
    for (const TypeName& own : options.names) names_.push_back({ToText(own.name), Octets(own.oid)});
    plain_ = {static_cast<int32_t>(options.order),
              static_cast<int32_t>(options.strings),
              options.long_names ? 1 : 0,
              options.exact ? 1 : 0,
              names_.data(),
              names_.size()};
  }
  const ortholan_rfc4514_options* get() const { return &plain_; }

 private:
  std::vector<ortholan_type_name> names_;
  ortholan_rfc4514_options plain_;
};

}  // namespace detail

inline Result<std::string> NameView::ToText(const Rfc4514& options) const {
  const detail::PlainOptions plain(options);
  const auto write = [&](char* out, size_t room, size_t* size, Refusal* refusal) {
    return ortholan_rfc4514_write(&name_, plain.get(), out, room, size, refusal);
  };
  return MadeBy<std::string>(write, der().size());
}

inline Result<Name> Name::FromText(std::string_view text, const Rfc4514& options) {
  const detail::PlainOptions plain(options);
  const auto read = [&](uint8_t* out, size_t room, size_t* size, Refusal* refusal) {
    return ortholan_rfc4514_read(ortholan::ToText(text), plain.get(), out, room, size, refusal);
  };
  Result<std::vector<uint8_t>> der = MadeBy<std::vector<uint8_t>>(read, 4 * text.size() + 16);
  if (!der) return der.refusal();
  return Name(std::move(*der));
}

}  // namespace ortholan

template <>
struct std::hash<ortholan::Name> {
  size_t operator()(const ortholan::Name& name) const {
    const std::vector<uint8_t>& der = name.der();
    return std::hash<std::string_view>()({reinterpret_cast<const char*>(der.data()), der.size()});
  }
};

#endif  // ORTHOLAN_STRICT_NAMES_HPP_
