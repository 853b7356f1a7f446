// Structures of any shape to a name: attributes are planned first and written once by rdn_writer.h.
//
//   NameAssembler assembler(options);
//   if (!assembler.EncodeElem("2.5.4.3", Characters("Alpha"))) return false;
//   assembler.EndRdn();
//   return assembler.Write(&der);
#ifndef ORTHOLAN_NAMES_ENCODER_NAME_ASSEMBLER_H_
#define ORTHOLAN_NAMES_ENCODER_NAME_ASSEMBLER_H_

#include <ortholan/ident_obj.h>
#include <ortholan/platform.h>

#include <cstdint>
#include <string_view>

#include "bytes/small_buffer.h"
#include "names/attribute_table.h"
#include "names/encoder/value_encoder.h"

namespace Ortholan {

// Attributes are added in order; values must stay where they are until
// Write returns.
class NameAssembler {
 public:
  explicit NameAssembler(DWORD options) : options_(options) {}

  // Room for so many RDNs of one attribute each; more are welcome.
  void Reserve(size_t rdns) { plans_.Reserve(rdns); }
  // Adds one attribute with any identifier, in dotted text, to the current RDN. False, with the
  // last error set where the type is no identifier, for what cannot be encoded. `rule` is that of a
  // type that the attribute table does not have.
  bool EncodeElem(std::string_view type, const Characters& value,
                  ValueRule rule = ValueRule::kFreeText);
  // Ends the current RDN, which may be empty.
  void EndRdn();

  // Writes the name. `der` is unchanged on failure: false, with last error 8 where memory ran out
  // or the name passes 4 GiB, else the platform's.
  bool Write(IdentObj* der);

 private:
  // An attribute, or with `oid_size` 0 the end of an RDN that has none.
  struct Plan {
    const AttributeRow* row;  // null: the identifier is in `oids_`
    size_t oid_offset;
    ValuePlan value;
    uint64_t content;   // octets of identifier and value
    uint16_t oid_size;  // octets of the whole identifier element
    bool ends_rdn;
  };

  uint64_t RdnContent(const Plan* first, const Plan** next) const;
  bool WriteRdns(BYTE* out);
  BYTE* WriteAttribute(const Plan& plan, BYTE* out);

  DWORD options_;
  SmallBuffer<Plan, 16> plans_;
  SmallBuffer<BYTE, 64> oids_;
};

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_ENCODER_NAME_ASSEMBLER_H_
