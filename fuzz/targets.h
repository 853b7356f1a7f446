// The fuzz targets: each takes any bytes and returns, or breaks a law.
#ifndef ORTHOLAN_FUZZ_TARGETS_H_
#define ORTHOLAN_FUZZ_TARGETS_H_

#include <cstddef>
#include <cstdint>

namespace Ortholan::fuzzing {

void FuzzScanner(const uint8_t* data, size_t size);
void FuzzNameDecode(const uint8_t* data, size_t size);
void FuzzNameEncode(const uint8_t* data, size_t size);
void FuzzStructuredEncode(const uint8_t* data, size_t size);
void FuzzGeneralName(const uint8_t* data, size_t size);
void FuzzExtension(const uint8_t* data, size_t size);
void FuzzConversion(const uint8_t* data, size_t size);
void FuzzMatching(const uint8_t* data, size_t size);
void FuzzFormat(const uint8_t* data, size_t size);
void FuzzCInterface(const uint8_t* data, size_t size);
void FuzzRfc4514(const uint8_t* data, size_t size);
void FuzzNameConstraints(const uint8_t* data, size_t size);
void FuzzIdentity(const uint8_t* data, size_t size);
void FuzzExtensionValue(const uint8_t* data, size_t size);

}  // namespace Ortholan::fuzzing

#endif  // ORTHOLAN_FUZZ_TARGETS_H_
