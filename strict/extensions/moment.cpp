#include "strict/extensions/moment.h"

#include "bytes/ascii.h"
#include "bytes/calendar.h"
#include "strict/extensions/leaf_text.h"

namespace Ortholan::strict {
namespace {

constexpr std::string_view kForm = "0000-00-00T00:00:00.000Z";

void PutPart(char before, uint64_t number, Output* out, size_t digits = 2) {
  out->Put(before);
  PutDecimal(number, out, digits);
}

bool HasForm(std::string_view text) {
  if (text.size() != kForm.size()) return false;
  for (size_t i = 0; i < kForm.size(); ++i) {
    const bool is_digit = IsAsciiDigit(static_cast<uint8_t>(text[i]));
    if (kForm[i] == '0' ? !is_digit : text[i] != kForm[i]) return false;
  }
  return true;
}

int64_t NumberIn(std::string_view digits) {
  int64_t number = 0;
  for (const char c : digits) number = number * 10 + (c - '0');
  return number;
}

}  // namespace

void PutMilliseconds(uint64_t time, Output* out) {
  const uint64_t seconds = time / 1000;
  const Date date = DateOf(static_cast<int64_t>(seconds / 86400));
  PutDecimal(static_cast<uint64_t>(date.year), out, 4);
  PutPart('-', static_cast<uint64_t>(date.month), out);
  PutPart('-', static_cast<uint64_t>(date.day), out);
  PutPart('T', seconds / 3600 % 24, out);
  PutPart(':', seconds / 60 % 60, out);
  PutPart(':', seconds % 60, out);
  PutPart('.', time % 1000, out, 3);
  out->Put('Z');
}

int64_t SecondsOf(std::string_view text) {
  const Date date = {NumberIn(text.substr(0, 4)), NumberIn(text.substr(5, 2)),
                     NumberIn(text.substr(8, 2))};
  const int64_t second_of_day = NumberIn(text.substr(11, 2)) * 3600 +
                                NumberIn(text.substr(14, 2)) * 60 + NumberIn(text.substr(17, 2));
  return DaysSince1970(date) * 86400 + second_of_day;
}

// A month or day that there is not, or an hour 24, comes back as another moment.
bool MillisecondsOf(std::string_view text, uint64_t* time) {
  if (!HasForm(text) || text.substr(0, 4) < "1970" || text.substr(5, 2) == "00") return false;
  const int64_t seconds = SecondsOf(text);
  if (seconds < 0) return false;
  *time = static_cast<uint64_t>(seconds * 1000 + NumberIn(text.substr(20, 3)));
  const uint64_t moment = *time;
  return moment <= kLastMillisecond &&
         TextOf([moment](Output* out) { PutMilliseconds(moment, out); }) == text;
}

}  // namespace Ortholan::strict
