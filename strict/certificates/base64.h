// Base64 in PEM text (RFC 4648 4): blanks count nothing, padding and unused bits have to be right.
//
//   if (!CheckBase64(body, &fault)) ...   // body[fault] is wrong, or the end
//   PutBase64Octets(body, &out);
#ifndef ORTHOLAN_STRICT_CERTIFICATES_BASE64_H_
#define ORTHOLAN_STRICT_CERTIFICATES_BASE64_H_

#include <string_view>

#include "strict/der/output.h"

namespace Ortholan::strict {

constexpr std::string_view kBase64Blanks = " \t\r\n\f\v";

// Whether the text is base64; `*fault` is where it is not.
bool CheckBase64(std::string_view base64, size_t* fault);

// Puts what checked base64 stands for.
void PutBase64Octets(std::string_view base64, Output* out);

}  // namespace Ortholan::strict

#endif  // ORTHOLAN_STRICT_CERTIFICATES_BASE64_H_
