// Certificates, requests and CRLs in C++17, lists of extensions, and PEM text that holds them.
//
//   for (const ortholan::PemBlock& block : ortholan::ReadPem(text).value()) {
//     const auto certificate = ortholan::Certificate::Read(block.octets);
//     if (certificate) use(certificate->AlternativeNames());
//   }
#ifndef ORTHOLAN_STRICT_CERTIFICATES_HPP_
#define ORTHOLAN_STRICT_CERTIFICATES_HPP_

#include <ortholan/strict/certificates.h>

#include <ortholan/strict/base.hpp>
#include <ortholan/strict/general_names.hpp>
#include <ortholan/strict/names.hpp>

namespace ortholan {

enum class CertificateKind : int32_t {
  kCertificate = ORTHOLAN_CERTIFICATE,
  kRequest = ORTHOLAN_CERTIFICATE_REQUEST,
  kRevocationList = ORTHOLAN_REVOCATION_LIST,
};

// One extension: views into the encoding.
struct Extension {
  Octets oid;  // content octets of the identifier
  Octets value;
  bool critical = false;
};

namespace detail {

inline std::vector<Extension> ExtensionsOf(const ortholan_certificate_view& view) {
  std::vector<Extension> extensions;
  ortholan_extension_view found;
  for (size_t offset = 0; ortholan_certificate_view_next_extension(&view, &offset, &found) == 0;) {
    extensions.push_back({found.oid, found.value, found.critical != 0});
  }
  return extensions;
}

}  // namespace detail

// The extensions of a list that is the whole of `der`, Extensions of RFC 5280 4.1: views into it.
inline Result<std::vector<Extension>> ReadExtensions(Octets der, Reading reading = Reading::kDer) {
  const auto view =
      detail::ReadPlain<ortholan_certificate_view>(der, reading, ortholan_extensions_view_read);
  if (!view) return view.refusal();
  return detail::ExtensionsOf(*view);
}

// The DER of such a list, in the order given. A refusal has the number of the extension in `met`.
inline Result<std::vector<uint8_t>> WriteExtensions(const std::vector<Extension>& extensions) {
  std::vector<ortholan_extension_view> plain;
  for (const Extension& each : extensions) {
    plain.push_back({each.oid, each.value, {nullptr, 0}, each.critical ? 1 : 0});
  }
  return MadeBy<std::vector<uint8_t>>(
      [&plain](uint8_t* out, size_t room, size_t* size, Refusal* refusal) {
        return ortholan_extensions_write(plain.data(), plain.size(), out, room, size, refusal);
      });
}

// The attribute extensionRequest of a certificate request around such a list in DER.
inline Result<std::vector<uint8_t>> WriteExtensionRequest(Octets extensions) {
  std::vector<uint8_t> der;
  Refusal refusal;
  const ortholan_reason reason = WithRoom(&der, [&](uint8_t* out, size_t room, size_t* size) {
    return ortholan_extension_request_write(extensions, out, room, size, &refusal);
  });
  if (reason != ORTHOLAN_REASON_NONE) return refusal;
  return der;
}

// A certificate, a request or a CRL over borrowed octets.
class Certificate {
 public:
  // One that was read before.
  explicit Certificate(const ortholan_certificate_view& view) : view_(view) {}
  // Reads what is the whole of `der`, whichever of the three it is.
  static Result<Certificate> Read(Octets der, Reading reading = Reading::kDer) {
    return detail::ReadValue<Certificate, ortholan_certificate_view>(
        der, reading, ortholan_certificate_view_read);
  }

  CertificateKind kind() const { return static_cast<CertificateKind>(view_.kind); }
  // Whole Names; empty where the kind has none.
  Octets subject() const { return view_.subject; }
  Octets issuer() const { return view_.issuer; }
  // The same read; the name without RDNs where the kind has none.
  Result<NameView> Subject(Reading reading = Reading::kDer) const {
    return subject().empty() ? NameView() : NameView::Read(subject(), reading);
  }
  Result<NameView> Issuer(Reading reading = Reading::kDer) const {
    return issuer().empty() ? NameView() : NameView::Read(issuer(), reading);
  }
  // Content of the INTEGER.
  Octets serial() const { return view_.serial; }
  // "2026-11-21T22:05:00Z"; refused where the time is malformed or not there.
  Result<std::string> NotBefore() const { return TimeText(view_.not_before); }
  Result<std::string> NotAfter() const { return TimeText(view_.not_after); }

  // The one extension of a type, by the content octets of its identifier. Refused with NOT_FOUND
  // where there is none, with DUPLICATE_EXTENSION where there are several.
  Result<Extension> Find(Octets oid) const {
    ortholan_extension_view found;
    Refusal refusal;
    if (ortholan_certificate_view_extension(&view_, oid, &found, &refusal) != 0) return refusal;
    return Extension{found.oid, found.value, found.critical != 0};
  }
  std::vector<Extension> Extensions() const { return detail::ExtensionsOf(view_); }
  // The subject alternative names; an empty list where there are none.
  Result<GeneralNames> AlternativeNames(Reading reading = Reading::kDer) const {
    static constexpr uint8_t kType[] = {0x55, 0x1D, 0x11};
    const Result<Extension> extension = Find({kType, sizeof kType});
    if (extension) return GeneralNames::Read(extension->value, reading);
    if (extension.refusal().reason == ORTHOLAN_REASON_NOT_FOUND) return GeneralNames();
    return extension.refusal();
  }

 private:
  static Result<std::string> TimeText(Octets time) {
    return MadeBy<std::string>([time](char* out, size_t room, size_t* size) {
      return ortholan_time_to_text(time, out, room, size);
    });
  }

  ortholan_certificate_view view_{};
};

struct PemBlock {
  std::string_view label;  // a view into the text
  std::vector<uint8_t> octets;
};

// All blocks of PEM text, whatever stands between them.
inline Result<std::vector<PemBlock>> ReadPem(std::string_view text) {
  std::vector<PemBlock> blocks;
  ortholan_pem_block block;
  Refusal refusal;
  for (size_t offset = 0; ortholan_pem_next(ToText(text), &offset, &block, &refusal) == 0;) {
    PemBlock next{{block.label.data, block.label.size}, {}};
    WithRoom(&next.octets, [&block](uint8_t* out, size_t room, size_t* size) {
      return ortholan_pem_octets(&block, out, room, size);
    });
    blocks.push_back(std::move(next));
  }
  if (refusal.reason != ORTHOLAN_REASON_NOT_FOUND) return refusal;
  return blocks;
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_CERTIFICATES_HPP_
