#include "strict/extensions/media_shapes.h"

#include <ortholan/strict/extension_media.h>

#include "strict/extensions/common_shapes.h"

namespace Ortholan::strict {
namespace {

constexpr uint8_t kColour = 1;

}  // namespace

// RFC 5280 4.1.1.2
static constexpr Shape kAlgorithmParametersShape = {ShapeKind::kAny};
static constexpr Field kAlgorithmFields[] = {
    {"algorithm", "", &kOidShape, offsetof(ortholan_algorithm, oid)},
    {"parameters", "parameters", &kAlgorithmParametersShape,
     offsetof(ortholan_algorithm, parameters), Presence::kOptional},
};
static constexpr Shape kAlgorithmShape = Sequence(kAlgorithmFields);

// RFC 9399 4.1
static constexpr Field kMediaHashFields[] = {
    {"hashAlg", "algorithm", &kAlgorithmShape, offsetof(ortholan_hash, algorithm)},
    {"hashValue", "value", &kOctetsShape, offsetof(ortholan_hash, value)},
};
const Shape kMediaHashShape = Sequence(kMediaHashFields, "hash");
static constexpr Shape kMediaHashesShape = SequenceOf(&kMediaHashShape);
static constexpr Shape kUrisShape = SequenceOf(&kIA5Shape);
static constexpr Field kFileFields[] = {
    {"mediaType", "", &kIA5Shape, offsetof(ortholan_logotype_file, media_type)},
    {"logotypeHash", "hashes", &kMediaHashesShape, offsetof(ortholan_logotype_file, hashes)},
    {"logotypeURI", "addresses", &kUrisShape, offsetof(ortholan_logotype_file, uris)},
};
static constexpr Shape kFileShape = Sequence(kFileFields);

// RFC 9399 4.1; one field each for the alternatives of LogotypeImageResolution.
static constexpr NumberName kImageTypes[] = {{0, "grayScale"}, {kColour, "color"}};
static constexpr Shape kImageTypeShape = NamedNumbers(ShapeKind::kInteger, kImageTypes);
static constexpr Field kResolutionFields[] = {
    {"numBits", "bits of a pixel", &kNumberShape, 0, Presence::kRequired, Tagging::kImplicit, 1},
    {"tableSize", "colours", &kNumberShape,
     offsetof(ortholan_logotype_image_information, table_size) -
         offsetof(ortholan_logotype_image_information, bits),
     Presence::kRequired, Tagging::kImplicit, 2},
};
static constexpr Shape kResolutionShape = Choice(kResolutionFields);
static constexpr Field kImageInformationFields[] = {
    {"type", "type", &kImageTypeShape, offsetof(ortholan_logotype_image_information, type),
     Presence::kDefault, Tagging::kImplicit, 0, kColour},
    {"fileSize", "octets", &kNumberShape, offsetof(ortholan_logotype_image_information, file_size)},
    {"xSize", "width", &kNumberShape, offsetof(ortholan_logotype_image_information, width)},
    {"ySize", "height", &kNumberShape, offsetof(ortholan_logotype_image_information, height)},
    {"resolution", "", &kResolutionShape, offsetof(ortholan_logotype_image_information, bits),
     Presence::kOptional},
    {"language", "language", &kIA5Shape, offsetof(ortholan_logotype_image_information, language),
     Presence::kOptional, Tagging::kImplicit, 4},
};
static constexpr Shape kImageInformationShape = Sequence(kImageInformationFields);
static constexpr Field kImageFields[] = {
    {"imageDetails", "file", &kFileShape, offsetof(ortholan_logotype_image, file)},
    {"imageInfo", "information", &kImageInformationShape,
     offsetof(ortholan_logotype_image, information), Presence::kOptional},
};
const Shape kLogotypeImageShape = Sequence(kImageFields, "image");

static constexpr Field kAudioInformationFields[] = {
    {"fileSize", "octets", &kNumberShape, offsetof(ortholan_logotype_audio_information, file_size)},
    {"playTime", "milliseconds", &kNumberShape,
     offsetof(ortholan_logotype_audio_information, play_time)},
    {"channels", "channels", &kNumberShape,
     offsetof(ortholan_logotype_audio_information, channels)},
    {"sampleRate", "samples a second", &kNumberShape,
     offsetof(ortholan_logotype_audio_information, sample_rate), Presence::kOptional,
     Tagging::kImplicit, 3},
    {"language", "language", &kIA5Shape, offsetof(ortholan_logotype_audio_information, language),
     Presence::kOptional, Tagging::kImplicit, 4},
};
static constexpr Shape kAudioInformationShape = Sequence(kAudioInformationFields);
static constexpr Field kAudioFields[] = {
    {"audioDetails", "file", &kFileShape, offsetof(ortholan_logotype_audio, file)},
    {"audioInfo", "information", &kAudioInformationShape,
     offsetof(ortholan_logotype_audio, information), Presence::kOptional},
};
const Shape kLogotypeAudioShape = Sequence(kAudioFields, "audio");

static constexpr Shape kImagesShape = SequenceOf(&kLogotypeImageShape);
static constexpr Shape kRecordingsShape = SequenceOf(&kLogotypeAudioShape);
static constexpr Field kDirectFields[] = {
    {"image", "images", &kImagesShape, offsetof(ortholan_logotype, images), Presence::kOptional},
    {"audio", "recordings", &kRecordingsShape, offsetof(ortholan_logotype, audio),
     Presence::kOptional, Tagging::kImplicit, 1},
};
static constexpr Shape kDirectShape = Sequence(kDirectFields, "logotype");
static constexpr Field kIndirectFields[] = {
    {"refStructHash", "hashes", &kMediaHashesShape, offsetof(ortholan_logotype, reference_hashes)},
    {"refStructURI", "addresses", &kUrisShape, offsetof(ortholan_logotype, reference_uris)},
};
static constexpr Shape kIndirectShape = Sequence(kIndirectFields, "reference");
static constexpr Field kLogotypeFields[] = {
    {"direct", "", &kDirectShape, 0, Presence::kRequired, Tagging::kImplicit, 0},
    {"indirect", "", &kIndirectShape, 0, Presence::kRequired, Tagging::kImplicit, 1},
};
const Shape kLogotypeShape = Choice(kLogotypeFields);

static constexpr Field kOtherLogotypeFields[] = {
    {"logotypeType", "", &kOidShape, offsetof(ortholan_other_logotype, type)},
    {"info", "logotype", &kLogotypeShape, offsetof(ortholan_other_logotype, logotype)},
};
const Shape kOtherLogotypeShape = Sequence(kOtherLogotypeFields, "type");
static constexpr Shape kCommunitiesShape = SequenceOf(&kLogotypeShape);
static constexpr Shape kOtherLogotypesShape = SequenceOf(&kOtherLogotypeShape);
static constexpr Field kLogotypesFields[] = {
    {"communityLogos", "communities", &kCommunitiesShape, offsetof(ortholan_logotypes, communities),
     Presence::kOptional, Tagging::kExplicit, 0},
    {"issuerLogo", "issuer", &kLogotypeShape, offsetof(ortholan_logotypes, issuer),
     Presence::kOptional, Tagging::kExplicit, 1},
    {"subjectLogo", "subject", &kLogotypeShape, offsetof(ortholan_logotypes, subject),
     Presence::kOptional, Tagging::kExplicit, 2},
    {"otherLogos", "others", &kOtherLogotypesShape, offsetof(ortholan_logotypes, others),
     Presence::kOptional, Tagging::kExplicit, 3},
};
const Shape kLogotypesShape = Sequence(kLogotypesFields);

// RFC 3739 3.2.5
static constexpr NumberName kBiometricTypes[] = {{0, "picture"}, {1, "handwritten-signature"}};
static constexpr Shape kBiometricTypeShape = NamedNumbers(ShapeKind::kInteger, kBiometricTypes);
static constexpr Field kBiometricChoices[] = {
    {"predefinedBiometricType", "", &kBiometricTypeShape, offsetof(ortholan_biometric_data, type)},
    {"biometricDataOid", "", &kOidShape, offsetof(ortholan_biometric_data, oid)},
};
static constexpr Shape kBiometricKindShape = Choice(kBiometricChoices);
static constexpr Field kBiometricFields[] = {
    {"typeOfBiometricData", "", &kBiometricKindShape, 0},
    {"hashAlgorithm", "hash algorithm", &kAlgorithmShape,
     offsetof(ortholan_biometric_data, hash_algorithm)},
    {"biometricDataHash", "hash", &kOctetsShape, offsetof(ortholan_biometric_data, hash)},
    {"sourceDataUri", "address", &kIA5Shape, offsetof(ortholan_biometric_data, uri),
     Presence::kOptional},
};
const Shape kBiometricDataShape = Sequence(kBiometricFields, "biometric data");
const Shape kBiometricInformationShape = SequenceOf(&kBiometricDataShape);

}  // namespace Ortholan::strict
