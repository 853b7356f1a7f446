// What the C++ face of the strict layer shares: octets, and results that hold a value or say why
// not. Header-only over the C functions, so that every compiler can use every build of the library.
//
//   const ortholan::Result<ortholan::NameView> name = ortholan::NameView::Read(der);
//   if (!name) std::cerr << name.refusal().Sentence();
//   else use(*name);
//
//   use(ortholan::NameView::Read(der).value());   // throws ortholan::Error instead
#ifndef ORTHOLAN_STRICT_BASE_HPP_
#define ORTHOLAN_STRICT_BASE_HPP_

#include <ortholan/strict/base.h>

#include <exception>
#include <iterator>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace ortholan {

// Octets that somebody else owns. Made of anything contiguous that holds octets or characters.
class Octets {
 public:
  constexpr Octets() = default;
  constexpr Octets(const uint8_t* data, size_t size) : data_(data), size_(size) {}
  constexpr Octets(ortholan_octets octets) : data_(octets.data), size_(octets.size) {}
  Octets(const std::vector<uint8_t>& octets) : data_(octets.data()), size_(octets.size()) {}
  Octets(const std::string& octets) : Octets(std::string_view(octets)) {}
  Octets(std::string_view octets)
      : data_(reinterpret_cast<const uint8_t*>(octets.data())), size_(octets.size()) {}

  constexpr const uint8_t* data() const { return data_; }
  constexpr size_t size() const { return size_; }
  constexpr bool empty() const { return size_ == 0; }
  constexpr const uint8_t* begin() const { return data_; }
  constexpr const uint8_t* end() const { return data_ + size_; }
  constexpr uint8_t operator[](size_t index) const { return data_[index]; }
  constexpr operator ortholan_octets() const { return {data_, size_}; }

  friend bool operator==(Octets a, Octets b) { return a.AsText() == b.AsText(); }
  friend bool operator!=(Octets a, Octets b) { return !(a == b); }

 private:
  std::string_view AsText() const { return {reinterpret_cast<const char*>(data_), size_}; }

  const uint8_t* data_ = nullptr;
  size_t size_ = 0;
};

// The text as the C functions take it.
inline ortholan_text ToText(std::string_view text) { return {text.data(), text.size()}; }

// How closely an encoding is read; verdicts never take kLenient.
enum class Reading : int32_t {
  kDer = ORTHOLAN_READ_DER,
  kLenient = ORTHOLAN_READ_LENIENT,
  kStructure = ORTHOLAN_READ_STRUCTURE,
};

// What was decided; only kYes is a yes.
enum class Verdict : int32_t {
  kNo = ORTHOLAN_VERDICT_NO,
  kYes = ORTHOLAN_VERDICT_YES,
  kCannotTell = ORTHOLAN_VERDICT_CANNOT_TELL,
};

// Calls a function that writes into the caller's room, first with room for most, and again with as
// much as it needs. `call` takes pointer, room and the place of the size. Throws std::bad_alloc.
template <class String, class Call>
ortholan_reason WithRoom(String* out, Call call, size_t guess = 128) {
  size_t size = 0;
  out->resize(guess);
  ortholan_reason reason = call(out->data(), out->size(), &size);
  if (reason == ORTHOLAN_REASON_ROOM) {
    out->resize(size);
    reason = call(out->data(), out->size(), &size);
  }
  if (reason == ORTHOLAN_REASON_MEMORY) throw std::bad_alloc();
  out->resize(reason == ORTHOLAN_REASON_NONE ? size : 0);
  return reason;
}

// Why and where an input was refused.
struct Refusal : ortholan_refusal {
  Refusal() : ortholan_refusal{} {}
  Refusal(const ortholan_refusal& refusal) : ortholan_refusal(refusal) {}
  explicit Refusal(ortholan_reason why) : ortholan_refusal{why, 0, 0, ORTHOLAN_NO_PLACE} {}

  // One English sentence without a full stop.
  std::string Sentence() const {
    std::string text;
    WithRoom(&text, [this](char* out, size_t room, size_t* size) {
      return ortholan_refusal_sentence(this, out, room, size);
    });
    return text;
  }
};

// What Result::value throws.
class Error : public std::exception {
 public:
  explicit Error(const Refusal& refusal) : refusal_(refusal), what_(refusal.Sentence()) {}
  const Refusal& refusal() const { return refusal_; }
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  Refusal refusal_;
  std::string what_;
};

// A value, or why there is none.
template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : value_(std::move(value)) {}
  Result(const Refusal& refusal) : refusal_(refusal) {}

  bool has_value() const { return value_.has_value(); }
  explicit operator bool() const { return has_value(); }
  // Only where there is a value.
  const T& operator*() const { return *value_; }
  const T* operator->() const { return &*value_; }
  T& operator*() { return *value_; }
  // Throws Error where there is none.
  const T& value() const& {
    if (!value_) throw Error(refusal_);
    return *value_;
  }
  T value() && {
    if (!value_) throw Error(refusal_);
    return std::move(*value_);
  }
  const Refusal& refusal() const { return refusal_; }

 private:
  std::optional<T> value_;
  Refusal refusal_;
};

// What a call that writes into room puts there, text or octets, or why it was refused. `call` takes
// what WithRoom's does, and after that, where it can tell the place, a refusal to fill.
template <class String, class Call>
Result<String> MadeBy(Call call, size_t guess = 128) {
  String made;
  Refusal refusal;
  const auto write = [&](auto* out, size_t room, size_t* size) {
    if constexpr (std::is_invocable_v<Call, decltype(out), size_t, size_t*, Refusal*>) {
      return call(out, room, size, &refusal);
    } else {
      return call(out, room, size);
    }
  };
  const ortholan_reason reason = WithRoom(&made, write, guess);
  if (reason == ORTHOLAN_REASON_NONE) return made;
  return refusal.reason != ORTHOLAN_REASON_NONE ? refusal : Refusal(reason);
}

namespace detail {

// What a C function reads into its structure.
template <class Plain, class Call>
Result<Plain> ReadPlain(Octets value, Reading reading, Call call) {
  Plain plain;
  Refusal refusal;
  const ortholan_reason reason = call(value, static_cast<int32_t>(reading), &plain, &refusal);
  if (reason != ORTHOLAN_REASON_NONE) return refusal;
  return plain;
}

// The same as a value of C++ that is made of one.
template <class Value, class Plain, class Call>
Result<Value> ReadValue(Octets value, Reading reading, Call call) {
  const Result<Plain> plain = ReadPlain<Plain>(value, reading, call);
  if (!plain) return plain.refusal();
  return Value(*plain);
}

// The iterator of a range over borrowed octets. A `Walk` stands at an item or at the end, steps to
// the next one, and tells whether another stands at the same place.
template <class Walk>
class Iterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using reference = decltype(std::declval<const Walk&>().item());
  using value_type = std::decay_t<reference>;
  using difference_type = std::ptrdiff_t;
  using pointer = const value_type*;

  Iterator() = default;
  template <class... Parts>
  explicit Iterator(const Parts&... parts) : walk_(parts...) {}

  reference operator*() const { return walk_.item(); }
  pointer operator->() const { return &walk_.item(); }
  Iterator& operator++() {
    walk_.Step();
    return *this;
  }
  bool operator==(const Iterator& other) const { return walk_.IsAt(other.walk_); }
  bool operator!=(const Iterator& other) const { return !(*this == other); }

 private:
  Walk walk_;
};

}  // namespace detail

// An OBJECT IDENTIFIER's content octets as dotted text.
inline Result<std::string> OidToText(Octets oid) {
  return MadeBy<std::string>([oid](char* out, size_t room, size_t* size) {
    return ortholan_oid_to_text(oid, out, room, size);
  });
}

// Dotted text as content octets.
inline Result<std::vector<uint8_t>> OidFromText(std::string_view text) {
  return MadeBy<std::vector<uint8_t>>([text](uint8_t* out, size_t room, size_t* size) {
    return ortholan_oid_from_text(ToText(text), out, room, size);
  });
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_BASE_HPP_
