#include "foundation/standard_format.h"

#include <cstring>
#include <new>
#include <string_view>

namespace Ortholan {
namespace {

constexpr const char* kBeforePrefix = "-+0 #*.123456789";  // flags, width and precision
constexpr std::string_view kConversions = "cCdiouxXeEfgGaAnpsS";
constexpr std::string_view kLong = "I64";

struct Prefix {
  size_t size;  // characters of the format; 0 where there is none to be replaced
  const char* standard;
};

// The prefix at the front of what follows flags, width and precision.
Prefix ReadPrefix(std::string_view rest) {
  if (rest.substr(0, kLong.size()) == kLong) return {kLong.size(), "ll"};
  const bool far_or_near = rest.size() > 1 && (rest[0] == 'F' || rest[0] == 'N');
  const bool in_front = far_or_near && kConversions.find(rest[1]) != kConversions.npos;
  return {in_front ? size_t{1} : 0, ""};
}

// Calls `put` with each part of the standard format and returns whether a prefix was replaced.
template <class Put>
bool Rewrite(std::string_view format, Put put) {
  bool replaced = false;
  while (!format.empty()) {
    size_t plain = format.find('%');
    if (plain < format.size()) plain = format.find_first_not_of(kBeforePrefix, plain + 1);
    plain = plain < format.size() ? plain : format.size();
    put(format.substr(0, plain));
    format.remove_prefix(plain);
    const Prefix prefix = ReadPrefix(format);
    put(std::string_view(prefix.standard));
    replaced |= prefix.size != 0;
    // The conversion itself, which may be a second percent sign.
    const size_t conversion = format.size() > prefix.size ? 1 : 0;
    put(format.substr(prefix.size, conversion));
    format.remove_prefix(prefix.size + conversion);
  }
  return replaced;
}

}  // namespace

StandardFormat::StandardFormat(const char* format) : text_(format) {
  if (format == nullptr || !Rewrite(format, [](std::string_view) {})) return;
  // Every replacement is shorter than what it stands for: that leaves room for the terminator.
  copy_.reset(new (std::nothrow) char[std::strlen(format)]);
  text_ = copy_.get();
  if (copy_ == nullptr) return;
  char* out = copy_.get();
  Rewrite(format, [&out](std::string_view part) { out += part.copy(out, part.size()); });
  *out = '\0';
}

}  // namespace Ortholan
