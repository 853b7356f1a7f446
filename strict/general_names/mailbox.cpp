#include "strict/general_names/mailbox.h"

#include <ortholan/strict/identity.h>

#include "strict/der/string_value.h"
#include "strict/general_names/host.h"

namespace Ortholan::strict {
namespace {

constexpr std::string_view kLiteralTag = "IPv6:";

// RFC 5322 3.2.3.
bool IsAtomCharacter(char c) {
  return IsAsciiDigit(c) || IsAsciiLetter(c) ||
         (c != '\0' && std::string_view("!#$%&'*+-/=?^_`{|}~").find(c) != std::string_view::npos);
}

// Reads characters of a local part; UTF-8 beyond ASCII counts as a character of either form.
class LocalReader {
 public:
  LocalReader(std::string_view text, Mailbox::Alphabet alphabet)
      : text_(text), alphabet_(alphabet) {}

  // Octets of the local part, 0 for none.
  size_t Size() {
    const bool is_read = !text_.empty() && text_[0] == '"' ? ReadQuoted() : ReadDotString();
    return is_read ? at_ : 0;
  }
  bool is_ascii() const { return is_ascii_; }

 private:
  bool ReadDotString() {
    bool begins = true;
    while (at_ < text_.size() && text_[at_] != '@') {
      if (text_[at_] == '.') {
        if (begins) return false;
        begins = true;
        ++at_;
        continue;
      }
      if (!IsAtomCharacter(text_[at_]) ? !ReadBeyondAscii() : (++at_, false)) return false;
      begins = false;
    }
    return !begins;
  }
  bool ReadQuoted() {
    ++at_;
    while (at_ < text_.size()) {
      const char c = text_[at_];
      if (c == '"') {
        ++at_;
        return true;
      }
      if (c >= ' ' && c <= '~') {
        if (c == '\\' && !ReadEscaped()) return false;
        ++at_;
      } else if (!ReadBeyondAscii()) {
        return false;
      }
    }
    return false;
  }
  // Stands at the escaped character afterwards.
  bool ReadEscaped() {
    ++at_;
    return at_ < text_.size() && text_[at_] >= ' ' && text_[at_] <= '~';
  }
  bool ReadBeyondAscii() {
    if (alphabet_ == Mailbox::kAscii || static_cast<uint8_t>(text_[at_]) < 0x80) return false;
    uint32_t scalar;
    const size_t count = ReadUtf8Scalar(AsBytes(text_.data() + at_, text_.size() - at_), &scalar);
    at_ += count;
    is_ascii_ = false;
    return count != 0;
  }

  std::string_view text_;
  Mailbox::Alphabet alphabet_;
  size_t at_ = 0;
  bool is_ascii_ = true;
};

// "[192.0.2.1]" or "[IPv6:2001:db8::1]" (RFC 5321 4.1.3).
bool ReadLiteral(std::string_view text, IpAddress* address) {
  if (text.size() < 2 || text.back() != ']') return false;
  std::string_view inside = text.substr(1, text.size() - 2);
  const bool has_tag = SameWithoutCase(inside.substr(0, kLiteralTag.size()), kLiteralTag);
  if (has_tag) inside.remove_prefix(kLiteralTag.size());
  return ReadIpAddress(inside, address) && address->size == (has_tag ? kIPv6Octets : kIPv4Octets);
}

}  // namespace

bool Mailbox::Read(std::string_view text, Alphabet alphabet, Mailbox* mailbox, Refusal* refusal) {
  const auto refuse = [text, refusal](ortholan_reason reason, size_t at) {
    return RefuseText(refusal, reason, text.substr(at));
  };
  LocalReader local(text, alphabet);
  const size_t size = local.Size();
  if (size == 0 || size > kMaxLocalOctets) return refuse(ORTHOLAN_REASON_MAILBOX_LOCAL, 0);
  if (size == text.size() || text[size] != '@') return refuse(ORTHOLAN_REASON_MAILBOX_AT, size);
  Mailbox read;
  read.local = text.substr(0, size);
  read.is_ascii = local.is_ascii();
  read.host = text.substr(size + 1);
  if (!read.host.empty() && read.host.front() == '[') {
    if (!ReadLiteral(read.host, &read.address)) {
      return refuse(ORTHOLAN_REASON_MAILBOX_LITERAL, size + 1);
    }
    read.host = {};
  } else if (!CheckHost(read.host, kUnderscores, refusal)) {
    return false;
  }
  *mailbox = read;
  return true;
}

bool CheckUtf8Mailbox(std::string_view text, Refusal* refusal) {
  Mailbox mailbox;
  if (!Mailbox::Read(text, Mailbox::kUtf8, &mailbox, refusal)) return false;
  return !mailbox.is_ascii || RefuseText(refusal, ORTHOLAN_REASON_ASCII_LOCAL_PART, text);
}

}  // namespace Ortholan::strict
