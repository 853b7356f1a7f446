#include "strict/general_names/service_name.h"

#include <ortholan/strict/identity.h>

#include "strict/general_names/host.h"

namespace Ortholan::strict {

constexpr size_t kMaxServiceOctets = 16;  // 15 behind the underscore (RFC 6335 5.1)

bool SplitService(std::string_view text, std::string_view* service, std::string_view* host,
                  Refusal* refusal) {
  const size_t dot = text.find('.');
  const std::string_view label = text.substr(0, dot);
  const bool is_service = dot != std::string_view::npos && label.size() > 1 &&
                          label.size() <= kMaxServiceOctets && label[0] == '_' &&
                          CheckHost(label.substr(1), kPlainHost, nullptr);
  if (!is_service) {
    return RefuseText(refusal, ORTHOLAN_REASON_SERVICE, text);
  }
  *service = label;
  *host = text.substr(dot + 1);
  return CheckHost(*host, kPlainHost, refusal);
}

}  // namespace Ortholan::strict
