#include "strict/matching/preparation_tables.h"

namespace Ortholan::strict {

#include "strict/matching/preparation_tables.inc"

}  // namespace Ortholan::strict
