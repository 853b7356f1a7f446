#include <ortholan/status.h>

#include "foundation/report.h"

namespace Ortholan {

XZEPBaseMsg::XZEPBaseMsg() noexcept = default;
XZEPBaseMsg::XZEPBaseMsg(const XZEPBaseMsg&) noexcept = default;
XZEPBaseMsg& XZEPBaseMsg::operator=(const XZEPBaseMsg&) noexcept = default;
XZEPBaseMsg::~XZEPBaseMsg() = default;

XZEPMsg::XZEPMsg(const char* text, bool flag) : text_(text), flag_(flag) {}
XZEPMsg::XZEPMsg(const XZEPMsg&) noexcept = default;
XZEPMsg& XZEPMsg::operator=(const XZEPMsg&) noexcept = default;
XZEPMsg::~XZEPMsg() = default;
const char* XZEPMsg::GetMessageText() const noexcept { return text_.c_str(); }
bool XZEPMsg::GetFlag() const noexcept { return flag_; }

XZEPStatus::XZEPStatus(DWORD status, bool flag) : XZEPMsg(nullptr, flag), status_(status) {}
XZEPStatus::XZEPStatus(DWORD status, const char* where, bool flag)
    : XZEPMsg(where, flag), status_(status) {}
XZEPStatus::XZEPStatus(const XZEPStatus&) noexcept = default;
XZEPStatus& XZEPStatus::operator=(const XZEPStatus&) noexcept = default;
XZEPStatus::~XZEPStatus() = default;
DWORD XZEPStatus::GetStatus() const noexcept { return status_; }
void XZEPStatus::ClearStatus() { status_ = 0; }

CZEPString XZEPStatus::GetText() const {
  CZEPString text;
  text.Format("Status = %d", static_cast<int>(status_));
  return text;
}

void Throw(const Fault& fault) { throw XZEPStatus(ToCode(fault.status), fault.where); }

void ThrowNoMemory() { throw XZEPStatus(ToCode(Status::kNoMemory)); }

void ReportOrThrow(const Fault& fault, DWORD* status) {
  if (status != nullptr) {
    *status = ToCode(fault.status);
  } else if (fault) {
    Throw(fault);
  }
}

bool FailWith(Status status) {
  SetLastError(ASNTStatusToWinError(ToCode(status)));
  return false;
}

}  // namespace Ortholan
