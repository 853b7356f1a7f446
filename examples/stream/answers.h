// The lines that go out, one for each item, as text or as JSON:
//
//   CN=Alpha,C=RU                         {"text":"CN=Alpha,C=RU"}
//   yes                                   {"verdict":"yes"}
//   no RDN 1 (2.5.4.3): ...               {"verdict":"no","reason":"...","code":183}
//   !20 at offset 27: ...                 {"error":"...","code":20}
#ifndef ORTHOLAN_EXAMPLES_STREAM_ANSWERS_H_
#define ORTHOLAN_EXAMPLES_STREAM_ANSWERS_H_

#include <cstddef>
#include <cstdint>
#include <ortholan/strict/base.hpp>
#include <string>
#include <string_view>

namespace Example {

class Answers {
 public:
  explicit Answers(bool is_json) : is_json_(is_json) {}

  // A result; `member` is what JSON calls it. Text has no line ends and no "!" in front.
  void AddText(const char* member, std::string_view text);
  // The same of any text: one that a line cannot hold is refused.
  void AddFreeText(const char* member, std::string_view text);
  void AddHex(const char* member, std::string_view octets);
  // A line as it stands.
  void AddLine(std::string_view line);

  // A verdict, with the name that decided; `member` may be null.
  void AddYes(const char* member = nullptr, std::string_view text = {});
  void AddNo(std::uint32_t code, std::string_view reason);
  void AddCannotTell(std::uint32_t code, std::string_view reason);

  // `code` is a reason of the strict layer, in the older text form the system's code, or 0.
  void AddRefusal(std::uint32_t code, std::string_view reason);
  void AddRefusal(const ortholan::Refusal& refusal);

  const std::string& Lines() const { return lines_; }
  void Clear();
  bool IsJson() const { return is_json_; }
  std::uint64_t Count() const { return count_; }
  std::uint64_t RefusedCount() const { return refused_; }

 private:
  void PutHex(std::string_view octets);
  void PutString(std::string_view text);
  void PutCode(std::uint32_t code);
  void End();

  bool is_json_;
  std::string lines_;
  std::uint64_t count_ = 0;
  std::uint64_t refused_ = 0;
};

}  // namespace Example

#endif  // ORTHOLAN_EXAMPLES_STREAM_ANSWERS_H_
