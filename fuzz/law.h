// Laws that hold for every input: a broken one is told and ends the process, so that the fuzzer
// keeps the input.
#ifndef ORTHOLAN_FUZZ_LAW_H_
#define ORTHOLAN_FUZZ_LAW_H_

#include <ortholan/platform.h>
#include <ortholan/status.h>

#include <exception>
#include <list>
#include <string>
#include <utility>

namespace Ortholan::fuzzing {

// What is told with a broken law: where the input comes from, and its octets.
void SetInput(const std::string& source, const std::string& octets);

[[noreturn]] void Break(const char* law, const char* file, int line);

#define LAW(condition)                                                            \
  do {                                                                            \
    if (!(condition)) ::Ortholan::fuzzing::Break(#condition, __FILE__, __LINE__); \
  } while (false)

// The last error before a call whose code matters: a code that no call sets.
constexpr DWORD kUntouched = 7777;

// What a call did, so that two of its forms can be compared: "returned", the status and place of
// an XZEPStatus, or "untyped" and the last error. Anything else breaks a law.
template <typename Call>
std::string Outcome(Call&& call) {
  try {
    call();
  } catch (const XZEPStatus& failure) {
    LAW(failure.GetStatus() != 0);
    return std::to_string(failure.GetStatus()) + ' ' + failure.GetMessageText();
  } catch (const std::exception&) {
    Break("no standard exception", __FILE__, __LINE__);
  } catch (...) {
    return "untyped " + std::to_string(GetLastError());
  }
  return "returned";
}

inline const std::string kReturned = "returned";
inline const std::string kNameRefused = "untyped 1358";

// A call's boolean result and the last error that it left.
template <typename Call>
std::pair<bool, DWORD> Answer(Call&& call) {
  SetLastError(kUntouched);
  const bool done = call();
  return {done, GetLastError()};
}

// The values of one pair of a decoded name, a line each.
std::wstring Joined(const std::list<std::wstring>& values);

}  // namespace Ortholan::fuzzing

#endif  // ORTHOLAN_FUZZ_LAW_H_
