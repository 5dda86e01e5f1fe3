#include <algorithm>

#include "Encrypter.h"
#include "Md5Block.h"

using Wexa::md5::kBlockLength;
using Wexa::md5::Word;

namespace {

constexpr unsigned kLengthOffset = 56;  // of the message's length in the last block

void WriteWord(Word word, unsigned char* bytes) {
  for (int i = 0; i < 4; ++i) bytes[i] = static_cast<unsigned char>(word >> (8 * i));
}

}  // namespace

const unsigned char Encrypter::md5_padding_[64] = {0x80};

void Encrypter::MD5Start(MD5Context* context) {
  *context = {{0, 0}, {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476}, {}};
}

void Encrypter::MD5Update(MD5Context* context, const unsigned char* input, unsigned int length) {
  unsigned filled = context->total[0] % kBlockLength;
  context->total[0] += length;
  if (context->total[0] < length) ++context->total[1];
  while (length > 0) {
    const unsigned part = std::min(length, kBlockLength - filled);
    if (part == kBlockLength) {
      MD5Process(context, input);
    } else {
      std::copy_n(input, part, context->buffer + filled);
      filled = (filled + part) % kBlockLength;
      if (filled == 0) MD5Process(context, context->buffer);
    }
    input += part;
    length -= part;
  }
}

void Encrypter::MD5Process(MD5Context* context, const unsigned char block[64]) {
  Wexa::md5::AddBlock(context->state, block, [](unsigned) {});
}

void Encrypter::MD5Finish(MD5Context* context, unsigned char digest[16]) {
  unsigned char bits[8];
  WriteWord(context->total[0] << 3, bits);
  WriteWord(context->total[1] << 3 | context->total[0] >> 29, bits + 4);
  const unsigned filled = context->total[0] % kBlockLength;
  const unsigned padding = (filled < kLengthOffset ? kLengthOffset : kLengthOffset + 64) - filled;
  MD5Update(context, md5_padding_, padding);
  MD5Update(context, bits, sizeof bits);
  for (int i = 0; i < 4; ++i) WriteWord(context->state[i], digest + 4 * i);
}

void Encrypter::MD5Generate(unsigned char* input, unsigned int length, unsigned char digest[16]) {
  MD5Context context;
  MD5Start(&context);
  MD5Update(&context, input, length);
  MD5Finish(&context, digest);
}
