// Extensions that point to media by hashes and addresses: logotypes (RFC 9399) and biometric
// information (RFC 3739 3.2.5), taken apart as those of <ortholan/strict/extension_values.h> are.
//
//   ortholan_logotypes logotypes;
//   ortholan_logotype_image image;
//   size_t at = 0;
//   ortholan_logotypes_read(extension.value, ORTHOLAN_READ_DER, &logotypes, &refusal);
//   while (ortholan_logotype_image_next(&logotypes.issuer.images, &at, &image) == 0) ...
#ifndef ORTHOLAN_STRICT_EXTENSION_MEDIA_H_
#define ORTHOLAN_STRICT_EXTENSION_MEDIA_H_

#include <ortholan/strict/extension_values.h>

#ifdef __cplusplus
extern "C" {
#endif

// An algorithm and its parameters (RFC 5280 4.1.1.2).
typedef struct ortholan_algorithm {
  ortholan_octets oid;         // content octets
  ortholan_octets parameters;  // a whole element; optional
} ortholan_algorithm;

// A hash, and what it was made by.
typedef struct ortholan_hash {
  ortholan_algorithm algorithm;
  ortholan_octets value;
} ortholan_hash;

// One logotype (RFC 9399 4.1): media by themselves, or a file that has them in its place.
typedef struct ortholan_logotype {
  ortholan_list images;            // optional, for ortholan_logotype_image_next
  ortholan_list audio;             // optional, for ortholan_logotype_audio_next
  ortholan_list reference_hashes;  // for ortholan_hash_next; these two stand together
  ortholan_list reference_uris;    // for ortholan_string_next
} ortholan_logotype;
// logotype; every part is optional.
typedef struct ortholan_logotypes {
  ortholan_list communities;  // for ortholan_logotype_next
  ortholan_logotype issuer;
  ortholan_logotype subject;
  ortholan_list others;  // for ortholan_other_logotype_next
} ortholan_logotypes;
// A logotype of a type of its own.
typedef struct ortholan_other_logotype {
  ortholan_octets type;  // content octets of an identifier
  ortholan_logotype logotype;
} ortholan_other_logotype;

// Where a file is.
typedef struct ortholan_logotype_file {
  ortholan_string media_type;  // "image/svg+xml"
  ortholan_list hashes;        // for ortholan_hash_next
  ortholan_list uris;          // for ortholan_string_next
} ortholan_logotype_file;
// What an image is like; sizes in pixels, none of vectors.
typedef struct ortholan_logotype_image_information {
  ortholan_integer type;  // 0 shades of grey, 1 colour
  ortholan_integer file_size;
  ortholan_integer width;
  ortholan_integer height;
  ortholan_integer bits;        // of a pixel; one of these two, or none
  ortholan_integer table_size;  // colours
  ortholan_string language;     // optional
} ortholan_logotype_image_information;
// An image.
typedef struct ortholan_logotype_image {
  ortholan_logotype_file file;
  ortholan_logotype_image_information information;  // optional
} ortholan_logotype_image;
// What a recording is like.
typedef struct ortholan_logotype_audio_information {
  ortholan_integer file_size;
  ortholan_integer play_time;  // milliseconds
  ortholan_integer channels;
  ortholan_integer sample_rate;  // a second; optional
  ortholan_string language;      // optional
} ortholan_logotype_audio_information;
// A recording.
typedef struct ortholan_logotype_audio {
  ortholan_logotype_file file;
  ortholan_logotype_audio_information information;  // optional
} ortholan_logotype_audio;

// Reads logotype.
ORTHOLAN_EXPORT ortholan_reason ortholan_logotypes_read(ortholan_octets value, int32_t mode,
                                                        ortholan_logotypes* logotypes,
                                                        ortholan_refusal* refusal);
// The next logotype of communities.
ORTHOLAN_EXPORT ortholan_reason ortholan_logotype_next(const ortholan_list* logotypes,
                                                       size_t* offset, ortholan_logotype* logotype);
// The next logotype of another type.
ORTHOLAN_EXPORT ortholan_reason ortholan_other_logotype_next(const ortholan_list* logotypes,
                                                             size_t* offset,
                                                             ortholan_other_logotype* logotype);
// The next image.
ORTHOLAN_EXPORT ortholan_reason ortholan_logotype_image_next(const ortholan_list* images,
                                                             size_t* offset,
                                                             ortholan_logotype_image* image);
// The next recording.
ORTHOLAN_EXPORT ortholan_reason ortholan_logotype_audio_next(const ortholan_list* audio,
                                                             size_t* offset,
                                                             ortholan_logotype_audio* recording);
// The next hash of one file.
ORTHOLAN_EXPORT ortholan_reason ortholan_hash_next(const ortholan_list* hashes, size_t* offset,
                                                   ortholan_hash* hash);

// One of biometricInfo.
typedef struct ortholan_biometric_data {
  ortholan_integer type;  // 0 a picture, 1 a handwritten signature; one of the two
  ortholan_octets oid;    // content octets
  ortholan_algorithm hash_algorithm;
  ortholan_octets hash;
  ortholan_string uri;  // optional
} ortholan_biometric_data;
// Reads biometricInfo.
ORTHOLAN_EXPORT ortholan_reason ortholan_biometric_information_read(ortholan_octets value,
                                                                    int32_t mode,
                                                                    ortholan_list* data,
                                                                    ortholan_refusal* refusal);
// The next piece of biometric data.
ORTHOLAN_EXPORT ortholan_reason ortholan_biometric_data_next(const ortholan_list* list,
                                                             size_t* offset,
                                                             ortholan_biometric_data* data);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ORTHOLAN_STRICT_EXTENSION_MEDIA_H_
