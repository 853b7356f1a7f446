// Names for the words that encoders and decoders of names take.
//
//   name.TrySetBy("CN=Alpha; C=RU", Ortholan::kEncodeSemicolon, true);
//   name.TryGetX500String(text, Ortholan::kStyleKeys | Ortholan::kSeparateSemicolon);
//
// The platform's CERT_NAME_STR_ flags have the same bits.
#ifndef ORTHOLAN_NAME_OPTIONS_H_
#define ORTHOLAN_NAME_OPTIONS_H_

#include <cstdint>

namespace Ortholan {

// Encoder options, joined by |. All other bits are kept and change nothing.
//
// What separates the elements of a text: of these three the first that is set wins, in this order;
// without any "," ";" CR and LF all do.
inline constexpr uint32_t kEncodeComma = 0x04000000;      // "," alone
inline constexpr uint32_t kEncodeSemicolon = 0x40000000;  // ";" alone
inline constexpr uint32_t kEncodeCrLf = 0x08000000;       // CR and LF alone
// Text outside PrintableString is written as UTF8String instead of BMPString.
inline constexpr uint32_t kEncodeUtf8 = 0x00040000;
// With kEncodeUtf8: free text is written as UTF8String always.
inline constexpr uint32_t kEncodeAlways = 0x00100000;
// Both.
inline constexpr uint32_t kEncodeAlwaysUtf8 = kEncodeUtf8 | kEncodeAlways;

// Name styles, in the low 16 bits of a decoder's word: what of an attribute is shown.
inline constexpr uint32_t kStyleValues = 1;  // "Alpha", always separated by ","
inline constexpr uint32_t kStyleOids = 2;    // "2.5.4.3=Alpha", as any style without a name here
inline constexpr uint32_t kStyleKeys = 3;    // "CN=Alpha"
inline constexpr uint32_t kStyleMask = 0x0000FFFF;

// Decoder options, joined with one style by |: what stands between RDNs. Without any it is ",".
inline constexpr uint32_t kSeparateCrLf = 0x08000000;       // CR LF
inline constexpr uint32_t kSeparateSemicolon = 0x40000000;  // ";", unless CR LF is asked for

}  // namespace Ortholan

#endif  // ORTHOLAN_NAME_OPTIONS_H_
