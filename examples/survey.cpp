// survey: what becomes of real names on the way from DER to text to DER to text.

#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_options.h>

#include <cstddef>
#include <cstdio>
#include <list>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "examples/commands.h"
#include "examples/der.h"
#include "examples/document.h"
#include "examples/document_file.h"
#include "examples/failure.h"
#include "examples/input.h"
#include "examples/kinds.h"
#include "examples/name_text.h"
#include "examples/progress.h"
#include "examples/text.h"

namespace Example {

using namespace Ortholan;

namespace {

constexpr DWORD kIdentifiers = CERT_OID_NAME_STR;

bool EncodeText(const std::wstring& text, IdentObj& der) {
  X500NameEncoder encoder;
  encoder.SetEncoderOptions(CERT_NAME_STR_ENABLE_UTF8_UNICODE_FLAG);
  return encoder.Encode(text, der, false);
}

bool DecodeText(const IdentObj& der, std::wstring& text) {
  X500NameDecoder decoder;
  return decoder.Decode(der, text, kStyleKeys);
}

std::wstring Quoted(const std::wstring& value) {
  std::wstring quoted = L"\"";
  for (const wchar_t unit : value) {
    if (unit == L'"') quoted += unit;
    quoted += unit;
  }
  return quoted + L"\"";
}

// Whether the encoder writes an attribute with that type and value.
bool Takes(const std::wstring& type, const std::wstring& value) {
  IdentObj der;
  return EncodeText(type + L"=" + Quoted(value), der);
}

// The first attribute of a decoded name that the encoder does not write, and why: it is asked for
// each, first with a value that suits every type, then with the attribute's own.
std::string WhyNotEncoded(const IdentObj& name) {
  X500NameDecoder decoder;
  std::list<std::pair<std::wstring, std::list<std::wstring>>> pairs;
  if (!decoder.Decode(name, pairs, kIdentifiers)) return "values that have no list of texts";
  if (pairs.empty()) return "a name without attributes";
  for (const auto& [type, values] : pairs) {
    if (!Takes(type, L"x")) return "an attribute type that the encoder does not write";
    std::wstring value;
    for (const std::wstring& line : values) value += (value.empty() ? L"" : L"\n") + line;
    if (value.empty()) return "an empty value";
    if (!Takes(type, value)) return "a value outside the alphabet of its type";
  }
  return "the form of the text";
}

class Survey {
 public:
  void CountName(const IdentObj& name);
  void CountCertificate(std::string_view der);
  void CountBad() { ++bad_; }
  void PrintResult() const;

 private:
  using Reasons = std::map<std::string, std::size_t>;

  static void PrintCount(const char* indent, const std::string& what, std::size_t count);
  static void PrintReasons(const char* title, const Reasons& reasons);

  std::size_t certificates_ = 0;
  std::size_t bad_ = 0;
  std::size_t names_ = 0;
  std::size_t decoded_ = 0;
  std::size_t unchanged_ = 0;
  std::size_t changed_ = 0;
  Reasons refusedText_;
  Reasons refusedDer_;
};

void Survey::CountName(const IdentObj& name) {
  ++names_;
  const NameText original = ReadNameText(name);
  if (!original.accepted) {
    ++refusedDer_[original.reason];
    return;
  }
  ++decoded_;
  IdentObj der;
  std::wstring again;
  if (!EncodeText(original.text, der)) {
    ++refusedText_[WhyNotEncoded(name)];
  } else if (DecodeText(der, again) && again == original.text) {
    ++unchanged_;
  } else {
    ++changed_;
  }
}

void Survey::CountCertificate(std::string_view der) {
  const Kind kind = KindOf(der);
  // Requests and revocation lists are left out.
  if (kind == Kind::kRequest || kind == Kind::kRevocationList) return;
  std::vector<std::string_view> names;
  try {
    names = ReadCertificateNames(der);
  } catch (const Failure&) {
    CountBad();
    return;
  }
  ++certificates_;
  for (const std::string_view name : names) CountName(Copy(name));
}

void Survey::PrintCount(const char* indent, const std::string& what, std::size_t count) {
  char line[128];
  const int width = 60 - static_cast<int>(std::string(indent).size());
  std::snprintf(line, sizeof line, "%s%-*s %7zu\n", indent, width, what.c_str(), count);
  Print(line);
}

void Survey::PrintReasons(const char* title, const Reasons& reasons) {
  std::size_t total = 0;
  for (const auto& [reason, count] : reasons) total += count;
  PrintCount("  ", title, total);
  for (const auto& [reason, count] : reasons) PrintCount("      ", reason, count);
}

void Survey::PrintResult() const {
  PrintCount("", "certificates", certificates_);
  if (bad_ != 0) PrintCount("", "  and such that cannot be read", bad_);
  PrintCount("", "names (subjects and issuers)", names_);
  PrintCount("  ", "decoded", decoded_);
  PrintCount("  ", "went text to DER to text unchanged", unchanged_);
  PrintCount("  ", "came back as another text", changed_);
  PrintReasons("decoded, but the encoder refused the text:", refusedText_);
  PrintReasons("refused by the decoder:", refusedDer_);
}

int RunSurvey(const Arguments& arguments) {
  Survey survey;
  for (const std::string& path : arguments.operands) {
    const std::string file = ReadOctets(path);
    Progress progress(file.size());
    ForEachDocument(
        file,
        [&](std::size_t number, std::string_view der, std::size_t position) {
          survey.CountCertificate(der);
          progress.Show(number, position);
        },
        [&survey](std::size_t, const std::string&) { survey.CountBad(); });
  }
  survey.PrintResult();
  return 0;
}

}  // namespace

const Command kSurveyCommand = {
    "survey",
    RunSurvey,
    1,
    kAnyNumber,
    "FILE...",
    "count what becomes of names",
    "Takes the names of all certificates from DER to text and back, and counts the results.\n",
    "x509name survey /etc/ssl/certs/ca-certificates.crt\n",
    {}};

}  // namespace Example
