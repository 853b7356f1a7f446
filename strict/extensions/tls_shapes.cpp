#include "strict/extensions/tls_shapes.h"

#include <ortholan/strict/extension_values.h>

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {

// RFC 7633 4.1: numbers of TLS extensions (RFC 6066 1.1, RFC 6961).
static constexpr NumberName kFeatures[] = {{5, "status_request"}, {17, "status_request_v2"}};
static constexpr Shape kFeatureShape = NamedNumbers(ShapeKind::kInteger, kFeatures);
const Shape kTlsFeaturesShape = SequenceOf(&kFeatureShape);

// RFC 6962 3.2 and 3.3; algorithms by RFC 5246 7.4.1.4.1 and RFC 8422 5.1.3.
static constexpr NumberName kVersions[] = {{0, "v1"}};
static constexpr NumberName kHashes[] = {
    {0, "none"},   {1, "md5"},    {2, "sha1"},   {3, "sha224"},
    {4, "sha256"}, {5, "sha384"}, {6, "sha512"}, {8, "intrinsic"},
};
static constexpr NumberName kSignatures[] = {
    {0, "anonymous"}, {1, "rsa"}, {2, "dsa"}, {3, "ecdsa"}, {7, "ed25519"}, {8, "ed448"},
};
static constexpr Shape kVersionShape = NamedNumbers(ShapeKind::kTlsNumber, kVersions, 1);
static constexpr Shape kLogIdShape = TlsPart(ShapeKind::kTlsFixed, 32);
static constexpr Shape kTimestampTimeShape = TlsPart(ShapeKind::kTlsTime, 8);
static constexpr Shape kVectorShape = TlsPart(ShapeKind::kTlsVector);
static constexpr Shape kHashShape = NamedNumbers(ShapeKind::kTlsNumber, kHashes, 1);
static constexpr Shape kSignatureShape = NamedNumbers(ShapeKind::kTlsNumber, kSignatures, 1);
static constexpr Field kTimestampFields[] = {
    {"sctVersion", "", &kVersionShape, offsetof(ortholan_signed_timestamp, version)},
    {"logID", "log", &kLogIdShape, offsetof(ortholan_signed_timestamp, log_id)},
    {"timestamp", "time", &kTimestampTimeShape, offsetof(ortholan_signed_timestamp, time)},
    {"extensions", "extensions", &kVectorShape, offsetof(ortholan_signed_timestamp, extensions)},
    {"hash", "hash", &kHashShape, offsetof(ortholan_signed_timestamp, hash)},
    {"signature", "signature algorithm", &kSignatureShape,
     offsetof(ortholan_signed_timestamp, signature_algorithm)},
    {"signatureValue", "signature", &kVectorShape, offsetof(ortholan_signed_timestamp, signature)},
};
const Shape kTimestampShape = TlsRecord(kTimestampFields, "signed timestamp");
static constexpr Shape kTimestampListShape = TlsList(&kTimestampShape);
const Shape kTimestampsShape = TlsInOctets(&kTimestampListShape);

}  // namespace Ortholan::strict
