// Whole names: made, compared, and turned into text and octets.
#include <ortholan/name_text_error.h>

#include <string>

#include "bytes/ascii.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "capi/call.h"
#include "capi/handles.h"
#include "capi/text.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/attribute_walk.h"
#include "names/decoder/name_renderer.h"
#include "names/encoder/text_encoder.h"

namespace Ortholan::capi {
namespace {

static_assert(ORTHOLAN_ENCODE_COMMA == kEncodeComma);
static_assert(ORTHOLAN_ENCODE_SEMICOLON == kEncodeSemicolon);
static_assert(ORTHOLAN_ENCODE_CRLF == kEncodeCrLf);
static_assert(ORTHOLAN_ENCODE_UTF8 == kEncodeUtf8);
static_assert(ORTHOLAN_ENCODE_ALWAYS == kEncodeAlways);
static_assert(ORTHOLAN_STYLE_VALUES == kStyleValues);
static_assert(ORTHOLAN_STYLE_OIDS == kStyleOids);
static_assert(ORTHOLAN_STYLE_KEYS == kStyleKeys);
static_assert(ORTHOLAN_SEPARATE_SEMICOLON == kSeparateSemicolon);
static_assert(ORTHOLAN_SEPARATE_CRLF == kSeparateCrLf);

constexpr BYTE kNoRdns[] = {kSequenceOctet, 0};

void GiveName(IdentObj&& der, ortholan_name** name) { *name = new ortholan_name{std::move(der)}; }

// A refused text with its reason; the last error, which the description does not keep, is the cause
// all the same.
Outcome RefusedText(std::string_view text, uint32_t options) {
  Outcome refused = RefusedByLastError(ORTHOLAN_ERROR_NAME_TEXT, Status::kNotEncodable);
  std::wstring wide;
  if (refused.result != ORTHOLAN_ERROR_NAME_TEXT || !ReadUtf8(text, &wide)) return refused;
  const NameTextError error = DescribeNameTextError(wide, options);
  std::string message;
  if (error.fault != NameTextFault::kNone &&
      Narrow(error.message, kCodePageUtf8, &message) == Conversion::kDone) {
    refused.detail = KeptDetail(message);
  }
  return refused;
}

Outcome FromText(std::string_view text, uint32_t options, bool sort, ortholan_name** name) {
  const AttributeRow* fresh = nullptr;
  IdentObj der;
  bool encoded = false;
  if (IsAscii(text)) {
    encoded = EncodeNameText(text, options, sort, &fresh, &der);
  } else {
    std::wstring wide;
    const Outcome read = ReadUtf8(text, &wide);
    if (!read) return read;
    encoded = EncodeNameText(wide, options, sort, &fresh, &der);
  }
  if (!encoded) return RefusedText(text, options);
  GiveName(std::move(der), name);
  return Done();
}

// Why an RDN could not be read: the last error, if it is no matter of the number of attributes.
Outcome Unreadable(ByteView rdn) {
  size_t attributes = 0;
  if (rdn[0] == kSetOctet && CountChildren(rdn, &attributes) == Status::kOk && attributes > 1) {
    return Refused(ORTHOLAN_ERROR_MULTI_VALUED, Status::kCorrupt);
  }
  return RefusedByLastError(ORTHOLAN_ERROR_DER, Status::kCorrupt);
}

// Whether the octets are one name and nothing else, and each of its attributes can be read.
Outcome CheckName(ByteView der) {
  if (der.empty() || der[0] != kSequenceOctet) {
    return Refused(ORTHOLAN_ERROR_DER, Status::kBadTag, "the octets start with no SEQUENCE");
  }
  ElementReader reader(der);
  for (Element rdn; reader.Next(&rdn);) {
    DecodedAttribute attribute;
    if (!attribute.Read(rdn.bytes)) return Unreadable(rdn.bytes);
  }
  if (reader.fault()) return Refused(ORTHOLAN_ERROR_DER, reader.fault().status);
  if (reader.position() == der.size) return Done();
  return Refused(ORTHOLAN_ERROR_DER, Status::kCorrupt, "more octets follow the name");
}

Outcome Render(const X509Name& name, uint32_t options, char** text, size_t* size) {
  NameRenderer renderer(options & kStyleMask, options);
  if (!renderer.Render(ViewOf(name))) {
    return RefusedByLastError(ORTHOLAN_ERROR_DER, Status::kCorrupt);
  }
  if (renderer.ascii().data() == nullptr) return GiveWideText(renderer.wide(), text, size);
  GiveText(renderer.ascii(), text, size);
  return Done();
}

}  // namespace
}  // namespace Ortholan::capi

using namespace Ortholan::capi;
using Ortholan::ByteView;

ortholan_result ortholan_name_from_text(const char* text, uint32_t options, int sort,
                                        ortholan_name** name) {
  return Call(__func__, [&] {
    if (!Clear(name) || text == nullptr) return NullArgument();
    return FromText(text, options, sort != 0, name);
  });
}

ortholan_result ortholan_name_from_text_n(const char* text, size_t size, uint32_t options, int sort,
                                          ortholan_name** name) {
  return Call(__func__, [&] {
    if (!Clear(name) || (text == nullptr && size != 0)) return NullArgument();
    return FromText({text, size}, options, sort != 0, name);
  });
}

ortholan_result ortholan_name_from_der(const uint8_t* der, size_t size, ortholan_name** name) {
  return Call(__func__, [&] {
    ByteView octets;
    if (!Clear(name)) return NullArgument();
    Outcome outcome = ReadOctets(der, size, &octets);
    if (outcome) outcome = CheckName(octets);
    if (outcome) GiveName(ToBlob(octets), name);
    return outcome;
  });
}

ortholan_result ortholan_name_new(ortholan_name** name) {
  return Call(__func__, [&] {
    if (!Clear(name)) return NullArgument();
    GiveName({kNoRdns, sizeof(kNoRdns)}, name);
    return Done();
  });
}

ortholan_result ortholan_name_copy(const ortholan_name* name, ortholan_name** copy) {
  return Call(__func__, [&] {
    if (!Clear(copy) || name == nullptr) return NullArgument();
    *copy = new ortholan_name(*name);
    return Done();
  });
}

void ortholan_name_free(ortholan_name* name) { delete name; }

ortholan_result ortholan_name_text(const ortholan_name* name, uint32_t options, char** text,
                                   size_t* size) {
  return Call(__func__, [&] {
    Clear(size);
    if (!Clear(text) || name == nullptr) return NullArgument();
    return Render(name->name, options, text, size);
  });
}

ortholan_result ortholan_name_der(const ortholan_name* name, uint8_t** der, size_t* size) {
  return Call(__func__, [&] {
    if (!Clear(der, size) || name == nullptr) return NullArgument();
    GiveOctets(ViewOf(name->name), der, size);
    return Done();
  });
}

ortholan_result ortholan_name_equal(const ortholan_name* a, const ortholan_name* b, int* equal) {
  return Call(__func__, [&] {
    if (!Clear(equal) || a == nullptr || b == nullptr) return NullArgument();
    *equal = a->name == b->name ? 1 : 0;
    return Done();
  });
}
