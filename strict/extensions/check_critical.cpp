// Where RFC 5280 has its extensions, and which of them are critical.
#include "strict/extensions/check_case.h"
#include "strict/extensions/check_looks.h"

namespace Ortholan::strict {
namespace {

// What RFC 5280 says of an extension's critical flag.
enum class Critical : uint8_t { kEither, kAlways, kNever };

// Its extensions, by the kinds of documents that have them.
struct Profiled {
  OidConstant oid;
  const char* section;
  uint8_t kinds;
  Critical critical;
};
constexpr Profiled kProfile[] = {
    {"2.5.29.35", "4.2.1.1", kForSubjects, Critical::kNever},
    {"2.5.29.14", "4.2.1.2", kForSubjects, Critical::kNever},
    {"2.5.29.15", "4.2.1.3", kForSubjects, Critical::kEither},
    {"2.5.29.32", "4.2.1.4", kForSubjects, Critical::kEither},
    {"2.5.29.33", "4.2.1.5", kForSubjects, Critical::kEither},
    {"2.5.29.17", "4.2.1.6", kForSubjects, Critical::kEither},
    {"2.5.29.18", "4.2.1.7", kForSubjects, Critical::kEither},
    {"2.5.29.9", "4.2.1.8", kForSubjects, Critical::kNever},
    {"2.5.29.19", "4.2.1.9", kForSubjects, Critical::kEither},
    {"2.5.29.30", "4.2.1.10", kForSubjects, Critical::kAlways},
    {"2.5.29.36", "4.2.1.11", kForSubjects, Critical::kAlways},
    {"2.5.29.37", "4.2.1.12", kForSubjects, Critical::kEither},
    {"2.5.29.31", "4.2.1.13", kForSubjects, Critical::kEither},
    {"2.5.29.54", "4.2.1.14", kForSubjects, Critical::kAlways},
    {"2.5.29.46", "4.2.1.15", kForSubjects, Critical::kNever},
    {"1.3.6.1.5.5.7.1.1", "4.2.2.1", kForSubjects, Critical::kNever},
    {"1.3.6.1.5.5.7.1.11", "4.2.2.2", kForSubjects, Critical::kNever},
    {"1.3.6.1.5.5.7.1.7", "RFC 3779 2.2.3", kForSubjects, Critical::kEither},
    {"1.3.6.1.5.5.7.1.8", "RFC 3779 3.2.3", kForSubjects, Critical::kEither},
    {"2.5.29.35", "5.2.1", kLists, Critical::kNever},
    {"2.5.29.18", "5.2.2", kLists, Critical::kEither},
    {"2.5.29.20", "5.2.3", kLists, Critical::kNever},
    {"2.5.29.27", "5.2.4", kLists, Critical::kAlways},
    {"2.5.29.28", "5.2.5", kLists, Critical::kAlways},
    {"2.5.29.46", "5.2.6", kLists, Critical::kNever},
    {"1.3.6.1.5.5.7.1.1", "5.2.7", kLists, Critical::kNever},
    {"2.5.29.21", "5.3.1", kEntries, Critical::kNever},
    {"2.5.29.24", "5.3.2", kEntries, Critical::kNever},
    {"2.5.29.29", "5.3.3", kEntries, Critical::kAlways},
};

const Profiled* FindProfiled(ByteView oid, uint8_t kind) {
  for (const Profiled& row : kProfile) {
    if ((row.kinds & kind) != 0 && SameBytes(row.oid.view(), oid)) return &row;
  }
  return nullptr;
}

Critical CriticalOf(const CheckCase& at) {
  const Profiled* const row = FindProfiled(at.extension.oid, at.kind);
  return row != nullptr ? row->critical : Critical::kEither;
}

}  // namespace

const char* SectionOf(ByteView oid, uint8_t kind) {
  const Profiled* const row = FindProfiled(oid, kind);
  if (row != nullptr) return row->section;
  return kind == kEntries ? "5.3" : kind == kLists ? "5.2" : "4.2";
}

namespace looks {

void IsCritical(const CheckCase& at) {
  if (at.extension.critical && CriticalOf(at) == Critical::kNever) at.Fault(at.extension.bytes);
}

void IsNotCritical(const CheckCase& at) {
  if (!at.extension.critical && CriticalOf(at) == Critical::kAlways) at.Fault(at.extension.bytes);
}

}  // namespace looks
}  // namespace Ortholan::strict
