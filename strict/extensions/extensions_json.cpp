#include "strict/extensions/extensions_json.h"

#include "strict/certificates/certificate_view.h"
#include "strict/der/reader.h"
#include "strict/extensions/json_output.h"
#include "strict/extensions/known_extensions.h"
#include "strict/extensions/leaf_text.h"
#include "strict/extensions/oid_names.h"
#include "strict/extensions/value_json.h"

namespace Ortholan::strict {
namespace {

void PutRefusal(const Refusal& found, ByteView value, JsonOutput* json) {
  const ortholan_refusal refusal = found.From(value.data);
  json->Member("refusal");
  json->Begin('{');
  json->Member("reason");
  json->Number(refusal.reason);
  json->Member("offset");
  json->Number(static_cast<int64_t>(refusal.offset));
  json->StringMember("sentence", SentenceOf(refusal.reason));
  json->End('}');
}

// The value is made apart, because nothing of it counts where it is refused.
void PutValue(const Shape* shape, ByteView value, Leniency leniency, JsonOutput* json) {
  Refusal found;
  bool is_read = false;
  const std::string text = TextOf([&](Output* out) {
    JsonOutput inner(out);
    is_read = PutValueJson(shape, value, leniency, &inner, &found);
  });
  json->Member("value");
  if (is_read) return json->Literal(text);
  PutValueJson(nullptr, value, leniency, json, nullptr);
  PutRefusal(found, value, json);
}

void PutExtension(const ExtensionView& extension, Leniency leniency, JsonOutput* json) {
  const KnownExtension* const known = FindExtension(extension.oid);
  json->Begin('{');
  json->StringMember("oid", TextOf([&extension](Output* out) { PutDotted(extension.oid, out); }));
  if (known != nullptr) json->StringMember("name", known->name);
  json->Member("critical");
  json->Literal(extension.critical ? "true" : "false");
  PutValue(known != nullptr ? known->shape : nullptr, extension.value, leniency, json);
  json->End('}');
}

// An extension begins with its identifier, which nothing else begins with that is signed.
bool IsList(ByteView der) {
  Reader in(der, Leniency::kLenient, nullptr);
  ByteView list, first;
  if (!in.Read(kSequence, &list)) return false;
  Reader inside(list, Leniency::kLenient, nullptr);
  return inside.Read(kSequence, &first) && !first.empty() && first[0] == kOid;
}

}  // namespace

bool ReadExtensionsOf(ByteView der, Leniency leniency, ExtensionsView* extensions,
                      Refusal* refusal) {
  if (IsList(der)) return ExtensionsView::Read(der, leniency, extensions, refusal);
  CertificateView certificate;
  if (!CertificateView::Read(der, leniency, &certificate, refusal)) return false;
  *extensions = certificate.extensions();
  return true;
}

void PutExtensionsJson(const ExtensionsView& extensions, Leniency leniency, Output* out) {
  JsonOutput json(out);
  json.Begin('[');
  for (const ExtensionView& extension : extensions) PutExtension(extension, leniency, &json);
  json.End(']');
}

}  // namespace Ortholan::strict
