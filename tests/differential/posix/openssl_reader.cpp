#include "tests/differential/posix/openssl_reader.h"

#include <openssl/err.h>
#include <openssl/x509.h>

#include "tests/support/hex.h"

namespace Ortholan::testing::openssl {
namespace {

template <class Type>
Read<Type> ReadBy(Type* (*d2i)(Type**, const unsigned char**, long), const std::string& octets) {
  // A block of its own size, so that a sanitizer sees what is read beyond it.
  const std::vector<unsigned char> bytes(octets.begin(), octets.end());
  const unsigned char* position = bytes.data();
  ERR_clear_error();
  Read<Type> read;
  read.value.reset(d2i(nullptr, &position, static_cast<long>(bytes.size())));
  read.size = static_cast<size_t>(position - bytes.data());
  read.reason = ERR_GET_REASON(ERR_peek_error());
  ERR_clear_error();
  return read;
}

struct Header {
  bool read;
  bool indefinite;
  size_t size;
  size_t length;
};

Header ReadHeader(const std::string& octets) {
  const unsigned char* const start = reinterpret_cast<const unsigned char*>(octets.data());
  const unsigned char* position = start;
  long length = 0;
  int tag = 0;
  int cls = 0;
  ERR_clear_error();
  const int form =
      ASN1_get_object(&position, &length, &tag, &cls, static_cast<long>(octets.size()));
  ERR_clear_error();
  return {(form & 0x80) == 0, (form & 1) != 0, static_cast<size_t>(position - start),
          static_cast<size_t>(length)};
}

void AppendUtf16(unsigned long point, std::wstring* text) {
  if (point >= 0x10000) {
    text->push_back(static_cast<wchar_t>(0xD7C0 + (point >> 10)));
    point = 0xDC00 + (point & 0x3FF);
  }
  text->push_back(static_cast<wchar_t>(point));
}

bool IsEightBitString(int tag) {
  return tag == V_ASN1_PRINTABLESTRING || tag == V_ASN1_T61STRING || tag == V_ASN1_IA5STRING ||
         tag == V_ASN1_VISIBLESTRING;
}

ValueText TextOfString(const ASN1_STRING* value) {
  std::wstring text;
  if (IsEightBitString(ASN1_STRING_type(value))) {
    const bool read = FromUtf8(Content(value), &text);
    return {read ? ValueText::kText : ValueText::kOctets, {text}};
  }
  unsigned char* utf8 = nullptr;
  const int size = ASN1_STRING_to_UTF8(&utf8, value);
  if (size < 0) return {ValueText::kOctets, {}};
  FromUtf8(std::string(reinterpret_cast<const char*>(utf8), static_cast<size_t>(size)), &text);
  OPENSSL_free(utf8);
  return {ValueText::kText, {text}};
}

// Adds the element at the front of `octets` and what is in it; its size, 0 where it has no end.
size_t AddParts(const std::string& octets, int place, int depth, std::vector<Part>* parts) {
  // With an octet behind it, which the header of an empty element need not have.
  const Header header = ReadHeader(octets + '\0');
  if (!header.read || header.size > octets.size()) return 0;
  const size_t self = parts->size();
  const std::string rest = octets.substr(header.size);
  size_t end = header.indefinite ? rest.size() : header.length;
  parts->push_back({static_cast<Part::Place>(place), depth, static_cast<unsigned char>(octets[0]),
                    header.size, 0, rest.substr(0, end)});
  if (place == Part::kTypeOrValue && !header.indefinite) return header.size + end;
  const int below = place == Part::kTypeOrValue ? place : place + 1;
  size_t position = 0;
  while (position < end) {
    const std::string left = rest.substr(position, end - position);
    if (header.indefinite && left.compare(0, 2, std::string(2, '\0')) == 0) {
      return header.size + position + 2;
    }
    const size_t size = AddParts(left, below, depth + 1, parts);
    if (size == 0) return 0;
    ++(*parts)[self].children;
    position += size;
  }
  return header.indefinite ? 0 : header.size + end;
}

bool IsShownAsText(int tag) {
  return IsEightBitString(tag) || tag == V_ASN1_UTF8STRING || tag == V_ASN1_BMPSTRING ||
         tag == V_ASN1_SEQUENCE;
}

// What OpenSSL does not read is shown by its octets, as what is no string.
ValueText TextOfElement(const std::string& encoding) {
  const Read<ASN1_TYPE> element = ReadElement(encoding);
  const int tag =
      element.value != nullptr ? ASN1_TYPE_get(element.value.get()) : encoding[0] & 0x1F;
  if (!IsShownAsText(tag)) {
    const std::string hex = Hex(encoding);
    return {ValueText::kText, {std::wstring(hex.begin(), hex.end())}};
  }
  if (element.value == nullptr) return {ValueText::kOther, {}};
  return TextOf(element.value->value.asn1_string);
}

ValueText TextOfSequence(const std::string& encoding) {
  const Header header = ReadHeader(encoding);
  const size_t terminator = header.indefinite ? 2 : 0;
  std::string rest = encoding.substr(header.size, encoding.size() - header.size - terminator);
  ValueText text;
  while (!rest.empty()) {
    std::vector<Part> parts;
    const size_t size = AddParts(rest, Part::kTypeOrValue, 0, &parts);
    if (size == 0) return {ValueText::kOther, {}};
    ValueText line = TextOfElement(rest.substr(0, size));
    if (line.kind != ValueText::kText) return line;
    std::wstring joined;
    for (const std::wstring& part : line.lines) joined += (joined.empty() ? L"" : L"\n") + part;
    if (!joined.empty()) text.lines.push_back(joined);
    rest.erase(0, size);
  }
  return text;
}

}  // namespace

std::vector<Part> Parts(const std::string& octets, Part::Place outermost) {
  std::vector<Part> parts;
  AddParts(octets, outermost, 0, &parts);
  return parts;
}

Read<ASN1_TYPE> ReadElement(const std::string& octets) { return ReadBy(d2i_ASN1_TYPE, octets); }
Read<GENERAL_NAME> ReadGeneralName(const std::string& octets) {
  return ReadBy(d2i_GENERAL_NAME, octets);
}
Read<X509_EXTENSION> ReadExtension(const std::string& octets) {
  return ReadBy(d2i_X509_EXTENSION, octets);
}
Read<::X509_NAME> ReadName(const std::string& octets) { return ReadBy(d2i_X509_NAME, octets); }

std::string Dotted(const ASN1_OBJECT* oid) {
  const int size = OBJ_obj2txt(nullptr, 0, oid, 1);
  if (size <= 0) return "";
  std::string text(static_cast<size_t>(size) + 1, '\0');
  OBJ_obj2txt(text.data(), size + 1, oid, 1);
  text.pop_back();
  return text;
}

std::string Content(const ASN1_OBJECT* oid) {
  return std::string(reinterpret_cast<const char*>(OBJ_get0_data(oid)), OBJ_length(oid));
}

std::string Content(const ASN1_STRING* string) {
  return std::string(reinterpret_cast<const char*>(ASN1_STRING_get0_data(string)),
                     static_cast<size_t>(ASN1_STRING_length(string)));
}

bool IsEncodingOf(const std::string& element, const ASN1_STRING* string) {
  const Read<ASN1_TYPE> read = ReadElement(element);
  return read.value != nullptr && read.size == element.size() &&
         ASN1_TYPE_get(read.value.get()) == ASN1_STRING_type(string) &&
         ASN1_STRING_cmp(read.value->value.asn1_string, string) == 0;
}

bool FromUtf8(const std::string& octets, std::wstring* text) {
  text->clear();
  const auto* position = reinterpret_cast<const unsigned char*>(octets.data());
  int left = static_cast<int>(octets.size());
  while (left > 0) {
    unsigned long point = 0;
    const int used = UTF8_getc(position, left, &point);
    if (used <= 0 || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000)) return false;
    AppendUtf16(point, text);
    position += used;
    left -= used;
  }
  return true;
}

ValueText TextOf(const ASN1_STRING* value) {
  const int type = ASN1_STRING_type(value);
  if (type == V_ASN1_SEQUENCE) return TextOfSequence(Content(value));
  return IsShownAsText(type) ? TextOfString(value) : ValueText{ValueText::kOther, {}};
}

std::vector<Attribute> Attributes(const ::X509_NAME* name) {
  std::vector<Attribute> attributes;
  for (int i = 0; i < X509_NAME_entry_count(name); ++i) {
    const X509_NAME_ENTRY* const entry = X509_NAME_get_entry(name, i);
    attributes.push_back({X509_NAME_ENTRY_set(entry), X509_NAME_ENTRY_get_object(entry),
                          X509_NAME_ENTRY_get_data(entry)});
  }
  return attributes;
}

}  // namespace Ortholan::testing::openssl
