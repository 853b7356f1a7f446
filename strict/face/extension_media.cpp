// Logotypes and biometric information as structures: one shape each.
#include <ortholan/strict/extension_media.h>

#include "strict/extensions/media_shapes.h"
#include "strict/face/value_call.h"

using namespace Ortholan;
using namespace Ortholan::strict;

ortholan_reason ortholan_logotypes_read(ortholan_octets value, int32_t mode,
                                        ortholan_logotypes* logotypes, ortholan_refusal* refusal) {
  return Read(kLogotypesShape, value, mode, logotypes, refusal);
}

ortholan_reason ortholan_logotype_next(const ortholan_list* logotypes, size_t* offset,
                                       ortholan_logotype* logotype) {
  return Next(kLogotypeShape, logotypes, offset, logotype);
}

ortholan_reason ortholan_other_logotype_next(const ortholan_list* logotypes, size_t* offset,
                                             ortholan_other_logotype* logotype) {
  return Next(kOtherLogotypeShape, logotypes, offset, logotype);
}

ortholan_reason ortholan_logotype_image_next(const ortholan_list* images, size_t* offset,
                                             ortholan_logotype_image* image) {
  return Next(kLogotypeImageShape, images, offset, image);
}

ortholan_reason ortholan_logotype_audio_next(const ortholan_list* audio, size_t* offset,
                                             ortholan_logotype_audio* recording) {
  return Next(kLogotypeAudioShape, audio, offset, recording);
}

ortholan_reason ortholan_hash_next(const ortholan_list* hashes, size_t* offset,
                                   ortholan_hash* hash) {
  return Next(kMediaHashShape, hashes, offset, hash);
}

ortholan_reason ortholan_biometric_information_read(ortholan_octets value, int32_t mode,
                                                    ortholan_list* data,
                                                    ortholan_refusal* refusal) {
  return Read(kBiometricInformationShape, value, mode, data, refusal);
}

ortholan_reason ortholan_biometric_data_next(const ortholan_list* list, size_t* offset,
                                             ortholan_biometric_data* data) {
  return Next(kBiometricDataShape, list, offset, data);
}
