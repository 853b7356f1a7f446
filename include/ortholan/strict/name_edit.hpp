// Names built of attributes and edited, in C++.
//
//   const auto name = ortholan::NameBuilder().Add("O", "Org").Add("CN", "Alpha").Join("UID", "a")
//                         .Build();                       // UID=a+CN=Alpha,O=Org
//   const auto other = ortholan::Replaced(name->view(), 1, {"CN", "Beta"});
#ifndef ORTHOLAN_STRICT_NAME_EDIT_HPP_
#define ORTHOLAN_STRICT_NAME_EDIT_HPP_

#include <ortholan/strict/name_edit.h>

#include <ortholan/strict/names.hpp>
#include <string>
#include <utility>
#include <vector>

namespace ortholan {

// An attribute to be written.
struct NewAttribute {
  std::string type;          // a name such as CN, or dotted digits
  std::string text = {};     // the value in UTF-8
  uint32_t string_type = 0;  // identifier octet; 0: the type or the policy chooses
  // The whole element of a value in DER, in place of text.
  std::vector<uint8_t> element = {};
  bool joins_rdn = false;  // it belongs to the RDN of the attribute before it
};

namespace detail {

inline ortholan_new_attribute Plain(const NewAttribute& attribute) {
  return {{nullptr, 0},           ToText(attribute.type),
          ToText(attribute.text), Octets(attribute.element),
          attribute.string_type,  attribute.joins_rdn ? 1 : 0};
}

// `call` takes options, room and the places of size and refusal.
template <class Call>
Result<Name> Written(const Rfc4514& options, size_t guess, Call call) {
  const PlainOptions plain(options);
  const auto write = [&](uint8_t* out, size_t room, size_t* size, Refusal* refusal) {
    return call(plain.get(), out, room, size, refusal);
  };
  const auto der = MadeBy<std::vector<uint8_t>>(write, guess);
  if (!der) return der.refusal();
  return Name::FromDer(*der, Reading::kStructure);
}

}  // namespace detail

// Attributes in the order of the encoding, the most significant first.
class NameBuilder {
 public:
  // An RDN of its own.
  NameBuilder& Add(NewAttribute attribute) {
    attributes_.push_back(std::move(attribute));
    return *this;
  }
  NameBuilder& Add(std::string type, std::string text, uint32_t string_type = 0) {
    return Add({std::move(type), std::move(text), string_type, {}, false});
  }
  // One more attribute of the RDN that was added last.
  NameBuilder& Join(std::string type, std::string text, uint32_t string_type = 0) {
    return Add({std::move(type), std::move(text), string_type, {}, true});
  }

  // A refusal has the number of the attribute in `met`.
  Result<Name> Build(const Rfc4514& options = {}) const {
    std::vector<ortholan_new_attribute> plain;
    size_t guess = 16;
    for (const NewAttribute& each : attributes_) {
      plain.push_back(detail::Plain(each));
      guess += 4 * each.text.size() + each.element.size() + 32;
    }
    return detail::Written(options, guess, [&plain](auto... rest) {
      return ortholan_name_build(plain.data(), plain.size(), rest...);
    });
  }

 private:
  std::vector<NewAttribute> attributes_;
};

// The name with another attribute in place of the one number `index`.
inline Result<Name> Replaced(const NameView& name, size_t index, const NewAttribute& attribute,
                             const Rfc4514& options = {}) {
  const ortholan_new_attribute plain = detail::Plain(attribute);
  return detail::Written(options, name.der().size() + 64, [&](auto... rest) {
    return ortholan_name_view_replace(&name.view(), index, &plain, rest...);
  });
}

// The name without the attribute number `index`, and without its RDN where it stood there alone.
inline Result<Name> Removed(const NameView& name, size_t index) {
  return detail::Written({}, name.der().size(), [&](auto, auto... rest) {
    return ortholan_name_view_remove(&name.view(), index, rest...);
  });
}

// The name with one attribute more: an RDN of its own before the RDN number `rdn`, at the end where
// that is their count; with joins_rdn as a part of that RDN.
inline Result<Name> Inserted(const NameView& name, size_t rdn, const NewAttribute& attribute,
                             const Rfc4514& options = {}) {
  const ortholan_new_attribute plain = detail::Plain(attribute);
  return detail::Written(options, name.der().size() + 64, [&](auto... rest) {
    return ortholan_name_view_insert(&name.view(), rdn, &plain, rest...);
  });
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_NAME_EDIT_HPP_
