// Whose certificate, in C++17.
//
//   const auto reference = ortholan::Reference::Host("www.example.org");
//   const ortholan::Identity identity = ortholan::Identify(certificate, reference).value();
//   if (identity.matches()) std::cout << identity.match().Text();
//   else for (const ortholan::Mismatch& mismatch : identity.Mismatches()) ...
#ifndef ORTHOLAN_STRICT_IDENTITY_HPP_
#define ORTHOLAN_STRICT_IDENTITY_HPP_

#include <ortholan/strict/identity.h>

#include <ortholan/strict/base.hpp>
#include <ortholan/strict/general_names.hpp>

namespace ortholan {

// A question; keeps a view of the caller's text.
class Reference {
 public:
  static Reference Host(std::string_view text) { return {ORTHOLAN_REFERENCE_HOST, text}; }
  static Reference Address(std::string_view text) { return {ORTHOLAN_REFERENCE_ADDRESS, text}; }
  static Reference Mailbox(std::string_view text) { return {ORTHOLAN_REFERENCE_MAILBOX, text}; }
  static Reference Uri(std::string_view text) { return {ORTHOLAN_REFERENCE_URI, text}; }
  static Reference Service(std::string_view text) { return {ORTHOLAN_REFERENCE_SERVICE, text}; }

  // The same with hosts that have an underscore taken for no host names.
  Reference WithoutUnderscores() const {
    Reference other = *this;
    other.reference_.choices |= ORTHOLAN_IDENTIFY_NO_UNDERSCORE;
    return other;
  }

  const ortholan_reference* get() const { return &reference_; }

 private:
  Reference(int32_t kind, std::string_view text) : reference_{kind, 0, ToText(text)} {}

  ortholan_reference reference_;
};

// Why a presented name is not the one that was asked for.
struct Mismatch {
  Octets name;  // the whole element
  ortholan_reason reason = ORTHOLAN_REASON_NONE;

  // "DNS:example.org"; empty for a name of none of the nine kinds.
  std::string Text() const { return GeneralNameText(name); }
  std::string Sentence() const { return ortholan_reason_sentence(reason); }
};

// The answer, over the octets and the text that were asked.
class Identity {
 public:
  Identity(const ortholan_identity& answer, const Refusal& refusal, const Reference& reference)
      : answer_(answer),
        refusal_(refusal.reason != ORTHOLAN_REASON_NONE ? refusal : Refusal(answer.reason)),
        reference_(reference) {}

  Verdict verdict() const { return static_cast<Verdict>(answer_.verdict); }
  bool matches() const { return verdict() == Verdict::kYes; }
  // The name that matched, and its number among the names.
  GeneralName match() const {
    const auto name = GeneralName::Read(answer_.name, Reading::kStructure);
    return name ? *name : GeneralName();
  }
  size_t index() const { return answer_.index; }
  size_t name_count() const { return answer_.name_count; }
  // Why not, with the place in the certificate where it cannot be read.
  const Refusal& refusal() const { return refusal_; }

  // The names, with what makes each of them another one; the one that matched is left out.
  std::vector<Mismatch> Mismatches() const {
    std::vector<Mismatch> mismatches;
    ortholan_presented_name presented;
    for (size_t offset = 0;
         ortholan_identity_explain(&answer_, reference_.get(), &offset, &presented) == 0;) {
      if (presented.reason != ORTHOLAN_REASON_NONE) {
        mismatches.push_back({presented.bytes, presented.reason});
      }
    }
    return mismatches;
  }

 private:
  ortholan_identity answer_;
  Refusal refusal_;
  Reference reference_;
};

// Asks a certificate. Refused is only a question that is none of its kind, with the place in its
// text.
inline Result<Identity> Identify(Octets certificate, const Reference& reference) {
  ortholan_identity answer;
  Refusal refusal;
  if (ortholan_identify(certificate, reference.get(), &answer, &refusal) != 0) return refusal;
  return Identity(answer, refusal, reference);
}

// The same of the value of an alternative-name extension alone.
inline Result<Identity> IdentifyByNames(Octets names, const Reference& reference) {
  ortholan_identity answer;
  Refusal refusal;
  if (ortholan_identify_by_names(names, reference.get(), &answer, &refusal) != 0) return refusal;
  return Identity(answer, refusal, reference);
}

}  // namespace ortholan

#endif  // ORTHOLAN_STRICT_IDENTITY_HPP_
