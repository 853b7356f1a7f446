#include <ortholan/zep_string.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <limits>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include "bytes/ignore_case.h"
#include "foundation/message_loader.h"
#include "foundation/report.h"
#include "foundation/required_text.h"
#include "foundation/standard_format.h"

namespace Ortholan {

CZEPReference::CZEPReference() noexcept : references_(1) {}
CZEPReference::~CZEPReference() = default;

int32_t CZEPReference::AddRef() { return references_.fetch_add(1, std::memory_order_relaxed) + 1; }

int32_t CZEPReference::Release() {
  const int32_t left = references_.fetch_sub(1, std::memory_order_acq_rel) - 1;
  if (left == 0) delete this;
  return left;
}

bool CZEPReference::IsShared() const noexcept {
  return references_.load(std::memory_order_acquire) != 1;
}

// The text lies behind the object in the same block, so a string costs one allocation.
class CZEPString::CZEPStringImp final : public CZEPReference {
 public:
  // Lengths are 32 bits signed, terminator included in the buffer.
  static constexpr size_t kMaxLength = std::numeric_limits<int32_t>::max() - 1;

  // Room for `length` characters and some of `spare` more.
  static CZEPStringImp* Create(size_t length, size_t spare = 0) {
    if (length > kMaxLength) return nullptr;
    const size_t capacity = length + std::min(spare, kMaxLength - length);
    void* block = ::operator new(sizeof(CZEPStringImp) + capacity + 1, std::nothrow);
    return block != nullptr ? new (block) CZEPStringImp(static_cast<int32_t>(capacity)) : nullptr;
  }
  static void operator delete(void* block) { ::operator delete(block); }

  char* buffer() { return buffer_; }
  size_t length() const { return static_cast<size_t>(length_); }
  std::string_view text() const { return {buffer_, length()}; }
  bool CanAppend(size_t count) const {
    return !IsShared() && count <= static_cast<size_t>(capacity_ - length_);
  }
  void Append(const char* text, size_t count) {
    std::memmove(buffer_ + length_, text, count);
    SetLength(length() + count);
  }
  void SetLength(size_t length) {
    length_ = static_cast<int32_t>(length);
    buffer_[length] = '\0';
  }

 private:
  explicit CZEPStringImp(int32_t capacity)
      : buffer_(reinterpret_cast<char*>(this + 1)), length_(0), capacity_(capacity) {
    buffer_[0] = '\0';
  }

  char* buffer_;
  int32_t length_;
  int32_t capacity_;
};

CZEPString::CZEPString() noexcept : imp_(nullptr) {}

CZEPString::CZEPString(const char* text) : imp_(nullptr) {
  if (text != nullptr) Assign(text, std::strlen(text));
}

CZEPString::CZEPString(char character) : imp_(nullptr) { Assign(&character, 1); }

CZEPString::CZEPString(const char* text, size_t length) : imp_(nullptr) {
  if (text != nullptr) Assign(text, length);
}

CZEPString::CZEPString(const CZEPString& other) noexcept : imp_(other.imp_) {
  if (imp_ != nullptr) imp_->AddRef();
}

CZEPString::CZEPString(CZEPString&& other) noexcept : imp_(std::exchange(other.imp_, nullptr)) {}

CZEPString::~CZEPString() { Adopt(nullptr); }

CZEPString& CZEPString::operator=(const CZEPString& other) noexcept {
  if (other.imp_ != nullptr) other.imp_->AddRef();
  Adopt(other.imp_);
  return *this;
}

CZEPString& CZEPString::operator=(CZEPString&& other) noexcept {
  if (this != &other) Adopt(std::exchange(other.imp_, nullptr));
  return *this;
}

const char* CZEPString::c_str() const noexcept { return imp_ != nullptr ? imp_->buffer() : ""; }

int32_t CZEPString::GetLength() const noexcept {
  return imp_ != nullptr ? static_cast<int32_t>(imp_->length()) : 0;
}

// char_traits<char> compares as unsigned bytes.
bool CZEPString::operator<(const CZEPString& other) const noexcept {
  return imp_ != nullptr && other.imp_ != nullptr && imp_->text() < other.imp_->text();
}

bool CZEPString::operator>(const CZEPString& other) const noexcept { return other < *this; }

bool CZEPString::operator==(const CZEPString& other) const noexcept {
  if (imp_ == nullptr || other.imp_ == nullptr) return imp_ == other.imp_;
  return imp_->text() == other.imp_->text();
}

bool CZEPString::operator!=(const CZEPString& other) const noexcept { return !(*this == other); }

CZEPString& CZEPString::operator+=(const CZEPString& other) {
  if (imp_ == nullptr) return *this = other;
  if (other.imp_ != nullptr) {
    const CZEPString kept = &other == this ? CZEPString() : other;
    Append(other.imp_->buffer(), other.imp_->length());
  }
  return *this;
}

CZEPString& CZEPString::operator+=(char character) {
  Append(&character, 1);
  return *this;
}

int CZEPString::Compare(const CZEPString& other, bool ignoreCase, bool useLocale) const {
  if (imp_ == nullptr || other.imp_ == nullptr) {
    return static_cast<int>(imp_ != nullptr) - static_cast<int>(other.imp_ != nullptr);
  }
  int order = 0;
  if (useLocale) {
    std::string a(imp_->text());
    std::string b(other.imp_->text());
    if (ignoreCase) {
      for (char& c : a) c = ToAsciiLower(c);
      for (char& c : b) c = ToAsciiLower(c);
    }
    order = std::strcoll(a.c_str(), b.c_str());
  } else if (ignoreCase) {
    order = CompareIgnoreCase(imp_->text(), other.imp_->text());
  } else {
    order = imp_->text().compare(other.imp_->text());
  }
  return static_cast<int>(order > 0) - static_cast<int>(order < 0);
}

void CZEPString::Format(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  FormatList(format, arguments);
  va_end(arguments);
}

// The format is loaded apart from this string, which the arguments may point into, and which is no
// format itself where the module is not found.
void CZEPString::FormatMessage(UINT id, ...) {
  std::string format;
  if (!LoadMessage(id, kOwnModuleName, &format)) return;
  std::va_list arguments;
  va_start(arguments, id);
  FormatList(format.c_str(), arguments);
  va_end(arguments);
}

void CZEPString::FormatMessage(const char* moduleName, UINT id, ...) {
  std::string format;
  const char* name = moduleName != nullptr ? moduleName : kOwnModuleName;
  if (!LoadMessage(id, name, &format)) return;
  std::va_list arguments;
  va_start(arguments, id);
  FormatList(format.c_str(), arguments);
  va_end(arguments);
}

bool CZEPString::LoadString(UINT id, const char* moduleName) {
  std::string text;
  if (!LoadMessage(id, moduleName, &text)) return false;
  Assign(text.data(), text.size());
  return !text.empty();
}

bool CZEPString::LoadString(UINT id) { return LoadString(id, kOwnModuleName); }

void CZEPString::Adopt(CZEPStringImp* representation) noexcept {
  CZEPStringImp* old = std::exchange(imp_, representation);
  if (old != nullptr) old->Release();
}

void CZEPString::Assign(const char* text, size_t length) {
  CZEPStringImp* fresh = length != 0 ? CZEPStringImp::Create(length) : nullptr;
  if (fresh != nullptr) fresh->Append(text, length);
  Adopt(fresh);
}

void SetRequiredText(const char* text, size_t length, CZEPString* out) {
  CZEPString::CZEPStringImp* fresh = nullptr;
  if (length != 0) {
    fresh = CZEPString::CZEPStringImp::Create(length);
    if (fresh == nullptr) ThrowNoMemory();
    fresh->Append(text, length);
  }
  out->Adopt(fresh);
}

void CZEPString::Append(const char* text, size_t length) {
  if (imp_ != nullptr && imp_->CanAppend(length)) {
    imp_->Append(text, length);
    return;
  }
  const std::string_view own = imp_ != nullptr ? imp_->text() : "";
  // Room to grow only where there is something to append to already: most strings never change.
  const size_t needed = own.size() + length;
  CZEPStringImp* fresh = CZEPStringImp::Create(needed, own.empty() ? 0 : needed / 2);
  if (fresh != nullptr) {
    fresh->Append(own.data(), own.size());
    fresh->Append(text, length);
  }
  Adopt(fresh);
}

void CZEPString::FormatList(const char* format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  const StandardFormat standard(format);
  format = standard.text();
  const int length = format != nullptr ? std::vsnprintf(nullptr, 0, format, arguments) : 0;
  CZEPStringImp* fresh = length > 0 ? CZEPStringImp::Create(static_cast<size_t>(length)) : nullptr;
  if (fresh != nullptr) {
    std::vsnprintf(fresh->buffer(), static_cast<size_t>(length) + 1, format, again);
    fresh->SetLength(static_cast<size_t>(length));
  }
  va_end(again);
  Adopt(fresh);
}

}  // namespace Ortholan
