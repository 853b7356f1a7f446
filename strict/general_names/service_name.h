// Names of services (RFC 4985 2): "_imaps.example.org", a service and the host that offers it.
#ifndef ORTHOLAN_STRICT_GENERAL_NAMES_SERVICE_NAME_H_
#define ORTHOLAN_STRICT_GENERAL_NAMES_SERVICE_NAME_H_

#include <string_view>

#include "strict/der/refusal.h"

namespace Ortholan::strict {

// Takes a service name apart; `*service` has its underscore. False where it is none.
bool SplitService(std::string_view text, std::string_view* service, std::string_view* host,
                  Refusal* refusal);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_GENERAL_NAMES_SERVICE_NAME_H_
