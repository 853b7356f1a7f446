#include "fuzz/mutator.h"

namespace Ortholan::fuzzing {
namespace {

constexpr size_t kLongest = 4096;

// Octets at which readers decide: lengths, identifiers, characters that separate and escape.
constexpr char kTelling[] =
    "\x00\x01\x7F\x80\x81\x82\x84\xFF\x30\x31\x06\x0C\x13\x14\x16\x1C\x1E\x24\xA0"
    "\\\"#+,;=<> $*.@";

char Telling(Numbers* numbers) { return kTelling[numbers->Below(sizeof kTelling - 1)]; }

void Flip(std::string* octets, Numbers* numbers) {
  char& octet = (*octets)[numbers->Below(octets->size())];
  octet = static_cast<char>(octet ^ 1 << numbers->Below(8));
}

void Replace(std::string* octets, Numbers* numbers) {
  (*octets)[numbers->Below(octets->size())] = Telling(numbers);
}

void Insert(std::string* octets, Numbers* numbers) {
  octets->insert(octets->begin() + static_cast<std::ptrdiff_t>(numbers->Below(octets->size() + 1)),
                 Telling(numbers));
}

void Erase(std::string* octets, Numbers* numbers) {
  octets->erase(numbers->Below(octets->size()), 1 + numbers->Below(4));
}

// Copies a piece to another place.
void Copy(std::string* octets, Numbers* numbers) {
  const std::string piece =
      octets->substr(numbers->Below(octets->size()), 1 + numbers->Below(octets->size()));
  octets->insert(numbers->Below(octets->size() + 1), piece);
}

// Changes an octet that may be a length by little, or by what the whole has grown.
void Resize(std::string* octets, Numbers* numbers) {
  char& octet = (*octets)[numbers->Below(octets->size())];
  octet = static_cast<char>(octet + static_cast<char>(numbers->Below(9)) - 4);
}

// Makes the outermost length right, so that what is inside is looked at.
void Close(std::string* octets, Numbers* /*numbers*/) {
  if (octets->size() >= 2 && octets->size() < 0x80 + 2) {
    (*octets)[1] = static_cast<char>(octets->size() - 2);
  }
}

constexpr void (*kChanges[])(std::string*, Numbers*) = {Flip, Replace, Insert, Erase,
                                                        Copy, Resize,  Close};

}  // namespace

std::string Mutator::Next() {
  std::string octets = inputs_[numbers_.Below(inputs_.size())];
  if (numbers_.Below(8) == 0) {
    const std::string& other = inputs_[numbers_.Below(inputs_.size())];
    octets = octets.substr(0, numbers_.Below(octets.size() + 1)) +
             other.substr(numbers_.Below(other.size() + 1));
  }
  for (size_t count = 1 + numbers_.Below(4); count != 0; --count) Change(&octets);
  octets.resize(octets.size() < kLongest ? octets.size() : kLongest);
  return octets;
}

void Mutator::Change(std::string* octets) {
  const auto change = kChanges[numbers_.Below(sizeof kChanges / sizeof *kChanges)];
  if (octets->empty()) {
    Insert(octets, &numbers_);
  } else {
    change(octets, &numbers_);
  }
}

}  // namespace Ortholan::fuzzing
