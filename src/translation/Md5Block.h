#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>

// The compression function of MD5, RFC 1321.

namespace Wexa::md5 {

using Word = std::uint32_t;

inline constexpr unsigned kBlockLength = 64;

// floor(2^32 * abs(sin(i + 1)))
inline constexpr std::array<Word, 64> kSines = {
    0xd76aa478, 0xe8c7b756, 0x242070db, 0xc1bdceee, 0xf57c0faf, 0x4787c62a, 0xa8304613, 0xfd469501,
    0x698098d8, 0x8b44f7af, 0xffff5bb1, 0x895cd7be, 0x6b901122, 0xfd987193, 0xa679438e, 0x49b40821,
    0xf61e2562, 0xc040b340, 0x265e5a51, 0xe9b6c7aa, 0xd62f105d, 0x02441453, 0xd8a1e681, 0xe7d3fbc8,
    0x21e1cde6, 0xc33707d6, 0xf4d50d87, 0x455a14ed, 0xa9e3e905, 0xfcefa3f8, 0x676f02d9, 0x8d2a4c8a,
    0xfffa3942, 0x8771f681, 0x6d9d6122, 0xfde5380c, 0xa4beea44, 0x4bdecfa9, 0xf6bb4b60, 0xbebfbc70,
    0x289b7ec6, 0xeaa127fa, 0xd4ef3085, 0x04881d05, 0xd9d4d039, 0xe6db99e5, 0x1fa27cf8, 0xc4ac5665,
    0xf4292244, 0x432aff97, 0xab9423a7, 0xfc93a039, 0x655b59c3, 0x8f0ccc92, 0xffeff47d, 0x85845dd1,
    0x6fa87e4f, 0xfe2ce6e0, 0xa3014314, 0x4e0811a1, 0xf7537e82, 0xbd3af235, 0x2ad7d2bb, 0xeb86d391};

// One of the four rounds: how far its steps rotate, and which input word step i takes.
struct Round {
  int shifts[4];
  unsigned factor;
  unsigned offset;
};

inline constexpr Round kRounds[4] = {{{7, 12, 17, 22}, 1, 0},
                                     {{5, 9, 14, 20}, 5, 1},
                                     {{4, 11, 16, 23}, 3, 5},
                                     {{6, 10, 15, 21}, 7, 0}};

// A step adds the parts of its mixed word one by one: what the last step changed, b, comes in as
// late as can be, so that the processor need not wait for it.
template <unsigned kRound>
constexpr Word AddMixed(Word sum, Word b, Word c, Word d) {
  if constexpr (kRound == 0) return sum + (d ^ (b & (c ^ d)));
  if constexpr (kRound == 1) return sum + (~d & c) + (d & b);
  if constexpr (kRound == 2) return sum + (b ^ (c ^ d));
  return sum + (c ^ (b | ~d));
}

// The four words change their places from step to step.
template <unsigned kStep>
constexpr void DoStep(Word (&state)[4], const Word (&words)[16]) {
  constexpr Round round = kRounds[kStep / 16];
  Word& a = state[(64 - kStep) % 4];
  const Word b = state[(65 - kStep) % 4];
  const Word sum = a + kSines[kStep] + words[(round.factor * kStep + round.offset) % 16];
  const Word mixed = AddMixed<kStep / 16>(sum, b, state[(66 - kStep) % 4], state[(67 - kStep) % 4]);
  a = b + std::rotl(mixed, round.shifts[kStep % 4]);
}

constexpr Word ReadWord(const unsigned char* bytes) {
  return Word{bytes[0]} | Word{bytes[1]} << 8 | Word{bytes[2]} << 16 | Word{bytes[3]} << 24;
}

// Adds a block to the chaining state. Calls `beside(n)` after each of the 64 steps: every step
// waits for the one before, which leaves a processor time for other work on the block. The block
// may be changed by it.
template <typename Beside>
void AddBlock(Word (&chain)[4], const unsigned char* block, Beside beside) {
  Word words[16];
  for (int i = 0; i < 16; ++i) words[i] = ReadWord(block + 4 * i);
  Word state[4];
  std::copy_n(chain, 4, state);
  [&]<unsigned... kSteps>(std::integer_sequence<unsigned, kSteps...>) {
    ((DoStep<kSteps>(state, words), beside(kSteps)), ...);
  }
  (std::make_integer_sequence<unsigned, 64>());
  for (int i = 0; i < 4; ++i) chain[i] += state[i];
}

}  // namespace Wexa::md5
