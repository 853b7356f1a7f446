#include "strict/general_names/uri.h"

#include <ortholan/strict/general_names.h>

#include <algorithm>

#include "bytes/hex.h"

namespace Ortholan::strict {
namespace {

constexpr std::string_view kDigits = "0123456789";

bool AreHexDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), IsHexDigit);
}

// Where a character may stand; bits of kPlaces.
enum Place : uint8_t {
  kInScheme = 1,
  kInUserinfo = 2,
  kInName = 4,
  kInPath = 8,  // and query and fragment
  kInFuture = 16,
};

struct PlaceTable {
  uint8_t bits[256];
};

constexpr PlaceTable MakePlaces() {
  constexpr uint8_t kEverywhere = kInUserinfo | kInName | kInPath | kInFuture;
  PlaceTable table = {};
  const auto add = [&table](std::string_view characters, int places) {
    for (const char c : characters) {
      table.bits[static_cast<uint8_t>(c)] |= static_cast<uint8_t>(places);
    }
  };
  add("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-.", kInScheme | kEverywhere);
  add("+", kInScheme);
  add("_~!$&'()*+,;=", kEverywhere);
  add(":", kInUserinfo | kInPath | kInFuture);
  add("@/?", kInPath);
  return table;
}

constexpr PlaceTable kPlaces = MakePlaces();

constexpr bool MayStand(char c, Place place) {
  return (kPlaces.bits[static_cast<uint8_t>(c)] & place) != 0;
}

// The first character of `part` that may not stand there; npos for none.
size_t FindOutside(std::string_view part, Place place) {
  for (size_t i = 0; i < part.size(); ++i) {
    if (MayStand(part[i], place)) continue;
    const bool is_escape =
        part[i] == '%' && part.size() - i > 2 && AreHexDigits(part.substr(i + 1, 2));
    if (!is_escape) return i;
    i += 2;
  }
  return std::string_view::npos;
}

class UriReader {
 public:
  UriReader(std::string_view text, Uri* uri, Refusal* refusal)
      : text_(text), uri_(uri), refusal_(refusal) {}

  bool Read() {
    if (!ReadScheme()) return false;
    uri_->rest = text_.substr(uri_->scheme.size() + 1);
    if (uri_->rest.substr(0, 2) == "//" && !ReadAuthority()) return false;
    std::string_view rest = uri_->rest;
    // The fragment begins behind the first "#"; a second one stands nowhere.
    const size_t hash = rest.find('#');
    if (hash == std::string_view::npos) return Check(rest, kInPath);
    return Check(rest.substr(0, hash), kInPath) && Check(rest.substr(hash + 1), kInPath);
  }

 private:
  bool ReadScheme() {
    const size_t end = text_.find(':');
    const std::string_view scheme = text_.substr(0, end);
    const bool begins = !scheme.empty() && MayStand(scheme[0], kInScheme) &&
                        kDigits.find(scheme[0]) == std::string_view::npos && scheme[0] != '-' &&
                        scheme[0] != '.' && scheme[0] != '+';
    if (end == std::string_view::npos || !begins) return RefuseAt(ORTHOLAN_REASON_URI_SCHEME, 0);
    for (size_t i = 0; i < end; ++i) {
      if (!MayStand(scheme[i], kInScheme)) return RefuseAt(ORTHOLAN_REASON_URI_SCHEME, i);
    }
    uri_->scheme = scheme;
    return true;
  }

  bool ReadAuthority() {
    std::string_view authority = uri_->rest.substr(2);
    authority = authority.substr(0, authority.find_first_of("/?#"));
    uri_->rest.remove_prefix(2 + authority.size());
    uri_->has_authority = true;
    const size_t at = authority.find('@');
    if (at != std::string_view::npos) {
      uri_->userinfo = authority.substr(0, at);
      authority.remove_prefix(at + 1);
      if (!Check(uri_->userinfo, kInUserinfo)) return false;
    }
    const bool is_literal = !authority.empty() && authority[0] == '[';
    return is_literal ? ReadLiteral(authority) : ReadName(authority);
  }

  bool ReadName(std::string_view authority) {
    const size_t colon = std::min(authority.find(':'), authority.size());
    uri_->host = authority.substr(0, colon);
    if (!Check(uri_->host, kInName)) return false;
    if (ReadIpAddress(uri_->host, &uri_->address)) {
      uri_->host_kind = Uri::HostKind::kAddress;
    } else if (!uri_->host.empty()) {
      uri_->host_kind = Uri::HostKind::kName;
    }
    return ReadPort(authority.substr(colon));
  }

  bool ReadLiteral(std::string_view authority) {
    const size_t end = authority.find(']');
    if (end == std::string_view::npos) return RefuseLiteral(authority);
    uri_->host = authority.substr(1, end - 1);
    if (uri_->host.find(':') != std::string_view::npos &&
        ReadIpAddress(uri_->host, &uri_->address)) {
      uri_->host_kind = Uri::HostKind::kAddress;
    } else if (IsFuture(uri_->host) || IsZoned(uri_->host)) {
      uri_->host_kind = Uri::HostKind::kOther;
    } else {
      return RefuseLiteral(authority);
    }
    return ReadPort(authority.substr(end + 1));
  }

  // "v" HEXDIG+ "." and characters.
  static bool IsFuture(std::string_view literal) {
    const size_t dot = literal.find('.');
    return literal.size() > 3 && (literal[0] | 0x20) == 'v' && dot != std::string_view::npos &&
           dot > 1 && dot + 1 < literal.size() && AreHexDigits(literal.substr(1, dot - 1)) &&
           literal.find('%') == std::string_view::npos &&
           FindOutside(literal.substr(dot + 1), kInFuture) == std::string_view::npos;
  }
  // RFC 6874 2.
  static bool IsZoned(std::string_view literal) {
    const size_t percent = literal.find("%25");
    IpAddress address;
    return percent != std::string_view::npos && literal.size() > percent + 3 &&
           ReadIpAddress(literal.substr(0, percent), &address) && address.size == kIPv6Octets &&
           FindOutside(literal.substr(percent), kInName) == std::string_view::npos;
  }

  // Nothing, or a colon and digits, of which there may be none.
  bool ReadPort(std::string_view text) {
    if (text.empty()) return true;
    uri_->port = text.substr(1);
    const size_t fault = text[0] != ':' ? 0 : text.find_first_not_of(kDigits, 1);
    if (fault == std::string_view::npos) return true;
    return RefuseAt(ORTHOLAN_REASON_URI_PORT, OffsetOf(text) + fault);
  }

  bool Check(std::string_view part, Place place) {
    const size_t fault = FindOutside(part, place);
    if (fault == std::string_view::npos) return true;
    return RefuseAt(ORTHOLAN_REASON_URI_CHARACTER, OffsetOf(part) + fault);
  }
  bool RefuseLiteral(std::string_view authority) {
    return RefuseAt(ORTHOLAN_REASON_URI_LITERAL, OffsetOf(authority));
  }
  size_t OffsetOf(std::string_view part) const {
    return static_cast<size_t>(part.data() - text_.data());
  }
  bool RefuseAt(ortholan_reason reason, size_t at) {
    return RefuseText(refusal_, reason, text_.substr(at));
  }

  std::string_view text_;
  Uri* uri_;
  Refusal* refusal_;
};

}  // namespace

bool Uri::Read(std::string_view text, Uri* uri, Refusal* refusal) {
  Uri read;
  if (!UriReader(text, &read, refusal).Read()) return false;
  *uri = read;
  return true;
}

}  // namespace Ortholan::strict
