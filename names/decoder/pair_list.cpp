// A name as pairs of type and values.
#include <ortholan/name_decoder.h>

#include "foundation/status_code.h"
#include "names/decoder/attribute_elements.h"
#include "names/decoder/type_name.h"
#include "names/decoder/value_text.h"

namespace Ortholan {
namespace {

using Pair = std::pair<std::wstring, std::list<std::wstring>>;

bool DecodeElem(ByteView rdn, DWORD style, Pair* pair) {
  Status status = Status::kOk;
  AttributeElements attribute;
  if (!SplitRdn(rdn, &attribute, &status)) {
    return status != Status::kOk ? FailWith(status) : false;
  }
  for (const Element& child : attribute.child) {
    status = StandsAlone(child);
    if (status != Status::kOk) return FailWith(status);
    if (!IsType(child)) {
      if (!DecodeAttrData(child, &pair->second)) return false;
      continue;
    }
    TypeText type;
    if (!DecodeAttrOid(child, &type)) return false;
    AppendType(type, style, &pair->first);
  }
  return true;
}

}  // namespace

bool X500NameDecoder::Decode(const IdentObj& name,
                             std::list<std::pair<std::wstring, std::list<std::wstring>>>& pairs,
                             DWORD style) {
  const ByteView bytes(name);
  if (bytes.empty()) return false;
  pairs.clear();
  nameStyle_ = style;
  bool decoded = true;
  ElementReader reader(bytes);
  for (Element rdn; reader.Next(&rdn);) {
    if (!decoded) continue;
    pairs.emplace_back();
    decoded = DecodeElem(rdn.bytes, style, &pairs.back());
    if (!decoded) pairs.pop_back();
  }
  if (!reader.fault()) return decoded;
  // A fault of the sequence itself counts before everything else and leaves no pairs.
  pairs.clear();
  return FailWith(reader.fault().status);
}

}  // namespace Ortholan
