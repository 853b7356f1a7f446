// The shared 8-bit string of the interface: attribute keys, identifiers and 8-bit name text.
//
//   Ortholan::CZEPString key("2.5.4.3");
//   Ortholan::CZEPString copy = key;           // shares the text
//   copy += '1';                               // `key` stays "2.5.4.3"
#ifndef ORTHOLAN_ZEP_STRING_H_
#define ORTHOLAN_ZEP_STRING_H_

#include <ortholan/export.h>
#include <ortholan/platform.h>

#include <atomic>
#include <cstdarg>
#include <cstddef>
#include <cstdint>

ORTHOLAN_CLASSES_BEGIN

namespace Ortholan {

// Base of objects that several holders share. The count starts at 1 and changes atomically.
class ORTHOLAN_EXPORT CZEPReference {
 public:
  CZEPReference() noexcept;
  CZEPReference(const CZEPReference&) = delete;
  CZEPReference& operator=(const CZEPReference&) = delete;
  virtual ~CZEPReference();
  // Returns the new count.
  virtual int32_t AddRef();
  // Returns the new count; at 0 the object is gone.
  virtual int32_t Release();

 protected:
  // Whether there is more than one holder.
  bool IsShared() const noexcept;

 private:
  std::atomic<int32_t> references_;
};

// An 8-bit string. Copies share one representation, which is never changed while it is shared.
// Lengths are bytes without the terminator. Where memory runs out the string becomes empty; nothing
// throws but LoadString, FormatMessage and Compare with `useLocale`: std::bad_alloc. `const char*`
// arguments may be null, which is "", and may point into the string itself.
class ORTHOLAN_EXPORT CZEPString {
 public:
  // Loads the format by `id` as LoadString does, then formats as Format does.
  virtual void FormatMessage(UINT id, ...);
  virtual void FormatMessage(const char* moduleName, UINT id, ...);
  virtual ~CZEPString();

  CZEPString() noexcept;
  // A copy of terminated text.
  CZEPString(const char* text);
  // One character.
  CZEPString(char character);
  // The first `length` bytes of `text`, NULs included.
  CZEPString(const char* text, size_t length);
  CZEPString(const CZEPString& other) noexcept;
  CZEPString(CZEPString&& other) noexcept;
  CZEPString& operator=(const CZEPString& other) noexcept;
  CZEPString& operator=(CZEPString&& other) noexcept;

  // Terminated text, never null; valid until this string changes.
  const char* c_str() const noexcept;
  // Bytes, NULs inside included.
  int32_t GetLength() const noexcept;

  // By bytes, unsigned. An empty string is neither less nor greater than anything.
  bool operator<(const CZEPString& other) const noexcept;
  bool operator>(const CZEPString& other) const noexcept;
  // By bytes; two empty strings are equal.
  bool operator==(const CZEPString& other) const noexcept;
  // Not ==.
  bool operator!=(const CZEPString& other) const noexcept;

  // Appends; constant time a byte where nobody shares the text.
  CZEPString& operator+=(const CZEPString& other);
  CZEPString& operator+=(char character);

  // -1, 0 or 1; the empty string comes first. `ignoreCase` folds ASCII letters only; `useLocale`
  // compares with strcoll, on folded copies when both are set.
  int Compare(const CZEPString& other, bool ignoreCase, bool useLocale) const;

  // Replaces the text by the formatted one. `format` and the arguments are those of printf and,
  // like there, must match; a format that cannot be carried out gives "".
  void Format(const char* format, ...);

  // Replaces the text by the string resource `id` of a module: this library's for "ZEPAK2" in any
  // letter case and for the form without a name, the host program's for null, otherwise the file
  // `moduleName` beside the host program. A module that is not found changes nothing, a resource
  // that is not found gives "". True when a text was found.
  bool LoadString(UINT id, const char* moduleName);
  bool LoadString(UINT id);

 private:
  class CZEPStringImp;
  friend void SetRequiredText(const char* text, size_t length, CZEPString* out);

  void Adopt(CZEPStringImp* representation) noexcept;
  void Assign(const char* text, size_t length);
  void Append(const char* text, size_t length);
  void FormatList(const char* format, std::va_list arguments);

  CZEPStringImp* imp_;
};

}  // namespace Ortholan

ORTHOLAN_CLASSES_END

#endif  // ORTHOLAN_ZEP_STRING_H_
