// Extensions by what they mean in C++17: as JSON, as plain words, and back to DER.
//
//   std::cout << ortholan::ExtensionText(extension.oid, extension.value).value();
//   const auto der = ortholan::ExtensionFromJson("basicConstraints", R"({"cA":true})");
#ifndef ORTHOLAN_STRICT_EXTENSIONS_HPP_
#define ORTHOLAN_STRICT_EXTENSIONS_HPP_

#include <ortholan/strict/extensions.h>

#include <ortholan/strict/base.hpp>

namespace ortholan {

// An extension that is known; the views last as long as the program.
struct ExtensionType {
  Octets oid;              // content octets of the identifier
  std::string_view name;   // "basicConstraints"
  std::string_view title;  // "Basic Constraints"
};

namespace detail {

inline ExtensionType ToType(const ortholan_extension_type& type) {
  return {type.oid, type.name, type.title};
}

// Room for most values.
constexpr size_t kValueRoom = 512;

}  // namespace detail

// All extensions that are known.
inline std::vector<ExtensionType> KnownExtensions() {
  std::vector<ExtensionType> known;
  ortholan_extension_type type;
  for (size_t i = 0; ortholan_extension_type_at(i, &type) == ORTHOLAN_REASON_NONE; ++i) {
    known.push_back(detail::ToType(type));
  }
  return known;
}

// The one with an identifier, by its content octets.
inline std::optional<ExtensionType> FindExtensionType(Octets oid) {
  ortholan_extension_type type;
  if (ortholan_extension_type_of(oid, &type) != ORTHOLAN_REASON_NONE) return std::nullopt;
  return detail::ToType(type);
}

// The content octets of the identifier that a name or dotted digits stand for.
inline Result<std::vector<uint8_t>> ExtensionOid(std::string_view name) {
  return MadeBy<std::vector<uint8_t>>([name](uint8_t* out, size_t room, size_t* size) {
    return ortholan_extension_oid_from_name(ToText(name), out, room, size);
  });
}

// The value of an extension as JSON; <ortholan/strict/extensions.h> tells its forms.
inline Result<std::string> ExtensionJson(Octets oid, Octets value,
                                         Reading reading = Reading::kDer) {
  return MadeBy<std::string>(
      [=](char* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_extension_json(oid, value, static_cast<int32_t>(reading), out, room, size,
                                       refusal);
      },
      detail::kValueRoom);
}

// The same in plain words, a line for each fact.
inline Result<std::string> ExtensionText(Octets oid, Octets value, Reading reading = Reading::kDer,
                                         size_t indent = 0) {
  return MadeBy<std::string>(
      [=](char* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_extension_text(oid, value, static_cast<int32_t>(reading), indent, out, room,
                                       size, refusal);
      },
      detail::kValueRoom);
}

// All extensions of a certificate, a request, a CRL or a list by itself as a JSON array.
inline Result<std::string> ExtensionsJson(Octets der, Reading reading = Reading::kDer) {
  return MadeBy<std::string>(
      [=](char* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_extensions_json(der, static_cast<int32_t>(reading), out, room, size,
                                        refusal);
      },
      detail::kValueRoom);
}

// The value of an extension in DER from its JSON.
//   type  name or dotted digits
inline Result<std::vector<uint8_t>> ExtensionFromJson(std::string_view type,
                                                      std::string_view json) {
  return MadeBy<std::vector<uint8_t>>(
      [=](uint8_t* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_extension_from_json(ToText(type), ToText(json), out, room, size, refusal);
      },
      detail::kValueRoom);
}

// A list of extensions in DER from a JSON array, or one extension from an object.
inline Result<std::vector<uint8_t>> ExtensionsFromJson(std::string_view json) {
  return MadeBy<std::vector<uint8_t>>(
      [=](uint8_t* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_extensions_from_json(ToText(json), out, room, size, refusal);
      },
      detail::kValueRoom);
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_EXTENSIONS_HPP_
