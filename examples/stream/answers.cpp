#include "examples/stream/answers.h"

#include <algorithm>
#include <string>

#include "examples/json.h"
#include "examples/text.h"

namespace Example {
namespace {

constexpr char kRefused = '!';

// Whether it is one line that no refusal looks like.
bool FitsLine(std::string_view text) {
  if (text.empty()) return true;
  return text[0] != kRefused && text.find_first_of("\n\r\t") == std::string_view::npos;
}

bool IsPlain(char character) {
  return character >= 0x20 && character < 0x7F && character != '"' && character != '\\';
}

}  // namespace

void Answers::AddText(const char* member, std::string_view text) {
  if (is_json_) {
    lines_.append("{\"");
    lines_.append(member);
    lines_.append("\":");
    PutString(text);
    lines_.append("}");
  } else {
    lines_.append(text);
  }
  End();
}

void Answers::AddFreeText(const char* member, std::string_view text) {
  if (!is_json_ && !FitsLine(text)) {
    return AddRefusal(0, "a text that a line cannot hold; --json has it");
  }
  AddText(member, text);
}

void Answers::AddHex(const char* member, std::string_view octets) {
  if (is_json_) {
    lines_.append("{\"");
    lines_.append(member);
    lines_.append("\":\"");
  }
  PutHex(octets);
  if (is_json_) lines_.append("\"}");
  End();
}

void Answers::AddLine(std::string_view line) {
  lines_.append(line);
  End();
}

void Answers::AddYes(const char* member, std::string_view text) {
  lines_.append(is_json_ ? "{\"verdict\":\"yes\"" : "yes");
  if (member != nullptr) {
    lines_.append(is_json_ ? ",\"" + std::string(member) + "\":" : " ");
    PutString(text);
  }
  if (is_json_) lines_.append("}");
  End();
}

void Answers::AddNo(std::uint32_t code, std::string_view reason) {
  lines_.append(is_json_ ? R"({"verdict":"no","reason":)" : "no ");
  PutString(reason);
  if (is_json_) PutCode(code);
  End();
}

void Answers::AddCannotTell(std::uint32_t code, std::string_view reason) {
  if (!is_json_) {
    AddRefusal(code, "cannot tell: " + std::string(reason));
    return;
  }
  lines_.append(R"({"verdict":"cannot tell","error":)");
  PutString(reason);
  PutCode(code);
  ++refused_;
  End();
}

void Answers::AddRefusal(std::uint32_t code, std::string_view reason) {
  if (is_json_) {
    lines_.append("{\"error\":");
    PutString(reason);
    PutCode(code);
  } else {
    lines_.append(kRefused + std::to_string(code) + " ");
    PutString(reason);
  }
  ++refused_;
  End();
}

void Answers::AddRefusal(const ortholan::Refusal& refusal) {
  AddRefusal(static_cast<std::uint32_t>(refusal.reason), refusal.Sentence());
}

void Answers::Clear() {
  lines_.clear();
  count_ = 0;
  refused_ = 0;
}

void Answers::PutHex(std::string_view octets) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  const std::size_t before = lines_.size();
  lines_.resize(before + 2 * octets.size());
  char* out = lines_.data() + before;
  for (const char octet : octets) {
    *out++ = kDigits[static_cast<unsigned char>(octet) >> 4];
    *out++ = kDigits[octet & 0x0F];
  }
}

// A string of JSON, or text in which what nobody sees is escaped, line ends and tabs among it.
void Answers::PutString(std::string_view text) {
  const bool is_plain = std::all_of(text.begin(), text.end(), IsPlain);
  if (!is_plain) {
    const std::string whole(text);
    lines_.append(is_json_ ? JsonString(whole) : VisibleInMessage(Repaired(whole)));
    return;
  }
  if (is_json_) lines_.append("\"");
  lines_.append(text);
  if (is_json_) lines_.append("\"");
}

void Answers::PutCode(std::uint32_t code) {
  lines_.append(",\"code\":" + std::to_string(code) + "}");
}

void Answers::End() {
  lines_ += '\n';
  ++count_;
}

}  // namespace Example
