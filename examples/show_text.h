// A certificate as lines for a person's eyes.
#ifndef ORTHOLAN_EXAMPLES_SHOW_TEXT_H_
#define ORTHOLAN_EXAMPLES_SHOW_TEXT_H_

#include <cstddef>
#include <string>

#include "examples/certificate_reading.h"

namespace Example {

// `number` is the certificate's in its file, from 1.
std::string CertificateText(std::size_t number, const CertificateReading& certificate);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_SHOW_TEXT_H_
