// Status codes as exceptions, and their way to and from the platform's error codes.
//
//   try { der = Ortholan::ASNTPutSequence(children, 16, nullptr); }
//   catch (const Ortholan::XZEPStatus& failure) {
//     SetLastError(Ortholan::ASNTStatusToWinError(failure.GetStatus()));
//   }
#ifndef ORTHOLAN_STATUS_H_
#define ORTHOLAN_STATUS_H_

#include <ortholan/export.h>
#include <ortholan/platform.h>
#include <ortholan/zep_string.h>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// Root of what the library throws by type.
class ORTHOLAN_EXPORT XZEPBaseMsg {
 public:
  XZEPBaseMsg() noexcept;
  XZEPBaseMsg(const XZEPBaseMsg&) noexcept;
  XZEPBaseMsg& operator=(const XZEPBaseMsg&) noexcept;
  virtual ~XZEPBaseMsg();
};

// Adds the name of the operation that failed; "" where there is none.
class ORTHOLAN_EXPORT XZEPMsg : public XZEPBaseMsg {
 public:
  // `text` is copied, null is ""; the flag is kept for who catches.
  explicit XZEPMsg(const char* text, bool flag = false);
  XZEPMsg(const XZEPMsg&) noexcept;
  XZEPMsg& operator=(const XZEPMsg&) noexcept;
  ~XZEPMsg() override;

  // The operation's name, valid as long as the exception.
  const char* GetMessageText() const noexcept;
  // The flag; the library throws all with false.
  bool GetFlag() const noexcept;

 private:
  CZEPString text_;
  bool flag_;
};

// Adds a status code:
//   1    value not encodable              16   out of memory
//   28   invalid argument                 36   unknown platform error
//   131  element of another type          205  bad ASN.1 tag
//   206  corrupt or truncated ASN.1
class ORTHOLAN_EXPORT XZEPStatus : public XZEPMsg {
 public:
  // Without an operation's name.
  explicit XZEPStatus(DWORD status, bool flag = false);
  // With one.
  XZEPStatus(DWORD status, const char* where, bool flag = false);
  XZEPStatus(const XZEPStatus&) noexcept;
  XZEPStatus& operator=(const XZEPStatus&) noexcept;
  ~XZEPStatus() override;

  // The code.
  DWORD GetStatus() const noexcept;
  // "Status = " and the code in decimal.
  virtual CZEPString GetText() const;
  // Sets the code to 0.
  virtual void ClearStatus();

 private:
  DWORD status_;
};

// The platform's error code for a status code; 1627 for a code that has none of its own.
ORTHOLAN_EXPORT DWORD ASNTStatusToWinError(DWORD status) noexcept;

// The status code for a platform error code; 36 for an error that has none of its own. Not the
// inverse of ASNTStatusToWinError everywhere.
ORTHOLAN_EXPORT DWORD WinErrorToStatus(DWORD winError) noexcept;

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_STATUS_H_
