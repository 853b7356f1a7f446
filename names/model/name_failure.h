// What an operation of X509Name without a type of its own leaves in the last error before it
// throws: 1358, whatever went wrong. The Try... operations keep the code that tells the cause
// instead.
#ifndef ORTHOLAN_NAMES_MODEL_NAME_FAILURE_H_
#define ORTHOLAN_NAMES_MODEL_NAME_FAILURE_H_

#include <ortholan/platform.h>

namespace Ortholan {

constexpr DWORD kNameFailure = ERROR_INTERNAL_DB_CORRUPTION;

}  // namespace Ortholan

#endif  // ORTHOLAN_NAMES_MODEL_NAME_FAILURE_H_
