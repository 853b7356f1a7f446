#include "examples/sha256.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace Example {
namespace {

using Word = std::uint32_t;

// FIPS 180-4, 4.2.2: fractional parts of the cube roots of the first 64 primes.
constexpr Word kRound[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

constexpr std::size_t kBlock = 64;
using State = std::array<Word, 8>;

Word Turn(Word word, int bits) { return word >> bits | word << (32 - bits); }

Word ReadWord(const char* octets) {
  Word word = 0;
  for (int i = 0; i < 4; ++i) word = word << 8 | static_cast<unsigned char>(octets[i]);
  return word;
}

// 6.2.2
void AddBlock(State& state, const char* block) {
  Word schedule[64];
  for (std::size_t i = 0; i < 16; ++i) schedule[i] = ReadWord(block + 4 * i);
  for (std::size_t i = 16; i < 64; ++i) {
    const Word a = schedule[i - 15];
    const Word b = schedule[i - 2];
    schedule[i] = schedule[i - 16] + (Turn(a, 7) ^ Turn(a, 18) ^ a >> 3) + schedule[i - 7] +
                  (Turn(b, 17) ^ Turn(b, 19) ^ b >> 10);
  }
  auto [a, b, c, d, e, f, g, h] = state;
  for (std::size_t i = 0; i < 64; ++i) {
    const Word first = h + (Turn(e, 6) ^ Turn(e, 11) ^ Turn(e, 25)) + ((e & f) ^ (~e & g)) +
                       kRound[i] + schedule[i];
    const Word second = (Turn(a, 2) ^ Turn(a, 13) ^ Turn(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
    h = g;
    g = f;
    f = e;
    e = d + first;
    d = c;
    c = b;
    b = a;
    a = first + second;
  }
  const Word last[8] = {a, b, c, d, e, f, g, h};
  for (std::size_t i = 0; i < 8; ++i) state[i] += last[i];
}

void AppendNumber(std::string& octets, std::uint64_t number, int bits) {
  while (bits > 0) octets += static_cast<char>(number >> (bits -= 8) & 0xFF);
}

}  // namespace

std::string Sha256(std::string_view message) {
  // 5.3.3: of the square roots of the first eight primes.
  State state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  const std::uint64_t bits = std::uint64_t{message.size()} * 8;
  for (; message.size() >= kBlock; message.remove_prefix(kBlock)) AddBlock(state, message.data());
  // 5.1.1
  std::string last(message);
  last += '\x80';
  last.append((2 * kBlock - 8 - last.size()) % kBlock, '\0');
  AppendNumber(last, bits, 64);
  for (std::size_t i = 0; i < last.size(); i += kBlock) AddBlock(state, last.data() + i);
  std::string digest;
  for (const Word word : state) AppendNumber(digest, word, 32);
  return digest;
}

}  // namespace Example
