// Single RDNs of a name put in, replaced and taken out; all others keep their octets.
#include <string>

#include "bytes/ascii.h"
#include "bytes/der_length.h"
#include "bytes/der_tag.h"
#include "capi/attribute_type.h"
#include "capi/call.h"
#include "capi/handles.h"
#include "capi/text.h"
#include "foundation/blob_view.h"
#include "foundation/code_page.h"
#include "foundation/oid_text.h"
#include "names/decoder/attribute_walk.h"
#include "names/encoder/name_assembler.h"
#include "names/encoder/rdn_writer.h"
#include "strict/names/attribute_types.h"

namespace Ortholan::capi {
namespace {

// The RDNs of a name around the one that is looked for.
struct Parts {
  ByteView before;
  ByteView found;  // empty where no RDN is of the type, all of them being before it then
  ByteView after;
};

// Without a type no RDN is looked for.
Outcome Divide(const X509Name& name, const AttributeType* type, Parts* parts) {
  ElementReader reader{ViewOf(name)};
  ByteView rdns;
  for (Element rdn; reader.Next(&rdn);) {
    if (rdns.data == nullptr) rdns.data = rdn.bytes.data;
    rdns.size = static_cast<size_t>(rdn.bytes.end() - rdns.data);
    DecodedAttribute attribute;
    if (type == nullptr || !parts->found.empty()) continue;
    if (!attribute.Read(rdn.bytes)) {
      return RefusedByLastError(ORTHOLAN_ERROR_DER, Status::kCorrupt);
    }
    if (type->Matches(attribute.type())) parts->found = rdn.bytes;
  }
  if (reader.fault()) return Refused(ORTHOLAN_ERROR_DER, reader.fault().status);
  parts->before = rdns;
  if (parts->found.empty()) return Done();
  parts->before.size = static_cast<size_t>(parts->found.data - rdns.data);
  parts->after = {parts->found.end(), static_cast<size_t>(rdns.end() - parts->found.end())};
  return Done();
}

Outcome Join(const Parts& parts, ByteView rdn, X509Name* name) {
  IdentObj der;
  const uint64_t content = static_cast<uint64_t>(parts.before.size) + rdn.size + parts.after.size;
  BYTE* out = nullptr;
  if (!AllocateName(content, &der, &out)) {
    return RefusedByLastError(ORTHOLAN_ERROR_MEMORY, Status::kNoMemory);
  }
  out = WriteBytes(out, parts.before);
  out = WriteBytes(out, rdn);
  WriteBytes(out, parts.after);
  *name = std::move(der);
  return Done();
}

// The string type that a standard prescribes for a type that name texts are not written with:
// IA5String for DC (RFC 4519 2.4), PrintableString for dnQualifier (X.520 6.2.7) and the like.
ValueRule PrescribedRule(std::string_view dotted) {
  SmallBuffer<BYTE, kMaxOidContent> oid;
  if (ParseOid(dotted, &oid) != Status::kOk) return ValueRule::kFreeText;
  const strict::AttributeType* const type = strict::FindType({oid.data(), oid.size()});
  if (type == nullptr) return ValueRule::kFreeText;
  if (type->syntax == strict::ValueSyntax::kIA5) return ValueRule::kIA5;
  return type->syntax == strict::ValueSyntax::kPrintable ? ValueRule::kPrintable
                                                         : ValueRule::kFreeText;
}

// A name of one RDN.
Outcome EncodeOne(const AttributeType& type, std::string_view value, uint32_t options,
                  IdentObj* der) {
  if (type.dotted().empty()) {
    return Refused(ORTHOLAN_ERROR_TYPE, Status::kNotEncodable, "the key is none that is written");
  }
  std::wstring wide;
  Characters characters(value);
  if (!IsAscii(value)) {
    const Outcome read = ReadUtf8(value, &wide);
    if (!read) return read;
    characters = Characters(std::wstring_view(wide));
  }
  NameAssembler assembler(options);
  if (assembler.EncodeElem(type.dotted(), characters, PrescribedRule(type.dotted()))) {
    assembler.EndRdn();
    if (assembler.Write(der)) return Done();
  }
  return RefusedByLastError(ORTHOLAN_ERROR_VALUE, Status::kNotEncodable);
}

Outcome Put(ortholan_name* name, const char* type_text, std::string_view value, uint32_t options,
            bool replace) {
  AttributeType type;
  IdentObj made;
  Parts parts;
  Outcome outcome = type.Read(type_text);
  if (outcome) outcome = EncodeOne(type, value, options, &made);
  if (outcome) outcome = Divide(name->name, replace ? &type : nullptr, &parts);
  if (!outcome) return outcome;
  ElementReader reader{ViewOf(made)};
  Element rdn;
  if (!reader.Next(&rdn)) return Refused(ORTHOLAN_ERROR_INTERNAL, reader.fault().status);
  return Join(parts, rdn.bytes, &name->name);
}

Outcome Remove(ortholan_name* name, const char* type_text) {
  AttributeType type;
  Parts parts;
  Outcome outcome = type.Read(type_text);
  if (outcome) outcome = Divide(name->name, &type, &parts);
  if (!outcome) return outcome;
  return parts.found.empty() ? NotFound() : Join(parts, {}, &name->name);
}

// The checks and the length that the two forms of each operation share.
Outcome PutTerminated(ortholan_name* name, const char* type, const char* value, uint32_t options,
                      bool replace) {
  if (name == nullptr || type == nullptr || value == nullptr) return NullArgument();
  return Put(name, type, value, options, replace);
}

Outcome PutSized(ortholan_name* name, const char* type, const char* value, size_t size,
                 uint32_t options, bool replace) {
  if (name == nullptr || type == nullptr || (value == nullptr && size != 0)) return NullArgument();
  return Put(name, type, {value, size}, options, replace);
}

}  // namespace
}  // namespace Ortholan::capi

using namespace Ortholan::capi;

ortholan_result ortholan_name_add(ortholan_name* name, const char* type, const char* value,
                                  uint32_t options) {
  return Call(__func__, [&] { return PutTerminated(name, type, value, options, false); });
}

ortholan_result ortholan_name_add_n(ortholan_name* name, const char* type, const char* value,
                                    size_t size, uint32_t options) {
  return Call(__func__, [&] { return PutSized(name, type, value, size, options, false); });
}

ortholan_result ortholan_name_set(ortholan_name* name, const char* type, const char* value,
                                  uint32_t options) {
  return Call(__func__, [&] { return PutTerminated(name, type, value, options, true); });
}

ortholan_result ortholan_name_set_n(ortholan_name* name, const char* type, const char* value,
                                    size_t size, uint32_t options) {
  return Call(__func__, [&] { return PutSized(name, type, value, size, options, true); });
}

ortholan_result ortholan_name_remove(ortholan_name* name, const char* type) {
  return Call(__func__, [&] {
    if (name == nullptr || type == nullptr) return NullArgument();
    return Remove(name, type);
  });
}
