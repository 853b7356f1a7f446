// One X.500 distinguished name, held as its DER encoding and nothing else.
//
//   Ortholan::X509Name name;
//   if (!name.TrySetBy("CN=Alpha, O=Org, C=RU", 0, true)) return GetLastError();
//   std::wstring text;
//   name.GetX500String(text, Ortholan::kStyleKeys);  // "C=RU,O=Org,CN=Alpha"
//
// Two families of operations do the same work and differ in how they refuse. The plain ones set
// the last error to 1358 and throw an object that no type catches: only `catch (...)` sees it.
// Those called Try... return false, keep the last-error code that tells the cause, leave the object
// and the output unchanged, and throw nothing but for memory: take these for text and bytes that
// strangers wrote.
//
// 8-bit text is in the calling thread's code page (UTF-8 where there is none) and ends at its first
// NUL, also where the name's value goes on behind one; so does a single value, wide or not. Only
// comparison and the wide text of the whole name are fit for decisions.
#ifndef ORTHOLAN_X509_NAME_H_
#define ORTHOLAN_X509_NAME_H_

#include <ortholan/export.h>
#include <ortholan/ident_obj.h>
#include <ortholan/name_options.h>
#include <ortholan/platform.h>
#include <ortholan/rdn.h>
#include <ortholan/zep_string.h>

#include <list>
#include <string>
#include <vector>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

class CertNameInfoWrapper;

// One name, a plain value. The empty object (no bytes) holds no name, which is not the name without
// RDNs (30 00). Bytes are not looked at when they are copied in, only when they are read.
//
// Encoder options are those of X500NameEncoder, decoder options those of X500NameDecoder: the low
// 16 bits are the name style (1 values, 3 keys, other identifiers), the high ones the separator.
class ORTHOLAN_EXPORT X509Name : public IdentObj {
 public:
  X509Name() noexcept;
  X509Name(const X509Name& other);
  X509Name(X509Name&& other) noexcept;
  // The bytes as they are.
  X509Name(const IdentObj& der);
  X509Name(IdentObj&& der) noexcept;
  // As SetBy(..., true).
  X509Name(const CERT_NAME_INFO& info);
  X509Name(const std::list<std::list<RDNAttr>>& rdns);
  // As SetBy(list, true, true).
  X509Name(const std::list<SimpleRDN>& list);
  // As SetBy(text, options, sort).
  X509Name(const char* text, unsigned long options, bool sort);
  ~X509Name() override;

  X509Name& operator=(const X509Name& other);
  X509Name& operator=(X509Name&& other) noexcept;
  // The bytes as they are.
  X509Name& operator=(const IdentObj& der);
  X509Name& operator=(IdentObj&& der) noexcept;
  // As SetBy(..., true).
  X509Name& operator=(const CERT_NAME_INFO& info);
  X509Name& operator=(const std::list<std::list<RDNAttr>>& rdns);
  // As SetBy(list, true, true).
  X509Name& operator=(const std::list<SimpleRDN>& list);

  // Encode another form into this name. With `flag` free text is written as UTF8String always.
  // From a text: where `options` has kEncodeUtf8, all of it but kEncodeAlways is dropped; a text
  // that is refused leaves the name empty. Refused: null, and 0x3FFFFFFF characters or more.
  void SetBy(const CERT_NAME_INFO& info, bool flag);
  void SetBy(const std::list<std::list<RDNAttr>>& rdns, bool flag);
  void SetBy(const std::list<SimpleRDN>& list, bool flag, bool sort);
  void SetBy(const char* text, unsigned long options, bool sort);
  bool TrySetBy(const CERT_NAME_INFO& info, bool flag);
  bool TrySetBy(const std::list<std::list<RDNAttr>>& rdns, bool flag);
  bool TrySetBy(const std::list<SimpleRDN>& list, bool flag, bool sort);
  bool TrySetBy(const char* text, unsigned long options, bool sort);

  // The name as text; "" for the empty object. Wide text of 0x3FFFFFFF units or more has no 8-bit
  // form: "". A plain reader that fails leaves "" or, if wide, the RDNs before the one refused.
  void GetX500String(std::wstring& out, unsigned long options) const;
  void GetX500String(std::string& out, unsigned long options) const;
  void GetX500String(CZEPString& out, unsigned long options) const;
  bool TryGetX500String(std::wstring& out, unsigned long options) const;
  bool TryGetX500String(std::string& out, unsigned long options) const;
  bool TryGetX500String(CZEPString& out, unsigned long options) const;

  // One inner list an RDN, in the order of the encoding; values as X500NameDecoder fills them in.
  void GetNameInfo(std::list<std::list<RDNAttr>>& out) const;
  bool TryGetNameInfo(std::list<std::list<RDNAttr>>& out) const;

  // The value of the first RDN whose type is the dotted identifier `oid`; false, `out` "", where
  // there is none. The empty object is refused like any bytes that are no name.
  bool GetSimpleRDN(const char* oid, CZEPString& out) const;
  bool GetSimpleRDN(const char* oid, std::wstring& out) const;

  // Replaces that value and encodes the whole name anew: the other values may change their string
  // type, an IA5String of a DC into a UTF8String. ortholan_name_set keeps them octet for octet.
  // False where there is no such RDN, and with last error 1358 where the bytes are no name. A value
  // that cannot be encoded fails as SetBy does. The name is unchanged then.
  bool SetSimpleRDN(const char* oid, const char* value);
  bool SetSimpleRDN(const SimpleRDN& rdn);

  // One pair of dotted identifier and value text an RDN, in the order of the encoding.
  void GetSimpleRDNList(std::list<SimpleRDN>& out, bool flag) const;
  bool TryGetSimpleRDNList(std::list<SimpleRDN>& out) const;
  // The same pairs as a vector.
  void GetSimpleRDNVector(std::vector<SimpleRDN>& out) const;

  // Brings the first entry of `target` with `key` in line with that of `source`: its value is
  // replaced, or it is appended or erased. Keys match without regard to ASCII case.
  static void MergeRDNAtributes(std::list<SimpleRDN>& target, std::list<SimpleRDN>& source,
                                const char* key);

  // Whether both names hold the same attributes: types and decoded text, in any order, each as
  // often. The string type of a value does not matter, letter case does. Two empty objects are
  // equal. Costs O(n log n) for n RDNs.
  bool operator==(const X509Name& other) const;
  // Not ==.
  bool operator!=(const X509Name& other) const;

  // Text between double quotes, its double quotes doubled.
  static void QuoteString(const char* src, CZEPString& out);
  static void QuoteString(CZEPString& s);
  // The way back, where a lone double quote is dropped wherever it stands. What was quoted comes
  // back, but for text of double quotes alone and the empty text, which come back with one quote
  // more.
  static void UnquoteString(const char* src, CZEPString& out);
  static void UnquoteString(CZEPString& s);
  // key, "=", quoted value.
  static void FormatRDNAttr(const char* key, const char* value, CZEPString& out);

  // One attribute from a keyword or dotted identifier and text, encoded as in a name text. Last
  // error 1358 where that is refused, 1627 where it holds no attribute; `out` is unchanged then.
  static void MakeRDNAttr(const char* key, const char* value, RDNAttr& out);

  // The value as the platform renders it; `out` is unchanged where it cannot.
  static void GetRDNAttrValueString(const RDNAttr& attr, CZEPString& out);
  static void GetRDNAttrValueString(const CERT_RDN_ATTR& attr, CZEPString& out);
  static void GetRDNAttrValueString(const CERT_RDN_ATTR& attr, std::wstring& out);
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_X509_NAME_H_
