// How an operation without a type to its failure ends, as text to compare.

#ifndef ORTHOLAN_TESTS_SUPPORT_FAILURE_H_
#define ORTHOLAN_TESTS_SUPPORT_FAILURE_H_

#include <ortholan/platform.h>
#include <ortholan/status.h>

#include <exception>
#include <string>

namespace Ortholan::testing {

// "returned"; "untyped" and the last error where only `catch (...)` sees what `call` throws;
// otherwise the type that does.
template <class Call>
std::string Failure(Call&& call) {
  SetLastError(0);
  try {
    call();
  } catch (const std::exception&) {
    return "std::exception";
  } catch (const XZEPBaseMsg&) {
    return "XZEPBaseMsg";
  } catch (int) {
    return "int";
  } catch (const char*) {
    return "const char*";
  } catch (...) {
    return "untyped " + std::to_string(GetLastError());
  }
  return "returned";
}

inline constexpr char kUntyped[] = "untyped 1358";

}  // namespace Ortholan::testing

#endif  // ORTHOLAN_TESTS_SUPPORT_FAILURE_H_
