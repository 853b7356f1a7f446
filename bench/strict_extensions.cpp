// Extensions taken apart into views.
#include "bench/extensions.h"

namespace Bench {
namespace {

constexpr char kSubject[] = "Ortholan";

void AddCases() { AddExtensions(kSubject, ReadExtensions); }

const Registration registration(kSubject, "", AddCases);

}  // namespace
}  // namespace Bench
