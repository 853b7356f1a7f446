// The header-only C++ in Visual C++'s ABI, exceptions included: each line of standard input is the
// DER of a name in hexadecimal digits, and is answered by its text or by "refused: " and the
// reason.
#include <cstdio>
#include <ortholan/strict.hpp>
#include <string>
#include <vector>

namespace {

std::vector<uint8_t> FromDigits(const std::string& digits) {
  const auto value = [](char c) { return c <= '9' ? c - '0' : c - 'A' + 10; };
  std::vector<uint8_t> octets;
  for (size_t i = 0; i + 1 < digits.size(); i += 2) {
    octets.push_back(static_cast<uint8_t>(value(digits[i]) * 16 + value(digits[i + 1])));
  }
  return octets;
}

std::string Answer(const std::string& digits) {
  try {
    const ortholan::Name name = ortholan::Name::FromDer(FromDigits(digits)).value();
    const ortholan::Name again = ortholan::Name::FromText(name.ToText().value()).value();
    // A TeletexString and another string cannot be told apart.
    const bool is_other =
        ortholan::MatchNames(name.der(), again.der()).verdict() == ortholan::Verdict::kNo;
    return name.ToText().value() + (is_other ? " is another name" : "");
  } catch (const ortholan::Error& error) {
    return std::string("refused: ") + error.what();
  }
}

}  // namespace

int main() {
  std::string line;
  for (int c = std::getchar(); c != EOF; c = std::getchar()) {
    if (c != '\n') {
      line += static_cast<char>(c);
      continue;
    }
    std::puts(Answer(line).c_str());
    line.clear();
  }
  return 0;
}
