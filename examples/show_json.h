// A certificate as JSON; the manual page tells its shape.
#ifndef ORTHOLAN_EXAMPLES_SHOW_JSON_H_
#define ORTHOLAN_EXAMPLES_SHOW_JSON_H_

#include <cstddef>
#include <string>

#include "examples/certificate_reading.h"
#include "examples/failure.h"

namespace Example {

std::string CertificateJson(const std::string& path, std::size_t number,
                            const CertificateReading& certificate);

// What takes the place of a certificate that cannot be read, and of a file, with number 0.
std::string FaultJson(const std::string& path, std::size_t number, const Failure& fault);

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_SHOW_JSON_H_
