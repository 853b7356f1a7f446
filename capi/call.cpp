#include "capi/call.h"

#include <ortholan/status.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <new>
#include <stdexcept>

namespace Ortholan::capi {
namespace {

constexpr size_t kDetailSize = 448;
constexpr size_t kMessageSize = kDetailSize + 64;  // and a function's name

// Trivial, so that a thread's end has nothing to release and the report of a lack of memory needs
// none.
struct LastFailure {
  ortholan_result result;
  DWORD status;
  DWORD system_error;
  char message[kMessageSize];
};

thread_local LastFailure last_failure = {};
thread_local char kept_detail[kDetailSize];

struct TextRow {
  ortholan_result result;
  const char* text;
};

constexpr TextRow kTexts[] = {
    {ORTHOLAN_ERROR_ARGUMENT, "an argument is NULL or too large"},
    {ORTHOLAN_ERROR_MEMORY, "out of memory"},
    {ORTHOLAN_ERROR_UTF8, "the text is not UTF-8"},
    {ORTHOLAN_ERROR_NAME_TEXT,
     "the text is no name: an unknown type, a value that is empty or outside the alphabet of its "
     "type, or no list of type = value"},
    {ORTHOLAN_ERROR_TYPE, "neither a known key nor a dotted identifier"},
    {ORTHOLAN_ERROR_VALUE, "the value is empty or outside the alphabet of its type"},
    {ORTHOLAN_ERROR_DER, "the octets are not the encoding that was asked for"},
    {ORTHOLAN_ERROR_MULTI_VALUED, "the name has an RDN of several attributes"},
    {ORTHOLAN_ERROR_NOT_FOUND, "there is no such entry"},
    {ORTHOLAN_ERROR_SYSTEM, "the system refused"},
    {ORTHOLAN_ERROR_INTERNAL, "a fault of the library"},
};

const char* TextOf(ortholan_result result) {
  const auto* row = std::find_if(std::begin(kTexts), std::end(kTexts),
                                 [result](const TextRow& entry) { return entry.result == result; });
  return row != std::end(kTexts) ? row->text : "";
}

// WinErrorToStatus is not the inverse of the map that made this code of a status.
DWORD StatusOf(DWORD system_error) {
  return system_error == ERROR_LOGON_FAILURE ? ToCode(Status::kNotEncodable)
                                             : WinErrorToStatus(system_error);
}

ortholan_result ResultOf(DWORD status) {
  switch (static_cast<Status>(status)) {
    case Status::kNoMemory:
      return ORTHOLAN_ERROR_MEMORY;
    case Status::kBadArgument:
      return ORTHOLAN_ERROR_ARGUMENT;
    case Status::kNotEncodable:
      return ORTHOLAN_ERROR_VALUE;
    case Status::kWrongType:
    case Status::kBadTag:
    case Status::kCorrupt:
      return ORTHOLAN_ERROR_DER;
    case Status::kOk:
      break;
  }
  return ORTHOLAN_ERROR_SYSTEM;
}

Outcome NoMemory() { return {ORTHOLAN_ERROR_MEMORY, ToCode(Status::kNoMemory)}; }

}  // namespace

Outcome NullArgument() { return Refused(ORTHOLAN_ERROR_ARGUMENT, Status::kBadArgument); }

Outcome NotFound() { return Refused(ORTHOLAN_ERROR_NOT_FOUND, Status::kOk); }

Outcome Refused(ortholan_result result, Status status, const char* detail) {
  return {result, ToCode(status), ERROR_SUCCESS, detail};
}

Outcome RefusedByLastError(ortholan_result result, Status status, const char* detail) {
  const DWORD error = GetLastError();
  if (error == ERROR_SUCCESS) return Refused(result, status, detail);
  if (error == ERROR_NOT_ENOUGH_MEMORY) return NoMemory();
  return {result, StatusOf(error), error, detail};
}

const char* KeptDetail(std::string_view detail) {
  // None is as long: of what the caller wrote at most 40 characters are shown.
  kept_detail[detail.copy(kept_detail, kDetailSize - 1)] = '\0';
  return kept_detail;
}

Outcome FromException() {
  try {
    throw;
  } catch (const XZEPStatus& failure) {
    return {ResultOf(failure.GetStatus()), failure.GetStatus()};
  } catch (const std::bad_alloc&) {
    return NoMemory();
  } catch (const std::length_error&) {
    return NoMemory();
  } catch (...) {
    return RefusedByLastError(ORTHOLAN_ERROR_INTERNAL, Status::kOk);
  }
}

ortholan_result Report(const char* function, const Outcome& outcome) {
  LastFailure& last = last_failure;
  last.result = outcome.result;
  last.status = outcome.status;
  last.system_error = outcome.system_error;
  const char* text = outcome.detail != nullptr ? outcome.detail : TextOf(outcome.result);
  std::snprintf(last.message, kMessageSize, "%s: %s", function, text);
  return outcome.result;
}

}  // namespace Ortholan::capi

using Ortholan::capi::last_failure;

ortholan_result ortholan_last_error(void) { return last_failure.result; }

uint32_t ortholan_last_status(void) { return last_failure.status; }

uint32_t ortholan_last_system_error(void) { return last_failure.system_error; }

const char* ortholan_last_error_message(void) { return last_failure.message; }
