// Logotypes (RFC 9399) and biometric information (RFC 3739) in C++17.
//
//   const auto logotypes = ortholan::Logotypes::Read(extension.value);
//   for (const ortholan::LogotypeImage& image : logotypes->subject.images) ...
#ifndef ORTHOLAN_STRICT_EXTENSION_MEDIA_HPP_
#define ORTHOLAN_STRICT_EXTENSION_MEDIA_HPP_

#include <ortholan/strict/extension_media.h>

#include <ortholan/strict/extension_values.hpp>

namespace ortholan {

struct Algorithm {
  Octets oid;         // content octets
  Octets parameters;  // a whole element; empty where it is not there

  explicit Algorithm(const ortholan_algorithm& plain)
      : oid(plain.oid), parameters(plain.parameters) {}
};

struct Hash {
  Algorithm algorithm;
  Octets value;

  explicit Hash(const ortholan_hash& plain) : algorithm(plain.algorithm), value(plain.value) {}
};
using Hashes = ValueList<Hash, ortholan_hash, ortholan_hash_next>;

// A file that is somewhere else.
struct LogotypeFile {
  std::string media_type;
  Hashes hashes;
  std::vector<std::string> uris;

  explicit LogotypeFile(const ortholan_logotype_file& plain)
      : media_type(detail::StringText(plain.media_type)),
        hashes(plain.hashes),
        uris(detail::StringTexts(plain.uris)) {}
};

// An image; sizes in octets and pixels.
struct LogotypeImage {
  LogotypeFile file;
  bool is_colour = true;
  std::optional<int64_t> file_size;
  std::optional<int64_t> width;
  std::optional<int64_t> height;
  std::optional<int64_t> bits;        // of a pixel; one of these two, or none
  std::optional<int64_t> table_size;  // colours
  std::string language;

  explicit LogotypeImage(const ortholan_logotype_image& plain)
      : file(plain.file),
        is_colour(detail::ToNumber(plain.information.type).value_or(1) == 1),
        file_size(detail::ToNumber(plain.information.file_size)),
        width(detail::ToNumber(plain.information.width)),
        height(detail::ToNumber(plain.information.height)),
        bits(detail::ToNumber(plain.information.bits)),
        table_size(detail::ToNumber(plain.information.table_size)),
        language(detail::StringText(plain.information.language)) {}
};
using LogotypeImages =
    ValueList<LogotypeImage, ortholan_logotype_image, ortholan_logotype_image_next>;

struct LogotypeAudio {
  LogotypeFile file;
  std::optional<int64_t> file_size;
  std::optional<int64_t> play_time;  // milliseconds
  std::optional<int64_t> channels;
  std::optional<int64_t> sample_rate;  // a second
  std::string language;

  explicit LogotypeAudio(const ortholan_logotype_audio& plain)
      : file(plain.file),
        file_size(detail::ToNumber(plain.information.file_size)),
        play_time(detail::ToNumber(plain.information.play_time)),
        channels(detail::ToNumber(plain.information.channels)),
        sample_rate(detail::ToNumber(plain.information.sample_rate)),
        language(detail::StringText(plain.information.language)) {}
};
using LogotypeRecordings =
    ValueList<LogotypeAudio, ortholan_logotype_audio, ortholan_logotype_audio_next>;

// Media by themselves, or a file that has them in its place.
struct Logotype {
  LogotypeImages images;
  LogotypeRecordings audio;
  Hashes reference_hashes;
  std::vector<std::string> reference_uris;

  explicit Logotype(const ortholan_logotype& plain)
      : images(plain.images),
        audio(plain.audio),
        reference_hashes(plain.reference_hashes),
        reference_uris(detail::StringTexts(plain.reference_uris)) {}
};
using LogotypeList = ValueList<Logotype, ortholan_logotype, ortholan_logotype_next>;

// A logotype of a type of its own.
struct OtherLogotype {
  Octets type;  // content octets of an identifier
  Logotype logotype;

  explicit OtherLogotype(const ortholan_other_logotype& plain)
      : type(plain.type), logotype(plain.logotype) {}
};
using OtherLogotypes =
    ValueList<OtherLogotype, ortholan_other_logotype, ortholan_other_logotype_next>;

// logotype; every part may be empty.
struct Logotypes {
  LogotypeList communities;
  Logotype issuer;
  Logotype subject;
  OtherLogotypes others;

  explicit Logotypes(const ortholan_logotypes& plain)
      : communities(plain.communities),
        issuer(plain.issuer),
        subject(plain.subject),
        others(plain.others) {}
  static Result<Logotypes> Read(Octets value, Reading reading = Reading::kDer) {
    return detail::ReadValue<Logotypes, ortholan_logotypes>(value, reading,
                                                            ortholan_logotypes_read);
  }
};

struct BiometricData {
  std::optional<int64_t> type;  // 0 a picture, 1 a handwritten signature; one of the two
  Octets oid;                   // content octets
  Algorithm hash_algorithm;
  Octets hash;
  std::string uri;  // empty where it is not there

  explicit BiometricData(const ortholan_biometric_data& plain)
      : type(detail::ToNumber(plain.type)),
        oid(plain.oid),
        hash_algorithm(plain.hash_algorithm),
        hash(plain.hash),
        uri(detail::StringText(plain.uri)) {}
};
using BiometricInformation =
    ValueList<BiometricData, ortholan_biometric_data, ortholan_biometric_data_next>;
// biometricInfo.
inline Result<BiometricInformation> ReadBiometricInformation(Octets value,
                                                             Reading reading = Reading::kDer) {
  return detail::ReadValue<BiometricInformation, ortholan_list>(
      value, reading, ortholan_biometric_information_read);
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_EXTENSION_MEDIA_HPP_
