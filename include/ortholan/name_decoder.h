// The DER encoding of an X.501 Name to text and structures.
//
//   Ortholan::X500NameDecoder decoder;
//   std::wstring text;
//   if (!decoder.Decode(der, text, Ortholan::kStyleKeys)) return GetLastError();   //
//   "C=RU,O=Org,CN=Alpha"
//
// Every form takes names whose RDNs hold one attribute each; others are refused. Nothing outside
// the blob is read.
#ifndef ORTHOLAN_NAME_DECODER_H_
#define ORTHOLAN_NAME_DECODER_H_

#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/name_options.h>
#include <ortholan/platform.h>

#include <list>
#include <string>
#include <utility>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// Owns a CERT_NAME_INFO tree: every array and string in it was allocated with array new and is
// released with the wrapper.
class ORTHOLAN_EXPORT CertNameInfoWrapper {
 public:
  CertNameInfoWrapper() noexcept;
  virtual ~CertNameInfoWrapper();
  // Releases the tree. Where the count is 0 an array is left alone.
  void Clean();
  // The tree, which stays the wrapper's.
  operator CERT_NAME_INFO*() noexcept;

 private:
  CertNameInfoWrapper(const CertNameInfoWrapper&) = delete;
  CertNameInfoWrapper& operator=(const CertNameInfoWrapper&) = delete;

  CERT_NAME_INFO info_;
};

// Reads names. Holds the name style and the option bits between calls; one decoder serves one call
// at a time.
//
// Operations return false on refusal. The last-error code is 0x80093103 or 0x8009310B for bytes
// that are no ASN.1 of the shape wanted, the platform's for a value that it refuses, and unchanged
// for an empty blob and for an RDN of several attributes.
class ORTHOLAN_EXPORT X500NameDecoder {
 public:
  // Characters that put a value in quotes: # ; , + " \ = < > LF CR.
  static const std::wstring AuxSymbols;

  X500NameDecoder() noexcept;
  X500NameDecoder(const X500NameDecoder&) noexcept;
  X500NameDecoder& operator=(const X500NameDecoder&) noexcept;
  virtual ~X500NameDecoder();

  // Only the high 16 bits are kept: kSeparateCrLf and kSeparateSemicolon of name_options.h.
  void SetDecoderOptions(DWORD options);
  // What was kept of them.
  DWORD GetDecoderOptions() const;

  // Renders `name`. The low 16 bits of `options` are the name style from now on:
  // kStyleValues, kStyleOids or kStyleKeys. The RDNs before the one that fails stay in `text`.
  bool Decode(const IdentObj& name, std::wstring& text, DWORD options);

  // Fills the tree: one attribute an RDN, its value as UTF-16LE (CERT_RDN_UNICODE_STRING) with
  // four zero bytes behind the text that `cbData` counts, or, where it cannot be decoded, as its
  // encoding (CERT_RDN_ENCODED_BLOB).
  bool Decode(const IdentObj& name, CertNameInfoWrapper& info);

  // Fills pairs of type and values, a SEQUENCE value giving one text for each child that has any.
  // `style` is the name style from now on: 3 short keys, any other dotted identifiers.
  bool Decode(const IdentObj& name,
              std::list<std::pair<std::wstring, std::list<std::wstring>>>& pairs, DWORD style);

  // Two upper-case hexadecimal digits.
  static std::wstring ToHex(unsigned char byte);
  // Hexadecimal octets separated by blanks; two double quotes for the empty blob. Always true.
  static bool BlobToString(const IdentObj& blob, std::wstring& text);

 private:
  DWORD nameStyle_;
  DWORD decoderOptions_;
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_NAME_DECODER_H_
